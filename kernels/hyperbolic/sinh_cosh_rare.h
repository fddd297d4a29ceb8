// sinh and cosh of one operand, complete by itself: what the rare lanes of both precisions go through. All in double,
// rounded once to the family's precision.
//
//   a = |x| = (64 m + j) ln(2)/64 + r,   e^a = 2^m 2^(j/64) e^r
#pragma once

#include "frame/pairs.h"
#include "frame/scalar.h"
#include "kernels/hyperbolic/hyperbolic_data.h"

namespace zorv {

struct ReducedOperand {
    int n;  // 64 m + j
    double r, tail;
};
inline ReducedOperand reduce(double a, const SinhCoshRareData& data) {
    double u = data.steps_per_ln2 * a + data.shifter;
    double k = u - data.shifter;
    double high = a - data.step_high * k;
    double low = k * data.step_low;
    double r = high - low;
    return {static_cast<int>(static_cast<uint32_t>(pattern(u))), r, (high - r) - low};
}

// e^a / 2, where e^-a is too small to matter.
inline double half_exponential(double a, const SinhCoshRareData& data) {
    auto [n, r, tail] = reduce(a, data);
    double p = ((((data.e6 * r + data.e5) * r + data.e4) * r + data.e3) * r + 0.5) * r * r + r;
    const PowerRow& power = data.powers[n & 63];
    double v = (p * power.head + power.tail) + power.head;
    int field = ((n >> 6) + 1022) & 0x7ff;
    if (field > 2046) return v * with_exponent_field<double>(field - 1) * 2.0;
    return v * with_exponent_field<double>(field);
}

// cosh and sinh of the whole steps of a, each as head and tail: e^a/2 by row j, e^-a/2 by row 64 - j.
struct WholeSteps {
    HeadTail<double> cosh, sinh;
};
inline WholeSteps whole_steps(int n, const SinhCoshRareData& data) {
    int m = n >> 6, j = n & 63;
    double up = power_of_two<double>(m - 1), down = power_of_two<double>(-m - 2);
    HeadTail<double> p = {up * data.powers[j].head, up * data.powers[j].tail};
    HeadTail<double> q = {down * data.powers[64 - j].head, down * data.powers[64 - j].tail};
    HeadTail<double> c = fast_two_sum(p.head, q.head), s = fast_two_sum(p.head, -q.head);
    return {{c.head, c.tail + (p.tail + q.tail)}, {s.head, s.tail + (p.tail - q.tail)}};
}

// cosh r - 1 and sinh r - r.
struct SmallParts {
    double cosh, sinh;
};
inline SmallParts small_parts(double r, const SinhCoshRareData& data) {
    double q = r * r;
    return {((data.e6 * q + data.e4) * q + 0.5) * q, (data.e5 * q + data.e3) * q * r};
}

//   S cosh r + C sinh r = S + r C + (cosh r - 1) S + (sinh r - r) C
inline double sinh_of_sum(double a, const SinhCoshRareData& data) {
    auto [n, r, r_tail] = reduce(a, data);
    auto [c, s] = whole_steps(n, data);
    SmallParts small = small_parts(r, data);
    HeadTail<double> rs = split_by_product<double>(r, data.split), cs = split_by_product<double>(c.head, data.split);
    double middle = rs.head * cs.head;  // exact
    double low = ((rs.tail * cs.tail + (s.tail + (r_tail * c.head + r * c.tail))) + small.sinh * c.head) +
                 ((rs.tail * cs.head + rs.head * cs.tail) + small.cosh * s.head);
    HeadTail<double> sum = two_sum(s.head, middle);
    return sum.head + (sum.tail + low);
}

//   C cosh r + S sinh r = C + r S + (cosh r - 1) C + (sinh r - r) S
inline double cosh_of_sum(double a, const SinhCoshRareData& data) {
    auto [n, r, r_tail] = reduce(a, data);
    auto [c, s] = whole_steps(n, data);
    SmallParts small = small_parts(r, data);
    double low = c.tail + (r_tail * s.head + r * s.tail);
    return c.head + (((low + small.sinh * s.head) + small.cosh * c.head) + r * s.head);
}

template <class Float>
Status sinh_complete(const SinhCoshRareData& data, const Float* operand, Float* result) {
    double x = *operand, a = magnitude_of(x);
    auto deliver = [result](double y) {
        *result = static_cast<Float>(y);
        return RARE_OK;
    };
    if (is_infinite_or_nan(x)) return deliver(x + x);
    if (is_zero_or_subnormal(x)) return deliver(x + x * data.tiny);
    if (exponent_field(x) < 970) return deliver((1.0 + data.tiny) * x);
    if (a >= data.first_infinite) {
        deliver(opaque(Fields<double>::largest) * x);
        return RARE_OVERFLOW;
    }
    if (a >= data.one_exponential) return deliver(or_sign_of(half_exponential(a, data), x));
    if (a < data.short_series) {
        double q = a * a;
        return deliver(or_sign_of(a + q * horner(q, data.series) * a, x));
    }
    return deliver(or_sign_of(sinh_of_sum(a, data), x));
}

template <class Float>
Status cosh_complete(const SinhCoshRareData& data, const Float* operand, Float* result) {
    double x = *operand, a = magnitude_of(x);
    auto deliver = [result](double y) {
        *result = static_cast<Float>(y);
        return RARE_OK;
    };
    if (is_infinite_or_nan(x)) return deliver(x * x);
    if (exponent_field(x) < 970) return deliver(1.0 + a);
    if (a >= data.first_infinite) {
        deliver(opaque(Fields<double>::largest) * opaque(Fields<double>::largest));
        return RARE_OVERFLOW;
    }
    if (a < data.one_exponential) return deliver(cosh_of_sum(a, data));
    return deliver(half_exponential(a, data));
}

}  // namespace zorv
