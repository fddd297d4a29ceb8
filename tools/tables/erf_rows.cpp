// erf by polynomials of degree 10 in w = |x| + d, -d the middle of the interval: d, c0 to c10. Row 0 serves |x| below
// 1/8, in powers of x itself; rows 1 to 44 an eighth of a binade each, up to 6; row 45 all above. Relative minimax
// fits, but for the rows that are fixed by their bits.
#include "tools/tables/remez.h"

using tables::Real;

namespace {

constexpr int last = 45, degree = 10;

struct Row {
    uint64_t d, c[degree + 1];
};
struct Fixed {
    int index;
    Row row;
};
constexpr Fixed fixed_rows[] = {
    {0,
     {0,
      {0, 0x3ff20dd750429b6d, 0, 0xbfd812746b036d44, 0xbdc127b360367005, 0x3fbce2f223001aff, 0xbe738b24c46c7763,
       0xbf9b826ba710b835, 0xbef2b16af0a3904c, 0x3f75eca138d6d06f, 0xbf40af1f9c582f3d}}},
    {1,
     {0xbfc1000000000000,
      {0x3fc311fc15f56d14, 0x3ff1bd07cdd189ac, 0xbfc2d8d84aaea247, 0xbfd6d11b7f1e51b6, 0x3fb2a01b7f8dcf39,
       0x3fba6405ef5da631, 0xbf988a5c3fc74ec8, 0xbf9833ea26c21ea1, 0x3f783fc6728c6713, 0x3f721bb4f0ed7fa3,
       0xbf532a26d86df1cf}}},
    {44,
     {0xc016d7da46e4b314,
      {0x3feffffffffffff9, 0x3d016dc7d9a4732d, 0xbd28e21366623d40, 0x3d4751f7d26f058e, 0xbd6020f7015669d4,
       0x3d718dc7c8d0948f, 0xbd7f431c24c711a4, 0x3d873e0086a23529, 0xbd8de254863bce40, 0x3d92a45d987f8cda,
       0xbd92347a6f145237}}},
    {last, {0, {0x3ff0000000000000, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}}},
};

Real start(int i) { return __builtin_bit_cast(double, (0x3fbe0000 + static_cast<uint64_t>(i) * 0x20000) << 32); }

Row row(int i) {
    for (const Fixed& fixed : fixed_rows)
        if (fixed.index == i) return fixed.row;
    Real centre = (start(i) + start(i + 1)) / Real(2.0);
    auto c = tables::relative_minimax([&](const Real& w) { return erf(centre + w); }, 0, degree, start(i) - centre,
                                      start(i + 1) - centre);
    Row row = {tables::pattern(-centre.as_double()), {}};
    for (size_t k = 0; k <= degree; ++k) row.c[k] = tables::pattern(c[k].as_double());
    return row;
}

}  // namespace

int main() {
    tables::header("erf on an interval: d, then c0 to c10 of a polynomial in |x| + d.", "erf_rows");
    for (int i = 0; i <= last; ++i) {
        Row r = row(i);
        std::printf("    {%a, {", __builtin_bit_cast(double, r.d));
        for (int k = 0; k <= degree; ++k)
            std::printf("%a%s", __builtin_bit_cast(double, r.c[k]), k == degree ? "}},  " : ", ");
        std::printf("// %d\n", i);
    }
}
