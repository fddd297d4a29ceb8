#include "tools/ranges.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>

#include "tools/reference.h"

namespace accuracy {
namespace {

constexpr double f(uint32_t bits) { return double{__builtin_bit_cast(float, bits)}; }
[[maybe_unused]] constexpr double d(uint64_t bits) { return __builtin_bit_cast(double, bits); }

constexpr Range all_ranges[] = {
#define RANGE(family_, name_, ...) {.family = #family_, .name = #name_, __VA_ARGS__},
#include "include/operations.def"
};

// ---- Random numbers of a span. --------------------------------------------------------------------------------

uint64_t draw_from(const Span& span, Random& random) {
    uint64_t way = random.below(16);
    if (way == 0) {  // close to an end
        uint64_t step = random.below(std::min<uint64_t>(span.count(), 256));
        return from_order(span.lane, random.next() & 1 ? span.first + static_cast<int64_t>(step)
                                                       : span.last - static_cast<int64_t>(step));
    }
    if (way < 9)  // evenly over the numbers: over the exponents
        return from_order(span.lane,
                          static_cast<int64_t>(static_cast<uint64_t>(span.first) + random.below(span.count())));
    double u = random.unit();  // evenly over the values
    uint64_t bits = pattern_of(span.lane, span.low * (1 - u) + span.high * u);
    return from_order(span.lane, std::clamp(order_of(span.lane, bits), span.first, span.last));
}

// A number of the span near this one.
uint64_t mutate(const Span& span, uint64_t bits, Random& random) {
    uint64_t distances = span.count() >> random.below(std::bit_width(span.count()));
    uint64_t reach = random.below(distances) + 1;
    uint64_t moved = static_cast<uint64_t>(order_of(span.lane, bits)) + (random.next() & 1 ? reach : -reach);
    return from_order(span.lane, std::clamp(static_cast<int64_t>(moved), span.first, span.last));
}

}  // namespace

// ---- Ranges. --------------------------------------------------------------------------------------------------

std::vector<Range> ranges_of(const grid::Family& family) {
    std::vector<Range> list;
    for (const Range& range : all_ranges) {
        if (range.family != family.name) continue;
        for (const Range& other : list)
            if (other.name == range.name) {
                std::fprintf(stderr, "%s has two ranges named %s\n", family.name.c_str(), range.name.data());
                std::abort();
            }
        list.push_back(range);
    }
    if (list.empty()) list.push_back({.family = family.name, .name = "all"});
    return list;
}
double bound_of(const grid::Family& family, const Range& range) {
    return range.bound >= 0 ? range.bound : family.bound;
}

const std::vector<Group>& groups() {
    static const std::vector<Group> list = {
#define GROUP(folder, title) {#folder, title},
#include "include/operations.def"
    };
    return list;
}

const Group& group_of(const grid::Family& family) {
    static const std::map<std::string, size_t> index = [] {
        std::map<std::string, size_t> map;
        size_t begun = 0;
#define GROUP(folder, title) ++begun;
#define OPERATION(base, builtin, what) map[#base] = begun - 1;
#include "include/operations.def"
        return map;
    }();
    auto found = index.find(family.base);
    return found == index.end() ? groups().back() : groups()[found->second];  // conversions have no rows
}

// ---- Numbers in order. ----------------------------------------------------------------------------------------

uint64_t pattern_of(Lane lane, double value) {
    if (lane == Lane::f64) return __builtin_bit_cast(uint64_t, value);
    if (lane == Lane::f32) return __builtin_bit_cast(uint32_t, static_cast<float>(value));
    return static_cast<uint32_t>(static_cast<int32_t>(value));
}

int64_t order_of(Lane lane, uint64_t bits) {
    if (lane == Lane::i32) return static_cast<int32_t>(bits);
    uint64_t sign = lane == Lane::f32 ? uint64_t{1} << 31 : uint64_t{1} << 63;
    return bits & sign ? -1 - static_cast<int64_t>(bits & ~sign) : static_cast<int64_t>(bits);
}
uint64_t from_order(Lane lane, int64_t order) {
    if (lane == Lane::i32) return static_cast<uint32_t>(order);
    uint64_t sign = lane == Lane::f32 ? uint64_t{1} << 31 : uint64_t{1} << 63;
    return order < 0 ? static_cast<uint64_t>(-1 - order) | sign : static_cast<uint64_t>(order);
}

Span::Span(Lane lane_, const Interval& interval) : lane(lane_) {
    double limit = lane == Lane::f32 ? largest_float : lane == Lane::i32 ? 0x1p31 - 1 : largest_double;
    low = std::max(interval.low, -limit);
    high = std::min(interval.high, limit);
    // The lowest integer has no counterpart; an interval that is open below takes it.
    if (lane == Lane::i32) low = interval.low <= -0x1p31 ? -0x1p31 : std::ceil(low), high = std::floor(high);
    first = order_of(lane, pattern_of(lane, low));
    last = order_of(lane, pattern_of(lane, high));
    if (lane == Lane::f32 && static_cast<double>(reference::lane_value(lane, from_order(lane, first))) < low) ++first;
    if (lane == Lane::f32 && static_cast<double>(reference::lane_value(lane, from_order(lane, last))) > high) --last;
}

// ---- Operands. ------------------------------------------------------------------------------------------------

Operands::Operands(const grid::Family& family, const Range& range) : range_(range) {
    for (size_t i = 0; i < family.operands.size(); ++i) spans_.emplace_back(family.operands[i], range.operand(i));
}

void Operands::draw(Random& random, uint64_t* patterns) const {
    for (size_t i = 0; i < spans_.size(); ++i) patterns[i] = draw_from(spans_[i], random);
    if (range_.is_dependent()) tie(random, patterns);
}

void Operands::move(Random& random, uint64_t* patterns) const {
    uint64_t moved[most] = {};
    for (size_t i = 0; i < spans_.size(); ++i)
        moved[i] = random.next() % 3 ? mutate(spans_[i], patterns[i], random) : patterns[i];
    if (!range_.is_dependent() || is_tied(moved)) std::copy_n(moved, spans_.size(), patterns);
}

// The second operand anew, as its tie to the first one wants it.
void Operands::tie(Random& random, uint64_t* patterns) const {
    const Interval& interval = *(range_.y_times_log_x  ? range_.y_times_log_x
                                 : range_.y_plus_log_x ? range_.y_plus_log_x
                                                       : range_.y_over_x);
    double u = random.unit();
    if (random.below(4) == 0) {  // close to an end
        u *= std::exp2(-30 * random.unit());
        if (random.next() & 1) u = 1 - u;
    }
    long double target = interval.low * (1 - u) + interval.high * u;
    long double x = reference::lane_value(spans_[0].lane, patterns[0]), log = log2l(fabsl(x));
    long double y = range_.y_times_log_x ? target / log : range_.y_plus_log_x ? target - log : target * x;
    if (!std::isfinite(y)) return;  // x is a zero, or one: any y will do
    const Span& span = spans_[1];
    if (span.lane == Lane::i32) y = rintl(y);
    double nearest = static_cast<double>(std::clamp<long double>(y, span.low, span.high));
    patterns[1] =
        from_order(span.lane, std::clamp(order_of(span.lane, pattern_of(span.lane, nearest)), span.first, span.last));
}

bool Operands::is_tied(const uint64_t* patterns) const {
    long double x = reference::lane_value(spans_[0].lane, patterns[0]);
    long double y = reference::lane_value(spans_[1].lane, patterns[1]), log = log2l(fabsl(x));
    auto inside = [](const std::optional<Interval>& interval, long double value) {
        return !interval || (value >= interval->low && value <= interval->high);
    };
    return inside(range_.y_times_log_x, y * log) && inside(range_.y_plus_log_x, y + log) &&
           inside(range_.y_over_x, y / x);
}

}  // namespace accuracy
