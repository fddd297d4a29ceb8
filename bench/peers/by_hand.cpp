// Built into a shared library of its own, so that a call and a constant cost what they cost in any shared library.
#include "bench/peers/by_hand.h"

#include <emmintrin.h>

#include <cstring>

namespace {

inline void test(int mask) {
    if (__builtin_expect(mask != 0, 0)) __builtin_trap();
}
inline void test(__m128 mask) { test(_mm_movemask_ps(mask)); }
inline void test(__m128d mask) { test(_mm_movemask_pd(mask)); }
inline void test(__m128i mask) { test(_mm_movemask_epi8(mask)); }

inline __m128 either(__m128 a, __m128 b) { return _mm_or_ps(a, b); }
inline __m128d either(__m128d a, __m128d b) { return _mm_or_pd(a, b); }
inline __m128i either(__m128i a, __m128i b) { return _mm_or_si128(a, b); }

// One operation on every unit of its operands. It gives its result and, where it has one, leaves its mask behind.
template <class Unit, class Mask, class Vector, class Operation, class... Vectors>
inline Vector for_units(Operation operation, Vectors... operands) {
    constexpr int units = sizeof(Vector) / 16;
    Vector result;
    Mask mask = {};
#pragma clang loop unroll(full)
    for (int i = 0; i < units; ++i) {
        auto unit = [i](const auto& vector) {
            Unit one;
            std::memcpy(&one, reinterpret_cast<const char*>(&vector) + 16 * i, 16);
            return one;
        };
        Mask rare;
        Unit one = operation(unit(operands)..., rare);
        std::memcpy(reinterpret_cast<char*>(&result) + 16 * i, &one, 16);
        mask = i == 0 ? rare : either(mask, rare);
    }
    test(mask);
    return result;
}
template <class Unit, class Vector, class Operation, class... Vectors>
inline Vector for_bare_units(Operation operation, Vectors... operands) {
    Vector result;
#pragma clang loop unroll(full)
    for (int i = 0; i < static_cast<int>(sizeof(Vector) / 16); ++i) {
        auto unit = [i](const auto& vector) {
            Unit one;
            std::memcpy(&one, reinterpret_cast<const char*>(&vector) + 16 * i, 16);
            return one;
        };
        Unit one = operation(unit(operands)...);
        std::memcpy(reinterpret_cast<char*>(&result) + 16 * i, &one, 16);
    }
    return result;
}

// ---- Units. -------------------------------------------------------------------------------------------------

inline __m128 reciprocal(__m128 x, __m128& rare) {
    rare = _mm_cmpeq_ps(x, _mm_setzero_ps());
    return _mm_div_ps(_mm_set1_ps(1), x);
}

inline __m128i not_positive_normal(__m128i halves, int smallest_normal, int count) {
    return _mm_cmpgt_epi32(_mm_sub_epi32(halves, _mm_set1_epi32(smallest_normal)), _mm_set1_epi32(count));
}

inline __m128 root(__m128 x, __m128i& rare) {
    rare = not_positive_normal(_mm_castps_si128(x), static_cast<int>(0x80800000), static_cast<int>(0xfeffffff));
    __m128 half = _mm_set1_ps(0.5f);
    __m128 y = _mm_rsqrt_ps(x);
    __m128 g = _mm_mul_ps(x, y);
    __m128 h = _mm_mul_ps(y, half);
    __m128 r = _mm_sub_ps(half, _mm_mul_ps(g, h));
    g = _mm_add_ps(_mm_mul_ps(r, g), g);
    h = _mm_add_ps(_mm_mul_ps(r, h), h);
    __m128 d = _mm_sub_ps(x, _mm_mul_ps(g, g));
    return _mm_add_ps(_mm_mul_ps(h, d), g);
}

inline __m128 reciprocal_root(__m128 x, __m128i& rare) {
    rare = not_positive_normal(_mm_castps_si128(x), static_cast<int>(0x80800000), static_cast<int>(0xfeffffff));
    __m128 y = _mm_and_ps(_mm_rsqrt_ps(x), _mm_castsi128_ps(_mm_set1_epi32(static_cast<int>(0xffff8000))));
    __m128 e = _mm_sub_ps(_mm_mul_ps(_mm_mul_ps(y, y), x), _mm_set1_ps(1));
    __m128 p = _mm_add_ps(_mm_mul_ps(_mm_set1_ps(-0.3125f), e), _mm_set1_ps(0.375f));
    p = _mm_mul_ps(_mm_add_ps(_mm_mul_ps(p, e), _mm_set1_ps(-0.5f)), e);
    return _mm_add_ps(_mm_mul_ps(p, y), y);
}

inline __m128d reciprocal_root(__m128d x, __m128d& rare) {
    __m128i b = _mm_castpd_si128(x);
    rare = _mm_castsi128_pd(not_positive_normal(b, static_cast<int>(0x80100000), static_cast<int>(0xffdfffff)));
    // The operand as a float in [1, 4), and the power of two that was taken out.
    __m128i e = _mm_and_si128(b, _mm_set1_epi64x(0x7ff0000000000000));
    __m128i n = _mm_andnot_si128(e, _mm_set1_epi64x(0x0010000000000000));
    __m128i low = _mm_srli_epi64(_mm_and_si128(b, _mm_set1_epi64x(0x001fffffffffffff)), 29);
    __m128i exponent = _mm_srli_epi64(_mm_add_epi64(_mm_set1_epi64x(0x07f0000000000000), n), 29);
    __m128 u = _mm_castsi128_ps(_mm_shuffle_epi32(_mm_or_si128(low, exponent), 0x88));
    __m128i scale = _mm_sub_epi64(_mm_add_epi64(_mm_set1_epi64x(static_cast<long long>(0xbfd0000000000000)), n), e);
    __m128d y = _mm_mul_pd(_mm_cvtps_pd(_mm_rsqrt_ps(u)), _mm_castsi128_pd(_mm_srli_epi64(scale, 1)));

    __m128d y2 = _mm_mul_pd(y, y);
    __m128d head = _mm_and_pd(x, _mm_castsi128_pd(_mm_set1_epi64x(static_cast<long long>(0xfffffffff8000000))));
    __m128d tail = _mm_sub_pd(x, head);
    __m128d r = _mm_sub_pd(_mm_sub_pd(_mm_set1_pd(1), _mm_mul_pd(head, y2)), _mm_mul_pd(tail, y2));
    __m128d p = _mm_add_pd(_mm_mul_pd(_mm_set1_pd(0x1.1800032338cbbp-2), r), _mm_set1_pd(0x1.40000b13001d9p-2));
    p = _mm_add_pd(_mm_mul_pd(p, r), _mm_set1_pd(0x1.80000000000f6p-2));
    p = _mm_add_pd(_mm_mul_pd(p, r), _mm_set1_pd(0x1.ffffffffffe71p-2));
    return _mm_add_pd(_mm_mul_pd(_mm_mul_pd(p, r), y), y);
}

inline __m128i all_ones_exponent(__m128i x, __m128i y, __m128i exponent) {
    return _mm_or_si128(_mm_cmpeq_epi32(_mm_and_si128(x, exponent), exponent),
                        _mm_cmpeq_epi32(_mm_and_si128(y, exponent), exponent));
}
inline __m128i not_finite(__m128 x, __m128 y) {
    return all_ones_exponent(_mm_castps_si128(x), _mm_castps_si128(y), _mm_set1_epi32(0x7f800000));
}
// Of the two halves of a lane the high one decides; the sign bit of the 64-bit lane says so.
inline __m128d not_finite(__m128d x, __m128d y) {
    return _mm_castsi128_pd(all_ones_exponent(_mm_castpd_si128(x), _mm_castpd_si128(y), _mm_set1_epi32(0x7ff00000)));
}

inline __m128 smaller(__m128 x, __m128 y) { return _mm_min_ps(x, y); }
inline __m128d smaller(__m128d x, __m128d y) { return _mm_min_pd(x, y); }
inline __m128 larger(__m128 x, __m128 y) { return _mm_max_ps(x, y); }
inline __m128d larger(__m128d x, __m128d y) { return _mm_max_pd(x, y); }
inline __m128 difference(__m128 x, __m128 y) { return _mm_and_ps(_mm_cmplt_ps(y, x), _mm_sub_ps(x, y)); }
inline __m128d difference(__m128d x, __m128d y) { return _mm_and_pd(_mm_cmplt_pd(y, x), _mm_sub_pd(x, y)); }
inline __m128 magnitude(__m128 x) { return _mm_andnot_ps(_mm_set1_ps(-0.0f), x); }
inline __m128d magnitude(__m128d x) { return _mm_andnot_pd(_mm_set1_pd(-0.0), x); }
inline __m128 with_sign(__m128 x, __m128 y) { return _mm_or_ps(magnitude(x), _mm_and_ps(y, _mm_set1_ps(-0.0f))); }
inline __m128d with_sign(__m128d x, __m128d y) { return _mm_or_pd(magnitude(x), _mm_and_pd(y, _mm_set1_pd(-0.0))); }
inline __m128 multiply_add(__m128 x, __m128 y, __m128 z) { return _mm_add_ps(_mm_mul_ps(x, y), z); }
inline __m128d multiply_add(__m128d x, __m128d y, __m128d z) { return _mm_add_pd(_mm_mul_pd(x, y), z); }

}  // namespace

// ---- Functions. ---------------------------------------------------------------------------------------------

float by_hand_invf1(float x) {
    __m128 rare, result = reciprocal(_mm_set_ss(x), rare);
    test(_mm_movemask_ps(rare) & 1);
    return _mm_cvtss_f32(result);
}
float by_hand_sqrtf1(float x) {
    __m128i rare;
    __m128 result = root(_mm_set_ss(x), rare);
    test(_mm_movemask_ps(_mm_castsi128_ps(rare)) & 1);
    return _mm_cvtss_f32(result);
}
float by_hand_rsqrtf1(float x) {
    __m128i rare;
    __m128 result = reciprocal_root(_mm_set_ss(x), rare);
    test(_mm_movemask_ps(_mm_castsi128_ps(rare)) & 1);
    return _mm_cvtss_f32(result);
}
double by_hand_rsqrt1(double x) {
    __m128d rare, result = reciprocal_root(_mm_set_sd(x), rare);
    test(_mm_movemask_pd(rare) & 1);
    return _mm_cvtsd_f64(result);
}

#define ROOTS(letter, width, vector, unit, mask, base, operation)                                           \
    vector by_hand_##base##letter##width(vector x) {                                                        \
        return for_units<unit, mask, vector>([](unit one, mask& rare) { return operation(one, rare); }, x); \
    }
ROOTS(f, 4, float4, __m128, __m128, inv, reciprocal)
ROOTS(f, 16, float16, __m128, __m128, inv, reciprocal)
ROOTS(f, 4, float4, __m128, __m128i, sqrt, root)
ROOTS(f, 16, float16, __m128, __m128i, sqrt, root)
ROOTS(f, 4, float4, __m128, __m128i, rsqrt, reciprocal_root)
ROOTS(f, 16, float16, __m128, __m128i, rsqrt, reciprocal_root)
ROOTS(, 4, double4, __m128d, __m128d, rsqrt, reciprocal_root)
ROOTS(, 16, double16, __m128d, __m128d, rsqrt, reciprocal_root)

#define SELECTION(letter, vector, unit, mask, base, operation) \
    vector by_hand_##base##letter##16(vector x, vector y) {    \
        return for_units<unit, mask, vector>(                  \
            [](unit one, unit other, mask& rare) {             \
                rare = not_finite(one, other);                 \
                return operation(one, other);                  \
            },                                                 \
            x, y);                                             \
    }
SELECTION(f, float16, __m128, __m128i, fmin, smaller)
SELECTION(, double16, __m128d, __m128d, fmin, smaller)
SELECTION(f, float16, __m128, __m128i, fmax, larger)
SELECTION(, double16, __m128d, __m128d, fmax, larger)
SELECTION(f, float16, __m128, __m128i, fdim, difference)
SELECTION(, double16, __m128d, __m128d, fdim, difference)

#define BARE(letter, vector, unit)                                                                                  \
    vector by_hand_fabs##letter##16(vector x) {                                                                     \
        return for_bare_units<unit, vector>([](unit one) { return magnitude(one); }, x);                            \
    }                                                                                                               \
    vector by_hand_copysign##letter##16(vector x, vector y) {                                                       \
        return for_bare_units<unit, vector>([](unit one, unit other) { return with_sign(one, other); }, x, y);      \
    }                                                                                                               \
    vector by_hand_mad##letter##16(vector x, vector y, vector z) {                                                  \
        return for_bare_units<unit, vector>([](unit a, unit b, unit c) { return multiply_add(a, b, c); }, x, y, z); \
    }
BARE(f, float16, __m128)
BARE(, double16, __m128d)
