// How the logarithms take a power of two out of their operand.
#pragma once

#include "frame/gather.h"
#include "frame/pairs.h"
#include "kernels/explog/log_reduction_data.h"

namespace zorv {

// ---- Single precision: x = f 2^k, f in [2/3, 4/3), by integer arithmetic on the pattern. -------------------------

struct FractionSplit {
    I4 k;
    F4 f;
};
inline FractionSplit split_about_two_thirds(F4 x, const MantissaSplitData& data) {
    I4 m = bits(x) - data.two_thirds;
    return {m >> 23, as_float((m & data.mantissa) + data.two_thirds)};
}

// k, and r = f - 1, exact.
struct Split {
    F4 k, r;
};
inline Split split(F4 x, const MantissaSplitData& data) {
    auto [k, f] = split_about_two_thirds(x, data);
    return {__builtin_convertvector(k, F4), f - data.one};
}

// ---- Double precision: y c = 1 + r, where y is the mantissa of x in [2^-10, 2^-9), and c, an integer from 512 to
// 1024, the hardware's estimate of 1/y. Then log x = log(1 + r) - log(c/1024) + k log 2, k the exponent of x.

struct Reciprocal {
    D2 y, c;
    L2 c_in_low_half;
};
inline Reciprocal short_reciprocal(D2 x, const ReciprocalData& data) {
    D2 y = as_double((bits(x) & data.mantissa) | data.exponent);
    D2 shifted = reciprocal_estimate(y) + data.shifter;
    return {y, shifted - data.shifter, bits(shifted)};
}
// What stands for c in a table that begins with c = 512.
inline D2 gather_for(Reciprocal about, const double* table) {
    return gather_indexed(counted_from(512, table), offsets_of(about.c_in_low_half));
}

// The tables of the plain logarithms hold log(512/c), and log(1024/c) above c = 724, so that they are small for x near
// 1 on either side: the exponent of x, then one higher in the lower half. (Biased exponent and sign, less 1023 or
// 1022.)
inline D2 exponent_for(D2 x, Reciprocal about, const TableExponentData& data) {
    L2 field = signed_lanes(unsigned_lanes(bits(x)) >> 52);
    L2 minus_one_above = about.c > data.middle;
    return as_double((field | data.shifter) + minus_one_above) - data.shifter_and_bias;
}

// r with one rounding more; and with the head of y multiplied exactly.
inline D2 reduced_argument(Reciprocal about, const ReciprocalData& data) { return about.y * about.c - data.one; }
inline D2 reduced_argument(Reciprocal about, const ReciprocalData& data, const Slot<int64_t>& head_mask) {
    auto [head, tail] = split_by_mask(about.y, head_mask);
    D2 a = head * about.c - data.one;
    return a + tail * about.c;
}

}  // namespace zorv
