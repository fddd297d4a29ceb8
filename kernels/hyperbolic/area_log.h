// The logarithm that ends the inverse hyperbolic functions: of a sum with 1 that is kept as head and tail.
#pragma once

#include "frame/gather.h"
#include "frame/pairs.h"
#include "kernels/hyperbolic/area_data.h"

namespace zorv {

// ---- Single precision. -------------------------------------------------------------------------------------

// t + 1 exactly. A NaN comes through.
inline HeadTail<F4> plus_one(F4 t, F4 one) {
    F4 high = hardware_max(one, t), low = hardware_min(one, t);
    F4 head = high + low;
    return {head, (high - head) + low};
}

// ln(2^k (head + tail)): one integer subtraction splits the head about 2/3, the tail follows its scale.
//
//   head = f 2^ex,   r = f - 1 + tail 2^-ex,   ln = (ex + k) ln 2 + r + r^2 P(r)
template <int terms>
inline F4 area_log(HeadTail<F4> x, F4 k, const AreaLogfData<terms>& data) {
    I4 t = bits(x.head) - data.two_thirds;
    I4 ex = t >> 23;
    F4 f = as_float((t & data.mantissa) + data.two_thirds);
    F4 scale = as_float(bits(data.one) - (ex << 23));
    F4 r = (f - data.one) + x.tail * scale;
    F4 p = horner(r, data.p) * r * r + r;
    return (__builtin_convertvector(ex, F4) + k) * data.ln2 + p;
}

// ---- Double precision. -------------------------------------------------------------------------------------

// t + tail + 1. The head has some low bits cleared, so that its product with a ten-bit number is exact; where t is tiny
// it keeps them, being 1 or next to it.
inline HeadTail<D2> plus_one(D2 t, D2 one, const ShortHeadData& data) {
    D2 high = hardware_max(one, t), low = hardware_min(one, t);
    D2 head = and_bits(high + low, (t < data.tiny) | data.head);
    return {head, (high - head) + low};
}

// ln(2^k (head + tail)), by a reciprocal of ten bits from the hardware's estimate:
//
//   head = m 2^ex 2^10,   R near 1/m,   f = head R 2^(-ex - 10) - 1 + tail R 2^(-ex - 10)
//   ln = f + f^2 P(f) - ln(R/1024) + (ex + k) ln 2
//
// Where R is not above 724, the scale is doubled and ex less by one, to keep the last two terms from cancelling.
template <int terms>
inline D2 area_log(HeadTail<D2> x, D2 k, const AreaLogData<terms>& data) {
    D2 m = or_bits(and_bits(x.head, data.mantissa), bits(data.two_to_minus_10));
    D2 shifted = reciprocal_estimate(m) + data.shifter;
    D2 reciprocal = shifted - data.shifter;
    LaneOffsets2 at = offsets_of(bits(shifted));  // R itself, from 512 on
    for (uint32_t& index : at.lane) index -= 512;
    D2 minus_log = gather_indexed(data.minus_log, at);
    D2 scaled = as_double(bits(data.scale_base) - (bits(x.head) & data.exponent)) * reciprocal;
    D2 f = add_in_order(x.head * scaled - data.one, x.tail * scaled);
    // The sign bit counts with the exponent.
    D2 ex = small_integer_to_double(signed_lanes(unsigned_lanes(bits(x.head)) >> 52), data.two_to_52);
    L2 upper = data.last_of_upper_half < reciprocal;
    D2 bias = or_bits(and_bits(data.bias_of_upper_half, upper), bits(data.bias_of_lower_half));
    D2 q = f * f;
    D2 p = paired(f, q, data.p) * q + f;
    return (p + minus_log) + ((ex + k) - bias) * data.ln2;
}

// ---- Both. -------------------------------------------------------------------------------------------------

// The argument of the logarithm, and the power of two that is to be added to it.
template <class Units>
struct AreaArgument {
    HeadTail<Units> sum;
    Units k;
};
// Where a is huge the sum has overflown or means nothing: there 2a = 2^31 (a 2^-30). NaN is not huge.
template <class Units, class Lane>
inline AreaArgument<Units> unless_huge(Units a, HeadTail<Units> sum, const HugeData<Lane>& data) {
    auto huge = a >= data.two_to_30;
    return {{select(huge, a * data.two_to_minus_30, sum.head), clear_bits(sum.tail, huge)},
            and_bits(Units(data.thirty_one), huge)};
}

}  // namespace zorv
