// 2^(j/128) as head and tail, in double precision.
#include "tools/tables/power_stages.h"

int main() {
    using namespace tables;
    header("2^(j/128) to double, and the rest.", "power_exp2_d");
    for (int j = 0; j < 128; ++j) {
        Real power = exp2(j / 128.0);
        double head = power.as_double();
        std::printf("    {%a, %a},  // %d\n", head, (power - Real(head)).as_double(), j);
    }
}
