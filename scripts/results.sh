#!/usr/bin/env bash
# Runs the benchmarks, on a quiet machine, and puts their tables into bench/RESULTS.md: each into the
# section whose heading ends in (`NAME`). Arguments name the ones to run; without any, all run.
set -euo pipefail
cd "$(dirname "$0")/.."

[ $# -gt 0 ] || set -- geo_peers stations_bench map_bench keystroke_bench list_bench \
    map_window_bench start_bench
table=$(mktemp)
trap 'rm -f "$table" "$table.md"' EXIT
for name in "$@"; do
    scripts/bench.sh "$name" > "$table"
    awk -v heading="(\`$name\`)" -v table="$table" '
        function put(   line) { while ((getline line < table) > 0) print line; done = 1 }
        /^## /                       { here = index($0, heading) > 0; done = 0 }
        skipping == "fence"          { if ($0 == "```") { skipping = ""; print }; next }
        skipping == "rows" && /^\|/  { next }
                                     { skipping = "" }
        here && !done && $0 == "```" { print; put(); skipping = "fence"; next }
        here && !done && /^\|/       { put(); skipping = "rows"; next }
                                     { print }
    ' bench/RESULTS.md > "$table.md"
    cp "$table.md" bench/RESULTS.md
done
