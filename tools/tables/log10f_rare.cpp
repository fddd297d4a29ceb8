// Rows of the logarithm to base 10: c in eight bits times 256 log10(e), which is short; -log10 c.
#include "tools/tables/log_rare.h"

int main() {
    using namespace tables;
    header("c = 1/(1 + i/64) to 1/128, times 111.1796875; -log10 c cut down to 18 fraction bits; the rest.",
           "log10f_rare");
    const Real unit = 111.1796875;
    for (int i = 0; i <= 64; ++i) {
        Real c = short_reciprocal(i, 7);
        log_row(rounded_half_up(c * unit), Real(0.0) - log10(c), 18, i);
    }
}
