// Cube roots of 2^j (1 + (2 i + 1)/64) in row 32 j + i, truncated to double.
#include "tools/tables/cube_roots.h"

int main() {
    tables::header("Cube roots of 2^j (1 + (2 i + 1)/64) in row 32 j + i, truncated to double.", "cbrt_heads");
    tables::print_heads(tables::cube_root_of_row, 53);
}
