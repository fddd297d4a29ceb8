// ln gamma(a (1 + t)) on [0, 1), for a = 4, 8, ... 256, as the product of eleven quadratics t^2 + b t + c and a scale:
// c and b in turns, then the scale, in the 80-bit format. Relative minimax fits of degree 22, taken apart into their
// roots, with an error of 2^-62 at most once rounded; row 0 is fixed by its bits.
#include "tools/tables/lgamma.h"
#include "tools/tables/quadratics.h"

using tables::Extended;
using tables::Real;

namespace {

constexpr int rows = 7;
constexpr size_t degree = 22;

constexpr Extended first_row[degree + 1] = {
    {0xc85efac379fafee2, 0x4001},  // c0
    {0x9f1f3c822d03080e, 0xc001},  // b0
    {0xc10d7aab7cec7ff2, 0x4001},  // c1
    {0x941cacfa9c0fa8a6, 0xc001},  // b1
    {0xb3537bdf603e454c, 0x4001},  // c2
    {0xfe34336391d99cb7, 0xc000},  // b2
    {0xa0d44e3d5bbe44c4, 0x4001},  // c3
    {0xc40baeaa165f81a1, 0xc000},  // b3
    {0x8b9c229b6241e7b3, 0x4001},  // c4
    {0xfe3ae166e9b4de8f, 0xbfff},  // b4
    {0xeb8049ba5e79ada3, 0x4000},  // c5
    {0xd744f91af7daf873, 0xbffe},  // b5
    {0xc20c95ea99037228, 0x4000},  // c6
    {0x87871851e9c32d02, 0x3ffd},  // b6
    {0x9d4a8c864053ceb8, 0x4000},  // c7
    {0x9c93c03c502e808f, 0x3fff},  // b7
    {0xfc7716544ab0c5c9, 0x3fff},  // c8
    {0xf78bed07501d6a8e, 0x3fff},  // b8
    {0xc7eb985259eaba5f, 0x3fff},  // c9
    {0x92fe41ba8beadf70, 0x4000},  // b9
    {0xc042fb3b4c95096d, 0x3ffd},  // c10
    {0xa021878e1903a2c6, 0x3fff},  // b10
    {0xcc2a7f930856177b, 0x3fee},  // scale
};

std::vector<Extended> row(int i) {
    if (i == 0) return {first_row, first_row + degree + 1};
    Real a = static_cast<double>(4 << i);
    auto p = tables::relative_minimax([&](const Real& t) { return tables::log_gamma(a + a * t); }, 0, degree, 0.0, 1.0);
    std::vector<Extended> row;
    for (const tables::Quadratic& quadratic : tables::quadratics(p)) {
        row.push_back(tables::extended(quadratic.c));
        row.push_back(tables::extended(quadratic.b));
    }
    row.push_back(tables::extended(p[degree]));
    return row;
}

}  // namespace

int main() {
    tables::header("ln gamma(a (1 + t)) as quadratics in t: c and b of each, scale; in the 80-bit format.",
                   "lgamma_rows");
    for (int i = 0; i < rows; ++i) {
        auto r = row(i);
        if (r.size() != degree + 1) return 1;
        std::printf("    {  // %d\n        {\n", i);
        for (size_t k = 0; k < degree; k += 2) {
            std::printf("            {");
            tables::print(r[k]);
            std::printf(", ");
            tables::print(r[k + 1]);
            std::printf("},\n");
        }
        std::printf("        },\n        ");
        tables::print(r[degree]);
        std::printf(",\n    },\n");
    }
}
