// Constants and tables of lgamma and lgammar. Double numbers widen to the 80-bit format where they are used.
#pragma once

#include "frame/polynomial.h"
#include "frame/x87.h"

namespace zorv {

// A polynomial, by power, the lowest first: the first few coefficients in the 80-bit format, the others doubles.
template <int extended_terms, int terms>
struct Powers {
    static constexpr int count = terms;
    Scalar<long double> low[extended_terms];
    Scalar<double> high[terms - extended_terms];

    long double operator[](int power) const {
        return power < extended_terms ? low[power] : static_cast<long double>(double(high[power - extended_terms]));
    }
};
template <int terms>
struct Powers<0, terms> {
    static constexpr int count = terms;
    Scalar<double> c[terms];

    long double operator[](int power) const { return double(c[power]); }
};

// A zero of ln|gamma|: a polynomial in x - zero, between the bounds.
template <class Polynomial>
struct GammaRoot {
    Scalar<double> low, zero, high;
    Polynomial p;
};

// ---- The logarithm. ----------------------------------------------------------------------------------------

// A 256th of [1, 2): a short reciprocal of its middle, and -ln r; the head has 21 bits.
struct LogPart {
    float r;
    double tail, head;
};
// (ln(1 + e) - e)/e^2 in even and odd powers, by chains in e^2, the highest first. The chains of small e begin at the
// cube, as the square needs more care.
template <class Lane, int even_terms, int odd_terms, int small_even_terms, int small_odd_terms>
struct LogData {
    ScalarCoefficients<Lane, even_terms> even;
    ScalarCoefficients<Lane, odd_terms> odd;
    ScalarCoefficients<Lane, small_even_terms> small_even;
    ScalarCoefficients<Lane, small_odd_terms> small_odd;
    Scalar<double> ln2_head, ln2_tail;
};

// ---- The two precisions. -----------------------------------------------------------------------------------

struct LgammafData {
    Scalar<float> overflow, shifter;
    Scalar<long double> half_ln_2pi;
    Powers<0, 9> quarters[4];  // of [1, 2), in x; the second one in x - centre
    Scalar<double> centre;
    Powers<0, 11> two_to_four;                 // ln gamma(x)/(x - 2)
    GammaRoot<Powers<0, 4>> roots[2][2];       // in (-3, -2) and in (-4, -3)
    ScalarCoefficients<double, 8> reflection;  // ln(sin(pi f)/(pi f))/q in q = f^2
    LogData<double, 3, 2, 4, 4> log;
    Scalar<double> just_above_one[4];  // ln(1 + e) for tiny e
};

// scale times the product of t^2 + b t + c.
struct GammaFactors {
    struct {
        Scalar<long double> c, b;
    } quadratic[11];
    Scalar<long double> scale;
};
struct LgammaData {
    Scalar<double> overflow, shifter;
    Scalar<long double> half_ln_2pi, twelfth, stirling_cubed;
    struct {
        Scalar<long double> centre;
        Powers<6, 18> p;
    } pieces[3];           // [0.875, 1.25), [1.25, 1.75), [1.75, 2.25), in x - centre
    GammaFactors to_four;  // [2.25, 4), in x; divided by x - 2
    ScalarCoefficients<long double, 17> reflection;
    LogData<long double, 4, 3, 6, 6> log;
};

HIDDEN extern const LogPart lgamma_log_parts[256];
HIDDEN extern const LgammafData lgammaf_data;
HIDDEN extern const Powers<0, 11> lgammaf_rows[11];  // [4, 8), [8, 16), ... of 4 (1 + t), 8 (1 + t), ...
HIDDEN extern const LgammaData lgamma_data;
HIDDEN extern const GammaFactors lgamma_rows[7];
HIDDEN extern const GammaRoot<Powers<5, 17>> lgamma_roots[13][2];  // in (-3, -2), (-4, -3), ... (-15, -14)

}  // namespace zorv
