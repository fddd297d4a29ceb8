// Constants of the single precision powers.
#pragma once

#include "frame/polynomial.h"
#include "frame/record.h"

namespace zorv {

// x = 2^k f, f c = 1 + r: row i serves mantissas about 1 + i/64. A unit for each row.
struct alignas(16) PowerFloatRow {
    float log_head, log_tail;  // -ln c
    float c;
    float unused;
};

struct PowerFloatData {
    Slot<int32_t> exponent_bias, row_bits, half_row, mantissa, head_of_mantissa;
    Slot<int32_t> near_one_offset, near_one;
    Slot<float> one;
    Coefficients<float, 3> log;
    Slot<float> ln2_head, ln2_tail;  // of the logarithm
    Slot<float> split;
    Slot<float> log2_e, shifter, ln2_high, ln2_low;  // of the exponential
    Coefficients<float, 6> exp;
    Slot<int32_t> magnitude, sign, one_step, last_ordinary, last_finite, last_product;
    alignas(64) PowerFloatRow rows[65];
};

struct PowerFloatNativeData {
    Slot<int32_t> two_thirds, mantissa, magnitude, sign;
    Slot<float> one;
    Coefficients<float, 6> log;
    Slot<float> ln2_head, ln2_tail;
    Slot<float> log2_e, shifter, ln2;
    Coefficients<float, 4> exp;
};

// pow and powr differ in their rare lanes alone.
HIDDEN extern const PowerFloatData powf_data;
HIDDEN extern const PowerFloatData pownf_data;
HIDDEN extern const PowerFloatNativeData powf_native_data;
HIDDEN extern const PowerFloatNativeData pownf_native_data;  // of rootn too

}  // namespace zorv
