// 32-bit audio samples: to float, louder, and back without wrapping around at full scale.

__kernel void louder(__global const int4* sample, float gain, __global int4* result) {
    size_t i = get_global_id(0);
    result[i] = convert_int4_sat_rte(convert_float4(sample[i]) * gain);
}

// In double a sample and its half are exact, so each rounding shows.
__kernel void halves(__global const int8* sample, __global int8* to_even, __global int8* toward_zero, __global int8* up,
                     __global int8* down) {
    size_t i = get_global_id(0);
    double8 half_scale = convert_double8(sample[i]) * 0.5;
    to_even[i] = convert_int8_sat_rte(half_scale);
    toward_zero[i] = convert_int8_sat_rtz(half_scale);
    up[i] = convert_int8_sat_rtp(half_scale);
    down[i] = convert_int8_sat_rtn(half_scale);
}
