// Sine and cosine of the phase of an oscillator that has run for a very long time, or for almost none.

__kernel void phases(__global const float4* phase, __global float4* sine, __global float4* cosine,
                     __global float4* sine_of_both, __global float4* cosine_of_both, __global float4* rough) {
    size_t i = get_global_id(0);
    sine[i] = sin(phase[i]);
    cosine[i] = cos(phase[i]);
    sine_of_both[i] = sincos(phase[i], &cosine_of_both[i]);
    rough[i] = native_sin(phase[i]);
}
