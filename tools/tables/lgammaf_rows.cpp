// ln gamma(a (1 + t)) in powers of t on [0, 1), for a = 4, 8, ... 4096, the lowest first. The constant is ln gamma(a);
// the others are a relative minimax fit of what is left, divided by t, but for the rows that are fixed by their
// digits. Largest error of the fitted rows 2^-32.6, relative to ln gamma.
#include "tools/tables/lgamma.h"

using tables::Real;

namespace {

constexpr int rows = 11, terms = 11;

struct Row {
    double c[terms];  // by power
};
constexpr Row fixed_rows[] = {
    {{1.791759469, 5.024470796, 2.270577696, -0.8536457627, 0.4775011776, -0.3140620298, 0.2152336314, -0.1353059329,
      0.06715375218, -0.02190689971, 0.003385466555}},
    {{8.52516136, 16.12513202, 4.260375099, -1.510193082, 0.8004216868, -0.5016477567, 0.3300106209, -0.2008622254,
      0.09727943244, -0.03115027665, 0.004744504419}},
};
constexpr int fixed = sizeof fixed_rows / sizeof fixed_rows[0];

Row row(int i) {
    if (i < fixed) return fixed_rows[i];
    Real a = static_cast<double>(4 << i);
    auto c = tables::relative_minimax([&](const Real& t) { return a * tables::slope_of_log_gamma(a, a * t); }, 0,
                                      terms - 2, 0.0, 1.0);
    Row result = {{tables::log_gamma(a).as_double()}};
    for (int k = 1; k < terms; ++k) result.c[k] = c[static_cast<size_t>(k - 1)].as_double();
    return result;
}

}  // namespace

int main() {
    tables::header("ln gamma(a (1 + t)): coefficients of 1, t, ... t^10.", "lgammaf_rows");
    for (int i = 0; i < rows; ++i) {
        Row r = row(i);
        std::printf("    {{");
        for (int k = 0; k < terms; ++k)
            std::printf("{%#018llx}%s", static_cast<unsigned long long>(tables::pattern(r.c[k])),
                        k + 1 < terms ? ", " : "}},  ");
        std::printf("// %d\n", i);
    }
}
