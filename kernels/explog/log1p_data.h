// Constants of log1p.
#pragma once

#include "frame/record.h"
#include "kernels/explog/log_reduction_data.h"

namespace zorv {

// Minus the logarithm of a short reciprocal, less the bias of an exponent field times ln 2.
template <class Float>
struct BiasedLogRow {
    Float high, low;
};

struct Log1pfData {
    Slot<float> one, small;
    Slot<int32_t> head_mask, magnitude, sign;
    Slot<int32_t> mantissa, exponent_field, exponent, scale_base;
    Slot<float> shifter;
    Slot<float> ln2_high, ln2_low, c1, c0;
    Slot<float> lowest, highest;
    alignas(64) BiasedLogRow<float> rows[129];
};
struct Log1pData {
    ReciprocalData reciprocal;
    Slot<double> one, small;
    Slot<int64_t> head_mask, magnitude, sign;
    Slot<int64_t> exponent_field, scale_base;
    Slot<double> two_to_52, ln2_high, ln2_low, a1, a0, b1, b0;
    Slot<double> lowest, highest;
    alignas(64) BiasedLogRow<double> rows[513];
};
struct Log1pfNativeData {
    Slot<float> one;
    MantissaSplitData split;
    Slot<int32_t> pattern_of_one, sign;
    Slot<float> c3, c2, c1, c0, ln2;
};
struct Log1pNativeData {
    ReciprocalData reciprocal;
    TableExponentData exponent;
    Slot<double> one;
    Slot<int64_t> exponent_field, scale_base;
    Slot<double> b1, b0, ln2;
    alignas(64) double rows[513];
};

HIDDEN extern const Log1pfData log1pf_data;
HIDDEN extern const Log1pData log1p_data;
HIDDEN extern const Log1pfNativeData log1pf_native_data;
HIDDEN extern const Log1pNativeData log1p_native_data;

}  // namespace zorv
