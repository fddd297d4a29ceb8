// Rows of log, and of log1p's native class.
#include "tools/tables/log_rows.h"

int main() {
    using namespace tables;
    header("ln(512/c), above c = 724 ln(1024/c), c from 512 to 1024, to double.", "log_rows");
    print_log_rows(Real(1.0));
}
