// Complete scalar logarithms, natural and to base 10 in both precisions and to base 2 in single: for subnormal
// operands, zeros, negative numbers, infinities and NaNs, which main paths leave to them, but right for every number.
//
// About 1 it is a polynomial alone. Elsewhere x = 2^k y, y in [1, 2), and a table of 65 rows has a short reciprocal c:
//
//   y c = 1 + w,   w = a + b in two parts, a exact;   log x = k log 2 - log c + log(1 + w)
#pragma once

#include "frame/scalar.h"
#include "kernels/explog/rare_log_data.h"

namespace zorv {

// y as a head, short enough for an exact product with c, and a tail; y chooses the row about it.
template <class Float>
struct TableOperand {
    Float head, tail;
    unsigned row;
};
template <class Float>
inline TableOperand<Float> table_operand(Float x, const MantissaCutData<Float>& data) {
    Float y = with_exponent_of_one(x);
    Float head = (y + data.head_shifter) - data.head_shifter;
    return {head, y - head, static_cast<unsigned>(pattern(y + data.row_shifter)) & 127};
}

// ---- ln x. -------------------------------------------------------------------------------------------------

template <class Float>
inline Float beyond_linear(Float w, const NaturalLogRareData<Float>& data) {
    return horner(w, data.p) * w * w;
}
template <class Float>
inline Float near_one(Float d, const NaturalLogRareData<Float>& data) {
    return d + beyond_linear(d, data);
}
template <class Float>
inline Float by_table(Float k, TableOperand<Float> y, bool was_subnormal, const NaturalLogRareData<Float>& data) {
    const LogRareRow<Float>& row = data.rows[y.row];
    const TwoParts<Float>& log_2 = was_subnormal ? data.log_2_of_subnormals : data.log_2;
    Float high = k * log_2.high + row.high;
    Float low = k * log_2.low + row.low;
    Float a = y.head * row.c - 1;
    Float b = row.c * y.tail;
    Float q = beyond_linear(a + b, data);
    return (a + high) + ((b + low) + q);
}

// ---- Other bases: a, b and w are in a unit that makes log(1 + w) = w + w P(w), P small or near -1. ---------------

template <class Float>
inline Float near_one(Float d, const ScaledLogRareData<Float>& data) {
    Float v = d * data.unit;
    return v + horner(v, data.p) * v;
}
template <class Float>
inline Float by_table(Float k, TableOperand<Float> y, bool, const ScaledLogRareData<Float>& data) {
    const LogRareRow<Float>& row = data.rows[y.row];
    Float a = y.head * row.c - data.unit;
    Float b = row.c * y.tail;
    Float p = horner(a + b, data.p);
    Float low = k * data.log_2.low + row.low;
    Float t = (b + (low + b * p)) + a * p;
    return ((data.log_2.high * k + row.high) + a) + t;
}

// ---- Both. -------------------------------------------------------------------------------------------------

// Pole and domain results come from true divisions, which raise the flags.
template <class Float, class Data>
inline Status logarithm_rare(const Data& data, Float x, Float* result) {
    if (is_infinite_or_nan(x)) {
        if (x == -__builtin_inff()) return domain_result(result);
        *result = x * x;
        return RARE_OK;
    }
    bool subnormal = is_zero_or_subnormal(x);
    if (subnormal) x = x * data.subnormal.factor;
    if (x > 0) {
        Float d = x - 1;
        if (!(magnitude_of(d) > data.near_one)) {
            *result = near_one(d, data);
            return RARE_OK;
        }
        Float k = static_cast<Float>(unbiased_exponent(x) - (subnormal ? data.subnormal.exponents : 0));
        *result = by_table(k, table_operand(x, data.cut), subnormal, data);
        return RARE_OK;
    }
    if (x == 0) return pole_result(Float(-1), result);
    return domain_result(result);
}

}  // namespace zorv
