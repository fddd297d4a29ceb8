// How often things happen by chance: Poisson's and the binomial distribution, single counts and whole tails.

__kernel void poisson(__global const double2* mean, __global const double2* count, __global double2* chance) {
    size_t i = get_global_id(0);
    chance[i] = exp(count[i] * log(mean[i]) - mean[i]) / tgamma(count[i] + 1);
}

__kernel void binomial(__global const double4* trials, __global const double4* count, __global const double4* success,
                       __global double4* chance) {
    size_t i = get_global_id(0);
    double4 n = trials[i], k = count[i], p = success[i];
    chance[i] = exp(lgamma(n + 1) - lgamma(k + 1) - lgamma(n - k + 1) + k * log(p) + (n - k) * log1p(-p));
}

// The chance of so many or more, four tails at a time: each term from the one before it.
__kernel void binomial_tails(__global const double4* trials, __global const double4* count,
                             __global const double4* success, __global const double4* chance, int terms,
                             __global double4* tail) {
    size_t i = get_global_id(0);
    double4 n = trials[i], k = count[i], p = success[i], term = chance[i], sum = term;
    for (int more = 0; more < terms; ++more, k += 1) {
        term *= (n - k) * p / ((k + 1) * (1 - p));  // 0 from k = n on
        sum += term;
    }
    tail[i] = sum;
}
