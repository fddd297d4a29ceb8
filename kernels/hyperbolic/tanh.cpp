// tanh x: one polynomial for each interval of |x|, chosen by the leading bits of its pattern. Beyond the last interval
// the polynomial is the constant 1.
//
// The native class is the accurate one without its rare lanes; at an infinity it multiplies by zero, which is NaN.
#include "frame/gather.h"
#include "frame/lane_frame.h"
#include "frame/scalar.h"
#include "kernels/hyperbolic/hyperbolic_data.h"

namespace zorv {
namespace {

template <class Float>
Float one_with_sign_of(Float x) {
    return is_negative(x) ? Float(-1) : Float(1);
}

// ---- Single precision: cubics in |x|, evaluated in double and rounded once. --------------------------------

Status tanhf_rare(const float* x, float* result) {
    *result = *x != *x ? *x + *x : one_with_sign_of(*x);
    return RARE_OK;
}

inline D2 cubic(D2 a, const TanhfRow* rows, LaneOffsets2 at) {
    auto [c2, c3] = gather_pair(&rows->c2, at);
    auto [c0, c1] = gather_pair(&rows->c0, at);
    return ((c3 * a + c2) * a + c1) * a + c0;
}

inline F4 tanh_of(F4 x, I4 leading, const TanhfData& data) {
    I4 from_first = clamp_words(leading - data.first_row, {}, data.last_row);
    LaneOffsets at = offsets_of(from_first >> 14);  // rows of 32 bytes
    D4 a = widen(and_bits(x, data.magnitude));
    F4 y = narrow(
        {cubic(a.low, data.rows, {{at.lane[0], at.lane[1]}}), cubic(a.high, data.rows, {{at.lane[2], at.lane[3]}})});
    return or_bits(y, bits(x) & data.sign);
}

// Error 1.03 ulp at most, at -0x1.0daba4p+1, operands tried at random.
struct tanhf {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(tanhf_data);
        I4 leading = bits(x) & data.leading;
        return {tanh_of(x, leading, data), leading > data.last_ordinary};
    }
    static constexpr auto rare = tanhf_rare;
};

struct tanhf_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(tanhf_native_data);
        return tanh_of(x, bits(x) & data.leading, data);
    }
};

// ---- Double precision: degree 10 about the middle of the interval. -----------------------------------------

// Rare are the largest numbers, infinities and NaN, and those so small that their powers would be subnormal.
Status tanh_rare(const double* x, double* result) {
    if (*x != *x)
        *result = *x + *x;
    else if (exponent_field(*x) >= 2046)
        *result = one_with_sign_of(*x);
    else
        *result = *x * (1.0 + *x);
    return RARE_OK;
}

inline D2 tanh_of(D2 x, L2 leading, const TanhData& data) {
    L2 from_first = clamp_words(leading - data.first_row, {}, data.last_row);
    LaneOffsets2 at = offsets_of(from_first >> 42);  // rows of 128 bytes
    const TanhRow& row = data.rows[0];
    D2 w = and_bits(x, data.magnitude) + gather(&row.d, at);
    auto [c9, c10] = gather_pair(&row.c[9], at);
    D2 y = c10 * w + c9;
    for (int k = 7; k > 0; k -= 2) {
        auto [lower, upper] = gather_pair(&row.c[k], at);
        y = (y * w + upper) * w + lower;
    }
    y = y * w + gather(&row.c[0], at);
    return or_bits(y, bits(x) & data.sign);
}

// Error 1.25 ulp at most, at -0x1.00335b9739df7p-4, operands tried at random.
struct tanh {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(tanh_data);
        L2 leading = bits(x) & data.leading;
        I4 rare = (halves(leading) > data.last_ordinary) | (halves(leading) < data.first_ordinary);
        return {tanh_of(x, leading, data), from_halves(rare)};
    }
    static constexpr auto rare = tanh_rare;
};

struct tanh_native {
    static D2 main(D2 x) {
        const auto& data = in_memory(tanh_native_data);
        return tanh_of(x, bits(x) & data.leading, data);
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
