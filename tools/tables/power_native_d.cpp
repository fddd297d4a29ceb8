// Tables of the native double powers: logarithms of the integer reciprocals c from 512 to 1024, and 2^(j/2048), times
// a factor that centres the error of a polynomial of degree 1.
#include "tools/tables/power_stages.h"

int main() {
    using namespace tables;
    header("9 or, above 724, 10 ln 2 less ln c, c from 512; 0.99999999283948 * 2^(j/2048).", "power_native_d");
    open("logs");
    for (int c = 512; c <= 1024; ++c) {
        Real log_c = log(Real(c > 724 ? 1024.0 : 512.0)) - log(Real(static_cast<double>(c)));
        double row = c == 512 ? -0.0 : log_c.as_double();
        std::printf("        %a,  // %d\n", row, c);
    }
    close();
    open("powers");
    const Real factor = 0x1.ffffffc27dd9ep-1;
    for (int j = 0; j < 2048; ++j) std::printf("        %a,  // %d\n", (factor * exp2(j / 2048.0)).as_double(), j);
    close();
}
