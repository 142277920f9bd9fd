#!/usr/bin/env python3
"""Sums what the tests report of themselves, and puts it into docs/reliability.md.

usage: reliability_report.py PROJECT FOLDER [--write]     (FOLDER: a report in JSON of every test program)
"""

import collections
import json
import pathlib
import re
import sys

BEGIN = "<!-- written by scripts/reliability; do not edit -->\n"
END = "<!-- end of what is written -->\n"
# Numbers that the table of long runs has as words.
MINUTES = {"ten": 10}
# Notes that are told in words of their own; all others stand under their own name.
WORDS = {"requests_for_memory_that_failed": "requests for memory that were denied, each in a run of its own"}


def tests_of(report):
    return [test for suite in report["testsuites"] for test in suite["testsuite"]]


def spaced(number):
    return f"{number:,}"


def table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)]
    return "\n".join(lines + ["| " + " | ".join(map(str, row)) + " |" for row in rows]) + "\n"


def programs_table(reports):
    rows = []
    for name, report in reports.items():
        tests = tests_of(report)
        skipped = sum(test["result"] == "SKIPPED" for test in tests)
        rows.append((f"`test_{name}`", len(tests), skipped, report["failures"]))
    sums = [sum(row[column] for row in rows) for column in (1, 2, 3)]
    return table(("program", "tests", "not on this machine", "failed"), [*rows, ("all", *sums)])


def walked_table(reports):
    sums = collections.Counter()
    for report in reports.values():
        for test in tests_of(report):
            for key, value in test.items():
                if key.startswith("tried_"):
                    sums[key.removeprefix("tried_")] += int(value)
    return table(("what", "how many"), [(WORDS.get(key, key.replace("_", " ")), spaced(count)) for key, count in sorted(sums.items())])


def kernels_table(reports):
    """Tests that run once for every kernel end in its name."""
    kernels = collections.defaultdict(collections.Counter)
    for report in reports.values():
        for suite in report["testsuites"]:
            if suite["name"].startswith("Kernels/"):
                for test in suite["testsuite"]:
                    kernels[suite["name"].split("/")[1]][test["name"].split("/")[1]] += 1
    return table(("tests of", "kernels, each with its number of tests"),
                 [(f"`{suite}`", ", ".join(f"{name} {count}" for name, count in counts.items())) for suite, counts in kernels.items()])


def fuzz_table(project):
    rows = []
    for target in sorted(project.glob("fuzz/*_fuzz.cpp")):
        name = target.name.removesuffix("_fuzz.cpp")
        rows.append((f"`{name}`", len(list((project / "fuzz/corpus" / name).glob("*")))))
    return table(("fuzz target", "inputs that every test run replays"), rows)


def rows_of_page(project, page):
    """The rows below the head of a page's first table."""
    lines = (project / page).read_text(encoding="utf-8").splitlines()
    rows = [line for line in lines if line.startswith("|")]
    return rows[2:]


def coverage_lines(project):
    page = project / "docs/coverage.md"
    if not page.is_file():
        return "not counted yet\n"
    all_row = next(row for row in rows_of_page(project, "docs/coverage.md") if row.startswith("| all "))
    cells = [cell.strip() for cell in all_row.strip("|").split("|")]
    expectations = re.search(r"^The tests evaluate .*$", page.read_text(encoding="utf-8"), re.MULTILINE)
    return f"Functions run: {cells[1]}; lines: {cells[2]}; branches: {cells[3]}. {expectations.group(0) if expectations else ''}\n"


def fuzz_minutes(text):
    """What the table says of the length of its runs: "in ten minutes", "601 s"."""
    minutes = sum(float(MINUTES.get(number, number)) for number in re.findall(r"\b(\w+) minutes", text))
    return minutes + sum(float(number) for number in re.findall(r"\b(\d+) s\b", text)) / 60


def long_runs(project):
    """The table of long runs below the sum of what it counts as inputs of fuzz targets."""
    text = (project / "docs/long-runs.md").read_text(encoding="utf-8").split("\n\n", 2)[2]
    inputs = sum(int(number.replace(",", "")) for number in re.findall(r"\b([\d,]{5,}) (?:inputs|more)\b", text))
    differing = sum(row.strip("|").split("|")[3].strip() != "none" for row in rows_of_page(project, "docs/long-runs.md"))
    return f"{inputs:,} inputs of fuzz targets in {fuzz_minutes(text) / 60:.1f} hours; {differing} runs with a difference.\n\n{text}"


def figures(project, reports):
    return "\n".join([
        "### Tests on Linux\n", programs_table(reports),
        "### What they walk through\n", walked_table(reports),
        "### Kernels, where every test runs once for each\n", kernels_table(reports),
        "### Foreign input\n", fuzz_table(project),
        "### What runs\n", coverage_lines(project),
        "### Oddities held on purpose\n",
        f"{len(rows_of_page(project, 'docs/quirks.md'))}, each with its comment, its reason and its test: [quirks.md](quirks.md).\n",
        "### Long runs\n", long_runs(project),
    ])


def main():
    project, folder = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    reports = {path.stem: json.loads(path.read_text(encoding="utf-8")) for path in sorted(folder.glob("*.json"))}
    text = figures(project, reports)
    print(text)
    if "--write" in sys.argv[3:]:
        page = project / "docs/reliability.md"
        before, rest = page.read_text(encoding="utf-8").split(BEGIN)
        page.write_text(before + BEGIN + "\n" + text + "\n" + END + rest.split(END)[1], encoding="utf-8")


if __name__ == "__main__":
    main()
