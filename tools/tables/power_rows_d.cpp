// Rows of the double powers' logarithm: multipliers c = log2(e)/(1 + i/1024), both quotient and log2(e) cut short, and
// the logarithm to base 2 that c takes away from a mantissa, in two parts. From row 512 on the mantissa counts as one
// of the next exponent.
#include "tools/tables/power_stages.h"

int main() {
    using namespace tables;
    header("c = log2(e)/(1 + i/1024) in 23 bits; log2(log2(e)/c), less 1 from 512 on, in 21 bits, and the rest.",
           "power_rows_d");
    const Real log2_e = 0x1.7154740000000p+0;
    auto multiplier = [&](int i) { return cut(log2_e * reciprocal(1 + i / 1024.0), 23); };
    open("c");
    for (int i = 0; i <= 1024; ++i) std::printf("        %a,  // %d\n", multiplier(i).as_double(), i);
    close();
    open("logs");
    for (int i = 0; i <= 1024; ++i) {
        Real log = log2(log2_e / multiplier(i)) - Real(i >= 512 ? 1.0 : 0.0);
        Real head = cut(log, 21);
        std::printf("        {%a, %a},  // %d\n", head.as_double(), (log - head).as_double(), i);
    }
    close();
}
