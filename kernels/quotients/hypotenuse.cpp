// sqrt(x^2 + y^2), without undue overflow or underflow.
//
// The main paths do not scale: they square, add, and take a root from the hardware's estimate of 1/sqrt(s). Where the
// sum of squares s has left the range in which that is safe, for whatever reason, one integer test on s says so, and
// the scalar routine scales by powers of two and works with split operands.
#include "frame/lane_frame.h"
#include "frame/pairs.h"
#include "kernels/quotients/hypotenuse_data.h"
#include "kernels/quotients/quotients_data.h"

namespace zorv {
namespace {

// ---- Rare lanes, in double for both precisions. ------------------------------------------------------------

double finite_hypotenuse(double x, double y) {
    constexpr double multiplier = 0x1p27 + 1;
    double a = magnitude_of(x), b = magnitude_of(y);
    if (a < b) {
        double greater = b;
        b = a;
        a = greater;
    }

    // a to [4, 8), or 23 binades below where it is tiny.
    int w = -exponent_field(a);
    if (-w < 25) w -= 23;
    double scale = with_exponent_field<double>(w + 2048);
    a = a * scale;
    b = b * scale;

    // a^2 + b^2 as u + v; b far below a needs no splitting.
    auto [ah, al] = split_by_product(a, multiplier);
    HeadTail<double> split_b = {0.0, b};
    if (exponent_field(a) - exponent_field(b) < 7) split_b = split_by_product(b, multiplier);
    auto [bh, bl] = split_b;
    double u = ah * ah + bh * bh;
    double v = (al * (a + ah) + b * bl) + bh * bl;

    // t = 4^(e/2) m, and the root of m from a seed of 11 bits.
    double t = u + v;
    int e = unbiased_exponent(t);
    int odd = e & 1;
    double m = with_exponent_of_one(t);
    double t1 = m * (odd ? 2.0 : 1.0);
    double seed = SQRT_SEED[(pattern(m) >> 44 & 0xff) + 256 * static_cast<unsigned>(odd)];
    double g = t1 * seed;
    double h = seed * 0.5;
    double r = 0.5 - g * h;
    g = g + r * g;
    h = h + r * h;
    r = 0.5 - g * h;
    h = h + h * r;
    g = g + r * g;
    r = 0.5 - g * h;
    h = h + h * r;
    g = g + r * g;

    // The residual u + v - g^2, both sides in [1, 4), corrects the last bit.
    double back = power_of_two<double>(-(e & ~1));
    auto [gh, gl] = split_by_product(g, multiplier);
    double residual = (((u * back - gh * gh) - 2.0 * gh * gl) - gl * gl) + v * back;
    double c = h * residual;
    return ((g + c) * power_of_two<double>(e >> 1)) * power_of_two<double>(-(w + 1025));
}

// An infinity wins over a NaN. Of two NaN the first one's payload goes through.
template <class Float>
Status hypotenuse_rare(const Float* first, const Float* second, Float* result) {
    Float x = *first, y = *second;
    bool x_is_special = is_infinite_or_nan(x), y_is_special = is_infinite_or_nan(y);
    if (x_is_special && y_is_special && x != x)
        *result = y != y ? multiply_in_order(x, y) : y * y;
    else if (x_is_special)
        *result = x * x;
    else if (y_is_special)
        *result = y * y;
    else if (x == Float(0) && y == Float(0))
        *result = Float(0);
    else
        *result = static_cast<Float>(finite_hypotenuse(x, y));
    return RARE_OK;
}

// ---- Single precision. -------------------------------------------------------------------------------------

// As sqrtf: g ~ sqrt(s), h ~ 1/(2 sqrt(s)), both refined by r = 1/2 - g h; one more Newton step on g.
struct hypotf {
    static Lanes<F4> main(F4 x, F4 y) {
        const auto& data = in_memory(hypotf_data);
        F4 s = y * y + x * x;
        F4 y0 = rsqrt_estimate(s);
        F4 g = s * y0;
        F4 h = y0 * data.half;
        F4 r = data.half - g * h;
        F4 g1 = r * g + g;
        F4 h1 = r * h + h;
        F4 d = g1 * g1 - s;
        return {g1 - h1 * d, (bits(s) < data.smallest) | (bits(s) > data.largest)};
    }
    static constexpr auto rare = hypotenuse_rare<float>;
};

struct hypotf_native {
    static F4 main(F4 x, F4 y) {
        F4 s = add_in_order(y * y, x * x);
        return rsqrt_estimate(s) * s;
    }
};

// ---- Double precision. -------------------------------------------------------------------------------------

//   y0 ~ 1/sqrt(s) from the float estimate,   e = y0^2 s - 1,   sqrt(s) = s y0 (1 + e)^(-1/2)
// the last factor by the terms of its series, without the leading 1. The estimate of a NaN has less of a payload than
// s, and is the first operand where they meet.
template <class Data>
D2 root(D2 s, const Data& data) {
    D2 y0 = rsqrt_estimate(s);
    D2 e = multiply_in_order(y0 * y0, s) - data.one;
    D2 p = horner(e, data.p) * e;
    return add_in_order(multiply_in_order(p * y0, s), s * y0);
}

struct hypot {
    static Lanes<D2> main(D2 x, D2 y) {
        const auto& data = in_memory(hypot_data);
        D2 s = x * x + y * y;
        I4 high = halves(s);
        return {root(s, data), from_halves((high < data.smallest) | (high > data.largest))};
    }
    static constexpr auto rare = hypotenuse_rare<double>;
};

struct hypot_native {
    static D2 main(D2 x, D2 y) { return root(add_in_order(x * x, y * y), in_memory(hypot_native_data)); }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
