// The operand sets of a family, filled into arrays.
#pragma once

#include <string>
#include <vector>

#include "bench/candidates.h"
#include "tools/calls.h"

namespace bench {

enum class Set { in_range, one_rare_in_64, all_rare, long_path };
inline constexpr std::array<Set, 4> every_set = {Set::in_range, Set::one_rare_in_64, Set::all_rare, Set::long_path};
const char* name_of(Set set);
bool has_set(const grid::Family& family, Set set);

// Operands of one set, and room for results. The arrays start at distances that keep a load from having the low
// address bits of a store just before it, which the processor would take for the same place.
class Workload {
  public:
    Workload(const grid::Family& family, Set set);
    const Arrays& arrays() const { return arrays_; }
    void clear_results();

  private:
    static constexpr size_t bytes_apart = elements * 8 + 832;
    struct alignas(4096) Storage {
        char bytes[5 * bytes_apart];
    };
    std::vector<Storage> storage_;
    Arrays arrays_;
};

}  // namespace bench
