#include <ocl_zorv_v8.h>

#include <cstdio>

int main() {
    float4 roots = __ocl_zorv_v8_sqrtf4(float4{4, 9, 0.25f, -0.0f});
    double16 thirds = __ocl_zorv_v8_div16(double16(1), double16(3));
    std::printf("%g %g %g %g %.17g %.17g\n", roots.x, roots.y, roots.z, roots.w, thirds.s0, thirds.sf);
}
