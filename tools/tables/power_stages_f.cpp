// Tables of the scalar float powers. Three stages of multipliers r bring a mantissa close to 1, each row with -log2 r;
// then 2^(j/128) as head and tail.
//
//   first    1/(1 + i/8); a mantissa of 1.4375 and above counts as one of the next exponent
//   second   steps of 1/32 above 1, and of 1/64 below it
//   third    log2(e), cut short, times steps of 1/256 above 1, and of 1/512 below it
#include "tools/tables/power_stages.h"

namespace {

const double second[] = {1.0, 0.96875, 0.9375, 1.078125, 1.0625, 1.046875, 1.03125, 1.015625, 1.0};
const double third[] = {1.44140625,  1.435546875, 1.4296875,   1.423828125, 1.419921875, 1.47265625,
                        1.470703125, 1.466796875, 1.46484375,  1.4609375,   1.458984375, 1.455078125,
                        1.453125,    1.44921875,  1.447265625, 1.443359375, 1.44140625};

}  // namespace

int main() {
    using namespace tables;
    header(
        "Three stages of {r, -log2 r down to 17 fraction bits, the rest}; 2^(j/128) to 22 fraction bits and the rest.",
        "power_stages_f");
    open("first");
    for (int i = 0; i <= 8; ++i) {
        Real r = nearest_to(reciprocal(1 + i / 8.0), 7);
        stage_row_f(r, Real(i >= 4 ? -1.0 : 0.0) - log2(r), i);
    }
    close();
    open("second");
    for (int i = 0; i <= 8; ++i) stage_row_f(second[i], Real(0.0) - log2(second[i]), i);
    close();
    open("third");
    for (int i = 0; i <= 16; ++i) stage_row_f(third[i], Real(0.0) - log2(Real(third[i]) / Real(third[0])), i);
    close();
    open("powers");
    for (int j = 0; j < 128; ++j) {
        Real power = exp2(j / 128.0), head = nearest_to(power, 22);
        std::printf("        {%a, %a},  // %d\n", head.as_double(), (power - head).as_float(), j);
    }
    close();
}
