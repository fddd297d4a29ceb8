// Rows of the scalar double logarithm to base 10: c in eight bits times log10(e), which is short; -log10 c.
#include "tools/tables/log_rare.h"

int main() {
    using namespace tables;
    header("c = 1/(1 + i/64) to 1/128, times 0.43359375; -log10 c to 37 fraction bits, log10 2 to 42; the rest.",
           "log10_rare");
    for (int i = 0; i <= 64; ++i) {
        Real c = short_reciprocal(i, 7);
        log_row((c * Real(0.43359375)).as_double(), Real(0.0) - log10(c), high_bits_of_row(i), i);
    }
}
