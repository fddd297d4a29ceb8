// Passes made from functions: one call for each vector, for each unit, or for each lane.
#pragma once

#include <emmintrin.h>

#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#include "bench/candidates.h"

namespace bench {

template <class Vector>
struct ElementOf {
    using type = std::remove_reference_t<decltype(std::declval<Vector&>()[0])>;
};
template <class Scalar>
requires std::is_arithmetic_v<Scalar>
struct ElementOf<Scalar> {
    using type = Scalar;
};

template <class Vector>
inline constexpr size_t count_of = elements * sizeof(typename ElementOf<Vector>::type) / sizeof(Vector);

// ---- One call for each vector: exports, and functions of the same signature. --------------------------------

template <class Operand>
inline Operand operand_at(const Arrays& arrays, size_t operand, size_t i) {
    if constexpr (std::is_pointer_v<Operand>)
        return arrays.result<std::remove_pointer_t<Operand>>(1) + i;
    else
        return arrays.operand<Operand>(operand)[i];
}

template <auto* function, bool pair, class Result, class... Operands>
struct VectorPass {
    template <size_t... operand>
    static void run(const Arrays& arrays, std::index_sequence<operand...>) {
        if constexpr (requires(Result both) { both.sine; }) {
            using Half = decltype(Result::sine);
            for (size_t i = 0; i < count_of<Half>; ++i) {
                Result both = function(operand_at<Operands>(arrays, operand, i)...);
                arrays.result<Half>(0)[i] = both.sine;
                arrays.result<Half>(1)[i] = both.cosine;
            }
        } else if constexpr (pair) {
            using Half = typename ElementOf<Result>::type;
            for (size_t i = 0; i < elements; ++i) {
                Result both = function(operand_at<Operands>(arrays, operand, i)...);
                arrays.result<Half>(0)[i] = both[0];
                arrays.result<Half>(1)[i] = both[1];
            }
        } else {
            for (size_t i = 0; i < count_of<Result>; ++i)
                arrays.result<Result>(0)[i] = function(operand_at<Operands>(arrays, operand, i)...);
        }
    }
    static void pass(const Arrays& arrays) { run(arrays, std::index_sequence_for<Operands...>()); }
};

template <auto* function, bool pair, class Result, class... Operands>
constexpr Pass vector_pass(Result (*)(Operands...)) {
    return VectorPass<function, pair, Result, Operands...>::pass;
}

// ---- One call for each 128-bit unit; `bytes` of a unit carry lanes, 8 for a two-lane float vector. ----------

template <size_t bytes, class Unit>
inline Unit load_unit(const void* at) {
    if constexpr (bytes == 16) {
        return *static_cast<const Unit*>(at);
    } else {
        return reinterpret_cast<Unit>(_mm_loadl_epi64(static_cast<const __m128i*>(at)));
    }
}

template <auto* function, size_t bytes, class Element, class Result, class... Units>
struct UnitPass {
    // The arrays by value: the stores, which may alias anything, would have every pointer loaded anew.
    template <size_t... operand>
    static void run(const Arrays arrays, std::index_sequence<operand...>) {
        for (size_t at = 0; at < elements * sizeof(Element); at += bytes) {
            Result result = function(load_unit<bytes, Units>(arrays.operand<char>(operand) + at)...);
            if constexpr (requires { result.x; }) {
                std::memcpy(arrays.result<char>(0) + at, &result.x, bytes);
                std::memcpy(arrays.result<char>(1) + at, &result.y, bytes);
            } else {
                std::memcpy(arrays.result<char>(0) + at, &result, bytes);
            }
        }
    }
    static void pass(const Arrays& arrays) { run(arrays, std::index_sequence_for<Units...>()); }
};

template <auto* function, size_t bytes, class Element, class Result, class... Units>
constexpr Pass unit_pass(Result (*)(Units...)) {
    return UnitPass<function, bytes, Element, Result, Units...>::pass;
}

// A function of units, as a peer of a float or double family at every width that fills at least half a unit.
template <auto* function, class Element>
void add_unit_peer(std::vector<Peer>& peers, const std::string& family, const std::string& column, double bound) {
    if (sizeof(Element) == 4) {
        peers.push_back({family, column, bound, {2}, unit_pass<function, 8, Element>(function)});
        peers.push_back({family, column, bound, {3, 4, 8, 16}, unit_pass<function, 16, Element>(function)});
    } else {
        peers.push_back({family, column, bound, {2, 3, 4, 8, 16}, unit_pass<function, 16, Element>(function)});
    }
}

// ---- One call for each lane. --------------------------------------------------------------------------------

template <auto* function, bool three, class Result, class... Operands>
struct LanePass {
    template <size_t... operand>
    static void run(const Arrays& arrays, std::index_sequence<operand...>) {
        auto one = [&arrays](size_t i) {
            if constexpr (std::is_void_v<Result>)  // results through pointers, both
                function(operand_at<Operands>(arrays, operand, i)...);
            else
                arrays.result<Result>(0)[i] = function(operand_at<Operands>(arrays, operand, i)...);
        };
        if constexpr (three) {
            for (size_t i = 0; i < elements; i += 4) {
                one(i);
                one(i + 1);
                one(i + 2);
            }
        } else {
            for (size_t i = 0; i < elements; ++i) one(i);
        }
    }
    static void pass(const Arrays& arrays) { run(arrays, std::index_sequence_for<Operands...>()); }
};

template <auto* function, bool three, class Result, class... Operands>
constexpr Pass lane_pass(Result (*)(Operands...)) {
    return LanePass<function, three, Result, Operands...>::pass;
}

template <auto* function>
void add_lane_peer(std::vector<Peer>& peers, const std::string& family, const std::string& column, double bound) {
    peers.push_back({family, column, bound, {1, 2, 4, 8, 16}, lane_pass<function, false>(function)});
    peers.push_back({family, column, bound, {3}, lane_pass<function, true>(function)});
}

}  // namespace bench
