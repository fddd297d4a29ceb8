// Operands for any family: special values of each lane type, ordinary ones, and random patterns from a fixed seed.
#pragma once

#include <cstdint>
#include <vector>

#include "tests/harness/lanes.h"

namespace harness {

// A small generator (xorshift64*), the same sequence on every run.
class Random {
  public:
    explicit Random(uint64_t seed) : state_(seed) {}
    uint64_t next() {
        state_ ^= state_ >> 12;
        state_ ^= state_ << 25;
        state_ ^= state_ >> 27;
        return state_ * 0x2545f4914f6cdd1d;
    }

  private:
    uint64_t state_;
};

// Zeros, subnormals, infinities, NaNs of both signs, the ends of the ranges, signalling NaNs excepted: those a
// width-1 result cannot carry.
std::vector<uint64_t> special_patterns(grid::Lane lane);

// A number that no family treats as rare or out of range: between 1 and 2.
uint64_t ordinary_pattern(grid::Lane lane, Random& random);

// Any bits that are not a signalling NaN.
uint64_t random_pattern(grid::Lane lane, Random& random);

// Vectors of operands for a family: tuples that go through the special values, then random ones.
std::vector<std::vector<uint64_t>> operand_tuples(const grid::Family& family, size_t random_count);

}  // namespace harness
