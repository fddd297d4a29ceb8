// asin x and acos x, in radians and in half turns.
//
// One polynomial serves all of [-1, 1]. Below 1/2 it is taken of x itself, from there on of the half angle:
//
//   asin a = pi/2 - 2 asin sqrt(h),   acos a = 2 asin sqrt(h),   h = (1 - a)/2
//
// so that its argument m, the square of a or of sqrt(h), is at most 1/4. Both squares are at hand, and the smaller one
// is m: no compare, but a minimum. The root 2 sqrt(h) comes from the hardware's estimate and a polynomial in what the
// estimate misses: neither a divide nor a square root.
//
// What belongs to the families alone is how the pieces are put together:
//
//   asin                        (Q y + y) + pi/2, the sign joins last
//   acos                        y carries the sign; offset + (Q y + y), offset 0, pi/2 or pi
//   asinpi                      Q y + (y/pi + 1/2), the sign last: the leading term does not meet the rounding of Q
//   acospi, both native         P y + offset, P = Q + 1/pi
//
// Rare: magnitudes of 1 and above, where h is 0 or negative and the estimate useless. A NaN comes through by itself.
// The native class does not look, and has NaN there, at 1 too.
//
// Errors in ulp, where the estimate is as bad as it may be, 1.5 * 2^-12 off either way, and where it is this
// processor's; random operands:
//
//             accurate                       native
//             float        double            float       double
//   asin      3.55  2.94   3.19  2.97        539  535    5.85e6  4.74e6    just above 1/2
//   acos      2.42  2.30   2.45  2.09        530  532    5.66e6  4.83e6    between 1/2 and 1
//   asinpi    4.57  3.76   4.49  3.93        686  681    7.45e6  6.04e6    just above 1/2
//   acospi    3.29  3.02   3.15  3.13        530  532    5.59e6  4.53e6    between 1/2 and 1
#include "frame/lane_frame.h"
#include "frame/scalar.h"
#include "kernels/inverse_trig/asin_acos_data.h"

namespace zorv {
namespace {

// ---- The polynomial. ---------------------------------------------------------------------------------------

// Q(m): asin y = y + y Q(y^2), in half turns y/pi + y Q(y^2).
inline F4 series(F4 m, const FloatSeries& q) { return (paired(m, m * m, q.pairs) * m + q.last) * m; }
// The fit has a small constant term.
inline F4 series(F4 m, const NativeFloatSeries& q) { return horner(m, q.c); }
inline D2 series(D2 m, const DoubleSeries& q) {
    D2 m2 = m * m;
    auto pair = [&](int i) { return m * q.c.c[i] + q.c.c[i + 1]; };
    D2 p = (pair(0) * m2 + pair(2)) * (m2 * m2) + (pair(4) * m2 + pair(6));
    p = p * m2 + pair(8);
    p = p * m2 + pair(10);
    return p * m;
}
inline D2 series(D2 m, const NativeDoubleSeries& q) { return paired(m, m * m, q.c) * m; }

// P(m): asin y = y P(y^2), in half turns.
template <class Unit, class Lane, class Series>
inline Unit whole_series(Unit m, const ScaledSeries<Lane, Series>& p) {
    return series(m, p.beyond) + p.inverse_pi;
}
inline F4 whole_series(F4 m, const NativeFloatSeries& p) { return series(m, p); }

// ---- Its argument. -----------------------------------------------------------------------------------------

// 2 sqrt(h) as the difference of an approximation and its correction:
//   r ~ 1/sqrt(h),  2 h r = 2 sqrt(h) sqrt(1 + e/2),  e = 2 h r^2 - 2
template <class Unit>
struct TwiceRoot {
    Unit approximate, excess;
};
template <class Unit, class Data>
inline TwiceRoot<Unit> twice_root(Unit h, const Data& data) {
    Unit r = rsqrt_estimate(h);
    Unit t = h + h;
    // In order: the estimate cuts the payload of a NaN.
    Unit root = multiply_in_order(t, r);
    Unit e = multiply_in_order(t, r * r) - data.two;
    return {root, horner(e, data.root) * (root * e)};
}

template <class Unit, class Mask>
struct Argument {
    Unit y, m;
    Mask large;  // where the half angle stands for the angle
};
template <class Unit>
using ArgumentOf = Argument<Unit, MaskOf<Unit>>;

// y = |x| or -2 sqrt(h)
template <class Unit, class Data>
inline ArgumentOf<Unit> asin_argument(Unit x, const Data& data) {
    Unit a = clear_bits(x, data.sign);
    Unit h = data.half - data.half * a;
    Unit m = hardware_min(a * a, h);
    auto large = ~(a < data.half);
    auto [approximate, excess] = twice_root(h, data);
    return {select(large, excess - approximate, a), m, large};
}

// y = -x or +-2 sqrt(h) with the sign of x
template <class Unit, class Data>
inline ArgumentOf<Unit> acos_argument(Unit x, const Data& data) {
    Unit n = or_bits(x, data.sign);
    Unit h = data.half * n + data.half;
    Unit m = hardware_min(n * n, h);
    auto large = ~(m < h);
    auto [approximate, excess] = twice_root(h, data);
    Unit y = select(large, approximate - excess, n);
    return {xor_bits(y, bits(x) & data.sign), m, large};
}

// pi/2 below 1/2, then 0 or, for a negative x, pi. Where the half angle stands, m is at most 1/4 and |x| at least 1/2:
// the compare is one of signs.
template <class Unit, class Data>
inline Unit acos_offset(Unit x, const ArgumentOf<Unit>& argument, const Data& data) {
    return select(argument.large, and_bits(data.half_turn, x < argument.m), data.quarter_turn);
}

// ---- The operations: of(x) on the domain's inside, and the values at its ends. -------------------------------

inline constexpr double pi = 0x1.921fb54442d18p1;

struct Asin {
    template <class Unit, class Data>
    static Unit of(Unit x, const Data& data) {
        auto [y, m, large] = asin_argument(x, data);
        Unit v = series(m, data.series) * y + y;
        v = v + and_bits(data.quarter_turn, large);
        return xor_bits(v, bits(x) & data.sign);
    }
    static constexpr double at_one = pi / 2, at_minus_one = -pi / 2;
};

struct Acos {
    template <class Unit, class Data>
    static Unit of(Unit x, const Data& data) {
        auto argument = acos_argument(x, data);
        auto [y, m, large] = argument;
        // In order, as the signs of a NaN may differ.
        Unit angle = add_in_order(multiply_in_order(series(m, data.series), y), y);
        return acos_offset(x, argument, data) + angle;
    }
    static constexpr double at_one = 0, at_minus_one = pi;
};

struct Asinpi {
    template <class Unit, class Data>
    static Unit of(Unit x, const Data& data) {
        auto [y, m, large] = asin_argument(x, data);
        Unit v = y * data.series.inverse_pi + and_bits(data.quarter_turn, large);
        v = series(m, data.series.beyond) * y + v;
        return xor_bits(v, bits(x) & data.sign);
    }
    static constexpr double at_one = 0.5, at_minus_one = -0.5;
};

struct AsinpiNative {
    template <class Unit, class Data>
    static Unit of(Unit x, const Data& data) {
        auto [y, m, large] = asin_argument(x, data);
        Unit v = whole_series(m, data.series) * y + and_bits(data.quarter_turn, large);
        return xor_bits(v, bits(x) & data.sign);
    }
};

struct Acospi {
    template <class Unit, class Data>
    static Unit of(Unit x, const Data& data) {
        auto argument = acos_argument(x, data);
        // In order, as the signs of a NaN may differ.
        return multiply_in_order(whole_series(argument.m, data.series), argument.y) + acos_offset(x, argument, data);
    }
    static constexpr double at_one = 0, at_minus_one = 1;
};

// ---- The families. -----------------------------------------------------------------------------------------

template <class Unit, class Operation, const auto& record>
struct Accurate {
    using Lane = typename Layout<Unit>::Lane;

    static Lanes<Unit> main(Unit x) {
        const auto& data = in_memory(record);
        auto at_least_one = data.one <= clear_bits(x, data.sign);
        return {Operation::of(x, data), at_least_one};
    }

    static Status rare(const Lane* operand, Lane* result) {
        Lane x = *operand;
        if (is_infinite_or_nan(x)) {
            *result = x / x;
            return x == x ? RARE_DOMAIN : RARE_OK;
        }
        if (magnitude_of(x) > 1) {
            *result = (x - x) / (x - x);
            return RARE_DOMAIN;
        }
        *result = static_cast<Lane>(x > 0 ? Operation::at_one : Operation::at_minus_one);
        return RARE_OK;
    }
};

template <class Unit, class Operation, const auto& record>
struct Native {
    static Unit main(Unit x) { return Operation::of(x, in_memory(record)); }
};

using asinf = Accurate<F4, Asin, asinf_data>;
using asin = Accurate<D2, Asin, asin_data>;
using asinf_native = Native<F4, Asin, asinf_native_data>;
using asin_native = Native<D2, Asin, asin_native_data>;

using acosf = Accurate<F4, Acos, acosf_data>;
using acos = Accurate<D2, Acos, acos_data>;
using acosf_native = Native<F4, Acos, acosf_native_data>;
using acos_native = Native<D2, Acos, acos_native_data>;

using asinpif = Accurate<F4, Asinpi, asinpif_data>;
using asinpi = Accurate<D2, Asinpi, asinpi_data>;
using asinpif_native = Native<F4, AsinpiNative, asinpif_native_data>;
using asinpi_native = Native<D2, AsinpiNative, asinpi_native_data>;

using acospif = Accurate<F4, Acospi, acospif_data>;
using acospi = Accurate<D2, Acospi, acospi_data>;
using acospif_native = Native<F4, Acospi, acospif_native_data>;
using acospi_native = Native<D2, Acospi, acospi_native_data>;

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
