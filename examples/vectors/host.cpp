// Diagonals of boxes with whole sides: every length is a whole number that one can check by hand.
#include "host/host.h"

#include <cmath>
#include <cstdio>

extern "C" void normalise(const float4* x, const float4* y, const float4* z, float4* length, float4* unit_x,
                          float4* unit_x_native);

int main() {
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 4);
    auto x = host::column_as<float4, float>(table, 0);
    auto y = host::column_as<float4, float>(table, 1);
    auto z = host::column_as<float4, float>(table, 2);
    std::vector<float4> length(x.size()), unit_x(x.size()), unit_x_native(x.size());
    host::run(x.size(),
              [&] { normalise(x.data(), y.data(), z.data(), length.data(), unit_x.data(), unit_x_native.data()); });

    // One rounding of the product comes on top of the error of rsqrt; up to twice as many ulp where it crosses a
    // power of two.
    host::Worst lengths("sqrt", 0.82), units("x * rsqrt", 2 * 0.99 + 0.5), natives("x * native_rsqrt", 2 * 6144 + 0.5);
    bool good = true;
    std::printf("Diagonals of boxes, float4: sqrt, rsqrt, native_rsqrt\n\n");
    std::printf("  %26s %12s %12s %14s %14s\n", "x, y, z", "length", "expected", "x / length", "native");
    for (size_t i = 0; i < table.size(); ++i) {
        const auto& row = table[i];
        float l = length[i / 4][i % 4], u = unit_x[i / 4][i % 4], n = unit_x_native[i / 4][i % 4];
        std::printf("  %8.6g %8.6g %8.6g %12.9g %12.9g %14.9g %14.9g\n", row[0], row[1], row[2], l, row[3], u, n);
        lengths.add(host::ulps(l, row[3]));
        if (row[3] == 0) {
            good = good && std::isnan(u) && std::isnan(n);  // 0 times infinity
            continue;
        }
        units.add(host::ulps(u, static_cast<long double>(row[0]) / row[3]));
        natives.add(host::ulps(n, static_cast<long double>(row[0]) / row[3]));
    }
    std::puts("");
    for (const host::Worst* worst : {&lengths, &units, &natives}) good = worst->report() && good;
    return good ? 0 : 1;
}
