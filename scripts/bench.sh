#!/usr/bin/env bash
# Builds and runs the benchmarks beside their peers; bench/RESULTS.md keeps their tables.
# Arguments name the ones to run; without any, all run.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/setup.sh

install_packages "${build_packages[@]}" "${bench_packages[@]}" "${screen_packages[@]}"
build_preset bench
folder=$PWD/build/bench

# The program and its peer are started on a virtual screen and end after their first paint.
start_bench() {
    local display
    home=$(mktemp -d)
    exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x720x24 -nolisten tcp -noreset 2>/dev/null)
    xvfb=$!
    trap 'kill "$xvfb" 2>/dev/null || true; rm -rf "$home"' EXIT
    read -r -t 30 display <&3 || { echo "Xvfb did not start" >&2; exit 1; }
    env -u WAYLAND_DISPLAY DISPLAY=":$display" QT_QPA_PLATFORM=xcb HOME="$home" \
        XDG_CONFIG_HOME="$home/config" XDG_RUNTIME_DIR="$home" \
        QT_PLUGIN_PATH="$folder/plugins" QT_QPA_GENERIC_PLUGINS=firstpaint \
        "$folder/bench/start_bench" "$folder/kompasso" "$folder/bench/empty_window"
}

[ $# -gt 0 ] || set -- geo_peers stations_bench map_bench keystroke_bench list_bench \
    map_window_bench start_bench
for bench in "$@"; do
    say "$bench"
    if [ "$bench" = start_bench ]; then
        start_bench
    else
        "$folder/bench/$bench"
    fi
done
