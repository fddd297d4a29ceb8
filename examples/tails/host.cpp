// Tails of the normal distribution known to 21 digits, down to the smallest doubles, and the quantiles back from them.
#include "host/host.h"

#include <cmath>
#include <cstdio>

extern "C" {
void tails(const double8* sigmas, double8* above, double8* outside, double8* by_erf);
void quantiles(const double8* above, double8* sigmas);
}

int main() {
    constexpr size_t lanes = 8;
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 3);
    auto sigmas = host::column_as<double8, double>(table, 0), known = host::column_as<double8, double>(table, 1);
    size_t size = sigmas.size();
    std::vector<double8> above(size), outside(size), by_erf(size), quantile(size);
    host::run(size, [&] { tails(sigmas.data(), above.data(), outside.data(), by_erf.data()); });
    host::run(size, [&] { quantiles(known.data(), quantile.data()); });

    // OpenCL allows erfc 16 ulp, this library promises four. What the rounding of x / sqrt 2 changes grows with the
    // square of x: it weighs 1406 times at 37.5 sigmas.
    host::Worst itself("erfc of the rounded argument", 4), shares("0.5 erfc(x / sqrt 2), up to 8 sigmas", 4 + 2 * 64),
        far("the same up to 37.5 sigmas", 4 + 2 * 1406), ends("quantiles", 0x1p-50, "of 1 + sigmas");
    std::printf("Tails of the normal distribution, double8: erfc, exp, log; beside them 1 - erf\n\n");
    std::printf("  %19s %23s %23s %12s %23s %20s\n", "sigmas", "above", "known", "by 1 - erf", "outside", "quantile");
    for (size_t i = 0; i < table.size(); ++i) {
        size_t at = i / lanes, lane = i % lanes;
        std::printf("  %19.17g %23.15e %23.15e %12.3e %23.15e %20.16g\n", table[i][0], above[at][lane], table[i][1],
                    by_erf[at][lane], outside[at][lane], quantile[at][lane]);
        itself.add(host::ulps(outside[at][lane], std::erfc(static_cast<long double>(table[i][0] * M_SQRT1_2))));
        (table[i][0] <= 8 ? shares : far).add(host::ulps(above[at][lane], table[i][1]));
        ends.add(std::fabs(quantile[at][lane] - table[i][2]) / (1 + table[i][2]));
    }
    std::puts("");
    bool good = true;
    for (const host::Worst* worst : {&itself, &shares, &far, &ends}) good = worst->report() && good;
    return good ? 0 : 1;
}
