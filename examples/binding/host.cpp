// Binding at run time: the library is opened by its path, a function is looked up by its name, and called.
#include <dlfcn.h>

#include <cmath>
#include <cstdio>

#include "ocl_zorv_v8.h"

namespace {

// The type of a function is that of its declaration in the header.
template <class Function>
Function* look_up(void* library, const char* name) {
    auto* function = reinterpret_cast<Function*>(dlsym(library, name));
    if (!function) std::fprintf(stderr, "%s\n", dlerror());
    return function;
}

}  // namespace

int main(int count, char** arguments) {
    const char* path = count > 1 ? arguments[1] : DEFAULT_LIBRARY;
    void* library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        std::fprintf(stderr, "%s\n", dlerror());
        return 1;
    }
    auto* square_roots = look_up<decltype(__ocl_zorv_v8_sqrtf4)>(library, "__ocl_zorv_v8_sqrtf4");
    auto* quotient = look_up<decltype(__ocl_zorv_v8_div1)>(library, "__ocl_zorv_v8_div1");
    if (!square_roots || !quotient) return 1;

    std::printf("Bound by dlopen and dlsym: %s\n\n", path);
    float4 roots = square_roots(float4{1, 4, 2, -1});
    std::printf("  sqrt of 1, 4, 2, -1:  %.9g  %.9g  %.9g  %.9g\n", roots[0], roots[1], roots[2], roots[3]);
    double third = quotient(1, 3);
    std::printf("  1 / 3:                %.17g\n", third);
    bool good = roots[0] == 1 && roots[1] == 2 && std::fabs(roots[2] - 1.41421356f) < 2e-7f && std::isnan(roots[3]) &&
                third == 1 / 3.0;

    // A name that is not exported is not found.
    good = good && dlsym(library, "__ocl_zorv_v8_sqrtf5") == nullptr;
    dlclose(library);
    std::printf("  %s\n", good ? "good" : "WRONG");
    return good ? 0 : 1;
}
