// The reduction of huge arguments against exact integer and MPFR arithmetic.
#include "kernels/trig/reduction.h"

#include <gmp.h>
#include <gtest/gtest.h>
#include <mpfr.h>

#include <cmath>

#include "tests/harness/operands.h"

namespace {

// The distance between a and 2 pi j / steps + y + ylo, modulo 2 pi.
class ExactTurn {
  public:
    ExactTurn() {
        for (mpfr_ptr number : {two_pi_, distance_, part_}) mpfr_init2(number, 1400);
        mpfr_const_pi(two_pi_, MPFR_RNDN);
        mpfr_mul_2ui(two_pi_, two_pi_, 1, MPFR_RNDN);
    }
    ~ExactTurn() {
        for (mpfr_ptr number : {two_pi_, distance_, part_}) mpfr_clear(number);
    }
    ExactTurn(const ExactTurn&) = delete;
    ExactTurn& operator=(const ExactTurn&) = delete;

    double distance(double a, double j, double steps, double y, double ylo) {
        mpfr_mul_d(part_, two_pi_, j / steps, MPFR_RNDN);
        mpfr_d_sub(distance_, a, part_, MPFR_RNDN);
        mpfr_sub_d(distance_, distance_, y, MPFR_RNDN);
        mpfr_sub_d(distance_, distance_, ylo, MPFR_RNDN);
        mpfr_remainder(distance_, distance_, two_pi_, MPFR_RNDN);
        return std::fabs(mpfr_get_d(distance_, MPFR_RNDN));
    }

  private:
    mpfr_t two_pi_, distance_, part_;
};

// Every exponent, with significands of one bit, of all ones and random, in both signs.
template <class Number, class Pattern>
std::vector<Number> arguments(int mantissa_bits, unsigned exponents, int random_count) {
    harness::Random random(23);
    std::vector<Number> list;
    Pattern mantissa = (Pattern{1} << mantissa_bits) - 1;
    for (unsigned exponent = 0; exponent < exponents; ++exponent)
        for (int i = 0; i < random_count + 2; ++i) {
            Pattern bits = i == 0 ? 0 : i == 1 ? mantissa : static_cast<Pattern>(random.next()) & mantissa;
            Pattern sign = (exponent + static_cast<unsigned>(i)) % 2;
            bits |= Pattern{exponent} << mantissa_bits | sign << (8 * sizeof(Pattern) - 1);
            list.push_back(__builtin_bit_cast(Number, bits));
        }
    return list;
}

// y + ylo is the remainder to `relative` of itself: below a head of h bits, the tail times 2 pi is rounded three times
// to p bits, 3 * 2^(1 - h - p). `absolute` is where the fraction ends.
void expect_reduced(double a, double j, double y, double ylo, double steps, double relative, double absolute) {
    static ExactTurn exact;
    EXPECT_TRUE(0 <= j && j < steps) << a;
    if (std::fabs(a) <= 0x1p-20) {
        EXPECT_EQ(0, j) << a;
        EXPECT_EQ(harness::pattern(a), harness::pattern(y)) << a;
        EXPECT_EQ(harness::pattern(0.0), harness::pattern(ylo)) << a;
        return;
    }
    EXPECT_LE(std::fabs(y), M_PI / steps * (1 + 0x1p-12)) << a;
    EXPECT_LE(exact.distance(a, j, steps, y, ylo), relative * std::fabs(y) + absolute)
        << std::hexfloat << a << ": " << j << ", " << y << ", " << ylo;
}

TEST(Reduction, OfFloatsIsAccurateAtEveryExponent) {
    auto list = arguments<float, uint32_t>(23, 255, 30);
    constexpr float closest_to_half_pi = 0x1.f37c8ap95f;  // of all floats, to a multiple of it
    list.insert(list.end(), {closest_to_half_pi, -closest_to_half_pi, 0x1p-20f, 0x1.000002p-20f});
    for (size_t i = 0; i + 4 <= list.size(); i += 4) {
        auto [j, y, ylo] = zorv::reduce(zorv::F4{list[i], list[i + 1], list[i + 2], list[i + 3]});
        for (size_t lane = 0; lane < 4; ++lane)
            expect_reduced(list[i + lane], j[lane], y[lane], ylo[lane], 256, 3 * 0x1p-35, 0x1p-58);
    }
    EXPECT_LT(zorv::reduce(zorv::F4{closest_to_half_pi}).y[0], 0x1p-29f);
}

TEST(Reduction, OfDoublesIsAccurateAtEveryExponent) {
    auto list = arguments<double, uint64_t>(52, 2047, 6);
    constexpr double closest_to_half_pi = 0x1.6ac5b262ca1ffp849;
    list.insert(list.end(), {closest_to_half_pi, -closest_to_half_pi, 0x1p-20, 0x1.0000000000001p-20});
    for (size_t i = 0; i + 2 <= list.size(); i += 2) {
        auto [j, y, ylo] = zorv::reduce(zorv::D2{list[i], list[i + 1]});
        for (size_t lane = 0; lane < 2; ++lane)
            expect_reduced(list[i + lane], static_cast<double>(j[lane]), y[lane], ylo[lane], 512, 3 * 0x1p-78,
                           0x1p-121);
    }
    EXPECT_LT(std::fabs(zorv::reduce(zorv::D2{closest_to_half_pi}).y[0]), 0x1p-60);
}

// The fraction bit by bit: for floats as columns of 16 x 16 products, where the unit forms larger pieces.
TEST(Reduction, OfFloatsSumsTheTenProducts) {
    auto list = arguments<float, uint32_t>(23, 256, 30);
    auto hi = [](uint32_t p) { return p >> 16; };
    auto lo = [](uint32_t p) { return p & 0xffff; };
    for (size_t i = 0; i + 4 <= list.size(); i += 4) {
        auto fraction =
            zorv::turn_fraction(zorv::F4{list[i], list[i + 1], list[i + 2], list[i + 3]}, zorv::reductionf_data);
        for (size_t lane = 0; lane < 4; ++lane) {
            auto b = static_cast<uint32_t>(harness::pattern(list[i + lane]));
            uint32_t m = (b & 0x7fffff) + 0x800000, mh = hi(m), ml = lo(m);
            const uint32_t* t = zorv::invpi_rows_f + 3 * (b >> 23 & 0xff);
            uint32_t a0 = hi(mh * lo(t[2])) + mh * hi(t[2]) + hi(ml * hi(t[2])) + lo(ml * lo(t[1]));
            uint32_t a1 = mh * lo(t[1]) + hi(ml * lo(t[1])) + lo(ml * hi(t[1])) + hi(a0);
            uint32_t a2 = mh * hi(t[1]) + hi(ml * hi(t[1])) + lo(ml * lo(t[0])) + hi(a1);
            uint32_t a3 = mh * lo(t[0]) + hi(ml * lo(t[0])) + lo(ml * hi(t[0])) + hi(a2);
            ASSERT_EQ((a3 << 16) + lo(a2), fraction.high[lane]) << std::hex << b;
            ASSERT_EQ((a1 << 16) + lo(a0), fraction.low[lane]) << std::hex << b;
        }
    }
}

// And for doubles in large pieces, where the unit forms columns of 32 x 32 products.
TEST(Reduction, OfDoublesSumsTheTenProducts) {
    mpz_t factor, sum, term;
    for (mpz_ptr number : {factor, sum, term}) mpz_init(number);
    auto set = [](mpz_ptr number, uint64_t value) { mpz_import(number, 1, 1, 8, 0, 0, &value); };
    auto multiply = [&](uint64_t x, uint64_t y) {
        set(term, x);
        set(factor, y);
        mpz_mul(term, term, factor);
    };
    auto list = arguments<double, uint64_t>(52, 2048, 6);
    for (size_t i = 0; i + 2 <= list.size(); i += 2) {
        auto fraction = zorv::turn_fraction(zorv::D2{list[i], list[i + 1]}, zorv::reductiond_data);
        for (size_t lane = 0; lane < 2; ++lane) {
            uint64_t b = harness::pattern(list[i + lane]);
            uint64_t m = (b & 0xfffffffffffff) + 0x10000000000000;
            const uint64_t* w = zorv::invpi_rows_d + 3 * (b >> 52 & 0x7ff);
            multiply(m, w[0]);
            mpz_mul_2exp(sum, term, 64);
            multiply(m, w[1]);
            mpz_add(sum, sum, term);
            multiply(m >> 32, w[2]);
            mpz_fdiv_q_2exp(term, term, 32);
            mpz_add(sum, sum, term);
            multiply(m & 0xffffffff, w[2] >> 32);
            mpz_fdiv_q_2exp(term, term, 32);
            mpz_add(sum, sum, term);
            mpz_fdiv_r_2exp(sum, sum, 128);

            set(term, fraction.high[lane]);
            mpz_mul_2exp(term, term, 64);
            set(factor, fraction.low[lane]);
            mpz_add(term, term, factor);
            ASSERT_EQ(0, mpz_cmp(sum, term)) << std::hex << b;
        }
    }
    for (mpz_ptr number : {factor, sum, term}) mpz_clear(number);
}

// The last rows exist: an infinity reduces to a finite triple. A NaN passes neither compare of the tiny guard.
TEST(Reduction, OfInfinitiesAndNaNIsFinite) {
    auto [j, y, ylo] = zorv::reduce(zorv::F4{INFINITY, -INFINITY, NAN, 0x1p30f});
    EXPECT_EQ(256, j[0] + j[1]);
    EXPECT_EQ(0, y[0] + y[1]);
    EXPECT_LT(std::fabs(y[0]), 0.0123f);
    EXPECT_EQ(0u, harness::pattern(static_cast<float>(y[2])));
    EXPECT_EQ(0u, harness::pattern(static_cast<float>(ylo[2])));
    auto wide = zorv::reduce(zorv::D2{INFINITY, NAN});
    EXPECT_LT(std::fabs(wide.y[0]), 0.0062);
    EXPECT_EQ(0u, harness::pattern(static_cast<double>(wide.y[1])));
}

}  // namespace
