// a * b + c, rounded once.
//
// SSE2 has no fused instruction, so every lane goes through exact integer arithmetic. Single and double precision are
// the same steps in other word sizes. Correctly rounded in all four modes. The mode is the x87 unit's on i386, and on
// x86-64, where nothing but MXCSR rules arithmetic, the one that stands there. Bitcode for processors that have the
// instruction computes by it, with the same results.
#include "frame/lane_frame.h"

#ifdef __FMA__
#include <immintrin.h>
#else
#include <type_traits>

#include "frame/scalar.h"
#endif

namespace zorv {
namespace {

#ifdef __FMA__
F4 fused(F4 a, F4 b, F4 c) { return _mm_fmadd_ps(a, b, c); }
D2 fused(D2 a, D2 b, D2 c) { return _mm_fmadd_pd(a, b, c); }

// Where c is zero, the product is rounded before c is added: that makes +0 of -0, where the product was too small for
// the format.
template <class Unit>
struct Fma {
    static Unit main(Unit a, Unit b, Unit c) {
        Unit result = fused(a, nan_first(a, b), c);
        Unit with_zero = fenced(result + c);  // else the compiler adds -0 in the other lanes, which rounding down shows
        return select(c == Unit{}, with_zero, result);
    }
};
#else
enum RoundingMode : uint16_t { nearest = 0x000, downward = 0x400, upward = 0x800, mode_field = 0xc00 };

RoundingMode rounding_mode() {
#ifdef __x86_64__
    unsigned control = _mm_getcsr() >> 3;
#else
    uint16_t control;
    asm volatile("fnstcw %0" : "=m"(control));
#endif
    return static_cast<RoundingMode>(control & mode_field);
}

// a * b + c in two roundings. Of several NaN the first goes through, so the operands keep their order.
float multiply_and_add(float a, float b, float c) {
    asm(IN_ORDER("mulss") : "+x"(a) : "x"(b));
    asm(IN_ORDER("addss") : "+x"(a) : "x"(c));
    return a;
}
double multiply_and_add(double a, double b, double c) {
    asm(IN_ORDER("mulsd") : "+x"(a) : "x"(b));
    asm(IN_ORDER("addsd") : "+x"(a) : "x"(c));
    return a;
}

// Arithmetic done for its flags.
template <class Scalar>
void discard(Scalar value) {
    asm volatile("" : : "x"(value));
}

template <class Float>
struct Format;
template <>
struct Format<float> : Fields<float> {
    using Word = Pattern;
    using Wide = uint64_t;
    static constexpr float huge = 0x1p100f;
    static void raise_inexact() {}
    static void raise_underflow() {}
};
template <>
struct Format<double> : Fields<double> {
    using Word = Pattern;
    using Wide = unsigned _BitInt(128);
    static constexpr double huge = 0x1p1000, tiny = 0x1p-1000;
    static void raise_inexact() { discard(opaque(1.0) + opaque(tiny)); }
    static void raise_underflow() { discard(opaque(tiny) * opaque(tiny)); }
};

int leading_zeros(uint32_t x) { return __builtin_clz(x); }
int leading_zeros(uint64_t x) {
    auto high = static_cast<uint32_t>(x >> 32);
    return high != 0 ? __builtin_clz(high) : 32 + __builtin_clz(static_cast<uint32_t>(x));
}

// x shifted right; ones that fall out leave a one in the lowest bit. n is below the width.
uint64_t shift_right_sticky(uint64_t x, unsigned n) {
    uint64_t kept = x >> n;
    return kept | static_cast<uint64_t>(kept << n != x);
}
uint32_t shift_right_sticky(uint32_t x, unsigned n) {
    uint32_t kept = x >> n;
    return kept | static_cast<uint32_t>(kept << n != x);
}
// By whole words through memory, each load meeting one store, then by bits.
unsigned _BitInt(128) shift_right_sticky(unsigned _BitInt(128) x, unsigned n) {
    uint32_t word[8] = {static_cast<uint32_t>(x), static_cast<uint32_t>(x >> 32), static_cast<uint32_t>(x >> 64),
                        static_cast<uint32_t>(x >> 96)};
    uint32_t below[4] = {0, word[0], word[0] | word[1], word[0] | word[1] | word[2]};
    unsigned words = n / 32;
    unsigned count = n % 32;
    auto pair = [&](unsigned i) {
        uint64_t both = static_cast<uint64_t>(word[words + i + 1]) << 32 | word[words + i];
        return static_cast<uint32_t>(both >> count);
    };
    uint32_t lost = below[words] | (word[words] & ((1u << count) - 1));
    uint64_t low = static_cast<uint64_t>(pair(1)) << 32 | pair(0) | (lost != 0);
    uint64_t high = static_cast<uint64_t>(pair(3)) << 32 | pair(2);
    return static_cast<unsigned _BitInt(128)>(high) << 64 | low;
}

// The rounded magnitude and its sign; a number beyond the largest becomes what the hardware makes of an overflow.
template <class Float, class F = Format<Float>>
Float with_sign(typename F::Word sign, typename F::Word magnitude) {
    if (__builtin_expect(magnitude >= F::infinity, 0)) {
        Float huge = opaque(F::huge);
        return (sign != 0 ? -huge : huge) * huge;
    }
    return from_pattern(static_cast<typename F::Word>(sign << (8 * sizeof(Float) - 1) | magnitude));
}

// The number of this sign whose leading one stands in the top bit of `top` and weighs 2^exponent, biased. What was
// inexact further down has left a one in the lowest bit.
template <class Float, class F = Format<Float>>
Float round_and_pack(typename F::Word sign, int exponent, typename F::Word top) {
    using Word = typename F::Word;
    constexpr int word_bits = 8 * sizeof(Word);
    constexpr int extra_bits = word_bits - F::mantissa_bits - 1;

    bool subnormal = exponent < 1;
    if (__builtin_expect(subnormal, 0)) {
        int k = 1 - exponent;
        top = shift_right_sticky(top, static_cast<unsigned>(k < word_bits ? k : word_bits - 1));
        exponent = 1;
    }
    // The implicit bit, where there is one, counts the exponent up from one below. Exponents reach half as far again
    // as the field, which the word still holds: too large a number shows as a pattern beyond infinity.
    Word magnitude = (top >> extra_bits) + (static_cast<Word>(exponent - 1) << F::mantissa_bits);
    Word round_word = top << (word_bits - extra_bits);
    if (round_word != 0) {
        F::raise_inexact();
        if (subnormal) F::raise_underflow();
        constexpr Word tie = Word(1) << (word_bits - 1);
        RoundingMode mode = rounding_mode();
        if (__builtin_expect(mode == nearest, 1))
            magnitude += (round_word | (magnitude & 1)) > tie;
        else
            magnitude += (mode == upward && sign == 0) || (mode == downward && sign != 0);
    }
    return with_sign<Float>(sign, magnitude);
}

// The mantissa of a finite, non-zero magnitude, the leading one in the top bit, and its biased exponent.
template <class Word>
struct Unpacked {
    Word mantissa;
    int exponent;
};
template <class Float, class F = Format<Float>>
Unpacked<typename F::Word> unpack(typename F::Word magnitude) {
    using Word = typename F::Word;
    constexpr int exponent_bits = 8 * sizeof(Word) - F::mantissa_bits - 1;
    int exponent = static_cast<int>(magnitude >> F::mantissa_bits);
    if (__builtin_expect(exponent == 0, 0)) {
        int zeros = leading_zeros(magnitude);
        return {magnitude << zeros, exponent_bits + 1 - zeros};
    }
    constexpr Word leading_one = Word(1) << (8 * sizeof(Word) - 1);
    return {static_cast<Word>(magnitude << exponent_bits | leading_one), exponent};
}

template <class Float>
Status fma_rare(const Float* operand_a, const Float* operand_b, const Float* operand_c, Float* result) {
    using F = Format<Float>;
    using Word = typename F::Word;
    using Wide = typename F::Wide;
    constexpr int word_bits = 8 * sizeof(Word);
    constexpr int wide_bits = 2 * word_bits;

    Float a = *operand_a, b = *operand_b, c = *operand_c;
    Word magnitude_a = pattern(a) & F::magnitude;
    Word magnitude_b = pattern(b) & F::magnitude;
    Word magnitude_c = pattern(c) & F::magnitude;

    // What the hardware does with one rounding: NaN, infinities, and products that are exact.
    auto zero_or_special = [](Word magnitude) { return magnitude - 1 >= F::infinity - 1; };
    if (zero_or_special(magnitude_a) || zero_or_special(magnitude_b) || zero_or_special(magnitude_c) ||
        magnitude_a == F::one || magnitude_b == F::one) {
        if (magnitude_a > F::infinity || magnitude_b > F::infinity)
            *result = multiply_and_add(a, b, c);
        else if (magnitude_c > F::infinity)
            *result = a + c;  // the NaN that was given, even where the product is infinity times zero
        else if (magnitude_c == F::infinity && !zero_or_special(magnitude_a) && !zero_or_special(magnitude_b))
            *result = c;  // no matter how large the product
        else
            *result = multiply_and_add(a, b, c);
        return RARE_OK;
    }

    // Fixed point, the second bit from the top weighing 2^exponent; the top bit takes the carry. The product of
    // two mantissas in [1, 2) reaches up to that bit, or ends one below it.
    Unpacked<Word> ua = unpack<Float>(magnitude_a);
    Unpacked<Word> ub = unpack<Float>(magnitude_b);
    Unpacked<Word> uc = unpack<Float>(magnitude_c);
    Wide product = static_cast<Wide>(ua.mantissa) * (ub.mantissa >> 1);
    Wide addend = static_cast<Wide>(uc.mantissa >> 1) << word_bits;
    int product_exponent = ua.exponent + ub.exponent - F::bias + 1;
    Word product_sign = (pattern(a) ^ pattern(b)) >> (word_bits - 1);
    Word addend_sign = pattern(c) >> (word_bits - 1);

    // The one with the smaller exponent moves right. Bits are lost only where the two are so far apart that their
    // difference keeps its leading bits, and then a sticky bit stands for them all.
    int distance = product_exponent - uc.exponent;
    bool addend_is_big = distance < 0;
    Wide swap = (product ^ addend) & -static_cast<Wide>(addend_is_big);
    Wide big = product ^ swap;
    Wide small = addend ^ swap;
    int exponent = addend_is_big ? uc.exponent : product_exponent;
    Word sign = addend_is_big ? addend_sign : product_sign;
    unsigned shift = static_cast<unsigned>(addend_is_big ? -distance : distance);
    small = shift_right_sticky(small, shift < wide_bits ? shift : wide_bits - 1);

    Wide negate = -static_cast<Wide>(product_sign ^ addend_sign);
    Wide sum = big + ((small ^ negate) - negate);
    if (__builtin_expect(negate != 0 && sum >> (wide_bits - 1) != 0, 0)) {  // the small one was larger by its mantissa
        sum = -sum;
        sign ^= 1;
    }
    if (__builtin_expect(sum == 0, 0)) {
        *result = rounding_mode() == downward ? -Float(0) : Float(0);
        return RARE_OK;
    }

    // The leading one to the top, by whole words as far as they are empty, then by bits.
    ++exponent;
    while (__builtin_expect(sum >> (wide_bits - 32) == 0, 0)) {
        sum <<= 32;
        exponent -= 32;
    }
    int zeros = __builtin_clz(static_cast<uint32_t>(sum >> (wide_bits - 32))) & 31;
    sum <<= zeros;
    Word top = static_cast<Word>(sum >> word_bits) | static_cast<Word>(static_cast<Word>(sum) != 0);
    *result = round_and_pack<Float>(sign, exponent - zeros, top);
    return RARE_OK;
}

// What stands here in two roundings is staged, and every lane of it is overwritten.
template <class Unit>
struct Fma {
    static AllRare<Unit> main(Unit a, Unit b, Unit c) { return {a * b + c}; }
    static constexpr auto rare = fma_rare<typename Layout<Unit>::Lane>;
};
#endif
using fmaf = Fma<F4>;
using fma = Fma<D2>;

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
