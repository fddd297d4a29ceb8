// Sine and cosine from the reduced argument: the sine of B + y + ylo, B = 2 pi j / 256 (float) or 2 pi j / 512
// (double), |y| at most half a step.
//
//   sin B + y cos B       as r + e1 + e2, exact: the head of cos B is a power of two, so its product is
//   + ylo (slope at B + y) + the tail of sin B
//   + sin B (cos y - 1) + cos B (sin y - y)
//
// From a table one quarter turn ahead comes the cosine. The two precisions differ in their tables (the order of the
// columns; which power of two is nearest to cos B), in the degree of the polynomials, and in the order in which the
// small terms are summed: of doubles, there are three. The order decides about the last bit.
#pragma once

#include "frame/gather.h"
#include "kernels/trig/reduction.h"
#include "kernels/trig/sincos_double_data.h"
#include "kernels/trig/sincos_float_data.h"

namespace zorv {

// ---- Both precisions: the terms. ---------------------------------------------------------------------------

template <class Unit>
struct TurnEntry {
    Unit cos_head, cos_tail, sin_head, sin_tail;
};

// sin y - y and cos y - 1.
template <class Unit>
struct TurnPolynomials {
    Unit sine, cosine;
};

template <class Unit>
struct TurnTerms {
    Unit r, e1, e2;     // sin B + y cos B
    Unit rest;          // ylo (slope at B + y) + the tail of sin B
    Unit sine, cosine;  // cos B (sin y - y), sin B (cos y - 1)
};

template <class Unit, class Index>
inline TurnTerms<Unit> turn_terms(const TurnEntry<Unit>& entry, const Reduced<Unit, Index>& x,
                                  const TurnPolynomials<Unit>& p) {
    Unit q = entry.cos_tail + entry.cos_head;
    Unit head = x.y * entry.cos_head;
    Unit t = entry.sin_head + head;
    Unit e1 = (entry.sin_head - t) + head;
    Unit tail = x.y * entry.cos_tail;
    Unit r = tail + t;
    Unit e2 = (t - r) + tail;
    Unit slope = q - x.y * entry.sin_head;
    Unit rest = x.ylo * slope + entry.sin_tail;
    return {r, e1, e2, rest, p.sine * q, p.cosine * entry.sin_head};
}

// ---- Single precision. -------------------------------------------------------------------------------------

inline TurnPolynomials<F4> turn_polynomials(F4 y, const TurnSinefData& data) {
    F4 w = y * y;
    return {((data.s2 * w + data.s1) * w) * y, (data.c2 * w + data.c1) * w};
}

inline LaneOffsets row_of(I4 j) { return offsets_through_memory(j << 4); }

inline TurnEntry<F4> turn_entry(const float* table, LaneOffsets row) {
    auto [cos_tail, sin_head, sin_tail, cos_head] = gather_rows(table, row).column;
    return {cos_head, cos_tail, sin_head, sin_tail};
}

inline F4 sum_of(const TurnTerms<F4>& term) {
    F4 z = term.cosine + term.rest;
    z = z + term.sine;
    z = z + (term.e2 + term.e1);
    return term.r + z;
}

inline F4 at_turn(const float* table, LaneOffsets row, const Reduced<F4, I4>& x, const TurnPolynomials<F4>& p) {
    return sum_of(turn_terms(turn_entry(table, row), x, p));
}

// ---- Double precision. -------------------------------------------------------------------------------------

inline TurnPolynomials<D2> turn_polynomials(D2 y, const TurnSinedData& data) {
    D2 w = y * y;
    return {((data.s2 * w + data.s1) * w) * y, ((data.c6 * w + data.c4) * w + data.c2) * w};
}

inline LaneOffsets2 row_of(L2 j) { return offsets_of(j << 5); }

inline TurnEntry<D2> turn_entry(const double* table, LaneOffsets2 row) {
    auto [cos_tail, cos_head] = gather_pair(table, row);
    auto [sin_head, sin_tail] = gather_pair(table + 2, row);
    return {cos_head, cos_tail, sin_head, sin_tail};
}

// For a sine or a cosine by itself.
inline D2 sum_alone(const TurnTerms<D2>& term) {
    D2 z = (term.e2 + term.e1) + term.sine;
    z = z + term.cosine;
    z = z + term.rest;
    return term.r + z;
}

// For the pair of both.
inline D2 sum_of_paired_sine(const TurnTerms<D2>& term) {
    D2 z = term.sine + term.rest;
    z = z + term.e2;
    z = z + term.e1;
    z = z + term.cosine;
    return term.r + z;
}
inline D2 sum_of_paired_cosine(const TurnTerms<D2>& term) {
    D2 z = term.sine + term.rest;
    z = z + term.e2;
    z = z + term.cosine;
    z = z + term.e1;
    return term.r + z;
}

}  // namespace zorv
