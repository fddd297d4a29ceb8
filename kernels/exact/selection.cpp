// fabs, copysign, nan, fmin, fmax, maxmag, minmag, fdim and mad: a few logical or compare instructions each. All
// exact but mad, which rounds its product and its sum. Where an operand can be NaN the order of the hardware's
// operands is part of the result.
//
// The records hold one or two integers, which all units of a call share in registers: kernels this short would pay
// for a memory operand in each unit.
#include "frame/lane_frame.h"
#include "frame/scalar.h"
#include "kernels/exact/exact_data.h"
#include "kernels/exact/special.h"

namespace zorv {
namespace {

// ---- Bits alone: a NaN is a pattern like any other. --------------------------------------------------------

template <class Unit>
struct Sign;
template <>
struct Sign<F4> {
    static constexpr I4 bit = {INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN};
};
template <>
struct Sign<D2> {
    static constexpr L2 bit = {INT64_MIN, INT64_MIN};
};

template <class Unit>
struct Fabs {
    static constexpr bool bits_alone = true;
    static Unit main(Unit x) { return clear_bits(x, Sign<Unit>::bit); }

    using Float = typename Layout<Unit>::Lane;
    static Float scalar(Float x) { return magnitude_of(x); }
};
using fabsf = Fabs<F4>;
using fabs = Fabs<D2>;

template <class Unit>
struct CopySign {
    static constexpr bool bits_alone = true;
    static Unit main(Unit x, Unit y) { return or_bits(clear_bits(x, Sign<Unit>::bit), bits(y) & Sign<Unit>::bit); }

    using Float = typename Layout<Unit>::Lane;
    static Float scalar(Float x, Float y) { return or_sign_of(magnitude_of(x), y); }
};
using copysignf = CopySign<F4>;
using copysign = CopySign<D2>;

// A quiet NaN with the code in its payload; bits of the code above the payload stay.
struct nanf {
    static constexpr bool bits_alone = true;
    static F4 main(U4 code) { return as_float(code | 0x7fc00000u); }
};
struct nan {
    static constexpr bool bits_alone = true;
    static D2 main(UL2 code) { return as_double(code | 0x7ff8000000000000u); }
};

// ---- Minima and maxima. ------------------------------------------------------------------------------------

// The operand that is a number; of two NaN the second. Infinities are compared as they should be by the main path,
// whose value stays.
template <class Float>
Status other_than_nan(const Float* x, const Float* y, Float* result) {
    if (*y != *y) *result = *x;
    if (*x != *x) *result = *y;
    return RARE_OK;
}

// Where x is the operand to take: it is a number, and y stands on the other side of it or is none. `not_taken` is the
// compare that says no; with a NaN it is false.
template <class Unit>
MaskOf<Unit> takes_first(Unit x, MaskOf<Unit> not_taken) {
    return ~not_taken & (x == x);
}
template <class Float>
Float first_or_second(Float x, Float y, bool not_taken) {
    return !not_taken && x == x ? x : y;
}

// The hardware's operation gives its second operand where the two are equal: of +0 and -0 the second.
template <class Unit, const auto& record>
struct Fmin {
    static Lanes<Unit> main(Unit x, Unit y) {
        const auto& data = record;
        return {hardware_min(x, y), is_special(x, data) | is_special(y, data)};
    }
    static constexpr auto rare = other_than_nan<typename Layout<Unit>::Lane>;

    struct Inlined {
        static constexpr bool bits_alone = true;
        static Unit main(Unit x, Unit y) { return select(takes_first(x, x >= y), x, y); }

        using Float = typename Layout<Unit>::Lane;
        static Float scalar(Float x, Float y) { return first_or_second(x, y, x >= y); }
    };
};
using fminf = Fmin<F4, fminf_data>;
using fmin = Fmin<D2, fmin_data>;

template <class Unit, const auto& record>
struct Fmax {
    static Lanes<Unit> main(Unit x, Unit y) {
        const auto& data = record;
        return {hardware_max(x, y), is_special(x, data) | is_special(y, data)};
    }
    static constexpr auto rare = other_than_nan<typename Layout<Unit>::Lane>;

    struct Inlined {
        static constexpr bool bits_alone = true;
        static Unit main(Unit x, Unit y) { return select(takes_first(x, x <= y), x, y); }

        using Float = typename Layout<Unit>::Lane;
        static Float scalar(Float x, Float y) { return first_or_second(x, y, x <= y); }
    };
};
using fmaxf = Fmax<F4, fmaxf_data>;
using fmax = Fmax<D2, fmax_data>;

// By magnitude; of equal magnitudes the larger signed value, of two zeros x.
template <class Unit, const auto& record>
struct Maxmag {
    static Lanes<Unit> main(Unit x, Unit y) {
        const auto& data = record;
        Unit ax = clear_bits(x, data.sign);
        Unit ay = clear_bits(y, data.sign);
        Unit larger = select(ay < ax, x, y);
        return {select(ax == ay, hardware_max(y, x), larger), is_special(x, data) | is_special(y, data)};
    }
    static constexpr auto rare = other_than_nan<typename Layout<Unit>::Lane>;

    struct Inlined {
        static constexpr bool bits_alone = true;
        static Unit main(Unit x, Unit y) {
            Unit ax = clear_bits(x, Sign<Unit>::bit);
            Unit ay = clear_bits(y, Sign<Unit>::bit);
            return select(ax == ay, hardware_max(y, x), select(takes_first(x, ax <= ay), x, y));
        }
    };
};
using maxmagf = Maxmag<F4, maxmagf_data>;
using maxmag = Maxmag<D2, maxmag_data>;

// By magnitude; of equal magnitudes the smaller signed value, of two zeros x.
template <class Unit, const auto& record>
struct Minmag {
    static Lanes<Unit> main(Unit x, Unit y) {
        const auto& data = record;
        Unit ax = clear_bits(x, data.sign);
        Unit ay = clear_bits(y, data.sign);
        Unit smaller = select(ax < ay, x, y);
        return {select(ax == ay, hardware_min(y, x), smaller), is_special(x, data) | is_special(y, data)};
    }
    static constexpr auto rare = other_than_nan<typename Layout<Unit>::Lane>;

    struct Inlined {
        static constexpr bool bits_alone = true;
        static Unit main(Unit x, Unit y) {
            Unit ax = clear_bits(x, Sign<Unit>::bit);
            Unit ay = clear_bits(y, Sign<Unit>::bit);
            return select(ax == ay, hardware_min(y, x), select(takes_first(x, ax >= ay), x, y));
        }
    };
};
using minmagf = Minmag<F4, minmagf_data>;
using minmag = Minmag<D2, minmag_data>;

// ---- fdim: how far x stands above y. -----------------------------------------------------------------------

// A NaN operand; of two the second.
template <class Float>
Status fdim_rare(const Float* x, const Float* y, Float* result) {
    if (*x != *x) *result = *x;
    if (*y != *y) *result = *y;
    return RARE_OK;
}

template <class Unit, const auto& record>
struct Fdim {
    static Lanes<Unit> main(Unit x, Unit y) {
        const auto& data = record;
        return {and_bits(x - y, y < x), is_special(x, data) | is_special(y, data)};
    }
    static constexpr auto rare = fdim_rare<typename Layout<Unit>::Lane>;

    struct Inlined {
        static Unit main(Unit x, Unit y) {
            Unit above = hardware_max(x - y, Unit{});  // the second operand where the difference is NaN or -0
            return select(y == y, select(x == x, above, x), y);
        }
    };
};
using fdimf = Fdim<F4, fdimf_data>;
using fdim = Fdim<D2, fdim_data>;

// ---- mad: two roundings, on purpose; fma has one. ----------------------------------------------------------

// Of several NaN the first of a, b, c goes through.
template <class Unit>
struct Mad {
    static Unit main(Unit a, Unit b, Unit c) { return add_in_order(multiply_in_order(a, b), c); }
};
using madf = Mad<F4>;
using mad = Mad<D2>;

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
