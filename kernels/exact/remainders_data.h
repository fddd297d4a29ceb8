// Constants of the remainders.
#pragma once

#include "frame/record.h"
#include "kernels/exact/exact_data.h"

namespace zorv {

// Where the main paths do not reach, told on floats or on the high halves of doubles.
struct QuotientRangeData {
    Slot<int32_t> exponent, magnitude;
    Slot<int32_t> largest_difference;       // of the exponent fields, in their place
    Slot<int32_t> divisor_base, last_rare;  // |y| less the base, signed, above the last: y is out of range
};
template <class Float>
struct RemainderData {
    using Integer = typename IntegerOf<Float>::type;
    QuotientRangeData range;
    Slot<Integer> magnitude, sign, head;  // head: leading bits of y, whose product with a quotient is exact
    Slot<Float> shifter, one, half;
};

HIDDEN extern const RemainderData<float> fmodf_data, remainderf_data, remquof_data;
HIDDEN extern const RemainderData<double> fmod_data, remainder_data, remquo_data;

}  // namespace zorv
