// The exact remainder of two finite numbers, whatever their ratio: long division of the significands, as many quotient
// bits a step as one hardware divide of 64 by 32 bits gives.
#pragma once

#include <cstdint>
#include <type_traits>

#include "frame/scalar.h"

namespace zorv {

inline int leading_zeros(uint32_t x) { return __builtin_clz(x); }
inline int leading_zeros(uint64_t x) { return __builtin_clzll(x); }

// |x| = value 2^exponent, the leading bit of the value in the place of the implicit one. x is not zero.
template <class Float>
struct Significand {
    using F = Fields<Float>;
    using Pattern = typename F::Pattern;
    static constexpr int bits = 8 * sizeof(Pattern);

    Pattern value;
    int exponent;

    explicit Significand(Float x) : value(pattern(x) & F::mantissa), exponent(1 - F::bias - F::mantissa_bits) {
        if (int field = exponent_field(x); field != 0) {
            value |= F::mantissa + 1;
            exponent += field - 1;
        } else {
            normalise();
        }
    }
    Significand(Pattern integer, int weight) : value(integer), exponent(weight) { normalise(); }

    Float magnitude() const {
        int field = exponent + F::bias + F::mantissa_bits;
        if (field < 1) return from_pattern(value >> (1 - field));
        return from_pattern((static_cast<Pattern>(field - 1) << F::mantissa_bits) + value);
    }

  private:
    void normalise() {
        int empty = leading_zeros(value) - (bits - 1 - F::mantissa_bits);
        value <<= empty;
        exponent -= empty;
    }
};

inline uint32_t divide(uint64_t dividend, uint32_t divisor, uint32_t& remainder) {  // the quotient has 32 bits
    uint32_t quotient;
    asm("divl %4"
        : "=a"(quotient), "=d"(remainder)
        : "0"(static_cast<uint32_t>(dividend)), "1"(static_cast<uint32_t>(dividend >> 32)), "rm"(divisor)
        : "cc");
    return quotient;
}

// A step takes `count` bits of the quotient, at most `most`: remainder 2^count is divided, and its remainder left. Both
// numbers stand `shift` bits above the units of the divisor's significand.
struct FloatStep {
    static constexpr int shift = 0, most = 32;
    static uint32_t divide(uint32_t& remainder, int count, uint32_t divisor) {
        return zorv::divide(static_cast<uint64_t>(remainder) << count, divisor, remainder);
    }
};
// The divisor's high word stands for all of it. With the divisor below 2^62 and 29 bits a step, that makes the quotient
// too large by 2 at most, and what is left then is a small negative number.
struct DoubleStep {
    static constexpr int shift = 9, most = 29;
    static uint32_t divide(uint64_t& remainder, int count, uint64_t divisor) {
        uint32_t ignored;
        uint32_t quotient = zorv::divide(remainder >> (32 - count), static_cast<uint32_t>(divisor >> 32), ignored);
        remainder = (remainder << count) - quotient * divisor;
        while (remainder >> 63 != 0) {
            remainder += divisor;
            --quotient;
        }
        return quotient;
    }
};

template <class Float>
struct Division {
    Float remainder;    // a magnitude, below that of y
    uint32_t quotient;  // the low 32 bits of |x/y| rounded down
};

// |x| / |y| for finite |x| >= |y| > 0.
template <class Float>
Division<Float> long_division(Float x, Float y) {
    using Step = std::conditional_t<sizeof(Float) == 4, FloatStep, DoubleStep>;
    Significand<Float> dividend(x), divisor(y);
    uint32_t quotient = dividend.value >= divisor.value;
    auto rest = (dividend.value - (quotient != 0 ? divisor.value : 0)) << Step::shift;
    for (int left = dividend.exponent - divisor.exponent; left > 0; left -= Step::most) {
        int count = left < Step::most ? left : Step::most;
        uint32_t next = Step::divide(rest, count, divisor.value << Step::shift);
        quotient = static_cast<uint32_t>(static_cast<uint64_t>(quotient) << count) | next;
    }
    if (rest == 0) return {Float(0), quotient};
    return {Significand<Float>(rest >> Step::shift, divisor.exponent).magnitude(), quotient};
}

}  // namespace zorv
