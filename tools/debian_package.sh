#!/usr/bin/env bash
# Builds the Debian packages (library, development files, debug symbols) into build/package and has lintian look at
# them.
#
#   tools/debian_package.sh [i386|amd64]
#
# A package for i386 is cross-built on amd64: clang has the target in itself, and g++-multilib brings the 32-bit C and
# C++ libraries that the generator of the headers needs while building.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
architecture=${1:-i386}
# shellcheck source=tools/prerequisites.sh
. tools/prerequisites.sh
require clang cmake ninja-build dpkg-dev debhelper lintian
if [ "$architecture" = amd64 ]; then
    require g++ llvm opencl-headers
elif [ "$architecture" != "$(dpkg --print-architecture)" ]; then
    require g++-multilib binutils-i686-linux-gnu
fi

# What is committed or about to be, in a folder of its own.
package=$PWD/build/package/$architecture
rm -rf "$package"
mkdir -p "$package/source"
git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents -t "$package/source"
cd "$package/source"

# -d, and the check by hand: dpkg takes for granted that a cross build wants gcc's cross compiler, which this one does
# not use and which excludes g++-multilib; -I leaves out what is taken for granted.
profiles=()
[ "$architecture" = "$(dpkg --print-architecture)" ] || profiles=(-P cross)
dpkg-checkbuilddeps -I -a "$architecture" "${profiles[@]}"
if command -v ccache >/dev/null; then
    export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache
    CCACHE_DIR=$(ccache -k cache_dir) # debhelper sets another HOME
    export CCACHE_DIR
fi
dpkg-buildpackage -d -b -uc -us -a "$architecture" >"$package/log" 2>&1 || {
    tail -n 40 "$package/log"
    exit 1
}
cd ..
rm -rf source
lintian --fail-on error,warning --tag-display-limit 0 ./*.changes
ls ./*.deb
