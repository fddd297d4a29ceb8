#include "kernels/explog/log1p_data.h"

namespace zorv {

const Log1pfData log1pf_data = {
    .one = 0x3f800000,             // 1.0
    .small = 0x39800000,           // 2^-12
    .head_mask = 0xffffff00,       // 16 significant bits
    .magnitude = 0x7fffffff,       // all but the sign
    .sign = 0x80000000,            // the sign
    .mantissa = 0x007fffff,        // all but sign and exponent
    .exponent_field = 0x7f800000,  // the exponent
    .exponent = 0x3b800000,        // 2^-8
    .scale_base = 0x7b000000,      // the exponents of 2^-8 and 1, added
    .shifter = 0x4b400000,         // 1.5 * 2^23
    .ln2_high = 0x3f317200,        // 0.69314575
    .ln2_low = 0x35bfbe00,         // 1.4285906e-06
    .c1 = 0x3eaaab39,              // 0.33333758
    .c0 = 0xbf000036,              // -0.5000032
    .lowest = 0xbf7fffff,          // the last above -1
    .highest = 0x7a800000,         // 2^118
    .rows =
        {
#include "kernels/explog/tables/log1pf_rows.inc"
        },
};

const Log1pData log1p_data = {
    .reciprocal =
        {
            .mantissa = 0x000fffffffffffff,  // all but sign and exponent
            .exponent = 0x3f50000000000000,  // 2^-10
            .shifter = 0x4338000000000000,   // 1.5 * 2^52
            .one = 0x3ff0000000000000,       // 1.0
        },
    .one = 0x3ff0000000000000,             // 1.0
    .small = 0x3e00000000000000,           // 2^-31
    .head_mask = 0xfffffffffffffc00,       // 43 significant bits
    .magnitude = 0x7fffffffffffffff,       // all but the sign
    .sign = 0x8000000000000000,            // the sign
    .exponent_field = 0x7ff0000000000000,  // the exponent
    .scale_base = 0x7f40000000000000,      // the exponents of 2^-10 and 1, added
    .two_to_52 = 0x4330000000000000,       // 2^52
    .ln2_high = 0x3fe62e42fefa0000,        // 0.6931471805582987
    .ln2_low = 0x3d7cf79abc9e0000,         // 1.6465949582866463e-12
    .a1 = 0x3fc9999cacdb4d0a,              // 0.2000003665949424
    .a0 = 0xbfd0000148058ee1,              // -0.2500003054940248
    .b1 = 0x3fd55555555543c5,              // 0.33333333333308374
    .b0 = 0xbfdffffffffff81f,              // -0.49999999999988803
    .lowest = 0xbfefffffffffffff,          // the last above -1
    .highest = 0x7f3ffffffffff000,         // just below 2^1013
    .rows =
        {
#include "kernels/explog/tables/log1p_rows.inc"
        },
};

const Log1pfNativeData log1pf_native_data = {
    .one = 0x3f800000,  // 1.0
    .split =
        {
            .two_thirds = 0x3f2aaaab,  // 0.6666667
            .mantissa = 0x007fffff,    // all but sign and exponent
            .one = 0x3f800000,         // 1.0
        },
    .pattern_of_one = 0x3f800000,  // 1.0
    .sign = 0x80000000,            // the sign
    .c3 = 0x3e612933,              // 0.21988373
    .c2 = 0xbe88e8fe,              // -0.2674026
    .c1 = 0x3eaa7160,              // 0.33289623
    .c0 = 0xbf000000,              // -0.5
    .ln2 = 0x3f317218,             // 0.6931472
};

const Log1pNativeData log1p_native_data = {
    .reciprocal =
        {
            .mantissa = 0x000fffffffffffff,  // all but sign and exponent
            .exponent = 0x3f50000000000000,  // 2^-10
            .shifter = 0x4338000000000000,   // 1.5 * 2^52
            .one = 0x3ff0000000000000,       // 1.0
        },
    .exponent =
        {
            .middle = 0x4086a00000000000,            // 724.0, about 1024/sqrt(2)
            .shifter = 0x4338000000000000,           // 1.5 * 2^52
            .shifter_and_bias = 0x43380000000003fe,  // 1.5 * 2^52 + 1022
        },
    .one = 0x3ff0000000000000,             // 1.0
    .exponent_field = 0x7ff0000000000000,  // the exponent
    .scale_base = 0x7f40000000000000,      // the exponents of 2^-10 and 1, added
    .b1 = 0x3fd55555555543c5,              // 0.33333333333308374
    .b0 = 0xbfdffffffffff81f,              // -0.49999999999988803
    .ln2 = 0x3fe62e42fefa39ef,             // 0.6931471805599453
    .rows =
        {
#include "kernels/explog/tables/log_rows.inc"
        },
};

}  // namespace zorv
