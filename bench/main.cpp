// Google Benchmark's program over all comparisons: one benchmark for each family, width and set of operands, named
// family/width/set. An iteration is one round of the comparison; the counters are the ratios of the others' times
// to ours.
//
//   bench [--rounds=N] [options of Google Benchmark]    everything, on the console or as JSON
//   bench --table ...                                   the ratio tables of docs/performance.md
//   bench --limits ...                                  the limits of bench/limits.def; fails where one is missed
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "bench/compare.h"

namespace {

using bench::Comparison;
using bench::Set;

// What a comparison has found, for the tables.
struct Finding {
    std::string family;
    int width;
    Set set;
    std::map<std::string, double> ratios;
    std::string rival;
    std::vector<std::string> dismissed;
};
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
    for (const auto& [column, ratio] : comparison.ratios())
        if (column != bench::ours) state.counters[column] = ratio;
    std::string label;
    for (const std::string& peer : comparison.dismissed()) label += (label.empty() ? "wrong: " : ", ") + peer;
    state.SetLabel(label);
    findings.push_back(
        {family.name, width, set, comparison.ratios(), comparison.fastest_rival(), comparison.dismissed()});
}

struct Limit {
    std::string family;
    int width;
    Set set;
    std::string column;
    double least;
};
const std::vector<Limit>& limits() {
    static const std::vector<Limit> list = {
#define LIMIT(family, width, set, column, least) {#family, width, Set::set, #column, least},
#include "bench/limits.def"
    };
    return list;
}

// Says nothing: the tables are printed from the findings.
class Silent : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.error_occurred)
                std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
    }
};

struct Column {
    const char* name;
    const char* title;
};
const Column columns[] = {{"c", "C, scalar"},
                          {"sleef", "SLEEF"},
                          {"sleef_u05", "SLEEF u05"},
                          {"sleef_u10", "SLEEF u10"},
                          {"sleef_u35", "SLEEF u35"},
                          {"xsimd", "xsimd"},
                          {"hardware", "hardware, inlined"},
                          {"by_hand", "by hand"},
                          {"accurate", "accurate class"},
                          {"sin", "sine alone"},
                          {"clean", "clean operands"}};

const char* title_of(Set set) {
    switch (set) {
        case Set::in_range:
            return "In range";
        case Set::one_rare_in_64:
            return "One rare lane in 64";
        case Set::all_rare:
            return "All lanes rare";
        case Set::long_path:
            return "Long path";
    }
    return "";
}

void print_table(Set set) {
    std::set<std::string> used;
    for (const Finding& finding : findings)
        if (finding.set == set)
            for (const auto& [column, ratio] : finding.ratios) used.insert(column);
    if (used.empty()) return;

    std::printf("## %s\n\n| family | width |", title_of(set));
    for (const Column& column : columns)
        if (used.count(column.name)) std::printf(" %s |", column.title);
    std::printf("\n|---|--:|");
    for (const Column& column : columns)
        if (used.count(column.name)) std::printf("--:|");
    std::printf("\n");
    for (const Finding& finding : findings) {
        if (finding.set != set) continue;
        std::printf("| `%s` | %d |", finding.family.c_str(), finding.width);
        for (const Column& column : columns) {
            if (!used.count(column.name)) continue;
            auto found = finding.ratios.find(column.name);
            if (found == finding.ratios.end()) {
                bool wrong = false;
                for (const std::string& peer : finding.dismissed)
                    wrong |= peer.rfind(std::string(column.name) + " (", 0) == 0;
                std::printf(wrong ? " wrong |" : " |");
            } else {
                std::printf(" %.*f |", found->second < 9.95 ? 2 : found->second < 99.5 ? 1 : 0, found->second);
            }
        }
        std::printf("\n");
    }
    std::printf("\n");
}

bool print_limits() {
    bool met = true;
    std::printf("## Limits\n\n| family | width | operands | against | least ratio | measured | |\n");
    std::printf("|---|--:|---|---|--:|--:|---|\n");
    for (const Limit& limit : limits())
        for (const Finding& finding : findings) {
            if (finding.family != limit.family || finding.width != limit.width || finding.set != limit.set) continue;
            std::string column = limit.column == "rival" ? finding.rival : limit.column;
            auto found = finding.ratios.find(column);
            bool is_met = found != finding.ratios.end() && found->second >= limit.least;
            met = met && is_met;
            std::printf("| `%s` | %d | %s | %s | %.2f | ", limit.family.c_str(), limit.width, bench::name_of(limit.set),
                        column.empty() ? "no rival" : column.c_str(), limit.least);
            if (found == finding.ratios.end())
                std::printf("not measured | MISSED |\n");
            else
                std::printf("%.2f | %s |\n", found->second, is_met ? "met" : "MISSED");
        }
    std::printf("\n");
    return met;
}

bool is_limited(const std::string& family, int width, Set set) {
    for (const Limit& limit : limits())
        if (limit.family == family && limit.width == width && limit.set == set) return true;
    return false;
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
    bool table = false, only_limits = false;
    int rounds = 151;
    int kept = 1;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--table") == 0)
            table = true;
        else if (std::strcmp(argv[i], "--limits") == 0)
            only_limits = true;
        else if (std::strncmp(argv[i], "--rounds=", 9) == 0)
            rounds = std::atoi(argv[i] + 9);
        else
            argv[kept++] = argv[i];
    }
    argc = kept;
    benchmark::Initialize(&argc, argv);
    if (rounds < 1 || benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;

    for (const grid::Family& family : grid::families())
        for (Set set : bench::every_set)
            for (int width : grid::widths) {
                if (only_limits ? !is_limited(family.name, width, set) : !bench::has_set(family, set)) continue;
                std::string name = family.name + "/" + std::to_string(width) + "/" + bench::name_of(set);
                benchmark::RegisterBenchmark(
                    name.c_str(),
                    [&family, width, set](benchmark::State& state) { compare(state, family, width, set); })
                    ->Iterations(rounds)
                    ->UseManualTime()
                    ->Unit(benchmark::kMicrosecond);
            }

    bool met = true;
    if (table || only_limits) {
        Silent silent;
        benchmark::RunSpecifiedBenchmarks(&silent);
        if (table)
            for (Set set : bench::every_set) print_table(set);
        if (only_limits) met = print_limits();
    } else {
        benchmark::RunSpecifiedBenchmarks();
    }
    benchmark::Shutdown();
    return faulty || !met ? 1 : 0;
}
