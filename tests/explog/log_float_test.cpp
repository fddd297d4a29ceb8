// Values of the single precision logarithms, by their bits, from a model in exact arithmetic that rounds where they
// round.
#include "tests/harness/lanes.h"

namespace {

using harness::expect_rows;

constexpr uint64_t zero = 0, minus_zero = 0x80000000, one = 0x3f800000, inf = 0x7f800000, minus_inf = 0xff800000,
                   nan = 0x7fc00000, default_nan = 0xffc00000, largest = 0x7f7fffff, smallest_normal = 0x00800000,
                   largest_subnormal = 0x007fffff, smallest = 0x00000001;
// x = f 2^k: f starts anew above these two.
constexpr uint64_t below_two_thirds = 0x3f2aaaaa, two_thirds = 0x3f2aaaab, last_of_k_0 = 0x3faaaaaa,
                   first_of_k_1 = 0x3faaaaab;

// Every accurate family treats these alike.
std::vector<harness::Row> with_special_operands(std::vector<harness::Row> rows) {
    rows.insert(rows.end(), {{{one}, {zero}},
                             {{zero}, {minus_inf}},
                             {{minus_zero}, {minus_inf}},
                             {{inf}, {inf}},
                             {{minus_inf}, {default_nan}},
                             {{0xbf800000}, {default_nan}},
                             {{0x80000001}, {default_nan}},
                             {{0xff7fffff}, {default_nan}},
                             {{nan}, {nan}},
                             {{0xffc12345}, {0xffc12345}},
                             {{0x7f800001}, {0x7fc00001}}});
    return rows;
}

TEST(LogFloat, Logf) {
    expect_rows("logf", with_special_operands({
                            {{0x3f800001}, {0x33ffffff}},
                            {{0x3f7fffff}, {0xb3800000}},
                            {{below_two_thirds}, {0xbecf9922}},
                            {{two_thirds}, {0xbecf991e}},
                            {{last_of_k_0}, {0x3e934b0e}},
                            {{first_of_k_1}, {0x3e934b12}},
                            {{0x41200000}, {0x40135d8e}},  // 10
                            {{0x42f6e979}, {0x409a1bba}},  // 123.456
                            {{smallest_normal}, {0xc2aeac50}},
                            {{largest}, {0x42b17218}},
                            {{smallest}, {0xc2ce8ed0}},
                            {{0x00000003}, {0xc2cc5c53}},
                            {{0x00003b60}, {0xc2bb4cbe}},
                            {{0x0001ffff}, {0xc2b6fdaa}},  // row 64
                            {{0x006a09e6}, {0xc2af0caf}},
                            {{largest_subnormal}, {0xc2aeac50}},
                        }));
}

TEST(LogFloat, Log2f) {
    expect_rows("log2f", with_special_operands({
                             {{0x3f800001}, {0x3438aa3a}},
                             {{0x3f7fffff}, {0xb3b8aa3b}},
                             {{below_two_thirds}, {0xbf15c01c}},
                             {{two_thirds}, {0xbf15c019}},
                             {{last_of_k_0}, {0x3ed47fc9}},
                             {{first_of_k_1}, {0x3ed47fce}},
                             {{0x41000000}, {0x40400000}},  // powers of two are exact
                             {{0x41200000}, {0x40549a78}},
                             {{0x42f6e979}, {0x40de54d0}},
                             {{smallest_normal}, {0xc2fc0000}},
                             {{largest}, {0x43000000}},
                             {{smallest}, {0xc3150000}},  // -149
                             {{0x00000003}, {0xc3136a40}},
                             {{0x00003b60}, {0xc3071bb4}},
                             {{0x0001ffff}, {0xc3040001}},  // row 64
                             {{0x006a09e6}, {0xc2fc8b09}},
                             {{largest_subnormal}, {0xc2fc0000}},
                         }));
}

TEST(LogFloat, Log10f) {
    expect_rows("log10f", with_special_operands({
                              {{0x3f800001}, {0x335e5bd8}},
                              {{0x3f7fffff}, {0xb2de5bd9}},
                              {{below_two_thirds}, {0xbe345146}},
                              {{two_thirds}, {0xbe345143}},
                              {{last_of_k_0}, {0x3dffdfdf}},
                              {{first_of_k_1}, {0x3dffdfe4}},
                              {{0x41200000}, {one}},
                              {{0x42f6e979}, {0x4005db56}},
                              {{smallest_normal}, {0xc217b818}},
                              {{largest}, {0x421a209b}},
                              {{smallest}, {0xc23369f4}},
                              {{0x00000003}, {0xc2318161}},
                              {{0x00003b60}, {0xc222afbf}},
                              {{0x0001ffff}, {0xc21ef1a0}},  // row 64
                              {{0x006a09e6}, {0xc2180bcd}},
                              {{largest_subnormal}, {0xc217b818}},
                          }));
}

// Nothing is classified: every pattern is split into k and f. Zero is k = -127, -1 is k = -256, infinity k = 128, all
// with f = 1; a NaN of this pattern is k = 129, f = 3/4.
TEST(LogFloat, Native) {
    expect_rows("logf_native", {{{one}, {zero}},
                                {{0x41000000}, {0x40051592}},
                                {{0x41200000}, {0x40135ec2}},
                                {{two_thirds}, {0xbecf7ec2}},
                                {{zero}, {0xc2b00f34}},  // -127 ln 2
                                {{smallest}, {0xc2b00f34}},
                                {{minus_zero}, {0x42b2d4fc}},
                                {{0xbf800000}, {0xc3317218}},
                                {{inf}, {0x42b17218}},
                                {{minus_inf}, {0xc2b17218}},
                                {{nan}, {0x42b241a0}}});
    expect_rows("log2f_native", {{{one}, {zero}},
                                 {{0x41000000}, {0x40400000}},
                                 {{0x41200000}, {0x40549a2e}},
                                 {{two_thirds}, {0xbf15be7e}},
                                 {{zero}, {0xc2fe0000}},  // -127
                                 {{smallest}, {0xc2fe0000}},
                                 {{minus_zero}, {0x43010000}},
                                 {{0xbf800000}, {0xc3800000}},
                                 {{inf}, {0x43000000}},
                                 {{minus_inf}, {0xc3000000}},
                                 {{nan}, {0x430095bf}}});
    expect_rows("log10f_native", {{{one}, {zero}},
                                  {{0x41000000}, {0x3f6730e8}},
                                  {{0x41200000}, {0x3f7fffa7}},
                                  {{two_thirds}, {0xbe344f53}},
                                  {{zero}, {0xc218ec5a}},  // -127 log10(2)
                                  {{smallest}, {0xc218ec5a}},
                                  {{minus_zero}, {0x421b54dc}},
                                  {{0xbf800000}, {0xc29a209b}},
                                  {{inf}, {0x421a209b}},
                                  {{minus_inf}, {0xc21a209b}},
                                  {{nan}, {0x421ad4eb}}});
}

}  // namespace
