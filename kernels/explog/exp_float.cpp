// e^x, 2^x and 10^x in single precision.
//
// All of them take a power of two out of x and leave the rest to a polynomial:
//
//   b^x = 2^k P(r),   k = x log2(b) rounded,   r = x - k / log2(b)
//
//             steps of k    r                              P
//   exp       1             k ln(2) in two parts           degree 5
//   exp2      1             exact                          degree 6
//   exp10     1/512         k log10(2)/512 in two parts    degree 1, times 2^(i/512) from a table
//   native    1             one part, or exact             degree 3
//
// k comes from the shifter 1.5 * 2^23: the sum v + shifter is v rounded to an integer, which stands in the low bits
// of the sum's pattern. 2^k is an integer addition to the exponent field of P(r), with no test. The accurate
// families are exact in that only while the result is a normal number; what lies beyond, infinities and NaN are
// rare. The native families do not look: a lane out of range wraps, an infinity becomes NaN.
#include "frame/gather.h"
#include "frame/lane_frame.h"
#include "kernels/explog/explog_float_data.h"
#include "kernels/explog/rare_exp.h"

namespace zorv {
namespace {

// 2^k p: k, in the low bits of `shifted`, moves to the exponent field; what does not fit there falls off.
inline F4 times_power_of_two(F4 p, F4 shifted) { return as_float(bits(p) + (bits(shifted) << 23)); }

// Above the last operand of a normal result, on either side; as patterns, so that a NaN is above it too.
template <class Data>
I4 not_ordinary(F4 x, const Data& data) {
    return (bits(x) & data.magnitude) > data.last_ordinary;
}

// ---- Rare lanes. -------------------------------------------------------------------------------------------

Status expf_rare(const float* x, float* result) { return exponential_rare(expf_rare_data, *x, result); }
Status exp2f_rare(const float* x, float* result) { return exponential_rare(exp2f_rare_data, *x, result); }
Status exp10f_rare(const float* x, float* result) { return exponential_rare(exp10f_rare_data, *x, result); }

// ---- Accurate. ---------------------------------------------------------------------------------------------

// Error 2.94 ulp at most, at -0x1.79109ap+2; rare lanes 2.60 near the top, 1.75 below the normal range.
struct expf {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(expf_data);
        F4 t = x * data.log2_e + data.shifter;
        F4 k = t - data.shifter;
        F4 r = (x - k * data.ln2_high) - k * data.ln2_low;  // the first product is exact: 15 bits times 8
        F4 p = horner(r, data.p);
        return {times_power_of_two(p, t), not_ordinary(x, data)};
    }
    static constexpr auto rare = expf_rare;
};

// Error 1.11 ulp at most, at -0x1.fff59ep-2; rare lanes 2.85 near the top, 1.75 below the normal range.
struct exp2f {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(exp2f_data);
        F4 t = x + data.shifter;
        F4 k = t - data.shifter;
        F4 r = x - k;
        F4 p = horner(r, data.p);
        return {times_power_of_two(p, t), not_ordinary(x, data)};
    }
    static constexpr auto rare = exp2f_rare;
};

//   10^x = 2^(k/512) (1 + P(r)),   k/512 = n + i/512
// Error 2.93 ulp at most, at -0x1.99f216p-26; rare lanes 1.08 near the top, 0.91 below the normal range.
struct exp10f {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(exp10f_data);
        F4 t = x * data.steps_per_unit + data.shifter;
        I4 i = bits(t) & data.row_index;
        F4 power = gather_indexed(data.powers, offsets_of(i));
        F4 k = t - data.shifter;
        F4 r = (x - k * data.step_high) - k * data.step_low;
        F4 p = horner(r, data.p);
        F4 y = p * power + power;
        I4 n = (bits(t) ^ i) << 14;  // k/512, rounded down, in the exponent field
        return {as_float(bits(y) + n), not_ordinary(x, data)};
    }
    static constexpr auto rare = exp10f_rare;
};

// ---- Native. -----------------------------------------------------------------------------------------------

// Error 1,821 ulp at most in the normal range, at 0x1.21bc4cp+6.
struct expf_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(expf_native_data);
        F4 t = x * data.log2_e + data.shifter;
        F4 k = t - data.shifter;
        F4 r = x - k * data.ln2;
        F4 p = horner(r, data.p);
        return times_power_of_two(p, t);
    }
};

template <class Data>
F4 exp2f_short(F4 x, const Data& data) {
    F4 t = x + data.shifter;
    F4 k = t - data.shifter;
    F4 r = x - k;
    F4 p = horner(r, data.p);
    return times_power_of_two(p, t);
}

// Error 1,231 ulp at most in the normal range, at -0x1.84f72p-6.
struct exp2f_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(exp2f_native_data);
        return exp2f_short(x, data);
    }
};

// 10^x = 2^(x log2(10)); the error of that one product grows with x: 1,305 ulp at most in the normal range, at
// 0x1.31ca08p+5.
struct exp10f_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(exp10f_native_data);
        return exp2f_short(x * data.log2_10, data);
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
