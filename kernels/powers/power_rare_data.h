// Constants and tables of the scalar powers.
#pragma once

#include "frame/pairs.h"
#include "frame/polynomial.h"
#include "frame/record.h"

namespace zorv {

// One row of a reduction stage: the multiplier r, and -log2 r as head and tail.
template <class Float>
struct StageRow {
    Float r, log_head, log_tail;
};

struct PowerRareFloatData {
    using Float = float;
    static constexpr int subnormal_scale = 64;   // 2^64 makes a subnormal normal
    static constexpr int table_bits = 7;         // 2^(j/128)
    static constexpr int below_rounding = -159;  // results of this exponent and less are zero
    // Where the three stages' row indices end in the pattern, and how many bits they have.
    static constexpr int first_at = 20, first_bits = 3, second_at = 18, second_bits = 3, third_at = 15, third_bits = 4;

    Scalar<float> next_exponent, split, log2_e, shifter;
    ScalarCoefficients<float, 4> log;
    ScalarCoefficients<float, 3> exp2;
    StageRow<float> first[9], second[9], third[17];
    HeadTail<float> powers[128];
};

struct PowerRareDoubleData {
    using Float = double;
    static constexpr int subnormal_scale = 200;
    static constexpr int table_bits = 7;
    static constexpr int below_rounding = -1084;
    static constexpr int first_at = 47, first_bits = 5, second_at = 43, second_bits = 5, third_at = 37, third_bits = 7;

    Scalar<double> next_exponent, split, log2_e, shifter;
    ScalarCoefficients<double, 4> log;
    ScalarCoefficients<double, 5> exp2;
    StageRow<double> first[33], second[33], third[129];
    HeadTail<double> powers[128];
};

HIDDEN extern const PowerRareFloatData power_rare_float_data;
HIDDEN extern const PowerRareDoubleData power_rare_double_data;

}  // namespace zorv
