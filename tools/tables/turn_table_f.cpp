// Sine and cosine of B = 2 pi j / 256: cos_tail, sin_head, sin_tail, cos_head.
//
//   sin_head, sin_tail   sin B as head and tail
//   cos_head             the power of two nearest to cos B, on a logarithmic scale; 0 where cos B is 0
//   cos_tail             the rest of cos B
//
// j runs on to 319, so that the rows from 64 on are a table of their own, one quarter turn ahead.
#include "tools/tables/table.h"

using tables::Real;

namespace {

// sin(2 pi j / 256); the quarter turns are exact, where pi of any precision would leave a residue.
Real sine(int j) {
    if (j % 128 == 0) return 0.0;
    if (j % 64 == 0) return j / 64 % 4 == 1 ? 1.0 : -1.0;
    return sin(tables::pi() * (j / 128.0));
}
Real cosine(int j) { return sine(j + 64); }

// 2^k with 2^(k - 1/2) <= |cos B| < 2^(k + 1/2): decided on cos^2 B = (1 + cos 2B) / 2, which is exactly 1/2 at an
// eighth of a turn.
double nearest_power(int j) {
    double square = ((cosine(2 * j) + 1.0) / 2.0).as_double();
    if (square == 0) return 0;
    double power = 1;
    while (square < power * power / 2) power /= 2;
    return cosine(j).as_double() < 0 ? -power : power;
}

}  // namespace

int main() {
    tables::header("cos_tail, sin_head, sin_tail, cos_head of 2 pi j / 256, for j from 0 to 319.", "turn_table_f");
    for (int j = 0; j < 320; ++j) {
        float sin_head = sine(j).as_float();
        float sin_tail = (sine(j) - Real(sin_head)).as_float();
        double cos_head = nearest_power(j);
        float cos_tail = (cosine(j) - Real(cos_head)).as_float();
        std::printf("    %a, %a, %a, %a,  // %d\n", cos_tail, sin_head, sin_tail, cos_head, j);
    }
}
