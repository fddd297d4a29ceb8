// Constant records: read-only data, laid out so that every width fetches a constant with one aligned load and no
// shuffle. Records are defined in data/, out of the kernels' sight: a kernel that cannot see a value uses it as a
// memory operand, where it stands, and nothing is folded at build time.
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

// One constant, given by its bit pattern, repeated over 32 bytes: the packed slot of a run of coefficients.
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

// One constant alone in its 64-byte line: 32 bytes of replicas, 32 bytes of zero.
template <class Lane>
struct alignas(64) Slot : PackedSlot<Lane> {
    using PackedSlot<Lane>::PackedSlot;

  private:
    uint32_t zero_[8] = {};
};

// One constant of a rare routine, by its bit pattern: in its natural form, not repeated.
template <class Lane>
struct Scalar {
    typename PatternOf<Lane>::type pattern;

    operator Lane() const { return __builtin_bit_cast(Lane, pattern); }
};

// The record, of which the compiler believes that it may have changed this very moment. A main path takes its record
// through this, once: the units of one call then share no constants in registers, of which there are eight and which
// would spill; each constant is a memory operand where it is used, straight off the one base register of the call.
template <class Record>
[[gnu::always_inline]] inline const Record& in_memory(const Record& record) {
    asm volatile("" : "+m"(const_cast<Record&>(record)));
    return record;
}

}  // namespace zorv
