// atan c for c = 2^k 5/4 and 2^k 7/4 in turn, k from -3 to 53: a head of 26 bits, the rest as tail.
#include <cmath>

#include "tools/tables/table.h"

using tables::Real;

int main() {
    tables::header("Head and tail of atan c, c = 2^k 5/4 and 2^k 7/4 in turn, for k from -3 to 53.", "atan_steps");
    for (int i = 0; i < 114; ++i) {
        Real angle = atan(Real(std::ldexp(i % 2 == 0 ? 1.25 : 1.75, i / 2 - 3)));
        Real head = angle.rounded(26);
        std::printf("    {%a, %a},  // %d\n", head.as_double(), (angle - head).as_double(), i);
    }
}
