// Constants and tables of erf and erfc.
#pragma once

#include "frame/record.h"

namespace zorv {

// erf about the centre d of an interval: v + g w + c2 w^2 + c3 w^3 + c4 w^4, w = |x| - d; v and g in two parts, the
// head of g short.
struct ErffRow {
    float d, v_head, v_tail, g_head;
    float g_tail, c2, c3, c4;
};
struct ErffData {
    Slot<int32_t> magnitude, sign, interval;  // interval: the bits that tell it
    Slot<int32_t> first_row, last_row;        // as intervals; as a row number
    Slot<int32_t> head;                       // leading bits of w
    Slot<int32_t> smallest, largest;          // intervals of ordinary lanes
    alignas(64) ErffRow rows[114];
};

// erf in powers of w = |x| + d, -d the centre: c0 + c1 w + ... + c10 w^10.
struct alignas(128) ErfRow {
    double d, c[11];
};
struct ErfData {
    Slot<int64_t> magnitude, sign;
    Slot<int32_t> interval, smallest, largest;  // on the high halves
    Slot<int64_t> first_row, last_row;
    ErfRow rows[46];
};

// erfc(a) e^(a^2) in powers of w = a - d, d the left end of the interval.
struct alignas(128) ErfcRow {
    double c[13], d;
};
struct ErfcCoreData {
    Slot<int64_t> magnitude, sign, square_head, head;
    Slot<double> steps, shifter, step_head, step_tail;  // of ln 2/128
    Slot<int64_t> exponent_base, exponent;
    Slot<double> scale;
    Slot<double> c5, c4, c3, c2, c1;  // of e^r - 1
    Slot<int64_t> power_row, first_row, last_row;
    alignas(64) double powers[128];  // 2^(j/128)
    ErfcRow rows[28];
};
struct ErfcData {
    ErfcCoreData core;
    Slot<int32_t> last_ordinary;  // on the high halves, of a double for both precisions
};

HIDDEN extern const ErffData erff_data, erff_native_data;
HIDDEN extern const ErfData erf_data, erf_native_data;
HIDDEN extern const ErfcData erfcf_data, erfc_data;
HIDDEN extern const ErfcCoreData erfcf_native_data, erfc_native_data;

struct ErfRareData {
    Scalar<double> slope, slope_head, slope_tail;  // 2/sqrt(pi)
    Scalar<double> up, down;                       // 2^200, 2^-200
    Scalar<double> split;                          // 2^27 + 1
    Scalar<double> least_product, last_split;      // subnormals below, below which a result is one too
};
HIDDEN extern const ErfRareData erf_rare_data;

}  // namespace zorv
