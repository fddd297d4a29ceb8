#include "kernels/trig/tan_data.h"

namespace zorv {

const ShortTangentData<float, int32_t, 4, 2, 3> tanf_data = {
    .magnitude = 0x7fffffff,    //
    .sign = 0x80000000,         //
    .limit = 0x46010000,        // 8256.0
    .two_over_pi = 0x3f22f983,  // 0.636619747
    .shifter = 0x4b400000,      // 1.5 * 2^23
    .half_pi =
        {
            0x3fc90000,  // 1.5703125
            0x39fd8000,  // 0.000483512878
            0x34a88000,  // 3.13855708e-07
            0x2e85a309,  // 6.07710063e-11
        },
    .numerator = {{
        0xbdc433b8,  // -0.0958017707
        0x3f800000,  // 1
    }},
    .denominator = {{
        0x3c1f3375,  // 0.00971685816
        0xbedbb7af,  // -0.42913577
        0x3f800000,  // 1
    }},
};

const ShortTangentData<float, int32_t, 3, 2, 3> tanf_native_data = {
    .magnitude = 0x7fffffff,    //
    .sign = 0x80000000,         //
    .limit = 0x46010000,        // 8256.0
    .two_over_pi = 0x3f22f983,  // 0.636619747
    .shifter = 0x4b400000,      // 1.5 * 2^23
    .half_pi =
        {
            0x3fc90000,  // 1.5703125
            0x39fda000,  // 0.000483751297
            0x33a22169,  // 7.54979013e-08
        },
    .numerator = {{
        0xbdc433b8,  // -0.0958017707
        0x3f800000,  // 1
    }},
    .denominator = {{
        0x3c1f3375,  // 0.00971685816
        0xbedbb7af,  // -0.42913577
        0x3f800000,  // 1
    }},
};

const ShortTangentData<double, int64_t, 4, 4, 4> tan_data = {
    .magnitude = 0x7fffffffffffffff,    //
    .sign = 0x8000000000000000,         //
    .limit = 0x40ff400000000000,        // 128000.0
    .two_over_pi = 0x3fe45f306dc9c883,  // 0.63661977236758138
    .shifter = 0x4338000000000000,      // 1.5 * 2^52
    .half_pi =
        {
            0x3ff921fb40000000,  // 1.5707962512969971
            0x3e74442d00000000,  // 7.5497894158615964e-08
            0x3cf8469880000000,  // 5.3903025299577648e-15
            0x3b78cc51701b839a,  // 3.2820035428735005e-22
        },
    .numerator = {{
        0xbedf637dea7c0b2c,  // -7.483634966612065e-06
        0x3f66fc6fe2982a7b,  // 0.0028059182411699891
        0xbfc06b97bf03648a,  // -0.12828347040957438
        0x3ff0000000000000,  // 1
    }},
    .denominator = {{
        0xbf2b525b10d0a168,  // -0.00020844804422038708
        0x3f97e7b68d9a55f3,  // 0.023344852822068728
        0xbfdd8b2134d70767,  // -0.46161680374290487
        0x3ff0000000000000,  // 1
    }},
};

// The leading coefficients are fitted as a pair; they differ in their last bits.
const ShortTangentData<double, int64_t, 3, 3, 3> tan_native_data = {
    .magnitude = 0x7fffffffffffffff,    //
    .sign = 0x8000000000000000,         //
    .limit = 0x40ff400000000000,        // 128000.0
    .two_over_pi = 0x3fe45f306dc9c883,  // 0.63661977236758138
    .shifter = 0x4338000000000000,      // 1.5 * 2^52
    .half_pi =
        {
            0x3ff921fb40000000,  // 1.5707962512969971
            0x3e74442d00000000,  // 7.5497894158615964e-08
            0x3cf8469898cc5170,  // 5.390302858158119e-15
        },
    .numerator = {{
        0x3f545c936ed9193a,  // 0.0012427749419586368
        0xbfc079ff5bf6a4df,  // -0.12872306814578047
        0x3ff27e949512aa02,  // 1.1559034178886809
    }},
    .denominator = {{
        0x3f92e825cc67d220,  // 0.018463698006558116
        0xbfe072e2e400ec37,  // -0.51402420551256156
        0x3ff27e949510e8de,  // 1.1559034178631502
    }},
};

const TangentExpansionfData tangent_expansionf_data = {
    .index_mask = 0x0000007f,  //
    .head_mask = 0xfffff000,   // the high 12 significant bits
    .one = 0x3f800000,         // 1.0
};
const TangentExpansiondData tangent_expansiond_data = {
    .index_mask = 0x00000000000000ff,  //
    .one = 0x3ff0000000000000,         // 1.0
};

static constexpr PiScaledTangentData<float, int32_t> pi_scaledf = {
    .magnitude = 0x7fffffff,    //
    .sign = 0x80000000,         //
    .infinity = 0x7f800000,     //
    .big_limit = 0x4f000000,    // 2^31
    .big_shifter = 0x4fc00000,  // 1.5 * 2^32
    .shifter = 0x47c00000,      // 1.5 * 2^16
    .pi = 0x40490fdb,           // 3.14159274
};
const PiScaledTangentData<float, int32_t> tanpif_data = pi_scaledf;
const PiScaledTangentData<float, int32_t> tanpif_native_data = pi_scaledf;

static constexpr PiScaledTangentData<double, int64_t> pi_scaled = {
    .magnitude = 0x7fffffffffffffff,    //
    .sign = 0x8000000000000000,         //
    .infinity = 0x7ff0000000000000,     //
    .big_limit = 0x43a0000000000000,    // 2^59
    .big_shifter = 0x43b8000000000000,  // 1.5 * 2^60
    .shifter = 0x42b8000000000000,      // 1.5 * 2^44
    .pi = 0x400921fb54442d18,           // 3.1415926535897931
};
const PiScaledTangentData<double, int64_t> tanpi_data = pi_scaled;
const PiScaledTangentData<double, int64_t> tanpi_native_data = pi_scaled;

const TangentRowF tan_table_f[128] = {
#include "kernels/trig/tables/tan_table_f.inc"
};
const TangentRowD tan_table_d[256] = {
#include "kernels/trig/tables/tan_table_d.inc"
};

}  // namespace zorv
