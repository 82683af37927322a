#!/usr/bin/env bash
# virtual-screen.sh PROGRAM: runs PROGRAM under Xvfb with the walkthrough, which types JN58TH into
# Station 2 and leaves build/run/kompasso.png and build/run/ergebnis.txt. The program gets a
# throw-away home, so that no user's data is touched.
set -euo pipefail
program=$1
out=$PWD/build/run
home=$(mktemp -d)
mkdir -p "$out"
rm -f "$out"/kompasso.png "$out"/ergebnis.txt

exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x720x24 -nolisten tcp -noreset 2>"$out/xvfb.log")
xvfb=$!
trap 'kill "$xvfb" 2>/dev/null || true; rm -rf "$home"' EXIT
read -r -t 30 display <&3 || { echo "Xvfb did not start, see $out/xvfb.log" >&2; exit 1; }

status=0
env -u WAYLAND_DISPLAY DISPLAY=":$display" QT_QPA_PLATFORM=xcb HOME="$home" \
    XDG_DATA_HOME="$home/data" XDG_CONFIG_HOME="$home/config" XDG_RUNTIME_DIR="$home" \
    QT_PLUGIN_PATH="$(dirname "$program")/plugins" QT_QPA_GENERIC_PLUGINS=walkthrough \
    KOMPASSO_WALKTHROUGH_DIR="$out" \
    timeout 60 "$program" || status=$?
if [ "$status" -ne 0 ] || [ ! -s "$out/ergebnis.txt" ] || [ ! -s "$out/kompasso.png" ]; then
    echo "the walkthrough did not finish (exit $status)" >&2
    exit 1
fi
echo "Picture of the window: $out/kompasso.png"
echo "Result block after typing JN58TH into Station 2:"
cat "$out/ergebnis.txt"
