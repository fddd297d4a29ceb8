// Passes over this library's own exports, straight from the grid.
#include <string_view>

#include "bench/passes.h"
#include "include/grid_names.h"
#include "ocl_zorv_v8.h"

namespace bench {

#define EXPORT(base, precision, class_, width) EXPORT_NAME(base, precision, class_, width)
#define EXPORT_PASS(base, precision, class_, pair, width) \
    vector_pass<EXPORT(base, precision, class_, width), pair>(&EXPORT(base, precision, class_, width))

const std::vector<std::array<Pass, 6>>& export_passes() {
    static const std::vector<std::array<Pass, 6>> passes = {
#define FAMILY(base, precision, class_, signature, home, traits, bound)                      \
    {EXPORT_PASS(base, precision, class_, std::string_view(#signature) == "pair_result", 1), \
     EXPORT_PASS(base, precision, class_, false, 2),                                         \
     EXPORT_PASS(base, precision, class_, false, 3),                                         \
     EXPORT_PASS(base, precision, class_, false, 4),                                         \
     EXPORT_PASS(base, precision, class_, false, 8),                                         \
     EXPORT_PASS(base, precision, class_, false, 16)},
#include "include/grid.def"
    };
    return passes;
}

}  // namespace bench
