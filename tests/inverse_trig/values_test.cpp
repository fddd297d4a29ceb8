// Values of the inverse trigonometric functions by their bits, worked out step by step in another language.
#include <array>

#include "tests/harness/lanes.h"

namespace {

using harness::any_nan;
using harness::expect_rows;
using harness::Row;

// Below 1/2 no estimate takes part.
TEST(ArcSines, SmallOperands) {
    expect_rows("asinf", {{{0x00000000}, {0x00000000}},
                          {{0x80000000}, {0x80000000}},
                          {{0x00000001}, {0x00000001}},
                          {{0x3dcccccd}, {0x3dcd2494}},
                          {{0xbe99999a}, {0xbe9c00ad}},
                          {{0x3effffff}, {0x3f060a91}}});
    expect_rows("asinf_native", {{{0x00000000}, {0x00000000}},
                                 {{0x80000000}, {0x80000000}},
                                 {{0x00000001}, {0x00000001}},
                                 {{0x3dcccccd}, {0x3dcd253a}},
                                 {{0xbe99999a}, {0xbe9bffaa}},
                                 {{0x3effffff}, {0x3f060986}}});
    expect_rows("asin", {{{0x0000000000000000}, {0x0000000000000000}},
                         {{0x8000000000000000}, {0x8000000000000000}},
                         {{0x8000000000000001}, {0x8000000000000001}},
                         {{0x3fb999999999999a}, {0x3fb9a49276037884}},
                         {{0xbfd3333333333333}, {0xbfd380159e14f6fe}},
                         {{0x3fdfffffffffffff}, {0x3fe0c152382d7365}}});
    expect_rows("asin_native", {{{0x0000000000000000}, {0x0000000000000000}},
                                {{0x8000000000000000}, {0x8000000000000000}},
                                {{0x8000000000000001}, {0x8000000000000001}},
                                {{0x3fb999999999999a}, {0x3fb9a49275cc0961}},
                                {{0xbfd3333333333333}, {0xbfd380159dece24f}},
                                {{0x3fdfffffffffffff}, {0x3fe0c15238099d36}}});
    expect_rows("asinpif", {{{0x00000000}, {0x00000000}},
                            {{0x80000000}, {0x80000000}},
                            {{0x00000001}, {0x00000000}},
                            {{0x3dcccccd}, {0x3d029917}},
                            {{0xbe99999a}, {0xbdc6a0f5}},
                            {{0x3effffff}, {0x3e2aaaa9}}});
    expect_rows("asinpif_native", {{{0x00000000}, {0x00000000}},
                                   {{0x80000000}, {0x80000000}},
                                   {{0x00000001}, {0x00000000}},
                                   {{0x3dcccccd}, {0x3d029981}},
                                   {{0xbe99999a}, {0xbdc69fab}},
                                   {{0x3effffff}, {0x3e2aa956}}});
    expect_rows("asinpi", {{{0x0000000000000000}, {0x0000000000000000}},
                           {{0x8000000000000000}, {0x8000000000000000}},
                           {{0x8000000000000001}, {0x8000000000000000}},
                           {{0x3fb999999999999a}, {0x3fa05322eb667bed}},
                           {{0xbfd3333333333333}, {0xbfb8d41e8c042c2d}},
                           {{0x3fdfffffffffffff}, {0x3fc5555555555554}}});
    expect_rows("asinpi_native", {{{0x0000000000000000}, {0x0000000000000000}},
                                  {{0x8000000000000000}, {0x8000000000000000}},
                                  {{0x8000000000000001}, {0x8000000000000000}},
                                  {{0x3fb999999999999a}, {0x3fa05322eb433191}},
                                  {{0xbfd3333333333333}, {0xbfb8d41e8bd123dd}},
                                  {{0x3fdfffffffffffff}, {0x3fc555555527b466}}});
    expect_rows("acosf", {{{0x00000000}, {0x3fc90fdb}},
                          {{0x80000000}, {0x3fc90fdb}},
                          {{0x00000001}, {0x3fc90fdb}},
                          {{0x3dcccccd}, {0x3fbc3d92}},
                          {{0xbe99999a}, {0x3ff01006}},
                          {{0x3effffff}, {0x3f860a92}}});
    expect_rows("acosf_native", {{{0x00000000}, {0x3fc90fdb}},
                                 {{0x80000000}, {0x3fc90fdb}},
                                 {{0x00000001}, {0x3fc90fdb}},
                                 {{0x3dcccccd}, {0x3fbc3d87}},
                                 {{0xbe99999a}, {0x3ff00fc6}},
                                 {{0x3effffff}, {0x3f860b18}}});
    expect_rows("acos", {{{0x0000000000000000}, {0x3ff921fb54442d18}},
                         {{0x8000000000000000}, {0x3ff921fb54442d18}},
                         {{0x8000000000000001}, {0x3ff921fb54442d18}},
                         {{0x3fb999999999999a}, {0x3ff787b22ce3f590}},
                         {{0xbfd3333333333333}, {0x3ffe0200bbc96ad8}},
                         {{0x3fdfffffffffffff}, {0x3ff0c152382d7366}}});
    expect_rows("acos_native", {{{0x0000000000000000}, {0x3ff921fb54442d18}},
                                {{0x8000000000000000}, {0x3ff921fb54442d18}},
                                {{0x8000000000000001}, {0x3ff921fb54442d18}},
                                {{0x3fb999999999999a}, {0x3ff787b22ce76c82}},
                                {{0xbfd3333333333333}, {0x3ffe0200bbbf65ac}},
                                {{0x3fdfffffffffffff}, {0x3ff0c152383f5e7d}}});
    expect_rows("acospif", {{{0x00000000}, {0x3f000000}},
                            {{0x80000000}, {0x3f000000}},
                            {{0x00000001}, {0x3f000000}},
                            {{0x3dcccccd}, {0x3eefacdd}},
                            {{0xbe99999a}, {0x3f18d41f}},
                            {{0x3effffff}, {0x3eaaaaac}}});
    expect_rows("acospif_native", {{{0x00000000}, {0x3f000000}},
                                   {{0x80000000}, {0x3f000000}},
                                   {{0x00000001}, {0x3f000000}},
                                   {{0x3dcccccd}, {0x3eefacd0}},
                                   {{0xbe99999a}, {0x3f18d3f5}},
                                   {{0x3effffff}, {0x3eaaab55}}});
    expect_rows("acospi", {{{0x0000000000000000}, {0x3fe0000000000000}},
                           {{0x8000000000000000}, {0x3fe0000000000000}},
                           {{0x8000000000000001}, {0x3fe0000000000000}},
                           {{0x3fb999999999999a}, {0x3fddf59ba2933082}},
                           {{0xbfd3333333333333}, {0x3fe31a83d1808586}},
                           {{0x3fdfffffffffffff}, {0x3fd5555555555556}}});
    expect_rows("acospi_native", {{{0x0000000000000000}, {0x3fe0000000000000}},
                                  {{0x8000000000000000}, {0x3fe0000000000000}},
                                  {{0x8000000000000001}, {0x3fe0000000000000}},
                                  {{0x3fb999999999999a}, {0x3fddf59ba29799ce}},
                                  {{0xbfd3333333333333}, {0x3fe31a83d17a247c}},
                                  {{0x3fdfffffffffffff}, {0x3fd55555556c25cd}}});
}

// Operands whose result does not depend on the last bits of the estimate.
TEST(ArcSines, HalfAngles) {
    expect_rows("asinf", {{{0x3f7962d4}, {0x3fabe71c}},
                          {{0x3f64de7b}, {0x3f8d993a}},
                          {{0xbf6f8b03}, {0xbf9aea77}},
                          {{0xbf7c53eb}, {0xbfb35b02}},
                          {{0xbf76fc75}, {0xbfa6fe88}}});
    expect_rows("asinf_native", {{{0x3f72ae4e}, {0x3f9f9768}},
                                 {{0x3f736218}, {0x3fa0b57c}},
                                 {{0xbf7c53eb}, {0xbfb35aea}},
                                 {{0xbf6e5710}, {0xbf993da6}},
                                 {{0xbf7dd6f8}, {0xbfb86bcc}}});
    expect_rows("asin", {{{0x3fef2c5a74cc122d}, {0x3ff57ce364359770}},
                         {{0x3fed115a399f0f7b}, {0x3ff23ad6fd1bdab6}},
                         {{0xbfedf1605efddbf4}, {0xbff35d4ed2e2dc68}},
                         {{0xbfef8a7d64f49af2}, {0xbff66b6050b5fcd5}},
                         {{0xbfeda21842083b61}, {0xbff2f0bccac11caa}}});
    expect_rows("asinpif", {{{0x3f64de7b}, {0x3eb449f2}},
                            {{0x3f55ce60}, {0x3ea11812}},
                            {{0xbf6f8b03}, {0xbec53eb9}},
                            {{0xbf6d10c2}, {0xbec0ecd6}},
                            {{0xbf5cc2ae}, {0xbea9798b}}});
    expect_rows("asinpif_native", {{{0x3f6c3055}, {0x3ebf76c8}},
                                   {{0x3f7fd8c3}, {0x3efa5c24}},
                                   {{0xbf7cda5d}, {0xbee66b3e}},
                                   {{0xbf7834dd}, {0xbed7aec8}},
                                   {{0xbf7b0de1}, {0xbedfe986}}});
    expect_rows("asinpi", {{{0x3fe7fd0ac8acc0d8}, {0x3fd143f54a2701fe}},
                           {{0x3fef2c5a74cc122d}, {0x3fdb5bf2cd81f36b}},
                           {{0xbfe802f537533f28}, {0xbfd149a6e60ea48e}},
                           {{0xbfef8a7d64f49af2}, {0xbfdc8b99ccb9e4bf}},
                           {{0xbfeda21842083b61}, {0xbfd81d9ab2928277}}});
    expect_rows("acosf", {{{0xbf6f8b03}, {0x4031fd29}}, {{0xbf4017aa}, {0x401ad786}}, {{0xbf7c53eb}, {0x403e356f}}});
    expect_rows("acosf_native",
                {{{0xbf6f8b03}, {0x4031fd43}}, {{0xbf4017aa}, {0x401ad790}}, {{0xbf7c53eb}, {0x403e3562}}});
    expect_rows("acos", {{{0x3fe0f96455dc1985}, {0x3ff02fcfdfff6958}},
                         {{0xbfedf1605efddbf4}, {0x40063fa5139384c0}},
                         {{0xbfef8a7d64f49af2}, {0x4007c6add27d14f6}},
                         {{0xbfeda21842083b61}, {0x4006095c0f82a4e1}}});
    expect_rows("acospif", {{{0xbf6f8b03}, {0x3f629f5d}}, {{0xbf4017aa}, {0x3f45269c}}, {{0xbf33021a}, {0x3f3f1982}}});
    expect_rows("acospif_native",
                {{{0xbf7c53eb}, {0x3f722e57}}, {{0xbf6f6391}, {0x3f627bfb}}, {{0xbf65d2a2}, {0x3f5ad42e}}});
    expect_rows("acospi", {{{0x3fe467aa377fe9a2}, {0x3fd1e9f5d1af1d86}},
                           {{0x3fe2c341331c6528}, {0x3fd33c8b4454d0da}},
                           {{0xbfef8a7d64f49af2}, {0x3fee45cce65cf25f}},
                           {{0xbfeda21842083b61}, {0x3fec0ecd5949413c}},
                           {{0xbfeedf8eac873c68}, {0x3fed49faaedbe0c9}}});
}

// The ends of the domain, and what is beyond: rare in the accurate class, NaN in the native one.
TEST(ArcSines, EndsOfTheDomain) {
    struct Ends {
        std::string base;
        uint64_t one_f, minus_one_f, one_d, minus_one_d;
    };
    for (const Ends& ends : {Ends{"asin", 0x3fc90fdb, 0xbfc90fdb, 0x3ff921fb54442d18, 0xbff921fb54442d18},
                             Ends{"acos", 0x00000000, 0x40490fdb, 0x0000000000000000, 0x400921fb54442d18},
                             Ends{"asinpi", 0x3f000000, 0xbf000000, 0x3fe0000000000000, 0xbfe0000000000000},
                             Ends{"acospi", 0x00000000, 0x3f800000, 0x0000000000000000, 0x3ff0000000000000}}) {
        expect_rows(ends.base + "f", {{{0x3f800000}, {ends.one_f}}, {{0xbf800000}, {ends.minus_one_f}}});
        expect_rows(ends.base, {{{0x3ff0000000000000}, {ends.one_d}}, {{0xbff0000000000000}, {ends.minus_one_d}}});
        std::vector<Row> beyond_f, beyond_d;
        for (uint64_t x : {0x3f800001, 0x40000000, 0x7f7fffff, 0x7f800000, 0x7fc00000})
            for (uint64_t sign : {0u, 0x80000000u}) beyond_f.push_back({{x | sign}, {any_nan}});
        for (uint64_t x :
             {0x3ff0000000000001, 0x4000000000000000, 0x7fefffffffffffff, 0x7ff0000000000000, 0x7ff8000000000000})
            for (uint64_t sign : {uint64_t{0}, uint64_t{1} << 63}) beyond_d.push_back({{x | sign}, {any_nan}});
        expect_rows(ends.base + "f", beyond_f);
        expect_rows(ends.base, beyond_d);
        // h is zero and its reciprocal root infinite.
        for (uint64_t one : {0x3f800000u, 0xbf800000u}) beyond_f.push_back({{one}, {any_nan}});
        for (uint64_t one : {0x3ff0000000000000u, 0xbff0000000000000u}) beyond_d.push_back({{one}, {any_nan}});
        expect_rows(ends.base + "f_native", beyond_f);
        expect_rows(ends.base + "_native", beyond_d);
    }
}

TEST(ArcTangents, ByTheHardwareDivide) {
    expect_rows("atanf", {{{0x00000000}, {0x00000000}},
                          {{0x80000000}, {0x80000000}},
                          {{0x00000001}, {0x00000001}},
                          {{0x807fffff}, {0x807fffff}},
                          {{0x3dcccccd}, {0x3dcc1f15}},
                          {{0xbf000000}, {0xbeed6339}},
                          {{0x3f7fffff}, {0x3f490fd9}},
                          {{0x3f800000}, {0x3f490fdc}},
                          {{0x3f800001}, {0x3f490fde}},
                          {{0xbfc00000}, {0xbf7b985e}},
                          {{0x42c80000}, {0x3fc7c830}},
                          {{0x7f7fffff}, {0x3fc90fdb}},
                          {{0x7f800000}, {0x3fc90fdb}},
                          {{0xff800000}, {0xbfc90fdb}},
                          {{0x7fc00000}, {any_nan}}});
    expect_rows("atan", {{{0x0000000000000000}, {0x0000000000000000}},
                         {{0x8000000000000000}, {0x8000000000000000}},
                         {{0x0000000000000001}, {0x0000000000000001}},
                         {{0x3fb999999999999a}, {0x3fb983e282e2cc4c}},
                         {{0xbfe0000000000000}, {0xbfddac670561bb50}},
                         {{0x3fefffffffffffff}, {0x3fe921fb54442d17}},
                         {{0x3ff0000000000000}, {0x3fe921fb54442d18}},
                         {{0x3ff0000000000001}, {0x3fe921fb54442d1a}},
                         {{0xbff8000000000000}, {0xbfef730bd281f69a}},
                         {{0x4059000000000000}, {0x3ff8f905eb2def21}},
                         {{0x7fefffffffffffff}, {0x3ff921fb54442d18}},
                         {{0x7ff0000000000000}, {0x3ff921fb54442d18}},
                         {{0xfff0000000000000}, {0xbff921fb54442d18}},
                         {{0x7ff8000000000000}, {any_nan}}});
    expect_rows("atan2f", {{{0x3f800000, 0x3f800000}, {0x3f490fdc}},
                           {{0x3f800000, 0xbf800000}, {0x4016cbe4}},
                           {{0xbf800000, 0x3f800000}, {0xbf490fdc}},
                           {{0xbf800000, 0xbf800000}, {0xc016cbe4}},
                           {{0x3dcccccd, 0x3f000000}, {0x3e4a2211}},
                           {{0xc0400000, 0x3fc00000}, {0xbf8db70d}},
                           {{0x40a00000, 0xbdcccccd}, {0x3fcb9f21}},
                           {{0x01000000, 0x7cffffff}, {0x00000000}},
                           {{0x7cffffff, 0x01000000}, {0x3fc90fdb}},
                           {{0x01000000, 0xfcffffff}, {0x40490fdb}},
                           {{0x42c80000, 0xc2c80001}, {0x4016cbe5}}});
    expect_rows("atan2", {{{0x3ff0000000000000, 0x3ff0000000000000}, {0x3fe921fb54442d18}},
                          {{0x3ff0000000000000, 0xbff0000000000000}, {0x4002d97c7f3321d2}},
                          {{0xbff0000000000000, 0x3ff0000000000000}, {0xbfe921fb54442d18}},
                          {{0xbff0000000000000, 0xbff0000000000000}, {0xc002d97c7f3321d2}},
                          {{0x3fb999999999999a, 0x3fe0000000000000}, {0x3fc94441f8f7260c}},
                          {{0xc008000000000000, 0x3ff8000000000000}, {0xbff1b6e192ebbe44}},
                          {{0x4014000000000000, 0xbfb999999999999a}, {0x3ff973e40dbaed14}},
                          {{0x0030000000000000, 0x7dffffffffffffff}, {0x0000000000000000}},
                          {{0x7dffffffffffffff, 0x0030000000000000}, {0x3ff921fb54442d18}},
                          {{0x0030000000000000, 0xfdffffffffffffff}, {0x400921fb54442d18}}});
}

// Operands whose result does not depend on the last bits of the estimate.
TEST(ArcTangents, ByTheEstimate) {
    expect_rows("atanf_native", {{{0x3fe58b4f}, {0x3f87f3e8}},
                                 {{0x3fcd8860}, {0x3f81c714}},
                                 {{0x3f44e4d0}, {0x3f27d039}},
                                 {{0xbfe0d375}, {0xbf86d14a}}});
    expect_rows("atanpif", {{{0x3ff63a50}, {0x3eb1dedc}},
                            {{0x3fbc1325}, {0x3e9e9c56}},
                            {{0x3fcab936}, {0x3ea436e0}},
                            {{0xbfae2b97}, {0xbe98b5f0}}});
    expect_rows("atanpif_native", {{{0xbfd571b0}, {0xbea7f906}},
                                   {{0xbff23479}, {0xbeb0c396}},
                                   {{0xbff6cdae}, {0xbeb205a0}},
                                   {{0x3fb0c154}, {0x3e99e03e}}});
    expect_rows("atanpi", {{{0xbff7c5817bf76fce}, {0xbfd3ee6322f158c8}},
                           {{0xbf67a9ba99f94400}, {0xbf4e20eb2620edc4}},
                           {{0x3fd9fbcbde970c60}, {0x3fbf6d35c4ab0c7c}},
                           {{0xbffe29f593d26bc6}, {0xbfd6108f89b771bb}},
                           {{0xbff688610820ed84}, {0xbfd36bd728849288}}});
    expect_rows("atan2f_native", {{{0xbff14fad, 0xbff0fa79}, {0xc016bf6e}},
                                  {{0xbfb44308, 0xbe094cf2}, {0xbfd535cd}},
                                  {{0xbfdbf1d6, 0xbe8301c4}, {0xbfdbfb5b}},
                                  {{0xbfbd8e45, 0xbf0b20a5}, {0xbff617ba}}});
    expect_rows("atan2pif", {{{0xbff14fad, 0xbff0fa79}, {0xbf3ff19a}},
                             {{0xbfb44308, 0xbe094cf2}, {0xbf07bc2a}},
                             {{0xbfdbf1d6, 0xbe8301c4}, {0xbf0c0bb2}},
                             {{0xbf0626ab, 0xbffa32b5}, {0xbf6aa7ef}}});
    expect_rows("atan2pif_native", {{{0xbfbe2c0c, 0xbfeab612}, {0xbf48839e}},
                                    {{0x3ecfde5f, 0xbf8209a0}, {0x3f61033e}},
                                    {{0xbff14fad, 0xbff0fa79}, {0xbf3ff022}},
                                    {{0xbfb44308, 0xbe094cf2}, {0xbf07bbda}}});
    expect_rows("atan2pi", {{{0xbff7c5817bf76fce, 0xbffd56c2349b97fe}, {0xbfe91059e18e04a0}},
                            {{0xbf67a9ba99f94400, 0x3ff31fe849042836}, {0xbf4934c3e54fef18}},
                            {{0x3fd9fbcbde970c60, 0xbff041340a49163a}, {0x3fec209f17de2a5f}},
                            {{0xbffe29f593d26bc6, 0xbffe1f4f217ec164}, {0xbfe7fe33576ca845}},
                            {{0xbff688610820ed84, 0xbfc1299e4670a590}, {0xbfe0f7854af50ade}}});
}

// Zeros, infinities and what is between them: an eighth of a turn for each step around, whatever the unit.
// Quieted, but with the sign and payload that they came with.
TEST(ArcTangents, KeepNaNs) {
    const std::vector<harness::Row> floats = {
        {{0x7fc00000}, {0x7fc00000}}, {{0xffc12345}, {0xffc12345}}, {{0x7f800001}, {0x7fc00001}}};
    const std::vector<harness::Row> doubles = {{{0x7ff8000000000001}, {0x7ff8000000000001}},
                                               {{0xfff8123400000000}, {0xfff8123400000000}}};
    harness::expect_rows("atanf", floats);
    harness::expect_rows("atanf_native", floats);
    harness::expect_rows("atan", doubles);
    // Of two, the denominator's first operand: y less its sign, then negated.
    harness::expect_rows("atan2f_native", {{{0x7f800001, 0}, {0x7fc00001}}, {{0xffc12345, 0xffabcdef}, {0xffebcdef}}});
}

TEST(Angles, OfSpecialPoints) {
    using Eighths = std::array<uint64_t, 5>;
    struct Precision {
        std::string suffix;
        uint64_t sign, infinity, nan, ordinary, subnormal;
        Eighths radians, half_turns;
    };
    const Precision precisions[] = {
        {"f",
         0x80000000,
         0x7f800000,
         0x7fc00000,
         0x40a00000,
         0x00000007,
         {0, 0x3f490fdb, 0x3fc90fdb, 0x4016cbe4, 0x40490fdb},
         {0, 0x3e800000, 0x3f000000, 0x3f400000, 0x3f800000}},
        {"",
         0x8000000000000000,
         0x7ff0000000000000,
         0x7ff8000000000000,
         0x4014000000000000,
         0x0000000000000007,
         {0, 0x3fe921fb54442d18, 0x3ff921fb54442d18, 0x4002d97c7f3321d2, 0x400921fb54442d18},
         {0, 0x3fd0000000000000, 0x3fe0000000000000, 0x3fe8000000000000, 0x3ff0000000000000}}};
    for (const Precision& p : precisions) {
        struct Point {
            uint64_t y, x;
            size_t ahead, behind;  // eighths of a turn for a positive and for a negative x
        };
        std::vector<Point> points;
        for (uint64_t number : {p.ordinary, p.subnormal}) {
            points.push_back({0, number, 0, 4});
            points.push_back({number, 0, 2, 2});
            points.push_back({number, p.infinity, 0, 4});
            points.push_back({p.infinity, number, 2, 2});
        }
        points.push_back({0, 0, 0, 4});
        points.push_back({0, p.infinity, 0, 4});
        points.push_back({p.infinity, 0, 2, 2});
        points.push_back({p.infinity, p.infinity, 1, 3});
        for (std::string base : {"atan2", "atan2pi"}) {
            const Eighths& eighths = base == "atan2" ? p.radians : p.half_turns;
            std::vector<Row> rows;
            for (const Point& point : points)
                for (uint64_t sign : {uint64_t{0}, p.sign}) {
                    rows.push_back({{point.y | sign, point.x}, {eighths[point.ahead] | sign}});
                    rows.push_back({{point.y | sign, point.x | p.sign}, {eighths[point.behind] | sign}});
                }
            for (uint64_t other : {uint64_t{0}, p.ordinary, p.infinity, p.nan}) {
                rows.push_back({{p.nan, other}, {any_nan}});
                rows.push_back({{other | p.sign, p.nan}, {any_nan}});
            }
            expect_rows(base + p.suffix, rows);
        }
    }
}

// Positive x axis: nothing is rare, but x = +0 is not above 0 and takes half a turn more. Infinities spoil the
// estimate.
TEST(Angles, NativeOnTheAxes) {
    expect_rows("atan2f_native", {{{0x40a00000, 0x00000000}, {0x4096cbe4}},
                                  {{0xc0a00000, 0x00000000}, {0xc096cbe4}},
                                  {{0x40a00000, 0x80000000}, {0x3fc90fdb}},
                                  {{0x00000000, 0x40a00000}, {0x00000000}},
                                  {{0x80000000, 0x40a00000}, {0x80000000}},
                                  {{0x00000000, 0xc0a00000}, {0x40490fdb}},
                                  {{0x80000000, 0xc0a00000}, {0xc0490fdb}},
                                  {{0x00000000, 0x00000000}, {any_nan}},
                                  {{0x00000000, 0x80000000}, {any_nan}},
                                  {{0x7f800000, 0x40a00000}, {any_nan}},
                                  {{0x40a00000, 0xff800000}, {any_nan}},
                                  {{0x7fc00000, 0x40a00000}, {any_nan}},
                                  {{0x40a00000, 0x7fc00000}, {any_nan}}});
    expect_rows("atan2pif_native", {{{0x40a00000, 0x00000000}, {0x3fc00000}},
                                    {{0xc0a00000, 0x80000000}, {0xbf000000}},
                                    {{0x80000000, 0x40a00000}, {0x80000000}},
                                    {{0x80000000, 0xc0a00000}, {0xbf800000}},
                                    {{0x00000000, 0x00000000}, {any_nan}}});
    const uint64_t five = 0x4014000000000000, inf = 0x7ff0000000000000, sign = 0x8000000000000000;
    expect_rows("atan2_native", {{{five, 0}, {0x4012d97c7f3321d2}},
                                 {{five | sign, sign}, {0xbff921fb54442d18}},
                                 {{sign, five}, {sign}},
                                 {{sign, five | sign}, {0xc00921fb54442d18}},
                                 {{0, 0}, {any_nan}},
                                 {{inf, five}, {any_nan}},
                                 {{five, inf | sign}, {any_nan}},
                                 {{0x7ff8000000000000, five}, {any_nan}}});
    expect_rows("atan2pi_native", {{{five | sign, 0}, {0xbff8000000000000}},
                                   {{five, sign}, {0x3fe0000000000000}},
                                   {{sign, five}, {sign}},
                                   {{0, five | sign}, {0x3ff0000000000000}},
                                   {{0, 0}, {any_nan}}});
}

// The reciprocal of a huge number is zero in single precision; in double its exponent leaves the field.
TEST(ArcTangents, NativeBeyondTheReciprocal) {
    expect_rows("atanf_native", {{{0x80000000}, {0x80000000}},
                                 {{0x7f000000}, {0x3fc90fdb}},
                                 {{0xff7fffff}, {0xbfc90fdb}},
                                 {{0x7f800000}, {any_nan}},
                                 {{0x7fc00000}, {any_nan}}});
    expect_rows("atanpif_native",
                {{{0x80000000}, {0x80000000}}, {{0xff000000}, {0xbf000000}}, {{0x7f800000}, {any_nan}}});
    for (auto [name, quarter] : {std::pair{"atan_native", 0x3ff921fb54442d18}, {"atanpi_native", 0x3fe0000000000000}})
        expect_rows(name, {{{0x8000000000000000}, {0x8000000000000000}},
                           {{0x7fcfffffffffffff}, {static_cast<uint64_t>(quarter)}},
                           {{0x7fe0000000000000}, {any_nan}},
                           {{0xffefffffffffffff}, {any_nan}},
                           {{0x7ff0000000000000}, {any_nan}},
                           {{0x7ff8000000000000}, {any_nan}}});
}

// The scalar routine: on both sides of each difference of exponents that chooses a branch.
TEST(Angles, BranchesOfTheScalarRoutine) {
    expect_rows("atan2f", {{{0x00a00000, 0x1b800000}, {0x24a00000}}, {{0x00a00000, 0x1b000000}, {0x25200000}},
                           {{0x80a00000, 0x9b800000}, {0xc0490fdb}}, {{0x00a00000, 0x9b000000}, {0x40490fdb}},
                           {{0x1b200000, 0x00800003}, {0x3fc90fdb}}, {{0x1ba00000, 0x00800003}, {0x3fc90fdb}},
                           {{0x25200000, 0x00800003}, {0x3fc90fdb}}, {{0x25a00000, 0x00800003}, {0x3fc90fdb}},
                           {{0x9b200000, 0x80800003}, {0xbfc90fdb}}, {{0x1e800000, 0x80a00000}, {0x3fc90fdb}},
                           {{0x00800000, 0x02000001}, {0x3dfeadd3}}, {{0x00800000, 0x02000000}, {0x3dfeadd5}},
                           {{0x00c00000, 0x02000000}, {0x3e3dcbda}}, {{0x00a00000, 0x80800000}, {0x400fb6e2}},
                           {{0x00c00000, 0x00800000}, {0x3f7b985f}}, {{0x7d800000, 0x7d800000}, {0x3f490fdb}},
                           {{0xfd800000, 0xfd800000}, {0xc016cbe4}}, {{0x00000001, 0x00000001}, {0x3f490fdb}},
                           {{0x00000001, 0x80000003}, {0x4034784b}}, {{0x80000005, 0x00000002}, {0xbf985b6c}},
                           {{0x7f7fffff, 0x7f7fffff}, {0x3f490fdb}}, {{0xff7fffff, 0xfda00000}, {0xbfd30aaa}},
                           {{0x7da00000, 0x7f7fffff}, {0x3d9facf9}}, {{0x00000001, 0x44800000}, {0x00000000}},
                           {{0x00000003, 0x40800000}, {0x00000001}}, {{0x00000001, 0x7f7fffff}, {0x00000000}},
                           {{0x80000001, 0xff7fffff}, {0xc0490fdb}}});
    expect_rows("atan2pif", {{{0x00a00000, 0x1b800000}, {0x23cbb7e4}}, {{0x00a00000, 0x1b000000}, {0x244bb7e4}},
                             {{0x80a00000, 0x9b800000}, {0xbf800000}}, {{0x00a00000, 0x9b000000}, {0x3f800000}},
                             {{0x1b200000, 0x00800003}, {0x3f000000}}, {{0x1ba00000, 0x00800003}, {0x3f000000}},
                             {{0x25200000, 0x00800003}, {0x3f000000}}, {{0x25a00000, 0x00800003}, {0x3f000000}},
                             {{0x9b200000, 0x80800003}, {0xbf000000}}, {{0x1e800000, 0x80a00000}, {0x3f000000}},
                             {{0x00800000, 0x02000001}, {0x3d222239}}, {{0x00800000, 0x02000000}, {0x3d22223b}},
                             {{0x00c00000, 0x02000000}, {0x3d71a7fa}}, {{0x00a00000, 0x80800000}, {0x3f36fb9b}},
                             {{0x00c00000, 0x00800000}, {0x3ea02ba4}}, {{0x7d800000, 0x7d800000}, {0x3e800000}},
                             {{0xfd800000, 0xfd800000}, {0xbf400000}}, {{0x00000001, 0x00000001}, {0x3e800000}},
                             {{0x00000001, 0x80000003}, {0x3f65c80a}}, {{0x80000005, 0x00000002}, {0xbec1fcb3}},
                             {{0x7f7fffff, 0x7f7fffff}, {0x3e800000}}, {{0xff7fffff, 0xfda00000}, {0xbf065a71}},
                             {{0x7da00000, 0x7f7fffff}, {0x3ccb4e2e}}, {{0x00000001, 0x44800000}, {0x00000000}},
                             {{0x00000003, 0x40800000}, {0x00000000}}, {{0x00000001, 0x7f7fffff}, {0x00000000}},
                             {{0x80000001, 0xff7fffff}, {0xbf800000}}});
    expect_rows("atan2", {{{0x0024000000000000, 0x0380000000000000}, {0x3c94000000000000}},
                          {{0x0024000000000000, 0x0370000000000000}, {0x3ca4000000000000}},
                          {{0x8024000000000000, 0x8380000000000000}, {0xc00921fb54442d18}},
                          {{0x0024000000000000, 0x8370000000000000}, {0x400921fb54442d18}},
                          {{0x0374000000000000, 0x0020000000000003}, {0x3ff921fb54442d18}},
                          {{0x0384000000000000, 0x0020000000000003}, {0x3ff921fb54442d18}},
                          {{0x04b4000000000000, 0x0020000000000003}, {0x3ff921fb54442d18}},
                          {{0x04c4000000000000, 0x0020000000000003}, {0x3ff921fb54442d18}},
                          {{0x8374000000000000, 0x8020000000000003}, {0xbff921fb54442d19}},
                          {{0x03e0000000000000, 0x8024000000000000}, {0x3ff921fb54442d18}},
                          {{0x0020000000000000, 0x0050000000000001}, {0x3fbfd5ba9aac2f6c}},
                          {{0x0020000000000000, 0x0050000000000000}, {0x3fbfd5ba9aac2f6e}},
                          {{0x0028000000000000, 0x0050000000000000}, {0x3fc7b97b4bce5b02}},
                          {{0x0024000000000000, 0x8020000000000000}, {0x4001f6dc3e631131}},
                          {{0x0028000000000000, 0x0020000000000000}, {0x3fef730bd281f69b}},
                          {{0x7e70000000000000, 0x7e70000000000000}, {0x3fe921fb54442d18}},
                          {{0xfe70000000000000, 0xfe70000000000000}, {0xc002d97c7f3321d2}},
                          {{0x0000000000000001, 0x0000000000000001}, {0x3fe921fb54442d18}},
                          {{0x0000000000000001, 0x8000000000000003}, {0x40068f095fdf593c}},
                          {{0x8000000000000005, 0x0000000000000002}, {0xbff30b6d796a4da8}},
                          {{0x7fefffffffffffff, 0x7fefffffffffffff}, {0x3fe921fb54442d18}},
                          {{0xffefffffffffffff, 0xfe74000000000000}, {0xbff921fb68442d18}},
                          {{0x7e74000000000000, 0x7fefffffffffffff}, {0x3e73fffffffffff6}},
                          {{0x0000000000000001, 0x4090000000000000}, {0x0000000000000000}},
                          {{0x0000000000000003, 0x4010000000000000}, {0x0000000000000001}},
                          {{0x0000000000000001, 0x7fefffffffffffff}, {0x0000000000000000}},
                          {{0x8000000000000001, 0xffefffffffffffff}, {0xc00921fb54442d18}},
                          {{0x0350000000000000, 0x8000000000000001}, {0x3ff921fb54442d19}},
                          {{0x0350000000000000, 0x0000000000000001}, {0x3ff921fb54442d18}},
                          {{0x0000000000000001, 0x0350000000000000}, {0x3970000000000000}},
                          {{0x0000000000000007, 0x8330000000000000}, {0x400921fb54442d18}}});
    expect_rows("atan2pi", {{{0x0024000000000000, 0x0380000000000000}, {0x3c7976fc893c3aa4}},
                            {{0x0024000000000000, 0x0370000000000000}, {0x3c8976fc893c3aa4}},
                            {{0x8024000000000000, 0x8380000000000000}, {0xbff0000000000000}},
                            {{0x0024000000000000, 0x8370000000000000}, {0x3fefffffffffffff}},
                            {{0x0374000000000000, 0x0020000000000003}, {0x3fdfffffffffffff}},
                            {{0x0384000000000000, 0x0020000000000003}, {0x3fe0000000000000}},
                            {{0x04b4000000000000, 0x0020000000000003}, {0x3fe0000000000000}},
                            {{0x04c4000000000000, 0x0020000000000003}, {0x3fe0000000000000}},
                            {{0x8374000000000000, 0x8020000000000003}, {0xbfe0000000000000}},
                            {{0x03e0000000000000, 0x8024000000000000}, {0x3fe0000000000000}},
                            {{0x0020000000000000, 0x0050000000000001}, {0x3fa4444750777668}},
                            {{0x0020000000000000, 0x0050000000000000}, {0x3fa4444750777669}},
                            {{0x0028000000000000, 0x0050000000000000}, {0x3fae34ff3a10b9cc}},
                            {{0x0024000000000000, 0x8020000000000000}, {0x3fe6df7369874795}},
                            {{0x0028000000000000, 0x0020000000000000}, {0x3fd40574872217af}},
                            {{0x7e70000000000000, 0x7e70000000000000}, {0x3fd0000000000000}},
                            {{0xfe70000000000000, 0xfe70000000000000}, {0xbfe8000000000000}},
                            {{0x0000000000000001, 0x0000000000000001}, {0x3fd0000000000000}},
                            {{0x0000000000000001, 0x8000000000000003}, {0x3fecb90147677cc2}},
                            {{0x8000000000000005, 0x0000000000000002}, {0xbfd83f9656bc3c83}},
                            {{0x7fefffffffffffff, 0x7fefffffffffffff}, {0x3fd0000000000000}},
                            {{0xffefffffffffffff, 0xfe74000000000000}, {0xbfe000000cbb7e45}},
                            {{0x7e74000000000000, 0x7fefffffffffffff}, {0x3e5976fc893c3a97}},
                            {{0x0000000000000001, 0x4090000000000000}, {0x0000000000000000}},
                            {{0x0000000000000003, 0x4010000000000000}, {0x0000000000000000}},
                            {{0x0000000000000001, 0x7fefffffffffffff}, {0x0000000000000000}},
                            {{0x8000000000000001, 0xffefffffffffffff}, {0xbff0000000000000}},
                            {{0x0350000000000000, 0x8000000000000001}, {0x3fe0000000000000}},
                            {{0x0350000000000000, 0x0000000000000001}, {0x3fdfffffffffffff}},
                            {{0x0000000000000001, 0x0350000000000000}, {0x39545f306dc9c883}},
                            {{0x0000000000000007, 0x8330000000000000}, {0x3ff0000000000000}}});
    expect_rows("atanpif", {{{0x00000000}, {0x00000000}},
                            {{0x80000000}, {0x80000000}},
                            {{0x00000001}, {0x00000000}},
                            {{0x80000003}, {0x80000001}},
                            {{0x007fffff}, {0x0028be61}},
                            {{0x00800000}, {0x0028be61}},
                            {{0x80ffffff}, {0x80517cc1}},
                            {{0x7d000000}, {0x3f000000}},
                            {{0xff7fffff}, {0xbf000000}},
                            {{0x7f800000}, {0x3f000000}},
                            {{0xff800000}, {0xbf000000}},
                            {{0x7fc00000}, {any_nan}}});
    expect_rows("atanpi", {{{0x0000000000000000}, {0x0000000000000000}},
                           {{0x8000000000000000}, {0x8000000000000000}},
                           {{0x0000000000000001}, {0x0000000000000000}},
                           {{0x8000000000000003}, {0x8000000000000001}},
                           {{0x000fffffffffffff}, {0x000517cc1b727220}},
                           {{0x0010000000000000}, {0x000517cc1b727221}},
                           {{0x802fffffffffffff}, {0x80145f306dc9c882}},
                           {{0x7e00000000000000}, {0x3fe0000000000000}},
                           {{0xffefffffffffffff}, {0xbfe0000000000000}},
                           {{0x7ff0000000000000}, {0x3fe0000000000000}},
                           {{0xfff0000000000000}, {0xbfe0000000000000}},
                           {{0x7ff8000000000000}, {any_nan}}});
}

}  // namespace
