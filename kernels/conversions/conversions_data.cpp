#include "kernels/conversions/conversions_data.h"

namespace zorv {

// ---- To integers. ------------------------------------------------------------------------------------------

static constexpr RoundingData<float> rounding_float = {
    .shifter = 0x4b000000,  // 2^23
    .step = 0x3f800000,     // 1.0
    .sign = 0x80000000,     //
};
static constexpr RoundingData<float> rounding_up_float = {
    .shifter = 0x4b000000,  // 2^23
    .step = 0xbf800000,     // -1.0
    .sign = 0x80000000,     //
};
static constexpr RoundingData<double> rounding_double = {
    .shifter = 0x4330000000000000,  // 2^52
    .step = 0x3ff0000000000000,     // 1.0
    .sign = 0x8000000000000000,     //
};
static constexpr RoundingData<double> rounding_up_double = {
    .shifter = 0x4330000000000000,  // 2^52
    .step = 0xbff0000000000000,     // -1.0
    .sign = 0x8000000000000000,     //
};

const ToIntegerData<float, ToI32Data> cvtfptoi32f_data = {
    .rounding = rounding_float,
    .rounding_up = rounding_up_float,
    .conversion =
        {
            .bound = 0x4f000000,  // 2^31
        },
};
const ToIntegerData<double, ToI32Data> cvtfptoi32_data = {
    .rounding = rounding_double,
    .rounding_up = rounding_up_double,
    .conversion =
        {
            .bound = 0x41e00000,  // high word of 2^31
        },
};

const ToIntegerData<float, ToU32Data> cvtfptou32f_data = {
    .rounding = rounding_float,
    .rounding_up = rounding_up_float,
    .conversion =
        {
            .sign = 0x80000000,        //
            .exponent = 0x7f800000,    //
            .top_binade = 0x4f000000,  // 2^31
            .top_bit = 0x80000000,     // 2^31, the integer
            .bound = 0x4f800000,       // 2^32
        },
};
const ToIntegerData<double, ToU32Data> cvtfptou32_data = {
    .rounding = rounding_double,
    .rounding_up = rounding_up_double,
    .conversion =
        {
            .sign = 0x8000000000000000,        //
            .exponent = 0x7ff0000000000000,    //
            .top_binade = 0x41e0000000000000,  // 2^31
            .top_bit = 0x80000000,             // 2^31, the integer
            .bound = 0x41f00000,               // high word of 2^32
        },
};

// The 1.5 leaves room below for a negative piece. The high number ends in minus the low number's high word: the sum
// of the integers, the high one shifted by 32, is then free of both.
static constexpr IntegerMagic integer_magic = {
    .high = 0x45380000bcc80000,  // 1.5 * 2^84 + 0xbcc80000 * 2^32
    .low = 0x4338000000000000,   // 1.5 * 2^52
};
static constexpr IntegerTop signed_top = {
    .high = 0x453800013cc7ffff,  // (2^31 - 1) * 2^32 above the magic number
    .rest = 0x41efffffffe00000,  // 2^32 - 1
};
static constexpr IntegerTop unsigned_top = {
    .high = 0x45380001bcc7ffff,  // (2^32 - 1) * 2^32 above the magic number
    .rest = 0x41efffffffe00000,  // 2^32 - 1
};

const ToIntegerData<float, ToI64Data> cvtfptoi64f_data = {
    .rounding = rounding_float,
    .rounding_up = rounding_up_float,
    .conversion =
        {
            .lowest = 0xdf000000,  // -2^63
            .bound = 0x5f000000,   // 2^63
            .magic = integer_magic,
            .top = signed_top,
        },
};
const ToIntegerData<double, ToI64Data> cvtfptoi64_data = {
    .rounding = rounding_double,
    .rounding_up = rounding_up_double,
    .conversion =
        {
            .lowest = 0xc3e0000000000000,  // -2^63
            .bound = 0x43e0000000000000,   // 2^63
            .magic = integer_magic,
            .top = signed_top,
        },
};

const ToIntegerData<float, ToU64Data> cvtfptou64f_data = {
    .rounding = rounding_float,
    .rounding_up = rounding_up_float,
    .conversion =
        {
            .sign = 0x80000000,        //
            .bound = 0x5f800000,       // 2^64
            .indefinite = 0x5f000000,  // 2^63: the signed pattern
            .magic = integer_magic,
            .top = unsigned_top,
        },
};
const ToIntegerData<double, ToU64Data> cvtfptou64_data = {
    .rounding = rounding_double,
    .rounding_up = rounding_up_double,
    .conversion =
        {
            .sign = 0x8000000000000000,        //
            .bound = 0x43f0000000000000,       // 2^64
            .indefinite = 0x43e0000000000000,  // 2^63: the signed pattern
            .magic = integer_magic,
            .top = unsigned_top,
        },
};

// ---- From integers. ----------------------------------------------------------------------------------------

const TwoPiecesData<float> two_pieces_float_data = {
    .piece = 0x007fffff,       // 23 bits
    .low_magic = 0x4b000000,   // 2^23: the last bit weighs 1
    .high_magic = 0x56800000,  // 2^46: the last bit weighs 2^23
    .sign = 0x80000000,        //
    .one = 1,                  // one unit in the last place, on the bits
};
const TwoPiecesData<double> two_pieces_double_data = {
    .piece = 0x000fffffffffffff,       // 52 bits
    .low_magic = 0x4330000000000000,   // 2^52: the last bit weighs 1
    .high_magic = 0x4670000000000000,  // 2^104: the last bit weighs 2^52
    .sign = 0x8000000000000000,        //
    .one = 1,                          // one unit in the last place, on the bits
};
const ThreePiecesData three_pieces_data = {
    .piece = 0x007fffff,             // 23 bits, and the significand of a float
    .low_magic = 0x4b000000,         // 2^23: the last bit weighs 1
    .middle_magic = 0x56800000,      // 2^46: the last bit weighs 2^23
    .high_magic = 0x62000000,        // 2^69: the last bit weighs 2^46
    .sign = 0x80000000,              //
    .one = 1,                        // one unit in the last place, on the bits
    .half_unit_offset = 0x0c000000,  // 24 in the exponent field
};
const WordData word_data = {
    .magic = 0x4330000000000000,  // 2^52: the last bit weighs 1
};
const TwoWordsData signed_words_data = {
    .low_word = 0xffffffff,            //
    .low_magic = 0x4330000000000000,   // 2^52: the last bit weighs 1
    .high_magic = 0x4530000080000000,  // 2^84: the last bit weighs 2^32; and the sign bit, from -2^31 to 0
    .excess = 0x4530000080100000,      // 2^84 + 2^63 + 2^52
};
const TwoWordsData unsigned_words_data = {
    .low_word = 0xffffffff,            //
    .low_magic = 0x4330000000000000,   // 2^52: the last bit weighs 1
    .high_magic = 0x4530000000000000,  // 2^84: the last bit weighs 2^32
    .excess = 0x4530000000100000,      // 2^84 + 2^52
};

}  // namespace zorv
