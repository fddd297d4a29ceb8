// Constants of the inverse hyperbolic functions.
#pragma once

#include "frame/polynomial.h"
#include "frame/record.h"

namespace zorv {

// ---- Single precision. -------------------------------------------------------------------------------------

// The logarithm: x = f 2^k with f in [2/3, 4/3), and (ln f - r)/r^2 of r = f - 1.
template <int terms>
struct AreaLogfData {
    Slot<int32_t> two_thirds, mantissa;
    Slot<float> one, ln2;
    Coefficients<float, terms> p;
};
// Operands so large that the functions are ln(2x).
template <class Lane>
struct HugeData {
    Slot<Lane> two_to_30, two_to_minus_30, thirty_one;
};
// (1/sqrt(1 - e) - 1)/e: the correction of an estimated square root.
template <class Lane, int terms>
using RootSeries = Coefficients<Lane, terms>;

template <int log_terms>
struct AsinhfData {
    Slot<int32_t> magnitude, sign;
    Slot<float> largest, small, half;
    Slot<int32_t> x_head, root_head;
    RootSeries<float, 3> root;
    HugeData<float> huge;
    AreaLogfData<log_terms> log;
};
template <int root_terms, int log_terms>
struct AcoshfData {
    Slot<float> largest;
    Slot<int32_t> root_head;
    RootSeries<float, root_terms> root;
    HugeData<float> huge;
    AreaLogfData<log_terms> log;
};
template <int log_terms>
struct AtanhfData {
    Slot<int32_t> magnitude, sign, head;
    Slot<float> half;
    AreaLogfData<log_terms> log;
};

HIDDEN extern const AsinhfData<8> asinhf_data;
HIDDEN extern const AsinhfData<4> asinhf_native_data;
HIDDEN extern const AcoshfData<3, 8> acoshf_data;
HIDDEN extern const AcoshfData<1, 4> acoshf_native_data;
HIDDEN extern const AtanhfData<8> atanhf_data;
HIDDEN extern const AtanhfData<4> atanhf_native_data;

// ---- Double precision. -------------------------------------------------------------------------------------

// The logarithm: x = m 2^k, m by its reciprocal R/1024 of ten bits, and (ln(1 + f) - f)/f^2.
template <int terms>
struct AreaLogData {
    Slot<int64_t> mantissa, exponent;
    Slot<double> two_to_minus_10, shifter, scale_base;
    Slot<double> last_of_upper_half;  // the R from which on the logarithm is counted from 1 downwards
    Slot<double> bias_of_upper_half, bias_of_lower_half;
    Slot<double> two_to_52, one, ln2;
    Coefficients<double, terms> p;
    alignas(64) double minus_log[513];  // of the reciprocals: from R = 512 on
};
// Where a sum with 1 has its head cut, unless the other part is tiny.
struct ShortHeadData {
    Slot<int64_t> head;
    Slot<double> tiny;
};

template <int log_terms>
struct AsinhData {
    Slot<int64_t> magnitude, sign;
    Slot<double> largest, small, half;
    Slot<int64_t> x_head, root_operand_head, root_head;
    RootSeries<double, 5> root;
    HugeData<double> huge;
    ShortHeadData sum;
    AreaLogData<log_terms> log;
};
template <int root_terms, int log_terms>
struct AcoshData {
    Slot<double> largest;
    Slot<int64_t> root_operand_head, root_head;
    RootSeries<double, root_terms> root;
    HugeData<double> huge;
    ShortHeadData sum;
    AreaLogData<log_terms> log;
};
template <int log_terms>
struct AtanhData {
    Slot<int64_t> magnitude, sign, head, reciprocal_head;
    Slot<double> half;
    ShortHeadData sum;
    AreaLogData<log_terms> log;
};

HIDDEN extern const AsinhData<4> asinh_data;
HIDDEN extern const AsinhData<2> asinh_native_data;
HIDDEN extern const AcoshData<4, 4> acosh_data;
HIDDEN extern const AcoshData<2, 2> acosh_native_data;
HIDDEN extern const AtanhData<4> atanh_data;
HIDDEN extern const AtanhData<2> atanh_native_data;

}  // namespace zorv
