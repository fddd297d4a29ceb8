// Constants of the scalar logarithms in rare_log.h.
#pragma once

#include "frame/polynomial.h"

namespace zorv {

// Row i serves mantissas about 1 + i/64: a short reciprocal, times the unit of the routine, and minus its logarithm in
// two parts.
template <class Float>
struct LogRareRow {
    Float c, high, low;
};
template <class Float>
struct TwoParts {
    Scalar<Float> high, low;
};
// What moves a subnormal to the normal range, and by how many exponents.
template <class Float>
struct SubnormalScale {
    Scalar<Float> factor;
    int exponents;
};
// What splits a mantissa in [1, 2): to the head's grid, and to multiples of 1/64, whose number stands in the low bits.
template <class Float>
struct MantissaCutData {
    Scalar<Float> head_shifter, row_shifter;
};

template <class Float>
struct NaturalLogRareData {
    SubnormalScale<Float> subnormal;
    MantissaCutData<Float> cut;
    Scalar<Float> near_one;
    ScalarCoefficients<Float, 7> p;
    TwoParts<Float> log_2, log_2_of_subnormals;
    LogRareRow<Float> rows[65];
};
template <class Float>
struct ScaledLogRareData {
    SubnormalScale<Float> subnormal;
    MantissaCutData<Float> cut;
    Scalar<Float> near_one, unit;
    ScalarCoefficients<Float, 8> p;
    TwoParts<Float> log_2;
    LogRareRow<Float> rows[65];
};

HIDDEN extern const NaturalLogRareData<float> logf_rare_data;
HIDDEN extern const ScaledLogRareData<float> log2f_rare_data;
HIDDEN extern const ScaledLogRareData<float> log10f_rare_data;
HIDDEN extern const NaturalLogRareData<double> log_rare_data;
HIDDEN extern const ScaledLogRareData<double> log10_rare_data;

}  // namespace zorv
