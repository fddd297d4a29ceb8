// Rows of expm1, double precision.
#include "tools/tables/powers.h"

int main() {
    using namespace tables;
    header("2^(i/128), i from 0 to 127: the mantissa field to 25 bits; the rest.", "expm1_powers");
    print_power_fields<double>(128, 25, true);
}
