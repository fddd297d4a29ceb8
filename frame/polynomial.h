// Polynomials: how a record writes coefficients, and how units and scalars evaluate them. Every product and every sum
// is rounded by itself; the grouping decides about the last bit, so each has a name.
#pragma once

#include "frame/record.h"
#include "frame/units.h"

namespace zorv {

// Coefficients of a main path, highest power first: `.p = {{0x..., 0x..., 0x...}}`, one comment for each.
template <class Lane, int count>
struct Coefficients {
    PackedSlot<Lane> c[count];
};
// The same for a scalar routine.
template <class Lane, int count>
struct ScalarCoefficients {
    Scalar<Lane> c[count];
};

namespace detail {
template <class Value, class List, int at, int count>
inline Value horner_from(Value x, Value sum, const List& p) {
    if constexpr (at == count)
        return sum;
    else
        return horner_from<Value, List, at + 1, count>(x, sum * x + Value(p.c[at]), p);
}
}  // namespace detail

// ((c[0] x + c[1]) x + c[2]) x + ...
template <class Value, class Lane, int count>
inline Value horner(Value x, const Coefficients<Lane, count>& p) {
    return detail::horner_from<Value, Coefficients<Lane, count>, 1, count>(x, Value(p.c[0]), p);
}
template <class Lane, int count>
inline Lane horner(Lane x, const ScalarCoefficients<Lane, count>& p) {
    return detail::horner_from<Lane, ScalarCoefficients<Lane, count>, 1, count>(x, Lane(p.c[0]), p);
}
// The same, begun from a sum that stands already: (sum x + c[0]) x + ...
template <class Value, class Lane, int count>
inline Value horner_on(Value x, Value sum, const Coefficients<Lane, count>& p) {
    return detail::horner_from<Value, Coefficients<Lane, count>, 0, count>(x, sum, p);
}

// In pairs over x^2: each pair is c[i] x + c[i + 1], and the pairs make a polynomial in x2 by Horner. An even count.
template <class Value, class Lane, int count>
inline Value paired(Value x, Value x2, const Coefficients<Lane, count>& p) {
    static_assert(count % 2 == 0);
    Value sum = x * Value(p.c[0]) + Value(p.c[1]);
#pragma unroll
    for (int i = 2; i < count; i += 2) sum = sum * x2 + (x * Value(p.c[i]) + Value(p.c[i + 1]));
    return sum;
}

}  // namespace zorv
