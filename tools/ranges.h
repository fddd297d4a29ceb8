// The ranges of operands that a family's error is told over (the RANGE rows of include/operations.def), and random
// operands of a range.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/calls.h"

namespace accuracy {

using grid::Lane;

inline constexpr double largest_float = 0x1.fffffep127, largest_double = 0x1.fffffffffffffp1023;

struct Interval {
    double low = -largest_double, high = largest_double;
    bool is_whole() const { return low == -largest_double && high == largest_double; }
};

// A part of a family's domain. Ends belong to it; in single precision they are rounded inward.
struct Range {
    std::string_view family, name;
    Interval x = {}, y = {}, z = {};             // of the first, second and third operand
    std::optional<Interval> y_times_log_x = {};  // of y log2|x|: y depends on x
    std::optional<Interval> y_plus_log_x = {};   // of y + log2|x|
    std::optional<Interval> y_over_x = {};       // of y/x
    std::optional<double> beside = {};           // what the last lane of every vector holds, in every operand
    int width = 0;                               // the one width that the range is about; 0: every width
    double bound = -1;                           // where it is tighter than the family's
    bool sampled = false;                        // too slow to try every number of it

    const Interval& operand(size_t i) const { return i == 0 ? x : i == 1 ? y : z; }
    bool is_dependent() const { return y_times_log_x || y_plus_log_x || y_over_x; }
};

// The ranges of a family. One that names none has to hold its bound on every finite operand.
std::vector<Range> ranges_of(const grid::Family& family);
double bound_of(const grid::Family& family, const Range& range);

// The folder of the family's operation below kernels/, and the groups in their order.
struct Group {
    std::string_view folder, title;
};
const std::vector<Group>& groups();
const Group& group_of(const grid::Family& family);

// ---- A lane's numbers in their order, as integers: -0 is -1, +0 is 0, the smallest subnormal 1. --------------

int64_t order_of(Lane lane, uint64_t bits);
uint64_t from_order(Lane lane, int64_t order);

// An interval on a lane's numbers.
struct Span {
    Lane lane;
    double low, high;
    int64_t first, last;

    Span(Lane lane, const Interval& interval);
    uint64_t count() const { return static_cast<uint64_t>(last) - static_cast<uint64_t>(first) + 1; }
};

uint64_t pattern_of(Lane lane, double value);

class Random {
  public:
    explicit Random(uint64_t seed) : state_(seed * 0x9e3779b97f4a7c15) {}
    uint64_t next() {  // splitmix64
        state_ += 0x9e3779b97f4a7c15;
        uint64_t z = state_;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        return z ^ (z >> 31);
    }
    uint64_t below(uint64_t n) { return n == 0 ? next() : next() % n; }  // 0 stands for 2^64
    double unit() { return static_cast<double>(next() >> 11) * 0x1p-53; }

  private:
    uint64_t state_;
};

// Operands of one range, a lane at a time: spread over the range's values and over its floating-point numbers, dense
// at its ends.
class Operands {
  public:
    static constexpr size_t most = 3;

    Operands(const grid::Family& family, const Range& range);
    const std::vector<Span>& spans() const { return spans_; }
    // Patterns of one lane's operands, `spans().size()` of them.
    void draw(Random& random, uint64_t* patterns) const;
    // Numbers of the range near these, each operand moved or left; the same again where there is none.
    void move(Random& random, uint64_t* patterns) const;

  private:
    void tie(Random& random, uint64_t* patterns) const;
    bool is_tied(const uint64_t* patterns) const;

    std::vector<Span> spans_;
    Range range_;
};

}  // namespace accuracy
