#include "kernels/powers/power_rare_data.h"

namespace zorv {

const PowerRareFloatData power_rare_float_data = {
    .next_exponent = {0x3f380000},  // the pattern of 0.71875: mantissas from 1.4375 on count as 2^1 * 0.7...
    .split = {0x45800800},          // 4097.0
    .log2_e = {0x3fb88000},         // 1.44140625, log2(e) cut short
    .shifter = {0x47c00000},        // 98304.0, 1.5 * 2^16
    .log =
        {
            {
                {0xbdab1ea1},  // -0.0835545
                {0x3e246f69},  // 0.16058125
                {0xbeb1c35d},  // -0.347194
                {0x3a6a6369},  // 0.000894121: the rest of log2(e), relative to the part above
            },
        },
    .exp2 =
        {
            {
                {0x3d635847},  // 0.0555041
                {0x3e75fdf0},  // 0.24022651
                {0x3f317218},  // 0.6931472
            },
        },
#include "kernels/powers/tables/power_stages_f.inc"
};

const PowerRareDoubleData power_rare_double_data = {
    .next_exponent = {0x3fe7c00000000000},  // 0.7421875: mantissas from 1.484375 on
    .split = {0x41a0000002000000},          // 134217729.0, 2^27 + 1
    .log2_e = {0x3ff7154740000000},         // 1.4426949024200439, log2(e) in 31 bits
    .shifter = {0x42c8000000000000},        // 1.5 * 2^45
    .log =
        {
            {
                {0xbfb550472a9012d8},  // -0.0832562
                {0x3fc47fd462b6dee1},  // 0.160151
                {0xbfd62e4346694107},  // -0.3465736
                {0x3e79c3a6966457e8},  // 9.598e-8: the rest of log2(e)
            },
        },
    .exp2 =
        {
            {
                {0x3f55d87fe78a6731},  // 0.00133335581
                {0x3f83b2ab6fba4e77},  // 0.00961812911
                {0x3fac6b08d704a0c0},  // 0.0555041087
                {0x3fcebfbdff82c58f},  // 0.240226507
                {0x3fe62e42fefa39ef},  // 0.693147181, ln 2
            },
        },
#include "kernels/powers/tables/power_stages_d.inc"
    .powers =
        {
#include "kernels/powers/tables/power_exp2_d.inc"
        },
};

}  // namespace zorv
