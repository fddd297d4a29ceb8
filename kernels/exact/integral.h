// Rounding to an integral value without a rounding instruction. A magnitude plus 2^23 (2^52 in double) has no room
// for a fraction: the sum rounds it away, and taking the power of two off again is exact. What stands above that
// power is integral already and stays; so does infinity. A NaN comes out quiet, with its sign.
//
// The sum rounds to nearest, ties to even, in the mode that every caller is taken to run in; the directed roundings
// compare and take one step back. The step is subtracted under a mask: subtracting +0 keeps a -0, adding would not.
//
// Bitcode for processors that have the instruction rounds down and toward zero by it: its results are these to the bit.
// Up they are not: of (-1, -0.5) the instruction makes -0.
//
// Each template takes a unit and any record with
//
//   sign     the sign bit alone
//   shifter  2^23 or 2^52
//   step     1.0 for down and toward zero, -1.0 for up (to_nearest reads none)
#pragma once

#ifdef __SSE4_1__
#include <smmintrin.h>
#endif

#include "frame/units.h"

namespace zorv {

// The magnitude a with its fraction rounded away. Where it has none, what is added and taken off again is zero: one
// operation, where a choice between two values takes three.
template <class Unit, class Data>
inline Unit shift_out_fraction(Unit a, const Data& data) {
    Unit shifter = clear_bits(data.shifter, Unit(data.shifter) < a);
    return (a + shifter) - shifter;
}

template <class Unit, class Data>
inline Unit to_nearest(Unit x, const Data& data) {
    Unit a = clear_bits(x, data.sign);
    return or_bits(shift_out_fraction(a, data), bits(x) & data.sign);
}

#ifdef __SSE4_1__
template <class Data>
inline F4 down(F4 x, const Data&) {
    return _mm_floor_ps(x);
}
template <class Data>
inline D2 down(D2 x, const Data&) {
    return _mm_floor_pd(x);
}
template <class Data>
inline F4 toward_zero(F4 x, const Data&) {
    return _mm_round_ps(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
}
template <class Data>
inline D2 toward_zero(D2 x, const Data&) {
    return _mm_round_pd(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
}
#else
// The sign is back before the step: what steps from 1 to 0 is +0.
template <class Unit, class Data>
inline Unit down(Unit x, const Data& data) {
    Unit r = to_nearest(x, data);
    return r - and_bits(Unit(data.step), x < r);
}

// The step is taken on the magnitude, the sign put back last: (-1, 0) gives -0.
template <class Unit, class Data>
inline Unit toward_zero(Unit x, const Data& data) {
    Unit a = clear_bits(x, data.sign);
    Unit r = shift_out_fraction(a, data);
    r = r - and_bits(Unit(data.step), a < r);
    return or_bits(r, bits(x) & data.sign);
}
#endif

// The sign is back before the step: (-1, -0.5) steps from -1 to +0, while [-0.5, 0) needs no step and gives -0.
template <class Unit, class Data>
inline Unit up(Unit x, const Data& data) {
    Unit r = to_nearest(x, data);
    return r - and_bits(Unit(data.step), r < x);
}

}  // namespace zorv
