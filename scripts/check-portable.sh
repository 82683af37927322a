#!/bin/sh
# Compiles the core for another system, base/posix/ apart: what stands there has to be written anew
# for it, everything else must not need that.
set -eu
cd "$(dirname "$0")/.."
compiler=x86_64-w64-mingw32-g++
if ! command -v "$compiler" > /dev/null; then
    echo "not checked: $compiler is missing (package g++-mingw-w64-x86-64)"
    exit 0
fi
find src/base src/geo src/stations src/map src/app -name '*.cpp' ! -path '*/posix/*' -print0 |
    xargs -0 -n 1 -P "$(nproc)" "$compiler" -std=c++20 -O0 -Isrc \
        -ffp-contract=off -fsyntax-only
echo "the core compiles with $compiler"
