// Constants of the arc tangents, of one operand and of two, in radians and in half turns.
#pragma once

#include <type_traits>

#include "frame/polynomial.h"
#include "frame/record.h"

namespace zorv {

// ---- How y/x comes about. ----------------------------------------------------------------------------------

// The hardware's divide, which needs no constant.
struct TrueDivision {};

// rcpps and a Newton step.
struct NewtonDivision {
    Slot<float> two;
};

// A double reciprocal's first approximation: rcpps of the significand, the exponent by integers. Of the integers, only
// those that stand in high halves count.
struct SeedData {
    Slot<int32_t> mantissa, one, exponents, exponent_field;
    Slot<int64_t> high_half;
};
// The seed and one step, that takes its error e to e^3 or, with a product of the denominator's halves, to e^5.
struct CubicDivision {
    SeedData seed;
    Slot<double> one;
};
struct QuinticDivision {
    SeedData seed;
    Slot<double> one;
    Slot<int64_t> high_half;
};

// ---- atan r / r over w = r^2, highest power first. -----------------------------------------------------------

template <class Lane, int even_terms, int odd_terms>
struct EvenOdd {
    Coefficients<Lane, even_terms> even;
    Coefficients<Lane, odd_terms> odd;
};
struct FourChains {  // powers of w by their remainder modulo 4: 0, 1, 2, 3 from d to a
    Coefficients<double, 5> d, c, b, a;
};
template <class Lane, int terms>
struct OneChain {
    Coefficients<Lane, terms> c;
};

// ---- The records. --------------------------------------------------------------------------------------------

// The exponents that the main path of an accurate family finishes. Of a magnitude's pattern (in double its high half)
// `first` is subtracted, which brings the range's lower end to the smallest integer: what then exceeds `last`, signed,
// is below the range or above it.
struct WorkingRange {
    Slot<int32_t> first, last;
};
struct AnyExponent {};

template <class Lane, class Division, class Polynomial, class Range>
struct ArctangentData {
    Slot<std::conditional_t<sizeof(Lane) == 4, int32_t, int64_t>> sign;
    Slot<Lane> one;
    [[no_unique_address]] Division division = {};
    Polynomial polynomial;
    Slot<Lane> quarter_turn, half_turn;  // in the unit of the result
    [[no_unique_address]] Range range = {};
};

using AtanfData = ArctangentData<float, TrueDivision, EvenOdd<float, 5, 4>, WorkingRange>;
using AtanData = ArctangentData<double, TrueDivision, FourChains, WorkingRange>;
using AtanpifData = ArctangentData<float, NewtonDivision, OneChain<float, 9>, WorkingRange>;
using AtanpiData = ArctangentData<double, QuinticDivision, OneChain<double, 22>, WorkingRange>;
using AtanfNativeData = ArctangentData<float, NewtonDivision, EvenOdd<float, 2, 2>, AnyExponent>;
using AtanNativeData = ArctangentData<double, CubicDivision, EvenOdd<double, 5, 5>, AnyExponent>;

HIDDEN extern const AtanfData atanf_data, atan2f_data;
HIDDEN extern const AtanData atan_data, atan2_data;
HIDDEN extern const AtanfNativeData atanf_native_data, atan2f_native_data;
HIDDEN extern const AtanNativeData atan_native_data, atan2_native_data;
HIDDEN extern const AtanpifData atanpif_data, atan2pif_data;
HIDDEN extern const AtanpiData atanpi_data, atan2pi_data;
HIDDEN extern const AtanfNativeData atanpif_native_data, atan2pif_native_data;
HIDDEN extern const AtanNativeData atanpi_native_data, atan2pi_native_data;

// ---- Rare lanes. ---------------------------------------------------------------------------------------------

struct ArctangentRareData {
    ScalarCoefficients<double, 7> polynomial;  // atan z / z - 1 = w P(w), w = z^2
    Scalar<double> eighths[5];                 // multiples of pi/4, an eighth of a turn
    Scalar<double> half_pi_tail, pi_tail;
    Scalar<double> inverse_pi, inverse_pi_tail;
    // atan c of the points c = 2^k 5/4 and 2^k 7/4, from k = -3 on, the head in 26 bits.
    struct Step {
        double head, tail;
    } steps[114];
};
HIDDEN extern const ArctangentRareData arctangent_rare_data;

}  // namespace zorv
