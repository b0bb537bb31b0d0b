#!/usr/bin/env bash
# Installs every Debian package that building, running and testing need.
# Safe to run again: packages already present are left alone.
set -euo pipefail

PAKETLER=(
  build-essential cmake pkg-config
  qt6-base-dev qt6-base-dev-tools libqt6sql6-sqlite libqt6opengl6-dev
  qt6-qpa-plugins libgl-dev
  libsqlite3-dev sqlite3
  strace
  qt6-translations-l10n
  libzip-dev libxlsxwriter-dev
  fonts-liberation2 fontconfig
  poppler-utils xvfb xauth
)

eksik=()
for p in "${PAKETLER[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || eksik+=("$p")
done

if [ ${#eksik[@]} -eq 0 ]; then
  exit 0
fi

SUDO=""
if [ "$(id -u)" -ne 0 ]; then
  SUDO="sudo"
fi
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq --no-install-recommends "${eksik[@]}"
