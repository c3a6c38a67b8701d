#!/usr/bin/env python3
"""Text Content engines side by side: the internal detagger (build/bin/detag), the office suite
(build/bin/doctext) and w3m -dump as a peer, on a small page and a large generated page.

Prints wall time and the peak resident memory of each run (the largest process of its tree).
Usage: bench/office/text_engines.py [build folder] [--mb 20]
"""
import os
import random
import resource
import shutil
import subprocess
import sys
import tempfile
import time

WORDS = ("harbour station timetable ferry bread rolls cakes morning evening coast north south "
         "ticket children free river bridge market square tower garden library museum").split()


def paragraph(rng, words):
    return " ".join(rng.choice(WORDS) for _ in range(words)).capitalize() + "."


def make_page(path, target_bytes, seed=7):
    rng = random.Random(seed)
    with open(path, "w", encoding="utf-8") as out:
        out.write("<!DOCTYPE html><html><head><meta charset=\"utf-8\"><title>Bench</title>"
                  "<style>p{margin:0}</style></head><body>\n")
        section = 0
        while out.tell() < target_bytes:
            section += 1
            out.write(f"<h2>Section {section} &amp; caf\u00e9</h2>\n")
            for _ in range(4):
                out.write(f"<p>{paragraph(rng, 40)} <a href=\"p{section}.html\">more</a>"
                          f"<br>{paragraph(rng, 12)}</p>\n")
            out.write("<table><tr><th>Day</th><th>Time</th></tr>")
            for day in range(5):
                out.write(f"<tr><td>{rng.choice(WORDS)}</td><td>{day + 8}:00</td></tr>")
            out.write("</table>\n<ul>")
            for _ in range(3):
                out.write(f"<li>{paragraph(rng, 6)}</li>")
            out.write("</ul>\n<script>var x = 1;</script>\n")
        out.write("</body></html>\n")


def run_one(args):
    """One run in a fresh interpreter: the children's peak memory only ever grows."""
    start = time.monotonic()
    result = subprocess.run(args, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
    seconds = time.monotonic() - start
    peak_mb = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss / 1024.0
    print(f"{result.returncode} {seconds:.3f} {peak_mb:.1f} {result.stderr.decode()[-200:]!r}")


def main():
    if len(sys.argv) > 1 and sys.argv[1] == "--one":
        run_one(sys.argv[2:])
        return
    build = next((a for a in sys.argv[1:] if not a.startswith("--")), "build")
    mb = 20
    if "--mb" in sys.argv:
        mb = int(sys.argv[sys.argv.index("--mb") + 1])
    detag = os.path.join(build, "bin", "detag")
    doctext = os.path.join(build, "bin", "doctext")
    w3m = shutil.which("w3m")
    with tempfile.TemporaryDirectory() as folder:
        small = os.path.join(folder, "small.html")
        large = os.path.join(folder, "large.html")
        make_page(small, 4 * 1024)
        make_page(large, mb * 1024 * 1024)
        engines = [("detagger (internal)", lambda s, t: [detag, s, t]),
                   ("office suite (doctext)", lambda s, t: [doctext, s, t, "--format", "7",
                                                             "--time-limit", "900"])]
        if w3m:
            engines.append(("w3m -dump (peer)", lambda s, t: ["sh", "-c", f"w3m -dump -T text/html "
                                                              f"-O UTF-8 '{s}' > '{t}'"]))
        print(f"{'engine':24} {'page':>10} {'seconds':>8} {'peak MB':>8} {'text KB':>8}")
        for name, command in engines:
            for page in (small, large):
                target = os.path.join(folder, "out.txt")
                line = subprocess.run([sys.executable, __file__, "--one"] + command(page, target),
                                      capture_output=True, text=True).stdout.split(" ", 3)
                size = os.path.getsize(target) / 1024.0 if os.path.exists(target) else 0
                label = f"{os.path.getsize(page) / 1048576:.2f} MB"
                status = "" if line[0] == "0" else f"  exit {line[0]} {line[3].strip()}"
                print(f"{name:24} {label:>10} {float(line[1]):8.2f} {float(line[2]):8.1f} "
                      f"{size:8.0f}{status}")
                if os.path.exists(target):
                    os.remove(target)


if __name__ == "__main__":
    main()
