// Levels in decibels, pitches in semitones, and decay: where logarithms and exponentials are heard and read.

// 20 log10 of an amplitude, and back; a note's number, 69 for 440 Hz and 12 for an octave, and back.
__kernel void levels_and_notes(__global const float4* amplitude, __global const float4* frequency,
                               __global float4* decibel, __global float4* amplitude_again, __global float4* note,
                               __global float4* frequency_again) {
    size_t i = get_global_id(0);
    decibel[i] = 20.0f * log10(amplitude[i]);
    amplitude_again[i] = exp10(decibel[i] * 0.05f);
    note[i] = 69.0f + 12.0f * log2(frequency[i] / 440.0f);
    frequency_again[i] = 440.0f * exp2((note[i] - 69.0f) / 12.0f);
}

// What is left after a time in half-lives, and the age that goes with what is left.
__kernel void decay(__global const float8* half_lives, __global float8* left, __global float8* left_native,
                    __global float8* age, __global float8* age_native) {
    const float ln2 = 0.69314718f;
    size_t i = get_global_id(0);
    left[i] = exp(-ln2 * half_lives[i]);
    left_native[i] = native_exp(-ln2 * half_lives[i]);
    age[i] = log(left[i]) / -ln2;
    age_native[i] = native_log(left[i]) / -ln2;
}
