#include "kernels/explog/explog_float_data.h"

namespace zorv {

// ---- Exponentials. -----------------------------------------------------------------------------------------

const ExpfData expf_data = {
    .log2_e = 0x3fb8aa3b,    // 1.442695
    .shifter = 0x4b400000,   // 1.5 * 2^23
    .ln2_high = 0x3f317200,  // 0.69314575, 15 significant bits
    .ln2_low = 0x35bfbe8e,   // 1.4286068e-6
    .p = {{
        0x3c07d9fe,  // 0.0082917195
        0x3d2b8392,  // 0.041873522
        0x3e2aacac,  // 0.16667432
        0x3effff34,  // 0.49999392
        0x3f7ffffe,  // 0.9999999
        0x3f800000,  // 1.0
    }},
    .magnitude = 0x7fffffff,      // all but the sign
    .last_ordinary = 0x42aeac4f,  // 87.33654: e^-x is still normal
};

const Exp2fData exp2f_data = {
    .shifter = 0x4b400000,  // 1.5 * 2^23
    .p = {{
        0x39213c8c,  // 0.00015376712
        0x3aaf7a51,  // 0.0013387894
        0x3c1d962c,  // 0.009618323
        0x3d6357cf,  // 0.055503663
        0x3e75fdef,  // 0.24022649
        0x3f317218,  // 0.6931472
        0x3f800000,  // 1.0
    }},
    .magnitude = 0x7fffffff,      // all but the sign
    .last_ordinary = 0x42fc0000,  // 126.0: 2^-x is still normal
};

const Exp10fData exp10f_data = {
    .steps_per_unit = 0x44d49a78,  // 1700.8271, 512 log2(10)
    .shifter = 0x4b400000,         // 1.5 * 2^23
    .step_high = 0x3a1a0000,       // 0.0005874634, log10(2)/512
    .step_low = 0x35026a14,        // 4.858314e-7
    .p = {{
        0x40135d8d,  // 2.302585, ln 10
        0x33f5fdea,  // 1.1454888e-7
    }},
    .row_index = 0x000001ff,      // the low nine bits
    .magnitude = 0x7fffffff,      // all but the sign
    .last_ordinary = 0x4217b818,  // 37.92978: 10^-x is still normal
    .powers =
        {
#include "kernels/explog/tables/exp10f_powers.inc"
        },
};

const ExpfNativeData expf_native_data = {
    .log2_e = 0x3fb8aa3b,   // 1.442695
    .shifter = 0x4b400000,  // 1.5 * 2^23
    .ln2 = 0x3f317218,      // 0.6931472
    .p = {{
        0x3e2963ac,  // 0.16541928
        0x3f00f2d6,  // 0.5037054
        0x3f8003de,  // 1.000118
        0x3f800000,  // 1.0
    }},
};

const Exp2fNativeData exp2f_native_data = {
    .shifter = 0x4b400000,  // 1.5 * 2^23
    .p = {{
        0x3d61fbcc,  // 0.055171773
        0x3e786f13,  // 0.24261121
        0x3f31798d,  // 0.69326097
        0x3f7ffb49,  // 0.99992806
    }},
};

const Exp10fNativeData exp10f_native_data = {
    .log2_10 = 0x40549a78,  // 3.321928
    .shifter = 0x4b400000,  // 1.5 * 2^23
    .p = {{
        0x3d61fbcc,  // 0.055171773
        0x3e786f13,  // 0.24261121
        0x3f31798d,  // 0.69326097
        0x3f7ffb49,  // 0.99992806
    }},
};

const ExponentialRareData<5> expf_rare_data = {
    .last_finite = {0x42b17217},   // 88.72283
    .last_nonzero = {0xc2cff1b4},  // -103.97208, ln 2^-150
    .last_normal = {0xc2aeac4f},   // -87.33654
    .log2_base = {0x3fb8aa3b},     // 1.442695
    .log_2_high = {0x3f317200},    // 0.69314575
    .log_2_low = {0x35bfbe8e},     // 1.4286068e-6
    .p = {{
        {0x3c0950ef},  // 0.0083811125
        {0x3d2bb1b6},  // 0.041917525
        {0x3e2aa9c6},  // 0.16666326
        {0x3efffe85},  // 0.4999887
        {0x3f800001},  // 1.0000001
        {0x3f800001},  // 1.0000001
    }},
};

const Exp2fRareData exp2f_rare_data = {
    .last_finite = {0x43000000},   // 128.0
    .last_nonzero = {0xc3160000},  // -150.0
    .last_normal = {0xc2fc0000},   // -126.0
    .p = {{
        {0x3aafc483},  // 0.0013410005
        {0x3c1e883d},  // 0.009676036
        {0x3d635716},  // 0.055502973
        {0x3e75fc83},  // 0.24022107
        {0x3f317219},  // 0.69314724
        {0x3f800001},  // 1.0000001
    }},
};

const ExponentialRareData<6> exp10f_rare_data = {
    .last_finite = {0x421a209b},   // 38.53184
    .last_nonzero = {0xc2349e35},  // -45.1545, log10 2^-150
    .last_normal = {0xc217b819},   // -37.929783
    .log2_base = {0x40549a78},     // 3.321928
    .log_2_high = {0x3e9a2000},    // 0.3010254
    .log_2_low = {0x369a84fc},     // 4.605039e-6
    .p = {{
        {0x3e54fd23},  // 0.20799689
        {0x3f0ac64a},  // 0.54208815
        {0x3f95eb27},  // 1.1712388
        {0x400237ac},  // 2.034648
        {0x4029a927},  // 2.6509492
        {0x40135d8e},  // 2.3025851
        {0x3f800000},  // 1.0
    }},
};

// ---- Logarithms. -------------------------------------------------------------------------------------------

const LogfData logf_data = {
    .split =
        {
            .two_thirds = 0x3f2aaaab,  // 0.666666687
            .mantissa = 0x007fffff,    // all but sign and exponent
            .one = 0x3f800000,         // 1.0
        },
    .q = {{
        0xbe0402c8,  // -0.12891686
        0x3e0f335d,  // 0.13984437
        0xbdf9889e,  // -0.12184261
        0x3e0f6b8c,  // 0.1400587
        0xbe2acee6,  // -0.16680488
        0x3e4ce814,  // 0.20010406
        0xbe7fff78,  // -0.24999797
        0x3eaaaa83,  // 0.33333215
        0xbf000000,  // -0.5
    }},
    .ln2_high = 0x3f317200,               // 0.69314575, 15 significant bits
    .ln2_low = 0x35bfbe8e,                // 1.4286068e-6
    .smallest_normal = 0x00800000,        // one step of the exponent field
    .twice_smallest_normal = 0x01000000,  // two steps
};

const Log2fData log2f_data = {
    .split =
        {
            .two_thirds = 0x3f2aaaab,  // 0.666666687
            .mantissa = 0x007fffff,    // all but sign and exponent
            .one = 0x3f800000,         // 1.0
        },
    .a = {{
        0x3e554012,  // 0.20825222
        0xbe638e14,  // -0.22222167
        0x3e4d660b,  // 0.20058458
        0xbe727824,  // -0.23678643
        0x3e93dd07,  // 0.28879568
        0xbeb8b969,  // -0.36078957
        0x3ef637c0,  // 0.4808941
        0xbf38aa2b,  // -0.72134656
    }},
    .log2_e = 0x3fb8aa3b,           // 1.442695
    .smallest_normal = 0x00800000,  // 1.1754944e-38
    .largest = 0x7f7fffff,          // 3.4028235e38
};

const Log10fData log10f_data = {
    .split =
        {
            .two_thirds = 0x3f2aaaab,  // 0.666666687
            .mantissa = 0x007fffff,    // all but sign and exponent
            .one = 0x3f800000,         // 1.0
        },
    .a = {{
        0x3d8063b4,  // 0.06269017
        0xbd890073,  // -0.06689539
        0x3d775317,  // 0.060381975
        0xbd91fb27,  // -0.07127982
        0x3db20b96,  // 0.08693616
        0xbdde6e20,  // -0.108608484
        0x3e143ce5,  // 0.14476354
        0xbe5e5bc5,  // -0.21714695
    }},
    .log10_e = 0x3ede5bd9,          // 0.4342945
    .log10_2_high = 0x3e9a2100,     // 0.30103302
    .log10_2_low = 0xb64af600,      // -3.0243536e-6
    .smallest_normal = 0x00800000,  // 1.1754944e-38
    .largest = 0x7f7fffff,          // 3.4028235e38
};

const LogfNativeData logf_native_data = {
    .split =
        {
            .two_thirds = 0x3f2aaaab,  // 0.666666687
            .mantissa = 0x007fffff,    // all but sign and exponent
            .one = 0x3f800000,         // 1.0
        },
    .q = {{
        0xbe89233c,  // -0.26784694
        0x3eb4a830,  // 0.35284567
        0xbf000000,  // -0.5
    }},
    .ln2 = 0x3f317218,  // 0.6931472
};

const Log2fNativeData log2f_native_data = {
    .split =
        {
            .two_thirds = 0x3f2aaaab,  // 0.666666687
            .mantissa = 0x007fffff,    // all but sign and exponent
            .one = 0x3f800000,         // 1.0
        },
    .a = {{
        0x3eaae01b,  // 0.33374104
        0xbecb686c,  // -0.39728105
        0x3ef4fa41,  // 0.4784718
        0xbf38658a,  // -0.72029936
        0x3fb8aaed,  // 1.4427162
    }},
};

const Log10fNativeData log10f_native_data = {
    .split =
        {
            .two_thirds = 0x3f2aaaab,  // 0.666666687
            .mantissa = 0x007fffff,    // all but sign and exponent
            .one = 0x3f800000,         // 1.0
        },
    .a = {{
        0x3dcdc127,  // 0.100466065
        0xbdf4ed71,  // -0.11959351
        0x3e137dbe,  // 0.14403436
        0xbe5e0922,  // -0.21683171
        0x3ede5cae,  // 0.43430084
    }},
    .log10_2 = 0x3e9a209b,  // 0.30103
};

}  // namespace zorv
