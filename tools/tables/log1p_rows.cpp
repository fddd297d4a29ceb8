// Rows of log1p, double precision.
#include "tools/tables/log_rows.h"

int main() {
    using namespace tables;
    header("ln(1024/c) - 1023 ln 2 in two parts, c from 512 to 1024.", "log1p_rows");
    print_biased_log_rows<double>(512, 1023, number(0x3fe62e42fefa0000ull), number(0x3d7cf79abc9e0000ull), 40);
}
