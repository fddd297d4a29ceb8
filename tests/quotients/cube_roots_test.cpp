// The cube roots' and the hypotenuse's own corners, worked out in exact and in plain scalar arithmetic.
#include "tests/harness/lanes.h"

namespace {

using harness::any_nan;
using harness::expect_rows;
using harness::pattern;

constexpr uint64_t inf_f = 0x7f800000, minus_inf_f = 0xff800000, minus_zero_f = 0x80000000;
constexpr uint64_t inf_d = 0x7ff0000000000000, minus_inf_d = 0xfff0000000000000, minus_zero_d = 1ull << 63;

TEST(CubeRoots, Float) {
    expect_rows("cbrtf", {{{0}, {0}},
                          {{minus_zero_f}, {minus_zero_f}},
                          {{inf_f}, {inf_f}},
                          {{minus_inf_f}, {minus_inf_f}},
                          {{0xffc00001}, {0xffc00001}},
                          {{0x3f800000}, {0x3f800000}},
                          {{0xc1000000}, {0xc0000000}},  // -8
                          {{0x00800000}, {0x2a800000}},  // the first ordinary lane
                          {{0x007fffff}, {0x2a7fffff}},  // the last rare one
                          {{0x00000001}, {0x26a14518}},
                          {{0x80000007}, {0xa71a3fc5}},
                          {{0x7f7fffff}, {0x54cb2ff5}},
                          {{0x3f83ffff}, {0x3f8151d6}},  // on both sides of an interval's end
                          {{0x3f840000}, {0x3f8151d7}},
                          {{0x40490fdb}, {0x3fbb77bf}},
                          {{0x4d3c6147}, {0x441198c2}}});
    expect_rows("rcbrtf", {{{0}, {inf_f}},
                           {{minus_zero_f}, {minus_inf_f}},
                           {{inf_f}, {0}},
                           {{minus_inf_f}, {minus_zero_f}},
                           {{0xffc00001}, {0xffc00001}},
                           {{0xc1000000}, {0xbf000000}},
                           {{0x00800000}, {0x54800000}},
                           {{0x00000001}, {0x584b2ff5}},
                           {{0x80000007}, {0xd7d46f83}},
                           {{0x7f7fffff}, {0x2a214518}},
                           {{0x3f83ffff}, {0x3f7d6339}},
                           {{0x3f840000}, {0x3f7d6338}},
                           {{0x40490fdb}, {0x3f2ecaf0}}});
}

TEST(CubeRoots, Double) {
    expect_rows("cbrt", {{{0}, {0}},
                         {{minus_zero_d}, {minus_zero_d}},
                         {{minus_inf_d}, {minus_inf_d}},
                         {{0xfff8000000000001}, {0xfff8000000000001}},
                         {{0xc020000000000000}, {0xc000000000000000}},
                         {{0x0010000000000000}, {0x2aa428a2f98d728b}},
                         {{0x000fffffffffffff}, {0x2aa428a2f98d728a}},
                         {{0x0000000000000001}, {0x2990000000000000}},
                         {{0x8000000000000007}, {0xa99e9b5dba58189e}},
                         {{0x7fefffffffffffff}, {0x554428a2f98d728b}},
                         {{0x3ff0800000000000}, {0x3ff02a3ad2ef6f48}},
                         {{0x400921fb54442d18}, {0x3ff76ef7e73104b7}}});
    expect_rows("rcbrt", {{{0}, {inf_d}},
                          {{minus_zero_d}, {minus_inf_d}},
                          {{minus_inf_d}, {minus_zero_d}},
                          {{0xc020000000000000}, {0xbfe0000000000000}},
                          {{0x0010000000000000}, {0x553965fea53d6e3c}},
                          {{0x000fffffffffffff}, {0x553965fea53d6e3d}},
                          {{0x0000000000000001}, {0x5650000000000000}},
                          {{0x8000000000000007}, {0xd640ba6ee5f9aad4}},
                          {{0x3ff07fffffffffff}, {0x3fefac66ff1c35cc}},
                          {{0x3ff0800000000000}, {0x3fefac66ff1c35cb}},
                          {{0x400921fb54442d18}, {0x3fe5d95df6bd2aee}}});
}

// Zeros and subnormals read the rows in front of the table in float, those of the lowest exponent in double.
TEST(CubeRoots, Native) {
    expect_rows("cbrtf_native", {{{0x3f800000}, {0x3f8000e0}},
                                 {{0xc1000000}, {0xc00000e0}},
                                 {{0x4d3c6147}, {0x4411990f}},
                                 {{0}, {0xaa7ac4d8}},
                                 {{minus_zero_f}, {0x2a7ac4d8}},
                                 {{0x007fffff}, {0xaa0158b3}},
                                 {{inf_f}, {0x54cb3158}},
                                 {{0x7fc00000}, {0x54e8981e}}});
    expect_rows("rcbrtf_native", {{{0x3f800000}, {0x3f7ffc87}},
                                  {{0x40490fdb}, {0x3f2ecab8}},
                                  {{0}, {0xd47d5aaa}},
                                  {{0x007fffff}, {0xd400ab55}},
                                  {{minus_inf_f}, {0xaa2142e8}}});
    expect_rows("cbrt_native", {{{0x3ff0000000000000}, {0x3ff0000000a1101c}},
                                {{0x400921fb54442d18}, {0x3ff76ef7e732f44e}},
                                {{minus_zero_d}, {0xaaa0000000a1101c}},
                                {{0x7ff8000000000000}, {0x554713744940d421}}});
    expect_rows("rcbrt_native", {{{0xc020000000000000}, {0xbfdffffffff11604}},
                                 {{0x400921fb54442d18}, {0x3fe5d95df6bd246f}},
                                 {{1}, {0x553ffffffff11604}},
                                 {{inf_d}, {0x2a9965fea53197e6}}});
}

TEST(Hypotenuse, SpecialOperandsAndScaling) {
    auto f = [](float x) { return pattern(x); };
    constexpr uint64_t nan_f = 0x7fc00001, other_nan_f = 0xffc00002;
    expect_rows("hypotf", {{{f(3), f(4)}, {f(5)}},
                           {{0, minus_zero_f}, {0}},
                           {{minus_zero_f, minus_zero_f}, {0}},
                           {{f(-7), 0}, {f(7)}},
                           {{minus_inf_f, nan_f}, {inf_f}},
                           {{nan_f, minus_inf_f}, {inf_f}},
                           {{nan_f, f(1)}, {nan_f}},
                           {{f(1), nan_f}, {nan_f}},
                           {{nan_f, other_nan_f}, {nan_f}},
                           {{f(3e30f), f(4e30f)}, {f(5e30f)}},
                           {{f(3e38f), f(3e38f)}, {inf_f}},
                           {{3, 4}, {5}},  // subnormals
                           {{f(1e-38f), f(1e30f)}, {f(1e30f)}}});
    expect_rows("hypot", {{{0x40f0000000000000, minus_inf_d}, {inf_d}},
                          {{0x46293e5939a08cea, 0x46293e5939a08cea}, {0x4631d9920a722b30}},  // 1e30
                          {{0x698f5aa543c31387, 0x6994e718d7d7625a}, {0x699a20df0dcd3af1}},  // 3e200, 4e200
                          {{0x01a56e1fc2f8f359, 0x01a56e1fc2f8f359}, {0x01ae4e8d12762225}},  // 1e-300
                          {{1, 1}, {1}},
                          {{0x17b8, 0x1fa0}, {0x2788}},
                          {{0x7fee42d130773b76, 0x7fee42d130773b76}, {inf_d}},
                          {{0x6974e718d7d7625a, 0x3ff0000000000000}, {0x6974e718d7d7625a}}});
    expect_rows("hypotf_native", {{{0, 0}, {any_nan}}, {{f(3e30f), f(1)}, {any_nan}}});
    expect_rows("hypot_native", {{{0, 0}, {any_nan}}, {{0x54b249ad2594c37d, 0}, {0}}});  // beyond the floats' range
}

}  // namespace
