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

#include "tools/interpolant.h"

namespace accuracy {
namespace {

using grid::Lane;

constexpr size_t max_operands = Operands::most, max_results = 2;

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

// ---- One vector: its operands, its call, its judgement. ------------------------------------------------------

class Bench {
  public:
    Bench(const grid::Family& family, const Range& range, int width)
        : family_(family),
          operation_(*reference::find(family.base)),
          range_(range),
          width_(width),
          draws_(family, range) {
        floating_lane_ = family.is_single ? Lane::f32 : Lane::f64;
        if (range.beside) {
            for (size_t i = 0; i < spans().size(); ++i) set(i, lanes(), pattern_of(spans()[i].lane, *range.beside));
        }
    }

    // How many lanes are the sweep's own.
    size_t lanes() const { return static_cast<size_t>(width_) - (range_.beside ? 1 : 0); }
    const Operands& draws() const { return draws_; }
    const std::vector<Span>& spans() const { return draws_.spans(); }
    void set(size_t operand, size_t lane, uint64_t bits) {
        write_lane(operands_[operand], spans()[operand].lane, lane, bits);
    }
    uint64_t get(size_t operand, size_t lane) const {
        return read_lane(operands_[operand], spans()[operand].lane, lane);
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
                watch(static_cast<double>(reference::lane_value(spans()[0].lane, get(0, lane))),
                      *std::max_element(screened, screened + results));
        }
        worst.tried += lanes();
    }

    // The one lane, by MPFR alone.
    void judge_exactly(size_t lane, double* screened, Finding& worst) {
        for (size_t i = 0; i < spans().size(); ++i) exact_operands_[i].set(spans()[i].lane, get(i, lane));
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
        Place place = {std::string(range_.name), width_, static_cast<int>(lane), {}};
        for (size_t i = 0; i < spans().size(); ++i) {
            place.operands.emplace_back();
            for (size_t l = 0; l < static_cast<size_t>(width_); ++l) place.operands[i].push_back(get(i, l));
        }
        return place;
    }
    void set(const Place& place) {
        for (size_t i = 0; i < spans().size(); ++i)
            for (size_t l = 0; l < place.operands[i].size(); ++l) set(i, l, place.operands[i][l]);
    }
    // The one operand's lanes: consecutive numbers from `first` on, the last one repeated behind `last`.
    void set_consecutive(int64_t first, int64_t last) {
        uint32_t patterns[16];
        auto at = static_cast<int32_t>(first), end = static_cast<int32_t>(last);
        for (int32_t lane = 0; lane < 16; ++lane) {
            int32_t order = std::min(at, end);
            patterns[lane] = static_cast<uint32_t>(order ^ ((order >> 31) & 0x7fffffff));
            at += at < end;
        }
        std::memcpy(operands_[0], patterns, 4 * lanes());
    }
    // A bound of each error of the last call by the interpolants; whether all are below `limit`.
    bool all_below(double limit, const Interpolant& operation) {
        unsigned below = 0;
        size_t results = static_cast<size_t>(operation_.results);
        for (size_t r = 0; r < results; ++r) {
            float x[16], computed[16];
            std::memcpy(x, operands_[0], sizeof x);
            std::memcpy(computed, results_[r], sizeof computed);
            operation.bounds(r, x, computed, bounds_[r]);
            for (size_t lane = 0; lane < lanes(); ++lane) below += bounds_[r][lane] < limit;  // not where it is a NaN
        }
        return below == lanes() * results;
    }
    // After a judgement of every lane: whether the bounds were.
    void check_bounds() {
        for (size_t lane = 0; lane < lanes(); ++lane)
            for (size_t r = 0; r < static_cast<size_t>(operation_.results); ++r)
                if (bounds_[r][lane] < screened_[lane][r]) fail(lane, screened_[lane][r]);
    }
    uint64_t result(size_t r, size_t lane) const { return read_lane(results_[r], family_.results[r], lane); }

  private:
    // The distances of all lanes from the screen's values.
    void screen() {
        bool one_float = spans().size() == 1 && operation_.results == 1 && spans()[0].lane == Lane::f32 &&
                         family_.results[0] == Lane::f32;
        if (one_float) return screen_floats();
        for (size_t lane = 0; lane < lanes(); ++lane) {
            long double x[max_operands], exact[max_results];
            for (size_t i = 0; i < spans().size(); ++i) x[i] = reference::lane_value(spans()[i].lane, get(i, lane));
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
    double screened_[16][max_results] = {}, bounds_[max_results][16] = {};
    reference::Real exact_operands_[max_operands], exact_results_[max_results];
    const grid::Family& family_;
    const reference::Operation& operation_;
    const Range& range_;
    int width_;
    Lane floating_lane_;
    Operands draws_;
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
            uint64_t patterns[max_operands];
            for (size_t i = 0; i < bench.spans().size(); ++i)
                patterns[i] = one ? bench.get(i, lane) : worst.place.operands[i][bad];
            bench.draws().move(random, patterns);
            for (size_t i = 0; i < bench.spans().size(); ++i) bench.set(i, lane, patterns[i]);
        }
        bench.call();
        bench.judge(worst, {}, false);
    }
}

}  // namespace

bool has_reference(const grid::Family& family) { return reference::find(family.base) != nullptr; }

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
    for (char letter : family.name + "/" + std::string(range.name))
        seed = seed * 31 + static_cast<unsigned char>(letter);
    constexpr uint64_t pieces = 16;
    auto sweep = [&](uint64_t piece, Finding& worst) {
        Bench bench(family, range, width);
        Random random(seed + piece);
        uint64_t vectors = count / pieces / bench.lanes() + 1;
        for (uint64_t v = 0; v < vectors; ++v) {
            for (size_t lane = 0; lane < bench.lanes(); ++lane) {
                uint64_t patterns[max_operands];
                bench.draws().draw(random, patterns);
                for (size_t i = 0; i < bench.spans().size(); ++i) bench.set(i, lane, patterns[i]);
            }
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

namespace {

// Consecutive numbers of the one operand.
class Stretch {
  public:
    Stretch(const grid::Family& family, const Range& range, int width, const Watcher& watch)
        : bench_(family, range, width), operation_(*reference::find(family.base)), watch_(watch) {
        smooth_ = !watch && family.bound > 0 &&
                  std::ranges::all_of(family.results, [](Lane lane) { return lane == Lane::f32; });
    }

    // Where the operation is not smooth over 4,096 numbers it may be over 256.
    void sweep(int64_t first, int64_t last, Finding& worst) {
        each(first, last, 1 << 12, [&](int64_t from, int64_t to) {
            if (fits(from, to)) return go(from, to, worst, &interpolant_);
            each(from, to, 1 << 8, [&](int64_t begin, int64_t end) {
                go(begin, end, worst, fits(begin, end) ? &interpolant_ : nullptr);
            });
        });
    }

  private:
    template <class Part>
    static void each(int64_t first, int64_t last, int64_t size, const Part& part) {
        for (int64_t at = first; at <= last; at += size) part(at, std::min(at + size - 1, last));
    }
    bool fits(int64_t first, int64_t last) {
        return smooth_ && interpolant_.fit(operation_, number(first), number(last));
    }
    static double number(int64_t order) {
        return static_cast<double>(reference::lane_value(Lane::f32, from_order(Lane::f32, order)));
    }
    void go(int64_t first, int64_t last, Finding& worst, const Interpolant* bounds) {
        for (int64_t at = first; at <= last; at += static_cast<int64_t>(bench_.lanes())) {
            bench_.set_consecutive(at, last);
            bench_.call();
            bool check = vectors_++ % 8192 == 0;
            if (bounds && bench_.all_below(worst.error, *bounds) && !check) continue;
            bench_.judge(worst, watch_, check);
            if (bounds && check) bench_.check_bounds();
        }
    }

    Bench bench_;
    const reference::Operation& operation_;
    const Watcher& watch_;
    Interpolant interpolant_;
    bool smooth_;
    uint64_t vectors_ = 0;
};

}  // namespace

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
        int64_t first = span.first + static_cast<int64_t>(piece) * piece_size;
        int64_t last = std::min(first + piece_size - 1, span.last);
        uint64_t before = worst.tried;
        Stretch stretch(family, range, width, options.watch);
        stretch.sweep(first, last, worst);
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
