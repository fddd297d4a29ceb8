// Tails of the normal distribution, and the quantiles that go with tails.

__kernel void tails(__global const double8* sigmas, __global double8* above, __global double8* outside,
                    __global double8* by_erf) {
    size_t i = get_global_id(0);
    above[i] = 0.5 * erfc(sigmas[i] * M_SQRT1_2);
    outside[i] = erfc(sigmas[i] * M_SQRT1_2);
    by_erf[i] = 0.5 * (1 - erf(sigmas[i] * M_SQRT1_2));
}

// How many sigmas have this much above them, up to a half: Halley's steps from a rough start.
__kernel void quantiles(__global const double8* above, __global double8* sigmas) {
    size_t i = get_global_id(0);
    double8 p = above[i];
    double8 t = sqrt(-2 * log(p));
    double8 z =
        t - (2.515517 + 0.802853 * t + 0.010328 * t * t) / (1 + 1.432788 * t + 0.189269 * t * t + 0.001308 * t * t * t);
    for (int step = 0; step < 2; ++step) {
        double8 density = exp(-0.5 * z * z) * 0.3989422804014327;
        double8 newton = (0.5 * erfc(z * M_SQRT1_2) - p) / density;
        z += newton / (1 - 0.5 * z * newton);
    }
    sigmas[i] = z;
}
