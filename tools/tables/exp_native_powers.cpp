// Rows of the native exp: the polynomial is monic, the factor its scale.
#include "tools/tables/powers.h"

int main() {
    using namespace tables;
    header("2^(i/64), i from 0 to 63, times 0x1.ebfba4e01a90dp-15, to double.", "exp_native_powers");
    print_powers(64, Real(0x1.ebfba4e01a90dp-15));
}
