// Interest and decay over steps so short that exp(rate * step) is all but 1, and the rate back from the gain.

__kernel void gains(__global const double4* rate, __global const double4* step, __global double4* gain,
                    __global double4* gain_by_exp) {
    size_t i = get_global_id(0);
    gain[i] = expm1(rate[i] * step[i]);
    gain_by_exp[i] = exp(rate[i] * step[i]) - 1;
}

__kernel void rates(__global const double4* gain, __global const double4* step, __global double4* rate,
                    __global double4* rate_by_log) {
    size_t i = get_global_id(0);
    rate[i] = log1p(gain[i]) / step[i];
    rate_by_log[i] = log(1 + gain[i]) / step[i];
}
