// Powers and roots by their bits: special operands from the standards, the rest worked out from the method in another
// program.
#include <cmath>

#include "tests/harness/lanes.h"

namespace {

using harness::any_nan;
using harness::expect_rows;
using harness::Row;

uint64_t n(int32_t value) { return harness::pattern(value); }
constexpr uint64_t most = 0x7fffffff, least = 0x80000000;

constexpr double inf = HUGE_VAL;

// A number that both precisions hold, as the pattern of one; any NaN for a NaN expected.
uint64_t operand(double x, bool single) {
    return single ? harness::pattern(static_cast<float>(x)) : harness::pattern(x);
}
uint64_t result(double x, bool single) { return x != x ? any_nan : operand(x, single); }

// ---- Special operands. ---------------------------------------------------------------------------------------

struct PowerCase {
    double x, y, pow, powr;
};
// C's pow, and OpenCL C's pow and powr, without a difference.
const PowerCase power_cases[] = {
    // x^0 and 1^y
    {NAN, 0, 1, NAN},
    {NAN, -0.0, 1, NAN},
    {0, 0, 1, NAN},
    {-0.0, 0, 1, NAN},
    {0, -0.0, 1, NAN},
    {inf, 0, 1, NAN},
    {inf, -0.0, 1, NAN},
    {-inf, 0, 1, NAN},
    {2, 0, 1, 1},
    {2, -0.0, 1, 1},
    {-2, 0, 1, NAN},
    {0x1p-140, 0, 1, 1},
    {1, NAN, 1, NAN},
    {1, inf, 1, NAN},
    {1, -inf, 1, NAN},
    {1, 3, 1, 1},
    {1, -0x1p100, 1, 1},
    // NaN
    {NAN, 1, NAN, NAN},
    {NAN, -inf, NAN, NAN},
    {2, NAN, NAN, NAN},
    {-1, NAN, NAN, NAN},
    {0, NAN, NAN, NAN},
    {-0.0, NAN, NAN, NAN},
    {inf, NAN, NAN, NAN},
    {-inf, NAN, NAN, NAN},
    {NAN, NAN, NAN, NAN},
    // zeros
    {0, 3, 0, 0},
    {0, 2, 0, 0},
    {0, 2.5, 0, 0},
    {0, inf, 0, 0},
    {0, -3, inf, inf},
    {0, -2, inf, inf},
    {0, -2.5, inf, inf},
    {0, -inf, inf, inf},
    {-0.0, 3, -0.0, 0},
    {-0.0, 2, 0, 0},
    {-0.0, 2.5, 0, 0},
    {-0.0, 0x1p60, 0, 0},
    {-0.0, inf, 0, 0},
    {-0.0, -3, -inf, inf},
    {-0.0, -2, inf, inf},
    {-0.0, -2.5, inf, inf},
    {-0.0, -inf, inf, inf},
    // negative x
    {-1, inf, 1, NAN},
    {-1, -inf, 1, NAN},
    {-1, 3, -1, NAN},
    {-1, -3, -1, NAN},
    {-1, 2, 1, NAN},
    {-1, 2.5, NAN, NAN},
    {-1, 0x1p-140, NAN, NAN},
    {-2, 3, -8, NAN},
    {-2, 2, 4, NAN},
    {-2, -3, -0.125, NAN},
    {-2, 2.5, NAN, NAN},
    {-2, -0.5, NAN, NAN},
    {-2, inf, inf, NAN},
    {-2, -inf, 0, NAN},
    {-0.5, inf, 0, NAN},
    {-0.5, -inf, inf, NAN},
    {-0x1p-140, 1, -0x1p-140, NAN},
    // infinite y
    {2, inf, inf, inf},
    {2, -inf, 0, 0},
    {0.5, inf, 0, 0},
    {0.5, -inf, inf, inf},
    {0x1p-140, inf, 0, 0},
    // infinite x
    {inf, 3, inf, inf},
    {inf, 0.5, inf, inf},
    {inf, 0x1p-140, inf, inf},
    {inf, inf, inf, inf},
    {inf, -3, 0, 0},
    {inf, -0x1p-140, 0, 0},
    {inf, -inf, 0, 0},
    {-inf, 3, -inf, NAN},
    {-inf, 2, inf, NAN},
    {-inf, 2.5, inf, NAN},
    {-inf, inf, inf, NAN},
    {-inf, -3, -0.0, NAN},
    {-inf, -2, 0, NAN},
    {-inf, -2.5, 0, NAN},
    {-inf, -inf, 0, NAN},
    // odd, even and neither, up to where all numbers are even
    {-1, 0x1p23 - 0.5, NAN, NAN},
    {-1, 0x1p23 + 1, -1, NAN},
    {-1, 0x1p24 - 1, -1, NAN},
    {-1, -(0x1p24 - 1), -1, NAN},
    {-1, 0x1p24 - 2, 1, NAN},
    {-1, 0x1p24, 1, NAN},
    {-1, 0x1p100, 1, NAN},
};

struct IntegerCase {
    double x;
    int32_t n;
    double result;
};
const IntegerCase pown_cases[] = {
    {NAN, 0, 1},     {inf, 0, 1},
    {-inf, 0, 1},    {0, 0, 1},
    {-0.0, 0, 1},    {0x1p-140, 1, 0x1p-140},
    {NAN, 1, NAN},   {NAN, INT32_MIN, NAN},
    {0, 3, 0},       {0, 2, 0},
    {0, -3, inf},    {0, INT32_MIN, inf},
    {-0.0, 3, -0.0}, {-0.0, INT32_MAX, -0.0},
    {-0.0, 2, 0},    {-0.0, -3, -inf},
    {-0.0, -2, inf}, {-0.0, INT32_MIN, inf},
    {inf, 3, inf},   {inf, 2, inf},
    {inf, -3, 0},    {inf, INT32_MIN, 0},
    {-inf, 3, -inf}, {-inf, INT32_MAX, -inf},
    {-inf, 2, inf},  {-inf, -3, -0.0},
    {-inf, -2, 0},
};
const IntegerCase rootn_cases[] = {
    {1, 0, NAN},          {0, 0, NAN},         {-0.0, 0, NAN},
    {inf, 0, NAN},        {NAN, 0, NAN},       {-1, 0, NAN},
    {NAN, 3, NAN},        {NAN, 2, NAN},       {-NAN, 3, NAN},
    {-NAN, 2, NAN},       {0, 2, 0},           {0, 3, 0},
    {0, -2, inf},         {0, -3, inf},        {0, INT32_MIN, inf},
    {-0.0, 2, 0},         {-0.0, 3, -0.0},     {-0.0, INT32_MAX, -0.0},
    {-0.0, -2, inf},      {-0.0, -3, -inf},    {inf, 2, inf},
    {inf, 3, inf},        {inf, -2, 0},        {inf, -3, 0},
    {-inf, 3, -inf},      {-inf, -3, -0.0},    {-inf, 2, NAN},
    {-inf, -2, NAN},      {-8, 2, NAN},        {-8, -2, NAN},
    {-1, INT32_MIN, NAN}, {-0x1p-140, 2, NAN}, {-0x1p-140, 1, -0x1p-140},
};

TEST(Powers, SpecialOperandsOfPowAndPowr) {
    for (bool single : {true, false}) {
        std::vector<Row> pow, powr;
        for (const PowerCase& c : power_cases) {
            pow.push_back({{operand(c.x, single), operand(c.y, single)}, {result(c.pow, single)}});
            powr.push_back({{operand(c.x, single), operand(c.y, single)}, {result(c.powr, single)}});
        }
        expect_rows(single ? "powf" : "pow", pow);
        expect_rows(single ? "powrf" : "powr", powr);
    }
}

TEST(Powers, SpecialOperandsOfIntegerOrder) {
    for (bool single : {true, false}) {
        auto rows = [single](const auto& cases) {
            std::vector<Row> rows;
            for (const IntegerCase& c : cases)
                rows.push_back({{operand(c.x, single), n(c.n)}, {result(c.result, single)}});
            return rows;
        };
        expect_rows(single ? "pownf" : "pown", rows(pown_cases));
        expect_rows(single ? "rootnf" : "rootn", rows(rootn_cases));
    }
}

// The parity of a double, bit by bit about the halves of its pattern.
TEST(Powers, OddAndEvenDoubles) {
    std::vector<Row> rows;
    for (int exponent = 0; exponent <= 53; ++exponent) {
        double power = std::ldexp(1.0, exponent);
        for (double y : {power, power + 1, power + 0.5}) {
            double expected = y != std::floor(y) ? NAN : std::fmod(y, 2) == 1 ? -1 : 1;
            rows.push_back({{operand(-1, false), operand(y, false)}, {result(expected, false)}});
        }
    }
    expect_rows("pow", rows);
}

// A NaN is handed on quiet, the first one if both operands are; what is invalid gives the hardware's own.
TEST(Powers, Payloads) {
    expect_rows("powf", {{{0x7fc12345, 0x40000000}, {0x7fc12345}},
                         {{0x40000000, 0xffc12345}, {0xffc12345}},
                         {{0x7fc00001, 0xffc00002}, {0x7fc00001}},
                         {{0xc0000000, 0x3f000000}, {0xffc00000}}});
    expect_rows("powrf", {{{0x7fc12345, 0x40000000}, {0xffc00000}},
                          {{0x40000000, 0x7fc12345}, {0x7fc12345}},
                          {{0x80000000, 0x7fc12345}, {0xffc00000}}});
    expect_rows("pow", {{{0x7ff8000000012345, 0x4000000000000000}, {0x7ff8000000012345}},
                        {{0x4000000000000000, 0xfff8000000012345}, {0xfff8000000012345}},
                        {{0x7ff8000000000001, 0xfff8000000000002}, {0x7ff8000000000001}},
                        {{0xc000000000000000, 0x3fe0000000000000}, {0xfff8000000000000}}});
    expect_rows("pownf", {{{0xffc12345, n(2)}, {0xffc12345}}});
    expect_rows("rootn", {{{0xfff8000000012345, n(3)}, {0x7ff8000000012345}},
                          {{0xfff8000000012345, n(2)}, {0xfff8000000000000}},
                          {{0x7ff8000000012345, n(0)}, {0xfff8000000000000}}});
}

// What differs from C and OpenCL C, on purpose: results that those want exact, or with another sign.
TEST(Powers, DifferencesFromTheBuiltIns) {
    // pown in single precision multiplies by a constant one ulp above 1: x^0 and exact powers are off by that ulp.
    expect_rows("pownf", {{{0x3f800000, n(0)}, {0x3f800001}},     // 1^0
                          {{0x42f6e979, n(0)}, {0x3f800001}},     // 123.456^0
                          {{0xc1000000, n(3)}, {0xc4000001}},     // (-8)^3
                          {{0x3f800000, n(-5)}, {0x3f800001}}});  // 1^-5
    // An odd power of a negative number that underflows just below the smallest subnormal is +0.
    expect_rows("powf", {{{0xc0000000, 0xc3170000}, {0x00000000}}});  // (-2)^-151
    expect_rows("pownf", {{{0xc0000000, n(-151)}, {0x00000000}}, {{0xc0000000, n(-161)}, {0x80000000}}});
    expect_rows("pow", {{{0xc000000000000000, 0xc090d40000000000}, {0x0000000000000000}}});  // (-2)^-1077
    expect_rows("pown", {{{0xc000000000000000, n(-1077)}, {0x0000000000000000}},
                         {{0xc000000000000000, n(-1087)}, {0x8000000000000000}}});
}

// ---- Ordinary operands, the main path's bounds, and the ends of the range. -------------------------------------

TEST(Powers, Powf) {
    std::vector<Row> rows = {
        {{0x40000000, 0x40400000}, {0x41000000}},
        {{0x40000000, 0x3f000000}, {0x3fb504f1}},
        {{0x41200000, 0xc0200000}, {0x3b4f3e37}},
        {{0x3e99999a, 0x40f66666}, {0x38c573fa}},
        {{0x0da24260, 0x3f400000}, {0x1a18eb1a}},
        {{0x3fffffff, 0x42200000}, {0x537fffd8}},  // row 64
        {{0x42f6e979, 0x00000000}, {0x3f800000}},
        {{0x3f7e0000, 0x459c4000}, {0x232ba9b0}},  // the last row of 2^-1 on its own, then those near 1
        {{0x3f7e0001, 0x459c4000}, {0x232bb6e4}},
        {{0x3f81ffff, 0xc53b8000}, {0x1dee5f25}},
        {{0x3f820000, 0xc53b8000}, {0x1dee49a9}},
        {{0x3f7fffff, 0x4b189680}, {0x3f0d0d65}},
        {{0x3f800001, 0x4b189680}, {0x4052d05d}},
        {{0x00800000, 0xbf000000}, {0x5f000000}},
        {{0x007fffff, 0xbf000000}, {0x5f000001}},  // subnormal
        {{0x7f7ffffe, 0x3e99999a}, {0x52a8e5af}},
        {{0x7f7fffff, 0x3e99999a}, {0x52a8e5ae}},  // the largest float is rare
        {{0x7f7fffff, 0x3f800000}, {0x7f7fffff}},
        {{0x41200000, 0x41e12800}, {0x6e34481c}},
        {{0x41200000, 0x41e12801}, {0x6e344851}},  // the product has left the main path
        {{0x41200000, 0xc1e12800}, {0x10b5c28e}},
        {{0x41200000, 0xc1e12801}, {0x10b5c25b}},  // also below
        {{0x3f99999a, 0x43b1b7ff}, {0x6e340e66}},
        {{0x3f99999a, 0x43b1b800}, {0x6e340ea9}},  // here too
        {{0x3f333333, 0x4335b7ff}, {0x10b411c5}},
        {{0x3f333333, 0x4335b800}, {0x10b41187}},  // and here
    };
    expect_rows("powf", rows);
    expect_rows("powrf", rows);
}

TEST(Powers, PowfOfRareLanes) {
    expect_rows("powf", {
                            {{0x40000000, 0x43000000}, {0x7f800000}}, {{0x40000000, 0x42fe0000}, {0x7f000000}},
                            {{0x40800000, 0x427fff00}, {0x7f7fa756}}, {{0xc0000000, 0x43010000}, {0xff800000}},
                            {{0x40000000, 0xc2fc0000}, {0x00800000}}, {{0x40000000, 0xc2fe0000}, {0x00400000}},
                            {{0x40000000, 0xc3080000}, {0x00002000}},  // 2^-136, the last with a head and a tail
                            {{0x40000000, 0xc3090000}, {0x00001000}}, {{0x40000000, 0xc3150000}, {0x00000001}},
                            {{0x40000000, 0xc3160000}, {0x00000000}},  // half of the smallest: to even
                            {{0x40000000, 0xc3170000}, {0x00000000}}, {{0xc0000000, 0xc3150000}, {0x80000001}},
                            {{0xc0000000, 0xc3170000}, {0x00000000}},  // -2^-151: the sign is lost
                            {{0xc0000000, 0xc31e0000}, {0x00000000}}, {{0xc0000000, 0xc3200000}, {0x00000000}},
                            {{0xc0000000, 0xc3220000}, {0x00000000}}, {{0x40400000, 0xc29efc9f}, {0x00808738}},
                            {{0x40400000, 0xc2a6efa7}, {0x0001a1ad}}, {{0x40400000, 0xc2aee2af}, {0x0000054d}},
                            {{0x3fc00000, 0xc37d4ccd}, {0x00000002}}, {{0xc0400000, 0x40a00000}, {0xc3730000}},
                            {{0xc0400000, 0xc0800000}, {0x3c4a4588}}, {{0xbfc00000, 0x42740000}, {0xd14d75b7}},
                            {{0xc0f00000, 0x40400000}, {0xc3d2f000}}, {{0x00034447, 0x3f000000}, {0x1ea39667}},
                            {{0x00000001, 0x3e99999a}, {0x291d9617}}, {{0x80000001, 0x40400000}, {0x80000000}},
                            {{0x80000001, 0xbf800000}, {0xff800000}}, {{0x7f7fffff, 0x3f800001}, {0x7f800000}},
                            {{0x3f800001, 0x4eee6b28}, {0x7f800000}}, {{0x3f7fffff, 0x4eee6b28}, {0x00000000}},
                            {{0x3f7fffff, 0x4ecaa7e2}, {0x00000007}}, {{0xbf800001, 0x4b7fffff}, {0xc0ec7322}},
                            {{0xbf800001, 0x4b800000}, {0x40ec7324}}, {{0x40400000, 0x7149f2ca}, {0x7f800000}},
                            {{0x40400000, 0xf149f2ca}, {0x00000000}}, {{0xc0400000, 0xf149f2ca}, {0x00000000}},
                            {{0x000116c2, 0x000116c2}, {0x3f800000}}, {{0xbf000000, 0xf149f2ca}, {0x7f800000}},
                        });
}

TEST(Powers, Pownf) {
    expect_rows("pownf", {
                             {{0x40000000, n(3)}, {0x41000001}},
                             {{0xc1000000, n(3)}, {0xc4000001}},
                             {{0xc1000000, n(2)}, {0x42800001}},
                             {{0x3f800000, n(0)}, {0x3f800001}},  // one ulp above 1
                             {{0x3f800000, n(7)}, {0x3f800001}},
                             {{0x42f6e979, n(0)}, {0x3f800001}},
                             {{0x3e99999a, n(-17)}, {0x4e389eb2}},
                             {{0x40e00000, n(44)}, {0x7d3801ca}},
                             {{0xbf7d70a4, n(8001)}, {0x857e10a6}},
                             {{0x3f7e0000, n(5001)}, {0x232a525c}},
                             {{0xbf7e0001, n(5001)}, {0xa32a5f77}},
                             {{0xbf81ffff, n(-4001)}, {0x92b5e834}},
                             {{0x3f820000, n(-4001)}, {0x12b5d256}},
                             {{0x3f800001, n(16777217)}, {0x40ec7327}},
                             {{0xbf800001, n(16777217)}, {0xc0ec7327}},  // not a float
                             {{0x3f7fffff, n(123456789)}, {0x3a270272}},
                             {{0xbf800001, n(536870911)}, {0xeda12c98}},
                             {{0xbf800001, n(-536870911)}, {0x914b4ed8}},
                             {{0xbf800001, n(-536870912)}, {0x114b4ed6}},
                             {{0x3f800001, most}, {0x7f800000}},
                             {{0xbf800001, most}, {0xff800000}},
                             {{0xbf7fffff, least}, {0x7f800000}},
                             {{0x7f7ffffe, n(1)}, {0x7f7ffffe}},
                             {{0x7f7fffff, n(1)}, {0x7f7fffff}},
                             {{0xff7fffff, n(1)}, {0xff7fffff}},
                             {{0x00800000, n(-1)}, {0x7e800000}},
                             {{0x807fffff, n(-1)}, {0xfe800001}},
                             {{0x80000001, n(-1)}, {0xff800000}},
                             {{0x80200000, n(-1)}, {0xff800000}},  // -2^128
                             {{0x40000000, n(126)}, {0x7e800000}},
                             {{0x40000000, n(127)}, {0x7f000000}},
                             {{0x40000000, n(128)}, {0x7f800000}},
                             {{0xc0000000, n(129)}, {0xff800000}},
                             {{0xc0000000, n(-149)}, {0x80000001}},
                             {{0xc0000000, n(-151)}, {0x00000000}},  // -2^-151: the sign is lost
                             {{0xc0000000, n(-161)}, {0x80000000}},  // further down it is not
                             {{0xc0400000, n(-81)}, {0x80188e7c}},
                             {{0x40400000, n(-93)}, {0x00000003}},
                             {{0x3f8bad11, n(1000)}, {0x7e75b36b}},
                             {{0x3f8bad12, n(1000)}, {0x7e75ba48}},
                             {{0x4046d359, n(-77)}, {0x00870bf8}},
                             {{0x4046d35a, n(-77)}, {0x00870bc3}},
                         });
}

TEST(Powers, Pow) {
    expect_rows(
        "pow",
        {
            {{0x4000000000000000, 0x4008000000000000}, {0x4020000000000000}},
            {{0x4000000000000000, 0x3fe0000000000000}, {0x3ff6a09e667f3bcd}},
            {{0x4024000000000000, 0xc004000000000000}, {0x3f69e7c6e43390b7}},
            {{0x3fd3333333333333, 0x401ecccccccccccd}, {0x3f18ae7e5b4e6bae}},
            {{0x16687e92154ef7ac, 0x3fe8000000000000}, {0x20ca2fe76a3f9475}},
            {{0x405edd2f1a9fbe77, 0x0000000000000000}, {0x3ff0000000000000}},
            {{0x3ff0000000000000, 0x41cdcd6500000000}, {0x3ff0000000000000}},
            {{0x3ff7fdffffffffff, 0x4059066666666666}, {0x4396bfbc248307f8}},
            {{0x3ff7fe0000000000, 0x4059066666666666}, {0x4396bfbc24830857}},  // row 512, with the next exponent
            {{0x3ff8000000000000, 0x4059066666666666}, {0x439780a81c6bfb71}},
            {{0x3fffffffffffffff, 0x407f44cccccccccd}, {0x5f33b2c47bff8221}},
            {{0x3fefffffffffffff, 0x4376345785d8a000}, {0x3eef9f4adc9092b5}},
            {{0x3ff0000000000001, 0xc3c582b4c9a9db00}, {0x01dea63abfe42715}},
            {{0x3ff0080000000001, 0x41124f82cccccccd}, {0x74b6bb6442ceb9de}},
            {{0x0010000000000000, 0xbfe0000000000000}, {0x5fe0000000000000}},
            {{0x000fffffffffffff, 0xbfe0000000000000}, {0x5fe0000000000000}},
            {{0x7fefffffffffffff, 0x3fd3333333333333}, {0x5322611186bae64c}},
            {{0x7fefffffffffffff, 0xbfeccccccccccccd}, {0x06551cb453b9530f}},
            {{0x3ff0000000000000, 0x7f7fffffffffffff}, {0x3ff0000000000000}},
            {{0x3ff0000000000000, 0x7f80000000000000}, {0x3ff0000000000000}},  // 2^1017 is rare
            {{0x402400000000018f, 0x40733a70afffffff}, {0x7fcffd48e4bc815b}},
            {{0x402400000000018f, 0x40733a70b0000000}, {0x7fcffd48e4bc85f5}},  // the product has left the main path
            {{0x4024000000000019, 0xc0733a70afffffff}, {0x0010015bab233c00}},
            {{0x4024000000000019, 0xc0733a70b0000000}, {0x0010015bab2339b2}},  // also below
            {{0x3ff33333333334c2, 0x40ae5ad7c7ffffff}, {0x7fcffd492adfde4c}},
            {{0x3ff33333333334c2, 0x40ae5ad7c8000000}, {0x7fcffd492adfe136}},
            {{0x3fe6666666666682, 0x409f0871d7ffffff}, {0x001001563febb8d9}},
            {{0x3fe6666666666682, 0x409f0871d8000000}, {0x001001563febb76c}},
            {{0x4000000000000000, 0x4090000000000000}, {0x7ff0000000000000}},
            {{0x4000000000000000, 0x408ff80000000000}, {0x7fe0000000000000}},
            {{0x4010000000000000, 0x407ffffc00000000}, {0x7feff4eaca4391b6}},
            {{0xc000000000000000, 0x4090040000000000}, {0xfff0000000000000}},
            {{0x4000000000000000, 0xc08ff00000000000}, {0x0010000000000000}},
            {{0x4000000000000000, 0xc08ff80000000000}, {0x0008000000000000}},
            {{0x4000000000000000, 0xc090200000000000}, {0x0000040000000000}},
            {{0x4000000000000000, 0xc090240000000000}, {0x0000020000000000}},
            {{0x4000000000000000, 0xc090c80000000000}, {0x0000000000000001}},
            {{0x4000000000000000, 0xc090cc0000000000}, {0x0000000000000000}},
            {{0x4000000000000000, 0xc090d00000000000}, {0x0000000000000000}},
            {{0xc000000000000000, 0xc090c80000000000}, {0x0000000000000001}},
            {{0xc000000000000000, 0xc090d00000000000}, {0x0000000000000000}},
            {{0xc000000000000000, 0xc090ec0000000000}, {0x0000000000000000}},
            {{0xc000000000000000, 0xc090f40000000000}, {0x8000000000000000}},
            {{0xc000000000000000, 0xc090fc0000000000}, {0x8000000000000000}},
            {{0x4008000000000000, 0xc084263d07c84b5e}, {0x00108b25376e26d2}},
            {{0x4008000000000000, 0xc08528267b5f1bf0}, {0x0000000000000002}},
            {{0x4008000000000000, 0xc0862a0feef5ec82}, {0x0000000000000000}},
            {{0x3ff8000000000000, 0xc09c873333333333}, {0x000000000000003f}},
            {{0xc008000000000000, 0x4014000000000000}, {0xc06e600000000000}},
            {{0xc008000000000000, 0xc010000000000000}, {0x3f8948b0fcd6e9e0}},
            {{0xbff8000000000000, 0x404e800000000000}, {0xc229aeb6ecc6cc8f}},
            {{0xc01e000000000000, 0x4008000000000000}, {0xc07a5e0000000000}},
            {{0x00003739a252b281, 0x3fe0000000000000}, {0x1fcdb9b6d15869b2}},
            {{0x0000000000000001, 0x3fd3333333333333}, {0x2bcbdb8cdadbe161}},
            {{0x8000000000000001, 0x4008000000000000}, {0x8000000000000000}},
            {{0x8000000000000001, 0xbfe8000000000000}, {0xfff8000000000000}},
            {{0x8000000000000001, 0xbff0000000000000}, {0xfff0000000000000}},
            {{0x7fefffffffffffff, 0x3ff0000000000001}, {0x7ff0000000000000}},
            {{0x3ff0000000000001, 0x43c6e5fa42076500}, {0x7ff0000000000000}},
            {{0x3fefffffffffffff, 0x43d6e5fa42076500}, {0x000000000001d3a4}},
            {{0xbff8000000000000, 0x4330000000000001}, {0xfff0000000000000}},
            {{0xbff0000000000001, 0x433fffffffffffff}, {0xc01d8e64b8d4ddaa}},
            {{0xbff0000000000001, 0x4340000000000000}, {0x401d8e64b8d4ddac}},
            {{0x4008000000000000, 0x7e37e43c8800759c}, {0x7ff0000000000000}},
            {{0x4008000000000000, 0xfe37e43c8800759c}, {0x0000000000000000}},
            {{0xc008000000000000, 0xfe37e43c8800759c}, {0x0000000000000000}},
            {{0x000012688b70e62b, 0x000012688b70e62b}, {0x3ff0000000000000}},
            {{0xbfe0000000000000, 0xfe37e43c8800759c}, {0x7ff0000000000000}},
            {{0xc000000000000000, 0x4140000080000000}, {0xfff0000000000000}},
            {{0xbff0000000000001, 0x4140000080000000}, {0xbff0000000200001}},
            {{0xbff0000000000001, 0x41400000c0000000}, {0xfff8000000000000}},
            {{0xbff0000000000001, 0x4130000100000000}, {0xbff0000000100001}},
            {{0xbff0000000000001, 0x4130000180000000}, {0xfff8000000000000}},
            {{0xbff0000000000001, 0x4330000000000001}, {0xc005bf0a8b14576a}},
            {{0xbff0000000000001, 0x432fffffffffffff}, {0xfff8000000000000}},
        });
}

TEST(Powers, Pown) {
    expect_rows("pown", {
                            {{0x4000000000000000, n(3)}, {0x4020000000000000}},
                            {{0xc020000000000000, n(3)}, {0xc080000000000000}},
                            {{0xc020000000000000, n(2)}, {0x4050000000000000}},
                            {{0x3ff0000000000000, n(0)}, {0x3ff0000000000000}},
                            {{0x405edd2f1a9fbe77, n(0)}, {0x3ff0000000000000}},
                            {{0x3fd3333333333333, n(-17)}, {0x41c713d71ac1c96e}},
                            {{0xbfefae147ae147ae, n(50001)}, {0x92a013f7888b4e6c}},
                            {{0xbff0000100000001, most}, {0xfff0000000000000}},
                            {{0xbff0000010000001, least}, {0x34642ebe5dd42138}},
                            {{0xbff0000010000001, n(-2147483647)}, {0xb4642ebe7202df97}},
                            {{0xffefffffffffffff, n(1)}, {0xffefffffffffffff}},
                            {{0x8010000000000000, n(1)}, {0x8010000000000000}},
                            {{0x800fffffffffffff, n(-1)}, {0xffd0000000000001}},
                            {{0x8000000000000001, n(-1)}, {0xfff0000000000000}},
                            {{0xc000000000000000, n(1021)}, {0xffc0000000000000}},
                            {{0xc000000000000000, n(1023)}, {0xffe0000000000000}},
                            {{0xc000000000000000, n(1025)}, {0xfff0000000000000}},
                            {{0x4000000000000000, n(-1074)}, {0x0000000000000001}},
                            {{0xc000000000000000, n(-1075)}, {0x0000000000000000}},
                            {{0xc000000000000000, n(-1077)}, {0x0000000000000000}},  // the sign is lost
                            {{0xc000000000000000, n(-1087)}, {0x8000000000000000}},  // further down it is not
                            {{0xc008000000000000, n(-671)}, {0x800000000000059e}},
                        });
}

TEST(Roots, Rootnf) {
    expect_rows("rootnf",
                {
                    {{0xc1000000, n(3)}, {0xc0000000}},  {{0x41d80000, n(3)}, {0x40400000}},
                    {{0x40000000, n(2)}, {0x3fb504f3}},  {{0x40000000, n(-2)}, {0x3f3504f3}},
                    {{0xc0000000, n(-5)}, {0xbf5edc67}}, {{0x41200000, n(1)}, {0x41200000}},
                    {{0x41200000, n(-1)}, {0x3dcccccd}}, {{0x3f800000, n(12345)}, {0x3f800000}},
                    {{0x7149f2ca, n(7)}, {0x4696d5f9}},  {{0x8da24260, most}, {0xbf7fffff}},
                    {{0xc0a00000, most}, {0xbf800000}},  {{0x40a00000, least}, {0x3f800000}},
                    {{0x7e823457, n(3)}, {0x5480bb12}},  {{0x7f7ffffe, n(3)}, {0x54cb3000}},
                    {{0x7f7fffff, n(3)}, {0x54cb2ff5}},  {{0x00800000, n(3)}, {0x2a7ffff1}},
                    {{0x007fffff, n(3)}, {0x2a7fffff}},  {{0x807fffff, n(-3)}, {0xd4800000}},
                    {{0x00000001, n(2)}, {0x1a3504f3}},  {{0x00000001, n(-1)}, {0x7f800000}},
                    {{0x80000001, n(-1)}, {0xff800000}}, {{0x00200000, n(-1)}, {0x7f800000}},
                    {{0x00200001, n(-1)}, {0x7f7ffff8}}, {{0x80000001, n(1)}, {0x80000001}},
                    {{0x7f7fffff, n(-1)}, {0x00200000}}, {{0x7f000000, n(-1)}, {0x00400000}},  // 2^-127, narrowed
                });
}

TEST(Roots, Rootn) {
    expect_rows(
        "rootn",
        {
            {{0xc020000000000000, n(3)}, {0xc000000000000000}},  {{0x403b000000000000, n(3)}, {0x4008000000000000}},
            {{0x4000000000000000, n(2)}, {0x3ff6a09e667f3bcd}},  {{0x4000000000000000, n(-2)}, {0x3fe6a09e667f3bcd}},
            {{0xc000000000000000, n(-5)}, {0xbfebdb8cdadbe120}}, {{0x4024000000000000, n(1)}, {0x4024000000000000}},
            {{0x4024000000000000, n(-1)}, {0x3fb999999999999a}}, {{0x3ff0000000000000, n(12345)}, {0x3ff0000000000000}},
            {{0x7e37e43c8800759c, n(7)}, {0x48d4a76a4f0b7b46}},  {{0x81a56e1fc2f8f359, most}, {0xbfefffff534e5f91}},
            {{0x4014000000000000, least}, {0x3fefffffff98fef8}}, {{0x7fefffffffffffff, n(3)}, {0x554428a2f98d728b}},
            {{0x7fefffffffffffff, n(1)}, {0x7fefffffffffffff}},  {{0xffefffffffffffff, n(-1)}, {0x8004000000000000}},
            {{0x0010000000000000, n(3)}, {0x2aa428a2f98d728b}},  {{0x000fffffffffffff, n(3)}, {0x2aa428a2f98d72d5}},
            {{0x8000000000000001, n(3)}, {0xa99000000000003e}},  {{0x0000000000000001, n(2)}, {0x1e60000000000000}},
            {{0x0000000000000001, n(-1)}, {0x7ff0000000000000}}, {{0x8000000000000001, n(-1)}, {0xfff0000000000000}},
            {{0x0004000000000000, n(-1)}, {0x7ff0000000000000}}, {{0x0004000000000001, n(-1)}, {0x7feffffffffffff8}},
            {{0x8000000000000001, n(1)}, {0x8000000000000001}},  {{0x7fc0000000000000, n(1)}, {0x7fc0000000000000}},
            {{0x7fd0000000000000, n(1)}, {0x7fd0000000000000}},  // 2^1022 is rare
            {{0x0010000000000000, n(-1)}, {0x7fd0000000000000}},
        });
}

// ---- Native: nothing is repaired, and patterns are split as they are. ------------------------------------------

TEST(Powers, NativeFloats) {
    std::vector<Row> rows = {
        {{0x40000000, 0x40400000}, {0x41000000}}, {{0x41200000, 0xc0200000}, {0x3b4f42f5}},
        {{0x3e99999a, 0x40f66666}, {0x38c5781c}}, {{0x42f6e979, 0x00000000}, {0x3f800000}},
        {{0xc0000000, 0x40400000}, {0xc1000000}}, {{0x00000000, 0x40000000}, {0xc0800000}},
        {{0x80000000, 0x00000000}, {0x3f800000}}, {{0x7f800000, 0x3f000000}, {0x5f800000}},
        {{0x40000000, 0xbf000000}, {0x3f34fe06}}, {{0x00000000, 0xbe800000}, {0x4f574901}},
    };
    expect_rows("powf_native", rows);
    expect_rows("powrf_native", rows);
    expect_rows("pownf_native", {
                                    {{0x40000000, n(3)}, {0x40fffb0d}},
                                    {{0xc0000000, n(3)}, {0xc0fffb0d}},
                                    {{0xc0000000, n(2)}, {0x407ffb0d}},
                                    {{0x41200000, n(-17)}, {0x23387650}},
                                    {{0x42f6e979, n(0)}, {0x3f7ffb0d}},
                                    {{0xbe99999a, least}, {0xaefffb0d}},
                                    {{0x3f800000, most}, {0x3f7ffb0d}},
                                    {{0xbf800000, most}, {0xbf7ffb0d}},
                                    {{0x00000000, n(2)}, {0xc07ffb0d}},
                                    {{0x80000000, n(1)}, {0xfffffb0d}},
                                });
    expect_rows("rootnf_native", {
                                     {{0x41000000, n(3)}, {0x3ffffb0d}},
                                     {{0xc1000000, n(3)}, {0xbffffb0d}},
                                     {{0xc0800000, n(2)}, {0x3ffffb0d}},
                                     {{0x41200000, n(-17)}, {0x3f5f92ca}},
                                     {{0x42f6e979, n(0)}, {0xffc00000}},
                                     {{0xbe99999a, least}, {0x3f7ffb0d}},
                                     {{0xbe99999a, most}, {0xbf7ffb0d}},
                                     {{0x00000000, n(2)}, {0x1fb50270}},
                                     {{0x80000000, n(-3)}, {0xd4a14776}},
                                     {{0x3f800000, n(0)}, {0xffc00000}},  // one ulp above 1
                                 });
}

// Powers of two, of which every processor's reciprocal estimate rounds to the same integer.
TEST(Powers, NativeDoubles) {
    std::vector<Row> rows = {
        {{0x4000000000000000, 0x4008000000000000}, {0x401ffffffc27dd9b}},
        {{0xc000000000000000, 0x4008000000000000}, {0xc01ffffffc27c771}},
        {{0x0000000000000000, 0x4000000000000000}, {0xc00ffffffc27dd9e}},
        {{0x8000000000000000, 0x0000000000000000}, {0x3feffffffc27dd9e}},
        {{0x7ff0000000000000, 0x3fe0000000000000}, {0x5feffffffc27dd9e}},
        {{0x4000000000000000, 0xbfe0000000000000}, {0x3fe6a09e63c75876}},
        {{0x0000000000000000, 0xbfd0000000000000}, {0x4feae89f961f4598}},
    };
    expect_rows("pow_native", rows);
    expect_rows("powr_native", rows);
    expect_rows("pown_native", {
                                   {{0x4000000000000000, n(3)}, {0x401ffffffc27dd9b}},
                                   {{0xc000000000000000, n(3)}, {0xc01ffffffc27dd9b}},
                                   {{0xc000000000000000, n(2)}, {0x400ffffffc27dd9e}},
                                   {{0x3ff0000000000000, most}, {0x3feffffffc27dd9e}},
                                   {{0xbff0000000000000, most}, {0xbfeffffffc27dd9e}},
                                   {{0x0000000000000000, n(2)}, {0xc00ffffffc27dd9e}},
                                   {{0x8000000000000000, n(1)}, {0xfffffffffc27dd9e}},
                               });
    expect_rows("rootn_native", {
                                    {{0x4020000000000000, n(3)}, {0x3ffffffffc27dd9d}},
                                    {{0xc020000000000000, n(3)}, {0xbffffffffc27dd9d}},
                                    {{0xc010000000000000, n(2)}, {0x3ffffffffc27dd9e}},
                                    {{0x0000000000000000, n(2)}, {0x1ff6a09e63c75876}},
                                    {{0x8000000000000000, n(-3)}, {0xd53ffffffc27dd9e}},
                                    {{0x3ff0000000000000, n(0)}, {0xfff8000000000000}},
                                });
}

}  // namespace
