// Values of the double precision exponentials, by their bits, worked out from the steps in scalar arithmetic.
#include "tests/harness/lanes.h"

namespace {

using harness::expect_rows;

// Alike in all three; NaNs keep sign and payload, signalling ones are quieted.
TEST(ExpDouble, SpecialOperands) {
    for (const char* family : {"exp", "exp2", "exp10"})
        expect_rows(family, {{{0x7ff0000000000000}, {0x7ff0000000000000}},
                             {{0xfff0000000000000}, {0}},
                             {{0x7ff8000000000000}, {0x7ff8000000000000}},
                             {{0xfff8000000001234}, {0xfff8000000001234}},
                             {{0x7ff0000000000001}, {0x7ff8000000000001}},
                             {{0x7fefffffffffffff}, {0x7ff0000000000000}},
                             {{0xffefffffffffffff}, {0}}});
}

TEST(ExpDouble, Exp) {
    expect_rows("exp", {
                           {{0x0000000000000000}, {0x3fefffffffffffff}},  // one ulp below 1
                           {{0x8000000000000000}, {0x3fefffffffffffff}},
                           {{0x0000000000000001}, {0x3fefffffffffffff}},
                           {{0x3ff0000000000000}, {0x4005bf0a8b145769}},
                           {{0xbff0000000000000}, {0x3fd78b56362cef38}},
                           {{0x4025000000000000}, {0x40e1bb7015e84d3b}},
                           {{0xc085e20000000000}, {0x00caf5fe9a485c8f}},
                           {{0x4086232affffffff}, {0x7fcffc8a44f2423b}},  // the last ordinary lanes
                           {{0xc086232affffffff}, {0x001001bb0d6e2826}},
                           {{0x4086232b00000000}, {0x7fcffc8a44f2463a}},  // the first rare ones
                           {{0xc086232b00000000}, {0x001001bb0d6e2626}},
                           {{0xc086232bdd7abcd2}, {0x001000000000007c}},  // the last normal result
                           {{0xc086232bdd7abcd3}, {0x000ffffffffffe7c}},
                           {{0x40862c0000000000}, {0x7fe81e9b4b52d0c9}},  // 2^1024 p
                           {{0x40862e42fefa39ef}, {0x7fefffffffffff2a}},  // the last finite result
                           {{0x40862e42fefa39f0}, {0x7ff0000000000000}},
                           {{0xc0865c0000000000}, {0x0000035e1795c8c3}},  // n = -1032: two parts
                           {{0xc086640000000000}, {0x0000013d255e56e9}},  // n = -1034: one
                           {{0xc086d20000000000}, {0x0000000000163111}},
                           {{0xc087480000000000}, {0x0000000000000001}},
                           {{0xc0874910d52d3051}, {0x0000000000000001}},  // the last that is not zero
                           {{0xc0874910d52d3052}, {0x0000000000000000}},
                       });
}

TEST(ExpDouble, Exp2) {
    expect_rows("exp2", {
                            {{0x0000000000000000}, {0x3ff0000000000000}},
                            {{0x8000000000000000}, {0x3ff0000000000000}},
                            {{0x0000000000000001}, {0x3ff0000000000000}},
                            {{0x3fe0000000000000}, {0x3ff6a09e667f3bcd}},
                            {{0xbfe0000000000000}, {0x3fe6a09e667f3bcd}},
                            {{0x3f70000000000000}, {0x3ff00b1afa5abcbe}},  // half a step: a tie
                            {{0x3f88000000000000}, {0x3ff02168143b0281}},
                            {{0x408fe80000000000}, {0x7fc0000000000000}},  // integers are exact
                            {{0xc08fe80000000000}, {0x0020000000000000}},
                            {{0x408fefffffffffff}, {0x7fcffffffffffd3a}},  // the last ordinary lanes
                            {{0xc08fefffffffffff}, {0x0010000000000163}},
                            {{0x408ff00000000000}, {0x7fd0000000000000}},  // the first rare ones
                            {{0xc08ff00000000000}, {0x0010000000000000}},
                            {{0xc08ff00000000001}, {0x000ffffffffffe9d}},
                            {{0x408ff80000000000}, {0x7fe0000000000000}},
                            {{0x408ffe0000000000}, {0x7feae89f995ad3ad}},
                            {{0x408fffffffffffff}, {0x7feffffffffffd3a}},
                            {{0x4090000000000000}, {0x7ff0000000000000}},  // overflows
                            {{0xc08ff40000000000}, {0x000b504f333f9de6}},
                            {{0xc090698000000000}, {0x0000000000c5672a}},
                            {{0xc090c80000000000}, {0x0000000000000001}},
                            {{0xc090cb0000000000}, {0x0000000000000001}},
                            {{0xc090cbffffffffff}, {0x0000000000000001}},
                            {{0xc090cc0000000000}, {0x0000000000000000}},  // underflows
                        });
}

TEST(ExpDouble, Exp10) {
    expect_rows("exp10", {
                             {{0x0000000000000000}, {0x3ff0000000000000}},
                             {{0x8000000000000000}, {0x3ff0000000000000}},
                             {{0x0000000000000001}, {0x3ff0000000000000}},
                             {{0x3ff0000000000000}, {0x4024000000000000}},
                             {{0xbff0000000000000}, {0x3fb999999999999a}},
                             {{0x3fe0000000000000}, {0x40094c583ada5b53}},
                             {{0xc00599999999999a}, {0x3f60585e4c78b078}},
                             {{0x4072c1999999999a}, {0x7e3e13e2af95fa84}},
                             {{0x40733a70ffffffff}, {0x7fcffeb937a1a50c}},  // the last ordinary lanes
                             {{0xc0733a70ffffffff}, {0x001000a36ab3fbc0}},
                             {{0x40733a7100000000}, {0x7fcffeb937a1a9a7}},  // the first rare ones
                             {{0xc0733a7100000000}, {0x001000a36ab3f973}},
                             {{0xc0733a7146f72a41}, {0x0010000000000231}},  // the last normal result
                             {{0xc0733a7146f72a42}, {0x000fffffffffffe3}},
                             {{0x4073420000000000}, {0x7fe7bccacbe1e194}},  // 2^1024 p
                             {{0x40734413509f79fe}, {0x7feffffffffffba1}},  // the last finite result
                             {{0x40734413509f79ff}, {0x7ff0000000000000}},
                             {{0xc0736c0000000000}, {0x0000034605a99d73}},  // two parts
                             {{0xc073780000000000}, {0x0000009506145961}},  // one
                             {{0xc074000000000000}, {0x00000000000007e8}},
                             {{0xc07439b746e36b52}, {0x0000000000000001}},  // the last that is not zero
                             {{0xc07439b746e36b53}, {0x0000000000000000}},
                         });
}

// No lane is repaired: infinities give the hardware's NaN, a NaN has its payload's low bits added to the exponent, and
// lanes out of range wrap.
TEST(ExpDouble, Native) {
    expect_rows("exp_native", {
                                  {{0x0000000000000000}, {0x3ff000000001d8c0}},
                                  {{0x3ff0000000000000}, {0x4005bf0a8d0d3f22}},
                                  {{0xbff0000000000000}, {0x3fd78b563407f3be}},
                                  {{0x4025000000000000}, {0x40e1bb70143f48b6}},
                                  {{0xc085900000000000}, {0x01b745367b556702}},
                                  {{0xc085d80000000000}, {0x00dbca69759a1a98}},  // the exponent of the row wraps
                                  {{0x4086300000000000}, {0x7ff0000000000000}},
                                  {{0x408f400000000000}, {0x9a19e72377a9f1d3}},
                                  {{0xc08f400000000000}, {0xe5c3c4219fcb1f6e}},
                                  {{0x7ff0000000000000}, {0xfff8000000000000}},
                                  {{0xfff0000000000000}, {0xfff8000000000000}},
                                  {{0x7ff8000000000000}, {0x7ff8000000000000}},
                                  {{0xfff8000000001234}, {0xfff8000000001234}},
                              });
    expect_rows("exp2_native", {
                                   {{0x0000000000000000}, {0x3ff0000000261500}},  // the constant coefficient
                                   {{0x3ff0000000000000}, {0x4000000000261500}},
                                   {{0xbfe0000000000000}, {0x3fe6a09e67339674}},
                                   {{0xc02499999999999a}, {0x3f49fdf8bd88cc8e}},
                                   {{0x4091300000000000}, {0x84b0000000261500}},
                                   {{0xc091300000000000}, {0xfb30000000261500}},
                                   {{0x7ff0000000000000}, {0xfff8000000000000}},
                                   {{0xfff0000000000000}, {0xfff8000000000000}},
                                   {{0x7ff8000000000000}, {0x7ff8000000000000}},
                                   {{0xfff8000000001234}, {0x2338000000001234}},
                               });
    expect_rows("exp10_native", {
                                    {{0x0000000000000000}, {0x3ff0000000261501}},  // the constant coefficient
                                    {{0x3ff0000000000000}, {0x4023ffffff6e2e69}},
                                    {{0xc00599999999999a}, {0x3f60585e4ccff557}},
                                    {{0x4072c1999999999a}, {0x7e3e13e2aed1a513}},
                                    {{0x4079000000000000}, {0x92fb4ec7f906f314}},
                                    {{0xc079000000000000}, {0xece2bfcfc0b79441}},
                                    {{0x7ff0000000000000}, {0xfff8000000000000}},
                                    {{0xfff0000000000000}, {0xfff8000000000000}},
                                    {{0x7ff8000000000000}, {0x7ff8000000000000}},
                                    {{0xfff8000000001234}, {0x2338000000001234}},
                                });
}

// Operands whose result changes with the last binary digits of one constant that reach it: between them they see nearly
// every constant of the main paths and of the scalar routines.
TEST(ExpDouble, Digits) {
    expect_rows("exp",
                {{{0x405f39c8eb6cd348}, {0x4b325691f398148d}},
                 {{0xc07fcb3e83ac3067}, {0x12111d0260361e1f}},
                 {{0x40697d8f4811ccd4}, {0x52526050b36ffc09}},
                 {{0x40862cd4a7d48ce9}, {0x7feac23891c3a23e}},
                 {{0x40862cc715afe012}, {0x7fea94fa8d1d0ecb}},
                 {{0x408627e04f676b76}, {0x7fdccf2b3e6dda85}},
                 {{0x408626ad8a097a18}, {0x7fd8cd32590cab5a}},
                 {{0xc0862367045f08ec}, {0x000f8b636791f395}}},
                {4});
    expect_rows("exp2",
                {{{0x3fca4ff0c06b29c8}, {0x3ff2734056e44b8d}},
                 {{0xc08ca647354f97dd}, {0x06a293009c2bb50b}},
                 {{0xc0871988adcd450c}, {0x11bc04826b981651}},
                 {{0xc0902c40107c1a8a}, {0x0000007a9160682c}},
                 {{0x408ff6f1a9f30084}, {0x7fdd33bc73920dc2}},
                 {{0x408ff72ca5be75e1}, {0x7fddca795f9c9778}},
                 {{0xc08ff071beccb97e}, {0x000f654fe8aa8483}}},
                {4});
    expect_rows("exp10",
                {{{0x4066195dd5eca39c}, {0x64a3992643744733}},
                 {{0xc062df57e18bf881}, {0x2095f6a3445ed40b}},
                 {{0xc0704e837eb7eba3}, {0x09c37fddb2140278}},
                 {{0x3fe3285784427ea4}, {0x400fc063a9ca1558}},
                 {{0x3fe8cd0adc707d96}, {0x4017d3fef958cc42}},
                 {{0x4073412d72dbc7d1}, {0x7fe51676e92d098a}},
                 {{0x40733cc556bd6971}, {0x7fd65e6a30dec1fc}},
                 {{0x40733f12b0071cc8}, {0x7fdf27a9aca38d41}},
                 {{0x407342adf29b7690}, {0x7fea2d09b9cebec2}},
                 {{0x40733b4b9d3f4fa4}, {0x7fd216e4ff41abf7}},
                 {{0xc0733cc46317996d}, {0x000b735cab7578ad}}},
                {4});
    expect_rows("exp_native",
                {{{0x406d63d1b0b91100}, {0x55227317861d05fe}}, {{0xbfe70470edae1ba2}, {0x3fdf2c989f20e62a}}}, {4});
    expect_rows("exp2_native",
                {{{0x3fe0db408ce8c4a8}, {0x3ff70d15656ea35e}}, {{0xbfdfd7894addbba8}, {0x3fe6aa8b20dd4987}}}, {4});
    expect_rows("exp10_native",
                {{{0xbfdb962473b94840}, {0x3fd7b8b025feb60d}}, {{0xc05f315037578f0e}, {0x2606f6c772a7355d}}}, {4});
}

}  // namespace
