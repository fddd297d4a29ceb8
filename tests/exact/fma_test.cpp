// fma against MPFR's correctly rounded one, in the four rounding modes.
#include <mpfr.h>
#include <xmmintrin.h>

#include <random>

#include "tests/harness/lanes.h"

namespace {

using harness::Patterns;

struct Mode {
    const char* name;
    mpfr_rnd_t mpfr;
    unsigned field;  // 0 to 3, at bit 10 of the x87 control word and at bit 13 of the vector unit's register
};
const Mode modes[] = {
    {"to nearest", MPFR_RNDN, 0}, {"down", MPFR_RNDD, 1}, {"up", MPFR_RNDU, 2}, {"toward zero", MPFR_RNDZ, 3}};

// Both units in one mode for the life of the object.
class InMode {
  public:
    explicit InMode(unsigned x87_field, unsigned vector_field) {
        asm volatile("fnstcw %0" : "=m"(x87_) : : "memory");
        auto changed = static_cast<uint16_t>((x87_ & ~0xc00u) | x87_field << 10);
        asm volatile("fldcw %0" : : "m"(changed) : "memory");
        vector_ = _mm_getcsr();
        _mm_setcsr((vector_ & ~0x6000u) | vector_field << 13);
    }
    explicit InMode(unsigned field) : InMode(field, field) {}
    ~InMode() {
        asm volatile("fldcw %0" : : "m"(x87_) : "memory");
        _mm_setcsr(vector_);
    }

  private:
    uint16_t x87_;
    unsigned vector_;
};

template <class Float>
struct Format;
template <>
struct Format<float> {
    using Bits = uint32_t;
    static constexpr const char* family = "fmaf";
    static constexpr int mantissa_bits = 23, bias = 127;
    static void set(mpfr_t to, float x) { mpfr_set_flt(to, x, MPFR_RNDN); }
    static float get(mpfr_t from) { return mpfr_get_flt(from, MPFR_RNDN); }
};
template <>
struct Format<double> {
    using Bits = uint64_t;
    static constexpr const char* family = "fma";
    static constexpr int mantissa_bits = 52, bias = 1023;
    static void set(mpfr_t to, double x) { mpfr_set_d(to, x, MPFR_RNDN); }
    static double get(mpfr_t from) { return mpfr_get_d(from, MPFR_RNDN); }
};

// MPFR's exponents kept to a format's for the life of the object; the other tests of the process have them whole.
class ExponentRange {
  public:
    ExponentRange(mpfr_exp_t low, mpfr_exp_t high) {
        mpfr_set_emin(low);
        mpfr_set_emax(high);
    }
    ~ExponentRange() {
        mpfr_set_emin(low_);
        mpfr_set_emax(high_);
    }
    ExponentRange(const ExponentRange&) = delete;
    ExponentRange& operator=(const ExponentRange&) = delete;

  private:
    mpfr_exp_t low_ = mpfr_get_emin(), high_ = mpfr_get_emax();
};

template <class Float>
class Reference {
    using F = Format<Float>;

  public:
    Reference() {
        for (auto& value : values_) mpfr_init2(value, F::mantissa_bits + 1);
    }
    ~Reference() {
        for (auto& value : values_) mpfr_clear(value);
    }
    Float operator()(Float a, Float b, Float c, mpfr_rnd_t mode) {
        ExponentRange range(2 - F::bias - F::mantissa_bits, F::bias + 1);
        F::set(values_[0], a);
        F::set(values_[1], b);
        F::set(values_[2], c);
        int ternary = mpfr_fma(values_[3], values_[0], values_[1], values_[2], mode);
        mpfr_subnormalize(values_[3], ternary, mode);
        return F::get(values_[3]);
    }

  private:
    mpfr_t values_[4];
};

// Operands built so that every branch of an exact sum is met, and both sides of each of its edges.
template <class Float>
class Operands {
    using F = Format<Float>;
    using Bits = typename F::Bits;
    static constexpr int m = F::mantissa_bits;

  public:
    struct Triple {
        Float a, b, c;
    };
    static constexpr int kinds = 7;

    Triple next(int kind) {
        Triple t;
        switch (kind) {
            case 0:  // anything
                return {any(), any(), any()};
            case 1: {  // every alignment distance, to beyond the width of product and addend together
                int ea = between(-30, 30), eb = between(-30, 30);
                return {build(ea), build(eb), build(ea + eb + between(-3 * m, 3 * m))};
            }
            case 2:  // the product, to a few units of its last place, is taken off again
                t = {build(between(-30, 30)), build(between(-30, 30)), 0};
                t.c = step(-(t.a * t.b), between(-3, 3));
                return t;
            case 3: {  // ties, and one bit beside them: the product ends half a unit below the addend's last place
                int ec = between(-20, 20);
                auto odd = static_cast<Float>(between(0, 1000) * 2 + 1);
                Float c = build(ec);
                return {step(sign() * odd, between(-1, 1)), std::ldexp(Float(1), ec - m - between(0, 3)), c};
            }
            case 4: {  // results at and below the bottom of the normal range
                int e = 1 - F::bias - between(-4, m + 4);
                int ea = between(-F::bias / 2, F::bias / 2);
                return {build(ea), build(e - ea), build(e + between(-m, m))};
            }
            case 5: {  // results around the largest number
                int ea = between(0, F::bias);
                return {build(ea), build(F::bias - ea + between(-1, 1)), build(F::bias - between(0, m + 3))};
            }
            default:  // subnormal operands
                return {build(between(1 - F::bias - m, 1 - F::bias)), build(between(-4, F::bias)),
                        build(between(1 - F::bias - m, 4 - F::bias))};
        }
    }

  private:
    int between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
    Float sign() { return between(0, 1) ? Float(1) : Float(-1); }
    static Float step(Float x, int count) {
        return __builtin_bit_cast(Float, static_cast<Bits>(__builtin_bit_cast(Bits, x) + static_cast<Bits>(count)));
    }
    Float any() { return __builtin_bit_cast(Float, static_cast<Bits>(random_())); }
    // A number of this exponent; its mantissa random, sparse at the top, sparse at the bottom, full, or a power.
    Float build(int exponent) {
        constexpr Bits mask = (Bits(1) << m) - 1;
        Bits mantissa = static_cast<Bits>(random_()) & mask;
        switch (between(0, 5)) {
            case 0:
                mantissa = mantissa >> (m - 3) << (m - 3);
                break;
            case 1:
                mantissa &= 7;
                break;
            case 2:
                mantissa |= mask & ~Bits(7);
                break;
            case 3:
                mantissa = 0;
                break;
        }
        Float one_to_two = __builtin_bit_cast(Float, static_cast<Bits>(Bits(F::bias) << m | mantissa));
        return sign() * std::ldexp(one_to_two, exponent);
    }

    std::mt19937_64 random_{20240229};
};

template <class Float>
class FmaTest : public testing::Test {};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(FmaTest, Precisions);

TYPED_TEST(FmaTest, IsRoundedOnceInEveryMode) {
    using Float = TypeParam;
    using Bits = typename Format<Float>::Bits;
    const grid::Family& fma = harness::family(Format<Float>::family);
    Reference<Float> reference;
    Operands<Float> operands;
    const int calls = 2500, width = 16;
    for (const Mode& mode : modes)
        for (int kind = 0; kind < operands.kinds; ++kind)
            for (int call = 0; call < calls; ++call) {
                alignas(64) Float a[width], b[width], c[width], result[width];
                for (int i = 0; i < width; ++i) {
                    auto [x, y, z] = operands.next(kind);
                    a[i] = x, b[i] = y, c[i] = z;
                }
                const void* in[] = {a, b, c};
                void* out[] = {result};
                {
                    InMode in_mode(mode.field);
                    fma.call(width)(in, out);
                }
                for (int i = 0; i < width; ++i) {
                    if (c[i] == 0) continue;  // not rounded once, see below
                    Float expected = reference(a[i], b[i], c[i], mode.mpfr);
                    bool same = __builtin_bit_cast(Bits, expected) == __builtin_bit_cast(Bits, result[i]);
                    ASSERT_TRUE(same || (expected != expected && result[i] != result[i]))
                        << std::hexfloat << a[i] << " * " << b[i] << " + " << c[i] << " rounded " << mode.name << ": "
                        << result[i] << ", expected " << expected;
                }
            }
}

// One unit's mode rounds the exact sum, the other's has no part in it: the x87 unit's on i386, the vector unit's on
// x86-64.
TEST(Fma, TakesItsModeFromOneControlWord) {
    const std::vector<std::vector<uint64_t>> sum = {{0x40400000}, {0x3f800001}, {0x3f800000}};  // 3(1+2^-23) + 1
    const uint64_t by_mode[] = {0x40800001, 0x40800000, 0x40800001, 0x40800000};                // 4 + 3 * 2^-23
    for (unsigned mode = 0; mode < 4; ++mode)
        for (unsigned other = 0; other < 4; ++other) {
            std::vector<Patterns> results;
            {
                InMode in_mode(mode, other);
                results = harness::call(harness::family("fmaf"), 1, sum);
            }
            EXPECT_EQ(results[0][0], by_mode[sizeof(void*) == 4 ? mode : other])
                << "x87 mode " << mode << ", vector unit's mode " << other;
        }
}

// A zero addend and a NaN go through the hardware's two operations.
TEST(Fma, GivesWhatTheHardwareGivesForZeroesAndNan) {
    const uint64_t inf = 0x7f800000, one = 0x3f800000, default_nan = 0xffc00000;
    harness::expect_rows("fmaf", {
                                     {{0x00000001, 0x80000001, 0}, {0}},  // -0 + 0 after the underflow
                                     {{0x3f800001, 0x3f800001, 0}, {0x3f800002}},
                                     {{0x80000000, one, 0x80000000}, {0x80000000}},
                                     {{inf, 0, one}, {default_nan}},
                                     {{inf, one, 0xff800000}, {default_nan}},
                                     {{0x7f000000, 0x7f000000, 0xff800000}, {0xff800000}},
                                     {{0x7fc00001, 0x7fc00002, 0x7fc00003}, {0x7fc00001}},
                                     {{one, 0x7fc00002, 0x7fc00003}, {0x7fc00002}},
                                     {{one, 0x7f800002, one}, {0x7fc00002}},
                                     {{inf, 0, 0xffc00003}, {0xffc00003}},
                                     {{0x40000000, 0x40400000, 0xff800003}, {0xffc00003}},
                                 });
    const uint64_t one_d = 0x3ff0000000000000;
    harness::expect_rows("fma",
                         {
                             {{1, 0x8000000000000001, 0}, {0}},
                             {{0x7ff8000000000001, 0x7ff8000000000002, 0x7ff8000000000003}, {0x7ff8000000000001}},
                             {{one_d, 0x7ff8000000000002, 0x7ff8000000000003}, {0x7ff8000000000002}},
                             {{0x7ff0000000000000, 0, 0xfff8000000000003}, {0xfff8000000000003}},
                             {{0x7fe0000000000000, 0x7fe0000000000000, 0xfff0000000000000}, {0xfff0000000000000}},
                         });
}

// The flags of the vector unit, as far as the two operations that are staged beforehand do not raise them.
TEST(Fma, RaisesUnderflowAndOverflow) {
    auto flags = [](uint64_t a, uint64_t b, uint64_t c) {
        unsigned before = _mm_getcsr();
        _mm_setcsr(before & ~0x3fu);
        harness::call_uniform(harness::family("fma"), 2, {a, b, c});
        unsigned raised = _mm_getcsr() & 0x3f;
        _mm_setcsr(before);
        return raised;
    };
    const unsigned overflow = 0x08, underflow = 0x10, inexact = 0x20;
    EXPECT_EQ(flags(0x4000000000000000, 0x4008000000000000, 0x4000000000000000), 0u);  // 2 * 3 + 2
    // (1 + 2^-52)^2 2^-1000 less the rounded product: 2^-1104 is left.
    EXPECT_EQ(flags(0x20b0000000000001, 0x20b0000000000001, 0x8170000000000002), underflow | inexact);
    EXPECT_EQ(flags(0x7fe0000000000000, 0x4000000000000000, 0x3ff0000000000000), overflow | inexact);
}

TEST(Fma, DiffersFromMad) {
    std::vector<uint64_t> operands = {0x3f800800, 0x3f800800, 0xbf801000};  // 1 + 2^-12 twice, -(1 + 2^-11)
    harness::expect_rows("fmaf", {{operands, {0x33800000}}});
    harness::expect_rows("madf", {{operands, {0}}});
}

}  // namespace
