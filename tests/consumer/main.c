#include <ocl_zorv_v8.h>
#include <ocl_zorv_v8.h> /* any number of times */
#include <stdio.h>

int main(void) {
    float4 x = {4.0f, 9.0f, 0.25f, -0.0f};
    float4 roots = __ocl_zorv_v8_sqrtf4(x);
    double16 ones = 1.0, threes = 3.0;
    double16 thirds = __ocl_zorv_v8_div16(ones, threes);
    printf("%g %g %g %g %.17g %.17g\n", roots.x, roots.y, roots.z, roots.w, thirds.s0, thirds.sf);
    return 0;
}
