// The tables of the double families, and of expm1 and log1p: known rows by their bits, and every row by what it does. A
// wrong row, column or lane index shows as an error of many ulp against the C library in extended precision.
#include <cmath>

#include "tests/harness/lanes.h"

namespace {

using harness::as_double;
using harness::as_float;
using harness::pattern;
using harness::Patterns;

// ---- Rows. -------------------------------------------------------------------------------------------------

constexpr double exp_rare_powers[64][2] = {
#include "kernels/explog/tables/exp_rare_powers.inc"
};
struct {
    uint32_t field;
    float rest;
} constexpr expm1f_powers[64] = {
#include "kernels/explog/tables/expm1f_powers.inc"
};
struct {
    uint64_t field;
    double rest;
} constexpr expm1_powers[128] = {
#include "kernels/explog/tables/expm1_powers.inc"
};
constexpr uint32_t expm1f_native_powers[32] = {
#include "kernels/explog/tables/expm1f_native_powers.inc"
};
constexpr uint64_t expm1_native_powers[128] = {
#include "kernels/explog/tables/expm1_native_powers.inc"
};
constexpr double log_rows[513] = {
#include "kernels/explog/tables/log_rows.inc"
};
constexpr float log1pf_rows[129][2] = {
#include "kernels/explog/tables/log1pf_rows.inc"
};
constexpr double log1p_rows[513][2] = {
#include "kernels/explog/tables/log1p_rows.inc"
};
constexpr double log_rare_rows[65][3] = {
#include "kernels/explog/tables/log_rare.inc"
};
constexpr double log10_rare_rows[65][3] = {
#include "kernels/explog/tables/log10_rare.inc"
};
constexpr double log2_rare_rows[256][3] = {
#include "kernels/explog/tables/log2_rare.inc"
};

template <class Float, size_t columns>
Patterns patterns(const Float (&row)[columns]) {
    Patterns list;
    for (Float column : row) list.push_back(pattern(column));
    return list;
}

TEST(ExplogDoubleTables, KnownRowsOfPowers) {
    EXPECT_EQ(patterns(exp_rare_powers[0]), (Patterns{0x3ff0000000000000, 0}));
    EXPECT_EQ(patterns(exp_rare_powers[1]), (Patterns{0x3ff02c9a3e778061, 0xbc7160139cd8dc5d}));
    EXPECT_EQ(patterns(exp_rare_powers[2]), (Patterns{0x3ff059b0d3158574, 0x3c8cd2523567f613}));
    EXPECT_EQ(expm1f_powers[0].field, 0u);
    EXPECT_EQ(expm1f_powers[1].field, 0x00016000u);
    EXPECT_EQ(pattern(expm1f_powers[1].rest), 0x391a3e78u);
    EXPECT_EQ(expm1f_powers[2].field, 0x0002d000u);
    EXPECT_EQ(pattern(expm1f_powers[2].rest), 0xb89e59d5u);
    EXPECT_EQ(expm1_powers[1].field, 0x0000163da8000000u);
    EXPECT_EQ(pattern(expm1_powers[1].rest), 0x3e3fb33356d84a67u);
    EXPECT_EQ(expm1_powers[2].field, 0x00002c9a40000000u);
    EXPECT_EQ(pattern(expm1_powers[2].rest), 0xbe3887f9f1190835u);
    EXPECT_EQ(expm1f_native_powers[1], 0x0002cd87u);
    EXPECT_EQ(expm1f_native_powers[31], 0x007a83b3u);
    EXPECT_EQ(expm1_native_powers[1], 0x0000163da9fb3335u);
}

TEST(ExplogDoubleTables, KnownRowsOfLogarithms) {
    EXPECT_EQ(pattern(log_rows[0]), 0x8000000000000000u);
    EXPECT_EQ(pattern(log_rows[1]), 0xbf5ff802a9ab10e6u);
    EXPECT_EQ(pattern(log_rows[512]), 0u);
    EXPECT_EQ(patterns(log1pf_rows[0]), (Patterns{0xc2aeac38, 0xb93cbf08}));
    EXPECT_EQ(patterns(log1pf_rows[1]), (Patterns{0xc2aeb034, 0xb93ce972}));
    EXPECT_EQ(patterns(log1pf_rows[128]), (Patterns{0xc2b00f1c, 0xb93e3e84}));
    EXPECT_EQ(patterns(log1p_rows[0]), (Patterns{0xc086232bdd7a8300, 0xbe1ce91eef3fb100}));
    EXPECT_EQ(patterns(log1p_rows[1]), (Patterns{0xc086232fdc7ad828, 0xbe1cefcffda73b6a}));
    EXPECT_EQ(patterns(log1p_rows[512]), (Patterns{0xc08628b76e3a4180, 0xbe1cf05cd5eed880}));
    EXPECT_EQ(patterns(log_rare_rows[1]), (Patterns{0x3fef800000000000, 0x3f90205658a00000, 0xbd894f716c1b8bdf}));
    EXPECT_EQ(log_rare_rows[2][0], as_double(0x3fef080000000000));
    EXPECT_EQ(patterns(log_rare_rows[64]), (Patterns{0x3fe0000000000000, 0x3fe62e42fefa3800, 0x3d2ef35793c76730}));
    EXPECT_EQ(patterns(log10_rare_rows[1]), (Patterns{0x3fdb510000000000, 0x3f7c03a80b000000, 0xbd7a1fac7d2ae08e}));
    EXPECT_EQ(patterns(log10_rare_rows[64]), (Patterns{0x3fcbc00000000000, 0x3fd34413509f8000, 0xbd380433b83b532a}));
    EXPECT_EQ(patterns(log2_rare_rows[0]), (Patterns{0x3feff00000000000, 0x3e1485cbfb44c3b7, 0x3f671b0e00000000}));
    EXPECT_EQ(patterns(log2_rare_rows[1]), (Patterns{0x3fefd00000000000, 0x3e31d5d906028ac0, 0x3f815cfe00000000}));
    EXPECT_EQ(log2_rare_rows[2][0], static_cast<double>(as_float(0x3f7d8000)));
    EXPECT_EQ(log2_rare_rows[255][0], static_cast<double>(as_float(0x3f002000)));
}

// ---- Every row at work. ------------------------------------------------------------------------------------

using Exact = long double (*)(long double);

// The error of each lane in ulp of the exact value.
void expect_within(const char* name, double bound, const std::vector<double>& operands, Exact exact) {
    const grid::Family& family = harness::family(name);
    auto value = [&](uint64_t bits) { return family.is_single ? as_float(bits) : as_double(bits); };
    for (size_t first = 0; first + 16 <= operands.size(); first += 16) {
        Patterns lanes;
        for (size_t lane = 0; lane < 16; ++lane)
            lanes.push_back(family.is_single ? pattern(static_cast<float>(operands[first + lane]))
                                             : pattern(operands[first + lane]));
        Patterns results = harness::call(family, 16, {lanes})[0];
        for (size_t lane = 0; lane < 16; ++lane) {
            long double expected = exact(value(lanes[lane]));
            int lowest = family.is_single ? -149 : -1074, digits = family.is_single ? 23 : 52;
            long double ulp = std::ldexp(1.0L, std::max(std::ilogb(expected), lowest + digits) - digits);
            EXPECT_LE(std::fabs(value(results[lane]) - expected), bound * ulp) << name << " of " << value(lanes[lane]);
        }
    }
}

// The middle and the ends of each step of 2^(1/steps), over two powers of two about `middle`.
std::vector<double> in_steps(double log2_of_base, int steps, double middle) {
    std::vector<double> operands;
    for (int k = -steps; k < steps; ++k)
        for (double within : {-0.4, 0.0, 0.4, 0.2}) operands.push_back(middle + (k + within) / (log2_of_base * steps));
    return operands;
}

TEST(ExplogDoubleTables, PowersAtWork) {
    const double log2_e = 1 / std::log(2.0), log2_10 = std::log2(10.0);
    Exact exp10 = [](long double x) { return std::pow(10.0L, x); };
    auto bound = [](const char* name) { return harness::family(name).bound; };
    expect_within("exp", bound("exp"), in_steps(log2_e, 1024, 0), std::exp);
    expect_within("exp", 0.52, in_steps(log2_e, 64, -730), std::exp);
    expect_within("exp_native", bound("exp_native"), in_steps(log2_e, 64, 0), std::exp);
    expect_within("exp2", bound("exp2"), in_steps(1, 128, 0), std::exp2);
    expect_within("exp2", 0.77, in_steps(1, 64, -1030), std::exp2);
    expect_within("exp10", bound("exp10"), in_steps(log2_10, 128, 0), exp10);
    expect_within("exp10", 0.52, in_steps(log2_10, 64, -315), exp10);
    expect_within("expm1", bound("expm1"), in_steps(log2_e, 128, 0), std::expm1);
    expect_within("expm1_native", bound("expm1_native"), in_steps(log2_e, 128, 0), std::expm1);
    expect_within("expm1f", bound("expm1f"), in_steps(log2_e, 64, 0), std::expm1);
    expect_within("expm1f_native", bound("expm1f_native"), in_steps(log2_e, 32, 0), std::expm1);
}

// Four mantissas for each step of `steps` in [1, 2), on either side of its middle.
std::vector<double> in_mantissas(int steps, double scale) {
    std::vector<double> operands;
    for (int i = 0; i < steps; ++i)
        for (double within : {0.1, 0.4, 0.6, 0.9}) operands.push_back((1 + (i + within) / steps) * scale);
    return operands;
}

TEST(ExplogDoubleTables, LogarithmsAtWork) {
    auto expect = [](const char* family, const char* native, double subnormal_bound, Exact exact) {
        for (double scale : {1.0, 0.5, 0x1p300}) {
            expect_within(family, harness::family(family).bound, in_mantissas(1024, scale), exact);
            expect_within(native, harness::family(native).bound, in_mantissas(1024, scale), exact);
        }
        expect_within(family, subnormal_bound, in_mantissas(512, 0x1p-1030), exact);
    };
    expect("log", "log_native", 0.501, std::log);
    expect("log2", "log2_native", 0.501, std::log2);
    expect("log10", "log10_native", 0.501, std::log10);
    for (double scale : {1.0, 0.5, 0x1p100})
        for (const char* family : {"log1p", "log1pf", "log1p_native"}) {
            std::vector<double> operands = in_mantissas(1024, scale);
            for (double& operand : operands) operand -= 1;
            expect_within(family, harness::family(family).bound, operands, std::log1p);
        }
}

}  // namespace
