#include "kernels/quotients/hypotenuse_data.h"

namespace zorv {

const HypotfData hypotf_data = {
    .half = 0x3f000000,      // 0.5
    .smallest = 0x1e300000,  // 9.3e-21
    .largest = 0x60a00000,   // 9.2e19
};

const HypotData hypot_data = {
    .one = 0x3ff0000000000000,  // 1.0
    .p = {{
        0x3fd1800000000000,  // 0.2734375
        0xbfd4000000000000,  // -0.3125
        0x3fd8000000000000,  // 0.375
        0xbfe0000000000000,  // -0.5
    }},
    .smallest = 0x3bc00000,  // 2^-67
    .largest = 0x44100000,   // 2^66
};

const HypotNativeData hypot_native_data = {
    .one = 0x3ff0000000000000,  // 1.0
    .p = {{
        0x3fd8000000000000,  // 0.375
        0xbfe0000000000000,  // -0.5
    }},
};

}  // namespace zorv
