// ceil, floor, round, trunc, rint, nearbyint, modf and fract. All exact: no branch, no table, the rounding steps of
// exact/integral.h. The bare families are complete for every operand; modf and fract repair infinities and NaN.
#include "kernels/exact/integral.h"

#include <limits>

#include "frame/lane_frame.h"
#include "frame/scalar.h"
#include "kernels/exact/exact_data.h"
#include "kernels/exact/special.h"

namespace zorv {
namespace {

// ---- The four plain directions. ----------------------------------------------------------------------------

template <class Unit, const auto& record>
struct Floor {
    static Unit main(Unit x) { return down(x, in_memory(record)); }
};
using floorf = Floor<F4, floorf_data>;
using floor = Floor<D2, floor_data>;

template <class Unit, const auto& record>
struct Ceil {
    static Unit main(Unit x) { return up(x, in_memory(record)); }
};
using ceilf = Ceil<F4, ceilf_data>;
using ceil = Ceil<D2, ceil_data>;

template <class Unit, const auto& record>
struct Trunc {
    static Unit main(Unit x) { return toward_zero(x, in_memory(record)); }
};
using truncf = Trunc<F4, truncf_data>;
using trunc = Trunc<D2, trunc_data>;

// nearbyint differs from rint in flags only, and no flags are kept here.
template <class Unit, const auto& record>
struct Rint {
    static Unit main(Unit x) { return to_nearest(x, in_memory(record)); }
};
using rintf = Rint<F4, rintf_data>;
using rint = Rint<D2, rint_data>;
using nearbyintf = rintf;
using nearbyint = rint;

// ---- round: ties away from zero. ---------------------------------------------------------------------------

//   t = |x| to nearest even;  |x| - t = 1/2 where a tie went down to even: those lanes take one more
template <class Unit, const auto& record>
struct Round {
    static Unit main(Unit x) {
        const auto& data = in_memory(record);
        Unit a = clear_bits(x, data.sign);
        Unit t = shift_out_fraction(a, data);
        Unit e = and_bits(Unit(data.one), a - t == Unit(data.half));
        return or_bits(t + e, bits(x) & data.sign);
    }
};
using roundf = Round<F4, roundf_data>;
using round = Round<D2, round_data>;

// ---- modf: fractional part, and through the pointer the integral part. -------------------------------------

template <class Float>
Status modf_rare(const Float* x, Float* fraction, Float* integral) {
    if (*x != *x) {
        double d = *x;
        *fraction = *integral = static_cast<Float>(d + d);
        return RARE_OK;
    }
    *fraction = or_sign_of(Float(0), *x);
    *integral = *x;
    return RARE_OK;
}

template <class Unit, const auto& record>
struct Modf {
    static Lanes<Unit, Unit> main(Unit x) {
        const auto& data = in_memory(record);
        Unit t = toward_zero(x, data);
        return {x - t, t, is_special(x, data)};
    }
    static constexpr auto rare = modf_rare<typename Layout<Unit>::Lane>;

    // An infinity is the one operand whose difference is no fraction: a zero of its sign stands for it.
    struct Inlined {
        static Both<Unit, Unit> main(Unit x) {
            const auto& data = in_memory(record);
            Unit t = toward_zero(x, data);
            constexpr auto infinity = std::numeric_limits<typename Layout<Unit>::Lane>::infinity();
            return {select(clear_bits(x, data.sign) == infinity, and_bits(x, data.sign), x - t), t};
        }
    };
};
using modff = Modf<F4, modff_data>;
using modf = Modf<D2, modf_data>;

// ---- fract: x - floor(x) in [0, 1), and through the pointer the floor. --------------------------------------

template <class Float>
Status fract_rare(const Float* x, Float* fraction, Float* floor) {
    Float v = *x * opaque(Float(1));  // quiets a signalling NaN
    if (v == 0) {
        *fraction = *floor = *x;
        return RARE_OK;
    }
    if (v != v) {
        *fraction = *floor = v;
        return RARE_OK;
    }
    *fraction = or_sign_of(Float(0), *x);
    *floor = *x;
    return RARE_OK;
}

// The minimum keeps a tiny negative x, whose x + 1 rounds to 1, below 1.
template <class Unit, const auto& record>
struct Fract {
    static Lanes<Unit, Unit> main(Unit x) {
        const auto& data = in_memory(record);
        Unit f = down(x, data);
        auto is_zero = (bits(x) & ~data.sign) == 0;
        return {hardware_min(x - f, data.below_one), f, is_zero | is_special(x, data)};
    }
    static constexpr auto rare = fract_rare<typename Layout<Unit>::Lane>;
};
using fractf = Fract<F4, fractf_data>;
using fract = Fract<D2, fract_data>;

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
