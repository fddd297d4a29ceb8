// The floors of all families, gathered from the kernels' sources.
#include "bench/candidates.h"
#include "include/grid_names.h"

#define FLOOR(base, precision, class_) PASTE(floor_of_, FAMILY_NAME(base, precision, class_))
#define FAMILY(base, precision, class_, signature, home, traits, bound) \
    extern const bench::Pass FLOOR(base, precision, class_);
#include "include/grid.def"

namespace bench {

const std::vector<Pass>& floor_passes() {
    static const std::vector<Pass> passes = {
#define FAMILY(base, precision, class_, signature, home, traits, bound) FLOOR(base, precision, class_),
#include "include/grid.def"
    };
    return passes;
}

}  // namespace bench
