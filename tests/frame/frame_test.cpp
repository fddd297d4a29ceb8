// The frame by itself: small kernels of every signature, run through the very same templates as the families. A lane
// is rare where its first operand is negative; the rare routines leave a mark that no main path leaves.
#include "frame/lane_frame.h"

#include <gtest/gtest.h>

#include <cstring>
#include <tuple>
#include <vector>

namespace {

using namespace zorv;

// What the rare routines saw.
struct RareCall {
    double first_operand;
    uintptr_t operand_slot, result_slot;
    double result_on_entry;
    size_t slot_size;
};
std::vector<RareCall> rare_calls;
const volatile unsigned char* watched_pointer;  // must still be untouched while rare lanes are repaired
bool pointer_written_early;

template <class Operand, class Result>
void record(const Operand* x, const Result* result) {
    rare_calls.push_back({static_cast<double>(*x), reinterpret_cast<uintptr_t>(x), reinterpret_cast<uintptr_t>(result),
                          static_cast<double>(*result), sizeof *x});
    if (watched_pointer && *watched_pointer != 0xa5) pointer_written_early = true;
}

I4 negative(F4 x) { return x < 0.0f; }
// Only the high halves of a mask of 64-bit lanes count: the low ones hold the opposite here.
L2 negative(D2 x) {
    L2 mask = x < 0.0;
    L2 low = {0xffffffff, 0xffffffff};
    return (mask & ~low) | (~mask & low);
}

constexpr double rare_mark = 1000;

// ---- Kernels: value() is the main path of one lane. ----

template <class Units>
struct OneOperand {
    using Scalar = typename Layout<Units>::Lane;
    static Lanes<Units> main(Units x) { return {x + x, negative(x)}; }
    static Status rare(const Scalar* x, Scalar* result) {
        record(x, result);
        *result = *x + *x + Scalar(rare_mark);
        return RARE_POLE;
    }
    static double value(double x) { return x + x; }
};
template <class Units>
struct TwoOperands {
    using Scalar = typename Layout<Units>::Lane;
    static Lanes<Units> main(Units x, Units y) { return {x - y, negative(x)}; }
    static Status rare(const Scalar* x, const Scalar* y, Scalar* result) {
        record(x, result);
        *result = *x - *y + Scalar(rare_mark);
        return RARE_OK;
    }
    static double value(double x, double y) { return x - y; }
};
template <class Units>
struct ThreeOperandsAllRare {
    using Scalar = typename Layout<Units>::Lane;
    static AllRare<Units> main(Units a, Units b, Units c) { return {a * b + c}; }
    static Status rare(const Scalar* a, const Scalar* b, const Scalar* c, Scalar* result) {
        record(a, result);
        *result = *a * *b + *c + Scalar(rare_mark);
        return RARE_OK;
    }
    static double value(double a, double b, double c) { return a * b + c; }
};
F4 with_integer(F4 x, I4 n) { return x * 8 + __builtin_convertvector(n, F4); }
D2 with_integer(D2 x, N2 n) {
    return x * 8 + _mm_cvtepi32_pd(_mm_shuffle_epi32(reinterpret_cast<__m128i>(n.halves), 8));
}
template <class Units, class Integers>
struct OperandAndInteger {
    using Scalar = typename Layout<Units>::Lane;
    static constexpr grid::Traits traits = grid::fill_one;
    static Lanes<Units> main(Units x, Integers n) { return {with_integer(x, n), negative(x)}; }
    static Status rare(const Scalar* x, const int32_t* n, Scalar* result) {
        record(x, result);
        *result = *x * 8 + static_cast<Scalar>(*n) + Scalar(rare_mark);
        return RARE_OK;
    }
    static double value(double x, double n) { return x * 8 + n; }
};
I4 integers_of(F4 x) { return _mm_cvtps_epi32(x); }
N2 integers_of(D2 x) {  // the integer in the low half of each lane, nonsense in the high half
    __m128i packed = _mm_cvtpd_epi32(x);
    return {reinterpret_cast<I4>(_mm_shuffle_epi32(packed, 0x44 | 0x10))};
}
template <class Units, class Integers>
struct IntegerResult {
    using Scalar = typename Layout<Units>::Lane;
    static Lanes<Integers> main(Units x) { return {integers_of(x), negative(x)}; }
    static Status rare(const Scalar* x, int32_t* result) {
        record(x, result);
        *result = static_cast<int32_t>(*x) + static_cast<int32_t>(rare_mark);
        return RARE_OK;
    }
    static double value(double x) { return x; }
};
template <class Units>
struct TwoResults {
    using Scalar = typename Layout<Units>::Lane;
    static Lanes<Units, Units> main(Units x) { return {x + x, x * x, negative(x)}; }
    static Status rare(const Scalar* x, Scalar* first, Scalar* second) {
        record(x, first);
        *first = *x + *x + Scalar(rare_mark);
        *second = *x * *x + Scalar(rare_mark);
        return RARE_OVERFLOW;
    }
    static double value(double x) { return x + x; }
    static double second(double x) { return x * x; }
};
template <class Units, class Integers>
struct SecondIsInteger {
    using Scalar = typename Layout<Units>::Lane;
    static Lanes<Units, Integers> main(Units x) { return {x + x, integers_of(x), negative(x)}; }
    static Status rare(const Scalar* x, Scalar* first, int32_t* second) {
        record(x, first);
        *first = *x + *x + Scalar(rare_mark);
        *second = static_cast<int32_t>(*x) + static_cast<int32_t>(rare_mark);
        return RARE_OK;
    }
    static double value(double x) { return x + x; }
    static double second(double x) { return x; }
};
template <class Units, class Integers>
struct TwoOperandsSecondIsInteger {
    using Scalar = typename Layout<Units>::Lane;
    static Lanes<Units, Integers> main(Units x, Units y) { return {x - y, integers_of(y), negative(x)}; }
    static Status rare(const Scalar* x, const Scalar* y, Scalar* first, int32_t* second) {
        record(x, first);
        *first = *x - *y + Scalar(rare_mark);
        *second = static_cast<int32_t>(*y) + static_cast<int32_t>(rare_mark);
        return RARE_OK;
    }
    static double value(double x, double y) { return x - y; }
    static double second(double, double y) { return y; }
};

// ---- One call of a kernel, at one width, with one set of rare lanes, against its values lane by lane. ----

template <class Kernel>
constexpr grid::Traits traits_of() {
    if constexpr (requires { Kernel::traits; })
        return Kernel::traits;
    else
        return grid::plain;
}

template <class Kernel, int width, bool pair, class Main = decltype(&Kernel::main)>
struct Check;

template <class Kernel, int width, bool pair, class Returned, class... Operands>
struct Check<Kernel, width, pair, Returned (*)(Operands...)> {
    using First = typename MainResult<Returned>::First;
    using Second = typename MainResult<Returned>::Second;
    static constexpr bool all_rare = MainResult<Returned>::kind == FrameKind::all_rare;
    static constexpr unsigned lanes = room<width>;
    template <class Units>
    using VectorFor = Vector<typename Layout<Units>::Lane, width>;

    template <class V>
    static void set(V& vector, unsigned lane, double value) {
        if constexpr (width == 1)
            vector = static_cast<V>(value);
        else
            vector[lane] = static_cast<std::remove_reference_t<decltype(vector[0])>>(value);
    }
    template <class V>
    static double get(const V& vector, unsigned lane) {
        if constexpr (std::is_arithmetic_v<V>)
            return static_cast<double>(vector);
        else
            return static_cast<double>(vector[lane]);
    }
    static constexpr grid::Traits traits = traits_of<Kernel>();
    using Framed = Frame<Kernel, width, traits>;
    static constexpr double fill_values[] = {
        (std::is_floating_point_v<typename Layout<Operands>::Lane> && traits == grid::plain ? 0.75 : 1)...};
    static double operand_value(size_t index, unsigned lane, unsigned rare_lanes) {
        if (width == 3 && lane == 3) return fill_values[index];
        double value = 4 * (static_cast<double>(index) + 1) + lane;
        return index == 0 && (rare_lanes >> lane & 1) ? -value : value;
    }

    template <size_t... index>
    static void run(unsigned rare_lanes, std::index_sequence<index...>) {
        std::tuple<VectorFor<Operands>...> operands;
        for (unsigned lane = 0; lane < lanes; ++lane)
            (set(std::get<index>(operands), lane,
                 width == 3 && lane == 3 ? -99.0 : operand_value(index, lane, rare_lanes)),
             ...);
        rare_calls.clear();
        pointer_written_early = false;
        VectorFor<First> first;
        VectorFor<std::conditional_t<std::is_void_v<Second>, First, Second>> second;
        watched_pointer = nullptr;
        if constexpr (std::is_void_v<Second>) {
            first = Framed::call(std::get<index>(operands)...);
        } else if constexpr (pair) {
            auto both = Framed::call_for_pair(std::get<index>(operands)...);
            if constexpr (width == 1) {
                first = both[0];
                second = both[1];
            } else {
                first = both.first;
                second = both.second;
            }
        } else {
            std::memset(static_cast<void*>(&second), 0xa5, sizeof second);
            watched_pointer = reinterpret_cast<const unsigned char*>(&second);
            first = Framed::call_with_pointer(std::get<index>(operands)..., &second);
            EXPECT_FALSE(pointer_written_early);
        }
        watched_pointer = nullptr;

        // Which lanes were repaired, in which order, through which slots.
        std::vector<double> expected_calls;
        for (unsigned lane = 0; lane < lanes; ++lane)
            if (all_rare || (lane < width && (rare_lanes >> lane & 1)))
                expected_calls.push_back(operand_value(0, lane, rare_lanes));
        ASSERT_EQ(expected_calls.size(), rare_calls.size());
        unsigned lane_of_call = 0;
        for (size_t i = 0; i < rare_calls.size(); ++i) {
            const RareCall& call = rare_calls[i];
            EXPECT_EQ(expected_calls[i], call.first_operand);
            while (operand_value(0, lane_of_call, rare_lanes) != call.first_operand) ++lane_of_call;
            EXPECT_EQ(0u, (call.operand_slot - lane_of_call * call.slot_size) % 64);
            EXPECT_EQ(0u, (call.result_slot - lane_of_call * sizeof(typename Layout<First>::Lane)) % 64);
            EXPECT_EQ(Kernel::value(operand_value(index, lane_of_call, rare_lanes)...), call.result_on_entry);
        }

        for (unsigned lane = 0; lane < lanes; ++lane) {
            bool rare = all_rare || (lane < width && (rare_lanes >> lane & 1));
            double mark = rare ? rare_mark : 0;
            double value = Kernel::value(operand_value(index, lane, rare_lanes)...);
            if (std::is_integral_v<typename Layout<First>::Lane>) value = __builtin_rint(value);
            EXPECT_EQ(value + mark, get(first, lane)) << "width " << width << " lane " << lane;
            if constexpr (!std::is_void_v<Second>) {
                double second_value = Kernel::second(operand_value(index, lane, rare_lanes)...);
                if (std::is_integral_v<typename Layout<Second>::Lane>) second_value = __builtin_rint(second_value);
                EXPECT_EQ(second_value + mark, get(second, lane)) << "width " << width << " lane " << lane;
            }
        }
    }
    static void run_all() {
        for (unsigned rare_lanes : {0u, 1u, 0x8000u, 0x4242u, 0x5555u, 0xffffu, 2u, 4u, 0x80u})
            run(rare_lanes & ((1u << width) - 1), std::index_sequence_for<Operands...>());
    }
};

template <class Kernel, bool pair = false>
void check_all_widths() {
    Check<Kernel, 1, pair>::run_all();
    Check<Kernel, 2, pair>::run_all();
    Check<Kernel, 3, pair>::run_all();
    Check<Kernel, 4, pair>::run_all();
    Check<Kernel, 8, pair>::run_all();
    Check<Kernel, 16, pair>::run_all();
}

TEST(Frame, OneOperand) {
    check_all_widths<OneOperand<F4>>();
    check_all_widths<OneOperand<D2>>();
}
TEST(Frame, TwoOperands) {
    check_all_widths<TwoOperands<F4>>();
    check_all_widths<TwoOperands<D2>>();
}
TEST(Frame, ThreeOperandsAllRare) {
    check_all_widths<ThreeOperandsAllRare<F4>>();
    check_all_widths<ThreeOperandsAllRare<D2>>();
}
TEST(Frame, OperandAndInteger) {
    check_all_widths<OperandAndInteger<F4, I4>>();
    check_all_widths<OperandAndInteger<D2, N2>>();
}
TEST(Frame, IntegerResult) {
    check_all_widths<IntegerResult<F4, I4>>();
    check_all_widths<IntegerResult<D2, N2>>();
}
TEST(Frame, ResultThroughPointer) {
    check_all_widths<TwoResults<F4>>();
    check_all_widths<TwoResults<D2>>();
}
TEST(Frame, PairByValue) {
    check_all_widths<TwoResults<F4>, true>();
    check_all_widths<TwoResults<D2>, true>();
}
TEST(Frame, IntegerThroughPointer) {
    check_all_widths<SecondIsInteger<F4, I4>>();
    check_all_widths<SecondIsInteger<D2, N2>>();
}
TEST(Frame, TwoOperandsIntegerThroughPointer) {
    check_all_widths<TwoOperandsSecondIsInteger<F4, I4>>();
    check_all_widths<TwoOperandsSecondIsInteger<D2, N2>>();
}

// A routine that leaves its slot alone keeps the main path's value.
struct LeavesItsSlot {
    static Lanes<F4> main(F4 x) { return {x * 3, negative(x)}; }
    static Status rare(const float*, float*) { return RARE_DOMAIN; }
};
TEST(Frame, UnwrittenSlotKeepsTheMainValue) {
    F4 result = Frame<LeavesItsSlot, 4>::call(F4{1, -2, 3, -4});
    for (int lane = 0; lane < 4; ++lane)
        EXPECT_EQ((lane % 2 ? -3.0f : 3.0f) * static_cast<float>(lane + 1), result[lane]);
}

// Fills: 0.75 for floating operands, 1 for integers, what the traits say for the first operand.
struct FillSeen {
    static Lanes<F4, I4> main(F4 x, I4 n) { return {x, n, x > 100.0f}; }
    static Status rare(const float*, const int32_t*, float*, int32_t*) { return RARE_OK; }
};
struct TwoFillsSeen {
    static Both<D2, D2> main(D2 x, D2 y) { return {x, y}; }
};
TEST(Frame, FillLanes) {
    I4 second;
    F4 first = Frame<FillSeen, 3, grid::fill_two>::call_with_pointer(F4{5, 6, 7, __builtin_nanf("")}, I4{1, 2, 3, -1},
                                                                     &second);
    EXPECT_EQ(2.0f, first[3]);
    EXPECT_EQ(1, second[3]);
    EXPECT_EQ(7.0f, first[2]);
    EXPECT_EQ(3, second[2]);
    Vector<double, 3> y;
    Vector<double, 3> x =
        Frame<TwoFillsSeen, 3>::call_with_pointer(Vector<double, 3>{1, 2, 3, -1}, Vector<double, 3>{4, 5, 6, 0}, &y);
    EXPECT_EQ(0.75, x[3]);
    EXPECT_EQ(0.75, y[3]);
    EXPECT_EQ(6.0, y[2]);
}

// Codes and conversions: other lane types in than out, 32-bit beside 64-bit lanes.
struct CodeF {
    static F4 main(U4 code) { return as_float(signed_lanes(code)); }
};
struct Code {
    static D2 main(UL2 code) { return as_double(code); }
};
struct Narrow {  // double to int, two units to one
    static I4 main(D4 x) {
        return reinterpret_cast<I4>(_mm_unpacklo_epi64(_mm_cvtpd_epi32(x.low), _mm_cvtpd_epi32(x.high)));
    }
};
struct Widen {  // int to double
    static D4 main(I4 n) {
        auto raw = reinterpret_cast<__m128i>(n);
        return {_mm_cvtepi32_pd(raw), _mm_cvtepi32_pd(_mm_unpackhi_epi64(raw, raw))};
    }
};
struct SumHalves {  // long to float: the lanes' low words
    static F4 main(L4 n) { return __builtin_convertvector(low_halves(n.low, n.high), F4); }
};
struct SignExtend {  // float to long
    static L4 main(F4 x) {
        I4 n = _mm_cvtps_epi32(x), sign = n >> 31;
        return {from_halves(__builtin_shufflevector(n, sign, 0, 4, 1, 5)),
                from_halves(__builtin_shufflevector(n, sign, 2, 6, 3, 7))};
    }
};

template <class Kernel, class From, class To, int width>
void expect_converted(double sign) {
    Vector<From, width> operand;
    auto value = [&](unsigned lane) { return sign * (lane * 3 + 1.0); };
    if constexpr (width == 1)
        operand = static_cast<From>(value(0));
    else
        for (unsigned lane = 0; lane < room<width>; ++lane) operand[lane] = static_cast<From>(value(lane));
    static_assert(std::is_same_v<typename Frame<Kernel, width>::Value, Vector<To, width>>);
    Vector<To, width> result = Frame<Kernel, width>::call(operand);
    if constexpr (width == 1)
        EXPECT_EQ(static_cast<To>(value(0)), result);
    else
        for (unsigned lane = 0; lane < width; ++lane) EXPECT_EQ(static_cast<To>(value(lane)), result[lane]);
}
template <class Kernel, class From, class To>
void expect_converted_at_all_widths(double sign) {
    expect_converted<Kernel, From, To, 1>(sign);
    expect_converted<Kernel, From, To, 2>(sign);
    expect_converted<Kernel, From, To, 3>(sign);
    expect_converted<Kernel, From, To, 4>(sign);
    expect_converted<Kernel, From, To, 8>(sign);
    expect_converted<Kernel, From, To, 16>(sign);
}
TEST(Frame, ConversionsBetweenLaneSizes) {
    expect_converted_at_all_widths<Narrow, double, int32_t>(-1);
    expect_converted_at_all_widths<Widen, int32_t, double>(-1);
    expect_converted_at_all_widths<SumHalves, int64_t, float>(1);
    expect_converted_at_all_widths<SignExtend, float, int64_t>(-1);
}
TEST(Frame, NanCodes) {
    auto bits_of = [](auto lane) {
        return sizeof lane == 4 ? __builtin_bit_cast(uint32_t, static_cast<float>(lane))
                                : __builtin_bit_cast(uint64_t, static_cast<double>(lane));
    };
    EXPECT_EQ(5u, bits_of(Frame<CodeF, 4>::call(U4{1, 2, 3, 5})[3]));
    EXPECT_EQ(0u, bits_of(Frame<CodeF, 3, grid::fill_zero>::call(U4{1, 2, 3, 5})[3]));
    Vector<double, 3> three = Frame<Code, 3, grid::fill_zero>::call(Vector<uint64_t, 3>(0x500000000));
    Vector<double, 16> sixteen = Frame<Code, 16>::call(Vector<uint64_t, 16>(0x500000000));
    EXPECT_EQ(0u, bits_of(three[3]));
    EXPECT_EQ(0x500000000u, bits_of(sixteen[15]));
}

// The whole-vector choice: one lane beyond the limit takes all lanes along, and rare lanes exist there only.
template <class Units>
struct WholeVector {
    using Scalar = typename Layout<Units>::Lane;
    struct LongPath {
        static Lanes<Units> main(Units x) { return {x + 500, negative(x)}; }
        static Status rare(const Scalar* x, Scalar* result) {
            record(x, result);
            *result = -1;
            return RARE_OK;
        }
    };
    static auto beyond(Units x) { return x > 100; }
    static Units main(Units x) { return x + 1; }
};
template <class Units, int width>
void check_whole_vector() {
    using Scalar = typename Layout<Units>::Lane;
    for (int beyond = -1; beyond < width; ++beyond) {
        Vector<Scalar, width> x;
        for (int lane = 0; lane < room<width>; ++lane) x[lane] = static_cast<Scalar>(lane == beyond ? 101 : lane);
        x[width - 1] = beyond == width - 1 ? 101 : -3;
        if (width == 3) x[3] = 1000;  // the fill never selects the long path
        rare_calls.clear();
        Vector<Scalar, width> result = Frame<WholeVector<Units>, width>::call(x);
        for (int lane = 0; lane < width; ++lane) {
            Scalar expected = beyond < 0 ? x[lane] + 1 : x[lane] < 0 ? -1 : x[lane] + 500;
            EXPECT_EQ(expected, result[lane]) << "width " << width << " lane " << lane << " beyond " << beyond;
        }
        EXPECT_EQ(beyond >= 0 && beyond != width - 1 ? 1u : 0u, rare_calls.size());
    }
}
TEST(Frame, WholeVectorChoice) {
    check_whole_vector<F4, 2>();
    check_whole_vector<F4, 3>();
    check_whole_vector<F4, 4>();
    check_whole_vector<F4, 8>();
    check_whole_vector<F4, 16>();
    check_whole_vector<D2, 2>();
    check_whole_vector<D2, 3>();
    check_whole_vector<D2, 16>();
    EXPECT_EQ(6.0f, (Frame<WholeVector<F4>, 1>::call(5.0f)));
    EXPECT_EQ(701.0, (Frame<WholeVector<D2>, 1>::call(201.0)));
}

}  // namespace
