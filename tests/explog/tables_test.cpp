// Every row of the float tables, against the C library in double precision: a wrong row, column or lane index shows as
// an error of many ulp.
#include <cmath>

#include "tests/harness/lanes.h"

namespace {

using harness::as_float;
using harness::pattern;
using harness::Patterns;

// The error of each lane in ulp of the exact value.
void expect_within(const char* name, double bound, const std::vector<float>& operands, double (*exact)(double)) {
    const grid::Family& family = harness::family(name);
    for (size_t first = 0; first + 16 <= operands.size(); first += 16) {
        Patterns lanes;
        for (size_t lane = 0; lane < 16; ++lane) lanes.push_back(pattern(operands[first + lane]));
        Patterns results = harness::call(family, 16, {lanes})[0];
        for (size_t lane = 0; lane < 16; ++lane) {
            double expected = exact(static_cast<double>(operands[first + lane]));
            double ulp = std::ldexp(1.0, std::max(std::ilogb(expected) - 23, -149));
            EXPECT_LE(std::fabs(static_cast<double>(as_float(results[lane])) - expected), bound * ulp)
                << name << " of " << operands[first + lane];
        }
    }
}

TEST(ExplogTables, PowersOfExp10f) {
    std::vector<float> operands;  // the middle and the ends of each step of log10(2)/512
    for (int k = -1024; k < 1024; ++k)
        for (double within : {-0.4, 0.0, 0.4, 0.2})
            operands.push_back(static_cast<float>((k + within) * std::log10(2.0) / 512));
    expect_within("exp10f", harness::family("exp10f").bound, operands, [](double x) { return std::pow(10.0, x); });
}

TEST(ExplogTables, RowsOfTheSubnormalLogarithms) {
    std::vector<float> operands;  // four mantissas in each 64th of a subnormal binade
    for (uint32_t mantissa = 1u << 20; mantissa < 1u << 21; mantissa += 1u << 12)
        operands.push_back(as_float(mantissa + 5));
    expect_within("logf", 1.05, operands, std::log);
    expect_within("log2f", 0.56, operands, std::log2);
    expect_within("log10f", 0.56, operands, std::log10);
}

}  // namespace
