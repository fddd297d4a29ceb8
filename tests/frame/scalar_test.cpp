// What the rare routines are made of: fields of numbers, and the exceptional results with their flags.
#include "frame/scalar.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace zorv;

template <class Float>
struct NumberRow {
    Float x;
    int field;
    Float mantissa;  // with the exponent of one
    bool negative, infinite_or_nan, zero_or_subnormal, negative_infinity;
};

template <class Float>
void expect_fields(const std::vector<NumberRow<Float>>& rows) {
    for (const auto& row : rows) {
        EXPECT_EQ(row.field, exponent_field(row.x)) << row.x;
        EXPECT_EQ(row.field - Fields<Float>::bias, unbiased_exponent(row.x)) << row.x;
        EXPECT_EQ(row.mantissa, with_exponent_of_one(row.x)) << row.x;
        EXPECT_EQ(row.negative, is_negative(row.x)) << row.x;
        EXPECT_EQ(row.infinite_or_nan, is_infinite_or_nan(row.x)) << row.x;
        EXPECT_EQ(row.zero_or_subnormal, is_zero_or_subnormal(row.x)) << row.x;
        EXPECT_EQ(row.negative_infinity, is_negative_infinity(row.x)) << row.x;
        EXPECT_EQ(pattern(std::fabs(row.x)), pattern(magnitude_of(row.x))) << row.x;
    }
}

TEST(Scalars, FieldsOfNumbers) {
    constexpr float inf = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();
    expect_fields<float>({
        {6.0f, 129, 1.5f, false, false, false, false},
        {-0.375f, 125, -1.5f, true, false, false, false},
        {0.0f, 0, 1.0f, false, false, true, false},
        {-0.0f, 0, -1.0f, true, false, true, false},
        {-0x1p-127f, 0, -1.5f, true, false, true, false},
        {0x1p-126f, 1, 1.0f, false, false, false, false},
        {-0x1.fffffep127f, 254, -0x1.fffffep0f, true, false, false, false},
        {inf, 255, 1.0f, false, true, false, false},
        {-inf, 255, -1.0f, true, true, false, true},
        {-nan, 255, -1.5f, true, true, false, false},
    });
    expect_fields<double>({
        {6.0, 1025, 1.5, false, false, false, false},
        {-0x1.8p-1023, 0, -1.75, true, false, true, false},
        {0x1p-1022, 1, 1.0, false, false, false, false},
        {-double{inf}, 2047, -1.0, true, true, false, true},
        {double{nan}, 2047, 1.5, false, true, false, false},
    });
}

TEST(Scalars, PowersOfTwoAndSigns) {
    EXPECT_EQ(0x1p127f, power_of_two<float>(127));
    EXPECT_EQ(0x1p-126f, power_of_two<float>(-126));
    EXPECT_EQ(0x1p-1022, power_of_two<double>(-1022));
    EXPECT_EQ(0x1p1023, power_of_two<double>(1023));
    // A field has eight bits, or eleven: what stands above is no sign.
    EXPECT_EQ(pattern(0.0f), pattern(with_exponent_field<float>(256)));
    EXPECT_EQ(0x7f800000u, pattern(with_exponent_field<float>(-1)));
    EXPECT_EQ(2.0, with_exponent_field<double>(2048 + 1024));
    // The sign is set, never taken away.
    EXPECT_EQ(-1.0f, or_sign_of(1.0f, -0.0f));
    EXPECT_EQ(-1.0, or_sign_of(-1.0, 3.0));
}

enum Flags : unsigned { invalid = 0x01, zero_divide = 0x04, overflow = 0x08, underflow = 0x10, inexact = 0x20 };

// A routine's result, its status, and the flags that it raises.
template <class Float, class Routine>
void expect_outcome(Status status, typename Fields<Float>::Pattern bits, unsigned flags, Routine routine) {
    _mm_setcsr(_mm_getcsr() & ~0x3fu);
    Float result = 7;
    Status reported = routine(&result);
    asm volatile("" : "+m"(result));        // computed before the flags are read
    EXPECT_EQ(flags, _mm_getcsr() & 0x3d);  // without that of subnormal operands
    EXPECT_EQ(bits, pattern(result));
    EXPECT_EQ(status, reported);
}
template <class Float>
void expect_exceptional_results(typename Fields<Float>::Pattern hardware_nan) {
    using F = Fields<Float>;
    expect_outcome<Float>(RARE_DOMAIN, hardware_nan, invalid, [](Float* result) { return domain_result(result); });
    expect_outcome<Float>(RARE_POLE, F::sign | F::infinity, zero_divide,
                          [](Float* result) { return pole_result(Float(-1), result); });
    expect_outcome<Float>(RARE_OVERFLOW, F::infinity, overflow | inexact,
                          [](Float* result) { return overflow_result(result); });
    expect_outcome<Float>(RARE_UNDERFLOW, 0, underflow | inexact,
                          [](Float* result) { return underflow_result(result); });
}
TEST(Scalars, ExceptionalResultsRaiseTheirFlags) {
    expect_exceptional_results<float>(0xffc00000);
    expect_exceptional_results<double>(0xfff8000000000000);
}

}  // namespace
