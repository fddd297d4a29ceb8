// ln|gamma| about each of its zeros in (-15, -2): for each unit interval, downwards, the zero at its lower end, then
// the one at its upper end. A bracket, the nearest double z of the zero, and coefficients of 1, w, ... w^16, w = x - z.
// The constant is ln|gamma z|; the others interpolate what is left, divided by w, with a relative error of 2^-59 at
// most. The bracket is an eighth of the way to the nearest integer on either side, but for the first eight.
#include "tools/tables/lgamma.h"

using tables::Real;

namespace {

constexpr int intervals = 13, degree = 16, extended_terms = 5;

struct Bracket {
    double low, zero, high;
};
constexpr Bracket fixed[][2] = {
    {{-2.7886826467274126, -2.7476826467274126, -2.7066826467274128},
     {-2.5070247382208004, -2.4570247382208006, -2.4070247382208008}},
    {{-3.9612942848585977, -3.955294284858598, -3.949294284858598},
     {-3.16358088834998, -3.14358088834998, -3.12358088834998}},
    {{-4.992794640560048, -4.991544640560048, -4.990294640560048},
     {-4.044361839740537, -4.039361839740537, -4.034361839740537}},
    {{-5.998807480080876, -5.998607480080876, -5.998407480080875},
     {-5.009218168322594, -5.0082181683225935, -5.007218168322593}},
};

// The zero of ln|gamma| a little above the integer (side 1) or below it (side -1): there gamma is about side/n!.
double zero_near(int integer, int side) {
    Real x = integer, step = 1.0;
    for (int i = 2; i <= -integer; ++i) step = step / Real(static_cast<double>(i));
    x = x + Real(static_cast<double>(side)) * step;
    for (int i = 0; i < 30; ++i) x = x - tables::log_gamma(x) / tables::digamma(x);
    return x.as_double();
}

Bracket bracket(int i, int upper) {
    if (i < 4) return fixed[i][upper];
    int integer = upper ? -2 - i : -3 - i;
    double zero = zero_near(integer, upper ? -1 : 1);
    double width = (zero > integer ? zero - integer : integer - zero) / 8;
    return {zero - width, zero, zero + width};
}

// The polynomial through f at Chebyshev's points.
std::vector<Real> interpolated(const tables::Function& f, int terms, const Real& low, const Real& high) {
    std::vector<std::vector<Real>> rows;
    for (int i = 0; i < terms; ++i) {
        Real turn = tables::pi() * Real((i + 0.5) / terms);
        Real w = low + (high - low) * (Real(1.0) - cos(turn)) / Real(2.0);
        std::vector<Real> row = {1.0};
        while (row.size() < static_cast<size_t>(terms)) row.push_back(row.back() * w);
        row.push_back(f(w));
        rows.push_back(row);
    }
    return tables::solve(rows);
}

void print_root(const Bracket& bracket) {
    Real zero = bracket.zero;
    auto c = interpolated([&](const Real& w) { return tables::slope_of_log_gamma(zero, w); }, degree,
                          Real(bracket.low) - zero, Real(bracket.high) - zero);
    c.insert(c.begin(), tables::log_gamma(zero));
    auto bits = [](double x) { return static_cast<unsigned long long>(tables::pattern(x)); };
    std::printf("     {{0x%016llx}, {0x%016llx}, {0x%016llx},\n      {{", bits(bracket.low), bits(bracket.zero),
                bits(bracket.high));
    for (size_t k = 0; k <= degree; ++k) {
        if (k < extended_terms)
            tables::print(tables::extended(c[k]));
        else
            std::printf("{0x%016llx}", bits(c[k].as_double()));
        std::printf(k == degree ? "}}},\n" : k == extended_terms - 1 ? "},\n       {" : ", ");
    }
}

}  // namespace

int main() {
    tables::header("ln|gamma| about its zeros: bracket with the zero in its middle; coefficients of 1, w, ... w^16.",
                   "lgamma_roots");
    for (int i = 0; i < intervals; ++i) {
        std::printf("    {  // %d\n", i);
        print_root(bracket(i, 0));
        print_root(bracket(i, 1));
        std::printf("    },\n");
    }
}
