// Every standing family called as a kernel calls it, by the built-in's name: the operands' types choose the overload.
// One function a family and width, with the signature of grid::Call, so that the value tests can run through these.
#include "include/grid_names.h"
#include "ocl_zorv_v8_builtins.h"

// A kernel's vectors: width 3 is a type of its own. Second results go through each of the address spaces in turn.
#define WIDTH_1
#define WIDTH_2 2
#define WIDTH_3 3
#define WIDTH_4 4
#define WIDTH_8 8
#define WIDTH_16 16
#define VECTOR(lane, width) PASTE5(lane, WIDTH_##width, , , )
#define SPACE_1 private
#define SPACE_2 local
#define SPACE_3 global
#define SPACE_4 private
#define SPACE_8 local
#define SPACE_16 global

#define OPERAND(lane, width, index) (*(const private VECTOR(lane, width)*)operands[index])
#define RESULT(lane, width, index) (*(private VECTOR(lane, width)*)results[index])
#define POINTER(lane, width) ((SPACE_##width VECTOR(lane, width)*)(uintptr_t)results[1])

#define CALL_one_operand(call, f, w) RESULT(f, w, 0) = call(OPERAND(f, w, 0));
#define CALL_two_operands(call, f, w) RESULT(f, w, 0) = call(OPERAND(f, w, 0), OPERAND(f, w, 1));
#define CALL_three_operands(call, f, w) RESULT(f, w, 0) = call(OPERAND(f, w, 0), OPERAND(f, w, 1), OPERAND(f, w, 2));
#define CALL_operand_and_integer(call, f, w) RESULT(f, w, 0) = call(OPERAND(f, w, 0), OPERAND(int, w, 1));
#define CALL_integer_result(call, f, w) RESULT(int, w, 0) = call(OPERAND(f, w, 0));
#define CALL_pointer_result(call, f, w) RESULT(f, w, 0) = call(OPERAND(f, w, 0), POINTER(f, w));
#define CALL_integer_pointer_result(call, f, w) RESULT(f, w, 0) = call(OPERAND(f, w, 0), POINTER(int, w));
#define CALL_two_operands_integer_pointer_result(call, f, w) \
    RESULT(f, w, 0) = call(OPERAND(f, w, 0), OPERAND(f, w, 1), POINTER(int, w));
#define CALL_from_code(call, f, w) RESULT(f, w, 0) = call(OPERAND(PASTE(CODE_, f), w, 0));
#define CODE_float uint
#define CODE_double ulong

// Built-ins whose names are not the families', and families that are no built-in.
#define NAMED_inv_native ~, native_recip
#define NAMED_div_native ~, native_divide
#define NAMED_lgammar_accurate ~, lgamma_r
#define NAMED_nearbyint_accurate ~, rint
#define NAMED_sincosreg_accurate ~, sincos
#define NAMED_sincosreg_native ~, native_sincos
#define CALL_pair_result CALL_pointer_result
#define LEFT_OUT_inv_accurate ~, NOTHING
#define LEFT_OUT_div_accurate ~, NOTHING
#define LEFT_OUT_rcbrt_accurate ~, NOTHING
#define LEFT_OUT_rcbrt_native ~, NOTHING
#define SECOND(first, second, ...) second
#define GIVEN_OR(...) SECOND(__VA_ARGS__, )

#define CALLER(base, precision, class_, width)                                                                   \
    void PASTE5(opencl_, base, LETTER_##precision, width, CLASS_##class_)(private const void* private* operands, \
                                                                          private void* private* results)
#define PREFIXED_accurate(base) base
#define PREFIXED_native(base) native_##base
#define BUILTIN(base, class_) GIVEN_OR(NAMED_##base##_##class_, PREFIXED_##class_(base))
#define DEFINE(base, precision, class_, signature, width) \
    CALLER(base, precision, class_, width) { CALL_##signature(BUILTIN(base, class_), LANE_##precision, width) }
#define NOTHING(base, precision, class_, signature, width)
#define DEFINE_OR_NOT(base, precision, class_, signature, width) \
    GIVEN_OR(LEFT_OUT_##base##_##class_, DEFINE)(base, precision, class_, signature, width)
#define FAMILY(base, precision, class_, signature, home, traits, bound) \
    FOR_EACH_WIDTH(DEFINE_OR_NOT, base, precision, class_, signature)

// convert_int4_sat_rte and its like; this library's `rtn` is OpenCL's `_rte`.
#define INTEGER_i32 int
#define INTEGER_u32 uint
#define INTEGER_i64 long
#define INTEGER_u64 ulong
#define SATURATION_sat _sat
#define SATURATION_nosat
#define ROUNDING_rtn _rte
#define ROUNDING_rtz _rtz
#define ROUNDING_up _rtp
#define ROUNDING_down _rtn
#define CONVERT(base, precision, from, to, saturation, rounding, width)                                            \
    CALLER(base, precision, accurate, width) {                                                                     \
        RESULT(to, width, 0) = PASTE5(convert_, to, WIDTH_##width, saturation, rounding)(OPERAND(from, width, 0)); \
    }
#define TO_INTEGER(base, precision, target, rounding, saturation)                                         \
    FOR_EACH_WIDTH(CONVERT, base, precision, LANE_##precision, INTEGER_##target, SATURATION_##saturation, \
                   ROUNDING_##rounding)
#define FROM_INTEGER(base, precision, source, rounding) \
    FOR_EACH_WIDTH(CONVERT, base, precision, INTEGER_##source, LANE_##precision, , ROUNDING_##rounding)
#include "include/grid.def"
