#!/bin/sh
# Builds and runs a second project against a prefix where the library is installed, once through the CMake package and
# once through pkg-config.
#
#   uses.sh <prefix> <scratch directory> <C compiler> <C++ compiler> <32 or 64>
set -eu
prefix=$1 scratch=$2 cc=$3 cxx=$4 word=$5
source=$(dirname "$0")
expected="2 3 0.5 -0 0.33333333333333331 0.33333333333333331"

expect() {
    answer=$("$@")
    if [ "$answer" != "$expected" ]; then
        echo "$* printed: $answer"
        echo "expected: $expected"
        exit 1
    fi
}

cmake -S "$source" -B "$scratch/build" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_C_FLAGS="-m$word" -DCMAKE_CXX_FLAGS="-m$word" >/dev/null
cmake --build "$scratch/build" >/dev/null
expect "$scratch/build/from_c"
expect "$scratch/build/from_cpp"

pc_folder=$(dirname "$(find "$prefix" -name ocl_zorv_v8.pc)")
export PKG_CONFIG_LIBDIR="$pc_folder" # this one alone, not what the system may have
flags=$(pkg-config --cflags ocl_zorv_v8)
libraries=$(pkg-config --libs ocl_zorv_v8)
# The flags are words of their own, quoted by pkg-config.
eval "set -- $flags \"\$source/main.c\" $libraries"
"$cc" "$@" -o "$scratch/by_pkg_config"
LD_LIBRARY_PATH=$(pkg-config --variable=libdir ocl_zorv_v8)
export LD_LIBRARY_PATH
expect "$scratch/by_pkg_config"
