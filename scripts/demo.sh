#!/usr/bin/env bash
# Builds the library and runs lumi-demo; the pictures land in demo-out/.
#   scripts/demo.sh             the demo's own test pattern
#   scripts/demo.sh photo.png   your picture instead
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
arg=()
[ $# -gt 0 ] && arg=("$(realpath "$1")")
cd "$root"
bash scripts/install-deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build -j "$(nproc)" --target lumi-demo
./build/lumi-demo "${arg[@]}"
