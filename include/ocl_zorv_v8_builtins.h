/* OpenCL C built-ins as overloads that call the library: include this before a kernel, and the kernel needs
 * no change. Built-ins that the library does not serve yet are not declared.
 *
 * Written by tools/grid_outputs.cpp from the grid; do not edit.
 */
#ifndef OCL_ZORV_V8_BUILTINS_H
#define OCL_ZORV_V8_BUILTINS_H

#include "ocl_zorv_v8.h"

#define OVERLOAD static inline __attribute__((overloadable, always_inline))

/* invf_native */
OVERLOAD float native_recip(float x) { return __ocl_zorv_v8_invf1_native(x); }
OVERLOAD float2 native_recip(float2 x) { return __ocl_zorv_v8_invf2_native(x); }
OVERLOAD float3 native_recip(float3 x) { return (__ocl_zorv_v8_invf3_native(x.xyzz)).xyz; }
OVERLOAD float4 native_recip(float4 x) { return __ocl_zorv_v8_invf4_native(x); }
OVERLOAD float8 native_recip(float8 x) { return __ocl_zorv_v8_invf8_native(x); }
OVERLOAD float16 native_recip(float16 x) { return __ocl_zorv_v8_invf16_native(x); }

/* inv_native */
OVERLOAD double native_recip(double x) { return __ocl_zorv_v8_inv1_native(x); }
OVERLOAD double2 native_recip(double2 x) { return __ocl_zorv_v8_inv2_native(x); }
OVERLOAD double3 native_recip(double3 x) { return (__ocl_zorv_v8_inv3_native(x.xyzz)).xyz; }
OVERLOAD double4 native_recip(double4 x) { return __ocl_zorv_v8_inv4_native(x); }
OVERLOAD double8 native_recip(double8 x) { return __ocl_zorv_v8_inv8_native(x); }
OVERLOAD double16 native_recip(double16 x) { return __ocl_zorv_v8_inv16_native(x); }

/* divf_native */
OVERLOAD float native_divide(float x, float y) { return __ocl_zorv_v8_divf1_native(x, y); }
OVERLOAD float2 native_divide(float2 x, float2 y) { return __ocl_zorv_v8_divf2_native(x, y); }
OVERLOAD float3 native_divide(float3 x, float3 y) { return (__ocl_zorv_v8_divf3_native(x.xyzz, y.xyzz)).xyz; }
OVERLOAD float4 native_divide(float4 x, float4 y) { return __ocl_zorv_v8_divf4_native(x, y); }
OVERLOAD float8 native_divide(float8 x, float8 y) { return __ocl_zorv_v8_divf8_native(x, y); }
OVERLOAD float16 native_divide(float16 x, float16 y) { return __ocl_zorv_v8_divf16_native(x, y); }

/* div_native */
OVERLOAD double native_divide(double x, double y) { return __ocl_zorv_v8_div1_native(x, y); }
OVERLOAD double2 native_divide(double2 x, double2 y) { return __ocl_zorv_v8_div2_native(x, y); }
OVERLOAD double3 native_divide(double3 x, double3 y) { return (__ocl_zorv_v8_div3_native(x.xyzz, y.xyzz)).xyz; }
OVERLOAD double4 native_divide(double4 x, double4 y) { return __ocl_zorv_v8_div4_native(x, y); }
OVERLOAD double8 native_divide(double8 x, double8 y) { return __ocl_zorv_v8_div8_native(x, y); }
OVERLOAD double16 native_divide(double16 x, double16 y) { return __ocl_zorv_v8_div16_native(x, y); }

/* sqrtf */
OVERLOAD float sqrt(float x) { return __ocl_zorv_v8_sqrtf1(x); }
OVERLOAD float2 sqrt(float2 x) { return __ocl_zorv_v8_sqrtf2(x); }
OVERLOAD float3 sqrt(float3 x) { return (__ocl_zorv_v8_sqrtf3(x.xyzz)).xyz; }
OVERLOAD float4 sqrt(float4 x) { return __ocl_zorv_v8_sqrtf4(x); }
OVERLOAD float8 sqrt(float8 x) { return __ocl_zorv_v8_sqrtf8(x); }
OVERLOAD float16 sqrt(float16 x) { return __ocl_zorv_v8_sqrtf16(x); }

/* sqrt */
OVERLOAD double sqrt(double x) { return __ocl_zorv_v8_sqrt1(x); }
OVERLOAD double2 sqrt(double2 x) { return __ocl_zorv_v8_sqrt2(x); }
OVERLOAD double3 sqrt(double3 x) { return (__ocl_zorv_v8_sqrt3(x.xyzz)).xyz; }
OVERLOAD double4 sqrt(double4 x) { return __ocl_zorv_v8_sqrt4(x); }
OVERLOAD double8 sqrt(double8 x) { return __ocl_zorv_v8_sqrt8(x); }
OVERLOAD double16 sqrt(double16 x) { return __ocl_zorv_v8_sqrt16(x); }

/* sqrtf_native */
OVERLOAD float native_sqrt(float x) { return __ocl_zorv_v8_sqrtf1_native(x); }
OVERLOAD float2 native_sqrt(float2 x) { return __ocl_zorv_v8_sqrtf2_native(x); }
OVERLOAD float3 native_sqrt(float3 x) { return (__ocl_zorv_v8_sqrtf3_native(x.xyzz)).xyz; }
OVERLOAD float4 native_sqrt(float4 x) { return __ocl_zorv_v8_sqrtf4_native(x); }
OVERLOAD float8 native_sqrt(float8 x) { return __ocl_zorv_v8_sqrtf8_native(x); }
OVERLOAD float16 native_sqrt(float16 x) { return __ocl_zorv_v8_sqrtf16_native(x); }

/* sqrt_native */
OVERLOAD double native_sqrt(double x) { return __ocl_zorv_v8_sqrt1_native(x); }
OVERLOAD double2 native_sqrt(double2 x) { return __ocl_zorv_v8_sqrt2_native(x); }
OVERLOAD double3 native_sqrt(double3 x) { return (__ocl_zorv_v8_sqrt3_native(x.xyzz)).xyz; }
OVERLOAD double4 native_sqrt(double4 x) { return __ocl_zorv_v8_sqrt4_native(x); }
OVERLOAD double8 native_sqrt(double8 x) { return __ocl_zorv_v8_sqrt8_native(x); }
OVERLOAD double16 native_sqrt(double16 x) { return __ocl_zorv_v8_sqrt16_native(x); }

/* rsqrtf */
OVERLOAD float rsqrt(float x) { return __ocl_zorv_v8_rsqrtf1(x); }
OVERLOAD float2 rsqrt(float2 x) { return __ocl_zorv_v8_rsqrtf2(x); }
OVERLOAD float3 rsqrt(float3 x) { return (__ocl_zorv_v8_rsqrtf3(x.xyzz)).xyz; }
OVERLOAD float4 rsqrt(float4 x) { return __ocl_zorv_v8_rsqrtf4(x); }
OVERLOAD float8 rsqrt(float8 x) { return __ocl_zorv_v8_rsqrtf8(x); }
OVERLOAD float16 rsqrt(float16 x) { return __ocl_zorv_v8_rsqrtf16(x); }

/* rsqrt */
OVERLOAD double rsqrt(double x) { return __ocl_zorv_v8_rsqrt1(x); }
OVERLOAD double2 rsqrt(double2 x) { return __ocl_zorv_v8_rsqrt2(x); }
OVERLOAD double3 rsqrt(double3 x) { return (__ocl_zorv_v8_rsqrt3(x.xyzz)).xyz; }
OVERLOAD double4 rsqrt(double4 x) { return __ocl_zorv_v8_rsqrt4(x); }
OVERLOAD double8 rsqrt(double8 x) { return __ocl_zorv_v8_rsqrt8(x); }
OVERLOAD double16 rsqrt(double16 x) { return __ocl_zorv_v8_rsqrt16(x); }

/* rsqrtf_native */
OVERLOAD float native_rsqrt(float x) { return __ocl_zorv_v8_rsqrtf1_native(x); }
OVERLOAD float2 native_rsqrt(float2 x) { return __ocl_zorv_v8_rsqrtf2_native(x); }
OVERLOAD float3 native_rsqrt(float3 x) { return (__ocl_zorv_v8_rsqrtf3_native(x.xyzz)).xyz; }
OVERLOAD float4 native_rsqrt(float4 x) { return __ocl_zorv_v8_rsqrtf4_native(x); }
OVERLOAD float8 native_rsqrt(float8 x) { return __ocl_zorv_v8_rsqrtf8_native(x); }
OVERLOAD float16 native_rsqrt(float16 x) { return __ocl_zorv_v8_rsqrtf16_native(x); }

/* rsqrt_native */
OVERLOAD double native_rsqrt(double x) { return __ocl_zorv_v8_rsqrt1_native(x); }
OVERLOAD double2 native_rsqrt(double2 x) { return __ocl_zorv_v8_rsqrt2_native(x); }
OVERLOAD double3 native_rsqrt(double3 x) { return (__ocl_zorv_v8_rsqrt3_native(x.xyzz)).xyz; }
OVERLOAD double4 native_rsqrt(double4 x) { return __ocl_zorv_v8_rsqrt4_native(x); }
OVERLOAD double8 native_rsqrt(double8 x) { return __ocl_zorv_v8_rsqrt8_native(x); }
OVERLOAD double16 native_rsqrt(double16 x) { return __ocl_zorv_v8_rsqrt16_native(x); }

/* fabsf */
OVERLOAD float fabs(float x) { return __ocl_zorv_v8_fabsf1(x); }
OVERLOAD float2 fabs(float2 x) { return __ocl_zorv_v8_fabsf2(x); }
OVERLOAD float3 fabs(float3 x) { return (__ocl_zorv_v8_fabsf3(x.xyzz)).xyz; }
OVERLOAD float4 fabs(float4 x) { return __ocl_zorv_v8_fabsf4(x); }
OVERLOAD float8 fabs(float8 x) { return __ocl_zorv_v8_fabsf8(x); }
OVERLOAD float16 fabs(float16 x) { return __ocl_zorv_v8_fabsf16(x); }

/* fabs */
OVERLOAD double fabs(double x) { return __ocl_zorv_v8_fabs1(x); }
OVERLOAD double2 fabs(double2 x) { return __ocl_zorv_v8_fabs2(x); }
OVERLOAD double3 fabs(double3 x) { return (__ocl_zorv_v8_fabs3(x.xyzz)).xyz; }
OVERLOAD double4 fabs(double4 x) { return __ocl_zorv_v8_fabs4(x); }
OVERLOAD double8 fabs(double8 x) { return __ocl_zorv_v8_fabs8(x); }
OVERLOAD double16 fabs(double16 x) { return __ocl_zorv_v8_fabs16(x); }

/* copysignf */
OVERLOAD float copysign(float x, float y) { return __ocl_zorv_v8_copysignf1(x, y); }
OVERLOAD float2 copysign(float2 x, float2 y) { return __ocl_zorv_v8_copysignf2(x, y); }
OVERLOAD float3 copysign(float3 x, float3 y) { return (__ocl_zorv_v8_copysignf3(x.xyzz, y.xyzz)).xyz; }
OVERLOAD float4 copysign(float4 x, float4 y) { return __ocl_zorv_v8_copysignf4(x, y); }
OVERLOAD float8 copysign(float8 x, float8 y) { return __ocl_zorv_v8_copysignf8(x, y); }
OVERLOAD float16 copysign(float16 x, float16 y) { return __ocl_zorv_v8_copysignf16(x, y); }

/* copysign */
OVERLOAD double copysign(double x, double y) { return __ocl_zorv_v8_copysign1(x, y); }
OVERLOAD double2 copysign(double2 x, double2 y) { return __ocl_zorv_v8_copysign2(x, y); }
OVERLOAD double3 copysign(double3 x, double3 y) { return (__ocl_zorv_v8_copysign3(x.xyzz, y.xyzz)).xyz; }
OVERLOAD double4 copysign(double4 x, double4 y) { return __ocl_zorv_v8_copysign4(x, y); }
OVERLOAD double8 copysign(double8 x, double8 y) { return __ocl_zorv_v8_copysign8(x, y); }
OVERLOAD double16 copysign(double16 x, double16 y) { return __ocl_zorv_v8_copysign16(x, y); }

/* nanf */
OVERLOAD float nan(uint code) { return __ocl_zorv_v8_nanf1(code); }
OVERLOAD float2 nan(uint2 code) { return __ocl_zorv_v8_nanf2(code); }
OVERLOAD float3 nan(uint3 code) { return (__ocl_zorv_v8_nanf3(code.xyzz)).xyz; }
OVERLOAD float4 nan(uint4 code) { return __ocl_zorv_v8_nanf4(code); }
OVERLOAD float8 nan(uint8 code) { return __ocl_zorv_v8_nanf8(code); }
OVERLOAD float16 nan(uint16 code) { return __ocl_zorv_v8_nanf16(code); }

/* nan */
OVERLOAD double nan(ulong code) { return __ocl_zorv_v8_nan1(code); }
OVERLOAD double2 nan(ulong2 code) { return __ocl_zorv_v8_nan2(code); }
OVERLOAD double3 nan(ulong3 code) { return (__ocl_zorv_v8_nan3(code.xyzz)).xyz; }
OVERLOAD double4 nan(ulong4 code) { return __ocl_zorv_v8_nan4(code); }
OVERLOAD double8 nan(ulong8 code) { return __ocl_zorv_v8_nan8(code); }
OVERLOAD double16 nan(ulong16 code) { return __ocl_zorv_v8_nan16(code); }

/* fminf */
OVERLOAD float fmin(float x, float y) { return __ocl_zorv_v8_fminf1(x, y); }
OVERLOAD float2 fmin(float2 x, float2 y) { return __ocl_zorv_v8_fminf2(x, y); }
OVERLOAD float3 fmin(float3 x, float3 y) { return (__ocl_zorv_v8_fminf3(x.xyzz, y.xyzz)).xyz; }
OVERLOAD float4 fmin(float4 x, float4 y) { return __ocl_zorv_v8_fminf4(x, y); }
OVERLOAD float8 fmin(float8 x, float8 y) { return __ocl_zorv_v8_fminf8(x, y); }
OVERLOAD float16 fmin(float16 x, float16 y) { return __ocl_zorv_v8_fminf16(x, y); }

/* fmin */
OVERLOAD double fmin(double x, double y) { return __ocl_zorv_v8_fmin1(x, y); }
OVERLOAD double2 fmin(double2 x, double2 y) { return __ocl_zorv_v8_fmin2(x, y); }
OVERLOAD double3 fmin(double3 x, double3 y) { return (__ocl_zorv_v8_fmin3(x.xyzz, y.xyzz)).xyz; }
OVERLOAD double4 fmin(double4 x, double4 y) { return __ocl_zorv_v8_fmin4(x, y); }
OVERLOAD double8 fmin(double8 x, double8 y) { return __ocl_zorv_v8_fmin8(x, y); }
OVERLOAD double16 fmin(double16 x, double16 y) { return __ocl_zorv_v8_fmin16(x, y); }

/* fmaxf */
OVERLOAD float fmax(float x, float y) { return __ocl_zorv_v8_fmaxf1(x, y); }
OVERLOAD float2 fmax(float2 x, float2 y) { return __ocl_zorv_v8_fmaxf2(x, y); }
OVERLOAD float3 fmax(float3 x, float3 y) { return (__ocl_zorv_v8_fmaxf3(x.xyzz, y.xyzz)).xyz; }
OVERLOAD float4 fmax(float4 x, float4 y) { return __ocl_zorv_v8_fmaxf4(x, y); }
OVERLOAD float8 fmax(float8 x, float8 y) { return __ocl_zorv_v8_fmaxf8(x, y); }
OVERLOAD float16 fmax(float16 x, float16 y) { return __ocl_zorv_v8_fmaxf16(x, y); }

/* fmax */
OVERLOAD double fmax(double x, double y) { return __ocl_zorv_v8_fmax1(x, y); }
OVERLOAD double2 fmax(double2 x, double2 y) { return __ocl_zorv_v8_fmax2(x, y); }
OVERLOAD double3 fmax(double3 x, double3 y) { return (__ocl_zorv_v8_fmax3(x.xyzz, y.xyzz)).xyz; }
OVERLOAD double4 fmax(double4 x, double4 y) { return __ocl_zorv_v8_fmax4(x, y); }
OVERLOAD double8 fmax(double8 x, double8 y) { return __ocl_zorv_v8_fmax8(x, y); }
OVERLOAD double16 fmax(double16 x, double16 y) { return __ocl_zorv_v8_fmax16(x, y); }

/* maxmagf */
OVERLOAD float maxmag(float x, float y) { return __ocl_zorv_v8_maxmagf1(x, y); }
OVERLOAD float2 maxmag(float2 x, float2 y) { return __ocl_zorv_v8_maxmagf2(x, y); }
OVERLOAD float3 maxmag(float3 x, float3 y) { return (__ocl_zorv_v8_maxmagf3(x.xyzz, y.xyzz)).xyz; }
OVERLOAD float4 maxmag(float4 x, float4 y) { return __ocl_zorv_v8_maxmagf4(x, y); }
OVERLOAD float8 maxmag(float8 x, float8 y) { return __ocl_zorv_v8_maxmagf8(x, y); }
OVERLOAD float16 maxmag(float16 x, float16 y) { return __ocl_zorv_v8_maxmagf16(x, y); }

/* maxmag */
OVERLOAD double maxmag(double x, double y) { return __ocl_zorv_v8_maxmag1(x, y); }
OVERLOAD double2 maxmag(double2 x, double2 y) { return __ocl_zorv_v8_maxmag2(x, y); }
OVERLOAD double3 maxmag(double3 x, double3 y) { return (__ocl_zorv_v8_maxmag3(x.xyzz, y.xyzz)).xyz; }
OVERLOAD double4 maxmag(double4 x, double4 y) { return __ocl_zorv_v8_maxmag4(x, y); }
OVERLOAD double8 maxmag(double8 x, double8 y) { return __ocl_zorv_v8_maxmag8(x, y); }
OVERLOAD double16 maxmag(double16 x, double16 y) { return __ocl_zorv_v8_maxmag16(x, y); }

/* minmagf */
OVERLOAD float minmag(float x, float y) { return __ocl_zorv_v8_minmagf1(x, y); }
OVERLOAD float2 minmag(float2 x, float2 y) { return __ocl_zorv_v8_minmagf2(x, y); }
OVERLOAD float3 minmag(float3 x, float3 y) { return (__ocl_zorv_v8_minmagf3(x.xyzz, y.xyzz)).xyz; }
OVERLOAD float4 minmag(float4 x, float4 y) { return __ocl_zorv_v8_minmagf4(x, y); }
OVERLOAD float8 minmag(float8 x, float8 y) { return __ocl_zorv_v8_minmagf8(x, y); }
OVERLOAD float16 minmag(float16 x, float16 y) { return __ocl_zorv_v8_minmagf16(x, y); }

/* minmag */
OVERLOAD double minmag(double x, double y) { return __ocl_zorv_v8_minmag1(x, y); }
OVERLOAD double2 minmag(double2 x, double2 y) { return __ocl_zorv_v8_minmag2(x, y); }
OVERLOAD double3 minmag(double3 x, double3 y) { return (__ocl_zorv_v8_minmag3(x.xyzz, y.xyzz)).xyz; }
OVERLOAD double4 minmag(double4 x, double4 y) { return __ocl_zorv_v8_minmag4(x, y); }
OVERLOAD double8 minmag(double8 x, double8 y) { return __ocl_zorv_v8_minmag8(x, y); }
OVERLOAD double16 minmag(double16 x, double16 y) { return __ocl_zorv_v8_minmag16(x, y); }

/* fdimf */
OVERLOAD float fdim(float x, float y) { return __ocl_zorv_v8_fdimf1(x, y); }
OVERLOAD float2 fdim(float2 x, float2 y) { return __ocl_zorv_v8_fdimf2(x, y); }
OVERLOAD float3 fdim(float3 x, float3 y) { return (__ocl_zorv_v8_fdimf3(x.xyzz, y.xyzz)).xyz; }
OVERLOAD float4 fdim(float4 x, float4 y) { return __ocl_zorv_v8_fdimf4(x, y); }
OVERLOAD float8 fdim(float8 x, float8 y) { return __ocl_zorv_v8_fdimf8(x, y); }
OVERLOAD float16 fdim(float16 x, float16 y) { return __ocl_zorv_v8_fdimf16(x, y); }

/* fdim */
OVERLOAD double fdim(double x, double y) { return __ocl_zorv_v8_fdim1(x, y); }
OVERLOAD double2 fdim(double2 x, double2 y) { return __ocl_zorv_v8_fdim2(x, y); }
OVERLOAD double3 fdim(double3 x, double3 y) { return (__ocl_zorv_v8_fdim3(x.xyzz, y.xyzz)).xyz; }
OVERLOAD double4 fdim(double4 x, double4 y) { return __ocl_zorv_v8_fdim4(x, y); }
OVERLOAD double8 fdim(double8 x, double8 y) { return __ocl_zorv_v8_fdim8(x, y); }
OVERLOAD double16 fdim(double16 x, double16 y) { return __ocl_zorv_v8_fdim16(x, y); }

/* madf */
OVERLOAD float mad(float a, float b, float c) { return __ocl_zorv_v8_madf1(a, b, c); }
OVERLOAD float2 mad(float2 a, float2 b, float2 c) { return __ocl_zorv_v8_madf2(a, b, c); }
OVERLOAD float3 mad(float3 a, float3 b, float3 c) { return (__ocl_zorv_v8_madf3(a.xyzz, b.xyzz, c.xyzz)).xyz; }
OVERLOAD float4 mad(float4 a, float4 b, float4 c) { return __ocl_zorv_v8_madf4(a, b, c); }
OVERLOAD float8 mad(float8 a, float8 b, float8 c) { return __ocl_zorv_v8_madf8(a, b, c); }
OVERLOAD float16 mad(float16 a, float16 b, float16 c) { return __ocl_zorv_v8_madf16(a, b, c); }

/* mad */
OVERLOAD double mad(double a, double b, double c) { return __ocl_zorv_v8_mad1(a, b, c); }
OVERLOAD double2 mad(double2 a, double2 b, double2 c) { return __ocl_zorv_v8_mad2(a, b, c); }
OVERLOAD double3 mad(double3 a, double3 b, double3 c) { return (__ocl_zorv_v8_mad3(a.xyzz, b.xyzz, c.xyzz)).xyz; }
OVERLOAD double4 mad(double4 a, double4 b, double4 c) { return __ocl_zorv_v8_mad4(a, b, c); }
OVERLOAD double8 mad(double8 a, double8 b, double8 c) { return __ocl_zorv_v8_mad8(a, b, c); }
OVERLOAD double16 mad(double16 a, double16 b, double16 c) { return __ocl_zorv_v8_mad16(a, b, c); }

/* fmaf */
OVERLOAD float fma(float a, float b, float c) { return __ocl_zorv_v8_fmaf1(a, b, c); }
OVERLOAD float2 fma(float2 a, float2 b, float2 c) { return __ocl_zorv_v8_fmaf2(a, b, c); }
OVERLOAD float3 fma(float3 a, float3 b, float3 c) { return (__ocl_zorv_v8_fmaf3(a.xyzz, b.xyzz, c.xyzz)).xyz; }
OVERLOAD float4 fma(float4 a, float4 b, float4 c) { return __ocl_zorv_v8_fmaf4(a, b, c); }
OVERLOAD float8 fma(float8 a, float8 b, float8 c) { return __ocl_zorv_v8_fmaf8(a, b, c); }
OVERLOAD float16 fma(float16 a, float16 b, float16 c) { return __ocl_zorv_v8_fmaf16(a, b, c); }

/* fma */
OVERLOAD double fma(double a, double b, double c) { return __ocl_zorv_v8_fma1(a, b, c); }
OVERLOAD double2 fma(double2 a, double2 b, double2 c) { return __ocl_zorv_v8_fma2(a, b, c); }
OVERLOAD double3 fma(double3 a, double3 b, double3 c) { return (__ocl_zorv_v8_fma3(a.xyzz, b.xyzz, c.xyzz)).xyz; }
OVERLOAD double4 fma(double4 a, double4 b, double4 c) { return __ocl_zorv_v8_fma4(a, b, c); }
OVERLOAD double8 fma(double8 a, double8 b, double8 c) { return __ocl_zorv_v8_fma8(a, b, c); }
OVERLOAD double16 fma(double16 a, double16 b, double16 c) { return __ocl_zorv_v8_fma16(a, b, c); }

/* ceilf */
OVERLOAD float ceil(float x) { return __ocl_zorv_v8_ceilf1(x); }
OVERLOAD float2 ceil(float2 x) { return __ocl_zorv_v8_ceilf2(x); }
OVERLOAD float3 ceil(float3 x) { return (__ocl_zorv_v8_ceilf3(x.xyzz)).xyz; }
OVERLOAD float4 ceil(float4 x) { return __ocl_zorv_v8_ceilf4(x); }
OVERLOAD float8 ceil(float8 x) { return __ocl_zorv_v8_ceilf8(x); }
OVERLOAD float16 ceil(float16 x) { return __ocl_zorv_v8_ceilf16(x); }

/* ceil */
OVERLOAD double ceil(double x) { return __ocl_zorv_v8_ceil1(x); }
OVERLOAD double2 ceil(double2 x) { return __ocl_zorv_v8_ceil2(x); }
OVERLOAD double3 ceil(double3 x) { return (__ocl_zorv_v8_ceil3(x.xyzz)).xyz; }
OVERLOAD double4 ceil(double4 x) { return __ocl_zorv_v8_ceil4(x); }
OVERLOAD double8 ceil(double8 x) { return __ocl_zorv_v8_ceil8(x); }
OVERLOAD double16 ceil(double16 x) { return __ocl_zorv_v8_ceil16(x); }

/* floorf */
OVERLOAD float floor(float x) { return __ocl_zorv_v8_floorf1(x); }
OVERLOAD float2 floor(float2 x) { return __ocl_zorv_v8_floorf2(x); }
OVERLOAD float3 floor(float3 x) { return (__ocl_zorv_v8_floorf3(x.xyzz)).xyz; }
OVERLOAD float4 floor(float4 x) { return __ocl_zorv_v8_floorf4(x); }
OVERLOAD float8 floor(float8 x) { return __ocl_zorv_v8_floorf8(x); }
OVERLOAD float16 floor(float16 x) { return __ocl_zorv_v8_floorf16(x); }

/* floor */
OVERLOAD double floor(double x) { return __ocl_zorv_v8_floor1(x); }
OVERLOAD double2 floor(double2 x) { return __ocl_zorv_v8_floor2(x); }
OVERLOAD double3 floor(double3 x) { return (__ocl_zorv_v8_floor3(x.xyzz)).xyz; }
OVERLOAD double4 floor(double4 x) { return __ocl_zorv_v8_floor4(x); }
OVERLOAD double8 floor(double8 x) { return __ocl_zorv_v8_floor8(x); }
OVERLOAD double16 floor(double16 x) { return __ocl_zorv_v8_floor16(x); }

/* roundf */
OVERLOAD float round(float x) { return __ocl_zorv_v8_roundf1(x); }
OVERLOAD float2 round(float2 x) { return __ocl_zorv_v8_roundf2(x); }
OVERLOAD float3 round(float3 x) { return (__ocl_zorv_v8_roundf3(x.xyzz)).xyz; }
OVERLOAD float4 round(float4 x) { return __ocl_zorv_v8_roundf4(x); }
OVERLOAD float8 round(float8 x) { return __ocl_zorv_v8_roundf8(x); }
OVERLOAD float16 round(float16 x) { return __ocl_zorv_v8_roundf16(x); }

/* round */
OVERLOAD double round(double x) { return __ocl_zorv_v8_round1(x); }
OVERLOAD double2 round(double2 x) { return __ocl_zorv_v8_round2(x); }
OVERLOAD double3 round(double3 x) { return (__ocl_zorv_v8_round3(x.xyzz)).xyz; }
OVERLOAD double4 round(double4 x) { return __ocl_zorv_v8_round4(x); }
OVERLOAD double8 round(double8 x) { return __ocl_zorv_v8_round8(x); }
OVERLOAD double16 round(double16 x) { return __ocl_zorv_v8_round16(x); }

/* truncf */
OVERLOAD float trunc(float x) { return __ocl_zorv_v8_truncf1(x); }
OVERLOAD float2 trunc(float2 x) { return __ocl_zorv_v8_truncf2(x); }
OVERLOAD float3 trunc(float3 x) { return (__ocl_zorv_v8_truncf3(x.xyzz)).xyz; }
OVERLOAD float4 trunc(float4 x) { return __ocl_zorv_v8_truncf4(x); }
OVERLOAD float8 trunc(float8 x) { return __ocl_zorv_v8_truncf8(x); }
OVERLOAD float16 trunc(float16 x) { return __ocl_zorv_v8_truncf16(x); }

/* trunc */
OVERLOAD double trunc(double x) { return __ocl_zorv_v8_trunc1(x); }
OVERLOAD double2 trunc(double2 x) { return __ocl_zorv_v8_trunc2(x); }
OVERLOAD double3 trunc(double3 x) { return (__ocl_zorv_v8_trunc3(x.xyzz)).xyz; }
OVERLOAD double4 trunc(double4 x) { return __ocl_zorv_v8_trunc4(x); }
OVERLOAD double8 trunc(double8 x) { return __ocl_zorv_v8_trunc8(x); }
OVERLOAD double16 trunc(double16 x) { return __ocl_zorv_v8_trunc16(x); }

/* rintf */
OVERLOAD float rint(float x) { return __ocl_zorv_v8_rintf1(x); }
OVERLOAD float2 rint(float2 x) { return __ocl_zorv_v8_rintf2(x); }
OVERLOAD float3 rint(float3 x) { return (__ocl_zorv_v8_rintf3(x.xyzz)).xyz; }
OVERLOAD float4 rint(float4 x) { return __ocl_zorv_v8_rintf4(x); }
OVERLOAD float8 rint(float8 x) { return __ocl_zorv_v8_rintf8(x); }
OVERLOAD float16 rint(float16 x) { return __ocl_zorv_v8_rintf16(x); }

/* rint */
OVERLOAD double rint(double x) { return __ocl_zorv_v8_rint1(x); }
OVERLOAD double2 rint(double2 x) { return __ocl_zorv_v8_rint2(x); }
OVERLOAD double3 rint(double3 x) { return (__ocl_zorv_v8_rint3(x.xyzz)).xyz; }
OVERLOAD double4 rint(double4 x) { return __ocl_zorv_v8_rint4(x); }
OVERLOAD double8 rint(double8 x) { return __ocl_zorv_v8_rint8(x); }
OVERLOAD double16 rint(double16 x) { return __ocl_zorv_v8_rint16(x); }

/* modff */
OVERLOAD float modf(float x, private float *pointer) {
    float second;
    float first = __ocl_zorv_v8_modff1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float modf(float x, local float *pointer) {
    float second;
    float first = __ocl_zorv_v8_modff1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float modf(float x, global float *pointer) {
    float second;
    float first = __ocl_zorv_v8_modff1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float2 modf(float2 x, private float2 *pointer) {
    float2 second;
    float2 first = __ocl_zorv_v8_modff2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float2 modf(float2 x, local float2 *pointer) {
    float2 second;
    float2 first = __ocl_zorv_v8_modff2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float2 modf(float2 x, global float2 *pointer) {
    float2 second;
    float2 first = __ocl_zorv_v8_modff2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float3 modf(float3 x, private float3 *pointer) {
    float4 second;
    float3 first = (__ocl_zorv_v8_modff3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD float3 modf(float3 x, local float3 *pointer) {
    float4 second;
    float3 first = (__ocl_zorv_v8_modff3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD float3 modf(float3 x, global float3 *pointer) {
    float4 second;
    float3 first = (__ocl_zorv_v8_modff3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD float4 modf(float4 x, private float4 *pointer) {
    float4 second;
    float4 first = __ocl_zorv_v8_modff4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float4 modf(float4 x, local float4 *pointer) {
    float4 second;
    float4 first = __ocl_zorv_v8_modff4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float4 modf(float4 x, global float4 *pointer) {
    float4 second;
    float4 first = __ocl_zorv_v8_modff4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float8 modf(float8 x, private float8 *pointer) {
    float8 second;
    float8 first = __ocl_zorv_v8_modff8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float8 modf(float8 x, local float8 *pointer) {
    float8 second;
    float8 first = __ocl_zorv_v8_modff8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float8 modf(float8 x, global float8 *pointer) {
    float8 second;
    float8 first = __ocl_zorv_v8_modff8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float16 modf(float16 x, private float16 *pointer) {
    float16 second;
    float16 first = __ocl_zorv_v8_modff16(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float16 modf(float16 x, local float16 *pointer) {
    float16 second;
    float16 first = __ocl_zorv_v8_modff16(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float16 modf(float16 x, global float16 *pointer) {
    float16 second;
    float16 first = __ocl_zorv_v8_modff16(x, &second);
    *pointer = second;
    return first;
}

/* modf */
OVERLOAD double modf(double x, private double *pointer) {
    double second;
    double first = __ocl_zorv_v8_modf1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double modf(double x, local double *pointer) {
    double second;
    double first = __ocl_zorv_v8_modf1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double modf(double x, global double *pointer) {
    double second;
    double first = __ocl_zorv_v8_modf1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double2 modf(double2 x, private double2 *pointer) {
    double2 second;
    double2 first = __ocl_zorv_v8_modf2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double2 modf(double2 x, local double2 *pointer) {
    double2 second;
    double2 first = __ocl_zorv_v8_modf2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double2 modf(double2 x, global double2 *pointer) {
    double2 second;
    double2 first = __ocl_zorv_v8_modf2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double3 modf(double3 x, private double3 *pointer) {
    double4 second;
    double3 first = (__ocl_zorv_v8_modf3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD double3 modf(double3 x, local double3 *pointer) {
    double4 second;
    double3 first = (__ocl_zorv_v8_modf3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD double3 modf(double3 x, global double3 *pointer) {
    double4 second;
    double3 first = (__ocl_zorv_v8_modf3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD double4 modf(double4 x, private double4 *pointer) {
    double4 second;
    double4 first = __ocl_zorv_v8_modf4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double4 modf(double4 x, local double4 *pointer) {
    double4 second;
    double4 first = __ocl_zorv_v8_modf4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double4 modf(double4 x, global double4 *pointer) {
    double4 second;
    double4 first = __ocl_zorv_v8_modf4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double8 modf(double8 x, private double8 *pointer) {
    double8 second;
    double8 first = __ocl_zorv_v8_modf8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double8 modf(double8 x, local double8 *pointer) {
    double8 second;
    double8 first = __ocl_zorv_v8_modf8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double8 modf(double8 x, global double8 *pointer) {
    double8 second;
    double8 first = __ocl_zorv_v8_modf8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double16 modf(double16 x, private double16 *pointer) {
    double16 second;
    double16 first = __ocl_zorv_v8_modf16(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double16 modf(double16 x, local double16 *pointer) {
    double16 second;
    double16 first = __ocl_zorv_v8_modf16(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double16 modf(double16 x, global double16 *pointer) {
    double16 second;
    double16 first = __ocl_zorv_v8_modf16(x, &second);
    *pointer = second;
    return first;
}

/* fractf */
OVERLOAD float fract(float x, private float *pointer) {
    float second;
    float first = __ocl_zorv_v8_fractf1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float fract(float x, local float *pointer) {
    float second;
    float first = __ocl_zorv_v8_fractf1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float fract(float x, global float *pointer) {
    float second;
    float first = __ocl_zorv_v8_fractf1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float2 fract(float2 x, private float2 *pointer) {
    float2 second;
    float2 first = __ocl_zorv_v8_fractf2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float2 fract(float2 x, local float2 *pointer) {
    float2 second;
    float2 first = __ocl_zorv_v8_fractf2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float2 fract(float2 x, global float2 *pointer) {
    float2 second;
    float2 first = __ocl_zorv_v8_fractf2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float3 fract(float3 x, private float3 *pointer) {
    float4 second;
    float3 first = (__ocl_zorv_v8_fractf3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD float3 fract(float3 x, local float3 *pointer) {
    float4 second;
    float3 first = (__ocl_zorv_v8_fractf3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD float3 fract(float3 x, global float3 *pointer) {
    float4 second;
    float3 first = (__ocl_zorv_v8_fractf3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD float4 fract(float4 x, private float4 *pointer) {
    float4 second;
    float4 first = __ocl_zorv_v8_fractf4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float4 fract(float4 x, local float4 *pointer) {
    float4 second;
    float4 first = __ocl_zorv_v8_fractf4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float4 fract(float4 x, global float4 *pointer) {
    float4 second;
    float4 first = __ocl_zorv_v8_fractf4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float8 fract(float8 x, private float8 *pointer) {
    float8 second;
    float8 first = __ocl_zorv_v8_fractf8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float8 fract(float8 x, local float8 *pointer) {
    float8 second;
    float8 first = __ocl_zorv_v8_fractf8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float8 fract(float8 x, global float8 *pointer) {
    float8 second;
    float8 first = __ocl_zorv_v8_fractf8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float16 fract(float16 x, private float16 *pointer) {
    float16 second;
    float16 first = __ocl_zorv_v8_fractf16(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float16 fract(float16 x, local float16 *pointer) {
    float16 second;
    float16 first = __ocl_zorv_v8_fractf16(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float16 fract(float16 x, global float16 *pointer) {
    float16 second;
    float16 first = __ocl_zorv_v8_fractf16(x, &second);
    *pointer = second;
    return first;
}

/* fract */
OVERLOAD double fract(double x, private double *pointer) {
    double second;
    double first = __ocl_zorv_v8_fract1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double fract(double x, local double *pointer) {
    double second;
    double first = __ocl_zorv_v8_fract1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double fract(double x, global double *pointer) {
    double second;
    double first = __ocl_zorv_v8_fract1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double2 fract(double2 x, private double2 *pointer) {
    double2 second;
    double2 first = __ocl_zorv_v8_fract2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double2 fract(double2 x, local double2 *pointer) {
    double2 second;
    double2 first = __ocl_zorv_v8_fract2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double2 fract(double2 x, global double2 *pointer) {
    double2 second;
    double2 first = __ocl_zorv_v8_fract2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double3 fract(double3 x, private double3 *pointer) {
    double4 second;
    double3 first = (__ocl_zorv_v8_fract3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD double3 fract(double3 x, local double3 *pointer) {
    double4 second;
    double3 first = (__ocl_zorv_v8_fract3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD double3 fract(double3 x, global double3 *pointer) {
    double4 second;
    double3 first = (__ocl_zorv_v8_fract3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD double4 fract(double4 x, private double4 *pointer) {
    double4 second;
    double4 first = __ocl_zorv_v8_fract4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double4 fract(double4 x, local double4 *pointer) {
    double4 second;
    double4 first = __ocl_zorv_v8_fract4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double4 fract(double4 x, global double4 *pointer) {
    double4 second;
    double4 first = __ocl_zorv_v8_fract4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double8 fract(double8 x, private double8 *pointer) {
    double8 second;
    double8 first = __ocl_zorv_v8_fract8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double8 fract(double8 x, local double8 *pointer) {
    double8 second;
    double8 first = __ocl_zorv_v8_fract8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double8 fract(double8 x, global double8 *pointer) {
    double8 second;
    double8 first = __ocl_zorv_v8_fract8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double16 fract(double16 x, private double16 *pointer) {
    double16 second;
    double16 first = __ocl_zorv_v8_fract16(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double16 fract(double16 x, local double16 *pointer) {
    double16 second;
    double16 first = __ocl_zorv_v8_fract16(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD double16 fract(double16 x, global double16 *pointer) {
    double16 second;
    double16 first = __ocl_zorv_v8_fract16(x, &second);
    *pointer = second;
    return first;
}

/* expf */
OVERLOAD float exp(float x) { return __ocl_zorv_v8_expf1(x); }
OVERLOAD float2 exp(float2 x) { return __ocl_zorv_v8_expf2(x); }
OVERLOAD float3 exp(float3 x) { return (__ocl_zorv_v8_expf3(x.xyzz)).xyz; }
OVERLOAD float4 exp(float4 x) { return __ocl_zorv_v8_expf4(x); }
OVERLOAD float8 exp(float8 x) { return __ocl_zorv_v8_expf8(x); }
OVERLOAD float16 exp(float16 x) { return __ocl_zorv_v8_expf16(x); }

/* expf_native */
OVERLOAD float native_exp(float x) { return __ocl_zorv_v8_expf1_native(x); }
OVERLOAD float2 native_exp(float2 x) { return __ocl_zorv_v8_expf2_native(x); }
OVERLOAD float3 native_exp(float3 x) { return (__ocl_zorv_v8_expf3_native(x.xyzz)).xyz; }
OVERLOAD float4 native_exp(float4 x) { return __ocl_zorv_v8_expf4_native(x); }
OVERLOAD float8 native_exp(float8 x) { return __ocl_zorv_v8_expf8_native(x); }
OVERLOAD float16 native_exp(float16 x) { return __ocl_zorv_v8_expf16_native(x); }

/* exp2f */
OVERLOAD float exp2(float x) { return __ocl_zorv_v8_exp2f1(x); }
OVERLOAD float2 exp2(float2 x) { return __ocl_zorv_v8_exp2f2(x); }
OVERLOAD float3 exp2(float3 x) { return (__ocl_zorv_v8_exp2f3(x.xyzz)).xyz; }
OVERLOAD float4 exp2(float4 x) { return __ocl_zorv_v8_exp2f4(x); }
OVERLOAD float8 exp2(float8 x) { return __ocl_zorv_v8_exp2f8(x); }
OVERLOAD float16 exp2(float16 x) { return __ocl_zorv_v8_exp2f16(x); }

/* exp2f_native */
OVERLOAD float native_exp2(float x) { return __ocl_zorv_v8_exp2f1_native(x); }
OVERLOAD float2 native_exp2(float2 x) { return __ocl_zorv_v8_exp2f2_native(x); }
OVERLOAD float3 native_exp2(float3 x) { return (__ocl_zorv_v8_exp2f3_native(x.xyzz)).xyz; }
OVERLOAD float4 native_exp2(float4 x) { return __ocl_zorv_v8_exp2f4_native(x); }
OVERLOAD float8 native_exp2(float8 x) { return __ocl_zorv_v8_exp2f8_native(x); }
OVERLOAD float16 native_exp2(float16 x) { return __ocl_zorv_v8_exp2f16_native(x); }

/* exp10f */
OVERLOAD float exp10(float x) { return __ocl_zorv_v8_exp10f1(x); }
OVERLOAD float2 exp10(float2 x) { return __ocl_zorv_v8_exp10f2(x); }
OVERLOAD float3 exp10(float3 x) { return (__ocl_zorv_v8_exp10f3(x.xyzz)).xyz; }
OVERLOAD float4 exp10(float4 x) { return __ocl_zorv_v8_exp10f4(x); }
OVERLOAD float8 exp10(float8 x) { return __ocl_zorv_v8_exp10f8(x); }
OVERLOAD float16 exp10(float16 x) { return __ocl_zorv_v8_exp10f16(x); }

/* exp10f_native */
OVERLOAD float native_exp10(float x) { return __ocl_zorv_v8_exp10f1_native(x); }
OVERLOAD float2 native_exp10(float2 x) { return __ocl_zorv_v8_exp10f2_native(x); }
OVERLOAD float3 native_exp10(float3 x) { return (__ocl_zorv_v8_exp10f3_native(x.xyzz)).xyz; }
OVERLOAD float4 native_exp10(float4 x) { return __ocl_zorv_v8_exp10f4_native(x); }
OVERLOAD float8 native_exp10(float8 x) { return __ocl_zorv_v8_exp10f8_native(x); }
OVERLOAD float16 native_exp10(float16 x) { return __ocl_zorv_v8_exp10f16_native(x); }

/* logf */
OVERLOAD float log(float x) { return __ocl_zorv_v8_logf1(x); }
OVERLOAD float2 log(float2 x) { return __ocl_zorv_v8_logf2(x); }
OVERLOAD float3 log(float3 x) { return (__ocl_zorv_v8_logf3(x.xyzz)).xyz; }
OVERLOAD float4 log(float4 x) { return __ocl_zorv_v8_logf4(x); }
OVERLOAD float8 log(float8 x) { return __ocl_zorv_v8_logf8(x); }
OVERLOAD float16 log(float16 x) { return __ocl_zorv_v8_logf16(x); }

/* logf_native */
OVERLOAD float native_log(float x) { return __ocl_zorv_v8_logf1_native(x); }
OVERLOAD float2 native_log(float2 x) { return __ocl_zorv_v8_logf2_native(x); }
OVERLOAD float3 native_log(float3 x) { return (__ocl_zorv_v8_logf3_native(x.xyzz)).xyz; }
OVERLOAD float4 native_log(float4 x) { return __ocl_zorv_v8_logf4_native(x); }
OVERLOAD float8 native_log(float8 x) { return __ocl_zorv_v8_logf8_native(x); }
OVERLOAD float16 native_log(float16 x) { return __ocl_zorv_v8_logf16_native(x); }

/* log2f */
OVERLOAD float log2(float x) { return __ocl_zorv_v8_log2f1(x); }
OVERLOAD float2 log2(float2 x) { return __ocl_zorv_v8_log2f2(x); }
OVERLOAD float3 log2(float3 x) { return (__ocl_zorv_v8_log2f3(x.xyzz)).xyz; }
OVERLOAD float4 log2(float4 x) { return __ocl_zorv_v8_log2f4(x); }
OVERLOAD float8 log2(float8 x) { return __ocl_zorv_v8_log2f8(x); }
OVERLOAD float16 log2(float16 x) { return __ocl_zorv_v8_log2f16(x); }

/* log2f_native */
OVERLOAD float native_log2(float x) { return __ocl_zorv_v8_log2f1_native(x); }
OVERLOAD float2 native_log2(float2 x) { return __ocl_zorv_v8_log2f2_native(x); }
OVERLOAD float3 native_log2(float3 x) { return (__ocl_zorv_v8_log2f3_native(x.xyzz)).xyz; }
OVERLOAD float4 native_log2(float4 x) { return __ocl_zorv_v8_log2f4_native(x); }
OVERLOAD float8 native_log2(float8 x) { return __ocl_zorv_v8_log2f8_native(x); }
OVERLOAD float16 native_log2(float16 x) { return __ocl_zorv_v8_log2f16_native(x); }

/* log10f */
OVERLOAD float log10(float x) { return __ocl_zorv_v8_log10f1(x); }
OVERLOAD float2 log10(float2 x) { return __ocl_zorv_v8_log10f2(x); }
OVERLOAD float3 log10(float3 x) { return (__ocl_zorv_v8_log10f3(x.xyzz)).xyz; }
OVERLOAD float4 log10(float4 x) { return __ocl_zorv_v8_log10f4(x); }
OVERLOAD float8 log10(float8 x) { return __ocl_zorv_v8_log10f8(x); }
OVERLOAD float16 log10(float16 x) { return __ocl_zorv_v8_log10f16(x); }

/* log10f_native */
OVERLOAD float native_log10(float x) { return __ocl_zorv_v8_log10f1_native(x); }
OVERLOAD float2 native_log10(float2 x) { return __ocl_zorv_v8_log10f2_native(x); }
OVERLOAD float3 native_log10(float3 x) { return (__ocl_zorv_v8_log10f3_native(x.xyzz)).xyz; }
OVERLOAD float4 native_log10(float4 x) { return __ocl_zorv_v8_log10f4_native(x); }
OVERLOAD float8 native_log10(float8 x) { return __ocl_zorv_v8_log10f8_native(x); }
OVERLOAD float16 native_log10(float16 x) { return __ocl_zorv_v8_log10f16_native(x); }

/* sinf */
OVERLOAD float sin(float x) { return __ocl_zorv_v8_sinf1(x); }
OVERLOAD float2 sin(float2 x) { return __ocl_zorv_v8_sinf2(x); }
OVERLOAD float3 sin(float3 x) { return (__ocl_zorv_v8_sinf3(x.xyzz)).xyz; }
OVERLOAD float4 sin(float4 x) { return __ocl_zorv_v8_sinf4(x); }
OVERLOAD float8 sin(float8 x) { return __ocl_zorv_v8_sinf8(x); }
OVERLOAD float16 sin(float16 x) { return __ocl_zorv_v8_sinf16(x); }

/* sinf_native */
OVERLOAD float native_sin(float x) { return __ocl_zorv_v8_sinf1_native(x); }
OVERLOAD float2 native_sin(float2 x) { return __ocl_zorv_v8_sinf2_native(x); }
OVERLOAD float3 native_sin(float3 x) { return (__ocl_zorv_v8_sinf3_native(x.xyzz)).xyz; }
OVERLOAD float4 native_sin(float4 x) { return __ocl_zorv_v8_sinf4_native(x); }
OVERLOAD float8 native_sin(float8 x) { return __ocl_zorv_v8_sinf8_native(x); }
OVERLOAD float16 native_sin(float16 x) { return __ocl_zorv_v8_sinf16_native(x); }

/* cosf */
OVERLOAD float cos(float x) { return __ocl_zorv_v8_cosf1(x); }
OVERLOAD float2 cos(float2 x) { return __ocl_zorv_v8_cosf2(x); }
OVERLOAD float3 cos(float3 x) { return (__ocl_zorv_v8_cosf3(x.xyzz)).xyz; }
OVERLOAD float4 cos(float4 x) { return __ocl_zorv_v8_cosf4(x); }
OVERLOAD float8 cos(float8 x) { return __ocl_zorv_v8_cosf8(x); }
OVERLOAD float16 cos(float16 x) { return __ocl_zorv_v8_cosf16(x); }

/* cosf_native */
OVERLOAD float native_cos(float x) { return __ocl_zorv_v8_cosf1_native(x); }
OVERLOAD float2 native_cos(float2 x) { return __ocl_zorv_v8_cosf2_native(x); }
OVERLOAD float3 native_cos(float3 x) { return (__ocl_zorv_v8_cosf3_native(x.xyzz)).xyz; }
OVERLOAD float4 native_cos(float4 x) { return __ocl_zorv_v8_cosf4_native(x); }
OVERLOAD float8 native_cos(float8 x) { return __ocl_zorv_v8_cosf8_native(x); }
OVERLOAD float16 native_cos(float16 x) { return __ocl_zorv_v8_cosf16_native(x); }

/* sincosf */
OVERLOAD float sincos(float x, private float *pointer) {
    float second;
    float first = __ocl_zorv_v8_sincosf1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float sincos(float x, local float *pointer) {
    float second;
    float first = __ocl_zorv_v8_sincosf1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float sincos(float x, global float *pointer) {
    float second;
    float first = __ocl_zorv_v8_sincosf1(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float2 sincos(float2 x, private float2 *pointer) {
    float2 second;
    float2 first = __ocl_zorv_v8_sincosf2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float2 sincos(float2 x, local float2 *pointer) {
    float2 second;
    float2 first = __ocl_zorv_v8_sincosf2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float2 sincos(float2 x, global float2 *pointer) {
    float2 second;
    float2 first = __ocl_zorv_v8_sincosf2(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float3 sincos(float3 x, private float3 *pointer) {
    float4 second;
    float3 first = (__ocl_zorv_v8_sincosf3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD float3 sincos(float3 x, local float3 *pointer) {
    float4 second;
    float3 first = (__ocl_zorv_v8_sincosf3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD float3 sincos(float3 x, global float3 *pointer) {
    float4 second;
    float3 first = (__ocl_zorv_v8_sincosf3(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD float4 sincos(float4 x, private float4 *pointer) {
    float4 second;
    float4 first = __ocl_zorv_v8_sincosf4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float4 sincos(float4 x, local float4 *pointer) {
    float4 second;
    float4 first = __ocl_zorv_v8_sincosf4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float4 sincos(float4 x, global float4 *pointer) {
    float4 second;
    float4 first = __ocl_zorv_v8_sincosf4(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float8 sincos(float8 x, private float8 *pointer) {
    float8 second;
    float8 first = __ocl_zorv_v8_sincosf8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float8 sincos(float8 x, local float8 *pointer) {
    float8 second;
    float8 first = __ocl_zorv_v8_sincosf8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float8 sincos(float8 x, global float8 *pointer) {
    float8 second;
    float8 first = __ocl_zorv_v8_sincosf8(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float16 sincos(float16 x, private float16 *pointer) {
    float16 second;
    float16 first = __ocl_zorv_v8_sincosf16(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float16 sincos(float16 x, local float16 *pointer) {
    float16 second;
    float16 first = __ocl_zorv_v8_sincosf16(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float16 sincos(float16 x, global float16 *pointer) {
    float16 second;
    float16 first = __ocl_zorv_v8_sincosf16(x, &second);
    *pointer = second;
    return first;
}

/* sincosf_native */
OVERLOAD float native_sincos(float x, private float *pointer) {
    float second;
    float first = __ocl_zorv_v8_sincosf1_native(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float native_sincos(float x, local float *pointer) {
    float second;
    float first = __ocl_zorv_v8_sincosf1_native(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float native_sincos(float x, global float *pointer) {
    float second;
    float first = __ocl_zorv_v8_sincosf1_native(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float2 native_sincos(float2 x, private float2 *pointer) {
    float2 second;
    float2 first = __ocl_zorv_v8_sincosf2_native(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float2 native_sincos(float2 x, local float2 *pointer) {
    float2 second;
    float2 first = __ocl_zorv_v8_sincosf2_native(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float2 native_sincos(float2 x, global float2 *pointer) {
    float2 second;
    float2 first = __ocl_zorv_v8_sincosf2_native(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float3 native_sincos(float3 x, private float3 *pointer) {
    float4 second;
    float3 first = (__ocl_zorv_v8_sincosf3_native(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD float3 native_sincos(float3 x, local float3 *pointer) {
    float4 second;
    float3 first = (__ocl_zorv_v8_sincosf3_native(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD float3 native_sincos(float3 x, global float3 *pointer) {
    float4 second;
    float3 first = (__ocl_zorv_v8_sincosf3_native(x.xyzz, &second)).xyz;
    *pointer = second.xyz;
    return first;
}
OVERLOAD float4 native_sincos(float4 x, private float4 *pointer) {
    float4 second;
    float4 first = __ocl_zorv_v8_sincosf4_native(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float4 native_sincos(float4 x, local float4 *pointer) {
    float4 second;
    float4 first = __ocl_zorv_v8_sincosf4_native(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float4 native_sincos(float4 x, global float4 *pointer) {
    float4 second;
    float4 first = __ocl_zorv_v8_sincosf4_native(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float8 native_sincos(float8 x, private float8 *pointer) {
    float8 second;
    float8 first = __ocl_zorv_v8_sincosf8_native(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float8 native_sincos(float8 x, local float8 *pointer) {
    float8 second;
    float8 first = __ocl_zorv_v8_sincosf8_native(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float8 native_sincos(float8 x, global float8 *pointer) {
    float8 second;
    float8 first = __ocl_zorv_v8_sincosf8_native(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float16 native_sincos(float16 x, private float16 *pointer) {
    float16 second;
    float16 first = __ocl_zorv_v8_sincosf16_native(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float16 native_sincos(float16 x, local float16 *pointer) {
    float16 second;
    float16 first = __ocl_zorv_v8_sincosf16_native(x, &second);
    *pointer = second;
    return first;
}
OVERLOAD float16 native_sincos(float16 x, global float16 *pointer) {
    float16 second;
    float16 first = __ocl_zorv_v8_sincosf16_native(x, &second);
    *pointer = second;
    return first;
}

/* cvtfptoi32rtnsatf */
OVERLOAD int convert_int_sat_rte(float x) { return __ocl_zorv_v8_cvtfptoi32rtnsatf1(x); }
OVERLOAD int2 convert_int2_sat_rte(float2 x) { return __ocl_zorv_v8_cvtfptoi32rtnsatf2(x); }
OVERLOAD int3 convert_int3_sat_rte(float3 x) { return (__ocl_zorv_v8_cvtfptoi32rtnsatf3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_sat_rte(float4 x) { return __ocl_zorv_v8_cvtfptoi32rtnsatf4(x); }
OVERLOAD int8 convert_int8_sat_rte(float8 x) { return __ocl_zorv_v8_cvtfptoi32rtnsatf8(x); }
OVERLOAD int16 convert_int16_sat_rte(float16 x) { return __ocl_zorv_v8_cvtfptoi32rtnsatf16(x); }

/* cvtfptoi32rtnsat */
OVERLOAD int convert_int_sat_rte(double x) { return __ocl_zorv_v8_cvtfptoi32rtnsat1(x); }
OVERLOAD int2 convert_int2_sat_rte(double2 x) { return __ocl_zorv_v8_cvtfptoi32rtnsat2(x); }
OVERLOAD int3 convert_int3_sat_rte(double3 x) { return (__ocl_zorv_v8_cvtfptoi32rtnsat3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_sat_rte(double4 x) { return __ocl_zorv_v8_cvtfptoi32rtnsat4(x); }
OVERLOAD int8 convert_int8_sat_rte(double8 x) { return __ocl_zorv_v8_cvtfptoi32rtnsat8(x); }
OVERLOAD int16 convert_int16_sat_rte(double16 x) { return __ocl_zorv_v8_cvtfptoi32rtnsat16(x); }

/* cvtfptoi32rtnnosatf */
OVERLOAD int convert_int_rte(float x) { return __ocl_zorv_v8_cvtfptoi32rtnnosatf1(x); }
OVERLOAD int2 convert_int2_rte(float2 x) { return __ocl_zorv_v8_cvtfptoi32rtnnosatf2(x); }
OVERLOAD int3 convert_int3_rte(float3 x) { return (__ocl_zorv_v8_cvtfptoi32rtnnosatf3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_rte(float4 x) { return __ocl_zorv_v8_cvtfptoi32rtnnosatf4(x); }
OVERLOAD int8 convert_int8_rte(float8 x) { return __ocl_zorv_v8_cvtfptoi32rtnnosatf8(x); }
OVERLOAD int16 convert_int16_rte(float16 x) { return __ocl_zorv_v8_cvtfptoi32rtnnosatf16(x); }

/* cvtfptoi32rtnnosat */
OVERLOAD int convert_int_rte(double x) { return __ocl_zorv_v8_cvtfptoi32rtnnosat1(x); }
OVERLOAD int2 convert_int2_rte(double2 x) { return __ocl_zorv_v8_cvtfptoi32rtnnosat2(x); }
OVERLOAD int3 convert_int3_rte(double3 x) { return (__ocl_zorv_v8_cvtfptoi32rtnnosat3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_rte(double4 x) { return __ocl_zorv_v8_cvtfptoi32rtnnosat4(x); }
OVERLOAD int8 convert_int8_rte(double8 x) { return __ocl_zorv_v8_cvtfptoi32rtnnosat8(x); }
OVERLOAD int16 convert_int16_rte(double16 x) { return __ocl_zorv_v8_cvtfptoi32rtnnosat16(x); }

/* cvti32tofprtnf */
OVERLOAD float convert_float_rte(int x) { return __ocl_zorv_v8_cvti32tofprtnf1(x); }
OVERLOAD float convert_float(int x) { return __ocl_zorv_v8_cvti32tofprtnf1(x); }
OVERLOAD float2 convert_float2_rte(int2 x) { return __ocl_zorv_v8_cvti32tofprtnf2(x); }
OVERLOAD float2 convert_float2(int2 x) { return __ocl_zorv_v8_cvti32tofprtnf2(x); }
OVERLOAD float3 convert_float3_rte(int3 x) { return (__ocl_zorv_v8_cvti32tofprtnf3(x.xyzz)).xyz; }
OVERLOAD float3 convert_float3(int3 x) { return (__ocl_zorv_v8_cvti32tofprtnf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rte(int4 x) { return __ocl_zorv_v8_cvti32tofprtnf4(x); }
OVERLOAD float4 convert_float4(int4 x) { return __ocl_zorv_v8_cvti32tofprtnf4(x); }
OVERLOAD float8 convert_float8_rte(int8 x) { return __ocl_zorv_v8_cvti32tofprtnf8(x); }
OVERLOAD float8 convert_float8(int8 x) { return __ocl_zorv_v8_cvti32tofprtnf8(x); }
OVERLOAD float16 convert_float16_rte(int16 x) { return __ocl_zorv_v8_cvti32tofprtnf16(x); }
OVERLOAD float16 convert_float16(int16 x) { return __ocl_zorv_v8_cvti32tofprtnf16(x); }

/* cvti32tofprtn */
OVERLOAD double convert_double_rte(int x) { return __ocl_zorv_v8_cvti32tofprtn1(x); }
OVERLOAD double convert_double(int x) { return __ocl_zorv_v8_cvti32tofprtn1(x); }
OVERLOAD double2 convert_double2_rte(int2 x) { return __ocl_zorv_v8_cvti32tofprtn2(x); }
OVERLOAD double2 convert_double2(int2 x) { return __ocl_zorv_v8_cvti32tofprtn2(x); }
OVERLOAD double3 convert_double3_rte(int3 x) { return (__ocl_zorv_v8_cvti32tofprtn3(x.xyzz)).xyz; }
OVERLOAD double3 convert_double3(int3 x) { return (__ocl_zorv_v8_cvti32tofprtn3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rte(int4 x) { return __ocl_zorv_v8_cvti32tofprtn4(x); }
OVERLOAD double4 convert_double4(int4 x) { return __ocl_zorv_v8_cvti32tofprtn4(x); }
OVERLOAD double8 convert_double8_rte(int8 x) { return __ocl_zorv_v8_cvti32tofprtn8(x); }
OVERLOAD double8 convert_double8(int8 x) { return __ocl_zorv_v8_cvti32tofprtn8(x); }
OVERLOAD double16 convert_double16_rte(int16 x) { return __ocl_zorv_v8_cvti32tofprtn16(x); }
OVERLOAD double16 convert_double16(int16 x) { return __ocl_zorv_v8_cvti32tofprtn16(x); }

/* cvtfptoi32rtzsatf */
OVERLOAD int convert_int_sat_rtz(float x) { return __ocl_zorv_v8_cvtfptoi32rtzsatf1(x); }
OVERLOAD int convert_int_sat(float x) { return __ocl_zorv_v8_cvtfptoi32rtzsatf1(x); }
OVERLOAD int2 convert_int2_sat_rtz(float2 x) { return __ocl_zorv_v8_cvtfptoi32rtzsatf2(x); }
OVERLOAD int2 convert_int2_sat(float2 x) { return __ocl_zorv_v8_cvtfptoi32rtzsatf2(x); }
OVERLOAD int3 convert_int3_sat_rtz(float3 x) { return (__ocl_zorv_v8_cvtfptoi32rtzsatf3(x.xyzz)).xyz; }
OVERLOAD int3 convert_int3_sat(float3 x) { return (__ocl_zorv_v8_cvtfptoi32rtzsatf3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_sat_rtz(float4 x) { return __ocl_zorv_v8_cvtfptoi32rtzsatf4(x); }
OVERLOAD int4 convert_int4_sat(float4 x) { return __ocl_zorv_v8_cvtfptoi32rtzsatf4(x); }
OVERLOAD int8 convert_int8_sat_rtz(float8 x) { return __ocl_zorv_v8_cvtfptoi32rtzsatf8(x); }
OVERLOAD int8 convert_int8_sat(float8 x) { return __ocl_zorv_v8_cvtfptoi32rtzsatf8(x); }
OVERLOAD int16 convert_int16_sat_rtz(float16 x) { return __ocl_zorv_v8_cvtfptoi32rtzsatf16(x); }
OVERLOAD int16 convert_int16_sat(float16 x) { return __ocl_zorv_v8_cvtfptoi32rtzsatf16(x); }

/* cvtfptoi32rtzsat */
OVERLOAD int convert_int_sat_rtz(double x) { return __ocl_zorv_v8_cvtfptoi32rtzsat1(x); }
OVERLOAD int convert_int_sat(double x) { return __ocl_zorv_v8_cvtfptoi32rtzsat1(x); }
OVERLOAD int2 convert_int2_sat_rtz(double2 x) { return __ocl_zorv_v8_cvtfptoi32rtzsat2(x); }
OVERLOAD int2 convert_int2_sat(double2 x) { return __ocl_zorv_v8_cvtfptoi32rtzsat2(x); }
OVERLOAD int3 convert_int3_sat_rtz(double3 x) { return (__ocl_zorv_v8_cvtfptoi32rtzsat3(x.xyzz)).xyz; }
OVERLOAD int3 convert_int3_sat(double3 x) { return (__ocl_zorv_v8_cvtfptoi32rtzsat3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_sat_rtz(double4 x) { return __ocl_zorv_v8_cvtfptoi32rtzsat4(x); }
OVERLOAD int4 convert_int4_sat(double4 x) { return __ocl_zorv_v8_cvtfptoi32rtzsat4(x); }
OVERLOAD int8 convert_int8_sat_rtz(double8 x) { return __ocl_zorv_v8_cvtfptoi32rtzsat8(x); }
OVERLOAD int8 convert_int8_sat(double8 x) { return __ocl_zorv_v8_cvtfptoi32rtzsat8(x); }
OVERLOAD int16 convert_int16_sat_rtz(double16 x) { return __ocl_zorv_v8_cvtfptoi32rtzsat16(x); }
OVERLOAD int16 convert_int16_sat(double16 x) { return __ocl_zorv_v8_cvtfptoi32rtzsat16(x); }

/* cvtfptoi32rtznosatf */
OVERLOAD int convert_int_rtz(float x) { return __ocl_zorv_v8_cvtfptoi32rtznosatf1(x); }
OVERLOAD int convert_int(float x) { return __ocl_zorv_v8_cvtfptoi32rtznosatf1(x); }
OVERLOAD int2 convert_int2_rtz(float2 x) { return __ocl_zorv_v8_cvtfptoi32rtznosatf2(x); }
OVERLOAD int2 convert_int2(float2 x) { return __ocl_zorv_v8_cvtfptoi32rtznosatf2(x); }
OVERLOAD int3 convert_int3_rtz(float3 x) { return (__ocl_zorv_v8_cvtfptoi32rtznosatf3(x.xyzz)).xyz; }
OVERLOAD int3 convert_int3(float3 x) { return (__ocl_zorv_v8_cvtfptoi32rtznosatf3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_rtz(float4 x) { return __ocl_zorv_v8_cvtfptoi32rtznosatf4(x); }
OVERLOAD int4 convert_int4(float4 x) { return __ocl_zorv_v8_cvtfptoi32rtznosatf4(x); }
OVERLOAD int8 convert_int8_rtz(float8 x) { return __ocl_zorv_v8_cvtfptoi32rtznosatf8(x); }
OVERLOAD int8 convert_int8(float8 x) { return __ocl_zorv_v8_cvtfptoi32rtznosatf8(x); }
OVERLOAD int16 convert_int16_rtz(float16 x) { return __ocl_zorv_v8_cvtfptoi32rtznosatf16(x); }
OVERLOAD int16 convert_int16(float16 x) { return __ocl_zorv_v8_cvtfptoi32rtznosatf16(x); }

/* cvtfptoi32rtznosat */
OVERLOAD int convert_int_rtz(double x) { return __ocl_zorv_v8_cvtfptoi32rtznosat1(x); }
OVERLOAD int convert_int(double x) { return __ocl_zorv_v8_cvtfptoi32rtznosat1(x); }
OVERLOAD int2 convert_int2_rtz(double2 x) { return __ocl_zorv_v8_cvtfptoi32rtznosat2(x); }
OVERLOAD int2 convert_int2(double2 x) { return __ocl_zorv_v8_cvtfptoi32rtznosat2(x); }
OVERLOAD int3 convert_int3_rtz(double3 x) { return (__ocl_zorv_v8_cvtfptoi32rtznosat3(x.xyzz)).xyz; }
OVERLOAD int3 convert_int3(double3 x) { return (__ocl_zorv_v8_cvtfptoi32rtznosat3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_rtz(double4 x) { return __ocl_zorv_v8_cvtfptoi32rtznosat4(x); }
OVERLOAD int4 convert_int4(double4 x) { return __ocl_zorv_v8_cvtfptoi32rtznosat4(x); }
OVERLOAD int8 convert_int8_rtz(double8 x) { return __ocl_zorv_v8_cvtfptoi32rtznosat8(x); }
OVERLOAD int8 convert_int8(double8 x) { return __ocl_zorv_v8_cvtfptoi32rtznosat8(x); }
OVERLOAD int16 convert_int16_rtz(double16 x) { return __ocl_zorv_v8_cvtfptoi32rtznosat16(x); }
OVERLOAD int16 convert_int16(double16 x) { return __ocl_zorv_v8_cvtfptoi32rtznosat16(x); }

/* cvti32tofprtzf */
OVERLOAD float convert_float_rtz(int x) { return __ocl_zorv_v8_cvti32tofprtzf1(x); }
OVERLOAD float2 convert_float2_rtz(int2 x) { return __ocl_zorv_v8_cvti32tofprtzf2(x); }
OVERLOAD float3 convert_float3_rtz(int3 x) { return (__ocl_zorv_v8_cvti32tofprtzf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rtz(int4 x) { return __ocl_zorv_v8_cvti32tofprtzf4(x); }
OVERLOAD float8 convert_float8_rtz(int8 x) { return __ocl_zorv_v8_cvti32tofprtzf8(x); }
OVERLOAD float16 convert_float16_rtz(int16 x) { return __ocl_zorv_v8_cvti32tofprtzf16(x); }

/* cvti32tofprtz */
OVERLOAD double convert_double_rtz(int x) { return __ocl_zorv_v8_cvti32tofprtz1(x); }
OVERLOAD double2 convert_double2_rtz(int2 x) { return __ocl_zorv_v8_cvti32tofprtz2(x); }
OVERLOAD double3 convert_double3_rtz(int3 x) { return (__ocl_zorv_v8_cvti32tofprtz3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rtz(int4 x) { return __ocl_zorv_v8_cvti32tofprtz4(x); }
OVERLOAD double8 convert_double8_rtz(int8 x) { return __ocl_zorv_v8_cvti32tofprtz8(x); }
OVERLOAD double16 convert_double16_rtz(int16 x) { return __ocl_zorv_v8_cvti32tofprtz16(x); }

/* cvtfptoi32upsatf */
OVERLOAD int convert_int_sat_rtp(float x) { return __ocl_zorv_v8_cvtfptoi32upsatf1(x); }
OVERLOAD int2 convert_int2_sat_rtp(float2 x) { return __ocl_zorv_v8_cvtfptoi32upsatf2(x); }
OVERLOAD int3 convert_int3_sat_rtp(float3 x) { return (__ocl_zorv_v8_cvtfptoi32upsatf3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_sat_rtp(float4 x) { return __ocl_zorv_v8_cvtfptoi32upsatf4(x); }
OVERLOAD int8 convert_int8_sat_rtp(float8 x) { return __ocl_zorv_v8_cvtfptoi32upsatf8(x); }
OVERLOAD int16 convert_int16_sat_rtp(float16 x) { return __ocl_zorv_v8_cvtfptoi32upsatf16(x); }

/* cvtfptoi32upsat */
OVERLOAD int convert_int_sat_rtp(double x) { return __ocl_zorv_v8_cvtfptoi32upsat1(x); }
OVERLOAD int2 convert_int2_sat_rtp(double2 x) { return __ocl_zorv_v8_cvtfptoi32upsat2(x); }
OVERLOAD int3 convert_int3_sat_rtp(double3 x) { return (__ocl_zorv_v8_cvtfptoi32upsat3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_sat_rtp(double4 x) { return __ocl_zorv_v8_cvtfptoi32upsat4(x); }
OVERLOAD int8 convert_int8_sat_rtp(double8 x) { return __ocl_zorv_v8_cvtfptoi32upsat8(x); }
OVERLOAD int16 convert_int16_sat_rtp(double16 x) { return __ocl_zorv_v8_cvtfptoi32upsat16(x); }

/* cvtfptoi32upnosatf */
OVERLOAD int convert_int_rtp(float x) { return __ocl_zorv_v8_cvtfptoi32upnosatf1(x); }
OVERLOAD int2 convert_int2_rtp(float2 x) { return __ocl_zorv_v8_cvtfptoi32upnosatf2(x); }
OVERLOAD int3 convert_int3_rtp(float3 x) { return (__ocl_zorv_v8_cvtfptoi32upnosatf3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_rtp(float4 x) { return __ocl_zorv_v8_cvtfptoi32upnosatf4(x); }
OVERLOAD int8 convert_int8_rtp(float8 x) { return __ocl_zorv_v8_cvtfptoi32upnosatf8(x); }
OVERLOAD int16 convert_int16_rtp(float16 x) { return __ocl_zorv_v8_cvtfptoi32upnosatf16(x); }

/* cvtfptoi32upnosat */
OVERLOAD int convert_int_rtp(double x) { return __ocl_zorv_v8_cvtfptoi32upnosat1(x); }
OVERLOAD int2 convert_int2_rtp(double2 x) { return __ocl_zorv_v8_cvtfptoi32upnosat2(x); }
OVERLOAD int3 convert_int3_rtp(double3 x) { return (__ocl_zorv_v8_cvtfptoi32upnosat3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_rtp(double4 x) { return __ocl_zorv_v8_cvtfptoi32upnosat4(x); }
OVERLOAD int8 convert_int8_rtp(double8 x) { return __ocl_zorv_v8_cvtfptoi32upnosat8(x); }
OVERLOAD int16 convert_int16_rtp(double16 x) { return __ocl_zorv_v8_cvtfptoi32upnosat16(x); }

/* cvti32tofpupf */
OVERLOAD float convert_float_rtp(int x) { return __ocl_zorv_v8_cvti32tofpupf1(x); }
OVERLOAD float2 convert_float2_rtp(int2 x) { return __ocl_zorv_v8_cvti32tofpupf2(x); }
OVERLOAD float3 convert_float3_rtp(int3 x) { return (__ocl_zorv_v8_cvti32tofpupf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rtp(int4 x) { return __ocl_zorv_v8_cvti32tofpupf4(x); }
OVERLOAD float8 convert_float8_rtp(int8 x) { return __ocl_zorv_v8_cvti32tofpupf8(x); }
OVERLOAD float16 convert_float16_rtp(int16 x) { return __ocl_zorv_v8_cvti32tofpupf16(x); }

/* cvti32tofpup */
OVERLOAD double convert_double_rtp(int x) { return __ocl_zorv_v8_cvti32tofpup1(x); }
OVERLOAD double2 convert_double2_rtp(int2 x) { return __ocl_zorv_v8_cvti32tofpup2(x); }
OVERLOAD double3 convert_double3_rtp(int3 x) { return (__ocl_zorv_v8_cvti32tofpup3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rtp(int4 x) { return __ocl_zorv_v8_cvti32tofpup4(x); }
OVERLOAD double8 convert_double8_rtp(int8 x) { return __ocl_zorv_v8_cvti32tofpup8(x); }
OVERLOAD double16 convert_double16_rtp(int16 x) { return __ocl_zorv_v8_cvti32tofpup16(x); }

/* cvtfptoi32downsatf */
OVERLOAD int convert_int_sat_rtn(float x) { return __ocl_zorv_v8_cvtfptoi32downsatf1(x); }
OVERLOAD int2 convert_int2_sat_rtn(float2 x) { return __ocl_zorv_v8_cvtfptoi32downsatf2(x); }
OVERLOAD int3 convert_int3_sat_rtn(float3 x) { return (__ocl_zorv_v8_cvtfptoi32downsatf3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_sat_rtn(float4 x) { return __ocl_zorv_v8_cvtfptoi32downsatf4(x); }
OVERLOAD int8 convert_int8_sat_rtn(float8 x) { return __ocl_zorv_v8_cvtfptoi32downsatf8(x); }
OVERLOAD int16 convert_int16_sat_rtn(float16 x) { return __ocl_zorv_v8_cvtfptoi32downsatf16(x); }

/* cvtfptoi32downsat */
OVERLOAD int convert_int_sat_rtn(double x) { return __ocl_zorv_v8_cvtfptoi32downsat1(x); }
OVERLOAD int2 convert_int2_sat_rtn(double2 x) { return __ocl_zorv_v8_cvtfptoi32downsat2(x); }
OVERLOAD int3 convert_int3_sat_rtn(double3 x) { return (__ocl_zorv_v8_cvtfptoi32downsat3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_sat_rtn(double4 x) { return __ocl_zorv_v8_cvtfptoi32downsat4(x); }
OVERLOAD int8 convert_int8_sat_rtn(double8 x) { return __ocl_zorv_v8_cvtfptoi32downsat8(x); }
OVERLOAD int16 convert_int16_sat_rtn(double16 x) { return __ocl_zorv_v8_cvtfptoi32downsat16(x); }

/* cvtfptoi32downnosatf */
OVERLOAD int convert_int_rtn(float x) { return __ocl_zorv_v8_cvtfptoi32downnosatf1(x); }
OVERLOAD int2 convert_int2_rtn(float2 x) { return __ocl_zorv_v8_cvtfptoi32downnosatf2(x); }
OVERLOAD int3 convert_int3_rtn(float3 x) { return (__ocl_zorv_v8_cvtfptoi32downnosatf3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_rtn(float4 x) { return __ocl_zorv_v8_cvtfptoi32downnosatf4(x); }
OVERLOAD int8 convert_int8_rtn(float8 x) { return __ocl_zorv_v8_cvtfptoi32downnosatf8(x); }
OVERLOAD int16 convert_int16_rtn(float16 x) { return __ocl_zorv_v8_cvtfptoi32downnosatf16(x); }

/* cvtfptoi32downnosat */
OVERLOAD int convert_int_rtn(double x) { return __ocl_zorv_v8_cvtfptoi32downnosat1(x); }
OVERLOAD int2 convert_int2_rtn(double2 x) { return __ocl_zorv_v8_cvtfptoi32downnosat2(x); }
OVERLOAD int3 convert_int3_rtn(double3 x) { return (__ocl_zorv_v8_cvtfptoi32downnosat3(x.xyzz)).xyz; }
OVERLOAD int4 convert_int4_rtn(double4 x) { return __ocl_zorv_v8_cvtfptoi32downnosat4(x); }
OVERLOAD int8 convert_int8_rtn(double8 x) { return __ocl_zorv_v8_cvtfptoi32downnosat8(x); }
OVERLOAD int16 convert_int16_rtn(double16 x) { return __ocl_zorv_v8_cvtfptoi32downnosat16(x); }

/* cvti32tofpdownf */
OVERLOAD float convert_float_rtn(int x) { return __ocl_zorv_v8_cvti32tofpdownf1(x); }
OVERLOAD float2 convert_float2_rtn(int2 x) { return __ocl_zorv_v8_cvti32tofpdownf2(x); }
OVERLOAD float3 convert_float3_rtn(int3 x) { return (__ocl_zorv_v8_cvti32tofpdownf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rtn(int4 x) { return __ocl_zorv_v8_cvti32tofpdownf4(x); }
OVERLOAD float8 convert_float8_rtn(int8 x) { return __ocl_zorv_v8_cvti32tofpdownf8(x); }
OVERLOAD float16 convert_float16_rtn(int16 x) { return __ocl_zorv_v8_cvti32tofpdownf16(x); }

/* cvti32tofpdown */
OVERLOAD double convert_double_rtn(int x) { return __ocl_zorv_v8_cvti32tofpdown1(x); }
OVERLOAD double2 convert_double2_rtn(int2 x) { return __ocl_zorv_v8_cvti32tofpdown2(x); }
OVERLOAD double3 convert_double3_rtn(int3 x) { return (__ocl_zorv_v8_cvti32tofpdown3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rtn(int4 x) { return __ocl_zorv_v8_cvti32tofpdown4(x); }
OVERLOAD double8 convert_double8_rtn(int8 x) { return __ocl_zorv_v8_cvti32tofpdown8(x); }
OVERLOAD double16 convert_double16_rtn(int16 x) { return __ocl_zorv_v8_cvti32tofpdown16(x); }

/* cvtfptou32rtnsatf */
OVERLOAD uint convert_uint_sat_rte(float x) { return __ocl_zorv_v8_cvtfptou32rtnsatf1(x); }
OVERLOAD uint2 convert_uint2_sat_rte(float2 x) { return __ocl_zorv_v8_cvtfptou32rtnsatf2(x); }
OVERLOAD uint3 convert_uint3_sat_rte(float3 x) { return (__ocl_zorv_v8_cvtfptou32rtnsatf3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_sat_rte(float4 x) { return __ocl_zorv_v8_cvtfptou32rtnsatf4(x); }
OVERLOAD uint8 convert_uint8_sat_rte(float8 x) { return __ocl_zorv_v8_cvtfptou32rtnsatf8(x); }
OVERLOAD uint16 convert_uint16_sat_rte(float16 x) { return __ocl_zorv_v8_cvtfptou32rtnsatf16(x); }

/* cvtfptou32rtnsat */
OVERLOAD uint convert_uint_sat_rte(double x) { return __ocl_zorv_v8_cvtfptou32rtnsat1(x); }
OVERLOAD uint2 convert_uint2_sat_rte(double2 x) { return __ocl_zorv_v8_cvtfptou32rtnsat2(x); }
OVERLOAD uint3 convert_uint3_sat_rte(double3 x) { return (__ocl_zorv_v8_cvtfptou32rtnsat3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_sat_rte(double4 x) { return __ocl_zorv_v8_cvtfptou32rtnsat4(x); }
OVERLOAD uint8 convert_uint8_sat_rte(double8 x) { return __ocl_zorv_v8_cvtfptou32rtnsat8(x); }
OVERLOAD uint16 convert_uint16_sat_rte(double16 x) { return __ocl_zorv_v8_cvtfptou32rtnsat16(x); }

/* cvtfptou32rtnnosatf */
OVERLOAD uint convert_uint_rte(float x) { return __ocl_zorv_v8_cvtfptou32rtnnosatf1(x); }
OVERLOAD uint2 convert_uint2_rte(float2 x) { return __ocl_zorv_v8_cvtfptou32rtnnosatf2(x); }
OVERLOAD uint3 convert_uint3_rte(float3 x) { return (__ocl_zorv_v8_cvtfptou32rtnnosatf3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_rte(float4 x) { return __ocl_zorv_v8_cvtfptou32rtnnosatf4(x); }
OVERLOAD uint8 convert_uint8_rte(float8 x) { return __ocl_zorv_v8_cvtfptou32rtnnosatf8(x); }
OVERLOAD uint16 convert_uint16_rte(float16 x) { return __ocl_zorv_v8_cvtfptou32rtnnosatf16(x); }

/* cvtfptou32rtnnosat */
OVERLOAD uint convert_uint_rte(double x) { return __ocl_zorv_v8_cvtfptou32rtnnosat1(x); }
OVERLOAD uint2 convert_uint2_rte(double2 x) { return __ocl_zorv_v8_cvtfptou32rtnnosat2(x); }
OVERLOAD uint3 convert_uint3_rte(double3 x) { return (__ocl_zorv_v8_cvtfptou32rtnnosat3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_rte(double4 x) { return __ocl_zorv_v8_cvtfptou32rtnnosat4(x); }
OVERLOAD uint8 convert_uint8_rte(double8 x) { return __ocl_zorv_v8_cvtfptou32rtnnosat8(x); }
OVERLOAD uint16 convert_uint16_rte(double16 x) { return __ocl_zorv_v8_cvtfptou32rtnnosat16(x); }

/* cvtu32tofprtnf */
OVERLOAD float convert_float_rte(uint x) { return __ocl_zorv_v8_cvtu32tofprtnf1(x); }
OVERLOAD float convert_float(uint x) { return __ocl_zorv_v8_cvtu32tofprtnf1(x); }
OVERLOAD float2 convert_float2_rte(uint2 x) { return __ocl_zorv_v8_cvtu32tofprtnf2(x); }
OVERLOAD float2 convert_float2(uint2 x) { return __ocl_zorv_v8_cvtu32tofprtnf2(x); }
OVERLOAD float3 convert_float3_rte(uint3 x) { return (__ocl_zorv_v8_cvtu32tofprtnf3(x.xyzz)).xyz; }
OVERLOAD float3 convert_float3(uint3 x) { return (__ocl_zorv_v8_cvtu32tofprtnf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rte(uint4 x) { return __ocl_zorv_v8_cvtu32tofprtnf4(x); }
OVERLOAD float4 convert_float4(uint4 x) { return __ocl_zorv_v8_cvtu32tofprtnf4(x); }
OVERLOAD float8 convert_float8_rte(uint8 x) { return __ocl_zorv_v8_cvtu32tofprtnf8(x); }
OVERLOAD float8 convert_float8(uint8 x) { return __ocl_zorv_v8_cvtu32tofprtnf8(x); }
OVERLOAD float16 convert_float16_rte(uint16 x) { return __ocl_zorv_v8_cvtu32tofprtnf16(x); }
OVERLOAD float16 convert_float16(uint16 x) { return __ocl_zorv_v8_cvtu32tofprtnf16(x); }

/* cvtu32tofprtn */
OVERLOAD double convert_double_rte(uint x) { return __ocl_zorv_v8_cvtu32tofprtn1(x); }
OVERLOAD double convert_double(uint x) { return __ocl_zorv_v8_cvtu32tofprtn1(x); }
OVERLOAD double2 convert_double2_rte(uint2 x) { return __ocl_zorv_v8_cvtu32tofprtn2(x); }
OVERLOAD double2 convert_double2(uint2 x) { return __ocl_zorv_v8_cvtu32tofprtn2(x); }
OVERLOAD double3 convert_double3_rte(uint3 x) { return (__ocl_zorv_v8_cvtu32tofprtn3(x.xyzz)).xyz; }
OVERLOAD double3 convert_double3(uint3 x) { return (__ocl_zorv_v8_cvtu32tofprtn3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rte(uint4 x) { return __ocl_zorv_v8_cvtu32tofprtn4(x); }
OVERLOAD double4 convert_double4(uint4 x) { return __ocl_zorv_v8_cvtu32tofprtn4(x); }
OVERLOAD double8 convert_double8_rte(uint8 x) { return __ocl_zorv_v8_cvtu32tofprtn8(x); }
OVERLOAD double8 convert_double8(uint8 x) { return __ocl_zorv_v8_cvtu32tofprtn8(x); }
OVERLOAD double16 convert_double16_rte(uint16 x) { return __ocl_zorv_v8_cvtu32tofprtn16(x); }
OVERLOAD double16 convert_double16(uint16 x) { return __ocl_zorv_v8_cvtu32tofprtn16(x); }

/* cvtfptou32rtzsatf */
OVERLOAD uint convert_uint_sat_rtz(float x) { return __ocl_zorv_v8_cvtfptou32rtzsatf1(x); }
OVERLOAD uint convert_uint_sat(float x) { return __ocl_zorv_v8_cvtfptou32rtzsatf1(x); }
OVERLOAD uint2 convert_uint2_sat_rtz(float2 x) { return __ocl_zorv_v8_cvtfptou32rtzsatf2(x); }
OVERLOAD uint2 convert_uint2_sat(float2 x) { return __ocl_zorv_v8_cvtfptou32rtzsatf2(x); }
OVERLOAD uint3 convert_uint3_sat_rtz(float3 x) { return (__ocl_zorv_v8_cvtfptou32rtzsatf3(x.xyzz)).xyz; }
OVERLOAD uint3 convert_uint3_sat(float3 x) { return (__ocl_zorv_v8_cvtfptou32rtzsatf3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_sat_rtz(float4 x) { return __ocl_zorv_v8_cvtfptou32rtzsatf4(x); }
OVERLOAD uint4 convert_uint4_sat(float4 x) { return __ocl_zorv_v8_cvtfptou32rtzsatf4(x); }
OVERLOAD uint8 convert_uint8_sat_rtz(float8 x) { return __ocl_zorv_v8_cvtfptou32rtzsatf8(x); }
OVERLOAD uint8 convert_uint8_sat(float8 x) { return __ocl_zorv_v8_cvtfptou32rtzsatf8(x); }
OVERLOAD uint16 convert_uint16_sat_rtz(float16 x) { return __ocl_zorv_v8_cvtfptou32rtzsatf16(x); }
OVERLOAD uint16 convert_uint16_sat(float16 x) { return __ocl_zorv_v8_cvtfptou32rtzsatf16(x); }

/* cvtfptou32rtzsat */
OVERLOAD uint convert_uint_sat_rtz(double x) { return __ocl_zorv_v8_cvtfptou32rtzsat1(x); }
OVERLOAD uint convert_uint_sat(double x) { return __ocl_zorv_v8_cvtfptou32rtzsat1(x); }
OVERLOAD uint2 convert_uint2_sat_rtz(double2 x) { return __ocl_zorv_v8_cvtfptou32rtzsat2(x); }
OVERLOAD uint2 convert_uint2_sat(double2 x) { return __ocl_zorv_v8_cvtfptou32rtzsat2(x); }
OVERLOAD uint3 convert_uint3_sat_rtz(double3 x) { return (__ocl_zorv_v8_cvtfptou32rtzsat3(x.xyzz)).xyz; }
OVERLOAD uint3 convert_uint3_sat(double3 x) { return (__ocl_zorv_v8_cvtfptou32rtzsat3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_sat_rtz(double4 x) { return __ocl_zorv_v8_cvtfptou32rtzsat4(x); }
OVERLOAD uint4 convert_uint4_sat(double4 x) { return __ocl_zorv_v8_cvtfptou32rtzsat4(x); }
OVERLOAD uint8 convert_uint8_sat_rtz(double8 x) { return __ocl_zorv_v8_cvtfptou32rtzsat8(x); }
OVERLOAD uint8 convert_uint8_sat(double8 x) { return __ocl_zorv_v8_cvtfptou32rtzsat8(x); }
OVERLOAD uint16 convert_uint16_sat_rtz(double16 x) { return __ocl_zorv_v8_cvtfptou32rtzsat16(x); }
OVERLOAD uint16 convert_uint16_sat(double16 x) { return __ocl_zorv_v8_cvtfptou32rtzsat16(x); }

/* cvtfptou32rtznosatf */
OVERLOAD uint convert_uint_rtz(float x) { return __ocl_zorv_v8_cvtfptou32rtznosatf1(x); }
OVERLOAD uint convert_uint(float x) { return __ocl_zorv_v8_cvtfptou32rtznosatf1(x); }
OVERLOAD uint2 convert_uint2_rtz(float2 x) { return __ocl_zorv_v8_cvtfptou32rtznosatf2(x); }
OVERLOAD uint2 convert_uint2(float2 x) { return __ocl_zorv_v8_cvtfptou32rtznosatf2(x); }
OVERLOAD uint3 convert_uint3_rtz(float3 x) { return (__ocl_zorv_v8_cvtfptou32rtznosatf3(x.xyzz)).xyz; }
OVERLOAD uint3 convert_uint3(float3 x) { return (__ocl_zorv_v8_cvtfptou32rtznosatf3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_rtz(float4 x) { return __ocl_zorv_v8_cvtfptou32rtznosatf4(x); }
OVERLOAD uint4 convert_uint4(float4 x) { return __ocl_zorv_v8_cvtfptou32rtznosatf4(x); }
OVERLOAD uint8 convert_uint8_rtz(float8 x) { return __ocl_zorv_v8_cvtfptou32rtznosatf8(x); }
OVERLOAD uint8 convert_uint8(float8 x) { return __ocl_zorv_v8_cvtfptou32rtznosatf8(x); }
OVERLOAD uint16 convert_uint16_rtz(float16 x) { return __ocl_zorv_v8_cvtfptou32rtznosatf16(x); }
OVERLOAD uint16 convert_uint16(float16 x) { return __ocl_zorv_v8_cvtfptou32rtznosatf16(x); }

/* cvtfptou32rtznosat */
OVERLOAD uint convert_uint_rtz(double x) { return __ocl_zorv_v8_cvtfptou32rtznosat1(x); }
OVERLOAD uint convert_uint(double x) { return __ocl_zorv_v8_cvtfptou32rtznosat1(x); }
OVERLOAD uint2 convert_uint2_rtz(double2 x) { return __ocl_zorv_v8_cvtfptou32rtznosat2(x); }
OVERLOAD uint2 convert_uint2(double2 x) { return __ocl_zorv_v8_cvtfptou32rtznosat2(x); }
OVERLOAD uint3 convert_uint3_rtz(double3 x) { return (__ocl_zorv_v8_cvtfptou32rtznosat3(x.xyzz)).xyz; }
OVERLOAD uint3 convert_uint3(double3 x) { return (__ocl_zorv_v8_cvtfptou32rtznosat3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_rtz(double4 x) { return __ocl_zorv_v8_cvtfptou32rtznosat4(x); }
OVERLOAD uint4 convert_uint4(double4 x) { return __ocl_zorv_v8_cvtfptou32rtznosat4(x); }
OVERLOAD uint8 convert_uint8_rtz(double8 x) { return __ocl_zorv_v8_cvtfptou32rtznosat8(x); }
OVERLOAD uint8 convert_uint8(double8 x) { return __ocl_zorv_v8_cvtfptou32rtznosat8(x); }
OVERLOAD uint16 convert_uint16_rtz(double16 x) { return __ocl_zorv_v8_cvtfptou32rtznosat16(x); }
OVERLOAD uint16 convert_uint16(double16 x) { return __ocl_zorv_v8_cvtfptou32rtznosat16(x); }

/* cvtu32tofprtzf */
OVERLOAD float convert_float_rtz(uint x) { return __ocl_zorv_v8_cvtu32tofprtzf1(x); }
OVERLOAD float2 convert_float2_rtz(uint2 x) { return __ocl_zorv_v8_cvtu32tofprtzf2(x); }
OVERLOAD float3 convert_float3_rtz(uint3 x) { return (__ocl_zorv_v8_cvtu32tofprtzf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rtz(uint4 x) { return __ocl_zorv_v8_cvtu32tofprtzf4(x); }
OVERLOAD float8 convert_float8_rtz(uint8 x) { return __ocl_zorv_v8_cvtu32tofprtzf8(x); }
OVERLOAD float16 convert_float16_rtz(uint16 x) { return __ocl_zorv_v8_cvtu32tofprtzf16(x); }

/* cvtu32tofprtz */
OVERLOAD double convert_double_rtz(uint x) { return __ocl_zorv_v8_cvtu32tofprtz1(x); }
OVERLOAD double2 convert_double2_rtz(uint2 x) { return __ocl_zorv_v8_cvtu32tofprtz2(x); }
OVERLOAD double3 convert_double3_rtz(uint3 x) { return (__ocl_zorv_v8_cvtu32tofprtz3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rtz(uint4 x) { return __ocl_zorv_v8_cvtu32tofprtz4(x); }
OVERLOAD double8 convert_double8_rtz(uint8 x) { return __ocl_zorv_v8_cvtu32tofprtz8(x); }
OVERLOAD double16 convert_double16_rtz(uint16 x) { return __ocl_zorv_v8_cvtu32tofprtz16(x); }

/* cvtfptou32upsatf */
OVERLOAD uint convert_uint_sat_rtp(float x) { return __ocl_zorv_v8_cvtfptou32upsatf1(x); }
OVERLOAD uint2 convert_uint2_sat_rtp(float2 x) { return __ocl_zorv_v8_cvtfptou32upsatf2(x); }
OVERLOAD uint3 convert_uint3_sat_rtp(float3 x) { return (__ocl_zorv_v8_cvtfptou32upsatf3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_sat_rtp(float4 x) { return __ocl_zorv_v8_cvtfptou32upsatf4(x); }
OVERLOAD uint8 convert_uint8_sat_rtp(float8 x) { return __ocl_zorv_v8_cvtfptou32upsatf8(x); }
OVERLOAD uint16 convert_uint16_sat_rtp(float16 x) { return __ocl_zorv_v8_cvtfptou32upsatf16(x); }

/* cvtfptou32upsat */
OVERLOAD uint convert_uint_sat_rtp(double x) { return __ocl_zorv_v8_cvtfptou32upsat1(x); }
OVERLOAD uint2 convert_uint2_sat_rtp(double2 x) { return __ocl_zorv_v8_cvtfptou32upsat2(x); }
OVERLOAD uint3 convert_uint3_sat_rtp(double3 x) { return (__ocl_zorv_v8_cvtfptou32upsat3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_sat_rtp(double4 x) { return __ocl_zorv_v8_cvtfptou32upsat4(x); }
OVERLOAD uint8 convert_uint8_sat_rtp(double8 x) { return __ocl_zorv_v8_cvtfptou32upsat8(x); }
OVERLOAD uint16 convert_uint16_sat_rtp(double16 x) { return __ocl_zorv_v8_cvtfptou32upsat16(x); }

/* cvtfptou32upnosatf */
OVERLOAD uint convert_uint_rtp(float x) { return __ocl_zorv_v8_cvtfptou32upnosatf1(x); }
OVERLOAD uint2 convert_uint2_rtp(float2 x) { return __ocl_zorv_v8_cvtfptou32upnosatf2(x); }
OVERLOAD uint3 convert_uint3_rtp(float3 x) { return (__ocl_zorv_v8_cvtfptou32upnosatf3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_rtp(float4 x) { return __ocl_zorv_v8_cvtfptou32upnosatf4(x); }
OVERLOAD uint8 convert_uint8_rtp(float8 x) { return __ocl_zorv_v8_cvtfptou32upnosatf8(x); }
OVERLOAD uint16 convert_uint16_rtp(float16 x) { return __ocl_zorv_v8_cvtfptou32upnosatf16(x); }

/* cvtfptou32upnosat */
OVERLOAD uint convert_uint_rtp(double x) { return __ocl_zorv_v8_cvtfptou32upnosat1(x); }
OVERLOAD uint2 convert_uint2_rtp(double2 x) { return __ocl_zorv_v8_cvtfptou32upnosat2(x); }
OVERLOAD uint3 convert_uint3_rtp(double3 x) { return (__ocl_zorv_v8_cvtfptou32upnosat3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_rtp(double4 x) { return __ocl_zorv_v8_cvtfptou32upnosat4(x); }
OVERLOAD uint8 convert_uint8_rtp(double8 x) { return __ocl_zorv_v8_cvtfptou32upnosat8(x); }
OVERLOAD uint16 convert_uint16_rtp(double16 x) { return __ocl_zorv_v8_cvtfptou32upnosat16(x); }

/* cvtu32tofpupf */
OVERLOAD float convert_float_rtp(uint x) { return __ocl_zorv_v8_cvtu32tofpupf1(x); }
OVERLOAD float2 convert_float2_rtp(uint2 x) { return __ocl_zorv_v8_cvtu32tofpupf2(x); }
OVERLOAD float3 convert_float3_rtp(uint3 x) { return (__ocl_zorv_v8_cvtu32tofpupf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rtp(uint4 x) { return __ocl_zorv_v8_cvtu32tofpupf4(x); }
OVERLOAD float8 convert_float8_rtp(uint8 x) { return __ocl_zorv_v8_cvtu32tofpupf8(x); }
OVERLOAD float16 convert_float16_rtp(uint16 x) { return __ocl_zorv_v8_cvtu32tofpupf16(x); }

/* cvtu32tofpup */
OVERLOAD double convert_double_rtp(uint x) { return __ocl_zorv_v8_cvtu32tofpup1(x); }
OVERLOAD double2 convert_double2_rtp(uint2 x) { return __ocl_zorv_v8_cvtu32tofpup2(x); }
OVERLOAD double3 convert_double3_rtp(uint3 x) { return (__ocl_zorv_v8_cvtu32tofpup3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rtp(uint4 x) { return __ocl_zorv_v8_cvtu32tofpup4(x); }
OVERLOAD double8 convert_double8_rtp(uint8 x) { return __ocl_zorv_v8_cvtu32tofpup8(x); }
OVERLOAD double16 convert_double16_rtp(uint16 x) { return __ocl_zorv_v8_cvtu32tofpup16(x); }

/* cvtfptou32downsatf */
OVERLOAD uint convert_uint_sat_rtn(float x) { return __ocl_zorv_v8_cvtfptou32downsatf1(x); }
OVERLOAD uint2 convert_uint2_sat_rtn(float2 x) { return __ocl_zorv_v8_cvtfptou32downsatf2(x); }
OVERLOAD uint3 convert_uint3_sat_rtn(float3 x) { return (__ocl_zorv_v8_cvtfptou32downsatf3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_sat_rtn(float4 x) { return __ocl_zorv_v8_cvtfptou32downsatf4(x); }
OVERLOAD uint8 convert_uint8_sat_rtn(float8 x) { return __ocl_zorv_v8_cvtfptou32downsatf8(x); }
OVERLOAD uint16 convert_uint16_sat_rtn(float16 x) { return __ocl_zorv_v8_cvtfptou32downsatf16(x); }

/* cvtfptou32downsat */
OVERLOAD uint convert_uint_sat_rtn(double x) { return __ocl_zorv_v8_cvtfptou32downsat1(x); }
OVERLOAD uint2 convert_uint2_sat_rtn(double2 x) { return __ocl_zorv_v8_cvtfptou32downsat2(x); }
OVERLOAD uint3 convert_uint3_sat_rtn(double3 x) { return (__ocl_zorv_v8_cvtfptou32downsat3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_sat_rtn(double4 x) { return __ocl_zorv_v8_cvtfptou32downsat4(x); }
OVERLOAD uint8 convert_uint8_sat_rtn(double8 x) { return __ocl_zorv_v8_cvtfptou32downsat8(x); }
OVERLOAD uint16 convert_uint16_sat_rtn(double16 x) { return __ocl_zorv_v8_cvtfptou32downsat16(x); }

/* cvtfptou32downnosatf */
OVERLOAD uint convert_uint_rtn(float x) { return __ocl_zorv_v8_cvtfptou32downnosatf1(x); }
OVERLOAD uint2 convert_uint2_rtn(float2 x) { return __ocl_zorv_v8_cvtfptou32downnosatf2(x); }
OVERLOAD uint3 convert_uint3_rtn(float3 x) { return (__ocl_zorv_v8_cvtfptou32downnosatf3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_rtn(float4 x) { return __ocl_zorv_v8_cvtfptou32downnosatf4(x); }
OVERLOAD uint8 convert_uint8_rtn(float8 x) { return __ocl_zorv_v8_cvtfptou32downnosatf8(x); }
OVERLOAD uint16 convert_uint16_rtn(float16 x) { return __ocl_zorv_v8_cvtfptou32downnosatf16(x); }

/* cvtfptou32downnosat */
OVERLOAD uint convert_uint_rtn(double x) { return __ocl_zorv_v8_cvtfptou32downnosat1(x); }
OVERLOAD uint2 convert_uint2_rtn(double2 x) { return __ocl_zorv_v8_cvtfptou32downnosat2(x); }
OVERLOAD uint3 convert_uint3_rtn(double3 x) { return (__ocl_zorv_v8_cvtfptou32downnosat3(x.xyzz)).xyz; }
OVERLOAD uint4 convert_uint4_rtn(double4 x) { return __ocl_zorv_v8_cvtfptou32downnosat4(x); }
OVERLOAD uint8 convert_uint8_rtn(double8 x) { return __ocl_zorv_v8_cvtfptou32downnosat8(x); }
OVERLOAD uint16 convert_uint16_rtn(double16 x) { return __ocl_zorv_v8_cvtfptou32downnosat16(x); }

/* cvtu32tofpdownf */
OVERLOAD float convert_float_rtn(uint x) { return __ocl_zorv_v8_cvtu32tofpdownf1(x); }
OVERLOAD float2 convert_float2_rtn(uint2 x) { return __ocl_zorv_v8_cvtu32tofpdownf2(x); }
OVERLOAD float3 convert_float3_rtn(uint3 x) { return (__ocl_zorv_v8_cvtu32tofpdownf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rtn(uint4 x) { return __ocl_zorv_v8_cvtu32tofpdownf4(x); }
OVERLOAD float8 convert_float8_rtn(uint8 x) { return __ocl_zorv_v8_cvtu32tofpdownf8(x); }
OVERLOAD float16 convert_float16_rtn(uint16 x) { return __ocl_zorv_v8_cvtu32tofpdownf16(x); }

/* cvtu32tofpdown */
OVERLOAD double convert_double_rtn(uint x) { return __ocl_zorv_v8_cvtu32tofpdown1(x); }
OVERLOAD double2 convert_double2_rtn(uint2 x) { return __ocl_zorv_v8_cvtu32tofpdown2(x); }
OVERLOAD double3 convert_double3_rtn(uint3 x) { return (__ocl_zorv_v8_cvtu32tofpdown3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rtn(uint4 x) { return __ocl_zorv_v8_cvtu32tofpdown4(x); }
OVERLOAD double8 convert_double8_rtn(uint8 x) { return __ocl_zorv_v8_cvtu32tofpdown8(x); }
OVERLOAD double16 convert_double16_rtn(uint16 x) { return __ocl_zorv_v8_cvtu32tofpdown16(x); }

/* cvtfptoi64rtnsatf */
OVERLOAD long convert_long_sat_rte(float x) { return __ocl_zorv_v8_cvtfptoi64rtnsatf1(x); }
OVERLOAD long2 convert_long2_sat_rte(float2 x) { return __ocl_zorv_v8_cvtfptoi64rtnsatf2(x); }
OVERLOAD long3 convert_long3_sat_rte(float3 x) { return (__ocl_zorv_v8_cvtfptoi64rtnsatf3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_sat_rte(float4 x) { return __ocl_zorv_v8_cvtfptoi64rtnsatf4(x); }
OVERLOAD long8 convert_long8_sat_rte(float8 x) { return __ocl_zorv_v8_cvtfptoi64rtnsatf8(x); }
OVERLOAD long16 convert_long16_sat_rte(float16 x) { return __ocl_zorv_v8_cvtfptoi64rtnsatf16(x); }

/* cvtfptoi64rtnsat */
OVERLOAD long convert_long_sat_rte(double x) { return __ocl_zorv_v8_cvtfptoi64rtnsat1(x); }
OVERLOAD long2 convert_long2_sat_rte(double2 x) { return __ocl_zorv_v8_cvtfptoi64rtnsat2(x); }
OVERLOAD long3 convert_long3_sat_rte(double3 x) { return (__ocl_zorv_v8_cvtfptoi64rtnsat3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_sat_rte(double4 x) { return __ocl_zorv_v8_cvtfptoi64rtnsat4(x); }
OVERLOAD long8 convert_long8_sat_rte(double8 x) { return __ocl_zorv_v8_cvtfptoi64rtnsat8(x); }
OVERLOAD long16 convert_long16_sat_rte(double16 x) { return __ocl_zorv_v8_cvtfptoi64rtnsat16(x); }

/* cvtfptoi64rtnnosatf */
OVERLOAD long convert_long_rte(float x) { return __ocl_zorv_v8_cvtfptoi64rtnnosatf1(x); }
OVERLOAD long2 convert_long2_rte(float2 x) { return __ocl_zorv_v8_cvtfptoi64rtnnosatf2(x); }
OVERLOAD long3 convert_long3_rte(float3 x) { return (__ocl_zorv_v8_cvtfptoi64rtnnosatf3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_rte(float4 x) { return __ocl_zorv_v8_cvtfptoi64rtnnosatf4(x); }
OVERLOAD long8 convert_long8_rte(float8 x) { return __ocl_zorv_v8_cvtfptoi64rtnnosatf8(x); }
OVERLOAD long16 convert_long16_rte(float16 x) { return __ocl_zorv_v8_cvtfptoi64rtnnosatf16(x); }

/* cvtfptoi64rtnnosat */
OVERLOAD long convert_long_rte(double x) { return __ocl_zorv_v8_cvtfptoi64rtnnosat1(x); }
OVERLOAD long2 convert_long2_rte(double2 x) { return __ocl_zorv_v8_cvtfptoi64rtnnosat2(x); }
OVERLOAD long3 convert_long3_rte(double3 x) { return (__ocl_zorv_v8_cvtfptoi64rtnnosat3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_rte(double4 x) { return __ocl_zorv_v8_cvtfptoi64rtnnosat4(x); }
OVERLOAD long8 convert_long8_rte(double8 x) { return __ocl_zorv_v8_cvtfptoi64rtnnosat8(x); }
OVERLOAD long16 convert_long16_rte(double16 x) { return __ocl_zorv_v8_cvtfptoi64rtnnosat16(x); }

/* cvti64tofprtnf */
OVERLOAD float convert_float_rte(long x) { return __ocl_zorv_v8_cvti64tofprtnf1(x); }
OVERLOAD float convert_float(long x) { return __ocl_zorv_v8_cvti64tofprtnf1(x); }
OVERLOAD float2 convert_float2_rte(long2 x) { return __ocl_zorv_v8_cvti64tofprtnf2(x); }
OVERLOAD float2 convert_float2(long2 x) { return __ocl_zorv_v8_cvti64tofprtnf2(x); }
OVERLOAD float3 convert_float3_rte(long3 x) { return (__ocl_zorv_v8_cvti64tofprtnf3(x.xyzz)).xyz; }
OVERLOAD float3 convert_float3(long3 x) { return (__ocl_zorv_v8_cvti64tofprtnf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rte(long4 x) { return __ocl_zorv_v8_cvti64tofprtnf4(x); }
OVERLOAD float4 convert_float4(long4 x) { return __ocl_zorv_v8_cvti64tofprtnf4(x); }
OVERLOAD float8 convert_float8_rte(long8 x) { return __ocl_zorv_v8_cvti64tofprtnf8(x); }
OVERLOAD float8 convert_float8(long8 x) { return __ocl_zorv_v8_cvti64tofprtnf8(x); }
OVERLOAD float16 convert_float16_rte(long16 x) { return __ocl_zorv_v8_cvti64tofprtnf16(x); }
OVERLOAD float16 convert_float16(long16 x) { return __ocl_zorv_v8_cvti64tofprtnf16(x); }

/* cvti64tofprtn */
OVERLOAD double convert_double_rte(long x) { return __ocl_zorv_v8_cvti64tofprtn1(x); }
OVERLOAD double convert_double(long x) { return __ocl_zorv_v8_cvti64tofprtn1(x); }
OVERLOAD double2 convert_double2_rte(long2 x) { return __ocl_zorv_v8_cvti64tofprtn2(x); }
OVERLOAD double2 convert_double2(long2 x) { return __ocl_zorv_v8_cvti64tofprtn2(x); }
OVERLOAD double3 convert_double3_rte(long3 x) { return (__ocl_zorv_v8_cvti64tofprtn3(x.xyzz)).xyz; }
OVERLOAD double3 convert_double3(long3 x) { return (__ocl_zorv_v8_cvti64tofprtn3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rte(long4 x) { return __ocl_zorv_v8_cvti64tofprtn4(x); }
OVERLOAD double4 convert_double4(long4 x) { return __ocl_zorv_v8_cvti64tofprtn4(x); }
OVERLOAD double8 convert_double8_rte(long8 x) { return __ocl_zorv_v8_cvti64tofprtn8(x); }
OVERLOAD double8 convert_double8(long8 x) { return __ocl_zorv_v8_cvti64tofprtn8(x); }
OVERLOAD double16 convert_double16_rte(long16 x) { return __ocl_zorv_v8_cvti64tofprtn16(x); }
OVERLOAD double16 convert_double16(long16 x) { return __ocl_zorv_v8_cvti64tofprtn16(x); }

/* cvtfptoi64rtzsatf */
OVERLOAD long convert_long_sat_rtz(float x) { return __ocl_zorv_v8_cvtfptoi64rtzsatf1(x); }
OVERLOAD long convert_long_sat(float x) { return __ocl_zorv_v8_cvtfptoi64rtzsatf1(x); }
OVERLOAD long2 convert_long2_sat_rtz(float2 x) { return __ocl_zorv_v8_cvtfptoi64rtzsatf2(x); }
OVERLOAD long2 convert_long2_sat(float2 x) { return __ocl_zorv_v8_cvtfptoi64rtzsatf2(x); }
OVERLOAD long3 convert_long3_sat_rtz(float3 x) { return (__ocl_zorv_v8_cvtfptoi64rtzsatf3(x.xyzz)).xyz; }
OVERLOAD long3 convert_long3_sat(float3 x) { return (__ocl_zorv_v8_cvtfptoi64rtzsatf3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_sat_rtz(float4 x) { return __ocl_zorv_v8_cvtfptoi64rtzsatf4(x); }
OVERLOAD long4 convert_long4_sat(float4 x) { return __ocl_zorv_v8_cvtfptoi64rtzsatf4(x); }
OVERLOAD long8 convert_long8_sat_rtz(float8 x) { return __ocl_zorv_v8_cvtfptoi64rtzsatf8(x); }
OVERLOAD long8 convert_long8_sat(float8 x) { return __ocl_zorv_v8_cvtfptoi64rtzsatf8(x); }
OVERLOAD long16 convert_long16_sat_rtz(float16 x) { return __ocl_zorv_v8_cvtfptoi64rtzsatf16(x); }
OVERLOAD long16 convert_long16_sat(float16 x) { return __ocl_zorv_v8_cvtfptoi64rtzsatf16(x); }

/* cvtfptoi64rtzsat */
OVERLOAD long convert_long_sat_rtz(double x) { return __ocl_zorv_v8_cvtfptoi64rtzsat1(x); }
OVERLOAD long convert_long_sat(double x) { return __ocl_zorv_v8_cvtfptoi64rtzsat1(x); }
OVERLOAD long2 convert_long2_sat_rtz(double2 x) { return __ocl_zorv_v8_cvtfptoi64rtzsat2(x); }
OVERLOAD long2 convert_long2_sat(double2 x) { return __ocl_zorv_v8_cvtfptoi64rtzsat2(x); }
OVERLOAD long3 convert_long3_sat_rtz(double3 x) { return (__ocl_zorv_v8_cvtfptoi64rtzsat3(x.xyzz)).xyz; }
OVERLOAD long3 convert_long3_sat(double3 x) { return (__ocl_zorv_v8_cvtfptoi64rtzsat3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_sat_rtz(double4 x) { return __ocl_zorv_v8_cvtfptoi64rtzsat4(x); }
OVERLOAD long4 convert_long4_sat(double4 x) { return __ocl_zorv_v8_cvtfptoi64rtzsat4(x); }
OVERLOAD long8 convert_long8_sat_rtz(double8 x) { return __ocl_zorv_v8_cvtfptoi64rtzsat8(x); }
OVERLOAD long8 convert_long8_sat(double8 x) { return __ocl_zorv_v8_cvtfptoi64rtzsat8(x); }
OVERLOAD long16 convert_long16_sat_rtz(double16 x) { return __ocl_zorv_v8_cvtfptoi64rtzsat16(x); }
OVERLOAD long16 convert_long16_sat(double16 x) { return __ocl_zorv_v8_cvtfptoi64rtzsat16(x); }

/* cvtfptoi64rtznosatf */
OVERLOAD long convert_long_rtz(float x) { return __ocl_zorv_v8_cvtfptoi64rtznosatf1(x); }
OVERLOAD long convert_long(float x) { return __ocl_zorv_v8_cvtfptoi64rtznosatf1(x); }
OVERLOAD long2 convert_long2_rtz(float2 x) { return __ocl_zorv_v8_cvtfptoi64rtznosatf2(x); }
OVERLOAD long2 convert_long2(float2 x) { return __ocl_zorv_v8_cvtfptoi64rtznosatf2(x); }
OVERLOAD long3 convert_long3_rtz(float3 x) { return (__ocl_zorv_v8_cvtfptoi64rtznosatf3(x.xyzz)).xyz; }
OVERLOAD long3 convert_long3(float3 x) { return (__ocl_zorv_v8_cvtfptoi64rtznosatf3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_rtz(float4 x) { return __ocl_zorv_v8_cvtfptoi64rtznosatf4(x); }
OVERLOAD long4 convert_long4(float4 x) { return __ocl_zorv_v8_cvtfptoi64rtznosatf4(x); }
OVERLOAD long8 convert_long8_rtz(float8 x) { return __ocl_zorv_v8_cvtfptoi64rtznosatf8(x); }
OVERLOAD long8 convert_long8(float8 x) { return __ocl_zorv_v8_cvtfptoi64rtznosatf8(x); }
OVERLOAD long16 convert_long16_rtz(float16 x) { return __ocl_zorv_v8_cvtfptoi64rtznosatf16(x); }
OVERLOAD long16 convert_long16(float16 x) { return __ocl_zorv_v8_cvtfptoi64rtznosatf16(x); }

/* cvtfptoi64rtznosat */
OVERLOAD long convert_long_rtz(double x) { return __ocl_zorv_v8_cvtfptoi64rtznosat1(x); }
OVERLOAD long convert_long(double x) { return __ocl_zorv_v8_cvtfptoi64rtznosat1(x); }
OVERLOAD long2 convert_long2_rtz(double2 x) { return __ocl_zorv_v8_cvtfptoi64rtznosat2(x); }
OVERLOAD long2 convert_long2(double2 x) { return __ocl_zorv_v8_cvtfptoi64rtznosat2(x); }
OVERLOAD long3 convert_long3_rtz(double3 x) { return (__ocl_zorv_v8_cvtfptoi64rtznosat3(x.xyzz)).xyz; }
OVERLOAD long3 convert_long3(double3 x) { return (__ocl_zorv_v8_cvtfptoi64rtznosat3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_rtz(double4 x) { return __ocl_zorv_v8_cvtfptoi64rtznosat4(x); }
OVERLOAD long4 convert_long4(double4 x) { return __ocl_zorv_v8_cvtfptoi64rtznosat4(x); }
OVERLOAD long8 convert_long8_rtz(double8 x) { return __ocl_zorv_v8_cvtfptoi64rtznosat8(x); }
OVERLOAD long8 convert_long8(double8 x) { return __ocl_zorv_v8_cvtfptoi64rtznosat8(x); }
OVERLOAD long16 convert_long16_rtz(double16 x) { return __ocl_zorv_v8_cvtfptoi64rtznosat16(x); }
OVERLOAD long16 convert_long16(double16 x) { return __ocl_zorv_v8_cvtfptoi64rtznosat16(x); }

/* cvti64tofprtzf */
OVERLOAD float convert_float_rtz(long x) { return __ocl_zorv_v8_cvti64tofprtzf1(x); }
OVERLOAD float2 convert_float2_rtz(long2 x) { return __ocl_zorv_v8_cvti64tofprtzf2(x); }
OVERLOAD float3 convert_float3_rtz(long3 x) { return (__ocl_zorv_v8_cvti64tofprtzf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rtz(long4 x) { return __ocl_zorv_v8_cvti64tofprtzf4(x); }
OVERLOAD float8 convert_float8_rtz(long8 x) { return __ocl_zorv_v8_cvti64tofprtzf8(x); }
OVERLOAD float16 convert_float16_rtz(long16 x) { return __ocl_zorv_v8_cvti64tofprtzf16(x); }

/* cvti64tofprtz */
OVERLOAD double convert_double_rtz(long x) { return __ocl_zorv_v8_cvti64tofprtz1(x); }
OVERLOAD double2 convert_double2_rtz(long2 x) { return __ocl_zorv_v8_cvti64tofprtz2(x); }
OVERLOAD double3 convert_double3_rtz(long3 x) { return (__ocl_zorv_v8_cvti64tofprtz3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rtz(long4 x) { return __ocl_zorv_v8_cvti64tofprtz4(x); }
OVERLOAD double8 convert_double8_rtz(long8 x) { return __ocl_zorv_v8_cvti64tofprtz8(x); }
OVERLOAD double16 convert_double16_rtz(long16 x) { return __ocl_zorv_v8_cvti64tofprtz16(x); }

/* cvtfptoi64upsatf */
OVERLOAD long convert_long_sat_rtp(float x) { return __ocl_zorv_v8_cvtfptoi64upsatf1(x); }
OVERLOAD long2 convert_long2_sat_rtp(float2 x) { return __ocl_zorv_v8_cvtfptoi64upsatf2(x); }
OVERLOAD long3 convert_long3_sat_rtp(float3 x) { return (__ocl_zorv_v8_cvtfptoi64upsatf3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_sat_rtp(float4 x) { return __ocl_zorv_v8_cvtfptoi64upsatf4(x); }
OVERLOAD long8 convert_long8_sat_rtp(float8 x) { return __ocl_zorv_v8_cvtfptoi64upsatf8(x); }
OVERLOAD long16 convert_long16_sat_rtp(float16 x) { return __ocl_zorv_v8_cvtfptoi64upsatf16(x); }

/* cvtfptoi64upsat */
OVERLOAD long convert_long_sat_rtp(double x) { return __ocl_zorv_v8_cvtfptoi64upsat1(x); }
OVERLOAD long2 convert_long2_sat_rtp(double2 x) { return __ocl_zorv_v8_cvtfptoi64upsat2(x); }
OVERLOAD long3 convert_long3_sat_rtp(double3 x) { return (__ocl_zorv_v8_cvtfptoi64upsat3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_sat_rtp(double4 x) { return __ocl_zorv_v8_cvtfptoi64upsat4(x); }
OVERLOAD long8 convert_long8_sat_rtp(double8 x) { return __ocl_zorv_v8_cvtfptoi64upsat8(x); }
OVERLOAD long16 convert_long16_sat_rtp(double16 x) { return __ocl_zorv_v8_cvtfptoi64upsat16(x); }

/* cvtfptoi64upnosatf */
OVERLOAD long convert_long_rtp(float x) { return __ocl_zorv_v8_cvtfptoi64upnosatf1(x); }
OVERLOAD long2 convert_long2_rtp(float2 x) { return __ocl_zorv_v8_cvtfptoi64upnosatf2(x); }
OVERLOAD long3 convert_long3_rtp(float3 x) { return (__ocl_zorv_v8_cvtfptoi64upnosatf3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_rtp(float4 x) { return __ocl_zorv_v8_cvtfptoi64upnosatf4(x); }
OVERLOAD long8 convert_long8_rtp(float8 x) { return __ocl_zorv_v8_cvtfptoi64upnosatf8(x); }
OVERLOAD long16 convert_long16_rtp(float16 x) { return __ocl_zorv_v8_cvtfptoi64upnosatf16(x); }

/* cvtfptoi64upnosat */
OVERLOAD long convert_long_rtp(double x) { return __ocl_zorv_v8_cvtfptoi64upnosat1(x); }
OVERLOAD long2 convert_long2_rtp(double2 x) { return __ocl_zorv_v8_cvtfptoi64upnosat2(x); }
OVERLOAD long3 convert_long3_rtp(double3 x) { return (__ocl_zorv_v8_cvtfptoi64upnosat3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_rtp(double4 x) { return __ocl_zorv_v8_cvtfptoi64upnosat4(x); }
OVERLOAD long8 convert_long8_rtp(double8 x) { return __ocl_zorv_v8_cvtfptoi64upnosat8(x); }
OVERLOAD long16 convert_long16_rtp(double16 x) { return __ocl_zorv_v8_cvtfptoi64upnosat16(x); }

/* cvti64tofpupf */
OVERLOAD float convert_float_rtp(long x) { return __ocl_zorv_v8_cvti64tofpupf1(x); }
OVERLOAD float2 convert_float2_rtp(long2 x) { return __ocl_zorv_v8_cvti64tofpupf2(x); }
OVERLOAD float3 convert_float3_rtp(long3 x) { return (__ocl_zorv_v8_cvti64tofpupf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rtp(long4 x) { return __ocl_zorv_v8_cvti64tofpupf4(x); }
OVERLOAD float8 convert_float8_rtp(long8 x) { return __ocl_zorv_v8_cvti64tofpupf8(x); }
OVERLOAD float16 convert_float16_rtp(long16 x) { return __ocl_zorv_v8_cvti64tofpupf16(x); }

/* cvti64tofpup */
OVERLOAD double convert_double_rtp(long x) { return __ocl_zorv_v8_cvti64tofpup1(x); }
OVERLOAD double2 convert_double2_rtp(long2 x) { return __ocl_zorv_v8_cvti64tofpup2(x); }
OVERLOAD double3 convert_double3_rtp(long3 x) { return (__ocl_zorv_v8_cvti64tofpup3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rtp(long4 x) { return __ocl_zorv_v8_cvti64tofpup4(x); }
OVERLOAD double8 convert_double8_rtp(long8 x) { return __ocl_zorv_v8_cvti64tofpup8(x); }
OVERLOAD double16 convert_double16_rtp(long16 x) { return __ocl_zorv_v8_cvti64tofpup16(x); }

/* cvtfptoi64downsatf */
OVERLOAD long convert_long_sat_rtn(float x) { return __ocl_zorv_v8_cvtfptoi64downsatf1(x); }
OVERLOAD long2 convert_long2_sat_rtn(float2 x) { return __ocl_zorv_v8_cvtfptoi64downsatf2(x); }
OVERLOAD long3 convert_long3_sat_rtn(float3 x) { return (__ocl_zorv_v8_cvtfptoi64downsatf3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_sat_rtn(float4 x) { return __ocl_zorv_v8_cvtfptoi64downsatf4(x); }
OVERLOAD long8 convert_long8_sat_rtn(float8 x) { return __ocl_zorv_v8_cvtfptoi64downsatf8(x); }
OVERLOAD long16 convert_long16_sat_rtn(float16 x) { return __ocl_zorv_v8_cvtfptoi64downsatf16(x); }

/* cvtfptoi64downsat */
OVERLOAD long convert_long_sat_rtn(double x) { return __ocl_zorv_v8_cvtfptoi64downsat1(x); }
OVERLOAD long2 convert_long2_sat_rtn(double2 x) { return __ocl_zorv_v8_cvtfptoi64downsat2(x); }
OVERLOAD long3 convert_long3_sat_rtn(double3 x) { return (__ocl_zorv_v8_cvtfptoi64downsat3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_sat_rtn(double4 x) { return __ocl_zorv_v8_cvtfptoi64downsat4(x); }
OVERLOAD long8 convert_long8_sat_rtn(double8 x) { return __ocl_zorv_v8_cvtfptoi64downsat8(x); }
OVERLOAD long16 convert_long16_sat_rtn(double16 x) { return __ocl_zorv_v8_cvtfptoi64downsat16(x); }

/* cvtfptoi64downnosatf */
OVERLOAD long convert_long_rtn(float x) { return __ocl_zorv_v8_cvtfptoi64downnosatf1(x); }
OVERLOAD long2 convert_long2_rtn(float2 x) { return __ocl_zorv_v8_cvtfptoi64downnosatf2(x); }
OVERLOAD long3 convert_long3_rtn(float3 x) { return (__ocl_zorv_v8_cvtfptoi64downnosatf3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_rtn(float4 x) { return __ocl_zorv_v8_cvtfptoi64downnosatf4(x); }
OVERLOAD long8 convert_long8_rtn(float8 x) { return __ocl_zorv_v8_cvtfptoi64downnosatf8(x); }
OVERLOAD long16 convert_long16_rtn(float16 x) { return __ocl_zorv_v8_cvtfptoi64downnosatf16(x); }

/* cvtfptoi64downnosat */
OVERLOAD long convert_long_rtn(double x) { return __ocl_zorv_v8_cvtfptoi64downnosat1(x); }
OVERLOAD long2 convert_long2_rtn(double2 x) { return __ocl_zorv_v8_cvtfptoi64downnosat2(x); }
OVERLOAD long3 convert_long3_rtn(double3 x) { return (__ocl_zorv_v8_cvtfptoi64downnosat3(x.xyzz)).xyz; }
OVERLOAD long4 convert_long4_rtn(double4 x) { return __ocl_zorv_v8_cvtfptoi64downnosat4(x); }
OVERLOAD long8 convert_long8_rtn(double8 x) { return __ocl_zorv_v8_cvtfptoi64downnosat8(x); }
OVERLOAD long16 convert_long16_rtn(double16 x) { return __ocl_zorv_v8_cvtfptoi64downnosat16(x); }

/* cvti64tofpdownf */
OVERLOAD float convert_float_rtn(long x) { return __ocl_zorv_v8_cvti64tofpdownf1(x); }
OVERLOAD float2 convert_float2_rtn(long2 x) { return __ocl_zorv_v8_cvti64tofpdownf2(x); }
OVERLOAD float3 convert_float3_rtn(long3 x) { return (__ocl_zorv_v8_cvti64tofpdownf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rtn(long4 x) { return __ocl_zorv_v8_cvti64tofpdownf4(x); }
OVERLOAD float8 convert_float8_rtn(long8 x) { return __ocl_zorv_v8_cvti64tofpdownf8(x); }
OVERLOAD float16 convert_float16_rtn(long16 x) { return __ocl_zorv_v8_cvti64tofpdownf16(x); }

/* cvti64tofpdown */
OVERLOAD double convert_double_rtn(long x) { return __ocl_zorv_v8_cvti64tofpdown1(x); }
OVERLOAD double2 convert_double2_rtn(long2 x) { return __ocl_zorv_v8_cvti64tofpdown2(x); }
OVERLOAD double3 convert_double3_rtn(long3 x) { return (__ocl_zorv_v8_cvti64tofpdown3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rtn(long4 x) { return __ocl_zorv_v8_cvti64tofpdown4(x); }
OVERLOAD double8 convert_double8_rtn(long8 x) { return __ocl_zorv_v8_cvti64tofpdown8(x); }
OVERLOAD double16 convert_double16_rtn(long16 x) { return __ocl_zorv_v8_cvti64tofpdown16(x); }

/* cvtfptou64rtnsatf */
OVERLOAD ulong convert_ulong_sat_rte(float x) { return __ocl_zorv_v8_cvtfptou64rtnsatf1(x); }
OVERLOAD ulong2 convert_ulong2_sat_rte(float2 x) { return __ocl_zorv_v8_cvtfptou64rtnsatf2(x); }
OVERLOAD ulong3 convert_ulong3_sat_rte(float3 x) { return (__ocl_zorv_v8_cvtfptou64rtnsatf3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_sat_rte(float4 x) { return __ocl_zorv_v8_cvtfptou64rtnsatf4(x); }
OVERLOAD ulong8 convert_ulong8_sat_rte(float8 x) { return __ocl_zorv_v8_cvtfptou64rtnsatf8(x); }
OVERLOAD ulong16 convert_ulong16_sat_rte(float16 x) { return __ocl_zorv_v8_cvtfptou64rtnsatf16(x); }

/* cvtfptou64rtnsat */
OVERLOAD ulong convert_ulong_sat_rte(double x) { return __ocl_zorv_v8_cvtfptou64rtnsat1(x); }
OVERLOAD ulong2 convert_ulong2_sat_rte(double2 x) { return __ocl_zorv_v8_cvtfptou64rtnsat2(x); }
OVERLOAD ulong3 convert_ulong3_sat_rte(double3 x) { return (__ocl_zorv_v8_cvtfptou64rtnsat3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_sat_rte(double4 x) { return __ocl_zorv_v8_cvtfptou64rtnsat4(x); }
OVERLOAD ulong8 convert_ulong8_sat_rte(double8 x) { return __ocl_zorv_v8_cvtfptou64rtnsat8(x); }
OVERLOAD ulong16 convert_ulong16_sat_rte(double16 x) { return __ocl_zorv_v8_cvtfptou64rtnsat16(x); }

/* cvtfptou64rtnnosatf */
OVERLOAD ulong convert_ulong_rte(float x) { return __ocl_zorv_v8_cvtfptou64rtnnosatf1(x); }
OVERLOAD ulong2 convert_ulong2_rte(float2 x) { return __ocl_zorv_v8_cvtfptou64rtnnosatf2(x); }
OVERLOAD ulong3 convert_ulong3_rte(float3 x) { return (__ocl_zorv_v8_cvtfptou64rtnnosatf3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_rte(float4 x) { return __ocl_zorv_v8_cvtfptou64rtnnosatf4(x); }
OVERLOAD ulong8 convert_ulong8_rte(float8 x) { return __ocl_zorv_v8_cvtfptou64rtnnosatf8(x); }
OVERLOAD ulong16 convert_ulong16_rte(float16 x) { return __ocl_zorv_v8_cvtfptou64rtnnosatf16(x); }

/* cvtfptou64rtnnosat */
OVERLOAD ulong convert_ulong_rte(double x) { return __ocl_zorv_v8_cvtfptou64rtnnosat1(x); }
OVERLOAD ulong2 convert_ulong2_rte(double2 x) { return __ocl_zorv_v8_cvtfptou64rtnnosat2(x); }
OVERLOAD ulong3 convert_ulong3_rte(double3 x) { return (__ocl_zorv_v8_cvtfptou64rtnnosat3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_rte(double4 x) { return __ocl_zorv_v8_cvtfptou64rtnnosat4(x); }
OVERLOAD ulong8 convert_ulong8_rte(double8 x) { return __ocl_zorv_v8_cvtfptou64rtnnosat8(x); }
OVERLOAD ulong16 convert_ulong16_rte(double16 x) { return __ocl_zorv_v8_cvtfptou64rtnnosat16(x); }

/* cvtu64tofprtnf */
OVERLOAD float convert_float_rte(ulong x) { return __ocl_zorv_v8_cvtu64tofprtnf1(x); }
OVERLOAD float convert_float(ulong x) { return __ocl_zorv_v8_cvtu64tofprtnf1(x); }
OVERLOAD float2 convert_float2_rte(ulong2 x) { return __ocl_zorv_v8_cvtu64tofprtnf2(x); }
OVERLOAD float2 convert_float2(ulong2 x) { return __ocl_zorv_v8_cvtu64tofprtnf2(x); }
OVERLOAD float3 convert_float3_rte(ulong3 x) { return (__ocl_zorv_v8_cvtu64tofprtnf3(x.xyzz)).xyz; }
OVERLOAD float3 convert_float3(ulong3 x) { return (__ocl_zorv_v8_cvtu64tofprtnf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rte(ulong4 x) { return __ocl_zorv_v8_cvtu64tofprtnf4(x); }
OVERLOAD float4 convert_float4(ulong4 x) { return __ocl_zorv_v8_cvtu64tofprtnf4(x); }
OVERLOAD float8 convert_float8_rte(ulong8 x) { return __ocl_zorv_v8_cvtu64tofprtnf8(x); }
OVERLOAD float8 convert_float8(ulong8 x) { return __ocl_zorv_v8_cvtu64tofprtnf8(x); }
OVERLOAD float16 convert_float16_rte(ulong16 x) { return __ocl_zorv_v8_cvtu64tofprtnf16(x); }
OVERLOAD float16 convert_float16(ulong16 x) { return __ocl_zorv_v8_cvtu64tofprtnf16(x); }

/* cvtu64tofprtn */
OVERLOAD double convert_double_rte(ulong x) { return __ocl_zorv_v8_cvtu64tofprtn1(x); }
OVERLOAD double convert_double(ulong x) { return __ocl_zorv_v8_cvtu64tofprtn1(x); }
OVERLOAD double2 convert_double2_rte(ulong2 x) { return __ocl_zorv_v8_cvtu64tofprtn2(x); }
OVERLOAD double2 convert_double2(ulong2 x) { return __ocl_zorv_v8_cvtu64tofprtn2(x); }
OVERLOAD double3 convert_double3_rte(ulong3 x) { return (__ocl_zorv_v8_cvtu64tofprtn3(x.xyzz)).xyz; }
OVERLOAD double3 convert_double3(ulong3 x) { return (__ocl_zorv_v8_cvtu64tofprtn3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rte(ulong4 x) { return __ocl_zorv_v8_cvtu64tofprtn4(x); }
OVERLOAD double4 convert_double4(ulong4 x) { return __ocl_zorv_v8_cvtu64tofprtn4(x); }
OVERLOAD double8 convert_double8_rte(ulong8 x) { return __ocl_zorv_v8_cvtu64tofprtn8(x); }
OVERLOAD double8 convert_double8(ulong8 x) { return __ocl_zorv_v8_cvtu64tofprtn8(x); }
OVERLOAD double16 convert_double16_rte(ulong16 x) { return __ocl_zorv_v8_cvtu64tofprtn16(x); }
OVERLOAD double16 convert_double16(ulong16 x) { return __ocl_zorv_v8_cvtu64tofprtn16(x); }

/* cvtfptou64rtzsatf */
OVERLOAD ulong convert_ulong_sat_rtz(float x) { return __ocl_zorv_v8_cvtfptou64rtzsatf1(x); }
OVERLOAD ulong convert_ulong_sat(float x) { return __ocl_zorv_v8_cvtfptou64rtzsatf1(x); }
OVERLOAD ulong2 convert_ulong2_sat_rtz(float2 x) { return __ocl_zorv_v8_cvtfptou64rtzsatf2(x); }
OVERLOAD ulong2 convert_ulong2_sat(float2 x) { return __ocl_zorv_v8_cvtfptou64rtzsatf2(x); }
OVERLOAD ulong3 convert_ulong3_sat_rtz(float3 x) { return (__ocl_zorv_v8_cvtfptou64rtzsatf3(x.xyzz)).xyz; }
OVERLOAD ulong3 convert_ulong3_sat(float3 x) { return (__ocl_zorv_v8_cvtfptou64rtzsatf3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_sat_rtz(float4 x) { return __ocl_zorv_v8_cvtfptou64rtzsatf4(x); }
OVERLOAD ulong4 convert_ulong4_sat(float4 x) { return __ocl_zorv_v8_cvtfptou64rtzsatf4(x); }
OVERLOAD ulong8 convert_ulong8_sat_rtz(float8 x) { return __ocl_zorv_v8_cvtfptou64rtzsatf8(x); }
OVERLOAD ulong8 convert_ulong8_sat(float8 x) { return __ocl_zorv_v8_cvtfptou64rtzsatf8(x); }
OVERLOAD ulong16 convert_ulong16_sat_rtz(float16 x) { return __ocl_zorv_v8_cvtfptou64rtzsatf16(x); }
OVERLOAD ulong16 convert_ulong16_sat(float16 x) { return __ocl_zorv_v8_cvtfptou64rtzsatf16(x); }

/* cvtfptou64rtzsat */
OVERLOAD ulong convert_ulong_sat_rtz(double x) { return __ocl_zorv_v8_cvtfptou64rtzsat1(x); }
OVERLOAD ulong convert_ulong_sat(double x) { return __ocl_zorv_v8_cvtfptou64rtzsat1(x); }
OVERLOAD ulong2 convert_ulong2_sat_rtz(double2 x) { return __ocl_zorv_v8_cvtfptou64rtzsat2(x); }
OVERLOAD ulong2 convert_ulong2_sat(double2 x) { return __ocl_zorv_v8_cvtfptou64rtzsat2(x); }
OVERLOAD ulong3 convert_ulong3_sat_rtz(double3 x) { return (__ocl_zorv_v8_cvtfptou64rtzsat3(x.xyzz)).xyz; }
OVERLOAD ulong3 convert_ulong3_sat(double3 x) { return (__ocl_zorv_v8_cvtfptou64rtzsat3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_sat_rtz(double4 x) { return __ocl_zorv_v8_cvtfptou64rtzsat4(x); }
OVERLOAD ulong4 convert_ulong4_sat(double4 x) { return __ocl_zorv_v8_cvtfptou64rtzsat4(x); }
OVERLOAD ulong8 convert_ulong8_sat_rtz(double8 x) { return __ocl_zorv_v8_cvtfptou64rtzsat8(x); }
OVERLOAD ulong8 convert_ulong8_sat(double8 x) { return __ocl_zorv_v8_cvtfptou64rtzsat8(x); }
OVERLOAD ulong16 convert_ulong16_sat_rtz(double16 x) { return __ocl_zorv_v8_cvtfptou64rtzsat16(x); }
OVERLOAD ulong16 convert_ulong16_sat(double16 x) { return __ocl_zorv_v8_cvtfptou64rtzsat16(x); }

/* cvtfptou64rtznosatf */
OVERLOAD ulong convert_ulong_rtz(float x) { return __ocl_zorv_v8_cvtfptou64rtznosatf1(x); }
OVERLOAD ulong convert_ulong(float x) { return __ocl_zorv_v8_cvtfptou64rtznosatf1(x); }
OVERLOAD ulong2 convert_ulong2_rtz(float2 x) { return __ocl_zorv_v8_cvtfptou64rtznosatf2(x); }
OVERLOAD ulong2 convert_ulong2(float2 x) { return __ocl_zorv_v8_cvtfptou64rtznosatf2(x); }
OVERLOAD ulong3 convert_ulong3_rtz(float3 x) { return (__ocl_zorv_v8_cvtfptou64rtznosatf3(x.xyzz)).xyz; }
OVERLOAD ulong3 convert_ulong3(float3 x) { return (__ocl_zorv_v8_cvtfptou64rtznosatf3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_rtz(float4 x) { return __ocl_zorv_v8_cvtfptou64rtznosatf4(x); }
OVERLOAD ulong4 convert_ulong4(float4 x) { return __ocl_zorv_v8_cvtfptou64rtznosatf4(x); }
OVERLOAD ulong8 convert_ulong8_rtz(float8 x) { return __ocl_zorv_v8_cvtfptou64rtznosatf8(x); }
OVERLOAD ulong8 convert_ulong8(float8 x) { return __ocl_zorv_v8_cvtfptou64rtznosatf8(x); }
OVERLOAD ulong16 convert_ulong16_rtz(float16 x) { return __ocl_zorv_v8_cvtfptou64rtznosatf16(x); }
OVERLOAD ulong16 convert_ulong16(float16 x) { return __ocl_zorv_v8_cvtfptou64rtznosatf16(x); }

/* cvtfptou64rtznosat */
OVERLOAD ulong convert_ulong_rtz(double x) { return __ocl_zorv_v8_cvtfptou64rtznosat1(x); }
OVERLOAD ulong convert_ulong(double x) { return __ocl_zorv_v8_cvtfptou64rtznosat1(x); }
OVERLOAD ulong2 convert_ulong2_rtz(double2 x) { return __ocl_zorv_v8_cvtfptou64rtznosat2(x); }
OVERLOAD ulong2 convert_ulong2(double2 x) { return __ocl_zorv_v8_cvtfptou64rtznosat2(x); }
OVERLOAD ulong3 convert_ulong3_rtz(double3 x) { return (__ocl_zorv_v8_cvtfptou64rtznosat3(x.xyzz)).xyz; }
OVERLOAD ulong3 convert_ulong3(double3 x) { return (__ocl_zorv_v8_cvtfptou64rtznosat3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_rtz(double4 x) { return __ocl_zorv_v8_cvtfptou64rtznosat4(x); }
OVERLOAD ulong4 convert_ulong4(double4 x) { return __ocl_zorv_v8_cvtfptou64rtznosat4(x); }
OVERLOAD ulong8 convert_ulong8_rtz(double8 x) { return __ocl_zorv_v8_cvtfptou64rtznosat8(x); }
OVERLOAD ulong8 convert_ulong8(double8 x) { return __ocl_zorv_v8_cvtfptou64rtznosat8(x); }
OVERLOAD ulong16 convert_ulong16_rtz(double16 x) { return __ocl_zorv_v8_cvtfptou64rtznosat16(x); }
OVERLOAD ulong16 convert_ulong16(double16 x) { return __ocl_zorv_v8_cvtfptou64rtznosat16(x); }

/* cvtu64tofprtzf */
OVERLOAD float convert_float_rtz(ulong x) { return __ocl_zorv_v8_cvtu64tofprtzf1(x); }
OVERLOAD float2 convert_float2_rtz(ulong2 x) { return __ocl_zorv_v8_cvtu64tofprtzf2(x); }
OVERLOAD float3 convert_float3_rtz(ulong3 x) { return (__ocl_zorv_v8_cvtu64tofprtzf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rtz(ulong4 x) { return __ocl_zorv_v8_cvtu64tofprtzf4(x); }
OVERLOAD float8 convert_float8_rtz(ulong8 x) { return __ocl_zorv_v8_cvtu64tofprtzf8(x); }
OVERLOAD float16 convert_float16_rtz(ulong16 x) { return __ocl_zorv_v8_cvtu64tofprtzf16(x); }

/* cvtu64tofprtz */
OVERLOAD double convert_double_rtz(ulong x) { return __ocl_zorv_v8_cvtu64tofprtz1(x); }
OVERLOAD double2 convert_double2_rtz(ulong2 x) { return __ocl_zorv_v8_cvtu64tofprtz2(x); }
OVERLOAD double3 convert_double3_rtz(ulong3 x) { return (__ocl_zorv_v8_cvtu64tofprtz3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rtz(ulong4 x) { return __ocl_zorv_v8_cvtu64tofprtz4(x); }
OVERLOAD double8 convert_double8_rtz(ulong8 x) { return __ocl_zorv_v8_cvtu64tofprtz8(x); }
OVERLOAD double16 convert_double16_rtz(ulong16 x) { return __ocl_zorv_v8_cvtu64tofprtz16(x); }

/* cvtfptou64upsatf */
OVERLOAD ulong convert_ulong_sat_rtp(float x) { return __ocl_zorv_v8_cvtfptou64upsatf1(x); }
OVERLOAD ulong2 convert_ulong2_sat_rtp(float2 x) { return __ocl_zorv_v8_cvtfptou64upsatf2(x); }
OVERLOAD ulong3 convert_ulong3_sat_rtp(float3 x) { return (__ocl_zorv_v8_cvtfptou64upsatf3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_sat_rtp(float4 x) { return __ocl_zorv_v8_cvtfptou64upsatf4(x); }
OVERLOAD ulong8 convert_ulong8_sat_rtp(float8 x) { return __ocl_zorv_v8_cvtfptou64upsatf8(x); }
OVERLOAD ulong16 convert_ulong16_sat_rtp(float16 x) { return __ocl_zorv_v8_cvtfptou64upsatf16(x); }

/* cvtfptou64upsat */
OVERLOAD ulong convert_ulong_sat_rtp(double x) { return __ocl_zorv_v8_cvtfptou64upsat1(x); }
OVERLOAD ulong2 convert_ulong2_sat_rtp(double2 x) { return __ocl_zorv_v8_cvtfptou64upsat2(x); }
OVERLOAD ulong3 convert_ulong3_sat_rtp(double3 x) { return (__ocl_zorv_v8_cvtfptou64upsat3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_sat_rtp(double4 x) { return __ocl_zorv_v8_cvtfptou64upsat4(x); }
OVERLOAD ulong8 convert_ulong8_sat_rtp(double8 x) { return __ocl_zorv_v8_cvtfptou64upsat8(x); }
OVERLOAD ulong16 convert_ulong16_sat_rtp(double16 x) { return __ocl_zorv_v8_cvtfptou64upsat16(x); }

/* cvtfptou64upnosatf */
OVERLOAD ulong convert_ulong_rtp(float x) { return __ocl_zorv_v8_cvtfptou64upnosatf1(x); }
OVERLOAD ulong2 convert_ulong2_rtp(float2 x) { return __ocl_zorv_v8_cvtfptou64upnosatf2(x); }
OVERLOAD ulong3 convert_ulong3_rtp(float3 x) { return (__ocl_zorv_v8_cvtfptou64upnosatf3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_rtp(float4 x) { return __ocl_zorv_v8_cvtfptou64upnosatf4(x); }
OVERLOAD ulong8 convert_ulong8_rtp(float8 x) { return __ocl_zorv_v8_cvtfptou64upnosatf8(x); }
OVERLOAD ulong16 convert_ulong16_rtp(float16 x) { return __ocl_zorv_v8_cvtfptou64upnosatf16(x); }

/* cvtfptou64upnosat */
OVERLOAD ulong convert_ulong_rtp(double x) { return __ocl_zorv_v8_cvtfptou64upnosat1(x); }
OVERLOAD ulong2 convert_ulong2_rtp(double2 x) { return __ocl_zorv_v8_cvtfptou64upnosat2(x); }
OVERLOAD ulong3 convert_ulong3_rtp(double3 x) { return (__ocl_zorv_v8_cvtfptou64upnosat3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_rtp(double4 x) { return __ocl_zorv_v8_cvtfptou64upnosat4(x); }
OVERLOAD ulong8 convert_ulong8_rtp(double8 x) { return __ocl_zorv_v8_cvtfptou64upnosat8(x); }
OVERLOAD ulong16 convert_ulong16_rtp(double16 x) { return __ocl_zorv_v8_cvtfptou64upnosat16(x); }

/* cvtu64tofpupf */
OVERLOAD float convert_float_rtp(ulong x) { return __ocl_zorv_v8_cvtu64tofpupf1(x); }
OVERLOAD float2 convert_float2_rtp(ulong2 x) { return __ocl_zorv_v8_cvtu64tofpupf2(x); }
OVERLOAD float3 convert_float3_rtp(ulong3 x) { return (__ocl_zorv_v8_cvtu64tofpupf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rtp(ulong4 x) { return __ocl_zorv_v8_cvtu64tofpupf4(x); }
OVERLOAD float8 convert_float8_rtp(ulong8 x) { return __ocl_zorv_v8_cvtu64tofpupf8(x); }
OVERLOAD float16 convert_float16_rtp(ulong16 x) { return __ocl_zorv_v8_cvtu64tofpupf16(x); }

/* cvtu64tofpup */
OVERLOAD double convert_double_rtp(ulong x) { return __ocl_zorv_v8_cvtu64tofpup1(x); }
OVERLOAD double2 convert_double2_rtp(ulong2 x) { return __ocl_zorv_v8_cvtu64tofpup2(x); }
OVERLOAD double3 convert_double3_rtp(ulong3 x) { return (__ocl_zorv_v8_cvtu64tofpup3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rtp(ulong4 x) { return __ocl_zorv_v8_cvtu64tofpup4(x); }
OVERLOAD double8 convert_double8_rtp(ulong8 x) { return __ocl_zorv_v8_cvtu64tofpup8(x); }
OVERLOAD double16 convert_double16_rtp(ulong16 x) { return __ocl_zorv_v8_cvtu64tofpup16(x); }

/* cvtfptou64downsatf */
OVERLOAD ulong convert_ulong_sat_rtn(float x) { return __ocl_zorv_v8_cvtfptou64downsatf1(x); }
OVERLOAD ulong2 convert_ulong2_sat_rtn(float2 x) { return __ocl_zorv_v8_cvtfptou64downsatf2(x); }
OVERLOAD ulong3 convert_ulong3_sat_rtn(float3 x) { return (__ocl_zorv_v8_cvtfptou64downsatf3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_sat_rtn(float4 x) { return __ocl_zorv_v8_cvtfptou64downsatf4(x); }
OVERLOAD ulong8 convert_ulong8_sat_rtn(float8 x) { return __ocl_zorv_v8_cvtfptou64downsatf8(x); }
OVERLOAD ulong16 convert_ulong16_sat_rtn(float16 x) { return __ocl_zorv_v8_cvtfptou64downsatf16(x); }

/* cvtfptou64downsat */
OVERLOAD ulong convert_ulong_sat_rtn(double x) { return __ocl_zorv_v8_cvtfptou64downsat1(x); }
OVERLOAD ulong2 convert_ulong2_sat_rtn(double2 x) { return __ocl_zorv_v8_cvtfptou64downsat2(x); }
OVERLOAD ulong3 convert_ulong3_sat_rtn(double3 x) { return (__ocl_zorv_v8_cvtfptou64downsat3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_sat_rtn(double4 x) { return __ocl_zorv_v8_cvtfptou64downsat4(x); }
OVERLOAD ulong8 convert_ulong8_sat_rtn(double8 x) { return __ocl_zorv_v8_cvtfptou64downsat8(x); }
OVERLOAD ulong16 convert_ulong16_sat_rtn(double16 x) { return __ocl_zorv_v8_cvtfptou64downsat16(x); }

/* cvtfptou64downnosatf */
OVERLOAD ulong convert_ulong_rtn(float x) { return __ocl_zorv_v8_cvtfptou64downnosatf1(x); }
OVERLOAD ulong2 convert_ulong2_rtn(float2 x) { return __ocl_zorv_v8_cvtfptou64downnosatf2(x); }
OVERLOAD ulong3 convert_ulong3_rtn(float3 x) { return (__ocl_zorv_v8_cvtfptou64downnosatf3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_rtn(float4 x) { return __ocl_zorv_v8_cvtfptou64downnosatf4(x); }
OVERLOAD ulong8 convert_ulong8_rtn(float8 x) { return __ocl_zorv_v8_cvtfptou64downnosatf8(x); }
OVERLOAD ulong16 convert_ulong16_rtn(float16 x) { return __ocl_zorv_v8_cvtfptou64downnosatf16(x); }

/* cvtfptou64downnosat */
OVERLOAD ulong convert_ulong_rtn(double x) { return __ocl_zorv_v8_cvtfptou64downnosat1(x); }
OVERLOAD ulong2 convert_ulong2_rtn(double2 x) { return __ocl_zorv_v8_cvtfptou64downnosat2(x); }
OVERLOAD ulong3 convert_ulong3_rtn(double3 x) { return (__ocl_zorv_v8_cvtfptou64downnosat3(x.xyzz)).xyz; }
OVERLOAD ulong4 convert_ulong4_rtn(double4 x) { return __ocl_zorv_v8_cvtfptou64downnosat4(x); }
OVERLOAD ulong8 convert_ulong8_rtn(double8 x) { return __ocl_zorv_v8_cvtfptou64downnosat8(x); }
OVERLOAD ulong16 convert_ulong16_rtn(double16 x) { return __ocl_zorv_v8_cvtfptou64downnosat16(x); }

/* cvtu64tofpdownf */
OVERLOAD float convert_float_rtn(ulong x) { return __ocl_zorv_v8_cvtu64tofpdownf1(x); }
OVERLOAD float2 convert_float2_rtn(ulong2 x) { return __ocl_zorv_v8_cvtu64tofpdownf2(x); }
OVERLOAD float3 convert_float3_rtn(ulong3 x) { return (__ocl_zorv_v8_cvtu64tofpdownf3(x.xyzz)).xyz; }
OVERLOAD float4 convert_float4_rtn(ulong4 x) { return __ocl_zorv_v8_cvtu64tofpdownf4(x); }
OVERLOAD float8 convert_float8_rtn(ulong8 x) { return __ocl_zorv_v8_cvtu64tofpdownf8(x); }
OVERLOAD float16 convert_float16_rtn(ulong16 x) { return __ocl_zorv_v8_cvtu64tofpdownf16(x); }

/* cvtu64tofpdown */
OVERLOAD double convert_double_rtn(ulong x) { return __ocl_zorv_v8_cvtu64tofpdown1(x); }
OVERLOAD double2 convert_double2_rtn(ulong2 x) { return __ocl_zorv_v8_cvtu64tofpdown2(x); }
OVERLOAD double3 convert_double3_rtn(ulong3 x) { return (__ocl_zorv_v8_cvtu64tofpdown3(x.xyzz)).xyz; }
OVERLOAD double4 convert_double4_rtn(ulong4 x) { return __ocl_zorv_v8_cvtu64tofpdown4(x); }
OVERLOAD double8 convert_double8_rtn(ulong8 x) { return __ocl_zorv_v8_cvtu64tofpdown8(x); }
OVERLOAD double16 convert_double16_rtn(ulong16 x) { return __ocl_zorv_v8_cvtu64tofpdown16(x); }

/* The same names from the other types, which take no call. */
#define ROUNDINGS(name, to, from, value) \
    OVERLOAD to name(from x) { return value; } \
    OVERLOAD to name##_rte(from x) { return value; } \
    OVERLOAD to name##_rtz(from x) { return value; } \
    OVERLOAD to name##_rtp(from x) { return value; } \
    OVERLOAD to name##_rtn(from x) { return value; }
#define NEAREST(name, to, from, value) \
    OVERLOAD to name(from x) { return value; } \
    OVERLOAD to name##_rte(from x) { return value; }
#define PLAIN(to, from) ROUNDINGS(convert_##to, to, from, __builtin_convertvector(x, to))
#define ROUNDED(to, from) NEAREST(convert_##to, to, from, __builtin_convertvector(x, to))
#define SCALAR_PLAIN(to, from) ROUNDINGS(convert_##to, to, from, (to)x)
#define SCALAR_ROUNDED(to, from) NEAREST(convert_##to, to, from, (to)x)
#define CLAMPED(low, high) (x < low ? low : x > high ? high : x)
#define SATURATED(to, from, low, high) \
    ROUNDINGS(convert_##to##_sat, to, from, __builtin_convertvector(CLAMPED((from)(low), (from)(high)), to))
#define SCALAR_SATURATED(to, from, low, high) \
    ROUNDINGS(convert_##to##_sat, to, from, (to)CLAMPED((from)(low), (from)(high)))
#define WIDTHS(kind, to, from, ...) \
    SCALAR_##kind(to, from, ##__VA_ARGS__) \
    kind(to##2, from##2, ##__VA_ARGS__) \
    kind(to##3, from##3, ##__VA_ARGS__) \
    kind(to##4, from##4, ##__VA_ARGS__) \
    kind(to##8, from##8, ##__VA_ARGS__) \
    kind(to##16, from##16, ##__VA_ARGS__)
WIDTHS(PLAIN, double, char)
WIDTHS(PLAIN, double, uchar)
WIDTHS(PLAIN, double, short)
WIDTHS(PLAIN, double, ushort)
WIDTHS(PLAIN, double, double)
WIDTHS(PLAIN, double, float)
WIDTHS(PLAIN, float, char)
WIDTHS(PLAIN, float, uchar)
WIDTHS(PLAIN, float, short)
WIDTHS(PLAIN, float, ushort)
WIDTHS(PLAIN, float, float)
WIDTHS(ROUNDED, float, double)
WIDTHS(PLAIN, int, char)
WIDTHS(PLAIN, int, uchar)
WIDTHS(PLAIN, int, short)
WIDTHS(PLAIN, int, ushort)
WIDTHS(PLAIN, int, int)
WIDTHS(PLAIN, int, uint)
WIDTHS(PLAIN, int, long)
WIDTHS(PLAIN, int, ulong)
WIDTHS(SATURATED, int, char, CHAR_MIN, CHAR_MAX)
WIDTHS(SATURATED, int, uchar, 0, UCHAR_MAX)
WIDTHS(SATURATED, int, short, SHRT_MIN, SHRT_MAX)
WIDTHS(SATURATED, int, ushort, 0, USHRT_MAX)
WIDTHS(SATURATED, int, int, INT_MIN, INT_MAX)
WIDTHS(SATURATED, int, uint, 0, INT_MAX)
WIDTHS(SATURATED, int, long, INT_MIN, INT_MAX)
WIDTHS(SATURATED, int, ulong, 0, INT_MAX)
WIDTHS(PLAIN, long, char)
WIDTHS(PLAIN, long, uchar)
WIDTHS(PLAIN, long, short)
WIDTHS(PLAIN, long, ushort)
WIDTHS(PLAIN, long, int)
WIDTHS(PLAIN, long, uint)
WIDTHS(PLAIN, long, long)
WIDTHS(PLAIN, long, ulong)
WIDTHS(SATURATED, long, char, CHAR_MIN, CHAR_MAX)
WIDTHS(SATURATED, long, uchar, 0, UCHAR_MAX)
WIDTHS(SATURATED, long, short, SHRT_MIN, SHRT_MAX)
WIDTHS(SATURATED, long, ushort, 0, USHRT_MAX)
WIDTHS(SATURATED, long, int, INT_MIN, INT_MAX)
WIDTHS(SATURATED, long, uint, 0, UINT_MAX)
WIDTHS(SATURATED, long, long, LONG_MIN, LONG_MAX)
WIDTHS(SATURATED, long, ulong, 0, LONG_MAX)
WIDTHS(PLAIN, uint, char)
WIDTHS(PLAIN, uint, uchar)
WIDTHS(PLAIN, uint, short)
WIDTHS(PLAIN, uint, ushort)
WIDTHS(PLAIN, uint, int)
WIDTHS(PLAIN, uint, uint)
WIDTHS(PLAIN, uint, long)
WIDTHS(PLAIN, uint, ulong)
WIDTHS(SATURATED, uint, char, 0, CHAR_MAX)
WIDTHS(SATURATED, uint, uchar, 0, UCHAR_MAX)
WIDTHS(SATURATED, uint, short, 0, SHRT_MAX)
WIDTHS(SATURATED, uint, ushort, 0, USHRT_MAX)
WIDTHS(SATURATED, uint, int, 0, INT_MAX)
WIDTHS(SATURATED, uint, uint, 0, UINT_MAX)
WIDTHS(SATURATED, uint, long, 0, UINT_MAX)
WIDTHS(SATURATED, uint, ulong, 0, UINT_MAX)
WIDTHS(PLAIN, ulong, char)
WIDTHS(PLAIN, ulong, uchar)
WIDTHS(PLAIN, ulong, short)
WIDTHS(PLAIN, ulong, ushort)
WIDTHS(PLAIN, ulong, int)
WIDTHS(PLAIN, ulong, uint)
WIDTHS(PLAIN, ulong, long)
WIDTHS(PLAIN, ulong, ulong)
WIDTHS(SATURATED, ulong, char, 0, CHAR_MAX)
WIDTHS(SATURATED, ulong, uchar, 0, UCHAR_MAX)
WIDTHS(SATURATED, ulong, short, 0, SHRT_MAX)
WIDTHS(SATURATED, ulong, ushort, 0, USHRT_MAX)
WIDTHS(SATURATED, ulong, int, 0, INT_MAX)
WIDTHS(SATURATED, ulong, uint, 0, UINT_MAX)
WIDTHS(SATURATED, ulong, long, 0, LONG_MAX)
WIDTHS(SATURATED, ulong, ulong, 0, ULONG_MAX)
#undef ROUNDINGS
#undef NEAREST
#undef PLAIN
#undef ROUNDED
#undef SCALAR_PLAIN
#undef SCALAR_ROUNDED
#undef CLAMPED
#undef SATURATED
#undef SCALAR_SATURATED
#undef WIDTHS

#undef OVERLOAD

#endif
