// The packed instruction that comes nearest to a family, in an inlined loop: a floor rather than a rival. Where it
// gives another answer (a NaN lane of a minimum), it is not timed.
#include <emmintrin.h>

#include "bench/passes.h"

namespace bench {
namespace {

#define UNARY(base, bound, of_float, of_double)                                                              \
    add_unit_peer<+[](__m128 x) -> __m128 { return of_float; }, float>(peers, #base "f", "hardware", bound); \
    add_unit_peer<+[](__m128d x) -> __m128d { return of_double; }, double>(peers, #base, "hardware", bound);
#define BINARY(base, bound, of_float, of_double)                                                                       \
    add_unit_peer<+[](__m128 x, __m128 y) -> __m128 { return of_float; }, float>(peers, #base "f", "hardware", bound); \
    add_unit_peer<+[](__m128d x, __m128d y) -> __m128d { return of_double; }, double>(peers, #base, "hardware", bound);

// Conversions between units of different lane counts: two lanes at a time.
template <auto* function, class From, class To>
void two_lanes(const Arrays& all) {
    const Arrays arrays = all;  // which no store can alias
    for (size_t i = 0; i < elements; i += 2) {
        __m128i operand, result;
        if constexpr (sizeof(From) == 4)
            operand = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(arrays.operand<From>(0) + i));
        else
            operand = _mm_load_si128(reinterpret_cast<const __m128i*>(arrays.operand<From>(0) + i));
        result = function(operand);
        if constexpr (sizeof(To) == 4)
            _mm_storel_epi64(reinterpret_cast<__m128i*>(arrays.result<To>(0) + i), result);
        else
            _mm_store_si128(reinterpret_cast<__m128i*>(arrays.result<To>(0) + i), result);
    }
}

constexpr auto truncated = +[](__m128i x) { return _mm_cvttpd_epi32(_mm_castsi128_pd(x)); };
constexpr auto nearest = +[](__m128i x) { return _mm_cvtpd_epi32(_mm_castsi128_pd(x)); };
constexpr auto widened = +[](__m128i x) { return _mm_castpd_si128(_mm_cvtepi32_pd(x)); };

}  // namespace

void add_hardware(std::vector<Peer>& peers) {
    UNARY(inv, 0.5, _mm_div_ps(_mm_set1_ps(1), x), _mm_div_pd(_mm_set1_pd(1), x))
    BINARY(div, 0.5, _mm_div_ps(x, y), _mm_div_pd(x, y))
    UNARY(sqrt, 0.5, _mm_sqrt_ps(x), _mm_sqrt_pd(x))
    UNARY(rsqrt, 1.5, _mm_div_ps(_mm_set1_ps(1), _mm_sqrt_ps(x)), _mm_div_pd(_mm_set1_pd(1), _mm_sqrt_pd(x)))
    BINARY(fmin, 0, _mm_min_ps(x, y), _mm_min_pd(x, y))
    BINARY(fmax, 0, _mm_max_ps(x, y), _mm_max_pd(x, y))
    for (const char* saturation : {"sat", "nosat"}) {
        std::string to = std::string("cvtfptoi32rt");
        add_unit_peer<+[](__m128 x) { return _mm_cvttps_epi32(x); }, float>(peers, to + "z" + saturation + "f",
                                                                            "hardware", 0);
        add_unit_peer<+[](__m128 x) { return _mm_cvtps_epi32(x); }, float>(peers, to + "n" + saturation + "f",
                                                                           "hardware", 0);
        peers.push_back(
            {to + "z" + saturation, "hardware", 0, {2, 3, 4, 8, 16}, two_lanes<truncated, double, int32_t>});
        peers.push_back({to + "n" + saturation, "hardware", 0, {2, 3, 4, 8, 16}, two_lanes<nearest, double, int32_t>});
    }
    add_unit_peer<+[](__m128i x) { return _mm_cvtepi32_ps(x); }, float>(peers, "cvti32tofprtnf", "hardware", 0.5);
    for (const char* rounding : {"rtn", "rtz", "up", "down"})
        peers.push_back({std::string("cvti32tofp") + rounding,
                         "hardware",
                         0,
                         {2, 3, 4, 8, 16},
                         two_lanes<widened, int32_t, double>});
}

}  // namespace bench
