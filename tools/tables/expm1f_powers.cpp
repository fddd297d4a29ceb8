// Rows of expm1, single precision.
#include "tools/tables/powers.h"

int main() {
    using namespace tables;
    header("2^(i/64), i from 0 to 63: the mantissa field to 11 bits; the rest.", "expm1f_powers");
    print_power_fields<float>(64, 11, true);
}
