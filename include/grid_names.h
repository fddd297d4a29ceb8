// What the words in the grid's rows turn into: names, lanes, traits. For whoever includes include/grid.def.
#pragma once

#define PASTE(a, b) PASTE_(a, b)
#define PASTE_(a, b) a##b
#define PASTE5(a, b, c, d, e) PASTE5_(a, b, c, d, e)
#define PASTE5_(a, b, c, d, e) a##b##c##d##e
#define TEXT(name) TEXT_(name)
#define TEXT_(name) #name

#define LETTER_float_ f
#define LETTER_double_
#define CLASS_accurate
#define CLASS_native _native
#define LANE_float_ float
#define LANE_double_ double

// sqrtf_native, and __ocl_zorv_v8_sqrtf4_native.
#define FAMILY_NAME(base, precision, class_) PASTE5(base, LETTER_##precision, CLASS_##class_, , )
#define EXPORT_NAME(base, precision, class_, width) \
    PASTE5(__ocl_zorv_v8_, base, LETTER_##precision, width, CLASS_##class_)

// The symbol behind that name. On x86-64 a vector of more than 16 bytes travels as a structure of units: where a call
// has one, the symbol ends in _units, and the plain name is the header's wrapper around it.
#define EXPORT_SYMBOL(base, precision, class_, signature, width) \
    PASTE(EXPORT_NAME(base, precision, class_, width), UNITS_SUFFIX(signature, precision, width))
#define UNITS_SUFFIX(signature, precision, width) \
    PASTE5(UNITS_, SECOND_OF(LONGEST_##signature, BYTES_##precision, ), _, width, )
#define SECOND_OF(...) SECOND_OF_(__VA_ARGS__)
#define SECOND_OF_(first, second, ...) second
// The bytes of the longest lane: the family's own, or those of a long integer.
#define BYTES_float_ 4
#define BYTES_double_ 8
#define LONGEST_to_i64 ~, 8
#define LONGEST_to_u64 ~, 8
#define LONGEST_from_i64 ~, 8
#define LONGEST_from_u64 ~, 8
#ifdef __x86_64__
#define UNITS_WIDE _units
#else
#define UNITS_WIDE
#endif
#define UNITS_4_1
#define UNITS_4_2
#define UNITS_4_3
#define UNITS_4_4
#define UNITS_4_8 UNITS_WIDE
#define UNITS_4_16 UNITS_WIDE
#define UNITS_8_1
#define UNITS_8_2
#define UNITS_8_3 UNITS_WIDE
#define UNITS_8_4 UNITS_WIDE
#define UNITS_8_8 UNITS_WIDE
#define UNITS_8_16 UNITS_WIDE

// One macro for each width.
#define FOR_EACH_WIDTH(macro, ...)                                                                                \
    macro(__VA_ARGS__, 1) macro(__VA_ARGS__, 2) macro(__VA_ARGS__, 3) macro(__VA_ARGS__, 4) macro(__VA_ARGS__, 8) \
        macro(__VA_ARGS__, 16)

#ifdef __cplusplus
namespace grid {

// The grid's column `traits`: these, or several joined by |.
enum Traits : unsigned {
    plain = 0,
    batched = 1,      // at widths 1, 8, 16 four units share one divide: a lane's last bits depend on its neighbours
    coupled = 2,      // one lane beyond the short path's reach sends all lanes of its call down the long path
    all_rare = 4,     // every lane goes through the scalar routine
    estimate = 8,     // the last bits depend on the processor's rcpps or rsqrtps
    extended = 16,    // the scalar routine computes in the x87 unit's 80-bit format
    fill_one = 32,    // at width 3 the first operand's lane 3 is filled with 1, in place of 0.75
    fill_two = 64,    // with 2
    fill_zero = 128,  // with 0
};
constexpr Traits operator|(Traits x, Traits y) {
    return static_cast<Traits>(static_cast<unsigned>(x) | static_cast<unsigned>(y));
}

}  // namespace grid
#endif
