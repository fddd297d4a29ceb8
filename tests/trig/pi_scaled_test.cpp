// sin, cos and tan of pi x by their bits: exact results with their signs, the limits of the reduction, and what the
// rare lanes give.
#include "tests/harness/lanes.h"
#include "tests/harness/operands.h"

namespace {

using harness::any_nan;
using harness::expect_rows;
using harness::Row;

// From rows of x, sine, cosine.
void expect_sines_and_cosines(const std::string& suffix, const std::vector<Row>& rows) {
    std::vector<Row> sines, cosines;
    for (const Row& row : rows) {
        sines.push_back({row.operands, {row.results[0]}});
        cosines.push_back({row.operands, {row.results[1]}});
    }
    expect_rows("sinpi" + suffix, sines);
    expect_rows("cospi" + suffix, cosines);
}

TEST(PiScaled, SinesAndCosinesOfFloats) {
    expect_sines_and_cosines("f", {{{0x00000000}, {0x00000000, 0x3f800000}},
                                   {{0x80000000}, {0x80000000, 0x3f800000}},
                                   {{0x00000001}, {0x00000003, 0x3f800000}},
                                   {{0x3e800000}, {0x3f3504f3, 0x3f3504f3}},
                                   {{0x3f000000}, {0x3f800000, 0x00000000}},
                                   {{0xbf000000}, {0xbf800000, 0x00000000}},
                                   {{0x3f800000}, {0x00000000, 0xbf800000}},
                                   {{0xbf800000}, {0x80000000, 0xbf800000}},
                                   {{0x40000000}, {0x00000000, 0x3f800000}},
                                   {{0xc0400000}, {0x80000000, 0xbf800000}},
                                   {{0x439620c5}, {0x3f3867e2, 0x3f31917d}},
                                   {{0x4a7fffff}, {0xbf3504f3, 0x3f3504f3}},
                                   {{0x4a800000}, {0x00000000, 0x3f800000}},  // the limit
                                   {{0x7fc00000}, {any_nan, any_nan}}});
    expect_sines_and_cosines("f_native", {{{0x80000000}, {0x80000000, 0x3f800473}},
                                          {{0x3e800000}, {0x3f350b23, 0x3f350b23}},
                                          {{0xbf000000}, {0xbf800473, 0x00000000}},
                                          {{0xbf800000}, {0x80000000, 0xbf800473}},
                                          {{0x4a7fffff}, {0xbf350b23, 0x3f350b23}},
                                          {{0x7fc00000}, {any_nan, any_nan}}});
}

// Whole periods come off first; from 2^31 on there is nothing else. The NaN has a pattern of its own, beside what took
// the vector here.
TEST(PiScaled, FarSinesAndCosinesOfFloats) {
    expect_sines_and_cosines("f", {{{0x4a800001}, {0x3f800000, 0x00000000}},
                                   {{0x4affffff}, {0xbf800000, 0x00000000}},
                                   {{0xcb000001}, {0x80000000, 0xbf800000}},
                                   {{0x4effffff}, {0x00000000, 0x3f800000}},
                                   {{0xcf000001}, {0x80000000, 0x3f800000}},
                                   {{0xff7fffff}, {0x80000000, 0x3f800000}},
                                   {{0x7f800000}, {0x7fffffff, 0x7fffffff}},
                                   {{0xff800000}, {0x7fffffff, 0x7fffffff}}});
    for (std::string name : {"sinpif", "cospif"}) {
        auto beside = [&](uint32_t x) { return harness::call(harness::family(name), 2, {{x, 0x4a800001}})[0][0]; };
        EXPECT_EQ(0x7fffffffu, beside(0xffc01234));
        EXPECT_EQ(name == "sinpif" ? 0x3f3867e2u : 0x3f31917du, beside(0x439620c5));
        EXPECT_EQ(name == "sinpif" ? 0x80000000u : 0x3f800000u, beside(0x80000000));
    }
    expect_sines_and_cosines("f_native", {{{0x4a800001}, {0x3f800473, 0x00000000}},
                                          {{0xff7fffff}, {0x80000000, 0x3f800473}},
                                          {{0x7f800000}, {any_nan, any_nan}},
                                          {{0xff800000}, {any_nan, any_nan}}});
}

TEST(PiScaled, SinesAndCosinesOfDoubles) {
    expect_sines_and_cosines("", {{{0x0000000000000000}, {0x0000000000000000, 0x3ff0000000000000}},
                                  {{0x8000000000000000}, {0x8000000000000000, 0x3ff0000000000000}},
                                  {{0x0000000000000001}, {0x0000000000000003, 0x3ff0000000000000}},
                                  {{0x3fd0000000000000}, {0x3fe6a09e667f3bcd, 0x3fe6a09e667f3bce}},
                                  {{0xbfe0000000000000}, {0xbfefffffffffffff, 0x0000000000000000}},
                                  {{0x3ff0000000000000}, {0x0000000000000000, 0xbff0000000000000}},
                                  {{0xbff0000000000000}, {0x8000000000000000, 0xbff0000000000000}},
                                  {{0xc008000000000000}, {0x8000000000000000, 0xbff0000000000000}},
                                  {{0x4059060000000000}, {0x3fd294062ed59f06, 0x3fee9f4156c62ddc}},
                                  {{0x7ff8000000000000}, {any_nan, any_nan}}});
    expect_sines_and_cosines("_native", {{{0x8000000000000000}, {0x8000000000000000, 0x3ff0000001a004d0}},
                                         {{0x3fd0000000000000}, {0x3fe6a09e6547a9b4, 0x3fe6a09e6547a9b5}},
                                         {{0xbfe0000000000000}, {0xbff0000001a004d0, 0x0000000000000000}},
                                         {{0xbff0000000000000}, {0x8000000000000000, 0xbff0000001a004d0}},
                                         {{0x4059060000000000}, {0x3fd294063036b97a, 0x3fee9f4159e10d60}},
                                         {{0x7ff8000000000000}, {any_nan, any_nan}}});
}

// The limits of sine and cosine are 2^51 and 2^43; both reductions are exact, so the path does not show.
TEST(PiScaled, FarSinesAndCosinesOfDoubles) {
    expect_rows("sinpi", {{{0x4320000000000000}, {0x0000000000000000}}, {{0x431ffffffffffffe}, {0xbfefffffffffffff}}});
    expect_rows("cospi", {{{0x42a0000000000000}, {0x3ff0000000000000}}});
    expect_rows("sinpi", {{{0x4320000000000001}, {0x3fefffffffffffff}},
                          {{0x4320000000000003}, {0xbfefffffffffffff}},
                          {{0x4330000000000001}, {0x0000000000000000}},
                          {{0x43a0000000000000}, {0x0000000000000000}},
                          {{0xc3a0000000000001}, {0x8000000000000000}},
                          {{0xffefffffffffffff}, {0x8000000000000000}},
                          {{0x7ff0000000000000}, {0x7fffffffffffffff}}});
    expect_rows("cospi", {{{0x42a0000000000001}, {0x3fefffd8858e8a92}},
                          {{0x42a0000000000040}, {0x3fed906bcf328d46}},
                          {{0xc330000000000001}, {0xbff0000000000000}},
                          {{0x7fefffffffffffff}, {0x3ff0000000000000}},
                          {{0xfff0000000000000}, {0x7fffffffffffffff}}});
    for (std::string name : {"sinpi", "cospi"})
        expect_rows(name, {{{0xfff8000000001234}, {0x7fffffffffffffff}}, {{0x7ff0000000000000}, {0x7fffffffffffffff}}},
                    {2, 3, 4, 8, 16});
    expect_sines_and_cosines("_native", {{{0x4320000000000001}, {0x3ff0000001a004d0, 0x0000000000000000}},
                                         {{0xffefffffffffffff}, {0x8000000000000000, 0x3ff0000001a004d0}},
                                         {{0x7ff0000000000000}, {any_nan, any_nan}}});
}

TEST(PiScaled, PolesAndZerosOfTheTangent) {
    for (std::string suffix : {"", "_native"}) {
        expect_rows("tanpif" + suffix,
                    {{{0x00000000}, {0x00000000}}, {{0x80000000}, {0x00000000}}, {{0x00000001}, {0x00000003}},
                     {{0x3f000000}, {0x7f800000}},                                // 0.5
                     {{0xbf000000}, {0xff800000}}, {{0x3fc00000}, {0xff800000}},  // 1.5
                     {{0xbfc00000}, {0x7f800000}}, {{0x40200000}, {0x7f800000}},  // 2.5
                     {{0x3f800000}, {0x00000000}}, {{0xc0000000}, {0x00000000}}, {{0x40400000}, {0x00000000}},
                     {{0x3e000000}, {0x3ed413cd}},  // 1/8
                     {{0xbd800000}, {0xbe4bafaf}}, {{0x4affffff}, {0xff800000}}, {{0x4b000001}, {0x00000000}},
                     {{0x4f000000}, {0x00000000}}, {{0xff7fffff}, {0x00000000}}, {{0x7fc00000}, {any_nan}},
                     {{0x7f800000}, {any_nan}},    {{0xff800000}, {any_nan}}});
        expect_rows("tanpi" + suffix, {{{0x0000000000000000}, {0x0000000000000000}},
                                       {{0x8000000000000000}, {0x0000000000000000}},
                                       {{0x0000000000000001}, {0x0000000000000003}},
                                       {{0x3fe0000000000000}, {0x7ff0000000000000}},
                                       {{0xbfe0000000000000}, {0xfff0000000000000}},
                                       {{0x3ff8000000000000}, {0xfff0000000000000}},
                                       {{0xbff8000000000000}, {0x7ff0000000000000}},
                                       {{0x4004000000000000}, {0x7ff0000000000000}},
                                       {{0x3ff0000000000000}, {0x0000000000000000}},
                                       {{0xc000000000000000}, {0x0000000000000000}},
                                       {{0x4008000000000000}, {0x0000000000000000}},
                                       {{0x3fc0000000000000}, {0x3fda827999fcef32}},
                                       {{0xbfb0000000000000}, {0xbfc975f5e0553158}},
                                       {{0x432fffffffffffff}, {0xfff0000000000000}},
                                       {{0x4330000000000001}, {0x0000000000000000}},
                                       {{0x43a0000000000000}, {0x0000000000000000}},
                                       {{0xffefffffffffffff}, {0x0000000000000000}},
                                       {{0x7ff8000000000000}, {any_nan}},
                                       {{0x7ff0000000000000}, {any_nan}},
                                       {{0xfff0000000000000}, {any_nan}}});
    }
}

// The accurate class repairs infinities and NaN at every call: the hardware's own NaN, the operand's payload.
TEST(PiScaled, RareLanesOfTheTangent) {
    expect_rows("tanpif", {{{0x7f800000}, {0xffc00000}}, {{0xff800000}, {0xffc00000}}, {{0xffc01234}, {0xffc01234}}});
    expect_rows("tanpi", {{{0x7ff0000000000000}, {0xfff8000000000000}},
                          {{0xfff0000000000000}, {0xfff8000000000000}},
                          {{0x7ff8000000001234}, {0x7ff8000000001234}}});
}

}  // namespace
