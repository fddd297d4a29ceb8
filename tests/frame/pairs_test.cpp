// Head and tail, exact to the last bit: of floats checked in double precision, of doubles in integers.
#include "frame/pairs.h"

#include <gtest/gtest.h>

#include "frame/polynomial.h"
#include "tests/harness/operands.h"

namespace {

using namespace zorv;

// Floats of either sign between 2^-12 and 2^12: the exact sum of two, and the product, are doubles.
float moderate(harness::Random& random) {
    auto bits = static_cast<uint32_t>(random.next());
    return from_pattern((bits & 0x807fffff) | (115 + (bits >> 8) % 24) << 23);
}
// Integers below 2^53, and their products.
using Wide = _BitInt(128);
double integer(harness::Random& random) { return static_cast<double>(random.next() >> 11 | 1); }
Wide exactly(double integral) {
    if (integral == 0) return 0;
    auto mantissa = static_cast<int64_t>(with_exponent_of_one(integral) * 0x1p52);
    int exponent = unbiased_exponent(integral) - 52;
    return exponent < 0 ? static_cast<Wide>(mantissa >> -exponent) : static_cast<Wide>(mantissa) << exponent;
}

TEST(Pairs, SumsAreExact) {
    harness::Random random(1);
    for (int i = 0; i < 20000; ++i) {
        float x = moderate(random), y = moderate(random);
        auto any_order = two_sum(x, y);
        auto large_first = magnitude_of(x) >= magnitude_of(y) ? fast_two_sum(x, y) : fast_two_sum(y, x);
        ASSERT_EQ(x + y, any_order.head);
        ASSERT_EQ(double{x} + double{y}, double{any_order.head} + double{any_order.tail}) << x << " + " << y;
        ASSERT_EQ(any_order.head, large_first.head);
        ASSERT_EQ(any_order.tail, large_first.tail) << x << " + " << y;
    }
    auto unit = two_sum(D2{1.0, 0x1p-60}, D2{0x1p-60, 1.0});
    EXPECT_EQ(0x1p-60, unit.tail[0]);
    EXPECT_EQ(0x1p-60, unit.tail[1]);
}

TEST(Pairs, SplitsKeepTheirBitsAndAreExact) {
    harness::Random random(2);
    for (int i = 0; i < 20000; ++i) {
        float x = moderate(random);
        double d = from_pattern((random.next() & 0x800fffffffffffff) | 0x3ff0000000000000);
        auto by_mask = split_by_mask(x, 0xfffff000);
        ASSERT_EQ(pattern(x) & 0xfffff000, pattern(by_mask.head));
        ASSERT_EQ(x, by_mask.head + by_mask.tail);
        auto rounded = split_by_product(x, 4097.0f);
        ASSERT_EQ(0u, pattern(rounded.head) & 0xfff) << x;
        ASSERT_EQ(x, rounded.head + rounded.tail);
        ASSERT_LE(magnitude_of(rounded.tail), power_of_two<float>(unbiased_exponent(x) - 12)) << x;
        auto wide_mask = split_by_mask(d, 0xfffffffff8000000);
        ASSERT_EQ(pattern(d) & 0xfffffffff8000000, pattern(wide_mask.head));
        ASSERT_EQ(d, wide_mask.head + wide_mask.tail);
        for (double multiplier : {0x1p27 + 1, 0x1p27}) {
            auto wide = split_by_product(d, multiplier);
            ASSERT_EQ(0u, pattern(wide.head) & 0x7ffffff) << d;
            ASSERT_EQ(d, wide.head + wide.tail);
            ASSERT_LE(magnitude_of(wide.tail), 0x1p-26) << d;
        }
    }
    auto unit = split_by_mask(D2{0x1.fffffffffffffp0, -3.0}, L2{-0x8000000, -0x8000000});
    EXPECT_EQ(0x1.ffffff8p0, unit.head[0]);
    EXPECT_EQ(-3.0, unit.head[1]);
}

TEST(Pairs, ProductsAreExact) {
    harness::Random random(3);
    for (int i = 0; i < 20000; ++i) {
        float x = moderate(random), y = moderate(random);
        auto p = exact_product(split_by_product(x, 4097.0f), split_by_product(y, 4097.0f), x * y);
        ASSERT_EQ(x * y, p.head);
        ASSERT_EQ(double{x} * double{y}, double{p.head} + double{p.tail}) << x << " * " << y;
        double a = integer(random), b = integer(random);
        auto q = exact_product(split_by_product(a, 0x1p27 + 1), split_by_product(b, 0x1p27 + 1), a * b);
        ASSERT_TRUE(exactly(a) * exactly(b) == exactly(q.head) + exactly(q.tail)) << a << " * " << b;
    }
}

// ---- Polynomials: which coefficient goes where, by small integers, and that each step rounds. --------------

struct PolynomialData {
    Coefficients<float, 3> three;
    Coefficients<double, 6> six;
    Coefficients<float, 2> rounding;
};
const PolynomialData data = {
    .three = {{0x40000000, 0x40400000, 0x40800000}},  // 2, 3, 4
    .six = {{0x3ff0000000000000, 0x4000000000000000, 0x4008000000000000, 0x4010000000000000, 0x4014000000000000,
             0x4018000000000000}},           // 1 to 6
    .rounding = {{0x3f800800, 0xbf801000}},  // 1 + 2^-12, -(1 + 2^-11)
};
const ScalarCoefficients<double, 3> scalar = {{{0x4000000000000000}, {0x4008000000000000}, {0x4010000000000000}}};

TEST(Polynomials, HighestPowerFirst) {
    F4 y = horner(F4{0, 1, 10, -10}, data.three), on = horner_on(F4{0, 1, 10, -10}, F4{1, 1, 1, 1}, data.three);
    float expected[] = {4, 9, 234, 174}, expected_on[] = {4, 10, 1234, -826};
    for (int lane = 0; lane < 4; ++lane) {
        EXPECT_EQ(expected[lane], y[lane]);
        EXPECT_EQ(expected_on[lane], on[lane]);
    }
    EXPECT_EQ(234.0, horner(10.0, scalar));
    // 2^-24 of the square falls to the rounding of the product.
    EXPECT_EQ(0.0f, (horner(F4{} + 0x1.001p0f, data.rounding)[0]));
}

TEST(Polynomials, PairsOverTheSquare) {
    // (1 x + 2) x2^2 + (3 x + 4) x2 + (5 x + 6), x2 being what the caller says.
    D2 y = paired(D2{10, 2}, D2{100, -1}, data.six);
    EXPECT_EQ(12 * 10000.0 + 34 * 100 + 56, y[0]);
    EXPECT_EQ(4.0 - 10 + 16, y[1]);
}

}  // namespace
