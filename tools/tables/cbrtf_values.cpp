// Cube roots of 2^j (1 + (2 i + 1)/64) in row 32 j + i, as two floats.
#include "tools/tables/cube_roots.h"

int main() {
    tables::header("Cube roots of 2^j (1 + (2 i + 1)/64) in row 32 j + i, as two floats.", "cbrtf_values");
    tables::print_float_pairs(tables::cube_root_of_row);
}
