// Lanes into units and back: a vector of any width as the steps of a call, and the steps as a vector.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "frame/inlining.h"
#include "frame/layout.h"
#include "include/grid_names.h"

namespace zorv {

// Lanes that exist in a vector of this width: a width-3 vector has a fourth one.
template <int width>
inline constexpr int room = width == 3 ? 4 : width;

template <int width, int lanes>
inline constexpr int steps_of = room<width> <= lanes ? 1 : room<width> / lanes;

// Lane 3 of a width-3 operand is whatever the caller's register held: it gets a harmless value, here, before any
// arithmetic sees it.
template <class Lane>
ALWAYS_INLINE Vector<Lane, 3> with_fourth_lane(Vector<Lane, 3> vector, Lane fill) {
    using Pattern = Vector<std::conditional_t<sizeof(Lane) == 4, int32_t, int64_t>, 4>;
    constexpr Pattern live = {-1, -1, -1, 0};
    Vector<Lane, 4> filled = {0, 0, 0, fill};
    return reinterpret_cast<Vector<Lane, 4>>((reinterpret_cast<Pattern>(vector) & live) |
                                             reinterpret_cast<Pattern>(filled));
}

// What it gets: in the first operand what the grid says, otherwise a number in the middle of most domains.
template <class Lane, bool is_first_operand>
constexpr Lane fill_value(grid::Traits traits) {
    if (is_first_operand && (traits & grid::fill_zero) != 0) return 0;
    if (is_first_operand && (traits & grid::fill_one) != 0) return 1;
    if (is_first_operand && (traits & grid::fill_two) != 0) return 2;
    return std::is_floating_point_v<Lane> ? static_cast<Lane>(0.75) : static_cast<Lane>(1);
}

// A scalar operand by a load of its own size: read as a whole unit from the caller's stack it would wait for the
// caller's narrower store to retire.
template <class Lane>
ALWAYS_INLINE Lane in_register(Lane lane) {
#ifndef ZORV_BITCODE
    if constexpr (std::is_floating_point_v<Lane>) asm("" : "+x"(lane));
#endif
    return lane;
}

// Likewise a 64-bit integer, which on i386 the caller has stored as two halves, by one load for each half.
template <class Unit>
ALWAYS_INLINE Unit unit_from_halves(uint64_t lane) {
    if constexpr (sizeof(void*) == 8) return reinterpret_cast<Unit>(UL2{lane, lane});
    __m128i low = _mm_cvtsi32_si128(static_cast<int>(lane));
    __m128i high = _mm_cvtsi32_si128(static_cast<int>(lane >> 32));
    asm("" : "+x"(low), "+x"(high));
    __m128i once = _mm_unpacklo_epi32(low, high);
    return reinterpret_cast<Unit>(_mm_unpacklo_epi64(once, once));
}

// One unit, from `first` on. A short vector fills its unit with copies of itself: what stale register contents would
// do instead (a subnormal's delay, a flag) cannot happen.
template <class Unit, int width, int first>
ALWAYS_INLINE Unit take_unit(Vector<typename Layout<Unit>::Lane, width> vector) {
    constexpr int w = room<width>;
    if constexpr (width == 1) {
        auto lane = in_register(vector);
        if constexpr (std::is_integral_v<decltype(lane)> && sizeof(lane) == 8)
            return unit_from_halves<Unit>(static_cast<uint64_t>(lane));
        else if constexpr (Layout<Unit>::lanes == 4)
            return Unit{lane, lane, lane, lane};
        else
            return Unit{lane, lane};
    } else if constexpr (Layout<Unit>::lanes == 4)
        return __builtin_shufflevector(vector, vector, first % w, (first + 1) % w, (first + 2) % w, (first + 3) % w);
    else
        return __builtin_shufflevector(vector, vector, first % w, (first + 1) % w);
}

template <class Units, int width, int first>
ALWAYS_INLINE Units take(Vector<typename Layout<Units>::Lane, width> vector) {
    constexpr int w = room<width>;
    if constexpr (requires(Units units) { units.low; }) {
        using Unit = decltype(Units::low);
        return {take_unit<Unit, width, first>(vector), take_unit<Unit, width, (first + 2) % w>(vector)};
    } else if constexpr (std::is_same_v<Units, N2>) {
        if constexpr (width == 1)
            return {I4{vector, vector, vector, vector}};
        else
            return {__builtin_shufflevector(vector, vector, first % w, first % w, (first + 1) % w, (first + 1) % w)};
    } else {
        return take_unit<Units, width, first>(vector);
    }
}

// As bitcode the exports are inlined into kernels: there the compiler must not see that an operand is a constant. What
// it computed in place of the processor could have a NaN of another sign.
template <class Units>
ALWAYS_INLINE Units unseen(Units units) {
#ifdef ZORV_BITCODE
    if constexpr (requires { units.low; })
        return {fenced(units.low), fenced(units.high)};
    else if constexpr (std::is_same_v<Units, N2>)
        return {fenced(units.halves)};
    else
        return fenced(units);
#endif
    return units;
}

// Two vectors end to end.
template <class Half, class Whole, size_t... lane>
ALWAYS_INLINE Whole join(Half low, Half high, std::index_sequence<lane...>) {
    return __builtin_shufflevector(low, high, lane...);
}

// The units of one operand or result over all steps of a call.
template <class Units, int count>
struct Steps {
    Units step[count];
};

// `count` steps, from `first` on, as one vector.
template <int first, int count, class Units, int total>
ALWAYS_INLINE auto put_steps(const Steps<Units, total>& steps) {
    using Lane = typename Layout<Units>::Lane;
    constexpr int lanes = Layout<Units>::lanes * count;
    using Whole = Vector<Lane, lanes>;
    if constexpr (count > 1) {
        return join<Vector<Lane, lanes / 2>, Whole>(put_steps<first, count / 2>(steps),
                                                    put_steps<first + count / 2, count / 2>(steps),
                                                    std::make_index_sequence<lanes>());
    } else if constexpr (requires(Units units) { units.low; }) {
        return join<decltype(Units::low), Whole>(steps.step[first].low, steps.step[first].high,
                                                 std::make_index_sequence<4>());
    } else if constexpr (std::is_same_v<Units, N2>) {
        return __builtin_shufflevector(steps.step[first].halves, steps.step[first].halves, 0, 2);
    } else {
        return steps.step[first];
    }
}

template <int width, class Units, int count>
ALWAYS_INLINE Vector<typename Layout<Units>::Lane, width> put(const Steps<Units, count>& steps) {
    auto whole = put_steps<0, count>(steps);
    if constexpr (width == 1)
        return whole[0];
    else if constexpr (room<width> == count * Layout<Units>::lanes)
        return whole;
    else
        return __builtin_shufflevector(whole, whole, 0, 1);
}

}  // namespace zorv
