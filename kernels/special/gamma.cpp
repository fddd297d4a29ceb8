// gamma x, one lane after the other.
//
//   gamma(n + t) = gamma(base + t) (n + t - 1) (n + t - 2) ... (base + t)
//   gamma(-y) = -+ 1 / (y gamma(y) sin(pi f)/pi)       f the distance to the nearest integer
//
// with t in [0, 1) and a base at every multiple of 8 (double: 16), and at 2. gamma(base + t) is a minimax polynomial
// in t, taken apart into quadratics, which do not wait for one another as the steps of a Horner chain do. On [1, 2),
// gamma is a polynomial on each of a few pieces; below 1, gamma(1 + y)/y.
//
// Single precision computes in double, double precision in the x87 unit's 80-bit format; each is rounded once, to
// little more than half an ulp.
#include "frame/lane_frame.h"
#include "frame/scalar.h"
#include "kernels/special/gamma_data.h"

namespace zorv {
namespace {

// ---- What the two precisions have in common. ---------------------------------------------------------------

// A magnitude y: the integer n below, t = y - n, and how far the nearest integer is.
template <class Float>
struct Split {
    int n;
    Float t, distance;
};
template <class Float>
Split<Float> split(Float y, Float shifter) {
    Float shifted = y + shifter;
    Float nearest = shifted - shifter;
    bool is_above = nearest > y;
    Float below = is_above ? nearest - Float(1) : nearest;
    int n = static_cast<int>(pattern(shifted) - pattern(shifter)) - is_above;
    return {n, y - below, magnitude_of(y - nearest)};
}

template <class Real, int quadratics>
Real product(const GammaRow<Real, quadratics>& row, Real t) {
    Real t2 = t * t;
    auto quadratic = [&](int i) { return (t2 + Real(row.b[i]) * t) + Real(row.c[i]); };
    Real result = quadratic(0) * Real(row.scale);
#pragma unroll
    for (int i = 1; i < quadratics; ++i) result *= quadratic(i);
    return result;
}

// gamma(y), gamma(1 + y) for y below 1. z - centre is a double in both precisions.
template <class Real, int terms, int pieces, class Float>
Real near_one(const GammaPiece<Real, terms> (&piece)[pieces], Float y) {
    Real z = y < Float(1) ? Real(1) + Real(y) : Real(y);
    int i = (z >= Real(1.25)) + (z >= Real(1.5));
    if constexpr (pieces == 4) i += z >= Real(1.75);
    auto w = static_cast<double>(z - Real(piece[i].centre));
    return horner(Real(w), piece[i].c);
}

// A finite gamma x that is not too small for its format.
template <class Design, class Float>
typename Design::Real gamma(Float x, const Split<Float>& parts) {
    using Real = typename Design::Real;
    const auto& data = Design::data();
    Float y = magnitude_of(x);
    Real at_base, above = 1;
    if (y >= Float(2)) {
        at_base = product(data.rows[parts.n / Design::row_length], Real(parts.t));
        int base = parts.n < Design::row_length ? 2 : parts.n & -Design::row_length;
        Float factor = y;
        for (int steps = parts.n - base; steps > 0; --steps) above *= Real(factor -= Float(1));  // exact differences
    } else {
        at_base = near_one(data.pieces, y);
    }

    if (!is_negative(x)) return y < Float(1) ? at_base / Real(y) : at_base * above;
    Real sine = Design::sine(Real(parts.distance));
    Real result = Real(1) / (y < Float(1) ? sine * at_base : Real(y) * sine * at_base * above);
    if (x < Design::last_row) result *= Real(data.last_factor);
    return (parts.n & 1) != 0 ? result : -result;
}

template <class Design, class Float>
Status tgamma_rare(const Float* operand, Float* result) {
    [[maybe_unused]] typename Design::Precision precision;
    const auto& data = Design::data();
    Float x = *operand, y = magnitude_of(x);
    bool negative = is_negative(x);

    if (is_infinite_or_nan(x)) {
        if (x == x && negative) return domain_result(result);
        *result = x + x;
        return RARE_OK;
    }
    if (x == 0) return pole_result(negative ? Float(-1) : Float(1), result);
    Float huge = opaque(Design::huge);
    if (y <= Design::largest_pole) {
        *result = (negative ? -huge : huge) * huge;
        return RARE_OVERFLOW;
    }

    Split<Float> parts = split(y, Float(data.shifter));
    if (negative && (y >= Design::all_whole || parts.t == 0)) return domain_result(result);
    if (x < Design::vanishing) {
        Float tiny = opaque(Float(1) / Design::huge);
        *result = ((parts.n & 1) != 0 ? tiny : -tiny) * tiny;
        return Design::vanishing_status;
    }
    if (x >= Float(data.overflow)) {
        *result = huge * huge;
        return RARE_OVERFLOW;
    }
    Design::compute(x, parts, result);
    return RARE_OK;
}

// ---- tgammaf, in double. -----------------------------------------------------------------------------------

struct SingleDesign {
    using Real = double;
    struct Precision {};
    static constexpr int row_length = 8;
    static constexpr float last_row = -40, vanishing = -43, huge = 0x1p100f;
    static constexpr float largest_pole = 0x1p-128f;  // 1/x is beyond the largest number
    static constexpr float all_whole = 0x1p23f;
    static constexpr Status vanishing_status = RARE_UNDERFLOW;

    static const TgammafData& data() { return tgammaf_data; }
    static double sine(double f) {
        const TgammafData& data = tgammaf_data;
        double q = f * f;
        auto quadratic = [q](int i) { return (tgammaf_data.b[i] + q) * q + tgammaf_data.c[i]; };
        double linear = data.linear[0] * q + data.linear[1];
        return f + linear * q * quadratic(0) * quadratic(1) * quadratic(2) * f;
    }
    static void compute(float x, const Split<float>& parts, float* result) {
        *result = static_cast<float>(gamma<SingleDesign>(x, parts));
    }
};
struct tgammaf {
    static AllRare<F4> main(F4 x) { return {x}; }
    static constexpr auto rare = tgamma_rare<SingleDesign, float>;
};

// ---- tgamma, in the 80-bit format. -------------------------------------------------------------------------

struct DoubleDesign {
    using Real = long double;
    using Precision = ExtendedPrecision;
    static constexpr int row_length = 16;
    static constexpr double last_row = -176, vanishing = -185, huge = 0x1p1000;
    static constexpr double largest_pole = 0x1p-1024;
    static constexpr double all_whole = 0x1p51;  // halves above it count as whole numbers
    static constexpr Status vanishing_status = RARE_OK;

    static const TgammaData& data() { return tgamma_data; }
    static long double sine(long double f) {
        long double q = f * f;
        return f + f * q * horner(q, tgamma_data.sine);
    }
    // Not inlined: runs in the precision that stands at the call.
    [[gnu::noinline]] static void compute(double x, const Split<double>& parts, double* result) {
        *result = static_cast<double>(gamma<DoubleDesign>(x, parts));
    }
};
struct tgamma {
    static AllRare<D2> main(D2 x) { return {x}; }
    static constexpr auto rare = tgamma_rare<DoubleDesign, double>;
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
