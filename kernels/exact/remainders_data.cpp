#include "kernels/exact/remainders_data.h"

namespace zorv {

// An exponent difference of 11 (float) or 25 (double) leaves the quotient short enough for exact products.
#define RANGE_FLOAT(base, last)                                                                                \
    {                                                                                                          \
        .exponent = 0x7f800000, .magnitude = 0x7fffffff, .largest_difference = 11 << 23, .divisor_base = base, \
        .last_rare = last                                                                                      \
    }
#define RANGE_DOUBLE(base, last)                                                                               \
    {                                                                                                          \
        .exponent = 0x7ff00000, .magnitude = 0x7fffffff, .largest_difference = 25 << 20, .divisor_base = base, \
        .last_rare = last                                                                                      \
    }
#define NUMBERS_FLOAT                                                                                        \
    .magnitude = 0x7fffffff, .sign = 0x80000000, .head = 0xfffff000, .shifter = 0x4b400000 /* 1.5 * 2^23 */, \
    .one = 0x3f800000, .half = 0x3f000000
#define NUMBERS_DOUBLE                                                                       \
    .magnitude = 0x7fffffffffffffff, .sign = 0x8000000000000000, .head = 0xfffffffff8000000, \
    .shifter = 0x4338000000000000 /* 1.5 * 2^52 */, .one = 0x3ff0000000000000, .half = 0x3fe0000000000000

// y from 2^-114 to the largest number.
const RemainderData<float> fmodf_data = {.range = RANGE_FLOAT(0x86800000, 0xf8ffffff), NUMBERS_FLOAT};
// y normal, below 2^116.
const RemainderData<float> remainderf_data = {.range = RANGE_FLOAT(0x80800000, 0xf8ffffff), NUMBERS_FLOAT};
const RemainderData<float> remquof_data = {.range = RANGE_FLOAT(0x80800000, 0xf8ffffff), NUMBERS_FLOAT};
// y normal.
const RemainderData<double> fmod_data = {.range = RANGE_DOUBLE(0x80100000, 0xffdfffff), NUMBERS_DOUBLE};
// y normal, below 2^998.
const RemainderData<double> remainder_data = {.range = RANGE_DOUBLE(0x80100000, 0xfe3fffff), NUMBERS_DOUBLE};
const RemainderData<double> remquo_data = {.range = RANGE_DOUBLE(0x80100000, 0xfe3fffff), NUMBERS_DOUBLE};

}  // namespace zorv
