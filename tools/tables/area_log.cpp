// Minus the logarithm of the reciprocal R = 512 to 1024, scaled to the nearer side of 1: -ln(R/512) up to R = 724,
// -ln(R/1024) above, each rounded to double.
#include "tools/tables/table.h"

using tables::Real;

int main() {
    tables::header("-ln(R/512) for R from 512 to 724, -ln(R/1024) for R from 725 to 1024, to double.", "area_log");
    for (int r = 512; r <= 1024; ++r) {
        Real minus_log = log(Real(r) / Real(r <= 724 ? 512.0 : 1024.0));
        mpfr_neg(minus_log.get(), minus_log.get(), MPFR_RNDN);  // of zero too: -0 for 512
        // The last entry closes the range from above: +0.
        tables::row(r == 1024 ? 0.0 : minus_log.as_double(), r);
    }
}
