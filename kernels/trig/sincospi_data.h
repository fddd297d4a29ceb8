// Constants of sin(pi x) and cos(pi x).
#pragma once

#include "frame/record.h"

namespace zorv {

template <class Float, class Integer, int coefficients>
struct PiScaledSineData {
    Slot<Integer> magnitude, sign;
    Slot<Float> limit;                   // the largest argument that the shifter alone reduces
    Slot<Float> big_limit, big_shifter;  // rounds to whole periods, of which none is left from the limit on
    Slot<Float> shifter, half, pi;
    Slot<Float> c[coefficients];  // of the sine, behind the leading 1, the lowest first
};
HIDDEN extern const PiScaledSineData<float, int32_t, 4> sinpif_data;
HIDDEN extern const PiScaledSineData<float, int32_t, 4> cospif_data;
HIDDEN extern const PiScaledSineData<float, int32_t, 2> sinpif_native_data;
HIDDEN extern const PiScaledSineData<float, int32_t, 2> cospif_native_data;
HIDDEN extern const PiScaledSineData<double, int64_t, 7> sinpi_data;
HIDDEN extern const PiScaledSineData<double, int64_t, 7> cospi_data;
HIDDEN extern const PiScaledSineData<double, int64_t, 4> sinpi_native_data;
HIDDEN extern const PiScaledSineData<double, int64_t, 4> cospi_native_data;

}  // namespace zorv
