// The lane frame: the one shape of every exported function.
//
// A kernel says what happens to the lanes of one step (one unit, or two side by side); the frame knows widths.
// A kernel is a type with
//
//   static <results> main(<units> operands...);            the main path, branch-free
//   static Status rare(const <lane>*..., <lane>*...);      the scalar routine, where lanes can be rare
//
// and the type that main returns says which frame it gets:
//
//   a unit, or Both<unit, unit>         bare frame: main path only
//   Lanes<unit>, Lanes<unit, unit>      full frame: results, and a mask of the lanes that `rare` must repair
//   AllRare<unit>, AllRare<unit, unit>  all-rare frame: `rare` computes every lane, over what main staged
//
// Further members, all optional:
//
//   fill        what lane 3 of the first operand holds at width 3, in place of 0.75 (floating) or 1 (integer)
//   LongPath    a kernel of its own that takes over, for all lanes together, where
//   beyond      static <mask> beyond(<units> operands...) is true in any lane
//   batch       main over four units at once, at widths 1, 8 and 16
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "frame/status.h"
#include "frame/units.h"

namespace zorv {

#define ALWAYS_INLINE [[gnu::always_inline]] inline
// Calls written in the body are inlined, so that a kernel's main path becomes part of the export.
#define ALWAYS_INLINE_WITH_CALLS [[gnu::always_inline, gnu::flatten]] inline

// ---- Units as the frame sees them: how many lanes, of what type, in what layout. ---------------------------

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

// ---- Lanes into units and back. ----------------------------------------------------------------------------

// Lanes that exist in a vector of this width: a width-3 vector has a fourth one.
template <int width>
inline constexpr int room = width == 3 ? 4 : width;

template <int width, int lanes>
inline constexpr int steps_of = room<width> <= lanes ? 1 : room<width> / lanes;

// A scalar operand by a load of its own size: read as a whole unit from the caller's stack it would wait for the
// caller's narrower store to retire.
template <class Lane>
ALWAYS_INLINE Lane in_register(Lane lane) {
    if constexpr (std::is_floating_point_v<Lane>) asm("" : "+x"(lane));
    return lane;
}

// Likewise a 64-bit integer, which the caller has stored as two halves, by one load for each half.
template <class Unit>
ALWAYS_INLINE Unit unit_from_halves(uint64_t lane) {
    __m128i low = _mm_cvtsi32_si128(static_cast<int>(lane));
    __m128i high = _mm_cvtsi32_si128(static_cast<int>(lane >> 32));
    asm("" : "+x"(low), "+x"(high));
    __m128i once = _mm_unpacklo_epi32(low, high);
    return reinterpret_cast<Unit>(_mm_unpacklo_epi64(once, once));
}

// One unit, from `first` on. Short vectors are copied into the idle lanes, which keeps those lanes busy with a
// value of the same class as a live one.
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

// ---- The rare mask: bit i for lane i. ----------------------------------------------------------------------

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

// ---- Staging areas. ----------------------------------------------------------------------------------------

// One slot for each lane, aligned to 64 bytes and at least 64 bytes long.
template <class Lane, int width>
struct alignas(64) StagingArea {
    Lane slots[64 / sizeof(Lane) < room<width> ? room<width> : 64 / sizeof(Lane)];

    explicit StagingArea(Vector<Lane, width> vector) { __builtin_memcpy(slots, &vector, sizeof vector); }
    Vector<Lane, width> reload() const {
        Vector<Lane, width> vector;
        __builtin_memcpy(&vector, slots, sizeof vector);
        return vector;
    }
};

// ---- Deliveries: what happens to the results once they are complete. ---------------------------------------

// A delivery travels to the long path as its target: a pointer goes in a register, a structure around it would go on
// the stack and keep the call from being a jump.
struct NoTarget {};

template <class Value>
struct ByValue {
    using Type = Value;
    [[no_unique_address]] NoTarget target;
    ALWAYS_INLINE Value operator()(Value first) const { return first; }
};

template <class Value, class SecondValue>
struct ThroughPointer {
    using Type = Value;
    SecondValue* target;
    ALWAYS_INLINE Value operator()(Value first, SecondValue second) const {
        // Contiguous lanes. A caller need not align more than whole units, whatever the vector type would like.
        constexpr size_t alignment = sizeof second < 16 ? alignof(SecondValue) : 16;
        __builtin_memcpy(__builtin_assume_aligned(target, alignment), &second, sizeof second);
        return first;
    }
};

// At width 1 the pair is one two-lane value.
template <class Value, class SecondValue, class Pair>
struct AsPair {
    using Type = Pair;
    [[no_unique_address]] NoTarget target;
    ALWAYS_INLINE Pair operator()(Value first, SecondValue second) const { return Pair{first, second}; }
};

// ---- The frame. --------------------------------------------------------------------------------------------

template <class Kernel, int width, class Main = decltype(&Kernel::main)>
class Frame;

template <class Kernel, int width, class Returned, class... Operands>
class Frame<Kernel, width, Returned (*)(Operands...)> {
    using Result = MainResult<Returned>;
    using First = typename Result::First;
    static constexpr bool two_results = !std::is_void_v<typename Result::Second>;
    static constexpr bool has_mask = Result::kind == FrameKind::full;
    // With one result there is no second one; the name needs a type all the same.
    using Second = std::conditional_t<two_results, typename Result::Second, First>;

    static constexpr int lanes = Layout<First>::lanes;
    static constexpr int steps = steps_of<width, lanes>;

    template <class Units>
    using Lane = typename Layout<Units>::Lane;
    template <class Units>
    using VectorFor = Vector<Lane<Units>, width>;
    template <class Units>
    using AllSteps = Steps<Units, steps>;

  public:
    using Value = VectorFor<First>;
    using SecondValue = VectorFor<Second>;
    struct WidePair {
        Value first;
        SecondValue second;
    };
    using Pair = std::conditional_t<width == 1, Vector<Lane<First>, 2>, WidePair>;

    // One result.
    ALWAYS_INLINE static Value call(VectorFor<Operands>... operands) {
        return start(ByValue<Value>{}, std::index_sequence_for<Operands...>(), operands...);
    }
    // Two results, the second through a pointer.
    ALWAYS_INLINE static Value call_with_pointer(VectorFor<Operands>... operands, SecondValue* second) {
        return start(ThroughPointer<Value, SecondValue>{second}, std::index_sequence_for<Operands...>(), operands...);
    }
    // Two results by value.
    ALWAYS_INLINE static Pair call_for_pair(VectorFor<Operands>... operands) {
        return start(AsPair<Value, SecondValue, Pair>{}, std::index_sequence_for<Operands...>(), operands...);
    }

    // The flow of a call, from shaped operands on.
    template <class Delivery>
    ALWAYS_INLINE static typename Delivery::Type run(Delivery deliver, AllSteps<Operands>... operands) {
        if constexpr (requires { typename Kernel::LongPath; }) {
            if (__builtin_expect(any_beyond(std::make_index_sequence<steps>(), operands...), 0))
                return take_long_path<Delivery>(operands..., deliver.target);
        }
        Outcome outcome;
        compute(outcome, operands...);
        if constexpr (Result::kind == FrameKind::all_rare) {
            constexpr unsigned every_lane = (1u << (room<width>)) - 1;
            return repair(outcome.first, outcome.second, operands..., every_lane, deliver);
        } else if constexpr (has_mask) {
            unsigned rare_lanes = bit_mask<width>(outcome.rare.step);
            if (__builtin_expect(rare_lanes != 0, 0))
                return repair(outcome.first, outcome.second, operands..., rare_lanes, deliver);
        }
        if constexpr (two_results)
            return deliver(put<width>(outcome.first), put<width>(outcome.second));
        else
            return deliver(put<width>(outcome.first));
    }

  private:
    struct Nothing {};
    using SecondSteps = std::conditional_t<two_results, AllSteps<Second>, Nothing>;
    struct Outcome {
        AllSteps<First> first;
        [[no_unique_address]] SecondSteps second;
        [[no_unique_address]] std::conditional_t<has_mask, AllSteps<MaskOf<First>>, Nothing> rare;
    };

    // ---- Shaping. ----

    // Lane 3 of a width-3 operand is replaced before anything else looks at it.
    template <class Units, bool is_first_operand>
    ALWAYS_INLINE static VectorFor<Units> shape(VectorFor<Units> vector) {
        if constexpr (width == 3) {
            using L = Lane<Units>;
            using Pattern = Vector<std::conditional_t<sizeof(L) == 4, int32_t, int64_t>, 4>;
            constexpr Pattern live = {-1, -1, -1, 0};
            Vector<L, 4> filled = {0, 0, 0, fill_value<L, is_first_operand>()};
            return reinterpret_cast<Vector<L, 4>>((reinterpret_cast<Pattern>(vector) & live) |
                                                  reinterpret_cast<Pattern>(filled));
        } else {
            return vector;
        }
    }
    template <class L, bool is_first_operand>
    static constexpr L fill_value() {
        if constexpr (is_first_operand && requires { Kernel::fill; })
            return static_cast<L>(Kernel::fill);
        else
            return std::is_floating_point_v<L> ? static_cast<L>(0.75) : static_cast<L>(1);
    }

    template <class Units, size_t... step>
    ALWAYS_INLINE static AllSteps<Units> split(VectorFor<Units> vector, std::index_sequence<step...>) {
        return {take<Units, width, static_cast<int>(step) * lanes>(vector)...};
    }

    template <class Delivery, size_t... index>
    ALWAYS_INLINE static typename Delivery::Type start(Delivery deliver, std::index_sequence<index...>,
                                                       VectorFor<Operands>... operands) {
        return run(deliver,
                   split<Operands>(shape<Operands, index == 0>(operands), std::make_index_sequence<steps>())...);
    }

    // ---- The main path, one step after the other. ----

    static constexpr bool batched = (width == 1 || width >= 8) && requires { &Kernel::batch; };

    ALWAYS_INLINE static void compute(Outcome& outcome, const AllSteps<Operands>&... operands) {
        if constexpr (batched)
            compute_batches(std::make_index_sequence<(steps + 3) / 4>(), outcome, operands...);
        else
            compute_steps(std::make_index_sequence<steps>(), outcome, operands...);
    }

    template <size_t... step>
    ALWAYS_INLINE static void compute_steps(std::index_sequence<step...>, Outcome& outcome,
                                            const AllSteps<Operands>&... operands) {
        (compute_step<step>(outcome, operands...), ...);
    }
    template <size_t step>
    ALWAYS_INLINE_WITH_CALLS static void compute_step(Outcome& outcome, const AllSteps<Operands>&... operands) {
        Returned returned = Kernel::main(operands.step[step]...);
        if constexpr (std::is_same_v<Returned, First>)
            outcome.first.step[step] = returned;
        else
            outcome.first.step[step] = returned.first;
        if constexpr (two_results) outcome.second.step[step] = returned.second;
        if constexpr (has_mask) outcome.rare.step[step] = returned.rare;
    }

    template <size_t... batch>
    ALWAYS_INLINE static void compute_batches(std::index_sequence<batch...>, Outcome& outcome,
                                              const AllSteps<Operands>&... operands) {
        (compute_batch<4 * batch>(outcome, operands...), ...);
    }
    template <size_t at>
    ALWAYS_INLINE_WITH_CALLS static void compute_batch(Outcome& outcome, const AllSteps<Operands>&... operands) {
        constexpr size_t next = steps == 1 ? 0 : 1;  // at width 1 all four units are the same value
        Steps<First, 4> results =
            Kernel::batch(Steps<Operands, 4>{operands.step[at], operands.step[at + next], operands.step[at + 2 * next],
                                             operands.step[at + 3 * next]}...);
        for (size_t i = 0; i < (steps == 1 ? 1 : 4); ++i) outcome.first.step[at + i] = results.step[i];
    }

    // ---- The whole-vector choice. ----

    template <size_t... step>
    ALWAYS_INLINE_WITH_CALLS static bool any_beyond(std::index_sequence<step...>,
                                                    const AllSteps<Operands>&... operands) {
        return sign_bits((beyond<step>(operands...) | ...)) != 0;
    }
    template <size_t step>
    ALWAYS_INLINE_WITH_CALLS static MaskOf<First> beyond(const AllSteps<Operands>&... operands) {
        return Kernel::beyond(operands.step[step]...);
    }

    template <class Delivery>
    [[gnu::noinline, gnu::regcall]] static typename Delivery::Type take_long_path(AllSteps<Operands>... operands,
                                                                                  decltype(Delivery::target) target) {
        return Frame<typename Kernel::LongPath, width>::run(Delivery{target}, operands...);
    }

    // ---- The rare lanes. ----

    // Operands, results and mask arrive in registers. Whatever needs memory is in here, so the export itself has
    // no frame to align and nothing to spill.
    template <class Delivery>
    [[gnu::noinline, gnu::cold, gnu::regcall]] static typename Delivery::Type repair(AllSteps<First> first,
                                                                                     SecondSteps second,
                                                                                     AllSteps<Operands>... operands,
                                                                                     unsigned rare_lanes,
                                                                                     Delivery deliver) {
        StagingArea<Lane<First>, width> first_area(put<width>(first));
        if constexpr (two_results) {
            StagingArea<Lane<Second>, width> second_area(put<width>(second));
            scan(rare_lanes, StagingArea<Lane<Operands>, width>(put<width>(operands))..., first_area, second_area);
            return deliver(first_area.reload(), second_area.reload());
        } else {
            scan(rare_lanes, StagingArea<Lane<Operands>, width>(put<width>(operands))..., first_area);
            return deliver(first_area.reload());
        }
    }

    template <class... ResultAreas>
    ALWAYS_INLINE static void scan(unsigned rare_lanes, const StagingArea<Lane<Operands>, width>&... operands,
                                   ResultAreas&... results) {
        for (unsigned lane = 0; lane < 32; ++lane)
            if (rare_lanes >> lane & 1) Kernel::rare(&operands.slots[lane]..., &results.slots[lane]...);
    }
};

}  // namespace zorv
