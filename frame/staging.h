// Where the rare lanes are repaired: a copy of a vector in memory, lane by lane.
#pragma once

#include "frame/shaping.h"

namespace zorv {

// An array of lanes that starts on a cache line and fills whole lines. The rare routine gets pointers into it.
template <class Lane, int width>
struct alignas(64) StagingArea {
    Lane slots[64 / sizeof(Lane) < room<width> ? room<width> : 64 / sizeof(Lane)];

    explicit StagingArea(Vector<Lane, width> vector) { __builtin_memcpy(slots, &vector, sizeof vector); }
    Vector<Lane, width> reload() const {
        Vector<Lane, width> vector;
        __builtin_memcpy(&vector, slots, sizeof vector);
        return vector;
    }
};

}  // namespace zorv
