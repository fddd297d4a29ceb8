// Google Benchmark's program over all comparisons: one benchmark for each family, width and set of operands, named
// family/width/set. An iteration is one round of the comparison; the counters are the ratios of the others' times
// to ours.
//
//   bench [--rounds=N] [options of Google Benchmark]    everything, on the console or as JSON
//   bench --page ...                                    what docs/performance.md tells below its marker
//   bench --csv=FILE ...                                all ratios, for programs
//   bench --limits ...                                  the limits alone; fails where one is missed
//   bench --peers                                       who is compared, without any timing
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "bench/compare.h"
#include "bench/report.h"

namespace {

using bench::Comparison;
using bench::Finding;
using bench::Set;

std::vector<Finding> findings;
bool faulty = false;

void compare(benchmark::State& state, const grid::Family& family, int width, Set set) {
    Comparison comparison(family, width, set);
    if (!comparison.fault().empty()) {
        faulty = true;
        state.SkipWithError(comparison.fault().c_str());
        return;
    }
    while (state.KeepRunning()) state.SetIterationTime(comparison.round());
    findings.push_back({&family, width, set, comparison.times(), comparison.fastest_rival(), comparison.dismissed()});
    for (const auto& [column, time] : comparison.times())
        if (column != bench::ours) state.counters[column] = findings.back().ratio(column);
    std::string label;
    for (const std::string& peer : comparison.dismissed()) label += (label.empty() ? "wrong: " : ", ") + peer;
    state.SetLabel(label);
}

// Says nothing but faults: the tables are printed from the findings.
class Silent : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.error_occurred)
                std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
    }
};

// A line for each family: who is timed beside it at width 4, who is not as its answers are wrong.
void print_peers() {
    for (const grid::Family& family : grid::families()) {
        Comparison comparison(family, 4, Set::in_range);
        comparison.round();
        std::printf("%s:", family.name.c_str());
        for (const auto& [column, time] : comparison.times()) std::printf(" %s", column.c_str());
        for (const std::string& peer : comparison.dismissed()) std::printf("; wrong: %s", peer.c_str());
        std::printf("%s\n", comparison.fault().c_str());
    }
}

// The C library picks its functions by the processor at hand, and takes fused or wider instructions where it finds
// them. The target has none, so it is asked, once and before it starts, to do without.
void keep_to_target(char** argv) {
    if (std::getenv("GLIBC_TUNABLES")) return;
    setenv("GLIBC_TUNABLES", "glibc.cpu.hwcaps=-FMA,-FMA4,-AVX2,-AVX", 1);
    execv("/proc/self/exe", argv);
    std::fprintf(stderr, "The C library may use instructions beyond the target: it could not be started anew.\n");
}

}  // namespace

int main(int argc, char** argv) {
    keep_to_target(argv);
    bool page = false, only_limits = false, peers = false;
    std::string csv;
    int rounds = 151;
    int kept = 1;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--page") == 0)
            page = true;
        else if (std::strcmp(argv[i], "--limits") == 0)
            only_limits = true;
        else if (std::strcmp(argv[i], "--peers") == 0)
            peers = true;
        else if (std::strncmp(argv[i], "--csv=", 6) == 0)
            csv = argv[i] + 6;
        else if (std::strncmp(argv[i], "--rounds=", 9) == 0)
            rounds = std::atoi(argv[i] + 9);
        else
            argv[kept++] = argv[i];
    }
    argc = kept;
    benchmark::Initialize(&argc, argv);
    if (rounds < 1 || benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    if (peers) {
        print_peers();
        return 0;
    }

    for (const grid::Family& family : grid::families())
        for (Set set : bench::every_set)
            for (int width : grid::widths) {
                if (!bench::has_set(family, set)) continue;
                if (only_limits && !bench::is_needed_for_limits(family, width, set)) continue;
                std::string name = family.name + "/" + std::to_string(width) + "/" + bench::name_of(set);
                benchmark::RegisterBenchmark(
                    name.c_str(),
                    [&family, width, set](benchmark::State& state) { compare(state, family, width, set); })
                    ->Iterations(rounds)
                    ->UseManualTime()
                    ->Unit(benchmark::kMicrosecond);
            }

    bool met = true;
    if (page || only_limits || !csv.empty()) {
        Silent silent;
        benchmark::RunSpecifiedBenchmarks(&silent);
        if (page) bench::print_page(stdout, findings);
        if (only_limits) met = bench::print_limits(stdout, findings);
        if (!csv.empty()) {
            std::FILE* file = std::fopen(csv.c_str(), "w");
            if (!file) {
                std::perror(csv.c_str());
                return 2;
            }
            bench::print_csv(file, findings);
            std::fclose(file);
        }
    } else {
        benchmark::RunSpecifiedBenchmarks();
    }
    benchmark::Shutdown();
    return faulty || !met ? 1 : 0;
}
