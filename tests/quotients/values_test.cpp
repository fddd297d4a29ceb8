// Values of the reciprocals, quotients and roots, by their bits, worked out operation by operation.
#include "tests/harness/lanes.h"

namespace {

using harness::any_nan;
using harness::as_double;
using harness::expect_rows;
using harness::pattern;

// Single precision patterns.
constexpr uint64_t zero = 0, minus_zero = 0x80000000, one = 0x3f800000, minus_one = 0xbf800000, inf = 0x7f800000,
                   minus_inf = 0xff800000, nan = 0x7fc00000, default_nan = 0xffc00000;
// Double patterns.
constexpr uint64_t zero_d = 0, minus_zero_d = 0x8000000000000000, one_d = 0x3ff0000000000000,
                   minus_one_d = 0xbff0000000000000, inf_d = 0x7ff0000000000000, minus_inf_d = 0xfff0000000000000,
                   nan_d = 0x7ff8000000000000, default_nan_d = 0xfff8000000000000;

TEST(Quotients, AreTheHardwareDivide) {
    expect_rows("invf", {{{zero}, {inf}},
                         {{minus_zero}, {minus_inf}},
                         {{inf}, {zero}},
                         {{minus_inf}, {minus_zero}},
                         {{nan}, {nan}},
                         {{0x7f800001}, {0x7fc00001}},
                         {{0x40400000}, {0x3eaaaaab}},  // 1/3
                         {{0x7f000000}, {0x00400000}},  // 2^-127, subnormal
                         {{0x00000001}, {inf}}});
    expect_rows("inv", {{{zero_d}, {inf_d}},
                        {{minus_zero_d}, {minus_inf_d}},
                        {{inf_d}, {zero_d}},
                        {{nan_d}, {nan_d}},
                        {{0x4008000000000000}, {0x3fd5555555555555}},
                        {{0x0008000000000000}, {0x7fe0000000000000}},  // 1/2^-1023 = 2^1023
                        {{0x0000000000000001}, {inf_d}}});
    expect_rows("divf", {{{one, zero}, {inf}},
                         {{minus_one, zero}, {minus_inf}},
                         {{one, minus_zero}, {minus_inf}},
                         {{zero, zero}, {default_nan}},
                         {{inf, inf}, {default_nan}},
                         {{one, 0x40400000}, {0x3eaaaaab}},
                         {{nan, one}, {nan}},
                         {{0x00000003, 0x40000000}, {0x00000002}}});  // 1.5 units, a tie to even
    expect_rows("div", {{{one_d, minus_zero_d}, {minus_inf_d}},
                        {{zero_d, zero_d}, {default_nan_d}},
                        {{one_d, 0x4008000000000000}, {0x3fd5555555555555}},
                        {{0x0000000000000003, 0x4000000000000000}, {0x0000000000000002}},
                        {{0x0010000000000000, 0x0008000000000000}, {0x4000000000000000}}});
}

// One divide for a batch; a uniform batch is what width 1 computes: 1/m by m^3 * (1/m^4).
TEST(Quotients, BatchedReciprocalKeepsItsSpecialLanes) {
    for (int width : {1, 8, 16}) {
        auto at = [&](double x) {
            return as_double(harness::call_uniform(harness::family("inv_native"), width, {pattern(x)})[0]);
        };
        EXPECT_EQ(0x1p1023, at(0.0));
        EXPECT_EQ(-0x1p1023, at(-0.0));
        EXPECT_EQ(0x1p1023 / 1.5, at(0x1p-1023));        // a subnormal's field taken as 1.5
        EXPECT_EQ(pattern(0.0), pattern(at(0x1p1023)));  // the top binade has no reciprocal scale
        EXPECT_EQ(pattern(-0.0), pattern(at(-0x1.8p1023)));
        EXPECT_EQ(as_double(inf_d), at(as_double(inf_d)));  // not zero
        EXPECT_EQ(as_double(minus_inf_d), at(as_double(minus_inf_d)));
        EXPECT_EQ(as_double(minus_inf_d), at(as_double(default_nan_d)));
        EXPECT_EQ(0x1p-1022, at(0x1p1022));
        auto quotient = [&](double x, double y) {
            return as_double(harness::call_uniform(harness::family("div_native"), width, {pattern(x), pattern(y)})[0]);
        };
        EXPECT_EQ(0x1p1023, quotient(1.0, 0.0));
        EXPECT_EQ(as_double(inf_d), quotient(2.0, 0.0));
        EXPECT_EQ(pattern(-0.0), pattern(quotient(-5.0, 0x1p1023)));
        EXPECT_NE(quotient(0.0, as_double(inf_d)), quotient(0.0, as_double(inf_d)));
        EXPECT_EQ(as_double(minus_inf_d), quotient(-3.0, as_double(nan_d)));
    }
}

// A lane of the batch is combined with its three batch neighbours, first in pairs, then with the other pair.
TEST(Quotients, BatchOrderIsUnitsOfFour) {
    std::vector<uint64_t> lanes;
    harness::Patterns expected;
    double m[8][2], x[8][2];
    for (int unit = 0; unit < 8; ++unit)
        for (int lane = 0; lane < 2; ++lane) {
            m[unit][lane] = 1.0 + (7 * unit + 3 * lane + 1) / 64.1;
            x[unit][lane] = m[unit][lane] * 0x1p5;
            lanes.push_back(pattern(x[unit][lane]));
        }
    for (int unit = 0; unit < 8; ++unit)
        for (int lane = 0; lane < 2; ++lane) {
            auto at = [&](int i) { return m[unit / 4 * 4 + i][lane]; };
            double a = at(0) * at(1), b = at(2) * at(3);
            double others[] = {at(1) * b, b * at(0), a * at(3), a * at(2)};
            double r = 1.0 / (a * b);
            expected.push_back(pattern(0x1p-5 * (others[unit % 4] * r)));
        }
    EXPECT_EQ(expected, harness::call(harness::family("inv_native"), 16, {lanes})[0]);
}

// At widths 2, 3 and 4 the double native families are the plain divide.
TEST(Quotients, NarrowNativeDoublesDivide) {
    expect_rows("inv_native", {{{zero_d}, {inf_d}}, {{inf_d}, {zero_d}}, {{0x4008000000000000}, {0x3fd5555555555555}}},
                {2, 3, 4});
    expect_rows("div_native", {{{one_d, minus_zero_d}, {minus_inf_d}}, {{zero_d, zero_d}, {default_nan_d}}}, {2, 3, 4});
}

TEST(Quotients, FloatNativesAreTheEstimate) {
    expect_rows("invf_native", {{{zero}, {inf}},
                                {{minus_zero}, {minus_inf}},
                                {{0x00000001}, {inf}},
                                {{0x807fffff}, {minus_inf}},
                                {{inf}, {zero}},
                                {{minus_inf}, {minus_zero}},
                                {{nan}, {nan}}});
    expect_rows("divf_native", {{{zero, zero}, {any_nan}},
                                {{inf, inf}, {any_nan}},
                                {{one, zero}, {inf}},
                                {{minus_one, zero}, {minus_inf}},
                                {{one, minus_inf}, {minus_zero}}});
    expect_rows("rsqrtf_native", {{{zero}, {inf}}, {{0x00000001}, {inf}}, {{inf}, {zero}}, {{minus_one}, {any_nan}}});
}

// What is not a positive normal number takes the scalar routine, in both classes of sqrtf.
TEST(SquareRoots, SpecialOperands) {
    std::vector<harness::Row> rows = {{{zero}, {zero}},
                                      {{minus_zero}, {minus_zero}},
                                      {{inf}, {inf}},
                                      {{minus_inf}, {default_nan}},
                                      {{minus_one}, {default_nan}},
                                      {{0x80000001}, {default_nan}},
                                      {{0x7f800001}, {0x7fc00001}},
                                      {{0xffc00123}, {0xffc00123}},
                                      {{0x00000001}, {0x1a3504f3}},   // 2^-74.5
                                      {{0x00000002}, {0x1a800000}},   // 2^-74
                                      {{0x00400000}, {0x1fb504f3}},   // 2^-63.5
                                      {{0x00200000}, {0x1f800000}}};  // 2^-64
    expect_rows("sqrtf", rows);
    expect_rows("sqrtf_native", rows);
    for (const char* name : {"sqrt", "sqrt_native"})
        expect_rows(name, {{{zero_d}, {zero_d}},
                           {{minus_zero_d}, {minus_zero_d}},
                           {{inf_d}, {inf_d}},
                           {{minus_one_d}, {default_nan_d}},
                           {{0x4000000000000000}, {0x3ff6a09e667f3bcd}},
                           {{0x0000000000000001}, {0x1e60000000000000}},    // 2^-537
                           {{0x0008000000000000}, {0x1ff6a09e667f3bcd}}});  // 2^-511.5
}

TEST(SquareRoots, ReciprocalsOfSpecialOperands) {
    expect_rows("rsqrtf", {{{zero}, {inf}},
                           {{minus_zero}, {minus_inf}},
                           {{inf}, {zero}},
                           {{minus_inf}, {default_nan}},
                           {{minus_one}, {default_nan}},
                           {{nan}, {nan}},
                           {{0x00000001}, {0x64b504f3}},                            // 2^74.5
                           {{0x00000004}, {0x64000000 + 0x00b504f3 - 0x00800000}},  // 2^73.5
                           {{0x00400000}, {0x5f3504f3}}});                          // 2^63.5
    expect_rows("rsqrt", {{{zero_d}, {inf_d}},
                          {{minus_zero_d}, {minus_inf_d}},
                          {{inf_d}, {zero_d}},
                          {{minus_inf_d}, {default_nan_d}},
                          {{minus_one_d}, {default_nan_d}},
                          {{nan_d}, {nan_d}},
                          {{0x0000000000000001}, {0x6180000000000000}},    // 2^537
                          {{0x0008000000000000}, {0x5fe6a09e667f3bcd}}});  // 2^511.5
}

// rsqrt_native looks at no operand: its integer reduction ignores the sign and reads any exponent.
TEST(SquareRoots, NativeReciprocalFollowsItsBits) {
    for (int width : {1, 2, 4, 16}) {
        auto at = [&](double x) {
            return as_double(harness::call_uniform(harness::family("rsqrt_native"), width, {pattern(x)})[0]);
        };
        for (double z : {0.0, -0.0}) {
            EXPECT_GT(at(z), 1.32 * 0x1p512);
            EXPECT_LT(at(z), 1.34 * 0x1p512);
        }
        EXPECT_NEAR(3.5, at(-1.0), 0.01);
        EXPECT_NEAR(1.75, at(-4.0), 0.01);
        EXPECT_EQ(as_double(inf_d), at(as_double(inf_d)));
        EXPECT_EQ(as_double(inf_d), at(as_double(minus_inf_d)));
        EXPECT_NE(at(as_double(nan_d)), at(as_double(nan_d)));
    }
}

}  // namespace
