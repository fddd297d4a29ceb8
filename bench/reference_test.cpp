// The check that stands before every timing finds what is wrong, and nothing else.
#include "bench/reference.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

namespace {

constexpr double wrong = std::numeric_limits<double>::infinity();

grid::Family family(const std::string& name, const std::string& base, grid::Lane operand, grid::Lane result) {
    grid::Family family = {};
    family.name = name;
    family.base = base;
    family.operands = {operand};
    family.results = {result};
    return family;
}

// The error found where every lane has this operand and this result, and the last lane of vector 0 another one.
template <class Operand, class Result>
double error(const grid::Family& family, Operand operand, Result result, Result in_lane_3, int width = 4) {
    std::vector<Operand> operands(bench::elements, operand);
    std::vector<Result> results(bench::elements, result);
    results[3] = in_lane_3;
    return bench::largest_error(family, width, {{operands.data()}, {results.data()}});
}

const grid::Family sqrtf = family("sqrtf", "sqrt", grid::Lane::f32, grid::Lane::f32);

TEST(Reference, CountsUnitsInTheLastPlace) {
    EXPECT_EQ(error(sqrtf, 4.0f, 2.0f, 2.0f), 0);
    EXPECT_EQ(error(sqrtf, 4.0f, 2.0f, 0x1.000002p+1f), 1);
    EXPECT_EQ(error(sqrtf, 4.0f, 2.0f, 0x1.fffffep+0f), 0.5) << "units are those of the exact result";
    auto exp = family("exp", "exp", grid::Lane::f64, grid::Lane::f64);
    EXPECT_NEAR(error(exp, 1.0, M_E, M_E + 0x1p-51), 0.6745, 1e-3);
    EXPECT_NEAR(error(exp, -745.0, 0x1p-1074, 0x2p-1074), 1.42875, 1e-4) << "e^-745 is 0.57125 of a subnormal's unit";
}

TEST(Reference, SpecialValuesAreRightOrWrong) {
    EXPECT_EQ(error(sqrtf, -1.0f, NAN, NAN), 0);
    EXPECT_EQ(error(sqrtf, -1.0f, NAN, 0.0f), wrong);
    EXPECT_EQ(error(sqrtf, 4.0f, 2.0f, static_cast<float>(NAN)), wrong);
    auto expf = family("expf", "exp", grid::Lane::f32, grid::Lane::f32);
    EXPECT_EQ(error<float>(expf, 100.0f, INFINITY, INFINITY), 0);
    EXPECT_EQ(error<float>(expf, 100.0f, INFINITY, 0x1.fffffep+127f), wrong);
}

TEST(Reference, TheIdleLaneOfWidth3DoesNotCount) {
    EXPECT_EQ(error(sqrtf, 4.0f, 2.0f, 7.0f, 3), 0);
    EXPECT_GT(error(sqrtf, 4.0f, 2.0f, 7.0f, 4), 1e6);
}

TEST(Reference, ConversionsRoundAsTheirTagSays) {
    struct {
        const char* base;
        int32_t of_minus_1_5;
    } rows[] = {{"cvtfptoi32rtnsat", -2}, {"cvtfptoi32rtzsat", -1}, {"cvtfptoi32upsat", -1}, {"cvtfptoi32downsat", -2}};
    for (auto [base, expected] : rows) {
        auto conversion = family(base, base, grid::Lane::f32, grid::Lane::i32);
        EXPECT_EQ(error(conversion, -1.5f, expected, expected), 0) << base;
        EXPECT_EQ(error(conversion, -1.5f, expected, expected + 1), wrong) << base;
    }
    auto up = family("cvtu64tofpupf", "cvtu64tofpup", grid::Lane::u64, grid::Lane::f32);
    EXPECT_EQ(error(up, ~uint64_t{0} - 5, 0x1p+64f, 0x1p+64f), 0);
    EXPECT_GE(error(up, ~uint64_t{0} - 5, 0x1p+64f, 0x1.fffffep+63f), 0.5);
}

TEST(Reference, WithoutOneThereIsNoError) {
    EXPECT_TRUE(std::isnan(error(family("newf", "new", grid::Lane::f32, grid::Lane::f32), 1.0f, 1.0f, 1.0f)));
}

}  // namespace
