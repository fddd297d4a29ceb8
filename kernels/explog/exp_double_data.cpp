#include "kernels/explog/exp_double_data.h"

namespace zorv {

const ExpData exp_data = {
    .steps_per_unit = 0x40971547652b82fe,  // 1477.3197218702985, 1024 log2(e)
    .shifter = 0x4338000000000000,         // 1.5 * 2^52
    .step_high = 0x3f462e42fec00000,       // 0.0006769015431018488, ln(2)/1024
    .step_low = 0x3d5d1cf79abc9e3b,        // 4.137227896298129e-13
    .c2 = 0x4008000002503ecd,              // 3.0000000172366073
    .c1 = 0x4017fffffe3ca7b0,              // 5.999999973728265
    .c0 = 0x4017fffffe3ca7af,              // 5.999999973728264
    .row_index = 0x00000000000003ff,       // the low ten bits
    .magnitude = 0x7fffffff,               // all but the sign
    .last_ordinary = 0x4086232a,           // up to 708.39: e^-x is still normal
    .powers =
        {
#include "kernels/explog/tables/exp_powers.inc"
        },
};

const Exp2Data exp2_data = {
    .shifter = 0x42c8000000000000,    // 1.5 * 2^45: seven fraction bits
    .c3 = 0x3f83b2ab5bb1268f,         // 0.009618128524510964
    .c2 = 0x3fac6b09b180f045,         // 0.05550413409989167
    .c1 = 0x3fcebfbdff82ca48,         // 0.24022650695913428
    .c0 = 0x3fe62e42fefa3685,         // 0.6931471805598483
    .row_index = 0x000000000000007f,  // the low seven bits
    .magnitude = 0x7fffffff,          // all but the sign
    .last_ordinary = 0x408fefff,      // below 1022: 2^-x is still normal
    .powers =
        {
#include "kernels/explog/tables/exp2_powers.inc"
        },
};

const Exp10Data exp10_data = {
    .steps_per_unit = 0x407a934f0979a371,  // 425.20679614558236, 128 log2(10)
    .shifter = 0x4338800000000000,         // 1.53125 * 2^52
    .step_high = 0x3f63441350a00000,       // 0.0023517968411397305, log10(2)/128
    .step_low = 0xbd10c0219dc1da99,        // -1.487744411497209e-14
    .c4 = 0x3fe144c03efafb54,              // 0.5396424512945068
    .c3 = 0x3ff2bd767584db59,              // 1.1712555494866221
    .c2 = 0x4000470591ccea8b,              // 2.0346785917911965
    .c1 = 0x40053524c73ce8e3,              // 2.650949055239026
    .c0 = 0x40026bb1bbb55516,              // 2.302585092994046, ln 10
    .row_index = 0x000000000000007f,       // the low seven bits
    .exponent = 0xfff0000000000000,        // exponent field and sign
    .magnitude = 0x7fffffff,               // all but the sign
    .last_ordinary = 0x40733a70,           // up to 307.65: 10^-x is still normal
    .powers =
        {
#include "kernels/explog/tables/exp2_powers.inc"
        },
};

const ExpNativeData exp_native_data = {
    .steps_per_unit = 0x40571547652b82fe,  // 92.33248261689366, 64 log2(e)
    .shifter = 0x4338000000000000,         // 1.5 * 2^52
    .c1 = 0x4067154fb6857607,              // 184.66598058764086
    .c0 = 0x40d0a6a6c7c54f24,              // 17050.60594303826
    .row_index = 0x000000000000003f,       // the low six bits
    .powers =
        {
#include "kernels/explog/tables/exp_native_powers.inc"
        },
};

const Exp2NativeData exp2_native_data = {
    .shifter = 0x4338000000000000,  // 1.5 * 2^52
    .c6 = 0x3f241d3336b2ae61,       // 0.0001534581200294148
    .c5 = 0x3f55f456a8adf058,       // 0.0013399931219444574
    .c4 = 0x3f83b2dbbc0fe08e,       // 0.009618488957116502
    .c3 = 0x3fac6aed4b950ae1,       // 0.0555032877696442
    .c2 = 0x3fcebfbdadcb0ba8,       // 0.24022646890634047
    .c1 = 0x3fe62e430c7e923c,       // 0.6931472057372683
    .c0 = 0x3ff0000000261500,       // 1.0000000005541665
};

const Exp10NativeData exp10_native_data = {
    .log2_10 = 0x400a934f0979a371,  // 3.321928094887362
    .shifter = 0x4338800000000000,  // 1.53125 * 2^52
    .c6 = 0x3f241d33368291c7,       // 0.0001534581199439512
    .c5 = 0x3f55f456a8c99bd5,       // 0.00133999312233767
    .c4 = 0x3f83b2dbbc1073af,       // 0.00961848895718184
    .c3 = 0x3fac6aed4b94d44a,       // 0.05550328776954723
    .c2 = 0x3fcebfbdadcb0a4d,       // 0.24022646890633084
    .c1 = 0x3fe62e430c7e9264,       // 0.6931472057372727
    .c0 = 0x3ff0000000261501,       // 1.0000000005541667
};

// ---- Rare lanes. --------------------------------------------------------------------------------------------

const ExpRareData<Natural> exp_rare_data = {
    .last_finite = {0x40862e42fefa39ef},     // 709.782712893384
    .last_nonzero = {0xc0874910d52d3051},    // -745.1332191019411, ln 2^-1075
    .last_normal = {0xc086232bdd7abcd2},     // -708.3964185322641
    .steps_per_unit = {0x40571547652b82fe},  // 92.33248261689366, 64 log2(e)
    .step_high = {0x3f862e42fefa0000},       // 0.010830424696223417, ln(2)/64
    .step_low = {0x3d1cf79abc9e3b3a},        // 2.572804622327669e-14
    .p = {{
        {0x3f56c16a1c2a3ffd},  // 0.0013888870459233254
        {0x3f8111123aaf20d3},  // 0.008333341995140497
        {0x3fa5555555558fcc},  // 0.04166666666677052
        {0x3fc55555555548f8},  // 0.1666666666665788
        {0x3fe0000000000000},  // 0.5
    }},
    .rows =
        {
#include "kernels/explog/tables/exp_rare_powers.inc"
        },
};

const ExpRareData<Decimal> exp10_rare_data = {
    .last_finite = {0x40734413509f79fe},     // 308.2547155599167
    .last_nonzero = {0xc07439b746e36b52},    // -323.60724533877976, log10 2^-1075
    .last_normal = {0xc0733a7146f72a41},     // -307.6526555685887
    .steps_per_unit = {0x406a934f0979a371},  // 212.60339807279118, 64 log2(10)
    .step_high = {0x3f734413509f0000},       // 0.004703593682222618, log10(2)/64
    .step_low = {0x3d1e7fbcc47c4acd},        // 2.7088530630863833e-14
    .p = {{
        {0x3fe1427c87c70a85},  // 0.5393660213379269
        {0x3ff2bd77b840f0bf},  // 1.1712567517670747
        {0x4000470591e2bc10},  // 2.0346785924261965
        {0x40053524c73cd20a},  // 2.6509490552364285
        {0x40026bb1bbb55515},  // 2.3025850929940455
    }},
    .rows =
        {
#include "kernels/explog/tables/exp_rare_powers.inc"
        },
};

const Exp2RareData exp2_rare_data = {
    .last_finite = {0x408fffffffffffff},   // just below 1024, which overflows
    .last_nonzero = {0xc090cbffffffffff},  // just above -1075, which underflows
    .last_normal = {0xc08ff00000000000},   // -1022.0
    .p = {{
        {0x3f55d870c4d8440a},  // 0.0013333417185814622
        {0x3f83b2ad33f8b48b},  // 0.009618142269653759
        {0x3fac6b08d7076268},  // 0.05550410866607508
        {0x3fcebfbdff82a23a},  // 0.24022650695884967
        {0x3fe62e42fefa39ef},  // 0.6931471805599453
    }},
    .rows =
        {
#include "kernels/explog/tables/exp_rare_powers.inc"
        },
};

}  // namespace zorv
