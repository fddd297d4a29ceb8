// Double-double arithmetic against MPFR: what it leaves out lies a hundred bits below what it gives.
#include "frame/pairs.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/harness/operands.h"
#include "tools/tables/table.h"

namespace {

using tables::Real;
using zorv::HeadTail;

Real exactly(HeadTail<double> x) { return Real(x.head) + Real(x.tail); }

// The error in units of the exact value, as a power of two.
void expect_close(HeadTail<double> computed, const Real& exact) {
    Real error = (exactly(computed) - exact) / exact;
    EXPECT_LT(std::fabs(error.as_double()), 0x1p-100);
    EXPECT_EQ(computed.head, exact.as_double()) << "the head is the number rounded to nearest";
}

double number(harness::Random& random) {
    return std::ldexp(1.0 + static_cast<double>(random.next() >> 12) * 0x1p-52, static_cast<int>(random.next() % 60)) *
           (random.next() & 1 ? 1 : -1);
}
HeadTail<double> pair(harness::Random& random) {
    double head = number(random);
    return {head, head * 0x1p-54 * (static_cast<double>(random.next() >> 11) * 0x1p-53 - 0.5)};
}

TEST(DoubleDouble, Arithmetic) {
    harness::Random random(9);
    for (int i = 0; i < 20000; ++i) {
        HeadTail<double> x = pair(random), y = pair(random);
        HeadTail<double> same_sign = {std::copysign(y.head, x.head), std::copysign(y.tail, x.tail)};
        expect_close(zorv::sum(x, same_sign), exactly(x) + exactly(same_sign));
        expect_close(zorv::product(x, y.head), exactly(x) * Real(y.head));
        expect_close(zorv::quotient(x, y), exactly(x) / exactly(y));
        HeadTail<double> p = zorv::exact_product(x.head, y.head);
        EXPECT_EQ(0.0, (exactly(p) - Real(x.head) * Real(y.head)).as_double());
    }
    // What cancels leaves the tails.
    HeadTail<double> third = zorv::quotient({1, 0}, {3, 0});
    HeadTail<double> rest = zorv::sum(third, {-third.head, 0});
    EXPECT_EQ(third.tail, rest.head);
    EXPECT_EQ(0.0, rest.tail);
}

}  // namespace
