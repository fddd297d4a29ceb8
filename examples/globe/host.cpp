// Distances and bearings that are published or can be had by hand, and a picture of what three formulas make of points
// from a tenth of a millimetre apart to the antipode.
#include "host/host.h"

#include <cmath>
#include <cstdio>
#include <iterator>

extern "C" void great_circles(const double8* latitude, const double8* longitude, const double8* to_latitude,
                              const double8* to_longitude, double8* by_atan2, double8* by_asin, double8* by_acos,
                              double8* bearing);

namespace {

constexpr size_t lanes = 8;
constexpr double metres = 6371000;  // the radius
constexpr long double degree = 3.14159265358979323846264338327950288L / 180;

struct Routes {
    std::vector<double8> latitude, longitude, to_latitude, to_longitude;
    std::vector<double8> by_atan2, by_asin, by_acos, bearing;

    void follow() {
        for (auto* result : {&by_atan2, &by_asin, &by_acos, &bearing}) result->resize(latitude.size());
        host::run(latitude.size(), [this] {
            great_circles(latitude.data(), longitude.data(), to_latitude.data(), to_longitude.data(), by_atan2.data(),
                          by_asin.data(), by_acos.data(), bearing.data());
        });
    }
};

// By the half angles of the two unit vectors' sum and difference, in 64 bits: good at every distance.
long double exact_angle(const Routes& routes, size_t at, size_t lane) {
    long double north = (static_cast<long double>(routes.to_latitude[at][lane]) - routes.latitude[at][lane]) * degree,
                east = (static_cast<long double>(routes.to_longitude[at][lane]) - routes.longitude[at][lane]) * degree,
                middle = routes.latitude[at][lane] * degree + north / 2;
    long double sin_north = std::sin(north / 2), cos_north = std::cos(north / 2), sin_east = std::sin(east / 2),
                cos_east = std::cos(east / 2), sin_middle = std::sin(middle), cos_middle = std::cos(middle);
    return 2 * std::atan2(std::hypot(sin_north * cos_east, cos_middle * sin_east),
                          std::hypot(cos_north * cos_east, sin_middle * sin_east));
}

std::string published(double value) {
    char text[32] = "-";
    if (!std::isnan(value)) std::snprintf(text, sizeof text, "%.11g", value);
    return text;
}

// The error is published distance less ours, in units of the last digit that is published.
bool report_places() {
    const char* const names[] = {"Los Angeles - New York, radians",
                                 "Land's End - John o'Groats, km",
                                 "Valparaiso - Shanghai, km",
                                 "Nashville - Los Angeles, km",
                                 "Baghdad - Osaka, km",
                                 "equator - pole, km",
                                 "half the equator, km",
                                 "one degree west, km",
                                 "antipodes, km",
                                 "1.1 m in Greenwich, km",
                                 "0.1 mm in Greenwich, km"};
    auto table = host::read_table(EXAMPLE_FOLDER "/data.txt", 9);
    if (table.size() != std::size(names)) return false;
    Routes routes;
    routes.latitude = host::column_as<double8, double>(table, 0);
    routes.longitude = host::column_as<double8, double>(table, 1);
    routes.to_latitude = host::column_as<double8, double>(table, 2);
    routes.to_longitude = host::column_as<double8, double>(table, 3);
    routes.follow();

    host::Worst distances("distance by atan2", 1, "of the last digit"), bearings("bearing", 1, "of the last digit");
    std::printf("  %-32s %17s %17s %10s %10s %14s %10s\n", "", "by atan2", "published", "asin, mm", "acos, mm",
                "bearing", "published");
    for (size_t i = 0; i < table.size(); ++i) {
        const auto& row = table[i];
        size_t at = i / lanes, lane = i % lanes;
        double angle = routes.by_atan2[at][lane], bearing = routes.bearing[at][lane];
        std::printf("  %-32s %17.11g %17s %10.2g %10.2g %14.8f %10s\n", names[i], row[4] * angle,
                    published(row[5]).c_str(), (routes.by_asin[at][lane] - angle) * metres * 1e3,
                    (routes.by_acos[at][lane] - angle) * metres * 1e3, bearing, published(row[7]).c_str());
        if (!std::isnan(row[5])) distances.add(std::fabs(row[4] * angle - row[5]) / row[6]);
        if (!std::isnan(row[7])) bearings.add(std::fabs(bearing - row[7]) / row[8]);
    }
    std::puts("");
    bool good = distances.report();
    return bearings.report() && good;
}

// From one place, steps of a tenth of a decade along a bearing: rows of distance and three errors in metres. Towards
// the antipode the steps count what is missing.
bool sweep_distances(const char* path) {
    constexpr size_t half = 700;
    constexpr long double from = 50.0663889L, to_the_east = 37 * degree, pi = 180 * degree;
    Routes routes;
    for (auto* column : {&routes.latitude, &routes.longitude, &routes.to_latitude, &routes.to_longitude})
        column->resize(2 * half / lanes);
    for (size_t i = 0; i < 2 * half; ++i) {
        bool from_antipode = i >= half;
        long double angle = std::pow(10.0L, static_cast<long double>(i % half) / 62 - 4) / metres;
        if (from_antipode) angle = pi - angle;
        long double up = std::sin(from * degree) * std::cos(angle) +
                         std::cos(from * degree) * std::sin(angle) * std::cos(to_the_east);
        long double east = std::atan2(std::sin(to_the_east) * std::sin(angle) * std::cos(from * degree),
                                      std::cos(angle) - std::sin(from * degree) * up);
        size_t at = i / lanes, lane = i % lanes;
        routes.latitude[at][lane] = static_cast<double>(from);
        routes.longitude[at][lane] = 0;
        routes.to_latitude[at][lane] = static_cast<double>(std::asin(up) / degree);
        routes.to_longitude[at][lane] = static_cast<double>(east / degree);
    }
    routes.follow();
    host::Worst by_atan2("atan2, at all distances", 1e-8, "m"), by_asin("asin, up to 10000 km", 1e-8, "m"),
        by_acos("acos, from 100 km to 19900 km", 1e-6, "m");
    std::FILE* file = std::fopen(path, "w");
    for (size_t i = 0; i < 2 * half; ++i) {
        size_t at = i / lanes, lane = i % lanes;
        long double exact = exact_angle(routes, at, lane);
        auto error = [exact](double angle) { return static_cast<double>(std::fabs(angle - exact)) * metres; };
        double distance = static_cast<double>(exact) * metres, missing = static_cast<double>(pi - exact) * metres;
        double errors[] = {error(routes.by_atan2[at][lane]), error(routes.by_asin[at][lane]),
                           error(routes.by_acos[at][lane])};
        by_atan2.add(errors[0]);
        if (distance < 1e7) by_asin.add(errors[1]);
        if (distance > 1e5 && missing > 1e5) by_acos.add(errors[2]);
        if (file)
            std::fprintf(file, "%d %g %g %g %g\n", i >= half, i >= half ? missing : distance, errors[0], errors[1],
                         errors[2]);
    }
    if (file) std::fclose(file);
    bool good = true;
    for (const host::Worst* worst : {&by_atan2, &by_asin, &by_acos}) good = worst->report() && good;
    return good;
}

}  // namespace

int main() {
    std::printf("Distances on the globe, double8: atan2; what asin and acos make of them differs by so many mm\n\n");
    bool good = report_places();
    good = sweep_distances("globe.dat") && good;
    return good ? 0 : 1;
}
