#!/usr/bin/env bash
# Makes docs/kompasso.png, the picture of the README, from the running program on a virtual screen.
set -euo pipefail
cd "$(dirname "$0")/.."
env -u DISPLAY -u WAYLAND_DISPLAY ./run
cp build/run/kompasso.png docs/kompasso.png
