// sinh x and cosh x in single precision, by the addition theorem and never by the difference of two exponentials:
//
//   |x| = k ln 2 + r,   C = cosh(k ln 2) = 2^(k-1) + 2^(-k-1),   S = sinh(k ln 2) = 2^(k-1) - 2^(-k-1)
//   sinh |x| = S + C sinh r + S (cosh r - 1),   cosh |x| = C + S sinh r + C (cosh r - 1)
//
// Near zero k is 0, so that S is 0 and C is 1: no path of its own is needed there.
//
// Both powers of two are made by integer arithmetic on the pattern of 0.5, which serves up to k = 126. The accurate
// families hand what lies beyond to the rare routine, infinities and NaN with it; the native ones let the patterns
// wrap, and make a NaN of an infinity.
#include "frame/lane_frame.h"
#include "kernels/hyperbolic/sinh_cosh_rare.h"

namespace zorv {
namespace {

struct AtWholePower {
    F4 r, cosh, sinh;
};
inline AtWholePower whole_powers(F4 a, const WholePowersData& data) {
    F4 u = a * data.log2_e + data.shifter;
    F4 n = u - data.shifter;
    I4 k = bits(u) << 23;                               // in the exponent field
    F4 r = (a - n * data.ln2_high) - n * data.ln2_low;  // the first product is exact: 15 bits times 7
    F4 up = as_float(data.half + k), down = as_float(data.half - k);
    return {r, up + down, up - down};
}

// sinh r and cosh r - 1.
struct AtRemainder {
    F4 sinh, cosh;
};
inline AtRemainder remainder(F4 r, const SinhCoshfData& data) {
    F4 q = r * r;
    return {r + horner(q, data.s) * q * r, horner(q, data.c) * q};
}

// ---- Accurate. ---------------------------------------------------------------------------------------------

Status sinhf_rare(const float* x, float* result) { return sinh_complete(sinhf_rare_data, x, result); }
Status coshf_rare(const float* x, float* result) { return cosh_complete(coshf_rare_data, x, result); }

// Error 2.00 ulp at most, at -0x1.8fd4d6p-2, operands tried at random; rare lanes 0.5.
struct sinhf {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(sinhf_data);
        F4 a = and_bits(x, data.magnitude);
        auto [r, c, s] = whole_powers(a, data.powers);
        auto [sr, cr] = remainder(r, data);
        F4 y = (c * sr + cr * s) + s;
        return {or_bits(y, bits(x) & data.sign), bits(a) > data.last_ordinary};
    }
    static constexpr auto rare = sinhf_rare;
};

// Error 1.84 ulp, at -0x1.004336p+3, likewise; rare lanes 0.5.
struct coshf {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(coshf_data);
        F4 a = and_bits(x, data.magnitude);
        auto [r, c, s] = whole_powers(a, data.powers);
        auto [sr, cr] = remainder(r, data);
        F4 y = (s * sr + cr * c) + c;
        return {y, bits(a) > data.last_ordinary};
    }
    static constexpr auto rare = coshf_rare;
};

// ---- Native: two terms for each of the polynomials. --------------------------------------------------------

// Error 1,079 ulp, near zero, where 0.999935687 stands for 1.
struct sinhf_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(sinhf_native_data);
        auto [r, c, s] = whole_powers(and_bits(x, data.magnitude), data.powers);
        F4 q = r * r;
        F4 p1 = horner(q, data.s), p2 = horner(q, data.c);
        F4 y = (r * (p2 * s) + p1 * c) * r + s;
        return or_bits(y, bits(x) & data.sign);
    }
};

// Error 380 ulp, at 0x1.205ae8p+2.
struct coshf_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(coshf_native_data);
        auto [r, c, s] = whole_powers(and_bits(x, data.magnitude), data.powers);
        F4 q = r * r;
        F4 p1 = horner(q, data.s), p2 = horner(q, data.c);
        return (r * (p2 * c) + p1 * s) * r + c;
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
