// erf x and erfc x = 1 - erf x.
//
// erf is odd: polynomials in |x| about the centres of intervals, chosen by the leading bits of |x|, and the sign ORed
// in. In float the value and the slope at the centre stand in two parts each, the head of the slope short enough for an
// exact product with the head of w; that leaves little more than the last rounding.
//
// erfc falls below any polynomial's constant, so
//
//   erfc(a) = e^(-a^2) P(a),   a = |x|,   erfc(-a) = 2 - erfc(a)
//
// with a^2 in two exact parts and P, about 1/(a sqrt(pi)), from a table of polynomials. Single precision takes the same
// way in double. The power of two is put together in two factors, so that it can end among the subnormals.
//
// Rare: of erf infinities, NaN and operands so small that the result is 2/sqrt(pi) x; of erfc operands beyond which it
// is 0 or 2. The native class is the same without repair.
#include "frame/gather.h"
#include "frame/lane_frame.h"
#include "frame/pairs.h"
#include "kernels/special/error_functions_data.h"

namespace zorv {
namespace {

// ---- erff. -------------------------------------------------------------------------------------------------

inline F4 erff_main(F4 x, const ErffData& data) {
    I4 row = clamp_words(((bits(x) & data.interval) - data.first_row) >> 19, I4{}, data.last_row);
    LaneOffsets at = offsets_of(row << 5);  // NOLINT(clang-analyzer-deadcode.DeadStores): it is read twice
    auto [d, v_head, v_tail, g_head] = gather_rows(&data.rows[0].d, at).column;
    auto [g_tail, c2, c3, c4] = gather_rows(&data.rows[0].g_tail, at).column;
    F4 w = and_bits(x, data.magnitude) - d;
    F4 t = horner(w, c4, c3, c2, g_tail) * w;
    auto [w_head, w_tail] = split_by_mask(w, data.head);
    // The product of the heads is exact, but cuts the payload of a NaN: it comes second.
    F4 y = add_in_order((w_tail * g_head + t) + v_tail, w_head * g_head) + v_head;
    return or_bits(y, bits(x) & data.sign);
}

Status erff_rare(const float* operand, float* result) {
    float x = *operand;
    if (x != x)
        *result = x + x;
    else if (is_infinite_or_nan(x))
        *result = is_negative(x) ? -1.0f : 1.0f;
    else
        *result = static_cast<float>(static_cast<double>(x) * erf_rare_data.slope);
    return RARE_OK;
}

struct erff {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(erff_data);
        I4 interval = bits(x) & data.interval;
        return {erff_main(x, data), (interval > data.largest) | (interval < data.smallest)};
    }
    static constexpr auto rare = erff_rare;
};
struct erff_native {
    static F4 main(F4 x) { return erff_main(x, in_memory(erff_native_data)); }
};

// ---- erf. --------------------------------------------------------------------------------------------------

inline D2 erf_main(D2 x, const ErfData& data) {
    L2 magnitude = bits(x) & data.magnitude;
    L2 interval = signed_lanes(unsigned_lanes(magnitude) >> 49);
    LaneOffsets2 at = offsets_of(clamp_words(interval - data.first_row, L2{}, data.last_row) << 7);
    auto [d, c0] = gather_pair(&data.rows[0].d, at);
    auto [c1, c2] = gather_pair(&data.rows[0].c[1], at);
    auto [c3, c4] = gather_pair(&data.rows[0].c[3], at);
    auto [c5, c6] = gather_pair(&data.rows[0].c[5], at);
    auto [c7, c8] = gather_pair(&data.rows[0].c[7], at);
    auto [c9, c10] = gather_pair(&data.rows[0].c[9], at);
    D2 w = as_double(magnitude) + d;
    return or_bits(horner(w, c10, c9, c8, c7, c6, c5, c4, c3, c2, c1, c0), bits(x) & data.sign);
}

// A tiny x times 2/sqrt(pi) in two parts, 200 binades up. Among the subnormals the large part is rounded there by
// itself, so that the small one finds it exact.
double tiny_erf(double x) {
    const ErfRareData& data = erf_rare_data;
    double size = magnitude_of(x);
    if (size < data.least_product) return x * data.slope;
    auto [head, tail] = split_by_product(x * data.up, double(data.split));
    double small = (tail * data.slope_tail + head * data.slope_tail) + data.slope_head * tail;
    double product = head * data.slope_head;
    if (!(size < data.last_split)) return (product + small) * data.down;
    auto [product_head, product_tail] = split_by_product(product, double(data.split));
    return product_head * data.down + (small + product_tail) * data.down;
}

Status erf_rare(const double* operand, double* result) {
    double x = *operand;
    if (x != x)
        *result = x + x;
    else if (is_infinite_or_nan(x))
        *result = is_negative(x) ? -1.0 : 1.0;
    else
        *result = x == 0.0 ? x : tiny_erf(x);
    return RARE_OK;
}

struct erf {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(erf_data);
        I4 interval = halves(x) & data.interval;
        return {erf_main(x, data), from_halves((interval > data.largest) | (interval < data.smallest))};
    }
    static constexpr auto rare = erf_rare;
};
struct erf_native {
    static D2 main(D2 x) { return erf_main(x, in_memory(erf_native_data)); }
};

// ---- erfc. -------------------------------------------------------------------------------------------------

inline D2 erfc_main(D2 x, const ErfcCoreData& data) {
    L2 sign = bits(x) & data.sign;
    D2 a = and_bits(x, data.magnitude);

    // -a^2 = mh + ml.
    D2 xh = and_bits(a, data.square_head);
    D2 t = (a - xh) * (a + xh);
    D2 m = or_bits(xh * xh, data.sign);
    D2 mh = and_bits(m, data.head);
    D2 ml = (m - mh) - t;

    // e^(-a^2) = 2^(n/128) (1 + e).
    D2 u = mh * data.steps + data.shifter;
    D2 n = u - data.shifter;
    D2 r = ((mh - n * data.step_head) - n * data.step_tail) + ml;
    D2 power = gather_indexed(data.powers, offsets_of(bits(u) & data.power_row));
    D2 e = horner(r, data.c5, data.c4, data.c3, data.c2, data.c1) * r;
    D2 v = e * power + power;
    // n/128 rounded down, in the exponent field, 154 too high; what has no place in the field falls off.
    D2 scale = as_double(((bits(u) << 45) + data.exponent_base) & data.exponent) * data.scale;

    L2 interval = signed_lanes(unsigned_lanes(bits(a)) >> 50);
    LaneOffsets2 at = offsets_of(clamp_words(interval - data.first_row, L2{}, data.last_row) << 7);
    auto [c12, d] = gather_pair(&data.rows[0].c[12], at);
    auto [c10, c11] = gather_pair(&data.rows[0].c[10], at);
    auto [c8, c9] = gather_pair(&data.rows[0].c[8], at);
    auto [c6, c7] = gather_pair(&data.rows[0].c[6], at);
    auto [c4, c5] = gather_pair(&data.rows[0].c[4], at);
    auto [c2, c3] = gather_pair(&data.rows[0].c[2], at);
    auto [c0, c1] = gather_pair(&data.rows[0].c[0], at);
    D2 w = a - d;
    D2 p = horner(w, c12, c11, c10, c9, c8, c7, c6, c5, c4, c3, c2, c1, c0);

    // 2 for a negative x, as its sign bit moved to the top of the exponent field.
    D2 two = as_double(signed_lanes(unsigned_lanes(sign) >> 1));
    // In order: of a NaN the two factors have different signs.
    return multiply_in_order(p, v) * or_bits(scale, sign) + two;
}

// Beyond the last ordinary operand the result is 2, or below the smallest number. `last` is where it is that number
// still.
template <class Float>
Status erfc_rare(const Float* operand, Float* result) {
    Float x = *operand;
    if (is_infinite_or_nan(x)) {
        *result = x != x ? x * x : is_negative(x) ? Float(2) : Float(0);
        return RARE_OK;
    }
    double tiny = opaque(0x1p-1022);
    if (is_negative(x)) {
        *result = static_cast<Float>(2.0 - tiny);
        return RARE_OK;
    }
    if (sizeof(Float) == 4 && x < Float(0x1.41bbf700dc3fbp3)) {
        *result = Fields<Float>::smallest;
        return RARE_OK;
    }
    *result = static_cast<Float>(tiny * tiny);
    return RARE_UNDERFLOW;
}

struct erfcf {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(erfcf_data);
        D4 wide = widen(x);
        I4 high = high_halves(bits(wide.low) & data.core.magnitude, bits(wide.high) & data.core.magnitude);
        return {narrow({erfc_main(wide.low, data.core), erfc_main(wide.high, data.core)}), high > data.last_ordinary};
    }
    static constexpr auto rare = erfc_rare<float>;
};
struct erfc {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(erfc_data);
        return {erfc_main(x, data.core), from_halves(halves(bits(x) & data.core.magnitude) > data.last_ordinary)};
    }
    static constexpr auto rare = erfc_rare<double>;
};
struct erfcf_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(erfcf_native_data);
        D4 wide = widen(x);
        return narrow({erfc_main(wide.low, data), erfc_main(wide.high, data)});
    }
};
struct erfc_native {
    static D2 main(D2 x) { return erfc_main(x, in_memory(erfc_native_data)); }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
