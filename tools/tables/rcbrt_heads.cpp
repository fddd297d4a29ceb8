// 1 / the cube roots of 2^j (1 + (2 i + 1)/64) in row 32 j + i, truncated to double.
#include "tools/tables/cube_roots.h"

int main() {
    tables::header("1 / the cube roots of 2^j (1 + (2 i + 1)/64) in row 32 j + i, truncated to double.", "rcbrt_heads");
    tables::print_heads(tables::reciprocal_cube_root_of_row, 53);
}
