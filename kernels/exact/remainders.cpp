// fmod, remainder and remquo: x - n y, exact.
//
// While x/y is small, n comes from the rounded quotient, short enough that its products with the two halves of y are
// exact, and so are the differences:
//
//   x - n y = (x - n y_head) - n y_tail
//
//   fmod                  n is x/y truncated; where x/y rounded up to the next integer, one y too many is given back
//   remainder, remquo     n is x/y to nearest, ties to even; a rest beyond half of y goes one further
//
// Rare: quotients too long for that, and divisors that are zero, subnormal, infinite, NaN or at the ends of the range:
// long division (long_division.h). An infinite or NaN x beside an ordinary y comes out of the arithmetic as a NaN.
#include "frame/lane_frame.h"
#include "frame/scalar.h"
#include "kernels/exact/long_division.h"
#include "kernels/exact/remainders_data.h"

namespace zorv {
namespace {

// ---- Rare lanes. -------------------------------------------------------------------------------------------

template <class Float>
Float negated_with(Float value, Float sign) {
    return is_negative(sign) ? -value : value;
}
// A NaN times a number without a meaning, which quiets it; in double for both precisions.
template <class Float>
Float quieted_nan(Float x) {
    return static_cast<Float>(opaque(static_cast<double>(x)) * 1.7);
}

template <class Float>
Status fmod_rare(const Float* dividend, const Float* divisor, Float* result) {
    using F = Fields<Float>;
    Float x = *dividend, y = *divisor;
    Float ax = magnitude_of(x), ay = magnitude_of(y);
    Float signed_zero = x * opaque(Float(0));
    if (ay == Float(1) && !is_infinite_or_nan(x)) {
        // The fraction of x: its bits below the point. A negative integer leaves +0.
        int e = unbiased_exponent(x);
        if (e < 0)
            *result = x;
        else if (ax == Float(1) || e >= F::mantissa_bits)
            *result = signed_zero;
        else
            *result = x - from_pattern(pattern(x) & ~(F::mantissa >> e));
        return RARE_OK;
    }
    if (x != x || y != y) {
        *result = multiply_in_order(y, x);
        return RARE_OK;
    }
    if (ay == Float(0) || is_infinite_or_nan(x)) {
        *result = zero_by_zero<Float>();
        return ay == Float(0) || sizeof(Float) == 4 ? RARE_POLE : RARE_OK;
    }
    if (ax < ay) {
        *result = x;
        return RARE_OK;
    }
    Float rest = long_division(ax, ay).remainder;
    *result = rest == Float(0) ? signed_zero : negated_with(rest, x);
    return RARE_OK;
}

template <class Float>
struct NearestDivision {
    Float remainder;
    int32_t quotient;
    Status status;
};

// remainder and remquo. The quotient is right in its low 31 bits, and has its sign.
template <class Float>
NearestDivision<Float> divide_to_nearest(Float x, Float y) {
    Float ax = magnitude_of(x), ay = magnitude_of(y);
    if (x != x) return {quieted_nan(x), 0, RARE_OK};
    if (y != y) return {quieted_nan(y), 0, RARE_OK};
    if (ay == Float(0)) return {zero_by_zero<Float>(), 0, sizeof(Float) == 4 ? RARE_DOMAIN : RARE_OK};
    if (is_infinite_or_nan(x)) return {zero_by_zero<Float>(), 0, RARE_OK};
    if (ax == Float(0) || is_infinite_or_nan(y)) return {x, 0, RARE_OK};

    int32_t sign = is_negative(x) == is_negative(y) ? 1 : -1;
    if (ax == ay) return {x * opaque(Float(0)), sign, RARE_OK};
    if (ax < ay) {
        // In the top binade 2|x| does not exist; there y is below it.
        bool top_binade = exponent_field(x) == 2 * Fields<Float>::bias;
        if (!top_binade && ay >= ax + ax) return {x, 0, RARE_OK};
        return {negated_with(ax - ay, x), sign, RARE_OK};
    }
    auto [rest, quotient] = long_division(ax, ay);
    if (rest == Float(0)) {
        rest = x * opaque(Float(0));
    } else {
        if (rest + rest > ay) {
            rest = rest - ay;
            ++quotient;
        } else if (rest + rest == ay && quotient % 2 != 0) {
            rest = -rest;
            ++quotient;
        }
        rest = negated_with(rest, x);
    }
    return {rest, sign * static_cast<int32_t>(quotient & INT32_MAX), RARE_OK};
}

template <class Float>
Status remainder_rare(const Float* x, const Float* y, Float* result) {
    auto division = divide_to_nearest(*x, *y);
    *result = division.remainder;
    return division.status;
}
template <class Float>
Status remquo_rare(const Float* x, const Float* y, Float* result, int32_t* quotient) {
    auto division = divide_to_nearest(*x, *y);
    *result = division.remainder;
    *quotient = division.quotient;
    return division.status;
}

// ---- Main paths. -------------------------------------------------------------------------------------------

// Told on floats, or on the high halves of doubles.
inline I4 out_of_range(I4 x, I4 y, const QuotientRangeData& data) {
    I4 difference = (x & data.exponent) - (y & data.exponent);
    return (difference > data.largest_difference) | ((y & data.magnitude) - data.divisor_base > data.last_rare);
}
inline I4 rare_lanes(F4 x, F4 y, const QuotientRangeData& data) { return out_of_range(bits(x), bits(y), data); }
inline L2 rare_lanes(D2 x, D2 y, const QuotientRangeData& data) {
    return from_halves(out_of_range(halves(x), halves(y), data));
}

template <class Unit, class Data>
Unit fmod_main(Unit x, Unit y, const Data& data) {
    Unit q = x / y;
    Unit ax = and_bits(x, data.magnitude), ay = and_bits(y, data.magnitude);
    auto sign = bits(x) & data.sign;
    Unit yh = and_bits(y, data.head);
    Unit yl = xor_bits(y - yh, sign);  // both turn so that their products with n are positive
    yh = xor_bits(yh, sign);
    Unit aq = and_bits(q, data.magnitude);
    Unit r = (aq + data.shifter) - data.shifter;
    r = r - and_bits(Unit(data.one), aq < r);
    Unit n = or_bits(r, bits(q) & data.sign);
    Unit t = (ax - yh * n) - n * yl;
    t = t + and_bits(ay, t < Unit{});
    return or_bits(t, sign);
}

// x/y to nearest, the rest before and after the step beyond half of y, and where that was taken.
template <class Unit, class Mask>
struct Nearest {
    Unit n, before, rest;
    Mask stepped;
};
template <class Unit, class Data>
auto nearest_main(Unit x, Unit y, const Data& data) {
    Unit q = x / y;
    Unit n = (q + data.shifter) - data.shifter;
    Unit yh = and_bits(y, data.head);
    Unit yl = y - yh;
    Unit before = (x - yh * n) - n * yl;
    Unit ay = and_bits(y, data.magnitude);
    auto stepped = data.half * ay < and_bits(before, data.magnitude);
    Unit t = before - or_bits(and_bits(ay, stepped), bits(before) & data.sign);
    t = or_bits(t, (t == Unit{}) & bits(x) & data.sign);  // a zero has the sign of x
    return Nearest<Unit, decltype(stepped)>{n, before, t, stepped};
}

// The step of the quotient: 1 where the rest went beyond half of y with y's sign, -1 with the other.
inline I4 quotient_step(I4 before, I4 y, I4 stepped) { return (((y ^ before) >> 31) | 1) & stepped; }

struct fmodf {
    static Lanes<F4> main(F4 x, F4 y) {
        const auto& data = in_memory(fmodf_data);
        return {fmod_main(x, y, data), rare_lanes(x, y, data.range)};
    }
    static constexpr auto rare = fmod_rare<float>;
};
struct fmod {
    static Lanes<D2> main(D2 x, D2 y) {
        const auto& data = in_memory(fmod_data);
        return {fmod_main(x, y, data), rare_lanes(x, y, data.range)};
    }
    static constexpr auto rare = fmod_rare<double>;
};

struct remainderf {
    static Lanes<F4> main(F4 x, F4 y) {
        const auto& data = in_memory(remainderf_data);
        return {nearest_main(x, y, data).rest, rare_lanes(x, y, data.range)};
    }
    static constexpr auto rare = remainder_rare<float>;
};
struct remainder {
    static Lanes<D2> main(D2 x, D2 y) {
        const auto& data = in_memory(remainder_data);
        return {nearest_main(x, y, data).rest, rare_lanes(x, y, data.range)};
    }
    static constexpr auto rare = remainder_rare<double>;
};

struct remquof {
    static Lanes<F4, I4> main(F4 x, F4 y) {
        const auto& data = in_memory(remquof_data);
        auto division = nearest_main(x, y, data);
        I4 n = unit_cast<I4>(_mm_cvtps_epi32(division.n));
        I4 quotient = n + quotient_step(bits(division.before), bits(y), division.stepped);
        return {division.rest, quotient, rare_lanes(x, y, data.range)};
    }
    static constexpr auto rare = remquo_rare<float>;
};
struct remquo {
    static Lanes<D4, I4> main(D4 x, D4 y) {
        const auto& data = in_memory(remquo_data);
        auto low = nearest_main(x.low, y.low, data), high = nearest_main(x.high, y.high, data);
        I4 n = unit_cast<I4>(_mm_unpacklo_epi64(_mm_cvtpd_epi32(low.n), _mm_cvtpd_epi32(high.n)));
        I4 step = quotient_step(high_halves(bits(low.before), bits(high.before)),
                                high_halves(bits(y.low), bits(y.high)), high_halves(low.stepped, high.stepped));
        I4 rare = high_halves(rare_lanes(x.low, y.low, data.range), rare_lanes(x.high, y.high, data.range));
        return {{low.rest, high.rest}, n + step, rare};
    }
    static constexpr auto rare = remquo_rare<double>;
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
