// Audio samples made louder: what no longer fits stops at full scale, and every result is exact to the last bit.
#include "host/host.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>

extern "C" {
void louder(const int4* sample, float gain, int4* result);
void halves(const int8* sample, int8* to_even, int8* toward_zero, int8* up, int8* down);
}

namespace {

// The same in integers and doubles: the float nearest to the sample, one rounded product, clamped, to nearest even.
int expected_louder(int sample, float gain) {
    float product = static_cast<float>(sample) * gain;
    return static_cast<int>(std::clamp<double>(std::nearbyint(static_cast<double>(product)), INT32_MIN, INT32_MAX));
}

}  // namespace

int main() {
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 5);
    auto sample4 = host::column_as<int4, int>(table, 0);
    auto sample8 = host::column_as<int8, int>(table, 0);
    constexpr float gain = 1.4125375f;  // 3 dB
    std::vector<int4> loud(sample4.size());
    std::vector<int8> half[4];
    for (auto& result : half) result.resize(sample8.size());
    host::run(sample4.size(), [&] { louder(sample4.data(), gain, loud.data()); });
    host::run(sample8.size(),
              [&] { halves(sample8.data(), half[0].data(), half[1].data(), half[2].data(), half[3].data()); });

    std::printf(
        "Audio samples, int4 and int8: convert_float4, convert_int4_sat_rte, convert_int8_sat_rte/rtz/rtp/rtn\n\n");
    std::printf("  %12s %12s %12s   %12s %12s %12s %12s\n", "sample", "3 dB louder", "expected", "half, even",
                "toward zero", "up", "down");
    size_t wrong = 0, at_full_scale = 0;
    for (size_t i = 0; i < table.size(); ++i) {
        int sample = static_cast<int>(table[i][0]), result = loud[i / 4][i % 4],
            expected = expected_louder(sample, gain);
        std::printf("  %12d %12d %12d  ", sample, result, expected);
        wrong += result != expected;
        at_full_scale += result == INT32_MAX || result == INT32_MIN;
        for (size_t k = 0; k < 4; ++k) {
            int value = half[k][i / 8][i % 8];
            std::printf(" %12d", value);
            wrong += value != static_cast<int>(table[i][k + 1]);
        }
        std::puts("");
    }
    std::printf("\n  %zu samples stopped at full scale; %zu results differ: %s\n", at_full_scale, wrong,
                wrong == 0 && at_full_scale == 4 ? "good" : "WRONG");
    return wrong == 0 && at_full_scale == 4 ? 0 : 1;
}
