#!/bin/sh
# Cuts the library's bitcode into parts: the exports of one source each, with all that they need of the others.
#
#   parts.sh <llvm-link> <the whole library> <folder> <object>...
set -eu
llvm_link=$1 whole=$2 folder=$3
shift 3
mkdir -p "$folder"
for object; do
    name=$(basename "$object" .cpp.o)
    case $name in *_data) continue ;; esac # no exports, and in every part what it needs of them
    # Two parts with one record in common are linked into one program, so all but the exports are a part's own.
    "$llvm_link" "$object" --only-needed --internalize "$whole" -o "$folder/$name.bc"
done
