#include "kernels/powers/power_double_data.h"

namespace zorv {

const PowerDoubleData power_double_data = {
    .mantissa = 0x000fffffffffffff,  // all but sign and exponent
    .one = 0x3ff0000000000000,       // 1.0
    .row_bits = 0x000ffe0000000000,  // the eleven leading bits of the mantissa
    .half_row = 0x0000020000000000,  // rounds them to ten
    .next_exponent = 0x3fe7fe00,     // mantissas from about 1.5 on count as 2^1 * 0.75...
    .exponent_bias = 0x41380000,     // an integer added becomes one behind 1.5 * 2^20
    .high_half = 0xffffffff00000000,
    .bias = 0x4138000000000000,    // 1572864.0, 1.5 * 2^20
    .head = 0xfffffffff8000000,    // 26 significant bits
    .log2_e = 0xbff7154740000000,  // -1.4426949024200439, -log2(e) in 31 bits
    .log =
        {
            {
                0xbf9b4ea0e9419f52,  // -0.0266671319
                0x3fa7a334ddfc9f86,  // 0.0461670418
                0xbfb550472a8bb463,  // -0.0832562
                0x3fc47fd462b3b816,  // 0.160151
                0xbfd62e4346694107,  // -0.3465736
                0x3e79c3a6966457ee,  // 9.598e-8: the rest of log2(e)
            },
        },
    .shifter = 0x42c8000000000000,         // 1.5 * 2^45
    .power_row = 0x00000000000007f0,       // j, times the 16 bytes of a row
    .exponent_field = 0xfff0000000000000,  // sign and exponent
    .exp2 =
        {
            {
                0x3f55d87fe78a6731,  // 0.00133335581
                0x3f83b2ab6fba4e77,  // 0.00961812911
                0x3fac6b08d704a0bf,  // 0.0555041087
                0x3fcebfbdff82c58e,  // 0.240226507
                0x3fe62e42fefa39ef,  // 0.693147181, ln 2
            },
        },
    .split = 0x41a0000002000000,  // 134217729.0, 2^27 + 1
    .magnitude = 0x7fffffffffffffff,
    .sign = 0x8000000000000000,
    .one_step = 0x00100000,
    .two_steps = 0x00200000,
    .last_exponent = 0x7f7fffff,  // about 2^1017
    .last_product = 0x408feffe,   // just below 1022
#include "kernels/powers/tables/power_rows_d.inc"
    .powers =
        {
#include "kernels/powers/tables/power_exp2_d.inc"
        },
};

const PowerNativeDoubleData power_native_double_data = {
    .mantissa = 0x000fffffffffffff,         // all but sign and exponent
    .scaled_exponent = 0x3f50000000000000,  // 2^-10
    .two_to_52 = 0x4330000000000000,        // 4503599627370496.0
    .shifter = 0x4338000000000000,          // 1.5 * 2^52
    .middle = 0x4086a00000000000,           // 724.0, about 512 sqrt(2)
    .bias_above = 0x408ff80000000000,       // 1023.0
    .bias = 0x408ff00000000000,             // 1022.0
    .one = 0x3ff0000000000000,              // 1.0
    .a = 0x3fd55555555543c5,                // 0.333333333333
    .b = 0xbfdffffffffff81f,                // -0.5
    .ln2 = 0x3fe62e42fefa39ef,              // 0.693147181
    .steps_per_unit = 0x40a71547652b82fe,   // 2954.63944, 2048 log2(e)
    .half = 0x3fe0000000000000,             // 0.5
    .step = 0x3f362f3904051fa1,             // 0.000338450772, ln 2 / 2048
    .power_row = 0x00000000000007ff,        // j
    .magnitude = 0x7fffffffffffffff,
    .sign = 0x8000000000000000,
#include "kernels/powers/tables/power_native_d.inc"
};

const RootFloatData rootf_data = {
    .one = 0x3f800000,            // 1.0
    .magnitude = 0x7fffffff,      // all but the sign
    .one_step = 0x80800000,       // the smallest normal number, less half the range of the signed patterns
    .last_ordinary = 0xfefffffe,  // what that makes of the float below the largest
    .last_finite = 0x7f7fffff,    // 3.4028235e38
    .last_product = 0x4059fe36,   // the high half of 103.97, ln 2^150
};

}  // namespace zorv
