#include "kernels/special/error_functions_data.h"

namespace zorv {

// Both classes have the same record.
template <class Record>
constexpr Record erff_record() {
    return {
        .magnitude = 0x7fffffff,
        .sign = 0x80000000,
        .interval = 0x7ff80000,   // sixteen a binade
        .first_row = 0x3cf80000,  // the interval before 2^-5
        .last_row = 0x00000071,   // 113
        .head = 0xfffff000,       // 12 bits
        .smallest = 0x20800000,   // 2^-62
        .largest = 0x7f7fffff,
        .rows =
            {
#include "kernels/special/tables/erff_rows.inc"
            },
    };
}
const ErffData erff_data = erff_record<ErffData>();
const ErffData erff_native_data = erff_record<ErffData>();

template <class Record>
constexpr Record erf_record() {
    return {
        .magnitude = 0x7fffffffffffffff,
        .sign = 0x8000000000000000,
        .interval = 0x7ffe0000,  // eight a binade
        .smallest = 0x1ff00000,  // 2^-512
        .largest = 0x7fefffff,
        .first_row = 0x0000000000001fdf,  // the interval before 1/8, shifted right by 17 (of the high half)
        .last_row = 0x000000000000002d,   // 45
        .rows =
            {
#include "kernels/special/tables/erf_rows.inc"
            },
    };
}
const ErfData erf_data = erf_record<ErfData>();
const ErfData erf_native_data = erf_record<ErfData>();

// One design for both precisions: single computes in double and rounds at its end.
constexpr ErfcCoreData erfc_core() {
    return {
        .magnitude = 0x7fffffffffffffff,
        .sign = 0x8000000000000000,
        .square_head = 0x7ffffffff8000000,  // 26 bits: the square is exact
        .head = 0xfffffffff8000000,
        .steps = 0x40671547652b82fe,          // 184.66496523378731, 128/ln 2
        .shifter = 0x4338000000000000,        // 1.5 * 2^52
        .step_head = 0x3f762e4300000000,      // 0.0054152123630046844, ln 2/128
        .step_tail = 0xbdb05c610ca86c39,      // -1.4880111718420063e-11
        .exponent_base = 0x4990000000000000,  // 1177, the bias and 154
        .exponent = 0x7ff0000000000000,
        .scale = 0x3650000000000000,  // 2^-154
        .c5 = 0x3f81111111111111,     // 1/120
        .c4 = 0x3fa5555555555555,     // 1/24
        .c3 = 0x3fc5555555555555,     // 1/6
        .c2 = 0x3fe0000000000000,     // 0.5
        .c1 = 0x3ff0000000000000,     // 1.0
        .power_row = 0x000000000000007f,
        .first_row = 0x0000000000000ff3,  // the interval before 1/4, shifted right by 18 (of the high half)
        .last_row = 0x000000000000001b,   // 27
        .powers =
            {
#include "kernels/special/tables/erfc_powers.inc"
            },
        .rows =
            {
#include "kernels/special/tables/erfc_rows.inc"
            },
    };
}
const ErfcData erfcf_data = {
    .core = erfc_core(),
    .last_ordinary = 0x40241bbe,  // 10.054: below, erfc is at least half of the smallest float
};
const ErfcData erfc_data = {
    .core = erfc_core(),
    .last_ordinary = 0x403b39dc,  // 27.226: likewise of the smallest double
};
const ErfcCoreData erfcf_native_data = erfc_core();
const ErfcCoreData erfc_native_data = erfc_core();

const ErfRareData erf_rare_data = {
    .slope = {0x3ff20dd750429b6d},       // 1.1283791670955126, 2/sqrt(pi)
    .slope_head = {0x3ff20dd750000000},  // 1.1283791661262512
    .slope_tail = {0x3e10a6db446b8ea4},  // 9.692613531930338e-10
    .up = {0x4c70000000000000},          // 2^200
    .down = {0x3370000000000000},        // 2^-200
    .split = {0x41a0000002000000},       // 2^27 + 1
    .least_product = {0x0000010000000000},
    .last_split = {0x000e2dfc48da77b5},  // 1.971920364530142e-308
};

}  // namespace zorv
