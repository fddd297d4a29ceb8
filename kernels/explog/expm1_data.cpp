#include "kernels/explog/expm1_data.h"

namespace zorv {

const Expm1fData expm1f_data = {
    .steps =
        {
            .steps_per_unit = 0x42b8aa3b,  // 92.33248, 64 log2(e)
            .shifter = 0x4b400000,         // 1.5 * 2^23
            .field_shifter = 0x49f0fe00,   // 1.875 * 2^20 + 127 * 64
            .row_offset = 0x000001f8,      // the step within a power of two, times the bytes of a row
            .exponent = 0x0001fe00,        // what stands above it
        },
    .step_high = 0x3c318000,      // 0.01083374, ln(2)/64
    .step_low = 0xb65e8083,       // -3.3155382e-06
    .c3 = 0x3e2aaabf,             // 0.16666697
    .c2 = 0x3f00000f,             // 0.5000009
    .one = 0x3f800000,            // 1.0
    .last_ordinary = 0x42ad496b,  // 86.643394
    .sign = 0x80000000,           // the sign
    .magnitude = 0x7fffffff,      // all but the sign
    .powers =
        {
#include "kernels/explog/tables/expm1f_powers.inc"
        },
};

const Expm1Data expm1_data = {
    .steps =
        {
            .steps_per_unit = 0x40671547652b82fe,  // 184.6649652337873, 128 log2(e)
            .shifter = 0x4338000000000000,         // 1.5 * 2^52
            .field_shifter = 0x42f80000001ff800,   // 1.5 * 2^48 + 1023 * 128
            .row_offset = 0x00000000000007f0,      // the step within a power of two, times the bytes of a row
            .exponent = 0x00000000003ff800,        // what stands above it
        },
    .step_high = 0x3f762e42fef80000,      // 0.005415212347998022, ln(2)/128
    .step_low = 0x3d41cf79abc9e3b4,       // 1.2655086083325438e-13
    .c5 = 0x3f81111168877f38,             // 0.008333335878830547
    .c4 = 0x3fa55555c2a9c0f3,             // 0.04166667939432669
    .c3 = 0x3fc555555555541d,             // 0.166666666666658
    .c2 = 0x3fdffffffffffe5c,             // 0.4999999999999767
    .one = 0x3ff0000000000000,            // 1.0
    .last_ordinary = 0x40861da04cbafe43,  // 707.7032713517041
    .sign = 0x8000000000000000,           // the sign
    .magnitude = 0x7fffffffffffffff,      // all but the sign
    .powers =
        {
#include "kernels/explog/tables/expm1_powers.inc"
        },
};

const Expm1fNativeData expm1f_native_data = {
    .steps =
        {
            .steps_per_unit = 0x4238aa3b,  // 46.16624, 32 log2(e)
            .shifter = 0x4b400000,         // 1.5 * 2^23
            .field_shifter = 0x4a403f80,   // 1.5 * 2^21 + 127 * 32
            .row_offset = 0x0000007c,      // the step within a power of two, times the bytes of a row
            .exponent = 0x00007f80,        // what stands above it
        },
    .step = 0x3cb17218,  // 0.02166085, ln(2)/32
    .c2 = 0x3f00000f,    // 0.5000009
    .one = 0x3f800000,   // 1.0
    .sign = 0x80000000,  // the sign
    .powers =
        {
#include "kernels/explog/tables/expm1f_native_powers.inc"
        },
};

const Expm1NativeData expm1_native_data = {
    .steps =
        {
            .steps_per_unit = 0x40671547652b82fe,  // 184.6649652337873, 128 log2(e)
            .shifter = 0x4338000000000000,         // 1.5 * 2^52
            .field_shifter = 0x43080000000ffc00,   // 1.5 * 2^49 + 1023 * 128
            .row_offset = 0x00000000000003f8,      // the step within a power of two, times the bytes of a row
            .exponent = 0x00000000001ffc00,        // what stands above it
        },
    .step = 0x3f762e42fefa39ef,  // 0.0054152123481245725, ln(2)/128
    .c3 = 0x3fc555555555541d,    // 0.166666666666658
    .c2 = 0x3fdffffffffffe5c,    // 0.4999999999999767
    .one = 0x3ff0000000000000,   // 1.0
    .sign = 0x8000000000000000,  // the sign
    .powers =
        {
#include "kernels/explog/tables/expm1_native_powers.inc"
        },
};

}  // namespace zorv
