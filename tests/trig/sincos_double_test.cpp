// Sine and cosine of doubles by their bits, on both paths, and what a neighbour on the long path changes.
#include <cmath>

#include "tests/harness/lanes.h"
#include "tests/harness/operands.h"

namespace {

using harness::any_nan;
using harness::expect_beside;
using harness::expect_rows;
using harness::Row;

// One family of each kind from rows of x, sine, cosine.
void expect_sines_and_cosines(const std::string& suffix, const std::vector<Row>& rows) {
    std::vector<Row> sines, cosines;
    for (const Row& row : rows) {
        sines.push_back({row.operands, {row.results[0]}});
        cosines.push_back({row.operands, {row.results[1]}});
    }
    expect_rows("sin" + suffix, sines);
    expect_rows("cos" + suffix, cosines);
    expect_rows("sincos" + suffix, rows);
    expect_rows("sincosreg" + suffix, rows);
}

TEST(TrigDouble, ShortPath) {
    expect_sines_and_cosines("", {{{0x0000000000000000}, {0x0000000000000000, 0x3ff0000000000000}},
                                  {{0x8000000000000000}, {0x8000000000000000, 0x3ff0000000000000}},
                                  {{0x0000000000000001}, {0x0000000000000001, 0x3ff0000000000000}},
                                  {{0x800fffffffffffff}, {0x800fffffffffffff, 0x3ff0000000000000}},
                                  {{0x3ff0000000000000}, {0x3feaed548f090cee, 0x3fe14a280fb5068b}},
                                  {{0xc00921fb54442d18}, {0xbca1a62633145c07, 0xbff0000000000000}},
                                  {{0x4059000000000000}, {0xbfe03425b78c4db7, 0x3feb981dbf665fdf}},
                                  {{0xc0c3880000000000}, {0x3fd38f2fa75d928a, 0xbfee780e88ec440a}},
                                  {{0x7ff8000000000000}, {any_nan, any_nan}}});
    // Each of the two sets of coefficients shows.
    expect_rows("sin", {{{0x3ff921fb54442d18}, {0x3fefffffffffffff}}, {{0x415ffffff0000000}, {0x3fe48a835601be60}}});
    expect_rows("sincos", {{{0x3ff921fb54442d18}, {0x3ff0000000000000, 0x3c91a62633145c07}},
                           {{0x415ffffff0000000}, {0x3fe48a835601be60, 0xbfe889791f253a54}}});
}

// Up to the limits themselves: 2^24, 2^23, and for the cosine 2^23 of x + pi/2. Beyond, the long path rounds better.
TEST(TrigDouble, LimitsOfTheShortPath) {
    expect_rows("sin", {{{0x4170000000000000}, {0xbfe8f22f8433d6ef}}, {{0xc170000000000000}, {0x3fe8f22f8433d6ef}}});
    expect_rows("sincos", {{{0x4160000000000000}, {0x3fdba9f45d1ca7c5, 0xbfecdb2c9e19e37e}},
                           {{0xc160000000000000}, {0xbfdba9f45d1ca7c5, 0xbfecdb2c9e19e37e}}});
    expect_rows("cos", {{{0xc16000003243f6a9}, {0xbfdba9f45c44de9f}}, {{0xc160000020000000}, {0xbfeb3aefdaedf0d7}}});
    expect_rows("cos", {{{0xc16000003243f6b1}, {0xbfdba9f44dd7484e}}, {{0x415fffff9b7812dd}, {0x3fdba9f43392875b}}});
    expect_rows("cos", {{{0x415fffffc0000000}, {0xbfbf9d6bdd62473d}}});
}

TEST(TrigDouble, LongPath) {
    expect_sines_and_cosines("", {{{0x4170000000000001}, {0xbfe8f22f82f32986, 0x3fe40ad680ce2f92}},
                                  {{0xc170000000000001}, {0x3fe8f22f82f32986, 0x3fe40ad680ce2f92}},
                                  {{0x4480f0cf064dd592}, {0xbfeb453ab76bf397, 0x3fe0be2cef01c8f4}},
                                  // closest to a multiple of pi/2
                                  {{0x7506ac5b262ca1ff}, {0x3ff0000000000000, 0xbc214ae72e6ba22f}},
                                  {{0xf506ac5b262ca1ff}, {0xbff0000000000000, 0xbc214ae72e6ba22f}},
                                  {{0x7e37e43c8800759c}, {0xbfea2c16b010e385, 0xbfe2699022adc4c1}},
                                  {{0x7fefffffffffffff}, {0x3f7452fc98b34e97, 0xbfefffe62ecfab75}},
                                  {{0x7ff0000000000000}, {any_nan, any_nan}},
                                  {{0xfff0000000000000}, {any_nan, any_nan}}});
    expect_rows("sincos",
                {{{0xfff8000000001234}, {0xfff8000000001234, 0xfff8000000001234}},
                 {{0x7fefffffffffffff}, {0x3f7452fc98b34e97, 0xbfefffe62ecfab75}}},
                {2, 3, 4, 8, 16});
}

// No range test: what is left of a huge operand after three parts of pi runs through the polynomial.
TEST(TrigDouble, Native) {
    expect_sines_and_cosines("_native", {{{0x0000000000000000}, {0x0000000000000000, 0x3ff0000001a004d0}},
                                         {{0x8000000000000000}, {0x8000000000000000, 0x3ff0000001a004d0}},
                                         {{0x800fffffffffffff}, {0x800fffffffffffff, 0x3ff0000001a004d0}},
                                         {{0x3ff0000000000000}, {0x3feaed548cb812e8, 0x3fe14a2810fd8ea0}},
                                         {{0x3ff921fb54442d18}, {0x3ff0000001a004d0, 0x3c91a62633145c00}},
                                         {{0x4059000000000000}, {0xbfe03425b8fb279a, 0x3feb981dbd9de6f2}},
                                         {{0xc0c3880000000000}, {0x3fd38f2fa8ea9d7b, 0xbfee780e8befa972}},
                                         {{0x415ffffff0000000}, {0x3fe48a835611d4e7, 0xbfe889791cd7adee}},
                                         {{0x7ff0000000000000}, {any_nan, any_nan}},
                                         {{0xfff0000000000000}, {any_nan, any_nan}},
                                         {{0x7ff8000000000000}, {any_nan, any_nan}}});
    expect_rows("sincos_native", {{{0x4330000000000001}, {0xbfc3fddce88969a9, 0xbfeed201773eb08a}},
                                  {{0x4480f0cf064dd592}, {0x4a88494944bc3ad9, 0xca88494944bc3ad9}},
                                  {{0x7e37e43c8800759c}, {0xfff0000000000000, 0x7ff0000000000000}}});
}

// A lane strictly beyond the limit, or infinite, sends all lanes to the long path; a NaN or the limit does not.
TEST(TrigDouble, ANeighbourBeyondTheLimitChoosesThePath) {
    const std::vector<uint64_t> huge = {0x4170000000000001, 0xc170000000000001, 0x7ff0000000000000, 0xfff0000000000000};
    const std::vector<uint64_t> beyond_2_23 = {0x4160000000000001, 0x7ff0000000000000, 0xfff0000000000000};
    // Sums in three orders: of the sine alone, of the pair's sine, of its cosine.
    const uint64_t sine_order = 0x404698dc7c1e5068, cosine_order = 0x404822bf9f9faee0;
    expect_beside("sin",
                  {{0x40533b45e8b68dab, 0x3feff878747c4084, 0x3feff878747c4081},
                   {sine_order, 0x3fedf62346763a72, 0x3fedf62346763a71},
                   {0x8000000000000000, 0x8000000000000000, 0x8000000000000000},
                   {0x3ea0000000000000, 0x3e9ffffffffffeab, 0x3e9ffffffffffeab}},
                  {0x7ff8000000000000, 0x4170000000000000}, huge);
    expect_beside("cos",
                  {{0x4044685785d2b8f0, 0xbfeffd54683b6652, 0xbfeffd54683b664f},
                   {cosine_order, 0xbfda48c871e94d4c, 0xbfda48c871e94d4c},
                   {0x8000000000000000, 0x3ff0000000000000, 0x3ff0000000000000}},
                  {0x7ff8000000000000, 0xc160000000000000}, huge);
    for (std::string name : {"sincos", "sincosreg"}) {
        expect_beside(name,
                      {{sine_order, 0x3fedf62346763a71, 0x3fedf62346763a72},
                       {0x8000000000000000, 0x8000000000000000, 0x8000000000000000}},
                      {0x7ff8000000000000, 0xc160000000000000}, beyond_2_23);
        auto pair = harness::call(harness::family(name), 2, {{cosine_order, 0x4160000000000001}});
        EXPECT_EQ(0xbfda48c871e94d4bu, pair[1][0]);
    }
    expect_beside("sincos_native", {{0x3ff0000000000000, 0x3feaed548cb812e8, 0x3feaed548cb812e8}}, {0x7ff8000000000000},
                  huge);
}

}  // namespace
