// How vectors travel: out of exports, and out of the cold parts behind them.
//
// On x86-64 clang puts a vector of more than 16 bytes where the instruction set of the function at hand would have it:
// functions compiled for SSE2, AVX and AVX-512 look for it in different places. There such a vector travels as a
// structure of its units, which all of them treat alike. The members are single: what becomes of an array differs
// between versions of clang.
#pragma once

#include <type_traits>

#include "frame/inlining.h"
#include "frame/units.h"

namespace zorv {

#ifdef __x86_64__
inline constexpr bool wide_vectors_travel_as_units = true;
#else
inline constexpr bool wide_vectors_travel_as_units = false;
#endif

// The bits of one type as another.
template <class To, class From>
ALWAYS_INLINE To image_of(From from) {
    static_assert(sizeof(To) == sizeof(From));
    To to;
    __builtin_memcpy(&to, &from, sizeof to);
    return to;
}

template <class Lane, int width, int units>
struct UnitsOf;
#define UNITS_OF(count, ...)                                                                                \
    template <class Lane, int width>                                                                        \
    struct UnitsOf<Lane, width, count> {                                                                    \
        Vector<Lane, 16 / sizeof(Lane)> __VA_ARGS__;                                                        \
        ALWAYS_INLINE operator Vector<Lane, width>() const { return image_of<Vector<Lane, width>>(*this); } \
    };
UNITS_OF(2, unit0, unit1)
UNITS_OF(4, unit0, unit1, unit2, unit3)
UNITS_OF(8, unit0, unit1, unit2, unit3, unit4, unit5, unit6, unit7)
#undef UNITS_OF

template <class Lane, int width, int bytes = sizeof(Vector<Lane, width>)>
using Travelling = std::conditional_t<(wide_vectors_travel_as_units && bytes > 16), UnitsOf<Lane, width, bytes / 16>,
                                      Vector<Lane, width>>;

}  // namespace zorv
