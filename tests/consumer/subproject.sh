#!/bin/sh
# A second project takes in the sources. The library is not compiled once more for that: the project's own objects are,
# with what its target tells them, and are linked to the library that is there.
#
#   subproject.sh <build directory> <scratch directory> <C compiler> <C++ compiler> <32 or 64>
set -eu
build=$1 scratch=$2 cc=$3 cxx=$4 word=$5
tests=$(cd "$(dirname "$0")" && pwd)
source=$(cd "$tests/../.." && pwd)

rm -rf "$scratch"
configure() { # <arguments...>
    cmake -S "$tests" -B "$scratch/build" -G Ninja -DZORV_SOURCE="$source" -DCMAKE_C_COMPILER="$cc" \
        -DCMAKE_CXX_COMPILER="$cxx" "$@"
}
configure -DCMAKE_C_FLAGS="-m$word" -DCMAKE_CXX_FLAGS="-m$word" >/dev/null
cmake --build "$scratch/build" --target CMakeFiles/from_c.dir/main.c.o CMakeFiles/from_cpp.dir/main.cpp.o >/dev/null
"$cc" "-m$word" "$scratch/build/CMakeFiles/from_c.dir/main.c.o" "$build/__ocl_zorv_v8.so" -o "$scratch/from_c"
[ "$(LD_LIBRARY_PATH=$build "$scratch/from_c")" = "2 3 0.5 -0 0.33333333333333331 0.33333333333333331" ]

complain() {
    echo "$1"
    exit 1
}
# The project that takes this one in gets none of its tests, targets of its own, install rules or flags.
targets=$(cmake --build "$scratch/build" --target help)
for target in unit_tests bench headers readme style; do
    if echo "$targets" | grep -q "^$target:"; then complain "a target of this project's own: $target"; fi
done
if grep -rq __ocl_zorv_v8 "$scratch/build/_deps" --include=cmake_install.cmake; then complain "it would be installed"; fi
grep -A4 'main.c.o:' "$scratch/build/build.ninja" >"$scratch/flags"
interface=-msse2
if [ "$word" = 64 ]; then interface=-Wno-psabi; fi
if ! grep -q -e $interface "$scratch/flags"; then complain "no $interface for the project that uses it"; fi
if grep -q -e -march= "$scratch/flags"; then complain "our flags in another project"; fi

# Flags that would change results, and a project of the other word size, are refused with a reason.
refused() { # <what the reason must have> <arguments...>
    reason=$1
    shift
    rm -rf "$scratch/build"
    if configure "$@" >/dev/null 2>"$scratch/refusal" || ! tr '\n' ' ' <"$scratch/refusal" | grep -q "$reason"; then
        complain "not refused with a reason: $*"
    fi
}
other=i386
if [ "$word" = 32 ]; then other=x86_64; fi
refused "$((96 - word))-bit library" -DZORV_TARGET=$other -DCMAKE_C_FLAGS="-m$word" -DCMAKE_CXX_FLAGS="-m$word"
refused "CMAKE_CXX_FLAGS has -ffast-math" -DCMAKE_C_FLAGS="-m$word" -DCMAKE_CXX_FLAGS="-m$word -ffast-math"
refused "CMAKE_CXX_FLAGS has -mavx2" -DCMAKE_C_FLAGS="-m$word" -DCMAKE_CXX_FLAGS="-m$word -mavx2"
refused "CMAKE_CXX_FLAGS_DEBUG has -O0" -DCMAKE_C_FLAGS="-m$word" -DCMAKE_CXX_FLAGS="-m$word" -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_CXX_FLAGS_DEBUG="-g -O0"
