#!/usr/bin/env bash
# Renders the committed PNG icons from the SVG (needs rsvg-convert from librsvg2-bin). The PNGs
# are kept in the repository so that a build needs no SVG renderer.
set -euo pipefail
cd "$(dirname "$0")/../packaging/icons"
for s in 16 24 32 48 64 128 256; do
  rsvg-convert -w "$s" -h "$s" io.github.orvane.Orvane.svg -o "orvane-$s.png"
done
