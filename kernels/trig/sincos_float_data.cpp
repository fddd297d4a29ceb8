#include "kernels/trig/sincos_float_data.h"

namespace zorv {

static constexpr AccurateSinefData accurate = {
    .magnitude = 0x7fffffff,          //
    .sign = 0x80000000,               //
    .limit = 0x461c4000,              // 10000.0
    .inverse_pi = 0x3ea2f983,         // 0.318309873
    .shifter = 0x4b400000,            // 1.5 * 2^23
    .half = 0x3f000000,               // 0.5
    .half_pi = 0x3fc90fdb,            // 1.57079637
    .half_of_two_parts = 0x3fc90fda,  // (3.140625 + 0.000967502594) / 2, exact
    .pi =
        {
            0x40490000,  // 3.140625
            0x3a7da000,  // 0.000967502594
            0x34222000,  // 1.50990672e-07
            0x2cb4611a,  // 5.12668814e-12
        },
    .c =
        {
            0xbe2aaaa6,  // -0.166666597
            0x3c08876a,  // 0.00833306648
            0xb94fb7ff,  // -0.000198096022
            0x362edef8,  // 2.60578054e-06
        },
};

static constexpr NativeSinefData native = {
    .magnitude = 0x7fffffff,          //
    .sign = 0x80000000,               //
    .limit = 0x461c4000,              // 10000.0
    .inverse_pi = 0x3ea2f983,         // 0.318309873
    .shifter = 0x4b400000,            // 1.5 * 2^23
    .half = 0x3f000000,               // 0.5
    .half_pi = 0x3fc90fdb,            // 1.57079637
    .half_of_two_parts = 0x3fc90fda,  // (3.140625 + 0.000967502594) / 2, exact
    .pi =
        {
            0x40490000,  // 3.140625
            0x3a7da000,  // 0.000967502594
            0x34222169,  // 1.50995803e-07
        },
    .c =
        {
            0xbe2a1dc5,  // -0.166129187
            0x3bfae3c1,  // 0.00765654491
        },
};

const AccurateSinefData sinf_data = accurate;
const AccurateSinefData cosf_data = accurate;
const AccurateSinefData sincosf_data = accurate;
const AccurateSinefData sincosregf_data = accurate;
const NativeSinefData sinf_native_data = native;
const NativeSinefData cosf_native_data = native;
const NativeSinefData sincosf_native_data = native;
const NativeSinefData sincosregf_native_data = native;

const TurnSinefData turn_sinef_data = {
    .sign = 0x80000000,  //
    .s1 = 0xbe2aaaab,    // -0.166666672
    .s2 = 0x3c08885c,    // 0.00833329186
    .c1 = 0xbf000000,    // -0.5
    .c2 = 0x3d2aaa7c,    // 0.0416664928
};

alignas(64) const float turn_table_f[320 * turn_row] = {
#include "kernels/trig/tables/turn_table_f.inc"
};

}  // namespace zorv
