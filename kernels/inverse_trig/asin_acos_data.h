// Constants of the arc sine and arc cosine, in radians and in half turns.
#pragma once

#include <type_traits>

#include "frame/polynomial.h"
#include "frame/record.h"

namespace zorv {

// The coefficients behind the leading term of the arc sine, highest power first, each with its own grouping.
struct FloatSeries {
    Coefficients<float, 4> pairs;
    PackedSlot<float> last;
};
struct NativeFloatSeries {
    Coefficients<float, 3> c;
};
struct DoubleSeries {
    Coefficients<double, 12> c;
};
struct NativeDoubleSeries {
    Coefficients<double, 6> c;
};
// In half turns the leading coefficient is 1/pi.
template <class Lane, class Series>
struct ScaledSeries {
    Series beyond;
    PackedSlot<Lane> inverse_pi;
};

template <class Lane, int root_terms, class Series>
struct ArcsineData {
    Slot<std::conditional_t<sizeof(Lane) == 4, int32_t, int64_t>> sign;
    Slot<Lane> half, one, two;
    Coefficients<Lane, root_terms> root;  // 1 - 1/sqrt(1 + e/2), over e
    Series series;
    Slot<Lane> quarter_turn, half_turn;  // in the unit of the result
};

using AsinfData = ArcsineData<float, 2, FloatSeries>;
using AsinfNativeData = ArcsineData<float, 1, NativeFloatSeries>;
using AsinData = ArcsineData<double, 4, DoubleSeries>;
using AsinNativeData = ArcsineData<double, 2, NativeDoubleSeries>;
using AsinpifData = ArcsineData<float, 2, ScaledSeries<float, FloatSeries>>;
using AsinpiData = ArcsineData<double, 4, ScaledSeries<double, DoubleSeries>>;
using AsinpiNativeData = ArcsineData<double, 2, ScaledSeries<double, NativeDoubleSeries>>;

HIDDEN extern const AsinfData asinf_data, acosf_data;
HIDDEN extern const AsinfNativeData asinf_native_data, acosf_native_data;
HIDDEN extern const AsinData asin_data, acos_data;
HIDDEN extern const AsinNativeData asin_native_data, acos_native_data;
HIDDEN extern const AsinpifData asinpif_data, acospif_data;
HIDDEN extern const AsinfNativeData asinpif_native_data, acospif_native_data;  // 1/pi is fitted with the rest
HIDDEN extern const AsinpiData asinpi_data, acospi_data;
HIDDEN extern const AsinpiNativeData asinpi_native_data, acospi_native_data;

}  // namespace zorv
