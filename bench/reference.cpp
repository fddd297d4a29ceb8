#include "bench/reference.h"

#include <algorithm>
#include <cfenv>
#include <cfloat>
#include <cmath>
#include <limits>

#include "bench/operands.h"

namespace bench {
namespace {

using Real = long double;
// Operands in, results out.
using Reference = void (*)(const Real* x, Real* y);

struct Row {
    const char* key;  // a family's name, or a base name
    int results;      // how many of a family's results it gives
    Reference reference;
};

constexpr Real pi = 3.14159265358979323846264338327950288L;

// sin(pi x) and cos(pi x), the operand reduced exactly first.
Real sine_of_pi_times(Real x) {
    Real r = std::remainder(x, 2.0L);
    if (r > 0.5L) r = 1 - r;
    if (r < -0.5L) r = -1 - r;
    return std::sin(pi * r);
}
Real cosine_of_pi_times(Real x) {
    Real r = std::fabs(std::remainder(x, 2.0L));
    return r <= 0.25L ? std::cos(pi * r) : std::sin(pi * (0.5L - r));
}

#define ONE(base, expression)                                       \
    {                                                               \
#base, 1, [](const Real* x, Real* y) { y[0] = expression; } \
    }
#define TWO(base, first, second)                                              \
    {                                                                         \
#base, 2, [](const Real* x, Real* y) { y[0] = first, y[1] = second; } \
    }
int exponent_of_frexp(Real x) {
    int exponent;
    std::frexp(x, &exponent);
    return exponent;
}
Real mantissa_of_frexp(Real x) {
    int exponent;
    return std::frexp(x, &exponent);
}

const Row rows[] = {
    ONE(inv, 1 / x[0]),
    ONE(div, x[0] / x[1]),
    ONE(sqrt, std::sqrt(x[0])),
    ONE(rsqrt, 1 / std::sqrt(x[0])),
    ONE(cbrt, std::cbrt(x[0])),
    ONE(rcbrt, 1 / std::cbrt(x[0])),
    ONE(hypot, std::hypot(x[0], x[1])),
    ONE(fabs, std::fabs(x[0])),
    ONE(copysign, std::copysign(x[0], x[1])),
    ONE(nan, x[0] * std::numeric_limits<Real>::quiet_NaN()),
    ONE(fmin, std::fmin(x[0], x[1])),
    ONE(fmax, std::fmax(x[0], x[1])),
    ONE(maxmag, std::fabs(x[0]) > std::fabs(x[1])   ? x[0]
                : std::fabs(x[1]) > std::fabs(x[0]) ? x[1]
                                                    : std::fmax(x[0], x[1])),
    ONE(minmag, std::fabs(x[0]) < std::fabs(x[1])   ? x[0]
                : std::fabs(x[1]) < std::fabs(x[0]) ? x[1]
                                                    : std::fmin(x[0], x[1])),
    ONE(fdim, std::fdim(x[0], x[1])),
    {"madf", 1, [](const Real* x, Real* y) { y[0] = static_cast<Real>(static_cast<float>(x[0] * x[1])) + x[2]; }},
    {"mad", 1, [](const Real* x, Real* y) { y[0] = static_cast<Real>(static_cast<double>(x[0] * x[1])) + x[2]; }},
    ONE(fma, std::fma(x[0], x[1], x[2])),
    ONE(ceil, std::ceil(x[0])),
    ONE(floor, std::floor(x[0])),
    ONE(round, std::round(x[0])),
    ONE(trunc, std::trunc(x[0])),
    ONE(rint, std::rint(x[0])),
    ONE(nearbyint, std::nearbyint(x[0])),
    TWO(modf, std::isinf(x[0]) ? std::copysign(0.0L, x[0]) : x[0] - std::trunc(x[0]), std::trunc(x[0])),
    TWO(fract, std::isinf(x[0]) ? std::copysign(0.0L, x[0]) : x[0] - std::floor(x[0]), std::floor(x[0])),
    ONE(fmod, std::fmod(x[0], x[1])),
    ONE(remainder, std::remainder(x[0], x[1])),
    ONE(remquo, std::remainder(x[0], x[1])),
    TWO(frexp, mantissa_of_frexp(x[0]), exponent_of_frexp(x[0])),
    ONE(ldexp, std::ldexp(x[0], static_cast<int>(x[1]))),
    ONE(logb, std::logb(x[0])),
    ONE(ilogb, std::ilogb(x[0])),
    ONE(exp, std::exp(x[0])),
    ONE(exp2, std::exp2(x[0])),
    ONE(exp10, exp10l(x[0])),
    ONE(expm1, std::expm1(x[0])),
    ONE(log, std::log(x[0])),
    ONE(log2, std::log2(x[0])),
    ONE(log10, std::log10(x[0])),
    ONE(log1p, std::log1p(x[0])),
    ONE(pow, std::pow(x[0], x[1])),
    ONE(powr, std::pow(x[0], x[1])),
    ONE(pown, std::pow(x[0], x[1])),
    ONE(rootn, std::pow(x[0], 1 / x[1])),
    ONE(sin, std::sin(x[0])),
    ONE(cos, std::cos(x[0])),
    TWO(sincos, std::sin(x[0]), std::cos(x[0])),
    TWO(sincosreg, std::sin(x[0]), std::cos(x[0])),
    ONE(tan, std::tan(x[0])),
    ONE(sinpi, sine_of_pi_times(x[0])),
    ONE(cospi, cosine_of_pi_times(x[0])),
    ONE(tanpi, sine_of_pi_times(x[0]) / cosine_of_pi_times(x[0])),
    ONE(asin, std::asin(x[0])),
    ONE(acos, std::acos(x[0])),
    ONE(atan, std::atan(x[0])),
    ONE(atan2, std::atan2(x[0], x[1])),
    ONE(asinpi, std::asin(x[0]) / pi),
    ONE(acospi, std::acos(x[0]) / pi),
    ONE(atanpi, std::atan(x[0]) / pi),
    ONE(atan2pi, std::atan2(x[0], x[1]) / pi),
    ONE(sinh, std::sinh(x[0])),
    ONE(cosh, std::cosh(x[0])),
    ONE(tanh, std::tanh(x[0])),
    ONE(asinh, std::asinh(x[0])),
    ONE(acosh, std::acosh(x[0])),
    ONE(atanh, std::atanh(x[0])),
    ONE(erf, std::erf(x[0])),
    ONE(erfc, std::erfc(x[0])),
    ONE(tgamma, std::tgamma(x[0])),
    ONE(lgamma, std::lgamma(x[0])),
    ONE(lgammar, std::lgamma(x[0])),
    {"nextafterf", 1,
     [](const Real* x, Real* y) { y[0] = nextafterf(static_cast<float>(x[0]), static_cast<float>(x[1])); }},
    {"nextafter", 1,
     [](const Real* x, Real* y) { y[0] = nextafter(static_cast<double>(x[0]), static_cast<double>(x[1])); }},
};

// A conversion rounds exactly as its tag says, to an integer or to the target's precision.
struct Rounding {
    const char* tag;
    int mode;
};
const Rounding roundings[] = {{"rtn", FE_TONEAREST}, {"rtz", FE_TOWARDZERO}, {"up", FE_UPWARD}, {"down", FE_DOWNWARD}};

Real rounded(Real x, grid::Lane target, int mode) {
    std::fesetround(mode);
    volatile Real operand = x;
    volatile Real result = target == grid::Lane::f32   ? static_cast<Real>(static_cast<float>(operand))
                           : target == grid::Lane::f64 ? static_cast<Real>(static_cast<double>(operand))
                                                       : std::rint(operand);
    std::fesetround(FE_TONEAREST);
    return result;
}

Real error_in_ulp(Real got, Real exact, grid::Lane lane) {
    constexpr Real wrong = std::numeric_limits<Real>::infinity();
    bool single = lane == grid::Lane::f32;
    if (!single && lane != grid::Lane::f64) return got == exact ? 0 : wrong;
    if (std::isnan(exact) || std::isnan(got)) return std::isnan(exact) && std::isnan(got) ? 0 : wrong;
    Real nearest =
        single ? static_cast<Real>(static_cast<float>(exact)) : static_cast<Real>(static_cast<double>(exact));
    if (std::isinf(nearest) || std::isinf(got)) return got == nearest ? 0 : wrong;
    if (got == exact) return 0;
    int lowest = single ? FLT_MIN_EXP - 1 : DBL_MIN_EXP - 1;
    int exponent = exact == 0 ? lowest : std::max(std::ilogb(exact), lowest);
    return std::fabs(got - exact) / std::ldexp(1.0L, exponent - (single ? FLT_MANT_DIG : DBL_MANT_DIG) + 1);
}

}  // namespace

double largest_error(const grid::Family& family, int width, const Arrays& arrays) {
    const Row* row = nullptr;
    for (const std::string& key : {family.base, family.name})
        for (const Row& candidate : rows)
            if (candidate.key == key) row = &candidate;
    int mode = -1;
    if (!row && family.base.rfind("cvt", 0) == 0)
        for (const Rounding& rounding : roundings)
            if (family.base.find(rounding.tag) != std::string::npos) mode = rounding.mode;
    if (!row && mode < 0) return std::numeric_limits<double>::quiet_NaN();

    Real largest = 0;
    for (size_t i = 0; i < elements; ++i) {
        if (width == 3 && i % 4 == 3) continue;
        Real x[3] = {}, y[2] = {};
        for (size_t k = 0; k < family.operands.size(); ++k) x[k] = lane_at(arrays.operands[k], family.operands[k], i);
        if (row)
            row->reference(x, y);
        else
            y[0] = rounded(x[0], family.results[0], mode);
        for (int k = 0; k < (row ? row->results : 1); ++k)
            largest =
                std::max(largest, error_in_ulp(lane_at(arrays.results[k], family.results[static_cast<size_t>(k)], i),
                                               y[k], family.results[static_cast<size_t>(k)]));
    }
    return static_cast<double>(largest);
}

}  // namespace bench
