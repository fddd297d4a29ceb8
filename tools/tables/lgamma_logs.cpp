// For each 256th of [1, 2): the reciprocal r of its middle, to a multiple of 2^-11, and -ln r in two parts, the tail
// first; the head has 21 bits.
#include "tools/tables/table.h"

using tables::Real;

int main() {
    tables::header("256 parts of [1, 2): reciprocal r of the middle; -ln r, tail and head.", "lgamma_logs");
    for (int i = 0; i < 256; ++i) {
        Real scaled = Real(2048.0) / (Real(1.0) + Real(i + 0.5) / Real(256.0));
        double r = scaled.rounded(11).as_double() / 2048;  // between 1024 and 2048
        Real value = Real(0.0) - log(Real(r));
        double head = __builtin_bit_cast(double, tables::pattern(value.as_double()) & 0xffffffff00000000);
        std::printf("    {%a, %a, %a},  // %d\n", r, (value - Real(head)).as_double(), head, i);
    }
}
