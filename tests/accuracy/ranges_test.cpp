// Operands of a range, and the two ways to try every number of one.
#include "tools/ranges.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tools/accuracy_sweep.h"

namespace {

using accuracy::Interval;
using accuracy::Range;
using grid::Lane;

struct Tied {
    const char* what;
    Lane lane, second;
    Range range;
    long double (*tie)(long double x, long double y);  // what has to lie in the interval
    Interval interval;
};
constexpr Range base = {.family = "none", .name = "tied"};

Range with(Interval x, Interval y, std::optional<Interval> times, std::optional<Interval> plus,
           std::optional<Interval> over) {
    Range range = base;
    range.x = x, range.y = y;
    range.y_times_log_x = times, range.y_plus_log_x = plus, range.y_over_x = over;
    return range;
}
long double times_log(long double x, long double y) { return y * log2l(fabsl(x)); }
long double plus_log(long double x, long double y) { return y + log2l(fabsl(x)); }
long double over(long double x, long double y) { return y / x; }

TEST(Operands, KeepTheirTie) {
    const Tied rows[] = {
        {"powers near overflow, near 1",
         Lane::f32,
         Lane::f32,
         with({0.999, 1.001}, {}, Interval{127, 129}, {}, {}),
         times_log,
         {127, 129}},
        {"powers that are subnormal",
         Lane::f64,
         Lane::f64,
         with({0, 1e300}, {}, Interval{-1074, -1022}, {}, {}),
         times_log,
         {-1074, -1022}},
        {"integer powers",
         Lane::f64,
         Lane::i32,
         with({0.5, 2}, {}, Interval{-1074, 1024}, {}, {}),
         times_log,
         {-1074, 1024}},
        {"integer scales",
         Lane::f32,
         Lane::i32,
         with({0x1p-149, 0x1p127}, {}, {}, Interval{-150, -126}, {}),
         plus_log,
         {-150, -126}},
        {"quotients", Lane::f64, Lane::f64, with({1, 1e9}, {}, {}, {}, Interval{0.999, 1.001}), over, {0.999, 1.001}},
    };
    for (const Tied& row : rows) {
        SCOPED_TRACE(row.what);
        grid::Family family = {};
        family.name = "none";
        family.operands = {row.lane, row.second};
        accuracy::Operands operands(family, row.range);
        accuracy::Random random(1);
        uint64_t patterns[3];
        int inside = 0, count = 0;
        long double low = HUGE_VALL, high = -HUGE_VALL;
        for (int i = 0; i < 4000; ++i) {
            if (i % 4)
                operands.move(random, patterns);
            else
                operands.draw(random, patterns);
            long double x = reference::lane_value(row.lane, patterns[0]);
            long double y = reference::lane_value(row.second, patterns[1]);
            if (x == 0 || x == 1) continue;
            long double slack = row.second == Lane::i32 ? fabsl(log2l(fabsl(x))) / 2 + 1 : 1e-3L;
            long double tie = row.tie(x, y);
            ++count;
            inside += tie >= row.interval.low - slack && tie <= row.interval.high + slack;
            low = std::min(low, tie), high = std::max(high, tie);
        }
        EXPECT_EQ(inside, count);
        EXPECT_GT(count, 3000);
        EXPECT_LT(low, row.interval.low + 0.1 * (row.interval.high - row.interval.low)) << "to both ends";
        EXPECT_GT(high, row.interval.high - 0.1 * (row.interval.high - row.interval.low)) << "to both ends";
    }
}

TEST(Ranges, OpenIntegersReachTheLowest) {
    accuracy::Span all(Lane::i32, {});
    EXPECT_EQ(accuracy::from_order(Lane::i32, all.first), 0x80000000u);
    EXPECT_EQ(accuracy::from_order(Lane::i32, all.last), 0x7fffffffu);
    accuracy::Span some(Lane::i32, {-10, 10});
    EXPECT_EQ(some.count(), 21u);
}

// What the interpolants rule out is never the worst: with them and number by number the same is found. The ranges
// reach over a threshold, a pole's neighbourhood, a root, and numbers too far apart for any polynomial.
TEST(ExhaustiveSweep, FindsWithInterpolantsWhatItFindsWithout) {
    constexpr struct {
        const char* family;
        double low, high;
    } rows[] = {{"expf", 86.9, 88.8},           {"logf", 0.99, 1.01},           {"logf_native", 0.49, 0.51},
                {"sinf", 3.14, 3.15},           {"sinf_native", -9e3, -8999},   {"sincosf", 100, 101},
                {"rsqrtf", 0x1p-127, 0x1p-125}, {"log10f", 0x1p-149, 0x1p-140}, {"fractf", 3, 3.1}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.family);
        const grid::Family& family = *grid::find(row.family);
        Range range = {.family = family.name, .name = "part", .x = {row.low, row.high}};
        accuracy::Options options, one_by_one;
        one_by_one.watch = [](double, double) {};  // whoever wants to see each error has each number judged
        accuracy::Finding quick = accuracy::sweep_exhaustive(family, range, options);
        accuracy::Finding slow = accuracy::sweep_exhaustive(family, range, one_by_one);
        EXPECT_EQ(quick.tried, slow.tried);
        EXPECT_EQ(quick.error, slow.error);
        EXPECT_EQ(quick.operand(0), slow.operand(0));
        EXPECT_EQ(quick.value, slow.value);
    }
}

}  // namespace
