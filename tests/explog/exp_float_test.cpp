// Values of the single precision exponentials, by their bits, from a model in exact arithmetic that rounds where they
// round.
#include "tests/harness/lanes.h"

namespace {

using harness::expect_rows;

constexpr uint64_t zero = 0, minus_zero = 0x80000000, one = 0x3f800000, inf = 0x7f800000, minus_inf = 0xff800000,
                   default_nan = 0xffc00000, smallest = 0x00000001;

// Every accurate family treats these alike; NaNs keep sign and payload, signalling ones are quieted.
std::vector<harness::Row> with_special_operands(std::vector<harness::Row> rows) {
    rows.insert(rows.end(), {{{inf}, {inf}},
                             {{minus_inf}, {zero}},
                             {{0x7fc00000}, {0x7fc00000}},
                             {{0xffc12345}, {0xffc12345}},
                             {{0x7f800001}, {0x7fc00001}},
                             {{0x7f7fffff}, {inf}},
                             {{0xff7fffff}, {zero}}});
    return rows;
}

TEST(ExpFloat, Expf) {
    expect_rows("expf", with_special_operands({
                            {{zero}, {one}},
                            {{minus_zero}, {one}},
                            {{smallest}, {one}},
                            {{one}, {0x402df855}},
                            {{0xbf800000}, {0x3ebc5ab3}},
                            {{0x3eb1758e}, {0x3fb5062b}},  // r close to its ends
                            {{0xbeb16873}, {0x3f35085a}},
                            {{0x41280000}, {0x470ddb80}},  // 10.5
                            {{0xc2ae0000}, {0x00b33686}},  // -87
                            {{0x42aeac4f}, {0x7e7fffb4}},  // the last ordinary lanes
                            {{0xc2aeac4f}, {0x00800026}},
                            {{0x42aeac50}, {0x7e80001b}},  // the first rare ones
                            {{0xc2aeac50}, {0x007fffe7}},
                            {{0x42b17217}, {0x7f7fff86}},  // the last finite result, 2^128 p
                            {{0x42b17218}, {inf}},
                            {{0xc2c80000}, {0x0000001b}},  // -100
                            {{0xc2cff1b4}, {smallest}},
                            {{0xc2cff1b5}, {zero}},
                        }));
}

TEST(ExpFloat, Exp2f) {
    expect_rows("exp2f", with_special_operands({
                             {{zero}, {one}},
                             {{minus_zero}, {one}},
                             {{0x3f000000}, {0x3fb504f3}},  // r = 1/2: k = 0, even
                             {{0xbf000000}, {0x3f3504f3}},
                             {{0x3efae148}, {0x3fb3c4da}},  // 0.49
                             {{0xc124cccd}, {0x3a4fefc4}},  // -10.3
                             {{0x42fc0000}, {0x7e800000}},  // integers are exact, to the last ordinary lanes
                             {{0xc2fc0000}, {0x00800000}},
                             {{0x42fc0001}, {0x7e80002d}},
                             {{0xc2fc0001}, {0x007fffd4}},
                             {{0x42fe0000}, {0x7f000001}},  // rare: the constant term is one unit above 1
                             {{0x42ff8000}, {0x7f5744fc}},  // 127.75
                             {{0x42ffffff}, {0x7f7fffa9}},
                             {{0x43000000}, {inf}},
                             {{0x43000001}, {inf}},
                             {{0xc2fe0000}, {0x00400000}},  // -127
                             {{0xc302c000}, {0x0004c1c0}},  // -130.75
                             {{0xc3154000}, {smallest}},    // -149.25
                             {{0xc315c000}, {zero}},        // -149.75: the scale of n = -150 is zero
                             {{0xc3160000}, {zero}},
                             {{0xc3160001}, {zero}},
                         }));
}

TEST(ExpFloat, Exp10f) {
    expect_rows(
        "exp10f",
        with_special_operands({
            {{zero}, {0x3f800001}},  // the constant term of the polynomial rounds up
            {{minus_zero}, {0x3f800001}}, {{smallest}, {0x3f800001}},   {{one}, {0x41200001}},
            {{0xbf800000}, {0x3dccccce}}, {{0x3f000000}, {0x404a62c1}}, {{0xc02ccccd}, {0x3b02c2f2}},  // -2.7
            {{0x41f0cccd}, {0x717e3cfb}},                                                              // 30.1
            {{0x33d6bf95}, {0x3f800003}},                                                              // 1e-7
            {{0x4217b818}, {0x7e7ffff2}},                                // the last ordinary lanes
            {{0xc217b818}, {0x00800009}}, {{0x4217b819}, {0x7e800042}},  // the first rare ones
            {{0xc217b819}, {0x007fffbe}}, {{0x4218f0f0}, {0x7f0153da}}, {{0x421a209a}, {0x7f7fffb3}},  // 2^128 p
            {{0x421a209b}, {inf}},  // passes the bound, and the last product overflows
            {{0x421a209c}, {inf}},        {{0xc2200000}, {0x000116c2}},  // -40
            {{0xc2349e35}, {smallest}},   {{0xc2349e36}, {zero}},
        }));
}

// No lane is repaired: infinities give the hardware's NaN, a NaN has its payload's low bits added to the exponent, and
// lanes out of range wrap.
TEST(ExpFloat, Native) {
    const std::vector<harness::Row> unrepaired = {{{inf}, {default_nan}},
                                                  {{minus_inf}, {default_nan}},
                                                  {{0x7fc00000}, {0x7fc00000}},
                                                  {{0x7fc00001}, {0x80400001}},
                                                  {{0x7f800001}, {0x80400001}}};
    auto expect_native = [&](const char* family, std::vector<harness::Row> rows) {
        rows.insert(rows.end(), unrepaired.begin(), unrepaired.end());
        expect_rows(family, rows);
    };
    expect_native("expf_native", {{{zero}, {one}},
                                  {{one}, {0x402df6e1}},
                                  {{0xbf800000}, {0x3ebc5ac0}},
                                  {{0x41280000}, {0x470ddd00}},    // 10.5
                                  {{0xc2ae0000}, {0x00b33166}},    // -87
                                  {{0x42c80000}, {0x879a4d49}},    // 100: k = 144 carries into the sign
                                  {{0xc2c80000}, {0xf7546558}}});  // -100
    expect_native("exp2f_native", {{{zero}, {0x3f7ffb49}},         // the constant coefficient
                                   {{one}, {0x3ffffb49}},
                                   {{0x3efae148}, {0x3fb3c253}},    // 0.49
                                   {{0xbf000000}, {0x3f35017c}},    // -0.5
                                   {{0xc124cccd}, {0x3a4ff291}},    // -10.3
                                   {{0x43480000}, {0xa37ffb49}},    // 200
                                   {{0xc3480000}, {0xdb7ffb49}}});  // -200
    expect_native("exp10f_native", {{{zero}, {0x3f7ffb49}},
                                    {{one}, {0x41200309}},
                                    {{0xc02ccccd}, {0x3b02c0c7}},    // -2.7
                                    {{0x41f0cccd}, {0x717e3829}},    // 30.1
                                    {{0x42480000}, {0x9288d729}}});  // 50
}

}  // namespace
