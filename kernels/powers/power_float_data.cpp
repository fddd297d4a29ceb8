#include "kernels/powers/power_float_data.h"

namespace zorv {

const PowerFloatData powf_data = {
    .exponent_bias = 0x0000007f,     // 127
    .row_bits = 0x007f0000,          // the seven leading bits of the mantissa
    .half_row = 0x00010000,          // rounds them to six
    .mantissa = 0x007fffff,          // all but sign and exponent
    .head_of_mantissa = 0x7fffc000,  // ten significant bits
    .near_one_offset = 0x407e0000,   // makes the signed patterns wrap at 0.9921875
    .near_one = 0x7ffc0000,          // from there up to 1.015625
    .one = 0x3f800000,               // 1.0
    .log =
        {
            {
                0xbe800000,  // -0.25
                0x3eaaaaab,  // 0.33333334
                0xbf000000,  // -0.5
            },
        },
    .ln2_head = 0x3f317000,  // 0.6931152, ln 2 in 14 fraction bits
    .ln2_tail = 0x3805fdf4,  // 3.1946183e-5
    .split = 0x45800800,     // 4097.0
    .log2_e = 0x3fb8aa3b,    // 1.442695
    .shifter = 0x4b400000,   // 1.5 * 2^23
    .ln2_high = 0x3f317200,  // 0.69314575, 15 significant bits
    .ln2_low = 0x35bfbe8e,   // 1.4286068e-6
    .exp =
        {
            {
                0x3c07d9fe,  // 0.0082917195
                0x3d2b8392,  // 0.041873522
                0x3e2aacac,  // 0.16667432
                0x3effff34,  // 0.49999392
                0x3f7ffffe,  // 0.9999999
                0x3f800000,  // 1.0
            },
        },
    .magnitude = 0x7fffffff,      // all but the sign
    .sign = 0x80000000,           // the sign
    .one_step = 0x80800000,       // the smallest normal number, less half the range of the signed patterns
    .last_ordinary = 0xfefffffe,  // what that makes of the float below the largest
    .last_finite = 0x7f7fffff,    // 3.4028235e38
    .last_product = 0x42819f00,   // 64.81055
    .rows =
        {
#include "kernels/powers/tables/power_rows_f.inc"
        },
};

// The exponential's coefficients end in 1 + 2^-23: x^0 is one ulp above 1.
const PowerFloatData pownf_data = {
    .exponent_bias = 0x0000007f,     // 127
    .row_bits = 0x007f0000,          // the seven leading bits of the mantissa
    .half_row = 0x00010000,          // rounds them to six
    .mantissa = 0x007fffff,          // all but sign and exponent
    .head_of_mantissa = 0x7fffc000,  // ten significant bits
    .near_one_offset = 0x407e0000,   // makes the signed patterns wrap at 0.9921875
    .near_one = 0x7ffc0000,          // from there up to 1.015625
    .one = 0x3f800000,               // 1.0
    .log =
        {
            {
                0xbe800000,  // -0.25
                0x3eaaaaab,  // 0.33333334
                0xbf000000,  // -0.5
            },
        },
    .ln2_head = 0x3f317000,  // 0.6931152, ln 2 in 14 fraction bits
    .ln2_tail = 0x3805fdf4,  // 3.1946183e-5
    .split = 0x45800800,     // 4097.0
    .log2_e = 0x3fb8aa3b,    // 1.442695
    .shifter = 0x4b400000,   // 1.5 * 2^23
    .ln2_high = 0x3f317200,  // 0.69314575, 15 significant bits
    .ln2_low = 0x35bfbe8e,   // 1.4286068e-6
    .exp =
        {
            {
                0x3c0950ef,  // 0.0083811125
                0x3d2bb1b6,  // 0.041917525
                0x3e2aa9c6,  // 0.16666326
                0x3efffe85,  // 0.4999887
                0x3f800001,  // 1.0000001
                0x3f800001,  // 1.0000001
            },
        },
    .magnitude = 0x7fffffff,      // all but the sign
    .sign = 0x80000000,           // the sign
    .one_step = 0x80800000,       // the smallest normal number, less half the range of the signed patterns
    .last_ordinary = 0xfefffffe,  // what that makes of the float below the largest
    .last_finite = 0x7f7fffff,    // 3.4028235e38
    .last_product = 0x42ae9a00,   // 87.30078
    .rows =
        {
#include "kernels/powers/tables/power_rows_f.inc"
        },
};

const PowerFloatNativeData powf_native_data = {
    .two_thirds = 0x3f2aaaab,  // 0.6666667
    .mantissa = 0x007fffff,    // all but sign and exponent
    .magnitude = 0x7fffffff,   // all but the sign
    .sign = 0x80000000,        // the sign
    .one = 0x3f800000,         // 1.0
    .log =
        {
            {
                0x3e2b350c,  // 0.16719455
                0xbe424b46,  // -0.18974027
                0x3e4b62c0,  // 0.19862938
                0xbe7f0f0f,  // -0.2490809
                0x3eaaad03,  // 0.33335122
                0xbf000000,  // -0.5
            },
        },
    .ln2_head = 0x3f317200,  // 0.69314575, 15 significant bits
    .ln2_tail = 0x35bfbe8e,  // 1.4286068e-6
    .log2_e = 0x3fb8aa3b,    // 1.442695
    .shifter = 0x4b400000,   // 1.5 * 2^23
    .ln2 = 0x3f317218,       // 0.6931472
    .exp =
        {
            {
                0x3e2963ac,  // 0.16541928
                0x3f00f2d6,  // 0.5037054
                0x3f8003de,  // 1.000118
                0x3f800000,  // 1.0
            },
        },
};

const PowerFloatNativeData pownf_native_data = {
    .two_thirds = 0x3f2aaaab,  // 0.6666667
    .mantissa = 0x007fffff,    // all but sign and exponent
    .magnitude = 0x7fffffff,   // all but the sign
    .sign = 0x80000000,        // the sign
    .one = 0x3f800000,         // 1.0
    .log =
        {
            {
                0x3e2b350c,  // 0.16719455
                0xbe424b46,  // -0.18974027
                0x3e4b62c0,  // 0.19862938
                0xbe7f0f0f,  // -0.2490809
                0x3eaaad03,  // 0.33335122
                0xbf000000,  // -0.5
            },
        },
    .ln2_head = 0x3f317200,  // 0.69314575, 15 significant bits
    .ln2_tail = 0x35bfbe8e,  // 1.4286068e-6
    .log2_e = 0x3fb8aa3b,    // 1.442695
    .shifter = 0x4b400000,   // 1.5 * 2^23
    .ln2 = 0x3f317218,       // 0.6931472
    .exp =
        {
            {
                0x3e2c359f,  // 0.1681733
                0x3f014935,  // 0.5050233
                0x3f7ffc0b,  // 0.9999396
                0x3f7ffb0d,  // 0.9999245
            },
        },
};

}  // namespace zorv
