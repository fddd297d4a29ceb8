// Tables of the logarithms of integers: row j stands for the reciprocal c = rows - 1 + j of a mantissa, c from one
// power of two to the next.
#pragma once

#include "tools/tables/table.h"

namespace tables {

// ln(512/c), and from c = 725 on ln(1024/c), over the logarithm of the base; c from 512 to 1024, so that the middle row
// lies about the square root of 2. Row 0 is -0, and the last row is +0.
inline void print_log_rows(const Real& log_of_base) {
    for (int c = 512; c <= 1024; ++c) {
        double rounded = (log(Real(c > 724 ? 1024 : 512) / Real(c)) / log_of_base).as_double();
        row(c == 512 ? -0.0 : rounded, c - 512);
    }
}

// -(bias ln 2 - ln(2n/c)), c from n to 2n, in two parts, where ln 2 is given by its two parts: the table takes back the
// bias of an exponent field that is multiplied by these very parts, and for c = n one more ln 2. So their products and
// the rows of a power of two cancel exactly. The other logarithms are cut in two at `high_bits` fraction bits.
template <class Float>
void print_biased_log_rows(int n, int bias, Float ln2_high, Float ln2_low, int high_bits) {
    for (int c = n; c <= 2 * n; ++c) {
        Real minus_log = log(Real(2 * n) / Real(c));
        Real log_high = to_fraction_bits(minus_log, high_bits), log_low = minus_log - log_high;
        if (c == n) log_high = Real(ln2_high), log_low = Real(ln2_low);
        Real high = log_high - Real(bias) * Real(ln2_high), low = log_low - Real(bias) * Real(ln2_low);
        std::printf("    {%a, ", high.as_double());
        std::printf("%a},  // %d\n", sizeof(Float) == 4 ? static_cast<double>(low.as_float()) : low.as_double(), c - n);
    }
}

}  // namespace tables
