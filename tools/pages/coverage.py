#!/usr/bin/env python3
"""Shows coverage by room, how often the tests' expectations were evaluated, and what is neither run nor marked.

usage: coverage.py COVERAGE.json UNCOVERED.txt [--write]

A comment `// Untested: <reason>` marks the statement, block or function below it, or at the end of a line that line.
"""

import bisect
import collections
import json
import pathlib
import re
from collections.abc import Iterator
from typing import Any

from common import ROOT, command_line, has_block, indentation, table, with_block, write
from source_tree import Planting, code_files, read

KINDS = ("functions", "lines", "branches")
PAGE = "docs/coverage.md"
EXPECTATION = re.compile(r"\b(?:EXPECT|ASSERT)_[A-Z_]+\(")
MARK = re.compile(r"^(?P<code>.*?)//\s*Untested:\s*(?P<reason>.*)$")
COMMENT = re.compile(r"^\s*//")
# Code that no test can run both ways: compile-time decisions and generated code, the missing case of a
# `switch` over an enumeration, and processor features, because the tests force each kernel.
GENERAL = re.compile(r"\bconsteval\b|\bif constexpr\b|= default;|^\s*switch \(|\b__builtin_cpu_supports\b")
# LLVM's record of a file: see `llvm-cov export`.
File = dict[str, Any]


def room(name: str) -> str:
    parts = pathlib.PurePath(name).parts
    return "/".join(parts[:2]) if len(parts) > 2 else parts[0]


def percent(counts: list[int]) -> str:
    covered, count = counts
    return f"{covered} of {count} ({100 * covered / count:.1f} %)" if count else "none"


def rooms_table(files: dict[str, File]) -> str:
    rooms: dict[str, dict[str, list[int]]] = collections.defaultdict(lambda: {kind: [0, 0] for kind in KINDS})
    for name, file in files.items():
        for kind in KINDS:
            summary = file["summary"].get(kind, {"covered": 0, "count": 0})
            for counts in (rooms[f"`{room(name)}`"][kind], rooms["all"][kind]):
                counts[0] += summary["covered"]
                counts[1] += summary["count"]
    order = sorted((name for name in rooms if rooms[name]["functions"][1] != 0), key=lambda name: (name == "all", name))
    return table(("room", *KINDS), [(name, *(percent(rooms[name][kind]) for kind in KINDS)) for name in order])


def uncovered(file: File) -> Iterator[tuple[int, int, str]]:
    """(line, column, kind) of the places of a file that no test runs."""
    for line, column, count, has_count, is_entry, is_gap in (segment[:6] for segment in file["segments"]):
        if has_count and is_entry and not is_gap and count == 0:
            yield line, column, "not run"
    # A template has its branches once for each instance: one that runs is enough.
    branches: dict[tuple[int, int], list[int]] = collections.defaultdict(lambda: [0, 0])
    for branch in file.get("branches", ()):
        branches[branch[0], branch[1]][0] += branch[4]
        branches[branch[0], branch[1]][1] += branch[5]
    for (line, column), (true, false) in branches.items():
        if (true == 0) != (false == 0):
            yield line, column, f"never {'true' if true == 0 else 'false'}"


def end_of_statement(lines: list[str], first: int) -> int:
    """The index past the statement, block or function that begins at a line."""
    end = first + 1
    while end < len(lines) and lines[end].strip() and indentation(lines[end]) >= indentation(lines[first]):
        is_new = lines[end - 1].endswith((";", "}")) and not re.match(r"\s*(?:}|else\b)", lines[end])
        if indentation(lines[end]) == indentation(lines[first]) and is_new:
            break
        end += 1
    return end


def marks(text: str) -> Iterator[tuple[int, range, str]]:
    """(line, lines that it covers, reason) of every mark of a source; all are 1-based."""
    lines = text.splitlines()
    for index, line in enumerate(lines):
        if not (mark := MARK.match(line)):
            continue
        if mark["code"].strip():
            yield index + 1, range(index + 1, index + 2), mark["reason"]
            continue
        first = next((i for i in range(index, len(lines)) if not COMMENT.match(lines[i])), len(lines))
        stands = first < len(lines) and lines[first].strip() and not lines[first].lstrip().startswith("}")
        yield index + 1, range(first + 1, end_of_statement(lines, first) + 1 if stands else first + 1), mark["reason"]


def unmarked(project: pathlib.Path, files: dict[str, File]) -> Iterator[str]:
    """The places that are neither run nor marked."""
    for name, file in files.items():
        text = read(project / name)
        marked = {line for _, spoken_of, _ in marks(text) for line in spoken_of}
        lines = text.splitlines()
        for line, column, what in sorted(set(uncovered(file))):
            if line not in marked and not GENERAL.search(lines[line - 1]):
                yield f"{name}:{line}:{column}: {what}: {lines[line - 1].strip()}"


def idle_marks(project: pathlib.Path, files: dict[str, File]) -> Iterator[str]:
    """The marks of statements that are run."""
    for name, file in files.items():
        places = {line for line, _, _ in uncovered(file)}
        for line, spoken_of, _ in marks(read(project / name)):
            if places.isdisjoint(spoken_of):
                yield f"{name}:{line}: marked, and run"


def evaluated(project: pathlib.Path, name: str, file: File) -> tuple[int, int]:
    """The number of expectations in a test's source, and of their evaluations."""
    segments = sorted(file["segments"])
    keys = [(segment[0], segment[1]) for segment in segments]
    written = times = 0
    for number, line in enumerate(read(project / name).splitlines(), 1):
        for found in EXPECTATION.finditer(line):
            at = bisect.bisect_right(keys, (number, found.start() + 1)) - 1
            written += 1
            times += segments[at][2] if at >= 0 and segments[at][3] else 0
    return written, times


def report(project: pathlib.Path, coverage: pathlib.Path, listing: pathlib.Path) -> str:
    """The text of the page's block; places that are neither run nor marked go into the listing."""
    data = json.loads(read(coverage))["data"][0]
    ours = {file["filename"].removeprefix(f"{project}/"): file for file in data["files"]}
    library = {name: file for name, file in sorted(ours.items()) if name.startswith(("ravo/", "c/"))}
    tests = [evaluated(project, name, file) for name, file in ours.items() if name.startswith("tests/")]
    places, idle = list(unmarked(project, library)), list(idle_marks(project, library))
    marked = sum(len(list(marks(read(project / name)))) for name in library)
    listing.write_text("\n".join(places + idle) + "\n", encoding="utf-8")
    return (f"{rooms_table(library)}\nThe tests evaluate {sum(times for _, times in tests):,} expectations; "
            f"their sources contain {sum(written for written, _ in tests):,}.\n\n"
            f"{marked} marks; {len(places)} places that are neither run nor marked.\n")


def check(root: pathlib.Path) -> list[str]:
    findings = [] if has_block(read(root / PAGE)) else [f"{PAGE}: needs exactly one block for scripts/coverage to write"]
    for path in code_files(root, "ravo", "tools"):
        for line, spoken_of, reason in marks(read(path)):
            if not spoken_of:
                findings.append(f"{path.relative_to(root)}:{line}: a mark without code")
            if not reason:
                findings.append(f"{path.relative_to(root)}:{line}: a mark without a reason")
    return findings


_PAGE = "<!-- written by x; do not edit -->\n<!-- end of what is written -->\n"
_SOURCE = "int F() {\n  // Untested: because\n  // of x.\n  if (a ||\n      b) return 1;\n  return 2;  // Untested: y\n}\n"
_BLOCKS = "// Untested: x\ntemplate <class T>\nint G() {\n  return 1;\n}\nint h;\n// Untested: y\nswitch (a) {\n  case 1:\n    b;\n}\nc;\n"
_FILE: File = {"segments": [[4, 1, 0, True, True, False], [6, 3, 1, True, True, False], [7, 1, 0, True, True, False]],
               "branches": [[4, 7, 4, 8, 0, 1], [6, 1, 6, 2, 1, 1]]}


def _tree(source: str, page: str = _PAGE) -> dict[str, str]:
    return {PAGE: page, "ravo/a.cpp": source}


def _planted(root: pathlib.Path) -> list[str]:
    """The check, and what a run finds in the planted source."""
    assert [list(spoken_of) for _, spoken_of, _ in marks(_SOURCE + _BLOCKS)] == [[4, 5], [6], [9, 10, 11, 12], [15, 16, 17, 18]]
    return [*check(root), *unmarked(root, {"ravo/a.cpp": _FILE}), *idle_marks(root, {"ravo/a.cpp": _FILE})]


PLANTINGS: list[Planting] = [
    ("a good tree", _tree(_SOURCE.replace("  // Untested: y", "").replace("}", "} = default;")), None),
    ("what is not run", _tree(_SOURCE), "ravo/a.cpp:7:1: not run: }"),
    ("what is never true", _tree(_SOURCE.replace("Untested: because", "")), "ravo/a.cpp:4:7: never true"),
    ("a mark of what is run", _tree(_SOURCE), "ravo/a.cpp:6: marked, and run"),
    ("a mark before a blank line", _tree("// Untested: x\n\nint a;\n" + _SOURCE), "ravo/a.cpp:1: a mark without code"),
    ("a mark at the end of a block", _tree("{\n  // Untested: x\n}\n" + _SOURCE), "ravo/a.cpp:2: a mark without code"),
    ("a mark at the end", _tree(_SOURCE + "// Untested: x\n"), "ravo/a.cpp:8: a mark without code"),
    ("a mark without a reason", _tree(_SOURCE + "int a;  // Untested:\n"), "a mark without a reason"),
    ("no block", _tree(_SOURCE, ""), "needs exactly one block"),
]

if __name__ == "__main__":
    order = command_line(check, PLANTINGS, _planted)
    figures = report(ROOT, *map(pathlib.Path, order.inputs))
    print(f"{figures}\nplaces neither run nor marked, and marks of code that is run: {order.inputs[1]}")
    if order.write:
        write(ROOT, {PAGE: with_block(read(ROOT / PAGE), figures)})
