// Prints what is derived from the grid:
//
//   grid_outputs header          include/ocl_zorv_v8.h
//   grid_outputs builtins        include/ocl_zorv_v8_builtins.h
//   grid_outputs version_script  the linker's list of exports
//   grid_outputs readme          README.md, given as standard input, with its table of operations renewed
//   grid_outputs families        docs/families.md
//   grid_outputs json            all that is said of each family, for docs/site/pages.py
#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <map>
#include <string>
#include <vector>

namespace {

using std::string;

struct Family {
    string base, precision, accuracy_class, signature;
    double bound;

    string lane() const { return precision == "float_" ? "float" : "double"; }
    string letter() const { return precision == "float_" ? "f" : ""; }
    string suffix() const { return accuracy_class == "native" ? "_native" : ""; }
    string name() const { return base + letter() + suffix(); }
    string export_name(int width) const {
        return "__ocl_zorv_v8_" + base + letter() + std::to_string(width) + suffix();
    }
};

const std::vector<Family> families = {
#define FAMILY(base, precision, class_, signature, home, traits, bound) {#base, #precision, #class_, #signature, bound},
#include "include/grid.def"
};

constexpr int widths[] = {1, 2, 3, 4, 8, 16};

struct Operation {
    string builtin, what, file;  // the file that tells of it, in its group's folder
};
const std::map<string, Operation> operations = {
#define OPERATION(base, builtin, what) {#base, {#builtin, what, __FILE__}},
#include "include/operations.def"
};

struct About {
    string special, method;
};
const std::map<string, About> abouts = {
#define ABOUT(base, precision, class_, special, method) {#base " " #precision " " #class_, {special, method}},
#include "include/operations.def"
};

// ---- Conversions describe themselves by their axes. --------------------------------------------------------

struct Conversion {
    string integer, rounding, saturation;
    bool to_integer;
};
const std::map<string, Conversion> conversions = {
#define TO_INTEGER(base, precision, target, rounding, saturation) {#base, {#target, #rounding, #saturation, true}},
#define FROM_INTEGER(base, precision, source, rounding) {#base, {#source, #rounding, "", false}},
#include "include/grid.def"
};

const std::map<string, string> integer_types = {{"i32", "int"}, {"u32", "uint"}, {"i64", "long"}, {"u64", "ulong"}};
const std::map<string, string> roundings = {{"rtn", "to nearest, ties to even"},
                                            {"rtz", "toward zero"},
                                            {"up", "toward positive infinity"},
                                            {"down", "toward negative infinity"}};
// This library's tags and OpenCL's suffixes differ: `rtn` here is nearest, `_rtn` there is down.
const std::map<string, string> opencl_roundings = {{"rtn", "_rte"}, {"rtz", "_rtz"}, {"up", "_rtp"}, {"down", "_rtn"}};

Operation operation_of(const Family& family) {
    if (auto found = conversions.find(family.base); found != conversions.end()) {
        const Conversion& c = found->second;
        const string& integer = integer_types.at(c.integer);
        return {"convert",
                c.to_integer ? "x as " + integer + ", rounded " + roundings.at(c.rounding)
                             : "x, of " + integer + " lanes, as floating, rounded " + roundings.at(c.rounding),
                "kernels/conversions/"};
    }
    if (auto found = operations.find(family.base); found != operations.end()) return found->second;
    std::fprintf(stderr, "no OPERATION for %s\n", family.base.c_str());
    std::exit(1);
}

About about(const Family& family) {
    if (auto found = conversions.find(family.base); found != conversions.end()) {
        const Conversion& c = found->second;
        if (!c.to_integer)
            return {"Every integer has a result; 0 gives +0.",
                    "Exact pieces, one rounded sum, a step on its bits where the rounding asks for one."};
        bool is_unsigned = c.integer[0] == 'u';
        if (c.saturation == "sat")
            return {c.integer == "u32" ? "Clamped to the integer's range; NaN gives all ones, or 0 if its sign is set."
                                       : "Clamped to the integer's range; NaN gives 0.",
                    "Rounded by a shifter, then converted exactly."};
        return {string(is_unsigned ? "The sign is dropped after rounding; out" : "Out") +
                    " of range and NaN give the lowest signed integer's pattern.",
                "Rounded by a shifter, then converted exactly."};
    }
    for (const string& precision : {family.precision, string("both")})
        if (auto found = abouts.find(family.base + " " + precision + " " + family.accuracy_class);
            found != abouts.end())
            return found->second;
    std::fprintf(stderr, "no ABOUT for %s\n", family.name().c_str());
    std::exit(1);
}

// ---- Signatures in C and in OpenCL C. ----------------------------------------------------------------------

// In the declarations every vector is spelled as it travels: width 3 as the four-lane type.
string vector(const string& lane, int width) {
    if (width == 1 && lane == "uint") return "unsigned int";
    if (width == 1 && lane == "long") return "__INT64_TYPE__";
    if (width == 1 && lane == "ulong") return "__UINT64_TYPE__";
    return width == 1 ? lane : lane + std::to_string(width == 3 ? 4 : width);
}

struct Signature {
    std::vector<string> operands;  // lanes
    string result;                 // lane
    string pointer;                // lane of the second result, where it goes through a pointer
    bool pair = false;
};

Signature signature_of(const Family& family) {
    const string& s = family.signature;
    string f = family.lane();
    if (s == "one_operand") return {{f}, f, ""};
    if (s == "two_operands") return {{f, f}, f, ""};
    if (s == "three_operands") return {{f, f, f}, f, ""};
    if (s == "operand_and_integer") return {{f, "int"}, f, ""};
    if (s == "integer_result") return {{f}, "int", ""};
    if (s == "pointer_result") return {{f}, f, f};
    if (s == "integer_pointer_result") return {{f}, f, "int"};
    if (s == "two_operands_integer_pointer_result") return {{f, f}, f, "int"};
    if (s == "pair_result") return {{f}, f, "", true};
    if (s == "from_code") return {{f == "float" ? "uint" : "ulong"}, f, ""};
    if (s.starts_with("to_")) return {{f}, integer_types.at(s.substr(3)), ""};
    if (s.starts_with("from_")) return {{integer_types.at(s.substr(5))}, f, ""};
    std::fprintf(stderr, "unknown signature %s\n", s.c_str());
    std::exit(1);
}

std::vector<string> operand_names(const Family& family) {
    if (family.signature == "three_operands") return {"a", "b", "c"};
    if (family.signature == "operand_and_integer") return {"x", "n"};
    if (family.signature == "from_code") return {"code"};
    return {"x", "y"};
}

string declaration(const Family& family, int width) {
    Signature s = signature_of(family);
    std::vector<string> names = operand_names(family);
    string text =
        s.pair ? width == 1 ? s.result + "2" : s.result + std::to_string(width) + "_pair" : vector(s.result, width);
    text += " " + family.export_name(width) + "(";
    for (size_t i = 0; i < s.operands.size(); ++i)
        text += (i ? ", " : "") + vector(s.operands[i], width) + " " + names[i];
    if (!s.pointer.empty()) text += ", " + vector(s.pointer, width) + " *second";
    return text + ");";
}

// ---- Text. -------------------------------------------------------------------------------------------------

void wrapped(const string& prefix, const string& text, size_t columns = 110) {
    string line = prefix;
    size_t at = 0;
    while (at < text.size()) {
        size_t end = text.find(' ', at);
        if (end == string::npos) end = text.size();
        if (line.size() + 1 + (end - at) > columns) {
            std::puts(line.c_str());
            line = " *";
        }
        line += " " + text.substr(at, end - at);
        at = end + 1;
    }
    std::puts(line.c_str());
}

string error_text(const Family& family) {
    double bound = family.bound;
    if (bound == 0 && conversions.contains(family.base)) return "Error: none, the value rounded as told.";
    if (bound == 0) return "Error: none, the result is exact.";
    if (bound == 0.5) return "Error: 0.5 ulp, correctly rounded.";
    if (bound > 0x1p100) return "Error: each step is rounded; where they cancel, no multiple of the ulp bounds it.";
    char text[64];
    std::snprintf(text, sizeof text, "Error: %g ulp at most.", bound);
    return text;
}

string unit_text(const Family& family) {
    if (family.base.starts_with("sincos") || family.base == "sin" || family.base == "cos" || family.base == "tan")
        return "Radians. ";
    return "";
}

string lanes_text(const Family& family) {
    Signature s = signature_of(family);
    string text;
    for (size_t i = 0; i < s.operands.size(); ++i)
        text += (i ? ", " : "") + operand_names(family)[i] + ": " + s.operands[i];
    text += "; result: " + s.result;
    if (!s.pointer.empty()) text += "; through the pointer: " + s.pointer;
    if (s.pair) text += ", first the sine, then the cosine";
    return text + ".";
}

// ---- Outputs. ----------------------------------------------------------------------------------------------

void print_header() {
    std::puts(
        "/* Vectorised math kernels for OpenCL run-times: the exported functions.\n"
        " *\n"
        " * Written by tools/grid_outputs.cpp from the grid; do not edit.\n"
        " *\n"
        " * Every function takes its operands by value as vectors of 1, 2, 3, 4, 8 or 16 lanes; the number of lanes\n"
        " * ends the name, before _native. Width 3 travels as a vector of four lanes, the fourth of which is ignored\n"
        " * in operands and unspecified in results; a width-3 pointer needs room for four. Pointers at widths 3 and\n"
        " * up, and double ones at width 2, are aligned to 16 bytes. Errors are in units in the last place (ulp).\n"
        " */\n"
        "#ifndef OCL_ZORV_V8_H\n"
        "#define OCL_ZORV_V8_H\n"
        "\n"
        "#if !defined(__clang__) || !defined(__i386__) || !defined(__SSE2__)\n"
        "#error \"ocl_zorv_v8.h needs clang with -m32 -msse2: the functions follow its convention for vector "
        "operands\"\n"
        "#endif\n"
        "#ifdef __AVX__\n"
        "#error \"ocl_zorv_v8.h needs -mno-avx: with AVX clang passes vectors of more than 16 bytes in ymm registers, "
        "where the functions neither look nor return\"\n"
        "#endif\n"
        "\n"
        "#ifdef __OPENCL_C_VERSION__\n"
        "#pragma OPENCL EXTENSION cl_khr_fp64 : enable\n"
        "#else");
    struct Lane {
        const char *name, *scalar;
    };
    for (Lane lane : {Lane{"float", "float"}, Lane{"double", "double"}, Lane{"int", "int"},
                      Lane{"uint", "unsigned int"}, Lane{"long", "__INT64_TYPE__"}, Lane{"ulong", "__UINT64_TYPE__"}})
        for (int width : widths)
            if (width > 1)
                std::printf("typedef %s %s%d __attribute__((ext_vector_type(%d)));\n", lane.scalar, lane.name, width,
                            width == 3 ? 4 : width);
    std::puts("#endif\n");
    std::puts("/* Two vectors returned together; at width 1 the pair is one two-lane vector. */");
    for (const char* lane : {"float", "double"})
        for (int width : widths)
            if (width > 1)
                std::printf("typedef struct { %s sine, cosine; } %s%d_pair;\n", vector(lane, width).c_str(), lane,
                            width);
    std::puts("\n#ifdef __cplusplus\nextern \"C\" {\n#pragma clang diagnostic push\n"
              "#pragma clang diagnostic ignored \"-Wreturn-type-c-linkage\"\n#endif");
    for (const Family& family : families) {
        About about_it = about(family);
        std::puts("");
        wrapped("/*", family.name() + ": " + operation_of(family).what + ". " + unit_text(family) + lanes_text(family));
        wrapped(" *", about_it.special);
        wrapped(" *", error_text(family));
        wrapped(" *", about_it.method + " */");
        for (int width : widths) std::puts(declaration(family, width).c_str());
    }
    std::puts("\n#ifdef __cplusplus\n#pragma clang diagnostic pop\n}\n#endif\n\n#endif");
}

// The built-in's name, and the operands in its order.
string builtin_name(const Family& family) {
    if (auto found = conversions.find(family.base); found != conversions.end()) {
        const Conversion& c = found->second;
        return opencl_roundings.at(c.rounding);
    }
    string name = operation_of(family).builtin;
    if (name == "none" || signature_of(family).pair) return "none";
    if (family.accuracy_class == "native") return "native_" + name;
    return name == "recip" || name == "divide" ? "none" : name;  // these are operators in the accurate class
}

string call_text(const Family& family, int width, const string& arguments) {
    string call = family.export_name(width) + "(" + arguments + ")";
    return width == 3 ? "(" + call + ").xyz" : call;
}

string arguments_text(const Family& family, int width) {
    Signature s = signature_of(family);
    string text;
    for (size_t i = 0; i < s.operands.size(); ++i)
        text += (i ? ", " : "") + operand_names(family)[i] + (width == 3 ? ".xyzz" : "");
    return text;
}

string opencl_vector(const string& lane, int width) { return width == 1 ? lane : lane + std::to_string(width); }

string parameters_text(const Family& family, int width) {
    Signature s = signature_of(family);
    string text;
    for (size_t i = 0; i < s.operands.size(); ++i)
        text += (i ? ", " : "") + opencl_vector(s.operands[i], width) + " " + operand_names(family)[i];
    return text;
}

void print_overload(const Family& family, int width) {
    Signature s = signature_of(family);
    string result = opencl_vector(s.result, width);
    string name = builtin_name(family);
    string parameters = parameters_text(family, width);
    if (s.pointer.empty()) {
        std::printf("OVERLOAD %s %s(%s) { return %s; }\n", result.c_str(), name.c_str(), parameters.c_str(),
                    call_text(family, width, arguments_text(family, width)).c_str());
        return;
    }
    // The export writes to private memory; the overload carries the value to whichever space the caller named.
    for (const char* space : {"private", "local", "global"}) {
        string arguments = arguments_text(family, width) + ", &second";
        std::printf("OVERLOAD %s %s(%s, %s %s *pointer) {\n    %s second;\n    %s first = %s;\n    *pointer = "
                    "second%s;\n    return first;\n}\n",
                    result.c_str(), name.c_str(), parameters.c_str(), space, opencl_vector(s.pointer, width).c_str(),
                    vector(s.pointer, width).c_str(), result.c_str(), call_text(family, width, arguments).c_str(),
                    width == 3 ? ".xyz" : "");
    }
}

// convert_<type>[_sat][_<rounding>]: a name of its own for each target type, so the width is in the name.
void print_conversion(const Family& family, const Conversion& c, int width) {
    Signature s = signature_of(family);
    string result = opencl_vector(s.result, width);
    string parameters = parameters_text(family, width);
    string call = call_text(family, width, arguments_text(family, width));
    string stem = "convert_" + result + (c.saturation == "sat" ? "_sat" : "");
    std::printf("OVERLOAD %s %s%s(%s) { return %s; }\n", result.c_str(), stem.c_str(),
                opencl_roundings.at(c.rounding).c_str(), parameters.c_str(), call.c_str());
    // Without a suffix: toward zero to an integer, to nearest to a floating type.
    if (c.rounding == (c.to_integer ? "rtz" : "rtn"))
        std::printf("OVERLOAD %s %s(%s) { return %s; }\n", result.c_str(), stem.c_str(), parameters.c_str(),
                    call.c_str());
}

// An overload hides the compiler's own ones of the same name, so a convert_ name that the library takes over gets
// its other source types here as well. They are exact or the hardware's own conversion.
void print_other_conversions() {
    std::map<string, bool> targets;  // by lane: is it an integer
    for (const Family& family : families)
        if (auto found = conversions.find(family.base); found != conversions.end())
            targets[signature_of(family).result] = found->second.to_integer;
    if (targets.empty()) return;

    std::puts(
        "\n/* The same names from the other types, which take no call. */\n"
        "#define ROUNDINGS(name, to, from, value) \\\n"
        "    OVERLOAD to name(from x) { return value; } \\\n"
        "    OVERLOAD to name##_rte(from x) { return value; } \\\n"
        "    OVERLOAD to name##_rtz(from x) { return value; } \\\n"
        "    OVERLOAD to name##_rtp(from x) { return value; } \\\n"
        "    OVERLOAD to name##_rtn(from x) { return value; }\n"
        "#define NEAREST(name, to, from, value) \\\n"
        "    OVERLOAD to name(from x) { return value; } \\\n"
        "    OVERLOAD to name##_rte(from x) { return value; }\n"
        "#define PLAIN(to, from) ROUNDINGS(convert_##to, to, from, __builtin_convertvector(x, to))\n"
        "#define ROUNDED(to, from) NEAREST(convert_##to, to, from, __builtin_convertvector(x, to))\n"
        "#define SCALAR_PLAIN(to, from) ROUNDINGS(convert_##to, to, from, (to)x)\n"
        "#define SCALAR_ROUNDED(to, from) NEAREST(convert_##to, to, from, (to)x)\n"
        "#define CLAMPED(low, high) (x < low ? low : x > high ? high : x)\n"
        "#define SATURATED(to, from, low, high) \\\n"
        "    ROUNDINGS(convert_##to##_sat, to, from, __builtin_convertvector(CLAMPED((from)(low), (from)(high)), to))\n"
        "#define SCALAR_SATURATED(to, from, low, high) \\\n"
        "    ROUNDINGS(convert_##to##_sat, to, from, (to)CLAMPED((from)(low), (from)(high)))\n"
        "#define WIDTHS(kind, to, from, ...) \\\n"
        "    SCALAR_##kind(to, from, ##__VA_ARGS__) \\\n"
        "    kind(to##2, from##2, ##__VA_ARGS__) \\\n"
        "    kind(to##3, from##3, ##__VA_ARGS__) \\\n"
        "    kind(to##4, from##4, ##__VA_ARGS__) \\\n"
        "    kind(to##8, from##8, ##__VA_ARGS__) \\\n"
        "    kind(to##16, from##16, ##__VA_ARGS__)");
    struct Integer {
        string name, upper;
        int size;
        bool is_signed;

        string lowest() const { return is_signed ? upper + "_MIN" : "0"; }
    };
    const std::vector<Integer> integers = {{"char", "CHAR", 1, true},  {"uchar", "UCHAR", 1, false},
                                           {"short", "SHRT", 2, true}, {"ushort", "USHRT", 2, false},
                                           {"int", "INT", 4, true},    {"uint", "UINT", 4, false},
                                           {"long", "LONG", 8, true},  {"ulong", "ULONG", 8, false}};
    for (const auto& [target, is_integer] : targets) {
        for (const Integer& from : integers)
            if (is_integer || from.size < 4) std::printf("WIDTHS(PLAIN, %s, %s)\n", target.c_str(), from.name.c_str());
        if (!is_integer) {
            std::printf("WIDTHS(PLAIN, %s, %s)\n", target.c_str(), target.c_str());
            std::puts(target == "float" ? "WIDTHS(ROUNDED, float, double)" : "WIDTHS(PLAIN, double, float)");
            continue;
        }
        const Integer& to = *std::find_if(integers.begin(), integers.end(),
                                          [&name = target](const Integer& one) { return one.name == name; });
        for (const Integer& from : integers) {
            // The greater of the two lowest values, the lesser of the two highest.
            const Integer& narrower = to.size < from.size ? to : from;
            string low = to.is_signed && from.is_signed ? narrower.lowest() : "0";
            bool target_reaches_higher =
                to.size > from.size || (to.size == from.size && (!to.is_signed || from.is_signed));
            string high = (target_reaches_higher ? from : to).upper + "_MAX";
            std::printf("WIDTHS(SATURATED, %s, %s, %s, %s)\n", to.name.c_str(), from.name.c_str(), low.c_str(),
                        high.c_str());
        }
    }
    std::puts("#undef ROUNDINGS\n#undef NEAREST\n#undef PLAIN\n#undef ROUNDED\n#undef SCALAR_PLAIN\n"
              "#undef SCALAR_ROUNDED\n#undef CLAMPED\n#undef SATURATED\n#undef SCALAR_SATURATED\n#undef WIDTHS");
}

void print_builtins() {
    std::puts(
        "/* OpenCL C built-ins as overloads that call the library: include this before a kernel, and the kernel needs\n"
        " * no change. Built-ins that the library does not serve yet are not declared.\n"
        " *\n"
        " * Written by tools/grid_outputs.cpp from the grid; do not edit.\n"
        " */\n"
        "#ifndef OCL_ZORV_V8_BUILTINS_H\n"
        "#define OCL_ZORV_V8_BUILTINS_H\n"
        "\n"
        "#include \"ocl_zorv_v8.h\"\n"
        "\n"
        "#define OVERLOAD static inline __attribute__((overloadable, always_inline))");
    string last;
    for (const Family& family : families) {
        auto conversion = conversions.find(family.base);
        if (conversion == conversions.end() && builtin_name(family) == "none") continue;
        if (family.name() != last) std::printf("\n/* %s */\n", family.name().c_str());
        last = family.name();
        for (int width : widths) {
            if (conversion == conversions.end())
                print_overload(family, width);
            else
                print_conversion(family, conversion->second, width);
        }
    }
    print_other_conversions();
    std::puts("\n#undef OVERLOAD\n\n#endif");
}

void print_version_script() {
    std::puts("{\n  global:");
    for (const Family& family : families)
        for (int width : widths) std::printf("    %s;\n", family.export_name(width).c_str());
    std::puts("  local: *;\n};");
}

// ---- Tables in Markdown. -----------------------------------------------------------------------------------

string in_cell(string text) {
    for (size_t at = 0; (at = text.find('|', at)) != string::npos; at += 2) text.insert(at, "\\");
    return text;
}

string lower_case_start(string text) {
    text[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(text[0])));
    return text;
}

string bound_cell(double bound) {
    if (bound == 0) return "exact";
    if (std::isinf(bound)) return "cancels";
    char text[32];
    std::snprintf(text, sizeof text, "%g", bound);
    return text;
}

// One row for each operation: its error in ulp at each precision and class.
void print_operations() {
    std::vector<string> bases;
    std::map<string, std::map<string, double>> bounds;  // by base, then by "float_ accurate" and so on
    size_t conversion_families = 0;
    for (const Family& family : families) {
        if (conversions.contains(family.base)) {
            ++conversion_families;
            continue;
        }
        if (!bounds.contains(family.base)) bases.push_back(family.base);
        bounds[family.base][family.precision + " " + family.accuracy_class] = family.bound;
    }
    std::puts("| operation | computes | float | double | float, native | double, native |");
    std::puts("|---|---|---|---|---|---|");
    for (const string& base : bases) {
        string what = in_cell(lower_case_start(operations.at(base).what));
        std::printf("| `%s` | %s |", base.c_str(), what.c_str());
        for (const char* column : {"float_ accurate", "double_ accurate", "float_ native", "double_ native"}) {
            auto bound = bounds[base].find(column);
            if (bound == bounds[base].end())
                std::printf(" |");
            else
                std::printf(" %s |", bound_cell(bound->second).c_str());
        }
        std::puts("");
    }
    if (conversion_families != 0)
        std::printf(
            "\nBeside these stand %zu conversions between `float` or `double` and `int`, `uint`, `long` or `ulong`, in "
            "four\nroundings; to integers with and without saturation. [docs/families.md](docs/families.md) lists "
            "every "
            "family, group by group.\n",
            conversion_families);
}

// "quotients" from kernels/quotients/operations.def.
string group_of(const Family& family) {
    const string kernels = "kernels/", file = operation_of(family).file;
    size_t start = file.rfind(kernels) + kernels.size();
    return file.substr(start, file.find('/', start) - start);
}

struct Title {
    const char *group, *text;
};
constexpr Title titles[] = {
    {"quotients", "Quotients and roots"},
    {"exact", "Exact operations"},
    {"explog", "Exponentials and logarithms"},
    {"powers", "Powers"},
    {"trig", "Trigonometric functions"},
    {"inverse_trig", "Inverse trigonometric functions"},
    {"hyperbolic", "Hyperbolic functions"},
    {"special", "Error and gamma functions"},
    {"conversions", "Conversions"},
};

// A row of a family, or of several that differ in precision or in rounding alone.
struct Listed {
    string names, builtin, what, bound, special;

    bool tells_the_same(const Listed& other) const {
        return builtin == other.builtin && what == other.what && bound == other.bound && special == other.special;
    }
};

Listed listed(const Family& family) {
    string builtin = builtin_name(family), names = family.name(), what = operation_of(family).what;
    if (auto found = conversions.find(family.base); found != conversions.end()) {
        // The roundings, which tell themselves, share a row.
        const Conversion& c = found->second;
        auto cut = [](string text, const string& part, const string& put) {
            if (size_t at = text.rfind(part); at != string::npos) text.replace(at, part.size(), put);
            return text;
        };
        names = cut(family.name(), c.rounding, "*");
        what = cut(what, ", rounded " + roundings.at(c.rounding), "");
        builtin = "convert_" + signature_of(family).result + "<n>" + (c.saturation == "sat" ? "_sat" : "") + "_*";
    }
    if (family.base == "inv" || family.base == "div") builtin = builtin == "none" ? "/" : builtin;
    return {"`" + names + "`", builtin == "none" ? "" : "`" + builtin + "`", in_cell(lower_case_start(what)),
            conversions.contains(family.base) ? "as rounded" : bound_cell(family.bound),
            in_cell(about(family).special)};
}

void print_families() {
    std::puts(
        "# The families\n\n"
        "Written by `grid_outputs families`; do not edit: `cmake --build build/release --target readme`.\n\n"
        "Each stands at the widths 1, 2, 3, 4, 8 and 16: `sqrtf` is `__ocl_zorv_v8_sqrtf1` to `__ocl_zorv_v8_sqrtf16`, "
        "and\n`sqrtf_native` ends in `_native` behind the width. The built-in is the one, or the operator, that the "
        "family "
        "is for:\n`ocl_zorv_v8_builtins.h` turns the named ones into calls; without one, the family is called by its "
        "own "
        "name. Errors are\nthe largest, in units in the last place; 0.5 is correctly rounded, *cancels* is a sum of "
        "two "
        "roundings. How each is\ncomputed is told in the header `ocl_zorv_v8.h`.");
    size_t told = 0;
    for (const Title& title : titles) {
        std::vector<Listed> rows;
        for (const Family& family : families) {
            if (group_of(family) != title.group) continue;
            ++told;
            Listed next = listed(family);
            auto same = std::ranges::find_if(rows, [&](const Listed& row) { return row.tells_the_same(next); });
            if (same == rows.end())
                rows.push_back(next);
            else if (same->names.find(next.names) == string::npos)
                same->names += ", " + next.names;
        }
        if (rows.empty()) continue;
        std::printf("\n## %s\n\n", title.text);
        if (string(title.group) == "conversions")
            std::puts(
                "`*` is the rounding: `rtn` to nearest, ties to even (OpenCL's `_rte`), `rtz` toward zero (`_rtz`), "
                "`up` (`_rtp`), `down`\n(`_rtn`). `<n>` is the width.\n");
        std::puts("| family | built-in | computes | error | range and special values |\n|---|---|---|---|---|");
        for (const Listed& row : rows)
            std::printf("| %s | %s | %s | %s | %s |\n", row.names.c_str(), row.builtin.c_str(), row.what.c_str(),
                        row.bound.c_str(), row.special.c_str());
    }
    if (told != families.size()) {
        std::fputs("a group of kernels has no title\n", stderr);
        std::exit(1);
    }
}

// The README from standard input, its table of families renewed.
void print_readme() {
    bool in_table = false;
    for (string line; std::getline(std::cin, line);) {
        if (line == "<!-- end of families -->") in_table = false;
        if (!in_table) std::puts(line.c_str());
        if (line.starts_with("<!-- families")) {
            in_table = true;
            print_operations();
        }
    }
}

string quoted(const string& text) {
    string result = "\"";
    for (char c : text) result += c == '"' || c == '\\' ? string("\\") + c : string(1, c);
    return result + "\"";
}

void print_json() {
    std::puts("[");
    for (const Family& family : families) {
        string builtin = listed(family).builtin, declarations;
        if (conversions.contains(family.base)) builtin.replace(builtin.find("_*"), 2, builtin_name(family));
        for (int width : widths) declarations += (width > 1 ? ", " : "") + quoted(declaration(family, width));
        auto title = std::ranges::find(titles, group_of(family), [](const Title& one) { return string(one.group); });
        const std::pair<const char*, string> fields[] = {{"name", family.name()},
                                                         {"base", family.base},
                                                         {"lane", family.lane()},
                                                         {"class", family.accuracy_class},
                                                         {"group", title->text},
                                                         {"what", operation_of(family).what},
                                                         {"builtin", builtin},
                                                         {"lanes", unit_text(family) + lanes_text(family)},
                                                         {"error", error_text(family)},
                                                         {"bound", bound_cell(family.bound)},
                                                         {"special", about(family).special},
                                                         {"method", about(family).method}};
        std::printf("%s{", &family == families.data() ? "" : ",");
        for (const auto& [key, value] : fields) std::printf("%s: %s, ", quoted(key).c_str(), quoted(value).c_str());
        std::printf("\"declarations\": [%s]}\n", declarations.c_str());
    }
    std::puts("]");
}

}  // namespace

int main(int count, char** arguments) {
    string what = count == 2 ? arguments[1] : "";
    if (what == "header")
        print_header();
    else if (what == "builtins")
        print_builtins();
    else if (what == "version_script")
        print_version_script();
    else if (what == "families")
        print_families();
    else if (what == "readme")
        print_readme();
    else if (what == "json")
        print_json();
    else
        return std::fputs("usage: grid_outputs header|builtins|version_script|families|readme|json\n", stderr), 2;
}
