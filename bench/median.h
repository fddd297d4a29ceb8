// The middle one of some times.
#pragma once

#include <algorithm>
#include <vector>

namespace bench {

inline double median(std::vector<double> values) {
    auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

}  // namespace bench
