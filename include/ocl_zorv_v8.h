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
 * Error: 0.82 ulp at most.
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
 * Error: 0.99 ulp at most.
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

#ifdef __cplusplus
#pragma clang diagnostic pop
}
#endif

#endif
