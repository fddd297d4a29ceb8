// The tangent around the steps B of half a turn: rows of f(r) = tan(B + r) - weight / (D - r), D = pi/2 - B the
// distance to the pole, by its value and the coefficients of r, r^2 ... The pole is taken out in the half of the steps
// that are nearest to it.
//
//   pole_head, pole_tail     D
//   pole_weight              1 or 0
//   value_head, value_tail   f(0)
//   slope_head, slope_tail   f'(0); the head is the power of two nearest to it, on a linear scale
//   c2, c3, ...              the next coefficients of f
//
// Some rows are given: their higher coefficients are fitted, here and there the tails with them. All others are
// Taylor's.
#pragma once

#include <vector>

#include "tools/tables/table.h"

namespace tables {

// f's coefficients from that of r^0 to that of r^highest. Of steps of pi / steps, j is the number.
inline std::vector<Real> tangent_coefficients(int j, int steps, int highest) {
    if (2 * j == steps)  // 1/r - cot r
        return {0.0, Real(1.0) / 3.0, 0.0, Real(1.0) / 45.0, 0.0, Real(2.0) / 945.0, 0.0, Real(1.0) / 4725.0};
    Real angle = pi() * (static_cast<double>(j) / steps);
    // The tangent of the eighths of a turn is exact, where pi of any precision would leave a residue.
    Real tangent = 4 * j == steps ? 1.0 : 4 * j == 3 * steps ? -1.0 : j == 0 ? 0.0 : sin(angle) / cos(angle);
    std::vector<Real> t = {tangent};  // t' = 1 + t^2
    for (int n = 0; n < highest; ++n) {
        Real square = n == 0 ? 1.0 : 0.0;
        for (int i = 0; i <= n; ++i) square = square + t[static_cast<size_t>(i)] * t[static_cast<size_t>(n - i)];
        t.push_back(square / (n + 1.0));
    }
    if (4 * j >= steps && 4 * j < 3 * steps) {
        Real distance = pi() / 2.0 - angle, power = 1.0;
        for (Real& coefficient : t) {
            power = power / distance;
            coefficient = coefficient - power;
        }
    }
    return t;
}

template <class Float>
Float as(const Real& x) {
    if constexpr (sizeof(Float) == 4)
        return x.as_float();
    else
        return x.as_double();
}

template <class Float>
std::vector<Float> tangent_row(int j, int steps, int highest) {
    auto head = [](const Real& x) { return as<Float>(x); };
    auto tail = [](const Real& x) { return as<Float>(x - Real(as<Float>(x))); };
    Real distance = 2 * j == steps ? Real(0.0) : pi() / 2.0 - pi() * (static_cast<double>(j) / steps);
    std::vector<Real> c = tangent_coefficients(j, steps, highest);
    double slope_head = 0.25;
    while (c[1].as_double() >= 1.5 * slope_head) slope_head *= 2;
    Float weight = 4 * j >= steps && 4 * j < 3 * steps ? 1 : 0;

    std::vector<Float> row = {head(distance),
                              tail(distance),
                              weight,
                              head(c[0]),
                              tail(c[0]),
                              static_cast<Float>(slope_head),
                              head(c[1] - Real(slope_head))};
    for (int n = 2; n <= highest; ++n) row.push_back(head(c[static_cast<size_t>(n)]));
    return row;
}

template <class Float>
void print_tangent_row(const std::vector<Float>& row, int j) {
    std::printf("    {");
    for (size_t i = 0; i < row.size(); ++i) std::printf("%s%a", i == 0 ? "" : ", ", static_cast<double>(row[i]));
    std::printf("},  // %d\n", j);
}

}  // namespace tables
