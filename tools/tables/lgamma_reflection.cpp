// ln(sin(pi f)/(pi f))/q in powers of q = f^2 for f up to 1/2, the highest first: a relative minimax fit of degree 16
// with an error of 2^-64 as rounded to the 80-bit format.
#include "tools/tables/lgamma.h"

using tables::Real;

namespace {

constexpr size_t degree = 16;

Real value(const Real& q) {
    if (q < Real(0x1p-100)) return Real(0.0) - tables::pi() * tables::pi() / Real(6.0);
    Real angle = tables::pi() * sqrt(q);
    return log(sin(angle) / angle) / q;
}

}  // namespace

int main() {
    tables::header("ln(sin(pi f)/(pi f)) divided by q = f^2: coefficients of q^16, ... 1.", "lgamma_reflection");
    auto c = tables::relative_minimax(value, 0, degree, 0.0, 0.25);
    for (size_t k = degree + 1; k-- > 0;) {
        std::printf("    ");
        tables::print(tables::extended(c[k]));
        std::printf(",  // %zu\n", k);
    }
}
