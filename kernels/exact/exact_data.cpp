#include "kernels/exact/exact_data.h"

namespace zorv {

const SpecialData fminf_data = {.exponent_field = 0x7f800000};
const SpecialData fmin_data = {.exponent_field = 0x7ff00000};
const SpecialData fmaxf_data = {.exponent_field = 0x7f800000};
const SpecialData fmax_data = {.exponent_field = 0x7ff00000};
const SpecialData fdimf_data = {.exponent_field = 0x7f800000};
const SpecialData fdim_data = {.exponent_field = 0x7ff00000};

const MagnitudeData<float> maxmagf_data = {{.exponent_field = 0x7f800000}, 0x80000000};
const MagnitudeData<float> minmagf_data = {{.exponent_field = 0x7f800000}, 0x80000000};
const MagnitudeData<double> maxmag_data = {{.exponent_field = 0x7ff00000}, 0x8000000000000000};
const MagnitudeData<double> minmag_data = {{.exponent_field = 0x7ff00000}, 0x8000000000000000};

const IntegralData<float> floorf_data = {
    .sign = 0x80000000,
    .shifter = 0x4b000000,  // 2^23
    .step = 0x3f800000,     // 1.0
};
const IntegralData<float> truncf_data = {
    .sign = 0x80000000,
    .shifter = 0x4b000000,  // 2^23
    .step = 0x3f800000,     // 1.0
};
const IntegralData<float> ceilf_data = {
    .sign = 0x80000000,
    .shifter = 0x4b000000,  // 2^23
    .step = 0xbf800000,     // -1.0
};
const IntegralData<float> rintf_data = {
    .sign = 0x80000000,
    .shifter = 0x4b000000,  // 2^23
    .step = 0x00000000,     // none
};
const IntegralData<double> floor_data = {
    .sign = 0x8000000000000000,
    .shifter = 0x4330000000000000,  // 2^52
    .step = 0x3ff0000000000000,     // 1.0
};
const IntegralData<double> trunc_data = {
    .sign = 0x8000000000000000,
    .shifter = 0x4330000000000000,  // 2^52
    .step = 0x3ff0000000000000,     // 1.0
};
const IntegralData<double> ceil_data = {
    .sign = 0x8000000000000000,
    .shifter = 0x4330000000000000,  // 2^52
    .step = 0xbff0000000000000,     // -1.0
};
const IntegralData<double> rint_data = {
    .sign = 0x8000000000000000,
    .shifter = 0x4330000000000000,  // 2^52
    .step = 0x0000000000000000,     // none
};

const RoundData<float> roundf_data = {
    .sign = 0x80000000,
    .shifter = 0x4b000000,  // 2^23
    .half = 0x3f000000,     // 0.5
    .one = 0x3f800000,      // 1.0
};
const RoundData<double> round_data = {
    .sign = 0x8000000000000000,
    .shifter = 0x4330000000000000,  // 2^52
    .half = 0x3fe0000000000000,     // 0.5
    .one = 0x3ff0000000000000,      // 1.0
};

const ModfData<float> modff_data = {
    {
        .sign = 0x80000000,
        .shifter = 0x4b000000,  // 2^23
        .step = 0x3f800000,     // 1.0
    },
    {.exponent_field = 0x7f800000},
};
const ModfData<double> modf_data = {
    {
        .sign = 0x8000000000000000,
        .shifter = 0x4330000000000000,  // 2^52
        .step = 0x3ff0000000000000,     // 1.0
    },
    {.exponent_field = 0x7ff00000},
};

const FractData<float> fractf_data = {
    {
        .sign = 0x80000000,
        .shifter = 0x4b000000,  // 2^23
        .step = 0x3f800000,     // 1.0
    },
    {.exponent_field = 0x7f800000},
    0x3f7fffff,  // the largest number below 1.0
};
const FractData<double> fract_data = {
    {
        .sign = 0x8000000000000000,
        .shifter = 0x4330000000000000,  // 2^52
        .step = 0x3ff0000000000000,     // 1.0
    },
    {.exponent_field = 0x7ff00000},
    0x3fefffffffffffff,  // the largest number below 1.0
};

}  // namespace zorv
