// Codes of a picture to linear light and back, three channels a pixel: gamma correction.

__kernel void to_light(__global const float3* code, __global float3* light, __global float3* light_native) {
    size_t i = get_global_id(0);
    float3 v = code[i] / 255.0f;
    float3 base = (v + 0.055f) / 1.055f;
    light[i] = v <= 0.04045f ? v / 12.92f : powr(base, (float3)2.4f);
    light_native[i] = v <= 0.04045f ? v / 12.92f : native_powr(base, (float3)2.4f);
}

__kernel void to_codes(__global const float3* light, __global float3* code, __global float3* code_native) {
    size_t i = get_global_id(0);
    float3 v = light[i], small = 12.92f * v;
    float3 root = powr(v, (float3)(1 / 2.4f)), root_native = native_powr(v, (float3)(1 / 2.4f));
    code[i] = rint(255.0f * (v <= 0.0031308f ? small : 1.055f * root - 0.055f));
    code_native[i] = rint(255.0f * (v <= 0.0031308f ? small : 1.055f * root_native - 0.055f));
}
