// 1/sqrt(1 + i/256), then 1/sqrt(2 (1 + i/256)), i from 0 to 255, each to 11 significant bits.
#include "tools/tables/table.h"

int main() {
    tables::header("1/sqrt(1 + i/256), then 1/sqrt(2 (1 + i/256)), to 11 significant bits.", "sqrt_seed");
    for (int i = 0; i < 512; ++i) {
        tables::Real x = (i < 256 ? 1.0 : 2.0) * (1.0 + (i % 256) / 256.0);
        tables::row(rsqrt(x).rounded(11).as_double(), i);
    }
}
