// The phase of an oscillator from 2^-120 to the largest float: sines and cosines known to 21 digits, and a sweep over
// the whole range for the picture.
#include "host/host.h"

#include <cmath>
#include <cstdio>

extern "C" void phases(const float4* phase, float4* sine, float4* cosine, float4* sine_of_both, float4* cosine_of_both,
                       float4* rough);

namespace {

// Phases of four lanes each, and what the kernel makes of them.
struct Oscillator {
    std::vector<float4> phase, sine, cosine, both_sine, both_cosine, rough;

    explicit Oscillator(std::vector<float4> all)
        : phase(std::move(all)),
          sine(phase.size()),
          cosine(phase.size()),
          both_sine(phase.size()),
          both_cosine(phase.size()),
          rough(phase.size()) {
        host::run(phase.size(), [this] {
            phases(phase.data(), sine.data(), cosine.data(), both_sine.data(), both_cosine.data(), rough.data());
        });
    }
};

// What becomes of a phase that is brought into one turn by the float nearest to two pi.
float sine_by_rounded_turn(float phase) { return std::sin(std::fmod(phase, static_cast<float>(2 * M_PI))); }

// Rows for gnuplot: phase, error of the library, error of the rounded turn, both in ulp. Four neighbours on the
// scale share a vector, so small phases take the short reduction and large ones the long.
void write_sweep(const char* path, host::Worst& sweep) {
    constexpr size_t lanes = 4, points = 1720;
    std::vector<float4> phase(points / lanes);
    for (size_t i = 0; i < points; ++i)
        phase[i / lanes][i % lanes] = static_cast<float>(std::pow(10.0, (static_cast<double>(i) - 200) / 40));
    Oscillator oscillator(phase);
    std::FILE* file = std::fopen(path, "w");
    for (size_t i = 0; i < points; ++i) {
        float x = phase[i / lanes][i % lanes];
        // The C library reduces a double of any size.
        long double exact = std::sin(static_cast<double>(x));
        double error = sweep.add(host::ulps(oscillator.sine[i / lanes][i % lanes], exact));
        if (file)
            std::fprintf(file, "%.9g %g %g\n", static_cast<double>(x), error,
                         host::ulps(sine_by_rounded_turn(x), exact));
    }
    if (file) std::fclose(file);
}

}  // namespace

int main() {
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 3);
    Oscillator oscillator(host::column_as<float4, float>(table, 0));

    // OpenCL allows a sine and a cosine four ulp. The native sine is good to about one part in 7000.
    host::Worst sines("sin", 4), cosines("cos", 4), boths("sincos", 4), rough("native_sin", 2e-4, "of 1"),
        sweep("sin, 1720 phases from 1e-5 to 1e38", 4);
    std::printf("Phases of an oscillator, float4: sin, cos, sincos, native_sin\n\n");
    std::printf("  %15s %15s %15s %15s %15s\n", "phase", "sine", "known", "cosine", "native sine");
    for (size_t i = 0; i < table.size(); ++i) {
        const auto& row = table[i];
        size_t at = i / 4, lane = i % 4;
        std::printf("  %15.9g %15.9g %15.9g %15.9g %15.9g\n", row[0], double{oscillator.sine[at][lane]}, row[1],
                    double{oscillator.cosine[at][lane]}, double{oscillator.rough[at][lane]});
        sines.add(host::ulps(oscillator.sine[at][lane], row[1]));
        cosines.add(host::ulps(oscillator.cosine[at][lane], row[2]));
        boths.add(host::ulps(oscillator.both_sine[at][lane], row[1]));
        boths.add(host::ulps(oscillator.both_cosine[at][lane], row[2]));
        rough.add(std::abs(double{oscillator.rough[at][lane]} - row[1]));
    }
    write_sweep("oscillator.dat", sweep);
    std::puts("");
    bool good = true;
    for (const host::Worst* worst : {&sines, &cosines, &boths, &rough, &sweep}) good = worst->report() && good;
    return good ? 0 : 1;
}
