#include "bench/operands.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>

namespace bench {
namespace {

struct Values {
    enum { even, exponents, list } kind;
    std::vector<double> numbers;

    double draw(std::mt19937& random) const {
        double at = std::uniform_real_distribution<double>(0, 1)(random);
        switch (kind) {
            case even:
                return numbers[0] + at * (numbers[1] - numbers[0]);
            case exponents:
                return numbers[0] * std::pow(numbers[1] / numbers[0], at);
            case list:
                return numbers[static_cast<size_t>(at * static_cast<double>(numbers.size()))];
        }
        return 0;
    }
};

enum class Kind { in_range, rare, long_path };
struct Row {
    std::string key;
    bool is_single;
    std::string class_name;  // empty: any
    Kind kind;
    std::vector<Values> operands;
};

#define SINGLE_float_ true
#define SINGLE_double_ false
#define BETWEEN(low, high)          \
    Values {                        \
        Values::even, { low, high } \
    }
#define SPREAD(low, high)                \
    Values {                             \
        Values::exponents, { low, high } \
    }
#define ONE_OF(...)                   \
    Values {                          \
        Values::list, { __VA_ARGS__ } \
    }
const std::vector<Row>& rows() {
    static const std::vector<Row> list = {
#define IN_RANGE(key, precision, ...) {#key, SINGLE_##precision, "", Kind::in_range, {__VA_ARGS__}},
#define RARE(key, precision, class_, ...) {#key, SINGLE_##precision, #class_, Kind::rare, {__VA_ARGS__}},
#define LONG_PATH(key, precision, class_, ...) {#key, SINGLE_##precision, #class_, Kind::long_path, {__VA_ARGS__}},
#include "bench/operands.def"
#define IN_RANGE(key, precision, ...) {#key, SINGLE_##precision, "", Kind::in_range, {__VA_ARGS__}},
#define RARE(key, precision, class_, ...) {#key, SINGLE_##precision, #class_, Kind::rare, {__VA_ARGS__}},
#define LONG_PATH(key, precision, class_, ...) {#key, SINGLE_##precision, #class_, Kind::long_path, {__VA_ARGS__}},
#include "include/operations.def"
    };
    return list;
}

const Row* find(const grid::Family& family, Kind kind) {
    for (const std::string& key : {family.base, family.signature})
        for (const Row& row : rows())
            if (row.key == key && row.is_single == family.is_single && row.kind == kind &&
                (row.class_name.empty() || row.class_name == (family.is_native ? "native" : "accurate")))
                return &row;
    return nullptr;
}

template <class Element>
void store(void* array, size_t i, Element value) {
    std::memcpy(static_cast<char*>(array) + i * sizeof value, &value, sizeof value);
}
void store_lane(void* array, grid::Lane lane, size_t i, double value) {
    switch (lane) {
        case grid::Lane::f32:
            return store(array, i, static_cast<float>(value));
        case grid::Lane::f64:
            return store(array, i, value);
        case grid::Lane::i32:
            return store(array, i, static_cast<int32_t>(value));
        case grid::Lane::u32:
            return store(array, i, static_cast<uint32_t>(value));
        case grid::Lane::i64:
            return store(array, i, static_cast<int64_t>(value));
        case grid::Lane::u64:
            return store(array, i, static_cast<uint64_t>(value));
    }
}

template <class Element>
long double fetch(const void* array, size_t i) {
    return static_cast<long double>(static_cast<const Element*>(array)[i]);
}

}  // namespace

long double lane_at(const void* array, grid::Lane lane, size_t i) {
    switch (lane) {
        case grid::Lane::f32:
            return fetch<float>(array, i);
        case grid::Lane::f64:
            return fetch<double>(array, i);
        case grid::Lane::i32:
            return fetch<int32_t>(array, i);
        case grid::Lane::u32:
            return fetch<uint32_t>(array, i);
        case grid::Lane::i64:
            return fetch<int64_t>(array, i);
        case grid::Lane::u64:
            return fetch<uint64_t>(array, i);
    }
    return 0;
}

const char* name_of(Set set) {
    switch (set) {
        case Set::in_range:
            return "in_range";
        case Set::one_rare_in_64:
            return "one_rare_in_64";
        case Set::all_rare:
            return "all_rare";
        case Set::long_path:
            return "long_path";
    }
    return "";
}

bool has_set(const grid::Family& family, Set set) {
    if (set == Set::in_range) return find(family, Kind::in_range) != nullptr;
    return find(family, set == Set::long_path ? Kind::long_path : Kind::rare) != nullptr;
}

Workload::Workload(const grid::Family& family, Set set) : storage_(1) {
    char* bytes = storage_[0].bytes;
    for (size_t i = 0; i < 3; ++i) arrays_.operands[i] = bytes + i * bytes_apart;
    for (size_t i = 0; i < 2; ++i) arrays_.results[i] = bytes + (3 + i) * bytes_apart;

    const Row* ordinary = find(family, set == Set::long_path ? Kind::long_path : Kind::in_range);
    const Row* rare = find(family, Kind::rare);
    std::mt19937 random(20011);
    size_t rare_position = 0;
    for (size_t i = 0; i < elements; ++i) {
        if (i % 64 == 0) rare_position = i + random() % 64;
        bool is_rare = set == Set::all_rare || (set == Set::one_rare_in_64 && i == rare_position);
        const Row* row = is_rare ? rare : ordinary;
        for (size_t operand = 0; operand < family.operands.size(); ++operand)
            store_lane(bytes + operand * bytes_apart, family.operands[operand], i, row->operands[operand].draw(random));
    }
}

// Nothing that a candidate has left behind can pass for another's answer.
void Workload::clear_results() {
    for (void* result : arrays_.results) std::memset(result, 0xa5, elements * 8);
}

}  // namespace bench
