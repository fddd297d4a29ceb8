// Values of erf and erfc by their bits, worked out from the steps in the same order and formats, and the rows of their
// tables that are fixed.
#include <iterator>

#include "tests/harness/lanes.h"

namespace {

using harness::expect_rows;

TEST(ErrorFunctions, Erff) {
    expect_rows("erff", {
                            {{0x00000000}, {0x00000000}}, {{0x80000000}, {0x80000000}}, {{0x7f800000}, {0x3f800000}},
                            {{0xff800000}, {0xbf800000}}, {{0x7fc12345}, {0x7fc12345}}, {{0xff812345}, {0xffc12345}},
                            {{0x7f7fffff}, {0x3f800000}}, {{0x20800000}, {0x20906ebb}},  // 2^-62, and the last rare one
                            {{0x207fffff}, {0x20906eba}}, {{0x00000001}, {0x00000001}}, {{0x80000003}, {0x80000003}},
                            {{0x1e3ce508}, {0x1e552511}},                                // 1e-20
                            {{0x3cffffff}, {0x3d1062b2}},                                // about 2^-5
                            {{0x3d000000}, {0x3d1062b2}}, {{0x407fffff}, {0x3f800000}},  // about 4
                            {{0x40800000}, {0x3f800000}}, {{0x3bbbe2c1}, {0x3bd4010a}},  // 0.00573381828
                            {{0x3ccc3741}, {0x3ce6629b}},                                // 0.0249286909
                            {{0x3e27d56e}, {0x3e3bb2a6}},                                // 0.163900107
                            {{0x3e2790f4}, {0x3e3b676e}},                                // 0.16363889
                            {{0x3ed86f12}, {0x3ee66b9e}},                                // 0.422722399
                            {{0x3ee33b5a}, {0x3ef084dc}},                                // 0.443812191
                            {{0x3f550049}, {0x3f42bb9c}},                                // 0.832035601
                            {{0x3f582cc6}, {0x3f4481ae}},                                // 0.844433188
                            {{0x3f8289bd}, {0x3f59cc0a}},                                // 1.01982844
                            {{0x3f86d608}, {0x3f5d1bf6}},                                // 1.05340672
                            {{0x40166a11}, {0x3f7fc5ca}},                                // 2.35022378
                            {{0x4001119e}, {0x3f7ee351}},                                // 2.01670027
                            {{0x407e73b8}, {0x3f800000}},                                // 3.97581291
                            {{0x4043284f}, {0x3f7ffef1}},                                // 3.04933524
                            {{0xbe72fd1a}, {0xbe868fba}},                                // -0.237293631
                            {{0xbe972ad7}, {0xbea5bea0}},                                // -0.295248717
                        });
    expect_rows("erff_native", {{{0x80000000}, {0x80000000}},
                                {{0x00000001}, {0x00000001}},
                                {{0x0da24260}, {0x0db71709}},  // 1e-30
                                {{0x3f800000}, {0x3f57bb3d}},
                                {{0x7f800000}, {harness::any_nan}},
                                {{0xff800000}, {harness::any_nan}}});
}

TEST(ErrorFunctions, Erf) {
    expect_rows("erf", {
                           {{0x0000000000000000}, {0x0000000000000000}},
                           {{0x8000000000000000}, {0x8000000000000000}},
                           {{0x7ff0000000000000}, {0x3ff0000000000000}},
                           {{0xfff0000000000000}, {0xbff0000000000000}},
                           {{0x7ff8123456789abc}, {0x7ff8123456789abc}},
                           {{0xfff0000000000001}, {0xfff8000000000001}},
                           {{0x7fefffffffffffff}, {0x3ff0000000000000}},
                           {{0x1ff0000000000000}, {0x1ff20dd750429b6d}},  // 2^-512, and the last rare one
                           {{0x1fefffffffffffff}, {0x1ff20dd750429b6d}},
                           {{0x0000000000000001}, {0x0000000000000001}},
                           {{0x00000000000007e8}, {0x00000000000008ec}},  // 1e-320
                           {{0x000000ffffffffff}, {0x00000120dd750429}},  // the first in two parts
                           {{0x0000010000000000}, {0x00000120dd75042a}},
                           {{0x800012688b70e62b}, {0x800014c5898977c4}},  // -1e-310
                           {{0x000e2dfc48da77b4}, {0x000fffffffffffff}},  // the first normal result
                           {{0x000e2dfc48da77b5}, {0x0010000000000000}},
                           {{0x3fbfffffffffffff}, {0x3fc1f5e1a35c3b88}},  // about 1/8
                           {{0x3fc0000000000000}, {0x3fc1f5e1a35c3b89}},
                           {{0x4017ffffffffffff}, {0x3fefffffffffffff}},  // about 6
                           {{0x4018000000000000}, {0x3ff0000000000000}},
                           {{0x3f97808741f00f44}, {0x3f9a83bbbfb17c25}},  // 0.0229512342
                           {{0x3fb24355ee83e8d1}, {0x3fb4929d8047e94a}},  // 0.0713399608
                           {{0x3fc76c115f78ad30}, {0x3fca2313576c4aba}},  // 0.182985469
                           {{0x3fc33769b2b8255a}, {0x3fc5858a34bcb19b}},  // 0.150128567
                           {{0x3fd8efabcf5f8810}, {0x3fdac6b67ef12649}},  // 0.389628365
                           {{0x3fd8dfc4141e0a5c}, {0x3fdab749ab8c72fe}},  // 0.388657589
                           {{0x3fe98810957fa57e}, {0x3fe7b4d70bf89669}},  // 0.79785947
                           {{0x3fee2434fea7c0a2}, {0x3fea26369817ebef}},  // 0.941919801
                           {{0x3ff7f60c5ed8b868}, {0x3feee7f5259ac364}},  // 1.49757039
                           {{0x3ff33b9b7fd0f288}, {0x3fed25c6c2359405}},  // 1.20205259
                           {{0x400f9bd834395093}, {0x3feffffff3a574fc}},  // 3.95109597
                           {{0x400fb498159de064}, {0x3feffffff4ce313c}},  // 3.9631807
                           {{0x4011991e3485dd5a}, {0x3fefffffffbc7ba0}},  // 4.39952929
                           {{0x40125f48d556caa3}, {0x3feffffffff4a147}},  // 4.59305127
                           {{0xbfd901b16d582a38}, {0xbfdad82d3dce09b5}},  // -0.390728337
                           {{0xbfb429b45995b040}, {0xbfb6b456b394d96f}},  // -0.07876136
                       });
    expect_rows("erf_native", {{{0x8000000000000000}, {0x8000000000000000}},
                               {{0x3ff0000000000000}, {0x3feaf767a741088b}},
                               {{0x7ff0000000000000}, {harness::any_nan}},
                               {{0xfff0000000000000}, {harness::any_nan}}});
}

TEST(ErrorFunctions, Erfcf) {
    expect_rows("erfcf", {
                             {{0x00000000}, {0x3f800000}}, {{0x80000000}, {0x3f800000}}, {{0x7f800000}, {0x00000000}},
                             {{0xff800000}, {0x40000000}}, {{0x7fc12345}, {0x7fc12345}}, {{0xff812345}, {0xffc12345}},
                             {{0x0da24260}, {0x3f800000}},                                // 1e-30
                             {{0xbf800000}, {0x3febdd9f}}, {{0x3e7fffff}, {0x3f3942ad}},  // about 1/4
                             {{0x3e800000}, {0x3f3942ac}}, {{0x41200000}, {0x00000001}},  // 10
                             {{0x4120ddf7}, {0x00000001}},                                // the last ordinary one
                             {{0x4120ddf8}, {0x00000001}}, {{0x4120ddfb}, {0x00000001}}, {{0x4120ddfc}, {0x00000000}},
                             {{0x7f7fffff}, {0x00000000}}, {{0xc120f5c3}, {0x40000000}},  // -10.06
                             {{0x3dc07862}, {0x3f64eeaa}},                                // 0.093979612
                             {{0x3db8d761}, {0x3f65ffce}},                                // 0.0902545527
                             {{0x3ed0a5e4}, {0x3f107cb5}},                                // 0.407515645
                             {{0x3edea60b}, {0x3f09df57}},                                // 0.434860557
                             {{0x3fcd7e5f}, {0x3cbdea45}},                                // 1.60541904
                             {{0x3fd7d9c0}, {0x3c8bf99f}},                                // 1.6863327
                             {{0x400cc90c}, {0x3af46f5d}},                                // 2.19977093
                             {{0x403aa98f}, {0x381bb451}},                                // 2.91659904
                             {{0x40cc82c6}, {0x203c0ed0}},                                // 6.39096355
                             {{0x40ec740f}, {0x1635a7fd}},                                // 7.38916731
                             {{0x411d9cbb}, {0x0000001d}},                                // 9.85076427
                             {{0x41172116}, {0x0001284d}},                                // 9.44557762
                             {{0xbfc3090d}, {0x3ffc0285}},                                // -1.52371371
                             {{0xbf5fe65e}, {0x3fe455d8}},                                // -0.874608874
                         });
    expect_rows("erfcf_native", {{{0x3f800000}, {0x3e21130b}},
                                 {{0x4120f5c3}, {0x00000000}},
                                 {{0x41f00000}, {0x7f800000}},  // 30: the exponent wraps
                                 {{0xc1f00000}, {0xff800000}},
                                 {{0x7f800000}, {harness::any_nan}},
                                 {{0xff800000}, {harness::any_nan}}});
}

TEST(ErrorFunctions, Erfc) {
    expect_rows(
        "erfc",
        {
            {{0x0000000000000000}, {0x3ff0000000000000}}, {{0x8000000000000000}, {0x3ff0000000000000}},
            {{0x7ff0000000000000}, {0x0000000000000000}}, {{0xfff0000000000000}, {0x4000000000000000}},
            {{0x7ff8123456789abc}, {0x7ff8123456789abc}}, {{0xfff0000000000001}, {0xfff8000000000001}},
            {{0x01a56e1fc2f8f359}, {0x3ff0000000000000}},                                                // 1e-300
            {{0xbff0000000000000}, {0x3ffd7bb3d3a08446}}, {{0x3fcfffffffffffff}, {0x3fe728558ee694fc}},  // about 1/4
            {{0x3fd0000000000000}, {0x3fe728558ee694fc}}, {{0x4037ffffffffffff}, {0x0ba82de1daeba0d1}},  // about 24
            {{0x4038000000000000}, {0x0ba82de1daeb9c47}}, {{0x403b000000000000}, {0x0000000000019e0f}},  // 27
            {{0x403b39dcffffffff}, {0x0000000000000000}},  // the last ordinary one
            {{0x403b39dd00000000}, {0x0000000000000000}}, {{0xc03c000000000000}, {0x4000000000000000}},  // -28
            {{0x3f962b9ec5756828}, {0x3fef37e5fdd52f1f}},                                                // 0.0216507729
            {{0x3fc67b9da3299f68}, {0x3fe9b8ea2e5574a1}},                                                // 0.175647454
            {{0x3fe616744643b66a}, {0x3fd50e3072bf79e4}},                                                // 0.690240991
            {{0x3fee6b336956dab8}, {0x3fc6e44461c9549f}},                                                // 0.950586038
            {{0x3ff640c60bb6740e}, {0x3fa92fef3ed5b2d7}},                                                // 1.39081387
            {{0x3ff53e73899c329f}, {0x3faeef57f79eb513}},                                                // 1.3277469
            {{0x4002e52ba2fa8c68}, {0x3f4b6e028d91d6d3}},                                                // 2.36189964
            {{0x400cac3cc1246716}, {0x3e9ae1ddbe2cbc38}},                                                // 3.58410025
            {{0x40150a85d91163b2}, {0x3d3c85c08d05e5db}},                                                // 5.26027621
            {{0x401943de2a61b324}, {0x3c1eb6a18ba4f6e5}},                                                // 6.31627718
            {{0x4027e02dc154fc36}, {0x32cfc7c061b335c3}},                                                // 11.9378491
            {{0x402c0ab956ff294c}, {0x2dead6360820aa2f}},                                                // 14.0209453
            {{0x4033eb741342875d}, {0x1bd51f1663024a30}},                                                // 19.9197399
            {{0x403579fa59f97af2}, {0x1603fbc7eefbb76c}},                                                // 21.4764763
            {{0x4038910e2c202d8e}, {0x092d0dbc9d48ec20}},                                                // 24.5666225
            {{0x403a6a54f5e8f988}, {0x00ab73f0260d345e}},                                                // 26.4153589
            {{0x403a8f0c91eb929d}, {0x000702d29b25a90e}},                                                // 26.5587856
            {{0x403a916420e6bf68}, {0x00044f8c51ae77d6}},                                                // 26.5679341
            {{0xbfc9af417538ff20}, {0x3ff3931fc6e505c2}},                                                // -0.200660879
            {{0xbf957e387fb31200}, {0x3ff060feb7e7f8c8}},  // -0.0209893063
        });
    expect_rows("erfc_native", {{{0x3ff0000000000000}, {0x3fc4226162fbddd4}},
                                {{0x403e000000000000}, {0x6e6ca9408dc29149}},  // 30: the exponent wraps
                                {{0xc03e000000000000}, {0xee6ca9408dc29149}},
                                {{0x7ff0000000000000}, {harness::any_nan}},
                                {{0xfff0000000000000}, {harness::any_nan}}});
}

// ---- Rows that no fit decides about. -----------------------------------------------------------------------

struct ErffRow {
    float d, v_head, v_tail, g_head, g_tail, c2, c3, c4;
};
const ErffRow erff_rows[] = {
#include "kernels/special/tables/erff_rows.inc"
};
struct ErfRow {
    double d, c[11];
};
const ErfRow erf_rows[] = {
#include "kernels/special/tables/erf_rows.inc"
};
struct ErfcRow {
    double c[13], d;
};
const ErfcRow erfc_rows[] = {
#include "kernels/special/tables/erfc_rows.inc"
};
const double erfc_powers[] = {
#include "kernels/special/tables/erfc_powers.inc"
};

template <class Lane, class Row>
void expect_row(const Row& row, const std::vector<uint64_t>& expected) {
    ASSERT_EQ(expected.size() * sizeof(Lane), sizeof row);
    for (size_t i = 0; i < expected.size(); ++i) {
        Lane value;
        std::memcpy(&value, reinterpret_cast<const char*>(&row) + i * sizeof(Lane), sizeof value);
        EXPECT_EQ(harness::pattern(value), expected[i]) << "column " << i;
    }
}

TEST(ErrorFunctions, FixedRows) {
    expect_row<float>(erff_rows[0], {0, 0, 0, 0x3f907000, 0xb822bfe0, 0x3567c4b7, 0xbec0a5b5, 0x3be71d98});
    expect_row<float>(erff_rows[1],
                      {0x3d040000, 0x3d14e4fe, 0x3033cc88, 0x3f905000, 0xb974da80, 0xbd14ca9c, 0xbebffc42, 0x3c951afe});
    expect_row<float>(erff_rows[57],
                      {0x3ec40000, 0x3ed2d156, 0x32220914, 0x3f798000, 0xb8367d34, 0xbebf03d1, 0xbe6b26c1, 0x3e2c4a33});
    expect_row<float>(erff_rows[112],
                      {0x407c0000, 0x3f800000, 0xb2dcc12a, 0x345fe000, 0x2d91207e, 0xb55c66e7, 0x360dc471, 0xb68200a8});
    expect_row<float>(erff_rows[113], {0, 0x3f800000, 0, 0, 0, 0, 0, 0});
    expect_row<double>(erf_rows[0], {0, 0, 0x3ff20dd750429b6d, 0, 0xbfd812746b036d44, 0xbdc127b360367005,
                                     0x3fbce2f223001aff, 0xbe738b24c46c7763, 0xbf9b826ba710b835, 0xbef2b16af0a3904c,
                                     0x3f75eca138d6d06f, 0xbf40af1f9c582f3d});
    expect_row<double>(erf_rows[1], {0xbfc1000000000000, 0x3fc311fc15f56d14, 0x3ff1bd07cdd189ac, 0xbfc2d8d84aaea247,
                                     0xbfd6d11b7f1e51b6, 0x3fb2a01b7f8dcf39, 0x3fba6405ef5da631, 0xbf988a5c3fc74ec8,
                                     0xbf9833ea26c21ea1, 0x3f783fc6728c6713, 0x3f721bb4f0ed7fa3, 0xbf532a26d86df1cf});
    expect_row<double>(erf_rows[44], {0xc016d7da46e4b314, 0x3feffffffffffff9, 0x3d016dc7d9a4732d, 0xbd28e21366623d40,
                                      0x3d4751f7d26f058e, 0xbd6020f7015669d4, 0x3d718dc7c8d0948f, 0xbd7f431c24c711a4,
                                      0x3d873e0086a23529, 0xbd8de254863bce40, 0x3d92a45d987f8cda, 0xbd92347a6f145237});
    expect_row<double>(erfc_rows[0], {0x3ff0000000000000, 0xbff20dd750429b6c, 0x3feffffffffffe88, 0xbfe812746b02f8bf,
                                      0x3fdfffffffd1e5ed, 0xbfd341f6b71c0ef5, 0x3fc55554a9c1f2f3, 0xbfb6022ec96f85c5,
                                      0x3fa554565e86c323, 0xbf9385159ffebdbf, 0x3f80bc0b949aa5cf, 0xbf691ad6c04892c9,
                                      0x3f48a93b0d7f7809, 0x0000000000000000});
    expect_row<double>(erfc_rows[1], {0x3fe8a6adcda2ea92, 0xbfe7c857b9b3c191, 0x3fe2b497df35fa2e, 0xbfd97997ad330408,
                                      0x3fcf0ac9d31f3350, 0xbfc146985bd8e066, 0x3fb1d0c27d6e67a8, 0xbfa132db7acb637b,
                                      0x3f8f54cdb1d0f4f4, 0xbf7b1807a32fa8e0, 0x3f6658e54554f04d, 0xbf5182be73f6869d,
                                      0x3f372a1d51bc2f81, 0x3fd0000000000000});
    expect_row<double>(erfc_rows[27], {0x3f980d1e88d3c620, 0xbf5001a68f1b5442, 0x3f054964558f5897, 0xbebc48d27f640d0d,
                                       0x3e72c675fc828f5c, 0xbe28e79b2e30efcf, 0x3de080e2ce7fc781, 0xbd95da1f243a629d,
                                       0x3d4ce16434e56f1a, 0xbd02ea672c65e1ab, 0x3cb7b258907e52b2, 0xbc691e4109a9dae6,
                                       0x3c0ffdf47f4509f1, 0x4038000000000000});
    EXPECT_EQ(std::size(erfc_powers), 128u);
    EXPECT_EQ(erfc_powers[0], 1.0);
    EXPECT_EQ(std::size(erff_rows), 114u);
    EXPECT_EQ(std::size(erf_rows), 46u);
    EXPECT_EQ(std::size(erfc_rows), 28u);
}

// Every row serves its own interval, and says so by its centre or left end.
TEST(ErrorFunctions, RowsStandWhereTheyServe) {
    for (uint32_t i = 1; i <= 112; ++i) {
        float start = harness::as_float(0x3cf80000 + i * 0x80000),
              end = harness::as_float(0x3cf80000 + (i + 1) * 0x80000);
        EXPECT_EQ(erff_rows[i].d, (start + end) / 2) << "erff_rows " << i;
        EXPECT_EQ(harness::pattern(erff_rows[i].g_head) & 0xfff, 0u) << "erff_rows " << i;
    }
    for (uint64_t i = 1; i <= 43; ++i) {  // the last one is told by its bits
        double start = harness::as_double((0x3fbe0000 + i * 0x20000) << 32);
        double end = harness::as_double((0x3fbe0000 + (i + 1) * 0x20000) << 32);
        EXPECT_EQ(erf_rows[i].d, -(start + end) / 2) << "erf_rows " << i;
    }
    for (uint64_t i = 1; i <= 27; ++i)
        EXPECT_EQ(erfc_rows[i].d, harness::as_double((0x3fcc0000 + i * 0x40000) << 32)) << "erfc_rows " << i;
}

}  // namespace
