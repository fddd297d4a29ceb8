// The arithmetic of some families written out with intrinsics behind plain functions: what an export would be
// without a frame. The mask of rare lanes is tested, but nothing stands behind it.
#pragma once

#include "ocl_zorv_v8.h"

//   BY_HAND(base, letter, width, result, operands...)
#define BY_HAND_FUNCTIONS                                   \
    BY_HAND(inv, f, 1, float, float)                        \
    BY_HAND(inv, f, 4, float4, float4)                      \
    BY_HAND(inv, f, 16, float16, float16)                   \
    BY_HAND(sqrt, f, 1, float, float)                       \
    BY_HAND(sqrt, f, 4, float4, float4)                     \
    BY_HAND(sqrt, f, 16, float16, float16)                  \
    BY_HAND(rsqrt, f, 1, float, float)                      \
    BY_HAND(rsqrt, f, 4, float4, float4)                    \
    BY_HAND(rsqrt, f, 16, float16, float16)                 \
    BY_HAND(rsqrt, , 1, double, double)                     \
    BY_HAND(rsqrt, , 4, double4, double4)                   \
    BY_HAND(rsqrt, , 16, double16, double16)                \
    BY_HAND(fmin, f, 16, float16, float16, float16)         \
    BY_HAND(fmin, , 16, double16, double16, double16)       \
    BY_HAND(fmax, f, 16, float16, float16, float16)         \
    BY_HAND(fmax, , 16, double16, double16, double16)       \
    BY_HAND(fdim, f, 16, float16, float16, float16)         \
    BY_HAND(fdim, , 16, double16, double16, double16)       \
    BY_HAND(copysign, f, 16, float16, float16, float16)     \
    BY_HAND(copysign, , 16, double16, double16, double16)   \
    BY_HAND(fabs, f, 16, float16, float16)                  \
    BY_HAND(fabs, , 16, double16, double16)                 \
    BY_HAND(mad, f, 16, float16, float16, float16, float16) \
    BY_HAND(mad, , 16, double16, double16, double16, double16)

#define BY_HAND_NAME(base, letter, width) by_hand_##base##letter##width

#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"
#define BY_HAND(base, letter, width, result, ...) extern "C" result BY_HAND_NAME(base, letter, width)(__VA_ARGS__);
BY_HAND_FUNCTIONS
#undef BY_HAND
#pragma clang diagnostic pop
