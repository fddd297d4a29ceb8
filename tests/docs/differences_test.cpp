// The tables of docs/differences.md, replayed: what the page says of this library is so, and is a difference.
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "tests/harness/lanes.h"

namespace {

// A row of the page: | `family` | operands | the built-in | here | because |
struct Difference {
    std::string family, operands, built_in, here;
};

std::vector<Difference> differences() {
    std::ifstream page(ZORV_DOCS_DIRECTORY "/differences.md");
    std::vector<Difference> rows;
    for (std::string line; std::getline(page, line);) {
        if (!line.starts_with("| `")) continue;
        std::erase(line, '`');
        std::istringstream cells(line.substr(1));
        Difference row;
        for (std::string* cell : {&row.family, &row.operands, &row.built_in, &row.here})
            std::getline(cells, *cell, '|');
        std::erase(row.family, ' ');
        rows.push_back(row);
    }
    return rows;
}

uint64_t pattern_of(const std::string& number, grid::Lane lane) {
    switch (lane) {
        case grid::Lane::f32:
            return harness::pattern(std::strtof(number.c_str(), nullptr));
        case grid::Lane::f64:
            return harness::pattern(std::strtod(number.c_str(), nullptr));
        default:
            return std::strtoull(number.c_str(), nullptr, 10);
    }
}

// "-0, 2" as patterns of these lanes. As a result, a NaN is any NaN.
std::vector<uint64_t> patterns_of(const std::string& list, const std::vector<grid::Lane>& lanes, bool results) {
    std::vector<uint64_t> patterns;
    std::istringstream numbers(list);
    for (std::string number; std::getline(numbers, number, ',');) {
        if (patterns.size() == lanes.size()) break;
        uint64_t bits = pattern_of(number, lanes[patterns.size()]);
        patterns.push_back(results && harness::is_nan(lanes[patterns.size()], bits) ? harness::any_nan : bits);
    }
    EXPECT_EQ(lanes.size(), patterns.size()) << list;
    return patterns;
}

// The cell of the operands may end in "beside" a neighbour, or in "at widths" and a list.
std::string cut_off(std::string& cell, const std::string& word) {
    size_t at = cell.find(word);
    if (at == std::string::npos) return {};
    std::string rest = cell.substr(at + word.size());
    cell.erase(at);
    return rest;
}

TEST(Differences, AreAsThePageTells) {
    auto rows = differences();
    EXPECT_LT(20u, rows.size());
    for (Difference row : rows) {
        SCOPED_TRACE(row.family + row.operands);
        const grid::Family* family = grid::find(row.family);
        ASSERT_NE(nullptr, family) << "does not stand";
        std::string neighbour = cut_off(row.operands, "beside"), width_list = cut_off(row.operands, "at widths");
        auto operands = patterns_of(row.operands, family->operands, false);
        auto built_in = patterns_of(row.built_in, family->results, true);
        auto here = patterns_of(row.here, family->results, true);
        EXPECT_NE(built_in, here) << "is no difference";

        std::vector<int> widths(grid::widths.begin(), grid::widths.end());
        if (!width_list.empty()) {
            widths.clear();
            std::istringstream list(width_list);
            for (std::string width; std::getline(list, width, ',');) widths.push_back(std::stoi(width));
        }
        if (neighbour.empty()) {
            harness::expect_rows(row.family, {{operands, here}}, widths);
            continue;
        }
        auto beside = patterns_of(neighbour, family->operands, false);
        for (int width : {2, 3, 4, 8, 16}) {
            std::vector<harness::Patterns> lanes;
            for (size_t i = 0; i < operands.size(); ++i) {
                lanes.emplace_back(static_cast<size_t>(grid::room(width)), operands[i]);
                lanes[i][1] = beside[i];
            }
            auto results = harness::call(*family, width, lanes);
            for (size_t i = 0; i < here.size(); ++i) EXPECT_EQ(here[i], results[i][0]) << family->export_name(width);
        }
    }
}

}  // namespace
