// Every conversion over dense samples, at every width, against integer arithmetic on the bits; the 64-bit sources
// against MPFR too.
#include <mpfr.h>

#include <set>

#include "tests/harness/lanes.h"
#include "tests/harness/operands.h"
#include "tools/conversion_reference.h"

namespace {

using conversions::Axes;
using conversions::Rounding;
using harness::Patterns;
using harness::Random;

// Runs the operands through the family at every width. They fill the lanes in their order, so that neighbours differ.
void expect_all(const grid::Family& family, const Axes& axes, const Patterns& operands) {
    int reported = 0;
    for (int width : grid::widths) {
        size_t room = static_cast<size_t>(grid::room(width)), live = static_cast<size_t>(width);
        for (size_t first = 0; first < operands.size() && reported < 5; first += live) {
            Patterns lanes(room, harness::any_nan);
            for (size_t lane = 0; lane < live; ++lane) lanes[lane] = operands[(first + lane) % operands.size()];
            Patterns results = harness::call(family, width, {lanes})[0];
            for (size_t lane = 0; lane < live; ++lane) {
                uint64_t expected = conversions::expected(axes, lanes[lane]);
                if (results[lane] == expected) continue;
                ADD_FAILURE() << family.export_name(width) << " lane " << lane << " of 0x" << std::hex << lanes[lane]
                              << ": 0x" << results[lane] << ", expected 0x" << expected;
                ++reported;
            }
        }
    }
}

template <class Wanted>
int expect_families(const Patterns& operands, Wanted wanted) {
    int count = 0;
    for (const grid::Family& family : grid::families()) {
        auto axes = conversions::axes_of(family.base, family.is_single);
        if (!axes || !wanted(*axes)) continue;
        expect_all(family, *axes, operands);
        ++count;
    }
    return count;
}

// ---- To integers. ------------------------------------------------------------------------------------------

// Bit patterns of both signs: every exponent that an integer can meet and the ends of the others, with significands
// that lie on and beside integers, halves and powers of two; then random ones.
Patterns floating_operands(bool is_single) {
    conversions::Format f = conversions::format(is_single);
    uint64_t one = uint64_t{1} << f.significand_bits;
    std::set<uint64_t> magnitudes;
    auto with_neighbours = [&](uint64_t magnitude) {
        for (uint64_t step : {uint64_t{0}, uint64_t{1}, ~uint64_t{0}})
            magnitudes.insert((magnitude + step) & (f.sign() - 1));
    };
    Random random(1);
    int last = (1 << f.exponent_bits) - 1;
    for (int exponent = 0; exponent <= last; ++exponent) {
        bool is_near = exponent > f.bias() - 4 && exponent < f.bias() + 67;
        if (!is_single && !is_near && exponent > 2 && exponent < last - 2 && exponent % 97 != 0) continue;
        uint64_t lowest = static_cast<uint64_t>(exponent) << f.significand_bits;
        with_neighbours(lowest);
        with_neighbours(lowest + one / 2);
        for (int i = 0; i < 2; ++i) with_neighbours(lowest + (random.next() & (one - 1)));
        if (!is_near) continue;
        // The last bit of weight one, and the one behind it: odd and even integers, and their halves.
        for (int weight : {f.significand_bits - (exponent - f.bias()), f.significand_bits - (exponent - f.bias()) - 1})
            if (weight >= 0 && weight < f.significand_bits)
                for (uint64_t multiple : {1, 2, 3}) {
                    with_neighbours(lowest + (multiple << weight & (one - 1)));
                    with_neighbours(lowest + ((one - (multiple << weight)) & (one - 1)));
                }
    }
    Patterns operands;
    for (uint64_t magnitude : magnitudes) {
        operands.push_back(magnitude);
        operands.push_back(magnitude | f.sign());
    }
    return operands;
}

TEST(ToInteger, FloatSources) {
    EXPECT_EQ(32, expect_families(floating_operands(true), [](Axes a) { return a.to_integer && a.is_single; }));
}

TEST(ToInteger, DoubleSources) {
    EXPECT_EQ(32, expect_families(floating_operands(false), [](Axes a) { return a.to_integer && !a.is_single; }));
}

// ---- From integers. ----------------------------------------------------------------------------------------

// Around every power of two and every sum of two and of three: ties and what breaks them at every position, carries,
// the ends of the pieces; then random ones of every length. Both signs.
Patterns integer_operands(int bits) {
    uint64_t mask = ~uint64_t{0} >> (64 - bits);
    std::set<uint64_t> values = {0};
    auto around = [&](uint64_t x) {
        for (uint64_t value : {x, x + 1, x - 1}) {
            values.insert(value & mask);
            values.insert((0 - value) & mask);
        }
    };
    Random random(1);
    for (int i = 0; i < bits; ++i) {
        uint64_t top = uint64_t{1} << i;
        around(top);
        for (int j = 0; j < i; ++j) around(top | uint64_t{1} << j);
        // Beside a tie of either precision, on an even and on an odd neighbour, and below the next power of two.
        for (int significand_bits : {23, 52})
            if (int half = i - significand_bits - 1; half >= 0)
                for (uint64_t low : {1, 3})
                    for (uint64_t high : {uint64_t{0}, (top - 1) >> (half + 1) << (half + 1)}) {
                        around(top | high | low << half);
                        around((top | high | low << half) + (half > 8 ? uint64_t{1} << (half / 2) : 0));
                    }
        for (int j = 0; j < 8; ++j) around(top | (random.next() & (top - 1)));
    }
    return Patterns(values.begin(), values.end());
}

TEST(FromInteger, WordSources) {
    EXPECT_EQ(16, expect_families(integer_operands(32), [](Axes a) { return !a.to_integer && a.integer_bits == 32; }));
}

TEST(FromInteger, LongSources) {
    EXPECT_EQ(16, expect_families(integer_operands(64), [](Axes a) { return !a.to_integer && a.integer_bits == 64; }));
}

uint64_t rounded_by_mpfr(uint64_t x, bool is_signed, bool is_single, Rounding rounding) {
    mpfr_rnd_t mode = rounding == Rounding::nearest ? MPFR_RNDN
                      : rounding == Rounding::zero  ? MPFR_RNDZ
                      : rounding == Rounding::up    ? MPFR_RNDU
                                                    : MPFR_RNDD;
    bool negative = is_signed && x >> 63 != 0;
    uint64_t magnitude = negative ? 0 - x : x;
    mpfr_t high, exact;
    mpfr_inits2(64, high, exact, nullptr);
    mpfr_set_ui_2exp(high, static_cast<uint32_t>(magnitude >> 32), 32, MPFR_RNDN);
    mpfr_add_ui(exact, high, static_cast<uint32_t>(magnitude), MPFR_RNDN);
    if (negative) mpfr_neg(exact, exact, MPFR_RNDN);
    uint64_t result =
        is_single ? harness::pattern(mpfr_get_flt(exact, mode)) : harness::pattern(mpfr_get_d(exact, mode));
    mpfr_clears(high, exact, nullptr);
    return result;
}

// The reference itself, by another road.
TEST(FromInteger, ReferenceAgreesWithMpfr) {
    for (uint64_t x : integer_operands(64))
        for (bool is_signed : {false, true})
            for (bool is_single : {false, true})
                for (Rounding rounding : {Rounding::nearest, Rounding::zero, Rounding::up, Rounding::down})
                    ASSERT_EQ(rounded_by_mpfr(x, is_signed, is_single, rounding),
                              conversions::integer_to_floating(x, 64, is_signed, is_single, rounding))
                        << std::hex << x;
}

}  // namespace
