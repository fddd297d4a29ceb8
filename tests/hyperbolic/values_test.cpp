// Values of the hyperbolic functions and their inverses, by their bits, worked out from the steps in scalar arithmetic.
#include "tests/harness/lanes.h"

namespace {

using harness::any_nan;
using harness::Row;

// Single precision patterns.
constexpr uint64_t zero = 0, minus_zero = 0x80000000, one = 0x3f800000, minus_one = 0xbf800000, inf = 0x7f800000,
                   minus_inf = 0xff800000, default_nan = 0xffc00000;
// Double patterns.
constexpr uint64_t zero_d = 0, minus_zero_d = 0x8000000000000000, one_d = 0x3ff0000000000000,
                   minus_one_d = 0xbff0000000000000, inf_d = 0x7ff0000000000000, minus_inf_d = 0xfff0000000000000,
                   default_nan_d = 0xfff8000000000000;

std::vector<Row> with(const std::vector<Row>& common, std::vector<Row> rows) {
    rows.insert(rows.end(), common.begin(), common.end());
    return rows;
}

// NaNs keep sign and payload in the accurate families; signalling ones are quieted.
const std::vector<Row> nans = {
    {{0x7fc00000}, {0x7fc00000}}, {{0xffc12345}, {0xffc12345}}, {{0x7f800001}, {0x7fc00001}}};
const std::vector<Row> nans_d = {{{0x7ff8000000000000}, {0x7ff8000000000000}},
                                 {{0xfff8000000012345}, {0xfff8000000012345}},
                                 {{0x7ff0000000000001}, {0x7ff8000000000001}}};
const std::vector<Row> nans_native = {{{0x7fc00000}, {any_nan}}, {{0xffc12345}, {any_nan}}, {{0x7f800001}, {any_nan}}};
const std::vector<Row> nans_d_native = {
    {{0x7ff8000000000000}, {any_nan}}, {{0xfff8000000012345}, {any_nan}}, {{0x7ff0000000000001}, {any_nan}}};
// Of an odd function the smallest numbers are their own results.
const std::vector<Row> itself = {
    {{zero}, {zero}}, {{minus_zero}, {minus_zero}}, {{1}, {1}}, {{0x80000001}, {0x80000001}}};
const std::vector<Row> itself_d = {
    {{zero_d}, {zero_d}}, {{minus_zero_d}, {minus_zero_d}}, {{1}, {1}}, {{0x8000000000000001}, {0x8000000000000001}}};
const std::vector<Row> odd = with(nans, itself), odd_native = with(nans_native, itself);
const std::vector<Row> odd_d = with(nans_d, itself_d), odd_d_native = with(nans_d_native, itself_d);

void expect(const char* family, const std::vector<Row>& common, const std::vector<Row>& rows) {
    harness::expect_rows(family, with(common, rows));
}

TEST(Hyperbolic, SinhFloat) {
    expect("sinhf", odd,
           {
               {{one}, {0x3f966cfe}},
               {{minus_one}, {0xbf966cfe}},
               {{0x3eae147b}, {0x3eb17411}},  // r close to its ends
               {{0x3eb33333}, {0x3eb6e193}},
               {{0x40400000}, {0x41204938}},
               {{0xc1a00000}, {0xcd675844}},  // -20
               {{0x42aeac4d}, {0x7dfffeb4}},  // the last ordinary lanes and the first rare ones
               {{0x42aeac4e}, {0x7dffff34}},
               {{0x42aeac4f}, {0x7dffffb4}},
               {{0xc2aeac4f}, {0xfdffffb4}},
               {{0x42b2d4fc}, {0x7f7fffec}},  // the last finite result
               {{0x42b2d4fd}, {inf}},
               {{0xc2c80000}, {minus_inf}},  // -100
               {{0x7f7fffff}, {inf}},
               {{inf}, {inf}},
               {{minus_inf}, {minus_inf}},
           });
    expect("sinhf_native", odd_native,
           {
               {{one}, {0x3f966db6}},
               {{0x3eae147b}, {0x3eb176f7}},
               {{0xc1a00000}, {0xcd675889}},
               {{0x42aeac4e}, {0x7dffff34}},  // up to here right
               {{0x42b00000}, {inf}},         // 88: e^-x becomes -infinity
               {{0xc2b00000}, {minus_inf}},
               {{0x42c80000}, {0x76d460f1}},
               {{inf}, {any_nan}},
               {{minus_inf}, {any_nan}},
           });
}

TEST(Hyperbolic, CoshFloat) {
    expect("coshf", nans,
           {
               {{zero}, {one}},
               {{minus_zero}, {one}},
               {{0x00000001}, {one}},
               {{one}, {0x3fc583aa}},
               {{minus_one}, {0x3fc583aa}},
               {{0x3eae147b}, {0x3f87784e}},  // r close to its ends
               {{0x3eb33333}, {0x3f87eb9d}},
               {{0x40400000}, {0x41211525}},
               {{0xc1a00000}, {0x4d675844}},  // -20
               {{0x42aeac4d}, {0x7dfffeb4}},  // the last ordinary lane
               {{0x42aeac4e}, {0x7dffff34}},
               {{0x42aeac4f}, {0x7dffffb4}},
               {{0xc2aeac4f}, {0x7dffffb4}},
               {{0x42b2d4fc}, {0x7f7fffec}},  // the last finite result
               {{0x42b2d4fd}, {inf}},
               {{0xc2c80000}, {inf}},  // -100
               {{0x7f7fffff}, {inf}},
               {{inf}, {inf}},
               {{minus_inf}, {inf}},
           });
    expect("coshf_native", nans_native,
           {
               {{zero}, {one}},
               {{minus_zero}, {one}},
               {{one}, {0x3fc58417}},
               {{0x3eae147b}, {0x3f87784f}},
               {{0xc1a00000}, {0x4d675889}},
               {{0x42aeac4e}, {0x7dffff34}},  // up to here right
               {{0x42b00000}, {minus_inf}},   // 88: e^-x becomes -infinity
               {{0xc2b00000}, {minus_inf}},
               {{0x42c80000}, {0xf6d460f1}},
               {{inf}, {any_nan}},
               {{minus_inf}, {any_nan}},
           });
}

TEST(Hyperbolic, Sinh) {
    expect("sinh", odd_d,
           {
               {{one_d}, {0x3ff2cd9fc44eb982}},
               {{minus_one_d}, {0xbff2cd9fc44eb982}},
               {{0x3e112e0be826d695}, {0x3e112e0be826d695}},
               {{0x3f661e4f765fd8ae}, {0x3f661e51393e389b}},  // r close to its ends
               {{0x3f66f0068db8bac7}, {0x3f66f0088490ab5e}},
               {{0x3fe6147ae147ae14}, {0x3fe7dfcda17b6175}},
               {{0x4008000000000000}, {0x40240926e70949ae}},
               {{0xc034000000000000}, {0xc1aceb088b68e804}},  // -20
               {{0x40861d99ffffffff}, {0x7fafe6d6fd5d9a2a}},  // the last ordinary lanes
               {{0xc0861d99ffffffff}, {0xffafe6d6fd5d9a2a}},
               {{0x40861d9a00000000}, {0x7fafe6d6fd5d9e28}},  // the first rare ones
               {{0xc0861d9a00000000}, {0xffafe6d6fd5d9e28}},
               {{0x4086300000000000}, {0x7fe3e21a464507f9}},  // 710: made in two steps
               {{0x408633ce8fb9f87d}, {0x7feffffffffffd3b}},  // the last finite result
               {{0x408633ce8fb9f87e}, {inf_d}},
               {{0xc086340000000000}, {minus_inf_d}},  // -710.5
               {{inf_d}, {inf_d}},
               {{minus_inf_d}, {minus_inf_d}},
           });
    expect("sinh_native", odd_d_native,
           {
               {{one_d}, {0x3ff2cd9fc44eb982}},
               {{0x3fe6147ae147ae14}, {0x3fe7dfcda17b6175}},
               {{0xc034000000000000}, {0xc1aceb088b68e804}},
               {{0x40861d99ffffffff}, {0x7fafe6d6fd5d9a2a}},
               {{0x4086240000000000}, {any_nan}},
               {{0x4097700000000000}, {0xc7207aa324a845ff}},
               {{inf_d}, {any_nan}},
               {{minus_inf_d}, {any_nan}},
           });
}

TEST(Hyperbolic, Cosh) {
    expect("cosh", nans_d,
           {
               {{zero_d}, {one_d}},
               {{minus_zero_d}, {one_d}},
               {{0x0000000000000001}, {one_d}},
               {{one_d}, {0x3ff8b07551d9f551}},
               {{minus_one_d}, {0x3ff8b07551d9f551}},
               {{0x3e112e0be826d695}, {one_d}},
               {{0x3f661e4f765fd8ae}, {0x3ff00003d272a517}},  // r close to its ends
               {{0x3f66f0068db8bac7}, {0x3ff000041c44865a}},
               {{0x3fe6147ae147ae14}, {0x3ff3f65b718f35a0}},
               {{0x4008000000000000}, {0x402422a497d6185e}},
               {{0xc034000000000000}, {0x41aceb088b68e804}},  // -20
               {{0x40861d99ffffffff}, {0x7fafe6d6fd5d9a2b}},  // the last ordinary lanes
               {{0xc0861d99ffffffff}, {0x7fafe6d6fd5d9a2b}},
               {{0x40861d9a00000000}, {0x7fafe6d6fd5d9e28}},  // the first rare ones
               {{0xc0861d9a00000000}, {0x7fafe6d6fd5d9e28}},
               {{0x4086300000000000}, {0x7fe3e21a464507f9}},  // 710: made in two steps
               {{0x408633ce8fb9f87d}, {0x7feffffffffffd3b}},  // the last finite result
               {{0x408633ce8fb9f87e}, {inf_d}},
               {{0xc086340000000000}, {inf_d}},  // -710.5
               {{inf_d}, {inf_d}},
               {{minus_inf_d}, {inf_d}},
           });
    expect("cosh_native", nans_d_native,
           {
               {{zero_d}, {one_d}},
               {{minus_zero_d}, {one_d}},
               {{one_d}, {0x3ff8b07551d9f551}},
               {{0x3fe6147ae147ae14}, {0x3ff3f65b718f35a0}},
               {{0xc034000000000000}, {0x41aceb088b68e804}},
               {{0x40861d99ffffffff}, {0x7fafe6d6fd5d9a2b}},
               {{0x4086240000000000}, {any_nan}},
               {{0x4097700000000000}, {0x47207aa324a845fe}},
               {{inf_d}, {any_nan}},
               {{minus_inf_d}, {any_nan}},
           });
}

TEST(Hyperbolic, Tanh) {
    expect("tanhf", odd,
           {
               {{0x000116c2}, {0x000116c2}},  // 1e-40
               {{0x3cffffff}, {0x3cffeaac}},  // rows 0 and 1
               {{0x3d000000}, {0x3cffeaad}},
               {{0xbd010625}, {0xbd00fb39}},
               {{0x411fffff}, {one}},  // the last rows
               {{0x41200000}, {one}},
               {{0xc1200000}, {minus_one}},
               {{0x7e967699}, {one}},
               {{0x7f07ffff}, {one}},  // the last ordinary lane
               {{0x7f080000}, {one}},
               {{0xff7843b0}, {minus_one}},
               {{inf}, {one}},
               {{minus_inf}, {minus_one}},
           });
    expect("tanhf_native", odd_native,
           {
               {{0x000116c2}, {0x000116c2}},  // 1e-40
               {{0x3cffffff}, {0x3cffeaac}},  // rows 0 and 1
               {{0x3d000000}, {0x3cffeaad}},
               {{0xbd010625}, {0xbd00fb39}},
               {{0x41200000}, {one}},
               {{0x7e967699}, {one}},
               {{0x7f080000}, {one}},
               {{inf}, {any_nan}},
               {{minus_inf}, {any_nan}},
           });
    expect("tanh", odd_d,
           {
               {{0x1fefffffffffffff}, {0x1fefffffffffffff}},  // the last tiny lane
               {{0x1ff0000000000000}, {0x1ff0000000000000}},
               {{0xa0ca2fe76a3f9475}, {0xa0ca2fe76a3f9475}},
               {{0x3ee4f8b588e368f1}, {0x3ee4f8b588e06854}},
               {{0x3fbfffffffffffff}, {0x3fbfd5992bc4b834}},  // rows 0 and 1
               {{0x3fc0000000000000}, {0x3fbfd5992bc4b835}},
               {{0x3fc1000000000000}, {0x3fc0e6973998da48}},  // the middle of row 1
               {{0xbfc1eb851eb851ec}, {0xbfc1cdc80561188e}},
               {{0x4033ffffffffffff}, {0x3fefffffffffffff}},  // the last rows
               {{0x4034000000000000}, {one_d}},
               {{0x7fe1ffffffffffff}, {one_d}},  // the last ordinary lane
               {{0x7fe2000000000000}, {one_d}},
               {{0xffe2000000000000}, {minus_one_d}},
               {{inf_d}, {one_d}},
               {{minus_inf_d}, {minus_one_d}},
           });
    expect("tanh_native", odd_d_native,
           {
               {{0x1fefffffffffffff}, {0x1fefffffffffffff}},  // the last tiny lane
               {{0xa0ca2fe76a3f9475}, {0xa0ca2fe76a3f9475}},
               {{0x3ee4f8b588e368f1}, {0x3ee4f8b588e06854}},
               {{0x3fbfffffffffffff}, {0x3fbfd5992bc4b834}},  // rows 0 and 1
               {{0x3fc0000000000000}, {0x3fbfd5992bc4b835}},
               {{0x3fc1000000000000}, {0x3fc0e6973998da48}},  // the middle of row 1
               {{0x4034000000000000}, {one_d}},
               {{0xffe2000000000000}, {minus_one_d}},
               {{inf_d}, {any_nan}},
               {{minus_inf_d}, {any_nan}},
           });
}

// Rows that hold whatever the processor estimates, within 1.5 * 2^-12.
TEST(Hyperbolic, InversesFloat) {
    expect("asinhf", odd,
           {
               {{0x1e3ce508}, {0x1e3ce508}},
               {{0x3c23d70a}, {0x3c23d657}},
               {{0x3d800000}, {0x3d7fd567}},  // the last small lane
               {{0xbcf5c28f}, {0xbcf5b920}},
               {{0x3f000000}, {0x3ef66165}},
               {{one}, {0x3f61a1b3}},
               {{0x40400000}, {0x3fe8c2db}},
               {{0x461c4000}, {0x411e74af}},
               {{0x4e7fffff}, {0x41abe687}},  // from 2^30 on huge
               {{0x4e800000}, {0x41abe687}},
               {{0x5f0ac723}, {0x4231c4e1}},  // the square overflows
               {{0x7f7fffff}, {0x42b2d4fc}},
               {{0xff7fffff}, {0xc2b2d4fc}},
               {{inf}, {inf}},
               {{minus_inf}, {minus_inf}},
           });
    expect("asinhf_native", odd_native,
           {
               {{0x1e3ce508}, {0x1e3ce508}},
               {{0x3c23d70a}, {0x3c23d657}},
               {{0x3d800000}, {0x3d7fd500}},  // the last small lane
               {{0xbcf5c28f}, {0xbcf5b912}},
               {{0x4e800000}, {0x41abe687}},
               {{0x5f0ac723}, {0x4231c4e1}},  // the square overflows
               {{0x7f7fffff}, {0x42b2d4fc}},
               {{0xff7fffff}, {0xc2b2d4fc}},
               {{inf}, {any_nan}},
               {{minus_inf}, {any_nan}},
           });
    expect("acoshf", nans,
           {
               {{one}, {zero}},
               {{0x3f7fffff}, {default_nan}},
               {{0x3f800001}, {0x39ffffff}},
               {{0x40000000}, {0x3fa89214}},
               {{0x4e7fffff}, {0x41abe687}},  // from 2^30 on huge
               {{0x4e800000}, {0x41abe687}},
               {{0x5f0ac723}, {0x4231c4e1}},
               {{0x7f7fffff}, {0x42b2d4fc}},
               {{0x3f000000}, {default_nan}},
               {{zero}, {default_nan}},
               {{0xc0000000}, {default_nan}},
               {{inf}, {inf}},
               {{minus_inf}, {default_nan}},
           });
    expect("acoshf_native", nans_native,
           {
               {{one}, {any_nan}},
               {{0x3f7fffff}, {any_nan}},
               {{0x40000000}, {0x3fa89166}},
               {{0x4e7fffff}, {0x41abe687}},  // from 2^30 on huge
               {{0x4e800000}, {0x41abe687}},
               {{0x5f0ac723}, {0x4231c4e1}},
               {{0x7f7fffff}, {0x42b2d4fc}},
               {{0x3f000000}, {any_nan}},
               {{zero}, {any_nan}},
               {{0xc0000000}, {0x43302107}},
               {{inf}, {any_nan}},
               {{minus_inf}, {any_nan}},
           });
    expect("atanhf", odd,
           {
               {{0x1e3ce508}, {0x1e3ce508}},
               {{0x3c23d70a}, {0x3c23d870}},
               {{0x3f000000}, {0x3f0c9f54}},
               {{0xbf000000}, {0xbf0c9f54}},
               {{0x3f7fffff}, {0x410aa123}},
               {{one}, {inf}},
               {{minus_one}, {minus_inf}},
               {{0x3f800001}, {default_nan}},
               {{0xc0000000}, {default_nan}},
               {{inf}, {default_nan}},
               {{minus_inf}, {default_nan}},
           });
    expect("atanhf_native", odd_native,
           {
               {{0x1e3ce508}, {0x1e3ce508}},
               {{0x3c23d70a}, {0x3c23d86d}},
               {{0x3f000000}, {0x3f0c9e63}},
               {{0x3f7fffff}, {0x410aa123}},
               {{one}, {any_nan}},
               {{minus_one}, {any_nan}},
               {{inf}, {any_nan}},
               {{minus_inf}, {any_nan}},
           });
}

TEST(Hyperbolic, InversesDouble) {
    expect("asinh", odd_d,
           {
               {{0x01a56e1fc2f8f359}, {0x01a56e1fc2f8f359}},
               {{0x3ddb7cdfd9d7bdbb}, {0x3ddb7cdfd9d7bdbb}},
               {{0x3f60000000000000}, {0x3f5ffffeaaaad111}},  // the last small lane
               {{0xbf50624dd2f1a9fc}, {0xbf50624da5218b95}},
               {{0x3fe0000000000000}, {0x3fdecc2caec5160a}},
               {{0x4008000000000000}, {0x3ffd185b507edc0e}},
               {{0x40c3880000000000}, {0x4023ce95ebba7243}},
               {{0x41cfffffffffffff}, {0x40357cd0e7026820}},  // from 2^30 on huge
               {{0x41d0000000000000}, {0x40357cd0e7026820}},
               {{0x41e0000000000000}, {0x40362e42fefa39ef}},
               {{0x6126c2d4256ffcc3}, {0x407711b54c222777}},  // the square overflows
               {{0x7fefffffffffffff}, {0x408633ce8fb9f87d}},
               {{inf_d}, {inf_d}},
               {{minus_inf_d}, {minus_inf_d}},
           });
    expect("asinh_native", odd_d_native,
           {
               {{0x01a56e1fc2f8f359}, {0x01a56e1fc2f8f359}},
               {{0x3ddb7cdfd9d7bdbb}, {0x3ddb7cdfd9d7bdbb}},
               {{0x3f60000000000000}, {0x3f5ffffeaaaad111}},  // the last small lane
               {{0xbf50624dd2f1a9fc}, {0xbf50624da5218b95}},
               {{0x3fe0000000000000}, {0x3fdecc2caec51612}},
               {{0x40c3880000000000}, {0x4023ce95ebba7243}},
               {{0x41cfffffffffffff}, {0x40357cd0e7026820}},  // from 2^30 on huge
               {{0x41d0000000000000}, {0x40357cd0e7026820}},
               {{0x41e0000000000000}, {0x40362e42fefa39ef}},
               {{0x6126c2d4256ffcc3}, {0x407711b54c222777}},  // the square overflows
               {{0x7fefffffffffffff}, {0x408633ce8fb9f87d}},
               {{inf_d}, {any_nan}},
               {{minus_inf_d}, {any_nan}},
           });
    expect("acosh", nans_d,
           {
               {{one_d}, {zero_d}},
               {{0x3fefffffffffffff}, {default_nan_d}},
               {{0x4059000000000000}, {0x401531738dcbc626}},
               {{0x41d0000000000000}, {0x40357cd0e7026820}},  // 2^30: huge
               {{0x41e0000000000000}, {0x40362e42fefa39ef}},
               {{0x6126c2d4256ffcc3}, {0x407711b54c222777}},
               {{0x7fefffffffffffff}, {0x408633ce8fb9f87d}},
               {{0x3fe0000000000000}, {default_nan_d}},
               {{zero_d}, {default_nan_d}},
               {{0xc000000000000000}, {default_nan_d}},
               {{inf_d}, {inf_d}},
               {{minus_inf_d}, {default_nan_d}},
           });
    expect("acosh_native", nans_d_native,
           {
               {{one_d}, {any_nan}},
               {{0x3fefffffffffffff}, {any_nan}},
               {{0x41d0000000000000}, {0x40357cd0e7026820}},  // 2^30: huge
               {{0x41e0000000000000}, {0x40362e42fefa39ef}},
               {{0x6126c2d4256ffcc3}, {0x407711b54c222777}},
               {{0x7fefffffffffffff}, {0x408633ce8fb9f87d}},
               {{0x3fe0000000000000}, {any_nan}},
               {{zero_d}, {any_nan}},
               {{inf_d}, {any_nan}},
               {{minus_inf_d}, {any_nan}},
           });
    expect("atanh", odd_d,
           {
               {{0x01a56e1fc2f8f359}, {0x01a56e1fc2f8f359}},
               {{0x3ddb7cdfd9d7bdbb}, {0x3ddb7cdfd9d7bdbb}},
               {{0x3f847ae147ae147b}, {0x3f847b0e059d0597}},
               {{0x3fe0000000000000}, {0x3fe193ea7aad030a}},
               {{0x3feccccccccccccd}, {0x3ff78e360604b32d}},
               {{0x3fefffffffffffff}, {0x4032b708872320e2}},
               {{one_d}, {inf_d}},
               {{minus_one_d}, {minus_inf_d}},
               {{0x3ff0000000000001}, {default_nan_d}},
               {{0xc000000000000000}, {default_nan_d}},
               {{inf_d}, {default_nan_d}},
               {{minus_inf_d}, {default_nan_d}},
           });
    expect("atanh_native", odd_d_native,
           {
               {{0x01a56e1fc2f8f359}, {0x01a56e1fc2f8f359}},
               {{0x3ddb7cdfd9d7bdbb}, {0x3ddb7cdfd9d7bdbb}},
               {{0x3fefffffffffffff}, {0x4032b708872320e2}},
               {{one_d}, {any_nan}},
               {{minus_one_d}, {any_nan}},
               {{inf_d}, {any_nan}},
               {{minus_inf_d}, {any_nan}},
           });
}

}  // namespace
