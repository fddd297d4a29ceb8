#include "kernels/inverse_trig/asin_acos_data.h"

namespace zorv {

// ---- In radians. ----

static constexpr AsinfData float_radians = {
    .sign = 0x80000000,  //
    .half = 0x3f000000,  // 0.5
    .one = 0x3f800000,   // 1.0
    .two = 0x40000000,   // 2.0
    .root = {{
        0xbdc00004,  // -0.09375003
        0x3e800001,  // 0.25000003
    }},
    .series =
        {
            .pairs = {{
                0x3d2edc07,  // 0.042690303
                0x3cc32a6b,  // 0.023823937
                0x3d3a9ab4,  // 0.045557693
                0x3d997c12,  // 0.07494368
            }},
            .last = 0x3e2aaaff,  // 0.16666792
        },
    .quarter_turn = 0x3fc90fdb,  // 1.5707964
    .half_turn = 0x40490fdb,     // 3.1415927
};

static constexpr AsinfNativeData float_radians_native = {
    .sign = 0x80000000,  //
    .half = 0x3f000000,  // 0.5
    .one = 0x3f800000,   // 1.0
    .two = 0x40000000,   // 2.0
    .root = {{
        0x3e800001,  // 0.25000003
    }},
    .series =
        {
            .c = {{
                0x3dc4c6ae,  // 0.09608208
                0x3e2876b2,  // 0.16451529
                0x380561a3,  // 3.1800602e-05
            }},
        },
    .quarter_turn = 0x3fc90fdb,  // 1.5707964
    .half_turn = 0x40490fdb,     // 3.1415927
};

static constexpr AsinData double_radians = {
    .sign = 0x8000000000000000,  //
    .half = 0x3fe0000000000000,  // 0.5
    .one = 0x3ff0000000000000,   // 1.0
    .two = 0x4000000000000000,   // 2.0
    .root = {{
        0xbf918000993b24c3,  // -0.017089852669219818
        0x3fa400006f70d42d,  // 0.039062512973409326
        0xbfb7fffffffffe97,  // -0.09374999999999499
        0x3fcfffffffffff9d,  // 0.24999999999999725
    }},
    .series =
        {
            .c = {{
                0x3fa07520c70eb909,  // 0.03214361600781685
                0xbf90fb17f7dbb0ed,  // -0.016582846167623556
                0x3f943f44bfbc3bae,  // 0.01977260036715805
                0x3f7a583395d45ed5,  // 0.006431771759956202
                0x3f88f8dc2afccad6,  // 0.012193412839768863
                0x3f8c6dbbcb88bd57,  // 0.013881175183171264
                0x3f91c6dcf538ad2e,  // 0.01736016508782006
                0x3f96e89cebdefadd,  // 0.022371723076271322
                0x3f9f1c72e13ad8be,  // 0.030381960865917483
                0x3fa6db6db3b445f8,  // 0.04464285677580543
                0x3fb333333337e0de,  // 0.07500000000425497
                0x3fc555555555529c,  // 0.1666666666666473
            }},
        },
    .quarter_turn = 0x3ff921fb54442d18,  // 1.5707963267948966
    .half_turn = 0x400921fb54442d18,     // 3.141592653589793
};

static constexpr AsinNativeData double_radians_native = {
    .sign = 0x8000000000000000,  //
    .half = 0x3fe0000000000000,  // 0.5
    .one = 0x3ff0000000000000,   // 1.0
    .two = 0x4000000000000000,   // 2.0
    .root = {{
        0xbfb7fffffffffe97,  // -0.09374999999999499
        0x3fcfffffffffff9d,  // 0.24999999999999725
    }},
    .series =
        {
            .c = {{
                0x3fa36c5af645a11e,  // 0.03793606048822283
                0x3f8ce147ea9e9282,  // 0.014101564261929104
                0x3fa056b4151fa155,  // 0.031911494806822795
                0x3fa6c8ed2a4cce54,  // 0.04450169698102671
                0x3fb33399ebf85b6a,  // 0.07500612269391885
                0x3fc5555480c83a45,  // 0.16666656768980395
            }},
        },
    .quarter_turn = 0x3ff921fb54442d18,  // 1.5707963267948966
    .half_turn = 0x400921fb54442d18,     // 3.141592653589793
};

// ---- In half turns. ----

static constexpr AsinpifData float_half_turns = {
    .sign = 0x80000000,  //
    .half = 0x3f000000,  // 0.5
    .one = 0x3f800000,   // 1.0
    .two = 0x40000000,   // 2.0
    .root = {{
        0xbdc00004,  // -0.09375003
        0x3e800001,  // 0.25000003
    }},
    .series =
        {
            .beyond =
                {
                    .pairs = {{
                        0x3c5ea355,  // 0.013588746
                        0x3bf87e20,  // 0.0075833946
                        0x3c6d978c,  // 0.014501464
                        0x3cc36c37,  // 0.023855312
                    }},
                    .last = 0x3d594d1b,  // 0.05305205
                },
            .inverse_pi = 0x3ea2f983,  // 0.31830987
        },
    .quarter_turn = 0x3f000000,  // 0.5
    .half_turn = 0x3f800000,     // 1.0
};

static constexpr AsinfNativeData float_half_turns_native = {
    .sign = 0x80000000,  //
    .half = 0x3f000000,  // 0.5
    .one = 0x3f800000,   // 1.0
    .two = 0x40000000,   // 2.0
    .root = {{
        0x3e800001,  // 0.25000003
    }},
    .series =
        {
            .c = {{
                0x3cfa8b09,  // 0.030583875
                0x3d567e9d,  // 0.05236684
                0x3ea2fad7,  // 0.31832
            }},
        },
    .quarter_turn = 0x3f000000,  // 0.5
    .half_turn = 0x3f800000,     // 1.0
};

static constexpr AsinpiData double_half_turns = {
    .sign = 0x8000000000000000,  //
    .half = 0x3fe0000000000000,  // 0.5
    .one = 0x3ff0000000000000,   // 1.0
    .two = 0x4000000000000000,   // 2.0
    .root = {{
        0xbf918000993b24c3,  // -0.017089852669219818
        0x3fa400006f70d42d,  // 0.039062512973409326
        0xbfb7fffffffffe97,  // -0.09374999999999499
        0x3fcfffffffffff9d,  // 0.24999999999999725
    }},
    .series =
        {
            .beyond =
                {
                    .c = {{
                        0x3f84f4523bc020d8,  // 0.010231630752983653
                        0xbf759ee439eee799,  // -0.0052784838762195635
                        0x3f79c78ae09a5457,  // 0.006293814172427656
                        0x3f60c57df579794a,  // 0.0020472965368717776
                        0x3f6fcba466ea069b,  // 0.0038812838532187983
                        0x3f7219262adc70a8,  // 0.004418515292652504
                        0x3f76a256c108aaed,  // 0.00552591217323582
                        0x3f7d2b0ea1978f74,  // 0.007121140626143208
                        0x3f83ce53573ad4f4,  // 0.009670878505270576
                        0x3f8d1a452b1c8f4e,  // 0.014210262659225894
                        0x3f98723a1d5e7f21,  // 0.0238732414651387
                        0x3fab2995e7b7b28b,  // 0.05305164769729228
                    }},
                },
            .inverse_pi = 0x3fd45f306dc9c883,  // 0.3183098861837907
        },
    .quarter_turn = 0x3fe0000000000000,  // 0.5
    .half_turn = 0x3ff0000000000000,     // 1.0
};

static constexpr AsinpiNativeData double_half_turns_native = {
    .sign = 0x8000000000000000,  //
    .half = 0x3fe0000000000000,  // 0.5
    .one = 0x3ff0000000000000,   // 1.0
    .two = 0x4000000000000000,   // 2.0
    .root = {{
        0xbfb7fffffffffe97,  // -0.09374999999999499
        0x3fcfffffffffff9d,  // 0.24999999999999725
    }},
    .series =
        {
            .beyond =
                {
                    .c = {{
                        0x3f88baffda4549f0,  // 0.012075423096267607
                        0x3f7262b57524fb3b,  // 0.004488667315228063
                        0x3f84cd955bdded9f,  // 0.010157744279914392
                        0x3f8d02b66c2ad236,  // 0.014165330101016154
                        0x3f9872bce76efa44,  // 0.02387519037778875
                        0x3fab2994d916cb05,  // 0.05305161619198454
                    }},
                },
            .inverse_pi = 0x3fd45f306dc9c883,  // 0.3183098861837907
        },
    .quarter_turn = 0x3fe0000000000000,  // 0.5
    .half_turn = 0x3ff0000000000000,     // 1.0
};

const AsinfData asinf_data = float_radians;
const AsinfData acosf_data = float_radians;
const AsinData asin_data = double_radians;
const AsinData acos_data = double_radians;
const AsinfNativeData asinf_native_data = float_radians_native;
const AsinfNativeData acosf_native_data = float_radians_native;
const AsinNativeData asin_native_data = double_radians_native;
const AsinNativeData acos_native_data = double_radians_native;
const AsinpifData asinpif_data = float_half_turns;
const AsinpifData acospif_data = float_half_turns;
const AsinpiData asinpi_data = double_half_turns;
const AsinpiData acospi_data = double_half_turns;
const AsinfNativeData asinpif_native_data = float_half_turns_native;
const AsinfNativeData acospif_native_data = float_half_turns_native;
const AsinpiNativeData asinpi_native_data = double_half_turns_native;
const AsinpiNativeData acospi_native_data = double_half_turns_native;

}  // namespace zorv
