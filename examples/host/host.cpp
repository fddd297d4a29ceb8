#include "host/host.h"

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace {

thread_local size_t work_item = 0;

double in_last_places(long double value, long double exact, int digits, int lowest_exponent) {
    if (value == exact || (std::isnan(value) && std::isnan(exact))) return 0;
    if (!std::isfinite(value) || !std::isfinite(exact)) return HUGE_VAL;
    int exponent = exact == 0 ? lowest_exponent : std::max(std::ilogb(exact), lowest_exponent);
    return static_cast<double>(std::fabs(value - exact) / std::ldexp(1.0L, exponent - digits + 1));
}

}  // namespace

size_t get_global_id(unsigned dimension) { return dimension == 0 ? work_item : 0; }

namespace host {

void run(size_t work_items, const std::function<void()>& body) {
    for (work_item = 0; work_item < work_items; ++work_item) body();
}

std::vector<std::vector<double>> read_table(const std::string& path, size_t columns) {
    std::ifstream file(path);
    if (!file) {
        std::fprintf(stderr, "cannot read %s\n", path.c_str());
        std::exit(1);
    }
    std::vector<std::vector<double>> table;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        std::istringstream words(line.substr(0, line.find('#')));
        std::vector<double> row;
        for (std::string word; words >> word;) {
            char* end = nullptr;
            row.push_back(std::strtod(word.c_str(), &end));
            if (*end != '\0') row.resize(columns + 1);  // not a number: a row that cannot be right
        }
        if (row.empty()) continue;
        if (row.size() != columns) {
            std::fprintf(stderr, "%s:%d: %zu numbers expected\n", path.c_str(), number, columns);
            std::exit(1);
        }
        table.push_back(row);
    }
    if (table.empty()) {
        std::fprintf(stderr, "%s holds no numbers\n", path.c_str());
        std::exit(1);
    }
    return table;
}

double ulps(float value, long double exact) { return in_last_places(value, exact, FLT_MANT_DIG, FLT_MIN_EXP - 1); }
double ulps(double value, long double exact) { return in_last_places(value, exact, DBL_MANT_DIG, DBL_MIN_EXP - 1); }

double Worst::add(double error) {
    worst_ = std::max(worst_, error);
    return error;
}

bool Worst::report() const {
    bool good = worst_ <= allowed_;
    std::printf("  %-40s worst error %9.4g %s, at most %.4g allowed: %s\n", what_.c_str(), worst_, unit_.c_str(),
                allowed_, good ? "good" : "WRONG");
    return good;
}

}  // namespace host
