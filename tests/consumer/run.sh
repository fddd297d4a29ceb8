#!/bin/sh
# Installs the library into a tree of its own, moves that tree, and uses it; whom it cannot serve is told so.
#
#   run.sh <build directory> <scratch directory> <C compiler> <C++ compiler>
set -eu
build=$1 scratch=$2 cc=$3 cxx=$4
source=$(dirname "$0")

rm -rf "$scratch"
cmake --install "$build" --prefix "$scratch/installed" >/dev/null
mv "$scratch/installed" "$scratch/moved"
"$source/uses.sh" "$scratch/moved" "$scratch" "$cc" "$cxx"

# Asked for a 64-bit program, the package says what is wrong.
if cmake -S "$source" -B "$scratch/build64" -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" \
    -Docl_zorv_v8_DIR="$(dirname "$(find "$scratch/moved" -name ocl_zorv_v8-config.cmake)")" \
    >/dev/null 2>"$scratch/refusal" || ! grep -q "32-bit library" "$scratch/refusal"; then
    echo "a 64-bit consumer was not refused with a reason"
    exit 1
fi

# Where AVX would move the operands, both headers stop.
for header in ocl_zorv_v8.h ocl_zorv_v8_builtins.h; do
    if echo "#include <$header>" | "$cc" -x cl -cl-std=CL1.2 -m32 -mavx -I "$scratch/moved/include" -fsyntax-only - \
        2>"$scratch/refusal" || ! grep -q "needs -mno-avx" "$scratch/refusal"; then
        echo "$header was not refused with AVX"
        exit 1
    fi
done
