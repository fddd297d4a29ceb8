// Known rows of the tables, by their bits.
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace {

const double turn_table_d[] = {
#include "kernels/trig/tables/turn_table_d.inc"
};
const float tan_table_f[][10] = {
#include "kernels/trig/tables/tan_table_f.inc"
};
const double tan_table_d[][13] = {
#include "kernels/trig/tables/tan_table_d.inc"
};

template <class Pattern, class Number>
void expect_row(const Number* row, const std::vector<Pattern>& expected) {
    std::vector<Pattern> actual(expected.size());
    __builtin_memcpy(actual.data(), row, sizeof(Number) * actual.size());
    EXPECT_EQ(expected, actual);
}
const double* turn(int j) { return turn_table_d + 4 * j; }  // cos_tail, cos_head, sin_head, sin_tail

TEST(TrigTables, TurnsOfDoubles) {
    static_assert(sizeof turn_table_d == 640 * 4 * sizeof(double));
    expect_row<uint64_t>(turn(0), {0, 0x3ff0000000000000, 0, 0});
    expect_row<uint64_t>(turn(1), {0xbf13bd2c8da49511, 0x3ff0000000000000, 0x3f8921d1fcdec784, 0x3c29878ea0000000});
    expect_row<uint64_t>(turn(64), {0x3fca827999fcef32, 0x3fe0000000000000, 0x3fe6a09e667f3bcd, 0xbc8bdd3400000000});
    // The head of the cosine changes where it is three quarters.
    EXPECT_EQ(1.0, turn(58)[1]);
    EXPECT_EQ(0.5, turn(59)[1]);
    for (int j : {128, 384}) EXPECT_EQ(0.0, turn(j)[1]) << j;
    // The quarter turn behind the last row is the first one.
    for (int j = 0; j < 128; ++j) EXPECT_EQ(0, __builtin_memcmp(turn(j), turn(512 + j), 4 * sizeof(double))) << j;
}

TEST(TrigTables, TangentsOfFloats) {
    static_assert(sizeof tan_table_f == 128 * sizeof tan_table_f[0]);
    expect_row<uint32_t>(tan_table_f[0], {0x3fc90fdb, 0xb33bbd2e, 0, 0, 0, 0x3f800000, 0, 0, 0x3eaaacdd, 0});
    expect_row<uint32_t>(tan_table_f[1], {0x3fc5eb9b, 0x32de638c, 0, 0x3cc91a31, 0x2f8e8d1a, 0x3f800000, 0x3a1dfa00,
                                          0x3cc9392d, 0x3eab1889, 0x3c885d3b});
    expect_row<uint32_t>(tan_table_f[32], {0x3f490fdb, 0xb2bbbd2e, 0x3f800000, 0xbe8be60e, 0x320d8d84, 0x3f000000,
                                           0xbdf817b1, 0xbd8345eb, 0x3d1dfdac, 0xbc52cf6f});
    expect_row<uint32_t>(tan_table_f[64], {0, 0, 0x3f800000, 0, 0, 0x3e800000, 0x3daaaaab, 0, 0x3cb5e28b, 0});
    expect_row<uint32_t>(tan_table_f[96], {0xbf490fdb, 0x32bbbd2e, 0, 0xbf800000, 0x2b410000, 0x40000000, 0xb3000000,
                                           0xc0000000, 0x402ab7c8, 0xc05561db});
}

TEST(TrigTables, TangentsOfDoubles) {
    static_assert(sizeof tan_table_d == 256 * sizeof tan_table_d[0]);
    expect_row<uint64_t>(tan_table_d[0], {0x3ff921fb54442d18, 0x3c91a62633145c07, 0, 0, 0, 0x3ff0000000000000, 0, 0,
                                          0x3fd5555555555559, 0, 0x3fc1111110fe825d, 0, 0x3faba1eec0271523});
    expect_row<uint64_t>(tan_table_d[128], {0, 0, 0x3ff0000000000000, 0, 0, 0x3fd0000000000000, 0x3fb5555555555555, 0,
                                            0x3f96c16c16c4a87e, 0, 0x3f615658c88fb22b, 0, 0x3f45feb9dabeddc8});
}

}  // namespace
