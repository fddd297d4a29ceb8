// x^(1/n) for an integer n, in both precisions, by the chains of the powers on |x|; the sign of x joins an odd root at
// the end.
//
//   rootnf   the native double power by a float 1/n: all its error comes from that reciprocal
//   rootn    the accurate power by 1/n as a head and a tail; the last sums in another order, with the table's tails
//   native   the native powers by a rounded 1/n
//
// Rare: |x| not a normal number (rootnf: the largest float too); n = 0; an even root of a number with the sign bit;
// results that could leave the normal range: in double 1/x of the largest x.
#include "kernels/powers/power_double.h"
#include "kernels/powers/power_float_native.h"
#include "kernels/powers/power_rare.h"

namespace zorv {
namespace {

// ---- Rare lanes. -------------------------------------------------------------------------------------------

Status root(double x, int32_t n, double* result) {
    bool odd = n & 1;
    if (n == 0) {
        *result = zero_by_zero<double>();
        return RARE_OK;
    }
    if (x == 0 && !odd) {
        *result = n < 0 ? opaque(1.0) / opaque(0.0) : 0.0;
        return RARE_OK;
    }
    if (odd && (x == 0 || magnitude_of(x) == __builtin_inf())) {
        *result = n < 0 ? 1.0 / opaque(x) : x;
        return RARE_OK;
    }
    if (is_negative(x) && !odd) {
        *result = zero_by_zero<double>();
        return RARE_OK;
    }
    Status status = power(power_rare_double_data, magnitude_of(x), exponent_of(1.0 / static_cast<double>(n)), result);
    *result = *result * sign_factor<double>(is_negative(x));
    return status;
}

Status rootnf_rare(const float* x, const int32_t* n, float* result) {
    double wide;
    Status status = root(static_cast<double>(*x), *n, &wide);
    *result = static_cast<float>(wide);
    return status;
}
Status rootn_rare(const double* x, const int32_t* n, double* result) { return root(*x, *n, result); }

// ---- Accurate. ---------------------------------------------------------------------------------------------

inline I4 negative_with_even_root(I4 x, I4 n) { return (x < 0) & ((n << 31) == 0); }

// Error 15.34 ulp, the largest found, at (0x1.000004p-126, -3); 0.62 where n is a power of two.
struct rootnf {
    static Lanes<F4> main(F4 x, I4 n) {
        const auto& data = in_memory(rootf_data);
        F4 inverse = data.one / to_float(n);
        I4 sign = (n << 31) & bits(x);
        F4 magnitude = and_bits(x, data.magnitude);
        I4 rare = (bits(magnitude) - data.one_step > data.last_ordinary) |
                  ((bits(inverse) & data.magnitude) > data.last_finite) | negative_with_even_root(bits(x), n);

        D4 wide = widen(magnitude), y = widen(inverse), product, result;
        {
            const auto& chain = in_memory(power_native_double_data);
            product.low = plain_logarithm(wide.low, chain) * y.low;
            result.low = plain_exponential(product.low, chain);
        }
        {
            const auto& chain = in_memory(power_native_double_data);
            product.high = plain_logarithm(wide.high, chain) * y.high;
            result.high = plain_exponential(product.high, chain);
        }
        I4 product_high = high_halves(bits(product.low), bits(product.high)) & data.magnitude;
        rare = rare | (product_high > data.last_product);
        return {or_bits(narrow(result), sign), rare};
    }
    static constexpr auto rare = rootnf_rare;
};

// Error 0.51 ulp, the largest found; subnormal x 124, by the rare routine's rounded 1/n.
struct rootn {
    static Lanes<D2> main(D2 x, N2 n) {
        const auto& data = in_memory(power_double_data);
        I4 negative_even = negative_with_even_root(halves(x), n.halves);
        L2 sign = odd_sign(n) & bits(x);
        x = and_bits(x, data.magnitude);

        // 1/n as a head of 26 bits and a tail from one correction of it
        D2 order = to_double(n);
        D2 y_head = split_by_product(data.one / order, D2(data.split)).head;
        D2 e = data.one - order * y_head;
        D2 y_tail = ((data.one + e) * e) * y_head;

        SplitLog log = logarithm(x, data);
        D2 product = y_head * log.high;  // exact
        D2 tail = (y_tail * log.high + (y_head * log.middle + y_tail * log.middle)) + y_head * log.tail;

        SplitProduct split = split_product(product, tail, data);
        ColumnPair power = gather_pair(&data.powers[0].head, split.row);
        D2 r = split.rest, r2 = r * r, r4 = r2 * r2;
        D2 a = (r * data.exp2.c[0] + data.exp2.c[1]) * r4 * power.first + power.second;
        D2 b = (r * data.exp2.c[2] + data.exp2.c[3]) * r2 * power.first;
        D2 c = r * data.exp2.c[4] * power.first;
        D2 result = (((a + b) + c) + power.first) * split.power_of_two;

        I4 rare = not_positive_normal(x, data) | magnitude_above(y_head, data.last_exponent, data) | negative_even |
                  magnitude_above(product, data.last_product, data);
        return {or_bits(result, sign), from_halves(rare)};
    }
    static constexpr auto rare = rootn_rare;
};

// ---- Native. -----------------------------------------------------------------------------------------------

// Error 1,390 ulp, the largest found, at (0x1.ffe8f6p+98, 1).
struct rootnf_native {
    static F4 main(F4 x, I4 n) {
        const auto& data = in_memory(pownf_native_data);
        F4 inverse = data.one / to_float(n);
        I4 sign = (n << 31) & bits(x);
        return or_bits(power_by_one_product(and_bits(x, data.magnitude), inverse, data), sign);
    }
};

// Error 6.5e7 ulp by the exponential.
struct rootn_native {
    static D2 main(D2 x, N2 n) {
        const auto& data = in_memory(power_native_double_data);
        D2 inverse = data.one / to_double(n);
        L2 sign = odd_sign(n) & bits(x);
        return or_bits(power_by_one_product(and_bits(x, data.magnitude), inverse, data), sign);
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
