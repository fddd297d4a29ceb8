// The idioms of the vector unit, the layout of records, and gathers: what every kernel builds on.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "frame/gather.h"
#include "frame/record.h"
#include "frame/units.h"

namespace {

using namespace zorv;

template <class Unit>
std::vector<uint64_t> patterns(Unit unit) {
    constexpr bool wide = sizeof(unit[0]) == 8;
    std::vector<uint64_t> lanes(wide ? 2 : 4);
    for (size_t lane = 0; lane < lanes.size(); ++lane)
        std::memcpy(&lanes[lane], reinterpret_cast<const char*>(&unit) + lane * (wide ? 8 : 4), wide ? 8 : 4);
    return lanes;
}
using Lanes32 = std::vector<uint64_t>;

// Two NaN of different payload, and numbers.
const F4 first_nan = as_float(I4{0x7fc00001, 0x3f800000, 0x7fc00003, 0x40000000});
const F4 second_nan = as_float(I4{0x7fc00002, 0x7fc00004, 0x40400000, 0x40000000});

TEST(Units, MinimumAndMaximumGiveTheSecondOperandOnNanAndOnEqualZeros) {
    EXPECT_EQ((Lanes32{0x7fc00002, 0x7fc00004, 0x40400000, 0x40000000}), patterns(hardware_min(first_nan, second_nan)));
    EXPECT_EQ((Lanes32{0x7fc00002, 0x7fc00004, 0x40400000, 0x40000000}), patterns(hardware_max(first_nan, second_nan)));
    F4 plus = {0.0f, 0.0f, 1.0f, 2.0f}, minus = {-0.0f, -0.0f, 2.0f, 1.0f};
    EXPECT_EQ((Lanes32{0x80000000, 0x80000000, 0x3f800000, 0x3f800000}), patterns(hardware_min(plus, minus)));
    EXPECT_EQ((Lanes32{0, 0, 0x40000000, 0x40000000}), patterns(hardware_max(minus, plus)));
    EXPECT_EQ((Lanes32{0x8000000000000000, 0x3ff0000000000000}), patterns(hardware_min(D2{0.0, 2.0}, D2{-0.0, 1.0})));
}

TEST(Units, WordsAreClampedOneByOneAndSigned) {
    EXPECT_EQ((Lanes32{0, 0x04280000, 0x04280000, 0x00080000}),
              patterns(clamp_words(I4{-0x80000, 0x04280000, 0x7ff80000, 0x00080000}, I4{},
                                   I4{0x04280000, 0x04280000, 0x04280000, 0x04280000})));
    EXPECT_EQ((Lanes32{0, 0x0076000000000000}), patterns(clamp_words(L2{-0x0002000000000000, 0x0078000000000000}, L2{},
                                                                     L2{0x0076000000000000, 0x0076000000000000})));
}

TEST(Units, OperandsInOrderKeepTheFirstNan) {
    EXPECT_EQ(0x7fc00001u, patterns(multiply_in_order(first_nan, second_nan))[0]);
    EXPECT_EQ(0x7fc00002u, patterns(multiply_in_order(second_nan, first_nan))[0]);
    EXPECT_EQ(0x7fc00001u, patterns(add_in_order(first_nan, second_nan))[0]);
    EXPECT_EQ(0x7fc00002u, patterns(add_in_order(second_nan, first_nan))[0]);
    D2 one = as_double(L2{0x7ff8000000000001, 0}), other = as_double(L2{0x7ff8000000000002, 0});
    EXPECT_EQ(0x7ff8000000000002u, patterns(multiply_in_order(other, one))[0]);
    EXPECT_EQ(0x7ff8000000000001u, patterns(add_in_order(one, other))[0]);
}

TEST(Units, SelectionTakesBitsNotValues) {
    I4 mask = {-1, 0, -1, 0};
    EXPECT_EQ((Lanes32{0x7fc00001, 0x7fc00004, 0x7fc00003, 0x40000000}), patterns(select(mask, first_nan, second_nan)));
    EXPECT_EQ((Lanes32{0x00000001, 0x3f800000, 0x00000003, 0x40000000}),
              patterns(clear_bits(first_nan, I4{0x7fc00000, 0, 0x7fc00000, 0})));
}

TEST(Units, HalvesOf64BitLanes) {
    L2 first = {0x1111111122222222, 0x3333333344444444}, second = {0x5555555566666666, 0x7777777788888888};
    EXPECT_EQ((Lanes32{0x22222222, 0x44444444, 0x66666666, 0x88888888}), patterns(low_halves(first, second)));
    EXPECT_EQ((Lanes32{0x11111111, 0x33333333, 0x55555555, 0x77777777}), patterns(high_halves(first, second)));
    EXPECT_EQ((Lanes32{0x1111111111111111, 0x3333333333333333}), patterns(spread_high(halves(first))));
    I4 lanes = {1, 2, 3, -1};
    EXPECT_EQ((Lanes32{0x0000000100000001, 0x0000000200000002}), patterns(double_low(lanes)));
    EXPECT_EQ((Lanes32{0x0000000300000003, 0xffffffffffffffff}), patterns(double_high(lanes)));
}

// The low halves are the opposite of what the high ones say.
TEST(Units, ComparesOfHighHalves) {
    L2 x = {0x00000005ffffffff, static_cast<int64_t>(0x8000000000000000)};
    I4 five = {0, 5, 0, 5}, four = {-1, 4, -1, 4}, lowest = {0, INT32_MIN, 0, INT32_MIN};
    constexpr uint64_t all = ~uint64_t{0};
    EXPECT_EQ((Lanes32{0, 0}), patterns(high_above(x, five)));
    EXPECT_EQ((Lanes32{all, 0}), patterns(high_above(x, four)));
    EXPECT_EQ((Lanes32{0, all}), patterns(high_below(x, five)));
    EXPECT_EQ((Lanes32{0, 0}), patterns(high_below(x, lowest)));
}

TEST(Units, BetweenIntegersFloatsAndDoubles) {
    D2 integers = small_integer_to_double(L2{0xfffffffffffff, 1}, D2{0x1p52, 0x1p52});
    EXPECT_EQ(0xfffffffffffff, integers[0]);
    EXPECT_EQ(1.0, integers[1]);
    D4 wide = widen(F4{1, 2, 3, 4});
    EXPECT_EQ((std::vector<double>{1, 2, 3, 4}),
              (std::vector<double>{wide.low[0], wide.low[1], wide.high[0], wide.high[1]}));
    F4 narrowed = narrow({D2{0x1.000001p0, -2}, D2{0x1.000003p0, 4}});  // ties go to the even neighbour
    EXPECT_EQ((std::vector<float>{1, -2, 0x1.000004p0f, 4}),
              (std::vector<float>{narrowed[0], narrowed[1], narrowed[2], narrowed[3]}));
}

// Estimates of doubles go through float: their error is the float estimate's.
TEST(Units, EstimatesOfDoubles) {
    constexpr double bound = 1.5 * 0x1p-12 + 0x1p-23;
    for (double x = 0x1p-120; x < 0x1p120; x *= 1.37) {
        D2 reciprocal = reciprocal_estimate(D2{x, 3}), rsqrt = rsqrt_estimate(D2{4, x});
        EXPECT_NEAR(1, reciprocal[0] * x, bound);
        EXPECT_NEAR(1, reciprocal[1] * 3, bound);
        EXPECT_NEAR(1, rsqrt[0] * 2, bound);
        EXPECT_NEAR(1, rsqrt[1] * rsqrt[1] * x, 2.1 * bound);
    }
}

TEST(Units, HornerRoundsEachStep) {
    // (1 + 2^-12)^2 rounds to 1 + 2^-11, so nothing is left; a fused step would leave 2^-24.
    F4 x = {0x1.001p0f, 0x1.001p0f, 2.0f, -1.0f};
    EXPECT_EQ(0u, patterns(horner(x, x, F4{} - 0x1.002p0f))[0]);
    EXPECT_EQ(17.0f, (horner(x, F4{} + 3, F4{} + 2, F4{} + 1)[2]));
    EXPECT_EQ(2.0f, (horner(x, F4{} + 3, F4{} + 2, F4{} + 1)[3]));
}

// A constant stands eight or four times in the first half of its line; the other half is zero.
struct TwoSlots {
    Slot<float> single;
    Slot<double> wide;
    PackedSlot<int32_t> packed[2];
};
const TwoSlots slots = {.single = 0x3f800000, .wide = 0x4000000000000001, .packed = {5, 0x80000000}};

TEST(Records, SlotsAreLinesOfReplicas) {
    uint32_t words[sizeof slots / 4];
    std::memcpy(words, &slots, sizeof slots);
    ASSERT_EQ(3 * 64u, sizeof slots);
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(0x3f800000u, words[i]);
        EXPECT_EQ(0u, words[8 + i]);
        EXPECT_EQ(i % 2 ? 0x40000000u : 1u, words[16 + i]);
        EXPECT_EQ(0u, words[24 + i]);
        EXPECT_EQ(5u, words[32 + i]);
        EXPECT_EQ(0x80000000u, words[40 + i]);
    }
    EXPECT_EQ(0u, reinterpret_cast<uintptr_t>(&slots) % 64);
    EXPECT_EQ((Lanes32{0x4000000000000001, 0x4000000000000001}), patterns(D2(in_memory(slots).wide)));
}

alignas(16) const float table[] = {0, 1, 2, 3, 10, 11, 12, 13, 20, 21, 22, 23, 30, 31, 32, 33};

TEST(Gathers, TakeEachLanesRow) {
    LaneOffsets at = offsets_of(I4{48, 0, 16, 48});
    F4 column = gather(table + 2, at);
    F4 indexed = gather_indexed(table, offsets_of(I4{15, 0, 5, 4}));
    Columns rows = gather_rows(table, offsets_through_memory(I4{48, 0, 16, 48}));
    for (int lane = 0; lane < 4; ++lane) {
        float row = (lane == 0 || lane == 3) ? 30.0f : lane == 1 ? 0.0f : 10.0f;
        EXPECT_EQ(row + 2, column[lane]);
        for (int c = 0; c < 4; ++c) EXPECT_EQ(row + static_cast<float>(c), rows.column[c][lane]);
    }
    EXPECT_EQ((std::vector<float>{33, 0, 11, 10}),
              (std::vector<float>{indexed[0], indexed[1], indexed[2], indexed[3]}));
}

alignas(16) const double rows[] = {0, 1, 2, 3, 10, 11, 12, 13, 20, 21, 22, 23, 30, 31, 32, 33};

TEST(Gathers, RowsOfDoubles) {
    LaneOffsets2 at2 = offsets_of(L2{96, 32});
    D2 column = gather(rows + 3, at2);
    ColumnPair pair = gather_pair(rows + 2, at2);
    LaneOffsets at = offsets_of(I4{96, 0, 32, 64});
    D4 wide = gather_wide(rows + 1, at);
    WideColumnPair wide_pair = gather_wide_pair(rows, at);
    for (int lane = 0; lane < 2; ++lane) {
        double row = lane == 0 ? 30 : 10, low = lane == 0 ? 30 : 0, high = lane == 0 ? 10 : 20;
        EXPECT_EQ(row + 3, column[lane]);
        EXPECT_EQ(row + 2, pair.first[lane]);
        EXPECT_EQ(row + 3, pair.second[lane]);
        EXPECT_EQ(low + 1, wide.low[lane]);
        EXPECT_EQ(high + 1, wide.high[lane]);
        EXPECT_EQ(low, wide_pair.first.low[lane]);
        EXPECT_EQ(high, wide_pair.first.high[lane]);
        EXPECT_EQ(low + 1, wide_pair.second.low[lane]);
        EXPECT_EQ(high + 1, wide_pair.second.high[lane]);
    }
}

}  // namespace
