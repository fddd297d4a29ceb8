// 2^(j/64), j from 0 to 64, as head and tail in double.
#include "tools/tables/table.h"

using tables::Real;

int main() {
    tables::header("2^(j/64), j from 0 to 64: head, tail.", "hyperbolic_powers");
    for (int j = 0; j <= 64; ++j) {
        Real power = exp2(Real(j / 64.0));
        double head = power.as_double();
        std::printf("    {%a, %a},  // %d\n", head, (power - Real(head)).as_double(), j);
    }
}
