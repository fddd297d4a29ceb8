// frexp, ldexp, logb, ilogb and nextafter: integer operations on the exponent field, all exact.
//
// In double the field stands in the high half of a lane, and where 32-bit integers go with the doubles the high halves
// of four lanes share one unit. Rare: zeros and subnormals, whose field is no exponent, infinities and NaN; of ldexp
// also results that are no normal numbers, of nextafter what its steps cannot reach.
#include "frame/lane_frame.h"
#include "frame/scalar.h"
#include "kernels/exact/exponents_data.h"

namespace zorv {
namespace {

// Words that hold an exponent field: floats, or high halves.
template <class Float>
inline constexpr int field_shift = sizeof(Float) == 4 ? 23 : 20;

inline I4 no_exponent(I4 word, const ExponentData& data) {
    I4 field = word & data.exponent;
    return (field == data.exponent) | (field == I4{});
}

inline I4 field_words(D4 x) { return high_halves(bits(x.low), bits(x.high)); }
// New high halves over the low halves of x.
inline D4 with_high_halves(D4 x, I4 high) {
    I4 low = low_halves(bits(x.low), bits(x.high));
    return {as_double(from_halves(__builtin_shufflevector(low, high, 0, 4, 1, 5))),
            as_double(from_halves(__builtin_shufflevector(low, high, 2, 6, 3, 7)))};
}

// What the scalar routines scale a subnormal by, and how much that adds to its exponent.
template <class Float>
inline constexpr int subnormal_shift = sizeof(Float) == 4 ? 25 : 55;
template <class Float>
inline constexpr Float subnormal_scale = sizeof(Float) == 4 ? Float(0x1p25) : Float(0x1p55);
template <class Float>
inline constexpr Float back_scale = sizeof(Float) == 4 ? Float(0x1p-25) : Float(0x1p-55);

// x with a quiet NaN.
template <class Float>
Float quieted(Float x) {
    return x * opaque(Float(1));
}
template <class Float>
Float with_field_of(Float x, int field) {
    return from_pattern((pattern(x) & ~Fields<Float>::exponent) | pattern(with_exponent_field<Float>(field)));
}

// ---- frexp: x = mantissa 2^exponent, |mantissa| in [0.5, 1). -----------------------------------------------

template <class Float>
Status frexp_rare(const Float* operand, Float* mantissa, int32_t* exponent) {
    Float x = quieted(*operand);
    if (is_infinite_or_nan(x) || x == Float(0)) {
        *mantissa = x;
        *exponent = 0;
        return RARE_OK;
    }
    constexpr int below_half = Fields<Float>::bias - 1;
    Float m = x * subnormal_scale<Float>;
    *exponent = exponent_field(m) - (below_half + subnormal_shift<Float>);
    *mantissa = with_field_of(m, below_half);
    return RARE_OK;
}

struct frexpf {
    static Lanes<F4, I4> main(F4 x) {
        const FrexpData& data = frexpf_data;
        I4 e = bits(x) & data.exponent;
        F4 mantissa = or_bits(clear_bits(x, data.exponent), data.half);
        return {mantissa, (e - data.half) >> field_shift<float>, no_exponent(bits(x), data)};
    }
    static constexpr auto rare = frexp_rare<float>;
};
struct frexp {
    static Lanes<D4, I4> main(D4 x) {
        const FrexpData& data = frexp_data;
        I4 high = field_words(x);
        I4 e = high & data.exponent;
        D4 mantissa = with_high_halves(x, (high & ~I4(data.exponent)) | data.half);
        return {mantissa, (e - data.half) >> field_shift<double>, no_exponent(high, data)};
    }
    static constexpr auto rare = frexp_rare<double>;
};

// ---- ldexp: x 2^n. -----------------------------------------------------------------------------------------

// A zero or an infinity with the sign of x: the square of a power of two, made at run time.
template <class Float>
Float square_with_sign_of(Float x, Float factor) {
    Float f = opaque(factor);
    return (is_negative(x) ? -f : f) * f;
}

template <class Float>
Status ldexp_rare(const Float* operand, const int32_t* exponent, Float* result) {
    constexpr int largest_field = 2 * Fields<Float>::bias + 1;
    constexpr Float huge = sizeof(Float) == 4 ? Float(0x1p100) : Float(0x1p1000);
    constexpr Float tiny = sizeof(Float) == 4 ? Float(0x1p-100) : Float(0x1p-1000);
    Float x = quieted(*operand);
    if (is_infinite_or_nan(x) || x == Float(0)) {
        *result = x;
        return RARE_OK;
    }
    int field = exponent_field(x);
    if (field == 0) {
        x = x * subnormal_scale<Float>;
        field = exponent_field(x) - subnormal_shift<Float>;
    }
    int n = *exponent < -65536 ? -65536 : *exponent > 65536 ? 65536 : *exponent;
    int sum = field + n;
    if (sum >= largest_field) {
        *result = square_with_sign_of(x, huge);
        return RARE_OVERFLOW;
    }
    if (sum >= 1) {
        *result = with_field_of(x, sum);
        return RARE_OK;
    }
    if (sum >= -Fields<Float>::mantissa_bits) {  // one rounding, into the subnormals
        *result = with_field_of(x, sum + subnormal_shift<Float>) * back_scale<Float>;
        if (*result != Float(0)) return RARE_OK;
    }
    *result = square_with_sign_of(x, tiny);
    return RARE_UNDERFLOW;
}

// The word with n added to its exponent field, and where that is no normal number or was none.
struct Scaled {
    I4 word, rare;
};
template <class Float>
Scaled add_exponent(I4 word, I4 n, const LdexpData& data) {
    n = select(n > data.highest, I4(data.highest), n);
    n = select(n < data.lowest, I4(data.lowest), n);
    I4 field = (word & data.exponent) >> field_shift<Float>;
    I4 sum = field + n;
    I4 was_none = (field == data.largest_field) | (field == I4{});
    I4 is_none = (sum <= I4{}) | (sum >= data.largest_field);
    return {(word & ~I4(data.exponent)) | (sum << field_shift<Float>), was_none | is_none};
}

struct ldexpf {
    static Lanes<F4> main(F4 x, I4 n) {
        Scaled scaled = add_exponent<float>(bits(x), n, ldexpf_data);
        return {as_float(scaled.word), scaled.rare};
    }
    static constexpr auto rare = ldexp_rare<float>;
};
struct ldexp {
    static Lanes<D4> main(D4 x, I4 n) {
        Scaled scaled = add_exponent<double>(field_words(x), n, ldexp_data);
        return {with_high_halves(x, scaled.word), scaled.rare};
    }
    static constexpr auto rare = ldexp_rare<double>;
};

// ---- logb and ilogb: the exponent of x. --------------------------------------------------------------------

template <class Float>
int subnormal_exponent(Float x) {
    return exponent_field(x * subnormal_scale<Float>) - (Fields<Float>::bias + subnormal_shift<Float>);
}

template <class Float>
Status logb_rare(const Float* operand, Float* result) {
    Float x = quieted(*operand);
    if (x == Float(0)) {
        *result = opaque(Float(-1)) / opaque(Float(0));
        return RARE_DOMAIN;
    }
    *result = is_infinite_or_nan(x) ? magnitude_of(x) : static_cast<Float>(subnormal_exponent(x));
    return RARE_OK;
}

template <class Float>
Status ilogb_rare(const Float* operand, int32_t* result) {
    Float x = *operand;
    if (x == Float(0)) {
        *result = INT32_MIN;
        return RARE_DOMAIN;
    }
    if (is_infinite_or_nan(x)) {
        *result = INT32_MAX;
        return RARE_DOMAIN;
    }
    *result = subnormal_exponent(x);
    return RARE_OK;
}

template <class Float>
I4 exponent(I4 word, const LogbData& data) {
    return ((word & data.exponent) >> field_shift<Float>)-data.bias;
}

struct logbf {
    static Lanes<F4> main(F4 x) {
        const LogbData& data = logbf_data;
        return {__builtin_convertvector(exponent<float>(bits(x), data), F4), no_exponent(bits(x), data)};
    }
    static constexpr auto rare = logb_rare<float>;
};
struct logb {
    static Lanes<D2> main(D2 x) {
        const LogbData& data = logb_data;
        I4 e = exponent<double>(halves(x), data);
        return {_mm_cvtepi32_pd(unit_cast<__m128i>(__builtin_shufflevector(e, e, 1, 3, 1, 3))),
                from_halves(no_exponent(halves(x), data))};
    }
    static constexpr auto rare = logb_rare<double>;
};
struct ilogbf {
    static Lanes<I4> main(F4 x) {
        const LogbData& data = ilogbf_data;
        return {exponent<float>(bits(x), data), no_exponent(bits(x), data)};
    }
    static constexpr auto rare = ilogb_rare<float>;
};
struct ilogb {
    static Lanes<I4> main(D4 x) {
        const LogbData& data = ilogb_data;
        I4 high = field_words(x);
        return {exponent<double>(high, data), no_exponent(high, data)};
    }
    static constexpr auto rare = ilogb_rare<double>;
};

// ---- nextafter: the neighbour of x on the way to y. --------------------------------------------------------

// Arithmetic done for the flag it raises.
template <class Float>
void raise_underflow() {
    opaque(opaque(Fields<Float>::smallest_normal) * opaque(Fields<Float>::smallest_normal));
}

template <class Float>
Status nextafter_rare(const Float* from, const Float* to, Float* result) {
    using F = Fields<Float>;
    Float x = *from, y = *to;
    if (x != x || y != y) {
        *result = add_in_order(x, y);
        return RARE_OK;
    }
    if (x == y) {
        *result = y;
        return RARE_OK;
    }
    if (x == Float(0)) {
        raise_underflow<Float>();
        *result = or_sign_of(F::smallest, y);
        return RARE_UNDERFLOW;
    }
    bool outward = is_negative(x) == is_negative(y) && magnitude_of(y) >= magnitude_of(x);
    *result = from_pattern(outward ? pattern(x) + 1 : pattern(x) - 1);
    if (is_infinite_or_nan(*result)) return RARE_OVERFLOW;
    if (!is_zero_or_subnormal(*result)) return RARE_OK;
    raise_underflow<Float>();
    return RARE_UNDERFLOW;
}

// Lanes whose signs agree are all rare, so those that stay step toward zero.
struct nextafterf {
    static Lanes<F4> main(F4 x, F4 y) {
        const auto& data = nextafterf_data;
        I4 step = bits(x) - data.one;
        I4 same_sign = ~(bits(x) ^ bits(y));  // the mask counts by its sign bits
        return {as_float(step),
                no_exponent(bits(x), data) | no_exponent(bits(y), data) | no_exponent(step, data) | same_sign};
    }
    [[maybe_unused]] static constexpr auto rare = nextafter_rare<float>;

    // The steps of `nextafter` below: lanes that step outward step here.
    struct Inlined {
        static Lanes<F4> main(F4 x, F4 y) {
            const auto& data = nextafterf_data;
            I4 shorter = (bits(x) & data.magnitude) - (bits(y) & data.magnitude);  // negative where |x| < |y|
            I4 up = (shorter & ~(bits(x) ^ bits(y))) >> 31;
            I4 step = (bits(x) - data.one) - (up + up);
            return {as_float(step), no_exponent(bits(x), data) | no_exponent(bits(y), data) | no_exponent(step, data) |
                                        (bits(x) == bits(y))};
        }
        [[maybe_unused]] static constexpr auto rare = nextafter_rare<float>;
    };
};

struct nextafter {
    static Lanes<D2> main(D2 x, D2 y) {
        const auto& data = nextafter_data;
        L2 shorter = (bits(x) & data.magnitude) - (bits(y) & data.magnitude);  // negative where |x| < |y|
        I4 outward = halves(shorter & ~(bits(x) ^ bits(y))) >> 31;
        L2 up = spread_high(outward);
        L2 step = (bits(x) - data.one) - (up + up);
        I4 equal = halves(x) == halves(y);
        I4 rare = no_exponent(halves(x), data) | no_exponent(halves(y), data) | no_exponent(halves(step), data) |
                  (equal & __builtin_shufflevector(equal, equal, 0, 0, 2, 2));
        return {as_double(step), from_halves(rare)};
    }
    static constexpr auto rare = nextafter_rare<double>;
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
