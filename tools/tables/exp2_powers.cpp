// Rows of exp2 and exp10.
#include "tools/tables/powers.h"

int main() {
    using namespace tables;
    header("2^(i/128), i from 0 to 127, to double.", "exp2_powers");
    print_powers(128, Real(1.0));
}
