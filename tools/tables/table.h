// What the table generators share: exact values in MPFR, printed as rows of C++ initialisers.
//
// A generator prints one table to standard output. The committed table, in kernels/*/tables/, must equal that output;
// the test suite compares them.
#pragma once

#include <mpfr.h>

#include <cstdint>
#include <cstdio>
#include <type_traits>

namespace tables {

// A number of 400 bits, enough for every rounding asked of it here.
class Real {
  public:
    Real() { mpfr_init2(value_, 400); }
    Real(double x) : Real() { mpfr_set_d(value_, x, MPFR_RNDN); }
    Real(const Real& other) : Real() { mpfr_set(value_, other.value_, MPFR_RNDN); }
    Real& operator=(const Real& other) {
        mpfr_set(value_, other.value_, MPFR_RNDN);
        return *this;
    }
    ~Real() { mpfr_clear(value_); }
    mpfr_ptr get() { return value_; }
    mpfr_srcptr get() const { return value_; }

    // Rounded to nearest, to this many significant bits.
    Real rounded(int significant_bits) const {
        Real result = *this;
        mpfr_prec_round(result.value_, significant_bits, MPFR_RNDN);
        mpfr_prec_round(result.value_, 400, MPFR_RNDN);
        return result;
    }
    // Cut off toward zero, to this many significant bits.
    Real truncated(int significant_bits) const {
        Real result = *this;
        mpfr_prec_round(result.value_, significant_bits, MPFR_RNDZ);
        mpfr_prec_round(result.value_, 400, MPFR_RNDN);
        return result;
    }
    double as_double() const { return mpfr_get_d(value_, MPFR_RNDN); }
    float as_float() const { return mpfr_get_flt(value_, MPFR_RNDN); }

  private:
    mpfr_t value_;
};

#define TABLES_BINARY(symbol, function)                         \
    inline Real operator symbol(const Real& a, const Real& b) { \
        Real result;                                            \
        function(result.get(), a.get(), b.get(), MPFR_RNDN);    \
        return result;                                          \
    }
TABLES_BINARY(+, mpfr_add)
TABLES_BINARY(-, mpfr_sub)
TABLES_BINARY(*, mpfr_mul)
TABLES_BINARY(/, mpfr_div)
#undef TABLES_BINARY

#define TABLES_UNARY(name, function)                \
    inline Real name(const Real& x) {               \
        Real result;                                \
        function(result.get(), x.get(), MPFR_RNDN); \
        return result;                              \
    }
TABLES_UNARY(sqrt, mpfr_sqrt)
TABLES_UNARY(rsqrt, mpfr_rec_sqrt)
TABLES_UNARY(log, mpfr_log)
TABLES_UNARY(log2, mpfr_log2)
TABLES_UNARY(log10, mpfr_log10)
TABLES_UNARY(exp, mpfr_exp)
TABLES_UNARY(exp2, mpfr_exp2)
TABLES_UNARY(sin, mpfr_sin)
TABLES_UNARY(cos, mpfr_cos)
TABLES_UNARY(atan, mpfr_atan)
TABLES_UNARY(tanh, mpfr_tanh)
TABLES_UNARY(erf, mpfr_erf)
TABLES_UNARY(erfc, mpfr_erfc)
#undef TABLES_UNARY

inline Real pi() {
    Real result;
    mpfr_const_pi(result.get(), MPFR_RNDN);
    return result;
}

// To the nearest multiple of 2^-bits.
inline Real to_fraction_bits(const Real& x, int bits) {
    Real result;
    mpfr_mul_2si(result.get(), x.get(), bits, MPFR_RNDN);
    mpfr_rint(result.get(), result.get(), MPFR_RNDN);
    mpfr_div_2si(result.get(), result.get(), bits, MPFR_RNDN);
    return result;
}
template <class Pattern>
auto number(Pattern pattern) {
    return __builtin_bit_cast(std::conditional_t<sizeof pattern == 8, double, float>, pattern);
}

inline void header(const char* what, const char* generator) {
    std::printf("// %s\n// Written by tools/tables/%s.cpp; do not edit.\n// clang-format off\n", what, generator);
}
inline void row(double x, int index) { std::printf("    %a,  // %d\n", x, index); }
inline uint32_t pattern(float x) { return __builtin_bit_cast(uint32_t, x); }
inline uint64_t pattern(double x) { return __builtin_bit_cast(uint64_t, x); }

}  // namespace tables
