#!/usr/bin/env bash
# Runs clang-tidy over every source file that the dev preset compiles, two at a time.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files 'src/*.cpp' 'tests/*.cpp' \
    | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p build/dev 2>&1 \
    | grep -v -E '^[0-9]+ warnings? generated\.$|^Suppressed |^Use -header-filter' \
    || [ "${PIPESTATUS[1]}" -eq 0 ]
