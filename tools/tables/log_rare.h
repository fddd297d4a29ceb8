// The tables of the scalar logarithms: row i is chosen by a mantissa about 1 + i/64 and holds a short
// reciprocal c of it, times the unit of the family, and minus the logarithm of c in two parts, the first short.
#pragma once

#include "tools/tables/table.h"

namespace tables {

inline Real floor(const Real& x) {
    Real result;
    mpfr_floor(result.get(), x.get());
    return result;
}

// 1/(1 + i/64) to a multiple of 2^-bits. No quotient lies half way between two multiples.
inline Real short_reciprocal(int i, int bits) {
    Real one_step = 1.0 / (1 << bits);
    return floor(Real(64.0) / Real(64.0 + i) / one_step + Real(0.5)) * one_step;
}

// A positive product of few bits, to float; half a unit rounds upward.
inline float rounded_half_up(const Real& x) {
    Real unit;
    mpfr_set_ui_2exp(unit.get(), 1, mpfr_get_exp(x.get()) - 24, MPFR_RNDN);
    return (floor(x / unit + Real(0.5)) * unit).as_float();
}

// `minus_log` cut down to `high_bits` fraction bits, and the rest as a float.
inline void log_row(float c, const Real& minus_log, int high_bits, int index) {
    Real step = 1.0 / (1 << high_bits);
    Real high = floor(minus_log / step) * step;
    std::printf("    {%a, %a, %a},  // %d\n", c, high.as_float(), (minus_log - high).as_float(), index);
}

// The same in double: `minus_log` rounded to `high_bits` fraction bits, and the rest.
inline void log_row(double c, const Real& minus_log, int high_bits, int index) {
    Real high = to_fraction_bits(minus_log, high_bits);
    std::printf("    {%a, %a, %a},  // %d\n", c, high.as_double(), (minus_log - high).as_double(), index);
}
// Row 64 is log(2), cut like the constant that exponents are multiplied by: the two cancel.
inline int high_bits_of_row(int i) { return i == 64 ? 42 : 37; }

}  // namespace tables
