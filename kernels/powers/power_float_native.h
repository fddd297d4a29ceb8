// x^y by one logarithm and one exponential in plain floats: the native powers and roots in single precision.
//
//   x = f 2^k, f in [2/3, 4/3);   l = k ln 2 + ln f;   x^y = e^(l y)
//
// The error of the rounded product l y is the result's relative error: it grows with |l y|.
#pragma once

#include "frame/lane_frame.h"
#include "kernels/powers/power_float_data.h"

namespace zorv {
namespace {

// The pattern of x is split as it is, whatever it stands for.
ALWAYS_INLINE F4 power_by_one_product(F4 x, F4 y, const PowerFloatNativeData& data) {
    I4 m = bits(x) - data.two_thirds;
    F4 k = to_float(m >> 23);
    F4 f = as_float((m & data.mantissa) + data.two_thirds);
    F4 r = f - data.one;
    F4 s = horner(r, data.log) * r * r + r;
    F4 log = k * data.ln2_head + (k * data.ln2_tail + s);

    F4 product = log * y;
    F4 t = product * data.log2_e + data.shifter;
    F4 n = t - data.shifter;
    F4 rr = product - n * data.ln2;
    F4 p = horner(rr, data.exp);
    return as_float(bits(p) + (bits(t) << 23));
}

}  // namespace
}  // namespace zorv
