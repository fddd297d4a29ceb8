// Every standing export called from OpenCL C: the callers that the library is for. One function an export, with the
// signature of grid::Call, so that the tests can run through these instead of the C++ calls. They are weak: the calls
// of built-ins in overloads.cl, linked beside them, come first.
#include "include/grid_names.h"
#include "ocl_zorv_v8.h"

#define CODE_float_ uint
#define CODE_double_ ulong

// Width 3 travels as four lanes.
#define WIDTH_1
#define WIDTH_2 2
#define WIDTH_3 4
#define WIDTH_4 4
#define WIDTH_8 8
#define WIDTH_16 16
#define VECTOR(lane, width) PASTE5(lane, WIDTH_##width, , , )

#define OPERAND(lane, width, index) (*(const private VECTOR(lane, width)*)operands[index])
#define RESULT(lane, width, index) ((private VECTOR(lane, width)*)results[index])

#define ONE(call, f, lane, w) *RESULT(f, w, 0) = call(OPERAND(lane, w, 0));
#define TWO(call, f, lane, w) *RESULT(f, w, 0) = call(OPERAND(f, w, 0), OPERAND(lane, w, 1));
#define CALL_one_operand(call, f, code, w) ONE(call, f, f, w)
#define CALL_two_operands(call, f, code, w) TWO(call, f, f, w)
#define CALL_three_operands(call, f, code, w) \
    *RESULT(f, w, 0) = call(OPERAND(f, w, 0), OPERAND(f, w, 1), OPERAND(f, w, 2));
#define CALL_operand_and_integer(call, f, code, w) TWO(call, f, int, w)
#define CALL_integer_result(call, f, code, w) ONE(call, int, f, w)
#define CALL_pointer_result(call, f, code, w) *RESULT(f, w, 0) = call(OPERAND(f, w, 0), RESULT(f, w, 1));
#define CALL_integer_pointer_result(call, f, code, w) *RESULT(f, w, 0) = call(OPERAND(f, w, 0), RESULT(int, w, 1));
#define CALL_two_operands_integer_pointer_result(call, f, code, w) \
    *RESULT(f, w, 0) = call(OPERAND(f, w, 0), OPERAND(f, w, 1), RESULT(int, w, 1));
#define CALL_pair_result(call, f, code, w) CALL_pair_##w(call, f, w)
#define CALL_pair_1(call, f, w)                 \
    VECTOR(f, 2) both = call(OPERAND(f, w, 0)); \
    *RESULT(f, w, 0) = both.x, *RESULT(f, w, 1) = both.y;
#define CALL_pair_wide(call, f, w)                         \
    PASTE5(f, w, _pair, , ) both = call(OPERAND(f, w, 0)); \
    *RESULT(f, w, 0) = both.sine, *RESULT(f, w, 1) = both.cosine;
#define CALL_pair_2 CALL_pair_wide
#define CALL_pair_3 CALL_pair_wide
#define CALL_pair_4 CALL_pair_wide
#define CALL_pair_8 CALL_pair_wide
#define CALL_pair_16 CALL_pair_wide
#define CALL_from_code(call, f, code, w) ONE(call, f, code, w)
#define CALL_to_i32(call, f, code, w) ONE(call, int, f, w)
#define CALL_to_u32(call, f, code, w) ONE(call, uint, f, w)
#define CALL_to_i64(call, f, code, w) ONE(call, long, f, w)
#define CALL_to_u64(call, f, code, w) ONE(call, ulong, f, w)
#define CALL_from_i32(call, f, code, w) ONE(call, f, int, w)
#define CALL_from_u32(call, f, code, w) ONE(call, f, uint, w)
#define CALL_from_i64(call, f, code, w) ONE(call, f, long, w)
#define CALL_from_u64(call, f, code, w) ONE(call, f, ulong, w)

#define EXPORT(base, precision, class_, width) EXPORT_NAME(base, precision, class_, width)
#define CALLER(base, precision, class_, signature, width)                                                   \
    __attribute__((weak)) void PASTE5(opencl_, base, LETTER_##precision, width, CLASS_##class_)(            \
        private const void* private* operands, private void* private* results) {                            \
        CALL_##signature(EXPORT(base, precision, class_, width), LANE_##precision, CODE_##precision, width) \
    }
#define FAMILY(base, precision, class_, signature, home, traits, bound) \
    CALLER(base, precision, class_, signature, 1)                       \
    CALLER(base, precision, class_, signature, 2)                       \
    CALLER(base, precision, class_, signature, 3)                       \
    CALLER(base, precision, class_, signature, 4)                       \
    CALLER(base, precision, class_, signature, 8)                       \
    CALLER(base, precision, class_, signature, 16)
#include "include/grid.def"
