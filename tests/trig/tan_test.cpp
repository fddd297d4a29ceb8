// Tangents by their bits, where the processor's estimate has no part in them, and near the exact value where it has.
#include <cmath>

#include "tests/harness/lanes.h"
#include "tests/harness/operands.h"

namespace {

using harness::any_nan;
using harness::expect_beside;
using harness::expect_rows;
using harness::Row;

TEST(Tangent, ShortPath) {
    expect_rows("tanf", {{{0x00000000}, {0x00000000}},
                         {{0x80000000}, {0x80000000}},
                         {{0x00000001}, {0x00000001}},
                         {{0x807fffff}, {0x807fffff}},
                         {{0x3f800000}, {0x3fc75924}},
                         {{0x3f490fdb}, {0x3f800000}},
                         {{0x3fc90fdb}, {0xcbae8a4b}},
                         {{0xc0490fdb}, {0xb3bbbd2e}},
                         {{0x42c80000}, {0xbf1653a7}},
                         {{0x46010000}, {0xbdd8db24}},  // the limit
                         {{0xc6010000}, {0x3dd8db24}},
                         {{0x7fc00000}, {any_nan}}});
    expect_rows("tan", {{{0x0000000000000000}, {0x0000000000000000}},
                        {{0x8000000000000000}, {0x8000000000000000}},
                        {{0x0000000000000001}, {0x0000000000000001}},
                        {{0x3ff0000000000000}, {0x3ff8eb245cbee3a5}},
                        {{0x3fe921fb54442d18}, {0x3fefffffffffffff}},
                        {{0x3ff921fb54442d18}, {0x434d02967c31cdb5}},
                        {{0xc00921fb54442d18}, {0x3ca1a62633145c07}},
                        {{0x4059000000000000}, {0xbfe2ca74d62b5d37}},
                        {{0x40ff400000000000}, {0xbffbf67c51e2982c}},
                        {{0x7ff8000000000000}, {any_nan}}});
    expect_rows("tan_native", {{{0x8000000000000000}, {0x8000000000000000}},
                               {{0x0000000000000001}, {0x0000000000000001}},
                               {{0x3ff0000000000000}, {0x3ff8eb245cbf173d}},
                               {{0x3ff921fb54442d18}, {0x434d02967c2f0d3c}},
                               {{0xc00921fb54442d18}, {0x3ca1a6263316089c}},
                               {{0x40ff400000000000}, {0xbffbf67c51e0a96b}},
                               {{0x7ff8000000000000}, {any_nan}}});
}

// Far from the poles the estimated reciprocal is multiplied by zero.
TEST(Tangent, LongPathAwayFromThePoles) {
    expect_rows("tanf", {{{0x46010001}, {0xbdd6d574}},
                         {{0xc6010001}, {0x3dd6d574}},
                         {{0x47c35000}, {0xbd12854f}},
                         {{0x7f7fffff}, {0xbf1c9eca}},
                         {{0x7f800000}, {any_nan}},
                         {{0xff800000}, {any_nan}}});
    expect_rows("tanf_native", {{{0x46010001}, {0xbdd6d573}},
                                {{0xc6010001}, {0x3dd6d573}},
                                {{0x47c35000}, {0xbd12854e}},
                                {{0x7f7fffff}, {0xbf1c9eca}}});
    std::vector<Row> doubles = {{{0x7fefffffffffffff}, {0xbf74530cfe729483}},
                                {{0xffefffffffffffff}, {0x3f74530cfe729483}}};
    expect_rows("tan_native", doubles);
    doubles.push_back({{0x7ff0000000000000}, {any_nan}});
    doubles.push_back({{0xfff0000000000000}, {any_nan}});
    expect_rows("tan", doubles);
}

// A NaN beside a lane beyond the limit: repaired, or its payload read as a significand at a table's step.
TEST(Tangent, NaNOnTheLongPath) {
    const std::vector<int> widths = {2, 3, 4, 8, 16};
    expect_rows("tanf", {{{0xffc01234}, {0xffc01234}}, {{0x47c35000}, {0xbd12854f}}}, widths);
    expect_rows("tanf_native", {{{0xffc01234}, {0x3d9711ce}}, {{0x47c35000}, {0xbd12854e}}}, widths);
    const Row huge = {{0x7fefffffffffffff}, {0xbf74530cfe729483}};
    expect_rows("tan", {{{0xfff8000000001234}, {0xfff8000000001234}}, huge}, widths);
    expect_rows("tan_native", {{{0xfff8000000001234}, {0xbfc635c990ce0d36}}, huge}, widths);
}

// Native infinities run through the reduction like the significand 1 at the highest exponent.
TEST(Tangent, NativeInfinitiesAreFiniteAndOdd) {
    for (auto [name, expected] : {std::pair{"tanf_native", 4.375904}, {"tan_native", -2.544476}}) {
        const grid::Family& family = harness::family(name);
        bool is_single = family.is_single;
        uint64_t infinity = is_single ? 0x7f800000 : 0x7ff0000000000000, sign = is_single ? 1u << 31 : 1ull << 63;
        uint64_t result = harness::call_uniform(family, 4, {infinity})[0];
        EXPECT_NEAR(expected, is_single ? static_cast<double>(harness::as_float(result)) : harness::as_double(result),
                    1e-5);
        EXPECT_EQ(result ^ sign, harness::call_uniform(family, 4, {infinity ^ sign})[0]);
    }
}

TEST(Tangent, ANeighbourBeyondTheLimitChoosesThePath) {
    const std::vector<uint64_t> calm = {0x7fc00000, 0x46010000, 0xc6010000};
    const std::vector<uint64_t> huge = {0x46010001, 0xc6010001, 0x7f800000, 0xff800000};
    expect_beside("tanf", {{0x80000000, 0x80000000, 0x00000000}, {0x44a622b8, 0x3e464867, 0x3e464865}}, calm, huge);
    expect_beside("tanf_native", {{0x80000000, 0x80000000, 0x00000000}}, {0x7fc00000}, huge);
    const std::vector<uint64_t> calm_doubles = {0x7ff8000000000000, 0xc0ff400000000000};
    const std::vector<uint64_t> huge_doubles = {0x40ff400000000001, 0x7ff0000000000000, 0xfff0000000000000};
    for (std::string name : {"tan", "tan_native"})
        expect_beside(name, {{0x8000000000000000, 0x8000000000000000, 0x0000000000000000}}, calm_doubles, huge_doubles);
    expect_beside("tan", {{0x4047da4a0a4e575b, 0x3fe508a86d2e3044, 0x3fe508a86d2e3047}}, calm_doubles, huge_doubles);
}

// Every row of the two tables on the long path: the middle of each step and near its ends, against the C library. A
// wrong row, column or sign shows as an error of many ulp.
template <class Float>
void expect_near_every_step(const char* name, const char* pi_scaled, int steps, double bound) {
    constexpr int digits = sizeof(Float) == 4 ? 23 : 52;
    const Float huge = sizeof(Float) == 4 ? Float(0x1p30) : Float(0x1p60);
    auto check = [&](const char* family, Float x, long double exact, const std::vector<uint64_t>& lanes) {
        uint64_t bits = harness::call(harness::family(family), 2, {lanes})[0][0];
        long double result = sizeof(Float) == 4 ? static_cast<long double>(harness::as_float(bits))
                                                : static_cast<long double>(harness::as_double(bits));
        EXPECT_LE(std::fabs(result - exact), bound * std::ldexp(1.0L, std::ilogb(exact) - digits))
            << family << " of " << x;
    };
    const long double pi = 3.14159265358979323846264338327950288L;
    for (int j = -steps; j < steps; ++j)
        for (double within : {-0.48, 0.1, 0.48}) {
            Float x = static_cast<Float>((j + within) * pi / steps);
            check(name, x, std::tan(static_cast<long double>(x)), {harness::pattern(x), harness::pattern(huge)});
            Float turns = static_cast<Float>((j + within) / steps);
            bool beyond_quarter = std::fabs(std::remainder(turns, Float(1))) > Float(0.25);
            long double rest = std::remainder(static_cast<long double>(turns), 0.5L);  // odd multiples turn it over
            long double exact = beyond_quarter ? -1 / std::tan(pi * rest) : std::tan(pi * rest);
            check(pi_scaled, turns, exact, {harness::pattern(turns), harness::pattern(turns)});
        }
}
TEST(Tangent, EveryStepOfTheTables) {
    expect_near_every_step<float>("tanf", "tanpif", 128, 2);
    expect_near_every_step<float>("tanf_native", "tanpif_native", 128, 7.5);
    expect_near_every_step<double>("tan", "tanpi", 256, 4.7);
    expect_near_every_step<double>("tan_native", "tanpi_native", 256, 4.7);
}

}  // namespace
