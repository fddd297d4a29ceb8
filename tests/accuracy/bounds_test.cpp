// Every standing family with a reference: a sample of each of its ranges keeps the bound that the grid states, and
// the worst operands known come up to it. A family that joins the grid is tested without a line here; its ranges
// stand beside its kernel (operations.def), its worst operands in tests/worst (the accuracy tool writes them).
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tools/accuracy_sweep.h"

namespace {

using accuracy::Finding;
using accuracy::Place;
using accuracy::Range;

std::vector<const grid::Family*> families_with_reference() {
    std::vector<const grid::Family*> list;
    for (const grid::Family& family : grid::families())
        if (accuracy::has_reference(family)) list.push_back(&family);
    return list;
}

class Bounds : public testing::TestWithParam<const grid::Family*> {};

TEST_P(Bounds, HoldOverASampleOfEachRange) {
    const grid::Family& family = *GetParam();
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

TEST_P(Bounds, AreReachedByTheWorstOperandsKnown) {
    const grid::Family& family = *GetParam();
    std::vector<Range> ranges = accuracy::ranges_of(family);
    double worst = 0, share = 1;
    for (const Range& range : ranges) share = std::min(share, range.reached);
    for (const Place& place : accuracy::read_worst(ZORV_WORST_DIRECTORY, family)) {
        auto range = std::ranges::find(ranges, place.range, &Range::name);
        ASSERT_NE(range, ranges.end()) << place.range << " is no range of " << family.name;
        ASSERT_EQ(place.operands.size(), family.operands.size());
        Finding finding = accuracy::judge(family, place);
        EXPECT_LE(finding.error, accuracy::bound_of(family, *range)) << std::hex << finding.operand(0);
        worst = std::max(worst, finding.error);
    }
    // Exact and correctly rounded families need no witness; a product and a sum have no bound; and what is worst for
    // one processor's estimate is not for another's.
    if (family.bound > 0.5 && std::isfinite(family.bound) && !family.is(grid::estimate | grid::batched))
        EXPECT_GE(worst, share * family.bound)
            << "a loose bound, or worst operands to be found anew: accuracy " << family.name << " --worst tests/worst";
}

INSTANTIATE_TEST_SUITE_P(Family, Bounds, testing::ValuesIn(families_with_reference()),
                         [](const auto& info) { return info.param->name; });

}  // namespace
