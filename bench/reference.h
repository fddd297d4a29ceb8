// What the right answers are: the C library's functions in the 80-bit format, whose eleven further bits make their
// own error small beside a double's last place.
#pragma once

#include <string>

#include "bench/candidates.h"
#include "tools/calls.h"

namespace bench {

// The largest error, in units in the last place, of the results in `arrays`; infinity where a NaN, an infinity or an
// integer is wrong. At width 3 every fourth lane does not count.
// Without a reference for the family, a NaN.
double largest_error(const grid::Family& family, int width, const Arrays& arrays);

// The reference's own share of an error.
inline constexpr double reference_error = 0x1p-9;

}  // namespace bench
