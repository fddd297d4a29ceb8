// The check that stands before every timing finds what is wrong, and nothing else.
#include "bench/answers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "bench/operands.h"

namespace {

constexpr double wrong = std::numeric_limits<double>::infinity();

// The error found where every lane has this operand and this result, and lane 3 another one.
template <class Operand, class Result>
double error(const char* name, Operand operand, Result result, Result in_lane_3, int width = 4) {
    const grid::Family* family = grid::find(name);
    EXPECT_NE(family, nullptr) << name;
    std::vector<Operand> operands(bench::elements, operand);
    std::vector<Result> results(bench::elements, result);
    results[3] = in_lane_3;
    bench::Arrays arrays = {{operands.data()}, {results.data()}};
    return bench::Answers(*family, arrays).largest_error(arrays, width);
}

TEST(Answers, CountUnitsInTheLastPlace) {
    EXPECT_EQ(error("sqrtf", 4.0f, 2.0f, 2.0f), 0);
    EXPECT_EQ(error("sqrtf", 5.0625f, 2.25f, 0x1.200002p+1f), 1);
    EXPECT_EQ(error("fabsf", -1.0f, 1.0f, 1.0f), 0);
    EXPECT_EQ(error("fabsf", -1.0f, 1.0f, -1.0f), 0x1p25) << "the smaller gap at a power of two";
}

TEST(Answers, SpecialValuesAreRightOrWrong) {
    EXPECT_EQ(error<float>("sqrtf", -1.0f, NAN, NAN), 0);
    EXPECT_EQ(error<float>("sqrtf", -1.0f, NAN, 0.0f), wrong);
    EXPECT_EQ(error<float>("sqrtf", 4.0f, 2.0f, NAN), wrong);
    EXPECT_EQ(error<float>("expf", 100.0f, INFINITY, INFINITY), 0);
    EXPECT_GT(error<float>("expf", 100.0f, INFINITY, 0x1.fffffep+127f), 1e6);
}

TEST(Answers, TheIdleLaneOfWidth3DoesNotCount) {
    EXPECT_EQ(error("sqrtf", 4.0f, 2.0f, 7.0f, 3), 0);
    EXPECT_GT(error("sqrtf", 4.0f, 2.0f, 7.0f, 4), 1e6);
}

TEST(Answers, ConversionsRoundAsTheirTagSays) {
    struct {
        const char* name;
        int32_t of_minus_1_5;
    } rows[] = {
        {"cvtfptoi32rtnsatf", -2}, {"cvtfptoi32rtzsatf", -1}, {"cvtfptoi32upsatf", -1}, {"cvtfptoi32downsatf", -2}};
    for (auto [name, expected] : rows) {
        EXPECT_EQ(error(name, -1.5f, expected, expected), 0) << name;
        EXPECT_EQ(error(name, -1.5f, expected, expected + 1), wrong) << name;
    }
    EXPECT_EQ(error("cvtu64tofpupf", ~uint64_t{0} - 5, 0x1p+64f, 0x1p+64f), 0);
    EXPECT_EQ(error("cvtu64tofpupf", ~uint64_t{0} - 5, 0x1p+64f, 0x1.fffffep+63f), wrong);
}

// Second results, and results that have no long double function behind them.
TEST(Answers, HoldEveryResult) {
    std::vector<double> x(bench::elements, 2.75), fraction(bench::elements, 0.75), integral(bench::elements, 2);
    const grid::Family& modf = *grid::find("modf");
    bench::Arrays arrays = {{x.data()}, {fraction.data(), integral.data()}};
    EXPECT_EQ(bench::Answers(modf, arrays).largest_error(arrays, 4), 0);
    integral[5] = 3;
    EXPECT_GT(bench::Answers(modf, arrays).largest_error(arrays, 4), 1e6);

    std::vector<double> y(bench::elements, 0x1p60), sum(bench::elements, 0x1.6p61 + 1);
    const grid::Family& fma = *grid::find("fma");
    std::vector<double> one(bench::elements, 1);
    bench::Arrays operands = {{x.data(), y.data(), one.data()}, {sum.data()}};
    EXPECT_LE(bench::Answers(fma, operands).largest_error(operands, 4), 0.5);
    sum[0] = std::nextafter(sum[0], 0);
    EXPECT_GT(bench::Answers(fma, operands).largest_error(operands, 4), 0.5);
}

// Families whose operands no row names are timed where their first range lies.
TEST(Operands, OfARangeLieInIt) {
    for (const grid::Family& family : grid::families()) {
        bench::Workload workload(family, bench::Set::in_range);
        if (family.operands[0] == grid::Lane::f32)
            for (size_t i = 0; i < bench::elements; ++i)
                ASSERT_TRUE(std::isfinite(workload.arrays().operand<float>(0)[i])) << family.name;
    }
}

}  // namespace
