#!/usr/bin/env python3
"""Runs every command of `ravo` that the pages for users show, and compares what they show of its output.

usage: documents_test.py PROJECT RAVO [--self-test | --write]    --write puts the outputs into the pages

A command in a block is a line that begins with "ravo "; "$ ravo " is one whose output follows, to the end of the
block. In the text it is a piece of code that begins so. Status 0 or 1 is right; standard error is shown before the
output, or has nothing but what was found out of a file. In a shown output a line "…" stands for any lines, and "…"
in a line for any text.
"""

import contextlib
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

# Each page and its language, whatever the user of this machine reads.
PAGES = {"README.md": "en", "docs/guide.md": "en", "README.cs.md": "cs", "docs/den-ucetni.md": "cs"}
FENCE = re.compile(r"^```(?:sh)?\n(.*?)^```$", re.DOTALL | re.MULTILINE)
ANY_FENCE = re.compile(r"^```.*?^```$", re.DOTALL | re.MULTILINE)
DETECTED = re.compile(r"^ravo check: [^\n]*, [^\n,]* ['„].['“]\n", re.MULTILINE)
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
    return found + [(line, None) for line in inline if not re.search(r"\b(COMMAND|PŘÍKAZ)\b", line)]


def as_shown(output, printed):
    """What was printed, without the lines that the shown output leaves out; None if it is not what is shown."""
    lines = ["((?:.*\n)*?)" if line == "…\n" else re.escape(line).replace("…", ".*?") for line in output.splitlines(keepends=True)]
    match = re.fullmatch("".join(lines), printed)
    if not match:
        return None
    edges = [0, *(edge for i in range(match.re.groups) for edge in match.span(i + 1)), len(printed)]
    return "…\n".join(printed[start:end] for start, end in zip(edges[::2], edges[1::2]))


def run(line, language, ravo, folder):
    words = shlex.split(line, comments=True)
    return subprocess.run(
        [ravo, *words[1:]], cwd=folder, env={**os.environ, "RAVO_LANG": language}, capture_output=True, encoding="utf-8", errors="replace",
        stdin=subprocess.DEVNULL, check=False, timeout=60,
    )  # fmt: skip


def failures(page, language, ravo, folder):
    """(command, its shown output, what it prints, what is wrong or None) of every command of a page."""
    for line, output in commands(page):
        done = run(line, language, ravo, folder)
        printed, wrong = done.stderr + done.stdout, None
        if done.returncode not in (0, 1) or output is None and DETECTED.sub("", done.stderr):
            wrong = f"{line}: status {done.returncode}, {done.stderr.strip()}"
        elif output is not None and as_shown(output, printed) is None:
            wrong = f"{line}: its output is not what the page shows:\n{printed}"
        yield line, output, printed, wrong


@contextlib.contextmanager
def playground(project):
    """A folder with the project's samples, where files may be written."""
    with tempfile.TemporaryDirectory() as folder:
        for name in ("samples", "README.md"):
            os.symlink(project / name, pathlib.Path(folder) / name)
        yield folder


def all_failures(project, pages, ravo):
    with playground(project) as folder:
        return [wrong for page, language in pages for *_, wrong in failures(page, language, ravo, folder) if wrong]


def write(project, ravo):
    for name, language in PAGES.items():
        page = (project / name).read_text(encoding="utf-8")
        with playground(project) as folder:
            for line, output, printed, _ in failures(page, language, ravo, folder):
                if output is not None:
                    page = page.replace(f"$ {line}\n{output}```", f"$ {line}\n{as_shown(output, printed) or printed}```")
        (project / name).write_text(page, encoding="utf-8")


def self_test(project, ravo):
    good = '```sh\nravo check ean 4006381333931   # a comment\n```\n\n```sh\n$ ravo round 1.005\n1.005\t1.01\n```\n`ravo table 71710`\n'
    parts = "```sh\n$ ravo round 1.005 2.005 3.005\n…\n3.005\t…1\n```\n"
    czech = "```sh\n$ ravo version --no\n```\n"
    right = [(good, "en"), (parts, "cs"), (good + parts, "cs")]
    wrong = [good.replace("ean", "eam"), good.replace("\t1.01", "\t1.02"), good.replace("`ravo table", "`ravo tables"), parts.replace("…1", "…2"), czech]
    found = [all_failures(project, [page], ravo) for page in (*right, *((page, "en") for page in wrong))]
    findings = [f"self-test {i}: found {f}" for i, f in enumerate(found) if len(f) != (i >= len(right))]
    spoken = [all_failures(project, [(czech, language)], ravo)[0] for language in ("en", "cs")]
    if "neexistuje" in spoken[0] or "neexistuje" not in spoken[1]:
        findings.append(f"self-test: a page is not run in its language: {spoken}")
    if as_shown("…\nb…\n…\n", "a\nbc\nd\n") != "…\nbc\n…\n":
        findings.append("self-test: what a page leaves out is not left out")
    return findings


def main():
    project, ravo = pathlib.Path(sys.argv[1]).resolve(), str(pathlib.Path(sys.argv[2]).resolve())
    if "--write" in sys.argv:
        write(project, ravo)
    pages = [((project / name).read_text(encoding="utf-8"), language) for name, language in PAGES.items()]
    found = self_test(project, ravo) if "--self-test" in sys.argv else all_failures(project, pages, ravo)
    found += [f"{name} has no command" for name, (page, _) in zip(PAGES, pages) if not commands(page)]
    print("\n".join(found))
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
