// Rows of the scalar double logarithm to base 2: a short reciprocal c of a mantissa about 1 + (i + 1/2)/256, and -log2
// c in two parts, the first cut down to the high half of its pattern.
#include "tools/tables/log_rare.h"

int main() {
    using namespace tables;
    header("c = 1/(1 + (i + 1/2)/256) to 1/2048; the rest of -log2 c; -log2 c cut down to 20 mantissa bits.",
           "log2_rare");
    for (int i = 0; i < 256; ++i) {
        Real c = to_fraction_bits(Real(512.0) / Real(513 + 2 * i), 11);
        Real minus_log = Real(0.0) - log2(c);
        double high = number(pattern(minus_log.as_double()) & 0xffffffff00000000);
        std::printf("    {%a, %a, %a},  // %d\n", c.as_double(), (minus_log - Real(high)).as_double(), high, i);
    }
}
