// A digest of what a build of the library computes: every export of the grid, called at its width on a fixed set of
// special and random operands. Two builds that print the same on one machine compute the
// same; another processor's estimates of 1/x and 1/sqrt(x) change what is built on them.
//
//   digest old.so > a; digest new.so > b; diff a b
//   digest old.so sinf cosf       these families alone
//
// A line for each export, with a hash of the bits of all its results, then the number of exports and a total. What
// the grid has and the file has not is named at the end, and counts for nothing.
//
// Builds for i386 and x86-64 are compared as well (tests/abi/same_bits.sh). On i386 a width-1 result of floating type
// comes back on the x87 stack, which makes signalling NaNs quiet. Where there are any, a second hash follows: of the
// results with these NaNs made quiet.
#include <dlfcn.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "frame/units.h"
#include "include/grid_names.h"
#include "ocl_zorv_v8.h"

namespace {

constexpr int max_operands = 3;
// About a million lanes of each width over the whole grid.
constexpr size_t lanes_of_an_export = 6000;

// ---- One call, from the types of the export. -------------------------------------------------------------------

template <class Vector>
struct ElementOf {  // of a vector, or of one in units
    using type = std::remove_reference_t<decltype(std::declval<Vector&>()[0])>;
};
template <class Units>
requires requires(Units units) { units.unit0; }
struct ElementOf<Units> : ElementOf<decltype(Units::unit0)> {};
template <class Scalar>
requires std::is_arithmetic_v<Scalar>
struct ElementOf<Scalar> {
    using type = Scalar;
};

enum class Kind { none, single, twice, integer };  // of a lane; `twice` is the double
struct Shape {
    std::array<Kind, max_operands> operands = {};
    std::array<size_t, max_operands> sizes = {};  // of a lane
    size_t result_size = 0, second_size = 0;      // of a lane
    bool is_one_floating_lane = false;            // the result
};

struct alignas(64) Vector16 {
    unsigned char bytes[128];
};
struct Lanes {
    std::array<Vector16, max_operands> operands;
    std::array<Vector16, 2> results;
};

template <class Function, class Result, class... Operands>
struct Call {
    static Shape shape() {
        Shape shape;
        size_t count = 0;
        auto each = [&]<class Operand>(std::type_identity<Operand>) {
            if constexpr (std::is_pointer_v<Operand>) {
                shape.second_size = sizeof(typename ElementOf<std::remove_pointer_t<Operand>>::type);
            } else {
                using Element = typename ElementOf<Operand>::type;
                shape.sizes[count] = sizeof(Element);
                shape.operands[count++] = std::is_integral_v<Element> ? Kind::integer
                                          : sizeof(Element) == 4      ? Kind::single
                                                                      : Kind::twice;
            }
        };
        (each(std::type_identity<Operands>()), ...);
        if constexpr (requires(Result both) { both.sine; }) {
            shape.result_size = shape.second_size = sizeof(typename ElementOf<decltype(Result::sine)>::type);
        } else {
            shape.result_size = sizeof(typename ElementOf<Result>::type);
            shape.is_one_floating_lane = std::is_floating_point_v<Result>;
            // Of one lane the pair is a vector of two.
            if constexpr ((std::is_arithmetic_v<Operands> && ...) && !std::is_arithmetic_v<Result>)
                shape.result_size = sizeof(Result);
        }
        return shape;
    }

    static void call(void* function, Lanes& lanes) {
        size_t next = 0;
        auto operand = [&]<class Operand>(std::type_identity<Operand>) {
            if constexpr (std::is_pointer_v<Operand>) {
                return reinterpret_cast<Operand>(&lanes.results[1]);
            } else {
                Operand value;
                std::memcpy(&value, &lanes.operands[next++], sizeof value);
                return value;
            }
        };
        // Braces evaluate from left to right.
        Arguments arguments{operand(std::type_identity<Operands>())...};
        Result result = std::apply(reinterpret_cast<Function*>(function), arguments);
        if constexpr (requires { result.sine; }) {
            std::memcpy(&lanes.results[0], &result.sine, sizeof result.sine);
            std::memcpy(&lanes.results[1], &result.cosine, sizeof result.cosine);
        } else {
            std::memcpy(&lanes.results[0], &result, sizeof result);
        }
    }

  private:
    using Arguments = std::tuple<Operands...>;
};

template <class Function>
struct Export;
template <class Result, class... Operands>
struct Export<Result(Operands...)> : Call<Result(Operands...), Result, Operands...> {};
#ifdef __x86_64__
#define THROUGH_UNITS(result, ...) __attribute__((regcall)) result(__VA_ARGS__)
template <class Result, class... Operands>
struct Export<THROUGH_UNITS(Result, Operands...)> : Call<THROUGH_UNITS(Result, Operands...), Result, Operands...> {};
#endif

// ---- Operands: what each vector is made of goes round, so that every path is taken alone and beside others. ------

class Random {
  public:
    explicit Random(const std::string& name) {
        for (char letter : name) state_ = (state_ ^ static_cast<unsigned char>(letter)) * 0x100000001b3;
    }
    uint64_t next() {  // splitmix64
        state_ += 0x9e3779b97f4a7c15;
        uint64_t z = state_;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        return z ^ (z >> 31);
    }
    uint64_t below(uint64_t n) { return next() % n; }
    double unit() { return static_cast<double>(next() >> 11) * 0x1p-53; }

  private:
    uint64_t state_ = 0xcbf29ce484222325;
};

enum class Mood { moderate, unit, wide, huge, any, special, integral, nan, count };

// In single precision; doubles take the same exponents' extremes by their own fields.
uint64_t special(Kind kind, Random& random) {
    constexpr uint32_t floats[] = {0x00000000, 0x80000000, 0x00000001, 0x80000001, 0x007fffff, 0x00800000, 0x80800000,
                                   0x3effffff, 0x3f000000, 0x3f7fffff, 0x3f800000, 0xbf800000, 0x3f800001, 0x40000000,
                                   0x40490fdb, 0x4b000000, 0x4b800000, 0x4f000000, 0xcf000000, 0x5f000000, 0x7f7fffff,
                                   0xff7fffff, 0x7f800000, 0xff800000, 0x7fc00000, 0xffc00001, 0x7f800001, 0xff812345};
    constexpr uint64_t doubles[] = {
        0x0000000000000000, 0x8000000000000000, 0x0000000000000001, 0x8000000000000001, 0x000fffffffffffff,
        0x0010000000000000, 0x8010000000000000, 0x3fdfffffffffffff, 0x3fe0000000000000, 0x3fefffffffffffff,
        0x3ff0000000000000, 0xbff0000000000000, 0x3ff0000000000001, 0x4000000000000000, 0x400921fb54442d18,
        0x41e0000000000000, 0xc1e0000000000000, 0x4330000000000000, 0x4340000000000000, 0x43e0000000000000,
        0xc3e0000000000000, 0x7fefffffffffffff, 0xffefffffffffffff, 0x7ff0000000000000, 0xfff0000000000000,
        0x7ff8000000000000, 0xfff8000000000001, 0x7ff0000000000001, 0xfff0123456789abc};
    if (kind == Kind::single) return floats[random.below(std::size(floats))];
    if (kind == Kind::twice) return doubles[random.below(std::size(doubles))];
    constexpr uint64_t integers[] = {
        0, 1, 2, 3, ~uint64_t{0}, 0x7fffffff, 0x80000000, uint64_t{1} << 63, ~uint64_t{0} >> 1};
    return integers[random.below(std::size(integers))];
}

uint64_t draw(Kind kind, Mood mood, Random& random) {
    auto floating = [&](double value) -> uint64_t {
        if (kind == Kind::single) return __builtin_bit_cast(uint32_t, static_cast<float>(value));
        return __builtin_bit_cast(uint64_t, value);
    };
    if (kind == Kind::integer) {
        if (mood == Mood::any || mood == Mood::wide || mood == Mood::huge) return random.next();
        if (mood == Mood::special) return special(kind, random);
        return random.below(41) - 20;
    }
    int digits = kind == Kind::single ? 23 : 52, bias = kind == Kind::single ? 127 : 1023;
    // A random sign and significand under an exponent from these.
    auto scaled = [&](int lowest, int highest) {
        auto first = static_cast<unsigned>(lowest + bias), last = static_cast<unsigned>(highest + bias);
        uint64_t exponent = first + random.below(last - first + 1);
        uint64_t bits = random.next();
        uint64_t significand = bits & ((uint64_t{1} << digits) - 1), sign = bits >> 63;
        return (sign << (kind == Kind::single ? 31 : 63)) | (exponent << digits) | significand;
    };
    switch (mood) {
        case Mood::moderate:
            return floating(-20 + 40 * random.unit());
        case Mood::unit:
            return floating(0.5 + random.unit());
        case Mood::wide:
            return scaled(-30, 12);
        case Mood::huge:
            return scaled(-bias + 1, bias);
        case Mood::integral:
            return floating(static_cast<double>(random.below(400)) / 2 - 100);
        case Mood::nan:  // of any sign and payload: which of two comes out tells the order of operands
            return scaled(bias + 1, bias + 1) | 1;
        case Mood::special:
            return special(kind, random);
        case Mood::any:
        case Mood::count:
            break;
    }
    return random.next();
}

// ---- The digest. -----------------------------------------------------------------------------------------------

struct Hash {
    uint64_t value = 0xcbf29ce484222325;
    void add(const unsigned char* bytes, size_t count) {
        for (size_t i = 0; i < count; ++i) value = (value ^ bytes[i]) * 0x100000001b3;
    }
};

struct Row {
    const char *family, *name, *symbol;
    int width;
    Shape (*shape)();
    void (*call)(void*, Lanes&);
};
const Row rows[] = {
#define ROW(base, precision, class_, signature, width)                                  \
    {TEXT(FAMILY_NAME(base, precision, class_)),                                        \
     TEXT(EXPORT_NAME(base, precision, class_, width)),                                 \
     TEXT(EXPORT_SYMBOL(base, precision, class_, signature, width)),                    \
     width,                                                                             \
     Export<decltype(EXPORT_SYMBOL(base, precision, class_, signature, width))>::shape, \
     Export<decltype(EXPORT_SYMBOL(base, precision, class_, signature, width))>::call},
#define FAMILY(base, precision, class_, signature, home, traits, bound) \
    FOR_EACH_WIDTH(ROW, base, precision, class_, signature)
#include "include/grid.def"
};

// A signalling NaN becomes quiet; nothing else changes.
bool make_quiet(unsigned char* lane, size_t size) {
    uint64_t bits = 0;
    std::memcpy(&bits, lane, size);
    int digits = size == 4 ? 23 : 52;
    uint64_t infinity = (size == 4 ? uint64_t{0xff} : uint64_t{0x7ff}) << digits, quiet = uint64_t{1} << (digits - 1);
    uint64_t mantissa = bits & (2 * quiet - 1);
    if ((bits & infinity) != infinity || mantissa == 0 || (mantissa & quiet) != 0) return false;
    bits |= quiet;
    std::memcpy(lane, &bits, size);
    return true;
}

struct Digest {
    Hash hash, quieted;
    bool has_signalling = false;
};

Digest digest(const Row& row, void* function) {
    Random random(row.name);
    Digest digest;
    Shape shape = row.shape();
    int width = row.width;
    size_t room = width == 3 ? 4 : static_cast<size_t>(width), live = static_cast<size_t>(width);
    constexpr auto moods = static_cast<size_t>(Mood::count);
    for (size_t v = 0; v < lanes_of_an_export / live; ++v) {
        Lanes lanes;
        std::memset(&lanes, 0xa5, sizeof lanes);
        Mood all = static_cast<Mood>(v % moods), one = static_cast<Mood>(random.below(moods));
        size_t odd_one = (v / moods) % 2 ? random.below(live) : room;  // the lane that differs from its neighbours
        for (size_t lane = 0; lane < room; ++lane)
            for (size_t i = 0; i < max_operands && shape.operands[i] != Kind::none; ++i) {
                uint64_t bits = draw(shape.operands[i], lane == odd_one ? one : all, random);
                std::memcpy(lanes.operands[i].bytes + lane * shape.sizes[i], &bits, shape.sizes[i]);
            }
        row.call(function, lanes);
        auto add_to = [&](Hash& hash) {
            hash.add(lanes.results[0].bytes, live * shape.result_size);
            if (shape.second_size) hash.add(lanes.results[1].bytes, live * shape.second_size);
        };
        add_to(digest.hash);
        if (!shape.is_one_floating_lane) continue;
        digest.has_signalling |= make_quiet(lanes.results[0].bytes, shape.result_size);
        add_to(digest.quieted);
    }
    return digest;
}

}  // namespace

int main(int count, char** words) {
    if (count < 2) {
        std::fprintf(stderr, "digest: which library? digest .../__ocl_zorv_v8.so [families]\n");
        return 2;
    }
    std::string path = words[1];
    if (path.find('/') == std::string::npos) path = "./" + path;  // a file, not a name to search for
    void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        std::fprintf(stderr, "digest: %s\n", dlerror());
        return 2;
    }
    std::set<std::string> wanted(words + 2, words + count);
    std::vector<const char*> missing;
    Hash total;
    size_t found = 0, lanes = 0;
    for (const Row& row : rows) {
        if (!wanted.empty() && !wanted.contains(row.family)) continue;
        void* function = dlsym(library, row.symbol);
        if (!function) {
            missing.push_back(row.name);
            continue;
        }
        Digest result = digest(row, function);
        uint64_t value = result.hash.value;
        std::printf("%-44s %016llx", row.name, static_cast<unsigned long long>(value));
        if (result.has_signalling) std::printf(" %016llx", static_cast<unsigned long long>(result.quieted.value));
        std::puts("");
        total.add(reinterpret_cast<const unsigned char*>(&value), sizeof value);
        ++found;
        lanes += lanes_of_an_export;
    }
    std::printf("%zu exports, %zu lanes: %016llx\n", found, lanes, static_cast<unsigned long long>(total.value));
    for (const char* name : missing) std::printf("missing: %s\n", name);
    return found == 0;
}
