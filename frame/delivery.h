// Deliveries: what happens to the results once they are complete.
#pragma once

#include <cstddef>

#include "frame/inlining.h"
#include "frame/shaping.h"

namespace zorv {

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

// A pair of scalars travels as one vector of two.
template <class Value, class SecondValue, class Pair>
struct AsPair {
    using Type = Pair;
    [[no_unique_address]] NoTarget target;
    ALWAYS_INLINE Pair operator()(Value first, SecondValue second) const { return Pair{first, second}; }
};

}  // namespace zorv
