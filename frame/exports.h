// Exports of the families that live in the including source: its rows of the grid become six functions each. A
// source of kernels includes this file last, after its namespaces. Which source it is, it is told by the build, which
// defines HOME_<name of the source> as `,here`.
#include "frame/lane_frame.h"
#include "include/grid_names.h"
#include "ocl_zorv_v8.h"

// Rows of another home leave nothing: HOME_other stays one unknown word, HOME_here brings a second argument.
#define IS_HERE(home) SECOND_OF(HOME_##home, elsewhere, )
#define SECOND_OF(...) SECOND_OF_(__VA_ARGS__)
#define SECOND_OF_(first, second, ...) second

#define CODE_float_ uint32_t
#define CODE_double_ uint64_t
#define KERNEL_NAME(base, precision, class_) zorv::FAMILY_NAME(base, precision, class_)

#define FAMILY(base, precision, class_, signature, home, traits, bound) \
    PASTE(ROW_, IS_HERE(home))(base, precision, class_, signature)
#define ROW_elsewhere(base, precision, class_, signature)
#define ROW_here(base, precision, class_, signature) FOR_EACH_WIDTH(EXPORT, base, precision, class_, signature)
#define EXPORT(base, precision, class_, signature, width)                                                            \
    EXPORT_##signature(EXPORT_NAME(base, precision, class_, width), KERNEL_NAME(base, precision, class_), precision, \
                       width)

// Signatures. F is the family's floating lane, I a 32-bit integer lane, in double families too.
#define VECTOR(lane, width) zorv::Vector<lane, width>
#define F(precision, width) VECTOR(LANE_##precision, width)
#define I(width) VECTOR(int32_t, width)
#define EXPORTED extern "C" __attribute__((visibility("default")))
#define FRAME(kernel, width) zorv::Frame<kernel, width>

#define EXPORT_one_operand(name, kernel, precision, width) \
    EXPORTED F(precision, width) name(F(precision, width) x) { return FRAME(kernel, width)::call(x); }
#define EXPORT_two_operands(name, kernel, precision, width)                           \
    EXPORTED F(precision, width) name(F(precision, width) x, F(precision, width) y) { \
        return FRAME(kernel, width)::call(x, y);                                      \
    }
#define EXPORT_three_operands(name, kernel, precision, width)                                                \
    EXPORTED F(precision, width) name(F(precision, width) a, F(precision, width) b, F(precision, width) c) { \
        return FRAME(kernel, width)::call(a, b, c);                                                          \
    }
#define EXPORT_operand_and_integer(name, kernel, precision, width) \
    EXPORTED F(precision, width) name(F(precision, width) x, I(width) n) { return FRAME(kernel, width)::call(x, n); }
#define EXPORT_integer_result(name, kernel, precision, width) \
    EXPORTED I(width) name(F(precision, width) x) { return FRAME(kernel, width)::call(x); }
#define EXPORT_pointer_result(name, kernel, precision, width)                                \
    EXPORTED F(precision, width) name(F(precision, width) x, F(precision, width) * second) { \
        return FRAME(kernel, width)::call_with_pointer(x, second);                           \
    }
#define EXPORT_integer_pointer_result(name, kernel, precision, width)             \
    EXPORTED F(precision, width) name(F(precision, width) x, I(width) * second) { \
        return FRAME(kernel, width)::call_with_pointer(x, second);                \
    }
#define EXPORT_two_operands_integer_pointer_result(name, kernel, precision, width)                       \
    EXPORTED F(precision, width) name(F(precision, width) x, F(precision, width) y, I(width) * second) { \
        return FRAME(kernel, width)::call_with_pointer(x, y, second);                                    \
    }
#define EXPORT_pair_result(name, kernel, precision, width) \
    EXPORT_pair_##width(name, kernel, PASTE5(LANE_##precision, width, _pair, , ), precision, width)
#define EXPORT_pair_1(name, kernel, pair, precision, width) \
    EXPORTED F(precision, 2) name(F(precision, width) x) { return FRAME(kernel, width)::call_for_pair(x); }
#define EXPORT_pair_wide(name, kernel, pair, precision, width) \
    EXPORTED pair name(F(precision, width) x) {                \
        auto both = FRAME(kernel, width)::call_for_pair(x);    \
        return {both.first, both.second};                      \
    }
#define EXPORT_pair_2 EXPORT_pair_wide
#define EXPORT_pair_3 EXPORT_pair_wide
#define EXPORT_pair_4 EXPORT_pair_wide
#define EXPORT_pair_8 EXPORT_pair_wide
#define EXPORT_pair_16 EXPORT_pair_wide
#define EXPORT_from_code(name, kernel, precision, width) \
    EXPORTED F(precision, width) name(VECTOR(CODE_##precision, width) code) { return FRAME(kernel, width)::call(code); }
#define EXPORT_to(name, kernel, precision, width, integer) \
    EXPORTED VECTOR(integer, width) name(F(precision, width) x) { return FRAME(kernel, width)::call(x); }
#define EXPORT_to_i32(name, kernel, precision, width) EXPORT_to(name, kernel, precision, width, int32_t)
#define EXPORT_to_u32(name, kernel, precision, width) EXPORT_to(name, kernel, precision, width, uint32_t)
#define EXPORT_to_i64(name, kernel, precision, width) EXPORT_to(name, kernel, precision, width, int64_t)
#define EXPORT_to_u64(name, kernel, precision, width) EXPORT_to(name, kernel, precision, width, uint64_t)
#define EXPORT_from(name, kernel, precision, width, integer) \
    EXPORTED F(precision, width) name(VECTOR(integer, width) x) { return FRAME(kernel, width)::call(x); }
#define EXPORT_from_i32(name, kernel, precision, width) EXPORT_from(name, kernel, precision, width, int32_t)
#define EXPORT_from_u32(name, kernel, precision, width) EXPORT_from(name, kernel, precision, width, uint32_t)
#define EXPORT_from_i64(name, kernel, precision, width) EXPORT_from(name, kernel, precision, width, int64_t)
#define EXPORT_from_u64(name, kernel, precision, width) EXPORT_from(name, kernel, precision, width, uint64_t)

#include "include/grid.def"
