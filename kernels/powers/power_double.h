// Powers on double units: the chains that pow and the roots have in common.
#pragma once

#include "frame/gather.h"
#include "frame/lane_frame.h"
#include "frame/pairs.h"
#include "kernels/powers/power_double_data.h"

namespace zorv {
namespace {

// ---- Accurate: base 2, heads and tails. --------------------------------------------------------------------

// A logarithm whose head is cut in two: high has 26 significant bits.
struct SplitLog {
    D2 high, middle, tail;
};

// log2 x of a positive normal number:
//   x = 2^E m,  m c = log2(e) (1 + z) with c from a table of 1025 rows;  log2 x = E + log2(log2(e)/c) + log2(1 + z)
// The rounding error of m c is exact, by the halves of m.
ALWAYS_INLINE SplitLog logarithm(D2 x, const PowerDoubleData& data) {
    D2 m = or_bits(and_bits(x, data.mantissa), bits(D2(data.one)));
    L2 rounded = (bits(x) & data.row_bits) + data.half_row;
    LaneOffsets2 row = offsets_of_words(signed_lanes(unsigned_lanes(rounded) >> 42));
    D2 c = gather_indexed(data.c, row);
    ColumnPair log = gather_pair(&data.logs[0].head, LaneOffsets2{{row.lane[0] * 16, row.lane[1] * 16}});

    I4 e = ((halves(x) - data.next_exponent) >> 20) + data.exponent_bias;
    D2 exponent = as_double(from_halves(e) & data.high_half) - data.bias;

    auto [m_head, m_tail] = split_by_mask(m, data.head);
    D2 v = m * c;
    D2 error = m_tail * c + (m_head * c - v);
    D2 z = v + data.log2_e;

    D2 s1 = exponent + log.first;
    auto [s2, tail2] = fast_two_sum(s1, z);
    auto [s3, tail3] = fast_two_sum(s2, error);
    D2 w = z + error;
    D2 low = (tail3 + tail2) + log.second;
    D2 q = horner(w, data.log) * w + low;
    D2 head = s3 + q;
    D2 tail = q - (head - s3);
    auto [high, middle] = split_by_mask(head, data.head);
    return {high, middle, tail};
}

// What 2^product + tail is made of: 2^n, j/128 as the offset of its row, and the rest.
struct SplitProduct {
    D2 power_of_two;
    LaneOffsets2 row;
    D2 rest;
};
ALWAYS_INLINE SplitProduct split_product(D2 product, D2 tail, const PowerDoubleData& record) {
    const auto& data = in_memory(record);  // anew, else constants of the logarithm are kept, and spilled
    D2 t = product + data.shifter;
    D2 u = t - data.shifter;
    D2 rest = tail + (product - u);
    L2 row = (bits(t) << 4) & data.power_row;
    D2 power_of_two = as_double(((bits(t) << 45) + bits(D2(data.one))) & data.exponent_field);
    return {power_of_two, offsets_of_words(row), rest};
}

// Masks of high halves alone, of which signed compares decide.
ALWAYS_INLINE I4 not_positive_normal(D2 x, const PowerDoubleData& data) {
    return halves(x) + data.one_step < data.two_steps;
}
ALWAYS_INLINE I4 magnitude_above(D2 x, const PackedSlot<int32_t>& bound, const PowerDoubleData& data) {
    return halves(and_bits(x, data.magnitude)) > bound;
}

// ---- Native: base e, one logarithm and one exponential in plain doubles. ------------------------------------

// ln x by the hardware's reciprocal estimate:
//   x = y 2^n,  y c = 1 + r with an integer c from 512 to 1024;  ln x = n ln 2 - ln c + ln(1 + r)
// The pattern of x is split as it is, its sign counting as a bit of the exponent.
ALWAYS_INLINE D2 plain_logarithm(D2 x, const PowerNativeDoubleData& data) {
    D2 y = or_bits(and_bits(x, data.mantissa), data.scaled_exponent);
    D2 h = small_integer_to_double(signed_lanes(unsigned_lanes(bits(x)) >> 52), data.two_to_52);
    D2 c = (reciprocal_estimate(y) + data.shifter) - data.shifter;
    D2 bias = as_double((L2(data.middle < c) & data.bias_above) | data.bias);
    D2 n = h - bias;
    D2 r = y * c - data.one;

    // The patterns of c from 512 on, in units of eight bytes, begin at 0x408000; of that pextrw takes the low 16 bits.
    const double* row_at_zero = reinterpret_cast<const double*>(reinterpret_cast<const char*>(data.logs) - 0x8000);
    D2 minus_log_c = gather(row_at_zero, offsets_of_words(signed_lanes(unsigned_lanes(bits(c)) >> 40)));

    D2 s = r + (data.a * r + data.b) * (r * r);
    return (s + minus_log_c) + n * data.ln2;
}

// e^product by a table of 2048 rows and a first degree. Rounded down, up to ties, so that the rest is not negative.
ALWAYS_INLINE D2 plain_exponential(D2 product, const PowerNativeDoubleData& data) {
    D2 v = product * data.steps_per_unit;
    D2 t = (v - data.half) + data.shifter;
    D2 k = t - data.shifter;
    D2 row = gather_indexed(data.powers, offsets_of(bits(t) & data.power_row));
    L2 exponent = signed_lanes(unsigned_lanes(bits(t)) >> 11 << 52);
    D2 rest = (v - k) * data.step;
    return as_double(bits(row * rest + row) + exponent);
}

ALWAYS_INLINE D2 power_by_one_product(D2 x, D2 y, const PowerNativeDoubleData& data) {
    return plain_exponential(plain_logarithm(x, data) * y, data);
}

}  // namespace
}  // namespace zorv
