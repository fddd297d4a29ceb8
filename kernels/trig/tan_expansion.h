// The tangent around one of the equally spaced angles B of half a turn (128 of them for floats, 256 for doubles):
//
//   tan(B + R) = weight / (D - R) + value + slope R + c2 R^2 + ...,  |R| at most half a step, D = pi/2 - B.
//
// In the half of the entries that are nearest to the pole, the pole is a term of its own and what is left is tame, so
// that no entry holds an infinity and the lanes next to the pole keep their relative accuracy. Elsewhere the weight is
// zero and the term is computed in vain.
#pragma once

#include "frame/gather.h"
#include "kernels/trig/tan_data.h"

namespace zorv {

template <class Unit>
struct TangentExpansion {
    Unit value;
    Unit distance;  // to the pole: zero at the pole and nowhere else
};

inline LaneOffsets tangent_row_of(I4 j) {
    return offsets_through_memory((j & tangent_expansionf_data.index_mask) << 6);
}
inline LaneOffsets2 tangent_row_of(L2 j) { return offsets_of((j & tangent_expansiond_data.index_mask) << 7); }

// slope_tail R + c2 R^2 + c3 R^3 + c4 R^4
inline F4 tangent_rest(F4 r, F4 slope_tail, F4 c2, F4 c3, F4 c4) {
    return ((slope_tail + c2 * r) + (r * r) * (c3 + c4 * r)) * r;
}

// Single precision, accurate: the pole's term and the value in heads and tails. 1/D is the estimate, refined; both are
// cut short so that their product is exact.
inline TangentExpansion<F4> tangent_expansion(LaneOffsets row, F4 r) {
    const auto& data = in_memory(tangent_expansionf_data);
    auto [pole_head, pole_tail, weight, value_head] = gather_rows(&tan_table_f[0].pole_head, row).column;
    F4 distance = pole_head - r;
    F4 distance_tail = (pole_head - distance) - r;
    F4 head = and_bits(distance, data.head_mask);
    F4 estimate = and_bits(reciprocal_estimate(head), data.head_mask);
    distance_tail = distance_tail + ((distance - head) + pole_tail);
    F4 eps = data.one - head * estimate;
    F4 inverse = (estimate + estimate * eps) * (data.one + eps * eps);
    F4 pole = estimate * weight;
    F4 d = distance_tail * inverse;
    F4 pole_rest = ((d * d - (d - eps)) * inverse) * weight;

    auto [value_tail, slope_head, slope_tail, c2] = gather_rows(&tan_table_f[0].value_tail, row).column;
    F4 linear = slope_head * r;
    F4 t = value_head + linear;
    F4 t_tail = (value_head - t) + linear;
    F4 sum = t + pole;
    F4 sum_tail = (pole - sum) + t;
    F4 tail = (t_tail + pole_rest) + sum_tail;
    F4 c3 = gather(&tan_table_f[0].c3, row), c4 = gather(&tan_table_f[0].c4, row);
    return {sum + (tangent_rest(r, slope_tail, c2, c3, c4) + (value_tail + tail)), distance};
}

// Single precision, native: no tails, one Newton step.
inline TangentExpansion<F4> native_tangent_expansion(LaneOffsets row, F4 r) {
    const auto& data = in_memory(tangent_expansionf_data);
    auto [pole_head, pole_tail, weight, value_head] = gather_rows(&tan_table_f[0].pole_head, row).column;
    F4 distance = pole_head - r;
    F4 estimate = reciprocal_estimate(distance);
    F4 pole = estimate * weight;
    pole = pole + pole * (data.one - distance * estimate);

    auto [value_tail, slope_head, slope_tail, c2] = gather_rows(&tan_table_f[0].value_tail, row).column;
    F4 c3 = gather(&tan_table_f[0].c3, row), c4 = gather(&tan_table_f[0].c4, row);
    return {((value_head + slope_head * r) + tangent_rest(r, slope_tail, c2, c3, c4)) + pole, distance};
}

// Double precision, both classes: no tails; 1/D by a series in the estimate's error.
inline TangentExpansion<D2> tangent_expansion(LaneOffsets2 row, D2 r) {
    const auto& data = in_memory(tangent_expansiond_data);
    D2 distance = gather(&tan_table_d[0].pole_head, row) - r;
    D2 estimate = reciprocal_estimate(distance);
    D2 eps = data.one - distance * estimate;
    D2 inverse = estimate + ((estimate * eps) * (data.one + eps)) * (data.one + eps * eps);
    auto [weight, value_head] = gather_pair(&tan_table_d[0].pole_weight, row);
    D2 head = (value_head + gather(&tan_table_d[0].slope_head, row) * r) + inverse * weight;

    D2 w = r * r;
    auto [slope_tail, c2] = gather_pair(&tan_table_d[0].slope_tail, row);
    auto [c3, c4] = gather_pair(&tan_table_d[0].c3, row);
    auto [c5, c6] = gather_pair(&tan_table_d[0].c5, row);
    D2 p = (slope_tail + c2 * r) + w * (c3 + c4 * r);
    p = p + (w * w) * ((c5 + c6 * r) + gather(&tan_table_d[0].c7, row) * w);
    return {head + p * r, distance};
}

}  // namespace zorv
