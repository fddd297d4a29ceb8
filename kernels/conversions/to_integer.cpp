// float and double to int, uint, long and ulong. First x is rounded to an integral y, which is still a floating number;
// then y, integral, infinite or NaN, becomes an integer. Any of the four roundings goes with any of the eight
// conversions: the grid's rows at the end of this file combine them. Exact for every operand in the target's range.
#include "frame/lane_frame.h"
#include "kernels/conversions/conversions_data.h"
#include "kernels/exact/integral.h"

namespace zorv {
namespace {

// ---- The rounding stage. -----------------------------------------------------------------------------------

struct ToNearest {
    static auto round(auto x, const auto& data) { return to_nearest(x, data.rounding); }
};
struct Down {
    static auto round(auto x, const auto& data) { return down(x, data.rounding); }
};
struct Up {
    static auto round(auto x, const auto& data) { return up(x, data.rounding_up); }
};
struct TowardZero {
    static auto round(auto x, const auto& data) { return toward_zero(x, data.rounding); }
};

template <class Rounding, class Unit>
Unit rounded(Unit x, const auto& data) {
    return Rounding::round(x, data);
}
template <class Rounding, class Unit>
TwoUnits<Unit> rounded(TwoUnits<Unit> x, const auto& data) {
    return {Rounding::round(x.low, data), Rounding::round(x.high, data)};
}

// ---- Four source lanes as one unit of 32-bit lanes: a unit of floats, or two units of doubles. -------------

// The packed conversion that rounds, of an integral y: 0x80000000 where y is no int, infinite or NaN.
I4 hardware_int(F4 y) { return unit_cast<I4>(_mm_cvtps_epi32(y)); }
I4 hardware_int(D4 y) { return unit_cast<I4>(_mm_unpacklo_epi64(_mm_cvtpd_epi32(y.low), _mm_cvtpd_epi32(y.high))); }

// The word that holds sign and exponent.
I4 high_words(F4 y) { return bits(y); }
I4 high_words(D4 y) { return high_halves(bits(y.low), bits(y.high)); }

D4 clear_bits(D4 y, L2 mask) { return {zorv::clear_bits(y.low, mask), zorv::clear_bits(y.high, mask)}; }
using zorv::clear_bits;

I4 is_nan(F4 y) { return y != y; }
I4 is_nan(D4 y) { return low_halves(y.low != y.low, y.high != y.high); }

// Magnitude in [2^31, 2^32), by its exponent.
I4 in_top_binade(F4 y, const ToU32Data<float>& data) { return and_bits(y, data.exponent) == data.top_binade; }
I4 in_top_binade(D4 y, const ToU32Data<double>& data) {
    return low_halves(and_bits(y.low, data.exponent) == data.top_binade,
                      and_bits(y.high, data.exponent) == data.top_binade);
}
// The integer of such a y: its significand, led by the implied bit.
I4 top_binade_integer(F4 y, const ToU32Data<float>& data) { return (bits(y) << 8) | data.top_bit; }
I4 top_binade_integer(D4 y, const ToU32Data<double>& data) {
    return high_halves(bits(y.low) << 11, bits(y.high) << 11) | data.top_bit;
}

// y < bound: a NaN is above every bound unless, in a double, its sign is set.
I4 is_below(F4 y, const Slot<float>& bound) { return y < bound; }
I4 is_below(D4 y, const Slot<int32_t>& bound) { return high_words(y) < bound; }

// ---- The conversion stage, 32-bit targets. -----------------------------------------------------------------

struct ToI32_nosat {
    template <class Units, class Data>
    static I4 convert(Units y, const Data&) {
        return hardware_int(y);
    }
};

// The hardware has given every lane out of range the lowest int; the highest is its complement.
struct ToI32_sat {
    template <class Units, class Data>
    static I4 convert(Units y, const Data& data) {
        return ~is_nan(y) & (hardware_int(y) ^ ~is_below(y, data.bound));
    }
};

// The sign is dropped, after the rounding has seen it.
struct ToU32_nosat {
    template <class Units, class Data>
    static U4 convert(Units y, const Data& data) {
        Units m = clear_bits(y, data.sign);
        return unsigned_lanes(select(in_top_binade(m, data), top_binade_integer(m, data), hardware_int(m)));
    }
};

// No test for NaN: it is not below the bound, and its sign decides.
struct ToU32_sat {
    template <class Units, class Data>
    static U4 convert(Units y, const Data& data) {
        I4 integer = select(in_top_binade(y, data), top_binade_integer(y, data), hardware_int(y));
        I4 clamped_above = integer | ~is_below(y, data.bound);
        I4 negative = high_words(y) < 0;
        return unsigned_lanes(~negative & clamped_above);
    }
};

// ---- The conversion stage, 64-bit targets. -----------------------------------------------------------------
//
// There is no hardware conversion, and a shift by each lane's exponent would take the lanes of a unit one by one.
// Instead an integral y is cut in two by magic powers of two, as the conversions from integers put theirs together:
// a multiple of 2^32, and a rest of 2^31 at most, each of which then stands in the low bits of its sum with a magic
// number, in two's complement and so for either sign.

// The lanes as doubles: two units beside a unit of floats. Exact.
D4 doubles(F4 y) { return widen(y); }
D2 doubles(D2 y) { return y; }

// The integer of an integral y, modulo 2^64, for |y| <= 2^64. What the low magic number's own bits add to the sum,
// the high one has taken off.
L2 integer(D2 y, const IntegerMagic& data) {
    D2 high = y + data.high;
    D2 rest = y - (high - data.high);
    return (bits(high) << 32) + bits(rest + data.low);
}
L4 integer(D4 y, const IntegerMagic& data) { return {integer(y.low, data), integer(y.high, data)}; }

// The same, but no more than the target's largest: what is too large leaves the larger rest.
L2 saturated(D2 y, const IntegerMagic& data, const IntegerTop& top) {
    D2 high = hardware_min(y + data.high, top.high);
    D2 rest = hardware_min(y - (high - data.high), top.rest);
    return (bits(high) << 32) + bits(rest + data.low);
}
L4 saturated(D4 y, const IntegerMagic& data, const IntegerTop& top) {
    return {saturated(y.low, data, top), saturated(y.high, data, top)};
}

UL2 unsigned_units(L2 x) { return unsigned_lanes(x); }
UL4 unsigned_units(L4 x) { return {unsigned_lanes(x.low), unsigned_lanes(x.high)}; }

// 2^63 as an integer, of either sign, is the pattern for what is out of range, and the maximum's second operand is
// what a NaN becomes.
struct ToI64_nosat {
    template <class F, class Data>
    static auto convert(F y, const Data& data) {
        return integer(doubles(hardware_min(hardware_max(y, data.lowest), data.bound)), data.magic);
    }
};

// What is too small is still the lowest long, but a NaN is zero.
struct ToI64_sat {
    template <class F, class Data>
    static auto convert(F y, const Data& data) {
        F number = and_bits(y, y == y);
        return saturated(doubles(hardware_max(number, data.lowest)), data.magic, data.top);
    }
};

// The sign is dropped; out of range and NaN give the pattern of the signed target, 2^63.
struct ToU64_nosat {
    template <class F, class Data>
    static auto convert(F y, const Data& data) {
        F m = clear_bits(y, data.sign);
        F in_range = select(m < data.bound, m, F(data.indefinite));
        return unsigned_units(integer(doubles(in_range), data.magic));
    }
};

// The maximum's second operand is what a NaN becomes, and a negative y: zero.
struct ToU64_sat {
    template <class F, class Data>
    static auto convert(F y, const Data& data) {
        return unsigned_units(saturated(doubles(hardware_max(y, F{})), data.magic, data.top));
    }
};

// ---- The families. -----------------------------------------------------------------------------------------

template <class Units, const auto& record, class Conversion, class Rounding>
struct ToInteger {
    static auto main(Units x) {
        const auto& data = in_memory(record);
        return Conversion::convert(rounded<Rounding>(x, data), data.conversion);
    }
};

// The pair behind every cast of a float to an int has a way of its own, with nothing to load: the packed conversion
// rounds to nearest, and a result that has gone away from zero steps back by one. That is nearest > x where x is
// positive; where x is negative, one is added, and taken off again unless x < nearest. For both to be one compare, a
// negative nearest is moved to the float above it, of which x < nearest + 1 ulp says x <= nearest. The float "above"
// zero is then a NaN, whose compare says the same as that of any small number: yes. A NaN x is taken as negative and
// keeps, as all that is out of range does, what the conversion has given it.
template <>
struct ToInteger<F4, cvtfptoi32f_data, ToI32_nosat, TowardZero> {
    static I4 main(F4 x) {
        I4 nearest = hardware_int(x);
        I4 negative = ~(F4{} <= x);
        F4 bound = as_float(bits(__builtin_convertvector(nearest, F4)) + negative);
        return nearest + ~(bound <= x) - negative;
    }
};

// What the words of a grid row stand for.
#define NAME_float_(base) base##f
#define NAME_double_(base) base
#define ROUNDING_rtn ToNearest
#define ROUNDING_rtz TowardZero
#define ROUNDING_up Up
#define ROUNDING_down Down
#define STAGE_float_i32(saturation) F4, cvtfptoi32f_data, ToI32##saturation
#define STAGE_float_u32(saturation) F4, cvtfptou32f_data, ToU32##saturation
#define STAGE_float_i64(saturation) F4, cvtfptoi64f_data, ToI64##saturation
#define STAGE_float_u64(saturation) F4, cvtfptou64f_data, ToU64##saturation
#define STAGE_double_i32(saturation) D4, cvtfptoi32_data, ToI32##saturation
#define STAGE_double_u32(saturation) D4, cvtfptou32_data, ToU32##saturation
#define STAGE_double_i64(saturation) D2, cvtfptoi64_data, ToI64##saturation
#define STAGE_double_u64(saturation) D2, cvtfptou64_data, ToU64##saturation

#define TO_INTEGER(base, precision, target, rounding, saturation) \
    using NAME_##precision(base) = ToInteger<STAGE_##precision##target(_##saturation), ROUNDING_##rounding>;
#include "include/grid.def"

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
