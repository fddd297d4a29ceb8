// x^y in double precision: pow, powr (e^(y ln x), for x >= 0) and pown (an integer y).
//
//   log2 x as a head and a tail, y in halves;   y log2 x = n + j/128 + rr
//   x^y = 2^n 2^(j/128) 2^rr with 2^(j/128) from a table
//
// Rare: x not a positive normal number (pown: |x|); y of 2^1017 and more, infinite or NaN; |y log2 x| from 1022 on.
#include "kernels/powers/power_double.h"
#include "kernels/powers/power_rare.h"

namespace zorv {
namespace {

// ---- Rare lanes. -------------------------------------------------------------------------------------------

Status pow_rare(const double* x, const double* y, double* result) {
    return power(power_rare_double_data, *x, exponent_of(*y), result);
}
Status powr_rare(const double* x, const double* y, double* result) {
    return power_of_positive(power_rare_double_data, *x, *y, result);
}
Status pown_rare(const double* x, const int32_t* n, double* result) {
    return power(power_rare_double_data, *x, exponent_of(static_cast<double>(*n)), result);
}

// ---- Accurate. ---------------------------------------------------------------------------------------------

struct Power {
    D2 power, product;  // the head of y log2 x
};
ALWAYS_INLINE Power power_by_pairs(D2 x, D2 y, const PowerDoubleData& data) {
    SplitLog log = logarithm(x, data);
    auto [y_head, y_tail] = split_by_mask(y, data.head);
    D2 product = y_head * log.high;  // exact
    D2 tail = (y_tail * log.high + (y_head * log.middle + y_tail * log.middle)) + y * log.tail;

    SplitProduct split = split_product(product, tail, data);
    D2 g = split.power_of_two * gather(&data.powers[0].head, split.row);
    D2 p = horner(split.rest, data.exp2);
    return {p * (g * split.rest) + g, product};
}

// Error 1.83 ulp, the largest found, at (0x1.0021e5b7eaf6ep+0, -0x1.4e2af1ca279cfp+20): half an ulp each of the table
// and of the last sum; near the lower bound g * rest is subnormal. Rare lanes 0.52.
struct pow {
    static Lanes<D2> main(D2 x, D2 y) {
        const auto& data = in_memory(power_double_data);
        auto [result, product] = power_by_pairs(x, y, data);
        I4 rare = not_positive_normal(x, data) | magnitude_above(y, data.last_exponent, data) |
                  magnitude_above(product, data.last_product, data);
        return {result, from_halves(rare)};
    }
    static constexpr auto rare = pow_rare;
};

struct powr {
    static Lanes<D2> main(D2 x, D2 y) { return pow::main(x, y); }
    static constexpr auto rare = powr_rare;
};

struct pown {
    static Lanes<D2> main(D2 x, N2 n) {
        const auto& data = in_memory(power_double_data);
        L2 sign = odd_sign(n) & bits(x);
        x = and_bits(x, data.magnitude);
        auto [result, product] = power_by_pairs(x, to_double(n), data);
        I4 rare = not_positive_normal(x, data) | magnitude_above(product, data.last_product, data);
        return {or_bits(result, sign), from_halves(rare)};
    }
    static constexpr auto rare = pown_rare;
};

// ---- Native. -----------------------------------------------------------------------------------------------

// Error 6.5e7 ulp by the exponential; x near 1 and a large y add the logarithm's error: 2.2e9 found, 8.6e9 with the
// worst estimate that a processor may have.
struct pow_native {
    static D2 main(D2 x, D2 y) { return power_by_one_product(x, y, in_memory(power_native_double_data)); }
};
using powr_native = pow_native;

struct pown_native {
    static D2 main(D2 x, N2 n) {
        const auto& data = in_memory(power_native_double_data);
        L2 sign = odd_sign(n) & bits(x);
        return or_bits(power_by_one_product(and_bits(x, data.magnitude), to_double(n), data), sign);
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
