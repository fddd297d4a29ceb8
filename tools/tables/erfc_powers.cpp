// 2^(j/128), rounded to double.
#include "tools/tables/table.h"

int main() {
    tables::header("2^(j/128), rounded to double.", "erfc_powers");
    for (int j = 0; j < 128; ++j) tables::row(exp2(tables::Real(j / 128.0)).as_double(), j);
}
