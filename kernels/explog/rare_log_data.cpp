#include "kernels/explog/rare_log_data.h"

namespace zorv {

const NaturalLogRareData<float> logf_rare_data = {
    .subnormal = {.factor = {0x4d000000}, .exponents = 27},  // 2^27
    .cut = {.head_shifter = {0x46000000},                    // 2^13: ten fraction bits
            .row_shifter = {0x48000040}},                    // 2^17 + 1
    .near_one = {0x3c200000},                                // 0.009765625
    .p = {{
        {0xbe0005a0},  // -0.12502146
        {0x3e124e01},  // 0.14287569
        {0xbe2aaaab},  // -0.16666667
        {0x3e4ccccd},  // 0.2
        {0xbe800000},  // -0.25
        {0x3eaaaaab},  // 0.33333334
        {0xbf000000},  // -0.5
    }},
    .log_2 = {.high = {0x3f317200},                // 0.69314575
              .low = {0x35bfbe8e}},                // 1.4286068e-06
    .log_2_of_subnormals = {.high = {0x3f317218},  // 0.6931472, all of it
                            .low = {0x00000000}},  // 0
    .rows =
        {
#include "kernels/explog/tables/logf_rare.inc"
        },
};

const ScaledLogRareData<float> log2f_rare_data = {
    .subnormal = {.factor = {0x4d000000}, .exponents = 27},  // 2^27
    .cut = {.head_shifter = {0x46000000},                    // 2^13: ten fraction bits
            .row_shifter = {0x48000040}},                    // 2^17 + 1
    .near_one = {0x3bc00000},                                // 0.005859375
    .unit = {0x43b8aa40},                                    // 369.33008, 256 log2(e), short
    .p = {{
        {0x9c1d865e},  // -5.212061e-22
        {0x2081cd9d},  // 2.1989513e-19
        {0xa4da74dc},  // -9.47404e-17
        {0x293d1988},  // 4.1988575e-14
        {0xadaa8223},  // -1.9384555e-11
        {0x3223fe93},  // 9.545732e-09
        {0xb6b1720f},  // -5.2882892e-06
        {0xbf7f0000},  // -0.99609375
    }},
    .log_2 = {.high = {0x3f800000},  // 1
              .low = {0x00000000}},  // 0
    .rows =
        {
#include "kernels/explog/tables/log2f_rare.inc"
        },
};

const ScaledLogRareData<float> log10f_rare_data = {
    .subnormal = {.factor = {0x53800000}, .exponents = 40},  // 2^40
    .cut = {.head_shifter = {0x46000000},                    // 2^13: ten fraction bits
            .row_shifter = {0x48000040}},                    // 2^17 + 1
    .near_one = {0x3bc00000},                                // 0.005859375
    .unit = {0x42de5c00},                                    // 111.17969, 256 log10(e), short
    .p = {{
        {0xa22b5dae},  // -2.3224415e-18
        {0x25aa5bfd},  // 2.9552633e-16
        {0xa92c998b},  // -3.832485e-14
        {0x2cb3e701},  // 5.1131326e-12
        {0xb04353b9},  // -7.1059564e-10
        {0x33e23666},  // 1.053384e-07
        {0xb7935d5a},  // -1.7567236e-05
        {0xbf7f0000},  // -0.99609375
    }},
    .log_2 = {.high = {0x3e9a0000},  // 0.30078125
              .low = {0x39826a14}},  // 0.00024874567
    .rows =
        {
#include "kernels/explog/tables/log10f_rare.inc"
        },
};

const NaturalLogRareData<double> log_rare_data = {
    .subnormal = {.factor = {0x43b0000000000000}, .exponents = 60},  // 2^60
    .cut = {.head_shifter = {0x4140000000000000},                    // 2^21: 31 fraction bits
            .row_shifter = {0x42d0000000000040}},                    // 2^46 + 1
    .near_one = {0x3f84000000000000},                                // 0.009765625
    .p = {{
        {0xbfc000b405a2836d},  // -0.1250214602960357
        {0x3fc249c02481059d},  // 0.1428756883852146
        {0xbfc555555228b38f},  // -0.1666666651884978
        {0x3fc9999997b36c81},  // 0.19999999911565072
        {0xbfd0000000000262},  // -0.25000000000003386
        {0x3fd5555555555613},  // 0.33333333333334386
        {0xbfe0000000000000},  // -0.5
    }},
    .log_2 = {.high = {0x3fe62e42fefa3800},                // 0.6931471805598903
              .low = {0x3d2ef35793c76730}},                // 5.497923018708371e-14
    .log_2_of_subnormals = {.high = {0x3fe62e42fefa3800},  // the same
                            .low = {0x3d2ef35793c76730}},  // 5.497923018708371e-14
    .rows =
        {
#include "kernels/explog/tables/log_rare.inc"
        },
};

const ScaledLogRareData<double> log10_rare_data = {
    .subnormal = {.factor = {0x43b0000000000000}, .exponents = 60},  // 2^60
    .cut = {.head_shifter = {0x4160000000000000},                    // 2^23: 29 fraction bits
            .row_shifter = {0x42d0000000000040}},                    // 2^46 + 1
    .near_one = {0x3f78000000000000},                                // 0.005859375
    .unit = {0x3fdbc00000000000},                                    // 0.43359375, log10(e), short
    .p = {{
        {0xc045b3214e75eea2},  // -43.39945393331915
        {0x40358992e1b1aa78},  // 21.537397485614264
        {0xc025c90e698cfb68},  // -10.89268808217976
        {0x4016ab9f7b1efe5c},  // 5.667600559012126
        {0xc008930964d42479},  // -3.0717952611199135
        {0x3ffc6a02dc963a31},  // 1.7758816353485936
        {0xbff27af2dc77b115},  // -1.1550167667401798
        {0x3f5a7a6cbf2e4107},  // 0.0016161024074997103
    }},
    .log_2 = {.high = {0x3fd34413509f8000},  // 0.3010299956640665
              .low = {0xbd380433b83b532a}},  // -8.532344317057107e-14
    .rows =
        {
#include "kernels/explog/tables/log10_rare.inc"
        },
};

}  // namespace zorv
