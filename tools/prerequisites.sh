# Sourced by ./demo, ./check and .ci/run: finds out what a machine lacks and installs it, or says how to.
# shellcheck shell=bash

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
    clang)
        command -v clang++ >/dev/null && [ "$(clang -dumpversion | cut -d. -f1)" -ge 14 ]
        ;;
    g++-multilib)
        command -v clang++ >/dev/null &&
            echo '#include <cstdio>
                  int main() { std::puts(""); }' | clang++ -m32 -x c++ - -o /dev/null 2>/dev/null
        ;;
    ninja-build) command -v ninja >/dev/null ;;
    gnuplot-nox) command -v gnuplot >/dev/null ;;
    llvm) command -v llvm-link >/dev/null ;;
    libgtest-dev) [ -e $libraries/libgtest.a ] ;;
    libbenchmark-dev) [ -e $libraries/libbenchmark.a ] || [ -e $libraries/libbenchmark.so ] ;;
    libmpfr-dev) [ -e $libraries/libmpfr.so ] && [ -e $libraries/libgmp.so ] ;;
    libsleef-dev) [ -e $libraries/libsleef.so ] ;;
    pocl-opencl-icd) [ -e /etc/OpenCL/vendors/pocl.icd ] ;;
    ocl-icd-opencl-dev) [ -e /usr/lib/x86_64-linux-gnu/libOpenCL.so ] ;;
    opencl-headers) [ -e /usr/include/CL/cl_layer.h ] ;;
    libxsimd-dev) [ -d /usr/include/xsimd ] ;;
    g++) echo '#include <cstdio>' | clang++ -fsyntax-only -x c++ - 2>/dev/null ;;
    *) command -v "$1" >/dev/null ;;
    esac
}

# Prints those of the packages that are missing.
missing() {
    local package
    for package in "$@"; do
        have "$package" || printf '%s ' "$package"
    done
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
    echo "Missing: $lacking"
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
        echo "Still missing: $lacking"
        echo "Is the network there, and does the mirror have the i386 architecture?"
        how_to_install "$lacking"
        exit 1
    fi
}
