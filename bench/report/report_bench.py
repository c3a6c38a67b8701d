#!/usr/bin/python3
"""The merged report against lxml's htmldiff on the same generated page pairs, in one run.

For each size: a page of paragraphs, lists and tables, and a copy with scattered word edits.
Prints seconds, peak memory, and the words each tool marks as changed beside the words the
edits touched (what a minimal word diff would mark at most).

usage: /usr/bin/python3 bench/report/report_bench.py BUILD_DIR [sizes in MB, default 1 10]
(/usr/bin/python3: the system Python, which has python3-lxml.)
"""
import os
import random
import re
import subprocess
import sys
import tempfile
import time

WORDS = ("alpha beta gamma delta page report table value the of and is a to in for with "
         "system window file line word change order number result style content").split()
LXML_TIMEOUT = 300


def make_pair(megabytes, seed=1):
    rng = random.Random(seed)
    blocks_a, blocks_b, edited = [], [], 0
    size = 0
    while size < megabytes * 1_000_000:
        words = [rng.choice(WORDS) for _ in range(rng.randint(8, 40))]
        changed = list(words)
        if rng.random() < 0.05:  # scattered: one block in twenty edited
            k = rng.randrange(len(changed))
            op = rng.randrange(3)
            if op == 0:
                changed[k] = "edited"
                edited += 2
            elif op == 1:
                del changed[k]
                edited += 1
            else:
                changed.insert(k, "inserted")
                edited += 1
        kind = rng.randrange(4)
        for out, w in ((blocks_a, words), (blocks_b, changed)):
            text = " ".join(w)
            if kind == 0:
                out.append("<p>%s</p>" % text)
            elif kind == 1:
                out.append("<ul><li>%s</li></ul>" % text)
            elif kind == 2:
                half = len(w) // 2
                out.append("<table><tr><td>%s</td><td>%s</td></tr></table>"
                           % (" ".join(w[:half]), " ".join(w[half:])))
            else:
                out.append("<div><b>%s</b> %s</div>" % (w[0], " ".join(w[1:])))
        size += len(blocks_a[-1])
    page = "<!DOCTYPE html><html><head><title>t</title></head><body>\n%s\n</body></html>\n"
    return page % "\n".join(blocks_a), page % "\n".join(blocks_b), edited


def run(cmd, timeout):
    """Seconds and peak resident megabytes of one child process."""
    start = time.monotonic()
    proc = subprocess.Popen(cmd, stdout=subprocess.DEVNULL)
    deadline = start + timeout
    while True:
        pid, status, usage = os.wait4(proc.pid, os.WNOHANG)
        if pid:
            return time.monotonic() - start, usage.ru_maxrss / 1024.0, os.waitstatus_to_exitcode(status)
        if time.monotonic() > deadline:
            proc.kill()
            proc.wait()
            return None, None, None
        time.sleep(0.02)


def marked_words(html):
    # Navigation chrome out; then the words inside each ins and del.
    html = re.sub(r'<span class="orvane-chrome[^"]*"[^>]*>(<a[^>]*>[^<]*</a>)*</span>', "", html)
    count = 0
    for m in re.finditer(r"<(ins|del)\b[^>]*>(.*?)</\1>", html, re.S):
        text = re.sub(r"<[^>]+>", " ", m.group(2))
        count += len(re.findall(r"\w+", text))
    return count


LXML = """
import sys
from lxml.html.diff import htmldiff
a = open(sys.argv[1], encoding='utf-8').read()
b = open(sys.argv[2], encoding='utf-8').read()
open(sys.argv[3], 'w', encoding='utf-8').write(htmldiff(a, b))
"""


def main():
    build = sys.argv[1] if len(sys.argv) > 1 else "build"
    sizes = [float(s) for s in sys.argv[2:]] or [1, 10]
    tool = os.path.join(build, "bin", "htmlreport")
    print("%-6s %-8s %9s %9s %8s %8s" % ("size", "tool", "seconds", "peak MB", "marked", "edited"))
    with tempfile.TemporaryDirectory() as tmp:
        for mb in sizes:
            a, b, edited = make_pair(mb)
            pa, pb = os.path.join(tmp, "a.html"), os.path.join(tmp, "b.html")
            open(pa, "w").write(a)
            open(pb, "w").write(b)
            ours, theirs = os.path.join(tmp, "ours.html"), os.path.join(tmp, "lxml.html")
            rows = []
            t, m, _ = run([tool, pa, pb, ours], LXML_TIMEOUT)
            rows.append(("ours", t, m, marked_words(open(ours).read()) if t else None))
            t2, m2, code = run(["/usr/bin/python3", "-c", LXML, pa, pb, theirs], LXML_TIMEOUT)
            ok = t2 is not None and code == 0
            rows.append(("lxml", t2 if ok else None, m2, marked_words(open(theirs).read()) if ok else None))
            for name, secs, mem, words in rows:
                print("%-6s %-8s %9s %9s %8s %8d" % (
                    "%gMB" % mb, name, "%.2f" % secs if secs else "timeout", "%.0f" % mem if mem else "-",
                    words if words is not None else "-", edited))
            if t and t2 and ok:
                print("%-6s ratio    %9.1fx %8.1fx   (lxml / ours)" % ("%gMB" % mb, t2 / t, m2 / m))


if __name__ == "__main__":
    main()
