// Rows of the natural logarithm: c in eight bits, -ln c.
#include "tools/tables/log_rare.h"

int main() {
    using namespace tables;
    header("c = 1/(1 + i/64) to 1/128; -ln c cut down to 16 fraction bits; the rest.", "logf_rare");
    for (int i = 0; i <= 64; ++i) {
        Real c = short_reciprocal(i, 7);
        log_row(c.as_float(), Real(0.0) - log(c), 16, i);
    }
}
