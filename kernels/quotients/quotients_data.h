// Constants of the reciprocal, division and square root families.
#pragma once

#include "frame/polynomial.h"
#include "frame/record.h"

namespace zorv {

struct InvfData {
    Slot<float> zero, one;
};
struct DivfData {
    Slot<float> zero;
};
struct InvData {
    Slot<double> zero, one;
    Slot<int64_t> all_but_exponent;
};
struct DivData {
    Slot<double> zero;
    Slot<int64_t> all_but_exponent;
};
// inv_native and div_native: the batched reciprocal.
struct BatchedReciprocalData {
    Slot<double> one;
    Slot<int64_t> sign_and_mantissa;
    Slot<int32_t> exponent_field, reciprocal_exponent;  // on the high halves
};
struct SqrtfData {
    Slot<float> half;
    Slot<int32_t> smallest_normal_negated, last_rare;
};
struct RsqrtfData {
    Slot<int32_t> estimate_mask;
    Slot<float> one;
    Coefficients<float, 3> p;
    Slot<int32_t> smallest_normal_negated, last_rare;
};
// The operand of a double rsqrt rebuilt as a float in [1, 4), and the power of two taken out.
struct FloatSeedData {
    Slot<int64_t> exponent, exponent_lowest_bit, low_mask, float_exponent_base, scale_base;
};
struct RsqrtData {
    FloatSeedData seed;
    Slot<int64_t> split_mask;
    Slot<double> one;
    Coefficients<double, 4> p;
    Slot<int32_t> smallest_normal_negated, last_rare;  // on the high halves
};
struct RsqrtNativeData {
    FloatSeedData seed;
    Slot<double> one;
    Coefficients<double, 3> q;
};

HIDDEN extern const InvfData invf_data;
HIDDEN extern const DivfData divf_data;
HIDDEN extern const InvData inv_data;
HIDDEN extern const DivData div_data;
HIDDEN extern const BatchedReciprocalData inv_native_data;
HIDDEN extern const BatchedReciprocalData div_native_data;
HIDDEN extern const SqrtfData sqrtf_data;
HIDDEN extern const SqrtfData sqrtf_native_data;
HIDDEN extern const RsqrtfData rsqrtf_data;
HIDDEN extern const RsqrtData rsqrt_data;
HIDDEN extern const RsqrtNativeData rsqrt_native_data;

// The rare lanes' (1 - r)^(-1/2) - 1 - r/2, over r^2.
struct RsqrtRareData {
    ScalarCoefficients<double, 7> p;
};
HIDDEN extern const RsqrtRareData rsqrt_rare_data;

// Seeds of the rare lanes: 1/sqrt of [1, 2), then of [2, 4), by the leading mantissa bits.
HIDDEN extern const double SQRT_SEED[512];
HIDDEN extern const double RSQRT_SEED[65];

}  // namespace zorv
