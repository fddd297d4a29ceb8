// tanh x by polynomials of degree 10 in w = x + d, -d the middle of the row's interval: the tail of c0, c0 to c10, d,
// 1 and two zeros, which make the row 128 bytes long. Row 0 serves x below 1/8, in powers of x itself; rows 1 to 58 an
// eighth of a binade each, from 1/8 to 20; row 59 all above.
#include "tools/tables/remez.h"

using tables::Real;

namespace {

constexpr int last = 59, degree = 10;

// Where row i begins.
Real start(int i) {
    uint64_t high = 0x3fbe0000 + static_cast<uint64_t>(i) * 0x20000;
    return __builtin_bit_cast(double, high << 32);
}

struct Row {
    double tail = 0, c[degree + 1] = {}, d = 0;
};

// Rows that are fixed by their bits. They are relative minimax fits like the others, of a program that stopped some
// digits earlier: what they miss of the best fit is far below a double's precision.
constexpr uint64_t fixed_row_0[degree + 1] = {0,
                                              0x3ff0000000000000,
                                              0xbd197dead79668d3,
                                              0xbfd555555553af3c,
                                              0xbe052f7cca134846,
                                              0x3fc11111563849d6,
                                              0xbeb038623673ffb2,
                                              0xbfab9f685e64022e,
                                              0xbf2a54e2b28f2207,
                                              0x3f97cfb9328a230e,
                                              0xbf75ca6d61723e02};
constexpr uint64_t fixed_row_1[degree + 1] = {0x3fc0e6973998da48, 0x3fef712eb25c0888, 0xbfc09b296f7c1ea9,
                                              0xbfd3dd77541edda7, 0x3fb58ffcf4309615, 0x3fbd3abe845dcf49,
                                              0xbfa791df538c37fa, 0xbfa4f872f69cd6e8, 0x3f9772e49ef6412b,
                                              0x3f8cbc0807393909, 0xbf85f06a30f93319};

Row row(int i) {
    Row row;
    if (i == last) {
        row.c[0] = 1;
        return row;
    }
    Real middle = i == 0 ? Real(0.0) : (start(i) + start(i + 1)) / Real(2.0);
    row.d = (Real(0.0) - middle).as_double() + 0.0;
    if (i <= 1) {
        for (int k = 0; k <= degree; ++k)
            row.c[k] = __builtin_bit_cast(double, (i == 0 ? fixed_row_0 : fixed_row_1)[k]);
    } else {
        auto fit = tables::relative_minimax([&](const Real& w) { return tanh(middle + w); }, 0, degree,
                                            start(i) - middle, start(i + 1) - middle);
        for (size_t k = 0; k <= degree; ++k) row.c[k] = fit[k].as_double();
    }
    row.tail = (tanh(middle) - Real(row.c[0])).as_double();
    return row;
}

}  // namespace

int main() {
    tables::header("tanh x on an interval of x: tail of c0, c0 to c10 of a polynomial in x + d, d, 1, 0, 0.",
                   "tanh_rows");
    for (int i = 0; i <= last; ++i) {
        Row r = row(i);
        std::printf("    {%a, {", r.tail);
        for (int k = 0; k <= degree; ++k) std::printf("%a%s", r.c[k], k == degree ? "}" : ", ");
        std::printf(", %a, 1, {0, 0}},  // %d\n", r.d, i);
    }
}
