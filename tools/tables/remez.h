// Minimax fits: the polynomial whose largest relative error on an interval is least, by Remez' exchange.
#pragma once

#include <cstdlib>
#include <functional>
#include <utility>
#include <vector>

#include "tools/tables/table.h"

namespace tables {

// The function's value at x, positive.
using Function = std::function<Real(const Real&)>;

inline bool operator<(const Real& x, const Real& y) { return mpfr_less_p(x.get(), y.get()) != 0; }
inline Real magnitude(const Real& x) {
    Real result;
    mpfr_abs(result.get(), x.get(), MPFR_RNDN);
    return result;
}

// The solution of a linear system, whose rows hold the right side last; Gauss' elimination with pivots.
inline std::vector<Real> solve(std::vector<std::vector<Real>> rows) {
    size_t n = rows.size();
    for (size_t column = 0; column < n; ++column) {
        size_t pivot = column;
        for (size_t i = column + 1; i < n; ++i)
            if (magnitude(rows[pivot][column]) < magnitude(rows[i][column])) pivot = i;
        std::swap(rows[column], rows[pivot]);
        for (size_t i = 0; i < n; ++i) {
            if (i == column) continue;
            Real factor = rows[i][column] / rows[column][column];
            for (size_t k = column; k <= n; ++k) rows[i][k] = rows[i][k] - factor * rows[column][k];
        }
    }
    std::vector<Real> solution;
    for (size_t i = 0; i < n; ++i) solution.push_back(rows[i][n] / rows[i][i]);
    return solution;
}

// c[0] x^lowest + c[1] x^(lowest + 1) + ... + x^degree, nearest to f(x), relatively, for x from `low` to `high`.
inline std::vector<Real> relative_minimax(const Function& f, int lowest, int degree, const Real& low,
                                          const Real& high) {
    size_t terms = static_cast<size_t>(degree - lowest + 1);
    std::vector<Real> c;
    auto power = [](const Real& x, long n) {
        Real result;
        mpfr_pow_si(result.get(), x.get(), n, MPFR_RNDN);
        return result;
    };
    auto error = [&](const Real& x) {
        Real sum = 0.0;
        for (size_t i = terms; i-- > 0;) sum = sum * x + c[i];
        return sum * power(x, lowest) / f(x) - Real(1.0);
    };
    // A fraction of the interval, with the points crowded towards its ends as those of an equal error are.
    auto at = [&](double fraction) {
        Real turn = pi() * Real(fraction);
        return low + (high - low) * (Real(1.0) - cos(turn)) / Real(2.0);
    };

    Real step = (high - low) * Real(0x1p-100);
    std::vector<Real> points;
    for (size_t i = 0; i <= terms; ++i) points.push_back(at(static_cast<double>(i) / static_cast<double>(terms)));
    for (int round = 0; round < 100; ++round) {
        // The polynomial that misses all points by the same, in turns above and below.
        std::vector<std::vector<Real>> rows;
        for (size_t i = 0; i <= terms; ++i) {
            std::vector<Real> row;
            Real value = f(points[i]);
            for (size_t k = 0; k < terms; ++k) row.push_back(power(points[i], lowest + static_cast<long>(k)) / value);
            row.push_back(i % 2 == 0 ? 1.0 : -1.0);
            row.push_back(1.0);
            rows.push_back(row);
        }
        c = solve(rows);
        c.pop_back();

        // The ends of the interval stay; every inner point takes one Newton step to where the error is largest, or,
        // where that would lead to where it is least or far away, goes uphill, a quarter of the way to its neighbour.
        std::vector<Real> next = points;
        Real longest = 0.0;
        for (size_t i = 1; i < terms; ++i) {
            Real before = error(points[i] - step), here = error(points[i]), after = error(points[i] + step);
            Real slope = after - before, curvature = after - here - here + before;
            Real move = step * slope / (Real(-2.0) * curvature);
            Real uphill = Real(0.0) < slope * here ? points[i + 1] - points[i] : points[i - 1] - points[i];
            if (Real(0.0) < here * curvature || magnitude(uphill) < Real(4.0) * magnitude(move))
                move = uphill / Real(4.0);
            next[i] = points[i] + move;
            if (longest < magnitude(move)) longest = magnitude(move);
        }
        points = next;
        if (longest < step) return c;
    }
    std::fprintf(stderr, "the exchange does not settle\n");
    std::exit(1);
}

}  // namespace tables
