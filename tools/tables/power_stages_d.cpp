// Stages of the scalar double powers: multipliers r that bring a mantissa close to 1, each row with -log2 r.
//
//   first    1/(1 + i/32); a mantissa from about 1.5 on counts as one of the next exponent
//   second   steps of 1/512 above 1, and of 1/1024 below it
//   third    log2(e), cut short, times steps of 2^-15 above 1, and of 2^-16 below it
#include "tools/tables/power_stages.h"

int main() {
    using namespace tables;
    header("Three stages of {r, -log2 r down to 42 fraction bits, the rest}.", "power_stages_d");
    open("first");
    for (int i = 0; i <= 32; ++i) {
        Real r = nearest_to(reciprocal(1 + i / 32.0), 15);
        stage_row_d(r, Real(i >= 16 ? -1.0 : 0.0) - log2(r), i);
    }
    close();
    open("second");
    for (int i = 0; i <= 32; ++i) {
        Real r = reciprocal(i < 15 ? 1 + i / 512.0 : 1 - (32 - i) / 1024.0).rounded(15);
        stage_row_d(r, Real(0.0) - log2(r), i);
    }
    close();
    open("third");
    const Real log2_e = 0x1.7154740000000p+0;
    for (int i = 0; i <= 128; ++i) {
        Real r = nearest_to(log2_e * reciprocal(i < 61 ? 1 + i / 32768.0 : 1 - (128 - i) / 65536.0), 22);
        stage_row_d(r, Real(0.0) - log2(r / log2_e), i);
    }
    close();
}
