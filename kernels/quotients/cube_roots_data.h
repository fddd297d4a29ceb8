// Constants and tables of the cube roots.
#pragma once

#include "frame/polynomial.h"
#include "frame/record.h"

namespace zorv {

// The mantissa of x about one of 32 centres c(i) = 1 + (2 i + 1)/64, both negated.
struct CentrefData {
    Slot<int32_t> mantissa, centre;         // of x; of the centre, its lowest bit among them
    Slot<int32_t> minus_one, minus_centre;  // what they are put into
    Slot<int32_t> row;                      // i, of the bits shifted right by 18
    Slot<int32_t> exponent, third;          // third: 1365, of 12 bits
    Slot<int32_t> sign, scale;
    Slot<int32_t> magnitude, smallest_normal_negated, last_rare;
};
// A row of a value table: the root of a centre times a power of two, in two parts.
struct RootRowf {
    float head, tail;
};
// A lane of exponent field 0 reads its value from 32 rows in front of the others.
struct CbrtfData {
    CentrefData centre;
    Coefficients<float, 4> p;
    alignas(64) float minus_reciprocal[32];  // -1/c(i)
    RootRowf values[32 + 96];                // zeros in front, for lanes that are repaired
};
struct CbrtfNativeData {
    CentrefData centre;
    Slot<float> p;
    alignas(64) float values[32 + 96];  // -1/c(i) in front: what such a lane is required to read
};

struct CentreData {
    Slot<int64_t> mantissa, centre;
    Slot<int64_t> minus_one, minus_centre;
    Slot<int64_t> row;               // i, of the bits shifted right by 47
    Slot<int64_t> magnitude, third;  // of 14 bits: 5462
    Slot<int64_t> sign, scale;
    Slot<int32_t> high_magnitude, smallest_normal_negated, last_rare;  // on the high halves
};
struct CbrtData {
    CentreData centre;
    Coefficients<double, 7> p;
    alignas(64) double minus_reciprocal[32];
    double values[96];
};
struct CbrtNativeData {
    CentreData centre;
    Coefficients<double, 3> p;
    alignas(64) double minus_reciprocal[32];
    double values[96];
};
struct RcbrtData {
    CentreData centre;
    Coefficients<double, 8> p;
    alignas(64) double minus_reciprocal[32];
    alignas(64) double values[96][2];  // head, tail
};
struct RcbrtNativeData {
    CentreData centre;
    Coefficients<double, 4> p;
    alignas(64) double minus_reciprocal[32];
    double values[96];
};

HIDDEN extern const CbrtfData cbrtf_data, rcbrtf_data;
HIDDEN extern const CbrtfNativeData cbrtf_native_data, rcbrtf_native_data;
HIDDEN extern const CbrtData cbrt_data;
HIDDEN extern const CbrtNativeData cbrt_native_data;
HIDDEN extern const RcbrtData rcbrt_data;
HIDDEN extern const RcbrtNativeData rcbrt_native_data;

struct CbrtRareData {
    Scalar<double> subnormal_scale;
    Scalar<double> mantissa_split, split;  // 2^43 + 1, 2^27 + 1
    ScalarCoefficients<double, 11> p;
    Scalar<double> two_thirds, two_thirds_tail;
    struct {
        Scalar<double> head, tail;
    } scale[3];       // 2^(j/3)
    double seed[32];  // (1 + i/32)^(-1/3), rounded down to a multiple of 1/256
};
struct RcbrtRareData {
    Scalar<double> subnormal_scale;
    Scalar<double> split;              // 2^37
    Scalar<double> to_thirty_seconds;  // 2^47 + 1: the sum's lowest bit weighs 1/32
    Scalar<double> third, third_tail;  // a short 1/3, what it is too large by
    ScalarCoefficients<double, 7> p;
    double seed[97];  // (2^j (1 + i/32))^(-1/3), to a multiple of 1/256, in row 32 j + i
};
HIDDEN extern const CbrtRareData cbrt_rare_data;
HIDDEN extern const RcbrtRareData rcbrt_rare_data;

}  // namespace zorv
