// The rounding families against integer arithmetic on the operand's own bits.
#include <cstdlib>

#include "tests/harness/lanes.h"

namespace {

enum class Direction { down, up, to_zero, nearest_even, nearest_away };

// x = (-1)^s (whole + part / 2^n): the whole is kept or takes one more, by the part and the direction.
template <class Float, class Bits, int mantissa_bits>
Bits rounded(Bits x, Direction direction) {
    constexpr Bits sign_bit = Bits(1) << (8 * sizeof(Bits) - 1);
    constexpr Bits quiet_bit = Bits(1) << (mantissa_bits - 1);
    constexpr int exponent_mask = (1 << (8 * static_cast<int>(sizeof(Bits)) - mantissa_bits - 1)) - 1;
    constexpr int bias = exponent_mask / 2;
    Bits sign = x & sign_bit, magnitude = x & ~sign_bit;
    int exponent = static_cast<int>(magnitude >> mantissa_bits);
    if (exponent == exponent_mask) return (magnitude & (2 * quiet_bit - 1)) ? x | quiet_bit : x;
    int fraction_bits = mantissa_bits - (exponent - bias);
    if (fraction_bits <= 0 || magnitude == 0) return x;

    Bits whole = 0;
    int part = 1;  // in quarters, of which an odd count stands for anything in between
    if (fraction_bits <= mantissa_bits + 1) {
        Bits mantissa = (magnitude & (2 * quiet_bit - 1)) | 2 * quiet_bit;
        Bits rest = mantissa & ((Bits(1) << fraction_bits) - 1), half = Bits(1) << (fraction_bits - 1);
        whole = mantissa >> fraction_bits;
        part = rest == 0 ? 0 : rest < half ? 1 : rest == half ? 2 : 3;
    }
    if (part == 0) return x;
    bool up = false;
    switch (direction) {
        case Direction::down:
            up = sign != 0;
            break;
        case Direction::up:
            up = sign == 0;
            break;
        case Direction::to_zero:
            break;
        case Direction::nearest_even:
            up = part == 3 || (part == 2 && (whole & 1));
            break;
        case Direction::nearest_away:
            up = part >= 2;
            break;
    }
    // The step back from a magnitude of 1 leaves a positive zero, whatever the sign of x.
    if (direction == Direction::up && sign != 0 && whole == 0 && part == 3) return 0;
    return sign | __builtin_bit_cast(Bits, static_cast<Float>(whole + up));
}

struct Case {
    const char* base;
    Direction direction;
};
const Case cases[] = {{"floor", Direction::down},         {"ceil", Direction::up},
                      {"trunc", Direction::to_zero},      {"rint", Direction::nearest_even},
                      {"round", Direction::nearest_away}, {"nearbyint", Direction::nearest_even}};

template <class Float, class Bits, int mantissa_bits>
void expect_rounded(const grid::Family& family, Direction direction, const Bits (&x)[16]) {
    alignas(64) Bits in[16], out[16];
    std::memcpy(in, x, sizeof in);
    const void* operands[] = {in};
    void* results[] = {out};
    family.call(16)(operands, results);
    for (int i = 0; i < 16; ++i) {
        Bits expected = rounded<Float, Bits, mantissa_bits>(in[i], direction);
        if (out[i] != expected)
            FAIL() << family.name << std::hex << " of " << in[i] << " is " << out[i] << ", expected " << expected;
    }
}

// Every 4999th float; all of them where ZORV_SWEEP is set.
TEST(Integral, RoundsEveryFloat) {
    const uint64_t stride = std::getenv("ZORV_SWEEP") ? 1 : 4999;
    for (const Case& one : cases) {
        const grid::Family& family = harness::family(std::string(one.base) + "f");
        for (uint64_t first = 0; first < 1ull << 32; first += 16 * stride) {
            uint32_t x[16];
            for (int i = 0; i < 16; ++i) x[i] = static_cast<uint32_t>(first + static_cast<uint64_t>(i) * stride);
            expect_rounded<float, uint32_t, 23>(family, one.direction, x);
        }
        if (HasFatalFailure()) return;
    }
}

// In every binade: the ends, and what lies around a half and a whole number near its start and its end.
TEST(Integral, RoundsDoublesAroundWholeAndHalfNumbers) {
    for (const Case& one : cases) {
        const grid::Family& family = harness::family(one.base);
        for (uint64_t exponent = 0; exponent < 2048; ++exponent)
            for (int bit = 0; bit <= 52; ++bit) {
                uint64_t at = exponent << 52, half = uint64_t(1) << bit >> 1, next = at + (uint64_t(1) << 52);
                uint64_t s = uint64_t(1) << 63;
                uint64_t x[16] = {at,
                                  at + half,
                                  at + half - 1,
                                  at + half + 1,
                                  at + 3 * half,
                                  at + 1,
                                  next - half,
                                  next - half - 1,
                                  next - half + 1,
                                  next - 1,
                                  s | at,
                                  s | (at + half),
                                  s | (at + half - 1),
                                  s | (at + half + 1),
                                  s | (next - half),
                                  s | (next - 1)};
                expect_rounded<double, uint64_t, 52>(family, one.direction, x);
                if (HasFatalFailure()) return;
            }
    }
}

TEST(Integral, SplitsIntoWholeAndFraction) {
    const uint64_t minus_zero = 0x80000000, inf = 0x7f800000, minus_inf = 0xff800000;
    const uint64_t almost_half = 0x3effffff, below_one = 0x3f7fffff, one = 0x3f800000, minus_one = 0xbf800000;
    harness::expect_rows("modff", {
                                      {{0}, {0, 0}},
                                      {{minus_zero}, {0, minus_zero}},
                                      {{0xc0000000}, {0, 0xc0000000}},           // -2
                                      {{0xc0200000}, {0xbf000000, 0xc0000000}},  // -2.5
                                      {{0xbf000000}, {0xbf000000, minus_zero}},  // -0.5
                                      {{0x80000001}, {0x80000001, minus_zero}},
                                      {{0x4b000001}, {0, 0x4b000001}},
                                      {{almost_half}, {almost_half, 0}},
                                      {{inf}, {0, inf}},
                                      {{minus_inf}, {minus_zero, minus_inf}},
                                      {{0xffc00005}, {0xffc00005, 0xffc00005}},
                                      {{0x7f800005}, {0x7fc00005, 0x7fc00005}},
                                  });
    harness::expect_rows("fractf", {
                                       {{0}, {0, 0}},
                                       {{minus_zero}, {minus_zero, minus_zero}},
                                       {{0x40000000}, {0, 0x40000000}},
                                       {{0xc0000000}, {0, 0xc0000000}},
                                       {{0xc0200000}, {0x3f000000, 0xc0400000}},  // -2.5
                                       {{0x9e3ce508}, {below_one, minus_one}},    // -1e-20
                                       {{0x80000001}, {below_one, minus_one}},
                                       {{one}, {0, one}},
                                       {{0x00000001}, {0x00000001, 0}},
                                       {{inf}, {0, inf}},
                                       {{minus_inf}, {minus_zero, minus_inf}},
                                       {{0xffc00005}, {0xffc00005, 0xffc00005}},
                                       {{0x7f800005}, {0x7fc00005, 0x7fc00005}},
                                   });
    const uint64_t d_minus_zero = 1ull << 63, d_inf = 0x7ff0000000000000, d_below_one = 0x3fefffffffffffff;
    const uint64_t d_minus_one = 0xbff0000000000000;
    harness::expect_rows("modf", {
                                     {{d_minus_zero}, {0, d_minus_zero}},
                                     {{0xc000000000000000}, {0, 0xc000000000000000}},
                                     {{0xc004000000000000}, {0xbfe0000000000000, 0xc000000000000000}},
                                     {{d_inf | d_minus_zero}, {d_minus_zero, d_inf | d_minus_zero}},
                                     {{d_inf | 5}, {0x7ff8000000000005, 0x7ff8000000000005}},
                                 });
    harness::expect_rows("fract", {
                                      {{0}, {0, 0}},
                                      {{d_minus_zero}, {d_minus_zero, d_minus_zero}},
                                      {{1}, {1, 0}},  // its high half is that of a zero
                                      {{d_minus_zero | 1}, {d_below_one, d_minus_one}},
                                      {{0x0000000100000000}, {0x0000000100000000, 0}},
                                      {{0xc004000000000000}, {0x3fe0000000000000, 0xc008000000000000}},
                                      {{d_inf | d_minus_zero}, {d_minus_zero, d_inf | d_minus_zero}},
                                      {{d_inf | 5}, {0x7ff8000000000005, 0x7ff8000000000005}},
                                  });
}

}  // namespace
