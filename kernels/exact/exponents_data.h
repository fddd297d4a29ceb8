// Constants of the exponent access: fields of a float, or of the high half of a double.
#pragma once

#include "frame/record.h"

namespace zorv {

struct ExponentData {
    Slot<int32_t> exponent;  // the field
};
struct FrexpData : ExponentData {
    Slot<int32_t> half;  // the field of numbers in [0.5, 1)
};
struct LdexpData : ExponentData {
    Slot<int32_t> lowest, highest;  // what n is clamped to
    Slot<int32_t> largest_field;
};
struct LogbData : ExponentData {
    Slot<int32_t> bias;
};
template <class Integer>
struct NextafterData : ExponentData {
    Slot<Integer> magnitude, one;
};

HIDDEN extern const FrexpData frexpf_data, frexp_data;
HIDDEN extern const LdexpData ldexpf_data, ldexp_data;
HIDDEN extern const LogbData logbf_data, logb_data, ilogbf_data, ilogb_data;
HIDDEN extern const NextafterData<int32_t> nextafterf_data;
HIDDEN extern const NextafterData<int64_t> nextafter_data;

}  // namespace zorv
