#include "tools/calls.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>
#include <utility>

#include "include/grid_names.h"
#include "ocl_zorv_v8.h"

namespace grid {
namespace {

template <class Vector>
struct Element {
    using type = std::remove_reference_t<decltype(std::declval<Vector&>()[0])>;
};
template <class Scalar>
requires std::is_arithmetic_v<Scalar>
struct Element<Scalar> {
    using type = Scalar;
};

template <class Vector>
Lane lane_of() {
    using T = typename Element<Vector>::type;
    if (std::is_floating_point_v<T>) return sizeof(T) == 4 ? Lane::f32 : Lane::f64;
    if (sizeof(T) == 4) return std::is_signed_v<T> ? Lane::i32 : Lane::u32;
    return std::is_signed_v<T> ? Lane::i64 : Lane::u64;
}

template <class Operand>
Operand load(const void* operand, void* pointer_output) {
    if constexpr (std::is_pointer_v<Operand>) {
        return static_cast<Operand>(pointer_output);
    } else {
        Operand value;
        std::memcpy(&value, operand, sizeof value);
        return value;
    }
}

template <auto* function, bool pair, class Result, class... Operands>
struct Thunk {
    template <size_t... i>
    static void invoke(const void* const* operands, void* const* results, std::index_sequence<i...>) {
        constexpr size_t inputs = (size_t{!std::is_pointer_v<Operands>} + ...);
        Result result = function(
            load<Operands>(i < inputs ? operands[i] : nullptr, inputs < sizeof...(Operands) ? results[1] : nullptr)...);
        if (pair) {
            std::memcpy(results[0], &result, sizeof result / 2);
            std::memcpy(results[1], reinterpret_cast<const char*>(&result) + sizeof result / 2, sizeof result / 2);
        } else {
            std::memcpy(results[0], &result, sizeof result);
        }
    }
    static void call(const void* const* operands, void* const* results) {
        invoke(operands, results, std::index_sequence_for<Operands...>());
    }
};

template <auto* function, bool pair, class Result, class... Operands>
Call thunk(Result (*)(Operands...)) {
    return Thunk<function, pair, Result, Operands...>::call;
}

// The lanes, as the width-4 export has them.
template <class Result, class... Operands>
void describe(Family& family, Result (*)(Operands...)) {
    if constexpr (requires(Result both) { both.sine; }) {
        family.results = {lane_of<decltype(Result::sine)>(), lane_of<decltype(Result::cosine)>()};
    } else {
        family.results = {lane_of<Result>()};
    }
    auto each = [&]<class Operand>(std::type_identity<Operand>) {
        if constexpr (std::is_pointer_v<Operand>) {
            family.results.push_back(lane_of<std::remove_pointer_t<Operand>>());
            family.second_through_pointer = true;
        } else {
            family.operands.push_back(lane_of<Operand>());
        }
    };
    (each(std::type_identity<Operands>()), ...);
}

#define EXPORT(base, precision, class_, width) EXPORT_NAME(base, precision, class_, width)
#ifdef GRID_CALLS_THROUGH_OPENCL
// The calls made by an object compiled from OpenCL C, in place of the ones made here.
#define OPENCL(base, precision, class_, width) PASTE5(opencl_, base, LETTER_##precision, width, CLASS_##class_)
#define THUNK(base, precision, class_, width, pair) OPENCL(base, precision, class_, width)
#define DECLARE(base, precision, class_, width) \
    extern "C" void OPENCL(base, precision, class_, width)(const void* const*, void* const*);
#define FAMILY(base, precision, class_, signature, home, traits, bound) \
    DECLARE(base, precision, class_, 1)                                 \
    DECLARE(base, precision, class_, 2)                                 \
    DECLARE(base, precision, class_, 3)                                 \
    DECLARE(base, precision, class_, 4)                                 \
    DECLARE(base, precision, class_, 8)                                 \
    DECLARE(base, precision, class_, 16)
#include "include/grid.def"
#else
#define THUNK(base, precision, class_, width, pair) \
    thunk<EXPORT(base, precision, class_, width), pair>(&EXPORT(base, precision, class_, width))
#endif

std::vector<Family> make_families() {
    std::vector<Family> list;
#define FAMILY(base, precision, class_, signature, home, traits, bound)                                          \
    {                                                                                                            \
        [[maybe_unused]] constexpr bool pair = std::string_view(#signature) == "pair_result";                    \
        Family family = {TEXT(FAMILY_NAME(base, precision, class_)),                                             \
                         #base,                                                                                  \
                         #signature,                                                                             \
                         std::string_view(#precision) == "float_",                                               \
                         std::string_view(#class_) == "native",                                                  \
                         traits,                                                                                 \
                         bound,                                                                                  \
                         {},                                                                                     \
                         {},                                                                                     \
                         false,                                                                                  \
                         {THUNK(base, precision, class_, 1, pair), THUNK(base, precision, class_, 2, pair),      \
                          THUNK(base, precision, class_, 3, pair), THUNK(base, precision, class_, 4, pair),      \
                          THUNK(base, precision, class_, 8, pair), THUNK(base, precision, class_, 16, pair)},    \
                         {TEXT(EXPORT(base, precision, class_, 1)), TEXT(EXPORT(base, precision, class_, 2)),    \
                          TEXT(EXPORT(base, precision, class_, 3)), TEXT(EXPORT(base, precision, class_, 4)),    \
                          TEXT(EXPORT(base, precision, class_, 8)), TEXT(EXPORT(base, precision, class_, 16))}}; \
        describe(family, &EXPORT(base, precision, class_, 4));                                                   \
        list.push_back(std::move(family));                                                                       \
    }
#include "include/grid.def"
    return list;
}

size_t index_of(int width) {
    return static_cast<size_t>(std::find(widths.begin(), widths.end(), width) - widths.begin());
}

}  // namespace

Call Family::call(int width) const { return calls[index_of(width)]; }
const std::string& Family::export_name(int width) const { return exports[index_of(width)]; }

const std::vector<Family>& families() {
    static const std::vector<Family> list = make_families();
    return list;
}

const Family* find(const std::string& name) {
    for (const Family& family : families())
        if (family.name == name) return &family;
    return nullptr;
}

}  // namespace grid
