// Every standing family of the grid at run time: its name, its lanes, its bound, and its six exports behind one
// type-erased call. Tests, benchmarks and the accuracy tool iterate over this table.
#pragma once

#include <array>
#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "include/grid_names.h"

namespace grid {

// On i386 a width-1 floating result comes back on the x87 stack, whose load makes a signalling NaN quiet.
#ifdef __x86_64__
inline constexpr bool floating_results_on_x87 = false;
#else
inline constexpr bool floating_results_on_x87 = true;
#endif

enum class Lane { f32, f64, i32, u32, i64, u64 };
constexpr size_t size_of(Lane lane) { return lane == Lane::f64 || lane == Lane::i64 || lane == Lane::u64 ? 8 : 4; }

inline constexpr std::array<int, 6> widths = {1, 2, 3, 4, 8, 16};
// Lanes that a vector has room for: a width-3 vector is a width-4 image.
constexpr int room(int width) { return width == 3 ? 4 : width; }

// Reads each operand's lanes (room(width) of them) from operands[i], writes each result's lanes to results[i]. A
// pointer output is written by the export itself, straight to results[1].
using Function = void (*)();
using Invoke = void(Function, const void* const* operands, void* const* results);
struct Call {
    Invoke* invoke;  // knows the type that the function has
    Function function;

    void operator()(const void* const* operands, void* const* results) const { invoke(function, operands, results); }
};

struct Family {
    std::string name, base, signature;
    bool is_single, is_native;
    Traits traits;
    double bound;  // ulp, from the grid
    std::vector<Lane> operands, results;
    bool second_through_pointer;
    std::array<Call, 6> calls;           // by index in `widths`
    std::array<std::string, 6> exports;  // their symbols

    bool is(Traits trait) const { return (traits & trait) != 0; }
    Call call(int width) const;
    const std::string& export_name(int width) const;
};

inline void PrintTo(const Family& family, std::ostream* out) { *out << family.name; }

const std::vector<Family>& families();
// The family of this name; none that stands is a null pointer.
const Family* find(const std::string& name);

}  // namespace grid
