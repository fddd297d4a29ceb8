// The PEERS rows of include/operations.def, made passes. A row is one expression; a world (the C library, an accuracy
// class of SLEEF, xsimd) brings functions by the names that the expression calls, and the values that they work on.
// Who has not all of the functions is no peer of that row.
//
// A world is a structure with
//
//   template <class Float> Value, Integer      what x and n are: a lane, or a unit of lanes
//   splat<Float>(double), floating<Float>(n)   a constant; the value of an integer
//   has_operators                              whether an expression without a call is one of its own
//   column, bound                              its title, and the error it may have
//
// and a source defines its worlds' functions in a namespace of their own, then makes the rows there: WORLD_PEERS.
#pragma once

#include <emmintrin.h>

#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

#include "bench/candidates.h"

namespace bench {

// ---- What an operation takes and gives, from the grid. ----------------------------------------------------------

struct Shape {
    int floats = 1;        // leading floating operands
    bool integer = false;  // then an integer one
    bool known = false;
    double bound = 0;  // the accurate family's, of the precision asked for
};

consteval Shape shape_of(std::string_view base, bool single) {
    struct Row {
        std::string_view base, signature;
        bool is_single, is_accurate;
        double bound;
    };
    constexpr bool float_ = true, double_ = false, accurate = true, native = false;
    constexpr Row rows[] = {
#define FAMILY(base, precision, class_, signature, home, traits, bound) {#base, #signature, precision, class_, bound},
#define TO_INTEGER(base, precision, target, rounding, saturation)
#define FROM_INTEGER(base, precision, source, rounding)
#include "include/grid.def"
    };
    Shape shape;
    for (const Row& row : rows) {
        if (row.base != base || row.is_single != single || !row.is_accurate) continue;
        shape.known = true;
        shape.bound = row.bound;
        if (row.signature.starts_with("two_operands")) shape.floats = 2;
        if (row.signature == "three_operands") shape.floats = 3;
        if (row.signature == "operand_and_integer") shape.integer = true;
    }
    return shape;
}

// ---- Loads and stores of the first `bytes` of a value. ------------------------------------------------------------

template <size_t bytes, class Value>
inline Value load(const void* at) {
    Value value;
    if constexpr (bytes == 8 && sizeof(Value) == 16) {
        __m128i low = _mm_loadl_epi64(static_cast<const __m128i*>(at));
        std::memcpy(&value, &low, 16);
    } else {
        std::memcpy(&value, at, bytes);
    }
    return value;
}

// What an expression is made of: which results it sets beside its value, and whether it calls any function.
struct Text {
    bool second, integer, calls;
};
consteval Text text_of(std::string_view expression) {
    auto mentions = [&](std::string_view word) { return expression.find(word) != std::string_view::npos; };
    return {mentions("second"), mentions("integer"), mentions("(")};
}

// ---- The passes. --------------------------------------------------------------------------------------------------

// `lanes` at a call; with `skips`, every fourth lane is left out.
template <class World, class Float, Shape shape, Text text, class Expression, size_t lanes, bool skips>
void peer_pass(const Arrays& all) {
    using Value = typename World::template Value<Float>;
    using Integer = typename World::template Integer<Float>;
    constexpr size_t bytes = lanes * sizeof(Float), integer_bytes = lanes * sizeof(int32_t);
    const Arrays arrays = all;  // which no store can alias
    const Value pi = World::template splat<Float>(3.14159265358979323846);
    const Value inverse_pi = World::template splat<Float>(0.318309886183790671538);
    auto floating = [](Integer n) { return World::template floating<Float>(n); };
    for (size_t i = 0; i < elements; i += lanes) {
        if (skips && i % 4 == 3) continue;
        auto operand = [&](size_t k) { return load<bytes, Value>(arrays.operand<Float>(k) + i); };
        Value x = operand(0), y = x, z = x, second = x;
        if constexpr (shape.floats > 1) y = operand(1);
        if constexpr (shape.floats > 2) z = operand(2);
        Integer n = {}, integer = {};
        if constexpr (shape.integer) n = load<integer_bytes, Integer>(arrays.operand<int32_t>(1) + i);
        auto result = Expression{}(x, y, z, n, second, integer, pi, inverse_pi, floating);
        if constexpr (std::is_same_v<decltype(result), Integer> && !std::is_same_v<Integer, Value>) {
            std::memcpy(arrays.result<int32_t>(0) + i, &result, integer_bytes);
        } else {
            Value value = result;
            std::memcpy(arrays.result<Float>(0) + i, &value, bytes);
        }
        if constexpr (text.second) std::memcpy(arrays.result<Float>(1) + i, &second, bytes);
        if constexpr (text.integer) std::memcpy(arrays.result<int32_t>(1) + i, &integer, integer_bytes);
    }
}

template <class World, class Float, Shape shape, Text text, class Expression>
void add_peer(std::vector<Peer>& peers, const std::string& base) {
    using Value = typename World::template Value<Float>;
    using Integer = typename World::template Integer<Float>;
    if constexpr (shape.known && (text.calls || World::has_operators) &&
                  requires(Value v, Integer n, Value(*f)(Integer)) { Expression{}(v, v, v, n, v, n, v, v, f); }) {
        std::string family = base + (sizeof(Float) == 4 ? "f" : "");
        for (const Peer& peer : peers)
            if (peer.family == family && peer.column == World::column) return;  // by an earlier row
        // Who misses an exact result is wrong; a correctly rounded one may be a unit off.
        double bound = shape.bound == 0 ? 0 : shape.bound <= 0.5 ? 1 : World::bound;
        constexpr size_t lanes = sizeof(Value) / sizeof(Float);
        auto add = [&](std::vector<int> widths, Pass pass) {
            peers.push_back({family, World::column, bound, std::move(widths), pass});
        };
        if constexpr (lanes == 1) {
            add({1, 2, 4, 8, 16}, peer_pass<World, Float, shape, text, Expression, 1, false>);
            add({3}, peer_pass<World, Float, shape, text, Expression, 1, true>);
        } else if constexpr (lanes == 2) {
            add({2, 3, 4, 8, 16}, peer_pass<World, Float, shape, text, Expression, 2, false>);
        } else {
            add({2}, peer_pass<World, Float, shape, text, Expression, 2, false>);  // half a unit
            add({3, 4, 8, 16}, peer_pass<World, Float, shape, text, Expression, 4, false>);
        }
    }
}

}  // namespace bench

// Expands the rows in the namespace of a world's functions, where the expressions look for them first:
//
//   #define PEERS(base, ...) WORLD_PEERS(World, base, __VA_ARGS__)
//   #include "include/operations.def"
#define WORLD_PEERS(World, base, ...)                                                                         \
    {                                                                                                         \
        auto row = []([[maybe_unused]] auto x, [[maybe_unused]] auto y, [[maybe_unused]] auto z,              \
                      [[maybe_unused]] auto n, [[maybe_unused]] auto& second, [[maybe_unused]] auto& integer, \
                      [[maybe_unused]] auto pi, [[maybe_unused]] auto inverse_pi,                             \
                      [[maybe_unused]] auto floating) -> decltype(__VA_ARGS__) { return __VA_ARGS__; };       \
        constexpr Text text = text_of(#__VA_ARGS__);                                                          \
        add_peer<World, float, shape_of(#base, true), text, decltype(row)>(peers, #base);                     \
        add_peer<World, double, shape_of(#base, false), text, decltype(row)>(peers, #base);                   \
    }
