// Measures the error of families against MPFR.
//
//   accuracy sinf                          all ranges of sinf: every float, or a million random operands
//   accuracy --group trig --jobs 2         every family of a group that stands; --all: every family
//   accuracy expf --range main --exhaustive
//   accuracy sinf --neighbour 1e20 --width 8
//   accuracy --group trig --pictures docs/pictures --random 0
//
//   --range NAME       that range alone
//   --random N         N random operands for each range, and the neighbourhood of the worst; 0: nothing is measured
//   --exhaustive       every number of the range (families of one float operand)
//   --width W          the width to call; 16 by default
//   --neighbour VALUE  what the last lane of every vector holds
//   --jobs N           threads
//   --worst DIR        begin from the worst operands in DIR, and write back the worst found
//   --markdown FILE    renew the families' rows in the tables of FILE, a table for each group; other rows stay
//   --picture DIR      draw accuracy-<family>.svg: the error over the operand, range by range (gnuplot); none for
//                      what is exact
//   --pictures DIR     draw accuracy-<group>.png for the families' groups: the first range of each family in them
//   --sample N         random operands in each panel of a picture; 50000 by default
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
    std::string range, worst, markdown, picture, group_pictures;
    std::optional<uint64_t> random;
    uint64_t sample = 50000;
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
        } else if (word == "--group") {
            std::string folder = value();
            size_t before = arguments.families.size();
            for (const grid::Family& family : grid::families())
                if (accuracy::group_of(family).folder == folder && accuracy::has_reference(family))
                    arguments.families.push_back(&family);
            if (arguments.families.size() == before) stop("nothing to measure in group " + folder);
        } else if (word == "--range") {
            arguments.range = value();
        } else if (word == "--random") {
            arguments.random = std::stoull(value());
        } else if (word == "--sample") {
            arguments.sample = std::stoull(value());
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
        } else if (word == "--pictures") {
            arguments.group_pictures = value();
        } else if (word == "--picture") {
            arguments.picture = value();
        } else {
            const grid::Family* family = grid::find(word);
            if (!family) stop("no family " + word + " stands");
            if (!accuracy::has_reference(*family)) stop("no reference for " + family->base);
            arguments.families.push_back(family);
        }
    }
    if (arguments.families.empty()) stop("which families? name them, or --group, or --all");
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
        bool exhaustive = arguments.exhaustive || (possible && !range.sampled && !arguments.random);
        uint64_t count = arguments.random.value_or(1 << 20);
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
                std::string(row.range.name).c_str(), static_cast<unsigned long long>(row.worst.tried),
                row.exhaustive ? "(all)" : "(random)", ulps(row.worst.error).c_str(),
                operands_text(family, row.worst).c_str(), result_text(family, row.worst).c_str(), row.worst.place.width,
                row.worst.place.lane);
    std::fflush(stdout);
}

// ---- Tables: | family | range | operands | tried | largest error | bound | at | result |. -----------------------

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
    auto tied = [&](const char* what, const std::optional<accuracy::Interval>& interval) {
        if (interval)
            operands += std::string("; ") + what + " " + number(interval->low) + " to " + number(interval->high);
    };
    tied("y log2 x", row.range.y_times_log_x);
    tied("y + log2 x", row.range.y_plus_log_x);
    tied("y/x", row.range.y_over_x);
    if (row.range.beside) operands += ", beside " + number(*row.range.beside);
    if (row.range.width) operands += ", width " + std::to_string(row.range.width);
    std::string name(row.range.name);
    std::ranges::replace(name, '_', ' ');
    std::string where = " |  |";  // an exact result has no worst operand
    if (row.worst.error > 0)
        where = " `" + operands_text(family, row.worst) + "` | `" +
                hex(family.results[row.worst.result], row.worst.value) + "`" +
                (row.worst.result ? " (second) |" : " |");
    return "| " + name_cell + " | " + name + " | " + operands + " | " + count_text(row) + " | " +
           ulps(row.worst.error) + " | " + number(accuracy::bound_of(family, row.range)) + " |" + where;
}

// The file keeps its text up to the line that begins with the marker; what follows is written anew: a table for each
// group, with the rows of the families that were not measured as they were. Rows belong to the family that their first
// cell names, or to the one above where that is empty.
constexpr const char* marker = "<!-- measured";

void update_markdown(const std::string& path, const std::map<std::string, std::vector<std::string>>& measured) {
    std::vector<std::string> before;
    std::map<std::string, std::vector<std::string>> rows;
    std::ifstream old(path);
    std::string family;
    bool in_tables = false;
    for (std::string line; std::getline(old, line);) {
        if (!in_tables) before.push_back(line);
        in_tables |= line.starts_with(marker);
        if (!in_tables || !line.starts_with("| ")) continue;
        if (line.starts_with("| `"))
            family = line.substr(3, line.find('`', 3) - 3);
        else if (!line.starts_with("|  |"))
            continue;  // a table's head
        rows[family].push_back(line);
    }
    if (!in_tables) stop(path + " has no line \"" + marker + "\" to write behind");
    for (const auto& [name, lines] : measured) rows[name] = lines;
    std::ofstream file(path);
    for (const std::string& line : before) file << line << '\n';
    std::string pictures = path.substr(0, path.rfind('/') + 1);
    for (const accuracy::Group& group : accuracy::groups()) {
        bool begun = false;
        for (const grid::Family& each : grid::families()) {
            if (accuracy::group_of(each).folder != group.folder || rows[each.name].empty()) continue;
            if (!begun) {
                std::string picture = "pictures/accuracy-" + std::string(group.folder) + ".png";
                file << "\n## " << group.title << "\n\n";
                if (std::ifstream(pictures + picture).good())
                    file << "![Errors of random operands over the range, family by family, below the bound](" << picture
                         << ")\n\n";
                file << "| Family | Range | Operands | Tried | Largest error, ulp | Bound | At | Result |\n"
                     << "|---|---|---|---|---|---|---|---|\n";
                begun = true;
            }
            for (const std::string& line : rows[each.name]) file << line << '\n';
        }
    }
}

// ---- Pictures: the largest error in each of some hundred intervals of the first operand. -----------------------

// The horizontal axis: the operand itself, its binary logarithm, or, over a wide range with both signs, the logarithm
// grown from zero to both sides.
struct Profile {
    int bins;
    enum class Axis { linear, logarithmic, two_sided } axis;
    double low, high, smallest;  // `smallest`: the logarithm of the smallest subnormal
    std::vector<double> largest;

    Profile(const accuracy::Interval& interval, bool single, int bins_)
        : bins(bins_),
          low(interval.low),
          high(interval.high),
          smallest(single ? -149 : -1074),
          largest(static_cast<size_t>(bins_), -1) {
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

constexpr const char *error_style = "with lines lw 1.2 lc rgb '#1f5fa8'",
                     *bound_style = "with lines dt 2 lc rgb '#b03030'";

// One panel: a sample of the range, and its bound dashed.
void draw_panel(std::FILE* plot, const grid::Family& family, const Range& range, const std::string& title,
                uint64_t sample, bool is_small) {
    int bins = static_cast<int>(std::clamp<uint64_t>(sample / 100, 10, is_small ? 80 : 160));
    Profile profile(range.x, family.operands[0] == grid::Lane::f32, bins);
    accuracy::Options options;
    options.width = range.beside ? 4 : 16;
    options.watch = [&](double x, double error) { profile.add(x, error); };
    accuracy::sweep_random(family, range, sample, false, options);
    double a = profile.scaled(profile.low), b = profile.scaled(profile.high), bound = bound_of(family, range);
    std::fprintf(plot, "set title '%s' noenhanced\n%s\n", title.c_str(), profile.tics().c_str());
    std::fprintf(plot, "set xrange [%.9g:%.9g]\nset yrange [0:%.9g]\n", std::min(a, b), std::max(a, b),
                 std::max(1.05 * bound, 0.01));
    std::fprintf(plot, "set xlabel '%s' offset 0,0.7\n", profile.label().c_str());
    if (is_small) {  // the ends and the bound alone
        if (profile.axis != Profile::Axis::two_sided)
            std::fprintf(plot, "set xtics ('%.3g' %.9g, '%.3g' %.9g, '%.3g' %.9g)\n", a, a, (a + b) / 2, (a + b) / 2, b,
                         b);
        std::fprintf(plot, "set ytics ('0' 0, '%.4g' %.9g)\n", bound, bound);
    }
    std::fprintf(plot, "plot '-' %s, %.9g %s\n", error_style, bound, bound_style);
    for (int bin = 0; bin < bins; ++bin)
        if (double error = profile.largest[static_cast<size_t>(bin)]; error >= 0)
            std::fprintf(plot, "%.4g %.3g\n", profile.middle(bin), error);
    std::fprintf(plot, "e\n");
}

std::FILE* open_plot() {
    std::FILE* plot = popen("gnuplot", "w");
    if (!plot) stop("the pictures need gnuplot (Debian: apt-get install gnuplot-nox)");
    return plot;
}
void close_plot(std::FILE* plot, const std::string& of) {
    if (pclose(plot) != 0) stop("gnuplot failed on " + of);
}

// A panel of its own.
void draw_legend(std::FILE* plot, uint64_t sample) {
    std::fprintf(plot,
                 "unset title\nunset xlabel\nunset tics\nunset border\nunset grid\nset xrange [0:1]\nset yrange [0:1]\n"
                 "set key top left reverse Left samplen 1.5\nplot NaN %s title 'largest error, ulp, of', "
                 "NaN with lines lc rgb 'white' title '%llu random operands', NaN %s title 'bound'\n",
                 error_style, static_cast<unsigned long long>(sample), bound_style);
}

void draw(const grid::Family& family, const std::string& directory, uint64_t sample) {
    if (family.bound == 0 || !std::isfinite(family.bound)) return;  // nothing to see
    std::vector<Range> ranges = accuracy::ranges_of(family);
    std::FILE* plot = open_plot();
    int count = static_cast<int>(ranges.size()) + 1;  // and the legend
    int columns = count % 3 == 0 ? 3 : 2, lines = (count + columns - 1) / columns;
    std::fprintf(plot,
                 "set terminal svg size %d,%d font 'sans,11' background 'white'\nset output '%s/accuracy-%s.svg'\n",
                 400 * columns, 220 * lines + 30, directory.c_str(), family.name.c_str());
    std::fprintf(plot, "set multiplot layout %d,%d title '%s' noenhanced\nset grid\nset key off\n", lines, columns,
                 family.name.c_str());
    for (const Range& range : ranges) {
        std::string name(range.name);
        std::ranges::replace(name, '_', ' ');
        draw_panel(plot, family, range, name, sample, false);
    }
    draw_legend(plot, sample);
    close_plot(plot, family.name);
}

// Small multiples: each family of the group that has an error to show, on its first range.
void draw_group(const accuracy::Group& group, const std::string& directory, uint64_t sample) {
    std::vector<const grid::Family*> families;
    for (const grid::Family& family : grid::families())
        if (accuracy::group_of(family).folder == group.folder && accuracy::has_reference(family) &&
            family.bound > 0.5 && std::isfinite(family.bound) && family.signature != "pair_result")
            families.push_back(&family);
    if (families.empty()) return;
    int count = static_cast<int>(families.size()) + 1;  // and the legend
    int columns = std::clamp(static_cast<int>(std::ceil(std::sqrt(1.5 * count))), 2, 7);
    int lines = (count + columns - 1) / columns;
    std::FILE* plot = open_plot();
    // Of so many points a bitmap is the smaller file by far.
    std::fprintf(
        plot, "set terminal pngcairo size %d,%d font 'sans,9' background 'white'\nset output '%s/accuracy-%.*s.png'\n",
        240 * columns, 180 * lines + 40, directory.c_str(), static_cast<int>(group.folder.size()), group.folder.data());
    std::fprintf(plot, "set multiplot layout %d,%d title '%.*s' noenhanced\n", lines, columns,
                 static_cast<int>(group.title.size()), group.title.data());
    std::fprintf(plot, "set key off\nset tics scale 0.5\nset lmargin 7\nset rmargin 2\n");
    for (const grid::Family* family : families)
        draw_panel(plot, *family, accuracy::ranges_of(*family)[0], family->name, sample, true);
    draw_legend(plot, sample);
    close_plot(plot, std::string(group.folder));
}

}  // namespace

int main(int count, char** words) {
    Arguments arguments = parse(count, words);
    if (!arguments.group_pictures.empty())
        for (const accuracy::Group& group : accuracy::groups())
            if (std::ranges::any_of(arguments.families, [&](const grid::Family* family) {
                    return accuracy::group_of(*family).folder == group.folder;
                }))
                draw_group(group, arguments.group_pictures, arguments.sample);
    std::map<std::string, std::vector<std::string>> table;
    if (!arguments.markdown.empty()) update_markdown(arguments.markdown, table);  // fails now rather than in an hour
    bool all_hold = true;
    for (const grid::Family* family : arguments.families) {
        if (!arguments.picture.empty()) draw(*family, arguments.picture, arguments.sample);
        if (arguments.random == 0) continue;
        std::vector<Measured> rows = measure(*family, arguments);
        std::vector<Finding> findings;
        for (const Measured& row : rows) {
            print(*family, row);
            findings.push_back(row.worst);
            table[family->name].push_back(
                markdown_row(*family, row, &row == rows.data() ? "`" + family->name + "`" : ""));
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
