// Two resistors in parallel, and the corner frequency that they make with a capacitor's reactance; four at a time.

// Parallel: 1 / (1/a + 1/b). Impedance of a resistor and a reactance in series: sqrt(r^2 + x^2).
__kernel void circuits(__global const double4* a, __global const double4* b, __global const double4* reactance,
                       __global double4* parallel, __global double4* product_over_sum, __global double4* impedance) {
    size_t i = get_global_id(0);
    parallel[i] = native_recip(native_recip(a[i]) + native_recip(b[i]));
    product_over_sum[i] = __ocl_zorv_v8_div4(a[i] * b[i], a[i] + b[i]);
    impedance[i] = sqrt(a[i] * a[i] + reactance[i] * reactance[i]);
}

// Six resistors in parallel in one: the reciprocals of eight lanes share one divide; two lanes stay open circuits.
__kernel void all_in_parallel(__global const double8* r, __global double* total) {
    size_t i = get_global_id(0);
    double8 conductance = native_recip(r[i]);
    double4 half_sum = conductance.lo + conductance.hi;
    total[i] = __ocl_zorv_v8_inv1(half_sum.x + half_sum.y + half_sum.z + half_sum.w);
}
