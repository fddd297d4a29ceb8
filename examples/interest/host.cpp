// Interest on money and the decay of nuclei over steps from a year to a picosecond, against the same in 64 bits.
#include "host/host.h"

#include <cmath>
#include <cstdio>

extern "C" {
void gains(const double4* rate, const double4* step, double4* gain, double4* gain_by_exp);
void rates(const double4* gain, const double4* step, double4* rate, double4* rate_by_log);
}

int main() {
    constexpr double seconds_in_a_year = 31557600;
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 2);
    auto step = host::column_as<double4, double>(table, 1);
    std::vector<double4> rate = host::column_as<double4, double>(table, 0);
    for (double4& years : rate) years = M_LN2 / (years * seconds_in_a_year);
    std::vector<double4> gain(rate.size()), gain_by_exp(rate.size()), again(rate.size()), again_by_log(rate.size());
    host::run(rate.size(), [&] { gains(rate.data(), step.data(), gain.data(), gain_by_exp.data()); });
    host::run(rate.size(), [&] { rates(gain.data(), step.data(), again.data(), again_by_log.data()); });

    // OpenCL allows expm1 three ulp and log1p two. The product's rounding weighs up to twice; a quotient may have
    // twice as many ulp as what is divided, and half a one of its own.
    host::Worst gain_error("expm1(rate * step)", 3 + 2), rate_error("log1p(gain) / step", 2 * 2 + 0.5);
    std::printf("Growth and decay, double4: expm1, log1p; beside them exp(x) - 1 and log(1 + gain)\n\n");
    std::printf("  %12s %10s %23s %23s %22s %22s\n", "years to x2", "seconds", "gain of a million", "by exp(x) - 1",
                "rate in a year", "by log(1 + gain)");
    for (size_t i = 0; i < table.size(); ++i) {
        size_t at = i / 4, lane = i % 4;
        double g = gain[at][lane], t = step[at][lane];
        std::printf("  %12.6g %10.6g %23.15e %23.15e %22.15e %22.15e\n", table[i][0], t, 1e6 * g,
                    1e6 * gain_by_exp[at][lane], seconds_in_a_year * again[at][lane],
                    seconds_in_a_year * again_by_log[at][lane]);
        gain_error.add(host::ulps(g, std::expm1(static_cast<long double>(rate[at][lane]) * t)));
        rate_error.add(host::ulps(again[at][lane], std::log1p(static_cast<long double>(g)) / t));
    }
    std::puts("");
    bool good = gain_error.report();
    good = rate_error.report() && good;
    return good ? 0 : 1;
}
