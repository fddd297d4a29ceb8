// What the tables of lgamma are fitted to, and numbers of the 80-bit format as their rows have them.
#pragma once

#include <cstring>

#include "tools/tables/remez.h"

namespace tables {

inline Real log_gamma(const Real& x) {
    Real result;
    int sign;
    mpfr_lgamma(result.get(), &sign, x.get(), MPFR_RNDN);
    return result;
}
inline Real digamma(const Real& x) {
    Real result;
    mpfr_digamma(result.get(), x.get(), MPFR_RNDN);
    return result;
}

// The slope of ln|gamma| between x and x + w; of the tangent where w is too small for the difference.
inline Real slope_of_log_gamma(const Real& x, const Real& w) {
    if (magnitude(w) < magnitude(x) * Real(0x1p-90)) return digamma(x);
    return (log_gamma(x + w) - log_gamma(x)) / w;
}

// {sign and exponent, significand}. This program's long double is that format.
struct Extended {
    uint64_t significand;
    uint16_t sign_and_exponent;
};
inline Extended extended(const Real& x) {
    long double number = mpfr_get_ld(x.get(), MPFR_RNDN);
    Extended bits = {};
    std::memcpy(&bits, &number, 10);
    return bits;
}
inline void print(const Extended& x) {
    std::printf("{0x%04x, 0x%016llx}", x.sign_and_exponent, static_cast<unsigned long long>(x.significand));
}

}  // namespace tables
