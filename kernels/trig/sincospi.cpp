// sin(pi x) and cos(pi x), both precisions.
//
// The reduction is exact: a shifter's sum rounds |x| to the nearest integer, or half integer, and what is left, |r| at
// most 1/2, is multiplied by pi; the polynomial is that of the sine. Where a lane is beyond the limit up to which the
// shifter has room, all lanes first lose the largest multiple of a period that a second, larger shifter rounds to.
// That is exact too, so a neighbour changes no bit of a finite lane.
//
// Rare: infinities and NaN, beside a lane beyond the limit (which an infinity is). A NaN with no such lane comes out
// of the arithmetic, and so do infinities in the native class.
#include "frame/lane_frame.h"
#include "frame/scalar.h"
#include "kernels/trig/long_path.h"
#include "kernels/trig/short_path.h"
#include "kernels/trig/sincospi_data.h"

namespace zorv {
namespace {

// Without its largest multiple of 512 (float) or 256 (double), rounded to nearest; from the big limit on, all of it.
template <class Unit, class Data>
Unit without_periods(Unit a, const Data& data) {
    Unit s = and_bits(data.big_shifter, a < data.big_limit);
    Unit t = (s + a) - s;
    return a - t;
}

//   a = N + r;  sin(pi a) = +-sin(pi r)
template <class Unit, class Data>
Unit sine_of_pi(Unit a, const Data& data) {
    Unit t = a + data.shifter;
    Unit r = a - (t - data.shifter);
    return signed_sine(data.pi * r, odd_sign(t), data.c);
}

//   cos(pi a) = sin(pi (a + 1/2));  a = N - 1/2 + r
template <class Unit, class Data>
Unit cosine_of_pi(Unit a, const Data& data) {
    Unit t = (a + data.half) + data.shifter;
    Unit r = a - ((t - data.shifter) - data.half);
    return signed_sine(data.pi * r, odd_sign(t), data.c);
}

// ---- The families. -----------------------------------------------------------------------------------------

// Error: float, all of one period tried, sine 2.132 ulp (0x1.45f3ep-9), cosine 2.110 (0x1.7e4d94p-4), native 2280.1;
// double, found by random operands, 3.37 and 3.71, native 5.46e7.
template <class Unit, const auto& record>
struct FarSinePi {
    static Unit main(Unit x) {
        const auto& data = in_memory(record);
        Unit a = without_periods(and_bits(x, data.magnitude), data);
        return xor_bits(sine_of_pi(a, data), bits(x) & data.sign);
    }
};
template <class Unit, const auto& record>
struct FarCosinePi {
    static Unit main(Unit x) {
        const auto& data = in_memory(record);
        return cosine_of_pi(without_periods(and_bits(x, data.magnitude), data), data);
    }
};

// The accurate class's far lanes: of infinities and NaN alike, one fixed NaN, whatever the operand's sign and payload.
template <class Unit, class Far>
struct WithFixedNaN {
    static Lanes<Unit> main(Unit x) { return {Far::main(x), infinite_or_nan(x)}; }

    template <class Float>
    static Status rare(const Float* x, Float* result) {
        if (is_infinite_or_nan(*x)) *result = from_pattern(Fields<Float>::magnitude);
        return RARE_OK;
    }
};

template <class Unit, const auto& record>
MaskOf<Unit> beyond_limit(Unit x) {
    return and_bits(x, record.magnitude) > record.limit;  // false for a NaN
}

template <class Unit, const auto& record, class Far>
struct SinePi {
    static Unit main(Unit x) {
        const auto& data = in_memory(record);
        return xor_bits(sine_of_pi(and_bits(x, data.magnitude), data), bits(x) & data.sign);
    }
    static MaskOf<Unit> beyond(Unit x) { return beyond_limit<Unit, record>(x); }
    using LongPath = Far;
};
using sinpif = SinePi<F4, sinpif_data, WithFixedNaN<F4, FarSinePi<F4, sinpif_data>>>;
using sinpi = SinePi<D2, sinpi_data, WithFixedNaN<D2, FarSinePi<D2, sinpi_data>>>;
using sinpif_native = SinePi<F4, sinpif_native_data, FarSinePi<F4, sinpif_native_data>>;
using sinpi_native = SinePi<D2, sinpi_native_data, FarSinePi<D2, sinpi_native_data>>;

template <class Unit, const auto& record, class Far>
struct CosinePi {
    static Unit main(Unit x) {
        const auto& data = in_memory(record);
        return cosine_of_pi(and_bits(x, data.magnitude), data);
    }
    static MaskOf<Unit> beyond(Unit x) { return beyond_limit<Unit, record>(x); }
    using LongPath = Far;
};
using cospif = CosinePi<F4, cospif_data, WithFixedNaN<F4, FarCosinePi<F4, cospif_data>>>;
using cospi = CosinePi<D2, cospi_data, WithFixedNaN<D2, FarCosinePi<D2, cospi_data>>>;
using cospif_native = CosinePi<F4, cospif_native_data, FarCosinePi<F4, cospif_native_data>>;
using cospi_native = CosinePi<D2, cospi_native_data, FarCosinePi<D2, cospi_native_data>>;

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
