// Where thin lenses form the image: 1/f = 1/object + 1/image, sixteen lenses at a time.

__kernel void image_distances(__global const float16* focal_length, __global const float16* object_distance,
                              __global float16* image, __global float16* magnification) {
    size_t i = get_global_id(0);
    float16 f = focal_length[i], s = object_distance[i];
    image[i] = native_recip(native_recip(f) - native_recip(s));
    magnification[i] = native_divide(f, f - s);
}

// The same with the divide operator's accuracy: what a compiler calls for 1.0f / x.
__kernel void image_distances_accurate(__global const float16* focal_length, __global const float16* object_distance,
                                       __global float16* image, __global float16* magnification) {
    size_t i = get_global_id(0);
    float16 f = focal_length[i], s = object_distance[i];
    image[i] = __ocl_zorv_v8_invf16(__ocl_zorv_v8_invf16(f) - __ocl_zorv_v8_invf16(s));
    magnification[i] = __ocl_zorv_v8_divf16(f, f - s);
}
