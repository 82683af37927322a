#!/usr/bin/env bash
# Runs clang-tidy over src/ and tests/, one process per core. Needs build/dev, which has no
# walkthrough.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files 'src/*.cpp' 'tests/*.cpp' ':!tests/walkthrough' \
    | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p build/dev 2>&1 \
    | grep -v -E '^[0-9]+ warnings? generated\.$|^Suppressed |^Use -header-filter' \
    || [ "${PIPESTATUS[1]}" -eq 0 ]
