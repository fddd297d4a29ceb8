// The selection families over pairs of special values, against their definitions by cases.
#include "tests/harness/lanes.h"

namespace {

using harness::expect_rows;
using harness::Row;

template <class Float>
struct Format;
template <>
struct Format<float> {
    static constexpr uint64_t sign = 0x80000000, quiet = 0x00400000, infinity = 0x7f800000, largest = 0x7f7fffff;
    static constexpr const char* letter = "f";
    static float value(uint64_t bits) { return harness::as_float(bits); }
};
template <>
struct Format<double> {
    static constexpr uint64_t sign = 1ull << 63, quiet = 1ull << 51, infinity = 0x7ff0000000000000;
    static constexpr uint64_t largest = infinity - 1;
    static constexpr const char* letter = "";
    static double value(uint64_t bits) { return harness::as_double(bits); }
};

template <class Float>
class SelectionTest : public testing::Test {
  protected:
    using F = Format<Float>;

    static std::vector<uint64_t> specials() {
        std::vector<uint64_t> all;
        uint64_t one = harness::pattern(Float(1)), two = harness::pattern(Float(2));
        for (uint64_t sign : {uint64_t(0), F::sign})
            for (uint64_t magnitude : {uint64_t(0), uint64_t(1), one, one + 1, two, F::largest, F::infinity,
                                       F::infinity | F::quiet, F::infinity | F::quiet | 3, F::infinity | 5})
                all.push_back(sign | magnitude);
        return all;
    }
    static bool is_nan(uint64_t bits) { return (bits & ~F::sign) > F::infinity; }

    // Each pair in both orders; `expected` gives the bits.
    template <class Expected>
    void over_pairs(const std::string& base, Expected expected) {
        std::vector<Row> rows;
        for (uint64_t x : specials())
            for (uint64_t y : specials()) rows.push_back({{x, y}, {expected(x, y)}});
        expect_rows(base + F::letter, rows);
    }
    // The number of a pair with a NaN, of two NaN the second; `of_numbers` decides over numbers.
    template <class OfNumbers>
    void over_pairs_past_nan(const std::string& base, OfNumbers of_numbers) {
        over_pairs(base, [=](uint64_t x, uint64_t y) {
            if (is_nan(x)) return y;
            if (is_nan(y)) return x;
            return of_numbers(x, y);
        });
    }
};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(SelectionTest, Precisions);

TYPED_TEST(SelectionTest, LesserAndGreaterOfTwo) {
    using F = Format<TypeParam>;
    this->over_pairs_past_nan("fmin", [](uint64_t x, uint64_t y) { return F::value(x) < F::value(y) ? x : y; });
    this->over_pairs_past_nan("fmax", [](uint64_t x, uint64_t y) { return F::value(x) > F::value(y) ? x : y; });
}

TYPED_TEST(SelectionTest, LesserAndGreaterMagnitude) {
    using F = Format<TypeParam>;
    // The order of magnitudes is that of their bits; equal ones differ in sign alone, and a zero is the first one.
    this->over_pairs_past_nan("maxmag", [](uint64_t x, uint64_t y) {
        uint64_t ax = x & ~F::sign, ay = y & ~F::sign;
        return ax != ay ? (ax > ay ? x : y) : ax == 0 ? x : (x & y);
    });
    this->over_pairs_past_nan("minmag", [](uint64_t x, uint64_t y) {
        uint64_t ax = x & ~F::sign, ay = y & ~F::sign;
        return ax != ay ? (ax < ay ? x : y) : ax == 0 ? x : (x | y);
    });
}

TYPED_TEST(SelectionTest, PositiveDifference) {
    using F = Format<TypeParam>;
    this->over_pairs("fdim", [](uint64_t x, uint64_t y) {
        if (TestFixture::is_nan(y)) return y;
        if (TestFixture::is_nan(x)) return x;
        return F::value(x) > F::value(y) ? harness::pattern(F::value(x) - F::value(y)) : uint64_t(0);
    });
}

TYPED_TEST(SelectionTest, SignsAreBits) {
    using F = Format<TypeParam>;
    this->over_pairs("copysign", [](uint64_t x, uint64_t y) { return (x & ~F::sign) | (y & F::sign); });
    std::vector<Row> rows;
    for (uint64_t x : this->specials()) rows.push_back({{x}, {x & ~F::sign}});
    expect_rows(std::string("fabs") + F::letter, rows);
}

TEST(Selection, NanTakesItsCodeUnmasked) {
    expect_rows("nanf", {{{0}, {0x7fc00000}}, {{5}, {0x7fc00005}}, {{0x80000001}, {0xffc00001}}});
    expect_rows(
        "nan",
        {{{0}, {0x7ff8000000000000}}, {{5}, {0x7ff8000000000005}}, {{0x8000000100000002}, {0xfff8000100000002}}});
}

TEST(Selection, NanOfWidthThreeHasNoCodeInItsFourthLane) {
    EXPECT_EQ(harness::call(harness::family("nanf"), 3, {{1, 2, 3, 4}})[0],
              (harness::Patterns{0x7fc00001, 0x7fc00002, 0x7fc00003, 0x7fc00000}));
    EXPECT_EQ(harness::call(harness::family("nan"), 3, {{1, 2, 3, 4}})[0],
              (harness::Patterns{0x7ff8000000000001, 0x7ff8000000000002, 0x7ff8000000000003, 0x7ff8000000000000}));
}

TEST(Selection, MadRoundsTwiceAndHandsOnItsFirstNan) {
    expect_rows("madf", {{{0x7fc00001, 0x7fc00002, 0x7fc00003}, {0x7fc00001}},
                         {{0x3f800000, 0x7fc00002, 0x7fc00003}, {0x7fc00002}},
                         {{0x7f800000, 0x00000000, 0x7fc00003}, {0xffc00000}},
                         {{0x7f000000, 0x7f000000, 0xff7fffff}, {0x7f800000}},
                         {{0x3f800001, 0x3f800001, 0xbf800002}, {0x00000000}}});
    expect_rows("mad", {{{0x7ff8000000000001, 0x7ff8000000000002, 0x7ff8000000000003}, {0x7ff8000000000001}},
                        {{0x3ff0000000000000, 0x7ff8000000000002, 0x7ff8000000000003}, {0x7ff8000000000002}},
                        {{0x7ff0000000000000, 0x0000000000000000, 0x7ff8000000000003}, {0xfff8000000000000}},
                        {{0x3ff0000000000001, 0x3ff0000000000001, 0xbff0000000000002}, {0x0000000000000000}}});
}

}  // namespace
