// What README and the pages name is there: exports, families, files.
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "tests/harness/lanes.h"

namespace {

namespace fs = std::filesystem;

std::map<fs::path, std::string> pages() {
    const fs::path docs = ZORV_DOCS_DIRECTORY, root = docs.parent_path();
    std::vector<fs::path> paths = {root / "README.md", root / "CONTRIBUTING.md"};
    for (const fs::path& path : fs::directory_iterator(docs))
        if (path.extension() == ".md") paths.push_back(path);
    std::map<fs::path, std::string> texts;
    for (const fs::path& path : paths) {
        std::ostringstream text;
        text << std::ifstream(path).rdbuf();
        texts[path] = text.str();
    }
    return texts;
}

// What the expression's first group matches in the text.
std::set<std::string> found(const std::string& text, const char* expression) {
    const std::regex pattern(expression);
    std::set<std::string> all;
    for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end; ++match)
        all.insert((*match)[1]);
    return all;
}

// On x86-64 exports with long vectors have an ending more.
std::string without_units(const std::string& name) {
    return name.ends_with("_units") ? name.substr(0, name.rfind("_units")) : name;
}

TEST(Pages, NameWhatStands) {
    std::set<std::string> exports, families;
    for (const grid::Family& family : grid::families()) {
        families.insert(family.name);
        for (const std::string& name : family.exports) exports.insert(without_units(name));
    }
    size_t named_exports = 0, named_families = 0;
    for (const auto& [path, text] : pages()) {
        SCOPED_TRACE(path);
        std::set<std::string> names = found(text, "(__ocl_zorv_v8_\\w+)");
        // Declarations in the convention's tables leave the prefix out: "float4 divf4(".
        for (const std::string& name : found(text, "`\\w+ (\\w+\\d(_native)?)\\("))
            names.insert("__ocl_zorv_v8_" + name);
        // The header's own names for vectors: "__ocl_zorv_v8_float4".
        static const std::regex vector_type("__ocl_zorv_v8_(float|double|u?int|u?long)\\d*(_pair)?(_units)?");
        std::erase_if(names, [](const std::string& name) { return std::regex_match(name, vector_type); });
        named_exports += names.size();
        for (const std::string& name : names) EXPECT_TRUE(exports.contains(without_units(name))) << name;

        names = found(text, "`([a-z]\\w*_native)`");
        names.merge(found(text, "`(cvt(?:fpto|\\w+tofp)\\w+)`"));
        if (path.filename() == "accuracy.md" || path.filename() == "performance.md")
            names.merge(found(text, "\n\\| `(\\w+)`"));
        named_families += names.size();
        for (const std::string& name : names) EXPECT_TRUE(families.contains(name)) << name;
    }
    EXPECT_LT(10u, named_exports);
    EXPECT_LT(300u, named_families);
}

TEST(Pages, LinkToFilesThatAreThere) {
    for (const auto& [path, text] : pages())
        for (const std::string& link : found(text, "\\]\\(([^):# ]+)[^) ]*\\)"))
            EXPECT_TRUE(fs::exists(path.parent_path() / link)) << path << " links to " << link;
}

}  // namespace
