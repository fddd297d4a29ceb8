// The arithmetic of some families written out with intrinsics, inlined into a loop as the floors are: what the floor
// of a kernel would be, had it been written without units, records and idioms.
#include <emmintrin.h>

#include "bench/candidates.h"

namespace bench {
namespace {

void square_root(const Arrays& arrays) {
    const float* x = arrays.operand<float>(0);
    float* result = arrays.result<float>(0);
    const __m128 half = _mm_set1_ps(0.5f);
    for (size_t i = 0; i < elements; i += 4) {
        __m128 operand = _mm_load_ps(x + i);
        __m128 y = _mm_rsqrt_ps(operand);
        __m128 g = _mm_mul_ps(operand, y), h = _mm_mul_ps(y, half);
        __m128 r = _mm_sub_ps(half, _mm_mul_ps(g, h));
        g = _mm_add_ps(_mm_mul_ps(r, g), g);
        h = _mm_add_ps(_mm_mul_ps(r, h), h);
        __m128 d = _mm_sub_ps(operand, _mm_mul_ps(g, g));
        _mm_store_ps(result + i, _mm_add_ps(_mm_mul_ps(h, d), g));
    }
}

void reciprocal_root(const Arrays& arrays) {
    const float* x = arrays.operand<float>(0);
    float* result = arrays.result<float>(0);
    const __m128 truncate = _mm_castsi128_ps(_mm_set1_epi32(static_cast<int>(0xffff8000)));
    for (size_t i = 0; i < elements; i += 4) {
        __m128 operand = _mm_load_ps(x + i);
        __m128 y = _mm_and_ps(_mm_rsqrt_ps(operand), truncate);
        __m128 e = _mm_sub_ps(_mm_mul_ps(_mm_mul_ps(y, y), operand), _mm_set1_ps(1));
        __m128 p = _mm_add_ps(_mm_mul_ps(_mm_set1_ps(-0.3125f), e), _mm_set1_ps(0.375f));
        p = _mm_mul_ps(_mm_add_ps(_mm_mul_ps(p, e), _mm_set1_ps(-0.5f)), e);
        _mm_store_ps(result + i, _mm_add_ps(_mm_mul_ps(p, y), y));
    }
}

void minimum(const Arrays& arrays) {
    const double *x = arrays.operand<double>(0), *y = arrays.operand<double>(1);
    double* result = arrays.result<double>(0);
    for (size_t i = 0; i < elements; i += 2)
        _mm_store_pd(result + i, _mm_min_pd(_mm_load_pd(x + i), _mm_load_pd(y + i)));
}

}  // namespace

// Exact to the bit what the families compute, so held to no error beyond the largest of theirs.
void add_by_hand(std::vector<Peer>& peers) {
    peers.push_back({"sqrtf", "by_hand", 1, {16}, square_root});
    peers.push_back({"rsqrtf", "by_hand", 1.1, {16}, reciprocal_root});
    peers.push_back({"fmin", "by_hand", 0, {16}, minimum});
}

}  // namespace bench
