// The processor's estimates of 1/x and 1/sqrt(x): all that the families built on them rely on is a relative error
// of 1.5 * 2^-12 at most. Their last bits differ from maker to maker, so no test tells more of them.
#include <xmmintrin.h>

#include <cmath>

#include "tests/harness/lanes.h"

namespace {

constexpr double stated = 1.5 * 0x1p-12;

// The largest |estimate * exact inverse - 1| from `low` up to, not including, `high`.
template <class Estimate, class Inverse>
double largest_error(float low, float high, Estimate estimate, Inverse inverse) {
    double largest = 0;
    for (uint64_t bits = harness::pattern(low); bits < harness::pattern(high); bits += 4) {
        alignas(16) float x[4], y[4];
        for (unsigned lane = 0; lane < 4; ++lane) x[lane] = harness::as_float(bits + lane);
        _mm_store_ps(y, estimate(_mm_load_ps(x)));
        for (int lane = 0; lane < 4; ++lane) {
            double error = static_cast<double>(y[lane]) * inverse(static_cast<double>(x[lane])) - 1;
            largest = std::max(largest, std::fabs(error));
        }
    }
    return largest;
}

double itself(double x) { return x; }
double root(double x) { return std::sqrt(x); }

// Every mantissa, with exponents at both ends of what the estimate is used for and in between.
TEST(Estimates, OfReciprocalsKeepTheirError) {
    for (float low : {0x1p-126f, 1.0f, 0x1p125f})
        EXPECT_LE(largest_error(low, 2 * low, _mm_rcp_ps, itself), stated) << low;
}

// Exponents of both parities.
TEST(Estimates, OfReciprocalRootsKeepTheirError) {
    for (float low : {0x1p-126f, 1.0f, 0x1p125f})
        EXPECT_LE(largest_error(low, 4 * low, _mm_rsqrt_ps, root), stated) << low;
}

TEST(Estimates, OfZerosAndInfinities) {
    auto first = [](__m128 y) { return harness::pattern(_mm_cvtss_f32(y)); };
    const float inf = HUGE_VALF;
    for (float tiny : {0.0f, 0x1p-149f, 0x1.fffffcp-127f}) {
        EXPECT_EQ(harness::pattern(inf), first(_mm_rcp_ps(_mm_set1_ps(tiny))));
        EXPECT_EQ(harness::pattern(-inf), first(_mm_rcp_ps(_mm_set1_ps(-tiny))));
        EXPECT_EQ(harness::pattern(inf), first(_mm_rsqrt_ps(_mm_set1_ps(tiny))));
    }
    EXPECT_EQ(harness::pattern(0.0f), first(_mm_rcp_ps(_mm_set1_ps(inf))));
    EXPECT_EQ(harness::pattern(-0.0f), first(_mm_rcp_ps(_mm_set1_ps(-inf))));
    EXPECT_EQ(harness::pattern(0.0f), first(_mm_rsqrt_ps(_mm_set1_ps(inf))));
}

}  // namespace
