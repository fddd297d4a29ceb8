// sqrt(x) and 1/sqrt(x).
//
// Single precision starts from the hardware's reciprocal square root estimate; double rsqrt rebuilds its operand as
// a float to use the same estimate; double sqrt is the hardware's. No main path divides. What is not a positive,
// normal, finite number is rare and goes through a complete scalar algorithm in double precision.
#include "frame/lane_frame.h"
#include "frame/pairs.h"
#include "frame/scalar.h"
#include "kernels/quotients/quotients_data.h"

namespace zorv {
namespace {

// Not a positive, normal, finite float: one signed compare on the pattern moved down by the smallest normal.
template <class Data>
I4 not_positive_normal(F4 x, const Data& data) {
    return bits(x) - data.smallest_normal_negated > data.last_rare;
}

// ---- sqrtf. ------------------------------------------------------------------------------------------------

Status sqrtf_rare(const float* x, float* result) {
    if (is_infinite_or_nan(*x)) {
        if (is_negative_infinity(*x)) return domain_result(result);
        *result = *x + *x;
        return RARE_OK;
    }
    double d = *x;
    if (d == 0.0) {
        *result = *x;
        return RARE_OK;
    }
    if (is_negative(*x)) return domain_result(result);
    int k = 0;
    if (is_zero_or_subnormal(*x)) {
        d = d * 0x1p200;
        k = 100;
    }

    // x = 4^(e/2) t, t in [1, 4), and a seed of 11 bits for 1/sqrt(t).
    int e = unbiased_exponent(d);
    int odd = e & 1;
    double m = with_exponent_of_one(d);
    double t = m * (odd ? 2.0 : 1.0);
    double y = SQRT_SEED[(pattern(m) >> 44 & 0xff) + 256 * static_cast<unsigned>(odd)];

    // Three coupled rounds: g tends to sqrt(t), h to half its reciprocal.
    double g = y * t;
    double h = y * 0.5;
    double r = 0.5 - g * h;
    g = g + r * g;
    h = h + r * h;
    r = 0.5 - g * h;
    h = h + h * r;
    g = g + r * g;
    r = 0.5 - g * h;
    h = h + h * r;
    g = g + r * g;

    // The exact residual t - g^2, from g in two exact halves, corrects the last bit.
    auto [gh, gl] = split_by_product(g, 0x1p27 + 1);
    double f = ((t - gh * gh) - 2.0 * gh * gl) - gl * gl;
    double c = h * f;
    *result = static_cast<float>((g + c) * power_of_two<double>((e >> 1) - k));
    return RARE_OK;
}

//   y ~ 1/sqrt(x);  g ~ sqrt(x), h ~ 1/(2 sqrt(x)), both refined by r = 1/2 - g h;  one more Newton step on g.
struct sqrtf {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(sqrtf_data);
        F4 y = rsqrt_estimate(x);
        F4 g = x * y;
        F4 h = y * data.half;
        F4 r = data.half - g * h;
        F4 g1 = r * g + g;
        F4 h1 = r * h + h;
        F4 d = x - g1 * g1;
        return {h1 * d + g1, not_positive_normal(x, data)};
    }
    static constexpr auto rare = sqrtf_rare;
};

// The estimate itself; the only native family whose rare lanes are repaired.
struct sqrtf_native {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(sqrtf_native_data);
        return {rsqrt_estimate(x) * x, not_positive_normal(x, data)};
    }
    static constexpr auto rare = sqrtf_rare;
};

// ---- sqrt: the hardware's, complete for every operand. -----------------------------------------------------

struct sqrt {
    static D2 main(D2 x) { return hardware_sqrt(x); }
};

struct sqrt_native {
    static D2 main(D2 x) { return hardware_sqrt(x); }
};

// ---- rsqrtf and rsqrt. -------------------------------------------------------------------------------------

// A complete reciprocal square root in double, rounded once to the family's precision.
template <class Float>
Status reciprocal_root(const Float* operand, Float* result) {
    Float x = *operand;
    if (x != x) {
        *result = x / x;
        return RARE_OK;
    }
    if (is_infinite_or_nan(x)) {
        if (is_negative(x)) return domain_result(result);
        *result = Float(0) / x;
        return RARE_OK;
    }
    double d = x;
    int c = 0;
    if (is_zero_or_subnormal(d)) {
        d = d * 0x1p60;
        c = -30;
    }
    if (d == 0.0) return pole_result(or_sign_of(Float(1), x), result);
    if (d < 0.0) return domain_result(result);

    // d = 4^(e/2) t, t in [1, 4) in two halves whose products are exact.
    int e = unbiased_exponent(d);
    bool odd = (e & 1) != 0;
    double m = with_exponent_of_one(d);
    double t = odd ? m + m : m;
    auto [th, tl] = split_by_product(t, 0x1p27);

    // A seed of 13 bits by m rounded to five fraction bits; its residual r = 1 - t y^2.
    unsigned i = static_cast<unsigned>(pattern(m + (0x1p47 + 1)) & 63) + (odd ? 32 : 0);
    double y = RSQRT_SEED[i];
    double y2 = y * y;
    double r1 = 1.0 - th * y2;
    double w = y2 * tl;
    double r = r1 - w;
    auto [rh, rl] = split_by_product(r1, 0x1p27);
    double u = (0.5 * y) * rh;

    // 1/sqrt(1 - r) = 1 + r/2 + P(r), the leading parts kept in head and tail.
    double p = horner(r, rsqrt_rare_data.p) * r * r;
    double v = (p - (w - rl) * 0.5) * y;
    auto [hi, lo] = fast_two_sum(y, u);
    *result = static_cast<Float>(((v + lo) + hi) * power_of_two<double>(-(c + (e >> 1))));
    return RARE_OK;
}

//   y ~ 1/sqrt(x) to nine bits, so that y^2 is exact;  e = x y^2 - 1;  1/sqrt(x) = y (1 + e)^(-1/2)
struct rsqrtf {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(rsqrtf_data);
        F4 y = and_bits(rsqrt_estimate(x), data.estimate_mask);
        F4 e = (y * y) * x - data.one;
        F4 p = horner(e, data.p) * e;
        return {p * y + y, not_positive_normal(x, data)};
    }
    static constexpr auto rare = reciprocal_root<float>;
};

struct rsqrtf_native {
    static F4 main(F4 x) { return rsqrt_estimate(x); }
};

// 1/sqrt(x) to the hardware's 12 bits: x = u 4^n with a float u in [1, 4), estimated in single precision.
inline D2 reciprocal_root_seed(D2 x, const FloatSeedData& data) {
    UL2 e = unsigned_lanes(bits(x) & data.exponent);
    UL2 n = ~e & unsigned_lanes(data.exponent_lowest_bit);  // set where the biased exponent is even
    UL2 low = unsigned_lanes(bits(x) & data.low_mask);
    UL2 f = (low >> 29) | ((unsigned_lanes(data.float_exponent_base) + n) >> 29);
    F4 u = as_float(low_halves(signed_lanes(f), signed_lanes(f)));
    D2 y0 = widen(rsqrt_estimate(u)).low;
    D2 scale = as_double((unsigned_lanes(data.scale_base) + n - e) >> 1);
    return y0 * scale;
}

//   y ~ 1/sqrt(x) to 12 bits;  r = 1 - x y^2, x in two parts;  1/sqrt(x) = y (1 - r)^(-1/2)
struct rsqrt {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(rsqrt_data);
        D2 y = reciprocal_root_seed(x, data.seed);
        D2 y2 = y * y;
        auto [xh, xl] = split_by_mask(x, data.split_mask);
        D2 r = (data.one - xh * y2) - xl * y2;
        D2 p = horner(r, data.p) * r;
        // Of 64-bit lanes the high halves decide.
        I4 not_positive_normal = halves(x) - data.smallest_normal_negated > data.last_rare;
        return {p * y + y, from_halves(not_positive_normal)};
    }
    static constexpr auto rare = reciprocal_root<double>;
};

struct rsqrt_native {
    static D2 main(D2 x) {
        const auto& data = in_memory(rsqrt_native_data);
        D2 y = reciprocal_root_seed(x, data.seed);
        D2 r = data.one - (y * y) * x;
        return horner(r, data.q) * y;
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
