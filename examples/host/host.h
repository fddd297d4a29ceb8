// What the example programs share: work items, numbers from a file, and errors against a reference.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "ocl_zorv_v8.h"

// The built-in of the kernels: the number of the work item that runs. Its name there is the one that C++ gives it.
size_t get_global_id(unsigned dimension);

namespace host {

// Runs the body once for each work item, as a run-time does for a range of one dimension.
void run(size_t work_items, const std::function<void()>& body);

// The rows of numbers in a text file; what stands behind a # is left out. Stops the program if the file is not as
// it should be.
std::vector<std::vector<double>> read_table(const std::string& path, size_t columns);

// One column as vectors; the last value fills up the last vector.
template <class Vector, class Scalar>
std::vector<Vector> column_as(const std::vector<std::vector<double>>& table, size_t column) {
    constexpr size_t lanes = sizeof(Vector) / sizeof(Scalar);
    std::vector<Vector> vectors((table.size() + lanes - 1) / lanes);
    for (size_t i = 0; i < vectors.size() * lanes; ++i)
        vectors[i / lanes][i % lanes] = static_cast<Scalar>(table[i < table.size() ? i : table.size() - 1][column]);
    return vectors;
}

// The distance from the value to the exact result, in units of the last place of the exact result.
double ulps(float value, long double exact);
double ulps(double value, long double exact);

// The worst error of one quantity, and how large it may be.
class Worst {
  public:
    Worst(std::string what, double allowed, std::string unit = "ulp")
        : what_(std::move(what)), unit_(std::move(unit)), allowed_(allowed) {}
    double add(double error);
    // Prints a line; false if the error was larger than allowed.
    bool report() const;

  private:
    std::string what_, unit_;
    double allowed_, worst_ = 0;
};

}  // namespace host
