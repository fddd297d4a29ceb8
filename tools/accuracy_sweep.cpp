#include "tools/accuracy_sweep.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <mutex>
#include <sstream>
#include <thread>

namespace accuracy {
namespace {

using grid::Lane;

constexpr size_t max_operands = 3, max_results = 2;

// Copies of a constant size: this is the sweep's inner loop.
uint64_t read_lane(const unsigned char* lanes, Lane lane, size_t i) {
    if (grid::size_of(lane) == 8) {
        uint64_t bits;
        std::memcpy(&bits, lanes + 8 * i, 8);
        return bits;
    }
    uint32_t bits;
    std::memcpy(&bits, lanes + 4 * i, 4);
    return bits;
}
void write_lane(unsigned char* lanes, Lane lane, size_t i, uint64_t bits) {
    if (grid::size_of(lane) == 8)
        std::memcpy(lanes + 8 * i, &bits, 8);
    else
        std::memcpy(lanes + 4 * i, &bits, 4);
}

uint64_t pattern_of(Lane lane, double value) {
    if (lane == Lane::f64) return __builtin_bit_cast(uint64_t, value);
    if (lane == Lane::f32) return __builtin_bit_cast(uint32_t, static_cast<float>(value));
    return static_cast<uint32_t>(static_cast<int32_t>(value));
}

// ---- A lane's numbers in their order, as integers: -0 is -1, +0 is 0, the smallest subnormal 1. --------------

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

// An interval on a lane's numbers.
struct Span {
    Lane lane;
    double low, high;
    int64_t first, last;

    Span(Lane lane_, const Interval& interval) : lane(lane_) {
        double limit = lane == Lane::f32 ? largest_float : lane == Lane::i32 ? 0x1p31 - 1 : largest_double;
        low = std::max(interval.low, -limit);
        high = std::min(interval.high, limit);
        if (lane == Lane::i32) low = std::ceil(low), high = std::floor(high);
        first = order_of(lane, pattern_of(lane, low));
        last = order_of(lane, pattern_of(lane, high));
        if (lane == Lane::f32 && static_cast<double>(reference::lane_value(lane, from_order(lane, first))) < low)
            ++first;
        if (lane == Lane::f32 && static_cast<double>(reference::lane_value(lane, from_order(lane, last))) > high)
            --last;
    }
    uint64_t count() const { return static_cast<uint64_t>(last) - static_cast<uint64_t>(first) + 1; }
};

// ---- Random operands. ----------------------------------------------------------------------------------------

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

uint64_t draw(const Span& span, Random& random) {
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

// ---- One vector: its operands, its call, its judgement. ------------------------------------------------------

class Bench {
  public:
    Bench(const grid::Family& family, const Range& range, int width)
        : family_(family), operation_(*reference::find(family.base)), range_(range), width_(width) {
        for (size_t i = 0; i < family.operands.size(); ++i) spans_.emplace_back(family.operands[i], range.operand(i));
        floating_lane_ = family.is_single ? Lane::f32 : Lane::f64;
        if (range.beside) {
            for (size_t i = 0; i < spans_.size(); ++i) set(i, lanes(), pattern_of(spans_[i].lane, *range.beside));
        }
    }

    // How many lanes are the sweep's own.
    size_t lanes() const { return static_cast<size_t>(width_) - (range_.beside ? 1 : 0); }
    const std::vector<Span>& spans() const { return spans_; }
    void set(size_t operand, size_t lane, uint64_t bits) {
        write_lane(operands_[operand], spans_[operand].lane, lane, bits);
    }
    uint64_t get(size_t operand, size_t lane) const {
        return read_lane(operands_[operand], spans_[operand].lane, lane);
    }

    void call() {
        const void* operands[max_operands] = {operands_[0], operands_[1], operands_[2]};
        void* results[max_results] = {results_[0], results_[1]};
        family_.call(width_)(operands, results);
    }

    // Judges the lanes of the last call; the worst replaces a smaller `worst`.
    void judge(Finding& worst, const Watcher& watch, bool check_screen) {
        if (operation_.screen) screen();
        size_t results = static_cast<size_t>(operation_.results);
        double margin = reference::screen_margin(floating_lane_);
        for (size_t lane = 0; lane < lanes(); ++lane) {
            double* screened = screened_[lane];
            bool exact_needed = check_screen || !operation_.screen;
            for (size_t r = 0; r < results; ++r)
                exact_needed |= screened[r] > worst.error - margin && (screened[r] > 0 || worst.error < 0);
            if (exact_needed) judge_exactly(lane, screened, worst);
            if (watch)
                watch(static_cast<double>(reference::lane_value(spans_[0].lane, get(0, lane))),
                      *std::max_element(screened, screened + results));
        }
        worst.tried += lanes();
    }

    // The one lane, by MPFR alone.
    void judge_exactly(size_t lane, double* screened, Finding& worst) {
        for (size_t i = 0; i < spans_.size(); ++i) exact_operands_[i].set(spans_[i].lane, get(i, lane));
        operation_.exact(floating_lane_, exact_operands_, exact_results_);
        for (size_t r = 0; r < static_cast<size_t>(operation_.results); ++r) {
            double error = reference::ulp_distance(family_.results[r], result(r, lane), exact_results_[r]);
            if (operation_.screen && screened[r] < error - reference::screen_margin(floating_lane_)) fail(lane, error);
            screened[r] = error;
            // Of equals the lowest pattern, so that the order in which threads find them does not matter.
            if (error < worst.error || (error == worst.error && get(0, lane) >= worst.operand(0))) continue;
            worst.error = error;
            worst.result = r;
            worst.value = result(r, lane);
            worst.place = place(lane);
        }
    }

    Place place(size_t lane) const {
        Place place = {range_.name, width_, static_cast<int>(lane), {}};
        for (size_t i = 0; i < spans_.size(); ++i) {
            place.operands.emplace_back();
            for (size_t l = 0; l < static_cast<size_t>(width_); ++l) place.operands[i].push_back(get(i, l));
        }
        return place;
    }
    void set(const Place& place) {
        for (size_t i = 0; i < spans_.size(); ++i)
            for (size_t l = 0; l < place.operands[i].size(); ++l) set(i, l, place.operands[i][l]);
    }
    uint64_t result(size_t r, size_t lane) const { return read_lane(results_[r], family_.results[r], lane); }

  private:
    // The distances of all lanes from the screen's values.
    void screen() {
        bool one_float = spans_.size() == 1 && operation_.results == 1 && spans_[0].lane == Lane::f32 &&
                         family_.results[0] == Lane::f32;
        if (one_float) return screen_floats();
        for (size_t lane = 0; lane < lanes(); ++lane) {
            long double x[max_operands], exact[max_results];
            for (size_t i = 0; i < spans_.size(); ++i) x[i] = reference::lane_value(spans_[i].lane, get(i, lane));
            operation_.screen(x, exact);
            for (size_t r = 0; r < static_cast<size_t>(operation_.results); ++r)
                screened_[lane][r] = reference::ulp_distance(family_.results[r], result(r, lane), exact[r]);
        }
    }
    // One float to one float: what the exhaustive sweeps spend their time on.
    void screen_floats() {
        for (size_t lane = 0; lane < lanes(); ++lane) {
            float x, computed;
            std::memcpy(&x, operands_[0] + 4 * lane, 4);
            std::memcpy(&computed, results_[0] + 4 * lane, 4);
            long double wide = x, exact;
            operation_.screen(&wide, &exact);
            screened_[lane][0] = reference::ulp_distance(computed, exact);
        }
    }
    [[noreturn]] void fail(size_t lane, double error) {
        std::fprintf(stderr, "the screen of %s is off at %#llx: MPFR finds %g ulp\n", family_.base.c_str(),
                     static_cast<unsigned long long>(get(0, lane)), error);
        std::abort();
    }

    alignas(64) unsigned char operands_[max_operands][128] = {};
    alignas(64) unsigned char results_[max_results][128] = {};
    double screened_[16][max_results] = {};
    reference::Real exact_operands_[max_operands], exact_results_[max_results];
    const grid::Family& family_;
    const reference::Operation& operation_;
    const Range& range_;
    int width_;
    Lane floating_lane_;
    std::vector<Span> spans_;
};

// ---- Sweeps. -------------------------------------------------------------------------------------------------

int width_for(const Range& range, const Options& options) {
    if (range.width) return range.width;
    if (options.width) return options.width;
    return range.beside ? 4 : 16;
}

// Pieces 0 to count - 1 of a sweep over some threads; each thread keeps its own worst.
Finding over_pieces(uint64_t count, const Options& options, const std::function<void(uint64_t, Finding&)>& sweep,
                    const Finding& start) {
    std::atomic<uint64_t> next = 0;
    std::mutex merging;
    Finding worst = start;
    auto work = [&] {
        Finding own = start;
        own.tried = 0;
        for (uint64_t piece = next++; piece < count; piece = next++) sweep(piece, own);
        std::lock_guard lock(merging);
        uint64_t tried = worst.tried + own.tried;
        if (own.error > worst.error ||
            (own.error == worst.error && own.error >= 0 && own.operand(0) < worst.operand(0)))
            worst = own;
        worst.tried = tried;
        mpfr_free_cache();
    };
    std::vector<std::thread> threads;
    for (int i = 1; i < options.jobs; ++i) threads.emplace_back(work);
    work();
    for (std::thread& thread : threads) thread.join();
    return worst;
}

Finding start_of(const grid::Family& family, const Options& options) {
    return options.start ? judge(family, *options.start) : Finding{};
}

// The same lane at width 1, where that gives the same.
Finding simplest(const grid::Family& family, const Range& range, Finding worst) {
    if (range.width || range.beside || worst.place.width <= 1) return worst;
    Place alone = worst.place;
    alone.width = 1;
    alone.lane = 0;
    for (size_t i = 0; i < alone.operands.size(); ++i) alone.operands[i] = {worst.operand(i)};
    Finding finding = judge(family, alone);
    finding.tried = worst.tried;
    return finding.value == worst.value && finding.error == worst.error ? finding : worst;
}

// A number of the span near this one.
uint64_t mutate(const Span& span, uint64_t bits, Random& random) {
    uint64_t distances = span.count() >> random.below(std::bit_width(span.count()));
    uint64_t reach = random.below(distances) + 1;
    uint64_t moved = static_cast<uint64_t>(order_of(span.lane, bits)) + (random.next() & 1 ? reach : -reach);
    return from_order(span.lane, std::clamp(static_cast<int64_t>(moved), span.first, span.last));
}

void climb_from(Finding& worst, const grid::Family& family, const Range& range, uint64_t count, Random& random) {
    int width = worst.place.width;
    Bench bench(family, range, width);
    for (uint64_t tried = 0; tried < count; tried += bench.lanes()) {
        bench.set(worst.place);
        size_t bad = static_cast<size_t>(worst.place.lane);
        // One lane of the vector moves, or each lane becomes a moved copy of the worst.
        bool one = random.next() & 1;
        size_t moving = random.below(bench.lanes());
        for (size_t lane = 0; lane < bench.lanes(); ++lane) {
            if (one && lane != moving) continue;
            for (size_t i = 0; i < bench.spans().size(); ++i) {
                uint64_t from = one ? bench.get(i, lane) : worst.place.operands[i][bad];
                bench.set(i, lane, random.next() % 3 ? mutate(bench.spans()[i], from, random) : from);
            }
        }
        bench.call();
        bench.judge(worst, {}, false);
    }
}

}  // namespace

double bound_of(const grid::Family& family, const Range& range) {
    return range.bound >= 0 ? range.bound : family.bound;
}
bool has_reference(const grid::Family& family) { return reference::find(family.base) != nullptr; }

std::vector<Range> ranges_of(const grid::Family& family) {
    [[maybe_unused]] constexpr auto f = [](uint32_t bits) { return double{__builtin_bit_cast(float, bits)}; };
    [[maybe_unused]] constexpr auto d = [](uint64_t bits) { return __builtin_bit_cast(double, bits); };
    std::vector<Range> list;
#define RANGE(family_, name_, ...) \
    if (family.name == #family_) list.push_back({.family = #family_, .name = #name_, __VA_ARGS__});
#include "tools/accuracy_ranges.def"
#define RANGE(family_, name_, ...) \
    if (family.name == #family_) list.push_back({.family = #family_, .name = #name_, __VA_ARGS__});
#include "include/operations.def"
    if (list.empty()) list.push_back({.family = family.name, .name = "all"});
    return list;
}

Finding judge(const grid::Family& family, const Place& place) {
    Range range = {.family = family.name, .name = place.range};
    Bench bench(family, range, place.width);
    bench.set(place);
    bench.call();
    Finding finding;
    double screened[max_results];
    std::fill_n(screened, max_results, std::numeric_limits<double>::infinity());
    bench.judge_exactly(static_cast<size_t>(place.lane), screened, finding);
    return finding;
}

Finding sweep_random(const grid::Family& family, const Range& range, uint64_t count, bool climb,
                     const Options& options) {
    int width = width_for(range, options);
    uint64_t seed = options.seed;
    for (char letter : family.name + "/" + range.name) seed = seed * 31 + static_cast<unsigned char>(letter);
    constexpr uint64_t pieces = 16;
    auto sweep = [&](uint64_t piece, Finding& worst) {
        Bench bench(family, range, width);
        Random random(seed + piece);
        uint64_t vectors = count / pieces / bench.lanes() + 1;
        for (uint64_t v = 0; v < vectors; ++v) {
            for (size_t lane = 0; lane < bench.lanes(); ++lane)
                for (size_t i = 0; i < bench.spans().size(); ++i) bench.set(i, lane, draw(bench.spans()[i], random));
            bench.call();
            bench.judge(worst, options.watch, v % 64 == 0);
        }
    };
    Finding worst = over_pieces(pieces, options, sweep, start_of(family, options));
    if (climb && worst.error > 0) {
        Random random(seed);
        climb_from(worst, family, range, count / 4, random);
    }
    return simplest(family, range, worst);
}

bool can_be_exhaustive(const grid::Family& family) {
    return family.operands.size() == 1 && family.operands[0] == Lane::f32 && reference::find(family.base)->screen;
}

Finding sweep_exhaustive(const grid::Family& family, const Range& range, const Options& options) {
    int width = width_for(range, options);
    Span span(family.operands[0], range.x);
    // Begun from a sample: where the error only grows, each number would be the worst so far, for MPFR to judge.
    Options sample = options;
    sample.watch = {};
    Finding start = sweep_random(family, range, 1 << 16, false, sample);
    start.tried = 0;
    constexpr int64_t piece_size = 1 << 20;
    uint64_t pieces = (span.count() + piece_size - 1) / piece_size;
    auto sweep = [&](uint64_t piece, Finding& worst) {
        Bench bench(family, range, width);
        int64_t first = span.first + static_cast<int64_t>(piece) * piece_size;
        int64_t last = std::min(first + piece_size - 1, span.last);
        uint64_t before = worst.tried;
        uint64_t vector = 0;
        for (int64_t at = first; at <= last; at += static_cast<int64_t>(bench.lanes())) {
            for (size_t lane = 0; lane < bench.lanes(); ++lane)  // the last vector repeats its last number
                bench.set(0, lane, from_order(span.lane, std::min(at + static_cast<int64_t>(lane), last)));
            bench.call();
            bench.judge(worst, options.watch, vector++ % 8192 == 0);
        }
        worst.tried = before + static_cast<uint64_t>(last - first + 1);
    };
    return simplest(family, range, over_pieces(pieces, options, sweep, start));
}

// ---- Files of worst operands: a line for each, `range width lane` and the operands' lanes, comma by comma. ----

std::vector<Place> read_worst(const std::string& directory, const grid::Family& family) {
    std::vector<Place> places;
    std::ifstream file(directory + "/" + family.name + ".txt");
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream words(line);
        Place place;
        words >> place.range >> place.width >> place.lane;
        for (std::string operand; words >> operand;) {
            place.operands.emplace_back();
            std::istringstream lanes(operand);
            for (std::string lane; std::getline(lanes, lane, ',');)
                place.operands.back().push_back(std::stoull(lane, nullptr, 16));
        }
        places.push_back(std::move(place));
    }
    return places;
}

void write_worst(const std::string& directory, const grid::Family& family, const std::vector<Finding>& findings) {
    if (std::ranges::none_of(findings, [](const Finding& finding) { return finding.error > 0; })) return;
    std::ofstream file(directory + "/" + family.name + ".txt");
    file << "# The worst operands found for " << family.name << ", by tools/accuracy: range, width, lane, operands\n";
    for (const Finding& finding : findings) {
        if (finding.error == 0) continue;
        file << finding.place.range << ' ' << finding.place.width << ' ' << finding.place.lane;
        for (const std::vector<uint64_t>& lanes : finding.place.operands)
            for (size_t l = 0; l < lanes.size(); ++l)
                file << (l ? ',' : ' ') << "0x" << std::hex << lanes[l] << std::dec;
        file << '\n';
    }
}

}  // namespace accuracy
