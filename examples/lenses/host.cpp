// Image distances whose values are round numbers: 50 mm of focal length, an object at 150 mm, an image at 75 mm.
#include "host/host.h"

#include <cstdio>

extern "C" {
void image_distances(const float16* f, const float16* s, float16* image, float16* magnification);
void image_distances_accurate(const float16* f, const float16* s, float16* image, float16* magnification);
}

int main() {
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 4);
    auto f = host::column_as<float16, float>(table, 0);
    auto s = host::column_as<float16, float>(table, 1);
    std::vector<float16> image(f.size()), magnification(f.size()), native_image(f.size()),
        native_magnification(f.size());
    host::run(f.size(), [&] {
        image_distances_accurate(f.data(), s.data(), image.data(), magnification.data());
        image_distances(f.data(), s.data(), native_image.data(), native_magnification.data());
    });

    // The difference of two reciprocals enlarges their errors by at most (1/f + 1/s) / (1/f - 1/s), which is 11 at 50
    // and 60 mm; ulps count double where a value stands just above a power of two.
    constexpr double enlarged = 2 * 11, reciprocal = 0.5, native = 6144;
    host::Worst images("1 / (1/f - 1/s)", enlarged * (2 * reciprocal) + 2 * reciprocal),
        magnifications("f / (f - s)", 0.5), native_images("the same, native", enlarged * native + 2 * native),
        native_magnifications("the same, native_divide", 6145);
    std::printf("Images of thin lenses, float16: reciprocal and division, accurate and native\n\n");
    std::printf("  %8s %8s %12s %12s %12s %14s\n", "f", "object", "image", "expected", "native", "magnification");
    for (size_t i = 0; i < table.size(); ++i) {
        const auto& row = table[i];
        size_t at = i / 16, lane = i % 16;
        std::printf("  %8g %8g %12.8g %12.8g %12.8g %14.8g\n", row[0], row[1], image[at][lane], row[2],
                    native_image[at][lane], magnification[at][lane]);
        long double exact_image = 1.0L / (1.0L / row[0] - 1.0L / row[1]);
        long double exact_magnification = static_cast<long double>(row[0]) / (row[0] - row[1]);
        images.add(host::ulps(image[at][lane], exact_image));
        native_images.add(host::ulps(native_image[at][lane], exact_image));
        magnifications.add(host::ulps(magnification[at][lane], exact_magnification));
        native_magnifications.add(host::ulps(native_magnification[at][lane], exact_magnification));
    }
    std::puts("");
    bool good = true;
    for (const host::Worst* worst : {&images, &magnifications, &native_images, &native_magnifications})
        good = worst->report() && good;
    return good ? 0 : 1;
}
