#include "kernels/explog/log_double_data.h"

namespace zorv {

const LogData log_data = {
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
    .head_mask = 0xfffffffffc000000,  // 26 fraction bits
    .a1 = 0x3fc9999cacdb4d0a,         // 0.2000003665949424
    .a0 = 0xbfd0000148058ee1,         // -0.2500003054940248
    .b1 = 0x3fd55555555543c5,         // 0.33333333333308374
    .b0 = 0xbfdffffffffff81f,         // -0.49999999999988803
    .ln2 = 0x3fe62e42fefa39ef,        // 0.6931471805599453
    .normal =
        {
            .smallest_normal_negated = 0x80100000,  // moves the smallest normal to the lowest integer
            .last_rare = 0xffdfffff,                // above it: not positive and normal
        },
    .rows =
        {
#include "kernels/explog/tables/log_rows.inc"
        },
};

const Log2Data log2_data = {
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
    .head_mask = 0xfffffffffc000000,  // 26 fraction bits
    .a1 = 0x3fd2776e996da1d2,         // 0.2885395525286444
    .a0 = 0xbfd715494c3e7c9b,         // -0.3606742138453655
    .b1 = 0x3fdec709dc39e926,         // 0.48089834696260636
    .b0 = 0xbfe71547652b7cf8,         // -0.7213475204443105
    .log2_e = 0x3ff71547652b82fe,     // 1.4426950408889634
    .normal =
        {
            .smallest_normal_negated = 0x80100000,  // moves the smallest normal to the lowest integer
            .last_rare = 0xffdfffff,                // above it: not positive and normal
        },
    .rows =
        {
#include "kernels/explog/tables/log2_rows.inc"
        },
};

const Log10Data log10_data = {
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
    .head_mask = 0xfffffffffc000000,  // 26 fraction bits
    .a1 = 0x3fb63c65231fbd16,         // 0.08685905559081095
    .a0 = 0xbfbbcb7d4efbe80b,         // -0.10857375315018218
    .b1 = 0x3fc287a7636f341e,         // 0.14476482730097556
    .b0 = 0xbfcbcb7b1526de36,         // -0.21714724095157728
    .log10_e = 0x3fdbcb7b1526e50e,    // 0.4342944819032518
    .log10_2 = 0x3fd34413509f79ff,    // 0.3010299956639812
    .normal =
        {
            .smallest_normal_negated = 0x80100000,  // moves the smallest normal to the lowest integer
            .last_rare = 0xffdfffff,                // above it: not positive and normal
        },
    .rows =
        {
#include "kernels/explog/tables/log10_rows.inc"
        },
};

const LogNativeData log_native_data = {
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
    .b1 = 0x3fd55555555543c5,   // 0.33333333333308374
    .b0 = 0xbfdffffffffff81f,   // -0.49999999999988803
    .ln2 = 0x3fe62e42fefa39ef,  // 0.6931471805599453
    .rows =
        {
#include "kernels/explog/tables/log_rows.inc"
        },
};

const Log2NativeData log2_native_data = {
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
    .b1 = 0x3fdec709dc39e926,      // 0.48089834696260636
    .b0 = 0xbfe71547652b7cf8,      // -0.7213475204443105
    .log2_e = 0x3ff71547652b82fe,  // 1.4426950408889634
    .rows =
        {
#include "kernels/explog/tables/log2_rows.inc"
        },
};

const Log10NativeData log10_native_data = {
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
    .b1 = 0x3fc287a7636f341e,       // 0.14476482730097556
    .b0 = 0xbfcbcb7b1526de36,       // -0.21714724095157728
    .log10_e = 0x3fdbcb7b1526e50e,  // 0.4342944819032518
    .log10_2 = 0x3fd34413509f79ff,  // 0.3010299956639812
    .rows =
        {
#include "kernels/explog/tables/log10_rows.inc"
        },
};

const Log2RareData log2_rare_data = {
    .log2_e_high = {0x3ff7154700000000},  // 1.4426946640014648, log2(e) cut to 22 bits
    .even2 = {0xbfcec718810d0357},        // -0.24045091916380087
    .even1 = {0xbfd71547652a21f9},        // -0.36067376021722414
    .even0 = {0xbfe71547652b82fe},        // -0.7213475204444817
    .odd2 = {0x3fd27772978ff6bc},         // 0.2885405044652136
    .odd1 = {0x3fdec709dc3944e3},         // 0.48089834696027206
    .odd0 = {0x3e994ae0bf8613d6},         // 3.7688749856434016e-7, the rest of log2(e)
    .rows =
        {
#include "kernels/explog/tables/log2_rare.inc"
        },
};

}  // namespace zorv
