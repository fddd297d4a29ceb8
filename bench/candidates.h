// What can be timed: a pass over arrays, under a name, with the error that it may have.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace bench {

// Elements of every operand and result array. At width 3 every fourth one is the idle lane of its vector.
inline constexpr size_t elements = 1024;

struct Arrays {
    const void* operands[3];
    void* results[2];

    template <class T>
    const T* operand(size_t i) const {
        return static_cast<const T*>(operands[i]);
    }
    template <class T>
    T* result(size_t i) const {
        return static_cast<T*>(results[i]);
    }
};

// All elements once, each result stored.
using Pass = void (*)(const Arrays&);

// The passes over this library's exports: for each standing family, in the grid's order, one for each width.
const std::vector<std::array<Pass, 6>>& export_passes();
// Their floors, in the same order; null where there is none. The guarded one keeps the mask of rare lanes.
struct FloorPasses {
    Pass bare, guarded;
};
const std::vector<FloorPasses>& floor_passes();

// Somebody else's way to the same results.
struct Peer {
    std::string family;  // as the grid names it
    std::string column;  // of the table
    double bound;        // in ulp: with a larger error it is not timed
    std::vector<int> widths;
    Pass pass;
};

void add_c_library(std::vector<Peer>& peers);
void add_by_hand(std::vector<Peer>& peers);
void add_sleef(std::vector<Peer>& peers);
void add_xsimd(std::vector<Peer>& peers);

}  // namespace bench
