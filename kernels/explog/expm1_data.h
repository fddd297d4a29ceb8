// Constants of expm1.
#pragma once

#include "frame/record.h"

namespace zorv {

// One sum puts k steps of 1/N to where its bits are the offset of a table row, and above it the exponent of 2^(k/N),
// rounded down, with its bias.
template <class Float, class Integer>
struct StepData {
    Slot<Float> steps_per_unit, shifter, field_shifter;
    Slot<Integer> row_offset, exponent;
};
// 2^(j/N): the leading bits of its mantissa field, and what the number that has them lacks.
template <class Field, class Float>
struct PowerRow {
    Field field;
    Float rest;
};

struct Expm1fData {
    StepData<float, int32_t> steps;
    PackedSlot<float> step_high, step_low;
    PackedSlot<float> c3, c2;
    PackedSlot<float> one, last_ordinary;
    PackedSlot<int32_t> sign, magnitude;
    alignas(64) PowerRow<uint32_t, float> powers[64];
};
struct Expm1Data {
    StepData<double, int64_t> steps;
    Slot<double> step_high, step_low;
    Slot<double> c5, c4, c3, c2;
    Slot<double> one, last_ordinary;
    Slot<int64_t> sign, magnitude;
    alignas(64) PowerRow<uint64_t, double> powers[128];
};
struct Expm1fNativeData {
    StepData<float, int32_t> steps;
    PackedSlot<float> step, c2, one;
    PackedSlot<int32_t> sign;
    alignas(64) uint32_t powers[32];
};
struct Expm1NativeData {
    StepData<double, int64_t> steps;
    Slot<double> step, c3, c2, one;
    Slot<int64_t> sign;
    alignas(64) uint64_t powers[128];
};

HIDDEN extern const Expm1fData expm1f_data;
HIDDEN extern const Expm1Data expm1_data;
HIDDEN extern const Expm1fNativeData expm1f_native_data;
HIDDEN extern const Expm1NativeData expm1_native_data;

}  // namespace zorv
