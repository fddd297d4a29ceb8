// The reduction of huge arguments: any finite float or double to the nearest 1/256 (float) or 1/512 (double) of a
// turn and a remainder in radians,
//
//   a = 2 pi j / 256 + y + ylo   modulo 2 pi,
//
// by an exact multiplication of the significand with the stretch of the bits of 1/pi that its exponent calls for.
// Bits above the stretch would give whole turns and are not stored; bits below it would not reach the remainder.
//
// Branch-free, all lanes at once; the only gather is one row of the table for each lane.
#pragma once

#include "frame/gather.h"
#include "frame/pairs.h"
#include "kernels/trig/reduction_data.h"

namespace zorv {

// a/(2 pi) without its whole turns: a fraction in two words, the radix point above the high one.
template <class Word>
struct TurnFraction {
    Word high, low;
};

template <class Float, class Index>
struct Reduced {
    Index j;
    Float y, ylo;
};

// The high halves of the products of 16-bit words, each in its place.
inline UL2 high_words(UL2 x, UL2 y) {
    return unit_cast<UL2>(_mm_mulhi_epu16(unit_cast<__m128i>(x), unit_cast<__m128i>(y)));
}

// ---- Single precision. -------------------------------------------------------------------------------------

// The fraction of two lanes, whose significands stand in the low halves. With the significand as 16-bit halves
// mh:ml and the row as T0:T1:T2 with halves Tkh:Tkl, it is ten 16 x 16 products in four columns of 16 bits,
//
//   A0 = (mh T2l).hi + mh T2h + (ml T2h).hi + (ml T1l).lo
//   A1 = mh T1l + (ml T1l).hi + (ml T1h).lo
//   A2 = mh T1h + (ml T1h).hi + (ml T0l).lo
//   A3 = mh T0l + (ml T0l).hi + (ml T0h).lo
//
// A 32 x 32 multiplier takes several of them at once, their sum being exact in 64 bits:
//
//   all of T1, the low ends of A0 to the high end of A2      m T1
//   all of T0, from A2 on, what passes A3 being whole turns  m T0 shifted by two columns
//   of T2, (mh T2l).hi + mh T2h + (ml T2h).hi                mh T2, then (ml T2h).hi, which a 16 x 16 multiplier
//                                                            gives, on its column, without the low 16 bits of both
//
// Of `raised_ml`, ml stands where T2h does, and all else is zero.
inline UL2 turn_fraction(UL2 m, UL2 mh, UL2 raised_ml, const uint32_t* first_row, const uint32_t* second_row) {
    __m128i first = _mm_loadu_si128(reinterpret_cast<const __m128i*>(first_row));
    __m128i second = _mm_loadu_si128(reinterpret_cast<const __m128i*>(second_row));
    UL2 t0 = unit_cast<UL2>(_mm_unpacklo_epi64(first, second));  // T1 above T0
    UL2 t2 = unit_cast<UL2>(_mm_unpackhi_epi64(first, second));
    UL2 t1 = unsigned_lanes(spread_high(unit_cast<I4>(t0)));
    return multiply_low_halves(m, t1) + (multiply_low_halves(m, t0) << 32) +
           ((multiply_low_halves(mh, t2) + high_words(t2, raised_ml)) >> 16);
}

inline TurnFraction<U4> turn_fraction(F4 a, const ReductionfData& data) {
    U4 e = unsigned_lanes(bits(a) & data.magnitude) >> 23;
    LaneOffsets row = offsets_through_memory(signed_lanes(e + e + e));  // in words
    // The implicit bit is added for zeros and subnormals too: their rows are zero.
    I4 m = (bits(a) & data.mantissa) + data.implicit_bit;
    I4 mh = signed_lanes(unsigned_lanes(m) >> 16);
    I4 raised_ml = m << 16;
    I4 zero = {};
    L2 r01 = signed_lanes(turn_fraction(unsigned_lanes(double_low(m)), unsigned_lanes(double_low(mh)),
                                        unit_cast<UL2>(__builtin_shufflevector(raised_ml, zero, 0, 4, 1, 5)),
                                        invpi_rows_f + row.lane[0], invpi_rows_f + row.lane[1]));
    L2 r23 = signed_lanes(turn_fraction(unsigned_lanes(double_high(m)), unsigned_lanes(double_high(mh)),
                                        unit_cast<UL2>(__builtin_shufflevector(raised_ml, zero, 2, 6, 3, 7)),
                                        invpi_rows_f + row.lane[2], invpi_rows_f + row.lane[3]));
    return {unsigned_lanes(high_halves(r01, r23)), unsigned_lanes(low_halves(r01, r23))};
}

// ---- Double precision. -------------------------------------------------------------------------------------

// Ten 32 x 32 products in four columns of 32 bits; .hi is the shift, .lo the mask. What a product's factors hold
// above their low halves does not count.
inline TurnFraction<UL2> turn_fraction(D2 a, const ReductiondData& data) {
    UL2 e = unsigned_lanes(bits(a) & data.magnitude) >> 52;
    LaneOffsets2 row = offsets_of(signed_lanes(e + e + e));  // in words
    auto column = [row](int word) {
        return UL2{invpi_rows_d[row.lane[0] + static_cast<unsigned>(word)],
                   invpi_rows_d[row.lane[1] + static_cast<unsigned>(word)]};
    };
    UL2 w0l = column(0), w0h = w0l >> 32;
    UL2 w1l = column(1), w1h = w1l >> 32;
    UL2 w2l = column(2), w2h = w2l >> 32;
    UL2 ml = unsigned_lanes((bits(a) & data.mantissa) + data.implicit_bit);
    UL2 mh = ml >> 32;

    auto hi = [](UL2 p) { return p >> 32; };
    auto lo = [&data](UL2 p) { return unsigned_lanes(signed_lanes(p) & data.low_half); };
    UL2 ml_w2h = multiply_low_halves(ml, w2h);
    UL2 ml_w1l = multiply_low_halves(ml, w1l), ml_w1h = multiply_low_halves(ml, w1h);
    UL2 ml_w0l = multiply_low_halves(ml, w0l), ml_w0h = multiply_low_halves(ml, w0h);
    UL2 a0 = hi(multiply_low_halves(mh, w2l)) + multiply_low_halves(mh, w2h) + hi(ml_w2h) + lo(ml_w1l);
    UL2 a1 = multiply_low_halves(mh, w1l) + hi(ml_w1l) + lo(ml_w1h) + hi(a0);
    UL2 a2 = multiply_low_halves(mh, w1h) + hi(ml_w1h) + lo(ml_w0l) + hi(a1);
    UL2 a3 = multiply_low_halves(mh, w0l) + hi(ml_w0l) + lo(ml_w0h) + hi(a2);
    return {(a3 << 32) + lo(a2), (a1 << 32) + lo(a0)};
}

// ---- Both: from the fraction to the turn index and the remainder. ------------------------------------------

// The fraction is cut into v = +-(1 + its leading p bits), p those of a mantissa, then mid, the next p, across the
// words' boundary, then low, the rest. Every cut is exact: its bits become the mantissa of a power of two, which is
// then taken off.
template <class Word, class Float, class Data>
inline auto remainder(TurnFraction<Word> fraction, Float a, const Data& data) {
    using Bits = decltype(bits(a));
    constexpr int p = Data::mantissa_bits;
    constexpr int high_rest_bits = Data::word_bits - p;            // 9, 12
    constexpr int mid_low_bits = p - high_rest_bits;               // 14, 40
    constexpr int low_rest_bits = Data::word_bits - mid_low_bits;  // 18, 24
    auto unsigned_and = [](Word x, auto& mask) { return unsigned_lanes(signed_lanes(x) & mask); };
    auto with_sign = [a, &data](Float magnitude) { return or_bits(magnitude, bits(a) & data.sign); };
    auto unpack = [&](Word mantissa, Float base) {
        base = with_sign(base);
        return or_bits(base, signed_lanes(mantissa)) - base;
    };

    Float v = or_bits(with_sign(data.one), signed_lanes(fraction.high >> high_rest_bits));
    Float shifted = data.turn_shifter + v;
    Bits j = bits(shifted) & data.index_mask;  // of a negative v counts down from the full turn
    Float r = v - (shifted - data.turn_shifter);
    Float mid = unpack(unsigned_and(fraction.high, data.high_rest) << mid_low_bits | fraction.low >> low_rest_bits,
                       data.mid_base);
    Float low = unpack(unsigned_and(fraction.low, data.low_rest) << (p - low_rest_bits), data.low_base);

    // r + mid + low as head and tail.
    auto [t, u] = fast_two_sum(r, mid);
    u = u + low;

    // Times 2 pi; the product of the heads is exact.
    auto [th, tl] = split_by_mask(t, data.head_mask);
    Float p0 = data.two_pi_head * th;
    Float m1 = data.two_pi_head * tl + data.two_pi_tail * th;
    Float m2 = data.two_pi * u + data.two_pi_tail * tl;
    Float m = m1 + m2;
    auto [y, ylo] = fast_two_sum(p0, m);

    // Tiny arguments, beside a huge one in their vector, are their own remainder. A NaN passes neither compare.
    Float size = and_bits(a, data.magnitude);
    auto above = size > data.tiny;
    auto tiny = size <= data.tiny;
    y = or_bits(and_bits(y, above), bits(a) & tiny);
    ylo = and_bits(ylo, above);
    return Reduced<Float, Bits>{j, y, ylo};
}

inline Reduced<F4, I4> reduce(F4 a) {
    const auto& data = in_memory(reductionf_data);
    return remainder(turn_fraction(a, data), a, data);
}
inline Reduced<D2, L2> reduce(D2 a) {
    const auto& data = in_memory(reductiond_data);
    return remainder(turn_fraction(a, data), a, data);
}

}  // namespace zorv
