#!/usr/bin/env python3
"""Runs every command of `ravo` that the README and the guide show, and compares what they show of its output.

usage: documents_test.py PROJECT RAVO [--self-test]

A command in a block is a line that begins with "ravo "; "$ ravo " is one whose output follows, to the end of the
block. In the text it is a piece of code that begins so. Status 0 or 1 is right, with nothing on standard error but
what was detected of a table; a page shows that before the output, as a terminal does.
"""

import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

# The pages show English, whatever the user of this machine reads.
os.environ["RAVO_LANG"] = "en"
PAGES = ("README.md", "docs/guide.md")
FENCE = re.compile(r"^```(?:sh)?\n(.*?)^```$", re.DOTALL | re.MULTILINE)
ANY_FENCE = re.compile(r"^```.*?^```$", re.DOTALL | re.MULTILINE)
DETECTED = re.compile(r"^ravo check: [^\n]*, delimiter [^\n]*\n", re.MULTILINE)
INLINE = re.compile(r"`(ravo [^`]*)`")


def commands(page):
    """[(command line, its output or None)] of a page."""
    found = []
    for block in FENCE.findall(page):
        shown = re.match(r"\$ (ravo [^\n]*)\n(.*)", block, re.DOTALL)
        if shown:
            found.append(shown.groups())
        else:
            found += [(line, None) for line in block.splitlines() if line.startswith("ravo ")]
    inline = INLINE.findall(ANY_FENCE.sub("", page).replace("\n", " "))
    # Words in capitals are placeholders.
    return found + [(line, None) for line in inline if not re.search(r"\bCOMMAND\b", line)]


def failures(page, ravo, folder):
    for line, output in commands(page):
        words = shlex.split(line, comments=True)
        done = subprocess.run([ravo, *words[1:]], cwd=folder, capture_output=True, encoding="utf-8", stdin=subprocess.DEVNULL, check=False, timeout=60)
        if done.returncode not in (0, 1) or DETECTED.sub("", done.stderr):
            yield f"{line}: status {done.returncode}, {done.stderr.strip()}"
        elif output is not None and done.stderr + done.stdout != output:
            yield f"{line}: its output is not what the page shows:\n{done.stderr}{done.stdout}"


def all_failures(project, pages, ravo):
    """Runs in a separate folder with the project's samples, where files may be written."""
    with tempfile.TemporaryDirectory() as folder:
        for name in ("samples", "README.md"):
            os.symlink(project / name, pathlib.Path(folder) / name)
        for page in pages:
            yield from failures(page, ravo, folder)


def self_test(project, ravo):
    good = '```sh\nravo check ean 4006381333931   # a comment\n```\n\n```sh\n$ ravo round 1.005\n1.005\t1.01\n```\n`ravo table 71710`\n'
    wrong = [good.replace("ean", "eam"), good.replace("\t1.01", "\t1.02"), good.replace("`ravo table", "`ravo tables")]
    found = [list(all_failures(project, [page], ravo)) for page in (good, *wrong)]
    return [f"self-test {i}: found {f}" for i, f in enumerate(found) if len(f) != (i > 0)]


def main():
    project, ravo = pathlib.Path(sys.argv[1]).resolve(), str(pathlib.Path(sys.argv[2]).resolve())
    pages = [(project / name).read_text(encoding="utf-8") for name in PAGES]
    found = self_test(project, ravo) if "--self-test" in sys.argv else list(all_failures(project, pages, ravo))
    if not sum(len(commands(page)) for page in pages):
        found.append("the pages have no command")
    print("\n".join(found))
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
