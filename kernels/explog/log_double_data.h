// Constants of the double precision logarithms.
#pragma once

#include "frame/record.h"
#include "kernels/explog/log_reduction_data.h"

namespace zorv {

// On the high halves: patterns of positive normal numbers, moved down by the smallest, are the lowest of all.
struct PositiveNormalData {
    Slot<int32_t> smallest_normal_negated, last_rare;
};

struct LogData {
    ReciprocalData reciprocal;
    TableExponentData exponent;
    Slot<int64_t> head_mask;
    Slot<double> a1, a0, b1, b0, ln2;
    PositiveNormalData normal;
    alignas(64) double rows[513];  // ln(512/c), ln(1024/c) from c = 725 on
};
struct Log2Data {
    ReciprocalData reciprocal;
    TableExponentData exponent;
    Slot<int64_t> head_mask;
    Slot<double> a1, a0, b1, b0, log2_e;
    PositiveNormalData normal;
    alignas(64) double rows[513];
};
struct Log10Data {
    ReciprocalData reciprocal;
    TableExponentData exponent;
    Slot<int64_t> head_mask;
    Slot<double> a1, a0, b1, b0, log10_e, log10_2;
    PositiveNormalData normal;
    alignas(64) double rows[513];
};
struct LogNativeData {
    ReciprocalData reciprocal;
    TableExponentData exponent;
    Slot<double> b1, b0, ln2;
    alignas(64) double rows[513];
};
struct Log2NativeData {
    ReciprocalData reciprocal;
    TableExponentData exponent;
    Slot<double> b1, b0, log2_e;
    alignas(64) double rows[513];
};
struct Log10NativeData {
    ReciprocalData reciprocal;
    TableExponentData exponent;
    Slot<double> b1, b0, log10_e, log10_2;
    alignas(64) double rows[513];
};

HIDDEN extern const LogData log_data;
HIDDEN extern const Log2Data log2_data;
HIDDEN extern const Log10Data log10_data;
HIDDEN extern const LogNativeData log_native_data;
HIDDEN extern const Log2NativeData log2_native_data;
HIDDEN extern const Log10NativeData log10_native_data;

// log2 of a rare lane: a short reciprocal c of a mantissa about 1 + (i + 1/2)/256, and -log2 c.
struct Log2RareRow {
    double c, low, high;
};
struct Log2RareData {
    Scalar<double> log2_e_high;
    Scalar<double> even2, even1, even0, odd2, odd1, odd0;
    Log2RareRow rows[256];
};
HIDDEN extern const Log2RareData log2_rare_data;

}  // namespace zorv
