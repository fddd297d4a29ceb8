// Sine and cosine of B = 2 pi j / 512: cos_tail, cos_head, sin_head, sin_tail.
//
//   sin_head, sin_tail   sin B as head and tail, the tail cut off to 24 significant bits
//   cos_head             the power of two nearest to cos B, on a linear scale; 0 where cos B is 0
//   cos_tail             the rest of cos B
//
// j runs on to 639, so that the rows from 128 on are a table of their own, one quarter turn ahead.
#include <cmath>

#include "tools/tables/table.h"

using tables::Real;

namespace {

// sin(2 pi j / 512); the quarter turns are exact, where pi of any precision would leave a residue.
Real sine(int j) {
    if (j % 256 == 0) return 0.0;
    if (j % 128 == 0) return j / 128 % 4 == 1 ? 1.0 : -1.0;
    return sin(tables::pi() * (j / 256.0));
}
Real cosine(int j) { return sine(j + 128); }

double nearest_power(double cosine) {
    if (cosine == 0) return 0;
    int exponent = std::ilogb(cosine);
    double power = std::ldexp(1.0, std::fabs(cosine) < std::ldexp(1.5, exponent) ? exponent : exponent + 1);
    return std::copysign(power, cosine);
}

}  // namespace

int main() {
    tables::header("cos_tail, cos_head, sin_head, sin_tail of 2 pi j / 512, for j from 0 to 639.", "turn_table_d");
    for (int j = 0; j < 640; ++j) {
        double cos_head = nearest_power(cosine(j).as_double());
        double cos_tail = (cosine(j) - Real(cos_head)).as_double();
        double sin_head = sine(j).as_double();
        double sin_tail = (sine(j) - Real(sin_head)).truncated(24).as_double();
        std::printf("    %a, %a, %a, %a,  // %d\n", cos_tail, cos_head, sin_head, sin_tail, j);
    }
}
