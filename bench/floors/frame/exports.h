// The ending that the benchmarks' build puts in the place of frame/exports.h: it comes first in the include path when
// the kernels' sources are compiled for the second time. The families that live in the including source get no
// exports, but their floor: the kernel's own main path, inlined into a loop over arrays.
#include "bench/floor_pass.h"
#include "include/grid_names.h"

#define IS_HERE(home) SECOND_OF(HOME_##home, elsewhere, )

#define FAMILY(base, precision, class_, signature, home, traits, bound) \
    PASTE(ROW_, IS_HERE(home))(FAMILY_NAME(base, precision, class_))
#define ROW_elsewhere(name)
#define ROW_here(name)                                       \
    extern const bench::FloorPasses PASTE(floors_of_, name); \
    constinit const bench::FloorPasses PASTE(floors_of_, name) = bench::floor_passes_of<zorv::name>();

#include "include/grid.def"
