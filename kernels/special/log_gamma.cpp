// ln|gamma x|, and the sign of gamma x, one lane after the other.
//
// For x of 1 and more a polynomial on each of many intervals, then Stirling's series. Below,
//
//   gamma(x) = gamma(x + n)/(x (x + 1) ... (x + n - 1))                      x down to -9 (double: -17)
//   ln|gamma(-y)| = -ln y - ln gamma(y) - ln(sin(pi f)/(pi f)) - ln f        f the distance to the nearest integer
//
// Between any two neighbours of the integers below -2, ln|gamma| has two zeros, where both ways cancel: about these, a
// polynomial of its own. Further down the zeros come so near to the integers that no number is near to them.
//
// All is computed on the x87 unit in its 80-bit format, single precision with double coefficients, and rounded once, to
// little more than half an ulp.
#include "frame/lane_frame.h"
#include "frame/scalar.h"
#include "kernels/special/log_gamma_data.h"

namespace zorv {
namespace {

// ---- Polynomials. ------------------------------------------------------------------------------------------

// By Horner, in the 80-bit format.
template <class Lane, int count>
long double chain(long double x, const ScalarCoefficients<Lane, count>& p) {
    long double sum = Lane(p.c[0]);
#pragma unroll
    for (int i = 1; i < count; ++i) sum = sum * x + static_cast<long double>(Lane(p.c[i]));
    return sum;
}

// In even and odd powers, two chains that do not wait for one another.
template <class Polynomial>
long double two_chains(long double x, const Polynomial& p) {
    long double x2 = x * x, even = p[(Polynomial::count - 1) & ~1], odd = p[(Polynomial::count - 2) | 1];
#pragma unroll
    for (int i = ((Polynomial::count - 1) & ~1) - 2; i >= 0; i -= 2) even = even * x2 + p[i];
#pragma unroll
    for (int i = ((Polynomial::count - 2) | 1) - 2; i >= 0; i -= 2) odd = odd * x2 + p[i];
    return x * odd + even;
}

// first * (x^2 + b x + c) * ...
long double product(long double first, long double x, const GammaFactors& factors) {
    long double x2 = x * x, result = first;
#pragma unroll
    for (const auto& quadratic : factors.quadratic) result *= (x2 + quadratic.b * x) + quadratic.c;
    return result;
}

// ---- The logarithm of a positive number. -------------------------------------------------------------------

// v = 2^n m, and the 256th of [1, 2) that m is in.
template <class Float>
struct Binary {
    int n;
    Float m;
    unsigned part;
};
Binary<double> binary(double v) {
    return {unbiased_exponent(v), with_exponent_of_one(v), static_cast<unsigned>(pattern(v) >> 44 & 0xff)};
}
Binary<long double> binary(long double v) {
    Scalar<long double> bits(0, 0);
    __builtin_memcpy(&bits, &v, 10);
    auto part = static_cast<unsigned>(bits.significand >> 55 & 0xff);
    return {bits.sign_and_exponent - 0x3fff, Scalar<long double>(0x3fff, bits.significand), part};
}

// The number without its low word: 21 bits of a double, 32 of an extended one.
double head_of(double x) { return from_pattern(pattern(x) & 0xffffffff00000000); }
long double head_of(long double x) {
    Scalar<long double> bits(0, 0);
    __builtin_memcpy(&bits, &x, 10);
    bits.significand &= 0xffffffff00000000;
    return bits;
}

// ln v to more bits than v has. A product of heads is exact.
template <class Float, class Data>
long double logarithm(Float v, const Data& data) {
    if (v >= Float(1 - 0x1p-6) && v < Float(1 + 0x1p-6)) {
        Float e = v - Float(1), head = head_of(e);
        long double eh = head, el = e - eh, p = static_cast<long double>(e) * e;
        long double square = eh * eh, square_head = head_of(static_cast<Float>(square));
        long double rest = eh * el + (eh + el) * el;
        long double cubes = (chain(p, data.small_odd) * e + chain(p, data.small_even) * p) * p;
        return (eh - 0.5L * square_head) + (el + cubes + -0.5L * ((square - square_head) + rest));
    }
    auto [n, m, index] = binary(v);
    const LogPart& part = lgamma_log_parts[index];
    long double mh = head_of(m), r = part.r;
    long double el = (m - mh) * r, eh = mh * r - 1.0L, e = eh + el, p = e * e;
    long double tail = el + (chain(p, data.even) * p + chain(p, data.odd) * e * p) +
                       (data.ln2_tail * static_cast<long double>(n) + part.tail);
    return (static_cast<long double>(n) * data.ln2_head + part.head + eh) + tail;
}

// t of y = 2^n (1 + t).
template <class Float>
long double fraction_of(Float y) {
    return with_exponent_of_one(y) - 1.0L;
}

// ---- Signs and integers. -----------------------------------------------------------------------------------

// The bits of a finite number that stand for its fraction.
template <class Float>
auto fraction_bits(Float x) {
    using F = Fields<Float>;
    int exponent = unbiased_exponent(x);
    return exponent < 0 ? F::magnitude : exponent < F::mantissa_bits ? F::mantissa >> exponent : typename F::Pattern(0);
}
template <class Float>
bool is_whole(Float x) {
    return (pattern(x) & fraction_bits(x)) == 0;
}
template <class Float>
Float truncated(Float x) {
    return from_pattern(pattern(x) & ~fraction_bits(x));
}

// The sign of gamma for a negative x that is not whole: that of an even or odd integer above x.
int32_t sign_of_gamma(float x) { return 2 * (static_cast<int32_t>(x) & 1) - 1; }
// By the last bit beside the shifter. Where halves have a place there (|x| above 2^51), it is theirs: -1.
int32_t sign_of_gamma(double x) {
    double shifted = truncated(x) + lgamma_data.shifter;
    return 2 * (static_cast<int32_t>(pattern(shifted)) & 1) - 1;
}

// |y - nearest integer|.
template <class Float>
Float distance_to_integer(Float y, Float shifter) {
    Float nearest = (shifter + y) - shifter;
    return magnitude_of(y - nearest);
}

// ---- Single precision. -------------------------------------------------------------------------------------

long double lgammaf_log(double v) {
    const LgammafData& data = lgammaf_data;
    if (v >= 1 && v < 1 + 0x1.8p-12) {
        const auto& c = data.just_above_one;
        long double e = v - 1, p = e * e;
        return ((c[0] * p + c[1]) * p + (c[2] * p + c[3]) * e) * e + e;
    }
    return logarithm(v, data.log);
}

// ln gamma(y) for y in [1, 4). Inlined, as an operand of 80 bits travels through memory.
ALWAYS_INLINE long double lgammaf_low(long double y) {
    const LgammafData& data = lgammaf_data;
    if (y >= 2) return (y - 2) * two_chains(y, data.two_to_four);
    int quarter = (y >= 1.25) + (y >= 1.5) + (y >= 1.75);
    return two_chains(quarter == 1 ? y - data.centre : y, data.quarters[quarter]);
}
// ln gamma(y) for y in [4, 8192), in the fraction of y.
long double lgammaf_row(float y) { return two_chains(fraction_of(y), lgammaf_rows[unbiased_exponent(y) - 2]); }

// ln|gamma x| for x in (-9, 0).
long double lgammaf_shifted(float x) {
    long double p = 1, y = x;
    while (y < 1) {
        p *= y;
        y += 1;
    }
    return lgammaf_low(y) - lgammaf_log(magnitude_of(static_cast<double>(p)));
}

long double lgammaf_negative(float x) {
    const LgammafData& data = lgammaf_data;
    float y = -x;
    if (y > 2 && y < 4) {
        for (const auto& root : data.roots[y > 3]) {
            if (!(x > root.low && x < root.high)) continue;
            long double w = x - static_cast<long double>(root.zero);
            return ((root.p[3] * w + root.p[2]) * w + root.p[1]) * w + root.p[0];
        }
    }
    if (y < 9) return lgammaf_shifted(x);

    float f = distance_to_integer(y, float(data.shifter));
    long double q = static_cast<long double>(f) * f;
    long double ln_y = lgammaf_log(y), ln_f = lgammaf_log(f);
    if (y >= 8192) return (x - 0.5L) * ln_y - data.half_ln_2pi + y - chain(q, data.reflection) * q - ln_f;
    long double q2 = q * q;
    const auto& c = data.reflection.c;
    long double odd = ((c[1] * q2 + c[3]) * q2 + c[5]) * q2 + c[7];
    long double even = ((c[0] * q2 + c[2]) * q2 + c[4]) * q2 + c[6];
    return -ln_y - lgammaf_row(y) - (q * odd + q2 * even) - ln_f;
}

long double lgammaf_positive(float x) {
    if (x >= 8192) return (x - 0.5L) * lgammaf_log(x) - x + lgammaf_data.half_ln_2pi;
    if (x >= 4) return lgammaf_row(x);
    return x >= 1 ? lgammaf_low(x) : lgammaf_low(x + 1.0L) - lgammaf_log(x);
}

// ---- Double precision. -------------------------------------------------------------------------------------

long double lgamma_log(long double v) { return logarithm(v, lgamma_data.log); }
long double lgamma_log(double v) {
    if (v < Fields<double>::smallest_normal) return lgamma_log(static_cast<long double>(v));  // normal in that format
    return logarithm(v, lgamma_data.log);
}

// ln gamma(y) - ((y - 1/2) ln y - y + ln(2 pi)/2), for large y.
long double stirling_rest(long double y) {
    long double inverse = 1 / y;
    return inverse * (lgamma_data.twelfth + inverse * inverse * lgamma_data.stirling_cubed);
}

// ln gamma(y) for y in [0.875, 4).
long double lgamma_low(long double y) {
    const LgammaData& data = lgamma_data;
    if (y >= 2.25) return product(data.to_four.scale * (y - 2), y, data.to_four);
    const auto& piece = data.pieces[(y >= 1.25) + (y >= 1.75)];
    return two_chains(y - piece.centre, piece.p);
}
// ln gamma(y) for y in [4, 512), in the fraction of y.
long double lgamma_row(double y) {
    const GammaFactors& factors = lgamma_rows[unbiased_exponent(y) - 2];
    return product(factors.scale, fraction_of(y), factors);
}

// ln|gamma x| for x in (-17, 0).
long double lgamma_shifted(double x) {
    long double p = 1, y = x;
    if (x > -15) {
        while (y < 1) {
            p *= y;
            y += 1;
        }
    } else {
        while (y < 1) {
            p = p * y * (y + 1);
            y += 2;
        }
    }
    return lgamma_low(y) - lgamma_log(__builtin_fabsl(p));
}

long double lgamma_negative(double x) {
    const LgammaData& data = lgamma_data;
    double y = -x;
    if (y > 2 && y < 15) {
        for (const auto& root : lgamma_roots[static_cast<int>(y) - 2])
            if (x > root.low && x < root.high) return two_chains(x - static_cast<long double>(root.zero), root.p);
    }
    if (y < 17) return lgamma_shifted(x);

    double f = distance_to_integer(y, double(data.shifter));
    long double q = static_cast<long double>(f) * f;
    long double sine = chain(q, data.reflection) * q, ln_y = lgamma_log(y), ln_f = lgamma_log(f);
    if (y < 512) return -ln_y - lgamma_row(y) - sine - ln_f;
    return -(y + 0.5L) * ln_y + y - data.half_ln_2pi - stirling_rest(y) - sine - ln_f;
}

long double lgamma_positive(double x) {
    if (x >= 512) return (x - 0.5L) * lgamma_log(x) - x + lgamma_data.half_ln_2pi + stirling_rest(x);
    if (x >= 4) return lgamma_row(x);
    return x >= 0.875 ? lgamma_low(x) : lgamma_low(x + 1.0L) - lgamma_log(x);
}

// ---- The routines. -----------------------------------------------------------------------------------------

long double positive(float x) { return lgammaf_positive(x); }
long double positive(double x) { return lgamma_positive(x); }
long double negative(float x) { return lgammaf_negative(x); }
long double negative(double x) { return lgamma_negative(x); }
bool overflows(float x) { return x >= lgammaf_data.overflow; }
bool overflows(double x) { return x > lgamma_data.overflow; }

// Not inlined: runs in the precision that stands at the call.
template <class Float>
[[gnu::noinline]] Status lgammar_rare(const Float* operand, Float* result, int32_t* sign) {
    Float x = *operand;
    *sign = 1;
    if (is_infinite_or_nan(x)) {
        *result = x * x;
        return RARE_OK;
    }
    if (x == 0) {
        *sign = is_negative(x) ? -1 : 1;
        return pole_result(Float(1), result);
    }
    if (is_negative(x)) {
        if (is_whole(x)) return pole_result(Float(1), result);
        *sign = sign_of_gamma(x);
        *result = static_cast<Float>(negative(x));
        return RARE_OK;
    }
    if (overflows(x)) return overflow_result(result);
    *result = x == 1 || x == 2 ? Float(0) : static_cast<Float>(positive(x));
    return RARE_OK;
}

Status lgammaf_rare(const float* operand, float* result) {
    int32_t sign;
    return lgammar_rare(operand, result, &sign);
}
// Of the four, the only one that sees to the precision; the others compute in the one that they find.
Status lgamma_rare(const double* operand, double* result) {
    ExtendedPrecision precision;
    int32_t sign;
    return lgammar_rare(operand, result, &sign);
}

struct lgammaf {
    static AllRare<F4> main(F4 x) { return {x}; }
    static constexpr auto rare = lgammaf_rare;
};
struct lgamma {
    static AllRare<D2> main(D2 x) { return {x}; }
    static constexpr auto rare = lgamma_rare;
};
struct lgammarf {
    static AllRare<F4, I4> main(F4 x) { return {x, I4{}}; }
    static constexpr auto rare = lgammar_rare<float>;
};
struct lgammar {
    static AllRare<D2, N2> main(D2 x) { return {x, N2{I4{}}}; }
    static constexpr auto rare = lgammar_rare<double>;
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
