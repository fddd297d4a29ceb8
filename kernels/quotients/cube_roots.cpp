// The cube root of x and its reciprocal, x^(1/3) and x^(-1/3).
//
// One method for all: with m the mantissa and c the nearest of 32 centres,
//
//   |x| = 2^(3k + j) m,   m = c (1 + r),   |r| <= 1/65
//   |x|^(1/3) = 2^k T (1 + r p(r)),   T = (2^j c)^(1/3) from a table
//
// p being as many terms of the series of (1 + r)^(1/3) as the family needs; likewise for the reciprocal. The sign rides
// through 2^k. No division and no iteration: the exponent is divided by three by a multiplication.
//
//                  terms of p   T
//   cbrtf          4            two parts
//   rcbrtf         4            two parts
//   cbrt           7            one part
//   rcbrt          8            two parts
//   native         1; 3, 4      one part
//
// Rare: zeros, subnormals, infinities and NaN. The native families take the exponent fields of those as they stand.
#include "frame/gather.h"
#include "frame/lane_frame.h"
#include "frame/pairs.h"
#include "kernels/quotients/cube_roots_data.h"

namespace zorv {
namespace {

// ---- Single precision. -------------------------------------------------------------------------------------

struct Positionf {
    F4 minus_distance;        // c - m
    I4 centre, octave, root;  // i, j + 1, k
};

inline Positionf position(F4 x, const CentrefData& data) {
    F4 minus_m = or_bits(and_bits(x, data.mantissa), data.minus_one);
    F4 minus_c = or_bits(and_bits(x, data.centre), data.minus_centre);
    I4 i = (bits(x) >> 18) & data.row;
    I4 e = (bits(x) & data.exponent) >> 23;
    I4 k = unit_cast<I4>(_mm_madd_epi16(unit_cast<__m128i>(e), unit_cast<__m128i>(I4(data.third)))) >> 12;
    return {minus_m - minus_c, i, e - (k + k + k), k};
}

// 2^n with the sign of x, n biased.
inline F4 signed_power(F4 x, I4 n, const CentrefData& data) { return as_float((n << 23) | (bits(x) & data.sign)); }

inline F4 reconstruct(const Positionf& at, F4 scale, const CbrtfData& data) {
    F4 r = at.minus_distance * gather_indexed(data.minus_reciprocal, offsets_of(at.centre));
    auto [head, tail] = gather_pair(data.values, offsets_of((at.octave << 8) + (at.centre << 3)));
    F4 t = head * scale;
    F4 t_tail = tail * scale;
    F4 u = r * t;
    return (horner(r, data.p) * u + t_tail) + t;
}
inline F4 reconstruct(const Positionf& at, F4 scale, const CbrtfNativeData& data) {
    F4 r = at.minus_distance * gather_indexed(data.values, offsets_of(at.centre));
    F4 t = gather_indexed(data.values, offsets_of((at.octave << 5) + at.centre)) * scale;
    F4 u = r * t;
    return data.p * u + t;
}

template <class Data>
F4 cube_root(F4 x, const Data& data) {
    Positionf at = position(x, data.centre);
    return reconstruct(at, signed_power(x, at.root + data.centre.scale, data.centre), data);
}
template <class Data>
F4 reciprocal_cube_root(F4 x, const Data& data) {
    Positionf at = position(x, data.centre);
    return reconstruct(at, signed_power(x, data.centre.scale - at.root, data.centre), data);
}

// By magnitude: zeros, subnormals, infinities, NaN.
inline I4 not_normal(F4 x, const CentrefData& data) {
    return (bits(x) & data.magnitude) - data.smallest_normal_negated > data.last_rare;
}

// ---- Double precision. -------------------------------------------------------------------------------------

struct Position {
    D2 minus_distance;
    L2 centre, row, root;  // i, 32 j + i, k
};

inline Position position(D2 x, const CentreData& data) {
    D2 minus_m = or_bits(and_bits(x, data.mantissa), data.minus_one);
    D2 minus_c = or_bits(and_bits(x, data.centre), data.minus_centre);
    UL2 e = unsigned_lanes(bits(x) & data.magnitude) >> 52;
    L2 k = signed_lanes(multiply_low_halves(e, unsigned_lanes(L2(data.third))) >> 14);
    L2 j = signed_lanes(e) - (k + k + k);
    L2 i = signed_lanes(unsigned_lanes(bits(x)) >> 47) & data.row;
    return {minus_m - minus_c, i, (j << 5) + i, k};
}

inline D2 signed_power(D2 x, L2 n, const CentreData& data) { return as_double((n << 52) | (bits(x) & data.sign)); }

template <class Data>
D2 distance(const Position& at, const Data& data) {
    return at.minus_distance * gather_indexed(data.minus_reciprocal, offsets_of(at.centre));
}
template <class Data>
D2 reconstruct(const Position& at, D2 scale, const Data& data) {
    D2 r = distance(at, data);
    D2 t = gather_indexed(data.values, offsets_of(at.row)) * scale;
    D2 u = r * t;
    return horner(r, data.p) * u + t;
}
inline D2 reconstruct(const Position& at, D2 scale, const RcbrtData& data) {
    D2 r = distance(at, data);
    auto [head, tail] = gather_pair(data.values[0], offsets_of(at.row << 4));
    D2 t = head * scale;
    D2 t_tail = tail * scale;
    D2 u = r * t;
    return (horner(r, data.p) * u + t_tail) + t;
}

template <class Data>
D2 cube_root(D2 x, const Data& data) {
    Position at = position(x, data.centre);
    return reconstruct(at, signed_power(x, at.root + data.centre.scale, data.centre), data);
}
template <class Data>
D2 reciprocal_cube_root(D2 x, const Data& data) {
    Position at = position(x, data.centre);
    return reconstruct(at, signed_power(x, data.centre.scale - at.root, data.centre), data);
}

inline L2 not_normal(D2 x, const CentreData& data) {
    return from_halves((halves(x) & data.high_magnitude) - data.smallest_normal_negated > data.last_rare);
}

// ---- Rare lanes. -------------------------------------------------------------------------------------------

// A subnormal is scaled by a power of two that three divides, and goes through the main path.
Status cbrtf_rare(const float* operand, float* result) {
    float x = *operand;
    if (is_infinite_or_nan(x)) {
        *result = x + x;
        return RARE_OK;
    }
    if (x == 0.0f) {
        *result = x;
        return RARE_OK;
    }
    float v = x * 0x1p126f;
    *result = cube_root(F4{v, v, v, v}, cbrtf_data)[0] * 0x1p-42f;
    return RARE_OK;
}

// A head and tail computation: y ~ m^(-1/3) of eight bits, 1 - m y^3 = v exactly, m^(1/3) = m y^2 (1 + v (2/3 + P(v))).
Status cbrt_rare(const double* operand, double* result) {
    const CbrtRareData& data = cbrt_rare_data;
    double x = *operand;
    if (is_infinite_or_nan(x)) {
        *result = x + x;
        return RARE_OK;
    }
    if (x == 0.0) {
        *result = x;
        return RARE_OK;
    }
    auto head_of = [&](double value) { return split_by_product(value, double(data.split)).head; };

    double a = magnitude_of(x);
    int n = 0;
    if (is_zero_or_subnormal(a)) {
        a = a * data.subnormal_scale;
        n = 100;
    }
    int e = exponent_field(a);
    int t = e / 3;
    int j = e - 3 * t;
    double m = with_exponent_of_one(a);
    double mh = split_by_product(m, double(data.mantissa_split)).head;
    double y = data.seed[pattern(m) >> 47 & 31];
    double y2 = y * y;
    double a1 = mh * y2;
    double w = 1.0 - y * a1;
    double a2 = y2 * (m - mh);
    double wh = head_of(w);
    double wl = -(y * a2) + (w - wh);
    double v = wh + wl;
    double p = v * horner(v, data.p);

    // 2/3 + P as th + lo.
    double two_thirds = data.two_thirds;
    double t1 = two_thirds + p;
    double d = two_thirds - t1;
    double th = head_of(t1);
    double lo = (((p + d) + (two_thirds - (t1 + d))) + data.two_thirds_tail) + (t1 - th);

    // (a1 + a2)(1 + (wh + wl)(th + lo)) as qh + f.
    double c = wh * th;
    double ch = head_of(c);
    double b2 = ch * a2;
    double b1 = ch * a1;
    double q = b1 + a1;
    double d2 = a1 - q;
    double q2 = q + d2;
    double qh = head_of(q);
    double z = ((wl * lo + wl * th) + wh * lo) + (c - ch);
    double f = a2 + ((((b1 + d2) + (a1 - q2)) + (q - qh)) + ((z * a2 + b2) + z * a1));

    double scale_head = data.scale[j].head, scale_tail = data.scale[j].tail;
    double root = (qh * scale_head + ((scale_tail * f + scale_tail * qh) + f * scale_head)) *
                  with_exponent_field<double>(t - n + 682);
    *result = is_negative(x) ? -root : root;
    return RARE_OK;
}

// y ~ t^(-1/3) of nine bits, v = 1 - t y^3, the series of (1 - v)^(-1/3) with its first term in head and tail. In
// double for both precisions, rounded once more to float.
template <class Float>
Status reciprocal_cube_root_rare(const Float* operand, Float* result) {
    const RcbrtRareData& data = rcbrt_rare_data;
    Float x = *operand;
    if (x != x) {
        *result = x / x;
        return RARE_OK;
    }
    if (is_infinite_or_nan(x)) {
        *result = Float(0) / x;
        return RARE_OK;
    }
    double a = magnitude_of(static_cast<double>(x));
    int n = 0;
    if (is_zero_or_subnormal(a)) {
        a = a * data.subnormal_scale;
        n = -30;
    }
    if (!(a > 0.0)) {
        *result = Float(1) / x;
        return RARE_POLE;
    }
    int e = unbiased_exponent(a);
    int q = e / 3;
    int j = e - 3 * q;
    if (j < 0) {
        j += 3;
        q -= 1;
    }
    double m = with_exponent_of_one(a);
    double t = m * static_cast<double>(1 << j);
    auto [th, tl] = split_by_product(t, double(data.split));
    double y = data.seed[32 * static_cast<unsigned>(j) + (pattern(m + data.to_thirty_seconds) & 63)];
    double y3 = y * y * y;
    double w1 = 1.0 - th * y3;
    double v = w1 - y3 * tl;
    double wh = split_by_product(w1, double(data.split)).head;
    double u = wh * y * data.third;
    double hi = y + u;
    double p = horner(v, data.p) * v * v + data.third_tail * v;
    p = ((p - y3 * tl * data.third) + (w1 - wh) * data.third) * y;
    double lo = (y - hi) + u;
    double scale = or_sign_of(with_exponent_field<double>(1023 - (n + q)), static_cast<double>(x));
    *result = static_cast<Float>((hi + (p + lo)) * scale);
    return RARE_OK;
}

// ---- The families. -----------------------------------------------------------------------------------------

struct cbrtf {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(cbrtf_data);
        return {cube_root(x, data), not_normal(x, data.centre)};
    }
    static constexpr auto rare = cbrtf_rare;
};
struct rcbrtf {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(rcbrtf_data);
        return {reciprocal_cube_root(x, data), not_normal(x, data.centre)};
    }
    static constexpr auto rare = reciprocal_cube_root_rare<float>;
};
struct cbrt {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(cbrt_data);
        return {cube_root(x, data), not_normal(x, data.centre)};
    }
    static constexpr auto rare = cbrt_rare;
};
struct rcbrt {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(rcbrt_data);
        return {reciprocal_cube_root(x, data), not_normal(x, data.centre)};
    }
    static constexpr auto rare = reciprocal_cube_root_rare<double>;
};

struct cbrtf_native {
    static F4 main(F4 x) { return cube_root(x, in_memory(cbrtf_native_data)); }
};
struct rcbrtf_native {
    static F4 main(F4 x) { return reciprocal_cube_root(x, in_memory(rcbrtf_native_data)); }
};
struct cbrt_native {
    static D2 main(D2 x) { return cube_root(x, in_memory(cbrt_native_data)); }
};
struct rcbrt_native {
    static D2 main(D2 x) { return reciprocal_cube_root(x, in_memory(rcbrt_native_data)); }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
