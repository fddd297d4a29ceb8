// Constants and tables of the tangent families, and of the pi-scaled tangent.
#pragma once

#include "frame/polynomial.h"
#include "frame/record.h"

namespace zorv {

// The short path: pi/2 in parts, the highest first, of which N times all but the last are short; tan y as y times one
// polynomial in y^2 over another.
template <class Float, class Integer, int parts, int numerator_terms, int denominator_terms>
struct ShortTangentData {
    Slot<Integer> magnitude, sign;
    Slot<Float> limit;  // the largest argument of the short path
    Slot<Float> two_over_pi, shifter;
    Slot<Float> half_pi[parts];
    Coefficients<Float, numerator_terms> numerator;
    Coefficients<Float, denominator_terms> denominator;
};
HIDDEN extern const ShortTangentData<float, int32_t, 4, 2, 3> tanf_data;
HIDDEN extern const ShortTangentData<float, int32_t, 3, 2, 3> tanf_native_data;
HIDDEN extern const ShortTangentData<double, int64_t, 4, 4, 4> tan_data;
HIDDEN extern const ShortTangentData<double, int64_t, 3, 3, 3> tan_native_data;

// Local expansions of the tangent; tan_expansion.h. Rows are one and two cache lines, of which an index makes an
// offset by one shift.
struct alignas(64) TangentRowF {
    float pole_head, pole_tail, pole_weight, value_head;
    float value_tail, slope_head, slope_tail, c2;
    float c3, c4;
};
struct alignas(128) TangentRowD {
    double pole_head, pole_tail, pole_weight, value_head, value_tail, slope_head, slope_tail;
    double c2, c3, c4, c5, c6, c7;
};
HIDDEN extern const TangentRowF tan_table_f[128];
HIDDEN extern const TangentRowD tan_table_d[256];

struct TangentExpansionfData {
    Slot<int32_t> index_mask;  // half a turn
    Slot<int32_t> head_mask;   // keeps a head short enough for exact products with another
    Slot<float> one;
};
struct TangentExpansiondData {
    Slot<int64_t> index_mask;
    Slot<double> one;
};
HIDDEN extern const TangentExpansionfData tangent_expansionf_data;
HIDDEN extern const TangentExpansiondData tangent_expansiond_data;

template <class Float, class Integer>
struct PiScaledTangentData {
    Slot<Integer> magnitude, sign;
    Slot<Float> infinity;
    Slot<Float> big_limit, big_shifter;  // rounds to whole periods, of which none is left from the limit on
    Slot<Float> shifter;                 // rounds to the table's steps
    Slot<Float> pi;
};
HIDDEN extern const PiScaledTangentData<float, int32_t> tanpif_data;
HIDDEN extern const PiScaledTangentData<float, int32_t> tanpif_native_data;
HIDDEN extern const PiScaledTangentData<double, int64_t> tanpi_data;
HIDDEN extern const PiScaledTangentData<double, int64_t> tanpi_native_data;

}  // namespace zorv
