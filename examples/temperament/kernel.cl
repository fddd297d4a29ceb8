// Intervals of equal temperaments by roots, stacked again by whole powers; and money that grows by whole years.

// The step that goes into the interval `parts` times, and so many steps of it.
__kernel void steps(__global const double16* interval, __global const int16* parts, __global const int16* count,
                    __global double16* step, __global double16* ratio, __global double16* whole) {
    size_t i = get_global_id(0);
    step[i] = rootn(interval[i], parts[i]);
    ratio[i] = pown(step[i], count[i]);
    whole[i] = pown(step[i], parts[i]);
}

__kernel void compound(__global const double* rate, __global const int* years, __global double* factor) {
    size_t i = get_global_id(0);
    factor[i] = pown(1 + rate[i], years[i]);
}
