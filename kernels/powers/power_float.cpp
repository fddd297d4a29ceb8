// x^y in single precision: pow, powr (e^(y ln x), for x >= 0) and pown (an integer y).
//
//   x = 2^k f,   f c = 1 + r with c from a table of 65 rows
//   ln x = k ln 2 - ln c + ln(1 + r)    as a head H and a tail L
//   y ln x                              as a head and a tail: H and y are split into halves (Veltkamp), so that
//                                       the heads' product is exact
//   x^y = 2^n e^rr,   rr = y ln x - n ln 2
//
// pow and powr have one main path and differ in their special operands. pown takes |x| along and joins the sign of an
// odd power at the end; what a float cannot hold of n travels in the tail.
//
// Rare: x not positive (pown: |x|), subnormal, infinite, NaN or the largest float; y infinite or NaN; |y ln x| where
// the result could leave the normal range. pow draws that line at 64.8 already, where its error would grow.
#include "frame/gather.h"
#include "frame/lane_frame.h"
#include "frame/pairs.h"
#include "kernels/powers/power_float_data.h"
#include "kernels/powers/power_float_native.h"
#include "kernels/powers/power_rare.h"

namespace zorv {
namespace {

// ---- Rare lanes. -------------------------------------------------------------------------------------------

Status powf_rare(const float* x, const float* y, float* result) {
    return power(power_rare_float_data, *x, exponent_of(*y), result);
}
Status powrf_rare(const float* x, const float* y, float* result) {
    return power_of_positive(power_rare_float_data, *x, *y, result);
}
// 2^31, to which the largest n round, converts to the indefinite integer -2^31: the difference wraps to the right one.
Status pownf_rare(const float* x, const int32_t* n, float* result) {
    float y = static_cast<float>(*n);
    int32_t back = _mm_cvttss_si32(__m128{y, 0, 0, 0});
    int32_t lost = static_cast<int32_t>(static_cast<uint32_t>(*n) - static_cast<uint32_t>(back));
    return power(power_rare_float_data, *x,
                 Exponent<float>{y, static_cast<float>(lost), *n & 1 ? Parity::odd : Parity::even}, result);
}

// ---- Accurate. ---------------------------------------------------------------------------------------------

// ln x of a positive normal number. The reduced mantissa is r = a + b, a exact: near 1, where the head is small, b
// belongs to it, elsewhere to the tail.
ALWAYS_INLINE HeadTail<F4> logarithm(F4 x, const PowerFloatData& data) {
    F4 k = to_float(signed_lanes(unsigned_lanes(bits(x)) >> 23) - data.exponent_bias);
    I4 row = ((bits(x) & data.row_bits) + data.half_row) >> 17;
    Columns columns = gather_rows(&data.rows[0].log_head, offsets_of(row << 4));
    F4 log_head = columns.column[0], log_tail = columns.column[1], c = columns.column[2];

    F4 f = or_bits(and_bits(x, data.mantissa), bits(F4(data.one)));
    auto [f_head, f_tail] = split_by_mask(f, data.head_of_mantissa);
    F4 a = f_head * c - data.one;
    F4 b = f_tail * c;
    F4 r = a + b;
    F4 q = horner(r, data.log) * (r * r);
    F4 head = k * data.ln2_head + (a + log_head);
    F4 tail = q + (k * data.ln2_tail + log_tail);

    I4 near_one = bits(x) + data.near_one_offset > data.near_one;
    return {head + and_bits(b, near_one), tail + clear_bits(b, near_one)};
}

struct Power {
    F4 power, product;  // the head of y ln x
};
ALWAYS_INLINE Power power_by_pairs(HeadTail<F4> log, HeadTail<F4> y, const PowerFloatData& data) {
    F4 sum = log.head + log.tail;
    F4 w = sum * data.split;
    F4 log_high = (sum + w) - w;
    F4 log_low = log.tail + (log.head - log_high);
    F4 high = log_high * y.head;  // exact
    F4 low = log_low * y.head + (log_high * y.tail + log_low * y.tail);

    F4 t = high * data.log2_e + data.shifter;
    F4 n = t - data.shifter;
    F4 rr = ((high - n * data.ln2_high) - n * data.ln2_low) + low;
    F4 p = horner(rr, data.exp);
    return {as_float(bits(p) + (bits(t) << 23)), high};
}

// By signed patterns. The largest float falls to the rare lanes with the infinities.
ALWAYS_INLINE I4 not_ordinary(F4 x, const PowerFloatData& data) { return bits(x) - data.one_step > data.last_ordinary; }
ALWAYS_INLINE I4 magnitude_above(F4 x, const PackedSlot<int32_t>& bound, const PowerFloatData& data) {
    return (bits(x) & data.magnitude) > bound;
}

// Error 10.06 ulp, the largest found, at (0x1.f97f68p-1, -0x1.3cd00cp+12): y takes all errors of the logarithm along,
// and near the bound the tail of y ln x carries rr beyond the polynomial's interval. Rare lanes 1.65.
struct powf {
    static Lanes<F4> main(F4 x, F4 y) {
        const auto& data = in_memory(powf_data);
        auto [result, product] = power_by_pairs(logarithm(x, data), split_by_product(y, F4(data.split)), data);
        return {result, not_ordinary(x, data) | magnitude_above(y, data.last_finite, data) |
                            magnitude_above(product, data.last_product, data)};
    }
    static constexpr auto rare = powf_rare;
};

struct powrf {
    static Lanes<F4> main(F4 x, F4 y) { return powf::main(x, y); }
    static constexpr auto rare = powrf_rare;
};

// Error 11.01 ulp, the largest found, at (0x1.fbfec6p-1, -9926); rare lanes 1.65. x^0 is one ulp above 1.
struct pownf {
    static Lanes<F4> main(F4 x, I4 n) {
        const auto& data = in_memory(pownf_data);
        F4 magnitude = and_bits(x, data.magnitude);
        HeadTail<F4> log = logarithm(magnitude, data);
        F4 y = to_float(n);
        F4 lost = to_float(n - hardware_int(y));  // modulo 2^32: right where y is 2^31 too
        auto [y_head, y_tail] = split_by_product(y, F4(data.split));
        auto [result, product] = power_by_pairs(log, {y_head, y_tail + lost}, data);
        I4 sign = (n << 31) & bits(x);
        return {or_bits(result, sign),
                not_ordinary(magnitude, data) | magnitude_above(product, data.last_product, data)};
    }
    static constexpr auto rare = pownf_rare;
};

// ---- Native. -----------------------------------------------------------------------------------------------

// Error 4,470 ulp, the largest found, at (0x1.555752p+0, -0x1.2e5b88p+8).
struct powf_native {
    static F4 main(F4 x, F4 y) { return power_by_one_product(x, y, in_memory(powf_native_data)); }
};
using powrf_native = powf_native;

// Error 4,941 ulp, the largest found, at (0x1.5565a4p+0, -301).
struct pownf_native {
    static F4 main(F4 x, I4 n) {
        const auto& data = in_memory(pownf_native_data);
        I4 sign = (n << 31) & bits(x);
        return or_bits(power_by_one_product(and_bits(x, data.magnitude), to_float(n), data), sign);
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
