// Constants of log_reduction.h.
#pragma once

#include "frame/record.h"

namespace zorv {

struct MantissaSplitData {
    Slot<int32_t> two_thirds, mantissa;
    Slot<float> one;
};
struct ReciprocalData {
    Slot<int64_t> mantissa, exponent;
    Slot<double> shifter, one;
};
struct TableExponentData {
    Slot<double> middle;
    Slot<int64_t> shifter;
    Slot<double> shifter_and_bias;
};

}  // namespace zorv
