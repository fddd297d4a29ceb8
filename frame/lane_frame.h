// The lane frame: the body that all exports have, with a kernel put in.
//
// A kernel says what happens to the lanes of one step (one unit, or two side by side); the frame knows widths.
// A kernel is a type with
//
//   static <results> main(<units> operands...);            the main path, branch-free
//   static Status rare(const <lane>*..., <lane>*...);      the scalar routine, where lanes can be rare
//
// and the type that main returns says which frame it gets:
//
//   a unit, or Both<unit, unit>         bare frame: what main returns is the result
//   Lanes<unit>, Lanes<unit, unit>      full frame: `rare` is called for the lanes that the mask marks
//   AllRare<unit>, AllRare<unit, unit>  all-rare frame: `rare` is called for every lane, and finds in the result's
//                                       slot what main has put there
//
// Further members, all optional:
//
//   LongPath    a kernel of its own that takes over, for all lanes together, where
//   beyond      static <mask> beyond(<units> operands...) is true in any lane
//   batch       main over four units at once, at widths 1, 8 and 16
//   Inlined     a kernel of its own with the same results, for exports that are inlined into a loop: without the call
//               of `rare` in it a loop can be unrolled
//   bits_alone  true where main moves bits and compares, and computes no floating value
//   scalar      main of one lane, for width 1 of such a kernel: a loop around it can be vectorised
//
// What lane 3 holds at width 3 is told by the traits of the family's row in the grid.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "frame/delivery.h"
#include "frame/inlining.h"
#include "frame/layout.h"
#include "frame/mask.h"
#include "frame/shaping.h"
#include "frame/staging.h"
#include "frame/status.h"
#include "frame/travelling.h"

namespace zorv {

// The kernel that stands in an export.
template <class Kernel>
struct Exported {
    using type = Kernel;
};
#ifdef ZORV_BITCODE
template <class Kernel>
requires requires { typename Kernel::Inlined; }
struct Exported<Kernel> {
    using type = typename Kernel::Inlined;
};
#endif

template <class Kernel, int width, grid::Traits traits = grid::plain, class Main = decltype(&Kernel::main)>
class Frame;

template <class Kernel, int width, grid::Traits traits, class Returned, class... Operands>
class Frame<Kernel, width, traits, Returned (*)(Operands...)> {
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
    using Travels = Travelling<Lane<First>, width>;
    struct WidePair {
        Travels first, second;
    };
    using Pair = std::conditional_t<width == 1, Vector<Lane<First>, 2>, WidePair>;

    // One result.
    ALWAYS_INLINE static Travels call(VectorFor<Operands>... operands) {
#ifdef ZORV_BITCODE
        if constexpr (width == 1 && requires { &Kernel::scalar; }) return Kernel::scalar(operands...);
#endif
        return start(ByValue<Value, Travels>{}, std::index_sequence_for<Operands...>(), operands...);
    }
    // Two results, the second through a pointer.
    ALWAYS_INLINE static Travels call_with_pointer(VectorFor<Operands>... operands, SecondValue* second) {
        return start(ThroughPointer<Value, Travels, SecondValue>{second}, std::index_sequence_for<Operands...>(),
                     operands...);
    }
    // Two results by value.
    ALWAYS_INLINE static Pair call_for_pair(VectorFor<Operands>... operands) {
        return start(AsPair<Value, Travels, Pair>{}, std::index_sequence_for<Operands...>(), operands...);
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

    template <class Units, bool is_first_operand>
    ALWAYS_INLINE static VectorFor<Units> shape(VectorFor<Units> vector) {
        if constexpr (width == 3) {
            constexpr auto fill = fill_value<Lane<Units>, is_first_operand>(traits);
            return with_fourth_lane(vector, fill);
        } else {
            return vector;
        }
    }

    template <class Units, size_t... step>
    ALWAYS_INLINE static AllSteps<Units> split(VectorFor<Units> vector, std::index_sequence<step...>) {
        if constexpr (requires { Kernel::bits_alone; })
            return {take<Units, width, static_cast<int>(step) * lanes>(vector)...};
        else
            return {unseen(take<Units, width, static_cast<int>(step) * lanes>(vector))...};
    }

    template <class Delivery, size_t... index>
    ALWAYS_INLINE static typename Delivery::Type start(Delivery deliver, std::index_sequence<index...>,
                                                       VectorFor<Operands>... operands) {
        // With lane 3 filled, width 3 is width 4, and shares its long path and its cold part.
        return Frame<Kernel, room<width>, traits>::run(
            deliver, split<Operands>(shape<Operands, index == 0>(operands), std::make_index_sequence<steps>())...);
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

    // Operands, results and mask arrive in registers. The stack is aligned and written in here alone: the export
    // that comes without a rare lane pays nothing for it.
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
        for (; rare_lanes != 0; rare_lanes &= rare_lanes - 1) {
            int lane = __builtin_ctz(rare_lanes);
            Kernel::rare(&operands.slots[lane]..., &results.slots[lane]...);
        }
    }
};

}  // namespace zorv
