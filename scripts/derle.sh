#!/usr/bin/env bash
# Configures and builds into build/ (or $TASINIR_DERLEME).
set -euo pipefail
kok="$(cd "$(dirname "$0")/.." && pwd)"
derleme="${TASINIR_DERLEME:-$kok/build}"
cmake -S "$kok" -B "$derleme" -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$derleme" -j"$(nproc)"
