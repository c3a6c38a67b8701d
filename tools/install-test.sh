#!/usr/bin/env bash
# Installs the build into a fresh prefix and checks the result.
# Usage: tools/install-test.sh BUILD_DIR
set -euo pipefail
build="$1"
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
cmake --install "$build" --prefix "$prefix" >/dev/null
"$(dirname "$0")/check-installed.sh" "$prefix"
