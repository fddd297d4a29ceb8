#include "kernels/inverse_trig/atan_data.h"

namespace zorv {

// ---- In radians. ----

static constexpr AtanfData float_radians = {
    .sign = 0x80000000,  //
    .one = 0x3f800000,   // 1.0
    .polynomial =
        {
            .even = {{
                0x3b322cc0,  // 0.0027187318
                0x3d2bc384,  // 0.041934505
                0x3dd96474,  // 0.10614863
                0x3e4cb79f,  // 0.19991921
                0x3f800000,  // 1.0
            }},
            .odd = {{
                0xbc7f2631,  // -0.01557307
                0xbd987629,  // -0.07444412
                0xbe1161f8,  // -0.14197528
                0xbeaaaa49,  // -0.33333042
            }},
        },
    .quarter_turn = 0x3fc90fdb,                          // 1.5707964
    .half_turn = 0x40490fdb,                             // 3.1415927
    .range = {.first = 0x81000000, .last = 0xfbffffff},  // 2^-125 to 2^123
};

static constexpr AtanfNativeData float_radians_native = {
    .sign = 0x80000000,  //
    .one = 0x3f800000,   // 1.0
    .division =
        {
            .two = 0x40000000,  // 2.0
        },
    .polynomial =
        {
            .even = {{
                0x3e1e481b,  // 0.15457194
                0x3f7ff145,  // 0.99977523
            }},
            .odd = {{
                0xbd324820,  // -0.043525815
                0xbea6a8a3,  // -0.32550535
            }},
        },
    .quarter_turn = 0x3fc90fdb,  // 1.5707964
    .half_turn = 0x40490fdb,     // 3.1415927
};

static constexpr AtanData double_radians = {
    .sign = 0x8000000000000000,  //
    .one = 0x3ff0000000000000,   // 1.0
    .polynomial =
        {
            .d = {{
                0x3f6f5a1dae82afb3,  // 0.0038271503181785626
                0x3fa169980cb6ad4f,  // 0.03400874285883992
                0x3fae1749bd612dcf,  // 0.05877142369044074
                0x3fbc71c707f7d5b5,  // 0.11111110634359174
                0x3ff0000000000000,  // 1.0
            }},
            .c = {{
                0xbf52e67c93954c23,  // -0.0011535851065971401
                0xbf9a5e83b081f69c,  // -0.025751168869183702
                0xbfaad261eaa09954,  // -0.052386340991051356
                0xbfb745d009bada94,  // -0.09090900647684413
                0xbfd55555555553c5,  // -0.3333333333333111
            }},
            .b = {{
                0x3f2ced0a36665209,  // 0.00022068738617221664
                0x3f914f4c661116a5,  // 0.016904062013301985
                0x3fa7ec0fbc50683b,  // 0.04672288106685626
                0x3fb3b12a49295651,  // 0.076922076093376
                0x3fc999999997ee34,  // 0.19999999999696316
            }},
            .a = {{
                0xbef4fdb537abc7a3,  // -2.001862183482302e-05
                0xbf82b2ec618e4bad,  // -0.009130331732910191
                0xbfa4efa2e563c1bc,  // -0.040890779973668384
                0xbfb11084009435e0,  // -0.06665825857290697
                0xbfc2492491ee55c7,  // -0.14285714269196445
            }},
        },
    .quarter_turn = 0x3ff921fb54442d18,                  // 1.5707963267948966
    .half_turn = 0x400921fb54442d18,                     // 3.141592653589793
    .range = {.first = 0x80300000, .last = 0xfdcfffff},  // 2^-1020 to 2^993
};

static constexpr AtanNativeData double_radians_native = {
    .sign = 0x8000000000000000,  //
    .one = 0x3ff0000000000000,   // 1.0
    .division =
        {
            .seed =
                {
                    .mantissa = 0x007fffff,   //
                    .one = 0x3f800000,        // 1.0f
                    .exponents = 0x77f00000,  // those of the reciprocal of 1 and of the estimate, three places lower
                    .exponent_field = 0xfff00000,     // with the sign
                    .high_half = 0xffffffff00000000,  //
                },
            .one = 0x3ff0000000000000,  // 1.0
        },
    .polynomial =
        {
            .even = {{
                0x3f85e36a8ced7474,  // 0.010687668252723471
                0x3fad6ee2dace07af,  // 0.05748661919552888
                0x3fbc0236e7018ba7,  // 0.1094087900142272
                0x3fc999069c08617c,  // 0.1999824773672677
                0x3feffffffeb5a845,  // 0.9999999975964405
            }},
            .odd = {{
                0xbf5c95b5ab286a02,  // -0.001744677935340833
                0xbf9f791909cb44c4,  // -0.03073538896825735
                0xbfb56fcd7489159a,  // -0.08373722167114864
                0xbfc2414862594647,  // -0.14261727144416822
                0xbfd55553391ce4c9,  // -0.3333328302138168
            }},
        },
    .quarter_turn = 0x3ff921fb54442d18,  // 1.5707963267948966
    .half_turn = 0x400921fb54442d18,     // 3.141592653589793
};

// ---- In half turns. ----

static constexpr AtanpifData float_half_turns = {
    .sign = 0x80000000,  //
    .one = 0x3f800000,   // 1.0
    .division =
        {
            .two = 0x40000000,  // 2.0
        },
    .polynomial =
        {
            .c = {{
                0x3a62dbf5,  // 0.0008653992
                0xbba26eda,  // -0.004957062
                0x3c5ab246,  // 0.013348168
                0xbcc21ebe,  // -0.0236963
                0x3d0a6574,  // 0.03378816
                0xbd391b64,  // -0.045192137
                0x3d8253ba,  // 0.06363626
                0xbdd94c33,  // -0.10610237
                0x3ea2f983,  // 0.31830987
            }},
        },
    .quarter_turn = 0x3f000000,                          // 0.5
    .half_turn = 0x3f800000,                             // 1.0
    .range = {.first = 0x81000000, .last = 0xfbffffff},  // 2^-125 to 2^123
};

static constexpr AtanfNativeData float_half_turns_native = {
    .sign = 0x80000000,  //
    .one = 0x3f800000,   // 1.0
    .division =
        {
            .two = 0x40000000,  // 2.0
        },
    .polynomial =
        {
            .even = {{
                0x3d4987cd,  // 0.049201775
                0x3ea2f023,  // 0.31823835
            }},
            .odd = {{
                0xbc62fed0,  // -0.013854697
                0xbdd4324d,  // -0.103611566
            }},
        },
    .quarter_turn = 0x3f000000,  // 0.5
    .half_turn = 0x3f800000,     // 1.0
};

static constexpr AtanpiData double_half_turns = {
    .sign = 0x8000000000000000,  //
    .one = 0x3ff0000000000000,   // 1.0
    .division =
        {
            .seed =
                {
                    .mantissa = 0x007fffff,   //
                    .one = 0x3f800000,        // 1.0f
                    .exponents = 0x77f00000,  // those of the reciprocal of 1 and of the estimate, three places lower
                    .exponent_field = 0xfff00000,     // with the sign
                    .high_half = 0xffffffff00000000,  //
                },
            .one = 0x3ff0000000000000,        // 1.0
            .high_half = 0xffffffff00000000,  //
        },
    .polynomial =
        {
            .c = {{
                0xbec435d571d7fb69,  // -2.4092540928938886e-06
                0x3efee969b7db1149,  // 2.9479760533816517e-05
                0xbf26798a20dc9977,  // -0.00017146884095460186
                0x3f44c3c0c907686f,  // 0.0006336871465990721
                0xbf5b8ddb0f1cd2c5,  // -0.0016817702530264472
                0x3f6c3a72776ac84d,  // 0.0034458385155966887
                0xbf778ac56b6fecf2,  // -0.005747576876270021
                0x3f80bad5cf20a9ed,  // 0.008168859847576615
                0xbf85278cbef8b02e,  // -0.010329341485963619
                0x3f88ca8ee19b9723,  // 0.012105098972323319
                0xbf8be48c140df0c8,  // -0.013619512903226286
                0x3f8eea5306d0465f,  // 0.015095375676568766
                0xbf9124120821ba9d,  // -0.016739160295794354
                0x3f932bc4f824f7c6,  // 0.018721654553921295
                0xbf95bac83a460e3e,  // -0.02122032981561816
                0x3f9912af904b4dd1,  // 0.024485343153015485
                0xbf9da1baa68634ec,  // -0.02893726006873447
                0x3fa21bb94433ed0a,  // 0.03536776502184054
                0xbfa7483758df91cf,  // -0.04547284088019731
                0x3fb04c26be3af8d5,  // 0.06366197723670848
                0xbfbb2995e7b7b5ed,  // -0.10610329539459658
                0x3fd45f306dc9c883,  // 0.3183098861837907
            }},
        },
    .quarter_turn = 0x3fe0000000000000,                  // 0.5
    .half_turn = 0x3ff0000000000000,                     // 1.0
    .range = {.first = 0x80300000, .last = 0xfdcfffff},  // 2^-1020 to 2^993
};

static constexpr AtanNativeData double_half_turns_native = {
    .sign = 0x8000000000000000,  //
    .one = 0x3ff0000000000000,   // 1.0
    .division =
        {
            .seed =
                {
                    .mantissa = 0x007fffff,   //
                    .one = 0x3f800000,        // 1.0f
                    .exponents = 0x77f00000,  // those of the reciprocal of 1 and of the estimate, three places lower
                    .exponent_field = 0xfff00000,     // with the sign
                    .high_half = 0xffffffff00000000,  //
                },
            .one = 0x3ff0000000000000,  // 1.0
        },
    .polynomial =
        {
            .even = {{
                0x3f6bde7db93e8b55,  // 0.003401990465094521
                0x3f92bcdb8589ee51,  // 0.018298559213219715
                0x3fa1d4b346c946cd,  // 0.03482589949693491
                0x3fb04bc92a8107f5,  // 0.06365639960952747
                0x3fd45f306cf77b05,  // 0.3183098854187139
            }},
            .odd = {{
                0xbf42329940f01541,  // -0.0005553482350257115
                0xbf84094eca14a044,  // -0.009783378164300534
                0xbf9b4b49880fa760,  // -0.026654385499490174
                0xbfa73e3559d3a6f6,  // -0.045396487441235964
                0xbfbb299337e33714,  // -0.10610313524668086
            }},
        },
    .quarter_turn = 0x3fe0000000000000,  // 0.5
    .half_turn = 0x3ff0000000000000,     // 1.0
};

const AtanfData atanf_data = float_radians;
const AtanfData atan2f_data = float_radians;
const AtanData atan_data = double_radians;
const AtanData atan2_data = double_radians;
const AtanfNativeData atanf_native_data = float_radians_native;
const AtanfNativeData atan2f_native_data = float_radians_native;
const AtanNativeData atan_native_data = double_radians_native;
const AtanNativeData atan2_native_data = double_radians_native;
const AtanpifData atanpif_data = float_half_turns;
const AtanpifData atan2pif_data = float_half_turns;
const AtanpiData atanpi_data = double_half_turns;
const AtanpiData atan2pi_data = double_half_turns;
const AtanfNativeData atanpif_native_data = float_half_turns_native;
const AtanfNativeData atan2pif_native_data = float_half_turns_native;
const AtanNativeData atanpi_native_data = double_half_turns_native;
const AtanNativeData atan2pi_native_data = double_half_turns_native;

const ArctangentRareData arctangent_rare_data = {
    .polynomial = {{
        {0xbfb029bd34239994},  // -0.06313688776899645
        {0x3fb3ab7c1048afd1},  // 0.07683539769703819
        {0xbfb745be69cca475},  // -0.0909079559611586
        {0x3fbc71c6f9b157d3},  // 0.11111110301985087
        {0xbfc2492492382a27},  // -0.1428571428262597
        {0x3fc99999999991bb},  // 0.19999999999994408
        {0xbfd5555555555555},  // -0.3333333333333333
    }},
    .eighths =
        {
            {0x0000000000000000},  //
            {0x3fe921fb54442d18},  // 0.7853981633974483
            {0x3ff921fb54442d18},  // 1.5707963267948966
            {0x4002d97c7f3321d2},  // 2.356194490192345
            {0x400921fb54442d18},  // 3.141592653589793
        },
    .half_pi_tail = {0x3c91a62633145c07},     // 6.123233995736766e-17
    .pi_tail = {0x3ca1a62633145c07},          // 1.2246467991473532e-16
    .inverse_pi = {0x3fd45f306dc9c883},       // 0.3183098861837907
    .inverse_pi_tail = {0xbc76b01ec5417056},  // -1.9678676675182486e-17
    .steps =
        {
#include "kernels/inverse_trig/tables/atan_steps.inc"
        },
};

}  // namespace zorv
