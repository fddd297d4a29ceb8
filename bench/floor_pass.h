// A kernel's floor: its main path over the units of the arrays, inlined. No call, no width, and the mask of rare lanes
// is dropped, with whatever computes nothing else. On operands in range the results are the family's.
//
// The guarded floor is the same with the mask kept, and tested once for 16 lanes, as an export must; and with the
// choice of the long path, where there is one.
#pragma once

#include <cstring>
#include <type_traits>
#include <utility>

#include "bench/candidates.h"
#include "frame/lane_frame.h"

namespace bench {

template <class Units>
inline Units load_units(const char* at) {
    if constexpr (std::is_same_v<Units, zorv::N2>) {
        return {
            reinterpret_cast<zorv::I4>(_mm_shuffle_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(at)), 0x50))};
    } else {
        Units units;
        std::memcpy(&units, at, sizeof units);
        return units;
    }
}
template <class Units>
inline void store_units(char* at, Units units) {
    if constexpr (std::is_same_v<Units, zorv::N2>)
        _mm_storel_epi64(reinterpret_cast<__m128i*>(at),
                         _mm_shuffle_epi32(reinterpret_cast<__m128i>(units.halves), 0x88));
    else
        std::memcpy(at, &units, sizeof units);
}

// The guarded floors count the vectors with a marked lane here: a mask that nobody reads would not be computed.
inline unsigned marked_vectors;

template <class Kernel, bool guarded, class Main = decltype(&Kernel::main)>
struct Floor;
template <class Kernel, bool guarded, class Returned, class... Operands>
struct Floor<Kernel, guarded, Returned (*)(Operands...)> {
    using Result = zorv::MainResult<Returned>;
    static constexpr bool two_results = !std::is_void_v<typename Result::Second>;
    using Guard = zorv::MaskOf<typename Result::First>;
    static constexpr size_t lanes = zorv::Layout<typename Result::First>::lanes;

    template <class Units>
    static constexpr size_t bytes = sizeof(typename zorv::Layout<Units>::Lane);

    template <size_t... operand>
    [[gnu::always_inline, gnu::flatten]] static inline void run(const Arrays arrays, std::index_sequence<operand...>) {
        if constexpr (requires { &Kernel::batch; }) {
            for (size_t i = 0; i < elements; i += 4 * lanes) {
                auto results = Kernel::batch(four<Operands>(arrays.operand<char>(operand) + i * bytes<Operands>)...);
                for (size_t unit = 0; unit < 4; ++unit)
                    store_units(arrays.result<char>(0) + (i + unit * lanes) * bytes<typename Result::First>,
                                results.step[unit]);
            }
        } else {
            unsigned marked = 0;
            for (size_t vector = 0; vector < elements; vector += 16) {
                Guard any = {};
#pragma clang loop unroll(disable)
                for (size_t i = vector; i < vector + 16; i += lanes)
                    step(arrays, i, any, load_units<Operands>(arrays.operand<char>(operand) + i * bytes<Operands>)...);
                if constexpr (guarded) marked += zorv::sign_bits(any) != 0;
            }
            if constexpr (guarded) marked_vectors = marked;
        }
    }
    [[gnu::always_inline, gnu::flatten]] static inline void step(const Arrays& arrays, size_t i, Guard& any,
                                                                 Operands... operands) {
        if constexpr (guarded && requires { typename Kernel::LongPath; }) any |= Kernel::beyond(operands...);
        Returned returned = Kernel::main(operands...);
        if constexpr (guarded && Result::kind == zorv::FrameKind::full) any |= returned.rare;
        char* first = arrays.result<char>(0) + i * bytes<typename Result::First>;
        if constexpr (std::is_same_v<Returned, typename Result::First>)
            store_units(first, returned);
        else
            store_units(first, returned.first);
        if constexpr (two_results)
            store_units(arrays.result<char>(1) + i * bytes<typename Result::Second>, returned.second);
    }
    template <class Units>
    static zorv::Steps<Units, 4> four(const char* at) {
        constexpr size_t step = lanes * bytes<Units>;
        return {load_units<Units>(at), load_units<Units>(at + step), load_units<Units>(at + 2 * step),
                load_units<Units>(at + 3 * step)};
    }
    static void pass(const Arrays& arrays) { run(arrays, std::index_sequence_for<Operands...>()); }
};

// What an export that repairs lanes, or chooses a path, cannot do without; elsewhere it is the floor.
template <class Kernel, class Result>
inline constexpr bool has_guard = Result::kind == zorv::FrameKind::full || requires {
    typename Kernel::LongPath;
};

// None of a kernel whose main path leaves every lane to the rare routine.
template <class Kernel>
constexpr FloorPasses floor_passes_of() {
    using Result = decltype([]<class R, class... O>(R (*)(O...)) -> zorv::MainResult<R> { return {}; }(&Kernel::main));
    if constexpr (Result::kind == zorv::FrameKind::all_rare)
        return {nullptr, nullptr};
    else
        return {Floor<Kernel, false>::pass, Floor<Kernel, has_guard<Kernel, Result>>::pass};
}

}  // namespace bench
