// ln x, log2 x and log10 x in single precision.
//
// One integer subtraction splits the pattern of x about 2/3, the rest is one polynomial:
//
//   x = f 2^k,   f in [2/3, 4/3),   r = f - 1 (exact)
//   log x = k log 2 + log(1 + r)
//
//             log 2         log(1 + r)
//   ln        two parts     r + r^2 Q(r), Q of degree 8
//   log2      exact         r A(r), A of degree 8 in even and odd terms
//   log10     two parts     the same
//   native    one part      Q of degree 2, A of degree 4
//
// The accurate families are right for every positive normal number; whatever else is rare and goes through a
// complete scalar logarithm of another make. The native families do not look: the pattern of a zero, a negative
// number, an infinity or a NaN is split like any other.
#include "frame/lane_frame.h"
#include "kernels/explog/explog_float_data.h"

namespace zorv {
namespace {

struct Split {
    F4 k, r;
};

inline Split split(F4 x, const MantissaSplitData& data) {
    I4 m = bits(x) - data.two_thirds;
    F4 k = __builtin_convertvector(m >> 23, F4);
    F4 f = as_float((m & data.mantissa) + data.two_thirds);
    return {k, f - data.one};
}

// ---- Rare lanes: a logarithm by table for every positive number, subnormal ones above all. -----------------

uint32_t pattern(float x) { return __builtin_bit_cast(uint32_t, x); }
float magnitude(float x) { return __builtin_bit_cast(float, pattern(x) & 0x7fffffff); }
int exponent_of(float x) { return static_cast<int>(pattern(x) >> 23 & 255) - 127; }

// x = 2^k y, y in [1, 2): y is split into a head of ten fraction bits and the rest, and chooses a row about it.
struct TableOperand {
    float head, tail;
    unsigned row;
};
TableOperand table_operand(float x) {
    float y = __builtin_bit_cast(float, (pattern(x) & 0x007fffff) | 0x3f800000);
    float head = (y + 8192.0f) - 8192.0f;
    return {head, y - head, pattern(y + 131073.0f) & 127};
}

// ln x:  y c = 1 + w, w = a + b in two parts;  ln x = k ln 2 - ln c + ln(1 + w)
float polynomial(float w, const LogfRareData& data) {
    return horner(w, data.c6, data.c5, data.c4, data.c3, data.c2, data.c1, data.c0) * w * w;
}
float near_one(float d, const LogfRareData& data) { return d + polynomial(d, data); }
float by_table(float k, TableOperand y, bool scaled, const LogfRareData& data) {
    const LogRareRow& row = data.rows[y.row];
    float high = k * (scaled ? data.ln2 : data.ln2_high) + row.high;
    float low = (scaled ? 0.0f : k * data.ln2_low) + row.low;
    float a = y.head * row.c - 1.0f;  // exact
    float b = row.c * y.tail;
    float q = polynomial(a + b, data);
    return (a + high) + ((b + low) + q);
}

// In the other bases a, b and w are in units of 256 logarithms to the base: log(1 + w) = w + w P(w), P near -255/256.
template <class Data>
float polynomial(float w, const Data& data) {
    return horner(w, data.p7, data.p6, data.p5, data.p4, data.p3, data.p2, data.p1, data.p0);
}
template <class Data>
float near_one(float d, const Data& data) {
    float v = d * data.unit;
    return v + polynomial(v, data) * v;
}
float by_table(float k, TableOperand y, bool, const Log2fRareData& data) {
    const LogRareRow& row = data.rows[y.row];
    float a = y.head * row.c - data.unit;
    float b = row.c * y.tail;
    float p = polynomial(a + b, data);
    float low = b * p + row.low;
    return ((k + row.high) + a) + ((b + low) + a * p);
}
float by_table(float k, TableOperand y, bool, const Log10fRareData& data) {
    const LogRareRow& row = data.rows[y.row];
    float a = y.head * row.c - data.unit;
    float b = row.c * y.tail;
    float p = polynomial(a + b, data);
    float low = k * data.log10_2_low + row.low;
    float t = (b + (low + b * p)) + a * p;
    return ((data.log10_2_high * k + row.high) + a) + t;
}

// Pole and domain results come from true divisions, which raise the flags.
template <int subnormal_shift, class Data>
Status logarithm_rare(const Data& data, const float* operand, float* result) {
    float x = *operand;
    if ((pattern(x) & 0x7f800000) == 0x7f800000) {
        if (pattern(x) == 0xff800000) {
            *result = opaque(0.0f) / opaque(0.0f);
            return RARE_DOMAIN;
        }
        *result = x * x;
        return RARE_OK;
    }
    bool scaled = (pattern(x) & 0x7f800000) == 0;
    if (scaled) x = x * data.subnormal_scale;
    if (x > 0.0f) {
        float d = x - 1.0f;
        if (!(magnitude(d) > data.near_one)) {
            *result = near_one(d, data);
            return RARE_OK;
        }
        float k = static_cast<float>(exponent_of(x) - (scaled ? subnormal_shift : 0));
        *result = by_table(k, table_operand(x), scaled, data);
        return RARE_OK;
    }
    if (x == 0.0f) {
        *result = opaque(-1.0f) / opaque(0.0f);
        return RARE_POLE;
    }
    *result = opaque(0.0f) / opaque(0.0f);
    return RARE_DOMAIN;
}

Status logf_rare(const float* x, float* result) { return logarithm_rare<27>(logf_rare_data, x, result); }
Status log2f_rare(const float* x, float* result) { return logarithm_rare<27>(log2f_rare_data, x, result); }
Status log10f_rare(const float* x, float* result) { return logarithm_rare<40>(log10f_rare_data, x, result); }

// ---- Accurate. ---------------------------------------------------------------------------------------------

// In two families the mask is made in front of the polynomial, and opaque, so that it stays there: measured, it is
// faster so. In log2f it makes no difference.

// Error 0.98 ulp at most, at 0x1.556f9p+0; subnormal operands 1.04.
struct logf {
    static Lanes<F4> main(F4 x) {
        // Moved up by one exponent step, zeros and subnormals stand below two steps; so do negative numbers, and
        // infinity and the NaNs through the wrap.
        I4 not_positive_normal = opaque(bits(x) + logf_data.smallest_normal < logf_data.twice_smallest_normal);
        const auto& data = in_memory(logf_data);
        auto [k, r] = split(x, data.split);
        F4 q = horner(r, data.q);
        F4 s = q * r * r + r;
        F4 y = k * data.ln2_high + (k * data.ln2_low + s);
        return {y, not_positive_normal};
    }
    static constexpr auto rare = logf_rare;
};

// A(r) in even and odd terms: pairs over r^2, then the coefficient of r.
template <class Data>
F4 even_and_odd(F4 r, F4 last, const Data& data) {
    return paired(r, r * r, data.a) * r + last;
}

template <class Data>
I4 not_positive_normal(F4 x, const Data& data) {
    return (x < data.smallest_normal) | ~(x <= data.largest);
}

// Error 2.62 ulp at most, at 0x1.556ceap+0; subnormal operands 0.55.
struct log2f {
    static Lanes<F4> main(F4 x) {
        const auto& data = in_memory(log2f_data);
        auto [k, r] = split(x, data.split);
        F4 a = even_and_odd(r, data.log2_e, data);
        return {a * r + k, not_positive_normal(x, data)};  // exact for a power of two, where r is 0
    }
    static constexpr auto rare = log2f_rare;
};

// Error 2.63 ulp at most, at 0x1.555cb4p+0; subnormal operands 0.55.
struct log10f {
    static Lanes<F4> main(F4 x) {
        I4 mask = opaque(not_positive_normal(x, log10f_data));
        const auto& data = in_memory(log10f_data);
        auto [k, r] = split(x, data.split);
        F4 a = even_and_odd(r, data.log10_e, data);
        return {(a * r + k * data.log10_2_low) + k * data.log10_2_high, mask};
    }
    static constexpr auto rare = log10f_rare;
};

// ---- Native. -----------------------------------------------------------------------------------------------

// Error 8,315 ulp at most, at 0x1.8ebefep-1.
struct logf_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(logf_native_data);
        auto [k, r] = split(x, data.split);
        F4 q = horner(r, data.q);
        F4 s = q * r * r + r;
        return k * data.ln2 + s;
    }
};

// Error 894 ulp at most, at 0x1.172b32p+0.
struct log2f_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(log2f_native_data);
        auto [k, r] = split(x, data.split);
        F4 a = horner(r, data.a);
        return a * r + k;
    }
};

// Error 996 ulp at most, at 0x1.5555dcp+0.
struct log10f_native {
    static F4 main(F4 x) {
        const auto& data = in_memory(log10f_native_data);
        auto [k, r] = split(x, data.split);
        F4 a = horner(r, data.a);
        return a * r + k * data.log10_2;
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
