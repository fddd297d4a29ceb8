// tan x, both precisions.
//
// Two paths, chosen for the whole vector. While no lane is beyond the limit (8256 for floats, 128000 for doubles), the
// short one: subtract multiples of pi/2, its parts short enough for exact products, and divide two polynomials, which
// change places in odd quadrants. Otherwise all lanes take the long one: the reduction of reduction.h and the local
// expansions of tan_expansion.h. Which of the two a lane took, its last bits show; -0 comes out as +0 of the long one.
//
// Rare: infinities and NaN, on the long path of the accurate class. A NaN with no lane beyond the limit comes out of
// the short path's arithmetic; the native class returns what the long path's arithmetic makes of an infinity.
#include "frame/lane_frame.h"
#include "kernels/trig/long_path.h"
#include "kernels/trig/reduction.h"
#include "kernels/trig/short_path.h"
#include "kernels/trig/tan_data.h"
#include "kernels/trig/tan_expansion.h"

namespace zorv {
namespace {

// ---- Short path. -------------------------------------------------------------------------------------------

// All ones where the integer in a shifter sum is odd: its last two bits as a sign and an exponent, of a number that is
// zero or not.
inline I4 odd_mask(F4 t) { return as_float(bits(t) << 30) != F4{}; }
inline L2 odd_mask(D2 t) { return as_double(bits(t) << 62) != D2{}; }

template <class Unit>
struct Ratio {
    Unit numerator, denominator;
    decltype(bits(Unit())) sign;
};

//   |x| = N pi/2 + y;  tan |x| is tan y, or -1/tan y for an odd N;  tan y = y A(y^2) / B(y^2)
template <class Unit, class Data>
Ratio<Unit> short_tangent(Unit x, const Data& data) {
    Unit a = and_bits(x, data.magnitude);
    Unit t = a * data.two_over_pi + data.shifter;
    Unit n = t - data.shifter;
    Unit y = subtract_parts(a, n, data.half_pi);
    Unit w = y * y;
    Unit numerator = horner(w, data.numerator) * y;
    Unit denominator = horner(w, data.denominator);
    auto swap = (bits(numerator) ^ bits(denominator)) & odd_mask(t);
    return {xor_bits(numerator, swap), xor_bits(denominator, swap), odd_sign(t) ^ (bits(x) & data.sign)};
}

// ---- Long path: functions of their own, one for all widths. ------------------------------------------------

struct LongTangentf {
    using Unit = F4;
    [[gnu::noinline]] static F4 main(F4 x) {
        auto reduced = reduce(x);
        return tangent_expansion(tangent_row_of(reduced.j), reduced.y + reduced.ylo).value;
    }
};
struct NativeLongTangentf {
    [[gnu::noinline]] static F4 main(F4 x) {
        auto reduced = reduce(x);
        return native_tangent_expansion(tangent_row_of(reduced.j), reduced.y + reduced.ylo).value;
    }
};
struct LongTangent {
    using Unit = D2;
    [[gnu::noinline]] static D2 main(D2 x) {
        auto reduced = reduce(x);
        return tangent_expansion(tangent_row_of(reduced.j), reduced.y + reduced.ylo).value;
    }
};

// ---- The families. -----------------------------------------------------------------------------------------

// Error on the short path: float 4.56 ulp (0x1.5eaaccp+9, all floats tried), native the estimate's, 6146 at the
// estimate's own bound; double 4.28 (0x40fe7142eb430ee4), native 7.0e5 (0x40f65a1dd290660f, beside a pole). On the long
// path, over all errors that the estimate may have: float 1.46, native 7; double 4.2 in both classes.
template <class Unit, const auto& record, class Long>
struct Tangent {
    static Unit main(Unit x) {
        auto [numerator, denominator, sign] = short_tangent(x, in_memory(record));
        return xor_bits(numerator / denominator, sign);
    }
    static MaskOf<Unit> beyond(Unit x) { return and_bits(x, record.magnitude) > record.limit; }
    using LongPath = Long;
};
using tanf = Tangent<F4, tanf_data, Repaired<LongTangentf>>;
using tan = Tangent<D2, tan_data, Repaired<LongTangent>>;
using tan_native = Tangent<D2, tan_native_data, LongTangent>;

// The quotient by the estimate alone.
struct tanf_native : Tangent<F4, tanf_native_data, NativeLongTangentf> {
    static F4 main(F4 x) {
        auto [numerator, denominator, sign] = short_tangent(x, in_memory(tanf_native_data));
        return xor_bits(reciprocal_estimate(denominator) * numerator, sign);
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
