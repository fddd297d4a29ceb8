// Exports of the families that live in the including source: its rows of the grid become six functions each. A
// source of kernels includes this file last, after its namespaces. Which source it is, it is told by the build, which
// defines HOME_<name of the source> as `,here`.
#include "frame/lane_frame.h"
#include "include/grid_names.h"
#include "ocl_zorv_v8.h"

// Rows of another home leave nothing: HOME_other stays one unknown word, HOME_here brings a second argument.
#define IS_HERE(home) SECOND_OF(HOME_##home, elsewhere, )

#define CODE_float_ uint32_t
#define CODE_double_ uint64_t
#define FRAME_NAME(base, precision, class_) PASTE5(base, LETTER_##precision, CLASS_##class_, _frame, )

#define FAMILY(base, precision, class_, signature, home, traits, bound) \
    PASTE(ROW_, IS_HERE(home))(base, precision, class_, signature, traits)
#define ROW_elsewhere(base, precision, class_, signature, traits)
#define ROW_here(base, precision, class_, signature, traits)                                          \
    namespace grid {                                                                                  \
    template <int width>                                                                              \
    using FRAME_NAME(base, precision, class_) =                                                       \
        zorv::Frame<zorv::Exported<zorv::FAMILY_NAME(base, precision, class_)>::type, width, traits>; \
    }                                                                                                 \
    FOR_EACH_WIDTH(EXPORT, base, precision, class_, signature)
#define EXPORT(base, precision, class_, signature, width)                        \
    EXPORT_##signature(EXPORT_SYMBOL(base, precision, class_, signature, width), \
                       grid::FRAME_NAME(base, precision, class_), precision, width)

// The types in the public header that lanes travel in: the vector, or, where it is too long, the structure of units.
namespace grid {
template <class Lane, int width>
struct TypeOf {
    using type = zorv::Vector<Lane, width>;
};
template <class Type>
struct VectorIn {
    using type = Type;
};
#ifdef __x86_64__
#define TRAVELS(lane, width, units)             \
    template <>                                 \
    struct TypeOf<lane, width> {                \
        using type = units;                     \
    };                                          \
    template <>                                 \
    struct VectorIn<units> {                    \
        using type = zorv::Vector<lane, width>; \
    };
#define TRAVELS_AT_WIDTHS_8_AND_16(lane, name) \
    TRAVELS(lane, 8, __ocl_zorv_v8_##name##8_units) TRAVELS(lane, 16, __ocl_zorv_v8_##name##16_units)
#define TRAVELS_AT_WIDTHS_3_TO_16(lane, name)       \
    template <>                                     \
    struct TypeOf<lane, 3> {                        \
        using type = __ocl_zorv_v8_##name##4_units; \
    };                                              \
    TRAVELS(lane, 4, __ocl_zorv_v8_##name##4_units) \
    TRAVELS_AT_WIDTHS_8_AND_16(lane, name)
TRAVELS_AT_WIDTHS_8_AND_16(float, float)
TRAVELS_AT_WIDTHS_8_AND_16(int32_t, int)
TRAVELS_AT_WIDTHS_8_AND_16(uint32_t, uint)
TRAVELS_AT_WIDTHS_3_TO_16(double, double)
TRAVELS_AT_WIDTHS_3_TO_16(int64_t, long)
TRAVELS_AT_WIDTHS_3_TO_16(uint64_t, ulong)
#endif

template <class Type>
ALWAYS_INLINE auto vector_in(Type travelling) {
    return zorv::image_of<typename VectorIn<Type>::type>(travelling);
}
}  // namespace grid

// Signatures. F is the family's floating lane; integers beside it have 32 bits, in double families too.
#define LANES(lane, width) grid::TypeOf<lane, width>::type
#define F(precision, width) LANES(LANE_##precision, width)
#ifdef ZORV_BITCODE
#define EXPORTED extern "C" __attribute__((visibility("default"), always_inline))
#else
#define EXPORTED extern "C" __attribute__((visibility("default")))
#endif
#define OUT(type, ...) return zorv::image_of<type>(__VA_ARGS__)
#define IN(x) grid::vector_in(x)

#define EXPORT_unary(name, frame, width, result, operand)         \
    EXPORTED LANES(result, width) name(LANES(operand, width) x) { \
        OUT(LANES(result, width), frame<width>::call(IN(x)));     \
    }
#define EXPORT_binary(name, frame, width, result, first, second)                        \
    EXPORTED LANES(result, width) name(LANES(first, width) x, LANES(second, width) y) { \
        OUT(LANES(result, width), frame<width>::call(IN(x), IN(y)));                    \
    }
#define EXPORT_one_operand(name, frame, precision, width) \
    EXPORT_unary(name, frame, width, LANE_##precision, LANE_##precision)
#define EXPORT_two_operands(name, frame, precision, width) \
    EXPORT_binary(name, frame, width, LANE_##precision, LANE_##precision, LANE_##precision)
#define EXPORT_three_operands(name, frame, precision, width)                                                 \
    EXPORTED F(precision, width) name(F(precision, width) a, F(precision, width) b, F(precision, width) c) { \
        OUT(F(precision, width), frame<width>::call(IN(a), IN(b), IN(c)));                                   \
    }
#define EXPORT_operand_and_integer(name, frame, precision, width) \
    EXPORT_binary(name, frame, width, LANE_##precision, LANE_##precision, int32_t)
#define EXPORT_integer_result(name, frame, precision, width) EXPORT_unary(name, frame, width, int32_t, LANE_##precision)
#define EXPORT_unary_with_pointer(name, frame, precision, width, lane)                            \
    EXPORTED F(precision, width) name(F(precision, width) x, zorv::Vector<lane, width>* second) { \
        OUT(F(precision, width), frame<width>::call_with_pointer(IN(x), second));                 \
    }
#define EXPORT_pointer_result(name, frame, precision, width) \
    EXPORT_unary_with_pointer(name, frame, precision, width, LANE_##precision)
#define EXPORT_integer_pointer_result(name, frame, precision, width) \
    EXPORT_unary_with_pointer(name, frame, precision, width, int32_t)
#define EXPORT_two_operands_integer_pointer_result(name, frame, precision, width)                  \
    EXPORTED F(precision, width)                                                                   \
        name(F(precision, width) x, F(precision, width) y, zorv::Vector<int32_t, width>* second) { \
        OUT(F(precision, width), frame<width>::call_with_pointer(IN(x), IN(y), second));           \
    }
#define EXPORT_pair_result(name, frame, precision, width)                                                    \
    EXPORT_pair_##width(                                                                                     \
        name, frame,                                                                                         \
        PASTE5(__ocl_zorv_v8_, LANE_##precision, width, _pair, UNITS_SUFFIX(pair_result, precision, width)), \
        precision, width)
#define EXPORT_pair_1(name, frame, pair, precision, width) \
    EXPORTED F(precision, 2) name(F(precision, width) x) { return frame<width>::call_for_pair(x); }
#define EXPORT_pair_wide(name, frame, pair, precision, width)                         \
    EXPORTED pair name(F(precision, width) x) {                                       \
        using Half = F(precision, width);                                             \
        auto both = frame<width>::call_for_pair(IN(x));                               \
        return {zorv::image_of<Half>(both.first), zorv::image_of<Half>(both.second)}; \
    }
#define EXPORT_pair_2 EXPORT_pair_wide
#define EXPORT_pair_3 EXPORT_pair_wide
#define EXPORT_pair_4 EXPORT_pair_wide
#define EXPORT_pair_8 EXPORT_pair_wide
#define EXPORT_pair_16 EXPORT_pair_wide
#define EXPORT_from_code(name, frame, precision, width) \
    EXPORT_unary(name, frame, width, LANE_##precision, CODE_##precision)
#define EXPORT_to(name, frame, precision, width, integer) EXPORT_unary(name, frame, width, integer, LANE_##precision)
#define EXPORT_to_i32(name, frame, precision, width) EXPORT_to(name, frame, precision, width, int32_t)
#define EXPORT_to_u32(name, frame, precision, width) EXPORT_to(name, frame, precision, width, uint32_t)
#define EXPORT_to_i64(name, frame, precision, width) EXPORT_to(name, frame, precision, width, int64_t)
#define EXPORT_to_u64(name, frame, precision, width) EXPORT_to(name, frame, precision, width, uint64_t)
#define EXPORT_from(name, frame, precision, width, integer) EXPORT_unary(name, frame, width, LANE_##precision, integer)
#define EXPORT_from_i32(name, frame, precision, width) EXPORT_from(name, frame, precision, width, int32_t)
#define EXPORT_from_u32(name, frame, precision, width) EXPORT_from(name, frame, precision, width, uint32_t)
#define EXPORT_from_i64(name, frame, precision, width) EXPORT_from(name, frame, precision, width, int64_t)
#define EXPORT_from_u64(name, frame, precision, width) EXPORT_from(name, frame, precision, width, uint64_t)

#include "include/grid.def"
