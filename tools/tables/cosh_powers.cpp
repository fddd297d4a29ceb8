// 2^(j/256)/2, j from 0 to 256, each rounded to double.
#include "tools/tables/table.h"

using tables::Real;

int main() {
    tables::header("2^(j/256)/2, j from 0 to 256, to double.", "cosh_powers");
    for (int j = 0; j <= 256; ++j) tables::row((exp2(Real(j / 256.0)) / Real(2.0)).as_double(), j);
}
