// An operation over a short interval as polynomials through its values: what tells an exhaustive sweep, in a few
// nanoseconds, that a number's error is below the largest one found so far. It claims a bound of each error, never
// less than the error itself; what the bound does not rule out is judged by the reference.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>

#include "tools/reference.h"

namespace accuracy {

class Interpolant {
  public:
    static constexpr int terms = 8;
    static constexpr size_t most_results = 2;

    // The operation over [low, high]; false where it is not smooth enough to be told from its values at some points.
    bool fit(const reference::Operation& operation, double low, double high) {
        results_ = static_cast<size_t>(operation.results);
        middle_ = (low + high) / 2;
        double half = (high - low) / 2;
        if (!(half > 0)) return false;
        scale_ = 1 / half;
        auto values_at = [&](double t, long double* values) {
            long double x = static_cast<long double>(middle_) + static_cast<long double>(half) * t;
            operation.screen(&x, values);
            for (size_t r = 0; r < results_; ++r)
                if (!std::isfinite(values[r])) return false;
            return true;
        };
        const Basis& basis = chebyshev();
        std::array<std::array<long double, terms>, most_results> at_nodes;
        for (size_t k = 0; k < terms; ++k) {
            long double values[most_results];
            if (!values_at(static_cast<double>(basis.nodes[k]), values)) return false;
            for (size_t r = 0; r < results_; ++r) at_nodes[r][k] = values[r];
        }
        std::array<double, most_results> off = {}, smallest, sum = {};
        smallest.fill(std::numeric_limits<double>::infinity());
        for (size_t r = 0; r < results_; ++r)
            for (size_t i = 0; i < terms; ++i) {
                long double sum_of_nodes = 0;
                for (size_t k = 0; k < terms; ++k) sum_of_nodes += basis.inverse[i][k] * at_nodes[r][k];
                coefficients_[r][i] = static_cast<double>(sum_of_nodes);
                sum[r] += std::fabs(coefficients_[r][i]);
            }
        // The error of an interpolation through Chebyshev's nodes is largest at the ends.
        for (double t : {-1.0, -0.87, -0.29, 0.11, 0.58, 0.93, 1.0}) {
            long double values[most_results];
            if (!values_at(t, values)) return false;
            for (size_t r = 0; r < results_; ++r) {
                off[r] = std::max(off[r], std::fabs(static_cast<double>(values[r] - at(r, t))));
                smallest[r] = std::min(smallest[r], std::fabs(static_cast<double>(values[r])));
            }
        }
        for (size_t r = 0; r < results_; ++r) {
            error_[r] = 4 * off[r] + 0x1p-46 * sum[r];  // the second: the roundings of the evaluation
            if (!(error_[r] * units_per_one(smallest[r]) < 0x1p-6)) return false;
        }
        return true;
    }

    // Bounds of the errors of 16 computed results, in units in the last place of a float; NaN or infinite where one is
    // no number. Loops that the compiler makes packed ones.
    void bounds(size_t result, const float* x, const float* computed, double* bound) const {
        double exact[16];
        for (size_t i = 0; i < 16; ++i) exact[i] = at(result, (x[i] - middle_) * scale_);
        for (size_t i = 0; i < 16; ++i)
            bound[i] = (std::fabs(computed[i] - exact[i]) + error_[result]) * units_per_one(exact[i]) +
                       2 * reference::screen_margin(grid::Lane::f32);
    }

  private:
    struct Basis {
        std::array<long double, terms> nodes;
        std::array<std::array<long double, terms>, terms> inverse;  // from values at the nodes to coefficients
    };
    static const Basis& chebyshev() {
        static const Basis basis = [] {
            Basis b;
            std::array<std::array<long double, 2 * terms>, terms> rows = {};
            for (size_t k = 0; k < terms; ++k) {
                // A node is a double, so that the values are those of the very node.
                b.nodes[k] = static_cast<double>(cosl((2 * k + 1) * 3.14159265358979323846L / (2 * terms)));
                long double power = 1;
                for (size_t i = 0; i < terms; ++i, power *= b.nodes[k]) rows[k][i] = power;
                rows[k][terms + k] = 1;
            }
            for (size_t i = 0; i < terms; ++i) {  // Gauss and Jordan's elimination, with pivots
                size_t pivot = i;
                for (size_t k = i; k < terms; ++k)
                    if (fabsl(rows[k][i]) > fabsl(rows[pivot][i])) pivot = k;
                std::swap(rows[i], rows[pivot]);
                long double by = rows[i][i];
                for (long double& entry : rows[i]) entry /= by;
                for (size_t k = 0; k < terms; ++k) {
                    if (k == i) continue;
                    long double times = rows[k][i];
                    for (size_t j = 0; j < 2 * terms; ++j) rows[k][j] -= times * rows[i][j];
                }
            }
            for (size_t i = 0; i < terms; ++i)
                for (size_t k = 0; k < terms; ++k) b.inverse[i][k] = rows[i][terms + k];
            return b;
        }();
        return basis;
    }

    double at(size_t result, double t) const {
        const std::array<double, terms>& c = coefficients_[result];
        double y = c[terms - 1];
        for (size_t i = terms - 1; i-- > 0;) y = y * t + c[i];
        return y;
    }

    // 1/ulp of a float near this value; on a power of two, and just above, that of the lower binade.
    static double units_per_one(double value) {
        double magnitude = std::fabs(value) * (1 - 0x1p-30);
        magnitude = magnitude < 0x1p-126 ? 0x1p-126 : magnitude;
        magnitude = magnitude > 0x1p127 ? 0x1p127 : magnitude;
        constexpr uint64_t field = uint64_t{0x7ff} << 52;
        uint64_t exponent = __builtin_bit_cast(uint64_t, magnitude) & field;
        return __builtin_bit_cast(double, (uint64_t{2 * 1023 + 23} << 52) - exponent);
    }

    size_t results_ = 0;
    double middle_ = 0, scale_ = 0;
    std::array<std::array<double, terms>, most_results> coefficients_ = {};
    std::array<double, most_results> error_ = {};
};

}  // namespace accuracy
