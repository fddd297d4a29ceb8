// Voyages at one gravity against travellers' tables and against 64 bits, and sums of speeds that are fractions.
#include "host/host.h"

#include <cmath>
#include <cstdio>

extern "C" {
void travel(const double4* clock, double push, double4* time, double4* distance, double4* speed, double4* stretch);
void read_clocks(const double4* time, const double4* speed, const double4* stretch, double push, double4* by_time,
                 double4* by_speed, double4* by_stretch);
void add_speeds(const double2* first, const double2* second, double2* both);
}

namespace {

constexpr double push = 1.03;

bool voyages() {
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 9);
    auto clock = host::column_as<double4, double>(table, 0);
    size_t size = clock.size();
    std::vector<double4> time(size), distance(size), speed(size), stretch(size), by_time(size), by_speed(size),
        by_stretch(size);
    host::run(size, [&] { travel(clock.data(), push, time.data(), distance.data(), speed.data(), stretch.data()); });
    host::run(size, [&] {
        read_clocks(time.data(), speed.data(), stretch.data(), push, by_time.data(), by_speed.data(),
                    by_stretch.data());
    });

    // Tables round their last digit or cut it off. OpenCL allows these functions four to five ulp. What a product or
    // quotient rounds is added: the argument's rounding weighs as many times as the argument is large, here up to 12,
    // and every ulp may double at a division.
    host::Worst published("tables", 1, "of the last digit"), times("sinh(a t) / a", 12 + 2 * 4 + 0.5),
        distances("2 sinh(a t / 2)^2 / a", 12 + 4 * 4 + 2), speeds("tanh(a t)", 5 + 1), stretches("cosh(a t)", 12 + 4),
        asinhs("asinh(a time) / a", 2 * 4 + 2), atanhs("atanh(speed) / a", 2 * 5 + 0.5),
        acoshs("acosh(stretch) / a", 2 * 4 + 0.5);
    std::printf("  %11s %15s %15s %20s %15s %13s %13s %13s\n", "ship, years", "home, years", "light years", "speed",
                "stretch", "by asinh", "by atanh", "by acosh");
    for (size_t i = 0; i < table.size(); ++i) {
        size_t at = i / 4, lane = i % 4;
        std::printf("  %11.5g %15.9g %15.9g %20.17f %15.9g %13.9g %13.9g %13.9g\n", clock[at][lane], time[at][lane],
                    distance[at][lane], speed[at][lane], stretch[at][lane], by_time[at][lane], by_speed[at][lane],
                    by_stretch[at][lane]);
        size_t column = 1;
        for (const auto* result : {&time, &distance, &speed, &stretch}) {
            published.add(std::fabs((*result)[at][lane] - table[i][column]) * std::pow(10, table[i][column + 4]));
            ++column;
        }
        long double a = push, rapidity = a * clock[at][lane], half = std::sinh(rapidity / 2);
        times.add(host::ulps(time[at][lane], std::sinh(rapidity) / a));
        distances.add(host::ulps(distance[at][lane], 2 * half * half / a));
        speeds.add(host::ulps(speed[at][lane], std::tanh(rapidity)));
        stretches.add(host::ulps(stretch[at][lane], std::cosh(rapidity)));
        asinhs.add(host::ulps(by_time[at][lane], std::asinh(a * time[at][lane]) / a));
        atanhs.add(host::ulps(by_speed[at][lane], std::atanh(static_cast<long double>(speed[at][lane])) / a));
        acoshs.add(host::ulps(by_stretch[at][lane], std::acosh(static_cast<long double>(stretch[at][lane])) / a));
    }
    std::puts("");
    bool good = true;
    for (const host::Worst* worst : {&published, &times, &distances, &speeds, &stretches, &asinhs, &atanhs, &acoshs})
        good = worst->report() && good;
    return good;
}

// p/q and r/s of light's speed make (p s + r q) / (q s + p r).
bool sums_of_speeds() {
    struct Fractions {
        int p, q, r, s;
    };
    const Fractions rows[] = {{1, 2, 1, 2}, {9, 10, 9, 10},         {3, 4, -3, 4}, {1, 1000000, 1, 1000000},
                              {3, 5, 4, 5}, {999999, 1000000, 1, 2}};
    host::Worst worst("tanh(atanh(v) + atanh(w))", 16);
    std::printf("\n  %20s %22s %22s\n", "v, w", "both", "by the fraction");
    for (const auto& [p, q, r, s] : rows) {
        double2 first = {static_cast<double>(p) / q, static_cast<double>(r) / s}, second = {first[1], first[0]}, both;
        host::run(1, [&] { add_speeds(&first, &second, &both); });
        long double exact = (static_cast<long double>(p) * s + static_cast<long double>(r) * q) /
                            (static_cast<long double>(q) * s + static_cast<long double>(p) * r);
        std::printf(
            "  %20s %22.16g %22.16g\n",
            (std::to_string(p) + "/" + std::to_string(q) + ", " + std::to_string(r) + "/" + std::to_string(s)).c_str(),
            both[0], static_cast<double>(exact));
        worst.add(host::ulps(both[0], exact));
        worst.add(host::ulps(both[1], exact));
    }
    std::puts("");
    return worst.report();
}

}  // namespace

int main() {
    std::printf(
        "Voyages at one gravity, double4, double2: sinh, cosh, tanh; the ship's clock by asinh, atanh, acosh\n\n");
    bool good = voyages();
    good = sums_of_speeds() && good;
    return good ? 0 : 1;
}
