// Rows of the logarithm to base 2: c in twelve bits times 256 log2(e), which is short; -log2 c.
#include "tools/tables/log_rare.h"

int main() {
    using namespace tables;
    header("c = 1/(1 + i/64) to 1/2048, times 369.330078; -log2 c cut down to 16 fraction bits; the rest.",
           "log2f_rare");
    const Real unit = 0x1.71548p+8;
    for (int i = 0; i <= 64; ++i) {
        Real c = short_reciprocal(i, 11);
        log_row(rounded_half_up(c * unit), Real(0.0) - log2(c), 16, i);
    }
}
