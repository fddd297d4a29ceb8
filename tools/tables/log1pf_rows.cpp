// Rows of log1p, single precision.
#include "tools/tables/log_rows.h"

int main() {
    using namespace tables;
    header("ln(256/c) - 127 ln 2 in two parts, c from 128 to 256.", "log1pf_rows");
    print_biased_log_rows<float>(128, 127, number(0x3f317200u), number(0x35bfbe00u), 15);
}
