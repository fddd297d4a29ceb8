// Kernels as the compiler of OpenCL C makes them, with operands of one's own: see kernel.cl.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <vector>

#define EACH_KERNEL(macro, lane)                                                                                       \
    macro(lane, , 1, 1, named) macro(lane, 3, 3, 4, named) macro(lane, 16, 16, 16, named) macro(lane, , 1, 1, generic) \
        macro(lane, 3, 3, 4, generic) macro(lane, 16, 16, 16, generic)
#define DECLARE(lane, width, lanes, stride, pointers)                                                               \
    void scalars_##pointers##_##lane##width(const lane* x, lane limit, int n, lane* results);                       \
    void spaces_##pointers##_##lane##width(const lane* x, const lane* y, int* quotient, int* exponent, lane* whole, \
                                           lane* cosine);
extern "C" {
EACH_KERNEL(DECLARE, float)
EACH_KERNEL(DECLARE, double)
void without_exponent(int* named);
void plain_conversions(const unsigned char* bytes, const double* reals, float* results, int* integers);
}

namespace {

// The kernels at one width; a vector of three lanes takes the room of four.
template <class Lane>
struct Width {
    size_t lanes, stride;
    void (*scalars)(const Lane*, Lane, int, Lane*);
    void (*spaces)(const Lane*, const Lane*, int*, int*, Lane*, Lane*);
};
#define WIDTH(lane, width, lanes, stride, pointers) \
    {lanes, stride, scalars_##pointers##_##lane##width, spaces_##pointers##_##lane##width},
const std::vector<Width<float>> float_widths = {EACH_KERNEL(WIDTH, float)};
const std::vector<Width<double>> double_widths = {EACH_KERNEL(WIDTH, double)};

template <class Lane>
void expect_scalars_for_each_lane(const std::vector<Width<Lane>>& widths) {
    constexpr Lane limit = -1.5;
    for (const Width<Lane>& width : widths) {
        alignas(128) Lane x[16], results[48];
        for (size_t i = 0; i < 16; ++i) x[i] = static_cast<Lane>(i) / 2 - 3;
        width.scalars(x, limit, -3, results);
        for (size_t i = 0; i < width.lanes; ++i) {
            EXPECT_EQ(x[i] / 8, results[i]) << width.lanes;
            EXPECT_EQ(std::min(x[i], limit), results[width.stride + i]) << width.lanes;
            EXPECT_EQ(std::max(x[i], limit), results[2 * width.stride + i]) << width.lanes;
        }
    }
}

TEST(Kernel, AScalarServesEveryLane) {
    expect_scalars_for_each_lane(float_widths);
    expect_scalars_for_each_lane(double_widths);
}

// x = 7 q + 1/4, with quotients small enough for remquo to keep all their bits.
template <class Lane>
void expect_second_results(const std::vector<Width<Lane>>& widths) {
    for (const Width<Lane>& width : widths) {
        alignas(128) Lane x[16], y[16], whole[48], cosine[48];
        alignas(128) int quotient[48], exponent[48];
        for (size_t i = 0; i < 16; ++i) x[i] = static_cast<Lane>(7 * i + 0.25), y[i] = 7;
        width.spaces(x, y, quotient, exponent, whole, cosine);
        for (size_t space = 0; space < 3; ++space)
            for (size_t i = 0; i < width.lanes; ++i) {
                size_t at = space * width.stride + i;
                EXPECT_EQ(static_cast<int>(i), quotient[at]) << width.lanes << " " << space;
                EXPECT_EQ(std::ilogb(x[i]) + 1, exponent[at]) << width.lanes << " " << space;
                EXPECT_EQ(std::floor(x[i]), whole[at]) << width.lanes << " " << space;
                EXPECT_NEAR(std::cos(double{x[i]}), double{cosine[at]}, 1e-6) << width.lanes << " " << space;
            }
    }
}

TEST(Kernel, SecondResultsReachEachAddressSpace) {
    expect_second_results(float_widths);
    expect_second_results(double_widths);
}

TEST(Kernel, NamesOfWhatHasNoExponent) {
    int named[2] = {};
    without_exponent(named);
    EXPECT_TRUE(named[0] && named[1]);
}

TEST(Kernel, ConversionsOfItsOwn) {
    alignas(4) const unsigned char bytes[4] = {1, 127, 255, 0};
    alignas(32) const double reals[4] = {-0.0, 0x1.000001p0, 0x1.000003p0, 0};
    alignas(16) float results[8];
    alignas(16) int integers[8];
    plain_conversions(bytes, reals, results, integers);
    const float to_nearest[] = {-0.0f, 1, 0x1.000004p0f};
    for (size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(static_cast<float>(bytes[i]), results[i]);
        EXPECT_EQ(to_nearest[i], results[4 + i]);
        EXPECT_EQ(static_cast<signed char>(bytes[i]), integers[i]);
        EXPECT_EQ(INT_MIN, integers[4 + i]);
    }
    EXPECT_TRUE(std::signbit(results[4]));
}

}  // namespace
