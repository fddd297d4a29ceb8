// Days counted off in weeks and in orbits, levels taken apart into mantissa and exponent, and distances whose squares
// are no floats.

// The day of the week, Sunday 0, and the whole weeks since day 0; noon begins a Julian day.
__kernel void weekdays(__global const float4* julian_day, __global float4* day_of_week, __global int4* weeks) {
    size_t i = get_global_id(0);
    float4 rest = remquo(julian_day[i] + 1, (float4)7, &weeks[i]);
    int4 past_the_middle = rest < 0;  // the quotient is the nearest one
    day_of_week[i] = past_the_middle ? rest + 7 : rest;
    weeks[i] += past_the_middle;
}

// How far around its orbit a planet is after so many days, in days.
__kernel void orbits(__global const double2* days, __global const double2* period, __global double2* since_start) {
    size_t i = get_global_id(0);
    since_start[i] = fmod(days[i], period[i]);
}

// A level is an exponent, six decibels each, and a mantissa; a fader moves the exponent alone.
__kernel void levels(__global const float8* sample, __global float8* mantissa, __global int8* exponent,
                     __global float8* faded, int steps, __global int8* top_bit, __global float8* next) {
    size_t i = get_global_id(0);
    mantissa[i] = frexp(sample[i], &exponent[i]);
    faded[i] = ldexp(sample[i], (int8)steps);
    top_bit[i] = ilogb(sample[i]);
    next[i] = nextafter(sample[i], (float8)INFINITY);
}

// Metres between galaxies: the squares of the coordinates overflow a float.
__kernel void distances(__global const float4* east, __global const float4* north, __global float4* distance) {
    size_t i = get_global_id(0);
    distance[i] = hypot(east[i], north[i]);
}
