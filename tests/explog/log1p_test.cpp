// Values of log1p, by their bits, worked out from the steps in scalar arithmetic.
// The rows are chosen so that every estimate of a reciprocal with an error of 1.5 * 2^-12 rounds to the same integer.
#include "tests/harness/lanes.h"

namespace {

using harness::expect_rows;

TEST(Log1p, Single) {
    expect_rows("log1pf", {
                              {{0x00000000}, {0x00000000}}, {{0x80000000}, {0x80000000}},  // the sign is ORed in
                              {{0x00000001}, {0x00000001}}, {{0x80000001}, {0x80000001}}, {{0x007fffff}, {0x007fffff}},
                              {{0x34000000}, {0x33ffffff}},                                // 2^-23
                              {{0xb4000000}, {0xb4000001}}, {{0x397fffff}, {0x397ff7ff}},  // s whole
                              {{0x39800000}, {0x397ff800}},                                // s cut
                              {{0xb97fffff}, {0xb9800400}}, {{0xb9800000}, {0xb9800400}}, {{0x3b800000}, {0x3b7f8055}},
                              {{0x3e800000}, {0x3e647fbe}}, {{0x3f800000}, {0x3f317218}},  // max and min of equals
                              {{0xbf000000}, {0xbf317218}}, {{0xbf7fffff}, {0xc1851592}},  // the last ordinary lane
                              {{0xbf800000}, {0xff800000}}, {{0xbf800001}, {0xffc00000}}, {{0xff7fffff}, {0xffc00000}},
                              {{0x5d800000}, {0x42265af6}}, {{0x7a800000}, {0x42a3952e}},  // the last ordinary lane
                              {{0x7a800001}, {0x42a3952e}}, {{0x7f7fffff}, {0x42b17218}}, {{0x7f800001}, {0x7fc00001}},
                              {{0x7f800000}, {0x7f800000}}, {{0xff800000}, {0xffc00000}}, {{0x7fc00000}, {0x7fc00000}},
                              {{0xffc01234}, {0xffc01234}},
                          });
}

TEST(Log1p, Double) {
    expect_rows("log1p", {
                             {{0x0000000000000000}, {0x0000000000000000}},
                             {{0x8000000000000000}, {0x8000000000000000}},  // the sign is ORed in
                             {{0x0000000000000001}, {0x0000000000000001}},
                             {{0x8000000000000001}, {0x8000000000000001}},
                             {{0x000fffffffffffff}, {0x000fffffffffffff}},
                             {{0x3cb0000000000000}, {0x3cafffffffffffff}},  // 2^-52
                             {{0xbcb0000000000000}, {0xbcb0000000000000}},
                             {{0x3dffffffffffffff}, {0x3dffffffffdfffff}},  // s whole
                             {{0x3e00000000000000}, {0x3dffffffffe00000}},  // s cut
                             {{0xbdffffffffffffff}, {0xbe00000000100000}},
                             {{0xbe00000000000000}, {0xbe00000000100000}},
                             {{0x3f50000000000000}, {0x3f4ffc00aa8ab110}},
                             {{0x3fcfd809fd809fd8}, {0x3fcc6ffbc6f00f71}},
                             {{0x3ff0000000000000}, {0x3fe62e42fefa39ef}},  // max and min of equals
                             {{0x3fda64fcd2731c98}, {0x3fd61965cdb02c1e}},
                             {{0xbfe0000000000000}, {0xbfe62e42fefa39ef}},
                             {{0xbfefffffffffffff}, {0xc0425e4f7b2737fa}},  // the last ordinary lane
                             {{0xbff0000000000000}, {0xfff0000000000000}},
                             {{0xbff0000000000001}, {0xfff8000000000000}},
                             {{0xffefffffffffffff}, {0xfff8000000000000}},
                             {{0x43b0000000000000}, {0x4044cb5ecf0a9650}},
                             {{0x7f3ffffffffff000}, {0x4085f143c6bd09cc}},  // the last ordinary lane
                             {{0x7f3ffffffffff001}, {0x4085f143c6bd09cc}},
                             {{0x7fefffffffffffff}, {0x40862e42fefa39ef}},
                             {{0x7ff0000000000000}, {0x7ff0000000000000}},
                             {{0xfff0000000000000}, {0xfff8000000000000}},
                             {{0x7ff8000000000000}, {0x7ff8000000000000}},
                             {{0xfff8000000001234}, {0xfff8000000001234}},
                             {{0x7ff0000000000001}, {0x7ff8000000000001}},
                         });
}

// Nothing is classified: the pattern of a sum that is zero or negative is split like any other.
TEST(Log1p, Native) {
    expect_rows("log1pf_native", {
                                     {{0x00000000}, {0x00000000}},
                                     {{0x80000000}, {0x80000000}},
                                     {{0x00000001}, {0x00000001}},
                                     {{0x34000000}, {0x33ffffff}},  // 2^-23
                                     {{0xb4000000}, {0xb4000001}},
                                     {{0x3f800000}, {0x3f317218}},
                                     {{0xbf000000}, {0xbf317218}},
                                     {{0xbf7fffff}, {0xc1851592}},
                                     {{0xbf800000}, {0xc2b00f34}},
                                     {{0xc0000000}, {0xc3317218}},
                                     {{0x5d800000}, {0x42265af6}},
                                     {{0x7f7fffff}, {0xff800000}},
                                     {{0x7f800000}, {0xffc00000}},
                                     {{0xff800000}, {0xffc00000}},
                                     {{0x7fc00000}, {0x7fc00000}},
                                     {{0xffc01234}, {0xffc01234}},
                                 });
    expect_rows("log1p_native", {
                                    {{0x0000000000000000}, {0x0000000000000000}},
                                    {{0x8000000000000000}, {0x0000000000000000}},  // no sign is ORed in
                                    {{0x0000000000000001}, {0x0000000000000001}},
                                    {{0x3cb0000000000000}, {0x3cafffffffffffff}},  // 2^-52
                                    {{0xbcb0000000000000}, {0xbcb0000000000000}},
                                    {{0x3ff0000000000000}, {0x3fe62e42fefa39ef}},
                                    {{0xbfe0000000000000}, {0xbfe62e42fefa39ef}},
                                    {{0xbfefffffffffffff}, {0xc0425e4f7b2737fa}},
                                    {{0xbff0000000000000}, {0xc08628b76e3a7b61}},
                                    {{0x43b0000000000000}, {0x4044cb5ecf0a9650}},
                                    {{0x7f40000000000000}, {0x4085f143c6bd09d0}},
                                    {{0x7fefffffffffffff}, {0xfff0000000000000}},
                                    {{0x7ff0000000000000}, {0xfff8000000000000}},
                                    {{0xfff0000000000000}, {0xfff8000000000000}},
                                    {{0x7ff8000000000000}, {0x7ff8000000000000}},
                                    {{0xfff8000000001234}, {0xfff8000000001234}},
                                });
}

// Operands whose result changes with the last binary digits of one constant that reach it: between them they see nearly
// every constant of the main paths and of the scalar routines.
TEST(Log1p, Digits) {
    expect_rows("log1pf",
                {{{0x41d00f14}, {0x4052f375}},
                 {{0x3bcf813b}, {0x3bced9be}},
                 {{0x39e0612f}, {0x39e054e5}},
                 {{0xbb25f0d7}, {0xbb2626b6}},
                 {{0x7f2542f0}, {0x42b09204}},
                 {{0x7e80fd54}, {0x42aeb041}},
                 {{0x7dffe722}, {0x42ad493a}},
                 {{0x7eb769b8}, {0x42af647c}}},
                {4});
    expect_rows("log1p",
                {{{0x3fd32bb56dad9aaa}, {0x3fd0c4d003f96519}},
                 {{0xbf1ff87a917e26b8}, {0xbf1ff8fa58029e8e}},
                 {{0xbf4297316550f688}, {0xbf42988b2308f821}},
                 {{0xbf3c90cb6cf6f652}, {0xbf3c92638a85f2c7}},
                 {{0xbf160eb71391b210}, {0xbf160ef3e57b4611}},
                 {{0x7fe0003b1d0e94b6}, {0x408628b78bc8cc12}},
                 {{0x7fcfe18f412d342a}, {0x408623243daa1c76}},
                 {{0x7fe7912a884970b6}, {0x40862bd08a8cc92f}},
                 {{0x7fe09dd81ec72a97}, {0x40862904deb7371b}}},
                {4});
    expect_rows("log1pf_native", {{{0x324202af}, {0x324202af}}, {{0x3ebd9f41}, {0x3ea1516c}}}, {4});
    expect_rows("log1p_native",
                {{{0xbf3fd8d39362091e}, {0xbf3fdacedae27641}}, {{0x3fe868c8e607040b}, {0x3fe22408225c0fa3}}}, {4});
}

}  // namespace
