#!/usr/bin/env bash
# A report of several hundred pages printed to PDF by the view, with time, pages and the peak
# memory of the whole process tree (the web engine's helpers included); the peer is cupsfilter
# making a PDF of the report's text in the same run. Usage: report_print_bench.sh BUILD_DIR
set -euo pipefail
build="$(cd "${1:-build}" && pwd)"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
python3 - "$work" <<'PY'
import random, sys
random.seed(7)
words = "the quick brown fox jumps over lazy dog bread mill harbour light sea".split()
def page(edit):
    out = ["<html><body>"]
    for i in range(12000):
        rng = random.Random(i)
        line = " ".join(rng.choice(words) for _ in range(14))
        if edit and i % 97 == 0:
            line = line.replace("fox", "cat", 1)
        out.append("<p>%d %s</p>" % (i, line))
    return "\n".join(out + ["</body></html>"])
open(sys.argv[1] + "/a.html", "w").write(page(False))
open(sys.argv[1] + "/b.html", "w").write(page(True))
PY
status=0; "$build/bin/htmlreport" "$work/a.html" "$work/b.html" "$work/r.html" >/dev/null || status=$?
[ "$status" = 1 ] || { echo "htmlreport ended with $status"; exit 1; }
peak_of() { # runs a command, prints its time and the peak PSS of its process tree
  "$@" >"$work/out" 2>/dev/null &
  local pid=$! peak=0 start end
  start=$(date +%s.%N)
  while kill -0 $pid 2>/dev/null; do
    local sum=0
    for p in $(pstree -p -T $pid | grep -o '([0-9]*)' | tr -d '()'); do
      sum=$((sum + $(awk '/^Pss:/{print $2}' /proc/$p/smaps_rollup 2>/dev/null || echo 0)))
    done
    [ $sum -gt $peak ] && peak=$sum
    sleep 0.2
  done
  wait $pid
  end=$(date +%s.%N)
  printf '%.1f s, peak %d MB' "$(echo "$end - $start" | bc)" $((peak / 1024))
}
echo "report: $(du -k "$work/r.html" | cut -f1) KB"
echo "ours (view to PDF): $(peak_of "$build/bin/report_print_bench" "$work/r.html" \
  "$work/r.pdf") [$(cat "$work/out")], $(pdfinfo "$work/r.pdf" | awk '/^Pages/{print $2}') pages"
pdftotext -layout "$work/r.pdf" "$work/r.txt"
echo "peer (cupsfilter text to PDF): $(peak_of sh -c "cupsfilter -m application/pdf \
  '$work/r.txt' > '$work/peer.pdf' 2>/dev/null") , $(pdfinfo "$work/peer.pdf" | awk '/^Pages/{print $2}') pages"
pdftoppm -png -r 60 -f 1 -l 1 "$work/r.pdf" "$work/page"
cp "$work"/page-*1.png "${2:-/tmp}/report-print-page.png" 2>/dev/null || true
