// Every standing family with a reference: a sample of each of its ranges keeps the bound that the grid states, and
// the worst operands known come up to it. A family that joins the grid is tested without a line here; its ranges
// stand beside its kernel (operations.def), its worst operands in tests/worst (the accuracy tool writes them).
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>

#include "tools/accuracy_sweep.h"

namespace {

using accuracy::Finding;
using accuracy::Place;
using accuracy::Range;

// Exact and correctly rounded families need no witness, a product and a sum have no bound, and what is worst for one
// processor's estimate is not for another's.
bool has_witness(const grid::Family& family) {
    return accuracy::has_reference(family) && family.bound > 0.5 && std::isfinite(family.bound) &&
           !family.is(grid::estimate | grid::batched);
}

template <class Choose>
std::vector<grid::Family> families_where(Choose choose) {
    std::vector<grid::Family> chosen;
    std::ranges::copy_if(grid::families(), std::back_inserter(chosen), choose);
    return chosen;
}

Range range_of(const grid::Family& family, const Place& place) {
    for (const Range& range : accuracy::ranges_of(family))
        if (range.name == place.range) return range;
    ADD_FAILURE() << place.range << " is no range of " << family.name;
    return {};
}

std::vector<Finding> findings_of(const grid::Family& family) {
    std::vector<Finding> findings;
    for (const Place& place : accuracy::read_worst(ZORV_WORST_DIRECTORY, family)) {
        EXPECT_EQ(place.operands.size(), family.operands.size());
        findings.push_back(accuracy::judge(family, place));
    }
    return findings;
}

class Bounds : public testing::TestWithParam<grid::Family> {};
class BoundsWithWitness : public Bounds {};

TEST_P(Bounds, HoldOverASampleOfEachRange) {
    const grid::Family& family = GetParam();
    for (const Range& range : accuracy::ranges_of(family)) {
        for (int width : {1, 2, 4, 8, 16}) {
            if (range.width ? width != range.width : range.beside && width == 1) continue;
            accuracy::Options options = {.width = width};
            Finding worst = accuracy::sweep_random(family, range, 2000, false, options);
            ASSERT_GE(worst.error, 0) << range.name;
            EXPECT_LE(worst.error, accuracy::bound_of(family, range))
                << range.name << ", width " << width << ", at " << std::hex << worst.operand(0);
        }
    }
}

TEST_P(Bounds, HoldAtTheWorstOperandsKnown) {
    const grid::Family& family = GetParam();
    for (const Finding& finding : findings_of(family))
        EXPECT_LE(finding.error, accuracy::bound_of(family, range_of(family, finding.place)))
            << std::hex << finding.operand(0);
}

TEST_P(BoundsWithWitness, AreReachedByTheWorstOperandsKnown) {
    const grid::Family& family = GetParam();
    double worst = 0;
    for (const Finding& finding : findings_of(family)) worst = std::max(worst, finding.error);
    EXPECT_GE(worst, 0.9 * family.bound) << "a loose bound, or worst operands to be found anew: accuracy "
                                         << family.name << " --worst tests/worst";
}

std::string name_of(const testing::TestParamInfo<grid::Family>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Family, Bounds, testing::ValuesIn(families_where(accuracy::has_reference)), name_of);
INSTANTIATE_TEST_SUITE_P(Family, BoundsWithWitness, testing::ValuesIn(families_where(has_witness)), name_of);

}  // namespace
