// xsimd's functions of SSE2 batches, inlined into the loop over the units.
#include <xsimd/xsimd.hpp>

#include "bench/passes.h"

namespace bench {
namespace {

template <class Element>
using Batch = xsimd::batch<Element, xsimd::sse2>;
using F = Batch<float>;
using D = Batch<double>;

template <class B>
struct Pair {
    B x, y;
};

// It states no error bounds of its own. Held to this one here, on the operands that are timed.
constexpr double assumed_bound = 4;

#define UNARY(name, expression)                     \
    template <class Batch>                          \
    struct name##_of {                              \
        using Unit = typename Batch::register_type; \
        static Unit apply(Unit operand) {           \
            Batch x(operand);                       \
            return expression;                      \
        }                                           \
    };
#define BINARY(name, expression)                     \
    template <class Batch>                           \
    struct name##_of {                               \
        using Unit = typename Batch::register_type;  \
        static Unit apply(Unit first, Unit second) { \
            Batch x(first), y(second);               \
            return expression;                       \
        }                                            \
    };
#define TERNARY(name, expression)                                \
    template <class Batch>                                       \
    struct name##_of {                                           \
        using Unit = typename Batch::register_type;              \
        static Unit apply(Unit first, Unit second, Unit third) { \
            Batch x(first), y(second), z(third);                 \
            return expression;                                   \
        }                                                        \
    };
UNARY(inv, Batch(1) / x)
BINARY(div, x / y)
UNARY(sqrt, xsimd::sqrt(x))
UNARY(rsqrt, Batch(1) / xsimd::sqrt(x))
UNARY(exp, xsimd::exp(x))
UNARY(exp2, xsimd::exp2(x))
UNARY(exp10, xsimd::exp10(x))
UNARY(expm1, xsimd::expm1(x))
UNARY(log, xsimd::log(x))
UNARY(log2, xsimd::log2(x))
UNARY(log10, xsimd::log10(x))
UNARY(log1p, xsimd::log1p(x))
UNARY(sin, xsimd::sin(x))
UNARY(cos, xsimd::cos(x))
UNARY(floor, xsimd::floor(x))
UNARY(ceil, xsimd::ceil(x))
UNARY(rint, xsimd::rint(x))
UNARY(nearbyint, xsimd::nearbyint(x))
UNARY(round, xsimd::round(x))
UNARY(trunc, xsimd::trunc(x))
UNARY(fabs, xsimd::fabs(x))
BINARY(fmin, xsimd::fmin(x, y))
BINARY(fmax, xsimd::fmax(x, y))
BINARY(fdim, xsimd::fdim(x, y))
BINARY(copysign, xsimd::copysign(x, y))
TERNARY(mad, x* y + z)

template <class Batch>
struct sincos_of {
    using Unit = typename Batch::register_type;
    static Pair<Unit> apply(Unit operand) {
        auto both = xsimd::sincos(Batch(operand));
        return {both.first, both.second};
    }
};

template <template <class> class Function>
void add(std::vector<Peer>& peers, const std::string& base, double bound) {
    add_unit_peer<Function<F>::apply, float>(peers, base + "f", "xsimd", bound);
    add_unit_peer<Function<D>::apply, double>(peers, base, "xsimd", bound);
}

}  // namespace

void add_xsimd(std::vector<Peer>& peers) {
    add<inv_of>(peers, "inv", 0.5);
    add<div_of>(peers, "div", 0.5);
    add<sqrt_of>(peers, "sqrt", 0.5);
    add<rsqrt_of>(peers, "rsqrt", 1.5);
    add<exp_of>(peers, "exp", assumed_bound);
    add<exp2_of>(peers, "exp2", assumed_bound);
    add<exp10_of>(peers, "exp10", assumed_bound);
    add<expm1_of>(peers, "expm1", assumed_bound);
    add<log_of>(peers, "log", assumed_bound);
    add<log2_of>(peers, "log2", assumed_bound);
    add<log10_of>(peers, "log10", assumed_bound);
    add<log1p_of>(peers, "log1p", assumed_bound);
    add<sin_of>(peers, "sin", assumed_bound);
    add<cos_of>(peers, "cos", assumed_bound);
    add<sincos_of>(peers, "sincos", assumed_bound);
    add<sincos_of>(peers, "sincosreg", assumed_bound);
    add<floor_of>(peers, "floor", 0);
    add<ceil_of>(peers, "ceil", 0);
    add<rint_of>(peers, "rint", 0);
    add<nearbyint_of>(peers, "nearbyint", 0);
    add<round_of>(peers, "round", 0);
    add<trunc_of>(peers, "trunc", 0);
    add<fmin_of>(peers, "fmin", 0);
    add<fmax_of>(peers, "fmax", 0);
    add<fdim_of>(peers, "fdim", 0.5);
    add<copysign_of>(peers, "copysign", 0);
    add<fabs_of>(peers, "fabs", 0);
    add<mad_of>(peers, "mad", 0.5);
}

}  // namespace bench
