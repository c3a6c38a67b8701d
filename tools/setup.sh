#!/usr/bin/env bash
# Installs what the build needs (Debian 12), then configures and builds into build/.
# Usage: tools/setup.sh [extra cmake options...]
set -euo pipefail
cd "$(dirname "$0")/.."

packages=(cmake ninja-build g++ pkg-config qt6-base-dev libgl-dev libgtest-dev libgmock-dev
          libbenchmark-dev libcurl4-openssl-dev zlib1g-dev openssl diffutils patch python3
          clang-format w3m ccache
          # the one-window report view
          qt6-webengine-dev
          # printing: a private print server with a PDF queue for the tests, PDF readers to
          # check the pages, the metric twin of Courier New
          cups printer-driver-cups-pdf poppler-utils fonts-liberation
          # the desktop's default-application query; desktop entry, metainfo and package checks
          xdg-utils desktop-file-utils appstream dpkg-dev)
# Installed without their recommends: the office suite's writer alone (about 250 MB instead of
# the whole suite) is the word-processor text engine; the core package alone cannot load HTML.
lean_packages=(libreoffice-writer-nogui)

not_installed() {
  local p
  for p in "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || echo "$p"
  done
}
mapfile -t missing < <(not_installed "${packages[@]}")
mapfile -t missing_lean < <(not_installed "${lean_packages[@]}")
if [ ${#missing[@]} -gt 0 ] || [ ${#missing_lean[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]} ${missing_lean[*]}"
  sudo_cmd=()
  [ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
  "${sudo_cmd[@]}" apt-get update -q
  if [ ${#missing[@]} -gt 0 ]; then
    DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -q "${missing[@]}"
  fi
  if [ ${#missing_lean[@]} -gt 0 ]; then
    DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -q \
      --no-install-recommends "${missing_lean[@]}"
  fi
fi

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" >/dev/null
ninja -C build
