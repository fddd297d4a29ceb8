#include "kernels/trig/sincos_double_data.h"

namespace zorv {

// Two accurate sets of coefficients, which differ in their last digits: one of the sine by itself, one of all that
// have a cosine.
static constexpr ShortSinedData<4, 7> accurate_sine = {
    .magnitude = 0x7fffffffffffffff,   //
    .sign = 0x8000000000000000,        //
    .inverse_pi = 0x3fd45f306dc9c883,  // 0.31830988618379069
    .shifter = 0x4338000000000000,     // 1.5 * 2^52
    .half = 0x3fe0000000000000,        // 0.5
    .half_pi = 0x3ff921fb54442d18,     // 1.5707963267948966
    .pi =
        {
            0x400921fb40000000,  // 3.1415925025939941
            0x3e84442d00000000,  // 1.5099578831723193e-07
            0x3d08469880000000,  // 1.078060505991553e-14
            0x3b88cc51701b839a,  // 6.5640070857470009e-22
        },
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

static constexpr ShortSinedData<4, 7> accurate_cosine = {
    .magnitude = 0x7fffffffffffffff,   //
    .sign = 0x8000000000000000,        //
    .inverse_pi = 0x3fd45f306dc9c883,  // 0.31830988618379069
    .shifter = 0x4338000000000000,     // 1.5 * 2^52
    .half = 0x3fe0000000000000,        // 0.5
    .half_pi = 0x3ff921fb54442d18,     // 1.5707963267948966
    .pi =
        {
            0x400921fb40000000,  // 3.1415925025939941
            0x3e84442d00000000,  // 1.5099578831723193e-07
            0x3d08469880000000,  // 1.078060505991553e-14
            0x3b88cc51701b839a,  // 6.5640070857470009e-22
        },
    .c =
        {
            0xbfc55555555554a6,  // -0.1666666666666618
            0x3f8111111110a43e,  // 0.0083333333332850056
            0xbf2a01a019a57845,  // -0.00019841269824899719
            0x3ec71de3801e2ccb,  // 2.7557316579267236e-06
            0xbe5ae635403b7259,  // -2.5051878806537562e-08
            0x3de60e677429ef0b,  // 1.6048045711923402e-10
            0xbd69f0ba3b75f5ae,  // -7.3726885372321636e-13
        },
};

static constexpr NativeSinedData native = {
    .magnitude = 0x7fffffffffffffff,   //
    .sign = 0x8000000000000000,        //
    .inverse_pi = 0x3fd45f306dc9c883,  // 0.31830988618379069
    .shifter = 0x4338000000000000,     // 1.5 * 2^52
    .half = 0x3fe0000000000000,        // 0.5
    .half_pi = 0x3ff921fb54442d18,     // 1.5707963267948966
    .pi =
        {
            0x400921fb40000000,  // 3.1415925025939941
            0x3e84442d00000000,  // 1.5099578831723193e-07
            0x3d08469898cc5170,  // 1.0780605716316238e-14
        },
    .c =
        {
            0xbfc55554bc836587,  // -0.16666659550427829
            0x3f8110ed3804ca96,  // 0.0083330662460856901
            0xbf29f6ffeea73463,  // -0.00019809602902257352
            0x3ec5dbdf0e4c7dee,  // 2.605780638722852e-06
        },
};

// (3.1415925025939941 + 1.5099578831723193e-07) / 2, exact.
static constexpr Slot<double> half_of_two_parts = 0x3ff921fb54442d00;

// The limit is 2^24 for the sine by itself, 2^23 where there is a cosine.
const AccurateSinedData sin_data = {accurate_sine, 0x4170000000000000, half_of_two_parts};
const AccurateSinedData cos_data = {accurate_cosine, 0x4160000000000000, half_of_two_parts};
const AccurateSinedData sincos_data = {accurate_cosine, 0x4160000000000000, half_of_two_parts};
const AccurateSinedData sincosreg_data = {accurate_cosine, 0x4160000000000000, half_of_two_parts};
const NativeSinedData sin_native_data = native;
const NativeSinedData cos_native_data = native;
const NativeSinedData sincos_native_data = native;
const NativeSinedData sincosreg_native_data = native;

const TurnSinedData turn_sined_data = {
    .sign = 0x8000000000000000,  //
    .s1 = 0xbfc5555555554448,    // -0.1666666666665455
    .s2 = 0x3f81110fabb3551c,    // 0.0083333229326095146
    .c2 = 0xbfe0000000000000,    // -0.5
    .c4 = 0x3fa5555555554ccf,    // 0.041666666666651524
    .c6 = 0xbf56c16ab163b2d7,    // -0.0013888875887985619
};

alignas(64) const double turn_table_d[640 * turn_row_d] = {
#include "kernels/trig/tables/turn_table_d.inc"
};

}  // namespace zorv
