#include "kernels/exact/exponents_data.h"

namespace zorv {

const FrexpData frexpf_data = {{.exponent = 0x7f800000}, 0x3f000000};
const FrexpData frexp_data = {{.exponent = 0x7ff00000}, 0x3fe00000};

const LdexpData ldexpf_data = {{.exponent = 0x7f800000}, 0xffff0000, 0x00010000, 0x000000ff};
const LdexpData ldexp_data = {{.exponent = 0x7ff00000}, 0xffff0000, 0x00010000, 0x000007ff};

const LogbData logbf_data = {{.exponent = 0x7f800000}, 0x0000007f};
const LogbData logb_data = {{.exponent = 0x7ff00000}, 0x000003ff};
const LogbData ilogbf_data = {{.exponent = 0x7f800000}, 0x0000007f};
const LogbData ilogb_data = {{.exponent = 0x7ff00000}, 0x000003ff};

const NextafterData<int32_t> nextafterf_data = {{.exponent = 0x7f800000}, 0x7fffffff, 0x00000001};
const NextafterData<int64_t> nextafter_data = {{.exponent = 0x7ff00000}, 0x7fffffffffffffff, 0x0000000000000001};

}  // namespace zorv
