// sinh x and cosh x in double precision, by the addition theorem with steps of ln(2)/128 and ln(2)/256:
//
//   |x| = n ln(2)/steps + r,   C and S the cosh and sinh of the steps
//   sinh |x| = S + C sinh r + S (cosh r - 1),   cosh |x| = C + S sinh r + C (cosh r - 1)
//
// C and S come from a table of the fraction of n/steps and from the whole part m, which joins the exponent fields.
// Their patterns serve up to 707.7; beyond it, for infinities and for NaN the accurate class has a rare routine. The
// native class is the same without it: the patterns wrap, an infinity becomes NaN.
#include "frame/gather.h"
#include "frame/lane_frame.h"
#include "kernels/hyperbolic/sinh_cosh_rare.h"

namespace zorv {
namespace {

// The sum of a/step and the shifter, whose low bits are n, and the remainder.
struct Stepped {
    D2 shifted, r;
};
inline Stepped take_steps(D2 a, const StepsData& data) {
    D2 u = a * data.steps_per_ln2 + data.shifter;
    D2 n = u - data.shifter;
    return {u, (a - n * data.step_high) - n * data.step_low};
}

template <class Data>
L2 not_ordinary(D2 a, const Data& data) {
    return from_halves(halves(a) > data.last_ordinary);
}

Status sinh_rare(const double* x, double* result) { return sinh_complete(sinh_rare_data, x, result); }
Status cosh_rare(const double* x, double* result) { return cosh_complete(cosh_rare_data, x, result); }

// With A = sinh(j ln(2)/128) and B = 2^(-j/128)/2 of the table:
//
//   e^v/2 = 2^m (A + B),   e^-v/2 = 2^-m B,   v = m ln 2 + j ln(2)/128
inline D2 sinh_by_steps(D2 x, const SinhData& data) {
    D2 a = and_bits(x, data.magnitude);
    auto [u, r] = take_steps(a, data.steps);
    L2 j = bits(u) & data.steps.row_index;
    L2 m = (bits(u) ^ j) << 45;  // in the exponent field
    auto [sinh, half_power] = gather_pair(&data.rows[0].sinh, offsets_of(j << 4));
    D2 difference = as_double(bits(sinh) + m);  // of row 0 a tiny number, where 0 is meant: it does not reach C or S
    D2 up = as_double(bits(half_power) + m), down = as_double(bits(half_power) - m);
    D2 c = add_in_order(difference, up + down), s = add_in_order(difference, up - down);
    D2 q = r * r;
    D2 sr = r + horner(q, data.s) * q * r;
    D2 cr = horner(q, data.c) * q;
    // In order: beside a NaN the table's numbers may be other ones.
    D2 y = add_in_order(add_in_order(multiply_in_order(sr, c), cr * s), s);
    return or_bits(y, bits(x) & data.sign);
}

// Error 2.13 ulp at most, at -0x1.fa1f40ef7bba8p-9, operands tried at random; rare lanes 0.51.
struct sinh {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(sinh_data);
        return {sinh_by_steps(x, data), not_ordinary(and_bits(x, data.magnitude), data)};
    }
    static constexpr auto rare = sinh_rare;
};

struct sinh_native {
    static D2 main(D2 x) { return sinh_by_steps(x, in_memory(sinh_native_data)); }
};

// e^v/2 = 2^m half_powers[j],   e^-v/2 = 2^(-m-1) half_powers[256 - j]
inline D2 cosh_by_steps(D2 a, const CoshData& data) {
    auto [u, r] = take_steps(a, data.steps);
    L2 m = (bits(u) << 44) & data.exponent;
    LaneOffsets2 j = offsets_of((bits(u) & data.steps.row_index) << 3);
    constexpr uint32_t end = 256 * sizeof(double);
    LaneOffsets2 from_end = {{end - j.lane[0], end - j.lane[1]}};
    D2 up = as_double(bits(gather(data.half_powers, j)) + m);
    D2 down = as_double(bits(gather(data.half_powers, from_end)) - m - data.smallest_normal);
    D2 c = up + down, s = up - down;
    D2 q = r * r;
    D2 sr = r + horner(q, data.s) * q * r;
    D2 cr = horner(q, data.c) * q;
    return add_in_order(add_in_order(multiply_in_order(cr, c), sr * s), c);  // in order, likewise
}

// Error 1.48 ulp at most, at -0x1.edde2980a24e3p+0, operands tried at random; rare lanes 0.52.
struct cosh {
    static Lanes<D2> main(D2 x) {
        const auto& data = in_memory(cosh_data);
        D2 a = and_bits(x, data.magnitude);
        return {cosh_by_steps(a, data), not_ordinary(a, data)};
    }
    static constexpr auto rare = cosh_rare;
};

struct cosh_native {
    static D2 main(D2 x) {
        const auto& data = in_memory(cosh_native_data);
        return cosh_by_steps(and_bits(x, data.magnitude), data);
    }
};

}  // namespace
}  // namespace zorv

#include "frame/exports.h"
