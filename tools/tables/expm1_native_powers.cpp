// Rows of the native expm1, double precision.
#include "tools/tables/powers.h"

int main() {
    using namespace tables;
    header("2^(i/128), i from 0 to 127: the mantissa field of the double.", "expm1_native_powers");
    print_power_fields<double>(128, 52, false);
}
