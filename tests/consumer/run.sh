#!/bin/sh
# Installs the library into a tree of its own, moves that tree, and uses it; whom it cannot serve is told so.
#
#   run.sh <build directory> <scratch directory> <C compiler> <C++ compiler> <32 or 64>
set -eu
build=$1 scratch=$2 cc=$3 cxx=$4 word=$5
source=$(dirname "$0")

rm -rf "$scratch"
cmake --install "$build" --prefix "$scratch/installed" >/dev/null
mv "$scratch/installed" "$scratch/moved"
"$source/uses.sh" "$scratch/moved" "$scratch" "$cc" "$cxx" "$word"

# Asked for a program of the other word size, the package says what is wrong.
other=$((96 - word))
if cmake -S "$source" -B "$scratch/other" -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" \
    -DCMAKE_C_FLAGS=-m$other -DCMAKE_CXX_FLAGS=-m$other -DCMAKE_TRY_COMPILE_TARGET_TYPE=STATIC_LIBRARY \
    -Docl_zorv_v8_DIR="$(dirname "$(find "$scratch/moved" -name ocl_zorv_v8-config.cmake)")" \
    >/dev/null 2>"$scratch/refusal" || ! grep -q "$word-bit library" "$scratch/refusal"; then
    echo "a $other-bit consumer was not refused with a reason"
    exit 1
fi

# Where AVX would move the operands, both headers stop. Where it does not, they do not.
for header in ocl_zorv_v8.h ocl_zorv_v8_builtins.h; do
    if echo "#include <$header>" | "$cc" -x cl -cl-std=CL1.2 "-m$word" -mavx -I "$scratch/moved/include" \
        -fsyntax-only - 2>"$scratch/refusal"; then
        taken=64
    else
        taken=32
    fi
    if [ $taken != "$word" ] || { [ "$word" = 32 ] && ! grep -q "needs -mno-avx" "$scratch/refusal"; }; then
        echo "$header with AVX:"
        cat "$scratch/refusal"
        exit 1
    fi
done
