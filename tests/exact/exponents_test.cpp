// frexp, ldexp, logb, ilogb and nextafter: values at the ends of every range, and a model in integers.
#include <bit>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "tests/harness/lanes.h"
#include "tests/harness/operands.h"

namespace {

using harness::expect_rows;
using harness::pattern;
using harness::Patterns;
using harness::Random;

uint64_t f(float x) { return pattern(x); }
uint64_t d(double x) { return pattern(x); }
uint64_t n(int x) { return pattern(int32_t{x}); }

constexpr uint64_t inf_f = 0x7f800000, inf_d = 0x7ff0000000000000, sign_f = 0x80000000, sign_d = 1ull << 63;

TEST(Exponents, Frexp) {
    expect_rows("frexpf", {{{f(8)}, {f(0.5f), n(4)}},
                           {{f(-0.75f)}, {f(-0.75f), 0}},
                           {{0}, {0, 0}},
                           {{sign_f}, {sign_f, 0}},
                           {{inf_f}, {inf_f, 0}},
                           {{sign_f | inf_f}, {sign_f | inf_f, 0}},
                           {{0xffc00001}, {0xffc00001, 0}},
                           {{0x7f800001}, {0x7fc00001, 0}},
                           {{1}, {f(0.5f), n(-148)}},
                           {{0x807fffff}, {0xbf7ffffe, n(-126)}},
                           {{0x00800000}, {f(0.5f), n(-125)}},
                           {{0x7f7fffff}, {0x3f7fffff, n(128)}}});
    expect_rows("frexp", {{{d(-8)}, {d(-0.5), n(4)}},
                          {{1}, {d(0.5), n(-1073)}},
                          {{0x000fffffffffffff}, {0x3feffffffffffffe, n(-1022)}},
                          {{0x7fefffffffffffff}, {0x3fefffffffffffff, n(1024)}},
                          {{sign_d}, {sign_d, 0}},
                          {{0x7ff8000000000001}, {0x7ff8000000000001, 0}}});
}

TEST(Exponents, Ldexp) {
    expect_rows("ldexpf", {{{f(1), n(200)}, {inf_f}},
                           {{f(-1), n(200)}, {sign_f | inf_f}},
                           {{f(1), n(-200)}, {0}},
                           {{f(-1), n(-200)}, {sign_f}},
                           {{f(1), n(127)}, {0x7f000000}},
                           {{f(1), n(128)}, {inf_f}},
                           {{f(1), n(-126)}, {0x00800000}},
                           {{f(1), n(-149)}, {1}},
                           {{f(1), n(-150)}, {0}},  // a tie, to the even zero
                           {{f(1.5f), n(-150)}, {1}},
                           {{0x3fffffff, n(-127)}, {0x00800000}},  // rounds up to the smallest normal number
                           {{0x3f800001, n(-127)}, {0x00400000}},
                           {{0x3f800003, n(-127)}, {0x00400002}},
                           {{1, n(30)}, {f(0x1p-119f)}},
                           {{1, n(276)}, {0x7f000000}},
                           {{1, n(277)}, {inf_f}},
                           {{0x807fffff, n(1)}, {0x80fffffe}},
                           {{0x7f7fffff, n(-276)}, {2}},
                           {{1, n(INT32_MAX)}, {inf_f}},
                           {{0x7f7fffff, n(INT32_MIN)}, {0}},
                           {{sign_f, n(5)}, {sign_f}},
                           {{inf_f, n(-5)}, {inf_f}},
                           {{0x7f800001, n(0)}, {0x7fc00001}}});
    expect_rows("ldexp", {{{d(1), n(1023)}, {0x7fe0000000000000}},
                          {{d(-1), n(1024)}, {sign_d | inf_d}},
                          {{d(1), n(-1074)}, {1}},
                          {{d(1), n(-1075)}, {0}},
                          {{d(-1.5), n(-1075)}, {sign_d | 1}},
                          {{1, n(2097)}, {0x7fe0000000000000}},
                          {{1, n(2098)}, {inf_d}},
                          {{d(3), n(-1)}, {d(1.5)}},
                          {{d(3), n(INT32_MIN)}, {0}}});
}

TEST(Exponents, LogbAndIlogb) {
    expect_rows("logbf", {{{0}, {sign_f | inf_f}},
                          {{sign_f}, {sign_f | inf_f}},
                          {{sign_f | inf_f}, {inf_f}},
                          {{0xffc00001}, {0x7fc00001}},
                          {{1}, {f(-149)}},
                          {{0x807fffff}, {f(-127)}},
                          {{0x80800000}, {f(-126)}},
                          {{f(1)}, {0}},
                          {{0x7f7fffff}, {f(127)}}});
    expect_rows("logb", {{{0}, {sign_d | inf_d}},
                         {{1}, {d(-1074)}},
                         {{0x800fffffffffffff}, {d(-1023)}},
                         {{0x7fefffffffffffff}, {d(1023)}},
                         {{0xfff8000000000001}, {0x7ff8000000000001}}});
    constexpr uint64_t lowest = 0x80000000, highest = 0x7fffffff;
    expect_rows("ilogbf", {{{0}, {lowest}},
                           {{sign_f}, {lowest}},
                           {{inf_f}, {highest}},
                           {{0xffc00000}, {highest}},
                           {{1}, {n(-149)}},
                           {{f(-10)}, {n(3)}}});
    expect_rows("ilogb", {{{0}, {lowest}},
                          {{inf_d}, {highest}},
                          {{0xfff8000000000000}, {highest}},
                          {{1}, {n(-1074)}},
                          {{d(0.75)}, {n(-1)}}});
}

TEST(Exponents, Nextafter) {
    expect_rows("nextafterf", {{{f(1), f(2)}, {0x3f800001}},
                               {{f(1), 0}, {0x3f7fffff}},
                               {{f(1), f(-1)}, {0x3f7fffff}},
                               {{f(-1), f(1)}, {0xbf7fffff}},
                               {{0, f(1)}, {1}},
                               {{0, f(-1)}, {0x80000001}},
                               {{sign_f, f(1)}, {1}},
                               {{0, sign_f}, {sign_f}},  // equal: y
                               {{sign_f, 0}, {0}},
                               {{1, f(-1)}, {0}},
                               {{0x80000001, f(1)}, {sign_f}},
                               {{0x00800000, 0}, {0x007fffff}},
                               {{0x007fffff, f(1)}, {0x00800000}},
                               {{0x7f7fffff, inf_f}, {inf_f}},
                               {{inf_f, f(1)}, {0x7f7fffff}},
                               {{sign_f | inf_f, inf_f}, {0xff7fffff}},
                               {{inf_f, inf_f}, {inf_f}},
                               {{0x7fc00001, 0x7fc00002}, {0x7fc00001}},
                               {{f(1), 0x7fc00002}, {0x7fc00002}}});
    expect_rows("nextafter", {{{d(1), d(2)}, {0x3ff0000000000001}},
                              {{0x3ff00000ffffffff, d(2)}, {0x3ff0000100000000}},  // across the halves
                              {{0x3ff0000100000000, d(1)}, {0x3ff00000ffffffff}},
                              {{d(-1), d(1)}, {0xbfefffffffffffff}},
                              {{0, d(-1)}, {0x8000000000000001}},
                              {{0, sign_d}, {sign_d}},
                              {{0x0010000000000000, 0}, {0x000fffffffffffff}},
                              {{0x7fefffffffffffff, inf_d}, {inf_d}},
                              {{inf_d, d(0)}, {0x7fefffffffffffff}},
                              {{d(3), d(3)}, {d(3)}}});
}

// Any operand, seen as significand 2^e with a significand of as many bits as it has: where its leading bit stands says
// all that frexp, logb and ilogb say.
template <class Float, class Bits, int mantissa_bits>
class LeadingBit {
    static constexpr int bias = sizeof(Float) == 4 ? 127 : 1023;
    static constexpr Bits mantissa_mask = (Bits{1} << mantissa_bits) - 1, special_field = 2 * bias + 1;
    static constexpr Bits sign = Bits{1} << (8 * sizeof(Bits) - 1);
    grid::Call frexp_ = of("frexp"), logb_ = of("logb"), ilogb_ = of("ilogb");
    static grid::Call of(const std::string& base) {
        return harness::family(base + (sizeof(Float) == 4 ? "f" : "")).call(16);
    }

  public:
    void expect_in(const Bits (&x)[16]) const {
        alignas(128) Bits in[16], mantissas[16], floating[16];
        alignas(64) int32_t exponents[16], integers[16];
        std::memcpy(in, x, sizeof in);
        const void* operands[] = {in};
        void *both[] = {mantissas, exponents}, *floating_one[] = {floating}, *integer_one[] = {integers};
        frexp_(operands, both);
        logb_(operands, floating_one);
        ilogb_(operands, integer_one);
        for (int i = 0; i < 16; ++i) {
            Bits field = x[i] >> mantissa_bits & special_field, mantissa = x[i] & mantissa_mask;
            if (field == special_field || (field == 0 && mantissa == 0)) continue;
            int leading = field != 0 ? mantissa_bits : static_cast<int>(std::bit_width(mantissa)) - 1;
            int exponent = leading + (field != 0 ? static_cast<int>(field) : 1) - bias - mantissa_bits;
            Bits half = (x[i] & sign) | Bits{bias - 1} << mantissa_bits;
            Bits normalised = mantissa << (mantissa_bits - leading) & mantissa_mask;
            if (integers[i] != exponent || floating[i] != pattern(static_cast<Float>(exponent)) ||
                exponents[i] != exponent + 1 || mantissas[i] != (half | normalised))
                FAIL() << std::hex << x[i] << ": mantissa " << mantissas[i] << ", exponents " << std::dec
                       << exponents[i] << ", " << integers[i];
        }
    }
};

// Every 4999th float; all of them where ZORV_SWEEP is set.
TEST(Exponents, AreThoseOfTheLeadingBitInEveryFloat) {
    const uint64_t stride = std::getenv("ZORV_SWEEP") ? 1 : 4999;
    LeadingBit<float, uint32_t, 23> leading_bit;
    for (uint64_t first = 0; first < 1ull << 32; first += 16 * stride) {
        uint32_t x[16];
        for (uint64_t i = 0; i < 16; ++i) x[i] = static_cast<uint32_t>(first + i * stride);
        leading_bit.expect_in(x);
        if (HasFatalFailure()) return;
    }
}
TEST(Exponents, AreThoseOfTheLeadingBitInDoubles) {
    LeadingBit<double, uint64_t, 52> leading_bit;
    Random random(5);
    for (int round = 0; round < 4000; ++round) {
        uint64_t x[16];
        for (uint64_t& bits : x) {
            bits = random.next();
            if (round % 4 == 0) bits &= 0x800fffffffffffff;  // subnormal
            if (round % 8 == 0) bits >>= random.next() % 50;
        }
        leading_bit.expect_in(x);
        if (HasFatalFailure()) return;
    }
}

// Numbers as integers in the order of their values: a neighbour is one away.
int64_t rank(uint64_t bits, bool is_single) {
    uint64_t magnitude = is_single ? bits & 0x7fffffff : bits & ~sign_d;
    bool negative = is_single ? bits >> 31 != 0 : bits >> 63 != 0;
    return negative ? -static_cast<int64_t>(magnitude) : static_cast<int64_t>(magnitude);
}

TEST(Exponents, NextafterIsOneAway) {
    for (const char* name : {"nextafterf", "nextafter"}) {
        const grid::Family& family = harness::family(name);
        Random random(9);
        for (int round = 0; round < 4000; ++round) {
            Patterns x, y;
            for (int i = 0; i < 16; ++i) {
                x.push_back(harness::random_pattern(family.operands[0], random));
                y.push_back(random.next() % 4 == 0 ? x.back() + random.next() % 5 - 2
                                                   : harness::random_pattern(family.operands[0], random));
                if (family.is_single) y.back() &= 0xffffffff;
            }
            auto results = harness::call(family, 16, {x, y})[0];
            for (size_t i = 0; i < 16; ++i) {
                if (harness::is_nan(family.operands[0], x[i]) || harness::is_nan(family.operands[0], y[i])) continue;
                int64_t from = rank(x[i], family.is_single), to = rank(y[i], family.is_single);
                int64_t step = (from < to) - (from > to);
                ASSERT_EQ(from + step, rank(results[i], family.is_single))
                    << name << " " << std::hex << x[i] << " to " << y[i];
            }
        }
    }
}

// Against one correctly rounded multiplication by a power of two, in two exact steps and one rounded.
TEST(Exponents, LdexpRoundsOnce) {
    const grid::Family &single = harness::family("ldexpf"), &wide = harness::family("ldexp");
    Random random(13);
    for (int round = 0; round < 4000; ++round) {
        Patterns x, y, by, by_wide;
        for (int i = 0; i < 16; ++i) {
            x.push_back(random.next() >> 32);
            y.push_back(random.next());
            by.push_back(n(static_cast<int>(random.next() % 600) - 300));
            by_wide.push_back(n(static_cast<int>(random.next() % 4400) - 2200));
        }
        auto results = harness::call(single, 16, {x, by})[0], wide_results = harness::call(wide, 16, {y, by_wide})[0];
        for (size_t i = 0; i < 16; ++i) {
            if (!harness::is_nan(grid::Lane::f32, x[i])) {
                double exact = std::scalbn(static_cast<double>(harness::as_float(x[i])), static_cast<int32_t>(by[i]));
                ASSERT_EQ(f(static_cast<float>(exact)), results[i]) << std::hex << x[i] << " " << by[i];
            }
            if (!harness::is_nan(grid::Lane::f64, y[i])) {
                long double exact = scalbnl(harness::as_double(y[i]), static_cast<int32_t>(by_wide[i]));
                ASSERT_EQ(d(static_cast<double>(exact)), wide_results[i]) << std::hex << y[i] << " " << by_wide[i];
            }
        }
    }
}

}  // namespace
