#!/bin/sh
# Installs the library with DESTDIR, as packagers do, its folder given without a type: relative to the prefix, and
# absolute. Only the configuration differs from the build that is there, so what that one made is used.
#
#   folders.sh <build directory> <scratch directory> <C compiler> <C++ compiler> <32 or 64>
set -eu
build=$1 scratch=$2 cc=$3 cxx=$4 word=$5
target=i386
if [ "$word" = 64 ]; then target=x86_64; fi
tests=$(cd "$(dirname "$0")" && pwd)

rm -rf "$scratch"
mkdir -p "$scratch"
install_with() { # <name> <prefix> <library folder>
    cmake -S "$tests/../.." -B "$scratch/$1" -DZORV_TARGET=$target -DZORV_TESTS=OFF \
        -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_BUILD_TYPE=None \
        -DCMAKE_INSTALL_PREFIX="$2" -DCMAKE_INSTALL_LIBDIR="$3" >/dev/null
    cp "$build"/*.so "$scratch/$1/"
    cp "$build"/include/* "$scratch/$1/include/"
    for bitcode in "$build"/ocl_zorv_v8-x86-64*; do
        if [ -e "$bitcode" ]; then cp -r "$bitcode" "$scratch/$1/"; fi
    done
    DESTDIR="$scratch/$1.root" cmake --install "$scratch/$1" >"$scratch/$1.log"
}
expect_file() {
    [ -f "$1" ] && return
    echo "not installed: $1"
    exit 1
}

cd "$scratch"
install_with relative /usr lib/$target-linux-gnu
expect_file "$scratch/relative.root/usr/lib/$target-linux-gnu/__ocl_zorv_v8.so"
expect_file "$scratch/relative.root/usr/include/ocl_zorv_v8.h"
mkdir "$scratch/relative.use"
"$tests/uses.sh" "$scratch/relative.root/usr" "$scratch/relative.use" "$cc" "$cxx" "$word"

# Absolute, and not below the prefix: the folders are told as they will be when the tree is the system's root.
install_with absolute /usr /opt/zorv/lib
pc=$scratch/absolute.root/opt/zorv/lib/pkgconfig/ocl_zorv_v8.pc
expect_file "$scratch/absolute.root/opt/zorv/lib/__ocl_zorv_v8.so"
expect_file "$scratch/absolute.root/usr/include/ocl_zorv_v8.h"
expect_file "$pc"
for folder in libdir=/opt/zorv/lib includedir=/usr/include; do
    value=$(PKG_CONFIG_LIBDIR=$(dirname "$pc") pkg-config --variable="${folder%%=*}" ocl_zorv_v8)
    if [ "$value" != "${folder#*=}" ]; then
        echo "$pc has ${folder%%=*}=$value instead of ${folder#*=}"
        exit 1
    fi
done
# The same in folders where it can be used at once.
install_with placed "$scratch/placed.root/usr" "$scratch/placed.root/opt/lib"
mv "$scratch/placed.root" "$scratch/placed.staged"
mv "$scratch/placed.staged$scratch/placed.root" "$scratch/placed.root"
mkdir "$scratch/placed.use"
CMAKE_PREFIX_PATH="$scratch/placed.root/opt/lib/cmake" \
    "$tests/uses.sh" "$scratch/placed.root" "$scratch/placed.use" "$cc" "$cxx" "$word"
