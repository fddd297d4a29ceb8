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
#define FRAME_NAME(base, precision, class_) PASTE5(base, LETTER_##precision, CLASS_##class_, _frame, )

#define FAMILY(base, precision, class_, signature, home, traits, bound) \
    PASTE(ROW_, IS_HERE(home))(base, precision, class_, signature, traits)
#define ROW_elsewhere(base, precision, class_, signature, traits)
#define ROW_here(base, precision, class_, signature, traits)                                           \
    namespace grid {                                                                                   \
    template <int width>                                                                               \
    using FRAME_NAME(base, precision,                                                                  \
                     class_) = zorv::Frame<zorv::FAMILY_NAME(base, precision, class_), width, traits>; \
    }                                                                                                  \
    FOR_EACH_WIDTH(EXPORT, base, precision, class_, signature)
#define EXPORT(base, precision, class_, signature, width)                                                      \
    EXPORT_##signature(EXPORT_NAME(base, precision, class_, width), grid::FRAME_NAME(base, precision, class_), \
                       precision, width)

// Signatures. F is the family's floating lane, I a 32-bit integer lane, in double families too.
#define VECTOR(lane, width) zorv::Vector<lane, width>
#define F(precision, width) VECTOR(LANE_##precision, width)
#define I(width) VECTOR(int32_t, width)
#define EXPORTED extern "C" __attribute__((visibility("default")))

#define EXPORT_one_operand(name, frame, precision, width) \
    EXPORTED F(precision, width) name(F(precision, width) x) { return frame<width>::call(x); }
#define EXPORT_two_operands(name, frame, precision, width) \
    EXPORTED F(precision, width) name(F(precision, width) x, F(precision, width) y) { return frame<width>::call(x, y); }
#define EXPORT_three_operands(name, frame, precision, width)                                                 \
    EXPORTED F(precision, width) name(F(precision, width) a, F(precision, width) b, F(precision, width) c) { \
        return frame<width>::call(a, b, c);                                                                  \
    }
#define EXPORT_operand_and_integer(name, frame, precision, width) \
    EXPORTED F(precision, width) name(F(precision, width) x, I(width) n) { return frame<width>::call(x, n); }
#define EXPORT_integer_result(name, frame, precision, width) \
    EXPORTED I(width) name(F(precision, width) x) { return frame<width>::call(x); }
#define EXPORT_pointer_result(name, frame, precision, width)                                 \
    EXPORTED F(precision, width) name(F(precision, width) x, F(precision, width) * second) { \
        return frame<width>::call_with_pointer(x, second);                                   \
    }
#define EXPORT_integer_pointer_result(name, frame, precision, width)              \
    EXPORTED F(precision, width) name(F(precision, width) x, I(width) * second) { \
        return frame<width>::call_with_pointer(x, second);                        \
    }
#define EXPORT_two_operands_integer_pointer_result(name, frame, precision, width)                        \
    EXPORTED F(precision, width) name(F(precision, width) x, F(precision, width) y, I(width) * second) { \
        return frame<width>::call_with_pointer(x, y, second);                                            \
    }
#define EXPORT_pair_result(name, frame, precision, width) \
    EXPORT_pair_##width(name, frame, PASTE5(LANE_##precision, width, _pair, , ), precision, width)
#define EXPORT_pair_1(name, frame, pair, precision, width) \
    EXPORTED F(precision, 2) name(F(precision, width) x) { return frame<width>::call_for_pair(x); }
#define EXPORT_pair_wide(name, frame, pair, precision, width) \
    EXPORTED pair name(F(precision, width) x) {               \
        auto both = frame<width>::call_for_pair(x);           \
        return {both.first, both.second};                     \
    }
#define EXPORT_pair_2 EXPORT_pair_wide
#define EXPORT_pair_3 EXPORT_pair_wide
#define EXPORT_pair_4 EXPORT_pair_wide
#define EXPORT_pair_8 EXPORT_pair_wide
#define EXPORT_pair_16 EXPORT_pair_wide
#define EXPORT_from_code(name, frame, precision, width) \
    EXPORTED F(precision, width) name(VECTOR(CODE_##precision, width) code) { return frame<width>::call(code); }
#define EXPORT_to(name, frame, precision, width, integer) \
    EXPORTED VECTOR(integer, width) name(F(precision, width) x) { return frame<width>::call(x); }
#define EXPORT_to_i32(name, frame, precision, width) EXPORT_to(name, frame, precision, width, int32_t)
#define EXPORT_to_u32(name, frame, precision, width) EXPORT_to(name, frame, precision, width, uint32_t)
#define EXPORT_to_i64(name, frame, precision, width) EXPORT_to(name, frame, precision, width, int64_t)
#define EXPORT_to_u64(name, frame, precision, width) EXPORT_to(name, frame, precision, width, uint64_t)
#define EXPORT_from(name, frame, precision, width, integer) \
    EXPORTED F(precision, width) name(VECTOR(integer, width) x) { return frame<width>::call(x); }
#define EXPORT_from_i32(name, frame, precision, width) EXPORT_from(name, frame, precision, width, int32_t)
#define EXPORT_from_u32(name, frame, precision, width) EXPORT_from(name, frame, precision, width, uint32_t)
#define EXPORT_from_i64(name, frame, precision, width) EXPORT_from(name, frame, precision, width, int64_t)
#define EXPORT_from_u64(name, frame, precision, width) EXPORT_from(name, frame, precision, width, uint64_t)

#include "include/grid.def"
