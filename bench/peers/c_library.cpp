// The C library's scalar functions and the C compiler's scalar operators, one lane at a time. This file is built
// without vectorisation.
#include <cmath>

#include "bench/passes.h"

namespace bench {
namespace {

float sine_and_cosine_float(float x, float* cosine) {
    float sine;
    sincosf(x, &sine, cosine);
    return sine;
}
double sine_and_cosine(double x, double* cosine) {
    double sine;
    sincos(x, &sine, cosine);
    return sine;
}

// A function of one precision by its expression in x, y, z of type Float.
#define UNARY(base, bound, of_float, of_double)                                              \
    add_lane_peer<+[](float x) -> float { return of_float; }>(peers, #base "f", "c", bound); \
    add_lane_peer<+[](double x) -> double { return of_double; }>(peers, #base, "c", bound);
#define BINARY(base, bound, of_float, of_double)                                                      \
    add_lane_peer<+[](float x, float y) -> float { return of_float; }>(peers, #base "f", "c", bound); \
    add_lane_peer<+[](double x, double y) -> double { return of_double; }>(peers, #base, "c", bound);
#define TERNARY(base, bound, of_float, of_double)                                                              \
    add_lane_peer<+[](float x, float y, float z) -> float { return of_float; }>(peers, #base "f", "c", bound); \
    add_lane_peer<+[](double x, double y, double z) -> double { return of_double; }>(peers, #base, "c", bound);
#define FUNCTION(base, bound) UNARY(base, bound, base##f(x), base(x))
#define FUNCTION2(base, bound) BINARY(base, bound, base##f(x, y), base(x, y))

// Conversions; the saturating families take in-range operands here too, so that the bare conversion is their peer.
#define TO_INTEGER(target, type, rounding, float_expression, double_expression)                \
    for (const char* saturation : {"sat", "nosat"}) {                                          \
        add_lane_peer<+[](float x) -> type { return static_cast<type>(float_expression); }>(   \
            peers, std::string("cvtfpto" #target #rounding) + saturation + "f", "c", 0);       \
        add_lane_peer<+[](double x) -> type { return static_cast<type>(double_expression); }>( \
            peers, std::string("cvtfpto" #target #rounding) + saturation, "c", 0);             \
    }
#define ALL_TO_INTEGER(target, type)                 \
    TO_INTEGER(target, type, rtn, rintf(x), rint(x)) \
    TO_INTEGER(target, type, rtz, x, x)              \
    TO_INTEGER(target, type, up, ceilf(x), ceil(x))  \
    TO_INTEGER(target, type, down, floorf(x), floor(x))
#define FROM_INTEGER(source, type)                                                                           \
    add_lane_peer<+[](type x) { return static_cast<float>(x); }>(peers, "cvt" #source "tofprtnf", "c", 0.5); \
    add_lane_peer<+[](type x) { return static_cast<double>(x); }>(peers, "cvt" #source "tofprtn", "c", 0.5);

}  // namespace

void add_c_library(std::vector<Peer>& peers) {
    UNARY(inv, 0.5, 1 / x, 1 / x)
    BINARY(div, 0.5, x / y, x / y)
    FUNCTION(sqrt, 0.5)
    UNARY(rsqrt, 1.5, 1 / sqrtf(x), 1 / sqrt(x))
    FUNCTION(cbrt, 1)
    FUNCTION2(hypot, 1)
    FUNCTION(exp, 1)
    FUNCTION(exp2, 1)
    FUNCTION(exp10, 2)
    FUNCTION(expm1, 1)
    FUNCTION(log, 1)
    FUNCTION(log2, 1)
    FUNCTION(log10, 2)
    FUNCTION(log1p, 1)
    FUNCTION(sin, 1)
    FUNCTION(cos, 1)
    for (const char* base : {"sincos", "sincosreg"}) {
        add_lane_peer<sine_and_cosine_float>(peers, base + std::string("f"), "c", 1);
        add_lane_peer<sine_and_cosine>(peers, base, "c", 1);
    }
    FUNCTION(floor, 0)
    FUNCTION(ceil, 0)
    FUNCTION(rint, 0)
    FUNCTION(nearbyint, 0)
    FUNCTION(round, 0)
    FUNCTION(trunc, 0)
    FUNCTION(fabs, 0)
    FUNCTION2(fmin, 0)
    FUNCTION2(fmax, 0)
    FUNCTION2(fdim, 0.5)
    FUNCTION2(copysign, 0)
    TERNARY(mad, 0.5, x * y + z, x * y + z)
    TERNARY(fma, 0.5, fmaf(x, y, z), fma(x, y, z))
    ALL_TO_INTEGER(i32, int32_t)
    ALL_TO_INTEGER(u32, uint32_t)
    ALL_TO_INTEGER(i64, int64_t)
    ALL_TO_INTEGER(u64, uint64_t)
    FROM_INTEGER(i32, int32_t)
    FROM_INTEGER(u32, uint32_t)
    FROM_INTEGER(i64, int64_t)
    FROM_INTEGER(u64, uint64_t)
}

}  // namespace bench
