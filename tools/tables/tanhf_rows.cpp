// tanh x by cubics in x: c0, c1, c2, c3. Row 0 serves x below 2^-5, rows 1 to 132 a sixteenth of a binade each, from
// 2^-5 to 10, row 133 all above.
#include "tools/tables/remez.h"

using tables::Real;

namespace {

constexpr int last = 133;

// Where row i begins.
Real start(int i) {
    uint32_t bits = 0x3cf80000 + static_cast<uint32_t>(i) * 0x80000;
    return static_cast<double>(__builtin_bit_cast(float, bits));
}

// Rows that are fixed by their bits. They are relative minimax fits like the others, of a program that stopped some
// digits earlier: what they miss of the best fit is far below a float's precision.
struct FixedRow {
    int row;
    uint64_t c[4];
};
constexpr FixedRow fixed_rows[] = {
    {0, {0, 0x3ff00000022c70eb, 0xbed00e878cffa194, 0xbfd551766d0607a9}},
    {1, {0xbe53d60ce3e4c297, 0x3ff000024177cf5c, 0xbf1758bc94a51a25, 0xbfd53eae67e0d4f0}},
    {132, {0x3fefffeafe70fcfc, 0x3ec879175e3549f5, 0xbe930e36677d1813, 0x3e43d4005b42d48f}},
    {last, {0x3ff0000000000000, 0, 0, 0}},
};

void print(const double* c, int i) { std::printf("    {%a, %a, %a, %a},  // %d\n", c[0], c[1], c[2], c[3], i); }

}  // namespace

int main() {
    tables::header("tanh x on an interval of x: c0, c1, c2, c3 of a cubic in x.", "tanhf_rows");
    for (int i = 0; i <= last; ++i) {
        double c[4];
        const FixedRow* fixed = nullptr;
        for (const FixedRow& row : fixed_rows)
            if (row.row == i) fixed = &row;
        if (fixed) {
            for (int k = 0; k < 4; ++k) c[k] = __builtin_bit_cast(double, fixed->c[k]);
        } else {
            auto fit = tables::relative_minimax([](const Real& x) { return tanh(x); }, 0, 3, start(i), start(i + 1));
            for (size_t k = 0; k < 4; ++k) c[k] = fit[k].as_double();
        }
        print(c, i);
    }
}
