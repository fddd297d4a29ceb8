// Rows of log10.
#include "tools/tables/log_rows.h"

int main() {
    using namespace tables;
    header("log10(512/c), above c = 724 log10(1024/c), c from 512 to 1024, to double.", "log10_rows");
    print_log_rows(log(Real(10.0)));
}
