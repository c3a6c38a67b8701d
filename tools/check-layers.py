#!/usr/bin/env python3
"""Lists every include that runs from a lower layer up to a higher one, and fails if there is any.

Layers, lowest first; frame and text are siblings and may not include each other; the report
engine stands on compare's differs:
    frame, text < settings < intake < compare < report < output < dialogs < results < app
A file's layer is its first folder under src/.
"""
import pathlib
import re
import sys

RANK = {
    "frame": 0, "text": 0,
    "settings": 1,
    "intake": 2,
    "compare": 3, "report": 3.5,
    "output": 4,
    "dialogs": 5,
    "results": 6,
    "app": 7,
}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([a-z_]+)/')


def upward_includes(src: pathlib.Path):
    for path in sorted(src.rglob("*")):
        if path.suffix not in {".h", ".hpp", ".cpp", ".cc"}:
            continue
        layer = path.relative_to(src).parts[0]
        if layer not in RANK:
            continue
        for number, line in enumerate(path.read_text(errors="replace").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match or match.group(1) not in RANK or match.group(1) == layer:
                continue
            if RANK[match.group(1)] >= RANK[layer]:
                yield f"{path}:{number}: {layer} includes {match.group(1)}: {line.strip()}"


def main() -> int:
    root = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent
    found = list(upward_includes(root / "src"))
    for line in found:
        print(line)
    if found:
        print(f"{len(found)} include(s) run from a lower layer up to a higher one", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
