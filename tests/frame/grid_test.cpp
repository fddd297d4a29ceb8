// What holds for every family of the grid, checked for every family that stands.
#include <immintrin.h>

#include <algorithm>
#include <iterator>

#include "tests/harness/lanes.h"
#include "tests/harness/operands.h"

namespace {

using grid::Family;
using harness::Patterns;

class EveryFamily : public testing::TestWithParam<Family> {};
class EveryFamilyOfIndependentLanes : public testing::TestWithParam<Family> {};
class EveryFamilyWithAPointer : public testing::TestWithParam<Family> {};

bool lanes_are_independent(const Family& family) { return !family.is(grid::batched | grid::coupled); }

template <class Choose>
std::vector<Family> families_where(Choose choose) {
    std::vector<Family> chosen;
    std::ranges::copy_if(grid::families(), std::back_inserter(chosen), choose);
    return chosen;
}
std::string name_of(const testing::TestParamInfo<Family>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Grid, EveryFamily, testing::ValuesIn(grid::families()), name_of);
INSTANTIATE_TEST_SUITE_P(Grid, EveryFamilyOfIndependentLanes, testing::ValuesIn(families_where(lanes_are_independent)),
                         name_of);
INSTANTIATE_TEST_SUITE_P(Grid, EveryFamilyWithAPointer,
                         testing::ValuesIn(families_where([](const Family& f) { return f.second_through_pointer; })),
                         name_of);

std::vector<Patterns> vectors(const Family& family, int width, const std::vector<std::vector<uint64_t>>& tuples,
                              size_t first) {
    std::vector<Patterns> operands(family.operands.size(), Patterns(static_cast<size_t>(grid::room(width))));
    for (size_t i = 0; i < operands.size(); ++i)
        for (size_t lane = 0; lane < operands[i].size(); ++lane)
            operands[i][lane] = tuples[(first + lane) % tuples.size()][i];
    return operands;
}

// A signalling NaN that a family hands on bit by bit may be quieted by the return of width 1.
bool same_bits(const Family& family, size_t result, uint64_t one, uint64_t other) {
    if (one == other || !grid::floating_results_on_x87) return one == other;
    grid::Lane lane = family.results[result];
    return harness::is_nan(lane, one) && harness::is_nan(lane, other) &&
           (harness::is_signalling(lane, one) || harness::is_signalling(lane, other)) &&
           ((one ^ other) & ~(lane == grid::Lane::f32 ? 1ull << 22 : 1ull << 51)) == 0;
}

TEST_P(EveryFamily, GivesTheSameBitsAtEveryWidth) {
    const Family& family = GetParam();
    auto tuples = harness::operand_tuples(family, 200);
    for (size_t first = 0; first < tuples.size(); ++first) {
        if (lanes_are_independent(family)) {
            for (int width : {2, 3, 4, 8, 16}) {
                auto results = harness::call(family, width, vectors(family, width, tuples, first));
                for (size_t lane = 0; lane < static_cast<size_t>(width); ++lane) {
                    auto alone = harness::call_uniform(family, 1, tuples[(first + lane) % tuples.size()]);
                    for (size_t i = 0; i < results.size(); ++i)
                        ASSERT_TRUE(same_bits(family, i, alone[i], results[i][lane]))
                            << family.export_name(width) << " lane " << lane << ", tuple "
                            << (first + lane) % tuples.size() << std::hex << ": " << results[i][lane]
                            << ", width 1: " << alone[i];
                }
            }
        } else {
            // Neighbours equal to the lane itself: then every width has the same choice to make, but that a batch
            // is not used at widths 2, 3 and 4.
            for (auto [narrow, wide] : {std::pair{1, 8}, {1, 16}, {2, 3}, {2, 4}, {1, 2}}) {
                if (family.is(grid::batched) && narrow == 1 && wide == 2) continue;
                EXPECT_EQ(harness::call_uniform(family, narrow, tuples[first]),
                          harness::call_uniform(family, wide, tuples[first]))
                    << family.name << " at widths " << narrow << " and " << wide << ", tuple " << first;
            }
        }
    }
}

TEST_P(EveryFamilyOfIndependentLanes, ARareLaneDisturbsNoNeighbour) {
    const Family& family = GetParam();
    harness::Random random(7);
    for (int width : {2, 3, 4, 8, 16}) {
        auto lanes = static_cast<size_t>(grid::room(width));
        std::vector<Patterns> operands;
        for (grid::Lane lane : family.operands) {
            operands.emplace_back();
            for (size_t i = 0; i < lanes; ++i) operands.back().push_back(harness::ordinary_pattern(lane, random));
        }
        auto calm = harness::call(family, width, operands);
        for (size_t rare_lane = 0; rare_lane < static_cast<size_t>(width); ++rare_lane)
            for (size_t operand = 0; operand < operands.size(); ++operand)
                for (uint64_t special : harness::special_patterns(family.operands[operand])) {
                    auto disturbed = operands;
                    disturbed[operand][rare_lane] = special;
                    auto results = harness::call(family, width, disturbed);
                    for (size_t i = 0; i < results.size(); ++i)
                        for (size_t lane = 0; lane < lanes; ++lane)
                            if (lane != rare_lane) {
                                ASSERT_EQ(calm[i][lane], results[i][lane])
                                    << family.export_name(width) << ": lane " << lane << " beside " << std::hex
                                    << special << " in lane " << rare_lane;
                            }
                }
    }
}

TEST_P(EveryFamily, Width3IgnoresItsFourthLaneAndFillsIt) {
    const Family& family = GetParam();
    harness::Random random(3);
    std::vector<Patterns> operands;
    for (grid::Lane lane : family.operands) {
        operands.emplace_back();
        for (int i = 0; i < 4; ++i) operands.back().push_back(harness::ordinary_pattern(lane, random));
    }
    // What comes back in the fourth lane is the result for the fill.
    std::vector<Patterns> filled = operands;
    for (size_t i = 0; i < operands.size(); ++i) {
        bool floating = family.operands[i] == grid::Lane::f32 || family.operands[i] == grid::Lane::f64;
        double value = floating ? 0.75 : 1;
        if (i == 0 && family.is(grid::fill_zero)) value = 0;
        if (i == 0 && family.is(grid::fill_one)) value = 1;
        if (i == 0 && family.is(grid::fill_two)) value = 2;
        if (!floating)
            filled[i][3] = static_cast<uint64_t>(value);
        else
            filled[i][3] = family.is_single ? harness::pattern(static_cast<float>(value)) : harness::pattern(value);
    }
    auto expected = harness::call(family, 4, filled);
    for (size_t operand = 0; operand < operands.size(); ++operand)
        for (uint64_t junk : harness::special_patterns(family.operands[operand])) {
            auto with_junk = operands;
            with_junk[operand][3] = junk;
            EXPECT_EQ(expected, harness::call(family, 3, with_junk))
                << family.name << ", junk " << std::hex << junk << " in operand " << operand;
        }
    // A signalling NaN in the ignored lane.
    if (family.is_single && family.operands[0] == grid::Lane::f32) {
        operands[0][3] = 0x7f800001;
        EXPECT_EQ(expected, harness::call(family, 3, operands));
    }
}

TEST_P(EveryFamilyWithAPointer, GetsExactlyTheStatedBytes) {
    const Family& family = GetParam();
    constexpr unsigned char guard = 0xa5;
    for (int width : grid::widths)
        for (bool rare : {false, true}) {
            alignas(64) unsigned char operands[2][128] = {}, result[128], second[256];
            harness::Random random(11);
            auto lanes = static_cast<size_t>(grid::room(width));
            for (size_t i = 0; i < family.operands.size(); ++i)
                for (size_t lane = 0; lane < lanes; ++lane) {
                    uint64_t bits = rare ? harness::special_patterns(family.operands[i])[11]
                                         : harness::ordinary_pattern(family.operands[i], random);
                    size_t size = grid::size_of(family.operands[i]);
                    std::memcpy(operands[i] + lane * size, &bits, size);
                }
            size_t size = lanes * grid::size_of(family.results[1]);
            std::memset(second, guard, sizeof second);
            const void* in[] = {operands[0], operands[1]};
            void* out[] = {result, second + 64};
            family.call(width)(in, out);
            for (size_t i = 0; i < sizeof second; ++i) {
                bool inside = i >= 64 && i < 64 + size;
                if (!inside) {
                    ASSERT_EQ(guard, second[i]) << family.export_name(width) << " wrote byte " << int(i) - 64;
                }
            }
            std::vector<unsigned char> untouched(size, guard);
            EXPECT_NE(0, std::memcmp(untouched.data(), second + 64, size)) << family.export_name(width);
        }
}

uint16_t x87_control() {
    uint16_t word;
    asm volatile("fnstcw %0" : "=m"(word));
    return word;
}
void set_x87_control(uint16_t word) { asm volatile("fldcw %0" : : "m"(word)); }

TEST_P(EveryFamily, LeavesTheControlWordsAsTheyWere) {
    const Family& family = GetParam();
    constexpr unsigned status_flags = 0x3f;
    uint16_t saved_x87 = x87_control();
    unsigned saved_mxcsr = _mm_getcsr();
    auto tuples = harness::operand_tuples(family, 16);
    // Double precision and full precision, each rounding mode.
    for (uint16_t word : {0x027f, 0x037f, 0x0e7f, 0x077f, 0x0b7f})
        for (unsigned rounding : {0x0000u, 0x2000u, 0x4000u, 0x6000u})
            for (int width : grid::widths)
                for (size_t first = 0; first < tuples.size(); first += 16) {
                    auto operands = vectors(family, width, tuples, first);
                    set_x87_control(word);
                    _mm_setcsr((saved_mxcsr & ~0x6000u) | rounding);
                    harness::call(family, width, operands);
                    uint16_t word_after = x87_control();
                    unsigned mxcsr_after = _mm_getcsr();
                    set_x87_control(saved_x87);
                    _mm_setcsr(saved_mxcsr);
                    ASSERT_EQ(word, word_after) << family.export_name(width);
                    ASSERT_EQ(((saved_mxcsr & ~0x6000u) | rounding) & ~status_flags, mxcsr_after & ~status_flags)
                        << family.export_name(width);
                }
}

}  // namespace
