#!/usr/bin/env bash
# Builds the library and the unit tests with another clang, runs them, and compares what its library computes with what
# the usual one's does, bit by bit over every export.
#
#   tools/other_compiler.sh [clang-19]       without a name, the newest clang-<version> that the machine has
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
clang=${1:-$(compgen -c clang- | grep -E '^clang-[0-9]+$' | sort -uV | tail -n 1)}
build=build/$clang

cmake --preset release >/dev/null
cmake --build --preset release --target ocl_zorv_v8 digest
cmake -S . -B "$build" -G Ninja -DCMAKE_C_COMPILER="$clang" -DCMAKE_CXX_COMPILER="${clang/clang/clang++}" >/dev/null
cmake --build "$build" --target ocl_zorv_v8 unit_tests

"$build/tests/unit_tests" --gtest_brief=1
for folder in build/release "$build"; do
    build/release/tools/digest "$folder/__ocl_zorv_v8.so" >"$folder/digest"
done
diff build/release/digest "$build/digest"
echo "$(clang -dumpversion) and $("$clang" -dumpversion): $(tail -n 1 "$build/digest"), in both"
