// Values of lgamma and lgammar by their bits, worked out from the steps with significands of 64 bits, and what the x87
// unit's precision does to them.
#include <cmath>
#include <limits>

#include "tests/harness/lanes.h"
#include "tests/special/control_word.h"

namespace {

using harness::expect_rows;
using harness::pattern;
using harness::Patterns;
using harness::Row;

struct Value {
    uint64_t x, ln;
    int32_t sign;
};

// Both families of a precision: the logarithm is the same.
template <class Values>
void expect_values(const char* without_sign, const char* with_sign, const Values& values) {
    std::vector<Row> logarithms, both;
    for (const Value& value : values) {
        logarithms.push_back({{value.x}, {value.ln}});
        both.push_back({{value.x}, {value.ln, pattern(value.sign)}});
    }
    expect_rows(without_sign, logarithms);
    expect_rows(with_sign, both);
}
template <class Values>
void expect_float(const Values& values) {
    expect_values("lgammaf", "lgammarf", values);
}
template <class Values>
void expect_double(const Values& values) {
    expect_values("lgamma", "lgammar", values);
}

// Zeros, poles, infinities, NaN; the first operand that overflows.
template <class Float>
std::vector<Value> special(Float limit) {
    using Limits = std::numeric_limits<Float>;
    uint64_t inf = pattern(Limits::infinity());
    std::vector<Value> values = {{0, inf, 1},
                                 {pattern(Float(-0.0)), inf, -1},
                                 {inf, inf, 1},
                                 {pattern(-Limits::infinity()), inf, 1},
                                 {pattern(Limits::quiet_NaN()), pattern(Limits::quiet_NaN()), 1},
                                 {pattern(-Limits::quiet_NaN()) | 0x1234, pattern(-Limits::quiet_NaN()) | 0x1234, 1},
                                 {pattern(Float(1)), 0, 1},
                                 {pattern(Float(2)), 0, 1},
                                 {pattern(limit), inf, 1},
                                 {pattern(Limits::max()), inf, 1}};
    for (double pole : {1.0, 2.0, 3.0, 4.0, 9.0, 15.0, 17.0, 512.0, 8191.0, 8192.0, 0x1p22 + 1, 0x1p23 - 1, 0x1p23})
        values.push_back({pattern(static_cast<Float>(-pole)), inf, 1});
    values.push_back({pattern(-Limits::max()), inf, 1});
    return values;
}
TEST(LogGamma, SpecialOperands) {
    expect_float(special(harness::as_float(0x7c44af8e)));
    expect_double(special(harness::as_double(0x7f5754d9278b51a8)));
    expect_double(std::vector<Value>{{pattern(-0x1p51 - 1), 0x7ff0000000000000, 1},
                                     {pattern(-0x1p52 + 1), 0x7ff0000000000000, 1}});
}

// An operand on each polynomial and in each way of computing, both sides of every edge between them, the zeros and the
// ends of their brackets.
const Value float_values[] = {
    {0x3dc7588e, 0x4011f942, 1},   // 0.0973368734, below 1/4
    {0x3eceec3b, 0x3f493f2f, 1},   // 0.404146045
    {0x3f330e49, 0x3e85ea86, 1},   // 0.699436724
    {0x3f4ca61b, 0x3e1c4b00, 1},   // 0.799409568
    {0x3f83e825, 0xbc8a23b5, 1},   // 1.03052199
    {0x3fa8a82d, 0xbde34af4, 1},   // 1.31763232
    {0x3fc950f0, 0xbdecf53a, 1},   // 1.57278252
    {0x3ff5af07, 0xbd02d7a9, 1},   // 1.91940391
    {0x4038ec06, 0x3f17f273, 1},   // 2.88940573
    {0x40afbd10, 0x407c7540, 1},   // 5.49182892, row 0
    {0x417e7cb9, 0x41dd1f88, 1},   // 15.9054499, row 1
    {0x41fd84f8, 0x429a0c48, 1},   // 31.6899261, row 2
    {0x425d7077, 0x4325c28d, 1},   // 55.3598289, row 3
    {0x42a62ffd, 0x438d71a8, 1},   // 83.0937271, row 4
    {0x43639e22, 0x447b8158, 1},   // 227.617706, row 5
    {0x43ffc58a, 0x45274f94, 1},   // 511.543274, row 6
    {0x442c3306, 0x456e21b9, 1},   // 688.797241, row 7
    {0x44c96c1d, 0x4620b684, 1},   // 1611.37854, row 8
    {0x4563d6a1, 0x46cd1089, 1},   // 3645.41431, row 9
    {0x45c00672, 0x47395f1e, 1},   // 6144.80566, row 10
    {0x51b5d4c8, 0x540a1a4e, 1},   // 9.76198697e+10
    {0xbef70c84, 0x3fa23df3, -1},  // -0.482517362
    {0xbff46fe0, 0x3fe733a3, 1},   // -1.90966415
    {0xc03ecae7, 0x400cfbed, -1},  // -2.98113418
    {0xc0430780, 0x3f99f25f, 1},   // -3.04733276
    {0xc090f808, 0xc036e009, -1},  // -4.53027725
    {0xc18e9298, 0xc208658a, 1},   // -17.821579
    {0xc5a681d5, 0xc71dcbc0, -1},  // -5328.229
    {0xc9251199, 0xcb002d63, 1},   // -676121.562
    {0x3f9fffff, 0xbdc942bb, 1},   // below 1.25
    {0x3fa00000, 0xbdc942bf, 1},   // 1.25
    {0x3fbfffff, 0xbdf75cae, 1},   // below 1.5
    {0x3fc00000, 0xbdf75cae, 1},   // 1.5
    {0x3fdfffff, 0xbdacda83, 1},   // below 1.75
    {0x3fe00000, 0xbdacda7f, 1},   // 1.75
    {0x407fffff, 0x3fe5585d, 1},   // below 4
    {0x40800000, 0x3fe55860, 1},   // 4
    {0x40ffffff, 0x4108670f, 1},   // below 8
    {0x41000000, 0x41086710, 1},   // 8
    {0x45ffffff, 0x47802ae8, 1},   // below 8192
    {0x46000000, 0x47802ae8, 1},   // 8192
    {0xbfffffff, 0x4173fce1, 1},   // above -2
    {0xc0000001, 0x4168e5bf, -1},  // below -2
    {0xc07fffff, 0x41412392, 1},   // above -4
    {0xc0800001, 0x41360c70, -1},  // below -4
    {0xc10fffff, 0x3f87d2b9, -1},  // above -9
    {0xc1100001, 0x3f87d295, 1},   // below -9
    {0xc5ffffff, 0xc7802b99, 1},   // above -8192
    {0xc6000001, 0xc7802bf4, -1},  // below -8192
    {0xc02fda08, 0xb41ad05c, -1},  // next to the zero
    {0xc02fda1d, 0x371e63ee, -1},  // low: inside
    {0xc02fda1e, 0x37260c53, -1},  // outside
    {0xc02fd9f3, 0xb7233861, -1},  // high: outside
    {0xc02fd9f4, 0xb71b902f, -1},  // inside
    {0xc01d3fe5, 0xb3f26792, -1},  // next to the zero
    {0xc01d3ffa, 0xb70133cf, -1},  // low: outside
    {0xc01d3ff9, 0xb6f647c2, -1},  // inside
    {0xc01d3fd0, 0x36fad678, -1},  // high: inside
    {0xc01d3fcf, 0x37037b43, -1},  // outside
    {0xc07d238b, 0x35eea5aa, 1},   // next to the zero
    {0xc07d23df, 0x39da9948, 1},   // low: outside
    {0xc07d23de, 0x39d801c2, 1},   // inside
    {0xc07d22ec, 0xba4d6514, 1},   // high: outside
    {0xc07d22ed, 0xba4c19c8, 1},   // inside
    {0xc049306e, 0xb4528315, 1},   // next to the zero
    {0xc0493083, 0xb8243d39, 1},   // low: outside
    {0xc0493082, 0xb81c7520, 1},   // inside
    {0xc0493059, 0x38229997, 1},   // high: inside
    {0xc0493058, 0x382a61d1, 1},   // outside
    {0x3f000000, 0x3f128682, 1},   // 0.5
    {0xbf000000, 0x3fa1fc4d, -1},  // -0.5
    {0xbfc00000, 0x3f5c2c0b, 1},   // -1.5
    {0x00000001, 0x42ce8ed0, 1},   // 2^-149
    {0x80000001, 0x42ce8ed0, -1},  // -2^-149
    {0x7c44af8d, 0x7f7ffffe, 1},   // largest
    {0x3f7fffff, 0x3313c469, 1},   // below 1
    {0x3f800001, 0xb393c466, 1},   // 1.00000012
    {0x3fffffff, 0xb358772f, 1},   // 1.99999988
    {0x40000001, 0x33d87733, 1},   // 2.00000024
    {0xca7fffff, 0xcc63fce2, 1},   // -4194303.75
    {0xcaffffff, 0xccef1402, 1},   // -8388607.5
    {0xcafffffd, 0xccef1400, -1},  // -8388606.5
    {0xc5ffffff, 0xc7802b99, 1},   // -8191.99951
};
TEST(LogGamma, LastBitsInFloat) { expect_float(float_values); }

const Value double_values[] = {
    {0x3fc589235f3875ad, 0x3ffb4eecf8174782, 1},   // 0.168247625
    {0x3fe9aa8f9cf96165, 0x3fc3356201071301, 1},   // 0.802070433
    {0x3fefe9f02a1314e4, 0x3f5991174e1bc381, 1},   // 0.997306902
    {0x3ffae48c11052fc4, 0xbfb983ab0a37fc49, 1},   // 1.68079764
    {0x400123143a22e1d9, 0x3fb100c9df54f050, 1},   // 2.14212842
    {0x40060c3d4d6ae3ae, 0x3fdeba3a7112bba8, 1},   // 2.7559763
    {0x40194ca9b01a99c8, 0x401567909f24d9f9, 1},   // 6.32486606, row 0
    {0x4025c80a3b0798ed, 0x402db225a9b34abd, 1},   // 10.8907031, row 1
    {0x40393fc37eb33d3b, 0x404bca96af0778e5, 1},   // 25.2490768, row 2
    {0x404ed8ec5dc50df7, 0x4067ef6f2166c247, 1},   // 61.6947133, row 3
    {0x405ea22ea5083d55, 0x407d12c47e227e0c, 1},   // 122.534097, row 4
    {0x4065ce44d4505ca3, 0x4086a28599eda820, 1},   // 174.445902, row 5
    {0x40746c9aac6f86a6, 0x40986c7370836194, 1},   // 326.787762, row 6
    {0x4096cb852dbc2e1f, 0x40c1e77a6e910ca8, 1},   // 1458.88006
    {0x6e6770ad2c4c2194, 0x6ef78cb0a1828d72, 1},   // 6.77839763e+223
    {0xbfcdd49c30e1dc30, 0x3ffa448cfeaf6875, -1},  // -0.233050846
    {0xbff968feb0a3c743, 0x3feab88da93a9cc3, 1},   // -1.58813352
    {0xc021dfa55001842b, 0xc023c87e56dd5166, -1},  // -8.93680811
    {0xc0300657896f4710, 0xc03b0ad6087aac66, -1},  // -16.0247732
    {0xc072b6c45e98e6d8, 0xc09609c242149ad4, 1},   // -299.422942
    {0xc0ae3eb258144a93, 0xc0db74c224671df7, 1},   // -3871.34833
    {0xc14318364a1733a5, 0xc1806395f8b4d9ca, -1},  // -2502764.58
    {0x3febffffffffffff, 0x3fb5fad6139c1209, 1},   // below 0.875
    {0x3fec000000000000, 0x3fb5fad6139c1203, 1},   // 0.875
    {0x3ff3ffffffffffff, 0xbfb92857d38caf3e, 1},   // below 1.25
    {0x3ff4000000000000, 0xbfb92857d38caf41, 1},   // 1.25
    {0x3ffbffffffffffff, 0xbfb59b4fd6875a72, 1},   // below 1.75
    {0x3ffc000000000000, 0xbfb59b4fd6875a6e, 1},   // 1.75
    {0x4001ffffffffffff, 0x3fbff797bba884f0, 1},   // below 2.25
    {0x4002000000000000, 0x3fbff797bba88502, 1},   // 2.25
    {0x400fffffffffffff, 0x3ffcab0bfa2a2000, 1},   // below 4
    {0x4010000000000000, 0x3ffcab0bfa2a2002, 1},   // 4
    {0x407fffffffffffff, 0x40a4efa4f073a640, 1},   // below 512
    {0x4080000000000000, 0x40a4efa4f073a641, 1},   // 512
    {0x3fefffffffffffff, 0x3c92788cfc6fb61a, 1},   // below 1
    {0x3ff0000000000001, 0xbca2788cfc6fb617, 1},   // above 1
    {0x3fffffffffffffff, 0xbc9b0ee6072093cd, 1},   // below 2
    {0x4000000000000001, 0x3cab0ee6072093d1, 1},   // above 2
    {0xbfffffffffffffff, 0x4041acdd632f662b, 1},   // above -2
    {0xc000000000000001, 0x4041542457337d43, -1},  // below -2
    {0xc02dffffffffffff, 0x4018427fc0bd55c5, -1},  // above -15
    {0xc02e000000000001, 0x4018427fc0bd55ba, 1},   // below -15
    {0xc030ffffffffffff, 0xbfcdf3fff389c4e6, -1},  // above -17
    {0xc031000000000001, 0xbfcdf3fff389c7c3, 1},   // below -17
    {0xc07fffffffffffff, 0xc0a4bf1fbde5e2e1, 1},   // above -512
    {0xc080000000000001, 0xc0a4c082a215d287, -1},  // below -512
    {0xc005fb410a1bd901, 0x3ca8fb8530ba7689, -1},  // -2.7476826467274127
    {0xc003a7fc9600f86c, 0x3c90323b6d1fe86d, -1},  // -2.4570247382208006
    {0xc00fa471547c2fe5, 0xbcbddc0336980b58, 1},   // -3.955294284858598
    {0xc009260dbc9e59af, 0x3cde9605e3ae7a62, 1},   // -3.14358088834998
    {0xc013f7577a6eeafd, 0x3d13e8f4cd45ea7b, -1},  // -4.991544640560048
    {0xc010284e78599581, 0xbcf982d05a2f456b, -1},  // -4.039361839740537
    {0xc017fe92f591f40e, 0x3d5c12b84e74fedd, 1},   // -5.998607480080876
    {0xc014086a57f0b6d9, 0x3cf867827fdc0e93, 1},   // -5.0082181683225935
    {0xc01bffcbf76b86f0, 0x3d2de8db1b9953d0, -1},  // -6.999801507890638
    {0xc018016b25897c8d, 0xbd2a23d2367ff1e9, -1},  // -6.001385294453155
    {0xc01ffff97f8159cf, 0xbd82a8c24e015bf0, 1},   // -7.999975197095821
    {0xc01c0033fdedfe1f, 0xbd7638f6c2b4fb95, 1},   // -7.000198333407325
    {0xc021ffffa3884bd0, 0xbdd6211e6b51db52, -1},  // -8.999997244250977
    {0xc02000034028b3f9, 0x3db34e935f3e5a5d, -1},  // -8.000024800270682
    {0xc023fffff6c0d7c0, 0x3e1e71234a0c85f6, 1},   // -9.99999972442663
    {0xc02200005c7768fb, 0x3dc2ef5ea4b4dd94, 1},   // -9.000002755714823
    {0xc025ffffff28cdd4, 0x3e4102aa0e23a287, -1},  // -10.99999997494789
    {0xc0240000093f2777, 0x3e15c377c9a79b5a, -1},  // -10.000000275573013
    {0xc027ffffffee1127, 0xbe69c4f89e039ea6, 1},   // -11.999999997912324
    {0xc026000000d7322a, 0x3e5d5cec19a5810c, 1},   // -11.000000025052106
    {0xc029fffffffe9edc, 0x3ed19f5f53428584, -1},  // -12.99999999983941
    {0xc02800000011eed9, 0xbe6f6e87484c2c6d, -1},  // -12.000000002087676
    {0xc02bffffffffe6c7, 0x3f1280037eb4492d, 1},   // -13.99999999998853
    {0xc02a000000016124, 0x3ed19e7986b5458c, 1},   // -13.00000000016059
    {0xc02dfffffffffe52, 0x3f52ed7d83e61be3, -1},  // -14.999999999999236
    {0xc02c000000001939, 0x3f12800270e342a1, -1},  // -14.00000000001147
    {0xc0064f38d8f4ef88, 0x3fb89ec00361fc4c, -1},  // low end
    {0xc0064f38d8f4ef87, 0x3fb89ec00361fbf2, -1},  // low, inside
    {0xc005a7493b42c27a, 0xbfb0496c237b5406, -1},  // high end
    {0xc005a7493b42c27b, 0xbfb0496c237b53df, -1},  // high, inside
    {0xc0040e62fc675ed2, 0xbfb0526ce28b65f6, -1},  // low end
    {0xc0040e62fc675ed1, 0xbfb0526ce28b65d4, -1},  // low, inside
    {0xc00341962f9a9206, 0x3fb691989979a322, -1},  // high end
    {0xc00341962f9a9207, 0x3fb691989979a2e1, -1},  // high, inside
    {0xc01ffffa4f912e95, 0x3fc11756d54daa3a, 1},   // low end
    {0xc01ffffa4f912e94, 0x3fc11756d5372acd, 1},   // low, inside
    {0xc01ffff8af718509, 0xbfbe2698145ae168, 1},   // high end
    {0xc01ffff8af71850a, 0xbfbe26981437e26b, 1},   // high, inside
    {0xc01c003a7dabbde3, 0xbfbe2a4d87b6bcfc, 1},   // low end
    {0xc01c003a7dabbde2, 0xbfbe2a4d87b25c08, 1},   // low, inside
    {0xc01c002d7e303e5b, 0x3fc1193193171efa, 1},   // high end
    {0xc01c002d7e303e5c, 0x3fc1193193144e6f, 1},   // high, inside
    {0xc02dfffffffffe88, 0x3fc153312ae1f704, -1},  // low end
    {0xc02dfffffffffe87, 0x3fc0fc28a7b31354, -1},  // low, inside
    {0xc02dfffffffffe1c, 0xbfbdfd2da0196a9d, -1},  // high end
    {0xc02dfffffffffe1d, 0xbfbd75a218d44e3a, -1},  // high, inside
    {0xc02c000000001c60, 0xbfbe2146b9c4f577, -1},  // low end
    {0xc02c000000001c5f, 0xbfbe1840ed8afbd2, -1},  // low, inside
    {0xc02c000000001612, 0x3fc11924eb3e51fa, -1},  // high end
    {0xc02c000000001613, 0x3fc11358574620cb, -1},  // high, inside
    {0x0000000000000001, 0x40874385446d71c3, 1},   // 2^-1074
    {0x8000000000000001, 0x40874385446d71c3, -1},  // -2^-1074
    {0x7f5754d9278b51a7, 0x7fefffffffffffff, 1},   // largest
    {0xc32ffffffffffffd, 0xc38185966f2b4f11, -1},  // -4503599627370494.5
    {0xc31ffffffffffffe, 0xc3712cdd632f662b, 1},   // -2251799813685247.5
    {0xc320000000000001, 0xc3712cdd632f662d, -1},  // -2251799813685248.5
    {0xc320000000000003, 0xc3712cdd632f662f, -1},  // -2251799813685249.5
};
TEST(LogGamma, LastBitsInDouble) { expect_double(double_values); }

// With significands of 24 or 53 bits at the call, lgamma computes with 64 all the same, and the word stands after every
// exit.
TEST(LogGamma, AnyPrecisionOfTheCaller) {
    std::vector<Value> values = special(harness::as_double(0x7f5754d9278b51a8));
    values.insert(values.end(), std::begin(double_values), std::end(double_values));
    const grid::Family& lgamma = harness::family("lgamma");
    for (uint16_t precision : {0x000, 0x200, 0x300})
        for (int width : {1, 4})
            for (const Value& value : values) {
                Patterns results;
                bool stands;
                {
                    ControlWord word(precision);
                    results = harness::call(lgamma, width, {Patterns(4, value.x)})[0];
                    stands = word.stands();
                }
                EXPECT_TRUE(stands) << std::hex << value.x << ", word " << precision;
                EXPECT_EQ(results[0], value.ln) << std::hex << value.x << ", word " << precision;
            }
}

// lgammar takes the precision that it finds: here 53 bits, which gives something else than 64.
TEST(LogGamma, SignedComputesInThePrecisionThatStands) {
    const struct {
        uint64_t x, in_53_bits, in_64_bits;
    } rows[] = {
        {0x4013ceb3ff2f6ea1, 0x4008d8b002541240, 0x4008d8b002541241},  // 4.95185851
        {0x40099e847dba6dee, 0x3fec68e46f8b2c04, 0x3fec68e46f8b2c10},  // 3.20240114
        {0xc07414fc897d3284, 0xc097ff9f85163152, 0xc097ff9f85163154},  // -321.311655
        {0xc01b76694bb97650, 0xc018dfb49047975a, 0xc018dfb490479759},  // -6.86563605
        {0x4082df9a69fca541, 0x40a97a5128d224f6, 0x40a97a5128d224f4},  // 603.950397
    };
    const grid::Family& lgammar = harness::family("lgammar");
    for (const auto& row : rows) {
        EXPECT_EQ(harness::call(lgammar, 2, {Patterns(2, row.x)})[0][0], row.in_64_bits) << std::hex << row.x;
        Patterns results;
        bool stands;
        {
            ControlWord word(0x200);
            results = harness::call(lgammar, 2, {Patterns(2, row.x)})[0];
            stands = word.stands();
        }
        EXPECT_TRUE(stands);
        EXPECT_EQ(results[0], row.in_53_bits) << std::hex << row.x;
    }
}

}  // namespace
