#include "kernels/trig/reduction_data.h"

namespace zorv {

const ReductionfData reductionf_data = {
    .magnitude = 0x7fffffff,     //
    .sign = 0x80000000,          //
    .infinity = 0x7f800000,      //
    .mantissa = 0x007fffff,      //
    .implicit_bit = 0x00800000,  //
    .low_half = 0x0000ffff,      //
    .one = 0x3f800000,           // 1.0
    .turn_shifter = 0x47400000,  // 1.5 * 2^15
    .index_mask = 0x000000ff,    //
    .high_rest = 0x000001ff,     //
    .low_rest = 0x0003ffff,      //
    .mid_base = 0x34000000,      // 2^-23
    .low_base = 0x28800000,      // 2^-46
    .head_mask = 0xfffff000,     // the high 12 significant bits
    .two_pi_head = 0x40c91000,   // 6.283203125
    .two_pi_tail = 0xb795777a,   // -1.78178e-05
    .two_pi = 0x40c90fdb,        // 6.2831855
    .tiny = 0x35800000,          // 2^-20
};

const ReductiondData reductiond_data = {
    .magnitude = 0x7fffffffffffffff,     //
    .sign = 0x8000000000000000,          //
    .infinity = 0x7ff0000000000000,      //
    .mantissa = 0x000fffffffffffff,      //
    .implicit_bit = 0x0010000000000000,  //
    .low_half = 0x00000000ffffffff,      //
    .one = 0x3ff0000000000000,           // 1.0
    .turn_shifter = 0x42a8000000000000,  // 1.5 * 2^43
    .index_mask = 0x00000000000001ff,    //
    .high_rest = 0x0000000000000fff,     //
    .low_rest = 0x0000000000ffffff,      //
    .mid_base = 0x3cb0000000000000,      // 2^-52
    .low_base = 0x3970000000000000,      // 2^-104
    .head_mask = 0xfffffffff8000000,     // the high 26 significant bits
    .two_pi_head = 0x401921fb54000000,   // 6.283185303211212
    .two_pi_tail = 0x3e310b4611a62633,   // 3.968374320722e-09
    .two_pi = 0x401921fb54442d18,        // 6.283185307179586
    .tiny = 0x3eb0000000000000,          // 2^-20
};

alignas(64) const uint32_t invpi_rows_f[256 * 3 + 1] = {
#include "kernels/trig/tables/invpi_rows_f.inc"
};

alignas(64) const uint64_t invpi_rows_d[2048 * 3 + 1] = {
#include "kernels/trig/tables/invpi_rows_d.inc"
};

}  // namespace zorv
