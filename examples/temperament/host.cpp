// Equal temperaments against 64 bits and beside the exact ratios that they stand for, and compound interest against
// products made one by one.
#include "host/host.h"

#include <cmath>
#include <cstdio>

extern "C" {
void steps(const double16* interval, const int16* parts, const int16* count, double16* step, double16* ratio,
           double16* whole);
void compound(const double* rate, const int* years, double* factor);
}

namespace {

double cents(long double ratio) { return static_cast<double>(1200 * std::log2(ratio)); }

bool temper() {
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 5);
    auto interval = host::column_as<double16, double>(table, 0);
    auto parts = host::column_as<int16, int>(table, 1), count = host::column_as<int16, int>(table, 2);
    std::vector<double16> step(interval.size()), ratio(interval.size()), whole(interval.size());
    host::run(interval.size(),
              [&] { steps(interval.data(), parts.data(), count.data(), step.data(), ratio.data(), whole.data()); });

    // OpenCL allows both 16 ulp; this library promises two of pown, and all but correct rounding of rootn where nothing
    // is subnormal. A step's rounding arrives as many times as there are steps.
    host::Worst roots("rootn(interval, parts)", 0.51), powers("pown(step, count)", 2),
        stacked("parts steps, in ulp a step", 2);
    std::printf("  %8s %6s %6s %19s %19s %6s %10s %10s\n", "interval", "parts", "steps", "a step", "ratio", "just",
                "cents", "off");
    for (size_t i = 0; i < table.size(); ++i) {
        size_t at = i / 16, lane = i % 16;
        double x = interval[at][lane], one = step[at][lane], many = ratio[at][lane];
        int n = parts[at][lane], k = count[at][lane];
        long double just = static_cast<long double>(table[i][3]) / table[i][4];
        std::printf("  %8g %6d %6d %19.16f %19.16f %3g:%-3g %9.3f %10.3f\n", x, n, k, one, many, table[i][3],
                    table[i][4], cents(many), cents(many) - cents(just));
        roots.add(host::ulps(one, std::pow(static_cast<long double>(x), 1.0L / n)));
        powers.add(host::ulps(many, std::pow(static_cast<long double>(one), k)));
        stacked.add(host::ulps(whole[at][lane], x) / std::abs(n));
    }
    std::puts("");
    bool good = true;
    for (const host::Worst* worst : {&roots, &powers, &stacked}) good = worst->report() && good;
    return good;
}

bool grow() {
    const double rates[] = {0.01, 0.02, 0.045, 0.07, 0.072, 0.1, -0.03, 1.0 / 4096};
    const int spans[] = {1, 10, 72, 400, 2023};
    // The products, rounded to 64 bits, are an ulp off at the most after 2023 years.
    host::Worst worst("pown(1 + rate, years)", 2 + 1);
    std::printf("\n  %8s", "rate");
    for (int years : spans) std::printf(" %16d years", years);
    std::puts("");
    for (double rate : rates) {
        std::printf("  %7.3f%%", 100 * rate);
        for (int years : spans) {
            double factor;
            host::run(1, [&] { compound(&rate, &years, &factor); });
            long double product = 1;
            for (int year = 0; year < years; ++year) product *= 1 + rate;
            std::printf(" %22.16g", factor);
            worst.add(host::ulps(factor, product));
        }
        std::puts("");
    }
    std::puts("");
    return worst.report();
}

}  // namespace

int main() {
    std::printf("Equal temperaments by rootn and pown, double16\n\n");
    bool good = temper();
    std::printf("\nCompound growth by pown, double\n");
    good = grow() && good;
    return good ? 0 : 1;
}
