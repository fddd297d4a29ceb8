// Rows of exp: the polynomial is monic, the factor its scale.
#include "tools/tables/powers.h"

int main() {
    using namespace tables;
    header("2^(i/1024), i from 0 to 1023, times 0x1.5555556e68764p-3, to double.", "exp_powers");
    print_powers(1024, Real(0x1.5555556e68764p-3));
}
