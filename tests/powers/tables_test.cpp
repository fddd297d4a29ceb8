// The tables of the powers: rows that are known, what the methods rely on, and every row in use.
#include <algorithm>
#include <cmath>

#include "kernels/powers/power_double_data.h"
#include "kernels/powers/power_float_data.h"
#include "kernels/powers/power_rare_data.h"
#include "tests/harness/lanes.h"
#include "tests/harness/operands.h"

namespace {

using harness::as_double;
using harness::as_float;
using harness::pattern;
using harness::Patterns;

const zorv::PowerFloatRow rows_f[] = {
#include "kernels/powers/tables/power_rows_f.inc"
};
const zorv::HeadTail<double> exp2_d[] = {
#include "kernels/powers/tables/power_exp2_d.inc"
};
const struct {
    double c[1025];
    zorv::HeadTail<double> logs[1025];
} rows_d = {
#include "kernels/powers/tables/power_rows_d.inc"
};
const struct {
    double logs[513];
    double powers[2048];
} native = {
#include "kernels/powers/tables/power_native_d.inc"
};
const struct {
    zorv::StageRow<float> first[9], second[9], third[17];
    zorv::HeadTail<float> powers[128];
} stages_f = {
#include "kernels/powers/tables/power_stages_f.inc"
};
const struct {
    zorv::StageRow<double> first[33], second[33], third[129];
} stages_d = {
#include "kernels/powers/tables/power_stages_d.inc"
};

template <class Float>
std::vector<uint64_t> patterns(std::initializer_list<Float> numbers) {
    std::vector<uint64_t> list;
    for (Float number : numbers) list.push_back(pattern(number));
    return list;
}
template <class Float>
std::vector<uint64_t> patterns(const zorv::StageRow<Float>& row) {
    return patterns({row.r, row.log_head, row.log_tail});
}
using Bits = std::vector<uint64_t>;

TEST(PowerTables, KnownRows) {
    auto row_f = [](int i) { return patterns({rows_f[i].log_head, rows_f[i].log_tail, rows_f[i].c}); };
    EXPECT_EQ((Bits{0, 0, 0x3f800000}), row_f(0));
    EXPECT_EQ((Bits{0x3c810000, 0x35acb127, 0x3f7c0000}), row_f(1));
    EXPECT_EQ((Bits{0x3d33c000, 0x38129e5b, 0x3f750000}), row_f(3));
    EXPECT_EQ((Bits{0x3f317000, 0x3805fdf4, 0x3f000000}), row_f(64));

    EXPECT_EQ((Bits{0x3f640000, 0x3e2b1e00, 0x36614ffd}), patterns(stages_f.first[1]));
    EXPECT_EQ((Bits{0x3f000000, 0, 0}), patterns(stages_f.first[8]));
    EXPECT_EQ((Bits{0x3f780000, 0x3d3b9800, 0x3694c9d9}), patterns(stages_f.second[1]));
    EXPECT_EQ((Bits{0x3fb7c000, 0x3bc08000, 0x3601b0ea}), patterns(stages_f.third[1]));
    EXPECT_EQ((Bits{0x3f80b1ee, 0xb3b02666}), patterns({stages_f.powers[1].head, stages_f.powers[1].tail}));

    EXPECT_EQ((Bits{0x3ff7154740000000, 0x3ff70f8340000000, 0x3ff709c240000000, 0x3fe7154740000000}),
              patterns({rows_d.c[0], rows_d.c[1], rows_d.c[2], rows_d.c[1024]}));
    auto log_d = [](int i) { return patterns({rows_d.logs[i].head, rows_d.logs[i].tail}); };
    EXPECT_EQ((Bits{0, 0}), log_d(0));
    EXPECT_EQ((Bits{0x3f5712e100000000, 0x3e0ee8a22f7c5987}), log_d(1));
    EXPECT_EQ((Bits{0x3f670fc100000000, 0x3e17e16043fd7529}), log_d(2));
    EXPECT_EQ((Bits{0, 0}), log_d(1024));
    EXPECT_EQ((Bits{0x3ff0163da9fb3335, 0x3c9b61299ab8cdb7}), patterns({exp2_d[1].head, exp2_d[1].tail}));
    EXPECT_EQ((Bits{0x3feffffffc27dd9e}), patterns({native.powers[0]}));
    EXPECT_EQ((Bits{0x8000000000000000, 0xbf5ff802a9ab10e6, 0}),
              patterns({native.logs[0], native.logs[1], native.logs[512]}));

    EXPECT_EQ((Bits{0x3fef07c000000000, 0x3fa6bb01a01f0000, 0x3d3c995e7439db71}), patterns(stages_d.first[1]));
    EXPECT_EQ((Bits{0x3feff00000000000, 0x3f671b0ea4280000, 0x3d497f689876ef47}), patterns(stages_d.second[1]));
    EXPECT_EQ((Bits{0x3ff7151900000000, 0x3f07201750000000, 0x3d099925641f4f36}), patterns(stages_d.third[1]));
    EXPECT_EQ((Bits{0x3ff7154740000000, 0, 0}), patterns(stages_d.third[128]));
    EXPECT_EQ((std::vector<double>{0.941162109375, 0.914276123046875, 0.5079345703125}),
              (std::vector<double>{stages_d.first[2].r, stages_d.first[3].r, stages_d.first[31].r}));
    EXPECT_EQ((std::vector<double>{0.973388671875, 1.01690673828125}),
              (std::vector<double>{stages_d.second[14].r, stages_d.second[15].r}));
}

// The products of the reduction are exact because the multipliers are short, and the sums of the heads because those
// are; what a head lacks is in its tail.
TEST(PowerTables, MultipliersAreShortAndTheirLogarithmsComplete) {
    auto is_multiple = [](double x, int fraction_bits) {
        return std::ldexp(x, fraction_bits) == std::rint(std::ldexp(x, fraction_bits));
    };
    auto minus_log2 = [](double r, double unit) { return log2l(static_cast<long double>(unit) / r); };
    auto distance = [](long double x, long double y) { return static_cast<double>(fabsl(x - y)); };
    auto sum = [](auto head, auto tail) { return static_cast<long double>(head) + static_cast<long double>(tail); };

    for (int i = 0; i <= 1024; ++i) {
        EXPECT_EQ(0u, pattern(rows_d.c[i]) & 0x3fffffff) << i;
        EXPECT_EQ(0u, pattern(rows_d.logs[i].head) & 0xffffffff) << i;
        EXPECT_LE(distance(minus_log2(rows_d.c[i], rows_d.c[0]) - (i >= 512 ? 1 : 0),
                           sum(rows_d.logs[i].head, rows_d.logs[i].tail)),
                  0x1p-62)
            << i;
    }
    for (int i = 0; i <= 64; ++i)
        EXPECT_LE(distance(-logl(rows_f[i].c), sum(rows_f[i].log_head, rows_f[i].log_tail)), 0x1p-38) << i;

    auto expect_stage = [&](const auto& stage, int fraction_bits, int one_more_from, double within) {
        int i = 0;
        for (const auto& row : stage) {
            EXPECT_TRUE(is_multiple(row.log_head, fraction_bits)) << i;
            EXPECT_LE(
                distance(minus_log2(row.r, stage[0].r) - (i >= one_more_from ? 1 : 0), sum(row.log_head, row.log_tail)),
                within)
                << i;
            ++i;
        }
    };
    constexpr int never = 1000;
    expect_stage(stages_f.first, 17, 4, 0x1p-41);
    expect_stage(stages_f.second, 17, never, 0x1p-41);
    expect_stage(stages_f.third, 17, never, 0x1p-41);
    expect_stage(stages_d.first, 42, 16, 0x1p-62);
    expect_stage(stages_d.second, 42, never, 0x1p-62);
    expect_stage(stages_d.third, 42, never, 0x1p-62);
    for (const auto& first : stages_d.first)
        for (const auto& second : stages_d.second)
            for (int i : {1, 37, 61, 99, 128}) {
                long double exact = static_cast<long double>(first.r) * second.r * stages_d.third[i].r;
                EXPECT_EQ(exact, static_cast<long double>(static_cast<double>(exact)));
            }
    for (int j = 0; j < 128; ++j) {
        EXPECT_LE(distance(exp2l(j / 128.0L), sum(exp2_d[j].head, exp2_d[j].tail)), 0x1p-62) << j;
        EXPECT_LE(distance(exp2l(j / 128.0L), sum(stages_f.powers[j].head, stages_f.powers[j].tail)), 0x1p-46) << j;
        EXPECT_TRUE(is_multiple(stages_f.powers[j].head, 22)) << j;
    }
}

// ---- Every row in use. ---------------------------------------------------------------------------------------

struct Pair {
    double x, y;
};

// The largest error in ulp, against the 64 bits of the x87 unit.
double worst_error(const std::string& name, const std::vector<Pair>& pairs,
                   long double (*exact)(long double, long double)) {
    const grid::Family& family = harness::family(name);
    auto lane_pattern = [](grid::Lane lane, double x) {
        return lane == grid::Lane::f32   ? pattern(static_cast<float>(x))
               : lane == grid::Lane::f64 ? pattern(x)
                                         : pattern(static_cast<int32_t>(x));
    };
    auto number = [&](uint64_t bits) { return family.is_single ? double{as_float(bits)} : as_double(bits); };
    double worst = 0;
    for (size_t first = 0; first + 16 <= pairs.size(); first += 16) {
        Patterns x, y;
        for (size_t i = first; i < first + 16; ++i) {
            x.push_back(lane_pattern(family.operands[0], pairs[i].x));
            y.push_back(lane_pattern(family.operands[1], pairs[i].y));
        }
        Patterns results = harness::call(family, 16, {x, y})[0];
        for (size_t i = 0; i < 16; ++i) {
            double second =
                family.operands[1] == grid::Lane::i32 ? static_cast<double>(pairs[first + i].y) : number(y[i]);
            long double expected = exact(number(x[i]), second);
            int exponent = std::max(std::ilogb(expected), family.is_single ? -126 : -1022);
            long double ulp = std::ldexp(1.0L, exponent - (family.is_single ? 23 : 52));
            worst = std::max(worst, static_cast<double>(std::fabs(number(results[i]) - expected) / ulp));
        }
    }
    return worst;
}

// x in every row, in three places of each, y so that the logarithm of the result is about `size`.
std::vector<Pair> in_every_row(int rows, double size) {
    std::vector<Pair> pairs;
    for (int i = 0; i <= rows; ++i)
        for (double within : {-0.45, 0.01, 0.45, 0.2}) {
            double x = std::ldexp(1 + std::clamp(i + within, 0.0, rows - 0.01) / rows, i % 17 - 8);
            double log = std::log2(x);
            pairs.push_back({x, (i % 2 ? size : -size) / (std::fabs(log) < 1e-3 ? 1e-3 : log)});
        }
    return pairs;
}

TEST(PowerTables, EveryRowOfTheMainPaths) {
    auto floats = in_every_row(64, 90);
    EXPECT_LE(worst_error("powf", floats, powl), harness::family("powf").bound);
    auto doubles = in_every_row(1024, 1000);
    EXPECT_LE(worst_error("pow", doubles, powl), harness::family("pow").bound);
    // The same, and 2^(j/128) for every j, with the tail that the roots add.
    std::vector<Pair> roots;
    for (const Pair& pair : doubles) roots.push_back({pair.x, 3.0 + static_cast<int>(pair.x * 100) % 50});
    for (int k = -1022; k < 1024; ++k) roots.push_back({std::ldexp(1.0, k), 128});
    EXPECT_LE(worst_error("rootn", roots, [](long double x, long double n) { return powl(x, 1 / n); }),
              harness::family("rootn").bound);
}

TEST(PowerTables, EveryRowOfTheNativePaths) {
    std::vector<Pair> logs, powers;
    for (int c = 512; c <= 1024; ++c)
        for (double within : {-0.3, 0.3}) {
            double reciprocal = std::clamp(c + within, 512.0001, 1023.9999);
            logs.push_back({std::ldexp(1 / reciprocal, 10 + c % 9), 1.7});
        }
    for (int j = 0; j < 2048; ++j)
        for (double within : {0.05, 0.95}) powers.push_back({2, j % 5 - 2 + (j + within) / 2048});
    constexpr double ulps = 0x1p53 * 7.3e-9;  // the error of the exponential's one degree
    EXPECT_LE(worst_error("pow_native", logs, powl), ulps);
    EXPECT_LE(worst_error("pow_native", powers, powl), ulps);
}

// Subnormal x are rare whatever y is.
TEST(PowerTables, EveryRowOfTheRareLanes) {
    harness::Random random(17);
    std::vector<Pair> floats, doubles;
    for (uint64_t i = 0; i < 1 << 14; ++i) {
        double y = static_cast<double>(static_cast<int64_t>(random.next()) % 1000) / 1003;
        floats.push_back({double{as_float(1u << 22 | i << 8 | (random.next() & 255))}, y});
        doubles.push_back({as_double(1ull << 51 | i << 37 | random.next() >> 27), y});
    }
    EXPECT_LE(worst_error("powf", floats, powl), 1.2);
    EXPECT_LE(worst_error("pow", doubles, powl), 0.51);
}

}  // namespace
