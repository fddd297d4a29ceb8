// Days of the week that history knows, orbits counted over millions of years, levels in bits, and distances between
// galaxies.
#include "host/host.h"

#include <cmath>
#include <cstdio>

extern "C" {
void weekdays(const float4* julian_day, float4* day_of_week, int4* weeks);
void orbits(const double2* days, const double2* period, double2* since_start);
void levels(const float8* sample, float8* mantissa, int8* exponent, float8* faded, int steps, int8* top_bit,
            float8* next);
void distances(const float4* east, const float4* north, float4* distance);
}

namespace {

bool count_weeks() {
    const char* const names[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 2);
    auto day = host::column_as<float4, float>(table, 0);
    std::vector<float4> weekday(day.size());
    std::vector<int4> weeks(day.size());
    host::run(day.size(), [&] { weekdays(day.data(), weekday.data(), weeks.data()); });
    bool good = true;
    for (size_t i = 0; i < table.size(); ++i) {
        int found = static_cast<int>(weekday[i / 4][i % 4]), week = weeks[i / 4][i % 4];
        bool right = found == table[i][1] && 7 * week + found == static_cast<int>(table[i][0]) + 1;
        std::printf("  %9.0f  %-10s in week %6d%s\n", table[i][0], names[found], week, right ? "" : "  WRONG");
        good = good && right;
    }
    return good;
}

// Whole days and whole thousandths of a day, so that the remainder can be had in integers.
bool count_orbits() {
    const long long period = 686980, days[] = {1, 365250, 36525000, 4500000000000000};  // Mars, in thousandths
    bool good = true;
    for (long long after : days) {
        double2 x = {static_cast<double>(after), static_cast<double>(-after)}, y = period, rest = {};
        host::run(1, [&] { orbits(&x, &y, &rest); });
        auto expected = static_cast<double>(after % period);
        bool right = rest[0] == expected && rest[1] == -expected;
        std::printf("  %18lld  %8.0f%s\n", after, rest[0], right ? "" : "  WRONG");
        good = good && right;
    }
    return good;
}

bool take_levels_apart() {
    float8 sample = {1, -0.75f, 0.1f, 32767, 0x1p-149f, 0x1.fffffep127f, -3e-39f, 100}, mantissa, faded, next;
    int8 exponent, top_bit;
    constexpr int steps = -3;
    host::run(1, [&] { levels(&sample, &mantissa, &exponent, &faded, steps, &top_bit, &next); });
    bool good = true;
    for (int i = 0; i < 8; ++i) {
        int e;
        float m = std::frexp(sample[i], &e);
        bool right = mantissa[i] == m && exponent[i] == e && faded[i] == std::ldexp(sample[i], steps) &&
                     top_bit[i] == e - 1 && next[i] == std::nextafter(sample[i], INFINITY);
        double decibels = 20 * std::log10(std::fabs(double{mantissa[i]})) + 20 * std::log10(2.0) * exponent[i];
        std::printf("  %14.8g = %11.8f * 2^%-4d %8.1f dB, 18 dB down %14.8g%s\n", double{sample[i]},
                    double{mantissa[i]}, exponent[i], decibels, double{faded[i]}, right ? "" : "  WRONG");
        good = good && right;
    }
    return good;
}

bool measure_distances() {
    float4 east = {3e22f, 2.4e22f, 5e-24f, 1e22f}, north = {4e22f, 7e21f, 12e-24f, 1e22f}, distance;
    host::run(1, [&] { distances(&east, &north, &distance); });
    host::Worst worst("hypot, float", 4);  // OpenCL allows four ulp
    for (int i = 0; i < 4; ++i) {
        std::printf("  %10.3g, %10.3g: %14.8g m; by squares %g\n", double{east[i]}, double{north[i]},
                    double{distance[i]}, double{std::sqrt(east[i] * east[i] + north[i] * north[i])});
        worst.add(host::ulps(distance[i], std::hypot(double{east[i]}, double{north[i]})));
    }
    return worst.report();
}

}  // namespace

int main() {
    std::printf("Days of the week by remquo, float4\n\n");
    bool good = count_weeks();
    std::printf("\nOrbits of Mars by fmod, double2: thousandths of days, and how many since the last round\n\n");
    good = count_orbits() && good;
    std::printf("\nLevels by frexp, ldexp and ilogb, float8\n\n");
    good = take_levels_apart() && good;
    std::printf("\nDistances by hypot, float4\n\n");
    good = measure_distances() && good;
    return good ? 0 : 1;
}
