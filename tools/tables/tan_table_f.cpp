// The tangent in 128 steps of half a turn, single precision; see tan_table.h.
#include <map>

#include "tools/tables/tan_table.h"

namespace {

const std::map<int, std::vector<uint32_t>> given = {
    {0, {0x3fc90fdb, 0xb33bbd2e, 0, 0, 0, 0x3f800000, 0, 0, 0x3eaaacdd, 0}},
    {1,
     {0x3fc5eb9b, 0x32de638c, 0, 0x3cc91a31, 0x2f8e8d1a, 0x3f800000, 0x3a1dfa00, 0x3cc9392d, 0x3eab1889, 0x3c885d3b}},
    {32,
     {0x3f490fdb, 0xb2bbbd2e, 0x3f800000, 0xbe8be60e, 0x320d8d84, 0x3f000000, 0xbdf817b1, 0xbd8345eb, 0x3d1dfdac,
      0xbc52cf6f}},
    {64, {0, 0, 0x3f800000, 0, 0, 0x3e800000, 0x3daaaaab, 0, 0x3cb5e28b, 0}},
    {96,
     {0xbf490fdb, 0x32bbbd2e, 0, 0xbf800000, 0x2b410000, 0x40000000, 0xb3000000, 0xc0000000, 0x402ab7c8, 0xc05561db}},
};

}  // namespace

int main() {
    tables::header("Local expansions of the tangent at pi j / 128, for j from 0 to 127.", "tan_table_f");
    for (int j = 0; j < 128; ++j) {
        auto row = tables::tangent_row<float>(j, 128, 4);
        if (given.contains(j))
            for (size_t i = 0; i < row.size(); ++i) row[i] = __builtin_bit_cast(float, given.at(j)[i]);
        tables::print_tangent_row(row, j);
    }
}
