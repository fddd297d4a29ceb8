// A polynomial as the product of quadratics.
#pragma once

#include <algorithm>
#include <cstdlib>

#include "tools/tables/remez.h"

namespace tables {

struct Complex {
    Real real, imaginary;
};
inline Complex operator-(const Complex& a, const Complex& b) { return {a.real - b.real, a.imaginary - b.imaginary}; }
inline Complex operator*(const Complex& a, const Complex& b) {
    return {a.real * b.real - a.imaginary * b.imaginary, a.real * b.imaginary + a.imaginary * b.real};
}
inline Real squared_magnitude(const Complex& a) { return a.real * a.real + a.imaginary * a.imaginary; }
inline Complex operator/(const Complex& a, const Complex& b) {
    Complex product = a * Complex{b.real, Real(0.0) - b.imaginary};
    Real size = squared_magnitude(b);
    return {product.real / size, product.imaginary / size};
}

// All roots of c[0] + c[1] x + ... + c[n] x^n, each repelled by the others (Durand and Kerner's iteration).
inline std::vector<Complex> roots(const std::vector<Real>& c) {
    size_t n = c.size() - 1;
    std::vector<Complex> roots = {{3.0, 0.0}};
    for (size_t i = 1; i < n; ++i) roots.push_back(roots.back() * Complex{0.4, 0.9});
    for (int round = 0; round < 300; ++round) {
        Real largest = 0.0;
        for (Complex& root : roots) {
            Complex step = {1.0, 0.0};
            for (size_t i = n; i-- > 0;) {
                step = step * root;
                step.real = step.real + c[i] / c[n];
            }
            for (const Complex& other : roots)
                if (&other != &root) step = step / (root - other);
            root = root - step;
            if (largest < squared_magnitude(step)) largest = squared_magnitude(step);
        }
        if (largest < Real(0x1p-500)) return roots;
    }
    std::fputs("the roots do not settle\n", stderr);
    std::exit(1);
}

// x^2 + b x + c.
struct Quadratic {
    Real b, c;
};
// The quadratics of a polynomial of even degree: first the pairs of conjugate roots, b rising, then the real roots,
// neighbours together.
inline std::vector<Quadratic> quadratics(const std::vector<Real>& polynomial) {
    std::vector<Complex> conjugate;
    std::vector<Real> real;
    for (const Complex& root : roots(polynomial)) {
        if (magnitude(root.imaginary) < Real(0x1p-200))
            real.push_back(root.real);
        else if (Real(0.0) < root.imaginary)
            conjugate.push_back(root);
    }
    std::sort(conjugate.begin(), conjugate.end(), [](const Complex& a, const Complex& b) { return b.real < a.real; });
    std::sort(real.begin(), real.end());
    std::vector<Quadratic> result;
    for (const Complex& root : conjugate) result.push_back({Real(-2.0) * root.real, squared_magnitude(root)});
    for (size_t i = 0; i + 1 < real.size(); i += 2)
        result.push_back({Real(0.0) - (real[i] + real[i + 1]), real[i] * real[i + 1]});
    return result;
}

}  // namespace tables
