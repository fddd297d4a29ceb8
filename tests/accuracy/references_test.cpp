// References of the operations that are put together from others, or that know the lane's format, at values worked by
// hand; of the circular functions at operands whose reduction takes a thousand bits of pi (values by another library).
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

#include "tools/reference.h"

namespace {

using grid::Lane;
using reference::Real;

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double lowest = -0x1p31, highest = 0x1p31 - 1;  // 32-bit integers

struct Value {
    const char* base;
    Lane lane;
    double x, y;
    double first, second;  // to the nearest double; `second` counts where the operation has two results
};

const Value values[] = {
    {"nextafter", Lane::f32, 1, 2, 1 + 0x1p-23, 0},
    {"nextafter", Lane::f32, 1, 0, 1 - 0x1p-24, 0},
    {"nextafter", Lane::f32, 0, -1, -0x1p-149, 0},
    {"nextafter", Lane::f32, 0x1.fffffep127, inf, inf, 0},
    {"nextafter", Lane::f64, 1, 2, 1 + 0x1p-52, 0},
    {"nextafter", Lane::f64, 0x1p-1022, 0, 0x1p-1022 - 0x1p-1074, 0},
    {"remquo", Lane::f32, 7, 2, -1, 4},
    {"remquo", Lane::f32, -7, 2, 1, -4},
    {"remquo", Lane::f32, 5, 2, 1, 2},
    {"remquo", Lane::f64, 0x1p33 + 2, -2, 0, -1},  // the quotient's low 31 bits
    {"remquo", Lane::f64, 5, inf, 5, 0},
    {"remquo", Lane::f64, 5, 0, NAN, 0},
    {"frexp", Lane::f32, 0x1p-149, 0, 0.5, -148},
    {"logb", Lane::f32, 0x1.8p-130, 0, -130, 0},
    {"ilogb", Lane::f32, 0x1.8p-130, 0, -130, 0},
    {"ilogb", Lane::f64, 0, 0, lowest, 0},
    {"ilogb", Lane::f64, inf, 0, highest, 0},
    {"ilogb", Lane::f64, NAN, 0, highest, 0},
    {"ldexp", Lane::f32, 3, -150, 0x1.8p-149, 0},
    {"rootn", Lane::f32, 8, -3, 0.5, 0},
    {"rootn", Lane::f32, -8, 3, -2, 0},
    {"rootn", Lane::f32, -8, 2, NAN, 0},
    {"rootn", Lane::f32, -0.0, -3, -inf, 0},
    {"rootn", Lane::f32, -0.0, -2, inf, 0},
    {"rootn", Lane::f32, 5, 0, NAN, 0},
    {"rootn", Lane::f64, 4, lowest, 0x1.fffffffa746f4p-1, 0},
    {"pown", Lane::f64, 2, -1074, 0x1p-1074, 0},
    {"pown", Lane::f64, -1, lowest, 1, 0},
    {"pown", Lane::f64, -1, highest, -1, 0},
    {"pown", Lane::f64, NAN, 0, 1, 0},
    {"powr", Lane::f64, -1, 2, NAN, 0},
    {"powr", Lane::f64, 0, 0, NAN, 0},
    {"powr", Lane::f64, 1, inf, NAN, 0},
    {"powr", Lane::f64, -0.0, -3, inf, 0},
    {"powr", Lane::f64, 2, 0.5, M_SQRT2, 0},
    {"tanpi", Lane::f64, 0.375, 0, 0x1.3504f333f9de6p+1, 0},
    {"tanpi", Lane::f64, 0.5, 0, inf, 0},
    {"tanpi", Lane::f64, 1.5, 0, -inf, 0},
    {"asinpi", Lane::f64, 0.5, 0, 1 / 6.0, 0},
    {"acospi", Lane::f64, -1, 0, 1, 0},
    {"atan2pi", Lane::f64, 1, -1, 0.75, 0},
    {"atan2pi", Lane::f64, -0.0, -1, -1, 0},
    {"lgammar", Lane::f64, -0.5, 0, 0x1.43f89a3f0edd6p+0, -1},
    {"lgammar", Lane::f64, 3, 0, M_LN2, 1},
    {"sin", Lane::f64, 1e22, 0, -0.85220084976718880177, 0},
    {"sin", Lane::f64, 0x1p1023, 0, 0x1.205248cbdb76p-1, 0},
    {"cos", Lane::f64, 0x1p1023, 0, -0x1.a719f26c232bfp-1, 0},
    {"tan", Lane::f64, 0x1p1023, 0, -0x1.5ce6b4c0d02a3p-1, 0},
};

TEST(Reference, AtKnownValues) {
    for (const Value& row : values) {
        SCOPED_TRACE(std::string(row.base) + " of " + std::to_string(row.x) + ", " + std::to_string(row.y));
        const reference::Operation* operation = reference::find(row.base);
        ASSERT_NE(operation, nullptr);
        Real x[3], exact[2];
        mpfr_set_d(x[0].get(), row.x, MPFR_RNDN);
        mpfr_set_d(x[1].get(), row.y, MPFR_RNDN);
        operation->exact(row.lane, x, exact);
        long double screened[2] = {exact[0].as_double(), exact[1].as_double()};
        long double operands[] = {row.x, row.y, 0};
        if (operation->screen) operation->screen(operands, screened);
        for (int r = 0; r < operation->results; ++r) {
            double expected = r ? row.second : row.first;
            for (double found : {exact[r].as_double(), static_cast<double>(screened[r])})
                EXPECT_TRUE(found == expected || (std::isnan(found) && std::isnan(expected)))
                    << found << " is not " << expected;
        }
    }
}

}  // namespace
