// What a kernel may write beside calls on vectors of one type: a scalar as second operand, second results in each of
// the address spaces, and the names of what ilogb gives for operands that have no exponent.
// Compiled twice: where pointers name their space, and where each built-in has one overload of generic pointers.
#include "ocl_zorv_v8_builtins.h"

#ifdef __opencl_c_generic_address_space
#define NAMED(kernel, lane, width) kernel##_generic_##lane##width
#else
#define NAMED(kernel, lane, width) kernel##_named_##lane##width
#endif

#define IN_EACH_SPACE(call, everywhere, there, here) \
    call(everywhere);                                \
    call(&there), everywhere[1] = there;             \
    call(&here), everywhere[2] = here;
#define REMQUO(pointer) remquo(*x, *y, pointer)
#define FREXP(pointer) frexp(*x, pointer)
#define MODF(pointer) modf(*x, pointer)
#define SINCOS(pointer) sincos(*x, pointer)

#define KERNELS(lane, width)                                                                                 \
    __kernel void NAMED(scalars, lane, width)(__global const lane##width* x, lane limit, int n,              \
                                              __global lane##width* results) {                               \
        results[0] = ldexp(*x, n);                                                                           \
        results[1] = fmin(*x, limit);                                                                        \
        results[2] = fmax(*x, limit);                                                                        \
    }                                                                                                        \
    __kernel void NAMED(spaces, lane, width)(__global const lane##width* x, __global const lane##width* y,   \
                                             __global int##width* quotient, __global int##width* exponent,   \
                                             __global lane##width* whole, __global lane##width* cosine) {    \
        __local int##width there;                                                                            \
        __local lane##width lanes_there;                                                                     \
        __private int##width here;                                                                           \
        __private lane##width lanes_here;                                                                    \
        IN_EACH_SPACE(REMQUO, quotient, there, here)                                                         \
        IN_EACH_SPACE(FREXP, exponent, there, here)                                                          \
        IN_EACH_SPACE(MODF, whole, lanes_there, lanes_here)                                                  \
        IN_EACH_SPACE(SINCOS, cosine, lanes_there, lanes_here)                                               \
    }
KERNELS(float, )
KERNELS(float, 3)
KERNELS(float, 16)
KERNELS(double, )
KERNELS(double, 3)
KERNELS(double, 16)

#ifndef __opencl_c_generic_address_space
__kernel void without_exponent(__global int* named) {
    named[0] = ilogb(0.0f) == FP_ILOGB0 && ilogb(-0.0) == FP_ILOGB0;
    named[1] = ilogb(NAN) == FP_ILOGBNAN && ilogb((double)NAN) == FP_ILOGBNAN;
}

// Conversions that the header makes itself.
__kernel void plain_conversions(__global const uchar3* bytes, __global const double3* reals, __global float3* results,
                                __global int3* integers) {
    results[0] = convert_float3(*bytes);
    results[1] = convert_float3(*reals);
    integers[0] = convert_int3(as_char3(*bytes));
    integers[1] = convert_int3(convert_long3(*bytes) << 31);
}
#endif
