// A ship that feels the same push all the way: distances, times and speeds by the traveller's clock, and the clock back
// from each. Units: years and light years, so that speeds are parts of that of light.

__kernel void travel(__global const double4* clock, double push, __global double4* time, __global double4* distance,
                     __global double4* speed, __global double4* stretch) {
    size_t i = get_global_id(0);
    double4 rapidity = push * clock[i];
    double4 root = sinh(rapidity / 2);
    time[i] = sinh(rapidity) / push;
    distance[i] = 2 * root * root / push;  // cosh - 1, which cancels
    speed[i] = tanh(rapidity);
    stretch[i] = cosh(rapidity);
}

__kernel void read_clocks(__global const double4* time, __global const double4* speed, __global const double4* stretch,
                          double push, __global double4* by_time, __global double4* by_speed,
                          __global double4* by_stretch) {
    size_t i = get_global_id(0);
    by_time[i] = asinh(push * time[i]) / push;
    by_speed[i] = atanh(speed[i]) / push;
    by_stretch[i] = acosh(stretch[i]) / push;
}

// Speeds do not add, their rapidities do.
__kernel void add_speeds(__global const double2* first, __global const double2* second, __global double2* both) {
    size_t i = get_global_id(0);
    both[i] = tanh(atanh(first[i]) + atanh(second[i]));
}
