// The C library's scalar functions and the C compiler's scalar operators, one lane at a time. This file is built
// without vectorisation.
#include <cmath>
#include <cstdint>

#include "bench/peers/worlds.h"

namespace bench::c_library {

struct World {
    template <class Float>
    using Value = Float;
    template <class Float>
    using Integer = int32_t;
    template <class Float>
    static Float splat(double value) {
        return static_cast<Float>(value);
    }
    template <class Float>
    static Float floating(int32_t n) {
        return static_cast<Float>(n);
    }
    static constexpr bool has_operators = true;
    static constexpr const char* column = "c";
    static constexpr double bound = 4;
};

using std::acos, std::acosh, std::asin, std::asinh, std::atan, std::atan2, std::atanh, std::cbrt, std::ceil,
    std::copysign, std::cos, std::cosh, std::erf, std::erfc, std::exp, std::exp2, std::expm1, std::fabs, std::fdim,
    std::floor, std::fma, std::fmax, std::fmin, std::fmod, std::hypot, std::ilogb, std::ldexp, std::lgamma, std::log,
    std::log10, std::log1p, std::log2, std::logb, std::nextafter, std::pow, std::remainder, std::rint, std::round,
    std::sin, std::sinh, std::sqrt, std::tan, std::tanh, std::tgamma, std::trunc;

inline float exp10(float x) { return ::exp10f(x); }
inline double exp10(double x) { return ::exp10(x); }
inline float sincos(float x, float& cosine) {
    float sine;
    ::sincosf(x, &sine, &cosine);
    return sine;
}
inline double sincos(double x, double& cosine) {
    double sine;
    ::sincos(x, &sine, &cosine);
    return sine;
}
template <class Float>
Float modf(Float x, Float& integral) {
    return std::modf(x, &integral);
}
template <class Float>
Float frexp(Float x, int32_t& exponent) {
    return std::frexp(x, &exponent);
}
template <class Float>
Float remquo(Float x, Float y, int32_t& quotient) {
    return std::remquo(x, y, &quotient);
}
inline float lgamma(float x, int32_t& sign) { return ::lgammaf_r(x, &sign); }
inline double lgamma(double x, int32_t& sign) { return ::lgamma_r(x, &sign); }

// Conversions, lane by lane; the saturating families take in-range operands here too, so that the bare conversion is
// their peer.
template <class From, class To, class Expression, bool skips>
void conversion_pass(const Arrays& all) {
    const Arrays arrays = all;
    for (size_t i = 0; i < elements; ++i)
        if (!skips || i % 4 != 3) arrays.result<To>(0)[i] = static_cast<To>(Expression{}(arrays.operand<From>(0)[i]));
}
template <class From, class To, class Expression>
void add_conversion(std::vector<Peer>& peers, const std::string& family, double bound, Expression) {
    peers.push_back({family, World::column, bound, {1, 2, 4, 8, 16}, conversion_pass<From, To, Expression, false>});
    peers.push_back({family, World::column, bound, {3}, conversion_pass<From, To, Expression, true>});
}
template <class Integer>
void add_conversions(std::vector<Peer>& peers, const std::string& name) {
    auto to = [&](const char* rounding, auto expression) {
        for (const char* saturation : {"sat", "nosat"}) {
            std::string family = "cvtfpto" + name + rounding + saturation;
            add_conversion<float, Integer>(peers, family + "f", 0, expression);
            add_conversion<double, Integer>(peers, family, 0, expression);
        }
    };
    to("rtn", [](auto x) { return rint(x); });
    to("rtz", [](auto x) { return x; });
    to("up", [](auto x) { return ceil(x); });
    to("down", [](auto x) { return floor(x); });
    auto same = [](Integer x) { return x; };
    add_conversion<Integer, float>(peers, "cvt" + name + "tofprtnf", 0.5, same);
    add_conversion<Integer, double>(peers, "cvt" + name + "tofprtn", 0.5, same);
}

void add(std::vector<Peer>& peers) {
#define PEERS(base, ...) WORLD_PEERS(World, base, __VA_ARGS__)
#include "include/operations.def"
    add_conversions<int32_t>(peers, "i32");
    add_conversions<uint32_t>(peers, "u32");
    add_conversions<int64_t>(peers, "i64");
    add_conversions<uint64_t>(peers, "u64");
}

}  // namespace bench::c_library

void bench::add_c_library(std::vector<Peer>& peers) { c_library::add(peers); }
