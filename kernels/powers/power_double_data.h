// Constants of the double precision powers and of the roots in both precisions.
#pragma once

#include "frame/pairs.h"
#include "frame/polynomial.h"
#include "frame/record.h"

namespace zorv {

// pow, powr, pown and rootn have one record: they differ in their operands, and rootn in the order of its last sums.
struct PowerDoubleData {
    Slot<int64_t> mantissa;
    Slot<double> one;
    Slot<int64_t> row_bits, half_row;
    Slot<int32_t> next_exponent, exponent_bias;  // of high halves
    Slot<int64_t> high_half;
    Slot<double> bias;
    Slot<int64_t> head;
    Slot<double> log2_e;
    Coefficients<double, 6> log;
    Slot<double> shifter;
    Slot<int64_t> power_row, exponent_field;
    Coefficients<double, 5> exp2;
    Slot<double> split;
    Slot<int64_t> magnitude, sign;
    Slot<int32_t> one_step, two_steps, last_exponent, last_product;  // of high halves
    alignas(64) double c[1025];                // row i serves mantissas about 1 + i/1024: log2(e)/(1 + i/1024)
    alignas(64) HeadTail<double> logs[1025];   // log2 of what c takes away
    alignas(64) HeadTail<double> powers[128];  // 2^(j/128)
};

struct PowerNativeDoubleData {
    Slot<int64_t> mantissa, scaled_exponent;
    Slot<double> two_to_52, shifter;
    Slot<double> middle;
    Slot<int64_t> bias_above, bias;
    Slot<double> one;
    Slot<double> a, b;
    Slot<double> ln2;
    Slot<double> steps_per_unit, half, step;
    Slot<int64_t> power_row;
    Slot<int64_t> magnitude, sign;
    alignas(64) double logs[513];
    alignas(64) double powers[2048];
};

struct RootFloatData {
    Slot<float> one;
    Slot<int32_t> magnitude, one_step, last_ordinary, last_finite, last_product;
};

HIDDEN extern const PowerDoubleData power_double_data;
HIDDEN extern const PowerNativeDoubleData power_native_double_data;
HIDDEN extern const RootFloatData rootf_data;

}  // namespace zorv
