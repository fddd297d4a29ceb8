// The table of the scalar arc tangents: rows known by their bits, and every row through the lanes that read it.
#include <cmath>

#include "tests/harness/lanes.h"

namespace {

struct Step {
    double head, tail;
};
constexpr Step steps[] = {
#include "kernels/inverse_trig/tables/atan_steps.inc"
};

TEST(AtanSteps, KnownRows) {
    auto expect_row = [](size_t i, uint64_t head, uint64_t tail) {
        EXPECT_EQ(head, harness::pattern(steps[i].head)) << i;
        EXPECT_EQ(tail, harness::pattern(steps[i].tail)) << i;
    };
    ASSERT_EQ(114u, std::size(steps));
    expect_row(0, 0x3fc3d6eee8000000, 0x3df8cc4d8b0d1d86);
    expect_row(1, 0x3fcb90d750000000, 0x3e1493051022f622);
    expect_row(113, 0x3ff921fb58000000, 0xbe4dde9740145fcc);
}

// A wrong row, or the right one at the wrong place, is off by more than all that the arithmetic leaves. The operands
// are so small that the scalar routine takes them, and in extended precision their angle has bits to spare.
TEST(AtanSteps, EveryRowServesItsQuotients) {
    const grid::Family& family = harness::family("atan2");
    for (int i = 0; i < 114; ++i)
        for (double within : {0.81, 0.93, 1.0, 1.07, 1.18})
            for (double x : {0x1.3p-1021, -0x1.3p-1021}) {
                double c = std::ldexp(i % 2 == 0 ? 1.25 : 1.75, i / 2 - 3);
                double y = std::fabs(x) * (c * within);
                uint64_t bits = harness::call_uniform(family, 1, {harness::pattern(y), harness::pattern(x)})[0];
                long double exact = atan2l(y, x);
                long double ulp = std::ldexp(1.0L, std::ilogb(exact) - 52);
                EXPECT_LE(std::fabs(harness::as_double(bits) - exact), 0.501L * ulp) << "row " << i << ", " << within;
            }
}

}  // namespace
