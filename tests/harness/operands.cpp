#include "tests/harness/operands.h"

namespace harness {

std::vector<uint64_t> special_patterns(grid::Lane lane) {
    switch (lane) {
        case grid::Lane::f32:
            return {0x00000000, 0x80000000, 0x3f800000, 0xbf800000, 0x3f000000, 0xc0200000, 0x00000001, 0x807fffff,
                    0x00800000, 0x7f7fffff, 0xff7fffff, 0x7f800000, 0xff800000, 0x7fc00000, 0xffc01234, 0x42ae0000,
                    0xc2d00000, 0x461c4000, 0x461c4001, 0x7e967699, 0x4b000000, 0xcb000001, 0x4f000000, 0xdf000000};
        case grid::Lane::f64:
            return {0x0000000000000000, 0x8000000000000000, 0x3ff0000000000000, 0xbff0000000000000, 0x3fe0000000000000,
                    0xc004000000000000, 0x0000000000000001, 0x800fffffffffffff, 0x0010000000000000, 0x7fefffffffffffff,
                    0xffefffffffffffff, 0x7ff0000000000000, 0xfff0000000000000, 0x7ff8000000000000, 0xfff8000000001234,
                    0x4086000000000000, 0xc087800000000000, 0x4170000000000000, 0x7e37e43c8800759c, 0x4330000000000000,
                    0xc330000000000001, 0x41e0000000000000, 0xc3e0000000000000, 0x43f0000000000000};
        case grid::Lane::i32:
        case grid::Lane::u32:
            return {0, 1, 2, 3, 0xffffffff, 0xfffffffe, 0x7fffffff, 0x80000000, 0x01000001, 150, 0xffffff00, 5};
        case grid::Lane::i64:
        case grid::Lane::u64:
            return {0,
                    1,
                    0xffffffffffffffff,
                    0x7fffffffffffffff,
                    0x8000000000000000,
                    0x0000000080000000,
                    0x00000000ffffffff,
                    0x0020000000000001,
                    0x0000800000800001,
                    5};
    }
    return {};
}

uint64_t ordinary_pattern(grid::Lane lane, Random& random) {
    uint64_t bits = random.next();
    if (lane == grid::Lane::f32) return 0x3f800000 | (bits & 0x007fffff);
    if (lane == grid::Lane::f64) return 0x3ff0000000000000 | (bits & 0x000fffffffffffff);
    return bits & 7;
}

uint64_t random_pattern(grid::Lane lane, Random& random) {
    for (;;) {
        uint64_t bits = random.next();
        if (grid::size_of(lane) == 4) bits &= 0xffffffff;
        if (!is_signalling(lane, bits)) return bits;
    }
}

std::vector<std::vector<uint64_t>> operand_tuples(const grid::Family& family, size_t random_count) {
    std::vector<std::vector<uint64_t>> tuples;
    Random random(0x5eed);
    std::vector<std::vector<uint64_t>> specials;
    for (grid::Lane lane : family.operands) specials.push_back(special_patterns(lane));
    // Every pair of specials in the first two operands, the third moving along.
    for (size_t i = 0; i < specials[0].size(); ++i)
        for (size_t j = 0; j < (specials.size() > 1 ? specials[1].size() : 1); ++j) {
            std::vector<uint64_t> tuple = {specials[0][i]};
            if (specials.size() > 1) tuple.push_back(specials[1][j]);
            if (specials.size() > 2) tuple.push_back(specials[2][(i + 3 * j) % specials[2].size()]);
            tuples.push_back(tuple);
        }
    for (size_t i = 0; i < random_count; ++i) {
        std::vector<uint64_t> tuple;
        for (grid::Lane lane : family.operands)
            tuple.push_back(i % 2 ? random_pattern(lane, random) : ordinary_pattern(lane, random));
        tuples.push_back(tuple);
    }
    return tuples;
}

}  // namespace harness
