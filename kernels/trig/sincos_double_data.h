// Constants of the double sine and cosine families.
#pragma once

#include "frame/record.h"

namespace zorv {

// The short path: pi in parts, the highest first, of which N times all but the last are short; the sine's
// coefficients behind the leading 1, the lowest first.
template <int parts, int coefficients>
struct ShortSinedData {
    Slot<int64_t> magnitude, sign;
    Slot<double> inverse_pi, shifter, half, half_pi;
    Slot<double> pi[parts], c[coefficients];
};
using NativeSinedData = ShortSinedData<3, 4>;
struct AccurateSinedData : ShortSinedData<4, 7> {
    Slot<double> limit;  // the largest argument of the short path
    Slot<double> half_of_two_parts;
};

HIDDEN extern const AccurateSinedData sin_data;
HIDDEN extern const AccurateSinedData cos_data;
HIDDEN extern const AccurateSinedData sincos_data;
HIDDEN extern const AccurateSinedData sincosreg_data;
HIDDEN extern const NativeSinedData sin_native_data;
HIDDEN extern const NativeSinedData cos_native_data;
HIDDEN extern const NativeSinedData sincos_native_data;
HIDDEN extern const NativeSinedData sincosreg_native_data;

// The long path of the accurate class.
struct TurnSinedData {
    Slot<int64_t> sign;
    Slot<double> s1, s2;      // sin y - y
    Slot<double> c2, c4, c6;  // cos y - 1
};
HIDDEN extern const TurnSinedData turn_sined_data;

// Sine and cosine of 2 pi j / 512, in rows of cos_tail, cos_head, sin_head, sin_tail. The rows run on for a quarter
// turn, so that those from row 128 on are the table of the cosine.
inline constexpr int turn_row_d = 4;
inline constexpr int quarter_turn_d = 128 * turn_row_d;
HIDDEN extern const double turn_table_d[640 * turn_row_d];

}  // namespace zorv
