// What a rare routine says about its lane. No export hands it on: it is there for tests and readers of the routines.
#pragma once

#include <cstdint>

namespace zorv {

enum Status : int32_t {
    RARE_OK = 0,         // an ordinary result, or a NaN handed on
    RARE_DOMAIN = 1,     // the function has no value here
    RARE_POLE = 2,       // a true infinity, as of 1/0 and log(0)
    RARE_OVERFLOW = 3,   // the value is finite, but beyond the largest number
    RARE_UNDERFLOW = 4,  // the value lies below the smallest normal number
};

}  // namespace zorv
