// Sine and cosine of the phase of an oscillator that has run for a very long time, or for almost none.
// Needs: sin cos sincos sinf cosf

__kernel void phases(__global const double4* phase, __global double4* sine, __global double4* cosine,
                     __global double4* sine_of_both, __global double4* cosine_of_both) {
    size_t i = get_global_id(0);
    sine[i] = sin(phase[i]);
    cosine[i] = cos(phase[i]);
    sine_of_both[i] = sincos(phase[i], &cosine_of_both[i]);
}

__kernel void single_phases(__global const float16* phase, __global float16* sine, __global float16* cosine) {
    size_t i = get_global_id(0);
    sine[i] = sin(phase[i]);
    cosine[i] = cos(phase[i]);
}
