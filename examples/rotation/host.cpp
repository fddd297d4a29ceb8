// Points turned by angles from 2^-1000 to the largest double and back, and sines, cosines and tangents known to 21
// digits.
#include "host/host.h"

#include <cmath>
#include <cstdio>

extern "C" {
void rotate_and_back(const double2* angle, const double2* x, const double2* y, double2* sine, double2* cosine,
                     double2* turned_x, double2* turned_y, double2* back_x, double2* back_y);
void slopes(const double2* angle, double2* slope);
}

int main() {
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 4);
    auto angle = host::column_as<double2, double>(table, 0);
    size_t size = angle.size();
    std::vector<double2> x(size, double2{3, 3}), y(size, double2{4, 4}), sine(size), cosine(size), slope(size),
        turned_x(size), turned_y(size), back_x(size), back_y(size);
    host::run(size, [&] {
        rotate_and_back(angle.data(), x.data(), y.data(), sine.data(), cosine.data(), turned_x.data(), turned_y.data(),
                        back_x.data(), back_y.data());
        slopes(angle.data(), slope.data());
    });

    // OpenCL allows a sine and a cosine four ulp, a tangent five; the known values are rounded to doubles here.
    host::Worst sines("sin", 4 + 0.5), cosines("cos", 4 + 0.5), slopes("tan", 5 + 0.5),
        turned("the point turned, of its distance 5", 0x1p-50, "of 1"),
        back("the point turned back, of its distance 5", 0x1p-49, "of 1");
    std::printf("The point (3, 4) turned and turned back, double2: sin, cos, sincos, tan\n\n");
    std::printf("  %23s %20s %20s %20s %20s   %s\n", "angle", "sine", "sin(fmod(x, 2 pi))", "x turned", "y turned",
                "turned back");
    for (size_t i = 0; i < table.size(); ++i) {
        const auto& row = table[i];
        size_t at = i / 2, lane = i % 2;
        double s = sine[at][lane], tx = turned_x[at][lane], ty = turned_y[at][lane], bx = back_x[at][lane],
               by = back_y[at][lane];
        std::printf("  %23.17g %20.16f %20.16f %20.16f %20.16f   (%.15g, %.15g)\n", row[0], s,
                    std::sin(std::fmod(row[0], 2 * M_PI)), tx, ty, bx, by);
        sines.add(host::ulps(s, row[1]));
        cosines.add(host::ulps(cosine[at][lane], row[2]));
        slopes.add(host::ulps(slope[at][lane], row[3]));
        turned.add(std::hypot(tx - (3 * row[2] - 4 * row[1]), ty - (3 * row[1] + 4 * row[2])) / 5);
        back.add(std::hypot(bx - 3, by - 4) / 5);
    }
    std::puts("");
    bool good = true;
    for (const host::Worst* worst : {&sines, &cosines, &slopes, &turned, &back}) good = worst->report() && good;
    return good ? 0 : 1;
}
