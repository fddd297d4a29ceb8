// The floors of all families, gathered from the kernels' sources.
#include "bench/candidates.h"
#include "include/grid_names.h"

#define FLOORS(base, precision, class_) PASTE(floors_of_, FAMILY_NAME(base, precision, class_))
#define FAMILY(base, precision, class_, signature, home, traits, bound) \
    extern const bench::FloorPasses FLOORS(base, precision, class_);
#include "include/grid.def"

namespace bench {

const std::vector<FloorPasses>& floor_passes() {
    static const std::vector<FloorPasses> passes = {
#define FAMILY(base, precision, class_, signature, home, traits, bound) FLOORS(base, precision, class_),
#include "include/grid.def"
    };
    return passes;
}

}  // namespace bench
