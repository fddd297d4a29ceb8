// 1 / the cube roots of 2^j (1 + (2 i + 1)/64) in row 32 j + i, as two doubles.
#include "tools/tables/cube_roots.h"

int main() {
    tables::header("1 / the cube roots of 2^j (1 + (2 i + 1)/64) in row 32 j + i, as two doubles.", "rcbrt_values");
    tables::print_double_pairs(tables::reciprocal_cube_root_of_row);
}
