// Prints what is derived from the grid:
//
//   grid_outputs header          include/ocl_zorv_v8.h
//   grid_outputs builtins        include/ocl_zorv_v8_builtins.h
//   grid_outputs version_script  the linker's list of exports
//   grid_outputs readme          README.md, given as standard input, with its table of operations renewed
//   grid_outputs families        docs/families.md
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

// The program is built for the target that it prints for. The headers serve both.
#ifdef __x86_64__
constexpr bool on_x86_64 = true;
#else
constexpr bool on_x86_64 = false;
#endif

struct Family {
    string base, precision, accuracy_class, signature;
    double bound;

    string lane() const { return precision.substr(0, precision.size() - 1); }
    string letter() const { return precision == "float_" ? "f" : ""; }
    string suffix() const { return accuracy_class == "native" ? "_native" : ""; }
    string name() const { return base + letter() + suffix(); }
    string export_name(int width) const {
        return "__ocl_zorv_v8_" + base + letter() + std::to_string(width) + suffix();
    }
    // On x86-64 vectors of more than 16 bytes travel as structures of units, under a symbol of their own.
    bool is_wide(int width) const {
        bool has_long_lanes = precision == "double_" || signature.ends_with("i64") || signature.ends_with("u64");
        return width * (has_long_lanes ? 8 : 4) > 16;
    }
    string symbol(int width) const { return export_name(width) + (on_x86_64 && is_wide(width) ? "_units" : ""); }
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
int travelling_width(int width) { return width == 3 ? 4 : width; }

// Of reserved name, whatever a program calls vectors.
string vector(const string& lane, int width) {
    if (width == 1 && lane == "uint") return "unsigned int";
    if (width == 1 && lane != "long" && lane != "ulong") return lane;
    return "__ocl_zorv_v8_" + lane + (width == 1 ? "" : std::to_string(travelling_width(width)));
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
    if (s == "from_code") return {{f == "half" ? "ushort" : f == "float" ? "uint" : "ulong"}, f, ""};
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
    string text = vector(s.result, width);
    if (s.pair) text = width == 1 ? vector(s.result, 2) : "__ocl_zorv_v8_" + s.result + std::to_string(width) + "_pair";
    text += " " + family.export_name(width) + "(";
    for (size_t i = 0; i < s.operands.size(); ++i)
        text += (i ? ", " : "") + vector(s.operands[i], width) + " __" + names[i];
    if (!s.pointer.empty()) text += ", " + vector(s.pointer, width) + " *__second";
    return text + ");";
}

// ---- Text. -------------------------------------------------------------------------------------------------

// A comment of several statements, each on lines of its own.
void comment(const string& opening, const std::vector<string>& statements) {
    constexpr size_t columns = 118;
    string line = opening;
    for (const string& statement : statements) {
        if (&statement != &statements.front()) {
            std::puts(line.c_str());
            line = " *";
        }
        for (size_t at = 0; at < statement.size();) {
            size_t end = std::min(statement.find(' ', at), statement.size());
            if (line.size() + 1 + (end - at) > columns) {
                std::puts(line.c_str());
                line = " *";
            }
            line += " " + statement.substr(at, end - at);
            at = end + 1;
        }
    }
    if (line.size() + 3 > columns) {
        std::puts(line.c_str());
        line.clear();
    }
    std::puts((line + " */").c_str());
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

// What is particular about the vectors of one width.
string width_text(const Family& family, int width) {
    Signature s = signature_of(family);
    string text;
    if (s.pair) text = "First the sine, then the cosine. ";
    if (width == 3) text += s.pair ? "The fourth lanes are" : "The fourth lane is";
    if (width == 3) text += " ignored in operands and unspecified in results. ";
    if (!s.pointer.empty()) {
        int room = travelling_width(width) * (s.pointer == "double" ? 8 : 4);
        if (width == 3) text += "The pointer needs room for four lanes. ";
        if (room >= 16) text += "The pointer is aligned to 16 bytes. ";
    }
    if (!text.empty()) text.pop_back();
    return text;
}

// ---- Outputs. ----------------------------------------------------------------------------------------------

const std::vector<string> lanes = {"float", "double", "int", "uint", "long", "ulong"};

void print_vector_types() {
    const std::map<string, string> scalars = {
        {"uint", "unsigned int"}, {"long", "__INT64_TYPE__"}, {"ulong", "__UINT64_TYPE__"}};
    auto for_each_vector = [](auto print) {
        for (const string& lane : lanes)
            for (int width : widths)
                if (width > 1) print(lane, width);
    };
    std::puts("#ifdef __OPENCL_C_VERSION__\n"
              "#pragma OPENCL EXTENSION cl_khr_fp64 : enable\n"
              "typedef long __ocl_zorv_v8_long;\n"
              "typedef ulong __ocl_zorv_v8_ulong;");
    for_each_vector([](const string& lane, int width) {
        if (width != 3) std::printf("typedef %s%d %s;\n", lane.c_str(), width, vector(lane, width).c_str());
    });
    std::puts("#else\n"
              "typedef __INT64_TYPE__ __ocl_zorv_v8_long;\n"
              "typedef __UINT64_TYPE__ __ocl_zorv_v8_ulong;");
    for_each_vector([&](const string& lane, int width) {
        auto scalar = scalars.find(lane);
        if (width != 3)
            std::printf("typedef %s %s __attribute__((ext_vector_type(%d)));\n",
                        (scalar == scalars.end() ? lane : scalar->second).c_str(), vector(lane, width).c_str(), width);
    });
    std::puts("#ifndef OCL_ZORV_V8_NO_VECTOR_NAMES");
    for_each_vector([](const string& lane, int width) {
        std::printf("typedef %s %s%d;\n", vector(lane, width).c_str(), lane.c_str(), width);
    });
    std::puts("#endif\n#endif\n");

    auto for_each_pair = [](auto print) {
        for (const char* lane : {"float", "double"})
            for (int width : widths)
                if (width > 1) print(lane, width);
    };
    std::puts("/* Two vectors returned together; at width 1 the pair is one two-lane vector. */");
    for_each_pair([](const char* lane, int width) {
        std::printf("typedef struct { %s sine, cosine; } __ocl_zorv_v8_%s%d_pair;\n", vector(lane, width).c_str(), lane,
                    width);
    });
    std::puts("#ifndef OCL_ZORV_V8_NO_VECTOR_NAMES");
    for_each_pair([](const char* lane, int width) {
        std::printf("typedef __ocl_zorv_v8_%s%d_pair %s%d_pair;\n", lane, width, lane, width);
    });
    std::puts("#endif");
}

// ---- Long vectors on x86-64: the types that they travel in, the exports, and the wrappers around these. ----------

// A vector type in its units: float16 in .s0123, .s4567, .s89ab, .scdef.
struct InUnits {
    string lane;
    int width;

    string name() const { return lane + std::to_string(width); }
    string unit() const { return lane + std::to_string(lanes_of_a_unit()); }
    int lanes_of_a_unit() const { return lane == "float" || lane == "int" || lane == "uint" ? 4 : 2; }
    int count() const { return width / lanes_of_a_unit(); }
    string lanes(int unit) const {
        return string("0123456789abcdef")
            .substr(static_cast<size_t>(unit * lanes_of_a_unit()), static_cast<size_t>(lanes_of_a_unit()));
    }
};

void print_types_of_units() {
    for (const string& lane : lanes)
        for (int width : {4, 8, 16}) {
            InUnits v{lane, width};
            string type = v.name();
            if (v.count() == 1) {  // a unit, beside longer vectors
                std::printf("typedef __ocl_zorv_v8_%s __ocl_zorv_v8_%s_units;\n"
                            "#define __ocl_zorv_v8_split_%s(x) x\n#define __ocl_zorv_v8_join_%s(x) x\n",
                            type.c_str(), type.c_str(), type.c_str(), type.c_str());
                continue;
            }
            string members, split, join;
            for (int i = 0; i < v.count(); ++i) {
                string comma = i ? ", " : "", unit = "unit" + std::to_string(i);
                members += comma + unit;
                split += comma + "__x.s" + v.lanes(i);
                join += " __x.s" + v.lanes(i) + " = __y." + unit + ";";
            }
            std::printf("typedef struct { __ocl_zorv_v8_%s %s; } __ocl_zorv_v8_%s_units;\n"
                        "__ZORV_TYPE(%s) {\n    __ocl_zorv_v8_%s_units __y = {%s};\n    return __y;\n}\n"
                        "__ZORV_TYPE_BACK(%s) {\n    __ocl_zorv_v8_%s __x;\n   %s\n    return __x;\n}\n",
                        v.unit().c_str(), members.c_str(), type.c_str(), type.c_str(), type.c_str(), split.c_str(),
                        type.c_str(), type.c_str(), join.c_str());
        }
    for (const char* lane : {"float", "double"})
        for (int width : widths) {
            if (width * (lane[0] == 'f' ? 4 : 8) <= 16) continue;
            string type = lane + std::to_string(width == 3 ? 4 : width), pair = lane + std::to_string(width) + "_pair";
            std::printf("typedef struct { __ocl_zorv_v8_%s_units sine, cosine; } __ocl_zorv_v8_%s_units;\n"
                        "__ZORV_TYPE_BACK(%s) {\n    __ocl_zorv_v8_%s __x = {__ocl_zorv_v8_join_%s(__y.sine), "
                        "__ocl_zorv_v8_join_%s(__y.cosine)};\n    return __x;\n}\n",
                        type.c_str(), pair.c_str(), pair.c_str(), pair.c_str(), type.c_str(), type.c_str());
        }
}

void print_wrappers() {
    std::puts("\n#ifdef __x86_64__\n"
              "#define __ZORV_TYPE(type) \\\n"
              "    __ZORV_WRAPPER __ocl_zorv_v8_##type##_units __ocl_zorv_v8_split_##type(__ocl_zorv_v8_##type __x)\n"
              "#define __ZORV_TYPE_BACK(type) \\\n"
              "    __ZORV_WRAPPER __ocl_zorv_v8_##type __ocl_zorv_v8_join_##type(__ocl_zorv_v8_##type##_units __y)");
    print_types_of_units();
    std::puts(
        "#define __ZORV_VECTOR(type) __ocl_zorv_v8_##type\n"
        "#define __ZORV_UNITS(type) __ocl_zorv_v8_##type##_units\n"
        "#define __ZORV_SPLIT(type, x) __ocl_zorv_v8_split_##type(x)\n"
        "#define __ZORV_EXPORTED(result, name, ...) \\\n"
        "    __attribute__((regcall)) __ZORV_UNITS(result) name##_units(__VA_ARGS__) __asm__(#name \"_units\");\n"
        "#define __ZORV_WRAP_1(result, name, x) \\\n"
        "    __ZORV_EXPORTED(result, name, __ZORV_UNITS(x)) \\\n"
        "    __ZORV_WRAPPER __ZORV_VECTOR(result) name(__ZORV_VECTOR(x) __a) { \\\n"
        "        return __ocl_zorv_v8_join_##result(name##_units(__ZORV_SPLIT(x, __a))); \\\n"
        "    }\n"
        "#define __ZORV_WRAP_2(result, name, x, y) \\\n"
        "    __ZORV_EXPORTED(result, name, __ZORV_UNITS(x), __ZORV_UNITS(y)) \\\n"
        "    __ZORV_WRAPPER __ZORV_VECTOR(result) name(__ZORV_VECTOR(x) __a, __ZORV_VECTOR(y) __b) { \\\n"
        "        return __ocl_zorv_v8_join_##result(name##_units(__ZORV_SPLIT(x, __a), __ZORV_SPLIT(y, __b))); \\\n"
        "    }\n"
        "#define __ZORV_WRAP_3(result, name, x, y, z) \\\n"
        "    __ZORV_EXPORTED(result, name, __ZORV_UNITS(x), __ZORV_UNITS(y), __ZORV_UNITS(z)) \\\n"
        "    __ZORV_WRAPPER __ZORV_VECTOR(result) name(__ZORV_VECTOR(x) __a, __ZORV_VECTOR(y) __b, "
        "__ZORV_VECTOR(z) __c) { \\\n"
        "        return __ocl_zorv_v8_join_##result( \\\n"
        "            name##_units(__ZORV_SPLIT(x, __a), __ZORV_SPLIT(y, __b), __ZORV_SPLIT(z, __c))); \\\n"
        "    }\n"
        "#define __ZORV_WRAP_1_POINTER(result, name, x, pointer) \\\n"
        "    __ZORV_EXPORTED(result, name, __ZORV_UNITS(x), __ZORV_VECTOR(pointer) *) \\\n"
        "    __ZORV_WRAPPER __ZORV_VECTOR(result) name(__ZORV_VECTOR(x) __a, __ZORV_VECTOR(pointer) *__p) { \\\n"
        "        return __ocl_zorv_v8_join_##result(name##_units(__ZORV_SPLIT(x, __a), __p)); \\\n"
        "    }\n"
        "#define __ZORV_WRAP_2_POINTER(result, name, x, y, pointer) \\\n"
        "    __ZORV_EXPORTED(result, name, __ZORV_UNITS(x), __ZORV_UNITS(y), __ZORV_VECTOR(pointer) *) \\\n"
        "    __ZORV_WRAPPER __ZORV_VECTOR(result) name(__ZORV_VECTOR(x) __a, __ZORV_VECTOR(y) __b, "
        "__ZORV_VECTOR(pointer) *__p) { \\\n"
        "        return __ocl_zorv_v8_join_##result(name##_units(__ZORV_SPLIT(x, __a), __ZORV_SPLIT(y, __b), __p)); "
        "\\\n"
        "    }");
    auto bare = [](const string& lane, int width) { return lane + std::to_string(width == 3 ? 4 : width); };
    for (const Family& family : families)
        for (int width : widths) {
            if (!family.is_wide(width)) continue;
            Signature s = signature_of(family);
            string words = s.pair ? s.result + std::to_string(width) + "_pair" : bare(s.result, width);
            words += ", " + family.export_name(width);
            for (const string& operand : s.operands) words += ", " + bare(operand, width);
            if (!s.pointer.empty()) words += ", " + bare(s.pointer, width);
            std::printf("__ZORV_WRAP_%zu%s(%s)\n", s.operands.size(), s.pointer.empty() ? "" : "_POINTER",
                        words.c_str());
        }
    for (const char* macro : {"TYPE", "TYPE_BACK", "VECTOR", "UNITS", "SPLIT", "EXPORTED", "WRAP_1", "WRAP_2", "WRAP_3",
                              "WRAP_1_POINTER", "WRAP_2_POINTER"})
        std::printf("#undef __ZORV_%s\n", macro);
    std::puts("#endif");
}

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
        " *\n"
        " * A program that has vectors named float4, uint8 and so on of its own defines OCL_ZORV_V8_NO_VECTOR_NAMES "
        "before\n"
        " * it includes this: then all vector types here are named __ocl_zorv_v8_float4 and so on alone.\n"
        " */\n"
        "#ifndef OCL_ZORV_V8_H\n"
        "\n"
        "#ifdef __OPENCL_CPP_VERSION__\n"
        "#error \"ocl_zorv_v8.h is for C, C++ and OpenCL C, not for C++ for OpenCL\"\n"
        "#elif !defined(__clang__) || !(defined(__i386__) || defined(__x86_64__)) || !defined(__SSE2__)\n"
        "#error \"ocl_zorv_v8.h needs clang for x86 with SSE2: the functions follow its convention for vector "
        "operands\"\n"
        "#elif defined(__i386__) && defined(__AVX__)\n"
        "#error \"ocl_zorv_v8.h needs -mno-avx: with AVX clang passes vectors of more than 16 bytes in ymm registers, "
        "where the functions neither look nor return\"\n"
        "#elif defined(__OPENCL_C_VERSION__) && !defined(cl_khr_fp64) && !defined(__opencl_c_fp64)\n"
        "#error \"ocl_zorv_v8.h needs cl_khr_fp64: half of the functions are of double\"\n"
        "#else\n"
        "#define OCL_ZORV_V8_H\n");
    print_vector_types();
    std::puts(
        "\n/* On x86-64 a vector of more than 16 bytes would travel as the caller's instruction set has it. The "
        "functions\n"
        " * marked so are wrappers, always inlined: to the library such vectors go as structures of their units. */\n"
        "#ifdef __x86_64__\n"
        "#define __ZORV_WRAPPER static inline __attribute__((always_inline, unused))\n"
        "#else\n"
        "#define __ZORV_WRAPPER\n"
        "#endif\n"
        "\n"
        "#pragma clang diagnostic push\n"
        "#pragma clang diagnostic ignored \"-Wpsabi\"\n"
        "#ifdef __cplusplus\n"
        "#pragma clang diagnostic ignored \"-Wreturn-type-c-linkage\"\n"
        "extern \"C\" {\n"
        "#endif");
    for (const Family& family : families) {
        About about_it = about(family);
        std::puts("");
        comment("/* " + family.name() + ".", {about_it.method});
        // An editor shows the comment that stands right before a declaration.
        for (int width : widths) {
            comment("/**", {operation_of(family).what + ". " + unit_text(family) + width_text(family, width),
                            about_it.special, error_text(family)});
            std::printf("%s%s\n", family.is_wide(width) ? "__ZORV_WRAPPER " : "", declaration(family, width).c_str());
        }
    }
    print_wrappers();
    std::puts("\n#undef __ZORV_WRAPPER\n#ifdef __cplusplus\n}\n#endif\n#pragma clang diagnostic pop\n\n#endif\n#endif");
}

// ---- OpenCL C built-ins. -----------------------------------------------------------------------------------

string builtin_name(const Family& family) {
    if (conversions.contains(family.base)) return "none";
    string name = operation_of(family).builtin;
    if (name == "none" || signature_of(family).pair) return "none";
    if (family.accuracy_class == "native") return "native_" + name;
    return name == "recip" || name == "divide" ? "none" : name;  // these are operators in the accurate class
}

string opencl_vector(const string& lane, int width) { return width == 1 ? lane : lane + std::to_string(width); }

// Who computes what a kernel asks for by a built-in's name.
enum class Server {
    library,
    run_time,  // the compiler's mangling of the declaration is the name that the run-time has it under
    nobody,
};

// One signature of a built-in: what a kernel may write, whatever is then called.
struct Overload {
    string name;
    Family family;
    int width;
    bool one_for_all;  // the second operand is a scalar
    Server server;
};

string operand_type(const Overload& overload, size_t index) {
    int width = index == 1 && overload.one_for_all ? 1 : overload.width;
    return opencl_vector(signature_of(overload.family).operands[index], width);
}

string parameters_text(const Overload& overload) {
    std::vector<string> names = operand_names(overload.family);
    string text;
    for (size_t i = 0; i < signature_of(overload.family).operands.size(); ++i)
        text += (i ? ", " : "") + operand_type(overload, i) + " __" + names[i];
    return text;
}

// A kernel's three lanes are a type of their own; as_float4 by another name, with an unspecified fourth lane.
string as_vector(const string& value, const string& lane, int width) {
    return "__builtin_astype(" + value + ", " + opencl_vector(lane, width) + ")";
}

string call_text(const Overload& overload) {
    const Family& family = overload.family;
    Signature s = signature_of(family);
    std::vector<string> names = operand_names(family);
    string text = family.export_name(overload.width) + "(";
    for (size_t i = 0; i < s.operands.size(); ++i) {
        string name = "__" + names[i];
        if (i == 1 && overload.one_for_all)
            name = "(" + vector(s.operands[i], overload.width) + ")(" + name + ")";
        else if (overload.width == 3)
            name = as_vector(name, s.operands[i], 4);
        text += (i ? ", " : "") + name;
    }
    text += s.pointer.empty() ? ")" : ", &__second)";
    return overload.width == 3 ? as_vector(text, s.result, 3) : text;
}

// Before what the library does not define itself.
string attributes(const Overload& overload) {
    if (overload.server == Server::nobody) return "__ZORV_REFUSED(\"" + overload.name + " is for float and double\") ";
    return signature_of(overload.family).pointer.empty() ? "__ZORV_LEFT " : "__attribute__((overloadable)) ";
}

// Without a second result.
void print_overload(const Overload& overload) {
    Signature s = signature_of(overload.family);
    string head = opencl_vector(s.result, overload.width) + " " + overload.name + "(" + parameters_text(overload) + ")";
    if (overload.server != Server::library) {
        std::puts((attributes(overload) + head + ";").c_str());
        return;
    }
    string line = "__ZORV_OVERLOAD " + head + " { return " + call_text(overload) + "; }";
    if (line.size() > 118) line = "__ZORV_OVERLOAD " + head + " {\n    return " + call_text(overload) + ";\n}";
    std::puts(line.c_str());
}

// The export writes to private memory; the overload carries the value to the space that the caller named.
void print_overload_to(const string& space, const Overload& overload) {
    Signature s = signature_of(overload.family);
    string result = opencl_vector(s.result, overload.width);
    string head = result + " " + overload.name + "(" + parameters_text(overload) + ", " + space + " " +
                  opencl_vector(s.pointer, overload.width) + " *__pointer)";
    if (overload.server == Server::library)
        std::printf("__ZORV_OVERLOAD %s {\n    %s __second;\n    %s __first = %s;\n    *__pointer = %s;\n"
                    "    return __first;\n}\n",
                    head.c_str(), vector(s.pointer, overload.width).c_str(), result.c_str(),
                    call_text(overload).c_str(),
                    overload.width == 3 ? as_vector("__second", s.pointer, 3).c_str() : "__second");
    else
        std::puts((attributes(overload) + head + ";").c_str());
}

void print_overloads(const std::vector<Overload>& overloads) {
    if (signature_of(overloads.front().family).pointer.empty()) {
        for (const Overload& overload : overloads) print_overload(overload);
        return;
    }
    std::puts("#ifdef __ZORV_NAMED_SPACES");
    for (const char* space : {"__private", "__local", "__global"})
        for (const Overload& overload : overloads) print_overload_to(space, overload);
    std::puts("#endif\n#ifdef __ZORV_GENERIC_SPACE");
    for (const Overload& overload : overloads) print_overload_to("__generic", overload);
    std::puts("#endif");
}

// The signatures at one precision of the built-in that a family is for.
std::vector<Overload> overloads_of(const Family& family, Server server) {
    string name = builtin_name(family);
    std::vector<Overload> all;
    for (int width : widths) {
        all.push_back({name, family, width, false, server});
        if (width > 1 && (name == "fmin" || name == "fmax" || name == "ldexp"))
            all.push_back({name, family, width, true, server});
    }
    return all;
}

// One declaration of a name hides all that the compiler knows of it. So each name is declared for every type that it
// has in OpenCL C: a call finds its own type or, where nobody serves it, an error, and never another type.
std::vector<std::vector<Overload>> overloads_without_family() {
    std::map<string, std::map<string, Family>> standing;  // by name, then by precision
    for (const Family& family : families)
        if (builtin_name(family) != "none") standing[builtin_name(family)][family.precision] = family;
    std::vector<std::vector<Overload>> all;
    for (const auto& [name, served] : standing)
        for (const char* precision : {"float_", "double_", "half_"})
            if (!served.contains(precision)) {
                Family family = served.begin()->second;
                family.precision = precision;
                // Native built-ins are of single precision in OpenCL C.
                bool native = family.accuracy_class == "native" && family.precision != "float_";
                all.push_back(overloads_of(family, native ? Server::nobody : Server::run_time));
            }
    return all;
}

// convert_<type>[_sat][_<rounding>]: a name of its own for each target type, so the width is in the name.
void print_conversion(const Family& family, const Conversion& c) {
    string target = signature_of(family).result;
    for (int width : widths) {
        string stem = "convert_" + opencl_vector(target, width) + (c.saturation == "sat" ? "_sat" : "");
        print_overload({stem + opencl_roundings.at(c.rounding), family, width, false, Server::library});
        // Without a suffix: toward zero to an integer, to nearest to a floating type.
        if (c.rounding == (c.to_integer ? "rtz" : "rtn")) print_overload({stem, family, width, false, Server::library});
    }
}

// The same names from the types that the library does not convert.
void print_other_conversions() {
    std::map<string, bool> targets;                   // by lane: is it an integer
    std::map<string, std::map<string, bool>> served;  // by target, then source
    for (const Family& family : families)
        if (auto found = conversions.find(family.base); found != conversions.end()) {
            Signature s = signature_of(family);
            targets[s.result] = found->second.to_integer;
            served[s.result][s.operands[0]] = true;
        }
    std::puts("\n/* The same names from other types: the run-time's, but for what takes no more than an instruction or "
              "two. */\n"
              "#define __ZORV_WIDTHS(declare, to, from) \\\n"
              "    declare(to##2, from##2) declare(to##3, from##3) declare(to##4, from##4) declare(to##8, from##8) \\\n"
              "        declare(to##16, from##16)\n"
              "#define __ZORV_ROUNDED(name, to, from) \\\n"
              "    __ZORV_LEFT to name##_rte(from); \\\n"
              "    __ZORV_LEFT to name##_rtz(from); \\\n"
              "    __ZORV_LEFT to name##_rtp(from); \\\n"
              "    __ZORV_LEFT to name##_rtn(from);\n"
              "#define __ZORV_UNSATURATED(to, from) __ZORV_ROUNDED(convert_##to, to, from)\n"
              "#define __ZORV_SATURATED(to, from) \\\n"
              "    __ZORV_LEFT to convert_##to##_sat(from); \\\n"
              "    __ZORV_ROUNDED(convert_##to##_sat, to, from)\n"
              "#define __ZORV_PLAIN(to, from) __ZORV_LEFT to convert_##to(from);\n"
              "#define __ZORV_CAST(to, from) \\\n"
              "    __ZORV_OVERLOAD to convert_##to(from __x) { return (to)__x; }\n"
              "#define __ZORV_CONVERTED(to, from) \\\n"
              "    __ZORV_OVERLOAD to convert_##to(from __x) { return __builtin_convertvector(__x, to); }");
    auto print = [](const string& macro, const string& to, const string& from) {
        std::printf("__ZORV_%s(%s, %s)\n__ZORV_WIDTHS(__ZORV_%s, %s, %s)\n", macro.c_str(), to.c_str(), from.c_str(),
                    macro.c_str(), to.c_str(), from.c_str());
    };
    auto print_all = [&](const string& from) {
        for (const auto& [to, is_integer] : targets) {
            if (served[to].contains(from)) continue;
            if (from == "half") {
                print("PLAIN", to, from);
            } else {
                std::printf("__ZORV_CAST(%s, %s)\n__ZORV_WIDTHS(__ZORV_CONVERTED, %s, %s)\n", to.c_str(), from.c_str(),
                            to.c_str(), from.c_str());
            }
            print("UNSATURATED", to, from);
            if (is_integer) print("SATURATED", to, from);
        }
    };
    for (const char* from : {"char", "uchar", "short", "ushort", "int", "uint", "long", "ulong", "float", "double"})
        print_all(from);
    std::puts("#ifdef cl_khr_fp16");
    print_all("half");
    std::puts("#endif\n"
              "#undef __ZORV_WIDTHS\n#undef __ZORV_ROUNDED\n#undef __ZORV_UNSATURATED\n#undef __ZORV_SATURATED\n"
              "#undef __ZORV_PLAIN\n#undef __ZORV_CAST\n#undef __ZORV_CONVERTED");
}

// Every operation with a native class has one in both precisions.
void print_native_names() {
    std::puts("\n/* -D OCL_ZORV_V8_NATIVE: native functions in place of the accurate ones, wherever there are any. */\n"
              "#ifdef OCL_ZORV_V8_NATIVE");
    for (const Family& family : families) {
        string native = builtin_name(family);
        if (family.precision != "float_" || family.accuracy_class != "native" || native == "none") continue;
        string name = operation_of(family).builtin;
        if (name == "recip" || name == "divide") continue;  // these are operators in the accurate class
        std::printf("#undef %s\n#define %s %s\n", name.c_str(), name.c_str(), native.c_str());
    }
    std::puts("#endif");
}

void print_builtins() {
    std::puts(
        "/* OpenCL C built-ins as overloads that call the library: include this before a kernel, and the kernel needs\n"
        " * no change. What the library does not serve of their types is left to the run-time, under the run-time's\n"
        " * own names; built-ins of which it serves no type are not declared.\n"
        " *\n"
        " * Written by tools/grid_outputs.cpp from the grid; do not edit.\n"
        " */\n"
        "#ifndef OCL_ZORV_V8_BUILTINS_H\n"
        "#define OCL_ZORV_V8_BUILTINS_H\n"
        "\n"
        "#if !defined(__OPENCL_C_VERSION__) || __OPENCL_C_VERSION__ < 120\n"
        "#error \"ocl_zorv_v8_builtins.h is for OpenCL C 1.2 and newer, not for C++ for OpenCL: -x cl -cl-std=CL1.2\"\n"
        "#else\n"
        "#include \"ocl_zorv_v8.h\"\n"
        "#ifdef OCL_ZORV_V8_H\n"
        "#ifdef cl_khr_fp16\n"
        "#pragma OPENCL EXTENSION cl_khr_fp16 : enable\n"
        "#endif\n"
        "#pragma clang diagnostic ignored \"-Wpsabi\" /* calls of what follows: all are inlined */\n"
        "\n"
        "/* Always inlined and never emitted: an overload may stand beside a declaration that the run-time has made "
        "of\n"
        " * the same built-in, and takes its place. Some run-times define `inline` away. */\n"
        "#define __ZORV_OVERLOAD extern __inline__ __attribute__((overloadable, always_inline, gnu_inline))\n"
        "#pragma clang diagnostic push\n"
        "#pragma clang diagnostic ignored \"-Wstatic-in-inline\"\n"
        "#define __ZORV_LEFT __attribute__((overloadable, const))\n"
        "#define __ZORV_REFUSED(why) __attribute__((overloadable, unavailable(why)))\n"
        "\n"
        "/* Run-times may lack the generic space in OpenCL C 2.0, and still say that it is there. */\n"
        "#if __OPENCL_C_VERSION__ == 200 ? !defined(OCL_ZORV_V8_LAYER) : defined(__opencl_c_generic_address_space)\n"
        "#define __ZORV_GENERIC_SPACE\n"
        "#endif\n"
        "#if !defined(__ZORV_GENERIC_SPACE) || defined(__opencl_c_named_address_space_builtins)\n"
        "#define __ZORV_NAMED_SPACES\n"
        "#endif");
    string last;
    for (const Family& family : families) {
        auto conversion = conversions.find(family.base);
        if (conversion == conversions.end() && builtin_name(family) == "none") continue;
        if (family.name() != last) std::printf("\n/* %s */\n", family.name().c_str());
        last = family.name();
        if (conversion != conversions.end())
            print_conversion(family, conversion->second);
        else
            print_overloads(overloads_of(family, Server::library));
    }
    print_other_conversions();

    std::puts("\n/* Of the other built-ins the types that the library does not serve. */\n"
              "#ifdef cl_khr_fp16");
    auto others = overloads_without_family();
    for (const auto& overloads : others)
        if (overloads.front().family.lane() == "half") print_overloads(overloads);
    std::puts("#endif");
    for (const auto& overloads : others)
        if (overloads.front().family.lane() != "half") print_overloads(overloads);
    std::puts("\n#undef __ZORV_OVERLOAD\n#undef __ZORV_LEFT\n#undef __ZORV_REFUSED\n#undef __ZORV_GENERIC_SPACE\n"
              "#undef __ZORV_NAMED_SPACES\n#pragma clang diagnostic pop");
    print_native_names();
    std::puts("\n#endif\n#endif\n#endif");
}

void print_version_script() {
    std::puts("{\n  global:");
    for (const Family& family : families)
        for (int width : widths) std::printf("    %s;\n", family.symbol(width).c_str());
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
    else
        return std::fputs("usage: grid_outputs header|builtins|version_script|families|readme\n", stderr), 2;
}
