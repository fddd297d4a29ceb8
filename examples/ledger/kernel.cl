// Rounding amounts to cents, keeping them within limits, and a dot product whose rounding errors are kept.

__kernel void to_cents(__global const double4* amount, __global double4* nearest_even, __global double4* half_away,
                       __global double4* below, __global double4* above, __global double4* toward_zero) {
    size_t i = get_global_id(0);
    nearest_even[i] = rint(amount[i]);
    half_away[i] = round(amount[i]);
    below[i] = floor(amount[i]);
    above[i] = ceil(amount[i]);
    toward_zero[i] = trunc(amount[i]);
}

// A reading that is missing, a NaN, becomes the lower limit: fmax returns its other operand.
__kernel void within_limits(__global const float8* reading, float lowest, float highest, __global float8* kept) {
    size_t i = get_global_id(0);
    kept[i] = fmin(fmax(reading[i], lowest), highest);
}

// Each lane is one dot product of `count` terms. fma gives the rounding error of a product, exactly; six additions
// give that of a sum.
__kernel void dot_products(__global const double2* a, __global const double2* b, int count, __global double2* plain,
                           __global double2* with_errors) {
    double2 sum = 0, errors = 0, plain_sum = 0;
    for (int k = 0; k < count; ++k) {
        double2 product = a[k] * b[k];
        double2 product_error = fma(a[k], b[k], -product);
        double2 next = sum + product;
        double2 from_product = next - sum;
        errors += product_error + ((sum - (next - from_product)) + (product - from_product));
        sum = next;
        plain_sum += product;
    }
    plain[0] = plain_sum;
    with_errors[0] = sum + errors;
}
