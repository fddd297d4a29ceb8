// Gamma correction of a colour chart and of all 256 codes: light against 64 bits, and every code back as it was.
#include "host/host.h"

#include <cmath>
#include <cstdio>

extern "C" {
void to_light(const float3* code, float3* light, float3* light_native);
void to_codes(const float3* light, float3* code, float3* code_native);
}

namespace {

constexpr size_t channels = 3;

long double exact_light(float code) {
    long double v = code / 255.0L;
    return v <= 0.04045L ? v / 12.92L : std::pow((v + 0.055L) / 1.055L, 2.4L);
}

}  // namespace

int main() {
    auto chart = host::read_table(EXAMPLE_FOLDER "/data.txt", channels);
    std::vector<float3> code;
    for (const auto& row : chart) {
        code.emplace_back();
        for (size_t k = 0; k < channels; ++k) code.back()[k] = static_cast<float>(row[k]);
    }
    for (int grey = 0; grey < 256; ++grey) code.push_back(float3{} + static_cast<float>(grey));
    std::vector<float3> light(code.size()), light_native(code.size()), again(code.size()), again_native(code.size());
    host::run(code.size(), [&] { to_light(code.data(), light.data(), light_native.data()); });
    host::run(code.size(), [&] { to_codes(light.data(), again.data(), again_native.data()); });

    // OpenCL allows powr 16 ulp. The base is rounded four times, and its constants once each; 2.4 times as much
    // arrives.
    host::Worst lights("powr(base, 2.4)", 16 + 2.4 * 2 * 3), natives("native_powr(base, 2.4)", 6e-4, "of the result"),
        codes("codes back by powr", 0, "codes"), native_codes("codes back by native_powr", 0, "codes");
    std::printf("A colour chart, float3: powr, native_powr\n\n");
    std::printf("  %11s   %10s %10s %10s   %10s %10s %10s   %s\n", "code", "red light", "green", "blue", "by native",
                "green", "blue", "code again");
    for (size_t i = 0; i < code.size(); ++i) {
        if (i < chart.size()) {
            std::printf("  %3.0f %3.0f %3.0f  ", code[i][0], code[i][1], code[i][2]);
            for (const float3& shown : {light[i], light_native[i]}) {
                for (size_t k = 0; k < channels; ++k) std::printf(" %10.8f", double{shown[k]});
                std::printf("  ");
            }
            std::printf(" %3.0f %3.0f %3.0f\n", again[i][0], again[i][1], again[i][2]);
        }
        for (size_t k = 0; k < channels; ++k) {
            long double exact = exact_light(code[i][k]);
            lights.add(host::ulps(light[i][k], exact));
            if (exact != 0) natives.add(static_cast<double>(std::fabs(light_native[i][k] / exact - 1)));
            codes.add(std::fabs(again[i][k] - code[i][k]));
            native_codes.add(std::fabs(again_native[i][k] - code[i][k]));
        }
    }
    std::puts("");
    bool good = true;
    for (const host::Worst* worst : {&lights, &natives, &codes, &native_codes}) good = worst->report() && good;
    return good ? 0 : 1;
}
