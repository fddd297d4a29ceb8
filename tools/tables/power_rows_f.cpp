// Rows of the float powers' logarithm: -ln c in two parts, and c, a reciprocal of 1 + i/64 to 1/256. The fourth
// column fills the row up to one unit.
#include "tools/tables/power_stages.h"

int main() {
    using namespace tables;
    header("-ln c cut down to 14 fraction bits, the rest, and c = 1/(1 + i/64) to 1/256.", "power_rows_f");
    for (int i = 0; i <= 64; ++i) {
        Real c = nearest_to(reciprocal(1 + i / 64.0), 8);
        Real log_c = Real(0.0) - log(c);
        Real head = down_to(log_c, 14);
        std::printf("    {%a, %a, %a, 0},  // %d\n", head.as_double(), (log_c - head).as_float(), c.as_double(), i);
    }
}
