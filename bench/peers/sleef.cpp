// SLEEF's SSE2 functions, one call for each unit, in every accuracy class that it has.
#include <sleef.h>

#include "bench/passes.h"

namespace bench {

// A function of floats and of doubles whose names differ by f4 and d2 alone.
#define SLEEF(base, name, suffix, bound)                                                              \
    add_unit_peer<Sleef_##name##f4_##suffix##sse2, float>(peers, #base "f", "sleef_" #suffix, bound); \
    add_unit_peer<Sleef_##name##d2_##suffix##sse2, double>(peers, #base, "sleef_" #suffix, bound);
// Where the name has no accuracy class.
#define SLEEF_PLAIN(base, name, bound)                                             \
    add_unit_peer<Sleef_##name##f4_sse2, float>(peers, #base "f", "sleef", bound); \
    add_unit_peer<Sleef_##name##d2_sse2, double>(peers, #base, "sleef", bound);

void add_sleef(std::vector<Peer>& peers) {
    SLEEF(sqrt, sqrt, u05, 0.5001)
    SLEEF(sqrt, sqrt, u35, 3.5)
    SLEEF(exp, exp, u10, 1)
    SLEEF(exp2, exp2, u10, 1)
    SLEEF(exp2, exp2, u35, 3.5)
    SLEEF(exp10, exp10, u10, 1)
    SLEEF(exp10, exp10, u35, 3.5)
    SLEEF(expm1, expm1, u10, 1)
    SLEEF(log, log, u10, 1)
    SLEEF(log, log, u35, 3.5)
    SLEEF(log2, log2, u10, 1)
    SLEEF(log2, log2, u35, 3.5)
    SLEEF(log10, log10, u10, 1)
    SLEEF(log1p, log1p, u10, 1)
    SLEEF(sin, sin, u10, 1)
    SLEEF(sin, sin, u35, 3.5)
    SLEEF(cos, cos, u10, 1)
    SLEEF(cos, cos, u35, 3.5)
    SLEEF(sincos, sincos, u10, 1)
    SLEEF(sincos, sincos, u35, 3.5)
    SLEEF(sincosreg, sincos, u10, 1)
    SLEEF(sincosreg, sincos, u35, 3.5)
    SLEEF_PLAIN(floor, floor, 0)
    SLEEF_PLAIN(ceil, ceil, 0)
    SLEEF_PLAIN(rint, rint, 0)
    SLEEF_PLAIN(nearbyint, rint, 0)
    SLEEF_PLAIN(round, round, 0)
    SLEEF_PLAIN(trunc, trunc, 0)
    SLEEF_PLAIN(fmin, fmin, 0)
    SLEEF_PLAIN(fmax, fmax, 0)
    SLEEF_PLAIN(fdim, fdim, 0.5)
    SLEEF_PLAIN(copysign, copysign, 0)
    SLEEF_PLAIN(fabs, fabs, 0)
    SLEEF_PLAIN(fma, fma, 1)
}

}  // namespace bench
