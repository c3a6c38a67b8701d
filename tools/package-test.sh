#!/usr/bin/env bash
# Builds the Debian package, installs it as a user would, checks the installed program and
# removes the package again. Needs root or sudo.
# Usage: tools/package-test.sh [BUILD_DIR]
set -euo pipefail
cd "$(dirname "$0")/.."
build="${1:-build}"
sudo_cmd=()
[ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
rm -f "$build"/orvane_*.deb
(cd "$build" && cpack -G DEB >/dev/null)
deb=$(ls "$build"/orvane_*.deb)
echo "Package: $deb ($(du -k "$deb" | cut -f1) KiB)"
dpkg-deb -f "$deb" Depends
DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -q "./$deb" >/dev/null
trap 'DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get remove -y -q orvane >/dev/null' EXIT
tools/check-installed.sh /usr
