#!/usr/bin/env bash
# Installs what is needed, builds, and starts the program on the data folder
# (a sample data set is made there when it holds none). Without a display the
# sample's forms are printed to PDF instead, and their place is said.
set -euo pipefail
kok="$(cd "$(dirname "$0")/.." && pwd)"
bash "$kok/scripts/kur.sh"
bash "$kok/scripts/derle.sh"
derleme="${TASINIR_DERLEME:-$kok/build}"
program="$derleme/src/app/tasinir"
veri="${TASINIR_VERI:-$HOME/Tasinir-veri}"

# The sample goes only into a folder without records (a sample cut short is
# taken out again when the folder opens, and written anew here).
"$program" ornek-veri "$veri" --gerekirse

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$program" --veri "$veri"
else
  exec "$program" --veri "$veri" ornek-formlar --cikti "$veri/formlar"
fi
