// The rare mask: bit i for lane i.
#pragma once

#include "frame/inlining.h"
#include "frame/shaping.h"

namespace zorv {

ALWAYS_INLINE unsigned sign_bits(I4 mask) {
    return static_cast<unsigned>(_mm_movemask_ps(reinterpret_cast<__m128>(mask)));
}
ALWAYS_INLINE unsigned sign_bits(L2 mask) {
    return static_cast<unsigned>(_mm_movemask_pd(reinterpret_cast<__m128d>(mask)));
}
ALWAYS_INLINE I4 four_lanes(L2 first, L2 second) { return high_halves(first, second); }

template <int width>
ALWAYS_INLINE unsigned bit_mask(const I4* mask) {
    auto raw = [mask](int i) { return reinterpret_cast<__m128i>(mask[i]); };
    if constexpr (width <= 4) {
        constexpr unsigned live = width < 3 ? (1u << width) - 1 : 15u;
        return sign_bits(mask[0]) & live;
    } else if constexpr (width == 8) {
        __m128i bytes = _mm_packs_epi16(_mm_packs_epi32(raw(0), raw(1)), _mm_setzero_si128());
        return static_cast<unsigned>(_mm_movemask_epi8(bytes));
    } else {
        __m128i low = _mm_packs_epi32(raw(0), raw(1));
        __m128i high = _mm_packs_epi32(raw(2), raw(3));
        return static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(low, high)));
    }
}

template <int width>
ALWAYS_INLINE unsigned bit_mask(const L2* mask) {
    if constexpr (width <= 2) {
        return sign_bits(mask[0]) & ((1u << width) - 1);
    } else {
        I4 gathered[room<width> / 4];
        for (int i = 0; i < room<width> / 4; ++i) gathered[i] = four_lanes(mask[2 * i], mask[2 * i + 1]);
        return bit_mask<width>(gathered);
    }
}

}  // namespace zorv
