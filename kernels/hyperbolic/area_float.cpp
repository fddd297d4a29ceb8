// asinh x, acosh x and atanh x in single precision: logarithms of a sum with 1, kept as head and tail.
//
//   asinh a = ln(1 + (a + sqrt(1 + a^2) - 1))
//   acosh x = ln(1 + ((x - 1) + sqrt((x - 1)(x + 1))))
//   atanh a = ln(1 + 2a/(1 - a)) / 2
//
// Roots and quotients come from the hardware's estimates, cut to a few bits so that products with them are exact, and
// corrected by a short series; no main path divides. From 2^30 on asinh and acosh are ln(2x).
//
// Rare: infinities and NaN, and what is not inside the domain. The native class returns what the arithmetic makes of
// them.
#include "frame/lane_frame.h"
#include "kernels/hyperbolic/area_log.h"
#include "kernels/hyperbolic/area_rare.h"

namespace zorv {
namespace {

// sqrt(head + tail), before and after the correction: A + B with A = head y and B = tail y, y the estimate of
// 1/sqrt(head), misses the root by the factor 1/sqrt(1 - e).
struct RootEstimate {
    F4 a, b, correction;
};
template <int terms>
inline RootEstimate estimated_root(HeadTail<F4> x, F4 one, I4 root_head, const RootSeries<float, terms>& series) {
    F4 y = and_bits(rsqrt_estimate(x.head), root_head);
    F4 a = x.head * y, b = x.tail * y;
    F4 e = (one - a * y) - b * y;
    return {a, b, horner(e, series) * e};
}

// ---- asinh. ------------------------------------------------------------------------------------------------

template <class Data>
F4 asinh_of(F4 x, F4 a, const Data& data) {
    // x^2 = square + rest, 1 + x^2 = sum + gap
    auto [xh, xl] = split_by_mask(x, data.x_head);
    F4 square = xh * xh, rest = (x + xh) * xl;
    F4 sum = square + data.log.one;
    F4 gap = ((data.log.one - sum) + square) + rest;
    auto [sh, sl] = split_by_mask(sum, data.root_head);
    auto [ra, rb, r] = estimated_root({sh, sl + gap}, data.log.one, data.root_head, data.root);

    // sqrt(1 + x^2) - 1 = u + ul, in small lanes by its series in x^2/2: h - h^2/2 + h^3/2
    F4 w = rb + r * (ra + rb);
    F4 from_one = ra - data.log.one;
    F4 u = w + from_one;
    F4 ul = (from_one - u) + w;
    F4 h = data.half * (square + rest);
    F4 c = (h * h * h - h * h) * data.half;
    F4 small_u = h + c;
    F4 small_ul = (h - small_u) + c;
    I4 small = a <= data.small;
    u = select(small, small_u, u);
    ul = select(small, small_ul, ul);

    F4 t = add_in_order(a, u);
    F4 tl = ((a - t) + u) + ul;
    HeadTail<F4> whole = plus_one(t, data.log.one);
    auto [argument, k] = unless_huge(a, HeadTail<F4>{whole.head, add_in_order(whole.tail, tl)}, data.huge);
    return xor_bits(area_log(argument, k, data.log), bits(x) & data.sign);
}

// Error 2.15 ulp at most, at 0x1.ff9f5ep-4, operands tried at random.
struct asinhf {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(asinhf_data);
        F4 a = and_bits(x, data.magnitude);
        return {asinh_of(x, a, data), ~(a <= data.largest)};
    }
    static constexpr auto rare = asinh_rare_lane<float>;
};

// Error 1,468 ulp, at 0x1.cd4274p-3.
struct asinhf_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(asinhf_native_data);
        return asinh_of(x, and_bits(x, data.magnitude), data);
    }
};

// ---- acosh. ------------------------------------------------------------------------------------------------

template <class Data>
F4 acosh_of(F4 x, const Data& data) {
    F4 d = x - data.log.one;
    F4 p = d * (x + data.log.one);
    auto [a, b, r] = estimated_root(split_by_mask(p, data.root_head), data.log.one, data.root_head, data.root);
    F4 v = a + b;
    F4 root = v + v * r;
    auto [argument, k] = unless_huge(x, plus_one(add_in_order(d, root), data.log.one), data.huge);
    return area_log(argument, k, data.log);
}

// Error 3.20 ulp at most, at 0x1.01c752p+0: all floats from 1 to 1.125 tried, others at random.
struct acoshf {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(acoshf_data);
        return {acosh_of(x, data), ~(data.log.one < x) | ~(x <= data.largest)};
    }
    static constexpr auto rare = acosh_rare_lane<float>;
};

// Error 2,300 ulp, at 0x1.06ff84p+0; 2,520 with the worst estimates allowed.
struct acoshf_native {
    static F4 main(F4 x) { return acosh_of(x, in_memory(acoshf_native_data)); }
};

// ---- atanh. ------------------------------------------------------------------------------------------------

template <class Data>
F4 atanh_of(F4 x, F4 a, const Data& data) {
    // 1 - a and 2a as heads of twelve bits and tails
    F4 d = data.log.one - a;
    auto [dh, dl] = split_by_mask(d, data.head);
    dl = dl + ((data.log.one - d) - a);
    auto [nh, nl] = split_by_mask(a + a, data.head);

    // y ~ 1/(1 - a), y (1 - a) = 1 - e;  2a/(1 - a) = t + tl
    F4 y = and_bits(reciprocal_estimate(dh), data.head);
    F4 e = (data.log.one - multiply_in_order(y, dh)) - y * dl;
    F4 correction = e + e * e;
    F4 qh = multiply_in_order(y, nh), ql = multiply_in_order(y, nl);
    F4 c = correction * qh + (ql + correction * ql);
    F4 t = qh + c;
    F4 tl = (qh - t) + c;

    HeadTail<F4> whole = plus_one(t, data.log.one);
    F4 log = area_log({whole.head, add_in_order(whole.tail, tl)}, F4{}, data.log);
    return xor_bits(data.half, bits(x) & data.sign) * log;
}

// Error 2.09 ulp at most, at -0x1.f85d44p-5, operands tried at random.
struct atanhf {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(atanhf_data);
        F4 a = and_bits(x, data.magnitude);
        return {atanh_of(x, a, data), ~(a < data.log.one)};
    }
    static constexpr auto rare = atanh_rare_lane<float>;
};

// Error 1,468 ulp, at -0x1.c76b16p-4.
struct atanhf_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(atanhf_native_data);
        return atanh_of(x, and_bits(x, data.magnitude), data);
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
