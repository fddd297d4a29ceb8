// Values of tgamma by their bits, worked out from the steps in the same order and formats; exact ones; and the caller's
// x87 control word.
#include <cmath>
#include <limits>

#include "tests/harness/lanes.h"
#include "tests/special/control_word.h"

namespace {

using harness::expect_rows;
using harness::pattern;
using harness::Patterns;
using harness::Row;

template <class Float>
struct Bits;
template <>
struct Bits<float> {
    static constexpr const char* family = "tgammaf";
    static constexpr uint64_t minus_zero = 0x80000000, inf = 0x7f800000, minus_inf = 0xff800000, nan = 0xffc00000;
};
template <>
struct Bits<double> {
    static constexpr const char* family = "tgamma";
    static constexpr uint64_t minus_zero = 0x8000000000000000, inf = 0x7ff0000000000000, minus_inf = 0xfff0000000000000,
                              nan = 0xfff8000000000000;
};

// Special operands and those that the two precisions bound differently.
template <class Float>
struct Bounds {
    Float largest_pole, first_infinite, all_whole, first_zero;
};
template <class Float>
void expect_special(const Bounds<Float>& bounds) {
    using B = Bits<Float>;
    std::vector<Row> rows = {
        {{0}, {B::inf}}, {{B::minus_zero}, {B::minus_inf}}, {{B::inf}, {B::inf}}, {{B::minus_inf}, {B::nan}}};
    auto add = [&](Float x, uint64_t result) { rows.push_back({{pattern(x)}, {result}}); };
    add(std::numeric_limits<Float>::denorm_min(), B::inf);
    add(-std::numeric_limits<Float>::denorm_min(), B::minus_inf);
    add(bounds.largest_pole, B::inf);
    add(-bounds.largest_pole, B::minus_inf);
    add(bounds.first_infinite, B::inf);
    add(std::numeric_limits<Float>::max(), B::inf);
    for (Float n : {Float(1), Float(2), Float(3), Float(42), Float(1000), -bounds.first_zero - Float(0.5),
                    bounds.all_whole, bounds.all_whole * 2, std::numeric_limits<Float>::max()})
        add(-n, B::nan);
    // Zeros take turns with the integers, on which side of the axis gamma comes down to it.
    for (int i = 0; i < 4; ++i) add(bounds.first_zero - Float(i), i % 2 == 0 ? 0 : B::minus_zero);
    expect_rows(B::family, rows);
}

TEST(Gamma, SpecialOperandsInFloat) {
    expect_special<float>({0x1p-128f, 0x1.1852200000000p5f, 0x1p23f, -43.5f});
    expect_rows("tgammaf",
                {{{0x7fc12345}, {0x7fc12345}},
                 {{0xff812345}, {0xffc12345}},
                 {{0xc22a0000}, {0x80000000}},    // -42.5
                 {{0xca800000}, {0xffc00000}},    // -2^22; beyond, the shifter rounds to even integers, so that
                 {{0xca800001}, {0x80000000}},    // one of four,
                 {{0xca800002}, {0x80000000}},    // -4194305, is taken for a fraction
                 {{0xca800006}, {0xffc00000}},    // -4194307
                 {{0xcafffffe}, {0xffc00000}},    // -8388607
                 {{0xcaffffff}, {0x00000000}}});  // -8388607.5
}
TEST(Gamma, SpecialOperandsInDouble) {
    expect_special<double>({0x1p-1024, 0x1.573fae561f648p7, 0x1p52, -185.5});
    expect_rows("tgamma", {{{0x7ff8123456789abc}, {0x7ff8123456789abc}},
                           {{0xfff0000000000001}, {0xfff8000000000001}},
                           {{0xc067100000000000}, {0x8000000000000000}},    // -184.5
                           {{0xc31ffffffffffffe}, {0x0000000000000000}},    // -2^51 + 0.5
                           {{0xc320000000000001}, {0xfff8000000000000}}});  // -2^51 - 0.5: taken for an integer
}

// Factorials as far as they are exact in the format.
template <class Float>
void expect_factorials(int last) {
    std::vector<Row> rows;
    uint64_t factorial = 1;
    for (int n = 1; n <= last; ++n) {
        rows.push_back({{pattern(Float(n))}, {pattern(static_cast<Float>(factorial))}});
        factorial *= static_cast<uint64_t>(n);
    }
    expect_rows(Bits<Float>::family, rows);
}
TEST(Gamma, Factorials) {
    expect_factorials<float>(14);
    expect_factorials<double>(21);
}

// An operand on each polynomial, row and reflection, where that could be found one whose last bit is not that of the
// nearest number, and both sides of every edge between them.
TEST(Gamma, LastBitsInFloat) {
    expect_rows("tgammaf", {
                               {{0x3d0739ab}, {0x41edf51b}},  // 0.0330139808
                               {{0x3ed5787e}, {0x4008130e}},  // 0.416934907
                               {{0x3f3c14b2}, {0x3f9f87d8}},  // 0.734690785
                               {{0x3f467ccc}, {0x3f98b7ea}},  // 0.775341749
                               {{0x3f84c8bb}, {0x3f7ad1b2}},  // 1.03737581
                               {{0x3fa3d59e}, {0x3f6695fb}},  // 1.27995658
                               {{0x3fd031c5}, {0x3f659318}},  // 1.62651885
                               {{0x3feb0082}, {0x3f7100f1}},  // 1.835953
                               {{0x4028651e}, {0x3fbb5e75}},  // 2.6311717
                               {{0x40ea57ba}, {0x44a62b12}},  // 7.32320881
                               {{0x4109bfd8}, {0x4689bef1}},  // 8.60933685
                               {{0x41711142}, {0x51c220ea}},  // 15.0667133
                               {{0x41aa4169}, {0x5e9e8c1f}},  // 21.2819386
                               {{0x41caa09a}, {0x67bc3cbf}},  // 25.3284187
                               {{0x420979e2}, {0x7dbf5b3f}},  // 34.3690262
                               {{0xbb22f6f3}, {0xc3c95d37}},  // -0.00248664315
                               {{0xbf2f9f38}, {0xc0850817}},  // -0.686023235
                               {{0xbffa7953}, {0x41415afe}},  // -1.95682752
                               {{0xc006b8c0}, {0xc08c8292}},  // -2.10502625
                               {{0xc101d61b}, {0xb934fe21}},  // -8.11477184
                               {{0xc1727e74}, {0x2c6a4555}},  // -15.1558723
                               {{0xc1858931}, {0xa8e8a3cb}},  // -16.691988
                               {{0xc1fbd093}, {0x06c3d4af}},  // -31.4768429
                               {{0xc21b3e80}, {0x80000000}},  // -38.8110352
                               {{0xc2226e50}, {0x80000000}},  // -40.6077271
                               {{0x3fa00000}, {0x3f6809fe}},  // 1.25
                               {{0x3f9fffff}, {0x3f6809ff}},  // below 1.25
                               {{0x3fc00000}, {0x3f62dfc5}},  // 1.5
                               {{0x3fbfffff}, {0x3f62dfc4}},  // below 1.5
                               {{0x3fe00000}, {0x3f6b47af}},  // 1.75
                               {{0x3fdfffff}, {0x3f6b47ae}},  // below 1.75
                               {{0x3f7fffff}, {0x3f800000}},  // below 1
                               {{0x3fffffff}, {0x3f7fffff}},  // below 2
                               {{0x40ffffff}, {0x459d7ff6}},  // below 8
                               {{0xc21fffff}, {0x000000e5}},  // above -40
                               {{0xc2200001}, {0x800000e5}},  // below -40
                               {{0xc22bffff}, {0x80000000}},  // above -43
                               {{0x00200001}, {0x7f7ffff8}},  // 2^-128 and the next
                               {{0x80200001}, {0xff7ffff8}},  // -2.93873728e-39
                               {{0x420c290f}, {0x7f7fff81}},  // below 35.0401
                           });
}
TEST(Gamma, LastBitsInDouble) {
    expect_rows("tgamma", {
                              {{0x3fbb631c742f49aa}, {0x4021bbc5bb8bafa2}},  // 0.106981066
                              {{0x3fd6838adf510101}, {0x40044319a8a27d46}},  // 0.351778715
                              {{0x3fe98ae11cb950f3}, {0x3ff2a8faa68401fc}},  // 0.798203045
                              {{0x3ff0129114b5963e}, {0x3fefeabb5640f9cc}},  // 1.00453289
                              {{0x3ff78d9eb95d3815}, {0x3fec573e338c12b1}},  // 1.4720752
                              {{0x3ffba4a4e863ff74}, {0x3fed40f30378fd11}},  // 1.72769633
                              {{0x40032256ffb6e888}, {0x3ff3c4bd64edae72}},  // 2.3917675
                              {{0x402ee0fb79877324}, {0x42508b033664161d}},  // 15.4394186
                              {{0x403508298b01425c}, {0x43c296ba18d4d5d2}},  // 21.0318839
                              {{0x4046acd5c55696c2}, {0x4b5a41ad6de9e3eb}},  // 45.3502738
                              {{0x404861be2665880e}, {0x4c88b431032c788b}},  // 48.7636154
                              {{0x4051fc734dbf0516}, {0x55132da3d3889754}},  // 71.9445376
                              {{0x4057aa825b108b62}, {0x5e1e442acbf28e47}},  // 94.6642063
                              {{0x4058aeaef2a45d84}, {0x5fca009de73a48da}},  // 98.729428
                              {{0x405c724d3778b47f}, {0x661e856e66dc5cf1}},  // 113.785963
                              {{0x4060a7195ec0289f}, {0x6e8c96cb27028f65}},  // 133.221847
                              {{0x4062b47812684662}, {0x75e050d787a38e7c}},  // 149.639657
                              {{0x4064692f2b8d992e}, {0x7c15c32453492b8c}},  // 163.287008
                              {{0xbfdfffbf4eb0e1a2}, {0xc00c5bf99dfee069}},  // -0.499984576
                              {{0xbfe4f363d46bb7f0}, {0xc00f8db09cb69828}},  // -0.654710688
                              {{0xbff7cf3e11a2e7fb}, {0x400313e82a520208}},  // -1.4880963
                              {{0xc01d7b2ae3219cc2}, {0x3f34e7eb75ef6554}},  // -7.37028079
                              {{0xc0522cee26366eb7}, {0xaa3ccb0b57d708ab}},  // -72.7020355
                              {{0xc06538ac3dfb2e60}, {0x0077f02a878af19a}},  // -169.771026
                              {{0xc0655dc1e336a993}, {0x800bf3fe532064a2}},  // -170.929918
                              {{0xc066972dff96792b}, {0x8000000000000000}},  // -180.724365
                              {{0x3ff4000000000000}, {0x3fed013fc47eeeea}},  // 1.25
                              {{0x3ff3ffffffffffff}, {0x3fed013fc47eeeeb}},  // below 1.25
                              {{0x3ff8000000000000}, {0x3fec5bf891b4ef6b}},  // 1.5
                              {{0x3ff7ffffffffffff}, {0x3fec5bf891b4ef6b}},  // below 1.5
                              {{0x3fefffffffffffff}, {0x3ff0000000000000}},  // below 1
                              {{0x3fffffffffffffff}, {0x3fefffffffffffff}},  // below 2
                              {{0x402fffffffffffff}, {0x42730777757fffe6}},  // below 16
                              {{0xc065ffffffffffff}, {0x003ff5df5f533fd3}},  // above -176
                              {{0xc066000000000001}, {0x803ff5df5f53357e}},  // below -176
                              {{0xc066e80000000000}, {0x0000000000000000}},  // -183.25
                              {{0x0004000000000001}, {0x7feffffffffffff8}},  // 2^-1024 and the next
                              {{0x8004000000000001}, {0xffeffffffffffff8}},  // -5.56268465e-309
                              {{0x406573fae561f647}, {0x7feffffffffffe51}},  // below 171.624
                              {{0x4065733333333333}, {0x7fec3adadc5107b1}},  // 171.6
                              {{0x3c30000000000000}, {0x43b0000000000000}},  // 2^-60
                          });
}

// Significands of 24, 53 or 64 bits at the call: the results are the same and the word stays, on every path.
TEST(Gamma, AnyPrecisionOfTheCaller) {
    const double operands[] = {0.3,    1.1,    1.3,      1.9,       2.5,
                               17.5,   100.3,  170.9,    -0.3,      -1.3,
                               -2.3,   -20.7,  -170.3,   -180.7,    0.0,
                               1e-310, 1e-308, -3.0,     -0x1p60,   -200.5,
                               171.63, 1e300,  HUGE_VAL, -HUGE_VAL, std::numeric_limits<double>::quiet_NaN()};
    const grid::Family& tgamma = harness::family("tgamma");
    for (double x : operands)
        for (int width : {1, 4}) {
            Patterns lanes(4, pattern(x));
            Patterns expected;
            {
                ControlWord extended(0x300);
                expected = harness::call(tgamma, width, {lanes})[0];
            }
            for (uint16_t precision : {0x000, 0x200, 0x300}) {
                Patterns results;
                bool stands;
                {
                    ControlWord word(precision);
                    results = harness::call(tgamma, width, {lanes})[0];
                    stands = word.stands();
                }
                EXPECT_TRUE(stands) << "tgamma of " << x << ", word " << precision;
                EXPECT_EQ(results, expected) << "tgamma of " << x << ", word " << precision;
            }
        }
}

}  // namespace
