// 2^(i/512), i from 0 to 511, each rounded to float.
#include "tools/tables/table.h"

int main() {
    tables::header("2^(i/512), i from 0 to 511, to float.", "exp10f_powers");
    for (int i = 0; i < 512; ++i) tables::row(exp2(tables::Real(i / 512.0)).as_float(), i);
}
