// Resistors in parallel and impedances, chosen so that both come out whole: 3 and 6 ohm make 2, 3 and 4 make 5.
#include "host/host.h"

#include <cmath>
#include <cstdio>

extern "C" {
void circuits(const double4* a, const double4* b, const double4* reactance, double4* parallel,
              double4* product_over_sum, double4* impedance);
void all_in_parallel(const double8* r, double* total);
}

int main() {
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 5);
    auto a = host::column_as<double4, double>(table, 0);
    auto b = host::column_as<double4, double>(table, 1);
    auto x = host::column_as<double4, double>(table, 2);
    std::vector<double4> parallel(a.size()), product_over_sum(a.size()), impedance(a.size());
    // 2, 3, 6, 4, 8, 8 ohm: their conductances add up to 1/2 + 1/3 + 1/6 + 1/4 + 1/8 + 1/8 = 3/2. Two lanes that are
    // not used hold a resistance so large that its native reciprocal is zero.
    std::vector<double8> chain(1, double8{2, 3, 6, 4, 8, 8, 0x1p1023, 0x1p1023});
    std::vector<double> total(chain.size());
    host::run(a.size(), [&] {
        circuits(a.data(), b.data(), x.data(), parallel.data(), product_over_sum.data(), impedance.data());
    });
    host::run(chain.size(), [&] { all_in_parallel(chain.data(), total.data()); });

    // Three roundings of half an ulp, the first two carried over by the reciprocal: at most twice as many ulp each.
    host::Worst parallels("1 / (1/a + 1/b)", 3), quotients("a b / (a + b)", 0.5), impedances("sqrt(r^2 + x^2)", 0.5),
        totals("six in parallel, double8", 12);
    std::printf("Circuits, double4: inv, div, sqrt; and double8: one divide for eight reciprocals\n\n");
    std::printf("  %9s %9s %9s %20s %9s %20s %9s\n", "a", "b", "reactance", "parallel", "by hand", "impedance",
                "by hand");
    for (size_t i = 0; i < table.size(); ++i) {
        const auto& row = table[i];
        size_t at = i / 4, lane = i % 4;
        std::printf("  %9g %9g %9g %20.17g %9g %20.17g %9g\n", row[0], row[1], row[2], parallel[at][lane], row[3],
                    impedance[at][lane], row[4]);
        parallels.add(host::ulps(parallel[at][lane], row[3]));
        quotients.add(host::ulps(product_over_sum[at][lane], row[3]));
        impedances.add(host::ulps(impedance[at][lane], row[4]));
    }
    std::printf("\n  2, 3, 6, 4, 8 and 8 ohm in parallel: %.17g, by hand 2/3\n\n", total[0]);
    totals.add(host::ulps(total[0], 2 / 3.0L));
    bool good = true;
    for (const host::Worst* worst : {&parallels, &quotients, &impedances, &totals}) good = worst->report() && good;
    return good ? 0 : 1;
}
