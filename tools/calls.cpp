#include "tools/calls.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
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
constexpr Lane lane_of() {
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

// The call of any function of one type: some sixty types serve all exports.
template <bool pair, class Result, class... Operands>
struct Invoker {
    template <size_t... i>
    static void invoke(Result (*function)(Operands...), const void* const* operands, void* const* results,
                       std::index_sequence<i...>) {
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
    static void call(Function function, const void* const* operands, void* const* results) {
        invoke(reinterpret_cast<Result (*)(Operands...)>(function), operands, results,
               std::index_sequence_for<Operands...>());
    }
};

// What the types of a family's exports tell, as plain data: the table of all families then takes no code to build.
struct Shape {
    Lane operands[3] = {}, results[2] = {};
    size_t operand_count = 0, result_count = 0;
    bool second_through_pointer = false;
};
template <class Result, class... Operands>
constexpr Shape shape_of(Result (*)(Operands...)) {
    Shape shape;
    if constexpr (requires(Result both) { both.sine; }) {
        shape.results[shape.result_count++] = lane_of<decltype(Result::sine)>();
        shape.results[shape.result_count++] = lane_of<decltype(Result::cosine)>();
    } else {
        shape.results[shape.result_count++] = lane_of<Result>();
    }
    auto each = [&]<class Operand>(std::type_identity<Operand>) {
        if constexpr (std::is_pointer_v<Operand>) {
            shape.results[shape.result_count++] = lane_of<std::remove_pointer_t<Operand>>();
            shape.second_through_pointer = true;
        } else {
            shape.operands[shape.operand_count++] = lane_of<Operand>();
        }
    };
    (each(std::type_identity<Operands>()), ...);
    return shape;
}

#define EXPORT(base, precision, class_, width) EXPORT_NAME(base, precision, class_, width)
#ifdef GRID_CALLS_THROUGH_OPENCL
// The calls made by an object compiled from OpenCL C, in place of the ones made here.
using OpenclCaller = void(const void* const* operands, void* const* results);
void call_through_opencl(Function function, const void* const* operands, void* const* results) {
    reinterpret_cast<OpenclCaller*>(function)(operands, results);
}
#define CALLER(base, precision, class_, width) PASTE5(opencl_, base, LETTER_##precision, width, CLASS_##class_)
#define DECLARE(base, precision, class_, width) extern "C" OpenclCaller CALLER(base, precision, class_, width);
#define FAMILY(base, precision, class_, signature, home, traits, bound) FOR_EACH_WIDTH(DECLARE, base, precision, class_)
#include "include/grid.def"
#define CALL(pair, base, precision, class_, width) \
    {call_through_opencl, reinterpret_cast<Function>(CALLER(base, precision, class_, width))},
#else
template <bool pair, class Result, class... Operands>
constexpr Invoke* invoker_of(Result (*)(Operands...)) {
    return Invoker<pair, Result, Operands...>::call;
}
#define CALL(pair, base, precision, class_, width)              \
    {invoker_of<pair>(&EXPORT(base, precision, class_, width)), \
     reinterpret_cast<Function>(&EXPORT(base, precision, class_, width))},
#endif

struct Row {
    const char *base, *precision, *accuracy_class, *signature;
    Traits traits;
    double bound;
    Shape shape;
    Call calls[6];
    const char* symbols[6];
};

#define SYMBOL(base, precision, class_, signature, width) \
    TEXT(EXPORT_SYMBOL(base, precision, class_, signature, width)),
// The lanes are those of the width-4 export.
const Row rows[] = {
#define FAMILY(base, precision, class_, signature, home, traits, bound)                              \
    {#base,                                                                                          \
     #precision,                                                                                     \
     #class_,                                                                                        \
     #signature,                                                                                     \
     traits,                                                                                         \
     bound,                                                                                          \
     shape_of(&EXPORT(base, precision, class_, 4)),                                                  \
     {FOR_EACH_WIDTH(CALL, std::string_view(#signature) == "pair_result", base, precision, class_)}, \
     {FOR_EACH_WIDTH(SYMBOL, base, precision, class_, signature)}},
#include "include/grid.def"
};

Family family_of(const Row& row) {
    const Shape& shape = row.shape;
    Family family;
    family.base = row.base;
    family.signature = row.signature;
    family.is_single = std::string_view(row.precision) == "float_";
    family.is_native = std::string_view(row.accuracy_class) == "native";
    family.traits = row.traits;
    family.bound = row.bound;
    family.operands.assign(shape.operands, shape.operands + shape.operand_count);
    family.results.assign(shape.results, shape.results + shape.result_count);
    family.second_through_pointer = shape.second_through_pointer;
    std::copy(std::begin(row.calls), std::end(row.calls), family.calls.begin());
    family.name = family.base + (family.is_single ? "f" : "") + (family.is_native ? "_native" : "");
    std::copy(std::begin(row.symbols), std::end(row.symbols), family.exports.begin());
    return family;
}

std::vector<Family> make_families() {
    std::vector<Family> list;
    for (const Row& row : rows) list.push_back(family_of(row));
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
