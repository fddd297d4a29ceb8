// e^x, 2^x and 10^x in double precision.
//
// All but two native families take a table of powers between 2^n and 2^(n+1), and a short polynomial:
//
//   b^x = 2^n 2^(i/steps) P(r),   k = n steps + i = x log2(b) steps rounded,   r = x - k / (log2(b) steps)
//
//              steps   r               P
//   exp        1024    in two parts    degree 3, monic: its scale stands in the table
//   exp2       128     exact           degree 4
//   exp10      128     in two parts    degree 5
//   native
//   exp        64      in steps        degree 2, monic
//   others     1       exact           degree 6
//
// k comes from a shifter, a sum that leaves it in its low bits. 2^n is an integer addition to the exponent field, with
// no test. The accurate families are exact in that only while the result is a normal number, or nearly so: the test
// reads the high halves alone. What lies beyond, infinities and NaN are rare. The native families do not look: a lane
// out of range wraps, an infinity becomes NaN.
#include "frame/gather.h"
#include "frame/lane_frame.h"
#include "kernels/explog/exp_double_data.h"
#include "kernels/explog/rare_exp.h"

namespace zorv {
namespace {

Status exp_rare(const double* x, double* result) { return exponential_rare(exp_rare_data, *x, result); }
Status exp2_rare(const double* x, double* result) { return exponential_rare(exp2_rare_data, *x, result); }
Status exp10_rare(const double* x, double* result) { return exponential_rare(exp10_rare_data, *x, result); }

// Beyond the last operand of a normal result, on either side; as patterns, so that a NaN is beyond it too.
template <class Data>
L2 not_ordinary(D2 x, const Data& data) {
    return from_halves((halves(x) & data.magnitude) > data.last_ordinary);
}

// ---- Accurate. ---------------------------------------------------------------------------------------------

struct exp {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(exp_data);
        D2 t = x * data.steps_per_unit + data.shifter;
        L2 i = bits(t) & data.row_index;
        D2 power = gather_indexed(data.powers, offsets_of(i));
        D2 k = t - data.shifter;
        D2 r = (x - k * data.step_high) - k * data.step_low;
        D2 p = ((r + data.c2) * r + data.c1) * r + data.c0;
        D2 y = power * p;
        L2 n = (bits(t) ^ i) << 42;
        return {as_double(bits(y) + n), not_ordinary(x, data)};
    }
    static constexpr auto rare = exp_rare;
};

struct exp2 {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(exp2_data);
        D2 t = x + data.shifter;
        L2 i = bits(t) & data.row_index;
        D2 power = gather_indexed(data.powers, offsets_of(i));
        D2 k = t - data.shifter;
        D2 r = x - k;
        D2 p = horner(r, data.c3, data.c2, data.c1, data.c0);
        D2 y = p * (r * power) + power;
        L2 n = (bits(t) ^ i) << 45;
        return {as_double(bits(y) + n), not_ordinary(x, data)};
    }
    static constexpr auto rare = exp2_rare;
};

// 2^n goes to the table's power, before the polynomial.
struct exp10 {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(exp10_data);
        D2 t = x * data.steps_per_unit + data.shifter;
        L2 i = bits(t) & data.row_index;
        L2 n = (bits(t) << 45) & data.exponent;
        D2 power = as_double(bits(gather_indexed(data.powers, offsets_of(i))) + n);
        D2 k = t - data.shifter;
        D2 r = (x - k * data.step_high) - k * data.step_low;
        D2 p = horner(r, data.c4, data.c3, data.c2, data.c1, data.c0) * r;
        return {p * power + power, not_ordinary(x, data)};
    }
    static constexpr auto rare = exp10_rare;
};

// ---- Native. -----------------------------------------------------------------------------------------------

struct exp_native {
    static D2 main(D2 x) {
        const auto& data = in_memory(exp_native_data);
        D2 v = x * data.steps_per_unit;
        D2 t = v + data.shifter;
        L2 i = bits(t) & data.row_index;
        L2 n = (bits(t) ^ i) << 46;
        D2 power = as_double(bits(gather_indexed(data.powers, offsets_of(i))) + n);
        D2 r = v - (t - data.shifter);
        D2 p = (r + data.c1) * r + data.c0;
        return p * power;
    }
};

template <class Data>
D2 exp2_short(D2 x, const Data& data) {
    D2 t = x + data.shifter;
    D2 r = x - (t - data.shifter);
    D2 p = horner(r, data.c6, data.c5, data.c4, data.c3, data.c2, data.c1, data.c0);
    return as_double(bits(p) + (bits(t) << 52));
}

struct exp2_native {
    static D2 main(D2 x) {
        const auto& data = in_memory(exp2_native_data);
        return exp2_short(x, data);
    }
};

// 10^x = 2^(x log2(10)); the error of that one product grows with x.
struct exp10_native {
    static D2 main(D2 x) {
        const auto& data = in_memory(exp10_native_data);
        return exp2_short(x * data.log2_10, data);
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
