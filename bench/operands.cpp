#include "bench/operands.h"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>
#include <random>

#include "tools/ranges.h"

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
enum class Precision { float_, double_, both };
enum class Class { accurate, native, any };
struct Row {
    std::string key;
    Precision precision;
    Class class_;
    Kind kind;
    std::vector<Values> operands;
};

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
#define ROW(key, precision, class_, kind, ...) {key, Precision::precision, Class::class_, Kind::kind, {__VA_ARGS__}},
#define IN_RANGE(key, precision, ...) ROW(#key, precision, any, in_range, __VA_ARGS__)
#define RARE(key, precision, class_, ...) ROW(#key, precision, class_, rare, __VA_ARGS__)
#define LONG_PATH(key, precision, class_, ...) ROW(#key, precision, class_, long_path, __VA_ARGS__)
#include "include/operations.def"
    };
    return list;
}

// The row of the base name or of the signature; null without one.
const Row* find(const std::string& key, const grid::Family& family, Kind kind) {
    for (const Row& row : rows())
        if (row.key == key && row.kind == kind &&
            (row.precision == Precision::both || (row.precision == Precision::float_) == family.is_single) &&
            (row.class_ == Class::any || (row.class_ == Class::native) == family.is_native))
            return &row;
    return nullptr;
}

// The first range that names an interval for each operand, or ties the second to the first.
std::optional<accuracy::Range> first_range(const grid::Family& family) {
    for (const accuracy::Range& range : accuracy::ranges_of(family)) {
        bool named = !range.x.is_whole() && !range.beside && !range.width;
        for (size_t i = 1; i < family.operands.size(); ++i)
            named &= !range.operand(i).is_whole() || (i == 1 && range.is_dependent());
        if (named) return range;
    }
    return {};
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

}  // namespace

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
    if (set == Set::in_range) return true;
    return find(family.base, family, set == Set::long_path ? Kind::long_path : Kind::rare) != nullptr;
}

Workload::Workload(const grid::Family& family, Set set) : storage_(1) {
    char* bytes = storage_[0].bytes;
    for (size_t i = 0; i < 3; ++i) arrays_.operands[i] = bytes + i * bytes_apart;
    for (size_t i = 0; i < 2; ++i) arrays_.results[i] = bytes + (3 + i) * bytes_apart;

    const Row* ordinary = find(family.base, family, set == Set::long_path ? Kind::long_path : Kind::in_range);
    const Row* rare = find(family.base, family, Kind::rare);
    std::optional<accuracy::Operands> range;
    if (!ordinary) {
        if (std::optional<accuracy::Range> first = first_range(family)) range.emplace(family, *first);
        ordinary = find(family.signature, family, Kind::in_range);
    }
    std::mt19937 random(20011);
    accuracy::Random random_of_range(20011);
    size_t rare_position = 0;
    for (size_t i = 0; i < elements; ++i) {
        if (i % 64 == 0) rare_position = i + random() % 64;
        bool is_rare = set == Set::all_rare || (set == Set::one_rare_in_64 && i == rare_position);
        if (!is_rare && range) {
            uint64_t patterns[accuracy::Operands::most];
            range->draw(random_of_range, patterns);
            for (size_t operand = 0; operand < family.operands.size(); ++operand) {
                size_t size = grid::size_of(family.operands[operand]);
                std::memcpy(bytes + operand * bytes_apart + i * size, &patterns[operand], size);
            }
            continue;
        }
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
