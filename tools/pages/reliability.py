#!/usr/bin/env python3
"""Sums the reports of the test runs and writes them to docs/reliability.md.

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
# Numbers that the table of long runs writes as words.
MINUTES = {"ten": 10}
# Notes with a text of their own; all others appear under their name.
WORDS = {"requests_for_memory_that_failed": "allocations that failed, each in its own run"}


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
    return table(("fuzz target", "inputs replayed in every test run"), rows)


def coverage_lines(page: str) -> str:
    """The sums of the page of coverage."""
    [(functions, lines, branches)] = re.findall(r"^\| all \| (.*?) \| (.*?) \| (.*?) \|$", page, re.MULTILINE)
    expectations = " ".join(re.findall(r"^The tests evaluate .*$", page, re.MULTILINE))
    return f"Functions run: {functions}; lines: {lines}; branches: {branches}. {expectations}\n"


def fuzz_minutes(text: str) -> float:
    """The sum of the durations in the table: "in ten minutes", "601 s"."""
    minutes = sum(float(MINUTES.get(number, number)) for number in re.findall(r"\b(\w+) minutes", text))
    return minutes + sum(float(number) for number in re.findall(r"\b(\d+) s\b", text)) / 60


def long_runs(page: str) -> str:
    """The table of long runs, after the sum of its fuzz inputs."""
    text = page.split("\n\n", 2)[2]
    inputs = sum(int(number.replace(",", "")) for number in re.findall(r"\b([\d,]{5,}) (?:inputs|more)\b", text))
    rows = re.findall(r"^\|.*\|$", text, re.MULTILINE)[2:]
    differing = sum(row.strip("|").split("|")[3].strip() != "none" for row in rows)
    return f"{inputs:,} inputs of fuzz targets in {fuzz_minutes(text) / 60:.1f} hours; {differing} runs with a difference.\n\n{text}"


def figures(reports: Reports) -> str:
    return "\n".join([
        "### Tests on Linux\n", programs_table(reports),
        "### Cases that they run through\n", walked_table(reports),
        "### Kernels: every test runs once for each\n", kernels_table(reports),
        "### Foreign input\n", fuzz_table(),
        "### Coverage\n", coverage_lines(read(ROOT / COVERAGE)),
        "### Deliberate oddities\n",
        f"{len(list(quirks.oddities(ROOT)))}, each with its comment and its test: [quirks.md](quirks.md).\n",
        "### Long runs\n", long_runs(read(ROOT / RUNS)),
    ])


def check(root: pathlib.Path) -> list[str]:
    """Only a test run has the figures; the check is that the page has a place for them."""
    return [] if has_block(read(root / PAGE)) else [f"{PAGE}: needs exactly one block for make reliability to write"]


_BLOCK = "<!-- written by x; do not edit -->\n<!-- end of what is written -->\n"
PLANTINGS: list[Planting] = [
    ("a good tree", {PAGE: with_block(_BLOCK, "x")}, None),
    ("no end of the block", {PAGE: _BLOCK.splitlines()[0]}, "needs exactly one block"),
    ("two blocks", {PAGE: _BLOCK * 2}, "needs exactly one block"),
]

if __name__ == "__main__":
    order = command_line(check, PLANTINGS)
    text = figures({path.stem: json.loads(read(path)) for path in sorted(pathlib.Path(order.inputs[0]).glob("*.json"))})
    print(text)
    if order.write:
        write(ROOT, {PAGE: with_block(read(ROOT / PAGE), text)})
