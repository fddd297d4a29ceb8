// The phase of an oscillator from 1e-300 to the largest double: sines and cosines known to 21 digits, and a sweep
// over the whole range for the picture.
#include "host/host.h"

#include <cmath>
#include <cstdio>

extern "C" {
void phases(const double4* phase, double4* sine, double4* cosine, double4* sine_of_both, double4* cosine_of_both);
void single_phases(const float16* phase, float16* sine, float16* cosine);
}

namespace {

// What becomes of a phase that is brought into one turn by the double nearest to two pi.
double sine_by_rounded_turn(double phase) { return std::sin(std::fmod(phase, 2 * M_PI)); }

// Rows for gnuplot: phase, error of the library, error of the rounded turn, both in ulp.
void write_sweep(const char* path, host::Worst& sweep) {
    constexpr size_t lanes = 4, points = 1240;
    std::vector<double4> phase(points / lanes), sine(phase.size()), cosine(phase.size()), both_sine(phase.size()),
        both_cosine(phase.size());
    for (size_t i = 0; i < points; ++i) phase[i / lanes][i % lanes] = std::pow(10.0, (static_cast<double>(i) - 20) / 4);
    host::run(phase.size(),
              [&] { phases(phase.data(), sine.data(), cosine.data(), both_sine.data(), both_cosine.data()); });
    std::FILE* file = std::fopen(path, "w");
    for (size_t i = 0; i < points; ++i) {
        double x = phase[i / lanes][i % lanes];
        long double exact = sinl(x);
        double error = sweep.add(host::ulps(sine[i / lanes][i % lanes], exact));
        if (file) std::fprintf(file, "%.17g %g %g\n", x, error, host::ulps(sine_by_rounded_turn(x), exact));
    }
    if (file) std::fclose(file);
}

}  // namespace

int main() {
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 3);
    auto phase = host::column_as<double4, double>(table, 0);
    std::vector<double4> sine(phase.size()), cosine(phase.size()), both_sine(phase.size()), both_cosine(phase.size());
    host::run(phase.size(),
              [&] { phases(phase.data(), sine.data(), cosine.data(), both_sine.data(), both_cosine.data()); });
    auto single_phase = host::column_as<float16, float>(table, 0);
    std::vector<float16> single_sine(single_phase.size()), single_cosine(single_phase.size());
    host::run(single_phase.size(),
              [&] { single_phases(single_phase.data(), single_sine.data(), single_cosine.data()); });

    // OpenCL allows a sine and a cosine four ulp.
    host::Worst sines("sin", 4), cosines("cos", 4), boths("sincos", 4), singles("sin and cos, float16", 4),
        sweep("sin, 1240 phases from 1e-5 to 1e304", 4);
    std::printf("Phases of an oscillator, double4 and float16: sin, cos, sincos\n\n");
    std::printf("  %24s %24s %24s %24s\n", "phase", "sine", "known", "cosine");
    for (size_t i = 0; i < table.size(); ++i) {
        const auto& row = table[i];
        size_t at = i / 4, lane = i % 4;
        std::printf("  %24.17g %24.17g %24.17g %24.17g\n", row[0], sine[at][lane], row[1], cosine[at][lane]);
        sines.add(host::ulps(sine[at][lane], row[1]));
        cosines.add(host::ulps(cosine[at][lane], row[2]));
        boths.add(host::ulps(both_sine[at][lane], row[1]));
        boths.add(host::ulps(both_cosine[at][lane], row[2]));
        float x = single_phase[i / 16][i % 16];
        if (std::isinf(x)) continue;  // beyond the floats
        singles.add(host::ulps(single_sine[i / 16][i % 16], sinl(x)));
        singles.add(host::ulps(single_cosine[i / 16][i % 16], cosl(x)));
    }
    write_sweep("oscillator.dat", sweep);
    std::puts("");
    bool good = true;
    for (const host::Worst* worst : {&sines, &cosines, &boths, &singles, &sweep}) good = worst->report() && good;
    return good ? 0 : 1;
}
