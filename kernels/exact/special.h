// Operands that are infinite or NaN: nothing but ones in the exponent field.
#pragma once

#include "frame/units.h"
#include "kernels/exact/exact_data.h"

namespace zorv {

inline I4 is_special(F4 x, const SpecialData& data) {
    return (bits(x) & data.exponent_field) == I4(data.exponent_field);
}
// Of 64-bit lanes the high halves decide.
inline L2 is_special(D2 x, const SpecialData& data) {
    return from_halves((halves(x) & I4(data.exponent_field)) == I4(data.exponent_field));
}

}  // namespace zorv
