// The exact results of the operations, by base name, and the distance of a computed result from them.
//
// Every operation has its values in MPFR, to 200 bits. Most have a second reference in the C library's long double
// functions, whose 64 significant bits are far more than the lanes have and a hundred times as quick to get: it
// screens the operands, and only those that could be the worst so far are judged by MPFR. No figure that a user
// reads comes from the screen.
#pragma once

#include <mpfr.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "tools/calls.h"

namespace reference {

using grid::Lane;

class Real {
  public:
    static constexpr int precision = 200;

    Real() { mpfr_init2(value_, precision); }
    Real(const Real&) = delete;
    Real& operator=(const Real&) = delete;
    ~Real() { mpfr_clear(value_); }

    mpfr_ptr get() { return value_; }
    mpfr_srcptr get() const { return value_; }
    double as_double() const { return mpfr_get_d(value_, MPFR_RNDN); }

    // The value of a lane, exactly.
    void set(Lane lane, uint64_t bits);

  private:
    mpfr_t value_;
};

// The value of a floating or 32-bit integer lane; exact, as long double has room for every double.
long double lane_value(Lane lane, uint64_t bits);

struct Operation {
    std::string base;
    int results;  // how many of the family's results have a reference, from the first on
    // `lane` is the family's floating lane, for the few operations whose definition knows the format.
    void (*exact)(Lane lane, const Real* operands, Real* results);
    // To 60 significant bits or better; null where there is nothing good enough.
    void (*screen)(const long double* operands, long double* results);
};

const std::vector<Operation>& operations();
// The operation of this base name, or a null pointer.
const Operation* find(const std::string& base);

// Distance of a result from the exact value, in units of the format's spacing there: between two neighbouring numbers
// their distance, at a number itself the smaller of its two gaps, below the smallest normal the subnormals' spacing,
// above the largest number the top binade's. NaN agrees with NaN and an infinity with the values that round to it;
// from any other value it stands where the next power of two would. A disagreement about NaN or about an infinity
// that is exact counts as infinite. Integers differ by their difference.
double ulp_distance(Lane lane, uint64_t result, const Real& exact);
double ulp_distance(Lane lane, uint64_t result, long double exact);

// ---- The same for the screen, quick enough for all floats. ---------------------------------------------------

struct Format {
    int digits, lowest, highest;  // significant bits; exponents of the smallest normal and of the top binade
};
constexpr Format format_of(Lane lane) { return lane == Lane::f32 ? Format{24, -126, 127} : Format{53, -1022, 1023}; }

// The exponent of the spacing at a value whose own exponent is this.
inline int spacing_exponent(const Format& format, long exponent, bool power_of_two) {
    long binade = exponent - (power_of_two ? 1 : 0);
    return static_cast<int>(std::clamp<long>(binade, format.lowest, format.highest)) - (format.digits - 1);
}

// 2^n for all units of both formats.
class PowersOfTwo {
  public:
    PowersOfTwo();
    long double operator[](int n) const { return powers_[n + limit]; }

  private:
    static constexpr int limit = 1100;
    long double powers_[2 * limit + 1];
};
extern const PowersOfTwo power_of_two;

template <class Float>
inline double ulp_distance(Float result, long double exact) {
    constexpr Format format = format_of(sizeof(Float) == 4 ? Lane::f32 : Lane::f64);
    long double computed = result;
    if (computed == exact) return 0;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    if (computed != computed || exact != exact) return (computed != computed) == (exact != exact) ? 0 : infinity;
    if (exact - exact != 0) return infinity;
    if (computed - computed != 0) {
        long double limit = power_of_two[format.highest + 1] - power_of_two[format.highest - format.digits];
        if (std::signbit(computed) == std::signbit(exact) && fabsl(exact) >= limit) return 0;
        computed = copysignl(power_of_two[format.highest + 1], computed);
    }
    // A value that the screen puts on a power of two, or a little above, may lie below it, where the unit is half as
    // large: the larger distance is kept, and MPFR decides.
    uint64_t near = __builtin_bit_cast(uint64_t, static_cast<double>(exact));
    bool power = (near & 0x000fffffffffffff) < 2;
    int unit = spacing_exponent(format, static_cast<int>(near >> 52 & 0x7ff) - 1023, power);
    return static_cast<double>(fabsl(computed - exact) * power_of_two[-unit]);
}

// How far the screen's distance may lie below the true one, in ulp. The long double functions err by some units of
// 2^-63; that is 2^-37 ulp of a float and 0.01 ulp of a double. The tests compare every screen with MPFR, and a sweep
// does so again on a part of its operands.
constexpr double screen_margin(Lane lane) { return lane == Lane::f32 ? 0x1p-30 : 0.02; }

}  // namespace reference
