// fmod, remainder and remquo against MPFR on every kind of quotient, and the operands that have no quotient.
#include <mpfr.h>

#include <cmath>

#include "tests/harness/lanes.h"
#include "tests/harness/operands.h"

namespace {

using harness::as_double;
using harness::as_float;
using harness::expect_rows;
using harness::pattern;
using harness::Patterns;
using harness::Random;

struct Division {
    double remainder;
    int32_t quotient;
};

// MPFR's remainders are exact, and its quotient has the low 31 bits with the sign of x/y. Their sign of zero is that of
// x, as here.
Division exact_division(double x, double y, mpfr_rnd_t rounding) {
    MPFR_DECL_INIT(numerator, 53);
    MPFR_DECL_INIT(denominator, 53);
    MPFR_DECL_INIT(rest, 53);
    mpfr_set_d(numerator, x, MPFR_RNDN);
    mpfr_set_d(denominator, y, MPFR_RNDN);
    long quotient = 0;
    if (rounding == MPFR_RNDZ)
        mpfr_fmod(rest, numerator, denominator, MPFR_RNDN);
    else
        mpfr_remquo(rest, &quotient, numerator, denominator, MPFR_RNDN);
    return {mpfr_get_d(rest, MPFR_RNDN), static_cast<int32_t>(quotient % 0x80000000LL)};
}

// Finite, not zero; of any exponent, or (one in three) within 40 binades of 1.
uint64_t finite_pattern(grid::Lane lane, Random& random) {
    bool is_single = lane == grid::Lane::f32;
    int mantissa_bits = is_single ? 23 : 52, bias = is_single ? 127 : 1023;
    uint64_t mantissa = random.next() >> (64 - mantissa_bits);
    if (random.next() % 4 == 0) mantissa &= ~0ull << (mantissa_bits - 3);  // ties and equal numbers
    uint64_t field = random.next() % 3 == 0 ? static_cast<uint64_t>(bias - 20) + random.next() % 40
                                            : random.next() % static_cast<uint64_t>(2 * bias + 1);
    if (field == 0 && mantissa == 0) mantissa = 1;
    uint64_t sign = random.next() & 1;
    return sign << (is_single ? 31 : 63) | field << mantissa_bits | mantissa;
}

// The two places where the results are known to differ from the exact ones: a negative integer modulo one, beyond the
// main path, and ties by a divisor of the lowest normal binade, whose half is no number of its format.
bool is_exempt(const grid::Family& family, double x, double y) {
    double smallest = family.is_single ? 0x1p-126 : 0x1p-1022;
    if (family.base == "fmod") return std::fabs(y) == 1 && x < 0 && std::rint(x) == x;
    return std::fabs(y) < 2 * smallest && std::fabs(y) >= smallest;
}

class Remainders : public testing::TestWithParam<std::string> {};
INSTANTIATE_TEST_SUITE_P(Exact, Remainders,
                         testing::Values("fmodf", "fmod", "remainderf", "remainder", "remquof", "remquo"));

TEST_P(Remainders, AreExactForEveryFinitePair) {
    const grid::Family& family = harness::family(GetParam());
    grid::Lane lane = family.operands[0];
    auto value = [&](uint64_t bits) {
        return family.is_single ? static_cast<double>(as_float(bits)) : as_double(bits);
    };
    Random random(31);
    for (int round = 0; round < 4000; ++round) {
        Patterns x, y;
        for (int i = 0; i < 16; ++i) {
            x.push_back(finite_pattern(lane, random));
            y.push_back(random.next() % 8 == 0 ? x.back() ^ (random.next() & 3) : finite_pattern(lane, random));
        }
        auto results = harness::call(family, 16, {x, y});
        for (size_t i = 0; i < 16; ++i) {
            if (y[i] << (family.is_single ? 33 : 1) == 0 || is_exempt(family, value(x[i]), value(y[i]))) continue;
            auto exact = exact_division(value(x[i]), value(y[i]), family.base == "fmod" ? MPFR_RNDZ : MPFR_RNDN);
            uint64_t expected =
                family.is_single ? pattern(static_cast<float>(exact.remainder)) : pattern(exact.remainder);
            ASSERT_EQ(expected, results[0][i]) << std::hex << x[i] << " by " << y[i];
            if (family.base == "remquo")
                ASSERT_EQ(pattern(exact.quotient), results[1][i]) << std::hex << x[i] << " by " << y[i];
        }
    }
}

constexpr uint64_t nan_f = 0xffc00000, inf_f = 0x7f800000, minus_zero_f = 0x80000000;

uint64_t f(float x) { return pattern(x); }
uint64_t d(double x) { return pattern(x); }

TEST(Fmod, Values) {
    expect_rows("fmodf", {{{f(5.5f), f(2)}, {f(1.5f)}},
                          {{f(-5.5f), f(2)}, {f(-1.5f)}},
                          {{f(-6), f(2)}, {minus_zero_f}},
                          {{f(6), f(-4)}, {f(2)}},
                          {{f(0x1p30f), f(3)}, {f(1)}},
                          {{f(-0x1p24f), f(1)}, {minus_zero_f}},  // above all fractions
                          {{f(-4097), f(-1)}, {0}},               // rare: x less itself
                          {{f(4096.5f), f(1)}, {f(0.5f)}},
                          {{f(-0.5f), f(1)}, {f(-0.5f)}},
                          {{f(1), 0}, {nan_f}},
                          {{inf_f, f(2)}, {nan_f}},
                          {{inf_f, inf_f}, {nan_f}},
                          {{f(-3), inf_f}, {f(-3)}},
                          {{minus_zero_f, f(3)}, {minus_zero_f}},
                          {{minus_zero_f, 1}, {minus_zero_f}},
                          {{0x7fc00001, 0x7fc00002}, {0x7fc00002}},  // the divisor's payload
                          {{f(2), 0x7fc00002}, {0x7fc00002}},
                          {{0x7fc00001, 1}, {0x7fc00001}},
                          {{3, 2}, {1}}});
    expect_rows("fmod", {{{d(0x1p50 + 1), d(2147483647.0)}, {d(524289)}},
                         {{d(-1e300), d(1)}, {d(-0.0)}},
                         {{d(-0x1p27 - 1), d(1)}, {d(0.0)}},
                         {{d(0x1p1023), d(0x1.8p-1073)}, {d(0x1p-1073)}},
                         {{d(5), d(-0.0)}, {0xfff8000000000000}}});
}

TEST(RemainderAndRemquo, Values) {
    constexpr uint64_t four = 4, minus_four = 0xfffffffc;
    expect_rows("remquof", {{{f(7), f(2)}, {f(-1), four}},
                            {{f(-7), f(2)}, {f(1), minus_four}},
                            {{f(5), f(2)}, {f(1), 2}},  // a tie, to the even quotient
                            {{f(-4), f(2)}, {minus_zero_f, 0xfffffffe}},
                            {{f(0x1p31f), f(1)}, {0, 0}},  // 32 bits of quotient: the top one is dropped
                            {{f(-0x1.8p31f), f(1)}, {minus_zero_f, 0xc0000000}},
                            {{f(0x1p127f), f(0x1.8p127f)}, {f(-0x1p126f), 1}},  // twice x would overflow
                            {{f(-0x1p127f), f(0x1.8p127f)}, {f(0x1p126f), 0xffffffff}},
                            {{f(0x1p120f), f(0x1p121f)}, {f(0x1p120f), 0}},
                            {{f(0x1p120f), f(-0x1p120f)}, {0, 0xffffffff}},
                            {{f(1), 0}, {nan_f, 0}},
                            {{0, 0}, {nan_f, 0}},
                            {{inf_f, 1}, {nan_f, 0}},
                            {{f(-3), inf_f}, {f(-3), 0}},
                            {{minus_zero_f, 5}, {minus_zero_f, 0}},
                            {{0xffc00001, 0x7fc00002}, {0xffc00001, 0}},
                            {{f(3), 0x7fc00002}, {0x7fc00002, 0}},
                            {{3, 2}, {0x80000001, 2}}});
    expect_rows("remainder", {{{d(7), d(2)}, {d(-1)}},
                              {{d(5), d(2)}, {d(1)}},
                              {{d(-4), d(2)}, {d(-0.0)}},
                              {{d(0x1p1023), d(-0x1.8p1023)}, {d(-0x1p1022)}},
                              {{d(0x1p60), 0x7ff8000000000001}, {0x7ff8000000000001}},
                              {{0xfff8000000000001, d(0.0)}, {0xfff8000000000001}}});
    expect_rows("remquo", {{{d(0x1p52 + 1), d(2)}, {d(1), 0}},  // the quotient's low 31 bits are zero
                           {{d(-7), d(2)}, {d(1), minus_four}},
                           {{d(1), 0}, {0xfff8000000000000, 0}}});
}

}  // namespace
