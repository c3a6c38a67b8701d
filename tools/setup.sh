#!/usr/bin/env bash
# Installs what the build needs (Debian 12), then configures and builds into build/.
# Usage: tools/setup.sh [extra cmake options...]
set -euo pipefail
cd "$(dirname "$0")/.."

packages=(cmake ninja-build g++ pkg-config qt6-base-dev libgl-dev libgtest-dev libgmock-dev
          libbenchmark-dev libcurl4-openssl-dev zlib1g-dev openssl diffutils patch python3
          clang-format w3m ccache
          # printing: a private print server with a PDF queue for the tests, PDF readers to
          # check the pages, the metric twin of Courier New
          cups printer-driver-cups-pdf poppler-utils fonts-liberation
          # the desktop's default-application query
          xdg-utils)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  sudo_cmd=()
  [ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
  "${sudo_cmd[@]}" apt-get update -q
  DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -q "${missing[@]}"
fi

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" >/dev/null
ninja -C build
