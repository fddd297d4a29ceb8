// Values of the reciprocals, quotients and roots, by their bits.
#include "tests/harness/lanes.h"

namespace {

using harness::expect_rows;

constexpr uint64_t inf_f = 0x7f800000, minus_inf_f = 0xff800000, nan_f = 0x7fc00000;

TEST(Quotients, InvfIsTheHardwareDivide) {
    expect_rows("invf", {{{0x00000000}, {inf_f}},
                         {{0x80000000}, {minus_inf_f}},
                         {{inf_f}, {0x00000000}},
                         {{minus_inf_f}, {0x80000000}},
                         {{nan_f}, {nan_f}},
                         {{0x7f800001}, {0x7fc00001}},
                         {{0x40400000}, {0x3eaaaaab}},
                         {{0x00400000}, {0x7f000000}},
                         {{0x00000001}, {inf_f}}});
}

}  // namespace
