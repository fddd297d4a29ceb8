// Values of expm1, by their bits, worked out from the steps in scalar arithmetic.
#include "tests/harness/lanes.h"

namespace {

using harness::expect_rows;

TEST(Expm1, Single) {
    expect_rows("expm1f",
                {
                    {{0x00000000}, {0x00000000}}, {{0x80000000}, {0x80000000}},  // the sign is ORed in
                    {{0x00000001}, {0x00000001}}, {{0x80000001}, {0x80000001}}, {{0x007fffff}, {0x007fffff}},
                    {{0x39000000}, {0x39000200}},                                // 2^-13
                    {{0xb9000000}, {0xb8fffc00}}, {{0x3bb17217}, {0x3bb1ed4f}},  // ln(2)/128, where the step changes
                    {{0x3bb17218}, {0x3bb1ed50}}, {{0xbbb17218}, {0xbbb0f752}}, {{0x3e800000}, {0x3e916bc8}},
                    {{0x3f800000}, {0x3fdbf0a9}}, {{0xbf800000}, {0xbf21d2a7}}, {{0xc18c0000}, {0xbf800000}},
                    {{0x42ad496b}, {0x7dffffcc}},                                // the last ordinary lanes
                    {{0xc2ad496b}, {0xbf800000}}, {{0x42ad496c}, {0x7e000027}},  // the first rare ones: e^x
                    {{0xc2ad496c}, {0xbf800000}},                                // -1
                    {{0x42b10000}, {0x7f4cdcc4}}, {{0x42b17217}, {0x7f7fff86}}, {{0x42b17218}, {0x7f800000}},
                    {{0xff7fffff}, {0xbf800000}}, {{0x7f800001}, {0x7fc00001}}, {{0x7f800000}, {0x7f800000}},
                    {{0xff800000}, {0xbf800000}}, {{0x7fc00000}, {0x7fc00000}}, {{0xffc01234}, {0xffc01234}},
                });
}

TEST(Expm1, Double) {
    expect_rows("expm1", {
                             {{0x0000000000000000}, {0x0000000000000000}},
                             {{0x8000000000000000}, {0x8000000000000000}},  // the sign is ORed in
                             {{0x0000000000000001}, {0x0000000000000001}},
                             {{0x8000000000000001}, {0x8000000000000001}},
                             {{0x000fffffffffffff}, {0x000fffffffffffff}},
                             {{0x3e50000000000000}, {0x3e50000002000000}},  // 2^-26
                             {{0xbe50000000000000}, {0xbe4ffffffc000000}},
                             {{0x3f662e42fefa39ef}, {0x3f6635f4b5797dac}},  // ln(2)/256, where the step changes
                             {{0x3f662e42fefa39f0}, {0x3f6635f4b5797daf}},
                             {{0xbf662e42fefa39f0}, {0xbf662694d5dc26ec}},
                             {{0x3fd0000000000000}, {0x3fd22d78f0fa0619}},
                             {{0x3ff0000000000000}, {0x3ffb7e151628aed3}},
                             {{0xbff0000000000000}, {0xbfe43a54e4e98864}},
                             {{0xc042600000000000}, {0xbfefffffffffffff}},
                             {{0xc085e00000000000}, {0xbff0000000000000}},
                             {{0x40861da04cbafe43}, {0x7fbffffffffffcf8}},  // the last ordinary lanes
                             {{0xc0861da04cbafe43}, {0xbff0000000000000}},
                             {{0x40861da04cbafe44}, {0x7fc000000000007c}},  // the first rare ones: e^x
                             {{0xc0861da04cbafe44}, {0xbff0000000000000}},  // -1
                             {{0x40862c0000000000}, {0x7fe81e9b4b52d0c9}},
                             {{0x40862e42fefa39ef}, {0x7fefffffffffff2a}},
                             {{0x40862e42fefa39f0}, {0x7ff0000000000000}},
                             {{0xffefffffffffffff}, {0xbff0000000000000}},
                             {{0x7ff0000000000000}, {0x7ff0000000000000}},
                             {{0xfff0000000000000}, {0xbff0000000000000}},
                             {{0x7ff8000000000000}, {0x7ff8000000000000}},
                             {{0xfff8000000001234}, {0xfff8000000001234}},
                             {{0x7ff0000000000001}, {0x7ff8000000000001}},
                         });
}

// No lane is repaired; the sign of x is kept by whatever comes out.
TEST(Expm1, Native) {
    expect_rows("expm1f_native", {
                                     {{0x00000000}, {0x00000000}},
                                     {{0x80000000}, {0x80000000}},
                                     {{0x00000001}, {0x00000001}},
                                     {{0x80000001}, {0x80000001}},
                                     {{0x3e800000}, {0x3e916bd0}},
                                     {{0xbf800000}, {0xbf21d2a7}},
                                     {{0x41280000}, {0x470dda7f}},
                                     {{0xc2ac0000}, {0xbf800000}},
                                     {{0x42b20000}, {0x7fe9a15b}},  // out of range
                                     {{0xc2be0000}, {0xfaf63fa8}},
                                     {{0x7149f2ca}, {0xbf800000}},
                                     {{0xf149f2ca}, {0xbf800000}},
                                     {{0x7f800000}, {0xffc00000}},
                                     {{0xff800000}, {0xffc00000}},
                                     {{0x7fc00000}, {0x7fc00000}},
                                     {{0xffc01234}, {0xffc01234}},
                                 });
    expect_rows("expm1_native", {
                                    {{0x0000000000000000}, {0x0000000000000000}},
                                    {{0x8000000000000000}, {0x8000000000000000}},
                                    {{0x0000000000000001}, {0x0000000000000001}},
                                    {{0x8000000000000001}, {0x8000000000000001}},
                                    {{0x3fd0000000000000}, {0x3fd22d78f0fa03a1}},
                                    {{0xbff0000000000000}, {0xbfe43a54e4e98e39}},
                                    {{0x4025000000000000}, {0x40e1bb5015e84d3a}},
                                    {{0xc085e00000000000}, {0xbff0000000000000}},
                                    {{0x4086300000000000}, {0x7ffbdea64c123422}},  // out of range
                                    {{0xc086800000000000}, {0xff032769b92a3c34}},
                                    {{0x7e37e43c8800759c}, {0xbff0000000000000}},
                                    {{0xfe37e43c8800759c}, {0xbff0000000000000}},
                                    {{0x7ff0000000000000}, {0xfff8000000000000}},
                                    {{0xfff0000000000000}, {0xfff8000000000000}},
                                    {{0x7ff8000000000000}, {0x7ff8000000000000}},
                                    {{0xfff8000000001234}, {0xfff8000000001234}},
                                });
}

// Operands whose result changes with the last binary digits of one constant that reach it: between them they see nearly
// every constant of the main paths and of the scalar routines.
TEST(Expm1, Digits) {
    expect_rows("expm1f",
                {{{0x42adc5d2}, {0x7e233435}},
                 {{0x429811eb}, {0x764f4311}},
                 {{0x42591253}, {0x669cb7af}},
                 {{0x3bf189a9}, {0x3bf26e1e}},
                 {{0x3f5a41d3}, {0x3fac3e97}},
                 {{0x42af5dbb}, {0x7eb50296}},
                 {{0x42aea8dd}, {0x7e7e4832}},
                 {{0x42af84ae}, {0x7ec3513e}},
                 {{0x42b0fc06}, {0x7f4b4704}}},
                {4});
    expect_rows("expm1",
                {{{0x4086203bde5728d0}, {0x7fc62a711ebd81b0}},
                 {{0x4080906fa99038c6}, {0x6fba1e7ae05e3e4e}},
                 {{0x4081490625e59f4c}, {0x71cfe3cd3a631a5a}},
                 {{0xbfd185bf6e0ea53c}, {0xbfcea829fb55012d}},
                 {{0xbfc94c118b0104b0}, {0xbfc6f4473350af69}},
                 {{0xbf8cf5afcab40100}, {0xbf8cc1842d65d524}},
                 {{0x408627b845e57937}, {0x7fdc40639b2276bc}},
                 {{0x408622f00a473f6c}, {0x7fcf14294ddb8651}},
                 {{0x408627e6685e04bc}, {0x7fdce528e4c60fc6}},
                 {{0x40862485cb6f07ce}, {0x7fd2f1b9532d47a8}}},
                {4});
    expect_rows("expm1f_native",
                {{{0x4295702e}, {0x755e6137}}, {{0x427209cf}, {0x6b1d3eab}}, {{0x3dc455aa}, {0x3dce0dab}}}, {4});
    expect_rows("expm1_native",
                {{{0x4082db71f889a5c4}, {0x7657b17acc98236b}}, {{0xbf6723b118a80400}, {0xbf671b556196e732}}}, {4});
}

}  // namespace
