// erf about the centre d of each interval: d, erf d as two floats, its slope there as two floats of which the head has
// 12 bits, and the further coefficients of a polynomial of degree 4 in w = |x| - d. Row 0 serves |x| below 1/32, in
// powers of x itself; rows 1 to 112 a sixteenth of a binade each, up to 4; row 113 all above. Relative minimax fits of
// (erf(d + w) - erf d)/w, but for the rows that are fixed by their bits.
#include "tools/tables/remez.h"

using tables::Real;

namespace {

constexpr int last = 113;

struct Row {
    uint32_t column[8];  // d, v_head, v_tail, g_head, g_tail, c2, c3, c4
};
struct Fixed {
    int index;
    Row row;
};
constexpr Fixed fixed_rows[] = {
    {0, {0, 0, 0, 0x3f907000, 0xb822bfe0, 0x3567c4b7, 0xbec0a5b5, 0x3be71d98}},
    {1, {0x3d040000, 0x3d14e4fe, 0x3033cc88, 0x3f905000, 0xb974da80, 0xbd14ca9c, 0xbebffc42, 0x3c951afe}},
    {57, {0x3ec40000, 0x3ed2d156, 0x32220914, 0x3f798000, 0xb8367d34, 0xbebf03d1, 0xbe6b26c1, 0x3e2c4a33}},
    {112, {0x407c0000, 0x3f800000, 0xb2dcc12a, 0x345fe000, 0x2d91207e, 0xb55c66e7, 0x360dc471, 0xb68200a8}},
    {last, {0, 0x3f800000, 0, 0, 0, 0, 0, 0}},
};

Real start(int i) {
    return static_cast<double>(__builtin_bit_cast(float, 0x3cf80000 + static_cast<uint32_t>(i) * 0x80000));
}

// (erf(d + w) - erf d)/w, by the series where the difference would cancel.
Real slope(const Real& d, const Real& w) {
    if (tables::magnitude(w) < Real(0x1p-80)) {
        Real first = Real(2.0) / sqrt(tables::pi()) * exp(Real(0.0) - d * d);
        return first * (Real(1.0) - d * w);
    }
    return (erf(d + w) - erf(d)) / w;
}

Row row(int i) {
    for (const Fixed& fixed : fixed_rows)
        if (fixed.index == i) return fixed.row;
    Real d = (start(i) + start(i + 1)) / Real(2.0);
    auto c = tables::relative_minimax([&](const Real& w) { return slope(d, w); }, 0, 3, start(i) - d, start(i + 1) - d);
    auto bits = [](float x) { return tables::pattern(x); };
    float v_head = erf(d).as_float();
    float g_head = __builtin_bit_cast(float, bits(c[0].as_float()) & 0xfffff000);
    return {{bits(d.as_float()), bits(v_head), bits((erf(d) - Real(static_cast<double>(v_head))).as_float()),
             bits(g_head), bits((c[0] - Real(static_cast<double>(g_head))).as_float()), bits(c[1].as_float()),
             bits(c[2].as_float()), bits(c[3].as_float())}};
}

}  // namespace

int main() {
    tables::header("erf about d: d, value (two parts), slope (two parts), coefficients of w^2 to w^4.", "erff_rows");
    for (int i = 0; i <= last; ++i) {
        std::printf("    {");
        Row r = row(i);
        for (int k = 0; k < 8; ++k)
            std::printf("%a%s", static_cast<double>(__builtin_bit_cast(float, r.column[k])), k == 7 ? "},  " : ", ");
        std::printf("// %d\n", i);
    }
}
