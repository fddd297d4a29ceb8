#include "bench/compare.h"

#include <alloca.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <memory>

#include "bench/median.h"

namespace bench {
namespace {

constexpr double stretch = 100e-6;
constexpr double error_of_a_rival = 4;

const std::vector<Peer>& peers() {
    static const std::vector<Peer> list = [] {
        std::vector<Peer> all;
        add_c_library(all);
        add_by_hand(all);
#ifdef HAVE_SLEEF
        add_sleef(all);
#endif
#ifdef HAVE_XSIMD
        add_xsimd(all);
#endif
        return all;
    }();
    return list;
}

// The stack begins `shift` bytes further down. Where it lies decides which of a callee's spills share their low
// address bits with the constants it loads, which the processor takes for the same place until it knows better;
// one unlucky place for a whole run would slow a candidate by two.
[[gnu::noinline]] double seconds_of(Pass pass, const Arrays& arrays, int repeats, size_t shift) {
    auto* skipped = static_cast<volatile char*>(alloca(shift + 1));
    *skipped = 0;
    auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < repeats; ++i) pass(arrays);
    std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    return elapsed.count() / repeats;
}

size_t index_of(const std::string& name) {
    const std::vector<grid::Family>& all = grid::families();
    return static_cast<size_t>(std::ranges::find(all, name, &grid::Family::name) - all.begin());
}
// Our own pass over a family, by its place in the grid; null where it does not stand.
Pass pass_of(const std::string& name, int width) {
    size_t i = index_of(name);
    if (i == grid::families().size()) return nullptr;
    return export_passes()[i][static_cast<size_t>(std::ranges::find(grid::widths, width) - grid::widths.begin())];
}
FloorPasses floors_of(const std::string& name) { return floor_passes().at(index_of(name)); }

// Answers are slow to get, and the same for all widths: those of the latest operands are kept.
const Answers& answers_to(const grid::Family& family, Set set, const Arrays& arrays) {
    static std::string key;
    static std::unique_ptr<Answers> answers;
    std::string wanted = family.name + "/" + name_of(set);
    if (wanted != key) answers = std::make_unique<Answers>(family, arrays);
    key = wanted;
    return *answers;
}

// The export that does the least with as many operands and lanes as wide.
std::string least_of(const grid::Family& family) {
    size_t from = grid::size_of(family.operands[0]), to = grid::size_of(family.results[0]);
    std::string letter = from == 4 ? "f" : "";
    if (family.operands.size() == 3) return "mad" + letter;
    if (family.operands.size() == 2) return "copysign" + letter;
    if (from == to) return "fabs" + letter;
    return from < to ? "cvti32tofprtn" : "cvtfptoi32rtznosat";
}

}  // namespace

Comparison::Comparison(const grid::Family& family, int width, Set set)
    : workload_(family, set), clean_(family, Set::in_range), answers_(&answers_to(family, set, workload_.arrays())) {
    auto error_of = [&](Pass pass) {
        workload_.clear_results();
        pass(workload_.arrays());
        return answers_->largest_error(workload_.arrays(), width);
    };
    auto slack = [](double bound) { return bound > 0 ? Answers::slack : 0; };
    auto dismiss = [&](const std::string& column, double error) {
        char text[32];
        std::snprintf(text, sizeof text, "%.3g", error);
        dismissed_.push_back(column + " (" + text + " ulp)");
    };

    if (!answers_->known()) {
        fault_ = "no reference for " + family.name;
        return;
    }
    Pass own = pass_of(family.name, width);
    double error = error_of(own);
    if (error > family.bound + slack(family.bound)) {
        fault_ = family.name + " is off by " + std::to_string(error) + " ulp";
        return;
    }
    add(ours, own, false, workload_);

    // Our own yardsticks: the same family on clean operands, the accurate class beside the native one, the sine
    // beside the sine and cosine; and the floor, which knows neither rare lanes nor widths.
    if (set == Set::one_rare_in_64 || set == Set::all_rare) add("clean", own, false, clean_);
    if (family.is_native) {
        std::string accurate = family.name.substr(0, family.name.rfind("_native"));
        if (Pass pass = pass_of(accurate, width)) add("accurate", pass, false, workload_);
    }
    if (family.base == "sincos" && !family.is_native)
        if (Pass pass = pass_of(family.is_single ? "sinf" : "sin", width)) add("sin", pass, false, workload_);
    if (auto [floor, guarded] = floors_of(family.name); floor && set == Set::in_range && width >= 4) {
        if (double off = error_of(floor); off > family.bound + slack(family.bound)) {
            dismiss(floor_column, off);
        } else {
            add(floor_column, floor, false, workload_);
            add(guarded_floor, guarded, false, workload_);
            std::string least = least_of(family);
            add(call, pass_of(least, width), false, workload_);
            add(call_floor, floors_of(least).bare, false, workload_);
        }
    }

    std::string counterpart = family.base + (family.is_single ? "f" : "");
    for (const Peer& peer : peers()) {
        if (peer.family != counterpart || std::ranges::count(peer.widths, width) == 0) continue;
        if (peer.column == "by_hand" && (family.is_native || set != Set::in_range)) continue;  // as the floor
        if (peer.bound > error_of_a_rival && !family.is_native) continue;
        if (double off = error_of(peer.pass); off > peer.bound + slack(peer.bound)) {
            dismiss(peer.column, off);
            continue;
        }
        bool is_rival = peer.bound <= error_of_a_rival && peer.column != "by_hand";
        add(peer.column, peer.pass, is_rival, workload_);
    }
    calibrate();
}

void Comparison::add(const std::string& column, Pass pass, bool is_rival, const Workload& workload) {
    candidates_.push_back({column, pass, is_rival, &workload, 1, {}});
}

void Comparison::calibrate() {
    for (Candidate& candidate : candidates_) {
        double best = 1;
        for (int i = 0; i < 5; ++i)
            best = std::min(best, seconds_of(candidate.pass, candidate.workload->arrays(), 1, 0));
        candidate.repeats = std::max(1, static_cast<int>(stretch / best));
    }
}

// Each round starts with the next candidate, so that none always follows the same neighbour's start.
double Comparison::round() {
    size_t count = candidates_.size();
    size_t shift = rounds_ * 1040 % 4096;  // every unit of a page in turn
    for (size_t i = 0; i < count; ++i) {
        Candidate& candidate = candidates_[(rounds_ + i) % count];
        candidate.times.push_back(seconds_of(candidate.pass, candidate.workload->arrays(), candidate.repeats, shift));
    }
    ++rounds_;
    return candidates_[0].times.back();
}

std::map<std::string, double> Comparison::times() const {
    std::map<std::string, double> times;
    for (const Candidate& candidate : candidates_) times[candidate.column] = median(candidate.times);
    return times;
}

std::string Comparison::fastest_rival() const {
    std::string fastest;
    double least = 0;
    for (const Candidate& candidate : candidates_) {
        if (!candidate.is_rival) continue;
        double time = median(candidate.times);
        if (fastest.empty() || time < least) {
            fastest = candidate.column;
            least = time;
        }
    }
    return fastest;
}

}  // namespace bench
