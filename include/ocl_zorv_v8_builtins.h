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

#undef OVERLOAD

#endif
