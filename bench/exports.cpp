// Passes over this library's own exports, straight from the grid.
#include <string_view>

#include "bench/passes.h"
#include "include/ocl_zorv_v8.h"

namespace bench {

#define LETTER_float_ f
#define LETTER_double_
#define CLASS_accurate
#define CLASS_native _native
#define PASTE5(a, b, c, d, e) PASTE5_(a, b, c, d, e)
#define PASTE5_(a, b, c, d, e) a##b##c##d##e
#define EXPORT(base, precision, class_, width) PASTE5(__ocl_zorv_v8_, base, LETTER_##precision, width, CLASS_##class_)
#define EXPORT_PASS(base, precision, class_, pair, width) \
    vector_pass<EXPORT(base, precision, class_, width), pair>(&EXPORT(base, precision, class_, width))

const std::vector<std::array<Pass, 6>>& export_passes() {
    static const std::vector<std::array<Pass, 6>> passes = {
#define FAMILY(base, precision, class_, signature, home, bound)                              \
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
