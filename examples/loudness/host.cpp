// Decibels, notes and half-lives with round answers: ten times the amplitude is 20 dB, an octave is 12 semitones.
#include "host/host.h"

#include <cmath>
#include <cstdio>

extern "C" {
void levels_and_notes(const float4* amplitude, const float4* frequency, float4* decibel, float4* amplitude_again,
                      float4* note, float4* frequency_again);
void decay(const float8* half_lives, float8* left, float8* left_native, float8* age, float8* age_native);
}

int main() {
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 6);
    auto amplitude = host::column_as<float4, float>(table, 0);
    auto frequency = host::column_as<float4, float>(table, 1);
    auto time = host::column_as<float8, float>(table, 2);
    std::vector<float4> decibel(amplitude.size()), amplitude_again(amplitude.size()), note(amplitude.size()),
        frequency_again(amplitude.size());
    std::vector<float8> left(time.size()), left_native(time.size()), age(time.size()), age_native(time.size());
    host::run(amplitude.size(), [&] {
        levels_and_notes(amplitude.data(), frequency.data(), decibel.data(), amplitude_again.data(), note.data(),
                         frequency_again.data());
    });
    host::run(time.size(), [&] { decay(time.data(), left.data(), left_native.data(), age.data(), age_native.data()); });

    // Errors in the answers' own units: an ulp of a note number near zero would say nothing to a listener.
    host::Worst decibels("20 log10 a", 2e-5, "dB"), amplitudes("back by exp10", 3e-6, "of 1"),
        notes("69 + 12 log2(f/440)", 2e-5, "semitones"), frequencies("back by exp2", 2e-6, "of 1"),
        rest("what is left by exp", 3e-6, "of 1"), rest_native("the same, native_exp", 3e-4, "of 1"),
        ages("the age by log", 5e-6, "half-lives"), ages_native("the same, native_log", 5e-3, "half-lives");
    std::printf("Levels, notes and decay, float4 and float8: exp, exp2, exp10, log, log2, log10\n\n");
    std::printf("  %9s %12s %11s %10s %10s %10s %10s %12s %12s\n", "amplitude", "dB", "by hand", "Hz", "note",
                "by hand", "half-lives", "left", "by hand");
    for (size_t i = 0; i < table.size(); ++i) {
        const auto& row = table[i];
        size_t at = i / 4, lane = i % 4, at8 = i / 8, lane8 = i % 8;
        std::printf("  %9g %12.8g %11.8g %10.8g %10.8g %10g %10g %12.8g %12.8g\n", row[0], decibel[at][lane], row[3],
                    row[1], note[at][lane], row[4], row[2], left[at8][lane8], row[5]);
        decibels.add(std::fabs(decibel[at][lane] - row[3]));
        amplitudes.add(std::fabs(amplitude_again[at][lane] / row[0] - 1));
        notes.add(std::fabs(note[at][lane] - row[4]));
        frequencies.add(std::fabs(frequency_again[at][lane] / row[1] - 1));
        rest.add(std::fabs(left[at8][lane8] / row[5] - 1));
        rest_native.add(std::fabs(left_native[at8][lane8] / row[5] - 1));
        ages.add(std::fabs(age[at8][lane8] - row[2]));
        ages_native.add(std::fabs(age_native[at8][lane8] - row[2]));
    }
    std::puts("");
    bool good = true;
    for (const host::Worst* worst :
         {&decibels, &amplitudes, &notes, &frequencies, &rest, &rest_native, &ages, &ages_native})
        good = worst->report() && good;
    return good ? 0 : 1;
}
