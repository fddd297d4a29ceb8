// The long paths' repair of what has no reduction: infinities and NaN.
#pragma once

#include "frame/lane_frame.h"
#include "frame/scalar.h"
#include "kernels/trig/reduction_data.h"

namespace zorv {

// Lanes whose exponent field is all ones.
inline I4 infinite_or_nan(F4 x) {
    const auto& data = in_memory(reductionf_data);
    return (bits(x) & data.infinity) == data.infinity;
}
inline L2 infinite_or_nan(D2 x) {
    const auto& data = in_memory(reductiond_data);
    return from_halves(halves(bits(x) & data.infinity) == halves(L2(data.infinity)));  // the high halves tell
}

// A long path whose infinities and NaN are repaired: one or two results, of the same value.
template <class Path>
struct Repaired {
    using Unit = typename Path::Unit;
    static auto main(Unit x) { return with_rare_lanes(Path::main(x), infinite_or_nan(x)); }

    template <class Float, class... Results>
    static Status rare(const Float* x, Results*... results) {
        if (!is_infinite_or_nan(*x)) return RARE_OK;
        bool infinite = (pattern(*x) & Fields<Float>::mantissa) == 0;
        Float nan = infinite ? *x * Float(0) : *x * *x;
        ((*results = nan), ...);
        return infinite ? RARE_DOMAIN : RARE_OK;
    }

  private:
    static Lanes<Unit> with_rare_lanes(Unit result, MaskOf<Unit> rare) { return {result, rare}; }
    static Lanes<Unit, Unit> with_rare_lanes(Both<Unit, Unit> results, MaskOf<Unit> rare) {
        return {results.first, results.second, rare};
    }
};

}  // namespace zorv
