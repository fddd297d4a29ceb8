#include "kernels/quotients/cube_roots_data.h"

namespace zorv {

// The scale's exponent field of a number in [1, 2): of a cube root 85 + 42, of its reciprocal 169 - 42. `third` splits
// any biased exponent e into 3 k + 1 + j (float) or 3 k + j (double), j from 0 to 2.
#define CENTRE_FLOAT(scale_field)                                                                                 \
    {                                                                                                             \
        .mantissa = 0x007fffff, .centre = 0x007e0000, .minus_one = 0xbf800000, .minus_centre = 0xbf820000,        \
        .row = 0x0000001f, .exponent = 0x7f800000, .third = 0x00000555, .sign = 0x80000000, .scale = scale_field, \
        .magnitude = 0x7fffffff, .smallest_normal_negated = 0x80800000, .last_rare = 0xfeffffff                   \
    }
#define CENTRE_DOUBLE(scale_field)                                                                                   \
    {                                                                                                                \
        .mantissa = 0x000fffffffffffff, .centre = 0x000fc00000000000, .minus_one = 0xbff0000000000000,               \
        .minus_centre = 0xbff0400000000000, .row = 0x0000001f, .magnitude = 0x7fffffffffffffff,                      \
        .third = 0x0000000000001556, .sign = 0x8000000000000000, .scale = scale_field, .high_magnitude = 0x7fffffff, \
        .smallest_normal_negated = 0x80100000, .last_rare = 0xffdfffff                                               \
    }

const CbrtfData cbrtf_data = {
    .centre = CENTRE_FLOAT(0x00000055),
    .p = {{
        0xbd288f47,  // -0.041152265
        0x3d7cd6ea,  // 0.061728396
        0xbde38e39,  // -0.11111111
        0x3eaaaaab,  // 0.33333334
    }},
    .minus_reciprocal =
        {
#include "kernels/quotients/tables/cbrtf_reciprocals.inc"
        },
    .values =
        {
#include "kernels/quotients/tables/cbrtf_values.inc"
        },
};
const CbrtfData rcbrtf_data = {
    .centre = CENTRE_FLOAT(0x000000a9),
    .p = {{
        0x3e137d5e,  // 0.14403293
        0xbe30fcd7,  // -0.17283951
        0x3e638e39,  // 0.22222222
        0xbeaaaaab,  // -0.33333334
    }},
    .minus_reciprocal =
        {
#include "kernels/quotients/tables/cbrtf_reciprocals.inc"
        },
    .values =
        {
#include "kernels/quotients/tables/rcbrtf_values.inc"
        },
};
const CbrtfNativeData cbrtf_native_data = {
    .centre = CENTRE_FLOAT(0x00000055),
    .p = 0x3eaaaaab,  // 0.33333334
    .values =
        {
#include "kernels/quotients/tables/cbrtf_reciprocals.inc"
// The reciprocals stand in front, whatever the order of names.
#include "kernels/quotients/tables/cbrtf_heads.inc"
        },
};
const CbrtfNativeData rcbrtf_native_data = {
    .centre = CENTRE_FLOAT(0x000000a9),
    .p = 0xbeaaaaab,  // -0.33333334
    .values =
        {
#include "kernels/quotients/tables/cbrtf_reciprocals.inc"
// The reciprocals stand in front, whatever the order of names.
#include "kernels/quotients/tables/rcbrtf_heads.inc"
        },
};

const CbrtData cbrt_data = {
    .centre = CENTRE_DOUBLE(0x00000000000002aa),
    .p = {{
        0x3f93750ad588f115,  // 0.019001143701468667
        0xbf98090d6221a247,  // -0.023472001043088885
        0x3f9ee7113506ac12,  // 0.030178287055403014
        0xbfa511e8d2b3183b,  // -0.041152263203019585
        0x3faf9add3c0ca458,  // 0.061728395061728392
        0xbfbc71c71c71c71c,  // -0.1111111111111111
        0x3fd5555555555555,  // 0.33333333333333331
    }},
    .minus_reciprocal =
        {
#include "kernels/quotients/tables/cbrt_reciprocals.inc"
        },
    .values =
        {
#include "kernels/quotients/tables/cbrt_heads.inc"
        },
};
const CbrtNativeData cbrt_native_data = {
    .centre = CENTRE_DOUBLE(0x00000000000002aa),
    .p = {{
        0x3faf9add3c0ca458,  // 0.061728395061728392
        0xbfbc71c71c71c71c,  // -0.1111111111111111
        0x3fd5555555555555,  // 0.33333333333333331
    }},
    .minus_reciprocal =
        {
#include "kernels/quotients/tables/cbrt_reciprocals.inc"
        },
    .values =
        {
#include "kernels/quotients/tables/cbrt_heads.inc"
        },
};
const RcbrtData rcbrt_data = {
    .centre = CENTRE_DOUBLE(0x0000000000000554),
    .p = {{
        0x3fb791d4f50a7b47,  // 0.092069
        0xbfb9b33ca7a65562,  // -0.100391
        0x3fbc67c9dd3d11bb,  // 0.110959
        0xbfbff4c33f90ef5f,  // -0.124829
        0x3fc26fabb85d0196,  // 0.144033
        0xbfc61f9add3c0ca3,  // -0.17283950617283947
        0x3fcc71c71c71c71c,  // 0.22222222222222221
        0xbfd5555555555555,  // -0.33333333333333331
    }},
    .minus_reciprocal =
        {
#include "kernels/quotients/tables/cbrt_reciprocals.inc"
        },
    .values =
        {
#include "kernels/quotients/tables/rcbrt_values.inc"
        },
};
const RcbrtNativeData rcbrt_native_data = {
    .centre = CENTRE_DOUBLE(0x0000000000000554),
    .p = {{
        0x3fc26fabb85d0196,  // 0.144033
        0xbfc61f9add3c0ca3,  // -0.17283950617283947
        0x3fcc71c71c71c71c,  // 0.22222222222222221
        0xbfd5555555555555,  // -0.33333333333333331
    }},
    .minus_reciprocal =
        {
#include "kernels/quotients/tables/cbrt_reciprocals.inc"
        },
    .values =
        {
#include "kernels/quotients/tables/rcbrt_heads.inc"
        },
};

const CbrtRareData cbrt_rare_data = {
    .subnormal_scale = {0x52b0000000000000},  // 2^300
    .mantissa_split = {0x42a0000000000200},   // 2^43 + 1
    .split = {0x41a0000002000000},            // 2^27 + 1
    .p = {{
        {0x3fd4746c5e79ae3d},  // 0.3196059153185365
        {0x3fd50a0910b7abe7},  // 0.3287375128990661
        {0x3fd5b259593d6946},  // 0.3390105601771619
        {0x3fd671e0d7e740c4},  // 0.35070057949361577
        {0x3fd74edfa52160cc},  // 0.3641890633202933
        {0x3fd8524d8aeb2d5a},  // 0.3800233704211756
        {0x3fd9899e3843bc6c},  // 0.39902453894223444
        {0x3fdb0a2f0e65d690},  // 0.4224965706447188
        {0x3fdcf8a021b64151},  // 0.45267489711934156
        {0x3fdf9add3c0ca458},  // 0.49382716049382713
        {0x3fe1c71c71c71c72},  // 0.5555555555555556
    }},
    .two_thirds = {0x3fe5555555555555},       // 0.6666666666666666
    .two_thirds_tail = {0x3c85555555555555},  // 3.700743415417188e-17
    .scale =
        {
            {{0x3ff0000000000000}, {0x0000000000000000}},  // 1.0
            {{0x3ff428a2f8000000}, {0x3e38d728ae223ddb}},  // 1.2599210441112518 + 5.783621333712523e-9
            {{0x3ff965fea0000000}, {0x3e54f5b8f20ac166}},  // 1.587401032447815 + 1.9520384533345454e-8
        },
    .seed =
        {
#include "kernels/quotients/tables/cbrt_seed.inc"
        },
};
const RcbrtRareData rcbrt_rare_data = {
    .subnormal_scale = {0x4590000000000000},    // 2^90
    .split = {0x4240000000000000},              // 2^37
    .to_thirty_seconds = {0x42e0000000000020},  // 2^47 + 1
    .third = {0x3fd5556000000000},              // 0.33333587646484375
    .third_tail = {0xbec555555556eeb1},         // -2.5431315104610494e-6
    .p = {{
        {0x3fb76e1b29541c7a},  // 0.09152383574483905
        {0x3fb9b8dcfa1cbb4b},  // 0.10047703844314275
        {0x3fbc67d1021abd48},  // 0.11095911313417617
        {0x3fbff4c2cad96dc0},  // 0.1248285050618767
        {0x3fc26fabb82a92c1},  // 0.14403292171950535
        {0x3fc61f9add3d926e},  // 0.17283950617560911
        {0x3fcc71c71c71c7c6},  // 0.22222222222222693
    }},
    .seed =
        {
#include "kernels/quotients/tables/rcbrt_seed.inc"
        },
};

}  // namespace zorv
