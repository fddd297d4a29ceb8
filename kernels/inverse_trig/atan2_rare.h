// The angle of any point (x, y), for the rare lanes of atan2 and atan2pi: special values, then quotients so small or
// so large that a term or two do, and for the rest the arc tangent in double-double arithmetic.
#pragma once

#include "frame/pairs.h"
#include "frame/scalar.h"
#include "kernels/inverse_trig/atan_data.h"

namespace zorv {

// ---- The unit of the result. -------------------------------------------------------------------------------

struct Radians {
    static double eighths_of_turn(int n) { return arctangent_rare_data.eighths[n]; }
    static double of(double angle) { return angle; }
    static double of(HeadTail<double> angle) { return angle.head + angle.tail; }
};

struct HalfTurns {
    static double eighths_of_turn(int n) { return 0.25 * n; }
    static double of(double angle) {
        const auto& data = arctangent_rare_data;
        return angle * (data.inverse_pi + data.inverse_pi_tail);
    }
    static double of(HeadTail<double> angle) {
        const auto& data = arctangent_rare_data;
        return data.inverse_pi * angle.head +
               ((data.inverse_pi_tail * angle.tail + data.inverse_pi_tail * angle.head) + data.inverse_pi * angle.tail);
    }
};

// ---- The arc tangent of y/x, both positive, the exponent fields at most 53 apart. ------------------------------

//   atan z = z + z (w P(w)),  w = z^2,  the small factor as a plain double
inline HeadTail<double> short_arctangent(HeadTail<double> z) {
    double w = z.head * z.head;
    double p = horner(w, arctangent_rare_data.polynomial) * w;
    return sum(z, product(z, p));
}

inline HeadTail<double> arctangent(double y, double x) {
    // Both by the same power of two, y to about 1. What reaches neither end of the exponents is exact.
    int field = exponent_field(y);
    double scale = field == 0 ? 0x1p1022 : field >= 2046 ? 0x1p-1022 : power_of_two<double>(1023 - field);
    y = y * scale;
    x = x * scale;
    double q = y / x;
    if (q < 0.125) return short_arctangent(quotient({y, 0}, {x, 0}));

    //   atan(y/x) = atan c + atan z,  z = (y - x c) / (x + y c),  c next to y/x, of three bits
    uint32_t high = static_cast<uint32_t>(pattern(q) >> 32);
    double c = from_pattern(static_cast<uint64_t>((high & 0xfff80000) | 0x00040000) << 32);
    // The rows end below quotients of 2^54. Only a subnormal x brings greater ones here; they take the last row, whose
    // angle is a third of an ulp of pi/2 short for them.
    uint32_t row = (high - 0x3fc00000) >> 19;
    const auto& step = arctangent_rare_data.steps[row < 113 ? row : 113];
    HeadTail<double> xc = exact_product(x, c);
    HeadTail<double> z = quotient(sum({y, 0}, {-xc.head, -xc.tail}), sum({x, 0}, exact_product(y, c)));
    return sum({step.head, step.tail}, short_arctangent(z));
}

// ---- The angle. --------------------------------------------------------------------------------------------

// `Lane` is the precision that y and x come from and the result goes to.
template <class Lane, class Unit>
inline double angle_of(double y, double x) {
    using F = Fields<double>;
    if (y != y || x != x) return y + x;
    const auto& data = arctangent_rare_data;
    bool behind = is_negative(x);
    double ay = magnitude_of(y), ax = magnitude_of(x);
    auto on_side_of_y = [y](double angle) { return or_sign_of(angle, y); };
    auto eighths = [&](int n) { return on_side_of_y(Unit::eighths_of_turn(n)); };

    if (pattern(ax) == F::infinity) {
        if (pattern(ay) == F::infinity) return eighths(behind ? 3 : 1);
        return eighths(behind ? 4 : 0);
    }
    if (pattern(ay) == F::infinity) return eighths(2);
    if (ay == 0) return eighths(behind ? 4 : 0);
    if (ax == 0) return eighths(2);

    int k = exponent_field(ay) - exponent_field(ax);
    if (k < -53) {
        if (behind) return eighths(4);
        double q = ay / ax;
        Lane in_lane = static_cast<Lane>(q);
        if (is_zero_or_subnormal(in_lane)) return on_side_of_y(Unit::of(q + in_lane * in_lane));  // raises underflow
        return on_side_of_y(Unit::of(q * (1.0 + q)));
    }
    if (k >= 74) return eighths(2);
    HeadTail<double> half_pi = {data.eighths[2], data.half_pi_tail};
    if (k >= 54) return on_side_of_y(Unit::of({half_pi.head, half_pi.tail - x / ay}));

    HeadTail<double> angle = arctangent(ay, ax);
    if (behind) {
        HeadTail<double> h = two_sum<double>(data.eighths[4], -angle.head);
        angle = {h.head, (h.tail - angle.tail) + data.pi_tail};
    }
    return on_side_of_y(Unit::of(angle));
}

}  // namespace zorv
