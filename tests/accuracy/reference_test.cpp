// The yardstick itself: distances worked out by hand, and the two references against one another.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tools/accuracy_sweep.h"
#include "tools/reference.h"

namespace {

using grid::Lane;
using reference::Real;

constexpr double inf = std::numeric_limits<double>::infinity();

struct Distance {
    const char* what;
    Lane lane;
    uint64_t result;
    double exact;
    double ulp;
};

// 1.0 + 2^-23 is the float after 1; the spacing is 2^-23 above 1 and 2^-24 below it, and at 1 itself.
const Distance distances[] = {
    {"the exact value", Lane::f32, 0x3f800000, 1.0, 0},
    {"half way to the next float", Lane::f32, 0x3f800000, 1 + 0x1p-24, 0.5},
    {"one float too high", Lane::f32, 0x3f800002, 1 + 0x1p-23, 1},
    {"one float too high on a power of two", Lane::f32, 0x3f800001, 1.0, 2},
    {"one float too low on a power of two", Lane::f32, 0x3f7fffff, 1.0, 1},
    {"below a power of two, rounded up to it", Lane::f32, 0x3f800000, 1 - 0x1p-26, 0.25},
    {"the wrong sign", Lane::f32, 0xbf800000, 1.5, 2.5 * 0x1p23},
    {"subnormal spacing", Lane::f32, 0x00000003, 0x1p-149, 2},
    {"subnormal spacing for a tiny value", Lane::f32, 0x00000001, 0x1p-160, 1 - 0x1p-11},
    {"zero for the smallest subnormal", Lane::f32, 0x00000000, 0x1p-149, 1},
    {"something for zero", Lane::f32, 0x00000001, 0.0, 1},
    {"zero of the other sign", Lane::f32, 0x80000000, 0.0, 0},
    {"NaN for NaN", Lane::f32, 0xffc00001, NAN, 0},
    {"NaN for a number", Lane::f32, 0x7fc00000, 1.0, inf},
    {"a number for NaN", Lane::f32, 0x3f800000, NAN, inf},
    {"infinity for infinity", Lane::f32, 0xff800000, -inf, 0},
    {"the other infinity", Lane::f32, 0x7f800000, -inf, inf},
    {"a number for infinity", Lane::f32, 0x7f7fffff, inf, inf},
    {"infinity, rounded", Lane::f32, 0x7f800000, 0x1.ffffffp127, 0},
    {"infinity, far above", Lane::f32, 0x7f800000, 0x1p400, 0},
    {"infinity of the wrong sign", Lane::f32, 0xff800000, 0x1.8p127, 0x1.cp24},
    {"infinity a little early", Lane::f32, 0x7f800000, 0x1.fffffep127, 1},
    {"the largest number a little late", Lane::f32, 0x7f7fffff, 0x1p128, 1},
    {"the largest number far too late", Lane::f32, 0x7f7fffff, 0x1p129, 0x1p24 + 1},
    {"double above 1", Lane::f64, 0x3ff0000000000000, 1 + 0x1p-52, 1},
    {"double on a power of two", Lane::f64, 0x3ff0000000000001, 1.0, 2},
    {"double subnormal", Lane::f64, 0x0000000000000005, 0x1p-1073, 3},
    {"double infinity early", Lane::f64, 0x7ff0000000000000, 0x1.fffffffffffffp1023, 1},
    {"integers", Lane::i32, 0xfffffffe, 3.0, 5},
};

TEST(UlpDistance, IsTheGapAtTheExactValue) {
    for (const Distance& row : distances) {
        SCOPED_TRACE(row.what);
        Real exact;
        mpfr_set_d(exact.get(), row.exact, MPFR_RNDN);
        EXPECT_EQ(reference::ulp_distance(row.lane, row.result, exact), row.ulp);
        // The screen may take the smaller gap just above a power of two: twice as much, never less.
        double screened = reference::ulp_distance(row.lane, row.result, static_cast<long double>(row.exact));
        EXPECT_TRUE(screened == row.ulp || screened == 2 * row.ulp) << screened;
    }
}

// One family's operands for every operation that the C library knows too: MPFR's value, seen from the screen's, is
// within the margin that the sweeps rely on. A slip in either table, or a poor function of the library, fails here.
TEST(Reference, ScreensAgreeWithMpfr) {
    constexpr struct {
        const char* base;
        double low, high, second_low, second_high;
    } domains[] = {
        {"exp", -740, 709, 0, 0},       {"exp2", -1070, 1023, 0, 0},  {"exp10", -320, 308, 0, 0},
        {"expm1", -40, 700, 0, 0},      {"log", 0, 1e300, 0, 0},      {"log2", 0, 1e300, 0, 0},
        {"log10", 0, 1e300, 0, 0},      {"log1p", -0.99, 1e10, 0, 0}, {"pow", 0, 1e3, -100, 100},
        {"pown", -100, 100, -100, 100}, {"asin", -1, 1, 0, 0},        {"acos", -1, 1, 0, 0},
        {"asinpi", -1, 1, 0, 0},        {"acospi", -1, 1, 0, 0},      {"sinpi", -1e4, 1e4, 0, 0},
        {"cospi", -1e4, 1e4, 0, 0},     {"sinh", -700, 700, 0, 0},    {"cosh", -700, 700, 0, 0},
        {"acosh", 1, 1e10, 0, 0},       {"atanh", -1, 1, 0, 0},       {"erfc", -6, 26, 0, 0},
        {"tgamma", -20, 170, 0, 0},     {"lgamma", -50, 1e5, 0, 0},   {"sqrt", 0, 1e300, 0, 0},
        {"rsqrt", 1e-300, 1e300, 0, 0}, {"fmod", -1e9, 1e9, 1, 1e3},  {"remainder", -1e9, 1e9, 1, 1e3},
    };
    for (const reference::Operation& operation : reference::operations()) {
        if (!operation.screen) continue;
        SCOPED_TRACE(operation.base);
        double low = -1e6, high = 1e6, second_low = -1e6, second_high = 1e6;
        for (const auto& row : domains)
            if (operation.base == row.base)
                low = row.low, high = row.high, second_low = row.second_low, second_high = row.second_high;
        uint64_t state = 7;
        auto unit = [&] {
            state = state * 6364136223846793005u + 1442695040888963407u;
            return static_cast<double>(state >> 11) * 0x1p-53;
        };
        Real x[2], exact[2];
        double worst = 0, at = 0;
        for (int i = 0; i < 1000; ++i) {
            double first = low + (high - low) * unit(), second = second_low + (second_high - second_low) * unit();
            if (i % 2) first *= std::exp2(-40 * unit());  // also much closer to zero
            first = std::max(first, low);
            if (operation.base == "pown") second = std::rint(second);
            long double operands[] = {first, second}, screened[2];
            mpfr_set_d(x[0].get(), first, MPFR_RNDN);
            mpfr_set_d(x[1].get(), second, MPFR_RNDN);
            operation.exact(Lane::f64, x, exact);
            operation.screen(operands, screened);
            for (int r = 0; r < operation.results; ++r) {
                Real value;
                mpfr_set_ld(value.get(), screened[r], MPFR_RNDN);
                double nearest = exact[r].as_double();
                double off =
                    std::fabs(reference::ulp_distance(Lane::f64, __builtin_bit_cast(uint64_t, nearest), value) -
                              reference::ulp_distance(Lane::f64, __builtin_bit_cast(uint64_t, nearest), exact[r]));
                if (off > worst || std::isnan(off)) worst = off, at = first;
            }
        }
        EXPECT_LE(worst, reference::screen_margin(Lane::f64)) << "at " << at;
    }
}

}  // namespace
