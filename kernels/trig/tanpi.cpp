// tan(pi x), both precisions.
//
// The reduction is exact: two shifters' sums take off whole periods and then the nearest of the table's steps, and
// what is left is multiplied by pi for the local expansions of tan_expansion.h. All lanes take this one path; there is
// no other to keep the sign of a zero, so zeros and integers give +0. Half integers, the poles, give infinities whose
// sign alternates.
//
// Rare, in the accurate class: infinities and NaN.
#include <cmath>

#include "frame/lane_frame.h"
#include "frame/scalar.h"
#include "kernels/trig/long_path.h"
#include "kernels/trig/tan_data.h"
#include "kernels/trig/tan_expansion.h"

namespace zorv {
namespace {

template <class Unit>
struct Reduction {
    decltype(bits(Unit())) index;  // its low bits are the row, the bit above them tells the poles' signs
    Unit r;                        // in radians
};

template <class Unit, class Data>
Reduction<Unit> reduce_by_steps(Unit x, const Data& data) {
    Unit s = and_bits(data.big_shifter, and_bits(x, data.magnitude) < data.big_limit);
    x = x - ((s + x) - s);
    Unit t = x + data.shifter;
    return {bits(t), data.pi * (x - (t - data.shifter))};
}

// The expansion's value, but an infinity at the pole, where that is a NaN.
inline F4 or_pole(const TangentExpansion<F4>& expansion, I4 index, const auto& data) {
    F4 pole = or_bits(data.infinity, (index << 24) & data.sign);
    return select(expansion.distance == F4{}, pole, expansion.value);
}
inline D2 or_pole(const TangentExpansion<D2>& expansion, L2 index, const auto& data) {
    D2 pole = or_bits(data.infinity, (index << 55) & data.sign);
    return select(expansion.distance == D2{}, pole, expansion.value);
}

// ---- The families. -----------------------------------------------------------------------------------------

// Error, over all errors that the estimate may have: float 1.91 ulp, native 7; double 4.2 in both classes.
//
// The accurate and the native class of doubles are the same steps; the native one repairs nothing.
template <class Unit, const auto& record>
struct TangentPi {
    static Unit main(Unit x) {
        const auto& data = in_memory(record);
        auto [index, r] = reduce_by_steps(x, data);
        return or_pole(tangent_expansion(tangent_row_of(index), r), index, data);
    }
};
using tanpi_native = TangentPi<D2, tanpi_native_data>;

struct tanpif_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(tanpif_native_data);
        auto [index, r] = reduce_by_steps(x, data);
        return or_pole(native_tangent_expansion(tangent_row_of(index), r), index, data);
    }
};

struct tanpif {
    static Lanes<F4> main(F4 x) { return {TangentPi<F4, tanpif_data>::main(x), infinite_or_nan(x)}; }
    static Status rare(const float* x, float* result) {
        bool infinite = magnitude_of(*x) == HUGE_VALF;
        *result = infinite ? *x * 0.0f : *x + *x;
        return infinite ? RARE_DOMAIN : RARE_OK;
    }
};
struct tanpi {
    static Lanes<D2> main(D2 x) { return {TangentPi<D2, tanpi_data>::main(x), infinite_or_nan(x)}; }
    static Status rare(const double* x, double* result) {
        bool infinite = magnitude_of(*x) == HUGE_VAL;
        *result = infinite ? *x * 0.0 : *x * *x;
        return infinite ? RARE_DOMAIN : RARE_OK;
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
