// Values of the conversions that are worth telling, worked by hand: ties, limits, the special lanes, steps across a
// power of two.
#include "tests/harness/lanes.h"

namespace {

using harness::expect_rows;

TEST(ToInteger, SpecialLanes) {
    constexpr uint64_t ones = ~uint64_t{0}, lowest = uint64_t{1} << 63;
    constexpr uint64_t nan_f = 0x7fc00000, minus_nan_f = 0xffc00000, nan = 0x7ff8000000000000, minus_nan = nan | lowest;
    expect_rows("cvtfptoi32rtznosatf",
                {{{0x4f000000}, {0x80000000}}, {{nan_f}, {0x80000000}}, {{0xc06ccccd}, {0xfffffffd}}});
    expect_rows("cvtfptoi32rtzsatf", {{{0x4effffff}, {0x7fffff80}},
                                      {{0x4f000000}, {0x7fffffff}},
                                      {{0xcf000000}, {0x80000000}},
                                      {{minus_nan_f}, {0}}});
    expect_rows("cvtfptoi32rtnsatf",
                {{{0x3f000000}, {0}}, {{0x3fc00000}, {2}}, {{0xc0200000}, {0xfffffffe}}, {{0x4affffff}, {0x800000}}});
    expect_rows("cvtfptoi32rtnsat", {{{0x41dfffffffe66666}, {0x7fffffff}}});
    expect_rows("cvtfptoi32rtnnosat", {{{0x41dfffffffe66666}, {0x80000000}}});
    expect_rows("cvtfptou32rtznosatf",
                {{{0xc06ccccd}, {3}}, {{0x4f7fffff}, {0xffffff00}}, {{0x4f800000}, {0x80000000}}});
    expect_rows("cvtfptou32downnosatf", {{{0xc04ccccd}, {4}}});
    expect_rows("cvtfptou32rtzsatf", {{{0xbf800000}, {0}},
                                      {{nan_f}, {0xffffffff}},
                                      {{minus_nan_f}, {0}},
                                      {{0x7f800001}, {0xffffffff}},
                                      {{0x4f800000}, {0xffffffff}}});
    expect_rows("cvtfptou32upsat", {{{nan}, {0xffffffff}}, {{minus_nan}, {0}}, {{0xbfefffffffffffff}, {0}}});
    expect_rows("cvtfptoi64rtzsat", {{{0xc3e0000000000000}, {lowest}},
                                     {{0x43dfffffffffffff}, {0x7ffffffffffffc00}},
                                     {{nan}, {0}},
                                     {{0x7ff0000000000000}, {lowest - 1}}});
    expect_rows("cvtfptou64rtzsat",
                {{{nan}, {0}}, {{minus_nan}, {0}}, {{0x43f0000000000000}, {ones}}, {{0x43e0000000000000}, {lowest}}});
    expect_rows("cvtfptou64rtznosat",
                {{{0xc090000000000000}, {1024}}, {{0x43f0000000000000}, {lowest}}, {{nan}, {lowest}}});
}

TEST(FromInteger, WorkedByHand) {
    expect_rows("cvtu32tofprtnf", {{{0xffffffff}, {0x4f800000}}, {{16777217}, {0x4b800000}}, {{0}, {0}}});
    expect_rows("cvtu32tofpupf", {{{16777217}, {0x4b800001}}});
    expect_rows("cvtu32tofprtzf", {{{0xffffffff}, {0x4f7fffff}}});
    expect_rows("cvti32tofpdownf", {{{0xfeffffff}, {0xcb800001}}, {{0}, {0}}});
    expect_rows("cvti32tofpupf", {{{0xfeffffff}, {0xcb800000}}, {{0}, {0}}});
    expect_rows("cvti32tofprtnf", {{{0x80000000}, {0xcf000000}}});
    expect_rows("cvti32tofprtz", {{{0x80000001}, {0xc1dfffffffc00000}}});
    expect_rows("cvtu32tofpup", {{{0xffffffff}, {0x41efffffffe00000}}});
    expect_rows(
        "cvtu64tofprtnf",
        {{{0x0000800000800001}, {0x57000001}}, {{0x0000800000800000}, {0x57000000}}, {{~uint64_t{0}}, {0x5f800000}}});
    expect_rows("cvtu64tofprtz", {{{~uint64_t{0}}, {0x43efffffffffffff}}});
    expect_rows("cvti64tofprtn", {{{uint64_t{1} << 63}, {0xc3e0000000000000}}});
}

}  // namespace
