// ln(1 + x), exact near 0, in single and double precision.
//
//   s + e = 1 + x exactly: 1 and x are added the greater one first, which tells the error of the sum
//   ln(1 + x) = ln(s + e):  a logarithm of s, whose reduced argument takes in e, scaled like s
//
// In the accurate families the hardware's estimate of a reciprocal, rounded to an integer c, chooses a row of a table,
//
//   s = y 2^k,   y c = 1 + a,   r = a + e c/2^k,   ln(1 + x) = k ln 2 - ln c + ln(1 + r)
//
// with a exact (in single precision, where s has been cut for that), the logarithms in head and tail, and a polynomial
// of degree 3 or 5 in r; the table takes back the bias of k. The native families end like the native logarithms: by one
// polynomial in single, by the table of the double logarithm in double precision.
//
// At the end the sign of x is ORed in, for -0; not in the native double family. Rare are operands up to -1, huge ones,
// infinities and NaNs: a scalar logarithm of x + 1. The native families do not look, and are wrong there.
#include "frame/lane_frame.h"
#include "kernels/explog/log1p_data.h"
#include "kernels/explog/log_reduction.h"
#include "kernels/explog/rare_log.h"

namespace zorv {
namespace {

// ---- Rare lanes: what the sum with 1 loses does not count there. -------------------------------------------------

Status log1pf_rare(const float* x, float* result) { return logarithm_rare(logf_rare_data, *x + 1.0f, result); }
Status log1p_rare(const double* x, double* result) { return logarithm_rare(log_rare_data, *x + 1.0, result); }

// ---- What the families share. ------------------------------------------------------------------------------

// 1 and x, the greater one first. Of 1 and a NaN, both are the NaN.
template <class Value>
struct Ordered {
    Value greater, lesser;
};
template <class Value, class One>
inline Ordered<Value> ordered(Value x, const One& one) {
    return {hardware_max(Value(one), x), hardware_min(Value(one), x)};
}

// 1 + x, without the low bits of the sum unless x is small enough to leave them alone; and what it lacks.
template <class Value, class Data>
inline HeadTail<Value> one_plus(Value x, const Data& data) {
    auto [greater, lesser] = ordered(x, data.one);
    auto kept = (and_bits(x, data.magnitude) < data.small) | data.head_mask;
    Value head = and_bits(greater + lesser, kept);
    return {head, (greater - head) + lesser};
}

template <class Value, class Data>
inline auto out_of_range(Value x, const Data& data) {
    return (x < data.lowest) | ~(x <= data.highest);
}

// 2^-k for s = y 2^k.
template <class Value, class Data>
inline Value scale_of(Value s, const Data& data) {
    return reinterpret_cast<Value>(data.scale_base - (bits(s) & data.exponent_field));
}

// ---- Accurate. ---------------------------------------------------------------------------------------------

struct log1pf {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(log1pf_data);
        auto [s, e] = one_plus(x, data);
        F4 y = as_float((bits(s) & data.mantissa) | data.exponent);
        F4 shifted = reciprocal_estimate(y) + data.shifter;
        F4 c = shifted - data.shifter;
        auto [row_high, row_low] = gather_pair(counted_from(128, data.rows), offsets_of(bits(shifted) << 3));
        F4 scaled_c = scale_of(s, data) * c;
        F4 a = s * scaled_c - data.one;
        F4 b = e * scaled_c;
        F4 r = a + b;
        F4 r_low = b - (r - a);

        F4 k = __builtin_convertvector(signed_lanes(unsigned_lanes(bits(s)) >> 23), F4);
        F4 high = k * data.ln2_high + row_high;
        F4 low = k * data.ln2_low + row_low;
        F4 q = (r * data.c1 + data.c0) * (r * r) + r_low;
        F4 sum = high + r;
        F4 result = ((low + (r - (sum - high))) + q) + sum;
        return {or_bits(result, bits(x) & data.sign), out_of_range(x, data)};
    }
    static constexpr auto rare = log1pf_rare;
};

struct log1p {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(log1p_data);
        auto [s, e] = one_plus(x, data);
        Reciprocal about = short_reciprocal(s, data.reciprocal);
        auto [row_high, row_low] = gather_pair(counted_from(512, data.rows), offsets_of(about.c_in_low_half << 4));
        D2 a = reduced_argument(about, data.reciprocal);
        D2 b = e * (scale_of(s, data) * about.c);
        D2 r = a + b;
        D2 r_low = b - (r - a);

        D2 k = small_integer_to_double(signed_lanes(unsigned_lanes(bits(s)) >> 52), data.two_to_52);
        D2 high = k * data.ln2_high + row_high;
        D2 low = (k * data.ln2_low + row_low) + r_low;
        D2 r2 = r * r;
        D2 q = ((r * data.a1 + data.a0) * r2 + (r * data.b1 + data.b0)) * r2 + low;
        D2 sum = high + r;
        D2 result = ((r - (sum - high)) + q) + sum;
        return {or_bits(result, bits(x) & data.sign), out_of_range(x, data)};
    }
    static constexpr auto rare = log1p_rare;
};

// ---- Native. -----------------------------------------------------------------------------------------------

struct log1pf_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(log1pf_native_data);
        auto [greater, lesser] = ordered(x, data.one);
        F4 s = greater + lesser;
        F4 e = (greater - s) + lesser;
        auto [k, f] = split_about_two_thirds(s, data.split);
        F4 scale = as_float(data.pattern_of_one - (k << 23));
        F4 r = (f - data.one) + e * scale;
        F4 q = horner(r, data.c3, data.c2, data.c1, data.c0);
        F4 result = __builtin_convertvector(k, F4) * data.ln2 + (q * r * r + r);
        return or_bits(result, bits(x) & data.sign);
    }
};

struct log1p_native {
    static D2 main(D2 x) {
        const auto& data = in_memory(log1p_native_data);
        auto [greater, lesser] = ordered(x, data.one);
        D2 s = greater + lesser;
        D2 e = (greater - s) + lesser;
        Reciprocal about = short_reciprocal(s, data.reciprocal);
        D2 n = exponent_for(s, about, data.exponent);
        D2 r = e * (scale_of(s, data) * about.c) + reduced_argument(about, data.reciprocal);
        D2 q = (r * data.b1 + data.b0) * r * r;
        return q + ((r + gather_for(about, data.rows)) + n * data.ln2);
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
