#!/usr/bin/env bash
# Checks an installed Orvane under PREFIX (default /usr): the files a desktop expects, the
# validators, the options that need no display, the engine libraries, and the desktop entry's
# Exec line started with three pages, none of which may change.
# Usage: tools/check-installed.sh [PREFIX]
set -euo pipefail
prefix="${1:-/usr}"
id=io.github.orvane.Orvane
program_dir="$prefix/lib/orvane"
fail() { echo "FAIL: $*" >&2; exit 1; }

# The installed files.
for f in "$prefix/bin/orvane" "$program_dir/orvane" "$program_dir/help/index.html" \
         "$program_dir/help/welcome.html" "$prefix/share/applications/$id.desktop" \
         "$prefix/share/metainfo/$id.metainfo.xml" "$prefix/share/man/man1/orvane.1" \
         "$prefix/share/icons/hicolor/scalable/apps/$id.svg"; do
  [ -e "$f" ] || fail "missing $f"
done
for s in 16 24 32 48 64 128 256; do
  [ -s "$prefix/share/icons/hicolor/${s}x$s/apps/$id.png" ] || fail "missing ${s}x$s icon"
done
[ "$(readlink -f "$prefix/bin/orvane")" = "$(readlink -f "$program_dir/orvane")" ] ||
  fail "bin/orvane does not lead to the program folder"
desktop-file-validate "$prefix/share/applications/$id.desktop"
appstreamcli validate --no-net "$prefix/share/metainfo/$id.metainfo.xml" >/dev/null

# Each engine library loads from the program folder and answers its version entry.
for lib in kwcommon detfile detagger doctxt linediff; do
  python3 - "$program_dir/lib$lib.so" <<'PY' || fail "engine lib$lib.so does not load"
import ctypes, sys
ctypes.CDLL(sys.argv[1], mode=ctypes.RTLD_GLOBAL)
PY
done

# --help and --version print and end with no display at all.
nodisplay=(env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM)
"${nodisplay[@]}" "$prefix/bin/orvane" --version | head -1 | grep -q '^orvane (Orvane) ' ||
  fail "--version"
"${nodisplay[@]}" "$prefix/bin/orvane" --help | grep -q '^Usage: orvane' || fail "--help"
status=0; "${nodisplay[@]}" "$prefix/bin/orvane" --bogus 2>/dev/null || status=$?
[ "$status" = 2 ] || fail "an unknown option ends with status $status, not 2"

# Starts the program offscreen with a fresh settings folder, lets it come up, ends it as a
# desktop session would (SIGTERM), and gives its exit status.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
run_offscreen() {
  env QT_QPA_PLATFORM=offscreen HOME="$work/home" XDG_CONFIG_HOME="$work/config" "$@" \
    >"$work/out" 2>"$work/err" &
  local pid=$!
  sleep 6
  kill -0 "$pid" 2>/dev/null || { cat "$work/err" >&2; fail "the program ended by itself: $*"; }
  kill -TERM "$pid"
  local s=0; wait "$pid" || s=$?
  return $s
}

# A plain start: comes up, and on SIGTERM saves its options to the user's folder, not the
# installed program folder.
before=$(ls -A "$program_dir" | sort)
run_offscreen "$prefix/bin/orvane" || fail "offscreen start ended with status $?"
ini="$work/config/orvane/orvane.ini"
[ -f "$ini" ] || fail "no settings file at $ini"
[ "$(grep -c '=' "$ini")" = 25 ] || fail "settings file holds $(grep -c '=' "$ini") keys, not 25"
[ "$(ls -A "$program_dir" | sort)" = "$before" ] || fail "the program folder changed"

# The desktop entry's Exec line with three pages: two compared in the window, the third
# ignored with a note, and not one of them written.
mkdir -p "$work/pages"
for n in 1 2 3; do printf '<html><body><p>page %s</p></body></html>\n' "$n" >"$work/pages/p$n.html"; done
sums=$(cd "$work/pages" && sha256sum p*.html)
printf '[Compare]\nShowDialogueBeforeComparison=False\nComparisonMode=Code\nOutputFormat=SideBySide\n' \
  >"$ini"
exec_line=$(sed -n 's/^Exec=//p' "$prefix/share/applications/$id.desktop")
read -r -a argv <<<"${exec_line/\%F/$work/pages/p1.html $work/pages/p2.html $work/pages/p3.html}"
argv[0]="$prefix/bin/${argv[0]}"
run_offscreen "${argv[@]}" || fail "the Exec line ended with status $?"
[ "$(cd "$work/pages" && sha256sum p*.html)" = "$sums" ] || fail "a page was changed"
[ "$(ls "$work/pages")" = "$(printf 'p1.html\np2.html\np3.html')" ] || fail "a file was added"
grep -q "ignoring \"$work/pages/p3.html\"" "$work/err" || fail "no note about the third page"
grep -q "p1.html" "$ini" || fail "the compared pair was not recorded"
# The unattended report run on the bundled examples, with no display at all: the merged report
# and status 1; the same page twice through two names: the answer page and status 0.
examples="$(cd "$(dirname "$0")/.." && pwd)/examples"
printf '[Compare]\nComparisonMode=Visual\n' >"$ini"
unattended() {
  env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM HOME="$work/home" \
    XDG_CONFIG_HOME="$work/config" "$prefix/bin/orvane" "$@" 2>>"$work/err"
}
status=0; unattended "$examples/original.html" "$examples/revised.html" "$work/report.html" ||
  status=$?
[ "$status" = 1 ] || fail "the report run on the examples ended with status $status, not 1"
grep -q '<del>' "$work/report.html" || fail "the report of the examples marks no removal"
cp "$examples/original.html" "$work/copy.html"
status=0; unattended "$examples/original.html" "$work/copy.html" "$work/same.html" || status=$?
[ "$status" = 0 ] || fail "the report run on identical pages ended with status $status, not 0"
grep -q '^<p>The files are identical.</p>' "$work/same.html" || fail "no identical-files page"
grep -q 'OutputFormat=OneWindow' "$ini" || fail "the report run did not leave One Window"

echo "installed program under $prefix: all checks passed"
