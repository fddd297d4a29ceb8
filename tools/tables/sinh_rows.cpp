// sinh(j ln(2)/128) and 2^(-j/128)/2, j from 0 to 127, each rounded to double.
#include "tools/tables/table.h"

using tables::Real;

int main() {
    tables::header("sinh(j ln(2)/128) and 2^(-j/128)/2, j from 0 to 127, to double.", "sinh_rows");
    for (int j = 0; j < 128; ++j) {
        Real up = exp2(Real(j / 128.0)), down = exp2(Real(-j / 128.0));
        std::printf("    {%a, %a},  // %d\n", ((up - down) / Real(2.0)).as_double(), (down / Real(2.0)).as_double(), j);
    }
}
