// Constants of the hypotenuse.
#pragma once

#include "frame/polynomial.h"
#include "frame/record.h"

namespace zorv {

struct HypotfData {
    Slot<float> half;
    Slot<int32_t> smallest, largest;  // sums of squares that need no scaling
};
struct HypotData {
    Slot<double> one;
    Coefficients<double, 4> p;
    Slot<int32_t> smallest, largest;  // on the high halves
};
struct HypotNativeData {
    Slot<double> one;
    Coefficients<double, 2> p;
};

HIDDEN extern const HypotfData hypotf_data;
HIDDEN extern const HypotData hypot_data;
HIDDEN extern const HypotNativeData hypot_native_data;

}  // namespace zorv
