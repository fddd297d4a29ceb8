// What the comparisons have found, as the table of docs/performance.md, as limits and goals, as CSV.
#pragma once

#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "bench/operands.h"
#include "tools/calls.h"

namespace bench {

struct Finding {
    const grid::Family* family;
    int width;
    Set set;
    std::map<std::string, double> times;  // by column, in seconds for a pass
    std::string rival;                    // the column of the fastest peer of 4 ulp at most
    std::vector<std::string> dismissed;

    // How many times as long as ours the column takes; 0 where it has not been timed.
    double ratio(const std::string& column) const;
};

// Limits are held: the command fails where one is missed. They are by group: the median family's export of 16 lanes
// takes at most 15 % longer than what it is made of, its guarded floor and a bare call. A bare call is what the export
// that does the least on lanes as wide takes over its own floor: vectors of 64 or 128 bytes go through memory both
// ways. Single families vary by more than that from run to run where they are short; the group's furthest is told.
//
// Goals are told: an accurate family at widths 4 and 16 beside the fastest peer of 4 ulp at most, a native one at
// width 16 beside its accurate class, a long path beside the same peers.
inline constexpr double over_parts = 1.15;
inline constexpr double goal_beside_rival = 1.3, goal_of_native = 1.15, goal_of_long_path = 2;
bool is_needed_for_limits(const grid::Family& family, int width, Set set);

// A row for each limit; whether all are met.
bool print_limits(std::FILE* file, const std::vector<Finding>& findings);
// Machine and versions, a summary, the families' tables, then limits and goals.
void print_page(std::FILE* file, const std::vector<Finding>& findings);
void print_csv(std::FILE* file, const std::vector<Finding>& findings);

}  // namespace bench
