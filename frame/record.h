// Records of constants. Each constant stands there as often as a unit has lanes, so that it can be the memory operand
// of an instruction as it is. A record is defined in a source of its own, <group>/<name>_data.cpp: a kernel that saw
// the values would fold them at build time, or broadcast them from somewhere else.
#pragma once

#include <cstdint>

#include "frame/units.h"

// For the declaration of a record: reached directly, not through the loader's tables.
#define HIDDEN [[gnu::visibility("hidden")]]

namespace zorv {

template <class Lane>
struct PatternOf;
template <>
struct PatternOf<float> {
    using type = uint32_t;
    using Unit = F4;
};
template <>
struct PatternOf<int32_t> {
    using type = uint32_t;
    using Unit = I4;
};
template <>
struct PatternOf<double> {
    using type = uint64_t;
    using Unit = D2;
};
template <>
struct PatternOf<int64_t> {
    using type = uint64_t;
    using Unit = L2;
};

// One constant, given by its bit pattern, and 32 bytes of copies of it: for runs of coefficients, two to a line.
template <class Lane>
struct alignas(32) PackedSlot {
    using Pattern = typename PatternOf<Lane>::type;
    using Unit = typename PatternOf<Lane>::Unit;
    static constexpr int copies = 32 / sizeof(Pattern);

    Pattern replicas[copies];

    constexpr PackedSlot(Pattern pattern) : replicas{} {
        for (Pattern& replica : replicas) replica = pattern;
    }
    operator Unit() const { return *reinterpret_cast<const Unit*>(replicas); }

    // Arithmetic and compares find the conversion by themselves; the bitwise operators need to be told.
    friend Unit operator&(Unit x, const PackedSlot& constant) { return x & Unit(constant); }
    friend Unit operator|(Unit x, const PackedSlot& constant) { return x | Unit(constant); }
    friend Unit operator^(Unit x, const PackedSlot& constant) { return x ^ Unit(constant); }
};

// One constant alone in its line of 64 bytes, the second half of which is zero.
template <class Lane>
struct alignas(64) Slot : PackedSlot<Lane> {
    using PackedSlot<Lane>::PackedSlot;

  private:
    uint32_t zero_[8] = {};
};

// One constant of a rare routine, by its bit pattern: a scalar needs no copies.
template <class Lane>
struct Scalar {
    typename PatternOf<Lane>::type pattern;

    operator Lane() const { return __builtin_bit_cast(Lane, pattern); }
};

// The record, of which the compiler believes that it may have changed this very moment. A main path takes its record
// through this, once: the units of one call then share no constants in registers, of which there are eight and which
// would spill; each constant is a memory operand where it is used, straight off the one base register of the call.
// Inlined into a kernel's loop, constants may stand in registers before it.
template <class Record>
[[gnu::always_inline]] inline const Record& in_memory(const Record& record) {
#ifndef ZORV_BITCODE
    asm volatile("" : "+m"(const_cast<Record&>(record)));
#endif
    return record;
}

}  // namespace zorv
