// The scalar sinh and cosh of rare lanes. They are complete, though the main paths send them large operands alone: here
// all their branches are called directly.
#include <gtest/gtest.h>

#include <cmath>

#include "kernels/hyperbolic/sinh_cosh_rare.h"
#include "tests/harness/operands.h"

namespace {

using namespace zorv;

double sinh_of(double x, Status expected = RARE_OK) {
    double result = 12345;
    EXPECT_EQ(sinh_complete(sinh_rare_data, &x, &result), expected) << x;
    return result;
}
double cosh_of(double x, Status expected = RARE_OK) {
    double result = 12345;
    EXPECT_EQ(cosh_complete(cosh_rare_data, &x, &result), expected) << x;
    return result;
}
float sinhf_of(float x, Status expected = RARE_OK) {
    float result = 12345;
    EXPECT_EQ(sinh_complete(sinhf_rare_data, &x, &result), expected) << x;
    return result;
}
float coshf_of(float x, Status expected = RARE_OK) {
    float result = 12345;
    EXPECT_EQ(cosh_complete(coshf_rare_data, &x, &result), expected) << x;
    return result;
}

double error_in_ulp(double result, long double exact) {
    long double ulp = std::ldexp(1.0L, std::max(std::ilogb(exact) - 52, -1074));
    return static_cast<double>(std::fabs(static_cast<long double>(result) - exact) / ulp);
}
double error_in_ulp(float result, long double exact) {
    long double ulp = std::ldexp(1.0L, std::max(std::ilogb(exact) - 23, -149));
    return static_cast<double>(std::fabs(static_cast<long double>(result) - exact) / ulp);
}

TEST(SinhCoshRare, AllBranchesAreClose) {
    harness::Random random(9);
    auto between = [&random](double low, double high) {
        return low + (high - low) * std::ldexp(static_cast<double>(random.next() >> 11), -53);
    };
    // The ends of the branches: the smallest that are not their own sine, the short series, both exponentials, one.
    const double ends[] = {0x1p-60, 0x1p-53, 0x1p-20, 0.0272, 0.0273, 0.5, 3, 21.48, 21.49, 89, 700, 710.4};
    for (size_t i = 0; i + 1 < std::size(ends); ++i) {
        for (int count = 0; count < 5000; ++count) {
            double x = between(ends[i], ends[i + 1]) * (count % 2 ? -1 : 1);
            ASSERT_LE(error_in_ulp(sinh_of(x), std::sinh(static_cast<long double>(x))), 0.55) << x;
            ASSERT_LE(error_in_ulp(cosh_of(x), std::cosh(static_cast<long double>(x))), 0.55) << x;
            float f = static_cast<float>(x);
            if (std::fabs(f) > 89) continue;
            ASSERT_LE(error_in_ulp(sinhf_of(f), std::sinh(static_cast<long double>(f))), 0.5001) << f;
            ASSERT_LE(error_in_ulp(coshf_of(f), std::cosh(static_cast<long double>(f))), 0.5001) << f;
        }
    }
}

TEST(SinhCoshRare, SpecialOperands) {
    EXPECT_EQ(pattern(sinh_of(-0.0)), pattern(-0.0));
    EXPECT_EQ(sinh_of(0x1p-1074), 0x1p-1074);
    EXPECT_EQ(sinh_of(-0x1p-1040), -0x1p-1040);
    EXPECT_EQ(sinh_of(0x1.8p-200), 0x1.8p-200);
    EXPECT_EQ(pattern(sinhf_of(-0.0f)), pattern(-0.0f));
    EXPECT_EQ(sinhf_of(0x1p-149f), 0x1p-149f);
    EXPECT_EQ(cosh_of(-0.0), 1);
    EXPECT_EQ(cosh_of(0x1p-1074), 1);
    EXPECT_EQ(coshf_of(0x1p-30f), 1);
    EXPECT_EQ(sinh_of(-HUGE_VAL), -HUGE_VAL);
    EXPECT_EQ(cosh_of(-HUGE_VAL), HUGE_VAL);
    EXPECT_TRUE(std::isnan(sinh_of(NAN)));
    EXPECT_TRUE(std::isnan(coshf_of(NAN)));
}

TEST(SinhCoshRare, Overflow) {
    double last = from_pattern(uint64_t{0x408633ce8fb9f87d}), first = std::nextafter(last, 1000);
    EXPECT_TRUE(std::isfinite(sinh_of(last)));
    EXPECT_TRUE(std::isfinite(cosh_of(-last)));
    EXPECT_EQ(sinh_of(-first, RARE_OVERFLOW), -HUGE_VAL);
    EXPECT_EQ(cosh_of(-first, RARE_OVERFLOW), HUGE_VAL);
    float last_f = from_pattern(0x42b2d4fcu), first_f = std::nextafter(last_f, 1000.0f);
    EXPECT_TRUE(std::isfinite(sinhf_of(last_f)));
    EXPECT_EQ(sinhf_of(-first_f, RARE_OVERFLOW), -HUGE_VALF);
    EXPECT_EQ(coshf_of(first_f, RARE_OVERFLOW), HUGE_VALF);
}

}  // namespace
