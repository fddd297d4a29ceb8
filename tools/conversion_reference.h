// What every conversion must give, by integer arithmetic on bit patterns alone: shifts, and the bits shifted out.
#pragma once

#include <bit>
#include <cstdint>
#include <optional>
#include <string>

namespace conversions {

enum class Rounding { nearest, zero, up, down };

// The axes of a family, read from its name.
struct Axes {
    bool to_integer, is_single, is_signed, saturates;
    int integer_bits;
    Rounding rounding;
};

// None of a family that is no conversion.
inline std::optional<Axes> axes_of(const std::string& base, bool is_single) {
    bool to_integer = base.starts_with("cvtfpto");
    size_t from = base.find("tofp");
    if (!to_integer && (!base.starts_with("cvt") || from == std::string::npos)) return {};
    std::string integer = base.substr(to_integer ? 7 : 3, 3), tail = base.substr(to_integer ? 10 : from + 4);
    Axes axes = {to_integer,
                 is_single,
                 integer[0] == 'i',
                 tail.ends_with("sat") && !tail.ends_with("nosat"),
                 std::stoi(integer.substr(1)),
                 Rounding::nearest};
    if (tail.starts_with("rtz")) axes.rounding = Rounding::zero;
    if (tail.starts_with("up")) axes.rounding = Rounding::up;
    if (tail.starts_with("down")) axes.rounding = Rounding::down;
    return axes;
}

// What a shift to the right drops, against half a unit of what it keeps.
enum class Dropped { nothing, less_than_half, half, more_than_half };

struct Shifted {
    uint64_t kept;
    Dropped dropped;
};
inline Shifted shift_right(uint64_t x, int count) {
    if (count == 0) return {x, Dropped::nothing};
    if (count > 64) return {0, x == 0 ? Dropped::nothing : Dropped::less_than_half};
    uint64_t kept = count == 64 ? 0 : x >> count;
    uint64_t rest = x << (64 - count), half = uint64_t{1} << 63;
    if (rest == 0) return {kept, Dropped::nothing};
    return {kept, rest < half ? Dropped::less_than_half : rest == half ? Dropped::half : Dropped::more_than_half};
}

inline uint64_t round_magnitude(Shifted s, bool negative, Rounding rounding) {
    bool away = false;
    switch (rounding) {
        case Rounding::nearest:
            away = s.dropped == Dropped::more_than_half || (s.dropped == Dropped::half && (s.kept & 1) != 0);
            break;
        case Rounding::zero:
            break;
        case Rounding::up:
            away = s.dropped != Dropped::nothing && !negative;
            break;
        case Rounding::down:
            away = s.dropped != Dropped::nothing && negative;
            break;
    }
    return s.kept + away;
}

struct Format {
    int significand_bits, exponent_bits;  // the implied bit not counted
    int bias() const { return (1 << (exponent_bits - 1)) - 1; }
    uint64_t sign() const { return uint64_t{1} << (significand_bits + exponent_bits); }
};
inline Format format(bool is_single) { return is_single ? Format{23, 8} : Format{52, 11}; }

// A floating operand as a rounded integer, before anything is done about its range.
struct RoundedInteger {
    bool is_nan, sign, beyond_64_bits;
    uint64_t magnitude;
};

inline RoundedInteger round_to_integer(uint64_t x, bool is_single, Rounding rounding) {
    Format f = format(is_single);
    bool sign = (x & f.sign()) != 0;
    uint64_t implied = uint64_t{1} << f.significand_bits, significand = x & (implied - 1);
    int exponent = static_cast<int>((x & (f.sign() - 1)) >> f.significand_bits);
    if (exponent == (1 << f.exponent_bits) - 1) return {significand != 0, sign, true, 0};
    if (exponent == 0)
        exponent = 1;
    else
        significand |= implied;
    int shift = exponent - f.bias() - f.significand_bits;  // the value is significand * 2^shift
    if (shift <= 0) return {false, sign, false, round_magnitude(shift_right(significand, -shift), sign, rounding)};
    if (shift > std::countl_zero(significand)) return {false, sign, true, 0};
    return {false, sign, false, significand << shift};
}

inline uint64_t in_range_or_limit(RoundedInteger r, int bits, bool is_signed, bool saturates) {
    uint64_t all_ones = ~uint64_t{0} >> (64 - bits), lowest = uint64_t{1} << (bits - 1);
    uint64_t highest = is_signed ? lowest - 1 : all_ones;
    bool too_large = r.beyond_64_bits || r.magnitude > highest + (is_signed && r.sign ? 1 : 0);
    uint64_t negated = (0 - r.magnitude) & all_ones;
    if (!saturates) {
        if (r.is_nan || too_large) return lowest;
        return is_signed && r.sign ? negated : r.magnitude;  // an unsigned target drops the sign
    }
    if (r.is_nan) return bits == 32 && !is_signed && !r.sign ? all_ones : 0;
    if (r.sign && !is_signed) return 0;
    if (too_large) return r.sign ? lowest : highest;
    return r.sign ? negated : r.magnitude;
}

inline uint64_t integer_to_floating(uint64_t x, int bits, bool is_signed, bool is_single, Rounding rounding) {
    Format f = format(is_single);
    bool negative = is_signed && (x >> (bits - 1)) != 0;
    uint64_t magnitude = (negative ? 0 - x : x) & (~uint64_t{0} >> (64 - bits));
    if (magnitude == 0) return 0;
    int top = 63 - std::countl_zero(magnitude);
    int shift = top - f.significand_bits;
    uint64_t significand =
        shift > 0 ? round_magnitude(shift_right(magnitude, shift), negative, rounding) : magnitude << -shift;
    // The implied bit counts one in the exponent field; a carry out of the significand counts another.
    uint64_t pattern = (static_cast<uint64_t>(top + f.bias() - 1) << f.significand_bits) + significand;
    return pattern | (negative ? f.sign() : 0);
}

inline uint64_t expected(const Axes& axes, uint64_t x) {
    if (!axes.to_integer)
        return integer_to_floating(x, axes.integer_bits, axes.is_signed, axes.is_single, axes.rounding);
    return in_range_or_limit(round_to_integer(x, axes.is_single, axes.rounding), axes.integer_bits, axes.is_signed,
                             axes.saturates);
}

}  // namespace conversions
