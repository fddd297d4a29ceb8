// (1 + i/32)^(-1/3), rounded down to a multiple of 1/256.
#include "tools/tables/cube_roots.h"

int main() {
    tables::header("(1 + i/32)^(-1/3), rounded down to a multiple of 1/256.", "cbrt_seed");
    for (int i = 0; i < 32; ++i) {
        tables::Real y = 1.0 + i / 32.0;
        mpfr_cbrt(y.get(), y.get(), MPFR_RNDN);
        y = 256.0 / y;
        mpfr_rint(y.get(), y.get(), MPFR_RNDD);
        tables::row((y / 256.0).as_double(), i);
    }
}
