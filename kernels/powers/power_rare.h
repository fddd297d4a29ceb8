// x^y of one lane, complete and nearly correctly rounded: what pow, powr, pown and rootn do with a rare lane.
//
//   x = 2^E m,  m r1 r2 r3 = log2(e) (1 + z),  |z| small
//   log2 x = E - log2 r1 - log2 r2 - log2(r3 / log2(e)) + log2(1 + z)
//   x^y = 2^n 2^(j/128) 2^rr,   y log2 x = n + j/128 + rr
//
// The multipliers r are short and come from tables, by the leading bits of what they multiply; the rounding error of
// their product with m is computed and added again. The logarithm is a head and a tail, and so is its product with y.
// Both precisions take the same course.
#pragma once

#include <type_traits>

#include "frame/pairs.h"
#include "frame/scalar.h"
#include "kernels/powers/power_rare_data.h"

namespace zorv {
namespace {

// ---- The exponent as the rare routines see it. -------------------------------------------------------------

enum class Parity { not_integer, odd, even };

template <class Float>
struct Exponent {
    Float y;
    Float residual;  // of an integer that a float does not hold
    Parity parity;
};

// Infinities and NaNs are no integers here.
template <class Float>
Parity parity_of(Float y) {
    using F = Fields<Float>;
    int exponent = unbiased_exponent(y);
    if (exponent < 0 || is_infinite_or_nan(y)) return Parity::not_integer;
    if (exponent > F::mantissa_bits) return Parity::even;
    // The units bit moves to the place above the mantissa. For an exponent of 0 it is the exponent field's own 1.
    typename F::Pattern units_and_fraction = (pattern(y) & F::magnitude) << exponent;
    if (units_and_fraction & F::mantissa) return Parity::not_integer;
    return units_and_fraction >> F::mantissa_bits & 1 ? Parity::odd : Parity::even;
}

inline Exponent<float> exponent_of(float y) { return {y, 0, parity_of(y)}; }
inline Exponent<double> exponent_of(double y) { return {y, 0, parity_of(y)}; }

// 1 or -1 as a factor: a multiplication by it rounds, quiets and leaves the sign of a NaN alone.
template <class Float>
Float sign_factor(bool negative) {
    return opaque(negative ? Float(-1) : Float(1));
}

template <class Float>
Float square(Float x) {
    return opaque(x) * opaque(x);
}

// ---- The logarithm's reduction. ----------------------------------------------------------------------------

// The bits of a pattern above `at`, rounded: one more row than there are indices of that many bits.
template <class Float>
unsigned row_index(Float x, int at, int bits) {
    return (static_cast<unsigned>(pattern(x) >> (at - 1) & ((2u << bits) - 1)) + 1) >> 1;
}

// E and the logarithms of the multipliers, added up.
inline HeadTail<float> sum_of_logs(float exponent, const StageRow<float>& first, const StageRow<float>& second,
                                   const StageRow<float>& third) {
    auto [head1, tail1] = fast_two_sum(exponent, first.log_head);
    auto [head2, tail2] = fast_two_sum(head1, second.log_head);
    auto [head3, tail3] = fast_two_sum(head2, third.log_head);
    return {head3, ((((tail1 + tail2) + tail3) + first.log_tail) + second.log_tail) + third.log_tail};
}
// In double precision the heads are so short that their sum is exact.
inline HeadTail<double> sum_of_logs(double exponent, const StageRow<double>& first, const StageRow<double>& second,
                                    const StageRow<double>& third) {
    return {((exponent + first.log_head) + second.log_head) + third.log_head,
            (second.log_tail + third.log_tail) + first.log_tail};
}

// n of a sum with the shifter, n + j/128 in its low bits.
inline int whole_part(float shifted) { return static_cast<int>(pattern(shifted) << 10) >> 17; }
inline int whole_part(double shifted) { return static_cast<int>(static_cast<uint32_t>(pattern(shifted))) >> 7; }

// ---- Finite operands, x not 0. -----------------------------------------------------------------------------

// 2^e mantissa * sign, below the normal range: rounded once in the ten binades under it, by an exact head and a tail
// that fits, and further down wherever the products round.
template <class Data, class Float>
Float subnormal_power(const Data& data, int e, int n, Float mantissa, Float tail, Float sign) {
    using F = Fields<Float>;
    constexpr int lift = Data::subnormal_scale;
    const Float tiny_square = square(F::smallest_normal);  // zero, and the flag
    if (e < Data::below_rounding) return tiny_square * sign;
    Float scale = sign * power_of_two<Float>(-lift);
    Float power = with_exponent_field<Float>(n + F::bias + lift);
    if (e < 1 - F::bias - 10) return scale * (mantissa * power) + tiny_square;
    auto [high, low] = split_by_product(mantissa, Float(data.split));
    return ((high * power) * scale + scale * ((tail + low) * power)) + tiny_square;
}

template <class Data, class Float = typename Data::Float>
Status finite_power(const Data& data, Float x, Exponent<Float> exponent, bool negative, Float* result) {
    using F = Fields<Float>;
    const Float sign = sign_factor<Float>(negative);
    const Float y = exponent.y;

    // x = 2^E m, E rounded up for the larger m
    x = magnitude_of(x);
    int offset = 0;
    if (is_zero_or_subnormal(x)) {
        x = x * power_of_two<Float>(Data::subnormal_scale);
        offset = -Data::subnormal_scale;
    }
    using Signed = std::make_signed_t<typename F::Pattern>;
    Signed above = static_cast<Signed>(pattern(x) - data.next_exponent.pattern);
    Float e = static_cast<Float>(static_cast<int>(above >> F::mantissa_bits) + offset);
    Float m = with_exponent_of_one(x);

    // v = m r1 r2 r3
    const auto& first = data.first[row_index(m, Data::first_at, Data::first_bits)];
    Float v = m * first.r;
    const auto& second = data.second[row_index(v, Data::second_at, Data::second_bits)];
    v = v * second.r;
    const auto& third = data.third[row_index(v, Data::third_at, Data::third_bits)];
    v = v * third.r;
    auto [logs, low] = sum_of_logs(e, first, second, third);
    Float multiplier = first.r * second.r * third.r;  // exact
    Float error =
        exact_product(split_by_product(multiplier, Float(data.split)), split_by_product(m, Float(data.split)), v).tail;

    Float z = v - data.log2_e;
    auto [sum, sum_tail] = fast_two_sum(logs, z);

    // Far out of range, or so close to 1 that nothing else can come out.
    int size = exponent_field(y) + exponent_field(sum) - 2 * F::bias;
    if (size >= 11) {
        bool small = is_negative(y) != is_negative(sum);
        *result = square(small ? F::smallest_normal : power_of_two<Float>(F::bias)) * sign;
        return RARE_OK;
    }
    if (size < -61) {
        *result = sign * (opaque(Float(1)) + opaque(F::smallest_normal));
        return RARE_OK;
    }

    // log2 x = log + log_tail
    Float w = z + error;
    low = low + (error + sum_tail);
    Float g = horner(w, data.log) * w;
    auto [with_g, g_tail] = fast_two_sum(sum, g);
    auto [log, low_tail] = fast_two_sum(with_g, low);
    Float log_tail = low_tail + g_tail;

    // y log2 x = product + tail
    auto [log_high, log_low] = split_by_product(log, Float(data.split));
    auto [y_high, y_low] = split_by_product(y, Float(data.split));
    y_low = y_low + exponent.residual;
    Float product = y_high * log_high;
    Float tail = log_tail * y + ((y_low * log_low + y_high * log_low) + log_high * y_low);

    // 2^(n + j/128 + rr)
    Float t = product + data.shifter;
    const auto& power = data.powers[pattern(t) & ((1u << Data::table_bits) - 1)];
    int n = whole_part(t);
    Float rr = tail + (product - (t - data.shifter));
    Float u = (horner(rr, data.exp2) * rr) * power.head + power.tail;
    Float mantissa = u + power.head;

    int result_exponent = exponent_field(mantissa) - F::bias + n;
    if (result_exponent > F::bias)
        *result = square(power_of_two<Float>(F::bias)) * sign;
    else if (result_exponent >= 1 - F::bias)
        *result =
            from_pattern((pattern(mantissa) & ~F::exponent) | pattern(power_of_two<Float>(result_exponent))) * sign;
    else
        *result = subnormal_power(data, result_exponent, n, mantissa, (power.head - mantissa) + u, sign);
    return RARE_OK;
}

// ---- Special operands. -------------------------------------------------------------------------------------

// y is 0 or x is 1: 1, by way of x + y, which raises the flag of a signalling NaN.
template <class Float>
Status one_result(Float x, Float y, Float* result) {
    Float one = or_sign_of(Float(1), add_in_order(x, y));
    *result = one * one;
    return RARE_OK;
}

// x or y is infinite, neither is NaN, and |x| is not 1.
template <class Float>
Status infinite_operand(Float x, Float y, bool negative, Float* result) {
    const Float sign = sign_factor<Float>(negative);
    if (unbiased_exponent(x) >= 0)
        *result = is_negative(y) ? Float(0) * sign : (y * (x * x)) * sign;
    else
        *result = is_negative(y) ? y * y : Float(0);
    return RARE_OK;
}

// pow, and pown with the parity of its integer.
template <class Data, class Float = typename Data::Float>
Status power(const Data& data, Float x, Exponent<Float> exponent, Float* result) {
    const Float y = exponent.y;
    const bool negative = exponent.parity == Parity::odd && is_negative(x);
    if (x == 1 || y == 0) return one_result(x, y, result);
    if (x != x || y != y) {
        *result = add_in_order(x, y);
        return RARE_OK;
    }
    if (x == 0) {
        Float zero = opaque(x) * opaque(x);
        if (is_negative(y)) {
            *result = sign_factor<Float>(negative) / zero;
            return RARE_DOMAIN;  // a pole, but told so in all powers
        }
        *result = sign_factor<Float>(negative) * zero;
        return RARE_OK;
    }
    if (x == -1 && (exponent.parity != Parity::not_integer || is_infinite_or_nan(y))) {
        *result = sign_factor<Float>(negative);
        return RARE_OK;
    }
    if (is_infinite_or_nan(x) || is_infinite_or_nan(y)) return infinite_operand(x, y, negative, result);
    if (x < 0 && exponent.parity == Parity::not_integer) return domain_result(result);
    return finite_power(data, x, exponent, negative, result);
}

// e^(y ln x) as it stands: no sign, and no value where that product is 0 * infinity.
template <class Data, class Float = typename Data::Float>
Status power_of_positive(const Data& data, Float x, Float y, Float* result) {
    const bool x_is_infinity = pattern(x) == Fields<Float>::infinity;
    if (x != x || (x_is_infinity && y == 0)) {
        *result = zero_by_zero<Float>();
        return RARE_OK;
    }
    if (x == 0 && y == y) {
        *result = y == 0 ? zero_by_zero<Float>() : y < 0 ? opaque(Float(1)) / opaque(Float(0)) : Float(0);
        return RARE_OK;
    }
    if (x == 1) {
        *result = is_infinite_or_nan(y) ? zero_by_zero<Float>() : Float(1);
        return RARE_OK;
    }
    if (is_negative(x)) return domain_result(result);
    if (y == 0) return one_result(x, y, result);
    if (y != y) {
        *result = add_in_order(x, y);
        return RARE_OK;
    }
    if (x_is_infinity || is_infinite_or_nan(y)) return infinite_operand(x, y, false, result);
    return finite_power(data, x, Exponent<Float>{y, 0, Parity::even}, false, result);
}

}  // namespace
}  // namespace zorv
