#include "kernels/hyperbolic/area_data.h"

namespace zorv {

// ---- Single precision. -------------------------------------------------------------------------------------

template <int terms>
static constexpr AreaLogfData<terms> area_logf(Coefficients<float, terms> p) {
    return {
        .two_thirds = 0x3f2aaaab,  // 0.666666687
        .mantissa = 0x007fffff,
        .one = 0x3f800000,  // 1.0
        .ln2 = 0x3f317218,  // 0.693147182
        .p = p,
    };
}
static constexpr auto logf_accurate = area_logf<8>({{
    0x3e0d84ed,  // 0.138202384
    0xbe1ad9e3,  // -0.151221797
    0x3e0fcb12,  // 0.140423089
    0xbe28ad37,  // -0.164723262
    0x3e4ce190,  // 0.200079203
    0xbe80058e,  // -0.250042379
    0x3eaaaa94,  // 0.333332658
    0xbf000000,  // -0.5
}});
static constexpr auto logf_native = area_logf<4>({{
    0x3e612933,  // 0.219883725
    0xbe88e8fe,  // -0.267402589
    0x3eaa7160,  // 0.332896233
    0xbf000000,  // -0.5
}});

static constexpr HugeData<float> huge_float = {
    .two_to_30 = 0x4e800000,        // 2^30
    .two_to_minus_30 = 0x30800000,  // 2^-30
    .thirty_one = 0x41f80000,       // 31.0
};
static constexpr RootSeries<float, 3> rootf_series = {{
    0x3ea00000,  // 0.3125
    0x3ec00000,  // 0.375
    0x3f000000,  // 0.5
}};

template <int log_terms>
static constexpr AsinhfData<log_terms> asinhf_with(AreaLogfData<log_terms> log) {
    return {
        .magnitude = 0x7fffffff,
        .sign = 0x80000000,
        .largest = 0x7f7fffff,
        .small = 0x3d800000,      // 0.0625
        .half = 0x3f000000,       // 0.5
        .x_head = 0xffffe000,     // eleven significant bits
        .root_head = 0xffff0000,  // eight significant bits
        .root = rootf_series,
        .huge = huge_float,
        .log = log,
    };
}
const AsinhfData<8> asinhf_data = asinhf_with(logf_accurate);
const AsinhfData<4> asinhf_native_data = asinhf_with(logf_native);

const AcoshfData<3, 8> acoshf_data = {
    .largest = 0x7f7fffff,
    .root_head = 0xffff0000,  // eight significant bits
    .root = rootf_series,
    .huge = huge_float,
    .log = logf_accurate,
};
const AcoshfData<1, 4> acoshf_native_data = {
    .largest = 0x7f7fffff,
    .root_head = 0xffff0000,  // eight significant bits
    .root = {{0x3f000000}},   // 0.5
    .huge = huge_float,
    .log = logf_native,
};

template <int log_terms>
static constexpr AtanhfData<log_terms> atanhf_with(AreaLogfData<log_terms> log) {
    return {
        .magnitude = 0x7fffffff,
        .sign = 0x80000000,
        .head = 0xfffff000,  // twelve significant bits
        .half = 0x3f000000,  // 0.5
        .log = log,
    };
}
const AtanhfData<8> atanhf_data = atanhf_with(logf_accurate);
const AtanhfData<4> atanhf_native_data = atanhf_with(logf_native);

// ---- Double precision. -------------------------------------------------------------------------------------

template <int terms>
static constexpr AreaLogData<terms> area_log(Coefficients<double, terms> p) {
    return {
        .mantissa = 0x000fffffffffffff,
        .exponent = 0x7ff0000000000000,
        .two_to_minus_10 = 0x3f50000000000000,     // 2^-10
        .shifter = 0x4338000000000000,             // 1.5 * 2^52
        .scale_base = 0x7f40000000000000,          // less the exponent field: the field of 2^(-k - 10)
        .last_of_upper_half = 0x4086a00000000000,  // 724.0
        .bias_of_upper_half = 0x408ff80000000000,  // 1023.0, a superset of the bits of
        .bias_of_lower_half = 0x408ff00000000000,  // 1022.0
        .two_to_52 = 0x4330000000000000,
        .one = 0x3ff0000000000000,
        .ln2 = 0x3fe62e42fefa39ef,  // 0.6931471805599453
        .p = p,
        .minus_log =
            {
#include "kernels/explog/tables/log_rows.inc"  // by R
            },
    };
}
static constexpr auto log_accurate = area_log<4>({{
    0x3fc9999cacdb4d0a,  // 0.2000003665949424
    0xbfd0000148058ee1,  // -0.2500003054940248
    0x3fd55555555543c5,  // 0.33333333333308374
    0xbfdffffffffff81f,  // -0.49999999999988803
}});
static constexpr auto log_native = area_log<2>({{
    0x3fd55555555543c5,  // 0.33333333333308374
    0xbfdffffffffff81f,  // -0.49999999999988803
}});

static constexpr HugeData<double> huge_double = {
    .two_to_30 = 0x41d0000000000000,        // 2^30
    .two_to_minus_30 = 0x3e10000000000000,  // 2^-30
    .thirty_one = 0x403f000000000000,       // 31.0
};
static constexpr ShortHeadData short_head = {
    .head = 0xfffffffffffffc00,  // without the ten low bits
    .tiny = 0x3e00000000000000,  // 2^-31
};

template <int log_terms>
static constexpr AsinhData<log_terms> asinh_with(AreaLogData<log_terms> log) {
    return {
        .magnitude = 0x7fffffffffffffff,
        .sign = 0x8000000000000000,
        .largest = 0x7fefffffffffffff,
        .small = 0x3f60000000000000,              // 2^-9
        .half = 0x3fe0000000000000,               // 0.5
        .x_head = 0xfffffffff8000000,             // 26 significant bits
        .root_operand_head = 0xffffffffff000000,  // 29 significant bits
        .root_head = 0xfffffe0000000000,          // twelve significant bits
        .root = {{
            0x3fcf800000000000,  // 0.24609375
            0x3fd1800000000000,  // 0.2734375
            0x3fd4000000000000,  // 0.3125
            0x3fd8000000000000,  // 0.375
            0x3fe0000000000000,  // 0.5
        }},
        .huge = huge_double,
        .sum = short_head,
        .log = log,
    };
}
const AsinhData<4> asinh_data = asinh_with(log_accurate);
const AsinhData<2> asinh_native_data = asinh_with(log_native);

const AcoshData<4, 4> acosh_data = {
    .largest = 0x7fefffffffffffff,
    .root_operand_head = 0xffffffffff000000,  // 29 significant bits
    .root_head = 0xfffffe0000000000,          // twelve significant bits
    .root = {{
        0x3fd1800000000000,  // 0.2734375
        0x3fd4000000000000,  // 0.3125
        0x3fd8000000000000,  // 0.375
        0x3fe0000000000000,  // 0.5
    }},
    .huge = huge_double,
    .sum = short_head,
    .log = log_accurate,
};
const AcoshData<2, 2> acosh_native_data = {
    .largest = 0x7fefffffffffffff,
    .root_operand_head = 0xffffffffff000000,  // 29 significant bits
    .root_head = 0xfffffe0000000000,          // twelve significant bits
    .root = {{
        0x3fd8000000000000,  // 0.375
        0x3fe0000000000000,  // 0.5
    }},
    .huge = huge_double,
    .sum = short_head,
    .log = log_native,
};

template <int log_terms>
static constexpr AtanhData<log_terms> atanh_with(AreaLogData<log_terms> log) {
    return {
        .magnitude = 0x7fffffffffffffff,
        .sign = 0x8000000000000000,
        .head = 0xfffffffffffff000,             // 41 significant bits
        .reciprocal_head = 0xfffffe0000000000,  // twelve significant bits
        .half = 0x3fe0000000000000,             // 0.5
        .sum = short_head,
        .log = log,
    };
}
const AtanhData<4> atanh_data = atanh_with(log_accurate);
const AtanhData<2> atanh_native_data = atanh_with(log_native);

}  // namespace zorv
