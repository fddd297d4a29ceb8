// Half a million samples of a chirp. The phase is reduced to an eighth of a turn in integers, so the reference has no
// error but its own rounding; at whole quarters of a turn everybody knows the sample.
#include "host/host.h"

#include <cmath>
#include <cstdio>
#include <iterator>

extern "C" void chirp(const double16* n, double16* cosine, double16* sine, double16* cosine_by_radians,
                      double16* sine_by_radians);

namespace {

constexpr size_t lanes = 16, samples = 8 * 65536;
constexpr long long turn = 1 << 22, quarter = turn / 4;

struct Exact {
    long double cosine, sine;
};

Exact exact_sample(long long n) {
    long long phase = n * n % turn, quarters = (phase + quarter / 2) / quarter;
    // From -1/8 to 1/8 of a turn; the long double nearest to 2 pi is good to 64 bits.
    long double rest = 6.28318530717958647692528676655900577L * static_cast<long double>(phase - quarters * quarter) /
                       static_cast<long double>(turn);
    long double c = std::cos(rest), s = std::sin(rest);
    const Exact turned[] = {{c, s}, {0 - s, c}, {-c, 0 - s}, {s, 0 - c}};
    return turned[quarters % 4];
}

}  // namespace

int main() {
    std::vector<double16> n(samples / lanes), cosine(n.size()), sine(n.size()), rounded_cosine(n.size()),
        rounded_sine(n.size());
    for (size_t i = 0; i < samples; ++i) n[i / lanes][i % lanes] = static_cast<double>(i);
    host::run(n.size(),
              [&] { chirp(n.data(), cosine.data(), sine.data(), rounded_cosine.data(), rounded_sine.data()); });

    // OpenCL allows cospi and sinpi four ulp. 65536 turns in radians are rounded by up to 2^-35.
    host::Worst cosines("cospi(2 turns)", 4), sines("sinpi(2 turns)", 4),
        by_radians("by radians: cos, sin(2 pi turns)", 0x1p-33, "of 1");
    const size_t shown[] = {0, 1, 724, 1024, 1448, 2048, 3072, 65536, 98765, 300000, 524287};
    const size_t* next = shown;
    std::printf("A chirp from 0 to 16384 Hz, double16: cospi, sinpi; beside them cos and sin of radians\n\n");
    std::printf("  %7s %16s %20s %20s %20s %11s\n", "sample", "turns", "cospi(2 turns)", "exact", "cos(2 pi turns)",
                "its error");
    for (size_t i = 0; i < samples; ++i) {
        size_t at = i / lanes, lane = i % lanes;
        Exact exact = exact_sample(static_cast<long long>(i));
        double c = cosine[at][lane], s = sine[at][lane], rc = rounded_cosine[at][lane], rs = rounded_sine[at][lane];
        cosines.add(host::ulps(c, exact.cosine));
        sines.add(host::ulps(s, exact.sine));
        by_radians.add(static_cast<double>(std::fabs(rc - exact.cosine)));
        by_radians.add(static_cast<double>(std::fabs(rs - exact.sine)));
        if (next == std::end(shown) || i != *next) continue;
        ++next;
        auto number = static_cast<double>(i);
        std::printf("  %7zu %16.8f %20.16f %20.16Lf %20.16f %11.2e\n", i, number * number / turn, c, exact.cosine, rc,
                    static_cast<double>(rc - exact.cosine));
    }
    std::puts("");
    bool good = true;
    for (const host::Worst* worst : {&cosines, &sines, &by_radians}) good = worst->report() && good;
    return good ? 0 : 1;
}
