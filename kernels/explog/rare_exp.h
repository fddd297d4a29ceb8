// Scalar exponentials, for lanes whose result is not an ordinary normal number, in both precisions.
//
//   b^x = 2^n 2^(j/steps) P(r),   in single precision without the steps between 2^n and 2^(n+1)
//
// 2^n may be no normal number; then it is applied as two factors, in such an order that the result is rounded once.
#pragma once

#include "frame/scalar.h"
#include "kernels/explog/exp_double_data.h"
#include "kernels/explog/explog_float_data.h"

namespace zorv {

// ---- Single precision, finite operands whose result is finite and not zero. --------------------------------------

inline constexpr float float_shifter = 0x1.8p23f;
// n of a sum with the shifter.
inline int whole_steps(float shifted) { return static_cast<int16_t>(pattern(shifted)); }

// e^x and 10^x: the sum that holds n, and the polynomial.
struct ReducedExponential {
    float shifted, p;
};
template <int degree>
inline ReducedExponential reduced_exponential(float x, const ExponentialRareData<degree>& data) {
    float t = data.log2_base * x + float_shifter;
    float k = t - float_shifter;
    float r = (x - k * data.log_2_high) - k * data.log_2_low;
    return {t, horner(r, data.p)};
}
template <int degree>
inline Status in_range(const ExponentialRareData<degree>& data, float x, float* result) {
    auto [t, p] = reduced_exponential(x, data);
    int n = whole_steps(t);
    if (!(x >= data.last_normal)) {  // one rounding, in the last product
        *result = p * with_exponent_field<float>(n - 69) * 0x1p-60f;
        return RARE_UNDERFLOW;
    }
    if (n > 127)  // 2^n itself is no float
        *result = p * with_exponent_field<float>(n + 126) * 2.0f;
    else
        *result = p * with_exponent_field<float>(n + 127);
    return RARE_OK;
}

// 2^x.
inline Status in_range(const Exp2fRareData& data, float x, float* result) {
    float t = x + float_shifter;
    float r = x - (t - float_shifter);
    int n = whole_steps(t);
    float p = horner(r, data.p);
    if (n < 104) {  // zero for n = -150
        *result = p * with_exponent_field<float>(n - 106) * 0x1p-23f;
        return x < data.last_normal ? RARE_UNDERFLOW : RARE_OK;
    }
    *result = p * with_exponent_field<float>(n) * 0x1p127f;  // infinite for n = 128
    return RARE_OK;
}

// ---- Double precision, the same: n and a row of the table, in head and tail, for 64ths. --------------------------

inline int whole_steps(double shifted) { return static_cast<int32_t>(pattern(shifted)) >> 6; }
inline const ExpRareRow& row_of(double shifted, const ExpRareRow* rows) { return rows[pattern(shifted) & 63]; }

// e^r - 1 and 10^r - 1.
inline double beyond_one(double r, const ExpRareData<Natural>& data) { return horner(r, data.p) * r * r + r; }
inline double beyond_one(double r, const ExpRareData<Decimal>& data) { return horner(r, data.p) * r; }

template <class Base>
inline Status in_range(const ExpRareData<Base>& data, double x, double* result) {
    constexpr double shifter = 0x1.8p52;
    double t = data.steps_per_unit * x + shifter;
    double k = t - shifter;
    double r = (x - k * data.step_high) - k * data.step_low;
    const ExpRareRow& row = row_of(t, data.rows);
    int n = whole_steps(t);
    double v = (beyond_one(r, data) + row.rest) * row.power;

    if (!(x >= data.last_normal)) {
        double scale = with_exponent_field<double>(n + 1083);  // 2^(n + 60)
        double head = scale * row.power;
        v = v * scale;
        if (exponent_field(scale) > 50) {  // two short parts, both of which 2^-60 leaves exact: their sum alone rounds
            double w = head + v;
            double tail = v + (head - w);
            double wh = (w + w * 0x1.8p32) - w * 0x1.8p32;
            *result = wh * 0x1p-60 + ((w - wh) + tail) * 0x1p-60;
        } else {
            *result = (head + v) * 0x1p-60;
        }
        return RARE_UNDERFLOW;
    }
    if (n > 1023)  // 2^n itself is no double
        *result = (v + row.power) * with_exponent_field<double>(n + 1022) * 2.0;
    else
        *result = (v + row.power) * with_exponent_field<double>(n + 1023);
    return RARE_OK;
}

// 2^x.
inline Status in_range(const Exp2RareData& data, double x, double* result) {
    constexpr double shifter = 0x1.8p46;
    double t = x + shifter;
    double r = x - (t - shifter);
    const ExpRareRow& row = row_of(t, data.rows);
    int n = whole_steps(t);
    double q = (horner(r, data.p) * r + row.rest) * row.power + row.power;
    if (!(x >= data.last_normal)) {
        *result = with_exponent_field<double>(n + 1123) * q * 0x1p-100;
        return RARE_UNDERFLOW;
    }
    if (n > 1023)
        *result = with_exponent_field<double>(n + 1022) * q * 2.0;
    else
        *result = with_exponent_field<double>(n + 1023) * q;
    return RARE_OK;
}

// ---- All: infinities, NaN, overflow and underflow. ---------------------------------------------------------------

template <class Data, class Float>
inline Status exponential_rare(const Data& data, Float x, Float* result) {
    if (is_infinite_or_nan(x)) {
        *result = is_negative_infinity(x) ? 0 : x * x;
        return RARE_OK;
    }
    if (!(x <= data.last_finite)) return overflow_result(result);
    if (!(x >= data.last_nonzero)) return underflow_result(result);
    return in_range(data, x, result);
}

}  // namespace zorv
