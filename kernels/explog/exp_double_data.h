// Constants of the double precision exponentials.
#pragma once

#include "frame/polynomial.h"

namespace zorv {

struct ExpData {
    Slot<double> steps_per_unit, shifter, step_high, step_low;
    Slot<double> c2, c1, c0;
    Slot<int64_t> row_index;
    Slot<int32_t> magnitude, last_ordinary;  // on the high halves
    alignas(64) double powers[1024];         // 2^(i/1024)/c0
};
struct Exp2Data {
    Slot<double> shifter;
    Slot<double> c3, c2, c1, c0;
    Slot<int64_t> row_index;
    Slot<int32_t> magnitude, last_ordinary;  // on the high halves
    alignas(64) double powers[128];          // 2^(i/128)
};
struct Exp10Data {
    Slot<double> steps_per_unit, shifter, step_high, step_low;
    Slot<double> c4, c3, c2, c1, c0;
    Slot<int64_t> row_index, exponent;
    Slot<int32_t> magnitude, last_ordinary;  // on the high halves
    alignas(64) double powers[128];          // 2^(i/128)
};
struct ExpNativeData {
    Slot<double> steps_per_unit, shifter;
    Slot<double> c1, c0;
    Slot<int64_t> row_index;
    alignas(64) double powers[64];  // 2^(i/64)/c0
};
struct Exp2NativeData {
    Slot<double> shifter;
    Slot<double> c6, c5, c4, c3, c2, c1, c0;
};
struct Exp10NativeData {
    Slot<double> log2_10, shifter;
    Slot<double> c6, c5, c4, c3, c2, c1, c0;
};

HIDDEN extern const ExpData exp_data;
HIDDEN extern const Exp2Data exp2_data;
HIDDEN extern const Exp10Data exp10_data;
HIDDEN extern const ExpNativeData exp_native_data;
HIDDEN extern const Exp2NativeData exp2_native_data;
HIDDEN extern const Exp10NativeData exp10_native_data;

// e^x, 10^x and 2^x of a rare lane: 2^(j/64), rounded, and what it lacks, relative to it; a polynomial in the rest.
struct ExpRareRow {
    double power, rest;
};
struct Natural;
struct Decimal;
template <class Base>
struct ExpRareData {
    Scalar<double> last_finite, last_nonzero, last_normal;
    Scalar<double> steps_per_unit, step_high, step_low;
    ScalarCoefficients<double, 5> p;
    ExpRareRow rows[64];
};
struct Exp2RareData {
    Scalar<double> last_finite, last_nonzero, last_normal;
    ScalarCoefficients<double, 5> p;
    ExpRareRow rows[64];
};

HIDDEN extern const ExpRareData<Natural> exp_rare_data;
HIDDEN extern const ExpRareData<Decimal> exp10_rare_data;
HIDDEN extern const Exp2RareData exp2_rare_data;

}  // namespace zorv
