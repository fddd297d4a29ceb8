// Constants of the single precision exponentials and logarithms.
#pragma once

#include "frame/polynomial.h"
#include "frame/record.h"
#include "kernels/explog/log_reduction_data.h"

namespace zorv {

// ---- Exponentials. -----------------------------------------------------------------------------------------

struct ExpfData {
    Slot<float> log2_e, shifter, ln2_high, ln2_low;
    Coefficients<float, 6> p;
    Slot<int32_t> magnitude, last_ordinary;
};
struct Exp2fData {
    Slot<float> shifter;
    Coefficients<float, 7> p;
    Slot<int32_t> magnitude, last_ordinary;
};
struct Exp10fData {
    Slot<float> steps_per_unit, shifter, step_high, step_low;
    Coefficients<float, 2> p;
    Slot<int32_t> row_index, magnitude, last_ordinary;
    alignas(64) float powers[512];  // 2^(i/512)
};
struct ExpfNativeData {
    Slot<float> log2_e, shifter, ln2;
    Coefficients<float, 4> p;
};
struct Exp2fNativeData {
    Slot<float> shifter;
    Coefficients<float, 4> p;
};
struct Exp10fNativeData {
    Slot<float> log2_10, shifter;
    Coefficients<float, 4> p;
};

HIDDEN extern const ExpfData expf_data;
HIDDEN extern const Exp2fData exp2f_data;
HIDDEN extern const Exp10fData exp10f_data;
HIDDEN extern const ExpfNativeData expf_native_data;
HIDDEN extern const Exp2fNativeData exp2f_native_data;
HIDDEN extern const Exp10fNativeData exp10f_native_data;

// e^x and 10^x of a rare lane: k = x log2(base), rounded; x - k log(2) in two parts; a polynomial.
template <int degree>
struct ExponentialRareData {
    Scalar<float> last_finite, last_nonzero, last_normal;
    Scalar<float> log2_base, log_2_high, log_2_low;
    ScalarCoefficients<float, degree + 1> p;
};
struct Exp2fRareData {
    Scalar<float> last_finite, last_nonzero, last_normal;
    ScalarCoefficients<float, 6> p;
};

HIDDEN extern const ExponentialRareData<5> expf_rare_data;
HIDDEN extern const Exp2fRareData exp2f_rare_data;
HIDDEN extern const ExponentialRareData<6> exp10f_rare_data;

// ---- Logarithms. -------------------------------------------------------------------------------------------

struct LogfData {
    MantissaSplitData split;
    Coefficients<float, 9> q;
    PackedSlot<float> ln2_high, ln2_low;
    PackedSlot<int32_t> smallest_normal, twice_smallest_normal;
};
struct Log2fData {
    MantissaSplitData split;
    Coefficients<float, 8> a;
    Slot<float> log2_e;
    Slot<float> smallest_normal, largest;
};
struct Log10fData {
    MantissaSplitData split;
    Coefficients<float, 8> a;
    PackedSlot<float> log10_e, log10_2_high, log10_2_low;
    PackedSlot<float> smallest_normal, largest;
};
struct LogfNativeData {
    MantissaSplitData split;
    Coefficients<float, 3> q;
    PackedSlot<float> ln2;
};
struct Log2fNativeData {
    MantissaSplitData split;
    Coefficients<float, 5> a;
};
struct Log10fNativeData {
    MantissaSplitData split;
    Coefficients<float, 5> a;
    PackedSlot<float> log10_2;
};

HIDDEN extern const LogfData logf_data;
HIDDEN extern const Log2fData log2f_data;
HIDDEN extern const Log10fData log10f_data;
HIDDEN extern const LogfNativeData logf_native_data;
HIDDEN extern const Log2fNativeData log2f_native_data;
HIDDEN extern const Log10fNativeData log10f_native_data;

}  // namespace zorv
