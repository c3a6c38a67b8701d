#!/usr/bin/env bash
# Builds the program and compares the two bundled example pages.
set -euo pipefail
cd "$(dirname "$0")/.."
tools/setup.sh
exec build/bin/orvane "$PWD/examples/original.html" "$PWD/examples/revised.html"
