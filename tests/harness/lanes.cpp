#include "tests/harness/lanes.h"

#include <cstdio>

namespace harness {
namespace {

struct alignas(64) Buffer {
    unsigned char bytes[128] = {};
};

void write_lane(Buffer& buffer, grid::Lane lane, size_t index, uint64_t bits) {
    std::memcpy(buffer.bytes + index * grid::size_of(lane), &bits, grid::size_of(lane));
}
uint64_t read_lane(const Buffer& buffer, grid::Lane lane, size_t index) {
    uint64_t bits = 0;
    std::memcpy(&bits, buffer.bytes + index * grid::size_of(lane), grid::size_of(lane));
    return bits;
}

std::string hex(const std::vector<uint64_t>& values) {
    std::string text;
    for (uint64_t value : values) {
        char one[24];
        std::snprintf(one, sizeof one, " %#llx", static_cast<unsigned long long>(value));
        text += one;
    }
    return text;
}

bool matches(grid::Lane lane, int width, uint64_t expected, uint64_t actual) {
    if (expected == any_nan) return is_nan(lane, actual);
    if (grid::floating_results_on_x87 && width == 1 && is_signalling(lane, expected))
        expected |= lane == grid::Lane::f32 ? 1u << 22 : 1ull << 51;
    return expected == actual;
}

}  // namespace

bool is_nan(grid::Lane lane, uint64_t bits) {
    if (lane == grid::Lane::f32) return (bits & 0x7fffffff) > 0x7f800000;
    if (lane == grid::Lane::f64) return (bits & 0x7fffffffffffffff) > 0x7ff0000000000000;
    return false;
}

bool is_signalling(grid::Lane lane, uint64_t bits) {
    return is_nan(lane, bits) && (bits & (lane == grid::Lane::f32 ? 1ull << 22 : 1ull << 51)) == 0;
}

std::vector<Patterns> call(const grid::Family& family, int width, const std::vector<Patterns>& operands) {
    size_t lanes = static_cast<size_t>(grid::room(width));
    std::vector<Buffer> in(operands.size()), out(family.results.size());
    std::vector<const void*> in_pointers;
    std::vector<void*> out_pointers;
    for (size_t i = 0; i < operands.size(); ++i) {
        for (size_t lane = 0; lane < lanes; ++lane) write_lane(in[i], family.operands[i], lane, operands[i][lane]);
        in_pointers.push_back(in[i].bytes);
    }
    for (Buffer& buffer : out) out_pointers.push_back(buffer.bytes);
    family.call(width)(in_pointers.data(), out_pointers.data());

    std::vector<Patterns> results(out.size(), Patterns(lanes));
    for (size_t i = 0; i < out.size(); ++i)
        for (size_t lane = 0; lane < lanes; ++lane) results[i][lane] = read_lane(out[i], family.results[i], lane);
    return results;
}

std::vector<uint64_t> call_uniform(const grid::Family& family, int width, const std::vector<uint64_t>& operands) {
    std::vector<Patterns> lanes;
    for (uint64_t operand : operands) lanes.emplace_back(grid::room(width), operand);
    std::vector<uint64_t> first_lanes;
    for (const Patterns& result : call(family, width, lanes)) first_lanes.push_back(result[0]);
    return first_lanes;
}

const grid::Family& family(const std::string& name) {
    const grid::Family* found = grid::find(name);
    if (!found) {
        ADD_FAILURE() << name << " does not stand";
        std::abort();
    }
    return *found;
}

void expect_rows(const std::string& family_name, const std::vector<Row>& rows, const std::vector<int>& widths) {
    const grid::Family& f = family(family_name);
    for (int width : widths)
        for (size_t first = 0; first < rows.size(); ++first) {
            // Row `first` in lane 0, its successors in the lanes behind it: over all rows, each row in each lane.
            std::vector<Patterns> operands(f.operands.size(), Patterns(static_cast<size_t>(grid::room(width))));
            for (size_t lane = 0; lane < operands[0].size(); ++lane)
                for (size_t i = 0; i < operands.size(); ++i)
                    operands[i][lane] = rows[(first + lane) % rows.size()].operands[i];
            std::vector<Patterns> results = call(f, width, operands);
            for (size_t lane = 0; lane < static_cast<size_t>(width); ++lane) {
                const Row& row = rows[(first + lane) % rows.size()];
                for (size_t i = 0; i < row.results.size(); ++i)
                    EXPECT_TRUE(matches(f.results[i], width, row.results[i], results[i][lane]))
                        << f.export_name(width) << " lane " << lane << " of" << hex(row.operands) << ": result " << i
                        << " is" << hex({results[i][lane]}) << ", expected" << hex({row.results[i]});
            }
        }
}

void expect_beside(const std::string& family_name, const std::vector<BesideRow>& rows,
                   const std::vector<uint64_t>& calm, const std::vector<uint64_t>& deciding) {
    const grid::Family& f = family(family_name);
    const uint64_t one = f.is_single ? pattern(1.0f) : pattern(1.0);
    auto try_neighbour = [&](int width, size_t lane, size_t other, uint64_t neighbour, const BesideRow& row,
                             uint64_t expected) {
        Patterns x(static_cast<size_t>(grid::room(width)), one);
        x[lane] = row.operand;
        x[other] = neighbour;
        EXPECT_EQ(expected, call(f, width, {x})[0][lane])
            << f.export_name(width) << " lane " << lane << " of" << hex({row.operand}) << " beside" << hex({neighbour})
            << " in lane " << other;
    };
    for (int width : {2, 3, 4, 8, 16})
        for (size_t lane = 0; lane < static_cast<size_t>(width); ++lane)
            for (size_t other = 0; other < static_cast<size_t>(width); ++other)
                for (const BesideRow& row : rows) {
                    if (lane == other) continue;
                    for (uint64_t neighbour : calm) try_neighbour(width, lane, other, neighbour, row, row.beside_calm);
                    for (uint64_t neighbour : deciding)
                        try_neighbour(width, lane, other, neighbour, row, row.beside_deciding);
                }
}

}  // namespace harness
