#include "bench/report.h"

#include <gnu/libc-version.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <set>

#include "bench/compare.h"
#include "tools/ranges.h"
#ifdef HAVE_SLEEF
#include <sleef.h>
#endif
#ifdef HAVE_XSIMD
#include <xsimd/config/xsimd_config.hpp>
#endif

namespace bench {
namespace {

const Finding* find(const std::vector<Finding>& findings, const grid::Family& family, int width, Set set) {
    for (const Finding& finding : findings)
        if (finding.family == &family && finding.width == width && finding.set == set) return &finding;
    return nullptr;
}

std::string title_of(const std::string& column) {
    static const std::map<std::string, std::string> titles = {
        {"c", "C"},         {"sleef", "SLEEF"},         {"sleef_u05", "SLEEF u05"}, {"sleef_u10", "SLEEF u10"},
        {"xsimd", "xsimd"}, {"sleef_u15", "SLEEF u15"}, {"sleef_u35", "SLEEF u35"}};
    auto found = titles.find(column);
    return found == titles.end() ? column : found->second;
}

std::string digits(double ratio) {
    if (ratio == 0) return "";
    char text[32];
    std::snprintf(text, sizeof text, "%.*f", ratio < 9.95 ? 2 : ratio < 99.5 ? 1 : 0, ratio);
    return text;
}

// Times as long as its floor; 0 where the floor has not been timed.
double over_its_floor(const Finding& finding) {
    double ratio = finding.ratio(floor_column);
    return ratio == 0 ? 0 : 1 / ratio;
}

std::string processor() {
    std::ifstream information("/proc/cpuinfo");
    for (std::string line; std::getline(information, line);)
        if (line.starts_with("model name")) return line.substr(line.find(':') + 2);
    return "an unknown processor";
}

void print_versions(std::FILE* file) {
    std::fprintf(file,
                 "\nMeasured on %s, in 32-bit code. Compiler of the library, of the loops and of what is inlined into "
                 "them: clang %d.%d.%d.\nPeers: GNU C library %s",
                 processor().c_str(), __clang_major__, __clang_minor__, __clang_patchlevel__, gnu_get_libc_version());
#ifdef HAVE_SLEEF
    std::fprintf(file, ", SLEEF %d.%d.%d", SLEEF_VERSION_MAJOR, SLEEF_VERSION_MINOR, SLEEF_VERSION_PATCHLEVEL);
#endif
#ifdef HAVE_XSIMD
    std::fprintf(file, ", xsimd %d.%d.%d", XSIMD_VERSION_MAJOR, XSIMD_VERSION_MINOR, XSIMD_VERSION_PATCH);
#endif
    std::fprintf(file, ".\n");
}

// A line for each operation: the fastest peer's time over ours in each precision and class, and the medians.
void print_summary(std::FILE* file, const std::vector<Finding>& findings) {
    std::vector<std::string> bases;
    std::map<std::string, std::array<double, 4>> ratios;
    std::array<std::vector<double>, 4> columns;
    for (const Finding& finding : findings) {
        const grid::Family& family = *finding.family;
        double ratio = finding.ratio(finding.rival);
        if (finding.width != 16 || finding.set != Set::in_range || ratio == 0) continue;
        size_t column = (family.is_native ? 2u : 0u) + (family.is_single ? 0u : 1u);
        if (!ratios.contains(family.base)) bases.push_back(family.base);
        ratios[family.base][column] = ratio;
        columns[column].push_back(ratio);
    }
    std::fprintf(file, "\n## Summary\n\nThe fastest peer within 4 ulp, 16 lanes, operands in range.\n\n"
                       "| operation | float | double | float, native | double, native |\n|---|--:|--:|--:|--:|\n");
    auto row = [&](const std::string& name, const std::array<double, 4>& cells) {
        std::fprintf(file, "| %s |", name.c_str());
        for (double cell : cells) std::fprintf(file, " %s |", digits(cell).c_str());
        std::fprintf(file, "\n");
    };
    std::array<double, 4> medians = {};
    for (size_t i = 0; i < medians.size(); ++i) {
        if (columns[i].empty()) continue;
        auto middle = columns[i].begin() + static_cast<std::ptrdiff_t>(columns[i].size() / 2);
        std::ranges::nth_element(columns[i], middle);
        medians[i] = *middle;
    }
    row("*median*", medians);
    for (const std::string& base : bases) row("`" + base + "`", ratios[base]);
}

struct Goal {
    std::string what;  // family, width, operands, column
    double wanted, measured;
};

std::vector<Goal> goals_of(const std::vector<Finding>& findings) {
    std::vector<Goal> goals;
    for (const Finding& finding : findings) {
        const grid::Family& family = *finding.family;
        auto add = [&](const std::string& column, double wanted) {
            if (double measured = finding.ratio(column); measured != 0)
                goals.push_back({"`" + family.name + "`, " + std::to_string(finding.width) + " lanes" +
                                     (finding.set == Set::long_path ? ", long path" : "") + ": " + title_of(column),
                                 wanted, measured});
        };
        if (finding.width != 4 && finding.width != 16) continue;
        if (finding.set == Set::in_range && !family.is_native) add(finding.rival, goal_beside_rival);
        if (finding.set == Set::long_path && !family.is_native) add(finding.rival, goal_of_long_path);
        if (finding.set == Set::in_range && family.is_native && finding.width == 16) add("accurate", goal_of_native);
    }
    return goals;
}

}  // namespace

double Finding::ratio(const std::string& column) const {
    auto found = times.find(column);
    return found == times.end() ? 0 : found->second / times.at(ours);
}

bool is_needed_for_limits(const grid::Family& family, int width, Set set) {
    return width == 16 && set == Set::in_range && !family.is(grid::all_rare);
}

bool print_limits(std::FILE* file, const std::vector<Finding>& findings) {
    bool all_met = true;
    std::fprintf(file, "| group | limit | median | furthest |\n|---|--:|--:|---|\n");
    for (const accuracy::Group& group : accuracy::groups()) {
        std::vector<std::pair<double, std::string>> times;  // over guarded floor and bare call
        for (const Finding& finding : findings) {
            if (!is_needed_for_limits(*finding.family, finding.width, finding.set)) continue;
            if (accuracy::group_of(*finding.family).folder != group.folder) continue;
            auto floor = finding.times.find(guarded_floor);
            if (floor == finding.times.end()) continue;  // its operands in range are not all the main path's
            double call_cost = std::max(0.0, finding.times.at(call) - finding.times.at(call_floor));
            times.emplace_back(finding.times.at(ours) / (floor->second + call_cost), finding.family->name);
        }
        if (times.empty()) continue;
        std::ranges::sort(times);
        double median = times[times.size() / 2].first;
        all_met = all_met && median <= over_parts;
        std::fprintf(file, "| %.*s | %.2f | %.2f%s | %.2f, `%s` |\n", static_cast<int>(group.title.size()),
                     group.title.data(), over_parts, median, median <= over_parts ? "" : ", MISSED", times.back().first,
                     times.back().second.c_str());
    }
    return all_met;
}

void print_page(std::FILE* file, const std::vector<Finding>& findings) {
    print_versions(file);
    print_summary(file, findings);
    for (const accuracy::Group& group : accuracy::groups()) {
        bool begun = false;
        for (const grid::Family& family : grid::families()) {
            if (accuracy::group_of(family).folder != group.folder) continue;
            const Finding* four = find(findings, family, 4, Set::in_range);
            const Finding* sixteen = find(findings, family, 16, Set::in_range);
            if (!four || !sixteen) continue;
            if (!begun)
                std::fprintf(file,
                             "\n## %.*s\n\n| family | fastest peer within 4 ulp | 4 lanes | 16 lanes | "
                             "its accurate class, 16 lanes | over its floor, 16 lanes |\n|---|---|--:|--:|--:|--:|\n",
                             static_cast<int>(group.title.size()), group.title.data());
            begun = true;
            std::string rivals = title_of(four->rival);
            if (sixteen->rival != four->rival) rivals += ", " + title_of(sixteen->rival);
            std::fprintf(file, "| `%s` | %s | %s | %s | %s | %s |\n", family.name.c_str(), rivals.c_str(),
                         digits(four->ratio(four->rival)).c_str(), digits(sixteen->ratio(sixteen->rival)).c_str(),
                         digits(sixteen->ratio("accurate")).c_str(), digits(over_its_floor(*sixteen)).c_str());
        }
    }
    std::fprintf(file, "\n## Limits\n\n");
    print_limits(file, findings);
    std::vector<Goal> goals = goals_of(findings);
    auto reached = std::ranges::count_if(goals, [](const Goal& goal) { return goal.measured >= goal.wanted; });
    std::fprintf(file, "\n## Goals\n\n%d of %d goals are reached. The others:\n\n", static_cast<int>(reached),
                 static_cast<int>(goals.size()));
    std::fprintf(file, "| beside | goal | measured |\n|---|--:|--:|\n");
    for (const Goal& goal : goals)
        if (goal.measured < goal.wanted)
            std::fprintf(file, "| %s | %s | %s |\n", goal.what.c_str(), digits(goal.wanted).c_str(),
                         digits(goal.measured).c_str());
}

void print_csv(std::FILE* file, const std::vector<Finding>& findings) {
    std::set<std::string> columns;
    for (const Finding& finding : findings)
        for (const auto& [column, time] : finding.times)
            if (column != ours) columns.insert(column);
    std::fprintf(file, "family,group,precision,class,signature,width,operands,nanoseconds,fastest,fastest_sleef");
    for (const std::string& column : columns) std::fprintf(file, ",%s", column.c_str());
    std::fprintf(file, "\n");
    for (const Finding& finding : findings) {
        const grid::Family& family = *finding.family;
        double sleef = 0;  // the fastest of its classes within 4 ulp
        for (const std::string& column : columns)
            if (double ratio = finding.ratio(column); column.starts_with("sleef") && column != "sleef_u3500" && ratio)
                sleef = sleef == 0 ? ratio : std::min(sleef, ratio);
        auto cell = [&](double ratio) { std::fprintf(file, ratio == 0 ? "," : ",%.4g", ratio); };
        std::fprintf(file, "%s,%.*s,%s,%s,%s,%d,%s,%.4g", family.name.c_str(),
                     static_cast<int>(accuracy::group_of(family).folder.size()),
                     accuracy::group_of(family).folder.data(), family.is_single ? "float" : "double",
                     family.is_native ? "native" : "accurate", family.signature.c_str(), finding.width,
                     name_of(finding.set),
                     finding.times.at(ours) * 1e9 / static_cast<double>(elements) *
                         static_cast<double>(grid::room(finding.width)));
        cell(finding.ratio(finding.rival));
        cell(sleef);
        for (const std::string& column : columns) cell(finding.ratio(column));
        std::fprintf(file, "\n");
    }
}

}  // namespace bench
