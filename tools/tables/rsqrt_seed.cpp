// 1/sqrt(1 + i/32), i from 0 to 32, then 1/sqrt(2 (1 + j/32)), j from 1 to 32, each to 13 significant bits.
#include "tools/tables/table.h"

int main() {
    tables::header("1/sqrt(1 + i/32), i to 32, then 1/sqrt(2 (1 + j/32)), to 13 significant bits.", "rsqrt_seed");
    for (int i = 0; i <= 64; ++i) {
        tables::Real x = i <= 32 ? 1.0 + i / 32.0 : 2.0 * (1.0 + (i - 32) / 32.0);
        tables::row(rsqrt(x).rounded(13).as_double(), i);
    }
}
