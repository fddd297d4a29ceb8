// ln x, log2 x and log10 x in double precision.
//
// The hardware's estimate of a reciprocal, rounded to an integer c from 512 to 1024, chooses a row of a table; what is
// left is small, so that a short polynomial ends the sum:
//
//   y = mantissa of x in [2^-10, 2^-9),   y c = 1 + r,   |r| < 2^-10 + 2^-11
//   log x = (log(1 + r) - log c') + n log 2
//
// c' is c over 512 or 1024, and n the exponent of x or one more, so that both are small for x near 1. In the accurate
// families r is exact but for one rounding, and the polynomial has degree 5; in the native ones degree 3. The bits of a
// result depend on the processor's estimate, for which neighbouring rows are equally good.
//
// The accurate families are right for every positive normal number; whatever else is rare and goes through a complete
// scalar logarithm of another make. The native families do not look: the pattern of a zero, a negative number, an
// infinity or a NaN is split like any other, with its sign as part of the exponent.
#include "frame/lane_frame.h"
#include "kernels/explog/log_double_data.h"
#include "kernels/explog/log_reduction.h"
#include "kernels/explog/rare_log.h"

namespace zorv {
namespace {

// ---- Rare lanes. -------------------------------------------------------------------------------------------

Status log_rare(const double* x, double* result) { return logarithm_rare(log_rare_data, *x, result); }
Status log10_rare(const double* x, double* result) { return logarithm_rare(log10_rare_data, *x, result); }

//   m c = 1 + r,   m in [1, 2),   r = a + b with a exact;   log2 x = k - log2 c + log2(e) (r + ...)
// The product of a and log2(e) is cut in two, so that its head and that of the table add to k exactly.
double log2_of(double m, int k, const Log2RareData& data) {
    const Log2RareRow& row = data.rows[pattern(m) >> 44 & 255];
    auto [mh, ml] = split_by_mask(m, 0xffffffff00000000);
    double a = mh * row.c - 1.0;
    double b = ml * row.c;
    double r = a + b;
    double r2 = r * r;
    double u = a * data.log2_e_high;
    double uh = (0x1p32 + u) - 0x1p32;
    double even = ((data.even2 * r2 + data.even1) * r2 + data.even0) * r2;
    double odd = ((data.odd2 * r2 + data.odd1) * r2 + data.odd0) * r;
    double low = ((b * data.log2_e_high + (even + odd)) + (u - uh)) + row.low;
    return low + ((k + row.high) + uh);
}

Status log2_rare(const double* operand, double* result) {
    double x = *operand;
    if (x != x) {
        *result = x * opaque(1.0);
        return RARE_OK;
    }
    if (x == 0) return pole_result(-1.0, result);
    if (is_negative(x)) {
        *result = opaque(__builtin_inf()) * opaque(0.0);
        return RARE_DOMAIN;
    }
    if (is_infinite_or_nan(x)) {
        *result = x;
        return RARE_OK;
    }
    bool subnormal = is_zero_or_subnormal(x);
    if (subnormal) x = x * 0x1p55;
    *result = log2_of(with_exponent_of_one(x), unbiased_exponent(x) - (subnormal ? 55 : 0), log2_rare_data);
    return RARE_OK;
}

// ---- Accurate. ---------------------------------------------------------------------------------------------

inline L2 not_positive_normal(D2 x, const PositiveNormalData& data) {
    return from_halves(halves(x) - data.smallest_normal_negated > data.last_rare);
}

// ln(1 + r) in pairs over r^2, behind r itself; in the other bases r is multiplied by the logarithm of e.
template <class Data>
D2 beyond_linear(D2 r, const Data& data) {
    D2 r2 = r * r;
    return ((r * data.a1 + data.a0) * r2 + (r * data.b1 + data.b0)) * r2;
}
template <class Data>
D2 beyond_linear_short(D2 r, const Data& data) {
    return (r * data.b1 + data.b0) * (r * r);
}

struct log {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(log_data);
        Reciprocal about = short_reciprocal(x, data.reciprocal);
        D2 n = exponent_for(x, about, data.exponent);
        D2 r = reduced_argument(about, data.reciprocal, data.head_mask);
        D2 s = r + beyond_linear(r, data);
        D2 y = (s + gather_for(about, data.rows)) + n * data.ln2;
        return {y, not_positive_normal(x, data.normal)};
    }
    static constexpr auto rare = log_rare;
};

struct log2 {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(log2_data);
        Reciprocal about = short_reciprocal(x, data.reciprocal);
        D2 n = exponent_for(x, about, data.exponent);
        D2 r = reduced_argument(about, data.reciprocal, data.head_mask);
        D2 s = beyond_linear(r, data) + r * data.log2_e;
        D2 y = (s + gather_for(about, data.rows)) + n;
        return {y, not_positive_normal(x, data.normal)};
    }
    static constexpr auto rare = log2_rare;
};

struct log10 {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(log10_data);
        Reciprocal about = short_reciprocal(x, data.reciprocal);
        D2 n = exponent_for(x, about, data.exponent);
        D2 r = reduced_argument(about, data.reciprocal, data.head_mask);
        D2 s = beyond_linear(r, data) + r * data.log10_e;
        D2 y = (s + gather_for(about, data.rows)) + n * data.log10_2;
        return {y, not_positive_normal(x, data.normal)};
    }
    static constexpr auto rare = log10_rare;
};

// ---- Native. -----------------------------------------------------------------------------------------------

struct log_native {
    static D2 main(D2 x) {
        const auto& data = in_memory(log_native_data);
        Reciprocal about = short_reciprocal(x, data.reciprocal);
        D2 n = exponent_for(x, about, data.exponent);
        D2 r = reduced_argument(about, data.reciprocal);
        D2 s = r + beyond_linear_short(r, data);
        return (s + gather_for(about, data.rows)) + n * data.ln2;
    }
};

struct log2_native {
    static D2 main(D2 x) {
        const auto& data = in_memory(log2_native_data);
        Reciprocal about = short_reciprocal(x, data.reciprocal);
        D2 n = exponent_for(x, about, data.exponent);
        D2 r = reduced_argument(about, data.reciprocal);
        D2 s = beyond_linear_short(r, data) + r * data.log2_e;
        return (s + gather_for(about, data.rows)) + n;
    }
};

struct log10_native {
    static D2 main(D2 x) {
        const auto& data = in_memory(log10_native_data);
        Reciprocal about = short_reciprocal(x, data.reciprocal);
        D2 n = exponent_for(x, about, data.exponent);
        D2 r = reduced_argument(about, data.reciprocal);
        D2 s = beyond_linear_short(r, data) + r * data.log10_e;
        return (s + gather_for(about, data.rows)) + n * data.log10_2;
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
