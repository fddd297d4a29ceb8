// Constants and tables of tgamma.
#pragma once

#include "frame/polynomial.h"
#include "frame/x87.h"

namespace zorv {

// gamma(base + t), t in [0, 1): scale times the product of t^2 + b[i] t + c[i].
template <class Real, int quadratics>
struct GammaRow {
    Scalar<Real> b[quadratics], c[quadratics], scale;
};
// gamma(z) on a part of [1, 2), in powers of z - centre.
template <class Real, int terms>
struct GammaPiece {
    Scalar<Real> centre;
    ScalarCoefficients<Real, terms> c;
};

struct TgammafData {
    GammaRow<double, 6> rows[6];      // bases 2, 8, 16, 24, 32, 40
    GammaPiece<double, 8> pieces[4];  // quarters of [1, 2)
    Scalar<double> last_factor;       // of row 5
    // sin(pi f)/pi = f + (linear[0] q + linear[1]) q (product of q^2 + b[i] q + c[i]) f, q = f^2.
    Scalar<double> linear[2], b[3], c[3];
    Scalar<float> shifter, overflow;  // 1.5 * 2^23; the first operand whose gamma is infinite
};
struct TgammaData {
    GammaRow<long double, 11> rows[12];        // bases 2, 16, 32, ... 176
    GammaPiece<long double, 16> pieces[3];     // quarters of [1, 2), the last two of them as one
    Scalar<long double> last_factor;           // of row 11
    ScalarCoefficients<long double, 10> sine;  // sin(pi f)/pi = f + f q (polynomial in q = f^2)
    Scalar<double> shifter, overflow;
};
HIDDEN extern const TgammafData tgammaf_data;
HIDDEN extern const TgammaData tgamma_data;

}  // namespace zorv
