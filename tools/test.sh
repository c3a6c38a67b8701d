#!/usr/bin/env bash
# Builds everything and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
tools/setup.sh -DORVANE_WERROR="${ORVANE_WERROR:-OFF}"
QT_QPA_PLATFORM=offscreen ctest --test-dir build --output-on-failure -j2 --timeout 600
