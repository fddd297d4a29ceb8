// Measures the error of families against MPFR.
//
//   accuracy sinf                          all ranges of sinf: every float, or a million random operands
//   accuracy --all --jobs 2                every family that stands
//   accuracy expf --range main --exhaustive
//   accuracy sinf --neighbour 1e20 --width 8
//
//   --range NAME       that range alone
//   --random N         N random operands for each range, and the neighbourhood of the worst
//   --exhaustive       every number of the range (families of one float operand)
//   --width W          the width to call; 16 by default
//   --neighbour VALUE  what the last lane of every vector holds
//   --jobs N           threads
//   --worst DIR        begin from the worst operands in DIR, and write back the worst found
//   --markdown FILE    replace the families' rows in the tables of FILE
//   --picture DIR      draw accuracy-<family>.svg: the error over the operand, range by range (gnuplot)
//
// Prints for each range the largest error, the operands and the result there. Every figure is MPFR's; a fixed seed
// makes a run repeatable. Fails where a bound of the grid does not hold.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "tools/accuracy_sweep.h"

namespace {

using accuracy::Finding;
using accuracy::Range;

struct Arguments {
    std::vector<const grid::Family*> families;
    std::string range, worst, markdown, picture;
    uint64_t random = 0;
    bool exhaustive = false;
    std::optional<double> neighbour;
    accuracy::Options options;
};

[[noreturn]] void stop(const std::string& why) {
    std::fprintf(stderr, "accuracy: %s\n", why.c_str());
    std::exit(2);
}

Arguments parse(int count, char** words) {
    Arguments arguments;
    for (int i = 1; i < count; ++i) {
        std::string word = words[i];
        auto value = [&] {
            if (++i == count) stop(word + " needs a value");
            return std::string(words[i]);
        };
        if (word == "--all") {
            for (const grid::Family& family : grid::families())
                if (accuracy::has_reference(family)) arguments.families.push_back(&family);
        } else if (word == "--range") {
            arguments.range = value();
        } else if (word == "--random") {
            arguments.random = std::stoull(value());
        } else if (word == "--exhaustive") {
            arguments.exhaustive = true;
        } else if (word == "--width") {
            arguments.options.width = std::stoi(value());
            if (std::ranges::count(grid::widths, arguments.options.width) == 0) stop("no such width");
        } else if (word == "--neighbour") {
            arguments.neighbour = std::stod(value());
        } else if (word == "--jobs") {
            arguments.options.jobs = std::stoi(value());
        } else if (word == "--worst") {
            arguments.worst = value();
        } else if (word == "--markdown") {
            arguments.markdown = value();
        } else if (word == "--picture") {
            arguments.picture = value();
        } else {
            const grid::Family* family = grid::find(word);
            if (!family) stop("no family " + word + " stands");
            if (!accuracy::has_reference(*family)) stop("no reference for " + family->base);
            arguments.families.push_back(family);
        }
    }
    if (arguments.families.empty()) stop("which families? name them, or --all");
    return arguments;
}

struct Measured {
    Range range;
    Finding worst;
    bool exhaustive;
};

std::vector<Measured> measure(const grid::Family& family, const Arguments& arguments) {
    std::vector<accuracy::Place> known;
    if (!arguments.worst.empty()) known = accuracy::read_worst(arguments.worst, family);
    std::vector<Measured> list;
    for (Range range : accuracy::ranges_of(family)) {
        if (!arguments.range.empty() && range.name != arguments.range) continue;
        if (arguments.neighbour && range.width == 1) continue;
        if (arguments.neighbour) range.beside = arguments.neighbour;
        if (range.beside && arguments.options.width == 1) stop("a control value needs a second lane");
        accuracy::Options options = arguments.options;
        for (const accuracy::Place& place : known)
            if (place.range == range.name) options.start = place;
        bool possible = accuracy::can_be_exhaustive(family);
        if (arguments.exhaustive && !possible) stop(family.name + " has too many operands to try them all");
        bool exhaustive = arguments.exhaustive || (possible && !range.sampled && arguments.random == 0);
        uint64_t count = arguments.random ? arguments.random : 1 << 20;
        list.push_back({range,
                        exhaustive ? accuracy::sweep_exhaustive(family, range, options)
                                   : accuracy::sweep_random(family, range, count, true, options),
                        exhaustive});
    }
    if (list.empty()) stop(family.name + " has no range " + arguments.range);
    return list;
}

// ---- What is printed. ----------------------------------------------------------------------------------------

std::string hex(grid::Lane lane, uint64_t bits) {
    char text[64];
    std::snprintf(text, sizeof text, grid::size_of(lane) == 8 ? "0x%016llx" : "0x%08llx",
                  static_cast<unsigned long long>(bits));
    return text;
}
std::string number(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%.9g", value);
    return text;
}
std::string ulps(double error) {
    char text[64];
    std::snprintf(text, sizeof text, error < 100 ? "%.4f" : error < 1e6 ? "%.1f" : "%.3g", error);
    return error == 0 ? "0" : text;
}
std::string operands_text(const grid::Family& family, const Finding& worst) {
    std::string text;
    for (size_t i = 0; i < family.operands.size(); ++i)
        text += (i ? ", " : "") + hex(family.operands[i], worst.operand(i));
    return text;
}
std::string result_text(const grid::Family& family, const Finding& worst) {
    std::string text = hex(family.results[worst.result], worst.value);
    return family.results.size() > 1 && worst.result == 1 ? text + " (second result)" : text;
}

void print(const grid::Family& family, const Measured& row) {
    std::printf("%-18s %-22s %12llu %-10s max %-11s at %s = %s, width %d lane %d\n", family.name.c_str(),
                row.range.name.c_str(), static_cast<unsigned long long>(row.worst.tried),
                row.exhaustive ? "(all)" : "(random)", ulps(row.worst.error).c_str(),
                operands_text(family, row.worst).c_str(), result_text(family, row.worst).c_str(), row.worst.place.width,
                row.worst.place.lane);
    std::fflush(stdout);
}

// ---- Tables: | family | bound | range | operands | tried | largest error | at | result |. -----------------------

std::string interval_text(const accuracy::Interval& interval, grid::Lane lane) {
    double limit = lane == grid::Lane::f32 ? accuracy::largest_float : accuracy::largest_double;
    if (interval.low <= -limit && interval.high >= limit) return "all finite";
    auto end = [&](double value) {
        int exponent;
        bool power = std::fabs(std::frexp(value, &exponent)) == 0.5 && std::abs(exponent) > 16;
        if (std::fabs(value) >= limit) return std::string(value < 0 ? "-max" : "max");
        return power ? (value < 0 ? "-2^" : "2^") + std::to_string(exponent - 1) : number(value);
    };
    return end(interval.low) + " to " + end(interval.high);
}

std::string count_text(const Measured& row) {
    std::string digits = std::to_string(row.worst.tried);
    for (size_t at = digits.size(); at > 3; at -= 3) digits.insert(at - 3, ",");
    return row.exhaustive ? "all " + digits : digits + " random";
}

std::string markdown_row(const grid::Family& family, const Measured& row, const std::string& name_cell) {
    std::string operands;
    for (size_t i = 0; i < family.operands.size(); ++i)
        operands += (i ? "; " : "") + interval_text(row.range.operand(i), family.operands[i]);
    if (row.range.beside) operands += ", beside " + number(*row.range.beside);
    if (row.range.width) operands += ", width " + std::to_string(row.range.width);
    std::string name = row.range.name;
    std::ranges::replace(name, '_', ' ');
    std::string where = " |  |";  // an exact result has no worst operand
    if (row.worst.error > 0)
        where = " `" + operands_text(family, row.worst) + "` | `" +
                hex(family.results[row.worst.result], row.worst.value) + "`" +
                (row.worst.result ? " (second) |" : " |");
    return "| " + name_cell + " | " + name + " | " + operands + " | " + count_text(row) + " | " +
           ulps(row.worst.error) + " | " + number(accuracy::bound_of(family, row.range)) + " |" + where;
}

// The name; a link to the picture where there is one, drawn now or earlier.
std::string name_cell(const Arguments& arguments, const grid::Family& family) {
    std::string directory = arguments.markdown.substr(0, arguments.markdown.rfind('/') + 1);
    std::string picture = "pictures/accuracy-" + family.name + ".svg", quoted = "`" + family.name + "`";
    bool drawn = !arguments.picture.empty() || std::ifstream(directory + picture).good();
    return drawn ? "[" + quoted + "](" + picture + ")" : quoted;
}

// The file keeps its text; its table keeps the rows of the families that were not measured. Rows stand in the grid's
// order, and belong to the family that their first cell names, or to the one above where that is empty.
void update_markdown(const std::string& path, const std::map<std::string, std::vector<std::string>>& measured) {
    std::vector<std::string> before, after;
    std::map<std::string, std::vector<std::string>> rows;
    std::ifstream old(path);
    std::string family;
    bool in_table = false, behind = false;
    for (std::string line; std::getline(old, line);) {
        if (line.starts_with("|---"))
            in_table = true, before.push_back(line);
        else if (in_table && !behind && line.starts_with("|")) {
            size_t first = line.find('`'), last = line.find('`', first + 1);
            if (first < line.find('|', 1)) family = line.substr(first + 1, last - first - 1);
            rows[family].push_back(line);
        } else if (in_table)
            behind = true, after.push_back(line);
        else
            before.push_back(line);
    }
    if (!in_table) stop(path + " has no table to fill");
    for (const auto& [name, lines] : measured) rows[name] = lines;
    std::ofstream file(path);
    for (const std::string& line : before) file << line << '\n';
    for (const grid::Family& each : grid::families())
        for (const std::string& line : rows[each.name]) file << line << '\n';
    for (const std::string& line : after) file << line << '\n';
}

// ---- Pictures: the largest error in each of some hundred intervals of the first operand. -----------------------

// The horizontal axis: the operand itself, its binary logarithm, or, over a wide range with both signs, the logarithm
// grown from zero to both sides.
struct Profile {
    static constexpr int bins = 160;
    enum class Axis { linear, logarithmic, two_sided } axis;
    double low, high, smallest;  // `smallest`: the logarithm of the smallest subnormal
    std::vector<double> largest = std::vector<double>(bins, -1);

    Profile(const accuracy::Interval& interval, bool single)
        : low(interval.low), high(interval.high), smallest(single ? -149 : -1074) {
        double limit = single ? accuracy::largest_float : accuracy::largest_double;
        low = std::max(low, -limit);
        high = std::min(high, limit);
        if (low == 0) low = std::exp2(smallest);
        bool one_sign = low > 0 || high < 0;
        double larger = std::max(std::fabs(low), std::fabs(high)), smaller = std::min(std::fabs(low), std::fabs(high));
        axis = one_sign ? (larger / 1024 > smaller || larger > 0x1p30 ? Axis::logarithmic : Axis::linear)
                        : (larger > 0x1p20 ? Axis::two_sided : Axis::linear);
    }
    double scaled(double x) const {
        if (axis == Axis::linear) return x;
        if (axis == Axis::logarithmic) return std::log2(std::fabs(x));
        return x == 0 ? 0 : std::copysign(std::log2(std::fabs(x)) - smallest, x);
    }
    void add(double x, double error) {
        double at = (scaled(x) - scaled(low)) / (scaled(high) - scaled(low)) * bins;
        if (!(at >= 0 && at <= bins) || !std::isfinite(error)) return;
        double& bin = largest[static_cast<size_t>(std::min(at, bins - 1.0))];
        bin = std::max(bin, error);
    }
    double middle(int bin) const {
        double t = (bin + 0.5) / bins;
        return scaled(low) * (1 - t) + scaled(high) * t;
    }
    std::string label() const {
        return axis == Axis::linear ? "x" : axis == Axis::two_sided ? "x" : low < 0 ? "log2(-x)" : "log2(x)";
    }
    std::string tics() const {
        if (axis != Axis::two_sided) return "set xtics auto";
        std::string list = "set xtics ('0' 0";
        int step = smallest < -200 ? 600 : 80;
        for (int power : {-step, 0, step}) {
            char both[100];
            std::snprintf(both, sizeof both, ", '2^{%d}' %g, '-2^{%d}' %g", power, power - smallest, power,
                          smallest - power);
            list += both;
        }
        return list + ")";
    }
};

void draw(const grid::Family& family, const std::vector<Measured>& rows, const std::string& directory) {
    std::FILE* plot = popen("gnuplot", "w");
    if (!plot) stop("the pictures need gnuplot (Debian: apt-get install gnuplot-nox)");
    int columns = rows.size() > 1 ? 2 : 1, lines = (static_cast<int>(rows.size()) + columns - 1) / columns;
    std::fprintf(plot,
                 "set terminal svg size %d,%d font 'sans,11' background 'white'\nset output '%s/accuracy-%s.svg'\n",
                 460 * columns, 260 * lines + 30, directory.c_str(), family.name.c_str());
    std::fprintf(plot, "set multiplot layout %d,%d title '%s' noenhanced\n", lines, columns, family.name.c_str());
    std::fprintf(plot, "set grid\nset key off\nset format x '%%g'\n");
    for (const Measured& row : rows) {
        bool single = family.operands[0] == grid::Lane::f32;
        Profile profile(row.range.x, single);
        accuracy::Options options;
        options.width = row.range.beside ? 4 : 16;
        options.watch = [&](double x, double error) { profile.add(x, error); };
        accuracy::sweep_random(family, row.range, 200000, false, options);
        std::string name = row.range.name;
        std::ranges::replace(name, '_', ' ');
        std::fprintf(plot, "set title '%s'\nset xlabel '%s'\nset ylabel 'largest error, ulp'\n%s\n", name.c_str(),
                     profile.label().c_str(), profile.tics().c_str());
        double a = profile.scaled(profile.low), b = profile.scaled(profile.high);
        std::fprintf(plot, "set xrange [%.9g:%.9g]\nset yrange [0:%.9g]\n", std::min(a, b), std::max(a, b),
                     std::max(1.05 * accuracy::bound_of(family, row.range), 0.01));
        std::fprintf(plot, "plot '-' with lines lw 1.2 lc rgb '#1f5fa8', %.9g with lines dt 2 lc rgb '#b03030'\n",
                     accuracy::bound_of(family, row.range));
        for (int bin = 0; bin < Profile::bins; ++bin)
            if (double error = profile.largest[static_cast<size_t>(bin)]; error >= 0)
                std::fprintf(plot, "%.6g %.4g\n", profile.middle(bin), error);
        std::fprintf(plot, "e\n");
    }
    if (pclose(plot) != 0) stop("gnuplot failed on " + family.name);
}

}  // namespace

int main(int count, char** words) {
    Arguments arguments = parse(count, words);
    std::map<std::string, std::vector<std::string>> table;
    bool all_hold = true;
    for (const grid::Family* family : arguments.families) {
        std::vector<Measured> rows = measure(*family, arguments);
        if (!arguments.picture.empty()) draw(*family, rows, arguments.picture);
        std::vector<Finding> findings;
        for (const Measured& row : rows) {
            print(*family, row);
            findings.push_back(row.worst);
            table[family->name].push_back(
                markdown_row(*family, row, &row == rows.data() ? name_cell(arguments, *family) : ""));
            double bound = accuracy::bound_of(*family, row.range);
            if (row.worst.error <= bound) continue;
            std::printf("  above the bound of %g ulp\n", bound);
            all_hold = false;
        }
        // What is above a bound is a defect, not a known worst operand; nor is the worst beside a chosen neighbour.
        if (!arguments.worst.empty() && arguments.range.empty() && !arguments.neighbour)
            accuracy::write_worst(arguments.worst, *family, findings);
        if (!arguments.markdown.empty()) update_markdown(arguments.markdown, table);
    }
    return all_hold ? 0 : 1;
}
