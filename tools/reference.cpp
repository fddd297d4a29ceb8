#include "tools/reference.h"

#include <cmath>
#include <limits>

namespace reference {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// ---- Operations that are one function of MPFR, and one of the C library. -----------------------------------

template <int (*function)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t)>
void exact(Lane, const Real* x, Real* result) {
    function(result->get(), x->get(), MPFR_RNDN);
}
template <int (*function)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t)>
void exact(Lane, const Real* x, Real* result) {
    function(result->get(), x[0].get(), x[1].get(), MPFR_RNDN);
}
template <int (*function)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t)>
void exact(Lane, const Real* x, Real* result) {
    function(result->get(), x[0].get(), x[1].get(), x[2].get(), MPFR_RNDN);
}
template <mpfr_rnd_t direction>
void exact_integral(Lane, const Real* x, Real* result) {
    mpfr_rint(result->get(), x->get(), direction);
}

template <long double (*function)(long double)>
void screen(const long double* x, long double* result) {
    *result = function(*x);
}
template <long double (*function)(long double, long double)>
void screen(const long double* x, long double* result) {
    *result = function(x[0], x[1]);
}

// ---- Operations put together. ------------------------------------------------------------------------------

constexpr long double pi = 3.14159265358979323846264338327950288L;

// x = n + r with r in [-1/2, 1/2], and whether n is odd.
struct Turn {
    long double r;
    bool odd;
    explicit Turn(long double x) {
        long double n = rintl(x);
        r = x - n;
        odd = fmodl(n, 2.0L) != 0.0L;
    }
};
long double sine_of_pi(long double x) {
    Turn turn(x);
    long double y = sinl(pi * turn.r);
    return turn.odd ? -y : y;
}
long double cosine_of_pi(long double x) {
    Turn turn(x);
    long double y = sinl(pi * (0.5L - fabsl(turn.r)));
    return turn.odd ? -y : y;
}

// The sign of 1/sqrt(-0) is the zero's.
void exact_rsqrt(Lane, const Real* x, Real* result) {
    if (mpfr_zero_p(x->get()))
        mpfr_ui_div(result->get(), 1, x->get(), MPFR_RNDN);
    else
        mpfr_rec_sqrt(result->get(), x->get(), MPFR_RNDN);
}

// A product rounded to the lane's format, then a sum: two operations, not one.
void exact_mad(Lane lane, const Real* x, Real* result) {
    mpfr_mul(result->get(), x[0].get(), x[1].get(), MPFR_RNDN);
    if (lane == Lane::f32)
        mpfr_set_flt(result->get(), mpfr_get_flt(result->get(), MPFR_RNDN), MPFR_RNDN);
    else
        mpfr_set_d(result->get(), mpfr_get_d(result->get(), MPFR_RNDN), MPFR_RNDN);
    mpfr_add(result->get(), result->get(), x[2].get(), MPFR_RNDN);
}

// The operand of the larger (order 1) or smaller (order -1) magnitude; of equal ones the larger or smaller.
template <int order>
void exact_magnitude(Lane, const Real* x, Real* result) {
    int compared = order * mpfr_cmpabs(x[0].get(), x[1].get());
    if (mpfr_nan_p(x[0].get()) || mpfr_nan_p(x[1].get()) || compared == 0)
        (order > 0 ? mpfr_max : mpfr_min)(result->get(), x[0].get(), x[1].get(), MPFR_RNDN);
    else
        mpfr_set(result->get(), x[compared > 0 ? 0 : 1].get(), MPFR_RNDN);
}

void exact_fract(Lane, const Real* x, Real* results) {
    mpfr_rint(results[1].get(), x->get(), MPFR_RNDD);
    if (mpfr_inf_p(x->get()))
        mpfr_set_zero(results[0].get(), mpfr_sgn(x->get()));
    else
        mpfr_sub(results[0].get(), x->get(), results[1].get(), MPFR_RNDN);
}
void screen_fract(const long double* x, long double* results) {
    results[1] = floorl(*x);
    results[0] = std::isinf(*x) ? copysignl(0.0L, *x) : *x - results[1];
}

void exact_powr(Lane, const Real* x, Real* result) {
    bool undefined = mpfr_sgn(x[0].get()) < 0 || (mpfr_zero_p(x[0].get()) && mpfr_zero_p(x[1].get())) ||
                     (mpfr_inf_p(x[0].get()) && mpfr_zero_p(x[1].get())) ||
                     (mpfr_cmp_ui(x[0].get(), 1) == 0 && mpfr_inf_p(x[1].get()));
    if (undefined || mpfr_nan_p(x[0].get()) || mpfr_nan_p(x[1].get()))
        mpfr_set_nan(result->get());
    else
        mpfr_pow(result->get(), x[0].get(), x[1].get(), MPFR_RNDN);
    mpfr_abs(result->get(), result->get(), MPFR_RNDN);  // the base -0 is a zero like the other
}

void screen_powr(const long double* x, long double* result) {
    bool undefined = x[0] < 0 || std::isnan(x[0]) || std::isnan(x[1]) || (x[0] == 0 && x[1] == 0) ||
                     (std::isinf(x[0]) && x[1] == 0) || (x[0] == 1 && std::isinf(x[1]));
    *result = undefined ? std::numeric_limits<long double>::quiet_NaN() : fabsl(powl(x[0], x[1]));
}

void exact_rootn(Lane, const Real* x, Real* result) {
    long n = mpfr_get_si(x[1].get(), MPFR_RNDN);
    unsigned long magnitude = n < 0 ? -static_cast<unsigned long>(n) : static_cast<unsigned long>(n);
    mpfr_rootn_ui(result->get(), x[0].get(), magnitude, MPFR_RNDN);
    if (n < 0) mpfr_ui_div(result->get(), 1, result->get(), MPFR_RNDN);
}

// The number after x, on the way to y, is the format's.
void exact_nextafter(Lane lane, const Real* x, Real* result) {
    double from = x[0].as_double(), to = x[1].as_double();
    mpfr_set_d(
        result->get(),
        lane == Lane::f32 ? double{nextafterf(static_cast<float>(from), static_cast<float>(to))} : nextafter(from, to),
        MPFR_RNDN);
}

// The quotient's low 31 bits, under its sign; 0 where there is none.
void exact_remquo(Lane, const Real* x, Real* results) {
    long quotient = 0;
    mpfr_remquo(results[0].get(), &quotient, x[0].get(), x[1].get(), MPFR_RNDN);
    quotient = static_cast<long>(quotient % 0x80000000LL);  // where long is longer
    bool has_quotient = mpfr_number_p(results[0].get()) && mpfr_number_p(x[1].get());
    mpfr_set_si(results[1].get(), has_quotient ? quotient : 0, MPFR_RNDN);
}

void exact_frexp(Lane, const Real* x, Real* results) {
    mpfr_exp_t exponent = 0;
    mpfr_frexp(&exponent, results[0].get(), x->get(), MPFR_RNDN);
    mpfr_set_si(results[1].get(), mpfr_regular_p(x->get()) ? exponent : 0, MPFR_RNDN);
}

void exact_logb(Lane, const Real* x, Real* result) {
    if (mpfr_regular_p(x->get()))
        mpfr_set_si(result->get(), mpfr_get_exp(x->get()) - 1, MPFR_RNDN);
    else if (mpfr_zero_p(x->get()))
        mpfr_set_inf(result->get(), -1);
    else
        mpfr_abs(result->get(), x->get(), MPFR_RNDN);
}

// What has no exponent gives the ends of the integers.
void exact_ilogb(Lane lane, const Real* x, Real* result) {
    if (mpfr_regular_p(x->get()))
        exact_logb(lane, x, result);
    else
        mpfr_set_si(result->get(),
                    mpfr_zero_p(x->get()) ? std::numeric_limits<int32_t>::min() : std::numeric_limits<int32_t>::max(),
                    MPFR_RNDN);
}

void exact_lgamma(Lane, const Real* x, Real* results) {
    int sign = 1;
    mpfr_lgamma(results[0].get(), &sign, x->get(), MPFR_RNDN);
    mpfr_set_si(results[1].get(), sign, MPFR_RNDN);
}
void screen_lgamma(const long double* x, long double* results) {
    int sign = 1;
    results[0] = lgammal_r(*x, &sign);
    results[1] = sign;
}

std::vector<Operation> make_operations() {
    return {
        // Quotients and roots.
        {"inv", 1, [](Lane, const Real* x, Real* r) { mpfr_ui_div(r->get(), 1, x->get(), MPFR_RNDN); },
         [](const long double* x, long double* r) { *r = 1.0L / *x; }},
        {"div", 1, exact<mpfr_div>, [](const long double* x, long double* r) { *r = x[0] / x[1]; }},
        {"sqrt", 1, exact<mpfr_sqrt>, screen<sqrtl>},
        {"rsqrt", 1, exact_rsqrt,
         [](const long double* x, long double* r) { *r = *x == 0.0L ? 1.0L / *x : 1.0L / sqrtl(*x); }},
        {"cbrt", 1, exact<mpfr_cbrt>, screen<cbrtl>},
        {"rcbrt", 1,
         [](Lane, const Real* x, Real* r) {
             mpfr_cbrt(r->get(), x->get(), MPFR_RNDN);
             mpfr_ui_div(r->get(), 1, r->get(), MPFR_RNDN);
         },
         [](const long double* x, long double* r) { *r = 1.0L / cbrtl(*x); }},
        {"hypot", 1, exact<mpfr_hypot>, screen<hypotl>},

        // Exact operations.
        {"fabs", 1, [](Lane, const Real* x, Real* r) { mpfr_abs(r->get(), x->get(), MPFR_RNDN); }, screen<fabsl>},
        {"copysign", 1,
         [](Lane, const Real* x, Real* r) { mpfr_copysign(r->get(), x[0].get(), x[1].get(), MPFR_RNDN); },
         screen<copysignl>},
        {"fmin", 1, exact<mpfr_min>, screen<fminl>},
        {"fmax", 1, exact<mpfr_max>, screen<fmaxl>},
        {"maxmag", 1, exact_magnitude<1>, nullptr},
        {"minmag", 1, exact_magnitude<-1>, nullptr},
        {"fdim", 1, exact<mpfr_dim>, screen<fdiml>},
        {"mad", 1, exact_mad, nullptr},
        {"fma", 1, exact<mpfr_fma>, nullptr},
        {"ceil", 1, exact_integral<MPFR_RNDU>, screen<ceill>},
        {"floor", 1, exact_integral<MPFR_RNDD>, screen<floorl>},
        {"round", 1, exact_integral<MPFR_RNDNA>, screen<roundl>},
        {"trunc", 1, exact_integral<MPFR_RNDZ>, screen<truncl>},
        {"rint", 1, exact_integral<MPFR_RNDN>, screen<rintl>},
        {"nearbyint", 1, exact_integral<MPFR_RNDN>, screen<rintl>},
        {"modf", 2, [](Lane, const Real* x, Real* r) { mpfr_modf(r[1].get(), r[0].get(), x->get(), MPFR_RNDN); },
         [](const long double* x, long double* r) { r[0] = modfl(*x, &r[1]); }},
        {"fract", 2, exact_fract, screen_fract},
        {"fmod", 1, exact<mpfr_fmod>, screen<fmodl>},
        {"remainder", 1, exact<mpfr_remainder>, screen<remainderl>},
        {"remquo", 2, exact_remquo, nullptr},
        {"frexp", 2, exact_frexp, nullptr},
        {"ldexp", 1,
         [](Lane, const Real* x, Real* r) {
             mpfr_mul_2si(r->get(), x[0].get(), mpfr_get_si(x[1].get(), MPFR_RNDN), MPFR_RNDN);
         },
         nullptr},
        {"logb", 1, exact_logb, screen<logbl>},
        {"ilogb", 1, exact_ilogb, nullptr},
        {"nextafter", 1, exact_nextafter, nullptr},

        // Exponentials, logarithms, powers.
        {"exp", 1, exact<mpfr_exp>, screen<expl>},
        {"exp2", 1, exact<mpfr_exp2>, screen<exp2l>},
        {"exp10", 1, exact<mpfr_exp10>, screen<exp10l>},
        {"expm1", 1, exact<mpfr_expm1>, screen<expm1l>},
        {"log", 1, exact<mpfr_log>, screen<logl>},
        {"log2", 1, exact<mpfr_log2>, screen<log2l>},
        {"log10", 1, exact<mpfr_log10>, screen<log10l>},
        {"log1p", 1, exact<mpfr_log1p>, screen<log1pl>},
        {"pow", 1, exact<mpfr_pow>, screen<powl>},
        {"powr", 1, exact_powr, screen_powr},
        {"pown", 1, exact<mpfr_pow>, screen<powl>},
        {"rootn", 1, exact_rootn, nullptr},

        // Trigonometric functions.
        {"sin", 1, exact<mpfr_sin>, screen<sinl>},
        {"cos", 1, exact<mpfr_cos>, screen<cosl>},
        {"sincos", 2, [](Lane, const Real* x, Real* r) { mpfr_sin_cos(r[0].get(), r[1].get(), x->get(), MPFR_RNDN); },
         [](const long double* x, long double* r) { sincosl(*x, &r[0], &r[1]); }},
        {"sincosreg", 2,
         [](Lane, const Real* x, Real* r) { mpfr_sin_cos(r[0].get(), r[1].get(), x->get(), MPFR_RNDN); },
         [](const long double* x, long double* r) { sincosl(*x, &r[0], &r[1]); }},
        {"tan", 1, exact<mpfr_tan>, screen<tanl>},
        {"sinpi", 1, exact<mpfr_sinpi>, screen<sine_of_pi>},
        {"cospi", 1, exact<mpfr_cospi>, screen<cosine_of_pi>},
        {"tanpi", 1, exact<mpfr_tanpi>,
         [](const long double* x, long double* r) { *r = sine_of_pi(*x) / cosine_of_pi(*x); }},
        {"asin", 1, exact<mpfr_asin>, screen<asinl>},
        {"acos", 1, exact<mpfr_acos>, screen<acosl>},
        {"atan", 1, exact<mpfr_atan>, screen<atanl>},
        {"atan2", 1, exact<mpfr_atan2>, screen<atan2l>},
        {"asinpi", 1, exact<mpfr_asinpi>, [](const long double* x, long double* r) { *r = asinl(*x) / pi; }},
        {"acospi", 1, exact<mpfr_acospi>, [](const long double* x, long double* r) { *r = acosl(*x) / pi; }},
        {"atanpi", 1, exact<mpfr_atanpi>, [](const long double* x, long double* r) { *r = atanl(*x) / pi; }},
        {"atan2pi", 1, exact<mpfr_atan2pi>, [](const long double* x, long double* r) { *r = atan2l(x[0], x[1]) / pi; }},

        // Hyperbolic functions.
        {"sinh", 1, exact<mpfr_sinh>, screen<sinhl>},
        {"cosh", 1, exact<mpfr_cosh>, screen<coshl>},
        {"tanh", 1, exact<mpfr_tanh>, screen<tanhl>},
        {"asinh", 1, exact<mpfr_asinh>, screen<asinhl>},
        {"acosh", 1, exact<mpfr_acosh>, screen<acoshl>},
        {"atanh", 1, exact<mpfr_atanh>, screen<atanhl>},

        // Error and gamma functions.
        {"erf", 1, exact<mpfr_erf>, screen<erfl>},
        {"erfc", 1, exact<mpfr_erfc>, screen<erfcl>},
        {"tgamma", 1, exact<mpfr_gamma>, screen<tgammal>},
        {"lgamma", 1,
         [](Lane lane, const Real* x, Real* r) {
             Real both[2];
             exact_lgamma(lane, x, both);
             mpfr_swap(r->get(), both[0].get());
         },
         [](const long double* x, long double* r) {
             int sign;  // lgammal writes a variable that all threads share
             *r = lgammal_r(*x, &sign);
         }},
        {"lgammar", 2, exact_lgamma, screen_lgamma},
    };
}

// ---- Distances. --------------------------------------------------------------------------------------------

bool is_floating(Lane lane) { return lane == Lane::f32 || lane == Lane::f64; }

}  // namespace

const PowersOfTwo power_of_two;

PowersOfTwo::PowersOfTwo() {
    for (int n = -limit; n <= limit; ++n) powers_[n + limit] = ldexpl(1, n);
}

long double lane_value(Lane lane, uint64_t bits) {
    if (lane == Lane::f32) return __builtin_bit_cast(float, static_cast<uint32_t>(bits));
    if (lane == Lane::f64) return __builtin_bit_cast(double, bits);
    if (lane == Lane::u32) return static_cast<uint32_t>(bits);
    return static_cast<int32_t>(bits);
}

void Real::set(Lane lane, uint64_t bits) { mpfr_set_ld(value_, lane_value(lane, bits), MPFR_RNDN); }

const std::vector<Operation>& operations() {
    static const std::vector<Operation> list = make_operations();
    return list;
}

const Operation* find(const std::string& base) {
    for (const Operation& operation : operations())
        if (operation.base == base) return &operation;
    return nullptr;
}

double ulp_distance(Lane lane, uint64_t result, const Real& exact) {
    thread_local Real computed, limit;
    computed.set(lane, result);
    bool computed_nan = mpfr_nan_p(computed.get()), exact_nan = mpfr_nan_p(exact.get());
    if (computed_nan || exact_nan) return computed_nan == exact_nan ? 0 : infinity;
    if (mpfr_equal_p(computed.get(), exact.get())) return 0;
    if (mpfr_inf_p(exact.get())) return infinity;

    int unit = 0;
    if (is_floating(lane)) {
        Format format = format_of(lane);
        if (mpfr_inf_p(computed.get())) {
            // From half a unit above the largest number on, an infinity is the rounded value.
            int sign = mpfr_sgn(computed.get());
            mpfr_set_si_2exp(limit.get(), 1, format.highest - format.digits, MPFR_RNDN);
            mpfr_set_si_2exp(computed.get(), 1, format.highest + 1, MPFR_RNDN);
            mpfr_sub(limit.get(), computed.get(), limit.get(), MPFR_RNDN);
            if (mpfr_sgn(exact.get()) == sign && mpfr_cmpabs(exact.get(), limit.get()) >= 0) return 0;
            mpfr_mul_si(computed.get(), computed.get(), sign, MPFR_RNDN);
        }
        long exponent = mpfr_zero_p(exact.get()) ? format.lowest : mpfr_get_exp(exact.get()) - 1;
        bool power = !mpfr_zero_p(exact.get()) && mpfr_min_prec(exact.get()) == 1;
        unit = spacing_exponent(format, exponent, power);
    }
    mpfr_sub(computed.get(), computed.get(), exact.get(), MPFR_RNDN);
    mpfr_abs(computed.get(), computed.get(), MPFR_RNDN);
    mpfr_mul_2si(computed.get(), computed.get(), -unit, MPFR_RNDN);
    return computed.as_double();
}

double ulp_distance(Lane lane, uint64_t result, long double exact) {
    if (lane == Lane::f32) return ulp_distance(__builtin_bit_cast(float, static_cast<uint32_t>(result)), exact);
    if (lane == Lane::f64) return ulp_distance(__builtin_bit_cast(double, result), exact);
    return static_cast<double>(fabsl(lane_value(lane, result) - exact));
}

}  // namespace reference
