// Lengths and directions of vectors, four at a time.

__kernel void normalise(__global const float4* x, __global const float4* y, __global const float4* z,
                        __global float4* length, __global float4* unit_x, __global float4* unit_x_native) {
    size_t i = get_global_id(0);
    float4 square = x[i] * x[i] + y[i] * y[i] + z[i] * z[i];
    length[i] = sqrt(square);
    unit_x[i] = x[i] * rsqrt(square);
    unit_x_native[i] = x[i] * native_rsqrt(square);
}
