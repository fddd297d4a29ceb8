// xsimd's functions of SSE2 batches, inlined into the loop over the units. They are found by their operands' type, so
// that nothing is listed here. It states no error bounds of its own.
#include <xsimd/xsimd.hpp>

#include "bench/peers/worlds.h"

namespace bench::xsimd_batches {

template <class Element>
using Batch = xsimd::batch<Element, xsimd::sse2>;

struct World {
    template <class Float>
    using Value = Batch<Float>;
    template <class Float>
    using Integer = Batch<int32_t>;
    template <class Float>
    static Batch<Float> splat(double value) {
        return Batch<Float>(static_cast<Float>(value));
    }
    template <class Float>
    static Batch<Float> floating(Batch<int32_t> n) {
        if constexpr (sizeof(Float) == 4)
            return xsimd::to_float(n);
        else
            return Batch<double>(_mm_cvtepi32_pd(n));
    }
    static constexpr bool has_operators = true;
    static constexpr const char* column = "xsimd";
    static constexpr double bound = 4;
};

template <class Element>
Batch<Element> sincos(Batch<Element> x, Batch<Element>& cosine) {
    auto both = xsimd::sincos(x);
    cosine = both.second;
    return both.first;
}

void add(std::vector<Peer>& peers) {
#define PEERS(base, ...) WORLD_PEERS(World, base, __VA_ARGS__)
#include "include/operations.def"
}

}  // namespace bench::xsimd_batches

void bench::add_xsimd(std::vector<Peer>& peers) { xsimd_batches::add(peers); }
