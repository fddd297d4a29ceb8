// Twice the precision: a number as head + tail, the head being what rounding left of it. Exact sums, splits and
// products, alike for units and scalars.
// Nothing here may be reassociated, and nothing is.
#pragma once

#include "frame/scalar.h"
#include "frame/units.h"

namespace zorv {

template <class Value>
struct HeadTail {
    Value head, tail;
};

// x + y exactly, where |x| >= |y| or x is 0.
template <class Value>
inline HeadTail<Value> fast_two_sum(Value x, Value y) {
    Value head = x + y;
    return {head, (x - head) + y};
}
// x + y exactly, whatever the magnitudes.
template <class Value>
inline HeadTail<Value> two_sum(Value x, Value y) {
    Value head = x + y;
    Value part = head - x;
    return {head, (x - (head - part)) + (y - part)};
}

// The bits that the mask keeps, and the rest; both exact.
inline HeadTail<F4> split_by_mask(F4 x, I4 mask) {
    F4 head = and_bits(x, mask);
    return {head, x - head};
}
inline HeadTail<D2> split_by_mask(D2 x, L2 mask) {
    D2 head = and_bits(x, mask);
    return {head, x - head};
}
inline HeadTail<float> split_by_mask(float x, uint32_t mask) {
    float head = from_pattern(pattern(x) & mask);
    return {head, x - head};
}
inline HeadTail<double> split_by_mask(double x, uint64_t mask) {
    double head = from_pattern(pattern(x) & mask);
    return {head, x - head};
}

// Head rounded to nearest, by the multiplier 2^k + 1: it keeps all but the k low bits. (2^k alone, whose product is
// exact, keeps as many, one more at the very bottom of a binade.)
template <class Value>
inline HeadTail<Value> split_by_product(Value x, Value multiplier) {
    Value u = multiplier * x;
    Value head = u - (u - x);
    return {head, x - head};
}

// The product of two split numbers, whose heads are short enough that all four products are exact: the rounded product
// and its error.
template <class Value>
inline HeadTail<Value> exact_product(HeadTail<Value> x, HeadTail<Value> y, Value product) {
    return {product, (((x.head * y.head - product) + x.head * y.tail) + x.tail * y.head) + x.tail * y.tail};
}

// ---- Double-double: scalar numbers of about 106 bits, the head the number rounded to nearest. ----------------

// x * y exactly, where nothing overflows or underflows on the way.
inline HeadTail<double> exact_product(double x, double y) {
    constexpr double multiplier = 0x1p27 + 1;
    return exact_product(split_by_product(x, multiplier), split_by_product(y, multiplier), x * y);
}

inline HeadTail<double> sum(HeadTail<double> x, HeadTail<double> y) {
    HeadTail<double> heads = two_sum(x.head, y.head), tails = two_sum(x.tail, y.tail);
    HeadTail<double> most = fast_two_sum(heads.head, heads.tail + tails.head);
    return fast_two_sum(most.head, most.tail + tails.tail);
}
inline HeadTail<double> product(HeadTail<double> x, double y) {
    HeadTail<double> p = exact_product(x.head, y);
    return fast_two_sum(p.head, p.tail + x.tail * y);
}
// The rounded quotient, and what its exact remainder adds.
inline HeadTail<double> quotient(HeadTail<double> x, HeadTail<double> y) {
    double q = x.head / y.head;
    HeadTail<double> p = exact_product(q, y.head);
    double remainder = (((x.head - p.head) - p.tail) + x.tail) - q * y.tail;
    return fast_two_sum(q, remainder / y.head);
}

}  // namespace zorv
