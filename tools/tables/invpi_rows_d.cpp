// floor(2^(e - 884) / pi) mod 2^192, for every biased exponent e of a double.
#include "tools/tables/bits_of_inverse_pi.h"

int main() {
    tables::header("floor(2^(e - 884) / pi) mod 2^192 in three words, highest first, for e from 0 to 2047.",
                   "invpi_rows_d");
    tables::InversePi inverse_pi;
    for (int e = 0; e < 2048; ++e) {
        std::printf("    ");
        inverse_pi.print(e - 884, 3, 64);
        std::printf(" // %d\n", e);
    }
}
