// Units as the frame sees them: how many lanes, of what type, in what layout; and what a main path returns.
#pragma once

#include <type_traits>

#include "frame/units.h"

namespace zorv {

template <class Units>
struct Layout;
template <class L, class U>
struct OneUnitLayout {
    using Lane = L;
    using Unit = U;
    static constexpr int lanes = 16 / sizeof(L);
};
template <>
struct Layout<F4> : OneUnitLayout<float, F4> {};
template <>
struct Layout<I4> : OneUnitLayout<int32_t, I4> {};
template <>
struct Layout<U4> : OneUnitLayout<uint32_t, U4> {};
template <>
struct Layout<D2> : OneUnitLayout<double, D2> {};
template <>
struct Layout<L2> : OneUnitLayout<int64_t, L2> {};
template <>
struct Layout<UL2> : OneUnitLayout<uint64_t, UL2> {};
template <>
struct Layout<N2> {
    using Lane = int32_t;
    using Unit = N2;
    static constexpr int lanes = 2;
};
template <class U>
struct Layout<TwoUnits<U>> {
    using Lane = typename Layout<U>::Lane;
    using Unit = TwoUnits<U>;
    static constexpr int lanes = 4;
};

// The mask that goes with a unit: all ones or zero in each lane. Of 64-bit lanes only the high halves count.
template <class Units>
using MaskOf = std::conditional_t<Layout<Units>::lanes == 4, I4, L2>;

// ---- What a main path returns. -----------------------------------------------------------------------------

template <class Result, class Second = void>
struct Both {
    Result first;
    Second second;
};
template <class Result, class Second = void>
struct Lanes {
    Result first;
    Second second;
    MaskOf<Result> rare;
};
template <class Result>
struct Lanes<Result, void> {
    Result first;
    MaskOf<Result> rare;
};
template <class Result, class Second = void>
struct AllRare {
    Result first;
    Second second;
};
template <class Result>
struct AllRare<Result, void> {
    Result first;
};

enum class FrameKind { bare, full, all_rare };

template <class Returned>
struct MainResult {
    static constexpr FrameKind kind = FrameKind::bare;
    using First = Returned;
    using Second = void;
};
template <class R, class S>
struct MainResult<Both<R, S>> {
    static constexpr FrameKind kind = FrameKind::bare;
    using First = R;
    using Second = S;
};
template <class R, class S>
struct MainResult<Lanes<R, S>> {
    static constexpr FrameKind kind = FrameKind::full;
    using First = R;
    using Second = S;
};
template <class R, class S>
struct MainResult<AllRare<R, S>> {
    static constexpr FrameKind kind = FrameKind::all_rare;
    using First = R;
    using Second = S;
};

}  // namespace zorv
