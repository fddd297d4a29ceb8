// Deliveries: what happens to the results once they are complete. `Value` is the vector, `Travels` how it is returned.
#pragma once

#include <cstddef>

#include "frame/inlining.h"
#include "frame/shaping.h"
#include "frame/travelling.h"

namespace zorv {

// A delivery travels to the long path as its target: a pointer goes in a register, a structure around it would go on
// the stack and keep the call from being a jump.
struct NoTarget {};

template <class Value, class Travels>
struct ByValue {
    using Type = Travels;
    [[no_unique_address]] NoTarget target;
    ALWAYS_INLINE Type operator()(Value first) const { return image_of<Type>(first); }
};

template <class Value, class Travels, class SecondValue>
struct ThroughPointer {
    using Type = Travels;
    SecondValue* target;
    ALWAYS_INLINE Type operator()(Value first, SecondValue second) const {
        // Contiguous lanes. A caller need not align more than whole units, whatever the vector type would like.
        constexpr size_t alignment = sizeof second < 16 ? alignof(SecondValue) : 16;
        __builtin_memcpy(__builtin_assume_aligned(target, alignment), &second, sizeof second);
        return image_of<Type>(first);
    }
};

// A pair of scalars travels as one vector of two.
template <class Value, class Travels, class Pair>
struct AsPair {
    using Type = Pair;
    [[no_unique_address]] NoTarget target;
    ALWAYS_INLINE Pair operator()(Value first, Value second) const {
        return Pair{image_of<Travels>(first), image_of<Travels>(second)};
    }
};

}  // namespace zorv
