// The OpenCL built-in that a family serves, and the sources that are the families' homes.
#pragma once

#include <map>
#include <string>

#include "tools/calls.h"

namespace grid {

inline std::string name_of(Lane lane) {
    switch (lane) {
        case Lane::f32:
            return "float";
        case Lane::f64:
            return "double";
        case Lane::i32:
            return "int";
        case Lane::u32:
            return "uint";
        case Lane::i64:
            return "long";
        case Lane::u64:
            return "ulong";
    }
    return "";
}
inline std::string vector_name(Lane lane, int width) {
    return name_of(lane) + (width == 1 ? "" : std::to_string(width));
}

// Empty for a family that no built-in's name leads to.
inline std::string builtin_of(const Family& family, int width) {
    struct Conversion {
        std::string rounding, saturation;
    };
    static const std::map<std::string, Conversion> conversions = {
#define TO_INTEGER(base, precision, target, rounding, saturation) {#base, {#rounding, #saturation}},
#define FROM_INTEGER(base, precision, source, rounding) {#base, {#rounding, ""}},
#include "include/grid.def"
    };
    // The tags here and the suffixes there differ: `rtn` is to nearest, `_rtn` is down.
    static const std::map<std::string, std::string> suffixes = {
        {"rtn", "_rte"}, {"rtz", "_rtz"}, {"up", "_rtp"}, {"down", "_rtn"}};
    if (auto found = conversions.find(family.base); found != conversions.end())
        return "convert_" + vector_name(family.results[0], width) + (found->second.saturation == "sat" ? "_sat" : "") +
               suffixes.at(found->second.rounding);

    static const std::map<std::string, std::string> builtins = {
#define OPERATION(base, builtin, what) {#base, #builtin},
#include "include/operations.def"
    };
    const std::string& name = builtins.at(family.base);
    if (name == "none") return "";
    if (family.is_native) return "native_" + name;
    return name == "recip" || name == "divide" ? "" : name;  // these are operators in the accurate class
}

inline std::string home_of(const Family& family) {
    static const std::map<std::string, std::string> homes = {
#define FAMILY(base, precision, class_, signature, home, traits, bound) \
    {TEXT(FAMILY_NAME(base, precision, class_)), #home},
#include "include/grid.def"
    };
    return homes.at(family.name);
}

}  // namespace grid
