#!/bin/sh
# Installs the library into a tree of its own, moves that tree, and builds and runs a second project against it, once
# through the CMake package and once through pkg-config.
#
#   run.sh <build directory> <scratch directory> <C compiler> <C++ compiler>
set -eu
build=$1 scratch=$2 cc=$3 cxx=$4
source=$(dirname "$0")
expected="2 3 0.5 -0 0.33333333333333331 0.33333333333333331"

rm -rf "$scratch"
cmake --install "$build" --prefix "$scratch/installed" >/dev/null
mv "$scratch/installed" "$scratch/moved"

expect() {
    answer=$("$@")
    if [ "$answer" != "$expected" ]; then
        echo "$* printed: $answer"
        echo "expected: $expected"
        exit 1
    fi
}

cmake -S "$source" -B "$scratch/build" -DCMAKE_PREFIX_PATH="$scratch/moved" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_C_FLAGS=-m32 -DCMAKE_CXX_FLAGS=-m32 >/dev/null
cmake --build "$scratch/build" >/dev/null
expect "$scratch/build/from_c"
expect "$scratch/build/from_cpp"

# Asked for a 64-bit program, the package says what is wrong.
if cmake -S "$source" -B "$scratch/build64" -DCMAKE_PREFIX_PATH="$scratch/moved" -DCMAKE_C_COMPILER="$cc" \
    -DCMAKE_CXX_COMPILER="$cxx" >/dev/null 2>"$scratch/refusal" || ! grep -q "32-bit library" "$scratch/refusal"; then
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

pc_folder=$(dirname "$(find "$scratch/moved" -name ocl_zorv_v8.pc)")
flags=$(PKG_CONFIG_PATH=$pc_folder pkg-config --cflags ocl_zorv_v8)
libraries=$(PKG_CONFIG_PATH=$pc_folder pkg-config --libs ocl_zorv_v8)
# The flags are words of their own, quoted by pkg-config.
eval "set -- $flags \"\$source/main.c\" $libraries"
"$cc" "$@" -o "$scratch/by_pkg_config"
export LD_LIBRARY_PATH="$pc_folder/.."
expect "$scratch/by_pkg_config"
