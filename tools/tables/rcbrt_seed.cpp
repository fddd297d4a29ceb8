// (2^j (1 + i/32))^(-1/3), rounded to nearest to a multiple of 1/256, in row 32 j + i.
#include "tools/tables/cube_roots.h"

int main() {
    tables::header("(2^j (1 + i/32))^(-1/3), rounded to a multiple of 1/256, in row 32 j + i.", "rcbrt_seed");
    for (int row = 0; row <= 96; ++row) {
        int j = row / 32;
        tables::Real y = (1 << j) * (1.0 + (row - 32 * j) / 32.0);
        mpfr_cbrt(y.get(), y.get(), MPFR_RNDN);
        y = 256.0 / y;
        mpfr_rint(y.get(), y.get(), MPFR_RNDN);
        tables::row((y / 256.0).as_double(), row);
    }
}
