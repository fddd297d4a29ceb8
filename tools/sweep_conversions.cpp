// Every conversion of a 32-bit operand over all 2^32 of them, against integer arithmetic:
//
//   sweep_conversions [stride [first]]     every stride-th operand from `first` on; all of them if not told
//
// Prints the differences, ten for each family, and how many operands ran. Several runs can share the work: with a
// stride of 2, one starts at 0 and one at 1.
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "tools/calls.h"
#include "tools/conversion_reference.h"

namespace {

constexpr int block = 1024, width = 16;

struct Checked {
    const grid::Family* family;
    conversions::Axes axes;
    uint64_t differences;
};

void check_block(Checked& checked, const uint32_t (&operands)[block]) {
    alignas(64) unsigned char result[width * 8];
    size_t size = grid::size_of(checked.family->results[0]);
    grid::Call call = checked.family->call(width);
    void* results[] = {result};
    for (int first = 0; first < block; first += width) {
        const void* in[] = {operands + first};
        call(in, results);
        for (int lane = 0; lane < width; ++lane) {
            uint64_t actual = 0;
            std::memcpy(&actual, result + static_cast<size_t>(lane) * size, size);
            uint32_t operand = operands[first + lane];
            uint64_t expected = conversions::expected(checked.axes, operand);
            if (actual != expected && ++checked.differences <= 10)
                std::printf("%s: %#" PRIx32 " gives %#" PRIx64 ", expected %#" PRIx64 "\n",
                            checked.family->name.c_str(), operand, actual, expected);
        }
    }
}

}  // namespace

int main(int count, char** arguments) {
    uint64_t stride = count > 1 ? std::strtoull(arguments[1], nullptr, 10) : 1;
    uint64_t start = count > 2 ? std::strtoull(arguments[2], nullptr, 10) : 0;
    if (stride == 0) return std::fputs("usage: sweep_conversions [stride [first]]\n", stderr), 2;
    std::vector<Checked> families;
    for (const grid::Family& family : grid::families()) {
        auto axes = conversions::axes_of(family.base, family.is_single);
        if (axes && grid::size_of(family.operands[0]) == 4) families.push_back({&family, *axes, 0});
    }

    uint64_t operands_run = 0;
    for (uint64_t first = start; first < uint64_t{1} << 32; first += block * stride) {
        uint32_t operands[block];
        for (uint64_t i = 0; i < block; ++i) operands[i] = static_cast<uint32_t>(first + i * stride);
        for (Checked& checked : families) check_block(checked, operands);
        operands_run += block;
    }

    uint64_t differences = 0;
    for (const Checked& checked : families) differences += checked.differences;
    std::printf("%zu families, %" PRIu64 " operands each, %" PRIu64 " differences\n", families.size(), operands_run,
                differences);
    return differences != 0 || families.empty();
}
