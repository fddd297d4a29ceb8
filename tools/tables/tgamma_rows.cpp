// gamma(base + t) on [0, 1) as the product of eleven quadratics t^2 + b t + c and a scale: b in falling order, c in the
// same, then the scale, in the 80-bit format. The bases are 2, 16, 32, ... 176; the last row is down by a factor that
// makes its scale 1. Relative minimax fits of degree 22, taken apart into their roots; row 0 is fixed by its bits.
#include <algorithm>
#include <cstring>

#include "tools/tables/quadratics.h"

using tables::Real;

namespace {

constexpr int last = 11;
constexpr size_t degree = 22;

struct Extended {
    uint64_t significand;
    uint16_t sign_and_exponent;
};
constexpr Extended first_row[degree + 1] = {
    {0xef0e85c9ae40abe2, 0x4000}, {0xca2049ddb4096dd8, 0x4000}, {0x99a203b4dc2d1a8c, 0x4000},
    {0xbf5d9d9c0c295570, 0x3fff}, {0xe8dd037deb833bab, 0x3ffd}, {0xb6ae39a2a36aa03a, 0xbffe},
    {0x804960dc2850277b, 0xc000}, {0xd9f3973841c09f80, 0xc000}, {0x9c198a676f8a2239, 0xc001},
    {0xc98b7dae02be3226, 0xc001}, {0xe9caf31ac69301ba, 0xc001}, {0xfbbdd58608a0d172, 0x4000},
    {0xfdd0316d1e078301, 0x4000}, {0x8630b760468c15e4, 0x4001}, {0x93ede20e47d9152e, 0x4001},
    {0xa86f3a38c77d6b19, 0x4001}, {0xc44fb47e90584083, 0x4001}, {0xe863ee77e1c45981, 0x4001},
    {0x8ac15be238b9d70e, 0x4002}, {0xa5d94b6592350ef4, 0x4002}, {0xc379db3e20a148b3, 0x4002},
    {0xdaca49b73974f6c9, 0x4002}, {0x810e496a1afec895, 0x3fe1},
};
constexpr Extended last_factor = {0xba5d5869211696ff, 0x3bec};  // 1.54478500413825067204e-314

// This program's long double is that format.
Extended extended(const Real& x) {
    long double number = mpfr_get_ld(x.get(), MPFR_RNDN);
    Extended bits = {};
    std::memcpy(&bits, &number, 10);
    return bits;
}
Real value(const Extended& bits) {
    long double number = 0;
    std::memcpy(&number, &bits, 10);
    Real result;
    mpfr_set_ld(result.get(), number, MPFR_RNDN);
    return result;
}

// Coefficients c[0] to c[22] of gamma(base + t), those of the last row with c[22] = 1.
std::vector<Real> fit(int row) {
    Real base = row == 0 ? 2.0 : 16.0 * row;
    auto gamma = [&](const Real& t) {
        Real result = base + t;
        mpfr_gamma(result.get(), result.get(), MPFR_RNDN);
        return result;
    };
    if (row < last) return tables::relative_minimax(gamma, 0, degree, 0.0, 1.0);
    auto rest = [&](const Real& t) {
        Real power;
        mpfr_pow_ui(power.get(), t.get(), degree, MPFR_RNDN);
        return gamma(t) * value(last_factor) - power;
    };
    std::vector<Real> c = tables::relative_minimax(rest, 0, degree - 1, 0.0, 1.0);
    c.push_back(1.0);
    return c;
}

std::vector<Extended> factored(const std::vector<Real>& polynomial) {
    auto quadratics = tables::quadratics(polynomial);
    std::reverse(quadratics.begin(), quadratics.end());
    std::vector<Extended> row;
    for (const auto& quadratic : quadratics) row.push_back(extended(quadratic.b));
    for (const auto& quadratic : quadratics) row.push_back(extended(quadratic.c));
    row.push_back(extended(polynomial[degree]));
    return row;
}

}  // namespace

int main() {
    tables::header("gamma(base + t) as quadratics in t: b, c, scale; sign and exponent, significand.", "tgamma_rows");
    for (int i = 0; i <= last; ++i) {
        std::vector<Extended> row(first_row, first_row + degree + 1);
        if (i > 0) row = factored(fit(i));
        for (size_t k = 0; k <= degree; ++k) {
            const char* before = k == 0 ? "    {{" : k == degree / 2 ? "     {" : k < degree ? "      " : "     ";
            const char* after = k == degree ? "}," : (k + 1) % (degree / 2) == 0 ? "}," : ",";
            std::printf("%s{0x%04x, 0x%016jx}%s", before, row[k].sign_and_exponent, uintmax_t{row[k].significand},
                        after);
            std::printf(k == degree ? "  // %d\n" : "\n", i);
        }
    }
}
