// Rows of the native expm1, single precision.
#include "tools/tables/powers.h"

int main() {
    using namespace tables;
    header("2^(i/32), i from 0 to 31: the mantissa field of the float.", "expm1f_native_powers");
    print_power_fields<float>(32, 23, false);
}
