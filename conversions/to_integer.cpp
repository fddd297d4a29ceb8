// float and double to int, uint, long and ulong: a rounding stage, which keeps the lanes floating, then a conversion
// stage, whose operand y is integral, infinite or NaN. Neither knows of the other; every pair of them is a family,
// and the grid's rows at the end of this file make the pairs. Exact for every operand in the target's range.
#include "data/conversions.h"
#include "exact/integral.h"
#include "frame/lane_frame.h"

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

// ---- 64-bit lanes beside their sources: two units beside a unit of floats, one beside a unit of doubles. ---

// Masks and unsigned values of source lanes, in 64-bit lanes.
L4 widen_mask(I4 mask) { return {double_low(mask), double_high(mask)}; }
L2 widen_mask(L2 mask) { return mask; }
L4 widen(I4 x) {
    constexpr I4 zero = {};
    return {from_halves(__builtin_shufflevector(x, zero, 0, 4, 1, 5)),
            from_halves(__builtin_shufflevector(x, zero, 2, 6, 3, 7))};
}
L2 widen(L2 x) { return x; }
L4 widen_signed(I4 x) {
    I4 sign = x >> 31;
    return {from_halves(__builtin_shufflevector(x, sign, 0, 4, 1, 5)),
            from_halves(__builtin_shufflevector(x, sign, 2, 6, 3, 7))};
}
L2 widen_signed(L2 x) { return x; }

template <class Step, class... Rest>
L2 each_unit(Step step, L2 first, Rest... rest) {
    return step(first, rest...);
}
template <class Step, class... Rest>
L4 each_unit(Step step, L4 first, Rest... rest) {
    return {step(first.low, rest.low...), step(first.high, rest.high...)};
}

// Each lane shifted left by its own count, of 64 bits; counts above 63 give 0. The unit shifts both lanes by one
// count, so there is a shift for each lane.
L2 shift_each_left(L2 x, L2 count) {
    L2 second_count = __builtin_shufflevector(count, count, 1, 1);
    L2 first = unit_cast<L2>(_mm_sll_epi64(unit_cast<__m128i>(x), unit_cast<__m128i>(count)));
    L2 second = unit_cast<L2>(_mm_sll_epi64(unit_cast<__m128i>(x), unit_cast<__m128i>(second_count)));
    return __builtin_shufflevector(first, second, 0, 3);
}

// All ones where the sign is set.
I4 sign_mask(F4 y) { return bits(y) >> 31; }
L2 sign_mask(D2 y) { return spread_high(halves(y) >> 31); }

I4 biased_exponent(F4 y) { return signed_lanes(unsigned_lanes(bits(y)) >> 23); }
L2 biased_exponent(D2 y) { return signed_lanes(unsigned_lanes(bits(y)) >> 52); }

// An integral m >= 0 as significand * 2^count. Below the shifter, m stands in the low bits of a sum with it, whose
// implied bit is not m's, and whose count is 0; from there on the fields of m itself are the answer. Small lanes
// come first to that sum, the others are added to zero.
template <class Bits>
struct Fields {
    Bits significand, count;
};
template <class F, class Data>
auto fields(F m, const Data& data) {
    auto is_small = m < data.shifter;
    F z = m + and_bits(data.shifter, is_small);
    auto significand = (bits(z) & data.significand) | (~is_small & data.implied);
    return Fields<decltype(bits(m))>{significand, biased_exponent(z) - data.count_bias};
}

auto unsigned_integer(auto fields) {
    return each_unit(shift_each_left, widen(fields.significand), widen(fields.count));
}
// Negated before it is shifted: one operation for all lanes, and the shift carries the sign along.
auto signed_integer(auto fields, auto negative) {
    return each_unit(shift_each_left, widen_signed((fields.significand ^ negative) - negative), widen(fields.count));
}

// ---- The conversion stage, 64-bit targets. -----------------------------------------------------------------

// 2^63 as an integer is the pattern for what is out of range, of either sign, and the minimum's second operand is
// what a NaN becomes.
struct ToI64_nosat {
    template <class F, class Data>
    static auto convert(F y, const Data& data) {
        F m = hardware_min(clear_bits(y, data.sign), data.bound);
        return signed_integer(fields(m, data), sign_mask(y));
    }
};

// As before, but the maximum has made zero of a NaN, and what is too large is the pattern less one: the highest long.
struct ToI64_sat {
    template <class F, class Data>
    static auto convert(F y, const Data& data) {
        F m = hardware_min(hardware_max(clear_bits(y, data.sign), F{}), data.bound);
        return each_unit([](L2 integer, L2 minus_one) { return integer + minus_one; },
                         signed_integer(fields(m, data), sign_mask(y)), widen_mask(data.bound <= y));
    }
};

UL2 unsigned_units(L2 x) { return unsigned_lanes(x); }
UL4 unsigned_units(L4 x) { return {unsigned_lanes(x.low), unsigned_lanes(x.high)}; }

// The sign is dropped; out of range and NaN give the pattern of the signed target, 2^63.
struct ToU64_nosat {
    template <class F, class Data>
    static auto convert(F y, const Data& data) {
        F m = clear_bits(y, data.sign);
        return unsigned_units(unsigned_integer(fields(select(m < data.bound, m, F(data.indefinite)), data)));
    }
};

// The maximum's second operand is what a NaN becomes, and a negative y: zero.
struct ToU64_sat {
    template <class F, class Data>
    static auto convert(F y, const Data& data) {
        F m = hardware_max(y, F{});
        return unsigned_units(each_unit([](L2 integer, L2 too_large) { return integer | too_large; },
                                        unsigned_integer(fields(m, data)), widen_mask(data.bound <= m)));
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

#define HOME_to_integer , here
#include "frame/exports.h"
