// The search for a family's largest error: over its ranges of operands (tools/ranges.h), random or exhaustive, at any
// width, with or without a control value in the neighbouring lane.
#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "tools/calls.h"
#include "tools/ranges.h"
#include "tools/reference.h"

namespace accuracy {

// Whether the families' operation has a reference.
bool has_reference(const grid::Family& family);

// One lane of one vector. A lane that gives the same at width 1 is kept as that.
struct Place {
    std::string range;
    int width = 0, lane = 0;
    std::vector<std::vector<uint64_t>> operands;  // patterns of all lanes, operand by operand
};
struct Finding {
    Place place;
    double error = -1;  // ulp; negative: nothing tried
    size_t result = 0;  // which of the family's results
    uint64_t value = 0;
    uint64_t tried = 0;

    uint64_t operand(size_t i) const { return place.operands[i][static_cast<size_t>(place.lane)]; }
};

// What MPFR says about one lane.
Finding judge(const grid::Family& family, const Place& place);

// Called for every lane with the first operand and the screened error.
using Watcher = std::function<void(double operand, double error)>;

struct Options {
    int width = 0;  // 0: the range's, or else 4 beside a control value and 16 elsewhere
    uint64_t seed = 1;
    int jobs = 1;
    std::optional<Place> start = {};  // a known bad place, to begin from
    Watcher watch = {};               // with one job
};

// At least `count` random lanes: spread over the range's values and over its floating-point numbers, dense at its
// ends. With `climb`, a quarter as many more in the neighbourhood of the worst.
Finding sweep_random(const grid::Family& family, const Range& range, uint64_t count, bool climb,
                     const Options& options);
// Every number of the range; for families of one float operand that have a screen. Pieces where the operation is
// smooth are screened by polynomials through its values (tools/interpolant.h), the others number by number.
bool can_be_exhaustive(const grid::Family& family);
Finding sweep_exhaustive(const grid::Family& family, const Range& range, const Options& options);

// The worst operands found so far: tests/worst/<family>.txt. Exact results have none.
std::vector<Place> read_worst(const std::string& directory, const grid::Family& family);
void write_worst(const std::string& directory, const grid::Family& family, const std::vector<Finding>& findings);

}  // namespace accuracy
