// The machine code of every export, as the disassembler shows it: the main path calls nothing, stores nothing but
// results through pointers and spills, branches at most once (to the rare lanes, or to the long path), and neither
// converts by truncation nor strays to the x87 but for a width-1 return.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tools/calls.h"

#ifdef __x86_64__
#define STACK_POINTER "rsp"
#else
#define STACK_POINTER "esp"
#endif

namespace {

struct Instruction {
    std::string mnemonic, operands;
};

std::string_view trimmed(std::string_view text) {
    size_t first = text.find_first_not_of(" \n");
    return first == std::string_view::npos ? "" : text.substr(first, text.find_last_not_of(" \n") + 1 - first);
}

// Every function of the library, by name.
std::map<std::string, std::vector<Instruction>> disassemble(const std::string& library) {
    std::string command = "objdump -d --no-show-raw-insn '" + library + "'";
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::map<std::string, std::vector<Instruction>> functions;
    std::vector<Instruction>* current = nullptr;
    char text[4096];
    while (fgets(text, sizeof text, pipe.get())) {
        // "00001230 <name>:", or "    1230:\tmnemonic operands"
        std::string_view line = trimmed(text);
        if (size_t name = line.find(" <"); text[0] == '0' && name != std::string_view::npos) {
            current = &functions[std::string(line.substr(name + 2, line.size() - name - 4))];
        } else if (size_t tab = line.find('\t'); current && tab != std::string_view::npos) {
            std::string_view instruction = line.substr(tab + 1);
            size_t end = std::min(instruction.find(' '), instruction.size());
            current->push_back(
                {std::string(instruction.substr(0, end)), std::string(trimmed(instruction.substr(end)))});
        }
    }
    return functions;
}

const std::map<std::string, std::vector<Instruction>>& functions() {
    static const auto all = disassemble(ZORV_LIBRARY);
    return all;
}

bool is_conditional_jump(const Instruction& i) { return i.mnemonic[0] == 'j' && i.mnemonic != "jmp"; }
// Position-independent code learns its own address by calling the next instruction.
bool reads_own_address(const Instruction& i, const std::string& function) {
    return i.mnemonic == "call" && i.operands.find("<" + function + "+0x") != std::string::npos;
}
// The last operand is the destination; compares and jumps have none.
bool stores_to_memory(const Instruction& i) {
    static const std::set<std::string> reading = {
        "cmp",  "cmpl", "test", "testb", "testl", "bt", "call",  "jmp",
        "push", "flds", "fldl", "nopl",  "nopw",  "cs", "data16"};  // prefixes of padding
    if (reading.contains(i.mnemonic) || is_conditional_jump(i) || i.operands.empty()) return false;
    int depth = 0;
    size_t destination = 0;
    for (size_t at = 0; at < i.operands.size(); ++at) {
        if (i.operands[at] == '(') ++depth;
        if (i.operands[at] == ')') --depth;
        if (i.operands[at] == ',' && depth == 0) destination = at + 1;
    }
    return i.operands.find('(', destination) != std::string::npos;
}

class EveryExport : public testing::TestWithParam<grid::Family> {};
INSTANTIATE_TEST_SUITE_P(Grid, EveryExport, testing::ValuesIn(grid::families()),
                         [](const auto& info) { return info.param.name; });

bool returns_through_pointer(const grid::Family& family, int width) {
    return family.signature == "pair_result" ? width > 1 : width * grid::size_of(family.results[0]) > 64;
}

TEST_P(EveryExport, HasABareMainPath) {
    const grid::Family& family = GetParam();
    for (int width : grid::widths) {
        const std::string& name = family.export_name(width);
        ASSERT_TRUE(functions().contains(name)) << name;
        bool stores_results = family.second_through_pointer || returns_through_pointer(family, width);
        int conditional_jumps = 0, calls = 0, x87 = 0, returns = 0;
        for (const Instruction& i : functions().at(name)) {
            EXPECT_EQ(std::string::npos, i.mnemonic.find("cvtt")) << name << " truncates: " << i.operands;
            if (returns > 0) continue;  // behind the main path's return: the way to the cold part
            if (is_conditional_jump(i)) ++conditional_jumps;
            if (i.mnemonic == "call" && !reads_own_address(i, name)) ++calls;
            if (i.mnemonic[0] == 'f') ++x87;
            if (i.mnemonic == "ret") ++returns;
            if (stores_to_memory(i)) {
                bool is_spill = i.operands.find("(%" STACK_POINTER ")") != std::string::npos;
                EXPECT_TRUE(is_spill || stores_results) << name << " stores: " << i.mnemonic << " " << i.operands;
            }
        }
        if (family.is(grid::all_rare)) continue;
        EXPECT_EQ(1, returns) << name;
        EXPECT_EQ(0, calls) << name;
        EXPECT_LE(conditional_jumps, 1) << name;
        bool is_floating = family.results[0] == grid::Lane::f32 || family.results[0] == grid::Lane::f64;
        bool returned_on_x87 =
            grid::floating_results_on_x87 && width == 1 && is_floating && family.signature != "pair_result";
        EXPECT_EQ(returned_on_x87 ? 1 : 0, x87) << name;
    }
}

// The disassembler's answers are trusted only if they can also be no.
TEST(Disassembly, TellsStoresFromLoads) {
    EXPECT_TRUE(stores_to_memory({"movaps", "%xmm0,0x10(%esp)"}));
    EXPECT_TRUE(stores_to_memory({"movss", "%xmm0,(%ecx)"}));
    EXPECT_TRUE(stores_to_memory({"mov", "%eax,0x4(%ecx,%edx,4)"}));
    EXPECT_TRUE(stores_to_memory({"movl", "$0x0,(%eax)"}));
    EXPECT_FALSE(stores_to_memory({"mulps", "0x10(%esp),%xmm0"}));
    EXPECT_FALSE(stores_to_memory({"mov", "0x4(%ecx,%edx,4),%eax"}));
    EXPECT_FALSE(stores_to_memory({"lea", "-0x4(%eax),%eax"}));
    EXPECT_FALSE(stores_to_memory({"cs", "nopw 0x0(%rax,%rax,1)"}));
    EXPECT_FALSE(stores_to_memory({"addps", "%xmm1,%xmm0"}));
}

}  // namespace
