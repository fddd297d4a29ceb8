// Calls of any standing family on lanes of one's own choosing, and values by their bits.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "tools/calls.h"

namespace harness {

inline constexpr size_t max_lanes = 16;

// The lanes of one operand or result, as bit patterns in the low bits of each element.
using Patterns = std::vector<uint64_t>;

inline uint64_t pattern(float x) { return __builtin_bit_cast(uint32_t, x); }
inline uint64_t pattern(double x) { return __builtin_bit_cast(uint64_t, x); }
inline uint64_t pattern(int32_t x) { return static_cast<uint32_t>(x); }
inline uint64_t pattern(uint32_t x) { return x; }
inline uint64_t pattern(int64_t x) { return static_cast<uint64_t>(x); }
inline uint64_t pattern(uint64_t x) { return x; }
inline float as_float(uint64_t bits) { return __builtin_bit_cast(float, static_cast<uint32_t>(bits)); }
inline double as_double(uint64_t bits) { return __builtin_bit_cast(double, bits); }

bool is_nan(grid::Lane lane, uint64_t bits);
bool is_signalling(grid::Lane lane, uint64_t bits);

// One call: operands[i] holds room(width) patterns; so does every result.
std::vector<Patterns> call(const grid::Family& family, int width, const std::vector<Patterns>& operands);

// The results of one lane at this width, every lane of each operand holding the same value.
std::vector<uint64_t> call_uniform(const grid::Family& family, int width, const std::vector<uint64_t>& operands);

const grid::Family& family(const std::string& name);

// One row of a value table: operand patterns, then the expected result patterns. A NaN expected by `any_nan` is met
// by every NaN.
inline constexpr uint64_t any_nan = 0xfeedfacefeedfaceu;
struct Row {
    std::vector<uint64_t> operands, results;
};

// Every row, at every width and in every lane, each time beside neighbours taken from the other rows.
void expect_rows(const std::string& family_name, const std::vector<Row>& rows,
                 const std::vector<int>& widths = {1, 2, 3, 4, 8, 16});

// An operand and its first result: beside lanes that leave the choice of the path open, and beside those that make it.
struct BesideRow {
    uint64_t operand, beside_calm, beside_deciding;
};
// Every row in every lane, at all widths above 1, with one neighbour in every other lane and ones elsewhere.
void expect_beside(const std::string& family_name, const std::vector<BesideRow>& rows,
                   const std::vector<uint64_t>& calm, const std::vector<uint64_t>& deciding);

}  // namespace harness
