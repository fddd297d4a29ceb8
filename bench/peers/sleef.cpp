// SLEEF's SSE2 functions, one call for each unit, in every accuracy class that it has. What it offers is told here,
// once, class by class; which of it computes an operation is told by the operation's PEERS rows.
#include <sleef.h>

#include "bench/peers/worlds.h"

namespace bench::sleef {

template <class Float>
struct Units;
template <>
struct Units<float> {
    using Value = __m128;
    static Value splat(double value) { return _mm_set1_ps(static_cast<float>(value)); }
    static Value floating(__m128i n) { return _mm_cvtepi32_ps(n); }
};
template <>
struct Units<double> {
    using Value = __m128d;
    static Value splat(double value) { return _mm_set1_pd(value); }
    static Value floating(__m128i n) { return _mm_cvtepi32_pd(n); }
};
struct AnyWorld {
    template <class Float>
    using Value = typename Units<Float>::Value;
    template <class Float>
    using Integer = __m128i;
    template <class Float>
    static Value<Float> splat(double value) {
        return Units<Float>::splat(value);
    }
    template <class Float>
    static Value<Float> floating(__m128i n) {
        return Units<Float>::floating(n);
    }
    static constexpr bool has_operators = false;  // an expression of operators alone calls nothing of SLEEF's
};

// clang-format off

// A function of floats and of doubles, under the name that expressions call it by.
#define FUNCTION(name, theirs)                                         \
    inline __m128 name(__m128 x) { return SLEEF_NAME(theirs, f4)(x); } \
    inline __m128d name(__m128d x) { return SLEEF_NAME(theirs, d2)(x); }
#define FUNCTION2(name, theirs)                                                     \
    inline __m128 name(__m128 x, __m128 y) { return SLEEF_NAME(theirs, f4)(x, y); } \
    inline __m128d name(__m128d x, __m128d y) { return SLEEF_NAME(theirs, d2)(x, y); }
#define SAME(name) FUNCTION(name, name)
#define SAME2(name) FUNCTION2(name, name)
#define SINE_AND_COSINE                                 \
    inline __m128 sincos(__m128 x, __m128& cosine) {    \
        auto both = SLEEF_NAME(sincos, f4)(x);          \
        cosine = both.y;                                \
        return both.x;                                  \
    }                                                   \
    inline __m128d sincos(__m128d x, __m128d& cosine) { \
        auto both = SLEEF_NAME(sincos, d2)(x);          \
        cosine = both.y;                                \
        return both.x;                                  \
    }
#define WORLD(title, ulps)                           \
    struct World : AnyWorld {                        \
        static constexpr const char* column = title; \
        static constexpr double bound = ulps;        \
    };

namespace u05 {
#define SLEEF_NAME(name, lanes) Sleef_##name##lanes##_u05sse2
WORLD("sleef_u05", 4)
SAME(sqrt) SAME(sinpi) SAME(cospi) SAME2(hypot)
#undef SLEEF_NAME
void add(std::vector<Peer>& peers) {
#define PEERS(base, ...) WORLD_PEERS(World, base, __VA_ARGS__)
#include "include/operations.def"
}
}  // namespace u05

namespace u10 {
#define SLEEF_NAME(name, lanes) Sleef_##name##lanes##_u10sse2
WORLD("sleef_u10", 4)
SAME(exp) SAME(exp2) SAME(exp10) SAME(expm1) SAME(log) SAME(log2) SAME(log10) SAME(log1p) SAME(cbrt)
SAME(sin) SAME(cos) SAME(tan) SAME(asin) SAME(acos) SAME(atan) SAME(sinh) SAME(cosh) SAME(tanh)
SAME(asinh) SAME(acosh) SAME(atanh) SAME(erf) SAME(tgamma) SAME(lgamma) SAME2(pow) SAME2(atan2)
SINE_AND_COSINE
#undef SLEEF_NAME
void add(std::vector<Peer>& peers) {
#define PEERS(base, ...) WORLD_PEERS(World, base, __VA_ARGS__)
#include "include/operations.def"
}
}  // namespace u10

namespace u15 {
#define SLEEF_NAME(name, lanes) Sleef_##name##lanes##_u15sse2
WORLD("sleef_u15", 4)
SAME(erfc)
#undef SLEEF_NAME
void add(std::vector<Peer>& peers) {
#define PEERS(base, ...) WORLD_PEERS(World, base, __VA_ARGS__)
#include "include/operations.def"
}
}  // namespace u15

namespace u35 {
#define SLEEF_NAME(name, lanes) Sleef_##name##lanes##_u35sse2
WORLD("sleef_u35", 4)
SAME(sqrt) SAME(exp2) SAME(exp10) SAME(log) SAME(log2) SAME(cbrt) SAME(sin) SAME(cos) SAME(tan) SAME(asin)
SAME(acos) SAME(atan) SAME(sinh) SAME(cosh) SAME(tanh) SAME2(hypot) SAME2(atan2)
SINE_AND_COSINE
#undef SLEEF_NAME
void add(std::vector<Peer>& peers) {
#define PEERS(base, ...) WORLD_PEERS(World, base, __VA_ARGS__)
#include "include/operations.def"
}
}  // namespace u35

// Its fast functions, of which some builds have those of floats alone: company for the native class, and held to no
// more than that reaches.
namespace u3500 {
#define SLEEF_NAME(name, lanes) Sleef_##name##lanes##_u3500sse2
WORLD("sleef_u3500", 1e4)
inline __m128 sin(__m128 x) { return SLEEF_NAME(fastsin, f4)(x); }
inline __m128 cos(__m128 x) { return SLEEF_NAME(fastcos, f4)(x); }
inline __m128 pow(__m128 x, __m128 y) { return SLEEF_NAME(fastpow, f4)(x, y); }
#undef SLEEF_NAME
void add(std::vector<Peer>& peers) {
#define PEERS(base, ...) WORLD_PEERS(World, base, __VA_ARGS__)
#include "include/operations.def"
}
}  // namespace u3500

// Functions without an accuracy class.
namespace plain {
#define SLEEF_NAME(name, lanes) Sleef_##name##lanes##_sse2
WORLD("sleef", 4)
SAME(floor) SAME(ceil) SAME(rint) SAME(round) SAME(trunc) SAME(fabs) SAME2(fmin) SAME2(fmax) SAME2(fdim)
SAME2(copysign) SAME2(fmod) SAME2(remainder) SAME2(nextafter)
inline __m128 fma(__m128 x, __m128 y, __m128 z) { return SLEEF_NAME(fma, f4)(x, y, z); }
inline __m128d fma(__m128d x, __m128d y, __m128d z) { return SLEEF_NAME(fma, d2)(x, y, z); }
inline __m128 modf(__m128 x, __m128& integral) {
    auto both = SLEEF_NAME(modf, f4)(x);
    integral = both.y;
    return both.x;
}
inline __m128d modf(__m128d x, __m128d& integral) {
    auto both = SLEEF_NAME(modf, d2)(x);
    integral = both.y;
    return both.x;
}
// These for doubles alone.
inline __m128d ldexp(__m128d x, __m128i n) { return Sleef_ldexpd2_sse2(x, n); }
inline __m128i ilogb(__m128d x) { return Sleef_ilogbd2_sse2(x); }
inline __m128d frexp(__m128d x, __m128i& exponent) {
    exponent = Sleef_expfrexpd2_sse2(x);
    return Sleef_frfrexpd2_sse2(x);
}
#undef SLEEF_NAME
void add(std::vector<Peer>& peers) {
#define PEERS(base, ...) WORLD_PEERS(World, base, __VA_ARGS__)
#include "include/operations.def"
}
}  // namespace plain

// clang-format on

}  // namespace bench::sleef

void bench::add_sleef(std::vector<Peer>& peers) {
    sleef::u05::add(peers);
    sleef::u10::add(peers);
    sleef::u15::add(peers);
    sleef::u35::add(peers);
    sleef::u3500::add(peers);
    sleef::plain::add(peers);
}
