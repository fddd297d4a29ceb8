#include "bench/answers.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "tools/conversion_reference.h"

namespace bench {
namespace {

uint64_t lane_at(const void* array, grid::Lane lane, size_t i) {
    uint64_t bits = 0;
    std::memcpy(&bits, static_cast<const char*>(array) + i * grid::size_of(lane), grid::size_of(lane));
    return bits;
}

}  // namespace

Answers::Answers(const grid::Family& family, const Arrays& arrays) : family_(family) {
    auto operand = [&](size_t k, size_t i) { return lane_at(arrays.operands[k], family.operands[k], i); };
    if (std::optional<conversions::Axes> axes = conversions::axes_of(family.base, family.is_single)) {
        for (size_t i = 0; i < elements; ++i) patterns_.push_back(conversions::expected(*axes, operand(0, i)));
        return;
    }
    if (family.base == "nan") {
        values_.assign(elements, std::numeric_limits<long double>::quiet_NaN());
        return;
    }
    const reference::Operation* operation = reference::find(family.base);
    known_ = operation != nullptr;
    if (!known_) return;
    results_ = static_cast<size_t>(operation->results);
    if (operation->screen) {
        for (size_t i = 0; i < elements; ++i) {
            long double x[3], exact[2];
            for (size_t k = 0; k < family.operands.size(); ++k)
                x[k] = reference::lane_value(family.operands[k], operand(k, i));
            operation->screen(x, exact);
            values_.insert(values_.end(), exact, exact + results_);
        }
        return;
    }
    reals_ = std::make_unique<reference::Real[]>(elements * results_);
    reference::Real x[3];
    for (size_t i = 0; i < elements; ++i) {
        for (size_t k = 0; k < family.operands.size(); ++k) x[k].set(family.operands[k], operand(k, i));
        operation->exact(family.is_single ? grid::Lane::f32 : grid::Lane::f64, x, &reals_[i * results_]);
    }
}

double Answers::largest_error(const Arrays& arrays, int width) const {
    double largest = 0;
    for (size_t i = 0; i < elements; ++i) {
        if (width == 3 && i % 4 == 3) continue;
        for (size_t r = 0; r < results_; ++r) {
            grid::Lane lane = family_.results[r];
            uint64_t result = lane_at(arrays.results[r], lane, i);
            size_t at = i * results_ + r;
            double error = reals_                    ? reference::ulp_distance(lane, result, reals_[at])
                           : !values_.empty()        ? reference::ulp_distance(lane, result, values_[at])
                           : result == patterns_[at] ? 0
                                                     : std::numeric_limits<double>::infinity();
            largest = std::max(largest, error);
        }
    }
    return largest;
}

}  // namespace bench
