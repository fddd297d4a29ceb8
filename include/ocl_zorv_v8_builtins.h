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

#undef OVERLOAD

#endif
