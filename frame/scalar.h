// What the scalar routines of rare lanes are made of: numbers as bit patterns, powers of two, and results that raise
// their flags by arithmetic at run time.
#pragma once

#include <cstdint>

#include "frame/status.h"
#include "frame/units.h"

namespace zorv {

// ---- A number and its pattern. -----------------------------------------------------------------------------

inline uint32_t pattern(float x) { return __builtin_bit_cast(uint32_t, x); }
inline uint64_t pattern(double x) { return __builtin_bit_cast(uint64_t, x); }
inline float from_pattern(uint32_t x) { return __builtin_bit_cast(float, x); }
inline double from_pattern(uint64_t x) { return __builtin_bit_cast(double, x); }

// The fields of a format.
template <class Float>
struct Fields;
template <>
struct Fields<float> {
    using Pattern = uint32_t;
    static constexpr int mantissa_bits = 23, bias = 127;
    static constexpr Pattern sign = 0x80000000, exponent = 0x7f800000, mantissa = 0x007fffff;
    static constexpr Pattern magnitude = ~sign, infinity = exponent, one = 0x3f800000;
    static constexpr float largest = 0x1.fffffep127f, smallest_normal = 0x1p-126f, smallest = 0x1p-149f;
};
template <>
struct Fields<double> {
    using Pattern = uint64_t;
    static constexpr int mantissa_bits = 52, bias = 1023;
    static constexpr Pattern sign = 0x8000000000000000, exponent = 0x7ff0000000000000, mantissa = 0x000fffffffffffff;
    static constexpr Pattern magnitude = ~sign, infinity = exponent, one = 0x3ff0000000000000;
    static constexpr double largest = 0x1.fffffffffffffp1023, smallest_normal = 0x1p-1022, smallest = 0x1p-1074;
};

template <class Float>
inline Float magnitude_of(Float x) {
    return from_pattern(pattern(x) & Fields<Float>::magnitude);
}
template <class Float>
inline bool is_negative(Float x) {  // by the sign bit: -0 and NaNs too
    return (pattern(x) & Fields<Float>::sign) != 0;
}
template <class Float>
inline bool is_infinite_or_nan(Float x) {
    return (pattern(x) & Fields<Float>::exponent) == Fields<Float>::exponent;
}
template <class Float>
inline bool is_zero_or_subnormal(Float x) {
    return (pattern(x) & Fields<Float>::exponent) == 0;
}
template <class Float>
inline bool is_negative_infinity(Float x) {
    return pattern(x) == (Fields<Float>::sign | Fields<Float>::infinity);
}
// The magnitude of x with the sign bit of y set as well where it is set: an OR, not a copy.
template <class Float>
inline Float or_sign_of(Float x, Float y) {
    return from_pattern(pattern(x) | (pattern(y) & Fields<Float>::sign));
}

// ---- Exponents. --------------------------------------------------------------------------------------------

template <class Float>
inline int exponent_field(Float x) {
    using F = Fields<Float>;
    return static_cast<int>((pattern(x) & F::exponent) >> F::mantissa_bits);
}
template <class Float>
inline int unbiased_exponent(Float x) {
    return exponent_field(x) - Fields<Float>::bias;
}
// The mantissa of x in [1, 2), or in (-2, -1] for a negative x.
template <class Float>
inline Float with_exponent_of_one(Float x) {
    using F = Fields<Float>;
    return from_pattern((pattern(x) & ~F::exponent) | F::one);
}
// The number with nothing but this exponent field, of which only as many low bits count as a field has: 2^(field -
// bias), zero for 0, infinity for all ones.
template <class Float>
inline Float with_exponent_field(int field) {
    using F = Fields<Float>;
    return from_pattern((static_cast<typename F::Pattern>(field) << F::mantissa_bits) & F::exponent);
}
// 2^n for n in the normal range.
template <class Float>
inline Float power_of_two(int n) {
    return with_exponent_field<Float>(n + Fields<Float>::bias);
}

// ---- Exceptional results, by arithmetic that the compiler does not see through. ----------------------------

template <class Float>
inline Float zero_by_zero() {  // the hardware's own NaN: quiet, negative, no payload
    return opaque(Float(0)) / opaque(Float(0));
}
template <class Float>
inline Status domain_result(Float* result) {
    *result = zero_by_zero<Float>();
    return RARE_DOMAIN;
}
// numerator / 0: an infinity with the sign of the numerator.
template <class Float>
inline Status pole_result(Float numerator, Float* result) {
    *result = opaque(numerator) / opaque(Float(0));
    return RARE_POLE;
}
template <class Float>
inline Status overflow_result(Float* result) {
    *result = opaque(Fields<Float>::largest) * opaque(Fields<Float>::largest);
    return RARE_OVERFLOW;
}
template <class Float>
inline Status underflow_result(Float* result) {
    *result = opaque(Fields<Float>::smallest) * opaque(Fields<Float>::smallest);
    return RARE_UNDERFLOW;
}

}  // namespace zorv
