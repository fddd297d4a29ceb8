// atan x and atan2(y, x), in radians and in half turns.
//
// All of them see the point (x, y), the arc tangent of one operand with x = 1, and fold it into the first octant:
//
//   |y| <= |x|    atan |y/x| =        atan r,   r = |y|/|x|
//   |y| > |x|     atan |y/x| = pi/2 + atan r,   r = -|x|/|y|
//
// with r in [-1, 1], one odd polynomial and no table; then the signs of x and y choose the quadrant. What tells the
// families apart is how r comes about and which polynomial follows:
//
//                   atan, atan2                    atanpi, atan2pi
//   accurate        the hardware's divide          estimate of 1/x and a Newton step; in double to the fifth power
//   native          estimate of 1/x and a Newton step; in double to the third power
//
// Errors in ulp, most of them where both magnitudes are nearly equal; random operands. With two numbers the first is
// for an estimate as bad as it may be, 1.5 * 2^-12 off either way, the second for this processor's.
//
//             accurate                       native
//             float        double            float        double
//   atan      3.52         4.69              3773  3772   2.21e7  2.18e7
//   atan2     3.64         4.60              3776  3775   2.21e7  2.17e7
//   atanpi    4.48  3.51   3.33              3774  3773   2.21e7  2.18e7
//   atan2pi   6.58  5.43   4.07  3.97        3776  3774   2.21e7  2.18e7
//
// In rare lanes half an ulp, but for atan2 0.73 beside a subnormal x, atanpi 0.86 and atan2pi 1.64.
//
// Accurate atan is complete. The other accurate families hold their bounds where exponents are neither huge nor tiny;
// zeros, infinities, NaN and the ends of the range are rare. The native class does not look: infinities, NaN and two
// zeros give NaN; x = +0 is taken as negative, and a point on the positive y axis gets 3/4 of a turn.
#include "frame/lane_frame.h"
#include "kernels/inverse_trig/atan2_rare.h"
#include "kernels/inverse_trig/atan_data.h"

namespace zorv {
namespace {

// ---- The ratio of two magnitudes. --------------------------------------------------------------------------

template <class Unit>
inline Unit ratio(Unit y, Unit x, const TrueDivision&) {
    return y / x;
}

inline F4 ratio(F4 y, F4 x, const NewtonDivision& data) {
    F4 r = reciprocal_estimate(x);
    r = (data.two - x * r) * r;
    return multiply_in_order(y, r);
}

// rcpps sees the 20 high bits of the significand as a float in [1, 2); the exponent is subtracted beside it. A number
// from 2^1022 on has its reciprocal below the normal range, and an exponent that wraps.
inline D2 reciprocal_seed(D2 x, const SeedData& data) {
    I4 high = halves(x);
    F4 significand = as_float(((high << 3) & data.mantissa) | data.one);
    U4 estimate = unsigned_lanes(bits(reciprocal_estimate(significand))) >> 3;
    I4 exponent = data.exponents - (high & data.exponent_field);
    return and_bits(as_double(from_halves(signed_lanes(estimate) + exponent)), data.high_half);
}

// t = x R - 1;  1/x ~ R (1 - t + t^2)
inline D2 ratio(D2 y, D2 x, const CubicDivision& data) {
    D2 seed = reciprocal_seed(x, data.seed);
    D2 t = x * seed - data.one;
    D2 r = seed + ((t - data.one) * t) * seed;
    return multiply_in_order(y, r);
}

// e = x R - 1, nearly exact;  1/x ~ R (1 - e + e^2 - e^3 + e^4)
inline D2 ratio(D2 y, D2 x, const QuinticDivision& data) {
    D2 seed = reciprocal_seed(x, data.seed);
    auto [head, tail] = split_by_mask(x, data.high_half);
    D2 e = (head * seed - data.one) + tail * seed;
    D2 c = (e - data.one) * e + data.one;
    c = (c * e - data.one) * e;
    return multiply_in_order(y, seed + c * seed);
}

// ---- atan r / r. -------------------------------------------------------------------------------------------

template <class Unit, class Lane, int even_terms, int odd_terms>
inline Unit atan_slope(Unit r, const EvenOdd<Lane, even_terms, odd_terms>& p) {
    Unit w = r * r;
    Unit w2 = w * w;
    return horner(w2, p.odd) * w + horner(w2, p.even);
}
inline D2 atan_slope(D2 r, const FourChains& p) {
    D2 w = r * r;
    D2 w2 = w * w;
    D2 w4 = w2 * w2;
    D2 low = horner(w4, p.d) + horner(w4, p.c) * w;
    return low + ((horner(w4, p.a) * w2) * w + horner(w4, p.b) * w2);
}
template <class Unit, class Lane, int terms>
inline Unit atan_slope(Unit r, const OneChain<Lane, terms>& p) {
    return horner(r * r, p.c);
}

// ---- The angle. --------------------------------------------------------------------------------------------

// Of the magnitudes y and x, in the first quadrant. Where both are equal, either fold serves; the families differ in
// which one they take, and so in the last bit.
template <class Unit, class Data>
inline Unit quadrant_angle(Unit y, Unit x, MaskOf<Unit> fold, const Data& data) {
    // A NaN in y becomes the denominator, one in x the numerator; the sign of a fold is the numerator's, so that a NaN
    // in the denominator keeps its own.
    Unit r = ratio(or_bits(hardware_min(y, x), fold & data.sign), hardware_max(x, y), data.division);
    return atan_slope(r, data.polynomial) * r + and_bits(data.quarter_turn, fold);
}

template <class Unit, class Data>
inline Unit atan_of(Unit x, const Data& data) {
    Unit a = clear_bits(x, data.sign);
    Unit v = quadrant_angle(a, Unit(data.one), ~(a <= data.one), data);
    return or_bits(v, bits(x) & data.sign);
}

// From the magnitudes' angle, which is not negative, to that of the operands.
template <class Unit, class Data>
inline Unit in_quadrant(Unit v, Unit y, Unit x, const Data& data) {
    v = or_bits(v, bits(x) & data.sign);
    v = v + and_bits(data.half_turn, x <= Unit{});
    return or_bits(v, bits(y) & data.sign);
}

template <class Unit, class Data>
inline Unit atan2_of(Unit y, Unit x, const Data& data) {
    Unit ay = clear_bits(y, data.sign), ax = clear_bits(x, data.sign);
    return in_quadrant(quadrant_angle(ay, ax, ~(ay <= ax), data), y, x, data);
}

// ---- Rare lanes. -------------------------------------------------------------------------------------------

inline I4 out_of_range(F4 magnitude, const WorkingRange& range) { return bits(magnitude) - range.first > range.last; }
inline L2 out_of_range(D2 magnitude, const WorkingRange& range) {
    return from_halves(halves(magnitude) - range.first > range.last);
}

template <class Unit, class Data>
inline MaskOf<Unit> either_out_of_range(Unit y, Unit x, const Data& data) {
    return out_of_range(clear_bits(y, data.sign), data.range) | out_of_range(clear_bits(x, data.sign), data.range);
}

template <class Lane>
Lane over_pi(double t);
template <>
inline float over_pi(double t) {
    return static_cast<float>(t * arctangent_rare_data.inverse_pi);
}
template <>
inline double over_pi(double t) {
    return t * arctangent_rare_data.inverse_pi + t * arctangent_rare_data.inverse_pi_tail;
}

// |x| too small for anything but x/pi, or so large that only 1/2 is left.
template <class Lane>
Status atanpi_rare(const Lane* operand, Lane* result) {
    Lane x = *operand;
    if (x != x) {
        *result = x + x;
        return RARE_OK;
    }
    Lane a = magnitude_of(x);
    if (a >= 0x1p54) {
        *result = or_sign_of(Lane(0.5), x);
        return RARE_OK;
    }
    // A square raises underflow.
    double t = is_zero_or_subnormal(a) ? double{a * a} + a : (1.0 + double{a}) * a;
    *result = or_sign_of(over_pi<Lane>(t), x);
    return RARE_OK;
}

// ---- The families. -----------------------------------------------------------------------------------------

template <class Unit, const auto& record>
struct Atan {
    static Unit main(Unit x) { return atan_of(x, in_memory(record)); }
};
template <class Unit, const auto& record>
struct Atan2 {
    static Unit main(Unit y, Unit x) { return atan2_of(y, x, in_memory(record)); }
};

using atanf = Atan<F4, atanf_data>;
using atan = Atan<D2, atan_data>;
using atanf_native = Atan<F4, atanf_native_data>;
using atan_native = Atan<D2, atan_native_data>;
using atan2f_native = Atan2<F4, atan2f_native_data>;
using atan2_native = Atan2<D2, atan2_native_data>;
using atanpif_native = Atan<F4, atanpif_native_data>;
using atanpi_native = Atan<D2, atanpi_native_data>;
using atan2pif_native = Atan2<F4, atan2pif_native_data>;
using atan2pi_native = Atan2<D2, atan2pi_native_data>;

struct atan2f {
    static Lanes<F4> main(F4 y, F4 x) {
        const auto& data = in_memory(atan2f_data);
        return {atan2_of(y, x, data), either_out_of_range(y, x, data)};
    }
    static Status rare(const float* y, const float* x, float* result) {
        *result = static_cast<float>(angle_of<float, Radians>(double{*y}, double{*x}));
        return RARE_OK;
    }
};

// On equal magnitudes this one folds.
struct atan2 {
    static Lanes<D2> main(D2 y, D2 x) {
        const auto& data = in_memory(atan2_data);
        D2 ay = clear_bits(y, data.sign), ax = clear_bits(x, data.sign);
        D2 v = quadrant_angle(ay, ax, ~(ay < ax), data);
        return {in_quadrant(v, y, x, data), either_out_of_range(y, x, data)};
    }
    static Status rare(const double* y, const double* x, double* result) {
        *result = angle_of<double, Radians>(*y, *x);
        return RARE_OK;
    }
};

template <class Unit, const auto& record>
struct Atanpi {
    static Lanes<Unit> main(Unit x) {
        const auto& data = in_memory(record);
        return {atan_of(x, data), out_of_range(clear_bits(x, data.sign), data.range)};
    }
    static constexpr auto rare = atanpi_rare<typename Layout<Unit>::Lane>;
};
using atanpif = Atanpi<F4, atanpif_data>;
using atanpi = Atanpi<D2, atanpi_data>;

struct atan2pif {
    static Lanes<F4> main(F4 y, F4 x) {
        const auto& data = in_memory(atan2pif_data);
        return {atan2_of(y, x, data), either_out_of_range(y, x, data)};
    }
    static Status rare(const float* y, const float* x, float* result) {
        *result =
            static_cast<float>(angle_of<float, Radians>(double{*y}, double{*x}) * arctangent_rare_data.inverse_pi);
        return RARE_OK;
    }
};

struct atan2pi {
    static Lanes<D2> main(D2 y, D2 x) {
        const auto& data = in_memory(atan2pi_data);
        return {atan2_of(y, x, data), either_out_of_range(y, x, data)};
    }
    static Status rare(const double* y, const double* x, double* result) {
        *result = angle_of<double, HalfTurns>(*y, *x);
        return RARE_OK;
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
