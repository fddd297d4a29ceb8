// The x87 unit, for scalar routines that compute in its 80-bit format: `long double`, 64 significant bits.
#pragma once

#include <cstdint>

#include "frame/record.h"

namespace zorv {

// A constant in the 80-bit format, by its bit pattern: sign and exponent field, significand with its leading bit.
template <>
struct alignas(16) Scalar<long double> {
    uint64_t significand;
    uint16_t sign_and_exponent;

    constexpr Scalar(uint16_t high, uint64_t low) : significand(low), sign_and_exponent(high) {}
    operator long double() const {
        typedef long double Image __attribute__((may_alias));
        return *reinterpret_cast<const Image*>(this);
    }
};

// While one of these lives, the unit rounds to 64 significant bits, whatever the caller's control word says; then the
// word is what it was. The compiler knows nothing of the word and moves arithmetic past its changes: what is to be
// computed in between stands in a function that is not inlined.
class ExtendedPrecision {
  public:
    ExtendedPrecision() {
        asm volatile("fnstcw %0" : "=m"(callers_));
        if (changed()) load(static_cast<uint16_t>(callers_ | precision));
    }
    ~ExtendedPrecision() {
        if (changed()) load(callers_);
    }
    ExtendedPrecision(const ExtendedPrecision&) = delete;
    ExtendedPrecision& operator=(const ExtendedPrecision&) = delete;

  private:
    static constexpr uint16_t precision = 0x0300;  // the field; all ones is 64 bits

    bool changed() const { return (callers_ & precision) != precision; }
    static void load(uint16_t word) { asm volatile("fldcw %0" : : "m"(word) : "memory"); }

    uint16_t callers_;
};

}  // namespace zorv
