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

// Limits are held: the command fails where one is missed. An export of 16 lanes takes at most 1.3 times as long as what
// it is made of: its guarded floor and a bare call. A bare call is what the export that does the least on lanes as wide
// takes over its own floor: vectors of 64 or 128 bytes go through memory both ways. Exact operations have no limit:
// most are over before their operands have been carried, and what is measured is the carrying.
//
// Goals are told: an accurate family at widths 4 and 16 beside the fastest peer of 4 ulp at most, a native one at
// width 16 beside its accurate class, a long path beside the same peers; and every export of 16 lanes within 15 % of
// its floor, without guard and call, which none but the longer main paths can reach.
inline constexpr double over_parts = 1.3;
inline constexpr double goal_beside_rival = 1.3, goal_of_native = 1.15, goal_of_long_path = 2, goal_over_floor = 1.15;
bool is_needed_for_limits(const grid::Family& family, int width, Set set);

// A line for each limit that is missed and a count; whether all are met.
bool print_limits(std::FILE* file, const std::vector<Finding>& findings);
// Machine and versions, a summary, the families' tables, then limits and goals.
void print_page(std::FILE* file, const std::vector<Finding>& findings);
void print_csv(std::FILE* file, const std::vector<Finding>& findings);

}  // namespace bench
