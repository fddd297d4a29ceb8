// The same export on both targets, called and inlined: a table in Markdown of how many times as long the 32-bit one
// takes, each family at 4 and 16 lanes.
//
//   targets <export_times of i386> <of x86-64> <inlined, x86-64> <inlined, x86-64-v3> [--rounds=N] [family...]
//
// The four programs are asked in turns. The second one is asked twice: started by the loader's name it lies near the
// library, as the kernels of a run-time do; started as usual it lies more than 4 GB away, which makes a call longer.
#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <tuple>

#include "bench/asking.h"

namespace {

constexpr int widths[] = {4, 16};
// Programs are started anew this often: where the loader puts a program decides which branches and lines of the caches
// are in each other's way, for as long as it runs.
constexpr int starts = 15;
constexpr const char* columns[] = {"called", "from afar", "inlined", "inlined, v3"};

struct Ratios {
    std::vector<double> all;
    size_t below(double limit) const {
        return static_cast<size_t>(std::ranges::count_if(all, [limit](double ratio) { return ratio < limit; }));
    }
};

// The time of a family at a width in each program, of every start.
using Times = std::map<std::tuple<std::string, int, size_t>, std::vector<double>>;

bool is_chosen(const grid::Family& family, const std::vector<std::string>& chosen) {
    return chosen.empty() || std::ranges::count(chosen, family.name) != 0;
}

void measure(const std::vector<std::string>& programs, const std::vector<std::string>& chosen, int rounds,
             Times& times) {
    const std::vector<std::vector<std::string>> commands = {
        {programs[0]}, {"/lib64/ld-linux-x86-64.so.2", programs[1]}, {programs[1]}, {programs[2]}, {programs[3]}};
    std::vector<std::unique_ptr<bench::Process>> processes;
    std::vector<bench::Process*> asked;
    for (const std::vector<std::string>& command : commands)
        asked.push_back(processes.emplace_back(std::make_unique<bench::Process>(command)).get());
    for (const grid::Family& family : grid::families()) {
        if (!is_chosen(family, chosen)) continue;
        for (int width : widths) {
            std::vector<bench::Answer> answers = bench::ask_in_turns(asked, family.name, width, rounds);
            for (size_t i = 0; i < answers.size(); ++i) times[{family.name, width, i}].push_back(answers[i].seconds);
        }
    }
}

}  // namespace

int main(int count, char** arguments) {
    std::vector<std::string> programs, chosen;
    int rounds = 5;
    for (int i = 1; i < count; ++i) {
        if (std::strncmp(arguments[i], "--rounds=", 9) == 0)
            rounds = std::atoi(arguments[i] + 9);
        else
            (programs.size() < 4 ? programs : chosen).push_back(arguments[i]);
    }
    if (programs.size() < 4) {
        std::fprintf(stderr, "targets: which programs? See the top of bench/targets.cpp.\n");
        return 2;
    }
    Times times;
    for (int start = 0; start < starts; ++start) measure(programs, chosen, rounds, times);

    Ratios ratios[std::size(widths)][std::size(columns)];
    std::string rows;
    for (const grid::Family& family : grid::families()) {
        if (!is_chosen(family, chosen)) continue;
        rows += "| `" + family.name + "` |";
        for (size_t w = 0; w < std::size(widths); ++w) {
            auto time = [&](size_t program) { return bench::median(times[{family.name, widths[w], program}]); };
            for (size_t c = 0; c < std::size(columns); ++c) {
                double ratio = time(0) / time(c + 1);
                ratios[w][c].all.push_back(ratio);
                char text[16];
                std::snprintf(text, sizeof text, " %.2f |", ratio);
                rows += text;
            }
        }
        rows += "\n";
    }

    std::printf("\n## All families together\n\n"
                "| | median ratio | families below 0.95 | below 1 | below 1.2 |\n|---|--:|--:|--:|--:|\n");
    for (size_t w = 0; w < std::size(widths); ++w)
        for (size_t c = 0; c < std::size(columns); ++c)
            std::printf("| %d lanes, %s | %.2f | %zu | %zu | %zu |\n", widths[w], columns[c],
                        bench::median(ratios[w][c].all), ratios[w][c].below(0.95), ratios[w][c].below(1),
                        ratios[w][c].below(1.2));
    std::printf("\n## Each family\n\n| family |");
    for (int width : widths)
        for (const char* column : columns) std::printf(" %d lanes, %s |", width, column);
    std::printf("\n|---|--:|--:|--:|--:|--:|--:|--:|--:|\n%s", rows.c_str());
}
