// Constants of the exact operations.
#pragma once

#include "frame/record.h"

namespace zorv {

// The integers of a lane's size.
template <class Float>
struct IntegerOf {
    using type = int32_t;
};
template <>
struct IntegerOf<double> {
    using type = int64_t;
};

// Where an operand is infinite or NaN: the exponent field; in double on the high halves.
struct SpecialData {
    Slot<int32_t> exponent_field;
};
template <class Float>
struct MagnitudeData : SpecialData {
    Slot<typename IntegerOf<Float>::type> sign;
};

template <class Float>
struct IntegralData {
    Slot<typename IntegerOf<Float>::type> sign;
    Slot<Float> shifter, step;
};
template <class Float>
struct RoundData {
    Slot<typename IntegerOf<Float>::type> sign;
    Slot<Float> shifter, half, one;
};
template <class Float>
struct ModfData : IntegralData<Float>, SpecialData {};
template <class Float>
struct FractData : IntegralData<Float>, SpecialData {
    Slot<Float> below_one;
};

HIDDEN extern const SpecialData fminf_data, fmin_data, fmaxf_data, fmax_data, fdimf_data, fdim_data;
HIDDEN extern const MagnitudeData<float> maxmagf_data, minmagf_data;
HIDDEN extern const MagnitudeData<double> maxmag_data, minmag_data;

HIDDEN extern const IntegralData<float> ceilf_data, floorf_data, truncf_data, rintf_data;
HIDDEN extern const IntegralData<double> ceil_data, floor_data, trunc_data, rint_data;
HIDDEN extern const RoundData<float> roundf_data;
HIDDEN extern const RoundData<double> round_data;
HIDDEN extern const ModfData<float> modff_data;
HIDDEN extern const ModfData<double> modf_data;
HIDDEN extern const FractData<float> fractf_data;
HIDDEN extern const FractData<double> fract_data;

}  // namespace zorv
