// sin x, cos x and both together, single precision.
//
// Each has two paths, chosen for the whole vector. While no lane is beyond 10000, the short one: subtract multiples
// of pi, its parts short enough for exact products, and one odd polynomial. Otherwise all lanes take the long one:
// the reduction of trig/reduction.h to 1/256 of a turn, a table of sine and cosine, and head and tail arithmetic.
//
// The long path is the more accurate one, so the last bit of a lane can depend on whether a neighbour is beyond the
// limit.
//
// Rare: infinities and NaN, on the long path of the accurate class. A NaN with no lane beyond the limit comes out of
// the short path's arithmetic; the native class returns what the long path's arithmetic makes of an infinity.
#include "frame/lane_frame.h"
#include "kernels/trig/long_path.h"
#include "kernels/trig/short_path.h"
#include "kernels/trig/sincos_float_data.h"
#include "kernels/trig/turn.h"

namespace zorv {
namespace {

// ---- Short path. -------------------------------------------------------------------------------------------

template <class Data>
I4 beyond_limit(F4 x, const Data& data) {
    return and_bits(x, data.magnitude) > data.limit;  // false for a NaN
}

//   |x| = N pi + y;  sin |x| = +-sin y
template <class Data>
F4 short_sine(F4 x, const Data& data) {
    F4 a = and_bits(x, data.magnitude);
    F4 t = a * data.inverse_pi + data.shifter;
    F4 n = t - data.shifter;
    F4 y = subtract_parts(a, n, data.pi);
    return xor_bits(signed_sine(y, odd_sign(t), data.c), bits(x) & data.sign);
}

//   cos x = sin(x + pi/2);  x = (N - 1/2) pi + y
template <class Data>
F4 short_cosine(F4 x, const Data& data) {
    F4 t = (x + data.half_pi) * data.inverse_pi + data.shifter;
    F4 m = (t - data.shifter) - data.half;
    F4 y = subtract_parts(x, m, data.pi);
    return signed_sine(y, odd_sign(t), data.c);
}

//   |x| = N pi + y;  |x| = (N +- 1/2) pi + z, on the side of y's sign, which two parts of pi decide
template <class Data>
Both<F4, F4> short_sine_and_cosine(F4 x, const Data& data) {
    F4 a = and_bits(x, data.magnitude);
    F4 t = a * data.inverse_pi + data.shifter;
    F4 n = t - data.shifter;
    I4 odd = odd_sign(t);
    F4 g = subtract_parts(a, n, data.pi, 0, 2);
    I4 side = bits(g) & data.sign;

    // z begins as |x| - m pi by two parts of pi. Where n is not 0 every step of that is exact, so it equals
    // g -+ half of the two parts; where n is 0 the two round alike, half of the second part being even on the grid
    // of the result. (The same bits for every float of the short path: tried.)
    const Data& for_cosine = in_memory(data);  // the constants anew, where keeping them would spill
    F4 m = n + or_bits(for_cosine.half, side);
    F4 z = subtract_parts(g - or_bits(for_cosine.half_of_two_parts, side), m, for_cosine.pi, 2);
    F4 cosine = signed_sine(z, side ^ odd ^ for_cosine.sign, for_cosine.c);

    const Data& for_sine = in_memory(data);
    F4 y = subtract_parts(g, n, for_sine.pi, 2);
    F4 sine = signed_sine(y, odd, for_sine.c);
    return {xor_bits(sine, bits(x) & for_sine.sign), cosine};
}

// ---- Long path. --------------------------------------------------------------------------------------------

// Each is inlined wherever it stands: a call for each unit would cost a twentieth of the time.
//
// The sign of x goes into the turn index and the remainder; -0 comes out as +0.
struct LongSine {
    using Unit = F4;
    ALWAYS_INLINE static F4 main(F4 x) {
        auto reduced = reduce(x);
        const auto& data = in_memory(turn_sinef_data);
        return at_turn(turn_table_f, row_of(reduced.j), reduced, turn_polynomials(reduced.y, data));
    }
};

struct LongCosine {
    using Unit = F4;
    ALWAYS_INLINE static F4 main(F4 x) {
        auto reduced = reduce(x);
        const auto& data = in_memory(turn_sinef_data);
        return at_turn(turn_table_f + quarter_turn, row_of(reduced.j), reduced, turn_polynomials(reduced.y, data));
    }
};

struct LongSineAndCosine {
    using Unit = F4;
    ALWAYS_INLINE static Both<F4, F4> main(F4 x) {
        const auto& data = in_memory(turn_sinef_data);
        auto reduced = reduce(clear_bits(x, data.sign));
        auto p = turn_polynomials(reduced.y, data);
        LaneOffsets row = row_of(reduced.j);
        F4 sine = at_turn(turn_table_f, row, reduced, p);
        F4 cosine = at_turn(turn_table_f + quarter_turn, row, reduced, p);
        return {xor_bits(sine, bits(x) & data.sign), cosine};
    }
};

// ---- The families. -----------------------------------------------------------------------------------------

// Error on the short path, all floats tried: sine 2.4736 ulp (0x460fc5e6), cosine 2.3873 (0x460743a5); native 2321
// (0x46183209) and 2349.2 (0x46182bc1). On the long path 0.5049 ulp, every third float tried (0x48c6f6bd).
//
// The range test and the sines may share constants between units: measured, what wide vectors then spill costs less
// than it saves. For the cosine alone it costs more.
template <const auto& record, class Long>
struct Sine {
    static F4 main(F4 x) { return short_sine(x, record); }
    static I4 beyond(F4 x) { return beyond_limit(x, record); }
    using LongPath = Long;
};
using sinf = Sine<sinf_data, Repaired<LongSine>>;
using sinf_native = Sine<sinf_native_data, LongSine>;

template <const auto& record, class Long>
struct Cosine {
    static F4 main(F4 x) { return short_cosine(x, in_memory(record)); }
    static I4 beyond(F4 x) { return beyond_limit(x, record); }
    using LongPath = Long;
};
using cosf = Cosine<cosf_data, Repaired<LongCosine>>;
using cosf_native = Cosine<cosf_native_data, LongCosine>;

template <const auto& record, class Long>
struct SineAndCosine {
    static Both<F4, F4> main(F4 x) { return short_sine_and_cosine(x, record); }
    static I4 beyond(F4 x) { return beyond_limit(x, record); }
    using LongPath = Long;
};
using sincosf = SineAndCosine<sincosf_data, Repaired<LongSineAndCosine>>;
using sincosf_native = SineAndCosine<sincosf_native_data, LongSineAndCosine>;
// The same, handed over by value.
using sincosregf = SineAndCosine<sincosregf_data, Repaired<LongSineAndCosine>>;
using sincosregf_native = SineAndCosine<sincosregf_native_data, LongSineAndCosine>;

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
