// What the tables of the powers share: numbers cut to few bits, and values kept as head and tail.
#pragma once

#include "tools/tables/table.h"

namespace tables {

inline Real power_of_two(int exponent) {
    Real result;
    mpfr_set_ui_2exp(result.get(), 1, exponent, MPFR_RNDN);
    return result;
}

// To a multiple of 2^-fraction_bits.
inline Real down_to(const Real& x, int fraction_bits) {
    Real result = x * power_of_two(fraction_bits);
    mpfr_floor(result.get(), result.get());
    return result / power_of_two(fraction_bits);
}
inline Real nearest_to(const Real& x, int fraction_bits) {
    Real result = x * power_of_two(fraction_bits);
    mpfr_rint(result.get(), result.get(), MPFR_RNDN);
    return result / power_of_two(fraction_bits);
}
// To this many significant bits, toward zero.
inline Real cut(const Real& x, int significant_bits) {
    Real result = x;
    mpfr_prec_round(result.get(), significant_bits, MPFR_RNDZ);
    mpfr_prec_round(result.get(), 400, MPFR_RNDN);
    return result;
}

inline Real reciprocal(double x) { return Real(1.0) / Real(x); }

// One row of a reduction stage: a short multiplier r and, as head and tail, the logarithm that it takes away.
inline void stage_row_f(const Real& r, const Real& log, int index) {
    Real head = down_to(log, 17);
    std::printf("        {%a, %a, %a},  // %d\n", r.as_double(), head.as_double(), (log - head).as_float(), index);
}
inline void stage_row_d(const Real& r, const Real& log, int index) {
    Real head = down_to(log, 42);
    std::printf("        {%a, %a, %a},  // %d\n", r.as_double(), head.as_double(), (log - head).as_double(), index);
}
inline void open(const char* member) { std::printf("    .%s =\n    {\n", member); }
inline void close() { std::printf("    },\n"); }

}  // namespace tables
