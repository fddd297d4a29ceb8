// Rows of log2.
#include "tools/tables/log_rows.h"

int main() {
    using namespace tables;
    header("log2(512/c), above c = 724 log2(1024/c), c from 512 to 1024, to double.", "log2_rows");
    print_log_rows(log(Real(2.0)));
}
