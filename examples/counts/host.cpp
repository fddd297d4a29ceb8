// Counts that chance makes: deaths by horse kick and alpha particles beside Poisson's distribution, and the chances of
// many successes, known to 21 digits.
#include "host/host.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

extern "C" {
void poisson(const double2* mean, const double2* count, double2* chance);
void binomial(const double4* trials, const double4* count, const double4* success, double4* chance);
void binomial_tails(const double4* trials, const double4* count, const double4* success, const double4* chance,
                    int terms, double4* tail);
}

namespace {

bool rare_events() {
    auto table = host::read_table(EXAMPLE_FOLDER "/poisson.txt", 6);
    auto mean = host::column_as<double2, double>(table, 0), count = host::column_as<double2, double>(table, 1);
    std::vector<double2> chance(mean.size());
    host::run(mean.size(), [&] { poisson(mean.data(), count.data(), chance.data()); });

    // Exponents up to 12 are sums of two numbers that rounded; each may weigh eight ulp. exp and tgamma add some.
    host::Worst worst("poisson", 3 * 8 + 8), published("poisson, as published", 1, "of the last digit");
    std::printf("  %5s %6s %10s %14s %11s %23s\n", "mean", "count", "observed", "to be expected", "published",
                "chance");
    for (size_t i = 0; i < table.size(); ++i) {
        const auto& row = table[i];
        double p = chance[i / 2][i % 2];
        std::printf("  %5.2f %6.0f %10.0f %14.3f %11g %23.16g\n", row[0], row[1], row[3], row[2] * p, row[4], p);
        long double k = row[1], m = row[0];
        worst.add(host::ulps(p, std::exp(k * std::log(m) - m) / std::tgamma(k + 1)));
        published.add(std::fabs(row[2] * p - row[4]) / row[5]);
    }
    std::puts("");
    bool good = worst.report();
    return published.report() && good;
}

bool many_successes() {
    auto table = host::read_table(EXAMPLE_FOLDER "/binomial.txt", 5);
    auto trials = host::column_as<double4, double>(table, 0), count = host::column_as<double4, double>(table, 1),
         success = host::column_as<double4, double>(table, 2);
    std::vector<double4> chance(trials.size()), tail(trials.size());
    int terms = 0;
    for (const auto& row : table) terms = std::max(terms, static_cast<int>(row[0] - row[1]));
    host::run(trials.size(), [&] { binomial(trials.data(), count.data(), success.data(), chance.data()); });
    host::run(trials.size(),
              [&] { binomial_tails(trials.data(), count.data(), success.data(), chance.data(), terms, tail.data()); });

    // Large logarithms cancel, and their roundings are what is left: so many of the largest, that of n!.
    host::Worst chances("chance of just so many", 4, "ulp of log n!"), tails("of so many or more", 4, "ulp of log n!");
    std::printf("\n  %7s %9s %12s %23s %23s %23s %10s\n", "trials", "successes", "chance", "just so many",
                "so many or more", "known", "off by");
    for (size_t i = 0; i < table.size(); ++i) {
        const auto& row = table[i];
        double p = chance[i / 4][i % 4], t = tail[i / 4][i % 4];
        std::printf("  %7.0f %9.0f %12.6g %23.15e %23.15e %23.15e %10.1e\n", row[0], row[1], row[2], p, t, row[4],
                    t / row[4] - 1);
        double rounding = 0x1p-52 * std::lgamma(row[0] + 1);
        chances.add(std::fabs(p / row[3] - 1) / rounding);
        tails.add(std::fabs(t / row[4] - 1) / rounding);
    }
    std::puts("");
    bool good = chances.report();
    return tails.report() && good;
}

}  // namespace

int main() {
    std::printf("Rare events, double2: exp, log, tgamma\n\n");
    bool good = rare_events();
    std::printf("\nSuccesses in many trials, double4: exp, log, log1p, lgamma\n");
    good = many_successes() && good;
    return good ? 0 : 1;
}
