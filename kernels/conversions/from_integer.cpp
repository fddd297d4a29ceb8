// int, uint, long and ulong to float and double.
//
// No conversion instruction takes part, but for i32 to double. An integer of no more bits than a significand, put under
// the exponent of a large power of two, is that power plus the integer; less the power, it is the integer. Wider ones
// go through in two or three such pieces, and one rounded sum puts them together. Its rounding error is known exactly:
// where it points the wrong way for a directed rounding, the sum's pattern goes up or down by one.
//
//   u32, i32 to float      two pieces of 23 bits
//   u64, i64 to double     two pieces of 52 bits; to nearest, the two halves as they stand
//   u64, i64 to float      three pieces of 23 bits
//   u32, i32 to double     exact, all roundings alike
#include "frame/lane_frame.h"
#include "frame/pairs.h"
#include "kernels/conversions/conversions_data.h"

namespace zorv {
namespace {

// ---- Signs. ------------------------------------------------------------------------------------------------

// What a result owes its operand's sign, in lanes of the result: a mask, the sign bit alone, and the unit of a step.
struct NoSign {};
template <class Bits>
struct Sign {
    Bits negative, bit, one;
};

template <class Units, class SignOfUnits>
struct Magnitude {
    Units value;
    SignOfUnits sign;
};

I4 negative_lanes(I4 x) { return x < 0; }
L2 negative_lanes(L2 x) { return high_below(x, I4{}); }
// The most negative integer is its own magnitude, read as unsigned.
U4 magnitude(I4 x, I4 negative) { return unsigned_lanes((x ^ negative) - negative); }
UL2 magnitude(L2 x, L2 negative) { return unsigned_lanes((x ^ negative) - negative); }
UL2 magnitude(L2 x) { return magnitude(x, negative_lanes(x)); }

template <class Unsigned, class Data>
Magnitude<Unsigned, NoSign> split_sign(Unsigned x, const Data&) {
    return {x, {}};
}
template <class Data>
Magnitude<U4, Sign<I4>> split_sign(I4 x, const Data& data) {
    I4 negative = negative_lanes(x);
    return {magnitude(x, negative), {negative, x & data.sign, data.one}};
}
template <class Data>
Magnitude<UL2, Sign<L2>> split_sign(L2 x, const Data& data) {
    L2 negative = negative_lanes(x);
    return {magnitude(x, negative), {negative, x & data.sign, data.one}};
}
template <class Data>
Magnitude<UL4, Sign<I4>> split_sign(L4 x, const Data& data) {
    I4 high_words = high_halves(x.low, x.high);
    return {{magnitude(x.low), magnitude(x.high)}, {high_words < 0, high_words & data.sign, data.one}};
}

// ---- Sums of pieces. ---------------------------------------------------------------------------------------

// A sum rounded to nearest. The exact value lies on the side of it that the sign of rest - taken tells.
template <class F>
struct RoundedSum {
    F sum, rest, taken;
};

template <class F>
F piece(F magic, decltype(bits(F{})) value) {
    return or_bits(magic, value) - magic;
}

template <class F, int piece_bits, class Unsigned, class Data>
RoundedSum<F> add_two_pieces(Unsigned u, const Data& data) {
    F low = piece<F>(data.low_magic, signed_lanes(u) & data.piece);
    F high = piece<F>(data.high_magic, signed_lanes(u >> piece_bits));
    F sum = high + low;
    return {sum, low, sum - high};  // the difference is exact
}
RoundedSum<F4> add_pieces(U4 u, const TwoPiecesData<float>& data) { return add_two_pieces<F4, 23>(u, data); }
RoundedSum<D2> add_pieces(UL2 u, const TwoPiecesData<double>& data) { return add_two_pieces<D2, 52>(u, data); }

// The pieces of four 64-bit lanes, as patterns in one unit.
I4 low_piece(UL4 u, const ThreePiecesData& data) {
    return low_halves(signed_lanes(u.low), signed_lanes(u.high)) & data.piece;
}
I4 middle_piece(UL4 u, const ThreePiecesData& data) {
    return low_halves(signed_lanes(u.low >> 23), signed_lanes(u.high >> 23)) & data.piece;
}
I4 high_piece(UL4 u) {
    return signed_lanes(unsigned_lanes(high_halves(signed_lanes(u.low), signed_lanes(u.high))) >> 14);
}

// Two sums, each with its exact error; the errors' sum has the sign of what the second sum lost.
RoundedSum<F4> add_pieces(UL4 u, const ThreePiecesData& data) {
    F4 low = piece<F4>(data.low_magic, low_piece(u, data));
    F4 middle = piece<F4>(data.middle_magic, middle_piece(u, data));
    F4 high = piece<F4>(data.high_magic, high_piece(u));
    auto [lower, lower_error] = fast_two_sum(middle, low);
    auto [sum, error] = fast_two_sum(high, lower);
    return {sum, lower_error + error, F4{}};
}

// ---- The roundings: what each makes of a rounded sum, without and with a sign. -----------------------------

template <class F, class Bits>
F with_sign(F magnitude, Sign<Bits> sign) {
    return or_bits(magnitude, sign.bit);
}
template <class F, class Bits>
Bits is_above(RoundedSum<F> s, Sign<Bits> sign) {
    return xor_bits(s.rest, sign.bit) < xor_bits(s.taken, sign.bit);
}
template <class F, class Bits>
Bits is_below(RoundedSum<F> s, Sign<Bits> sign) {
    return xor_bits(s.taken, sign.bit) < xor_bits(s.rest, sign.bit);
}
// One unit up, on the bits of a value of this sign.
template <class Bits>
Bits unit_up(Sign<Bits> sign) {
    return sign.negative | sign.one;
}

F4 floating(I4 x) { return as_float(x); }
D2 floating(L2 x) { return as_double(x); }

struct rtn {
    template <class F>
    static F result(RoundedSum<F> s, NoSign) {
        return s.sum;
    }
    template <class F, class Bits>
    static F result(RoundedSum<F> s, Sign<Bits> sign) {
        return with_sign(s.sum, sign);
    }
};

// On a magnitude the mask of a compare is the step: -1 where it is set.
struct rtz {
    template <class F>
    static F result(RoundedSum<F> s, NoSign) {
        return floating(bits(s.sum) + (s.rest < s.taken));
    }
    template <class F, class Bits>
    static F result(RoundedSum<F> s, Sign<Bits> sign) {
        return with_sign(result(s, NoSign{}), sign);
    }
};

struct down {
    template <class F>
    static F result(RoundedSum<F> s, NoSign none) {
        return rtz::result(s, none);
    }
    template <class F, class Bits>
    static F result(RoundedSum<F> s, Sign<Bits> sign) {
        return floating(bits(with_sign(s.sum, sign)) - (is_above(s, sign) & unit_up(sign)));
    }
};

struct up {
    template <class F>
    static F result(RoundedSum<F> s, NoSign) {
        return floating(bits(s.sum) - (s.taken < s.rest));
    }
    template <class F, class Bits>
    static F result(RoundedSum<F> s, Sign<Bits> sign) {
        return floating(bits(with_sign(s.sum, sign)) + (is_below(s, sign) & unit_up(sign)));
    }
};

// ---- Kernels. ----------------------------------------------------------------------------------------------

template <class Units, const auto& record, class Rounding>
struct SumOfPieces {
    static auto main(Units x) {
        const auto& data = in_memory(record);
        auto [value, sign] = split_sign(x, data);
        return Rounding::result(add_pieces(value, data), sign);
    }
};

// To nearest, of three pieces: the two high ones are added first, and the low one can matter only where their sum
// was an exact tie that went down. There the sum's last bit is set, so that the second addition goes up. Otherwise
// the low piece is too small against a unit of that sum, or the sum was exact.
F4 nearest_of_three(UL4 u, const ThreePiecesData& data) {
    F4 minus_low = F4(data.low_magic) - or_bits(data.low_magic, low_piece(u, data));
    F4 middle = piece<F4>(data.middle_magic, middle_piece(u, data));
    F4 high = piece<F4>(data.high_magic, high_piece(u));
    auto [sum, error] = fast_two_sum(high, middle);
    I4 half_unit = bits(clear_bits(sum, data.piece)) - data.half_unit_offset;
    I4 tie = bits(error) == half_unit;
    I4 sticky = signed_lanes(unsigned_lanes(bits(minus_low)) >> 31);
    return or_bits(sum, sticky & tie) - minus_low;
}

template <class Units>
struct NearestOfThree {
    static F4 main(Units x) {
        const auto& data = in_memory(three_pieces_data);
        auto [value, sign] = split_sign(x, data);
        return rtn::result(RoundedSum<F4>{nearest_of_three(value, data), {}, {}}, sign);
    }
};

// To nearest, of the two words of a lane. The high one is signed by turning its sign bit, which makes it larger by
// 2^31; its sum with what that and the magic numbers are too large is exact, and the other one is rounded.
template <class Units, const auto& record>
struct NearestOfTwoWords {
    static D2 main(Units x) {
        const auto& data = record;
        D2 low = as_double((unit_cast<L2>(x) & data.low_word) | data.low_magic);
        D2 high = as_double(signed_lanes(unit_cast<UL2>(x) >> 32) ^ data.high_magic);
        return (high - data.excess) + low;
    }
};

// The word under the magic number's high word, less the magic number.
struct u32_to_double {
    static D4 main(U4 x) {
        const auto& data = in_memory(word_data);
        constexpr I4 zero = {};
        I4 word = signed_lanes(x);
        return {small_integer_to_double(from_halves(__builtin_shufflevector(word, zero, 0, 4, 1, 5)), data.magic),
                small_integer_to_double(from_halves(__builtin_shufflevector(word, zero, 2, 6, 3, 7)), data.magic)};
    }
};

// The unit's own conversion.
struct i32_to_double {
    static D4 main(I4 x) {
        return {__builtin_convertvector(__builtin_shufflevector(x, x, 0, 1), D2),
                __builtin_convertvector(__builtin_shufflevector(x, x, 2, 3), D2)};
    }
};

// ---- The families. -----------------------------------------------------------------------------------------

template <class Units, class Rounding>
struct ThreePieces : SumOfPieces<Units, three_pieces_data, Rounding> {};
template <class Units>
struct ThreePieces<Units, rtn> : NearestOfThree<Units> {};

template <class Units, const auto& words_record, class Rounding>
struct Words : SumOfPieces<Units, two_pieces_double_data, Rounding> {};
template <class Units, const auto& words_record>
struct Words<Units, words_record, rtn> : NearestOfTwoWords<Units, words_record> {};

#define NAME_float_(base) base##f
#define NAME_double_(base) base
#define KERNEL_i32_float_(rounding) SumOfPieces<I4, two_pieces_float_data, rounding>
#define KERNEL_u32_float_(rounding) SumOfPieces<U4, two_pieces_float_data, rounding>
#define KERNEL_i64_float_(rounding) ThreePieces<L4, rounding>
#define KERNEL_u64_float_(rounding) ThreePieces<UL4, rounding>
#define KERNEL_i32_double_(rounding) i32_to_double
#define KERNEL_u32_double_(rounding) u32_to_double
#define KERNEL_i64_double_(rounding) Words<L2, signed_words_data, rounding>
#define KERNEL_u64_double_(rounding) Words<UL2, unsigned_words_data, rounding>
#define FROM_INTEGER(base, precision, source, rounding) \
    using NAME_##precision(base) = KERNEL_##source##_##precision(rounding);
#include "include/grid.def"

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
