// The tangent in 256 steps of half a turn, double precision; see tan_table.h.
#include <map>

#include "tools/tables/tan_table.h"

namespace {

const std::map<int, std::vector<uint64_t>> given = {
    {0,
     {0x3ff921fb54442d18, 0x3c91a62633145c07, 0, 0, 0, 0x3ff0000000000000, 0, 0, 0x3fd5555555555559, 0,
      0x3fc1111110fe825d, 0, 0x3faba1eec0271523}},
    {128,
     {0, 0, 0x3ff0000000000000, 0, 0, 0x3fd0000000000000, 0x3fb5555555555555, 0, 0x3f96c16c16c4a87e, 0,
      0x3f615658c88fb22b, 0, 0x3f45feb9dabeddc8}},
};

}  // namespace

int main() {
    tables::header("Local expansions of the tangent at pi j / 256, for j from 0 to 255.", "tan_table_d");
    for (int j = 0; j < 256; ++j) {
        auto row = tables::tangent_row<double>(j, 256, 7);
        if (given.contains(j))
            for (size_t i = 0; i < row.size(); ++i) row[i] = __builtin_bit_cast(double, given.at(j)[i]);
        tables::print_tangent_row(row, j);
    }
}
