// Constants of the conversions: one record for each source and target of the conversions to integers, one for each
// scheme of the conversions from integers.
#pragma once

#include <type_traits>

#include "frame/record.h"

namespace zorv {

// The integer lane over a floating lane, and the lane in which a bound on its magnitude is compared: a float by its
// value, a double by its high word.
template <class Float>
using BitsOf = std::conditional_t<sizeof(Float) == 4, int32_t, int64_t>;
template <class Float>
using BoundOf = std::conditional_t<sizeof(Float) == 4, float, int32_t>;

// ---- To integers. ------------------------------------------------------------------------------------------

// The rounding stage; the step is the rounding's own.
template <class Float>
struct RoundingData {
    Slot<Float> shifter, step;
    Slot<BitsOf<Float>> sign;
};

// The conversion stage, by target.
template <class Float>
struct ToI32Data {
    Slot<BoundOf<Float>> bound;
};
template <class Float>
struct ToU32Data {
    Slot<BitsOf<Float>> sign, exponent;
    Slot<Float> top_binade;
    Slot<int32_t> top_bit;
    Slot<BoundOf<Float>> bound;
};
// Magic numbers whose last bits weigh 2^32 and 1.
struct IntegerMagic {
    Slot<double> high, low;
};
// The pieces of a target's largest integer, the high one in its sum with the magic number.
struct IntegerTop {
    Slot<double> high, rest;
};
template <class Float>
struct ToI64Data {
    Slot<Float> lowest, bound;
    IntegerMagic magic;
    IntegerTop top;
};
template <class Float>
struct ToU64Data {
    Slot<BitsOf<Float>> sign;
    Slot<Float> bound, indefinite;
    IntegerMagic magic;
    IntegerTop top;
};

template <class Float, template <class> class ConversionData>
struct ToIntegerData {
    RoundingData<Float> rounding, rounding_up;
    ConversionData<Float> conversion;
};

HIDDEN extern const ToIntegerData<float, ToI32Data> cvtfptoi32f_data;
HIDDEN extern const ToIntegerData<float, ToU32Data> cvtfptou32f_data;
HIDDEN extern const ToIntegerData<float, ToI64Data> cvtfptoi64f_data;
HIDDEN extern const ToIntegerData<float, ToU64Data> cvtfptou64f_data;
HIDDEN extern const ToIntegerData<double, ToI32Data> cvtfptoi32_data;
HIDDEN extern const ToIntegerData<double, ToU32Data> cvtfptou32_data;
HIDDEN extern const ToIntegerData<double, ToI64Data> cvtfptoi64_data;
HIDDEN extern const ToIntegerData<double, ToU64Data> cvtfptou64_data;

// ---- From integers. ----------------------------------------------------------------------------------------

template <class Float>
struct TwoPiecesData {
    Slot<BitsOf<Float>> piece;
    Slot<Float> low_magic, high_magic;
    Slot<BitsOf<Float>> sign, one;
};
struct ThreePiecesData {
    Slot<int32_t> piece;
    Slot<float> low_magic, middle_magic, high_magic;
    Slot<int32_t> sign, one, half_unit_offset;
};
struct WordData {
    Slot<double> magic;
};
// Both halves of a 64-bit lane: the integers that set them into magic numbers, and what these then hold too much.
struct TwoWordsData {
    Slot<int64_t> low_word, low_magic, high_magic;
    Slot<double> excess;
};

HIDDEN extern const TwoPiecesData<float> two_pieces_float_data;
HIDDEN extern const TwoPiecesData<double> two_pieces_double_data;
HIDDEN extern const ThreePiecesData three_pieces_data;
HIDDEN extern const WordData word_data;
HIDDEN extern const TwoWordsData signed_words_data;
HIDDEN extern const TwoWordsData unsigned_words_data;

}  // namespace zorv
