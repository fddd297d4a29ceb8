// ln x, log2 x and log10 x in single precision.
//
// One integer subtraction splits the pattern of x about 2/3, the rest is one polynomial:
//
//   x = f 2^k,   f in [2/3, 4/3),   r = f - 1 (exact)
//   log x = k log 2 + log(1 + r)
//
//             log 2         log(1 + r)
//   ln        two parts     r + r^2 Q(r), Q of degree 8
//   log2      exact         r A(r), A of degree 8 in even and odd terms
//   log10     two parts     the same
//   native    one part      Q of degree 2, A of degree 4
//
// The accurate families are right for every positive normal number; whatever else is rare and goes through a
// complete scalar logarithm of another make. The native families do not look: the pattern of a zero, a negative
// number, an infinity or a NaN is split like any other.
#include "frame/lane_frame.h"
#include "kernels/explog/explog_float_data.h"
#include "kernels/explog/log_reduction.h"
#include "kernels/explog/rare_log.h"

namespace zorv {
namespace {

// ---- Rare lanes. -------------------------------------------------------------------------------------------

Status logf_rare(const float* x, float* result) { return logarithm_rare(logf_rare_data, *x, result); }
Status log2f_rare(const float* x, float* result) { return logarithm_rare(log2f_rare_data, *x, result); }
Status log10f_rare(const float* x, float* result) { return logarithm_rare(log10f_rare_data, *x, result); }

// ---- Accurate. ---------------------------------------------------------------------------------------------

// In two families the mask is made in front of the polynomial, and opaque, so that it stays there: measured, it is
// faster so. In log2f it makes no difference.

// Error 0.98 ulp at most, at 0x1.556f9p+0; subnormal operands 1.04.
struct logf {
    static Lanes<F4> main(F4 x) {
        // Moved up by one exponent step, zeros and subnormals stand below two steps; so do negative numbers, and
        // infinity and the NaNs through the wrap.
        I4 not_positive_normal = opaque(bits(x) + logf_data.smallest_normal < logf_data.twice_smallest_normal);
        const auto& data = in_memory(logf_data);
        auto [k, r] = split(x, data.split);
        F4 q = horner(r, data.q);
        F4 s = q * r * r + r;
        F4 y = k * data.ln2_high + (k * data.ln2_low + s);
        return {y, not_positive_normal};
    }
    static constexpr auto rare = logf_rare;
};

// A(r) in even and odd terms: pairs over r^2, then the coefficient of r.
template <class Data>
F4 even_and_odd(F4 r, F4 last, const Data& data) {
    return paired(r, r * r, data.a) * r + last;
}

template <class Data>
I4 not_positive_normal(F4 x, const Data& data) {
    return (x < data.smallest_normal) | ~(x <= data.largest);
}

// Error 2.62 ulp at most, at 0x1.556ceap+0; subnormal operands 0.55.
struct log2f {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(log2f_data);
        auto [k, r] = split(x, data.split);
        F4 a = even_and_odd(r, data.log2_e, data);
        return {a * r + k, not_positive_normal(x, data)};  // exact for a power of two, where r is 0
    }
    static constexpr auto rare = log2f_rare;
};

// Error 2.63 ulp at most, at 0x1.555cb4p+0; subnormal operands 0.55.
struct log10f {
    static Lanes<F4> main(F4 x) {
        I4 mask = opaque(not_positive_normal(x, log10f_data));
        const auto& data = in_memory(log10f_data);
        auto [k, r] = split(x, data.split);
        F4 a = even_and_odd(r, data.log10_e, data);
        return {(a * r + k * data.log10_2_low) + k * data.log10_2_high, mask};
    }
    static constexpr auto rare = log10f_rare;
};

// ---- Native. -----------------------------------------------------------------------------------------------

// Error 8,315 ulp at most, at 0x1.8ebefep-1.
struct logf_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(logf_native_data);
        auto [k, r] = split(x, data.split);
        F4 q = horner(r, data.q);
        F4 s = q * r * r + r;
        return k * data.ln2 + s;
    }
};

// Error 894 ulp at most, at 0x1.172b32p+0.
struct log2f_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(log2f_native_data);
        auto [k, r] = split(x, data.split);
        F4 a = horner(r, data.a);
        return a * r + k;
    }
};

// Error 996 ulp at most, at 0x1.5555dcp+0.
struct log10f_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(log10f_native_data);
        auto [k, r] = split(x, data.split);
        F4 a = horner(r, data.a);
        return a * r + k * data.log10_2;
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
