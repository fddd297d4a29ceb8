// Great-circle distances, as angles, by the three formulas in use, and the bearing to set out on.

__kernel void great_circles(__global const double8* latitude, __global const double8* longitude,
                            __global const double8* to_latitude, __global const double8* to_longitude,
                            __global double8* by_atan2, __global double8* by_asin, __global double8* by_acos,
                            __global double8* bearing) {
    const double degree = M_PI / 180;
    size_t i = get_global_id(0);
    double8 cos_from, cos_to, cos_east, cos_half_north, cos_half_east;
    double8 sin_from = sincos(latitude[i] * degree, &cos_from), sin_to = sincos(to_latitude[i] * degree, &cos_to);
    double8 north = (to_latitude[i] - latitude[i]) * degree, east = (to_longitude[i] - longitude[i]) * degree;
    double8 sin_east = sincos(east, &cos_east);

    // The components of the unit vector to the goal: eastward, northward and upward, seen from the start.
    double8 half_north = sincos(north / 2, &cos_half_north), half_east = sincos(east / 2, &cos_half_east);
    double8 x = cos_to * sin_east;
    double8 y = 2 * half_north * cos_half_north + 2 * sin_from * cos_to * half_east * half_east;
    double8 z = sin_from * sin_to + cos_from * cos_to * cos_east;
    by_atan2[i] = atan2(sqrt(x * x + y * y), z);
    bearing[i] = atan2(x, y) / degree;

    by_acos[i] = acos(fmax(fmin(z, 1), -1));
    by_asin[i] = 2 * asin(fmin(sqrt(half_north * half_north + cos_from * cos_to * half_east * half_east), 1));
}
