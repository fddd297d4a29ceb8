// Units: the 128-bit images that all arithmetic is done on, and the idioms of the vector unit that have no
// operator of their own. Every idiom stands here once, with a name.
#pragma once

#include <emmintrin.h>

#include <cstdint>

namespace zorv {

// A vector of `width` lanes. Width 1 is the scalar itself; width 3 has the room and layout of width 4.
template <class Lane, int width>
struct VectorOf {
    typedef Lane type __attribute__((ext_vector_type(width)));
};
template <class Lane>
struct VectorOf<Lane, 1> {
    using type = Lane;
};
template <class Lane>
struct VectorOf<Lane, 3> : VectorOf<Lane, 4> {};
template <class Lane, int width>
using Vector = typename VectorOf<Lane, width>::type;

using F4 = Vector<float, 4>;
using I4 = Vector<int32_t, 4>;
using U4 = Vector<uint32_t, 4>;
using D2 = Vector<double, 2>;
using L2 = Vector<int64_t, 2>;
using UL2 = Vector<uint64_t, 2>;

// Two units side by side: four 64-bit lanes beside one unit of four 32-bit lanes.
template <class Unit>
struct TwoUnits {
    Unit low, high;
};
using D4 = TwoUnits<D2>;
using L4 = TwoUnits<L2>;
using UL4 = TwoUnits<UL2>;

// Two 32-bit integers beside the lanes of a D2: lane i stands in the low half of 64-bit lane i. As an operand
// the high half holds a copy; as a result the high half does not count.
struct N2 {
    I4 halves;
};

// ---- One bit pattern under another type. -------------------------------------------------------------------

inline I4 bits(F4 x) { return reinterpret_cast<I4>(x); }
inline L2 bits(D2 x) { return reinterpret_cast<L2>(x); }
inline F4 as_float(I4 x) { return reinterpret_cast<F4>(x); }
inline F4 as_float(U4 x) { return reinterpret_cast<F4>(x); }
inline D2 as_double(L2 x) { return reinterpret_cast<D2>(x); }
inline D2 as_double(UL2 x) { return reinterpret_cast<D2>(x); }
inline U4 unsigned_lanes(I4 x) { return reinterpret_cast<U4>(x); }
inline UL2 unsigned_lanes(L2 x) { return reinterpret_cast<UL2>(x); }
inline I4 signed_lanes(U4 x) { return reinterpret_cast<I4>(x); }
inline L2 signed_lanes(UL2 x) { return reinterpret_cast<L2>(x); }
template <class To, class From>
inline To unit_cast(From x) {  // any unit as any other
    return reinterpret_cast<To>(x);
}

// ---- Logic on floating lanes. ------------------------------------------------------------------------------

inline F4 and_bits(F4 x, I4 mask) { return as_float(bits(x) & mask); }
inline D2 and_bits(D2 x, L2 mask) { return as_double(bits(x) & mask); }
inline F4 clear_bits(F4 x, I4 mask) { return as_float(bits(x) & ~mask); }
inline D2 clear_bits(D2 x, L2 mask) { return as_double(bits(x) & ~mask); }
inline F4 or_bits(F4 x, I4 mask) { return as_float(bits(x) | mask); }
inline D2 or_bits(D2 x, L2 mask) { return as_double(bits(x) | mask); }
inline F4 xor_bits(F4 x, I4 mask) { return as_float(bits(x) ^ mask); }
inline D2 xor_bits(D2 x, L2 mask) { return as_double(bits(x) ^ mask); }

// Lanes of `yes` where the mask is all ones, of `no` where it is zero.
inline I4 select(I4 mask, I4 yes, I4 no) { return (mask & yes) | (~mask & no); }
inline L2 select(L2 mask, L2 yes, L2 no) { return (mask & yes) | (~mask & no); }
inline F4 select(I4 mask, F4 yes, F4 no) { return as_float(select(mask, bits(yes), bits(no))); }
inline D2 select(L2 mask, D2 yes, D2 no) { return as_double(select(mask, bits(yes), bits(no))); }

// ---- What the unit can and C++ cannot say. -----------------------------------------------------------------

// The hardware minimum and maximum: the second operand on equal operands and on a NaN.
inline F4 hardware_min(F4 x, F4 y) { return _mm_min_ps(x, y); }
inline D2 hardware_min(D2 x, D2 y) { return _mm_min_pd(x, y); }
inline F4 hardware_max(F4 x, F4 y) { return _mm_max_ps(x, y); }
inline D2 hardware_max(D2 x, D2 y) { return _mm_max_pd(x, y); }

// The hardware estimates, relative error at most 1.5 * 2^-12.
inline F4 reciprocal_estimate(F4 x) { return _mm_rcp_ps(x); }
inline F4 rsqrt_estimate(F4 x) { return _mm_rsqrt_ps(x); }

// An instruction that leaves its result in its first operand. Among instructions of AVX one of the older encoding
// would wait for the upper halves of the registers.
#ifdef __AVX__
#define IN_ORDER(name) "v" name " %1, %0, %0"
#else
#define IN_ORDER(name) name " %1, %0"
#endif

// x * y and x + y with x as the instruction's first operand, which decides the payload where both are NaN. The
// compiler takes the plain operators as commutative.
inline F4 multiply_in_order(F4 x, F4 y) {
    asm(IN_ORDER("mulps") : "+x"(x) : "x"(y));
    return x;
}
inline D2 multiply_in_order(D2 x, D2 y) {
    asm(IN_ORDER("mulpd") : "+x"(x) : "x"(y));
    return x;
}
inline F4 add_in_order(F4 x, F4 y) {
    asm(IN_ORDER("addps") : "+x"(x) : "x"(y));
    return x;
}
inline D2 add_in_order(D2 x, D2 y) {
    asm(IN_ORDER("addpd") : "+x"(x) : "x"(y));
    return x;
}

// The second operand in place of assembly: y, or where x is NaN, x. Whichever stands first in the instruction then,
// what goes through is x.
inline F4 nan_first(F4 x, F4 y) { return select(x == x, y, x); }
inline D2 nan_first(D2 x, D2 y) { return select(x == x, y, x); }

// The same for scalars, at run time.
inline float multiply_in_order(float x, float y) {
    asm volatile(IN_ORDER("mulss") : "+x"(x) : "x"(y));
    return x;
}
inline double multiply_in_order(double x, double y) {
    asm volatile(IN_ORDER("mulsd") : "+x"(x) : "x"(y));
    return x;
}
inline float add_in_order(float x, float y) {
    asm volatile(IN_ORDER("addss") : "+x"(x) : "x"(y));
    return x;
}
inline double add_in_order(double x, double y) {
    asm volatile(IN_ORDER("addsd") : "+x"(x) : "x"(y));
    return x;
}

inline D2 hardware_sqrt(D2 x) { return _mm_sqrt_pd(x); }

// Each signed 16-bit word between two bounds: the integer minimum and maximum that the unit has. For lanes whose value
// stands in one word, the others being zero.
inline I4 clamp_words(I4 x, I4 low, I4 high) {
    __m128i raised = _mm_max_epi16(unit_cast<__m128i>(x), unit_cast<__m128i>(low));
    return unit_cast<I4>(_mm_min_epi16(raised, unit_cast<__m128i>(high)));
}
inline L2 clamp_words(L2 x, L2 low, L2 high) {
    return unit_cast<L2>(clamp_words(unit_cast<I4>(x), unit_cast<I4>(low), unit_cast<I4>(high)));
}

// ---- 64-bit lanes seen as pairs of 32-bit halves. ----------------------------------------------------------

inline I4 halves(L2 x) { return reinterpret_cast<I4>(x); }
inline I4 halves(D2 x) { return reinterpret_cast<I4>(x); }
inline L2 from_halves(I4 x) { return reinterpret_cast<L2>(x); }

// The low or the high 32-bit halves of four 64-bit lanes, in one unit of four lanes.
inline I4 low_halves(L2 first, L2 second) { return __builtin_shufflevector(halves(first), halves(second), 0, 2, 4, 6); }
inline I4 high_halves(L2 first, L2 second) {
    return __builtin_shufflevector(halves(first), halves(second), 1, 3, 5, 7);
}
// Each 32-bit lane twice: a mask of 32-bit lanes widened to 64-bit lanes, lanes 0 and 1 or lanes 2 and 3.
inline L2 double_low(I4 x) { return from_halves(__builtin_shufflevector(x, x, 0, 0, 1, 1)); }
inline L2 double_high(I4 x) { return from_halves(__builtin_shufflevector(x, x, 2, 2, 3, 3)); }
// Each high half copied over its low half: a compare of high halves as a mask of whole lanes.
inline L2 spread_high(I4 x) { return from_halves(__builtin_shufflevector(x, x, 1, 1, 3, 3)); }

// Compares of the high halves alone, signed, as masks of whole lanes. The low halves of the operands do not count.
inline L2 high_above(L2 x, I4 bound) { return spread_high(halves(x) > bound); }
inline L2 high_below(L2 x, I4 bound) { return spread_high(halves(x) < bound); }

// A non-negative integer below 2^52 in each 64-bit lane, as a double: as the low mantissa bits of 2^52, which is then
// taken off. `two_to_52` is that number's pattern.
inline D2 small_integer_to_double(L2 x, D2 two_to_52) { return as_double(x | bits(two_to_52)) - two_to_52; }

// The 32-bit integers beside a D2, as doubles, exactly; and each one's parity as the sign bit of its lane.
inline D2 to_double(N2 n) {
    return _mm_cvtepi32_pd(reinterpret_cast<__m128i>(__builtin_shufflevector(n.halves, n.halves, 0, 2, 0, 2)));
}
inline L2 odd_sign(N2 n) { return from_halves(n.halves) << 63; }

// ---- Between floats and integers of 32 bits, by the rounding in force. --------------------------------------

inline F4 to_float(I4 x) { return __builtin_convertvector(x, F4); }
inline I4 hardware_int(F4 x) { return reinterpret_cast<I4>(_mm_cvtps_epi32(x)); }

// The products of the low halves, 64 bits each.
inline UL2 multiply_low_halves(UL2 x, UL2 y) {
    return unit_cast<UL2>(_mm_mul_epu32(unit_cast<__m128i>(x), unit_cast<__m128i>(y)));
}

// ---- Between four float lanes and two double units. --------------------------------------------------------

inline D4 widen(F4 x) { return {_mm_cvtps_pd(x), _mm_cvtps_pd(_mm_movehl_ps(x, x))}; }
inline F4 narrow(D4 x) { return _mm_movelh_ps(_mm_cvtpd_ps(x.low), _mm_cvtpd_ps(x.high)); }

// The hardware's float estimates for double lanes: rounded to float, estimated, widened. Beyond the floats' range they
// give what that range gives.
inline D2 reciprocal_estimate(D2 x) { return _mm_cvtps_pd(_mm_rcp_ps(_mm_cvtpd_ps(x))); }
inline D2 rsqrt_estimate(D2 x) { return _mm_cvtps_pd(_mm_rsqrt_ps(_mm_cvtpd_ps(x))); }

// ---- Values that the compiler must not see through. --------------------------------------------------------

// The same value, of which the compiler knows nothing: arithmetic on it happens at run time, raises its flags
// and gives the hardware's own NaN.
template <class Scalar>
inline Scalar opaque(Scalar value) {
    asm volatile("" : "+x"(value));
    return value;
}

// A unit with a fence behind it, past which nothing is computed while compiling, or computed otherwise. It is no
// instruction, and does not keep a loop from being unrolled as assembly does.
template <class Unit>
inline Unit fenced(Unit unit) {
#pragma clang fp reassociate(on)  // where nothing may be computed otherwise, there is no fence either
    return unit_cast<Unit>(__arithmetic_fence(unit_cast<F4>(unit)));
}

// ---- Polynomials: Horner, highest coefficient first, a rounded multiplication, then a rounded addition. -----

template <class Value>
inline Value horner(Value, Value last) {
    return last;
}
template <class Value, class First, class Second, class... Rest>
inline Value horner(Value x, const First& first, const Second& second, const Rest&... rest) {
    return horner(x, Value(first) * x + Value(second), rest...);
}

}  // namespace zorv
