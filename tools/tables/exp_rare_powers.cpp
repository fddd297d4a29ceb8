// Rows of the scalar double exponentials.
#include "tools/tables/powers.h"

int main() {
    using namespace tables;
    header("2^(i/64), i from 0 to 63, to double; the rest, relative to it.", "exp_rare_powers");
    print_powers_with_rest(64);
}
