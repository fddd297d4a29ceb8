// A kernel's floor: its main path over the units of the arrays, inlined. No call, no width, and the mask of rare lanes
// is dropped, with whatever computes nothing else. On operands in range the results are the family's.
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

template <class Kernel, class Main = decltype(&Kernel::main)>
struct Floor;
template <class Kernel, class Returned, class... Operands>
struct Floor<Kernel, Returned (*)(Operands...)> {
    using Result = zorv::MainResult<Returned>;
    static constexpr bool two_results = !std::is_void_v<typename Result::Second>;
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
            for (size_t i = 0; i < elements; i += lanes) {
                Returned returned =
                    Kernel::main(load_units<Operands>(arrays.operand<char>(operand) + i * bytes<Operands>)...);
                char* first = arrays.result<char>(0) + i * bytes<typename Result::First>;
                if constexpr (std::is_same_v<Returned, typename Result::First>)
                    store_units(first, returned);
                else
                    store_units(first, returned.first);
                if constexpr (two_results)
                    store_units(arrays.result<char>(1) + i * bytes<typename Result::Second>, returned.second);
            }
        }
    }
    template <class Units>
    static zorv::Steps<Units, 4> four(const char* at) {
        constexpr size_t step = lanes * bytes<Units>;
        return {load_units<Units>(at), load_units<Units>(at + step), load_units<Units>(at + 2 * step),
                load_units<Units>(at + 3 * step)};
    }
    static void pass(const Arrays& arrays) { run(arrays, std::index_sequence_for<Operands...>()); }
};

// None of a kernel whose main path leaves every lane to the rare routine.
template <class Kernel>
constexpr Pass floor_pass() {
    using Returned =
        decltype([]<class R, class... O>(R (*)(O...)) -> zorv::MainResult<R> { return {}; }(&Kernel::main));
    if constexpr (Returned::kind == zorv::FrameKind::all_rare)
        return nullptr;
    else
        return Floor<Kernel>::pass;
}

}  // namespace bench
