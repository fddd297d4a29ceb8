// 1/x and x/y.
//
// Accurate: the hardware's correctly rounded divide on every lane; the rare lanes are the poles, whose value the
// divide has already given.
// Native: in single precision the hardware's reciprocal estimate, never a divide; in double one divide for four
// units at the widths that fill such a batch, and at width 1 the same steps.
#include "frame/lane_frame.h"
#include "kernels/quotients/quotients_data.h"

namespace zorv {
namespace {

// ---- Accurate. ---------------------------------------------------------------------------------------------

struct invf {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(invf_data);
        return {data.one / x, x == data.zero};
    }

    static Status rare(const float* x, float* result) {
        *result = 1.0f / *x;
        return *x == 0.0f ? RARE_POLE : RARE_OK;
    }
};

struct divf {
    static Lanes<F4> main(F4 x, F4 y) {
        const auto& data = in_memory(divf_data);
        return {x / y, y == data.zero};
    }

    static Status rare(const float* x, const float* y, float* result) {
        *result = *x / *y;
        return *y == 0.0f ? RARE_POLE : RARE_OK;
    }
};

// Zero or subnormal: nothing in the exponent field.
template <class Data>
L2 exponent_is_zero(D2 x, const Data& data) {
    return clear_bits(x, data.all_but_exponent) == data.zero;
}

struct inv {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(inv_data);
        return {data.one / x, exponent_is_zero(x, data)};
    }

    static Status rare(const double* x, double* result) {
        *result = 1.0 / *x;
        return *x == 0.0 ? RARE_POLE : RARE_OK;
    }
};

struct div {
    static Lanes<D2> main(D2 x, D2 y) {
        const auto& data = in_memory(div_data);
        return {x / y, exponent_is_zero(y, data)};
    }

    static Status rare(const double* x, const double* y, double* result) {
        *result = *x / *y;
        return *y == 0.0 ? RARE_POLE : RARE_OK;
    }
};

// ---- Native, single precision: the estimate as it comes. ---------------------------------------------------

struct invf_native {
    static F4 main(F4 x) { return reciprocal_estimate(x); }
};

struct divf_native {
    static F4 main(F4 x, F4 y) { return multiply_in_order(x, reciprocal_estimate(y)); }

    // In a loop two instructions more cost less than what assembly keeps from being unrolled.
    struct Inlined {
        static F4 main(F4 x, F4 y) { return x * nan_first(x, reciprocal_estimate(y)); }
    };
};

// ---- Native, double: a batch of four units for one divide. -------------------------------------------------

// Mantissas mi in +-[1, 2), whatever the operand is, so that their product neither overflows nor underflows and no
// lane can harm another; the powers of two by integer arithmetic on the exponent field.
//   1/mi = (product of the other three) * 1/(m0 m1 m2 m3)
inline Steps<D2, 4> reciprocals(const Steps<D2, 4>& d, const BatchedReciprocalData& data) {
    D2 m[4];
    for (int i = 0; i < 4; ++i) m[i] = or_bits(and_bits(d.step[i], data.sign_and_mantissa), bits(D2(data.one)));
    D2 a = m[0] * m[1];
    D2 b = m[2] * m[3];
    D2 others[4] = {m[1] * b, b * m[0], a * m[3], a * m[2]};
    D2 r = data.one / (a * b);
    Steps<D2, 4> results;
    for (int i = 0; i < 4; ++i) {
        I4 exponent = I4(data.reciprocal_exponent) - (halves(d.step[i]) & data.exponent_field);
        D2 scale = clear_bits(as_double(spread_high(exponent)), data.sign_and_mantissa);
        results.step[i] = scale * (others[i] * r);
    }
    return results;
}

struct inv_native {
    static D2 main(D2 x) {
        const auto& data = in_memory(inv_native_data);
        return data.one / x;
    }
    static Steps<D2, 4> batch(Steps<D2, 4> x) {
        const auto& data = in_memory(inv_native_data);
        return reciprocals(x, data);
    }
};

struct div_native {
    static D2 main(D2 x, D2 y) { return x / y; }
    static Steps<D2, 4> batch(Steps<D2, 4> x, Steps<D2, 4> y) {
        const auto& data = in_memory(div_native_data);
        Steps<D2, 4> results = reciprocals(y, data);
        for (int i = 0; i < 4; ++i) results.step[i] = x.step[i] * results.step[i];
        return results;
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
