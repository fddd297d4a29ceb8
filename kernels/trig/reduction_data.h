// Constants and tables of the reduction of huge arguments (trig/reduction.h).
#pragma once

#include "frame/record.h"

namespace zorv {

// Of one precision: integer masks and unpacking patterns in lanes as wide as the floating ones.
template <class Float, class Integer>
struct ReductionData {
    static constexpr int word_bits = 8 * sizeof(Float);
    static constexpr int mantissa_bits = sizeof(Float) == 4 ? 23 : 52;

    Slot<Integer> magnitude, sign, infinity, mantissa, implicit_bit;
    Slot<Integer> low_half;         // of a word: its bits of a 1 x 1 product column
    Slot<Float> one, turn_shifter;  // rounds to 1/256 (float) or 1/512 (double) of a turn
    Slot<Integer> index_mask;
    Slot<Integer> high_rest, low_rest;  // what v leaves of the high word, what mid leaves of the low
    Slot<Float> mid_base, low_base;     // powers of two whose ulp is the weight of mid, of low
    Slot<Integer> head_mask;            // a head short enough for exact products with two_pi_head
    Slot<Float> two_pi_head, two_pi_tail, two_pi;
    Slot<Float> tiny;
};
using ReductionfData = ReductionData<float, int32_t>;
using ReductiondData = ReductionData<double, int64_t>;

HIDDEN extern const ReductionfData reductionf_data;
HIDDEN extern const ReductiondData reductiond_data;

// 1/pi for the significands of one biased exponent, in rows of three words, highest word first. A word follows the
// last row, so that rows can be read four words at a time.
HIDDEN extern const uint32_t invpi_rows_f[256 * 3 + 1];
HIDDEN extern const uint64_t invpi_rows_d[2048 * 3 + 1];

}  // namespace zorv
