// Rare lanes of the inverse hyperbolic functions: what is not a number of their domain, and the ends of the domain.
#pragma once

#include "frame/scalar.h"

namespace zorv {

// Infinities and NaN.
template <class Float>
Status asinh_rare_lane(const Float* operand, Float* result) {
    Float x = *operand;
    *result = x != x ? x * x : x;
    return RARE_OK;
}

// 1 and below, +infinity and NaN.
template <class Float>
Status acosh_rare_lane(const Float* operand, Float* result) {
    Float x = *operand;
    if (x < Float(1)) return domain_result(result);
    *result = x == Float(1) ? Float(0) : x * x;
    return RARE_OK;
}

// Magnitudes from 1 on, infinities and NaN.
template <class Float>
Status atanh_rare_lane(const Float* operand, Float* result) {
    Float x = *operand;
    if (magnitude_of(x) == Float(1)) return pole_result(x, result);
    if (magnitude_of(x) > Float(1)) return domain_result(result);
    *result = x * x;
    return RARE_OK;
}

}  // namespace zorv
