// Rows of the scalar double natural logarithm: c in eleven fraction bits, -ln c.
#include "tools/tables/log_rare.h"

int main() {
    using namespace tables;
    header("c = 1/(1 + i/64) to 1/2048; -ln c to 37 fraction bits, ln 2 to 42; the rest.", "log_rare");
    for (int i = 0; i <= 64; ++i) {
        Real c = short_reciprocal(i, 11);
        log_row(c.as_double(), Real(0.0) - log(c), high_bits_of_row(i), i);
    }
}
