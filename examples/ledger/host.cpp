// Roundings whose results one can write down, limits that hold for missing readings too, and a sum that plain
// arithmetic gets wrong altogether.
#include "host/host.h"

#include <cmath>
#include <cstdio>

extern "C" {
void to_cents(const double4* amount, double4* nearest_even, double4* half_away, double4* below, double4* above,
              double4* toward_zero);
void within_limits(const float8* reading, float lowest, float highest, float8* kept);
void dot_products(const double2* a, const double2* b, int count, double2* plain, double2* with_errors);
}

namespace {

bool same(double x, double y) { return x == y && std::signbit(x) == std::signbit(y); }

bool round_amounts() {
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 6);
    auto amount = host::column_as<double4, double>(table, 0);
    std::vector<double4> results[5];
    for (auto& result : results) result.resize(amount.size());
    host::run(amount.size(), [&] {
        to_cents(amount.data(), results[0].data(), results[1].data(), results[2].data(), results[3].data(),
                 results[4].data());
    });
    std::printf("  %20s %19s %19s %19s %19s %19s\n", "cents", "rint", "round", "floor", "ceil", "trunc");
    bool good = true;
    for (size_t i = 0; i < table.size(); ++i) {
        std::printf("  %20.17g", table[i][0]);
        for (size_t k = 0; k < 5; ++k) {
            double value = results[k][i / 4][i % 4];
            bool right = same(value, table[i][k + 1]);
            std::printf(" %19.16g%s", value, right ? "" : " WRONG");
            good = good && right;
        }
        std::puts("");
    }
    return good;
}

bool limit_readings() {
    std::vector<float8> reading(1, float8{-40, -10, 0, 21.5, 60, 61, NAN, INFINITY}), kept(1);
    const float8 expected = {-10, -10, 0, 21.5, 60, 60, -10, 60};
    host::run(1, [&] { within_limits(reading.data(), -10, 60, kept.data()); });
    std::printf("\n  Kept from -10 to 60: ");
    bool good = true;
    for (size_t i = 0; i < 8; ++i) {
        std::printf(" %g becomes %g%s", reading[0][i], kept[0][i], i < 7 ? "," : "\n");
        good = good && kept[0][i] == expected[i];
    }
    return good;
}

// (2^27 + 1)(2^27 - 1) - 2^27 2^27 = -1, though each product has 54 bits and more; and in the second lane
// 1e16 * 1 + 3 * 0.5 - 1e16 * 1 = 1.5, though the sum has no room for it.
bool add_products() {
    constexpr double big = 0x1p27;
    std::vector<double2> a = {double2{big + 1, 1e16}, double2{big, 3}, double2{0, -1e16}};
    std::vector<double2> b = {double2{big - 1, 1}, double2{-big, 0.5}, double2{0, 1}};
    double2 plain, with_errors;
    host::run(1, [&] { dot_products(a.data(), b.data(), static_cast<int>(a.size()), &plain, &with_errors); });
    std::printf("\n  (2^27 + 1)(2^27 - 1) - 2^27 2^27:  plain %g, with fma %g, by hand -1\n", plain[0], with_errors[0]);
    std::printf("  1e16 + 3/2 - 1e16:                 plain %g, with fma %g, by hand 1.5\n", plain[1], with_errors[1]);
    return with_errors[0] == -1 && with_errors[1] == 1.5;
}

}  // namespace

int main() {
    std::printf("A ledger, double4, float8, double2: rint, round, floor, ceil, trunc, fmin, fmax, fma\n\n");
    bool good = round_amounts();
    good = limit_readings() && good;
    good = add_products() && good;
    std::printf("\n  every result as by hand: %s\n", good ? "good" : "WRONG");
    return good ? 0 : 1;
}
