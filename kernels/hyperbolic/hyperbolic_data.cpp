#include "kernels/hyperbolic/hyperbolic_data.h"

namespace zorv {

// ---- sinh and cosh, single precision. ----------------------------------------------------------------------

static constexpr WholePowersData whole_powers = {
    .log2_e = 0x3fb8aa3b,    // 1.44269502
    .shifter = 0x4b400000,   // 1.5 * 2^23
    .ln2_high = 0x3f317200,  // 0.693145752
    .ln2_low = 0x35bfbe8e,   // 1.42860677e-06
    .half = 0x3f000000,      // 0.5
};

static constexpr Coefficients<float, 2> sinhf_terms = {{
    0x3c091461,  // 0.00836667512
    0x3e2aaa57,  // 0.16666542
}};
static constexpr Coefficients<float, 3> coshf_terms = {{
    0x3ab6a8a3,  // 0.00139357557
    0x3d2aaa72,  // 0.0416664556
    0x3f000000,  // 0.5
}};

const SinhCoshfData sinhf_data = {
    .magnitude = 0x7fffffff,
    .sign = 0x80000000,
    .last_ordinary = 0x42aeac4e,  // 87.3365326: k is at most 126
    .powers = whole_powers,
    .s = sinhf_terms,
    .c = coshf_terms,
};
const SinhCoshfData coshf_data = {
    .magnitude = 0x7fffffff,
    .sign = 0x80000000,
    .last_ordinary = 0x42aeac4d,  // 87.336525, the number below sinhf's
    .powers = whole_powers,
    .s = sinhf_terms,
    .c = coshf_terms,
};

static constexpr SinhCoshfNativeData sinh_cosh_native = {
    .magnitude = 0x7fffffff,
    .sign = 0x80000000,
    .powers = whole_powers,
    .s = {{
        0x3e2ccd2e,  // 0.168751448
        0x3f7ffbc9,  // 0.999935687
    }},
    .c = {{
        0x3d2ca395,  // 0.0421481915
        0x3efffb2f,  // 0.499963254
    }},
};
const SinhCoshfNativeData sinhf_native_data = sinh_cosh_native;
const SinhCoshfNativeData coshf_native_data = sinh_cosh_native;

// ---- sinh and cosh, double precision. ----------------------------------------------------------------------

static constexpr SinhData sinh_both = {
    .magnitude = 0x7fffffffffffffff,
    .sign = 0x8000000000000000,
    .last_ordinary = 0x40861d99,  // 707.70
    .steps =
        {
            .steps_per_ln2 = 0x40671547652b82fe,  // 184.66496523378731, 128/ln 2
            .shifter = 0x4338000000000000,        // 1.5 * 2^52
            .step_high = 0x3f762e42fefa0000,      // 0.0054152123481117087
            .step_low = 0x3d0cf79abc9e3b3a,       // 1.2864023111638346e-14
            .row_index = 0x000000000000007f,      // the low seven bits
        },
    .s = {{
        0x3f8111115712f425,  // 0.008333335370815995
        0x3fc55555555554ad,  // 0.16666666666666199
    }},
    .c = {{
        0x3fa55555cf16d299,  // 0.041666680840909361
        0x3fdffffffffffdbd,  // 0.49999999999996786
    }},
    .rows =
        {
#include "kernels/hyperbolic/tables/sinh_rows.inc"
        },
};
const SinhData sinh_data = sinh_both;
const SinhData sinh_native_data = sinh_both;

static constexpr CoshData cosh_both = {
    .magnitude = 0x7fffffffffffffff,
    .exponent = 0x7ff0000000000000,
    .smallest_normal = 0x0010000000000000,
    .last_ordinary = 0x40861d99,  // 707.70
    .steps =
        {
            .steps_per_ln2 = 0x40771547652b82fe,  // 369.32993046757463, 256/ln 2
            .shifter = 0x4338000000000000,        // 1.5 * 2^52
            .step_high = 0x3f662e42fefc0000,      // 0.0027076061741126978
            .step_low = 0xbd2c610ca86c3899,       // -5.0411407304988844e-14
            .row_index = 0x00000000000000ff,      // the low eight bits
        },
    .s = {{
        0x3fc5555570813e14,  // 0.16666667931939172
    }},
    .c = {{
        0x3fa55555cf16d299,  // 0.041666680840909361
        0x3fdffffffffffdbd,  // 0.49999999999996786
    }},
    .half_powers =
        {
#include "kernels/hyperbolic/tables/cosh_powers.inc"
        },
};
const CoshData cosh_data = cosh_both;
const CoshData cosh_native_data = cosh_both;

// ---- tanh. -------------------------------------------------------------------------------------------------

static constexpr TanhfData tanhf_both = {
    .leading = 0x7ff80000,        // exponent and four mantissa bits
    .last_ordinary = 0x7f000000,  // from 1.0625 * 2^127 on, rare
    .first_row = 0x3cf80000,      // row 1 begins one step above, at 2^-5
    .last_row = 0x04280000,       // 133 steps, 10.0
    .magnitude = 0x7fffffff,
    .sign = 0x80000000,
    .rows =
        {
#include "kernels/hyperbolic/tables/tanhf_rows.inc"
        },
};
const TanhfData tanhf_data = tanhf_both;
const TanhfData tanhf_native_data = tanhf_both;

static constexpr TanhData tanh_both = {
    .leading = 0x7ffe000000000000,    // exponent and three mantissa bits
    .last_ordinary = 0x7fe00000,      // from 1.125 * 2^1023 on, rare
    .first_ordinary = 0x1ff00000,     // 2^-512
    .first_row = 0x3fbe000000000000,  // row 1 begins one step above, at 1/8
    .last_row = 0x0076000000000000,   // 59 steps, 20.0
    .magnitude = 0x7fffffffffffffff,
    .sign = 0x8000000000000000,
    .rows =
        {
#include "kernels/hyperbolic/tables/tanh_rows.inc"
        },
};
const TanhData tanh_data = tanh_both;
const TanhData tanh_native_data = tanh_both;

// ---- Rare lanes of sinh and cosh, in double for both precisions. -------------------------------------------

static constexpr SinhCoshRareData rare_up_to(uint64_t first_infinite) {
    return {
        .first_infinite = {first_infinite},
        .one_exponential = {0x40357cd0e7026820},  // 21.487562597358306
        .short_series = {0x3f9bdb8cdadbe120},     // 0.02720470510300388
        .steps_per_ln2 = {0x40571547652b82fe},    // 92.33248261689366, 64/ln 2
        .shifter = {0x4338000000000000},          // 1.5 * 2^52
        .step_high = {0x3f862e42fefa0000},        // 0.010830424696223417
        .step_low = {0x3d1cf79abc9e3b3a},         // 2.572804622327669e-14
        .e3 = {0x3fc55555555548f8},               // 0.1666666666665788
        .e4 = {0x3fa5555555558fcc},               // 0.04166666666677052
        .e5 = {0x3f8111123aaf20d3},               // 0.008333341995140497
        .e6 = {0x3f56c16a1c2a3ffd},               // 0.0013888870459233254
        .series = {{
            {0x3ec71de3a556c734},  // 2.7557319223985893e-06, 1/9!
            {0x3f2a01a01a01a01a},  // 0.0001984126984126984, 1/7!
            {0x3f81111111111111},  // 0.008333333333333333, 1/5!
            {0x3fc5555555555555},  // 0.16666666666666666, 1/3!
        }},
        .split = {0x41a0000002000000},  // 134217729.0, 2^27 + 1
        .tiny = {0x0010000000000001},   // 2.225073858507202e-308
        .powers =
            {
#include "kernels/hyperbolic/tables/hyperbolic_powers.inc"
            },
    };
}
const SinhCoshRareData sinhf_rare_data = rare_up_to(0x40565a9fa0000000);  // 89.4159927368164
const SinhCoshRareData coshf_rare_data = rare_up_to(0x40565a9fa0000000);  // 89.4159927368164
const SinhCoshRareData sinh_rare_data = rare_up_to(0x408633ce8fb9f87e);   // 710.475860073944
const SinhCoshRareData cosh_rare_data = rare_up_to(0x408633ce8fb9f87e);   // 710.475860073944

}  // namespace zorv
