#include "bench/compare.h"

#include <alloca.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>

#include "bench/reference.h"

namespace bench {
namespace {

constexpr double stretch = 100e-6;
constexpr double error_of_a_rival = 4;

const std::vector<Peer>& peers() {
    static const std::vector<Peer> list = [] {
        std::vector<Peer> all;
        add_c_library(all);
        add_hardware(all);
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

double median(std::vector<double> values) {
    auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Our own pass over a family, by its place in the grid; null where it does not stand.
Pass pass_of(const std::string& name, int width) {
    for (size_t i = 0; i < grid::families().size(); ++i)
        if (grid::families()[i].name == name) {
            auto at = std::find(grid::widths.begin(), grid::widths.end(), width) - grid::widths.begin();
            return export_passes()[i][static_cast<size_t>(at)];
        }
    return nullptr;
}

}  // namespace

Comparison::Comparison(const grid::Family& family, int width, Set set)
    : workload_(family, set), clean_(family, Set::in_range) {
    auto error_of = [&](Pass pass) {
        workload_.clear_results();
        pass(workload_.arrays());
        return largest_error(family, width, workload_.arrays());
    };

    Pass own = pass_of(family.name, width);
    double error = error_of(own);
    if (std::isnan(error)) {
        fault_ = "no reference for " + family.name;
        return;
    }
    if (error > family.bound + (family.bound > 0 ? reference_error : 0)) {
        fault_ = family.name + " is off by " + std::to_string(error) + " ulp";
        return;
    }
    add(ours, own, false, workload_);

    // Our own yardsticks: the same family on clean operands, the accurate class beside the native one, the sine
    // beside the sine and cosine.
    if (set == Set::one_rare_in_64 || set == Set::all_rare) add("clean", own, false, clean_);
    if (family.is_native) {
        std::string accurate = family.name.substr(0, family.name.rfind("_native"));
        if (Pass pass = pass_of(accurate, width)) add("accurate", pass, false, workload_);
    }
    if (family.base == "sincos" && !family.is_native)
        if (Pass pass = pass_of(family.is_single ? "sinf" : "sin", width)) add("sin", pass, false, workload_);

    std::string counterpart = family.base + (family.is_single ? "f" : "");
    for (const Peer& peer : peers()) {
        if (peer.family != counterpart || std::find(peer.widths.begin(), peer.widths.end(), width) == peer.widths.end())
            continue;
        if (peer.column == "by_hand" && (family.is_native || set != Set::in_range))
            continue;  // nothing behind its mask
        double peer_error = error_of(peer.pass);
        if (peer_error > peer.bound + (peer.bound > 0 ? reference_error : 0)) {
            char error_text[32];
            std::snprintf(error_text, sizeof error_text, "%.3g", peer_error);
            dismissed_.push_back(peer.column + " (" + error_text + " ulp)");
            continue;
        }
        bool is_rival = peer.bound <= error_of_a_rival && peer.column != "hardware" && peer.column != "by_hand";
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

std::map<std::string, double> Comparison::ratios() const {
    std::map<std::string, double> ratios;
    double own = median(candidates_[0].times);
    for (const Candidate& candidate : candidates_) ratios[candidate.column] = median(candidate.times) / own;
    return ratios;
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
