/* Vectorised math kernels for OpenCL run-times: the exported functions.
 *
 * Written by tools/grid_outputs.cpp from the grid; do not edit.
 *
 * Every function takes its operands by value as vectors of 1, 2, 3, 4, 8 or 16 lanes; the number of lanes
 * ends the name, before _native. Width 3 travels as a vector of four lanes, the fourth of which is ignored
 * in operands and unspecified in results; a width-3 pointer needs room for four. Pointers at widths 3 and
 * up, and double ones at width 2, are aligned to 16 bytes. Errors are in units in the last place (ulp).
 */
#ifndef OCL_ZORV_V8_H
#define OCL_ZORV_V8_H

#if !defined(__clang__) || !defined(__i386__) || !defined(__SSE2__)
#error "ocl_zorv_v8.h needs clang with -m32 -msse2: the functions follow its convention for vector operands"
#endif

#ifdef __OPENCL_C_VERSION__
#pragma OPENCL EXTENSION cl_khr_fp64 : enable
#else
typedef float float2 __attribute__((ext_vector_type(2)));
typedef float float3 __attribute__((ext_vector_type(4)));
typedef float float4 __attribute__((ext_vector_type(4)));
typedef float float8 __attribute__((ext_vector_type(8)));
typedef float float16 __attribute__((ext_vector_type(16)));
typedef double double2 __attribute__((ext_vector_type(2)));
typedef double double3 __attribute__((ext_vector_type(4)));
typedef double double4 __attribute__((ext_vector_type(4)));
typedef double double8 __attribute__((ext_vector_type(8)));
typedef double double16 __attribute__((ext_vector_type(16)));
typedef int int2 __attribute__((ext_vector_type(2)));
typedef int int3 __attribute__((ext_vector_type(4)));
typedef int int4 __attribute__((ext_vector_type(4)));
typedef int int8 __attribute__((ext_vector_type(8)));
typedef int int16 __attribute__((ext_vector_type(16)));
typedef unsigned int uint2 __attribute__((ext_vector_type(2)));
typedef unsigned int uint3 __attribute__((ext_vector_type(4)));
typedef unsigned int uint4 __attribute__((ext_vector_type(4)));
typedef unsigned int uint8 __attribute__((ext_vector_type(8)));
typedef unsigned int uint16 __attribute__((ext_vector_type(16)));
typedef __INT64_TYPE__ long2 __attribute__((ext_vector_type(2)));
typedef __INT64_TYPE__ long3 __attribute__((ext_vector_type(4)));
typedef __INT64_TYPE__ long4 __attribute__((ext_vector_type(4)));
typedef __INT64_TYPE__ long8 __attribute__((ext_vector_type(8)));
typedef __INT64_TYPE__ long16 __attribute__((ext_vector_type(16)));
typedef __UINT64_TYPE__ ulong2 __attribute__((ext_vector_type(2)));
typedef __UINT64_TYPE__ ulong3 __attribute__((ext_vector_type(4)));
typedef __UINT64_TYPE__ ulong4 __attribute__((ext_vector_type(4)));
typedef __UINT64_TYPE__ ulong8 __attribute__((ext_vector_type(8)));
typedef __UINT64_TYPE__ ulong16 __attribute__((ext_vector_type(16)));
#endif

/* Two vectors returned together; at width 1 the pair is one two-lane vector. */
typedef struct { float2 sine, cosine; } float2_pair;
typedef struct { float4 sine, cosine; } float3_pair;
typedef struct { float4 sine, cosine; } float4_pair;
typedef struct { float8 sine, cosine; } float8_pair;
typedef struct { float16 sine, cosine; } float16_pair;
typedef struct { double2 sine, cosine; } double2_pair;
typedef struct { double4 sine, cosine; } double3_pair;
typedef struct { double4 sine, cosine; } double4_pair;
typedef struct { double8 sine, cosine; } double8_pair;
typedef struct { double16 sine, cosine; } double16_pair;

#ifdef __cplusplus
extern "C" {
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"
#endif

/* invf: 1/x. x: float; result: float.
 * +-0 gives +-infinity, +-infinity gives +-0, NaN gives NaN.
 * Error: 0.5 ulp, correctly rounded.
 * The hardware's correctly rounded divide. */
float __ocl_zorv_v8_invf1(float x);
float2 __ocl_zorv_v8_invf2(float2 x);
float4 __ocl_zorv_v8_invf3(float4 x);
float4 __ocl_zorv_v8_invf4(float4 x);
float8 __ocl_zorv_v8_invf8(float8 x);
float16 __ocl_zorv_v8_invf16(float16 x);

/* inv: 1/x. x: double; result: double.
 * +-0 gives +-infinity, +-infinity gives +-0, NaN gives NaN.
 * Error: 0.5 ulp, correctly rounded.
 * The hardware's correctly rounded divide. */
double __ocl_zorv_v8_inv1(double x);
double2 __ocl_zorv_v8_inv2(double2 x);
double4 __ocl_zorv_v8_inv3(double4 x);
double4 __ocl_zorv_v8_inv4(double4 x);
double8 __ocl_zorv_v8_inv8(double8 x);
double16 __ocl_zorv_v8_inv16(double16 x);

/* invf_native: 1/x. x: float; result: float.
 * float: +-0 and subnormals give +-infinity, +-infinity gives +-0. double at widths 1, 8, 16: +-0 gives
 * +-2^1023 or the number just below it, +-infinity and NaN give +-infinity, magnitudes of 2^1023 and above
 * give +-0; at widths 2, 3, 4 as the accurate class.
 * Error: 6144 ulp at most.
 * float: the hardware's reciprocal estimate. double: one divide for a batch of four units, by products of the
 * mantissas (Montgomery's simultaneous inversion), the exponents by integer arithmetic; at widths 2, 3, 4 the
 * hardware's divide. In a batch the last bits of a lane depend on its neighbours. */
float __ocl_zorv_v8_invf1_native(float x);
float2 __ocl_zorv_v8_invf2_native(float2 x);
float4 __ocl_zorv_v8_invf3_native(float4 x);
float4 __ocl_zorv_v8_invf4_native(float4 x);
float8 __ocl_zorv_v8_invf8_native(float8 x);
float16 __ocl_zorv_v8_invf16_native(float16 x);

/* inv_native: 1/x. x: double; result: double.
 * float: +-0 and subnormals give +-infinity, +-infinity gives +-0. double at widths 1, 8, 16: +-0 gives
 * +-2^1023 or the number just below it, +-infinity and NaN give +-infinity, magnitudes of 2^1023 and above
 * give +-0; at widths 2, 3, 4 as the accurate class.
 * Error: 4 ulp at most.
 * float: the hardware's reciprocal estimate. double: one divide for a batch of four units, by products of the
 * mantissas (Montgomery's simultaneous inversion), the exponents by integer arithmetic; at widths 2, 3, 4 the
 * hardware's divide. In a batch the last bits of a lane depend on its neighbours. */
double __ocl_zorv_v8_inv1_native(double x);
double2 __ocl_zorv_v8_inv2_native(double2 x);
double4 __ocl_zorv_v8_inv3_native(double4 x);
double4 __ocl_zorv_v8_inv4_native(double4 x);
double8 __ocl_zorv_v8_inv8_native(double8 x);
double16 __ocl_zorv_v8_inv16_native(double16 x);

/* divf: x/y. x: float, y: float; result: float.
 * x/0 gives +-infinity, 0/0 and infinity/infinity give NaN.
 * Error: 0.5 ulp, correctly rounded.
 * The hardware's correctly rounded divide. */
float __ocl_zorv_v8_divf1(float x, float y);
float2 __ocl_zorv_v8_divf2(float2 x, float2 y);
float4 __ocl_zorv_v8_divf3(float4 x, float4 y);
float4 __ocl_zorv_v8_divf4(float4 x, float4 y);
float8 __ocl_zorv_v8_divf8(float8 x, float8 y);
float16 __ocl_zorv_v8_divf16(float16 x, float16 y);

/* div: x/y. x: double, y: double; result: double.
 * x/0 gives +-infinity, 0/0 and infinity/infinity give NaN.
 * Error: 0.5 ulp, correctly rounded.
 * The hardware's correctly rounded divide. */
double __ocl_zorv_v8_div1(double x, double y);
double2 __ocl_zorv_v8_div2(double2 x, double2 y);
double4 __ocl_zorv_v8_div3(double4 x, double4 y);
double4 __ocl_zorv_v8_div4(double4 x, double4 y);
double8 __ocl_zorv_v8_div8(double8 x, double8 y);
double16 __ocl_zorv_v8_div16(double16 x, double16 y);

/* divf_native: x/y. x: float, y: float; result: float.
 * x times what the native reciprocal gives for y; so in float 0/0 and infinity/infinity give NaN, and in
 * double at widths 1, 8, 16 a zero divisor gives x * 2^1023.
 * Error: 6145 ulp at most.
 * x times the native reciprocal of y; double at widths 2, 3, 4: the hardware's divide. */
float __ocl_zorv_v8_divf1_native(float x, float y);
float2 __ocl_zorv_v8_divf2_native(float2 x, float2 y);
float4 __ocl_zorv_v8_divf3_native(float4 x, float4 y);
float4 __ocl_zorv_v8_divf4_native(float4 x, float4 y);
float8 __ocl_zorv_v8_divf8_native(float8 x, float8 y);
float16 __ocl_zorv_v8_divf16_native(float16 x, float16 y);

/* div_native: x/y. x: double, y: double; result: double.
 * x times what the native reciprocal gives for y; so in float 0/0 and infinity/infinity give NaN, and in
 * double at widths 1, 8, 16 a zero divisor gives x * 2^1023.
 * Error: 4 ulp at most.
 * x times the native reciprocal of y; double at widths 2, 3, 4: the hardware's divide. */
double __ocl_zorv_v8_div1_native(double x, double y);
double2 __ocl_zorv_v8_div2_native(double2 x, double2 y);
double4 __ocl_zorv_v8_div3_native(double4 x, double4 y);
double4 __ocl_zorv_v8_div4_native(double4 x, double4 y);
double8 __ocl_zorv_v8_div8_native(double8 x, double8 y);
double16 __ocl_zorv_v8_div16_native(double16 x, double16 y);

/* sqrtf: The square root of x. x: float; result: float.
 * +-0 gives +-0, +infinity gives +infinity, a negative operand gives NaN.
 * Error: 0.86 ulp at most.
 * float: the hardware's reciprocal root estimate, two coupled Newton-Raphson (Goldschmidt) steps. double: the
 * hardware's correctly rounded square root. */
float __ocl_zorv_v8_sqrtf1(float x);
float2 __ocl_zorv_v8_sqrtf2(float2 x);
float4 __ocl_zorv_v8_sqrtf3(float4 x);
float4 __ocl_zorv_v8_sqrtf4(float4 x);
float8 __ocl_zorv_v8_sqrtf8(float8 x);
float16 __ocl_zorv_v8_sqrtf16(float16 x);

/* sqrt: The square root of x. x: double; result: double.
 * +-0 gives +-0, +infinity gives +infinity, a negative operand gives NaN.
 * Error: 0.5 ulp, correctly rounded.
 * float: the hardware's reciprocal root estimate, two coupled Newton-Raphson (Goldschmidt) steps. double: the
 * hardware's correctly rounded square root. */
double __ocl_zorv_v8_sqrt1(double x);
double2 __ocl_zorv_v8_sqrt2(double2 x);
double4 __ocl_zorv_v8_sqrt3(double4 x);
double4 __ocl_zorv_v8_sqrt4(double4 x);
double8 __ocl_zorv_v8_sqrt8(double8 x);
double16 __ocl_zorv_v8_sqrt16(double16 x);

/* sqrtf_native: The square root of x. x: float; result: float.
 * As the accurate class.
 * Error: 6145 ulp at most.
 * float: x times the hardware's reciprocal root estimate; zero, subnormals, infinities, NaN and negative
 * operands as in the accurate class. double: the hardware's correctly rounded square root. */
float __ocl_zorv_v8_sqrtf1_native(float x);
float2 __ocl_zorv_v8_sqrtf2_native(float2 x);
float4 __ocl_zorv_v8_sqrtf3_native(float4 x);
float4 __ocl_zorv_v8_sqrtf4_native(float4 x);
float8 __ocl_zorv_v8_sqrtf8_native(float8 x);
float16 __ocl_zorv_v8_sqrtf16_native(float16 x);

/* sqrt_native: The square root of x. x: double; result: double.
 * As the accurate class.
 * Error: 0.5 ulp, correctly rounded.
 * float: x times the hardware's reciprocal root estimate; zero, subnormals, infinities, NaN and negative
 * operands as in the accurate class. double: the hardware's correctly rounded square root. */
double __ocl_zorv_v8_sqrt1_native(double x);
double2 __ocl_zorv_v8_sqrt2_native(double2 x);
double4 __ocl_zorv_v8_sqrt3_native(double4 x);
double4 __ocl_zorv_v8_sqrt4_native(double4 x);
double8 __ocl_zorv_v8_sqrt8_native(double8 x);
double16 __ocl_zorv_v8_sqrt16_native(double16 x);

/* rsqrtf: 1 / the square root of x. x: float; result: float.
 * +-0 gives +-infinity, +infinity gives +0, a negative operand gives NaN.
 * Error: 1.02 ulp at most.
 * The hardware's estimate y, then y (1 + e)^(-1/2) by its Taylor terms (float) or a fit of degree 4 (double)
 * in the residual e. */
float __ocl_zorv_v8_rsqrtf1(float x);
float2 __ocl_zorv_v8_rsqrtf2(float2 x);
float4 __ocl_zorv_v8_rsqrtf3(float4 x);
float4 __ocl_zorv_v8_rsqrtf4(float4 x);
float8 __ocl_zorv_v8_rsqrtf8(float8 x);
float16 __ocl_zorv_v8_rsqrtf16(float16 x);

/* rsqrt: 1 / the square root of x. x: double; result: double.
 * +-0 gives +-infinity, +infinity gives +0, a negative operand gives NaN.
 * Error: 0.531 ulp at most.
 * The hardware's estimate y, then y (1 + e)^(-1/2) by its Taylor terms (float) or a fit of degree 4 (double)
 * in the residual e. */
double __ocl_zorv_v8_rsqrt1(double x);
double2 __ocl_zorv_v8_rsqrt2(double2 x);
double4 __ocl_zorv_v8_rsqrt3(double4 x);
double4 __ocl_zorv_v8_rsqrt4(double4 x);
double8 __ocl_zorv_v8_rsqrt8(double8 x);
double16 __ocl_zorv_v8_rsqrt16(double16 x);

/* rsqrtf_native: 1 / the square root of x. x: float; result: float.
 * float: +-0 and subnormals give +-infinity, +infinity gives +0, a negative operand gives NaN. double: the
 * sign is ignored; zero gives about 1.33 * 2^512, infinity +infinity, NaN gives NaN; subnormals are not
 * scaled.
 * Error: 6144 ulp at most.
 * float: the hardware's estimate. double: the float estimate of the operand rebuilt in [1, 4), one step of
 * degree 2. */
float __ocl_zorv_v8_rsqrtf1_native(float x);
float2 __ocl_zorv_v8_rsqrtf2_native(float2 x);
float4 __ocl_zorv_v8_rsqrtf3_native(float4 x);
float4 __ocl_zorv_v8_rsqrtf4_native(float4 x);
float8 __ocl_zorv_v8_rsqrtf8_native(float8 x);
float16 __ocl_zorv_v8_rsqrtf16_native(float16 x);

/* rsqrt_native: 1 / the square root of x. x: double; result: double.
 * float: +-0 and subnormals give +-infinity, +infinity gives +0, a negative operand gives NaN. double: the
 * sign is ignored; zero gives about 1.33 * 2^512, infinity +infinity, NaN gives NaN; subnormals are not
 * scaled.
 * Error: 280000 ulp at most.
 * float: the hardware's estimate. double: the float estimate of the operand rebuilt in [1, 4), one step of
 * degree 2. */
double __ocl_zorv_v8_rsqrt1_native(double x);
double2 __ocl_zorv_v8_rsqrt2_native(double2 x);
double4 __ocl_zorv_v8_rsqrt3_native(double4 x);
double4 __ocl_zorv_v8_rsqrt4_native(double4 x);
double8 __ocl_zorv_v8_rsqrt8_native(double8 x);
double16 __ocl_zorv_v8_rsqrt16_native(double16 x);

/* fabsf: |x|. x: float; result: float.
 * Clears the sign of a NaN too and keeps its payload.
 * Error: none, the result is exact.
 * One logical instruction. */
float __ocl_zorv_v8_fabsf1(float x);
float2 __ocl_zorv_v8_fabsf2(float2 x);
float4 __ocl_zorv_v8_fabsf3(float4 x);
float4 __ocl_zorv_v8_fabsf4(float4 x);
float8 __ocl_zorv_v8_fabsf8(float8 x);
float16 __ocl_zorv_v8_fabsf16(float16 x);

/* fabs: |x|. x: double; result: double.
 * Clears the sign of a NaN too and keeps its payload.
 * Error: none, the result is exact.
 * One logical instruction. */
double __ocl_zorv_v8_fabs1(double x);
double2 __ocl_zorv_v8_fabs2(double2 x);
double4 __ocl_zorv_v8_fabs3(double4 x);
double4 __ocl_zorv_v8_fabs4(double4 x);
double8 __ocl_zorv_v8_fabs8(double8 x);
double16 __ocl_zorv_v8_fabs16(double16 x);

/* copysignf: The magnitude of x with the sign of y. x: float, y: float; result: float.
 * A NaN has a sign like any other value.
 * Error: none, the result is exact.
 * Logical instructions. */
float __ocl_zorv_v8_copysignf1(float x, float y);
float2 __ocl_zorv_v8_copysignf2(float2 x, float2 y);
float4 __ocl_zorv_v8_copysignf3(float4 x, float4 y);
float4 __ocl_zorv_v8_copysignf4(float4 x, float4 y);
float8 __ocl_zorv_v8_copysignf8(float8 x, float8 y);
float16 __ocl_zorv_v8_copysignf16(float16 x, float16 y);

/* copysign: The magnitude of x with the sign of y. x: double, y: double; result: double.
 * A NaN has a sign like any other value.
 * Error: none, the result is exact.
 * Logical instructions. */
double __ocl_zorv_v8_copysign1(double x, double y);
double2 __ocl_zorv_v8_copysign2(double2 x, double2 y);
double4 __ocl_zorv_v8_copysign3(double4 x, double4 y);
double4 __ocl_zorv_v8_copysign4(double4 x, double4 y);
double8 __ocl_zorv_v8_copysign8(double8 x, double8 y);
double16 __ocl_zorv_v8_copysign16(double16 x, double16 y);

/* nanf: A quiet NaN with the code in its mantissa. code: uint; result: float.
 * Bits of the code above the mantissa are not masked: they stay in the result.
 * Error: none, the result is exact.
 * One logical instruction. */
float __ocl_zorv_v8_nanf1(unsigned int code);
float2 __ocl_zorv_v8_nanf2(uint2 code);
float4 __ocl_zorv_v8_nanf3(uint4 code);
float4 __ocl_zorv_v8_nanf4(uint4 code);
float8 __ocl_zorv_v8_nanf8(uint8 code);
float16 __ocl_zorv_v8_nanf16(uint16 code);

/* nan: A quiet NaN with the code in its mantissa. code: ulong; result: double.
 * Bits of the code above the mantissa are not masked: they stay in the result.
 * Error: none, the result is exact.
 * One logical instruction. */
double __ocl_zorv_v8_nan1(__UINT64_TYPE__ code);
double2 __ocl_zorv_v8_nan2(ulong2 code);
double4 __ocl_zorv_v8_nan3(ulong4 code);
double4 __ocl_zorv_v8_nan4(ulong4 code);
double8 __ocl_zorv_v8_nan8(ulong8 code);
double16 __ocl_zorv_v8_nan16(ulong16 code);

/* fminf: The lesser of x and y. x: float, y: float; result: float.
 * One NaN gives the other operand, two give the second; of two zeros the second.
 * Error: none, the result is exact.
 * The hardware's minimum. */
float __ocl_zorv_v8_fminf1(float x, float y);
float2 __ocl_zorv_v8_fminf2(float2 x, float2 y);
float4 __ocl_zorv_v8_fminf3(float4 x, float4 y);
float4 __ocl_zorv_v8_fminf4(float4 x, float4 y);
float8 __ocl_zorv_v8_fminf8(float8 x, float8 y);
float16 __ocl_zorv_v8_fminf16(float16 x, float16 y);

/* fmin: The lesser of x and y. x: double, y: double; result: double.
 * One NaN gives the other operand, two give the second; of two zeros the second.
 * Error: none, the result is exact.
 * The hardware's minimum. */
double __ocl_zorv_v8_fmin1(double x, double y);
double2 __ocl_zorv_v8_fmin2(double2 x, double2 y);
double4 __ocl_zorv_v8_fmin3(double4 x, double4 y);
double4 __ocl_zorv_v8_fmin4(double4 x, double4 y);
double8 __ocl_zorv_v8_fmin8(double8 x, double8 y);
double16 __ocl_zorv_v8_fmin16(double16 x, double16 y);

/* fmaxf: The greater of x and y. x: float, y: float; result: float.
 * One NaN gives the other operand, two give the second; of two zeros the second.
 * Error: none, the result is exact.
 * The hardware's maximum. */
float __ocl_zorv_v8_fmaxf1(float x, float y);
float2 __ocl_zorv_v8_fmaxf2(float2 x, float2 y);
float4 __ocl_zorv_v8_fmaxf3(float4 x, float4 y);
float4 __ocl_zorv_v8_fmaxf4(float4 x, float4 y);
float8 __ocl_zorv_v8_fmaxf8(float8 x, float8 y);
float16 __ocl_zorv_v8_fmaxf16(float16 x, float16 y);

/* fmax: The greater of x and y. x: double, y: double; result: double.
 * One NaN gives the other operand, two give the second; of two zeros the second.
 * Error: none, the result is exact.
 * The hardware's maximum. */
double __ocl_zorv_v8_fmax1(double x, double y);
double2 __ocl_zorv_v8_fmax2(double2 x, double2 y);
double4 __ocl_zorv_v8_fmax3(double4 x, double4 y);
double4 __ocl_zorv_v8_fmax4(double4 x, double4 y);
double8 __ocl_zorv_v8_fmax8(double8 x, double8 y);
double16 __ocl_zorv_v8_fmax16(double16 x, double16 y);

/* maxmagf: Of x and y the one with the greater magnitude; of equal magnitudes the greater value. x: float, y:
 * float; result: float.
 * One NaN gives the other operand, two give the second; of two zeros the first.
 * Error: none, the result is exact.
 * Compares of the magnitudes and the hardware's maximum. */
float __ocl_zorv_v8_maxmagf1(float x, float y);
float2 __ocl_zorv_v8_maxmagf2(float2 x, float2 y);
float4 __ocl_zorv_v8_maxmagf3(float4 x, float4 y);
float4 __ocl_zorv_v8_maxmagf4(float4 x, float4 y);
float8 __ocl_zorv_v8_maxmagf8(float8 x, float8 y);
float16 __ocl_zorv_v8_maxmagf16(float16 x, float16 y);

/* maxmag: Of x and y the one with the greater magnitude; of equal magnitudes the greater value. x: double, y:
 * double; result: double.
 * One NaN gives the other operand, two give the second; of two zeros the first.
 * Error: none, the result is exact.
 * Compares of the magnitudes and the hardware's maximum. */
double __ocl_zorv_v8_maxmag1(double x, double y);
double2 __ocl_zorv_v8_maxmag2(double2 x, double2 y);
double4 __ocl_zorv_v8_maxmag3(double4 x, double4 y);
double4 __ocl_zorv_v8_maxmag4(double4 x, double4 y);
double8 __ocl_zorv_v8_maxmag8(double8 x, double8 y);
double16 __ocl_zorv_v8_maxmag16(double16 x, double16 y);

/* minmagf: Of x and y the one with the lesser magnitude; of equal magnitudes the lesser value. x: float, y:
 * float; result: float.
 * One NaN gives the other operand, two give the second; of two zeros the first.
 * Error: none, the result is exact.
 * Compares of the magnitudes and the hardware's minimum. */
float __ocl_zorv_v8_minmagf1(float x, float y);
float2 __ocl_zorv_v8_minmagf2(float2 x, float2 y);
float4 __ocl_zorv_v8_minmagf3(float4 x, float4 y);
float4 __ocl_zorv_v8_minmagf4(float4 x, float4 y);
float8 __ocl_zorv_v8_minmagf8(float8 x, float8 y);
float16 __ocl_zorv_v8_minmagf16(float16 x, float16 y);

/* minmag: Of x and y the one with the lesser magnitude; of equal magnitudes the lesser value. x: double, y:
 * double; result: double.
 * One NaN gives the other operand, two give the second; of two zeros the first.
 * Error: none, the result is exact.
 * Compares of the magnitudes and the hardware's minimum. */
double __ocl_zorv_v8_minmag1(double x, double y);
double2 __ocl_zorv_v8_minmag2(double2 x, double2 y);
double4 __ocl_zorv_v8_minmag3(double4 x, double4 y);
double4 __ocl_zorv_v8_minmag4(double4 x, double4 y);
double8 __ocl_zorv_v8_minmag8(double8 x, double8 y);
double16 __ocl_zorv_v8_minmag16(double16 x, double16 y);

/* fdimf: x - y where x > y, else +0. x: float, y: float; result: float.
 * A NaN gives that NaN, two give the second; equal infinities give +0.
 * Error: 0.5 ulp, correctly rounded.
 * The hardware's subtraction under a compare. */
float __ocl_zorv_v8_fdimf1(float x, float y);
float2 __ocl_zorv_v8_fdimf2(float2 x, float2 y);
float4 __ocl_zorv_v8_fdimf3(float4 x, float4 y);
float4 __ocl_zorv_v8_fdimf4(float4 x, float4 y);
float8 __ocl_zorv_v8_fdimf8(float8 x, float8 y);
float16 __ocl_zorv_v8_fdimf16(float16 x, float16 y);

/* fdim: x - y where x > y, else +0. x: double, y: double; result: double.
 * A NaN gives that NaN, two give the second; equal infinities give +0.
 * Error: 0.5 ulp, correctly rounded.
 * The hardware's subtraction under a compare. */
double __ocl_zorv_v8_fdim1(double x, double y);
double2 __ocl_zorv_v8_fdim2(double2 x, double2 y);
double4 __ocl_zorv_v8_fdim3(double4 x, double4 y);
double4 __ocl_zorv_v8_fdim4(double4 x, double4 y);
double8 __ocl_zorv_v8_fdim8(double8 x, double8 y);
double16 __ocl_zorv_v8_fdim16(double16 x, double16 y);

/* madf: a b + c in two roundings. a: float, b: float, c: float; result: float.
 * As the hardware's multiplication and addition.
 * Error: each step is rounded; where they cancel, no multiple of the ulp bounds it.
 * The hardware's multiplication, then its addition; fma rounds once. */
float __ocl_zorv_v8_madf1(float a, float b, float c);
float2 __ocl_zorv_v8_madf2(float2 a, float2 b, float2 c);
float4 __ocl_zorv_v8_madf3(float4 a, float4 b, float4 c);
float4 __ocl_zorv_v8_madf4(float4 a, float4 b, float4 c);
float8 __ocl_zorv_v8_madf8(float8 a, float8 b, float8 c);
float16 __ocl_zorv_v8_madf16(float16 a, float16 b, float16 c);

/* mad: a b + c in two roundings. a: double, b: double, c: double; result: double.
 * As the hardware's multiplication and addition.
 * Error: each step is rounded; where they cancel, no multiple of the ulp bounds it.
 * The hardware's multiplication, then its addition; fma rounds once. */
double __ocl_zorv_v8_mad1(double a, double b, double c);
double2 __ocl_zorv_v8_mad2(double2 a, double2 b, double2 c);
double4 __ocl_zorv_v8_mad3(double4 a, double4 b, double4 c);
double4 __ocl_zorv_v8_mad4(double4 a, double4 b, double4 c);
double8 __ocl_zorv_v8_mad8(double8 a, double8 b, double8 c);
double16 __ocl_zorv_v8_mad16(double16 a, double16 b, double16 c);

/* fmaf: a b + c in one rounding. a: float, b: float, c: float; result: float.
 * As IEEE 754 has it; an exact cancellation gives +0, rounding downward -0. Rounds in the mode of the x87
 * control word. With c = 0 product and sum round as the hardware's, so that a tiny negative product plus +0
 * gives +0.
 * Error: 0.5 ulp, correctly rounded.
 * Exact integer arithmetic, one lane after the other: the target has no fused instruction. */
float __ocl_zorv_v8_fmaf1(float a, float b, float c);
float2 __ocl_zorv_v8_fmaf2(float2 a, float2 b, float2 c);
float4 __ocl_zorv_v8_fmaf3(float4 a, float4 b, float4 c);
float4 __ocl_zorv_v8_fmaf4(float4 a, float4 b, float4 c);
float8 __ocl_zorv_v8_fmaf8(float8 a, float8 b, float8 c);
float16 __ocl_zorv_v8_fmaf16(float16 a, float16 b, float16 c);

/* fma: a b + c in one rounding. a: double, b: double, c: double; result: double.
 * As IEEE 754 has it; an exact cancellation gives +0, rounding downward -0. Rounds in the mode of the x87
 * control word. With c = 0 product and sum round as the hardware's, so that a tiny negative product plus +0
 * gives +0.
 * Error: 0.5 ulp, correctly rounded.
 * Exact integer arithmetic, one lane after the other: the target has no fused instruction. */
double __ocl_zorv_v8_fma1(double a, double b, double c);
double2 __ocl_zorv_v8_fma2(double2 a, double2 b, double2 c);
double4 __ocl_zorv_v8_fma3(double4 a, double4 b, double4 c);
double4 __ocl_zorv_v8_fma4(double4 a, double4 b, double4 c);
double8 __ocl_zorv_v8_fma8(double8 a, double8 b, double8 c);
double16 __ocl_zorv_v8_fma16(double16 a, double16 b, double16 c);

/* ceilf: x rounded up to an integral value. x: float; result: float.
 * x in (-1, -0.5) gives +0, x in [-0.5, -0] gives -0.
 * Error: none, the result is exact.
 * Adds and subtracts 2^23 (double: 2^52) and steps up where that rounded down. */
float __ocl_zorv_v8_ceilf1(float x);
float2 __ocl_zorv_v8_ceilf2(float2 x);
float4 __ocl_zorv_v8_ceilf3(float4 x);
float4 __ocl_zorv_v8_ceilf4(float4 x);
float8 __ocl_zorv_v8_ceilf8(float8 x);
float16 __ocl_zorv_v8_ceilf16(float16 x);

/* ceil: x rounded up to an integral value. x: double; result: double.
 * x in (-1, -0.5) gives +0, x in [-0.5, -0] gives -0.
 * Error: none, the result is exact.
 * Adds and subtracts 2^23 (double: 2^52) and steps up where that rounded down. */
double __ocl_zorv_v8_ceil1(double x);
double2 __ocl_zorv_v8_ceil2(double2 x);
double4 __ocl_zorv_v8_ceil3(double4 x);
double4 __ocl_zorv_v8_ceil4(double4 x);
double8 __ocl_zorv_v8_ceil8(double8 x);
double16 __ocl_zorv_v8_ceil16(double16 x);

/* floorf: x rounded down to an integral value. x: float; result: float.
 * -0 gives -0.
 * Error: none, the result is exact.
 * Adds and subtracts 2^23 (double: 2^52) and steps down where that rounded up. */
float __ocl_zorv_v8_floorf1(float x);
float2 __ocl_zorv_v8_floorf2(float2 x);
float4 __ocl_zorv_v8_floorf3(float4 x);
float4 __ocl_zorv_v8_floorf4(float4 x);
float8 __ocl_zorv_v8_floorf8(float8 x);
float16 __ocl_zorv_v8_floorf16(float16 x);

/* floor: x rounded down to an integral value. x: double; result: double.
 * -0 gives -0.
 * Error: none, the result is exact.
 * Adds and subtracts 2^23 (double: 2^52) and steps down where that rounded up. */
double __ocl_zorv_v8_floor1(double x);
double2 __ocl_zorv_v8_floor2(double2 x);
double4 __ocl_zorv_v8_floor3(double4 x);
double4 __ocl_zorv_v8_floor4(double4 x);
double8 __ocl_zorv_v8_floor8(double8 x);
double16 __ocl_zorv_v8_floor16(double16 x);

/* roundf: x rounded to the nearest integral value, ties away from zero. x: float; result: float.
 * Keeps the sign, that of a zero result too.
 * Error: none, the result is exact.
 * Rounds ties to even as rint does; a tie that went down takes one more. */
float __ocl_zorv_v8_roundf1(float x);
float2 __ocl_zorv_v8_roundf2(float2 x);
float4 __ocl_zorv_v8_roundf3(float4 x);
float4 __ocl_zorv_v8_roundf4(float4 x);
float8 __ocl_zorv_v8_roundf8(float8 x);
float16 __ocl_zorv_v8_roundf16(float16 x);

/* round: x rounded to the nearest integral value, ties away from zero. x: double; result: double.
 * Keeps the sign, that of a zero result too.
 * Error: none, the result is exact.
 * Rounds ties to even as rint does; a tie that went down takes one more. */
double __ocl_zorv_v8_round1(double x);
double2 __ocl_zorv_v8_round2(double2 x);
double4 __ocl_zorv_v8_round3(double4 x);
double4 __ocl_zorv_v8_round4(double4 x);
double8 __ocl_zorv_v8_round8(double8 x);
double16 __ocl_zorv_v8_round16(double16 x);

/* truncf: x rounded toward zero to an integral value. x: float; result: float.
 * Keeps the sign, that of a zero result too.
 * Error: none, the result is exact.
 * Adds and subtracts 2^23 (double: 2^52) and steps back where that rounded away from zero. */
float __ocl_zorv_v8_truncf1(float x);
float2 __ocl_zorv_v8_truncf2(float2 x);
float4 __ocl_zorv_v8_truncf3(float4 x);
float4 __ocl_zorv_v8_truncf4(float4 x);
float8 __ocl_zorv_v8_truncf8(float8 x);
float16 __ocl_zorv_v8_truncf16(float16 x);

/* trunc: x rounded toward zero to an integral value. x: double; result: double.
 * Keeps the sign, that of a zero result too.
 * Error: none, the result is exact.
 * Adds and subtracts 2^23 (double: 2^52) and steps back where that rounded away from zero. */
double __ocl_zorv_v8_trunc1(double x);
double2 __ocl_zorv_v8_trunc2(double2 x);
double4 __ocl_zorv_v8_trunc3(double4 x);
double4 __ocl_zorv_v8_trunc4(double4 x);
double8 __ocl_zorv_v8_trunc8(double8 x);
double16 __ocl_zorv_v8_trunc16(double16 x);

/* rintf: x rounded to the nearest integral value, ties to even. x: float; result: float.
 * Keeps the sign, that of a zero result too.
 * Error: none, the result is exact.
 * Adds and subtracts 2^23 (double: 2^52). */
float __ocl_zorv_v8_rintf1(float x);
float2 __ocl_zorv_v8_rintf2(float2 x);
float4 __ocl_zorv_v8_rintf3(float4 x);
float4 __ocl_zorv_v8_rintf4(float4 x);
float8 __ocl_zorv_v8_rintf8(float8 x);
float16 __ocl_zorv_v8_rintf16(float16 x);

/* rint: x rounded to the nearest integral value, ties to even. x: double; result: double.
 * Keeps the sign, that of a zero result too.
 * Error: none, the result is exact.
 * Adds and subtracts 2^23 (double: 2^52). */
double __ocl_zorv_v8_rint1(double x);
double2 __ocl_zorv_v8_rint2(double2 x);
double4 __ocl_zorv_v8_rint3(double4 x);
double4 __ocl_zorv_v8_rint4(double4 x);
double8 __ocl_zorv_v8_rint8(double8 x);
double16 __ocl_zorv_v8_rint16(double16 x);

/* nearbyintf: x rounded to the nearest integral value, ties to even. x: float; result: float.
 * Keeps the sign, that of a zero result too.
 * Error: none, the result is exact.
 * The same as rint: no flags are kept. */
float __ocl_zorv_v8_nearbyintf1(float x);
float2 __ocl_zorv_v8_nearbyintf2(float2 x);
float4 __ocl_zorv_v8_nearbyintf3(float4 x);
float4 __ocl_zorv_v8_nearbyintf4(float4 x);
float8 __ocl_zorv_v8_nearbyintf8(float8 x);
float16 __ocl_zorv_v8_nearbyintf16(float16 x);

/* nearbyint: x rounded to the nearest integral value, ties to even. x: double; result: double.
 * Keeps the sign, that of a zero result too.
 * Error: none, the result is exact.
 * The same as rint: no flags are kept. */
double __ocl_zorv_v8_nearbyint1(double x);
double2 __ocl_zorv_v8_nearbyint2(double2 x);
double4 __ocl_zorv_v8_nearbyint3(double4 x);
double4 __ocl_zorv_v8_nearbyint4(double4 x);
double8 __ocl_zorv_v8_nearbyint8(double8 x);
double16 __ocl_zorv_v8_nearbyint16(double16 x);

/* modff: The fractional part of x; through the pointer its integral part. x: float; result: float; through
 * the pointer: float.
 * An integral x gives the fraction +0, whatever its sign; +-infinity gives +-0 and +-infinity, NaN gives NaN
 * twice.
 * Error: none, the result is exact.
 * x rounded toward zero as trunc does, and an exact subtraction. */
float __ocl_zorv_v8_modff1(float x, float *second);
float2 __ocl_zorv_v8_modff2(float2 x, float2 *second);
float4 __ocl_zorv_v8_modff3(float4 x, float4 *second);
float4 __ocl_zorv_v8_modff4(float4 x, float4 *second);
float8 __ocl_zorv_v8_modff8(float8 x, float8 *second);
float16 __ocl_zorv_v8_modff16(float16 x, float16 *second);

/* modf: The fractional part of x; through the pointer its integral part. x: double; result: double; through
 * the pointer: double.
 * An integral x gives the fraction +0, whatever its sign; +-infinity gives +-0 and +-infinity, NaN gives NaN
 * twice.
 * Error: none, the result is exact.
 * x rounded toward zero as trunc does, and an exact subtraction. */
double __ocl_zorv_v8_modf1(double x, double *second);
double2 __ocl_zorv_v8_modf2(double2 x, double2 *second);
double4 __ocl_zorv_v8_modf3(double4 x, double4 *second);
double4 __ocl_zorv_v8_modf4(double4 x, double4 *second);
double8 __ocl_zorv_v8_modf8(double8 x, double8 *second);
double16 __ocl_zorv_v8_modf16(double16 x, double16 *second);

/* fractf: x - floor(x), below 1; through the pointer floor(x). x: float; result: float; through the pointer:
 * float.
 * +-0 gives +-0 twice, +-infinity gives +-0 and +-infinity, NaN gives NaN twice; a tiny negative x gives the
 * number just below 1.
 * Error: 1 ulp at most.
 * x rounded down as floor does, a subtraction, and the hardware's minimum with the number just below 1. */
float __ocl_zorv_v8_fractf1(float x, float *second);
float2 __ocl_zorv_v8_fractf2(float2 x, float2 *second);
float4 __ocl_zorv_v8_fractf3(float4 x, float4 *second);
float4 __ocl_zorv_v8_fractf4(float4 x, float4 *second);
float8 __ocl_zorv_v8_fractf8(float8 x, float8 *second);
float16 __ocl_zorv_v8_fractf16(float16 x, float16 *second);

/* fract: x - floor(x), below 1; through the pointer floor(x). x: double; result: double; through the pointer:
 * double.
 * +-0 gives +-0 twice, +-infinity gives +-0 and +-infinity, NaN gives NaN twice; a tiny negative x gives the
 * number just below 1.
 * Error: 1 ulp at most.
 * x rounded down as floor does, a subtraction, and the hardware's minimum with the number just below 1. */
double __ocl_zorv_v8_fract1(double x, double *second);
double2 __ocl_zorv_v8_fract2(double2 x, double2 *second);
double4 __ocl_zorv_v8_fract3(double4 x, double4 *second);
double4 __ocl_zorv_v8_fract4(double4 x, double4 *second);
double8 __ocl_zorv_v8_fract8(double8 x, double8 *second);
double16 __ocl_zorv_v8_fract16(double16 x, double16 *second);

/* expf: e^x. x: float; result: float.
 * float: +infinity and operands above 88.72 give +infinity, -infinity and operands below -103.97 give +0, NaN
 * gives NaN; subnormal results are rounded once more. exp(0) is 1.
 * Error: 2.94 ulp at most.
 * float: x = k ln 2 + r with ln 2 in two parts (Cody and Waite), a minimax polynomial of degree 5 in r, 2^k
 * added to the exponent field. */
float __ocl_zorv_v8_expf1(float x);
float2 __ocl_zorv_v8_expf2(float2 x);
float4 __ocl_zorv_v8_expf3(float4 x);
float4 __ocl_zorv_v8_expf4(float4 x);
float8 __ocl_zorv_v8_expf8(float8 x);
float16 __ocl_zorv_v8_expf16(float16 x);

/* expf_native: e^x. x: float; result: float.
 * float: right for results in the normal range; beyond, the exponent wraps. Infinities give NaN. exp(0) is 1.
 * Error: 1821 ulp at most.
 * float: as the accurate class with ln 2 in one part and degree 3. */
float __ocl_zorv_v8_expf1_native(float x);
float2 __ocl_zorv_v8_expf2_native(float2 x);
float4 __ocl_zorv_v8_expf3_native(float4 x);
float4 __ocl_zorv_v8_expf4_native(float4 x);
float8 __ocl_zorv_v8_expf8_native(float8 x);
float16 __ocl_zorv_v8_expf16_native(float16 x);

/* exp2f: 2^x. x: float; result: float.
 * float: +infinity and operands of 128 and above give +infinity, -infinity and operands below about -149.5
 * give +0, NaN gives NaN. Exact where x is an integer up to 126 in magnitude.
 * Error: 2.85 ulp at most.
 * float: x = k + r, exact; a minimax polynomial of degree 6 in r, 2^k added to the exponent field. */
float __ocl_zorv_v8_exp2f1(float x);
float2 __ocl_zorv_v8_exp2f2(float2 x);
float4 __ocl_zorv_v8_exp2f3(float4 x);
float4 __ocl_zorv_v8_exp2f4(float4 x);
float8 __ocl_zorv_v8_exp2f8(float8 x);
float16 __ocl_zorv_v8_exp2f16(float16 x);

/* exp2f_native: 2^x. x: float; result: float.
 * float: right for results in the normal range; beyond, the exponent wraps. Infinities give NaN. exp2(0) is
 * 0.99992806.
 * Error: 1231 ulp at most.
 * float: as the accurate class with degree 3. */
float __ocl_zorv_v8_exp2f1_native(float x);
float2 __ocl_zorv_v8_exp2f2_native(float2 x);
float4 __ocl_zorv_v8_exp2f3_native(float4 x);
float4 __ocl_zorv_v8_exp2f4_native(float4 x);
float8 __ocl_zorv_v8_exp2f8_native(float8 x);
float16 __ocl_zorv_v8_exp2f16_native(float16 x);

/* exp10f: 10^x. x: float; result: float.
 * float: +infinity and operands above 38.53 give +infinity, -infinity and operands below -45.15 give +0, NaN
 * gives NaN. exp10(0) is one ulp above 1.
 * Error: 2.93 ulp at most.
 * float: x = k log10(2)/512 + r with the step in two parts, 2^(i/512) from a table by the low nine bits of k
 * (Tang), degree 1 in r, the rest of k added to the exponent field. */
float __ocl_zorv_v8_exp10f1(float x);
float2 __ocl_zorv_v8_exp10f2(float2 x);
float4 __ocl_zorv_v8_exp10f3(float4 x);
float4 __ocl_zorv_v8_exp10f4(float4 x);
float8 __ocl_zorv_v8_exp10f8(float8 x);
float16 __ocl_zorv_v8_exp10f16(float16 x);

/* exp10f_native: 10^x. x: float; result: float.
 * float: right for results in the normal range, with an error that grows with |x|; beyond, the exponent
 * wraps. Infinities give NaN. exp10(0) is 0.99992806.
 * Error: 1305 ulp at most.
 * float: the native exp2 of x log2(10). */
float __ocl_zorv_v8_exp10f1_native(float x);
float2 __ocl_zorv_v8_exp10f2_native(float2 x);
float4 __ocl_zorv_v8_exp10f3_native(float4 x);
float4 __ocl_zorv_v8_exp10f4_native(float4 x);
float8 __ocl_zorv_v8_exp10f8_native(float8 x);
float16 __ocl_zorv_v8_exp10f16_native(float16 x);

/* logf: The natural logarithm of x. x: float; result: float.
 * +-0 gives -infinity, a negative operand NaN, +infinity gives +infinity, NaN gives NaN. log(1) is +0.
 * Error: 1.04 ulp at most.
 * float: x = f 2^k with f in [2/3, 4/3), split by integer arithmetic; a minimax polynomial of degree 10 in f
 * - 1, ln 2 in two parts. Subnormal operands: a table of 65 rows and a short polynomial (Tang). */
float __ocl_zorv_v8_logf1(float x);
float2 __ocl_zorv_v8_logf2(float2 x);
float4 __ocl_zorv_v8_logf3(float4 x);
float4 __ocl_zorv_v8_logf4(float4 x);
float8 __ocl_zorv_v8_logf8(float8 x);
float16 __ocl_zorv_v8_logf16(float16 x);

/* logf_native: The natural logarithm of x. x: float; result: float.
 * float: right for positive normal operands; any other pattern is split like one, and gives a finite number:
 * -88.03 for +0, 88.72 for +infinity.
 * Error: 8315 ulp at most.
 * float: as the accurate class with degree 4 and ln 2 in one part. */
float __ocl_zorv_v8_logf1_native(float x);
float2 __ocl_zorv_v8_logf2_native(float2 x);
float4 __ocl_zorv_v8_logf3_native(float4 x);
float4 __ocl_zorv_v8_logf4_native(float4 x);
float8 __ocl_zorv_v8_logf8_native(float8 x);
float16 __ocl_zorv_v8_logf16_native(float16 x);

/* log2f: The logarithm of x to base 2. x: float; result: float.
 * +-0 gives -infinity, a negative operand NaN, +infinity gives +infinity, NaN gives NaN. Exact for normal
 * powers of two.
 * Error: 2.62 ulp at most.
 * float: x = f 2^k with f in [2/3, 4/3), split by integer arithmetic; a minimax polynomial of degree 9 in f -
 * 1, in even and odd terms. Subnormal operands: a table of 65 rows and a short polynomial (Tang). */
float __ocl_zorv_v8_log2f1(float x);
float2 __ocl_zorv_v8_log2f2(float2 x);
float4 __ocl_zorv_v8_log2f3(float4 x);
float4 __ocl_zorv_v8_log2f4(float4 x);
float8 __ocl_zorv_v8_log2f8(float8 x);
float16 __ocl_zorv_v8_log2f16(float16 x);

/* log2f_native: The logarithm of x to base 2. x: float; result: float.
 * float: right for positive normal operands, exact for powers of two; any other pattern is split like one,
 * and gives a finite number: -127 for +0, 128 for +infinity.
 * Error: 894 ulp at most.
 * float: as the accurate class with degree 5. */
float __ocl_zorv_v8_log2f1_native(float x);
float2 __ocl_zorv_v8_log2f2_native(float2 x);
float4 __ocl_zorv_v8_log2f3_native(float4 x);
float4 __ocl_zorv_v8_log2f4_native(float4 x);
float8 __ocl_zorv_v8_log2f8_native(float8 x);
float16 __ocl_zorv_v8_log2f16_native(float16 x);

/* log10f: The logarithm of x to base 10. x: float; result: float.
 * +-0 gives -infinity, a negative operand NaN, +infinity gives +infinity, NaN gives NaN. log10(1) is +0.
 * Error: 2.63 ulp at most.
 * float: as log2, with log10(2) in two parts. */
float __ocl_zorv_v8_log10f1(float x);
float2 __ocl_zorv_v8_log10f2(float2 x);
float4 __ocl_zorv_v8_log10f3(float4 x);
float4 __ocl_zorv_v8_log10f4(float4 x);
float8 __ocl_zorv_v8_log10f8(float8 x);
float16 __ocl_zorv_v8_log10f16(float16 x);

/* log10f_native: The logarithm of x to base 10. x: float; result: float.
 * float: right for positive normal operands; any other pattern is split like one, and gives a finite number:
 * -38.23 for +0, 38.53 for +infinity.
 * Error: 996 ulp at most.
 * float: as the accurate class with degree 5 and log10(2) in one part. */
float __ocl_zorv_v8_log10f1_native(float x);
float2 __ocl_zorv_v8_log10f2_native(float2 x);
float4 __ocl_zorv_v8_log10f3_native(float4 x);
float4 __ocl_zorv_v8_log10f4_native(float4 x);
float8 __ocl_zorv_v8_log10f8_native(float8 x);
float16 __ocl_zorv_v8_log10f16_native(float16 x);

/* sinf: The sine of x. Radians. x: float; result: float.
 * +-0 gives +-0. Infinities and NaN give NaN.
 * Error: 2.48 ulp at most.
 * float: up to 10000, multiples of pi in four parts and an odd polynomial of degree 9. Once a lane of a call
 * is beyond, all its lanes take the long path: the significand times the bits of 1/pi (Payne and Hanek's
 * reduction), a table of 256 steps of the turn, head and tail arithmetic; its error is 0.51 ulp. So a
 * neighbour beyond 10000 can change the last bits of a lane, by 2 units at most, and -0 to +0. */
float __ocl_zorv_v8_sinf1(float x);
float2 __ocl_zorv_v8_sinf2(float2 x);
float4 __ocl_zorv_v8_sinf3(float4 x);
float4 __ocl_zorv_v8_sinf4(float4 x);
float8 __ocl_zorv_v8_sinf8(float8 x);
float16 __ocl_zorv_v8_sinf16(float16 x);

/* sinf_native: The sine of x. Radians. x: float; result: float.
 * +-0 gives +-0. float: infinities give a finite number of no meaning, and so does a NaN beside a lane beyond
 * 10000.
 * Error: 2321 ulp at most.
 * float: up to 10000, multiples of pi in three parts and an odd polynomial of degree 5; beyond, the accurate
 * class's long path, for all lanes of a call once one needs it. So a neighbour beyond 10000 can change a lane
 * by as much as this error, and -0 to +0. */
float __ocl_zorv_v8_sinf1_native(float x);
float2 __ocl_zorv_v8_sinf2_native(float2 x);
float4 __ocl_zorv_v8_sinf3_native(float4 x);
float4 __ocl_zorv_v8_sinf4_native(float4 x);
float8 __ocl_zorv_v8_sinf8_native(float8 x);
float16 __ocl_zorv_v8_sinf16_native(float16 x);

/* cosf: The cosine of x. Radians. x: float; result: float.
 * Infinities and NaN give NaN.
 * Error: 2.39 ulp at most.
 * float: up to 10000, multiples of pi in four parts and an odd polynomial of degree 9. Once a lane of a call
 * is beyond, all its lanes take the long path: the significand times the bits of 1/pi (Payne and Hanek's
 * reduction), a table of 256 steps of the turn, head and tail arithmetic; its error is 0.51 ulp. So a
 * neighbour beyond 10000 can change the last bits of a lane, by 2 units at most. */
float __ocl_zorv_v8_cosf1(float x);
float2 __ocl_zorv_v8_cosf2(float2 x);
float4 __ocl_zorv_v8_cosf3(float4 x);
float4 __ocl_zorv_v8_cosf4(float4 x);
float8 __ocl_zorv_v8_cosf8(float8 x);
float16 __ocl_zorv_v8_cosf16(float16 x);

/* cosf_native: The cosine of x. Radians. x: float; result: float.
 * float: infinities give a finite number of no meaning, and so does a NaN beside a lane beyond 10000.
 * Error: 2350 ulp at most.
 * float: up to 10000, multiples of pi in three parts and an odd polynomial of degree 5; beyond, the accurate
 * class's long path, for all lanes of a call once one needs it. So a neighbour beyond 10000 can change a lane
 * by as much as this error. */
float __ocl_zorv_v8_cosf1_native(float x);
float2 __ocl_zorv_v8_cosf2_native(float2 x);
float4 __ocl_zorv_v8_cosf3_native(float4 x);
float4 __ocl_zorv_v8_cosf4_native(float4 x);
float8 __ocl_zorv_v8_cosf8_native(float8 x);
float16 __ocl_zorv_v8_cosf16_native(float16 x);

/* sincosf: The sine of x; through the pointer its cosine. Radians. x: float; result: float; through the
 * pointer: float.
 * The sine of +-0 is +-0. Infinities and NaN give NaN twice.
 * Error: 2.48 ulp at most.
 * float: up to 10000, multiples of pi in four parts and an odd polynomial of degree 9. Once a lane of a call
 * is beyond, all its lanes take the long path: the significand times the bits of 1/pi (Payne and Hanek's
 * reduction), a table of 256 steps of the turn, head and tail arithmetic; its error is 0.51 ulp. So a
 * neighbour beyond 10000 can change the last bits of a lane, by 2 units at most. */
float __ocl_zorv_v8_sincosf1(float x, float *second);
float2 __ocl_zorv_v8_sincosf2(float2 x, float2 *second);
float4 __ocl_zorv_v8_sincosf3(float4 x, float4 *second);
float4 __ocl_zorv_v8_sincosf4(float4 x, float4 *second);
float8 __ocl_zorv_v8_sincosf8(float8 x, float8 *second);
float16 __ocl_zorv_v8_sincosf16(float16 x, float16 *second);

/* sincosf_native: The sine of x; through the pointer its cosine. Radians. x: float; result: float; through
 * the pointer: float.
 * The sine of +-0 is +-0. float: infinities give a finite number of no meaning, and so does a NaN beside a
 * lane beyond 10000.
 * Error: 2321 ulp at most.
 * float: up to 10000, multiples of pi in three parts and an odd polynomial of degree 5; beyond, the accurate
 * class's long path, for all lanes of a call once one needs it. So a neighbour beyond 10000 can change a lane
 * by as much as this error. */
float __ocl_zorv_v8_sincosf1_native(float x, float *second);
float2 __ocl_zorv_v8_sincosf2_native(float2 x, float2 *second);
float4 __ocl_zorv_v8_sincosf3_native(float4 x, float4 *second);
float4 __ocl_zorv_v8_sincosf4_native(float4 x, float4 *second);
float8 __ocl_zorv_v8_sincosf8_native(float8 x, float8 *second);
float16 __ocl_zorv_v8_sincosf16_native(float16 x, float16 *second);

/* sincosregf: The sine and the cosine of x. Radians. x: float; result: float, first the sine, then the
 * cosine.
 * The sine of +-0 is +-0. Infinities and NaN give NaN twice.
 * Error: 2.48 ulp at most.
 * float: up to 10000, multiples of pi in four parts and an odd polynomial of degree 9. Once a lane of a call
 * is beyond, all its lanes take the long path: the significand times the bits of 1/pi (Payne and Hanek's
 * reduction), a table of 256 steps of the turn, head and tail arithmetic; its error is 0.51 ulp. So a
 * neighbour beyond 10000 can change the last bits of a lane, by 2 units at most. */
float2 __ocl_zorv_v8_sincosregf1(float x);
float2_pair __ocl_zorv_v8_sincosregf2(float2 x);
float3_pair __ocl_zorv_v8_sincosregf3(float4 x);
float4_pair __ocl_zorv_v8_sincosregf4(float4 x);
float8_pair __ocl_zorv_v8_sincosregf8(float8 x);
float16_pair __ocl_zorv_v8_sincosregf16(float16 x);

/* sincosregf_native: The sine and the cosine of x. Radians. x: float; result: float, first the sine, then the
 * cosine.
 * The sine of +-0 is +-0. float: infinities give a finite number of no meaning, and so does a NaN beside a
 * lane beyond 10000.
 * Error: 2321 ulp at most.
 * float: up to 10000, multiples of pi in three parts and an odd polynomial of degree 5; beyond, the accurate
 * class's long path, for all lanes of a call once one needs it. So a neighbour beyond 10000 can change a lane
 * by as much as this error. */
float2 __ocl_zorv_v8_sincosregf1_native(float x);
float2_pair __ocl_zorv_v8_sincosregf2_native(float2 x);
float3_pair __ocl_zorv_v8_sincosregf3_native(float4 x);
float4_pair __ocl_zorv_v8_sincosregf4_native(float4 x);
float8_pair __ocl_zorv_v8_sincosregf8_native(float8 x);
float16_pair __ocl_zorv_v8_sincosregf16_native(float16 x);

/* cvtfptoi32rtnsatf: x as int, rounded to nearest, ties to even. x: float; result: int.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32rtnsatf1(float x);
int2 __ocl_zorv_v8_cvtfptoi32rtnsatf2(float2 x);
int4 __ocl_zorv_v8_cvtfptoi32rtnsatf3(float4 x);
int4 __ocl_zorv_v8_cvtfptoi32rtnsatf4(float4 x);
int8 __ocl_zorv_v8_cvtfptoi32rtnsatf8(float8 x);
int16 __ocl_zorv_v8_cvtfptoi32rtnsatf16(float16 x);

/* cvtfptoi32rtnsat: x as int, rounded to nearest, ties to even. x: double; result: int.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32rtnsat1(double x);
int2 __ocl_zorv_v8_cvtfptoi32rtnsat2(double2 x);
int4 __ocl_zorv_v8_cvtfptoi32rtnsat3(double4 x);
int4 __ocl_zorv_v8_cvtfptoi32rtnsat4(double4 x);
int8 __ocl_zorv_v8_cvtfptoi32rtnsat8(double8 x);
int16 __ocl_zorv_v8_cvtfptoi32rtnsat16(double16 x);

/* cvtfptoi32rtnnosatf: x as int, rounded to nearest, ties to even. x: float; result: int.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32rtnnosatf1(float x);
int2 __ocl_zorv_v8_cvtfptoi32rtnnosatf2(float2 x);
int4 __ocl_zorv_v8_cvtfptoi32rtnnosatf3(float4 x);
int4 __ocl_zorv_v8_cvtfptoi32rtnnosatf4(float4 x);
int8 __ocl_zorv_v8_cvtfptoi32rtnnosatf8(float8 x);
int16 __ocl_zorv_v8_cvtfptoi32rtnnosatf16(float16 x);

/* cvtfptoi32rtnnosat: x as int, rounded to nearest, ties to even. x: double; result: int.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32rtnnosat1(double x);
int2 __ocl_zorv_v8_cvtfptoi32rtnnosat2(double2 x);
int4 __ocl_zorv_v8_cvtfptoi32rtnnosat3(double4 x);
int4 __ocl_zorv_v8_cvtfptoi32rtnnosat4(double4 x);
int8 __ocl_zorv_v8_cvtfptoi32rtnnosat8(double8 x);
int16 __ocl_zorv_v8_cvtfptoi32rtnnosat16(double16 x);

/* cvti32tofprtnf: x, of int lanes, as floating, rounded to nearest, ties to even. x: int; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvti32tofprtnf1(int x);
float2 __ocl_zorv_v8_cvti32tofprtnf2(int2 x);
float4 __ocl_zorv_v8_cvti32tofprtnf3(int4 x);
float4 __ocl_zorv_v8_cvti32tofprtnf4(int4 x);
float8 __ocl_zorv_v8_cvti32tofprtnf8(int8 x);
float16 __ocl_zorv_v8_cvti32tofprtnf16(int16 x);

/* cvti32tofprtn: x, of int lanes, as floating, rounded to nearest, ties to even. x: int; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvti32tofprtn1(int x);
double2 __ocl_zorv_v8_cvti32tofprtn2(int2 x);
double4 __ocl_zorv_v8_cvti32tofprtn3(int4 x);
double4 __ocl_zorv_v8_cvti32tofprtn4(int4 x);
double8 __ocl_zorv_v8_cvti32tofprtn8(int8 x);
double16 __ocl_zorv_v8_cvti32tofprtn16(int16 x);

/* cvtfptoi32rtzsatf: x as int, rounded toward zero. x: float; result: int.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32rtzsatf1(float x);
int2 __ocl_zorv_v8_cvtfptoi32rtzsatf2(float2 x);
int4 __ocl_zorv_v8_cvtfptoi32rtzsatf3(float4 x);
int4 __ocl_zorv_v8_cvtfptoi32rtzsatf4(float4 x);
int8 __ocl_zorv_v8_cvtfptoi32rtzsatf8(float8 x);
int16 __ocl_zorv_v8_cvtfptoi32rtzsatf16(float16 x);

/* cvtfptoi32rtzsat: x as int, rounded toward zero. x: double; result: int.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32rtzsat1(double x);
int2 __ocl_zorv_v8_cvtfptoi32rtzsat2(double2 x);
int4 __ocl_zorv_v8_cvtfptoi32rtzsat3(double4 x);
int4 __ocl_zorv_v8_cvtfptoi32rtzsat4(double4 x);
int8 __ocl_zorv_v8_cvtfptoi32rtzsat8(double8 x);
int16 __ocl_zorv_v8_cvtfptoi32rtzsat16(double16 x);

/* cvtfptoi32rtznosatf: x as int, rounded toward zero. x: float; result: int.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32rtznosatf1(float x);
int2 __ocl_zorv_v8_cvtfptoi32rtznosatf2(float2 x);
int4 __ocl_zorv_v8_cvtfptoi32rtznosatf3(float4 x);
int4 __ocl_zorv_v8_cvtfptoi32rtznosatf4(float4 x);
int8 __ocl_zorv_v8_cvtfptoi32rtznosatf8(float8 x);
int16 __ocl_zorv_v8_cvtfptoi32rtznosatf16(float16 x);

/* cvtfptoi32rtznosat: x as int, rounded toward zero. x: double; result: int.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32rtznosat1(double x);
int2 __ocl_zorv_v8_cvtfptoi32rtznosat2(double2 x);
int4 __ocl_zorv_v8_cvtfptoi32rtznosat3(double4 x);
int4 __ocl_zorv_v8_cvtfptoi32rtznosat4(double4 x);
int8 __ocl_zorv_v8_cvtfptoi32rtznosat8(double8 x);
int16 __ocl_zorv_v8_cvtfptoi32rtznosat16(double16 x);

/* cvti32tofprtzf: x, of int lanes, as floating, rounded toward zero. x: int; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvti32tofprtzf1(int x);
float2 __ocl_zorv_v8_cvti32tofprtzf2(int2 x);
float4 __ocl_zorv_v8_cvti32tofprtzf3(int4 x);
float4 __ocl_zorv_v8_cvti32tofprtzf4(int4 x);
float8 __ocl_zorv_v8_cvti32tofprtzf8(int8 x);
float16 __ocl_zorv_v8_cvti32tofprtzf16(int16 x);

/* cvti32tofprtz: x, of int lanes, as floating, rounded toward zero. x: int; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvti32tofprtz1(int x);
double2 __ocl_zorv_v8_cvti32tofprtz2(int2 x);
double4 __ocl_zorv_v8_cvti32tofprtz3(int4 x);
double4 __ocl_zorv_v8_cvti32tofprtz4(int4 x);
double8 __ocl_zorv_v8_cvti32tofprtz8(int8 x);
double16 __ocl_zorv_v8_cvti32tofprtz16(int16 x);

/* cvtfptoi32upsatf: x as int, rounded toward positive infinity. x: float; result: int.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32upsatf1(float x);
int2 __ocl_zorv_v8_cvtfptoi32upsatf2(float2 x);
int4 __ocl_zorv_v8_cvtfptoi32upsatf3(float4 x);
int4 __ocl_zorv_v8_cvtfptoi32upsatf4(float4 x);
int8 __ocl_zorv_v8_cvtfptoi32upsatf8(float8 x);
int16 __ocl_zorv_v8_cvtfptoi32upsatf16(float16 x);

/* cvtfptoi32upsat: x as int, rounded toward positive infinity. x: double; result: int.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32upsat1(double x);
int2 __ocl_zorv_v8_cvtfptoi32upsat2(double2 x);
int4 __ocl_zorv_v8_cvtfptoi32upsat3(double4 x);
int4 __ocl_zorv_v8_cvtfptoi32upsat4(double4 x);
int8 __ocl_zorv_v8_cvtfptoi32upsat8(double8 x);
int16 __ocl_zorv_v8_cvtfptoi32upsat16(double16 x);

/* cvtfptoi32upnosatf: x as int, rounded toward positive infinity. x: float; result: int.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32upnosatf1(float x);
int2 __ocl_zorv_v8_cvtfptoi32upnosatf2(float2 x);
int4 __ocl_zorv_v8_cvtfptoi32upnosatf3(float4 x);
int4 __ocl_zorv_v8_cvtfptoi32upnosatf4(float4 x);
int8 __ocl_zorv_v8_cvtfptoi32upnosatf8(float8 x);
int16 __ocl_zorv_v8_cvtfptoi32upnosatf16(float16 x);

/* cvtfptoi32upnosat: x as int, rounded toward positive infinity. x: double; result: int.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32upnosat1(double x);
int2 __ocl_zorv_v8_cvtfptoi32upnosat2(double2 x);
int4 __ocl_zorv_v8_cvtfptoi32upnosat3(double4 x);
int4 __ocl_zorv_v8_cvtfptoi32upnosat4(double4 x);
int8 __ocl_zorv_v8_cvtfptoi32upnosat8(double8 x);
int16 __ocl_zorv_v8_cvtfptoi32upnosat16(double16 x);

/* cvti32tofpupf: x, of int lanes, as floating, rounded toward positive infinity. x: int; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvti32tofpupf1(int x);
float2 __ocl_zorv_v8_cvti32tofpupf2(int2 x);
float4 __ocl_zorv_v8_cvti32tofpupf3(int4 x);
float4 __ocl_zorv_v8_cvti32tofpupf4(int4 x);
float8 __ocl_zorv_v8_cvti32tofpupf8(int8 x);
float16 __ocl_zorv_v8_cvti32tofpupf16(int16 x);

/* cvti32tofpup: x, of int lanes, as floating, rounded toward positive infinity. x: int; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvti32tofpup1(int x);
double2 __ocl_zorv_v8_cvti32tofpup2(int2 x);
double4 __ocl_zorv_v8_cvti32tofpup3(int4 x);
double4 __ocl_zorv_v8_cvti32tofpup4(int4 x);
double8 __ocl_zorv_v8_cvti32tofpup8(int8 x);
double16 __ocl_zorv_v8_cvti32tofpup16(int16 x);

/* cvtfptoi32downsatf: x as int, rounded toward negative infinity. x: float; result: int.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32downsatf1(float x);
int2 __ocl_zorv_v8_cvtfptoi32downsatf2(float2 x);
int4 __ocl_zorv_v8_cvtfptoi32downsatf3(float4 x);
int4 __ocl_zorv_v8_cvtfptoi32downsatf4(float4 x);
int8 __ocl_zorv_v8_cvtfptoi32downsatf8(float8 x);
int16 __ocl_zorv_v8_cvtfptoi32downsatf16(float16 x);

/* cvtfptoi32downsat: x as int, rounded toward negative infinity. x: double; result: int.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32downsat1(double x);
int2 __ocl_zorv_v8_cvtfptoi32downsat2(double2 x);
int4 __ocl_zorv_v8_cvtfptoi32downsat3(double4 x);
int4 __ocl_zorv_v8_cvtfptoi32downsat4(double4 x);
int8 __ocl_zorv_v8_cvtfptoi32downsat8(double8 x);
int16 __ocl_zorv_v8_cvtfptoi32downsat16(double16 x);

/* cvtfptoi32downnosatf: x as int, rounded toward negative infinity. x: float; result: int.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32downnosatf1(float x);
int2 __ocl_zorv_v8_cvtfptoi32downnosatf2(float2 x);
int4 __ocl_zorv_v8_cvtfptoi32downnosatf3(float4 x);
int4 __ocl_zorv_v8_cvtfptoi32downnosatf4(float4 x);
int8 __ocl_zorv_v8_cvtfptoi32downnosatf8(float8 x);
int16 __ocl_zorv_v8_cvtfptoi32downnosatf16(float16 x);

/* cvtfptoi32downnosat: x as int, rounded toward negative infinity. x: double; result: int.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
int __ocl_zorv_v8_cvtfptoi32downnosat1(double x);
int2 __ocl_zorv_v8_cvtfptoi32downnosat2(double2 x);
int4 __ocl_zorv_v8_cvtfptoi32downnosat3(double4 x);
int4 __ocl_zorv_v8_cvtfptoi32downnosat4(double4 x);
int8 __ocl_zorv_v8_cvtfptoi32downnosat8(double8 x);
int16 __ocl_zorv_v8_cvtfptoi32downnosat16(double16 x);

/* cvti32tofpdownf: x, of int lanes, as floating, rounded toward negative infinity. x: int; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvti32tofpdownf1(int x);
float2 __ocl_zorv_v8_cvti32tofpdownf2(int2 x);
float4 __ocl_zorv_v8_cvti32tofpdownf3(int4 x);
float4 __ocl_zorv_v8_cvti32tofpdownf4(int4 x);
float8 __ocl_zorv_v8_cvti32tofpdownf8(int8 x);
float16 __ocl_zorv_v8_cvti32tofpdownf16(int16 x);

/* cvti32tofpdown: x, of int lanes, as floating, rounded toward negative infinity. x: int; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvti32tofpdown1(int x);
double2 __ocl_zorv_v8_cvti32tofpdown2(int2 x);
double4 __ocl_zorv_v8_cvti32tofpdown3(int4 x);
double4 __ocl_zorv_v8_cvti32tofpdown4(int4 x);
double8 __ocl_zorv_v8_cvti32tofpdown8(int8 x);
double16 __ocl_zorv_v8_cvti32tofpdown16(int16 x);

/* cvtfptou32rtnsatf: x as uint, rounded to nearest, ties to even. x: float; result: uint.
 * Clamped to the integer's range; NaN gives all ones, or 0 if its sign is set.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32rtnsatf1(float x);
uint2 __ocl_zorv_v8_cvtfptou32rtnsatf2(float2 x);
uint4 __ocl_zorv_v8_cvtfptou32rtnsatf3(float4 x);
uint4 __ocl_zorv_v8_cvtfptou32rtnsatf4(float4 x);
uint8 __ocl_zorv_v8_cvtfptou32rtnsatf8(float8 x);
uint16 __ocl_zorv_v8_cvtfptou32rtnsatf16(float16 x);

/* cvtfptou32rtnsat: x as uint, rounded to nearest, ties to even. x: double; result: uint.
 * Clamped to the integer's range; NaN gives all ones, or 0 if its sign is set.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32rtnsat1(double x);
uint2 __ocl_zorv_v8_cvtfptou32rtnsat2(double2 x);
uint4 __ocl_zorv_v8_cvtfptou32rtnsat3(double4 x);
uint4 __ocl_zorv_v8_cvtfptou32rtnsat4(double4 x);
uint8 __ocl_zorv_v8_cvtfptou32rtnsat8(double8 x);
uint16 __ocl_zorv_v8_cvtfptou32rtnsat16(double16 x);

/* cvtfptou32rtnnosatf: x as uint, rounded to nearest, ties to even. x: float; result: uint.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32rtnnosatf1(float x);
uint2 __ocl_zorv_v8_cvtfptou32rtnnosatf2(float2 x);
uint4 __ocl_zorv_v8_cvtfptou32rtnnosatf3(float4 x);
uint4 __ocl_zorv_v8_cvtfptou32rtnnosatf4(float4 x);
uint8 __ocl_zorv_v8_cvtfptou32rtnnosatf8(float8 x);
uint16 __ocl_zorv_v8_cvtfptou32rtnnosatf16(float16 x);

/* cvtfptou32rtnnosat: x as uint, rounded to nearest, ties to even. x: double; result: uint.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32rtnnosat1(double x);
uint2 __ocl_zorv_v8_cvtfptou32rtnnosat2(double2 x);
uint4 __ocl_zorv_v8_cvtfptou32rtnnosat3(double4 x);
uint4 __ocl_zorv_v8_cvtfptou32rtnnosat4(double4 x);
uint8 __ocl_zorv_v8_cvtfptou32rtnnosat8(double8 x);
uint16 __ocl_zorv_v8_cvtfptou32rtnnosat16(double16 x);

/* cvtu32tofprtnf: x, of uint lanes, as floating, rounded to nearest, ties to even. x: uint; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvtu32tofprtnf1(unsigned int x);
float2 __ocl_zorv_v8_cvtu32tofprtnf2(uint2 x);
float4 __ocl_zorv_v8_cvtu32tofprtnf3(uint4 x);
float4 __ocl_zorv_v8_cvtu32tofprtnf4(uint4 x);
float8 __ocl_zorv_v8_cvtu32tofprtnf8(uint8 x);
float16 __ocl_zorv_v8_cvtu32tofprtnf16(uint16 x);

/* cvtu32tofprtn: x, of uint lanes, as floating, rounded to nearest, ties to even. x: uint; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvtu32tofprtn1(unsigned int x);
double2 __ocl_zorv_v8_cvtu32tofprtn2(uint2 x);
double4 __ocl_zorv_v8_cvtu32tofprtn3(uint4 x);
double4 __ocl_zorv_v8_cvtu32tofprtn4(uint4 x);
double8 __ocl_zorv_v8_cvtu32tofprtn8(uint8 x);
double16 __ocl_zorv_v8_cvtu32tofprtn16(uint16 x);

/* cvtfptou32rtzsatf: x as uint, rounded toward zero. x: float; result: uint.
 * Clamped to the integer's range; NaN gives all ones, or 0 if its sign is set.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32rtzsatf1(float x);
uint2 __ocl_zorv_v8_cvtfptou32rtzsatf2(float2 x);
uint4 __ocl_zorv_v8_cvtfptou32rtzsatf3(float4 x);
uint4 __ocl_zorv_v8_cvtfptou32rtzsatf4(float4 x);
uint8 __ocl_zorv_v8_cvtfptou32rtzsatf8(float8 x);
uint16 __ocl_zorv_v8_cvtfptou32rtzsatf16(float16 x);

/* cvtfptou32rtzsat: x as uint, rounded toward zero. x: double; result: uint.
 * Clamped to the integer's range; NaN gives all ones, or 0 if its sign is set.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32rtzsat1(double x);
uint2 __ocl_zorv_v8_cvtfptou32rtzsat2(double2 x);
uint4 __ocl_zorv_v8_cvtfptou32rtzsat3(double4 x);
uint4 __ocl_zorv_v8_cvtfptou32rtzsat4(double4 x);
uint8 __ocl_zorv_v8_cvtfptou32rtzsat8(double8 x);
uint16 __ocl_zorv_v8_cvtfptou32rtzsat16(double16 x);

/* cvtfptou32rtznosatf: x as uint, rounded toward zero. x: float; result: uint.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32rtznosatf1(float x);
uint2 __ocl_zorv_v8_cvtfptou32rtznosatf2(float2 x);
uint4 __ocl_zorv_v8_cvtfptou32rtznosatf3(float4 x);
uint4 __ocl_zorv_v8_cvtfptou32rtznosatf4(float4 x);
uint8 __ocl_zorv_v8_cvtfptou32rtznosatf8(float8 x);
uint16 __ocl_zorv_v8_cvtfptou32rtznosatf16(float16 x);

/* cvtfptou32rtznosat: x as uint, rounded toward zero. x: double; result: uint.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32rtznosat1(double x);
uint2 __ocl_zorv_v8_cvtfptou32rtznosat2(double2 x);
uint4 __ocl_zorv_v8_cvtfptou32rtznosat3(double4 x);
uint4 __ocl_zorv_v8_cvtfptou32rtznosat4(double4 x);
uint8 __ocl_zorv_v8_cvtfptou32rtznosat8(double8 x);
uint16 __ocl_zorv_v8_cvtfptou32rtznosat16(double16 x);

/* cvtu32tofprtzf: x, of uint lanes, as floating, rounded toward zero. x: uint; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvtu32tofprtzf1(unsigned int x);
float2 __ocl_zorv_v8_cvtu32tofprtzf2(uint2 x);
float4 __ocl_zorv_v8_cvtu32tofprtzf3(uint4 x);
float4 __ocl_zorv_v8_cvtu32tofprtzf4(uint4 x);
float8 __ocl_zorv_v8_cvtu32tofprtzf8(uint8 x);
float16 __ocl_zorv_v8_cvtu32tofprtzf16(uint16 x);

/* cvtu32tofprtz: x, of uint lanes, as floating, rounded toward zero. x: uint; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvtu32tofprtz1(unsigned int x);
double2 __ocl_zorv_v8_cvtu32tofprtz2(uint2 x);
double4 __ocl_zorv_v8_cvtu32tofprtz3(uint4 x);
double4 __ocl_zorv_v8_cvtu32tofprtz4(uint4 x);
double8 __ocl_zorv_v8_cvtu32tofprtz8(uint8 x);
double16 __ocl_zorv_v8_cvtu32tofprtz16(uint16 x);

/* cvtfptou32upsatf: x as uint, rounded toward positive infinity. x: float; result: uint.
 * Clamped to the integer's range; NaN gives all ones, or 0 if its sign is set.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32upsatf1(float x);
uint2 __ocl_zorv_v8_cvtfptou32upsatf2(float2 x);
uint4 __ocl_zorv_v8_cvtfptou32upsatf3(float4 x);
uint4 __ocl_zorv_v8_cvtfptou32upsatf4(float4 x);
uint8 __ocl_zorv_v8_cvtfptou32upsatf8(float8 x);
uint16 __ocl_zorv_v8_cvtfptou32upsatf16(float16 x);

/* cvtfptou32upsat: x as uint, rounded toward positive infinity. x: double; result: uint.
 * Clamped to the integer's range; NaN gives all ones, or 0 if its sign is set.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32upsat1(double x);
uint2 __ocl_zorv_v8_cvtfptou32upsat2(double2 x);
uint4 __ocl_zorv_v8_cvtfptou32upsat3(double4 x);
uint4 __ocl_zorv_v8_cvtfptou32upsat4(double4 x);
uint8 __ocl_zorv_v8_cvtfptou32upsat8(double8 x);
uint16 __ocl_zorv_v8_cvtfptou32upsat16(double16 x);

/* cvtfptou32upnosatf: x as uint, rounded toward positive infinity. x: float; result: uint.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32upnosatf1(float x);
uint2 __ocl_zorv_v8_cvtfptou32upnosatf2(float2 x);
uint4 __ocl_zorv_v8_cvtfptou32upnosatf3(float4 x);
uint4 __ocl_zorv_v8_cvtfptou32upnosatf4(float4 x);
uint8 __ocl_zorv_v8_cvtfptou32upnosatf8(float8 x);
uint16 __ocl_zorv_v8_cvtfptou32upnosatf16(float16 x);

/* cvtfptou32upnosat: x as uint, rounded toward positive infinity. x: double; result: uint.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32upnosat1(double x);
uint2 __ocl_zorv_v8_cvtfptou32upnosat2(double2 x);
uint4 __ocl_zorv_v8_cvtfptou32upnosat3(double4 x);
uint4 __ocl_zorv_v8_cvtfptou32upnosat4(double4 x);
uint8 __ocl_zorv_v8_cvtfptou32upnosat8(double8 x);
uint16 __ocl_zorv_v8_cvtfptou32upnosat16(double16 x);

/* cvtu32tofpupf: x, of uint lanes, as floating, rounded toward positive infinity. x: uint; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvtu32tofpupf1(unsigned int x);
float2 __ocl_zorv_v8_cvtu32tofpupf2(uint2 x);
float4 __ocl_zorv_v8_cvtu32tofpupf3(uint4 x);
float4 __ocl_zorv_v8_cvtu32tofpupf4(uint4 x);
float8 __ocl_zorv_v8_cvtu32tofpupf8(uint8 x);
float16 __ocl_zorv_v8_cvtu32tofpupf16(uint16 x);

/* cvtu32tofpup: x, of uint lanes, as floating, rounded toward positive infinity. x: uint; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvtu32tofpup1(unsigned int x);
double2 __ocl_zorv_v8_cvtu32tofpup2(uint2 x);
double4 __ocl_zorv_v8_cvtu32tofpup3(uint4 x);
double4 __ocl_zorv_v8_cvtu32tofpup4(uint4 x);
double8 __ocl_zorv_v8_cvtu32tofpup8(uint8 x);
double16 __ocl_zorv_v8_cvtu32tofpup16(uint16 x);

/* cvtfptou32downsatf: x as uint, rounded toward negative infinity. x: float; result: uint.
 * Clamped to the integer's range; NaN gives all ones, or 0 if its sign is set.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32downsatf1(float x);
uint2 __ocl_zorv_v8_cvtfptou32downsatf2(float2 x);
uint4 __ocl_zorv_v8_cvtfptou32downsatf3(float4 x);
uint4 __ocl_zorv_v8_cvtfptou32downsatf4(float4 x);
uint8 __ocl_zorv_v8_cvtfptou32downsatf8(float8 x);
uint16 __ocl_zorv_v8_cvtfptou32downsatf16(float16 x);

/* cvtfptou32downsat: x as uint, rounded toward negative infinity. x: double; result: uint.
 * Clamped to the integer's range; NaN gives all ones, or 0 if its sign is set.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32downsat1(double x);
uint2 __ocl_zorv_v8_cvtfptou32downsat2(double2 x);
uint4 __ocl_zorv_v8_cvtfptou32downsat3(double4 x);
uint4 __ocl_zorv_v8_cvtfptou32downsat4(double4 x);
uint8 __ocl_zorv_v8_cvtfptou32downsat8(double8 x);
uint16 __ocl_zorv_v8_cvtfptou32downsat16(double16 x);

/* cvtfptou32downnosatf: x as uint, rounded toward negative infinity. x: float; result: uint.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32downnosatf1(float x);
uint2 __ocl_zorv_v8_cvtfptou32downnosatf2(float2 x);
uint4 __ocl_zorv_v8_cvtfptou32downnosatf3(float4 x);
uint4 __ocl_zorv_v8_cvtfptou32downnosatf4(float4 x);
uint8 __ocl_zorv_v8_cvtfptou32downnosatf8(float8 x);
uint16 __ocl_zorv_v8_cvtfptou32downnosatf16(float16 x);

/* cvtfptou32downnosat: x as uint, rounded toward negative infinity. x: double; result: uint.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
unsigned int __ocl_zorv_v8_cvtfptou32downnosat1(double x);
uint2 __ocl_zorv_v8_cvtfptou32downnosat2(double2 x);
uint4 __ocl_zorv_v8_cvtfptou32downnosat3(double4 x);
uint4 __ocl_zorv_v8_cvtfptou32downnosat4(double4 x);
uint8 __ocl_zorv_v8_cvtfptou32downnosat8(double8 x);
uint16 __ocl_zorv_v8_cvtfptou32downnosat16(double16 x);

/* cvtu32tofpdownf: x, of uint lanes, as floating, rounded toward negative infinity. x: uint; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvtu32tofpdownf1(unsigned int x);
float2 __ocl_zorv_v8_cvtu32tofpdownf2(uint2 x);
float4 __ocl_zorv_v8_cvtu32tofpdownf3(uint4 x);
float4 __ocl_zorv_v8_cvtu32tofpdownf4(uint4 x);
float8 __ocl_zorv_v8_cvtu32tofpdownf8(uint8 x);
float16 __ocl_zorv_v8_cvtu32tofpdownf16(uint16 x);

/* cvtu32tofpdown: x, of uint lanes, as floating, rounded toward negative infinity. x: uint; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvtu32tofpdown1(unsigned int x);
double2 __ocl_zorv_v8_cvtu32tofpdown2(uint2 x);
double4 __ocl_zorv_v8_cvtu32tofpdown3(uint4 x);
double4 __ocl_zorv_v8_cvtu32tofpdown4(uint4 x);
double8 __ocl_zorv_v8_cvtu32tofpdown8(uint8 x);
double16 __ocl_zorv_v8_cvtu32tofpdown16(uint16 x);

/* cvtfptoi64rtnsatf: x as long, rounded to nearest, ties to even. x: float; result: long.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64rtnsatf1(float x);
long2 __ocl_zorv_v8_cvtfptoi64rtnsatf2(float2 x);
long4 __ocl_zorv_v8_cvtfptoi64rtnsatf3(float4 x);
long4 __ocl_zorv_v8_cvtfptoi64rtnsatf4(float4 x);
long8 __ocl_zorv_v8_cvtfptoi64rtnsatf8(float8 x);
long16 __ocl_zorv_v8_cvtfptoi64rtnsatf16(float16 x);

/* cvtfptoi64rtnsat: x as long, rounded to nearest, ties to even. x: double; result: long.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64rtnsat1(double x);
long2 __ocl_zorv_v8_cvtfptoi64rtnsat2(double2 x);
long4 __ocl_zorv_v8_cvtfptoi64rtnsat3(double4 x);
long4 __ocl_zorv_v8_cvtfptoi64rtnsat4(double4 x);
long8 __ocl_zorv_v8_cvtfptoi64rtnsat8(double8 x);
long16 __ocl_zorv_v8_cvtfptoi64rtnsat16(double16 x);

/* cvtfptoi64rtnnosatf: x as long, rounded to nearest, ties to even. x: float; result: long.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64rtnnosatf1(float x);
long2 __ocl_zorv_v8_cvtfptoi64rtnnosatf2(float2 x);
long4 __ocl_zorv_v8_cvtfptoi64rtnnosatf3(float4 x);
long4 __ocl_zorv_v8_cvtfptoi64rtnnosatf4(float4 x);
long8 __ocl_zorv_v8_cvtfptoi64rtnnosatf8(float8 x);
long16 __ocl_zorv_v8_cvtfptoi64rtnnosatf16(float16 x);

/* cvtfptoi64rtnnosat: x as long, rounded to nearest, ties to even. x: double; result: long.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64rtnnosat1(double x);
long2 __ocl_zorv_v8_cvtfptoi64rtnnosat2(double2 x);
long4 __ocl_zorv_v8_cvtfptoi64rtnnosat3(double4 x);
long4 __ocl_zorv_v8_cvtfptoi64rtnnosat4(double4 x);
long8 __ocl_zorv_v8_cvtfptoi64rtnnosat8(double8 x);
long16 __ocl_zorv_v8_cvtfptoi64rtnnosat16(double16 x);

/* cvti64tofprtnf: x, of long lanes, as floating, rounded to nearest, ties to even. x: long; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvti64tofprtnf1(__INT64_TYPE__ x);
float2 __ocl_zorv_v8_cvti64tofprtnf2(long2 x);
float4 __ocl_zorv_v8_cvti64tofprtnf3(long4 x);
float4 __ocl_zorv_v8_cvti64tofprtnf4(long4 x);
float8 __ocl_zorv_v8_cvti64tofprtnf8(long8 x);
float16 __ocl_zorv_v8_cvti64tofprtnf16(long16 x);

/* cvti64tofprtn: x, of long lanes, as floating, rounded to nearest, ties to even. x: long; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvti64tofprtn1(__INT64_TYPE__ x);
double2 __ocl_zorv_v8_cvti64tofprtn2(long2 x);
double4 __ocl_zorv_v8_cvti64tofprtn3(long4 x);
double4 __ocl_zorv_v8_cvti64tofprtn4(long4 x);
double8 __ocl_zorv_v8_cvti64tofprtn8(long8 x);
double16 __ocl_zorv_v8_cvti64tofprtn16(long16 x);

/* cvtfptoi64rtzsatf: x as long, rounded toward zero. x: float; result: long.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64rtzsatf1(float x);
long2 __ocl_zorv_v8_cvtfptoi64rtzsatf2(float2 x);
long4 __ocl_zorv_v8_cvtfptoi64rtzsatf3(float4 x);
long4 __ocl_zorv_v8_cvtfptoi64rtzsatf4(float4 x);
long8 __ocl_zorv_v8_cvtfptoi64rtzsatf8(float8 x);
long16 __ocl_zorv_v8_cvtfptoi64rtzsatf16(float16 x);

/* cvtfptoi64rtzsat: x as long, rounded toward zero. x: double; result: long.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64rtzsat1(double x);
long2 __ocl_zorv_v8_cvtfptoi64rtzsat2(double2 x);
long4 __ocl_zorv_v8_cvtfptoi64rtzsat3(double4 x);
long4 __ocl_zorv_v8_cvtfptoi64rtzsat4(double4 x);
long8 __ocl_zorv_v8_cvtfptoi64rtzsat8(double8 x);
long16 __ocl_zorv_v8_cvtfptoi64rtzsat16(double16 x);

/* cvtfptoi64rtznosatf: x as long, rounded toward zero. x: float; result: long.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64rtznosatf1(float x);
long2 __ocl_zorv_v8_cvtfptoi64rtznosatf2(float2 x);
long4 __ocl_zorv_v8_cvtfptoi64rtznosatf3(float4 x);
long4 __ocl_zorv_v8_cvtfptoi64rtznosatf4(float4 x);
long8 __ocl_zorv_v8_cvtfptoi64rtznosatf8(float8 x);
long16 __ocl_zorv_v8_cvtfptoi64rtznosatf16(float16 x);

/* cvtfptoi64rtznosat: x as long, rounded toward zero. x: double; result: long.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64rtznosat1(double x);
long2 __ocl_zorv_v8_cvtfptoi64rtznosat2(double2 x);
long4 __ocl_zorv_v8_cvtfptoi64rtznosat3(double4 x);
long4 __ocl_zorv_v8_cvtfptoi64rtznosat4(double4 x);
long8 __ocl_zorv_v8_cvtfptoi64rtznosat8(double8 x);
long16 __ocl_zorv_v8_cvtfptoi64rtznosat16(double16 x);

/* cvti64tofprtzf: x, of long lanes, as floating, rounded toward zero. x: long; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvti64tofprtzf1(__INT64_TYPE__ x);
float2 __ocl_zorv_v8_cvti64tofprtzf2(long2 x);
float4 __ocl_zorv_v8_cvti64tofprtzf3(long4 x);
float4 __ocl_zorv_v8_cvti64tofprtzf4(long4 x);
float8 __ocl_zorv_v8_cvti64tofprtzf8(long8 x);
float16 __ocl_zorv_v8_cvti64tofprtzf16(long16 x);

/* cvti64tofprtz: x, of long lanes, as floating, rounded toward zero. x: long; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvti64tofprtz1(__INT64_TYPE__ x);
double2 __ocl_zorv_v8_cvti64tofprtz2(long2 x);
double4 __ocl_zorv_v8_cvti64tofprtz3(long4 x);
double4 __ocl_zorv_v8_cvti64tofprtz4(long4 x);
double8 __ocl_zorv_v8_cvti64tofprtz8(long8 x);
double16 __ocl_zorv_v8_cvti64tofprtz16(long16 x);

/* cvtfptoi64upsatf: x as long, rounded toward positive infinity. x: float; result: long.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64upsatf1(float x);
long2 __ocl_zorv_v8_cvtfptoi64upsatf2(float2 x);
long4 __ocl_zorv_v8_cvtfptoi64upsatf3(float4 x);
long4 __ocl_zorv_v8_cvtfptoi64upsatf4(float4 x);
long8 __ocl_zorv_v8_cvtfptoi64upsatf8(float8 x);
long16 __ocl_zorv_v8_cvtfptoi64upsatf16(float16 x);

/* cvtfptoi64upsat: x as long, rounded toward positive infinity. x: double; result: long.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64upsat1(double x);
long2 __ocl_zorv_v8_cvtfptoi64upsat2(double2 x);
long4 __ocl_zorv_v8_cvtfptoi64upsat3(double4 x);
long4 __ocl_zorv_v8_cvtfptoi64upsat4(double4 x);
long8 __ocl_zorv_v8_cvtfptoi64upsat8(double8 x);
long16 __ocl_zorv_v8_cvtfptoi64upsat16(double16 x);

/* cvtfptoi64upnosatf: x as long, rounded toward positive infinity. x: float; result: long.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64upnosatf1(float x);
long2 __ocl_zorv_v8_cvtfptoi64upnosatf2(float2 x);
long4 __ocl_zorv_v8_cvtfptoi64upnosatf3(float4 x);
long4 __ocl_zorv_v8_cvtfptoi64upnosatf4(float4 x);
long8 __ocl_zorv_v8_cvtfptoi64upnosatf8(float8 x);
long16 __ocl_zorv_v8_cvtfptoi64upnosatf16(float16 x);

/* cvtfptoi64upnosat: x as long, rounded toward positive infinity. x: double; result: long.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64upnosat1(double x);
long2 __ocl_zorv_v8_cvtfptoi64upnosat2(double2 x);
long4 __ocl_zorv_v8_cvtfptoi64upnosat3(double4 x);
long4 __ocl_zorv_v8_cvtfptoi64upnosat4(double4 x);
long8 __ocl_zorv_v8_cvtfptoi64upnosat8(double8 x);
long16 __ocl_zorv_v8_cvtfptoi64upnosat16(double16 x);

/* cvti64tofpupf: x, of long lanes, as floating, rounded toward positive infinity. x: long; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvti64tofpupf1(__INT64_TYPE__ x);
float2 __ocl_zorv_v8_cvti64tofpupf2(long2 x);
float4 __ocl_zorv_v8_cvti64tofpupf3(long4 x);
float4 __ocl_zorv_v8_cvti64tofpupf4(long4 x);
float8 __ocl_zorv_v8_cvti64tofpupf8(long8 x);
float16 __ocl_zorv_v8_cvti64tofpupf16(long16 x);

/* cvti64tofpup: x, of long lanes, as floating, rounded toward positive infinity. x: long; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvti64tofpup1(__INT64_TYPE__ x);
double2 __ocl_zorv_v8_cvti64tofpup2(long2 x);
double4 __ocl_zorv_v8_cvti64tofpup3(long4 x);
double4 __ocl_zorv_v8_cvti64tofpup4(long4 x);
double8 __ocl_zorv_v8_cvti64tofpup8(long8 x);
double16 __ocl_zorv_v8_cvti64tofpup16(long16 x);

/* cvtfptoi64downsatf: x as long, rounded toward negative infinity. x: float; result: long.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64downsatf1(float x);
long2 __ocl_zorv_v8_cvtfptoi64downsatf2(float2 x);
long4 __ocl_zorv_v8_cvtfptoi64downsatf3(float4 x);
long4 __ocl_zorv_v8_cvtfptoi64downsatf4(float4 x);
long8 __ocl_zorv_v8_cvtfptoi64downsatf8(float8 x);
long16 __ocl_zorv_v8_cvtfptoi64downsatf16(float16 x);

/* cvtfptoi64downsat: x as long, rounded toward negative infinity. x: double; result: long.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64downsat1(double x);
long2 __ocl_zorv_v8_cvtfptoi64downsat2(double2 x);
long4 __ocl_zorv_v8_cvtfptoi64downsat3(double4 x);
long4 __ocl_zorv_v8_cvtfptoi64downsat4(double4 x);
long8 __ocl_zorv_v8_cvtfptoi64downsat8(double8 x);
long16 __ocl_zorv_v8_cvtfptoi64downsat16(double16 x);

/* cvtfptoi64downnosatf: x as long, rounded toward negative infinity. x: float; result: long.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64downnosatf1(float x);
long2 __ocl_zorv_v8_cvtfptoi64downnosatf2(float2 x);
long4 __ocl_zorv_v8_cvtfptoi64downnosatf3(float4 x);
long4 __ocl_zorv_v8_cvtfptoi64downnosatf4(float4 x);
long8 __ocl_zorv_v8_cvtfptoi64downnosatf8(float8 x);
long16 __ocl_zorv_v8_cvtfptoi64downnosatf16(float16 x);

/* cvtfptoi64downnosat: x as long, rounded toward negative infinity. x: double; result: long.
 * Out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__INT64_TYPE__ __ocl_zorv_v8_cvtfptoi64downnosat1(double x);
long2 __ocl_zorv_v8_cvtfptoi64downnosat2(double2 x);
long4 __ocl_zorv_v8_cvtfptoi64downnosat3(double4 x);
long4 __ocl_zorv_v8_cvtfptoi64downnosat4(double4 x);
long8 __ocl_zorv_v8_cvtfptoi64downnosat8(double8 x);
long16 __ocl_zorv_v8_cvtfptoi64downnosat16(double16 x);

/* cvti64tofpdownf: x, of long lanes, as floating, rounded toward negative infinity. x: long; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvti64tofpdownf1(__INT64_TYPE__ x);
float2 __ocl_zorv_v8_cvti64tofpdownf2(long2 x);
float4 __ocl_zorv_v8_cvti64tofpdownf3(long4 x);
float4 __ocl_zorv_v8_cvti64tofpdownf4(long4 x);
float8 __ocl_zorv_v8_cvti64tofpdownf8(long8 x);
float16 __ocl_zorv_v8_cvti64tofpdownf16(long16 x);

/* cvti64tofpdown: x, of long lanes, as floating, rounded toward negative infinity. x: long; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvti64tofpdown1(__INT64_TYPE__ x);
double2 __ocl_zorv_v8_cvti64tofpdown2(long2 x);
double4 __ocl_zorv_v8_cvti64tofpdown3(long4 x);
double4 __ocl_zorv_v8_cvti64tofpdown4(long4 x);
double8 __ocl_zorv_v8_cvti64tofpdown8(long8 x);
double16 __ocl_zorv_v8_cvti64tofpdown16(long16 x);

/* cvtfptou64rtnsatf: x as ulong, rounded to nearest, ties to even. x: float; result: ulong.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64rtnsatf1(float x);
ulong2 __ocl_zorv_v8_cvtfptou64rtnsatf2(float2 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtnsatf3(float4 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtnsatf4(float4 x);
ulong8 __ocl_zorv_v8_cvtfptou64rtnsatf8(float8 x);
ulong16 __ocl_zorv_v8_cvtfptou64rtnsatf16(float16 x);

/* cvtfptou64rtnsat: x as ulong, rounded to nearest, ties to even. x: double; result: ulong.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64rtnsat1(double x);
ulong2 __ocl_zorv_v8_cvtfptou64rtnsat2(double2 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtnsat3(double4 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtnsat4(double4 x);
ulong8 __ocl_zorv_v8_cvtfptou64rtnsat8(double8 x);
ulong16 __ocl_zorv_v8_cvtfptou64rtnsat16(double16 x);

/* cvtfptou64rtnnosatf: x as ulong, rounded to nearest, ties to even. x: float; result: ulong.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64rtnnosatf1(float x);
ulong2 __ocl_zorv_v8_cvtfptou64rtnnosatf2(float2 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtnnosatf3(float4 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtnnosatf4(float4 x);
ulong8 __ocl_zorv_v8_cvtfptou64rtnnosatf8(float8 x);
ulong16 __ocl_zorv_v8_cvtfptou64rtnnosatf16(float16 x);

/* cvtfptou64rtnnosat: x as ulong, rounded to nearest, ties to even. x: double; result: ulong.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64rtnnosat1(double x);
ulong2 __ocl_zorv_v8_cvtfptou64rtnnosat2(double2 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtnnosat3(double4 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtnnosat4(double4 x);
ulong8 __ocl_zorv_v8_cvtfptou64rtnnosat8(double8 x);
ulong16 __ocl_zorv_v8_cvtfptou64rtnnosat16(double16 x);

/* cvtu64tofprtnf: x, of ulong lanes, as floating, rounded to nearest, ties to even. x: ulong; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvtu64tofprtnf1(__UINT64_TYPE__ x);
float2 __ocl_zorv_v8_cvtu64tofprtnf2(ulong2 x);
float4 __ocl_zorv_v8_cvtu64tofprtnf3(ulong4 x);
float4 __ocl_zorv_v8_cvtu64tofprtnf4(ulong4 x);
float8 __ocl_zorv_v8_cvtu64tofprtnf8(ulong8 x);
float16 __ocl_zorv_v8_cvtu64tofprtnf16(ulong16 x);

/* cvtu64tofprtn: x, of ulong lanes, as floating, rounded to nearest, ties to even. x: ulong; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvtu64tofprtn1(__UINT64_TYPE__ x);
double2 __ocl_zorv_v8_cvtu64tofprtn2(ulong2 x);
double4 __ocl_zorv_v8_cvtu64tofprtn3(ulong4 x);
double4 __ocl_zorv_v8_cvtu64tofprtn4(ulong4 x);
double8 __ocl_zorv_v8_cvtu64tofprtn8(ulong8 x);
double16 __ocl_zorv_v8_cvtu64tofprtn16(ulong16 x);

/* cvtfptou64rtzsatf: x as ulong, rounded toward zero. x: float; result: ulong.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64rtzsatf1(float x);
ulong2 __ocl_zorv_v8_cvtfptou64rtzsatf2(float2 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtzsatf3(float4 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtzsatf4(float4 x);
ulong8 __ocl_zorv_v8_cvtfptou64rtzsatf8(float8 x);
ulong16 __ocl_zorv_v8_cvtfptou64rtzsatf16(float16 x);

/* cvtfptou64rtzsat: x as ulong, rounded toward zero. x: double; result: ulong.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64rtzsat1(double x);
ulong2 __ocl_zorv_v8_cvtfptou64rtzsat2(double2 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtzsat3(double4 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtzsat4(double4 x);
ulong8 __ocl_zorv_v8_cvtfptou64rtzsat8(double8 x);
ulong16 __ocl_zorv_v8_cvtfptou64rtzsat16(double16 x);

/* cvtfptou64rtznosatf: x as ulong, rounded toward zero. x: float; result: ulong.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64rtznosatf1(float x);
ulong2 __ocl_zorv_v8_cvtfptou64rtznosatf2(float2 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtznosatf3(float4 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtznosatf4(float4 x);
ulong8 __ocl_zorv_v8_cvtfptou64rtznosatf8(float8 x);
ulong16 __ocl_zorv_v8_cvtfptou64rtznosatf16(float16 x);

/* cvtfptou64rtznosat: x as ulong, rounded toward zero. x: double; result: ulong.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64rtznosat1(double x);
ulong2 __ocl_zorv_v8_cvtfptou64rtznosat2(double2 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtznosat3(double4 x);
ulong4 __ocl_zorv_v8_cvtfptou64rtznosat4(double4 x);
ulong8 __ocl_zorv_v8_cvtfptou64rtznosat8(double8 x);
ulong16 __ocl_zorv_v8_cvtfptou64rtznosat16(double16 x);

/* cvtu64tofprtzf: x, of ulong lanes, as floating, rounded toward zero. x: ulong; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvtu64tofprtzf1(__UINT64_TYPE__ x);
float2 __ocl_zorv_v8_cvtu64tofprtzf2(ulong2 x);
float4 __ocl_zorv_v8_cvtu64tofprtzf3(ulong4 x);
float4 __ocl_zorv_v8_cvtu64tofprtzf4(ulong4 x);
float8 __ocl_zorv_v8_cvtu64tofprtzf8(ulong8 x);
float16 __ocl_zorv_v8_cvtu64tofprtzf16(ulong16 x);

/* cvtu64tofprtz: x, of ulong lanes, as floating, rounded toward zero. x: ulong; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvtu64tofprtz1(__UINT64_TYPE__ x);
double2 __ocl_zorv_v8_cvtu64tofprtz2(ulong2 x);
double4 __ocl_zorv_v8_cvtu64tofprtz3(ulong4 x);
double4 __ocl_zorv_v8_cvtu64tofprtz4(ulong4 x);
double8 __ocl_zorv_v8_cvtu64tofprtz8(ulong8 x);
double16 __ocl_zorv_v8_cvtu64tofprtz16(ulong16 x);

/* cvtfptou64upsatf: x as ulong, rounded toward positive infinity. x: float; result: ulong.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64upsatf1(float x);
ulong2 __ocl_zorv_v8_cvtfptou64upsatf2(float2 x);
ulong4 __ocl_zorv_v8_cvtfptou64upsatf3(float4 x);
ulong4 __ocl_zorv_v8_cvtfptou64upsatf4(float4 x);
ulong8 __ocl_zorv_v8_cvtfptou64upsatf8(float8 x);
ulong16 __ocl_zorv_v8_cvtfptou64upsatf16(float16 x);

/* cvtfptou64upsat: x as ulong, rounded toward positive infinity. x: double; result: ulong.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64upsat1(double x);
ulong2 __ocl_zorv_v8_cvtfptou64upsat2(double2 x);
ulong4 __ocl_zorv_v8_cvtfptou64upsat3(double4 x);
ulong4 __ocl_zorv_v8_cvtfptou64upsat4(double4 x);
ulong8 __ocl_zorv_v8_cvtfptou64upsat8(double8 x);
ulong16 __ocl_zorv_v8_cvtfptou64upsat16(double16 x);

/* cvtfptou64upnosatf: x as ulong, rounded toward positive infinity. x: float; result: ulong.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64upnosatf1(float x);
ulong2 __ocl_zorv_v8_cvtfptou64upnosatf2(float2 x);
ulong4 __ocl_zorv_v8_cvtfptou64upnosatf3(float4 x);
ulong4 __ocl_zorv_v8_cvtfptou64upnosatf4(float4 x);
ulong8 __ocl_zorv_v8_cvtfptou64upnosatf8(float8 x);
ulong16 __ocl_zorv_v8_cvtfptou64upnosatf16(float16 x);

/* cvtfptou64upnosat: x as ulong, rounded toward positive infinity. x: double; result: ulong.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64upnosat1(double x);
ulong2 __ocl_zorv_v8_cvtfptou64upnosat2(double2 x);
ulong4 __ocl_zorv_v8_cvtfptou64upnosat3(double4 x);
ulong4 __ocl_zorv_v8_cvtfptou64upnosat4(double4 x);
ulong8 __ocl_zorv_v8_cvtfptou64upnosat8(double8 x);
ulong16 __ocl_zorv_v8_cvtfptou64upnosat16(double16 x);

/* cvtu64tofpupf: x, of ulong lanes, as floating, rounded toward positive infinity. x: ulong; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvtu64tofpupf1(__UINT64_TYPE__ x);
float2 __ocl_zorv_v8_cvtu64tofpupf2(ulong2 x);
float4 __ocl_zorv_v8_cvtu64tofpupf3(ulong4 x);
float4 __ocl_zorv_v8_cvtu64tofpupf4(ulong4 x);
float8 __ocl_zorv_v8_cvtu64tofpupf8(ulong8 x);
float16 __ocl_zorv_v8_cvtu64tofpupf16(ulong16 x);

/* cvtu64tofpup: x, of ulong lanes, as floating, rounded toward positive infinity. x: ulong; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvtu64tofpup1(__UINT64_TYPE__ x);
double2 __ocl_zorv_v8_cvtu64tofpup2(ulong2 x);
double4 __ocl_zorv_v8_cvtu64tofpup3(ulong4 x);
double4 __ocl_zorv_v8_cvtu64tofpup4(ulong4 x);
double8 __ocl_zorv_v8_cvtu64tofpup8(ulong8 x);
double16 __ocl_zorv_v8_cvtu64tofpup16(ulong16 x);

/* cvtfptou64downsatf: x as ulong, rounded toward negative infinity. x: float; result: ulong.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64downsatf1(float x);
ulong2 __ocl_zorv_v8_cvtfptou64downsatf2(float2 x);
ulong4 __ocl_zorv_v8_cvtfptou64downsatf3(float4 x);
ulong4 __ocl_zorv_v8_cvtfptou64downsatf4(float4 x);
ulong8 __ocl_zorv_v8_cvtfptou64downsatf8(float8 x);
ulong16 __ocl_zorv_v8_cvtfptou64downsatf16(float16 x);

/* cvtfptou64downsat: x as ulong, rounded toward negative infinity. x: double; result: ulong.
 * Clamped to the integer's range; NaN gives 0.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64downsat1(double x);
ulong2 __ocl_zorv_v8_cvtfptou64downsat2(double2 x);
ulong4 __ocl_zorv_v8_cvtfptou64downsat3(double4 x);
ulong4 __ocl_zorv_v8_cvtfptou64downsat4(double4 x);
ulong8 __ocl_zorv_v8_cvtfptou64downsat8(double8 x);
ulong16 __ocl_zorv_v8_cvtfptou64downsat16(double16 x);

/* cvtfptou64downnosatf: x as ulong, rounded toward negative infinity. x: float; result: ulong.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64downnosatf1(float x);
ulong2 __ocl_zorv_v8_cvtfptou64downnosatf2(float2 x);
ulong4 __ocl_zorv_v8_cvtfptou64downnosatf3(float4 x);
ulong4 __ocl_zorv_v8_cvtfptou64downnosatf4(float4 x);
ulong8 __ocl_zorv_v8_cvtfptou64downnosatf8(float8 x);
ulong16 __ocl_zorv_v8_cvtfptou64downnosatf16(float16 x);

/* cvtfptou64downnosat: x as ulong, rounded toward negative infinity. x: double; result: ulong.
 * The sign is dropped after rounding; out of range and NaN give the lowest signed integer's pattern.
 * Error: none, the value rounded as told.
 * Rounded by a shifter, then converted exactly. */
__UINT64_TYPE__ __ocl_zorv_v8_cvtfptou64downnosat1(double x);
ulong2 __ocl_zorv_v8_cvtfptou64downnosat2(double2 x);
ulong4 __ocl_zorv_v8_cvtfptou64downnosat3(double4 x);
ulong4 __ocl_zorv_v8_cvtfptou64downnosat4(double4 x);
ulong8 __ocl_zorv_v8_cvtfptou64downnosat8(double8 x);
ulong16 __ocl_zorv_v8_cvtfptou64downnosat16(double16 x);

/* cvtu64tofpdownf: x, of ulong lanes, as floating, rounded toward negative infinity. x: ulong; result: float.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
float __ocl_zorv_v8_cvtu64tofpdownf1(__UINT64_TYPE__ x);
float2 __ocl_zorv_v8_cvtu64tofpdownf2(ulong2 x);
float4 __ocl_zorv_v8_cvtu64tofpdownf3(ulong4 x);
float4 __ocl_zorv_v8_cvtu64tofpdownf4(ulong4 x);
float8 __ocl_zorv_v8_cvtu64tofpdownf8(ulong8 x);
float16 __ocl_zorv_v8_cvtu64tofpdownf16(ulong16 x);

/* cvtu64tofpdown: x, of ulong lanes, as floating, rounded toward negative infinity. x: ulong; result: double.
 * Every integer has a result; 0 gives +0.
 * Error: none, the value rounded as told.
 * Exact pieces, one rounded sum, a step on its bits where the rounding asks for one. */
double __ocl_zorv_v8_cvtu64tofpdown1(__UINT64_TYPE__ x);
double2 __ocl_zorv_v8_cvtu64tofpdown2(ulong2 x);
double4 __ocl_zorv_v8_cvtu64tofpdown3(ulong4 x);
double4 __ocl_zorv_v8_cvtu64tofpdown4(ulong4 x);
double8 __ocl_zorv_v8_cvtu64tofpdown8(ulong8 x);
double16 __ocl_zorv_v8_cvtu64tofpdown16(ulong16 x);

#ifdef __cplusplus
#pragma clang diagnostic pop
}
#endif

#endif
