// Operands of the hyperbolic functions and their inverses whose result, worked out from the steps in scalar arithmetic,
// changes with the last binary digits of one constant: between them they see nearly every constant of the main paths,
// and of the rare routines those that reach the result. Where the processor's estimates come in, the rows hold for any
// estimate within 1.5 * 2^-12. Operand, result, operand, result.
#include "tests/harness/lanes.h"

namespace {

void expect_pairs(const char* family, std::initializer_list<uint64_t> pairs) {
    std::vector<harness::Row> rows;
    for (const uint64_t* pair = pairs.begin(); pair != pairs.end(); pair += 2) rows.push_back({{pair[0]}, {pair[1]}});
    harness::expect_rows(family, rows, {4});
}

TEST(HyperbolicDigits, Functions) {
    expect_pairs("sinhf", {0xc1f7af31, 0xd54b2e53, 0xc0ff390e, 0xc4b5d6fb, 0xc2737e6b, 0xeae24251, 0x4073fcd5,
                           0x41b4ee30, 0x42b2753e, 0x7f54568e});
    expect_pairs("coshf", {0x4198c735, 0x4cbb9a3e, 0x424bc3e6, 0x63b41d54, 0x428cb581, 0x71b507c7, 0x4239a8fd,
                           0x607978a9, 0x40914bee, 0x423b800a, 0xc2b2892c, 0x7f5cc431});
    expect_pairs("sinhf_native",
                 {0x3ed90f95, 0x3edf9d2e, 0xc2769ee4, 0xeb773655, 0x3ee398b3, 0x3eeb2935, 0x40a65af4, 0x42b5043a});
    expect_pairs("coshf_native",
                 {0x40430c8d, 0x4128e7f1, 0xc074bb19, 0x41b7370f, 0xc1f458da, 0x5505e104, 0x4283013b, 0x6e350574});
    expect_pairs("sinh",
                 {0x401bbc31a139eafc, 0x408009795825834a, 0xc06f4c8570c5d5ac, 0xd672df8d6c78208e, 0x40574fcb6048a597,
                  0x48470cbbf51443cb, 0x3fbda98cc9efb8da, 0x3fbdba8d7367e03e, 0x40862989ec59394e, 0x7fd1bb615b6bdcf5,
                  0x4086257988f23720, 0x7fc556a898bdbc09, 0xc086227b62669b3c, 0xffbd5ba321b468c2});
    expect_pairs("cosh", {0xc06b2862830458cd, 0x5375bfa03c4ab8cd, 0xc0314d761a766f3f, 0x416f2cfc53787103,
                          0xc066283d6f655e00, 0x4fda82cc4881843e, 0x400cccbc7b3f20cc, 0x40324fecfdd3cd88,
                          0xc0862a3dc74737c4, 0x7fd35c0e8a507d21, 0xc086305f8018da30, 0x7fe4d514a015b2e4,
                          0x4086202db7089498, 0x7fb6035c8c5b7d27, 0x40862628dc69040d, 0x7fc73ee8bd6ddc9a});
    expect_pairs("sinh_native", {0xbfe0e9d5f720b1ae, 0xbfe1b6445eb00d58, 0x40822c4baa49a700, 0x744f91d6d5bf7072,
                                 0xbfd01a5ee4a20fc7, 0xbfd046012f935102, 0x4082ae19f5d89208, 0x75c4f4933f550823});
    expect_pairs("cosh_native", {0x402349c433cb7810, 0x40be230c068e9c16, 0xc07c345ccfdbf9ba, 0x68908d000add2a2d,
                                 0xc0820272b72d0c09, 0x73d59cedc21fbdaa, 0x402d020162198db7, 0x412e5f8c91e772c5});
}

TEST(HyperbolicDigits, Inverses) {
    expect_pairs("asinhf", {0x3f93972a, 0x3f7c4e15, 0x4eee3d58, 0x41b0ded7});
    expect_pairs("acoshf", {0x3f8604e5, 0x3e9c6876, 0x3f8635e6, 0x3e9edb2d, 0x4ec1fcbe, 0x41af3a02});
    expect_pairs("atanhf", {0x3e3a9803, 0x3e3cb382});
    expect_pairs("asinhf_native", {0x3f9536aa, 0x3f7e6e37, 0x58d7a57f, 0x420f7d0a});
    expect_pairs("acoshf_native", {0x3f86596d, 0x3ea09b86, 0x5c212c88, 0x4221bb5c});
    expect_pairs("atanhf_native", {0x3e1c7f7f, 0x3e1dbd67});
    expect_pairs("asinh", {0x3fdf458723246ab5, 0x3fde2502a4f8061f, 0x3fb9195212b5f3f3, 0x3fb90f12357dcec2,
                           0x437110871d309ab9, 0x4043c9726cbc414c});
    expect_pairs("acosh", {0x403229ef81379f92, 0x400cbc0c0034f30b, 0x40051310871d312a, 0x3ff9fa5cf0f5218b,
                           0x422a016e2c7cf291, 0x40397063b15c58c8});
    expect_pairs("atanh", {0xbf8dd9ca6ff91cd6, 0xbf8dda54fdd89418, 0xbfd1942135a21339, 0xbfd20ab5fef85804});
    expect_pairs("asinh_native", {0x3ff56e1a42e96a6f, 0x3ff1a2c185a5cecb, 0x434bd11c8b3e3c55, 0x4042fdd2f76989b4});
    expect_pairs("acosh_native", {0x430c5b8d99105416, 0x40419d65b5828240});
    expect_pairs("atanh_native", {0x3f71db315b1f7e9d, 0x3f71db38c4ee812e, 0xbfe081e1891beff5, 0xbfe242f79a9e05e6});
}

}  // namespace
