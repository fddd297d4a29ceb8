// Sine and cosine by their bits, on both paths, and what a neighbour on the long path changes.
#include <cmath>

#include "tests/harness/lanes.h"
#include "tests/harness/operands.h"

namespace {

using harness::any_nan;
using harness::expect_rows;
using harness::Row;

// One family of each kind from rows of x, sine, cosine.
void expect_sines_and_cosines(const std::string& suffix, const std::vector<Row>& rows) {
    std::vector<Row> sines, cosines;
    for (const Row& row : rows) {
        sines.push_back({row.operands, {row.results[0]}});
        cosines.push_back({row.operands, {row.results[1]}});
    }
    expect_rows("sinf" + suffix, sines);
    expect_rows("cosf" + suffix, cosines);
    expect_rows("sincosf" + suffix, rows);
    expect_rows("sincosregf" + suffix, rows);
}

// Up to the limit itself; some of these are two units from the nearest float, and the native ones thousands.
TEST(Trig, ShortPathOfFloats) {
    expect_sines_and_cosines("", {{{0x00000000}, {0x00000000, 0x3f800000}},
                                  {{0x80000000}, {0x80000000, 0x3f800000}},
                                  {{0x00000001}, {0x00000001, 0x3f800000}},
                                  {{0x807fffff}, {0x807fffff, 0x3f800000}},
                                  {{0x3f800000}, {0x3f576aa4, 0x3f0a5140}},
                                  {{0x3fc90fda}, {0x3f800000, 0x33a22169}},
                                  {{0x3fc90fdb}, {0x3f800000, 0xb33bbd2e}},
                                  {{0xc0490fdb}, {0x33bbbd2e, 0xbf800000}},
                                  {{0x42c80000}, {0xbf01a12e, 0x3f5cc0ee}},
                                  {{0xc60fc5e6}, {0xbe7d9ccf, 0xbf780638}},
                                  {{0x461c3fc9}, {0xbe8213c5, 0xbf7799b6}},
                                  {{0x461c4000}, {0xbe9c797d, 0xbf73c074}},
                                  {{0x7fc00000}, {any_nan, any_nan}}});
    expect_sines_and_cosines("_native", {{{0x00000000}, {0x00000000, 0x3f800473}},
                                         {{0x80000000}, {0x80000000, 0x3f800473}},
                                         {{0x807fffff}, {0x807fffff, 0x3f800473}},
                                         {{0x3f800000}, {0x3f576e56, 0x3f0a555f}},
                                         {{0x3fc90fda}, {0x3f800474, 0x33a22169}},
                                         {{0x42c80000}, {0xbf01a4bc, 0x3f5cc374}},
                                         {{0xc60fc5e6}, {0xbe7d9ed6, 0xbf77fe1b}},
                                         {{0x461c4000}, {0xbe9c7b5a, 0xbf73ba2f}},
                                         {{0x7fc00000}, {any_nan, any_nan}}});
    // The quadrant of -pi is counted on the signed operand by one, on the absolute value by the other.
    expect_rows("cosf_native", {{{0xc0490fdb}, {0xbf800473}}});
    expect_rows("sincosf_native", {{{0xc0490fdb}, {0x33bbbd2e, 0xbf800474}}});
}

// Beyond the limit the native class is the accurate one, but for the repair of infinities.
TEST(Trig, LongPathOfFloats) {
    std::vector<Row> rows = {{{0x461c4001}, {0xbe9cf359, 0xbf73acdd}}, {{0xc61c4001}, {0x3e9cf359, 0xbf73acdd}},
                             {{0x47c35000}, {0x3d126d55, 0xbf7fd61c}}, {{0x7149f2ca}, {0xbf4a89b0, 0xbf1c9222}},
                             {{0x6f79be45}, {0x3f800000, 0xb0ddeea9}},  // closest to a multiple of pi/2
                             {{0xef79be45}, {0xbf800000, 0xb0ddeea9}}, {{0x7f7fffff}, {0xbf0599b3, 0x3f5a5f96}},
                             {{0xff7fffff}, {0x3f0599b3, 0x3f5a5f96}}};
    auto accurate = rows, native = rows;
    accurate.insert(
        accurate.end(),
        {{{0x7f800000}, {any_nan, any_nan}}, {{0xff800000}, {any_nan, any_nan}}, {{0xffc01234}, {any_nan, any_nan}}});
    expect_sines_and_cosines("", accurate);
    native.insert(native.end(), {{{0x7f800000}, {0x3f7990fc, 0x3e6420b4}}, {{0xff800000}, {0xbf7990fc, 0x3e6420b4}}});
    expect_sines_and_cosines("_native", native);
}

void expect_beside(const std::string& name, const std::vector<harness::BesideRow>& rows) {
    harness::expect_beside(name, rows, {0x7fc00000, 0x461c4000}, {0x461c4001, 0xc61c4001, 0x7f800000, 0xff800000});
}

// One lane strictly beyond the limit, or infinite, sends all lanes to the long path; a NaN or the limit does not.
TEST(Trig, ANeighbourBeyondTheLimitChoosesThePath) {
    std::vector<harness::BesideRow> sines = {{0x461c3fc9, 0xbe8213c5, 0xbe8213c6},
                                             {0xc60fc5e6, 0xbe7d9ccf, 0xbe7d9ccd},
                                             {0x00000001, 0x00000001, 0x00000001},
                                             {0x0da24260, 0x0da24260, 0x0da24260}};
    for (std::string name : {"sinf", "sincosf", "sincosregf"}) expect_beside(name, sines);
    // The sign of zero: gone with the signed reduction, kept with that of the absolute value.
    expect_beside("sinf", {{0x80000000, 0x80000000, 0x00000000}});
    expect_beside("sinf_native", {{0x80000000, 0x80000000, 0x00000000}, {0x3f800000, 0x3f576e56, 0x3f576aa4}});
    expect_beside("sincosf", {{0x80000000, 0x80000000, 0x80000000}});
    expect_beside("sincosregf_native", {{0x80000000, 0x80000000, 0x80000000}});
    expect_beside("cosf", {{0x461c3fc9, 0xbf7799b6, 0xbf7799b7}, {0x80000000, 0x3f800000, 0x3f800000}});
    expect_beside("cosf_native", {{0x00000000, 0x3f800473, 0x3f800000}});
    // A NaN beside a lane beyond the limit: its payload is read as a significand at a turn step, without remainder.
    auto sine = harness::call(harness::family("sincosf_native"), 2, {{0xffc01234, 0x461c4001}});
    EXPECT_EQ(0xbd96a905, sine[0][0]);
    EXPECT_EQ(0xbf7f4e6d, sine[1][0]);
}

// On the long path every float comes out within 0.505 ulp, whatever its neighbours are.
TEST(Trig, LongPathOfFloatsIsNearlyCorrectlyRounded) {
    harness::Random random(5);
    const grid::Family& family = harness::family("sincosregf");
    double worst = 0;
    auto note = [&worst](uint64_t result, double exact) {
        double ulp = std::ldexp(1.0, std::max(std::ilogb(exact), -126) - 23);
        worst = std::max(worst, std::fabs(harness::as_float(result) - exact) / ulp);
    };
    for (int i = 0; i < 20000; ++i) {
        harness::Patterns x(16);
        for (uint64_t& lane : x) lane = random.next() % 0x7f800000 | (random.next() & 0x80000000);
        x[static_cast<size_t>(i % 16)] = 0x461c4001 + random.next() % (0x7f800000 - 0x461c4001);
        auto results = harness::call(family, 16, {x});
        for (size_t lane = 0; lane < 16; ++lane) {
            double value = harness::as_float(x[lane]);
            note(results[0][lane], std::sin(value));
            note(results[1][lane], std::cos(value));
        }
    }
    EXPECT_LE(worst, 0.505);
    EXPECT_GE(worst, 0.5);
}

}  // namespace
