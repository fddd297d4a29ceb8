// Tables of the hyperbolic functions: the rows that are fixed by their bits, and every row through the results that
// come of it: a wrong row, column or lane index shows as an error of many ulp.
#include <cmath>

#include "tests/harness/lanes.h"

namespace {

using harness::as_double;
using harness::as_float;
using harness::pattern;
using harness::Patterns;

const double tanhf_rows[134][4] = {
#include "kernels/hyperbolic/tables/tanhf_rows.inc"
};
struct TanhRow {
    double tail, c[11], d, one, zeros[2];
};
const TanhRow tanh_rows[60] = {
#include "kernels/hyperbolic/tables/tanh_rows.inc"
};
const double area_log[513] = {
#include "kernels/explog/tables/log_rows.inc"
};

TEST(HyperbolicTables, FixedRows) {
    const struct {
        int row;
        uint64_t c[4];
    } fixed[] = {{0, {0, 0x3ff00000022c70eb, 0xbed00e878cffa194, 0xbfd551766d0607a9}},
                 {1, {0xbe53d60ce3e4c297, 0x3ff000024177cf5c, 0xbf1758bc94a51a25, 0xbfd53eae67e0d4f0}},
                 {132, {0x3fefffeafe70fcfc, 0x3ec879175e3549f5, 0xbe930e36677d1813, 0x3e43d4005b42d48f}},
                 {133, {0x3ff0000000000000, 0, 0, 0}}};
    for (const auto& row : fixed)
        for (int k = 0; k < 4; ++k) EXPECT_EQ(pattern(tanhf_rows[row.row][k]), row.c[k]) << row.row << ", c" << k;

    const uint64_t first[11] = {0,
                                0x3ff0000000000000,
                                0xbd197dead79668d3,
                                0xbfd555555553af3c,
                                0xbe052f7cca134846,
                                0x3fc11111563849d6,
                                0xbeb038623673ffb2,
                                0xbfab9f685e64022e,
                                0xbf2a54e2b28f2207,
                                0x3f97cfb9328a230e,
                                0xbf75ca6d61723e02};
    const uint64_t second[11] = {0x3fc0e6973998da48, 0x3fef712eb25c0888, 0xbfc09b296f7c1ea9, 0xbfd3dd77541edda7,
                                 0x3fb58ffcf4309615, 0x3fbd3abe845dcf49, 0xbfa791df538c37fa, 0xbfa4f872f69cd6e8,
                                 0x3f9772e49ef6412b, 0x3f8cbc0807393909, 0xbf85f06a30f93319};
    for (int k = 0; k <= 10; ++k) {
        EXPECT_EQ(pattern(tanh_rows[0].c[k]), first[k]) << k;
        EXPECT_EQ(pattern(tanh_rows[1].c[k]), second[k]) << k;
        EXPECT_EQ(tanh_rows[59].c[k], k == 0 ? 1 : 0);
    }
    EXPECT_EQ(tanh_rows[0].d, 0);
    EXPECT_EQ(tanh_rows[1].d, -0.1328125);
    EXPECT_EQ(tanh_rows[59].d, 0);
    // Head and tail of c0 are the function in the middle of the interval.
    for (int i = 1; i <= 58; ++i) {
        long double middle = std::tanh(-static_cast<long double>(tanh_rows[i].d));
        EXPECT_NEAR(static_cast<double>(middle - static_cast<long double>(tanh_rows[i].c[0])), tanh_rows[i].tail,
                    2e-19);
    }

    EXPECT_EQ(pattern(area_log[0]), 0x8000000000000000);
    EXPECT_EQ(pattern(area_log[1]), 0xbf5ff802a9ab10e6);
    EXPECT_EQ(pattern(area_log[512]), 0u);
}

// ---- Every row through its results. ------------------------------------------------------------------------

using Exact = long double (*)(long double);

void expect_close(const std::string& name, const std::vector<double>& operands, Exact exact, double bound) {
    const grid::Family& family = harness::family(name);
    bool single = family.is_single;
    for (size_t first = 0; first + 16 <= operands.size(); first += 16) {
        Patterns lanes;
        for (size_t lane = 0; lane < 16; ++lane)
            lanes.push_back(single ? pattern(static_cast<float>(operands[first + lane]))
                                   : pattern(operands[first + lane]));
        Patterns results = harness::call(family, 16, {lanes})[0];
        for (size_t lane = 0; lane < 16; ++lane) {
            long double x = single ? as_float(lanes[lane]) : as_double(lanes[lane]);
            long double y = single ? as_float(results[lane]) : as_double(results[lane]);
            long double expected = exact(x);
            long double ulp = std::ldexp(1.0L, std::ilogb(expected) - (single ? 23 : 52));
            EXPECT_LE(std::fabs(y - expected), static_cast<long double>(bound) * ulp)
                << name << " of " << static_cast<double>(x);
        }
    }
}
void expect_close(const std::string& name, const std::vector<double>& operands, Exact exact) {
    for (const std::string& family : {name, name + "_native"})
        expect_close(family, operands, exact, harness::family(family).bound);
}

// Begins, middles and ends of 16 parts of each step.
std::vector<double> in_steps(double from, double step, int count) {
    std::vector<double> operands;
    for (int i = 0; i < count; ++i)
        for (int part = 0; part < 16; ++part) operands.push_back(from + step * (i + (part + 0.5) / 16));
    return operands;
}

TEST(HyperbolicTables, SinhAndCosh) {
    double ln2 = std::log(2.0);
    expect_close("sinh", in_steps(3, ln2 / 128, 128), std::sinh);
    expect_close("sinh", in_steps(-400, ln2 / 128, 128), std::sinh);
    expect_close("cosh", in_steps(0, ln2 / 256, 256), std::cosh);
    expect_close("cosh", in_steps(-500, ln2 / 256, 256), std::cosh);
}

TEST(HyperbolicTables, Tanh) {
    std::vector<double> sixteenths, eighths;
    for (int binade = -6; binade < 4; ++binade) {
        double begin = std::ldexp(1.0, binade);
        for (double x : in_steps(begin, begin / 16, 16)) sixteenths.push_back(x);
    }
    for (int binade = -4; binade < 5; ++binade) {
        double begin = std::ldexp(1.0, binade);
        for (double x : in_steps(-begin, -begin / 8, 8)) eighths.push_back(x);
    }
    expect_close("tanhf", sixteenths, std::tanh);
    expect_close("tanh", eighths, std::tanh);
}

// The reciprocals from 1/2 to 1, through ln(2x) of huge operands. The native polynomial leaves f^4/4, |f| < 0.0014; a
// neighbour's row would be wrong by 0.001.
TEST(HyperbolicTables, AreaLogarithm) {
    std::vector<double> operands = in_steps(0x1p40, 0x1p31, 512);
    expect_close("asinh", operands, std::asinh, 1.5);
    expect_close("acosh", operands, std::acosh, 1.5);
    expect_close("asinh_native", operands, std::asinh, 230);
    expect_close("acosh_native", operands, std::acosh, 230);
    // atanh has no huge operands: sums with 1 from 1 to 2, so operands from 0 to 1/3.
    std::vector<double> quotients;
    for (double v : in_steps(1.25, 1 / 1024.0, 768)) quotients.push_back((v - 1) / (v + 1));
    expect_close("atanh", quotients, std::atanh, 2);
    expect_close("atanh_native", quotients, std::atanh, 10000);
}

}  // namespace
