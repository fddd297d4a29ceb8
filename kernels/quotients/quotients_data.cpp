#include "kernels/quotients/quotients_data.h"

namespace zorv {

const InvfData invf_data = {
    .zero = 0x00000000,  // 0.0
    .one = 0x3f800000,   // 1.0
};

const DivfData divf_data = {
    .zero = 0x00000000,  // 0.0
};

const InvData inv_data = {
    .zero = 0x0000000000000000,              // 0.0
    .one = 0x3ff0000000000000,               // 1.0
    .all_but_exponent = 0x800fffffffffffff,  // sign and mantissa
};

const DivData div_data = {
    .zero = 0x0000000000000000,              // 0.0
    .all_but_exponent = 0x800fffffffffffff,  // sign and mantissa
};

const BatchedReciprocalData inv_native_data = {
    .one = 0x3ff0000000000000,                // 1.0
    .sign_and_mantissa = 0x800fffffffffffff,  //
    .exponent_field = 0x7ff00000,             //
    .reciprocal_exponent = 0x7fe00000,        // biased exponent 2046
};

const BatchedReciprocalData div_native_data = {
    .one = 0x3ff0000000000000,                // 1.0
    .sign_and_mantissa = 0x800fffffffffffff,  //
    .exponent_field = 0x7ff00000,             //
    .reciprocal_exponent = 0x7fe00000,        // biased exponent 2046
};

const SqrtfData sqrtf_data = {
    .half = 0x3f000000,                     // 0.5
    .smallest_normal_negated = 0x80800000,  // moves the positive normals to the bottom of the signed range
    .last_rare = 0xfeffffff,                // greater: zero, subnormal, negative, infinite or NaN
};

const SqrtfData sqrtf_native_data = {
    .half = 0x3f000000,                     // 0.5
    .smallest_normal_negated = 0x80800000,  //
    .last_rare = 0xfeffffff,                //
};

const RsqrtfData rsqrtf_data = {
    .estimate_mask = 0xffff8000,  // nine significant bits
    .one = 0x3f800000,            // 1.0
    .p = {{
        0xbea00000,  // -0.3125
        0x3ec00000,  // 0.375
        0xbf000000,  // -0.5
    }},
    .smallest_normal_negated = 0x80800000,  //
    .last_rare = 0xfeffffff,                //
};

const RsqrtData rsqrt_data = {
    .seed =
        {
            .exponent = 0x7ff0000000000000,             //
            .exponent_lowest_bit = 0x0010000000000000,  //
            .low_mask = 0x001fffffffffffff,             // mantissa and the exponent's lowest bit
            .float_exponent_base = 0x07f0000000000000,  // shifted right by 29: the float exponent 127
            .scale_base = 0xbfd0000000000000,           // integer form of -0.25
        },
    .split_mask = 0xfffffffff8000000,  // the high 26 significant bits
    .one = 0x3ff0000000000000,         // 1.0
    .p = {{
        0x3fd1800032338cbb,  // 0.27343754675366555
        0x3fd40000b13001d9,  // 0.31250016501874495
        0x3fd80000000000f6,  // 0.37500000000001366
        0x3fdffffffffffe71,  // 0.49999999999997785
    }},
    .smallest_normal_negated = 0x80100000,  // moves the positive normals to the bottom of the signed range
    .last_rare = 0xffdfffff,                // greater: zero, subnormal, negative, infinite or NaN
};

const RsqrtNativeData rsqrt_native_data = {
    .seed =
        {
            .exponent = 0x7ff0000000000000,             //
            .exponent_lowest_bit = 0x0010000000000000,  //
            .low_mask = 0x001fffffffffffff,             //
            .float_exponent_base = 0x07f0000000000000,  //
            .scale_base = 0xbfd0000000000000,           //
        },
    .one = 0x3ff0000000000000,  // 1.0
    .q = {{
        0x3fd80000c4cd9197,  // 0.37500018328707924
        0x3fe000004379adb7,  // 0.50000012568255314
        0x3fefffffffffff4f,  // 0.99999999999998035
    }},
};

const RsqrtRareData rsqrt_rare_data = {
    .p = {{
        {0x3fc91a80bfbf8b2a},  // 0.19612130511003417
        {0x3fcad28a9e3226df},  // 0.20955021595391707
        {0x3fcce000c07a3b3e},  // 0.2255860271293048
        {0x3fcf7fffec1426e4},  // 0.24609374072343038
        {0x3fd17ffffffe2a26},  // 0.273437499993323
        {0x3fd400000000138b},  // 0.3125000000002777
        {0x3fd8000000000001},  // 0.37500000000000006
    }},
};

const double SQRT_SEED[512] = {
#include "kernels/quotients/tables/sqrt_seed.inc"
};

const double RSQRT_SEED[65] = {
#include "kernels/quotients/tables/rsqrt_seed.inc"
};

}  // namespace zorv
