// e^x - 1, exact near 0, in single and double precision.
//
//   e^x = A e^r,   A = 2^(k/N) from a table and the exponent field,   k = x N log2(e) rounded,   r = x - k ln(2)/N
//   e^x - 1 = A q + (A - 1),   q = e^r - 1
//
// Around 0 A is 1, and A - 1 vanishes. In the accurate families A has few bits, so that A - 1 is exact, and a tail B;
// ln(2)/N is in two parts.
//
//                      N      q
//   single             64     degree 3
//   double             128    degree 5
//   single, native     32     degree 2
//   double, native     128    degree 3
//
// At the end the sign of x is ORed in: for -0, as the sign of every other result is that of x. The accurate families
// have their rare lanes where e^x may overflow, and on the negative side where the result is -1; infinities and NaN are
// rare too. The native families do not look: a lane out of range has a wrong exponent, an infinity becomes NaN.
#include "frame/gather.h"
#include "frame/lane_frame.h"
#include "kernels/explog/expm1_data.h"
#include "kernels/explog/rare_exp.h"

namespace zorv {
namespace {

// ---- Rare lanes: far from 0, where the 1 does not count. ---------------------------------------------------------

Status expm1f_rare(const float* operand, float* result) {
    float x = *operand;
    if (0 > x) {
        *result = -1;
        return RARE_OK;
    }
    if (is_infinite_or_nan(x)) {
        *result = x * x;
        return RARE_OK;
    }
    if (!(x <= expf_rare_data.last_finite)) return overflow_result(result);
    auto [t, p] = reduced_exponential(x, expf_rare_data);
    *result = from_pattern(pattern(p) + (pattern(t) << 23));
    return RARE_OK;
}

Status expm1_rare(const double* operand, double* result) {
    double x = *operand;
    if (0 > x) {
        *result = -1;
        return RARE_OK;
    }
    return exponential_rare(exp_rare_data, x, result);
}

// ---- What the families share. ------------------------------------------------------------------------------

// k, the byte offset of its row, and 2^(k/N) rounded down: `shift` takes the exponent to its field.
template <class Value, class Integer>
struct Steps {
    Value k;
    Integer row;
    Integer power;
};
template <int shift, class Value, class Data>
inline auto steps_of(Value x, const Data& data) {
    Value k = (x * data.steps_per_unit + data.shifter) - data.shifter;
    auto fields = bits(k + data.field_shifter);
    return Steps<Value, decltype(fields)>{k, fields & data.row_offset, (fields & data.exponent) << shift};
}

template <class Value, class Integer, class Data>
inline Value reduced_argument(Value x, const Steps<Value, Integer>& steps, const Data& data) {
    return (x - steps.k * data.step_high) - steps.k * data.step_low;
}

// A q + (A - 1), with A in head and tail.
template <class Value, class Data>
inline Value minus_one(Value head, Value tail, Value q, const Data& data) {
    return (head + tail) * q + ((head - data.one) + tail);
}

template <class Value, class Data>
inline auto not_ordinary(Value x, const Data& data) {
    return ~(and_bits(x, data.magnitude) <= data.last_ordinary);
}

// ---- Accurate. ---------------------------------------------------------------------------------------------

struct expm1f {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(expm1f_data);
        auto steps = steps_of<14>(x, data.steps);
        auto [field, rest] = gather_pair(data.powers, offsets_of(steps.row));
        F4 r = reduced_argument(x, steps, data);
        F4 q = (r * data.c3 + data.c2) * (r * r) + r;
        F4 head = or_bits(field, steps.power);
        F4 tail = rest * as_float(steps.power);
        F4 y = minus_one(head, tail, q, data);
        return {or_bits(y, bits(x) & data.sign), not_ordinary(x, data)};
    }
    static constexpr auto rare = expm1f_rare;
};

struct expm1 {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(expm1_data);
        auto steps = steps_of<41>(x, data.steps);
        auto [field, rest] = gather_pair(data.powers, offsets_of(steps.row));
        D2 r = reduced_argument(x, steps, data);
        D2 r2 = r * r;
        D2 q = ((r * data.c5 + data.c4) * r2 + (r * data.c3 + data.c2)) * r2 + r;
        D2 head = or_bits(field, steps.power);
        D2 tail = rest * as_double(steps.power);
        D2 y = minus_one(head, tail, q, data);
        return {or_bits(y, bits(x) & data.sign), not_ordinary(x, data)};
    }
    static constexpr auto rare = expm1_rare;
};

// ---- Native. -----------------------------------------------------------------------------------------------

struct expm1f_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(expm1f_native_data);
        auto steps = steps_of<16>(x, data.steps);
        U4 field = gather(data.powers, offsets_of(steps.row));
        F4 r = x - steps.k * data.step;
        F4 q = data.c2 * (r * r) + r;
        F4 power = as_float(signed_lanes(field) | steps.power);
        // In order: the power of a NaN may be another NaN.
        F4 y = add_in_order(power - data.one, power * q);
        return or_bits(y, bits(x) & data.sign);
    }
};

struct expm1_native {
    static D2 main(D2 x) {
        const auto& data = in_memory(expm1_native_data);
        auto steps = steps_of<42>(x, data.steps);
        UL2 field = gather(data.powers, offsets_of(steps.row));
        D2 r = x - steps.k * data.step;
        D2 q = (r * data.c3 + data.c2) * (r * r) + r;
        D2 power = as_double(signed_lanes(field) | steps.power);
        D2 y = power * q + (power - data.one);
        return or_bits(y, bits(x) & data.sign);
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
