// A point turned by a huge angle and back.

__kernel void rotate_and_back(__global const double2* angle, __global const double2* x, __global const double2* y,
                              __global double2* sine, __global double2* cosine, __global double2* turned_x,
                              __global double2* turned_y, __global double2* back_x, __global double2* back_y) {
    size_t i = get_global_id(0);
    double2 s = sin(angle[i]), c = cos(angle[i]);
    sine[i] = s;
    cosine[i] = c;
    turned_x[i] = c * x[i] - s * y[i];
    turned_y[i] = s * x[i] + c * y[i];
    double2 back_s = sincos(-angle[i], &c);
    back_x[i] = c * turned_x[i] - back_s * turned_y[i];
    back_y[i] = back_s * turned_x[i] + c * turned_y[i];
}

__kernel void slopes(__global const double2* angle, __global double2* slope) {
    size_t i = get_global_id(0);
    slope[i] = tan(angle[i]);
}
