// -1/c of the centres c = 1 + (2 i + 1)/64, rounded to double.
#include "tools/tables/cube_roots.h"

int main() {
    tables::header("-1/c of the centres c = 1 + (2 i + 1)/64, rounded to double.", "cbrt_reciprocals");
    for (int i = 0; i < 32; ++i) tables::row((-1.0 / tables::centre(i)).as_double(), i);
}
