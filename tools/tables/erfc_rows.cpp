// erfc(a) e^(a^2) by polynomials of degree 12 in w = a - d, d the left end of the interval: c0 to c12, d. Row 0 serves
// a below 1/4, rows 1 to 26 a quarter of a binade each, up to 24; row 27 all above, fitted up to 28. Relative minimax
// fits, but for the rows that are fixed by their bits.
#include "tools/tables/remez.h"

using tables::Real;

namespace {

constexpr int last = 27, degree = 12;

struct Fixed {
    int index;
    uint64_t c[degree + 1];
};
constexpr Fixed fixed_rows[] = {
    {0,
     {0x3ff0000000000000, 0xbff20dd750429b6c, 0x3feffffffffffe88, 0xbfe812746b02f8bf, 0x3fdfffffffd1e5ed,
      0xbfd341f6b71c0ef5, 0x3fc55554a9c1f2f3, 0xbfb6022ec96f85c5, 0x3fa554565e86c323, 0xbf9385159ffebdbf,
      0x3f80bc0b949aa5cf, 0xbf691ad6c04892c9, 0x3f48a93b0d7f7809}},
    {1,
     {0x3fe8a6adcda2ea92, 0xbfe7c857b9b3c191, 0x3fe2b497df35fa2e, 0xbfd97997ad330408, 0x3fcf0ac9d31f3350,
      0xbfc146985bd8e066, 0x3fb1d0c27d6e67a8, 0xbfa132db7acb637b, 0x3f8f54cdb1d0f4f4, 0xbf7b1807a32fa8e0,
      0x3f6658e54554f04d, 0xbf5182be73f6869d, 0x3f372a1d51bc2f81}},
    {last,
     {0x3f980d1e88d3c620, 0xbf5001a68f1b5442, 0x3f054964558f5897, 0xbebc48d27f640d0d, 0x3e72c675fc828f5c,
      0xbe28e79b2e30efcf, 0x3de080e2ce7fc781, 0xbd95da1f243a629d, 0x3d4ce16434e56f1a, 0xbd02ea672c65e1ab,
      0x3cb7b258907e52b2, 0xbc691e4109a9dae6, 0x3c0ffdf47f4509f1}},
};

double start(int i) {
    return i == 0 ? 0.0 : __builtin_bit_cast(double, (0x3fcc0000 + static_cast<uint64_t>(i) * 0x40000) << 32);
}

void coefficients(int i, double* c) {
    for (const Fixed& fixed : fixed_rows)
        if (fixed.index == i) {
            for (int k = 0; k <= degree; ++k) c[k] = __builtin_bit_cast(double, fixed.c[k]);
            return;
        }
    Real d = start(i);
    auto fit = tables::relative_minimax(
        [&](const Real& w) {
            Real a = d + w;
            return erfc(a) * exp(a * a);
        },
        0, degree, 0.0, Real(start(i + 1)) - d);
    for (size_t k = 0; k <= degree; ++k) c[k] = fit[k].as_double();
}

}  // namespace

int main() {
    tables::header("erfc(a) e^(a^2) on an interval: c0 to c12 of a polynomial in a - d, then d.", "erfc_rows");
    for (int i = 0; i <= last; ++i) {
        double c[degree + 1];
        coefficients(i, c);
        std::printf("    {{");
        for (int k = 0; k <= degree; ++k) std::printf("%a%s", c[k], k == degree ? "}" : ", ");
        std::printf(", %a},  // %d\n", start(i), i);
    }
}
