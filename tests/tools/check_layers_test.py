#!/usr/bin/env python3
"""The layer check refuses an include that runs upward or across siblings, and passes the rest."""
import pathlib
import subprocess
import sys
import tempfile

CHECK = pathlib.Path(__file__).resolve().parents[2] / "tools" / "check-layers.py"

CASES = [  # (file, include, refused)
    ("frame/A.cpp", "settings/B.h", True),
    ("settings/A.h", "compare/B.h", True),
    ("compare/A.cpp", "results/B.h", True),
    ("compare/A.cpp", "report/B.h", True),  # siblings
    ("intake/html/A.cpp", "intake/B.h", False),
    ("results/A.cpp", "compare/B.h", False),
    ("app/A.cpp", "results/B.h", False),
    ("text/A.cpp", "frame/B.h", True),  # siblings
    ("settings/A.cpp", "text/B.h", False),
]


def run(file, include):
    with tempfile.TemporaryDirectory() as root:
        path = pathlib.Path(root, "src", file)
        path.parent.mkdir(parents=True)
        path.write_text(f'#include "{include}"\n#include <vector>\n')
        return subprocess.run([sys.executable, CHECK, root], capture_output=True, text=True)


failures = 0
for file, include, refused in CASES:
    result = run(file, include)
    if (result.returncode != 0) != refused or (refused and file not in result.stdout):
        print(f"FAIL {file} -> {include}: rc={result.returncode} {result.stdout}")
        failures += 1
real = subprocess.run([sys.executable, CHECK], capture_output=True, text=True)
if real.returncode != 0:
    print("FAIL the source tree:\n" + real.stdout)
    failures += 1
sys.exit(1 if failures else 0)
