#!/usr/bin/env python3
"""Shows coverage by room, how often the tests' expectations were evaluated, and what no test runs and nobody explains.

usage: coverage.py COVERAGE.json UNCOVERED.txt [--write]
"""

import bisect
import collections
import json
import pathlib
import re

from page import ROOT, command_line, with_block, write
from source_tree import read

KINDS = ("functions", "lines", "branches")
PAGE = "docs/coverage.md"
EXPECTATION = re.compile(r"\b(?:EXPECT|ASSERT)_[A-Z_]+\(")


def room(name):
    parts = pathlib.PurePath(name).parts
    return "/".join(parts[:2]) if len(parts) > 2 else parts[0]


def percent(counts):
    covered, count = counts
    return f"{covered} of {count} ({100 * covered / count:.1f} %)" if count else "none"


def rooms_table(files):
    rooms = collections.defaultdict(lambda: {kind: [0, 0] for kind in KINDS})
    for name, file in files.items():
        for kind in KINDS:
            summary = file["summary"].get(kind, {"covered": 0, "count": 0})
            for counts in (rooms[room(name)][kind], rooms["all"][kind]):
                counts[0] += summary["covered"]
                counts[1] += summary["count"]
    rows = [f"| `{name}` | " + " | ".join(percent(rooms[name][kind]) for kind in KINDS) + " |"
            for name in sorted(rooms, key=lambda name: (name == "all", name))]
    head = "| room | functions | lines | branches |\n|---|---|---|---|\n"
    return head + "\n".join(rows).replace("`all`", "all") + "\n"


def uncovered(name, file):
    """(line, column, what) of the places of a file that no test runs."""
    for segment in file["segments"]:
        line, column, count, has_count, is_entry, is_gap = segment[:6]
        if has_count and is_entry and not is_gap and count == 0:
            yield line, column, "not run"
    # A template has its branches once for each instance: one that runs is enough.
    branches = collections.defaultdict(lambda: [0, 0])
    for branch in file.get("branches", ()):
        branches[branch[0], branch[1]][0] += branch[4]
        branches[branch[0], branch[1]][1] += branch[5]
    for (line, column), (true, false) in branches.items():
        if (true == 0) != (false == 0):
            yield line, column, f"never {'true' if true == 0 else 'false'}"


def explanations(page):
    """[(file, piece of a line)] of the table of places that are explained."""
    rows = re.findall(r"^\| `(ravo/[^`]+)` \| `(.+?)` \| .+ \|$", page, re.MULTILINE)
    return [(name, piece.replace("\\|", "|")) for name, piece in rows]


def unexplained(project, files, explained):
    """The places that no explanation speaks of; and behind them the explanations that speak of no such place."""
    idle = set(explained)
    for name, file in files.items():
        lines = (project / name).read_text(encoding="utf-8").splitlines()
        for line, column, what in sorted(set(uncovered(name, file))):
            reasons = {(where, piece) for where, piece in explained if name == where and piece in lines[line - 1]}
            idle -= reasons
            if not reasons:
                yield f"{name}:{line}:{column}: {what}: {lines[line - 1].strip()}"
    for name, piece in sorted(idle):
        yield f"{PAGE}: every place of {name} with '{piece}' is run"


def evaluated(project, name, file):
    """How many expectations stand in a test's source, and how often they were evaluated."""
    segments = sorted(file["segments"])
    keys = [(segment[0], segment[1]) for segment in segments]
    stand = times = 0
    for number, line in enumerate((project / name).read_text(encoding="utf-8").splitlines(), 1):
        for found in EXPECTATION.finditer(line):
            at = bisect.bisect_right(keys, (number, found.start() + 1)) - 1
            stand += 1
            times += segments[at][2] if at >= 0 and segments[at][3] else 0
    return stand, times


def report(project, coverage, listing, is_written):
    data = json.loads(coverage.read_text(encoding="utf-8"))["data"][0]
    ours = {file["filename"].removeprefix(f"{project}/"): file for file in data["files"]}
    library = {name: file for name, file in sorted(ours.items()) if name.startswith("ravo/")}
    tests = [evaluated(project, name, file) for name, file in ours.items() if name.startswith("tests/")]
    page = (project / PAGE).read_text(encoding="utf-8")
    explained = explanations(page)
    findings = list(unexplained(project, library, explained))
    places = [finding for finding in findings if not finding.startswith(PAGE)]
    text = (f"{rooms_table(library)}\nThe tests evaluate {sum(times for _, times in tests):,} expectations; "
            f"{sum(stand for stand, _ in tests):,} stand in their sources.\n\n"
            f"{len(explained)} explanations below; {len(places)} places that no test runs and nobody explains.\n")
    listing.write_text("\n".join(findings) + "\n", encoding="utf-8")
    print(text)
    print(f"what nobody explains, and what needs no explanation any more: {listing}")
    if is_written:
        write(project, {PAGE: with_block(page, text)})


def check(root):
    page = read(root / PAGE)
    explained = explanations(page)
    findings = [f"{PAGE}: no line of {name} has '{piece}'" for name, piece in explained
                if not (root / name).is_file() or piece not in read(root / name)]
    rows = len(re.findall(r"^\| `ravo/.*\.(?:h|cpp|inc)` \|", page, re.MULTILINE))
    if rows != len(explained):
        findings.append(f"{PAGE}: {rows - len(explained)} rows are not of the form | `file` | `line` | why |")
    return findings


def _tree(row):
    return {PAGE: f"| `ravo/xml` | 1 of 2 |\n\n| file | line | why |\n|---|---|---|\n{row}\n", "ravo/a.cpp": "if (a || b) return;\n"}


PLANTINGS = [
    ("a good tree", _tree("| `ravo/a.cpp` | `(a \\|\\| b)` | because |"), None),
    ("a line that is gone", _tree("| `ravo/a.cpp` | `while` | because |"), "no line of ravo/a.cpp has 'while'"),
    ("a file that is gone", _tree("| `ravo/b.cpp` | `if` | because |"), "no line of ravo/b.cpp"),
    ("a row without a reason", _tree("| `ravo/a.cpp` | `if` |"), "not of the form"),
]

if __name__ == "__main__":
    order = command_line(check, PLANTINGS)
    coverage, listing = map(pathlib.Path, order.inputs)
    report(ROOT, coverage, listing, order.write)
