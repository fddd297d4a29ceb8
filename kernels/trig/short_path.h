// What the short reductions share: N and its parity from a shifter's sum, pi subtracted in parts, and the odd
// polynomial of the sine.
#pragma once

#include "frame/record.h"

namespace zorv {

// The parity of the integer in a shifter sum, as a sign bit.
inline I4 odd_sign(F4 t) { return bits(t) << 31; }
inline L2 odd_sign(D2 t) { return bits(t) << 63; }

// y - n * (some of the parts), part by part.
template <class Unit, class Lane, int count>
inline Unit subtract_parts(Unit y, Unit n, const Slot<Lane> (&parts)[count], int from = 0, int to = count) {
    for (int i = from; i < to; ++i) y = y - n * parts[i];
    return y;
}

// y + y (c1 y^2 + c2 y^4 + ...), w = y^2. The coefficients stand lowest first. Of a NaN y may have the other sign by
// then, so the last steps keep their order.
template <class Unit, class Lane, int count>
inline Unit sine_polynomial(Unit y, Unit w, const Slot<Lane> (&c)[count]) {
    Unit p = c[count - 1];
    for (int i = count - 1; i-- > 0;) p = p * w + c[i];
    p = p * w;
    return add_in_order(multiply_in_order(p, y), y);
}

// sin(+-y) = +-sin y: the sign joins late, off the chain of dependent steps.
template <class Unit, class Lane, int count>
inline Unit signed_sine(Unit y, decltype(bits(Unit())) sign, const Slot<Lane> (&c)[count]) {
    Unit w = y * y;
    return sine_polynomial(xor_bits(y, sign), w, c);
}

}  // namespace zorv
