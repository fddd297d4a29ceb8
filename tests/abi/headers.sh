#!/bin/sh
# The two public headers as compilers read them: every signature that the compiler itself knows of a built-in stands
# beside the library's overloads; operands find their own type or an error; what the library does not serve is called
# by the run-time's own name; a kernel's macros do no harm; no warning; refusals of one message.
#
#   headers.sh <compiler> <directory of the headers> <scratch directory>
set -eu
cc=$1 headers=$2 scratch=$3
mkdir -p "$scratch"
cd "$headers" # no path in the options that are split at blanks
builtins="-I . -include ocl_zorv_v8_builtins.h"
failed=0

fail() {
    echo "$*"
    failed=1
}

opencl() { # <options>...: the errors
    "$cc" -x cl -target i386-pc-linux-gnu -march=pentium4 -msse2 -ferror-limit=0 -fno-caret-diagnostics "$@" 2>&1
}

silent() { # <what> <options>...
    what=$1
    shift
    opencl -fsyntax-only "$@" >"$scratch/said" && [ ! -s "$scratch/said" ] || fail "$what: $(head -3 "$scratch/said")"
}

# "result;name;operand;operand..." of every overload that a preprocessed source has.
signatures() {
    grep -v '^#' | tr '\n' ' ' | sed 's/{[^{}]*}/;/g' | tr ';' '\n' | awk '
        /overloadable/ && !/unavailable/ {
            while (match($0, /__attribute__\(\([a-z_, ]*(\([^()]*\))?[a-z_, ]*\)\)/))
                $0 = substr($0, 1, RSTART - 1) " " substr($0, RSTART + RLENGTH)
            gsub(/extern|__inline__|inline|__generic/, "")
            if (!match($0, /\(.*\)/)) next
            operands = substr($0, RSTART + 1, RLENGTH - 2)
            if (split(substr($0, 1, RSTART - 1), head, " ") != 2) next
            line = head[1] ";" head[2]
            count = split(operands, list, ",")
            for (i = 1; i <= count; ++i) {
                match(list[i], /((__global|__local|__private|__generic|const) +)*[a-z0-9_]+( *\*)?/)
                line = line ";" substr(list[i], RSTART, RLENGTH)
            }
            print line
        }' | sort -u
}

# A source that asks for the type of each signature's result, or one that calls each.
questions() { # type|call
    echo "#pragma OPENCL EXTENSION cl_khr_fp16 : enable"
    awk -F';' -v form="$1" '{
        operands = parameters = ""
        for (i = 3; i <= NF; ++i) {
            separator = i > 3 ? ", " : ""
            operands = operands separator (form == "call" ? "v" i : $i ~ /\*/ ? "(" $i ")0" : "*(" $i "*)0")
            parameters = parameters separator $i " v" i
        }
        call = $2 "(" operands ")"
        if (form == "call")
            print $1 " caller" NR "(" parameters ") { return " call "; }"
        else
            print "_Static_assert(__builtin_types_compatible_p(__typeof__(" call "), " $1 "), \"" $0 "\");"
    }'
}

# Every signature, and the result's type. The compiler's own declarations answer first: the questions are right ones.
no_generic=-cl-ext=-__opencl_c_generic_address_space,-__opencl_c_pipes,-__opencl_c_device_enqueue
for options in -cl-std=CL2.0 -cl-std=CL3.0 "-cl-std=CL3.0 -Xclang $no_generic" -cl-std=CL1.2; do
    opencl $options -cl-no-stdinc -Xclang -finclude-default-header -E -P /dev/null | signatures >"$scratch/known"
    opencl $options $builtins -E -P /dev/null | signatures >"$scratch/ours"
    awk -F';' 'NR == FNR { ours[$2] = 1; next } $2 in ours' "$scratch/ours" "$scratch/known" >"$scratch/shared"
    [ "$(wc -l <"$scratch/shared")" -gt 4000 ] || fail "$options: only $(wc -l <"$scratch/shared") signatures were found"
    comm -23 "$scratch/shared" "$scratch/ours" >"$scratch/missing"
    [ ! -s "$scratch/missing" ] || fail "$options, not declared: $(head -3 "$scratch/missing")"
    # Beside all declarations written out, as a run-time may have them.
    silent "$options, after declarations" $options -cl-no-stdinc -Xclang -finclude-default-header $builtins /dev/null
    case $options in -cl-std=CL1.2 | -cl-std=CL3.0)
        questions type <"$scratch/shared" >"$scratch/types.cl"
        silent "$options, the compiler's own" $options "$scratch/types.cl"
        silent "$options" $options $builtins "$scratch/types.cl"
        ;;
    esac
done

# What the library does not serve is called by the name that the compiler itself would call. (The last of the above.)
grep -v "[248]\( [*]\)*\(;\|$\)\|16" "$scratch/shared" | questions call >"$scratch/calls.cl"
for whose in "" "$builtins"; do
    opencl -cl-std=CL1.2 $whose -S -emit-llvm -o - "$scratch/calls.cl" | sed -n 's/^declare.* @\([A-Za-z0-9_]*\)(.*/\1/p' |
        grep -v "^__ocl_zorv_v8_\|^llvm" | sort >"$scratch/called${whose:+_beside}"
done
[ "$(wc -l <"$scratch/called_beside")" -gt 900 ] || fail "few calls of the run-time were found"
comm -13 "$scratch/called" "$scratch/called_beside" >"$scratch/missing"
[ ! -s "$scratch/missing" ] || fail "names that no run-time has: $(head -3 "$scratch/missing")"

# Every overload of float with other operands: of its own type, or an error; never converted.
for type in int half float double; do
    awk -F';' -v OFS=';' -v type=$type '$0 ~ /;[^;]*float/ && $2 !~ /^convert_/ { gsub(/float/, type, $0); print }' \
        "$scratch/ours" >"$scratch/operands"
    questions type <"$scratch/operands" >"$scratch/operands.cl"
    opencl -cl-std=CL1.2 $builtins -fsyntax-only "$scratch/operands.cl" >"$scratch/said" || true
    grep "static.assert" "$scratch/said" >"$scratch/converted" && fail "$type is converted: $(head -3 "$scratch/converted")"
    served=$(($(wc -l <"$scratch/operands") - $(grep -c "error:" "$scratch/said" || true)))
    case $type in
    int) expected=0 ;;
    half)
        expected=$(grep -cv ";native_" "$scratch/operands")
        [ "$(grep -c "unavailable: native_" "$scratch/said")" = "$(grep -c ";native_" "$scratch/operands")" ] ||
            fail "native built-ins of half are not refused by name"
        ;;
    *) expected=$(wc -l <"$scratch/operands") ;;
    esac
    [ "$served" = "$expected" ] || fail "operands of $type: $served overloads, $expected were expected"
done

# Macros that a kernel or its build may have; the headers' own have reserved names.
macros=$(for name in a b c i n v x y z to from low high name value code first second pointer operands result call \
    OVERLOAD NEAREST PLAIN ROUNDED ROUNDINGS CLAMPED SATURATED WIDTHS SPACE; do echo "-D$name=)"; done)
for standard in CL1.2 CL2.0 CL3.0; do
    silent "$standard with macros" -cl-std=$standard $macros $builtins /dev/null
    silent "$standard with warnings" -cl-std=$standard -Wall -Wextra -pedantic $builtins /dev/null
    silent "$standard without half precision" -cl-std=$standard -Xclang -cl-ext=-cl_khr_fp16 $builtins /dev/null
done
opencl -cl-std=CL3.0 -E -dM /dev/null | sort >"$scratch/macros"
opencl -cl-std=CL3.0 $builtins -E -dM /dev/null | sort | comm -13 "$scratch/macros" - |
    grep -v "^#define \(__\|OCL_ZORV_V8_\)" && fail "macros of the headers have names that are not reserved"

# C and C++, with the vectors' names and with a program's own.
cat >"$scratch/own_names.c" <<'END'
typedef unsigned char uint8;
typedef struct { float x, y, z, w; } float4, float4_pair;
#define OCL_ZORV_V8_NO_VECTOR_NAMES
#include <ocl_zorv_v8.h>
uint8 byte(__ocl_zorv_v8_float4 x, float4 own);
uint8 byte(__ocl_zorv_v8_float4 x, float4 own) {
    __ocl_zorv_v8_float4_pair both = __ocl_zorv_v8_sincosregf4(x);
    return (uint8)(both.sine.x + own.x);
}
END
echo "#include <ocl_zorv_v8.h>" >"$scratch/names.c"
for language in "c -std=c11" "c -std=c17" "c++ -std=c++17" "c++ -std=c++20"; do
    for source in names own_names; do
        case $source in names) defined=$macros ;; *) defined= ;; esac
        "$cc" -x $language -m32 -msse2 -Wall -Wextra -pedantic -Wdocumentation -Werror -I "$headers" -fsyntax-only \
            $defined "$scratch/$source.c" || fail "$language: $source"
    done
done

# An editor's comment at every declaration; nothing of the other precision in it.
"$cc" -m32 -msse2 -I "$headers" -fsyntax-only -Xclang -ast-dump "$scratch/names.c" | awk '
    /FunctionDecl/ { match($0, /__ocl_zorv_v8_[a-z0-9_]*/); name = substr($0, RSTART, RLENGTH); ++declared }
    /FullComment/ { ++commented }
    /Text=/ && name !~ /cvt/ && (name ~ /f[0-9]+(_native)?$/ ? /double/ : /float[^i]/) { print name ": " $0; wrong = 1 }
    END { if (declared < 1900 || commented != declared) { print commented " comments of " declared; wrong = 1 } exit wrong }
' || fail "comments in ocl_zorv_v8.h"

# Refused with one message.
refused() { # <message> <options>...
    message=$1
    shift
    opencl -fsyntax-only "$@" $builtins /dev/null >"$scratch/said" && fail "$*: not refused"
    [ "$(grep -c error: "$scratch/said")" = 1 ] && grep -q "$message" "$scratch/said" || fail "$*: $(head -3 "$scratch/said")"
}
refused "for OpenCL C 1.2 and newer" -cl-std=CL1.1
refused "not for C++ for OpenCL" -cl-std=clc++
refused "needs -mno-avx" -cl-std=CL1.2 -mavx
refused "needs clang for x86 with SSE2" -cl-std=CL1.2 -mno-sse2
refused "needs cl_khr_fp64" -cl-std=CL1.2 -Xclang -cl-ext=-cl_khr_fp64
exit $failed
