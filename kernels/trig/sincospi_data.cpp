#include "kernels/trig/sincospi_data.h"

namespace zorv {

static constexpr PiScaledSineData<float, int32_t, 4> accuratef = {
    .magnitude = 0x7fffffff,    //
    .sign = 0x80000000,         //
    .limit = 0x4a800000,        // 2^22
    .big_limit = 0x4f000000,    // 2^31
    .big_shifter = 0x4fc00000,  // 1.5 * 2^32
    .shifter = 0x4b400000,      // 1.5 * 2^23
    .half = 0x3f000000,         // 0.5
    .pi = 0x40490fdb,           // 3.14159274
    .c =
        {
            0xbe2aaaa6,  // -0.166666597
            0x3c08876a,  // 0.00833306648
            0xb94fb7ff,  // -0.000198096022
            0x362edef8,  // 2.60578054e-06
        },
};

static constexpr PiScaledSineData<float, int32_t, 2> nativef = {
    .magnitude = 0x7fffffff,    //
    .sign = 0x80000000,         //
    .limit = 0x4a800000,        // 2^22
    .big_limit = 0x4f000000,    // 2^31
    .big_shifter = 0x4fc00000,  // 1.5 * 2^32
    .shifter = 0x4b400000,      // 1.5 * 2^23
    .half = 0x3f000000,         // 0.5
    .pi = 0x40490fdb,           // 3.14159274
    .c =
        {
            0xbe2a1dc5,  // -0.166129187
            0x3bfae3c1,  // 0.00765654491
        },
};

// The limits are far apart, and the cosine's pi is one unit in the last place above the nearest double to it.
struct DoubleScale {
    uint64_t limit, pi;
};
static constexpr DoubleScale of_sine = {
    .limit = 0x4320000000000000,  // 2^51
    .pi = 0x400921fb54442d18,     // 3.1415926535897931
};
static constexpr DoubleScale of_cosine = {
    .limit = 0x42a0000000000000,  // 2^43
    .pi = 0x400921fb54442d19,     // 3.1415926535897936
};

static constexpr PiScaledSineData<double, int64_t, 7> accurate(DoubleScale scale) {
    return {
        .magnitude = 0x7fffffffffffffff,    //
        .sign = 0x8000000000000000,         //
        .limit = scale.limit,               //
        .big_limit = 0x43a0000000000000,    // 2^59
        .big_shifter = 0x43b8000000000000,  // 1.5 * 2^60
        .shifter = 0x4338000000000000,      // 1.5 * 2^52
        .half = 0x3fe0000000000000,         // 0.5
        .pi = scale.pi,                     //
        .c =
            {
                0xbfc55555555554a8,  // -0.16666666666666186
                0x3f8111111110a573,  // 0.0083333333332855416
                0xbf2a01a019a659dd,  // -0.00019841269825056256
                0x3ec71de3806add1a,  // 2.7557316600552628e-06
                0xbe5ae6355aaa4a53,  // -2.5051880273862881e-08
                0x3de60e6bee01d83e,  // 1.6048095404959637e-10
                0xbd69f1517e9f65f0,  // -7.3733445331106646e-13
            },
    };
}

static constexpr PiScaledSineData<double, int64_t, 4> native(DoubleScale scale) {
    return {
        .magnitude = 0x7fffffffffffffff,    //
        .sign = 0x8000000000000000,         //
        .limit = scale.limit,               //
        .big_limit = 0x43a0000000000000,    // 2^59
        .big_shifter = 0x43b8000000000000,  // 1.5 * 2^60
        .shifter = 0x4338000000000000,      // 1.5 * 2^52
        .half = 0x3fe0000000000000,         // 0.5
        .pi = scale.pi,                     //
        .c =
            {
                0xbfc55554bc836587,  // -0.16666659550427829
                0x3f8110ed3804ca96,  // 0.0083330662460856901
                0xbf29f6ffeea73463,  // -0.00019809602902257352
                0x3ec5dbdf0e4c7dee,  // 2.605780638722852e-06
            },
    };
}

const PiScaledSineData<float, int32_t, 4> sinpif_data = accuratef;
const PiScaledSineData<float, int32_t, 4> cospif_data = accuratef;
const PiScaledSineData<float, int32_t, 2> sinpif_native_data = nativef;
const PiScaledSineData<float, int32_t, 2> cospif_native_data = nativef;
constinit const PiScaledSineData<double, int64_t, 7> sinpi_data = accurate(of_sine);
constinit const PiScaledSineData<double, int64_t, 7> cospi_data = accurate(of_cosine);
constinit const PiScaledSineData<double, int64_t, 4> sinpi_native_data = native(of_sine);
constinit const PiScaledSineData<double, int64_t, 4> cospi_native_data = native(of_cosine);

}  // namespace zorv
