// sin x, cos x and both together, double precision.
//
// The accurate class has two paths, chosen for the whole vector. While no lane is beyond the limit (2^24 for the sine
// by itself, 2^23 elsewhere), the short one: subtract multiples of pi, its parts short enough for exact products, and
// one odd polynomial. Otherwise all lanes take the long one: the reduction to 1/512 of a turn, a table of sine and
// cosine, and head and tail arithmetic; it is the more accurate one, so the last bits of a lane can depend on whether
// a neighbour is beyond the limit.
//
// The native class is a short path alone, with pi in three parts and four coefficients. Its remainder loses accuracy
// as |x| grows, and from about 2^52 on the result is no sine any more.
//
// Rare: infinities and NaN, on the long path. A NaN with no lane beyond the limit comes out of the short path's
// arithmetic, and so do infinities in the native class.
#include "frame/lane_frame.h"
#include "kernels/trig/long_path.h"
#include "kernels/trig/short_path.h"
#include "kernels/trig/sincos_double_data.h"
#include "kernels/trig/turn.h"

namespace zorv {
namespace {

// ---- Short path. -------------------------------------------------------------------------------------------

//   |x| = N pi + y;  sin |x| = +-sin y
template <class Data>
D2 short_sine(D2 x, const Data& data) {
    D2 a = and_bits(x, data.magnitude);
    D2 t = a * data.inverse_pi + data.shifter;
    D2 n = t - data.shifter;
    D2 y = subtract_parts(a, n, data.pi);
    return xor_bits(signed_sine(y, odd_sign(t), data.c), bits(x) & data.sign);
}

//   cos x = sin(x + pi/2);  x = (N - 1/2) pi + y
template <class Data>
D2 short_cosine(D2 x, const Data& data) {
    D2 t = (x + data.half_pi) * data.inverse_pi + data.shifter;
    D2 m = (t - data.shifter) - data.half;
    D2 y = subtract_parts(x, m, data.pi);
    return xor_bits(sine_polynomial(y, y * y, data.c), odd_sign(t));
}

// |x| - (N +- 1/2) pi by the first two parts of pi. On the accurate class's short path that is g, which is |x| - N pi
// by two parts, -+ half of the two: where N is not 0, every step is exact, all being multiples of 2^-52 below 2; where
// N is 0, both ways round alike, half of the second part being even on the grid of the result.
inline D2 half_step_off(D2, D2 g, D2, L2 side, const AccurateSinedData& data) {
    return g - or_bits(data.half_of_two_parts, side);
}
inline D2 half_step_off(D2 a, D2, D2 m, L2, const NativeSinedData& data) {
    return subtract_parts(a, m, data.pi, 0, 2);  // N may be too large for exact products
}

//   |x| = N pi + y;  |x| = (N +- 1/2) pi + z, on the side of y's sign, which two parts of pi decide
template <class Data>
Both<D2, D2> short_sine_and_cosine(D2 x, const Data& data) {
    D2 a = and_bits(x, data.magnitude);
    D2 t = a * data.inverse_pi + data.shifter;
    D2 n = t - data.shifter;
    D2 g = subtract_parts(a, n, data.pi, 0, 2);
    L2 side = bits(g) & data.sign;

    const Data& for_cosine = in_memory(data);  // the constants anew, where keeping them would spill
    D2 m = n + or_bits(for_cosine.half, side);
    D2 z = subtract_parts(half_step_off(a, g, m, side, for_cosine), m, for_cosine.pi, 2);
    D2 cosine = sine_polynomial(z, z * z, for_cosine.c);
    cosine = xor_bits(cosine, side ^ odd_sign(t) ^ for_cosine.sign);

    const Data& for_sine = in_memory(data);
    D2 y = subtract_parts(g, n, for_sine.pi, 2);
    D2 sine = sine_polynomial(y, y * y, for_sine.c);
    return {xor_bits(sine, odd_sign(t) ^ (bits(x) & for_sine.sign)), cosine};
}

// ---- Long path: functions of their own, one for all widths. ------------------------------------------------

struct LongSine {
    using Unit = D2;
    [[gnu::noinline]] static D2 main(D2 x) {
        const auto& data = in_memory(turn_sined_data);
        auto reduced = reduce(clear_bits(x, data.sign));
        auto entry = turn_entry(turn_table_d, row_of(reduced.j));
        D2 sine = sum_alone(turn_terms(entry, reduced, turn_polynomials(reduced.y, data)));
        return xor_bits(sine, bits(x) & data.sign);
    }
};

// The sign of x goes into the turn index and the remainder.
struct LongCosine {
    using Unit = D2;
    [[gnu::noinline]] static D2 main(D2 x) {
        auto reduced = reduce(x);
        const auto& data = in_memory(turn_sined_data);
        auto entry = turn_entry(turn_table_d + quarter_turn_d, row_of(reduced.j));
        return sum_alone(turn_terms(entry, reduced, turn_polynomials(reduced.y, data)));
    }
};

struct LongSineAndCosine {
    using Unit = D2;
    [[gnu::noinline, gnu::regcall]] static Both<D2, D2> main(D2 x) {
        const auto& data = in_memory(turn_sined_data);
        auto reduced = reduce(clear_bits(x, data.sign));
        auto p = turn_polynomials(reduced.y, data);
        LaneOffsets2 row = row_of(reduced.j);
        D2 sine = sum_of_paired_sine(turn_terms(turn_entry(turn_table_d, row), reduced, p));
        D2 cosine = sum_of_paired_cosine(turn_terms(turn_entry(turn_table_d + quarter_turn_d, row), reduced, p));
        return {xor_bits(sine, bits(x) & data.sign), cosine};
    }
};

// ---- The families. -----------------------------------------------------------------------------------------

// Error on the short path, found by random operands and their neighbourhoods: sine 3.58 ulp (0x1.edc883de772f1p+16),
// cosine 3.76 (0x1.08df39b519149p+17), both together 3.61; on the long path 0.503. Native, up to 2^23: 5.46e7.
struct sin {
    static D2 main(D2 x) { return short_sine(x, in_memory(sin_data)); }
    static L2 beyond(D2 x) { return and_bits(x, sin_data.magnitude) > sin_data.limit; }
    using LongPath = Repaired<LongSine>;
};
struct sin_native {
    static D2 main(D2 x) { return short_sine(x, in_memory(sin_native_data)); }
};

struct cos {
    static D2 main(D2 x) { return short_cosine(x, in_memory(cos_data)); }
    // Of the sum that the quotient is taken of: the path changes at -2^23 - pi/2 and 2^23 - pi/2.
    static L2 beyond(D2 x) { return and_bits(x + cos_data.half_pi, cos_data.magnitude) > cos_data.limit; }
    using LongPath = Repaired<LongCosine>;
};
struct cos_native {
    static D2 main(D2 x) { return short_cosine(x, in_memory(cos_native_data)); }
};

template <const auto& record>
struct SineAndCosine {
    static Both<D2, D2> main(D2 x) { return short_sine_and_cosine(x, in_memory(record)); }
    static L2 beyond(D2 x) { return and_bits(x, record.magnitude) > record.limit; }
    using LongPath = Repaired<LongSineAndCosine>;
};
template <const auto& record>
struct NativeSineAndCosine {
    static Both<D2, D2> main(D2 x) { return short_sine_and_cosine(x, in_memory(record)); }
};
using sincos = SineAndCosine<sincos_data>;
using sincos_native = NativeSineAndCosine<sincos_native_data>;
// The same, handed over by value.
using sincosreg = SineAndCosine<sincosreg_data>;
using sincosreg_native = NativeSineAndCosine<sincosreg_native_data>;

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
