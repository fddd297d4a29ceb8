// Tables of the powers 2^(i/steps), i from 0 to steps - 1.
#pragma once

#include "tools/tables/table.h"

namespace tables {

inline Real power(int i, int steps) { return exp2(Real(i) / Real(steps)); }

// Each times a factor and rounded once, to double.
inline void print_powers(int steps, const Real& factor) {
    for (int i = 0; i < steps; ++i) row((power(i, steps) * factor).as_double(), i);
}

// Each to double, and what it lacks, relative to it.
inline void print_powers_with_rest(int steps) {
    for (int i = 0; i < steps; ++i) {
        double rounded = power(i, steps).as_double();
        std::printf("    {%a, %a},  // %d\n", rounded, (power(i, steps) / Real(rounded) - Real(1.0)).as_double(), i);
    }
}

// The mantissa fields alone, rounded to so many of their leading bits, by the pattern; with the rest beside them.
template <class Float>
void print_power_fields(int steps, int bits, bool with_rest) {
    constexpr int field_bits = sizeof(Float) == 4 ? 23 : 52, digits = 2 * sizeof(Float);
    for (int i = 0; i < steps; ++i) {
        Real rounded = to_fraction_bits(power(i, steps), bits);
        Real field = (rounded - Real(1.0)) * exp2(Real(field_bits));
        std::printf(with_rest ? "    {0x%0*llx, " : "    0x%0*llx,", digits,
                    static_cast<unsigned long long>(field.as_double()));
        if (with_rest) {
            Real rest = power(i, steps) - rounded;
            std::printf("%a},", sizeof(Float) == 4 ? static_cast<double>(rest.as_float()) : rest.as_double());
        }
        std::printf("  // %d\n", i);
    }
}

}  // namespace tables
