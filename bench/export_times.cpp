// Answers how long this library's exports take, as bench/asking.h asks. Built for both targets; for x86-64 also with
// the exports of the bitcode inlined in the loops.
#include <algorithm>
#include <chrono>

#include "bench/asking.h"
#include "bench/operands.h"

namespace {

constexpr double stretch = 100e-6;

double seconds_of(bench::Pass pass, const bench::Arrays& arrays, int repeats) {
    auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < repeats; ++i) pass(arrays);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count() / repeats;
}

bench::Measure begin(const grid::Family& family, int width) {
    auto index = static_cast<size_t>(&family - grid::families().data());
    auto column = static_cast<size_t>(std::ranges::find(grid::widths, width) - grid::widths.begin());
    bench::Pass pass = bench::export_passes()[index][column];
    auto workload = std::make_shared<bench::Workload>(family, bench::Set::in_range);
    double best = 1;
    for (int i = 0; i < 5; ++i) best = std::min(best, seconds_of(pass, workload->arrays(), 1));
    int repeats = std::max(1, static_cast<int>(stretch / best));
    return [=] {
        return bench::Answer{.seconds = seconds_of(pass, workload->arrays(), repeats) / bench::elements, .error = -1};
    };
}

}  // namespace

int main() { bench::answer_questions(begin); }
