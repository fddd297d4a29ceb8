// floor(2^(e - 55) / pi) mod 2^96, for every biased exponent e of a float.
#include "tools/tables/bits_of_inverse_pi.h"

int main() {
    tables::header("floor(2^(e - 55) / pi) mod 2^96 in three words, highest first, for e from 0 to 255.",
                   "invpi_rows_f");
    tables::InversePi inverse_pi;
    for (int e = 0; e < 256; ++e) {
        std::printf("    ");
        inverse_pi.print(e - 55, 3, 32);
        std::printf(" // %d\n", e);
    }
}
