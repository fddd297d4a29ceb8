// Values of the double precision logarithms, by their bits, worked out from the steps in scalar arithmetic.
// The rows are chosen so that every estimate of a reciprocal with an error of 1.5 * 2^-12 rounds to the same integer.
#include "tests/harness/lanes.h"

namespace {

using harness::expect_rows;

TEST(LogDouble, Log) {
    expect_rows("log", {
                           {{0x3ff0000000000000}, {0x0000000000000000}},
                           {{0x3ff0000000000001}, {0x3cafffffffffffff}},  // next to 1: c = 1024
                           {{0x3fefffffffffffff}, {0xbca0000000000000}},  // c = 512
                           {{0x4000000000000000}, {0x3fe62e42fefa39ef}},
                           {{0x0010000000000000}, {0xc086232bdd7abcd2}},
                           {{0x7fe0000000000000}, {0x408628b76e3a7b61}},
                           {{0x7fefffffffffffff}, {0x40862e42fefa39ef}},
                           {{0x3ff6993f349cc726}, {0x3fd61965cdb02c1e}},  // on either side of the switch
                           {{0x3ff6a13cd1537290}, {0x3fd630030b3aac48}},
                           {{0x4130624dd2f1a9fc}, {0x402bc5f8514d2cd0}},
                           {{0x3b9b4e81b4e81b4f}, {0xc047fe2d665291f3}},
                           {{0x0000000000000001}, {0xc0874385446d71c3}},  // subnormals
                           {{0x0000000000000003}, {0xc0873abb4f301b42}},
                           {{0x000fffffffffffff}, {0xc086232bdd7abcd2}},  // the last row
                           {{0x0000123456789abc}, {0xc0864e8009ed5763}},
                           {{0x000b504f333f9de6}, {0xc08625f1a5da9c19}},
                           {{0x0008000000000000}, {0xc08628b76e3a7b61}},
                           {{0x0000000000000000}, {0xfff0000000000000}},
                           {{0x8000000000000000}, {0xfff0000000000000}},
                           {{0xbff0000000000000}, {0xfff8000000000000}},
                           {{0x8000000000000001}, {0xfff8000000000000}},
                           {{0xffefffffffffffff}, {0xfff8000000000000}},
                           {{0x7ff0000000000000}, {0x7ff0000000000000}},
                           {{0xfff0000000000000}, {0xfff8000000000000}},
                           {{0x7ff8000000000000}, {0x7ff8000000000000}},
                           {{0xfff8000000001234}, {0xfff8000000001234}},
                           {{0x7ff0000000000001}, {0x7ff8000000000001}},
                       });
}

TEST(LogDouble, Log2) {
    expect_rows("log2", {
                            {{0x3ff0000000000000}, {0x0000000000000000}},
                            {{0x3ff0000000000001}, {0x3cb71547652b82fd}},  // next to 1: c = 1024
                            {{0x3fefffffffffffff}, {0xbca71547652b82fe}},  // c = 512
                            {{0x4000000000000000}, {0x3ff0000000000000}},
                            {{0x0010000000000000}, {0xc08ff00000000000}},
                            {{0x7fe0000000000000}, {0x408ff80000000000}},
                            {{0x7fefffffffffffff}, {0x4090000000000000}},
                            {{0x3ff6993f349cc726}, {0x3fdfe1e649bb6333}},  // on either side of the switch
                            {{0x3ff6a13cd1537290}, {0x3fe0014332be0032}},
                            {{0x4130624dd2f1a9fc}, {0x403408c25c7262b5}},
                            {{0x3b9b4e81b4e81b4f}, {0xc0514ea4f726192d}},
                            {{0x0000000000000001}, {0xc090c80000000000}},  // subnormals
                            {{0x0000000000000003}, {0xc090c1a8ff971811}},
                            {{0x000fffffffffffff}, {0xc08ff00000000000}},  // the last row
                            {{0x0000123456789abc}, {0xc09017414fdb4982}},
                            {{0x000b504f333f9de6}, {0xc08ff40000000000}},
                            {{0x0008000000000000}, {0xc08ff80000000000}},
                            {{0x0000000000000000}, {0xfff0000000000000}},
                            {{0x8000000000000000}, {0xfff0000000000000}},
                            {{0xbff0000000000000}, {0xfff8000000000000}},
                            {{0x8000000000000001}, {0xfff8000000000000}},
                            {{0xffefffffffffffff}, {0xfff8000000000000}},
                            {{0x7ff0000000000000}, {0x7ff0000000000000}},
                            {{0xfff0000000000000}, {0xfff8000000000000}},
                            {{0x7ff8000000000000}, {0x7ff8000000000000}},
                            {{0xfff8000000001234}, {0xfff8000000001234}},
                            {{0x7ff0000000000001}, {0x7ff8000000000001}},
                        });
}

TEST(LogDouble, Log10) {
    expect_rows("log10", {
                             {{0x3ff0000000000000}, {0x0000000000000000}},
                             {{0x3ff0000000000001}, {0x3c9bcb7b1526e50d}},  // next to 1: c = 1024
                             {{0x3fefffffffffffff}, {0xbc8bcb7b1526e50e}},  // c = 512
                             {{0x4000000000000000}, {0x3fd34413509f79ff}},
                             {{0x0010000000000000}, {0xc0733a7146f72a42}},
                             {{0x7fe0000000000000}, {0x40733f424bcb5221}},
                             {{0x7fefffffffffffff}, {0x40734413509f79ff}},
                             {{0x3ff6993f349cc726}, {0x3fc331f403985096}},  // on either side of the switch
                             {{0x3ff6a13cd1537290}, {0x3fc345987bfeea90}},
                             {{0x4130624dd2f1a9fc}, {0x40181fa4372b04be}},
                             {{0x3b9b4e81b4e81b4f}, {0xc034d70707313f9f}},
                             {{0x0000000000000001}, {0xc07434e6420f4374}},  // subnormals
                             {{0x0000000000000003}, {0xc0742d43f829af7e}},
                             {{0x000fffffffffffff}, {0xc0733a7146f72a42}},  // the last row
                             {{0x0000123456789abc}, {0xc0736013d11a0270}},
                             {{0x000b504f333f9de6}, {0xc0733cd9c9613e31}},
                             {{0x0008000000000000}, {0xc0733f424bcb5220}},
                             {{0x0000000000000000}, {0xfff0000000000000}},
                             {{0x8000000000000000}, {0xfff0000000000000}},
                             {{0xbff0000000000000}, {0xfff8000000000000}},
                             {{0x8000000000000001}, {0xfff8000000000000}},
                             {{0xffefffffffffffff}, {0xfff8000000000000}},
                             {{0x7ff0000000000000}, {0x7ff0000000000000}},
                             {{0xfff0000000000000}, {0xfff8000000000000}},
                             {{0x7ff8000000000000}, {0x7ff8000000000000}},
                             {{0xfff8000000001234}, {0xfff8000000001234}},
                             {{0x7ff0000000000001}, {0x7ff8000000000001}},
                         });
}

// Nothing is classified: every pattern is split into mantissa and exponent.
TEST(LogDouble, Native) {
    expect_rows("log_native", {
                                  {{0x3ff0000000000000}, {0x0000000000000000}},
                                  {{0x3fefffffffffffff}, {0xbca0000000000000}},
                                  {{0x0010000000000000}, {0xc086232bdd7abcd2}},
                                  {{0x7fefffffffffffff}, {0x40862e42fefa39ef}},
                                  {{0x3ff6993f349cc726}, {0x3fd61965cdb02c1d}},  // on either side of the switch
                                  {{0x3ff6a13cd1537290}, {0x3fd630030b3aac49}},
                                  {{0x0000000000000000}, {0xc08628b76e3a7b61}},  // k = -1023
                                  {{0x0000000000000001}, {0xc08628b76e3a7b61}},
                                  {{0x8000000000000000}, {0x408633ce8fb9f87d}},  // k = 1025: the sign belongs to it
                                  {{0xbff0000000000000}, {0x40962e42fefa39ef}},  // k = 2048
                                  {{0x7ff0000000000000}, {0x40862e42fefa39ef}},  // k = 1024
                                  {{0xfff0000000000000}, {0x40a0a2b23f3bab73}},
                                  {{0x7ff0000000000001}, {0x40862e42fefa39ef}},
                              });
    expect_rows("log2_native", {
                                   {{0x3ff0000000000000}, {0x0000000000000000}},
                                   {{0x3fefffffffffffff}, {0xbca71547652b82fe}},
                                   {{0x0010000000000000}, {0xc08ff00000000000}},
                                   {{0x7fefffffffffffff}, {0x4090000000000000}},
                                   {{0x3ff6993f349cc726}, {0x3fdfe1e649bb6332}},  // on either side of the switch
                                   {{0x3ff6a13cd1537290}, {0x3fe0014332be0032}},
                                   {{0x0000000000000000}, {0xc08ff80000000000}},  // k = -1023
                                   {{0x0000000000000001}, {0xc08ff80000000000}},
                                   {{0x8000000000000000}, {0x4090040000000000}},  // k = 1025: the sign belongs to it
                                   {{0xbff0000000000000}, {0x40a0000000000000}},  // k = 2048
                                   {{0x7ff0000000000000}, {0x4090000000000000}},  // k = 1024
                                   {{0xfff0000000000000}, {0x40a8000000000000}},
                                   {{0x7ff0000000000001}, {0x4090000000000000}},
                               });
    expect_rows("log10_native", {
                                    {{0x3ff0000000000000}, {0x0000000000000000}},
                                    {{0x3fefffffffffffff}, {0xbc8bcb7b1526e50e}},
                                    {{0x0010000000000000}, {0xc0733a7146f72a42}},
                                    {{0x7fefffffffffffff}, {0x40734413509f79ff}},
                                    {{0x3ff6993f349cc726}, {0x3fc331f403985095}},  // on either side of the switch
                                    {{0x3ff6a13cd1537290}, {0x3fc345987bfeea91}},
                                    {{0x0000000000000000}, {0xc0733f424bcb5221}},  // k = -1023
                                    {{0x0000000000000001}, {0xc0733f424bcb5221}},
                                    {{0x8000000000000000}, {0x407348e45573a1dd}},  // k = 1025: the sign belongs to it
                                    {{0xbff0000000000000}, {0x40834413509f79ff}},  // k = 2048
                                    {{0x7ff0000000000000}, {0x40734413509f79ff}},  // k = 1024
                                    {{0xfff0000000000000}, {0x408ce61cf8ef36fe}},
                                    {{0x7ff0000000000001}, {0x40734413509f79ff}},
                                });
}

// Operands whose result changes with the last binary digits of one constant that reach it: between them they see nearly
// every constant of the main paths and of the scalar routines.
TEST(LogDouble, Digits) {
    expect_rows("log",
                {{{0x3fe95ee41fc5bcb6}, {0xbfcdb6d5c72e8141}},
                 {{0x3feffb42084d22b9}, {0xbf42f946ba58e86e}},
                 {{0x3feffb83e2e9324b}, {0xbf41f1b64a9a0b9b}},
                 {{0x40d97b271291b6c4}, {0x402456bc921f2b70}},
                 {{0x00074df4561b8cd3}, {0xc0862971b208a313}},
                 {{0x00080c300aec2453}, {0xc08628ab476ecccd}},
                 {{0x0000ff6bff9917f6}, {0xc086395ec1d3b44b}},
                 {{0x0003ab45a4911440}, {0xc0862ef3dffa3877}},
                 {{0x00021c3658a18846}, {0xc0863360b631a19b}}},
                {4});
    expect_rows("log2",
                {{{0x3feffb4106ac87d9}, {0xbf4b6561155c1a17}},
                 {{0x3fef24687513acd0}, {0xbfa4120b41c011bf}},
                 {{0x3fefe27c0e08e81a}, {0xbf75544e0ad41835}},
                 {{0x000626ccaec7ac28}, {0xc08ffb084a1095ef}},
                 {{0x000611ade0b48f54}, {0xc08ffb302ef3fadc}},
                 {{0x0004389ed73cefab}, {0xc08fff60fc137872}},
                 {{0x0002140ac0d43a60}, {0xc09003c7462e7aa4}}},
                {4});
    expect_rows("log10",
                {{{0x3feffb970ab4bafb}, {0xbf2ea6eacf583e58}},
                 {{0x3fffac974f7fe46c}, {0x3fd2fb418a26a6cf}},
                 {{0x000aa6801d274024}, {0xc0733d45435c710e}},
                 {{0x0005bf1591bf7ef4}, {0xc073418edc339404}},
                 {{0x0007ff4c00149c64}, {0xc0733f42e82ab3da}},
                 {{0x0000bf3192041d7a}, {0xc0734fbc96a0e6a7}},
                 {{0x0009f70d5463fb3d}, {0xc0733dbb94ca1a9c}},
                 {{0x000487fef26f7953}, {0xc07343357d6caeee}}},
                {4});
    expect_rows("log_native",
                {{{0x3feff4937c32d1db}, {0xbf56dd1c9db0c687}},
                 {{0x3feffd226b8ffdef}, {0xbf36edaa532c41db}},
                 {{0x3ffa9a39e77827b1}, {0x3fe044ee5f4bfa84}}},
                {4});
    expect_rows("log2_native",
                {{{0x3fefc4f0d608b012}, {0xbf8560d65e463b7a}}, {{0x3fef671a99cc98fc}, {0xbf9bd5572e86a810}}}, {4});
    expect_rows("log10_native",
                {{{0x3fecdb86c6937cb0}, {0xbfa6fbf07155dfb0}},
                 {{0x3feffe733e2d117a}, {0xbf158a6c6478d2f4}},
                 {{0x40f7129d7a6bc53d}, {0x4013e6dea263d8f5}}},
                {4});
}

}  // namespace
