// Constants of the float sine and cosine families.
#pragma once

#include "frame/record.h"

namespace zorv {

// The short path: pi in parts, the highest first, of which N times all but the last are short; the sine's
// coefficients behind the leading 1, the lowest first.
template <int parts, int coefficients>
struct ShortSinefData {
    Slot<int32_t> magnitude, sign;
    Slot<float> limit;  // the largest argument of the short path
    Slot<float> inverse_pi, shifter, half, half_pi, half_of_two_parts;
    Slot<float> pi[parts], c[coefficients];
};
using AccurateSinefData = ShortSinefData<4, 4>;
using NativeSinefData = ShortSinefData<3, 2>;

HIDDEN extern const AccurateSinefData sinf_data;
HIDDEN extern const AccurateSinefData cosf_data;
HIDDEN extern const AccurateSinefData sincosf_data;
HIDDEN extern const AccurateSinefData sincosregf_data;
HIDDEN extern const NativeSinefData sinf_native_data;
HIDDEN extern const NativeSinefData cosf_native_data;
HIDDEN extern const NativeSinefData sincosf_native_data;
HIDDEN extern const NativeSinefData sincosregf_native_data;

// The long path, the same in all of them.
struct TurnSinefData {
    Slot<int32_t> sign;
    Slot<float> s1, s2;  // sin y - y
    Slot<float> c1, c2;  // cos y - 1
};
HIDDEN extern const TurnSinefData turn_sinef_data;

// Sine and cosine of 2 pi j / 256, in rows of cos_tail, sin_head, sin_tail, cos_head. The rows run on for a quarter
// turn, so that those from row 64 on are the table of the cosine.
inline constexpr int turn_row = 4;
inline constexpr int quarter_turn = 64 * turn_row;
HIDDEN extern const float turn_table_f[320 * turn_row];

}  // namespace zorv
