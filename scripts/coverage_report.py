#!/usr/bin/env python3
"""Shows coverage by room, and writes the lines and branches that no test runs into a file.

usage: coverage_report.py PROJECT COVERAGE.json UNCOVERED.txt [--write]
"""

import collections
import json
import pathlib
import sys

KINDS = ("functions", "lines", "branches")
HEAD = """# Coverage

What the tests run of the library on Linux, as Clang counts it. `make coverage` counts anew and lists every line and
branch that is not run; `scripts/coverage --write` makes this page. Code of the other systems and processors is not in
these counts: it is run by the tests of its own targets.

| room | functions | lines | branches |
|---|---|---|---|
"""


def room(name):
    parts = pathlib.PurePath(name).parts
    return "/".join(parts[:2]) if len(parts) > 2 else parts[0]


def percent(counts):
    covered, count = counts
    return f"{covered} of {count} ({100 * covered / count:.1f} %)" if count else "none"


def uncovered(data, project):
    """Places that no test runs, one line each."""
    for file in data["files"]:
        name = pathlib.PurePath(file["filename"]).relative_to(project)
        skipped = sorted({(segment[0], segment[1]) for segment in file["segments"]
                          if segment[3] and segment[4] and not segment[5] and segment[2] == 0})
        for line, column in skipped:
            yield f"{name}:{line}:{column}: not run"
        # A template has its branches once for each instance: one that runs is enough.
        branches = collections.defaultdict(lambda: [0, 0])
        for branch in file.get("branches", ()):
            branches[branch[0], branch[1]][0] += branch[4]
            branches[branch[0], branch[1]][1] += branch[5]
        for (line, column), (true, false) in sorted(branches.items()):
            if (true == 0) != (false == 0):
                yield f"{name}:{line}:{column}: never {'true' if true == 0 else 'false'}"


def main():
    project, coverage, listing = sys.argv[1:4]
    data = json.loads(pathlib.Path(coverage).read_text(encoding="utf-8"))["data"][0]
    data["files"] = [file for file in data["files"] if file["filename"].startswith(project + "/ravo/")]
    rooms = collections.defaultdict(lambda: {kind: [0, 0] for kind in KINDS})
    for file in data["files"]:
        name = pathlib.PurePath(file["filename"]).relative_to(project)
        for kind in KINDS:
            summary = file["summary"].get(kind, {"covered": 0, "count": 0})
            for counts in (rooms[room(name)][kind], rooms["all"][kind]):
                counts[0] += summary["covered"]
                counts[1] += summary["count"]
    rows = [f"| `{name}` | " + " | ".join(percent(rooms[name][kind]) for kind in KINDS) + " |"
            for name in sorted(rooms, key=lambda name: (name == "all", name))]
    text = HEAD + "\n".join(rows).replace("`all`", "all") + "\n"
    places = list(uncovered(data, project))
    pathlib.Path(listing).write_text("\n".join(places) + "\n", encoding="utf-8")
    print(text)
    print(f"{len(places)} places that no test runs: {listing}")
    if "--write" in sys.argv[4:]:
        pathlib.Path(project, "docs", "coverage.md").write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
