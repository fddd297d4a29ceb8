// What the right answers are: the reference of the accuracy tool, and the distance that it measures.
#pragma once

#include <memory>
#include <vector>

#include "bench/candidates.h"
#include "tools/calls.h"
#include "tools/reference.h"

namespace bench {

class Answers {
  public:
    // For the operands in `arrays`.
    Answers(const grid::Family& family, const Arrays& arrays);

    // Whether there is a reference.
    bool known() const { return known_; }
    // The largest error of the results in `arrays`, in ulp; infinity where a NaN, an infinity or an integer is wrong.
    // At width 3 every fourth lane does not count.
    double largest_error(const Arrays& arrays, int width) const;

    // Where the long double functions answer in place of MPFR: their share of an error.
    static constexpr double slack = 0x1p-9;

  private:
    const grid::Family& family_;
    bool known_ = true;
    size_t results_ = 1;  // that have answers
    // One of these, for each element and result.
    std::vector<uint64_t> patterns_;
    std::vector<long double> values_;
    std::unique_ptr<reference::Real[]> reals_;
};

}  // namespace bench
