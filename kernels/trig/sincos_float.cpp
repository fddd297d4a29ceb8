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
#include "kernels/trig/sincos_float_data.h"
#include "frame/lane_frame.h"
#include "kernels/trig/reduction.h"

namespace zorv {
namespace {

// ---- Short path. -------------------------------------------------------------------------------------------

template <class Data>
I4 beyond_limit(F4 x, const Data& data) {
    return and_bits(x, data.magnitude) > data.limit;  // false for a NaN
}

// y - n * (some parts of pi), part by part.
template <class Data>
F4 subtract_pi(F4 y, F4 n, const Data& data, int from, int to) {
    for (int i = from; i < to; ++i) y = y - n * data.pi[i];
    return y;
}
template <class Data>
constexpr int parts_of_pi(const Data&) {
    return sizeof(Data::pi) / sizeof(Data::pi[0]);
}

// sin(+-y) = +-(y + y (c1 y^2 + c2 y^4 + ...)), |y| <= pi/2; the sign joins late, off the chain of dependent steps.
template <class Data>
F4 sine_polynomial(F4 y, I4 sign, const Data& data) {
    F4 w = y * y;
    y = xor_bits(y, sign);
    int i = sizeof(data.c) / sizeof(data.c[0]) - 1;
    F4 p = data.c[i];
    while (i-- > 0) p = p * w + data.c[i];
    p = p * w;
    return p * y + y;
}

// The parity of the integer in a shifter sum, as a sign bit.
inline I4 odd_sign(F4 t) { return bits(t) << 31; }

//   |x| = N pi + y;  sin |x| = +-sin y
template <class Data>
F4 short_sine(F4 x, const Data& data) {
    F4 a = and_bits(x, data.magnitude);
    F4 t = a * data.inverse_pi + data.shifter;
    F4 n = t - data.shifter;
    F4 y = subtract_pi(a, n, data, 0, parts_of_pi(data));
    F4 r = sine_polynomial(y, odd_sign(t), data);
    return xor_bits(r, bits(x) & data.sign);
}

//   cos x = sin(x + pi/2);  x = (N - 1/2) pi + y
template <class Data>
F4 short_cosine(F4 x, const Data& data) {
    F4 t = (x + data.half_pi) * data.inverse_pi + data.shifter;
    F4 m = (t - data.shifter) - data.half;
    F4 y = subtract_pi(x, m, data, 0, parts_of_pi(data));
    return sine_polynomial(y, odd_sign(t), data);
}

//   |x| = N pi + y;  |x| = (N +- 1/2) pi + z, on the side of y's sign, which two parts of pi decide
template <class Data>
Both<F4, F4> short_sine_and_cosine(F4 x, const Data& data) {
    F4 a = and_bits(x, data.magnitude);
    F4 t = a * data.inverse_pi + data.shifter;
    F4 n = t - data.shifter;
    I4 odd = odd_sign(t);
    F4 g = subtract_pi(a, n, data, 0, 2);
    I4 side = bits(g) & data.sign;

    // z begins as |x| - m pi by two parts of pi. Where n is not 0 every step of that is exact, so it equals
    // g -+ half of the two parts; where n is 0 the two round alike, half of the second part being even on the grid
    // of the result. (The same bits for every float of the short path: tried.)
    const Data& for_cosine = in_memory(data);  // the constants anew, where keeping them would spill
    F4 m = n + or_bits(for_cosine.half, side);
    F4 z = subtract_pi(g - or_bits(for_cosine.half_of_two_parts, side), m, for_cosine, 2, parts_of_pi(data));
    F4 cosine = sine_polynomial(z, side ^ odd ^ for_cosine.sign, for_cosine);

    const Data& for_sine = in_memory(data);
    F4 y = subtract_pi(g, n, for_sine, 2, parts_of_pi(data));
    F4 sine = sine_polynomial(y, odd, for_sine);
    return {xor_bits(sine, bits(x) & for_sine.sign), cosine};
}

// ---- Long path. --------------------------------------------------------------------------------------------

// sin y - y and cos y - 1 for the remainder of a turn, |y| <= pi/256
struct TurnPolynomials {
    F4 sine, cosine;
};
inline TurnPolynomials turn_polynomials(F4 y, const TurnSinefData& data) {
    F4 w = y * y;
    return {((data.s2 * w + data.s1) * w) * y, (data.c2 * w + data.c1) * w};
}

// sin(B + y + ylo) from the table's row for B:
//
//   sin B + y cos B       as R + e, exact: the head of cos B is a power of two, so its product is
//   + ylo (slope at B + y) + sin B (cos y - 1) + cos B (sin y - y)
//
// With a table one quarter turn ahead, the cosine.
inline F4 at_turn(const float* table, LaneOffsets row, const Reduced<F4, I4>& x, TurnPolynomials p) {
    auto [cos_tail, sin_head, sin_tail, cos_head] = gather_rows(table, row).column;
    F4 q = cos_tail + cos_head;
    F4 head = x.y * cos_head;
    F4 t = sin_head + head;
    F4 e1 = (sin_head - t) + head;
    F4 tail = x.y * cos_tail;
    F4 r = tail + t;
    F4 e2 = (t - r) + tail;
    F4 e = e2 + e1;
    F4 slope = q - x.y * sin_head;
    F4 l = x.ylo * slope + sin_tail;
    F4 z = p.cosine * sin_head + l;
    z = z + p.sine * q;
    z = z + e;
    return r + z;
}

inline LaneOffsets row_of(I4 j) { return offsets_through_memory(j << 4); }

// Each is inlined wherever it stands: a call for each unit would cost a twentieth of the time.
//
// The sign of x goes into the turn index and the remainder; -0 comes out as +0.
struct LongSine {
    ALWAYS_INLINE static F4 main(F4 x) {
        auto reduced = reduce(x);
        const auto& data = in_memory(turn_sinef_data);
        return at_turn(turn_table_f, row_of(reduced.j), reduced, turn_polynomials(reduced.y, data));
    }
};

struct LongCosine {
    ALWAYS_INLINE static F4 main(F4 x) {
        auto reduced = reduce(x);
        const auto& data = in_memory(turn_sinef_data);
        return at_turn(turn_table_f + quarter_turn, row_of(reduced.j), reduced, turn_polynomials(reduced.y, data));
    }
};

struct LongSineAndCosine {
    ALWAYS_INLINE static Both<F4, F4> main(F4 x) {
        const auto& data = in_memory(turn_sinef_data);
        auto reduced = reduce(clear_bits(x, data.sign));
        TurnPolynomials p = turn_polynomials(reduced.y, data);
        LaneOffsets row = row_of(reduced.j);
        F4 sine = at_turn(turn_table_f, row, reduced, p);
        F4 cosine = at_turn(turn_table_f + quarter_turn, row, reduced, p);
        return {xor_bits(sine, bits(x) & data.sign), cosine};
    }
};

// A long path whose infinities and NaN are repaired.
template <class Path>
struct Repaired {
    static auto main(F4 x) {
        const auto& data = in_memory(turn_sinef_data);
        return with_rare_lanes(Path::main(x), (bits(x) & data.infinity) == data.infinity);
    }

    // One or two results, of the same value.
    template <class... Results>
    static Status rare(const float* x, Results*... results) {
        uint32_t magnitude = __builtin_bit_cast(uint32_t, *x) & 0x7fffffff;
        if (magnitude < 0x7f800000) return RARE_OK;
        bool infinite = magnitude == 0x7f800000;
        float nan = infinite ? *x * 0.0f : *x * *x;
        ((*results = nan), ...);
        return infinite ? RARE_DOMAIN : RARE_OK;
    }

  private:
    static Lanes<F4> with_rare_lanes(F4 result, I4 rare) { return {result, rare}; }
    static Lanes<F4, F4> with_rare_lanes(Both<F4, F4> results, I4 rare) {
        return {results.first, results.second, rare};
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
