// A chirp whose phase is known exactly in turns: its samples by pi-scaled functions, and by way of radians.

// From 0 to 16384 Hz in 8 s, 65536 samples a second: n^2 / 2^22 turns at sample n, a double without rounding.
__kernel void chirp(__global const double16* n, __global double16* cosine, __global double16* sine,
                    __global double16* cosine_by_radians, __global double16* sine_by_radians) {
    size_t i = get_global_id(0);
    double16 turns = n[i] * n[i] * 0x1p-22;
    cosine[i] = cospi(2 * turns);
    sine[i] = sinpi(2 * turns);
    double16 radians = 2 * M_PI * turns;
    cosine_by_radians[i] = cos(radians);
    sine_by_radians[i] = sin(radians);
}
