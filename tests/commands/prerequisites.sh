#!/usr/bin/env bash
# What the commands say on machines that lack something. Such a machine is a folder of stand-ins.
#
#   prerequisites.sh <scratch directory>
set -u
scratch=$1
prerequisites=$(cd "$(dirname "$0")/../.." && pwd)/tools/prerequisites.sh
rm -rf "$scratch"
failed=0

# machine <name>: a machine with no more than this, where one is no superuser.
machine() {
    folder=$scratch/$1
    mkdir -p "$folder"
    for tool in bash cat; do ln -s "$(command -v $tool)" "$folder/"; done
    # shellcheck disable=SC2016
    command_of id 'case $1 in -u) echo 1000 ;; *) echo somebody ;; esac'
}
command_of() { # <name> <script>
    printf '#!%s\n%s\n' "$(command -v bash)" "$2" >"$folder/$1"
    chmod +x "$folder/$1"
}
clang_of() { # <name> <version>: a compiler that builds everything
    command_of "$1" "[ \"\$1\" = -dumpversion ] && echo $2; exit 0"
}
# says <what is expected> <packages...>, on the machine made last; a line of the shell's own is an error.
says() {
    local expected=$1 said
    shift
    said=$(PATH=$folder bash -euo pipefail -c '. "$0"; require "$@"; echo "All is there."' "$prerequisites" "$@" 2>&1)
    if ! grep -qxF -- "$expected" <<<"$said" || grep -qE 'line [0-9]+:|not found|unary' <<<"$said"; then
        printf '%s, asked for %s:\n%s\n-- expected: %s\n\n' "${folder##*/}" "$*" "$said" "$expected"
        failed=1
    fi
}

machine complete
clang_of clang 14.0.6
clang_of clang++ 14.0.6
command_of ninja ''
says "All is there." clang g++-multilib ninja-build

machine old
clang_of clang 11.0.1-2
clang_of clang++ 11.0.1-2
says "  clang 11 found, 14 needed" clang g++-multilib
says "Missing: clang " clang g++-multilib

machine no_c_compiler
clang_of clang++ 14.0.6
says "  clang and clang++ are both needed: clang is missing, clang++ is 14" clang
says "Missing: clang " clang g++-multilib

machine without_clang
clang_of g++ 12
says "Missing: clang cmake " clang g++-multilib cmake
says "All is there." g++-multilib

machine a_compiler_of_64_bits_alone
command_of g++ 'case " $* " in *" -m32 "*) exit 1 ;; esac'
says "Missing: g++-multilib " g++-multilib

# Called by a link from elsewhere, the commands find what they need.
machine linked
for tool in dirname readlink; do ln -s "$(command -v $tool)" "$folder/"; done
for command in demo check; do
    ln -s "${prerequisites%/tools/*}/$command" "$scratch/$command"
    said=$(cd / && PATH=$folder "$(command -v bash)" "$scratch/$command" 2>&1)
    if ! grep -q "^Missing: clang " <<<"$said"; then
        printf '%s by a link:\n%s\n' $command "$said"
        failed=1
    fi
done

exit $failed
