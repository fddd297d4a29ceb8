// Constants of the hyperbolic functions.
#pragma once

#include "frame/polynomial.h"
#include "frame/record.h"

namespace zorv {

// ---- sinh and cosh, single precision. ----------------------------------------------------------------------

// a = k ln 2 + r, and 2^k as half of it, upwards and downwards.
struct WholePowersData {
    Slot<float> log2_e, shifter, ln2_high, ln2_low;
    Slot<int32_t> half;
};
// sinh r = r + r^3 (...) by s, cosh r = 1 + r^2 (...) by c.
struct SinhCoshfData {
    Slot<int32_t> magnitude, sign, last_ordinary;
    WholePowersData powers;
    Coefficients<float, 2> s;
    Coefficients<float, 3> c;
};
// sinh r = r (...) by s, cosh r = 1 + r^2 (...) by c.
struct SinhCoshfNativeData {
    Slot<int32_t> magnitude, sign;
    WholePowersData powers;
    Coefficients<float, 2> s, c;
};

HIDDEN extern const SinhCoshfData sinhf_data;
HIDDEN extern const SinhCoshfData coshf_data;
HIDDEN extern const SinhCoshfNativeData sinhf_native_data;
HIDDEN extern const SinhCoshfNativeData coshf_native_data;

// ---- sinh and cosh, double precision. ----------------------------------------------------------------------

// a = (a whole number) ln(2)/steps + r.
struct StepsData {
    Slot<double> steps_per_ln2, shifter, step_high, step_low;
    Slot<int64_t> row_index;
};
struct SinhRow {
    double sinh, half_power;  // sinh(j ln(2)/128), 2^(-j/128)/2
};
struct SinhData {
    Slot<int64_t> magnitude, sign;
    Slot<int32_t> last_ordinary;  // of the high halves
    StepsData steps;
    Coefficients<double, 2> s, c;
    alignas(64) SinhRow rows[128];
};
struct CoshData {
    Slot<int64_t> magnitude, exponent, smallest_normal;
    Slot<int32_t> last_ordinary;  // of the high halves
    StepsData steps;
    Coefficients<double, 1> s;
    Coefficients<double, 2> c;
    alignas(64) double half_powers[257];  // 2^(j/256)/2
};

HIDDEN extern const SinhData sinh_data;
HIDDEN extern const SinhData sinh_native_data;
HIDDEN extern const CoshData cosh_data;
HIDDEN extern const CoshData cosh_native_data;

// ---- tanh. -------------------------------------------------------------------------------------------------

// A row is chosen by the leading bits of the operand. The clamps are compared by 16-bit words.
struct TanhfRow {
    double c0, c1, c2, c3;  // of powers of |x|
};
struct TanhfData {
    Slot<int32_t> leading, last_ordinary, first_row, last_row;
    Slot<int32_t> magnitude, sign;
    alignas(64) TanhfRow rows[134];
};
struct TanhRow {
    double c0_tail;  // a finer c0 than any result needs
    double c[11];    // of powers of |x| + d, from c0 to c10
    double d, one;
    double zeros[2];
};
struct TanhData {
    Slot<int64_t> leading;
    Slot<int32_t> last_ordinary, first_ordinary;  // of the high halves
    Slot<int64_t> first_row, last_row;
    Slot<int64_t> magnitude, sign;
    alignas(64) TanhRow rows[60];
};

HIDDEN extern const TanhfData tanhf_data;
HIDDEN extern const TanhfData tanhf_native_data;
HIDDEN extern const TanhData tanh_data;
HIDDEN extern const TanhData tanh_native_data;

// ---- Rare lanes of sinh and cosh, in double for both precisions. -------------------------------------------

struct PowerRow {
    double head, tail;  // 2^(j/64)
};
struct SinhCoshRareData {
    Scalar<double> first_infinite;
    Scalar<double> one_exponential;  // from here on e^-a does not reach the result
    Scalar<double> short_series;     // below, the series of sinh in x alone
    Scalar<double> steps_per_ln2, shifter, step_high, step_low;
    Scalar<double> e3, e4, e5, e6;  // near 1/3!, 1/4!, ...
    ScalarCoefficients<double, 4> series;
    Scalar<double> split, tiny;
    PowerRow powers[65];
};

HIDDEN extern const SinhCoshRareData sinhf_rare_data;
HIDDEN extern const SinhCoshRareData coshf_rare_data;
HIDDEN extern const SinhCoshRareData sinh_rare_data;
HIDDEN extern const SinhCoshRareData cosh_rare_data;

}  // namespace zorv
