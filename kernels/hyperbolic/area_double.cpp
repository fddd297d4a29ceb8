// asinh x, acosh x and atanh x in double precision: logarithms of a sum with 1, kept as head and tail.
//
//   asinh a = ln(1 + (a + sqrt(1 + a^2) - 1))
//   acosh x = ln(1 + ((x - 1) + sqrt((x - 1)(x + 1))))
//   atanh a = ln(1 + 2a/(1 - a)) / 2
//
// Roots and quotients come from the hardware's float estimates, cut to twelve bits so that products with them are
// exact, and corrected by a short series; no main path divides. From 2^30 on asinh and acosh are ln(2x).
//
// Rare: infinities and NaN, and what is not inside the domain. The native class returns what the arithmetic makes of
// them.
//
// Errors are told as measured on one processor, operands tried at random, and for the worst estimates of relative error
// 1.5 * 2^-12, simulated: a reciprocal that is not the nearest integer makes the logarithm's terms cancel near 1, and
// the shorter series of the acosh families leave more of a coarser root.
#include "frame/lane_frame.h"
#include "kernels/hyperbolic/area_log.h"
#include "kernels/hyperbolic/area_rare.h"

namespace zorv {
namespace {

// sqrt(head + tail), before and after the correction: A + B with A = head y and B = tail y, y the estimate of
// 1/sqrt(head), misses the root by the factor 1/sqrt(1 - e).
struct RootEstimate {
    D2 a, b, correction;
};
template <int terms>
inline RootEstimate estimated_root(HeadTail<D2> x, D2 one, L2 root_head, const RootSeries<double, terms>& series) {
    D2 y = and_bits(rsqrt_estimate(x.head), root_head);
    D2 a = x.head * y, b = x.tail * y;
    D2 e = (one - a * y) - b * y;
    return {a, b, horner(e, series) * e};
}

// ---- asinh. ------------------------------------------------------------------------------------------------

template <class Data>
D2 asinh_of(D2 x, D2 a, const Data& data) {
    // x^2 = square + rest, 1 + x^2 = sum + gap
    auto [xh, xl] = split_by_mask(x, data.x_head);
    D2 square = xh * xh, rest = (x + xh) * xl;
    D2 sum = square + data.log.one;
    D2 gap = ((data.log.one - sum) + square) + rest;
    auto [sh, sl] = split_by_mask(sum, data.root_operand_head);
    auto [ra, rb, r] = estimated_root({sh, sl + gap}, data.log.one, data.root_head, data.root);

    // sqrt(1 + x^2) - 1, in small lanes by its series in x^2/2: h - h^2/2 + h^3/2
    D2 w = (rb + r * (ra + rb)) + (ra - data.log.one);
    D2 h = data.half * (square + rest);
    D2 small_w = h + (h * h * h - h * h) * data.half;
    w = select(a <= data.small, small_w, w);

    auto [argument, k] = unless_huge(a, plus_one(add_in_order(a, w), data.log.one, data.sum), data.huge);
    return xor_bits(area_log(argument, k, data.log), bits(x) & data.sign);
}

// Error 2.6 ulp; 6.7 with the worst estimates.
struct asinh {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(asinh_data);
        D2 a = and_bits(x, data.magnitude);
        return {asinh_of(x, a, data), ~(a <= data.largest)};
    }
    static constexpr auto rare = asinh_rare_lane<double>;
};

// Error 2.7e5 ulp; 4.93e6 with the worst estimates.
struct asinh_native {
    static D2 main(D2 x) {
        const auto& data = in_memory(asinh_native_data);
        return asinh_of(x, and_bits(x, data.magnitude), data);
    }
};

// ---- acosh. ------------------------------------------------------------------------------------------------

template <class Data>
D2 acosh_of(D2 x, const Data& data) {
    D2 d = x - data.log.one;
    D2 p = d * (x + data.log.one);
    auto [a, b, r] = estimated_root(split_by_mask(p, data.root_operand_head), data.log.one, data.root_head, data.root);
    D2 v = a + b;
    D2 root = v + v * r;
    auto [argument, k] = unless_huge(x, plus_one(add_in_order(d, root), data.log.one, data.sum), data.huge);
    return area_log(argument, k, data.log);
}

// Error 3.9 ulp; 33.5 with the worst estimates.
struct acosh {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(acosh_data);
        return {acosh_of(x, data), ~(data.log.one < x) | ~(x <= data.largest)};
    }
    static constexpr auto rare = acosh_rare_lane<double>;
};

// Error 2.4e6 ulp; 1.38e7 with the worst estimates.
struct acosh_native {
    static D2 main(D2 x) { return acosh_of(x, in_memory(acosh_native_data)); }
};

// ---- atanh. ------------------------------------------------------------------------------------------------

template <class Data>
D2 atanh_of(D2 x, D2 a, const Data& data) {
    // 1 - a and 2a as heads of 41 bits and tails
    D2 d = data.log.one - a;
    auto [dh, dl] = split_by_mask(d, data.head);
    dl = dl + ((data.log.one - d) - a);
    auto [nh, nl] = split_by_mask(a + a, data.head);

    // y ~ 1/(1 - a), y (1 - a) = 1 - e;  2a/(1 - a) = t + tl, with 1/(1 - e) - 1 = (e + e^3)(e + e^2) + e
    D2 y = and_bits(reciprocal_estimate(dh), data.reciprocal_head);
    D2 e = (data.log.one - multiply_in_order(y, dh)) - y * dl;
    D2 e2 = e * e;
    D2 correction = e + (e + e2 * e) * (e + e2);
    D2 qh = multiply_in_order(y, nh), ql = multiply_in_order(y, nl);
    D2 c = correction * qh + (ql + correction * ql);
    D2 t = qh + c;
    D2 tl = (qh - t) + c;

    HeadTail<D2> whole = plus_one(t, data.log.one, data.sum);
    D2 log = area_log({whole.head, whole.tail + tl}, D2{}, data.log);
    return xor_bits(data.half, bits(x) & data.sign) * log;
}

// Error 2.6 ulp; 6.2 with the worst estimates.
struct atanh {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(atanh_data);
        D2 a = and_bits(x, data.magnitude);
        return {atanh_of(x, a, data), ~(a < data.log.one)};
    }
    static constexpr auto rare = atanh_rare_lane<double>;
};

// Error 2.7e5 ulp; 4.93e6 with the worst estimates.
struct atanh_native {
    static D2 main(D2 x) {
        const auto& data = in_memory(atanh_native_data);
        return atanh_of(x, and_bits(x, data.magnitude), data);
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
