#!/usr/bin/env python3
"""Sums what the tests report of themselves, and puts it into docs/reliability.md.

usage: reliability.py FOLDER [--write]     (FOLDER: a report in JSON of every test program)
"""

import collections
import json
import pathlib
import re
from typing import Any

import quirks
from common import ROOT, command_line, has_block, table, with_block, write
from source_tree import Planting, read

PAGE, COVERAGE, RUNS = "docs/reliability.md", "docs/coverage.md", "docs/long-runs.md"
Reports = dict[str, dict[str, Any]]
# Numbers that the table of long runs has as words.
MINUTES = {"ten": 10}
# Notes that are told in words of their own; all others stand under their own name.
WORDS = {"requests_for_memory_that_failed": "requests for memory that were denied, each in a run of its own"}


def tests_of(report: dict[str, Any]) -> list[dict[str, Any]]:
    return [test for suite in report["testsuites"] for test in suite["testsuite"]]


def programs_table(reports: Reports) -> str:
    rows: list[tuple[str, int, int, int]] = []
    for name, report in reports.items():
        tests = tests_of(report)
        skipped = sum(test["result"] == "SKIPPED" for test in tests)
        rows.append((f"`test_{name}`", len(tests), skipped, report["failures"]))
    sums = [sum(column) for column in zip(*(row[1:] for row in rows))]
    return table(("program", "tests", "not on this machine", "failed"), [*rows, ("all", *sums)])


def walked_table(reports: Reports) -> str:
    sums: collections.Counter[str] = collections.Counter()
    for report in reports.values():
        for test in tests_of(report):
            for key, value in test.items():
                if key.startswith("tried_"):
                    sums[key.removeprefix("tried_")] += int(value)
    return table(("what", "how many"), [(WORDS.get(key, key.replace("_", " ")), f"{count:,}") for key, count in sorted(sums.items())])


def kernels_table(reports: Reports) -> str:
    """Tests that run once for every kernel end in its name."""
    kernels: dict[str, collections.Counter[str]] = collections.defaultdict(collections.Counter)
    for report in reports.values():
        for suite in report["testsuites"]:
            if suite["name"].startswith("Kernels/"):
                for test in suite["testsuite"]:
                    kernels[suite["name"].split("/")[1]][test["name"].split("/")[1]] += 1
    return table(("tests of", "kernels, each with its number of tests"),
                 [(f"`{suite}`", ", ".join(f"{name} {count}" for name, count in counts.items())) for suite, counts in kernels.items()])


def fuzz_table() -> str:
    rows = []
    for target in sorted(ROOT.glob("fuzz/*_fuzz.cpp")):
        name = target.name.removesuffix("_fuzz.cpp")
        rows.append((f"`{name}`", len(list((ROOT / "fuzz/corpus" / name).glob("*")))))
    return table(("fuzz target", "inputs that every test run replays"), rows)


def coverage_lines(page: str) -> str:
    """The sums of the page of coverage."""
    [(functions, lines, branches)] = re.findall(r"^\| all \| (.*?) \| (.*?) \| (.*?) \|$", page, re.MULTILINE)
    expectations = " ".join(re.findall(r"^The tests evaluate .*$", page, re.MULTILINE))
    return f"Functions run: {functions}; lines: {lines}; branches: {branches}. {expectations}\n"


def fuzz_minutes(text: str) -> float:
    """What the table says of the length of its runs: "in ten minutes", "601 s"."""
    minutes = sum(float(MINUTES.get(number, number)) for number in re.findall(r"\b(\w+) minutes", text))
    return minutes + sum(float(number) for number in re.findall(r"\b(\d+) s\b", text)) / 60


def long_runs(page: str) -> str:
    """The table of long runs below the sum of what it counts as inputs of fuzz targets."""
    text = page.split("\n\n", 2)[2]
    inputs = sum(int(number.replace(",", "")) for number in re.findall(r"\b([\d,]{5,}) (?:inputs|more)\b", text))
    rows = re.findall(r"^\|.*\|$", text, re.MULTILINE)[2:]
    differing = sum(row.strip("|").split("|")[3].strip() != "none" for row in rows)
    return f"{inputs:,} inputs of fuzz targets in {fuzz_minutes(text) / 60:.1f} hours; {differing} runs with a difference.\n\n{text}"


def figures(reports: Reports) -> str:
    return "\n".join([
        "### Tests on Linux\n", programs_table(reports),
        "### What they walk through\n", walked_table(reports),
        "### Kernels, where every test runs once for each\n", kernels_table(reports),
        "### Foreign input\n", fuzz_table(),
        "### What runs\n", coverage_lines(read(ROOT / COVERAGE)),
        "### Oddities held on purpose\n",
        f"{len(list(quirks.oddities(ROOT)))}, each with its comment and its test: [quirks.md](quirks.md).\n",
        "### Long runs\n", long_runs(read(ROOT / RUNS)),
    ])


def check(root: pathlib.Path) -> list[str]:
    """Figures come from a run of the tests; that they have their place can be said without."""
    return [] if has_block(read(root / PAGE)) else [f"{PAGE}: wants one block that make reliability writes"]


_BLOCK = "<!-- written by x; do not edit -->\n<!-- end of what is written -->\n"
PLANTINGS: list[Planting] = [
    ("a good tree", {PAGE: with_block(_BLOCK, "x")}, None),
    ("no end of the block", {PAGE: _BLOCK.splitlines()[0]}, "wants one block"),
    ("two blocks", {PAGE: _BLOCK * 2}, "wants one block"),
]

if __name__ == "__main__":
    order = command_line(check, PLANTINGS)
    text = figures({path.stem: json.loads(read(path)) for path in sorted(pathlib.Path(order.inputs[0]).glob("*.json"))})
    print(text)
    if order.write:
        write(ROOT, {PAGE: with_block(read(ROOT / PAGE), text)})
