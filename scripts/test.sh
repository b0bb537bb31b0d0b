#!/usr/bin/env bash
# Installs what is needed, builds, and runs every test.
set -euo pipefail
kok="$(cd "$(dirname "$0")/.." && pwd)"
bash "$kok/scripts/kur.sh"
bash "$kok/scripts/derle.sh"
derleme="${TASINIR_DERLEME:-$kok/build}"
cd "$derleme"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$(nproc)"
