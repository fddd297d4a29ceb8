// The tables of the cube roots: 32 centres c(i) of [1, 2), their octaves 2^j, and roots that are cut into a head,
// truncated, and the rest.
#pragma once

#include "tools/tables/table.h"

namespace tables {

inline Real centre(int i) { return 1.0 + (2 * i + 1) / 64.0; }
// The root of row 32 j + i, or its reciprocal.
inline Real cube_root_of_row(int row) {
    Real result = centre(row % 32) * Real(1 << row / 32);
    mpfr_cbrt(result.get(), result.get(), MPFR_RNDN);
    return result;
}
inline Real reciprocal_cube_root_of_row(int row) { return 1.0 / cube_root_of_row(row); }

inline Real truncated(const Real& x, int significant_bits) {
    Real result = x;
    mpfr_prec_round(result.get(), significant_bits, MPFR_RNDZ);
    mpfr_prec_round(result.get(), 400, MPFR_RNDN);
    return result;
}

inline void print_heads(Real (*root)(int), int significant_bits) {
    for (int i = 0; i < 96; ++i) row(truncated(root(i), significant_bits).as_double(), i);
}
inline void print_row(double head, double tail, int index) { std::printf("    {%a, %a},  // %d\n", head, tail, index); }
// Of floats, behind 32 rows that exponent field 0 reads.
inline void print_float_pairs(Real (*root)(int)) {
    for (int i = -32; i < 0; ++i) print_row(0, 0, i);
    for (int i = 0; i < 96; ++i) {
        Real head = truncated(root(i), 24);
        print_row(head.as_double(), static_cast<double>((root(i) - head).as_float()), i);
    }
}
inline void print_double_pairs(Real (*root)(int)) {
    for (int i = 0; i < 96; ++i) {
        Real head = truncated(root(i), 53);
        print_row(head.as_double(), (root(i) - head).as_double(), i);
    }
}

}  // namespace tables
