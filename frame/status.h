// What a rare routine reports. The frame drops it: the code is the routine's contract, not the caller's.
#pragma once

#include <cstdint>

namespace zorv {

enum Status : int32_t {
    RARE_OK = 0,         // no exceptional condition; a NaN from a NaN
    RARE_DOMAIN = 1,     // operand outside the domain
    RARE_POLE = 2,       // exact infinity from finite operands
    RARE_OVERFLOW = 3,   // finite result too large
    RARE_UNDERFLOW = 4,  // result below the normal range
};

}  // namespace zorv
