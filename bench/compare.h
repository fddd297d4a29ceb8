// One comparison: everybody who can do a family's work at one width on one set of operands, checked, then timed in
// turns.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "bench/answers.h"
#include "bench/candidates.h"
#include "bench/operands.h"

namespace bench {

// Columns that are no peers: this library's own export; the loop over its main path, without and with its guard; an
// export that computes next to nothing, and its own floor: what those two are apart is the cost of a call.
inline constexpr const char *ours = "ours", *floor_column = "floor", *guarded_floor = "guarded_floor", *call = "call",
                            *call_floor = "call_floor";

class Comparison {
  public:
    Comparison(const grid::Family& family, int width, Set set);

    // What keeps the family from being timed at all: its own wrong answers, or no reference. Empty if nothing.
    const std::string& fault() const { return fault_; }
    // Peers whose answers are wrong on these operands, and by how much.
    const std::vector<std::string>& dismissed() const { return dismissed_; }

    // Every candidate once, for a stretch of about 100 microseconds each; the time of ours, in seconds.
    double round();
    // After the rounds: the median time of each candidate, in seconds for a pass.
    std::map<std::string, double> times() const;
    // The column of the fastest peer with an error of 4 ulp at most; empty without one.
    std::string fastest_rival() const;

  private:
    struct Candidate {
        std::string column;
        Pass pass;
        bool is_rival;
        const Workload* workload;
        int repeats;
        std::vector<double> times;  // of one pass
    };
    void add(const std::string& column, Pass pass, bool is_rival, const Workload& workload);
    void calibrate();

    Workload workload_, clean_;
    const Answers* answers_;
    std::string fault_;
    std::vector<std::string> dismissed_;
    std::vector<Candidate> candidates_;  // ours first
    size_t rounds_ = 0;
};

}  // namespace bench
