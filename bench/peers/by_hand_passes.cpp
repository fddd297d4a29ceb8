#include "bench/passes.h"
#include "bench/peers/by_hand.h"

namespace bench {

// Exact to the bit what the families compute, so held to no error beyond the largest of theirs.
void add_by_hand(std::vector<Peer>& peers) {
#define BY_HAND(base, letter, width, result, ...) \
    peers.push_back({#base #letter,               \
                     "by_hand",                   \
                     1,                           \
                     {width},                     \
                     vector_pass<BY_HAND_NAME(base, letter, width), false>(&BY_HAND_NAME(base, letter, width))});
    BY_HAND_FUNCTIONS
#undef BY_HAND
}

}  // namespace bench
