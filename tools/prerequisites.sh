# Sourced by ./demo, ./check and .ci/run: finds out what a machine lacks and installs it, or says how to.
# shellcheck shell=bash

oldest_clang=14

# The version of a command of clang's, or nothing where it is missing.
clang_version() {
    local version
    version=$("$1" -dumpversion 2>/dev/null) && echo "${version%%.*}"
}

# Can a 32-bit C++ program be built? With the compiler that is there: clang is looked for apart.
links_32_bits() {
    local compiler
    for compiler in clang++ g++; do
        command -v $compiler >/dev/null || continue
        $compiler -m32 -x c++ - -o /dev/null 2>/dev/null <<<'#include <cstdio>
            int main() { std::puts(""); }'
        return
    done
    compgen -G '/usr/lib/gcc/*/*/32/libstdc++.a' >/dev/null
}

# choose_targets <arguments...>: the targets, as the first argument names one of them or none; `rest` is what follows.
# shellcheck disable=SC2034 # used by the scripts that source this
choose_targets() {
    targets="i386 x86_64"
    case ${1-} in
    i386 | x86_64)
        targets=$1
        shift
        ;;
    esac
    rest=("$@")
}

# preset_for <target> <preset for i386>: the preset of its kind for the target.
preset_for() {
    if [ "$1" = x86_64 ]; then echo "${2}64"; else echo "$2"; fi
}

# Does the machine have what this Debian package brings? Found by using it, so another system's package counts too.
have() {
    local libraries=/usr/lib/x86_64-linux-gnu
    case $1 in *:i386) libraries=/usr/lib/i386-linux-gnu ;; esac
    case ${1%:i386} in
    clang) [ "$(clang_version clang)" -ge $oldest_clang ] && [ "$(clang_version clang++)" -ge $oldest_clang ] ;;
    g++-multilib) links_32_bits ;;
    g++) echo '#include <cstdio>' | clang++ -fsyntax-only -x c++ - ;;
    ninja-build) command -v ninja ;;
    gnuplot-nox) command -v gnuplot ;;
    llvm) command -v llvm-link ;;
    dpkg-dev) command -v dpkg-buildpackage ;;
    debhelper) command -v dh ;;
    binutils-i686-linux-gnu) command -v i686-linux-gnu-objcopy ;;
    libgtest-dev) [ -e $libraries/libgtest.a ] ;;
    libbenchmark-dev) [ -e $libraries/libbenchmark.a ] || [ -e $libraries/libbenchmark.so ] ;;
    libmpfr-dev) [ -e $libraries/libmpfr.so ] && [ -e $libraries/libgmp.so ] ;;
    libsleef-dev) [ -e $libraries/libsleef.so ] ;;
    libxsimd-dev) [ -d /usr/include/xsimd ] ;;
    pocl-opencl-icd) [ -e /etc/OpenCL/vendors/pocl.icd ] ;;
    ocl-icd-opencl-dev) [ -e $libraries/libOpenCL.so ] ;;
    opencl-headers) [ -e /usr/include/CL/cl_layer.h ] ;;
    mkdocs-material) mkdocs build --help 2>/dev/null | grep -q material ;;
    *) command -v "$1" ;;
    esac >/dev/null 2>&1
}

# Prints those of the packages that are missing.
missing() {
    local package
    for package in "$@"; do
        have "$package" || printf '%s ' "$package"
    done
}

# Says what is missing, and of what too old a version is there.
say_missing() {
    local version
    echo "$1: $2"
    case " $2" in *" clang "*) ;; *) return ;; esac
    version=$(clang_version clang || clang_version clang++ || true)
    if [ -z "$version" ]; then
        return
    elif [ "$version" -lt $oldest_clang ]; then
        echo "  clang $version found, $oldest_clang needed"
    else
        echo "  clang and clang++ are both needed: clang is $(clang_version clang || echo missing)," \
            "clang++ is $(clang_version clang++ || echo missing)"
    fi
}

how_to_install() {
    echo "On Debian, as root:"
    case $1 in *:i386*) echo "  dpkg --add-architecture i386" ;; esac
    echo "  apt-get update"
    echo "  apt-get install $1"
}

# require <packages>: returns when all are there; otherwise ends the program, saying what is missing.
require() {
    local lacking
    lacking=$(missing "$@")
    [ -z "$lacking" ] && return
    say_missing "Missing" "$lacking"
    if [ "$(id -u)" != 0 ]; then
        echo "Only root can install packages, and this is $(id -un)."
        how_to_install "$lacking"
        exit 1
    fi
    if ! command -v apt-get >/dev/null; then
        echo "There is no apt-get here; install what these Debian packages bring by your system's own means."
        exit 1
    fi
    case $lacking in *:i386*) dpkg --print-foreign-architectures | grep -qx i386 || dpkg --add-architecture i386 ;; esac
    # A mirror that fails in part may still have what is needed.
    apt-get update || echo "apt-get update failed, at least in part; trying to install all the same."
    # The words are packages.
    # shellcheck disable=SC2086
    DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends $lacking || true
    lacking=$(missing "$@")
    if [ -n "$lacking" ]; then
        echo
        say_missing "Still missing" "$lacking"
        echo "Is the network there, and does the mirror have the i386 architecture?"
        how_to_install "$lacking"
        exit 1
    fi
}
