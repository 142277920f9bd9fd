#!/usr/bin/env python3
"""Writes docs/performance.md from the reports of the benchmarks.

usage: performance.py FOLDER LOAD [--write]
(FOLDER: a report in JSON of every benchmark program; LOAD: the machine's load before the run)

Prints missed targets and noisy figures; exits 1 if bench/performance.toml refers to something that was not measured.
"""

import collections
import dataclasses
import fnmatch
import itertools
import json
import os
import pathlib
import re
import statistics
import subprocess
import tomllib
from collections.abc import Iterator
from typing import Any

from common import ROOT, command_line, table, write
from source_tree import Planting, finish, read

PAGE, DATA, GROWTH = "docs/performance.md", "bench/performance.toml", "growth_bench"
OURS = "ravo"
NOISY = 0.1
# A report, the data and one of its sections, as parsed from their files.
Report = dict[str, Any]
Section = dict[str, Any]
UNITS = ((1e9, "s"), (1e6, "ms"), (1e3, "µs"), (1, "ns"))


@dataclasses.dataclass
class Figure:
    """The median of the runs of one job; noisy if the interquartile range is large."""
    value: float
    noisy: bool
    is_time: bool

    def __str__(self) -> str:
        mark = "~" if self.noisy else ""
        if not self.is_time:
            return f"{mark}{self.value:.1f}"
        size, unit = next((u for u in UNITS if self.value >= u[0]), UNITS[-1])
        return f"{mark}{self.value / size:.3g} {unit}" if self.value / size < 1000 else f"{mark}{self.value / size:.0f} {unit}"


Jobs = dict[str, dict[str, Figure]]


@dataclasses.dataclass
class Row:
    job: str
    rival: str
    ours: Figure
    theirs: Figure
    wanted: float | None

    @property
    def ratio(self) -> float:
        return round(self.theirs.value / self.ours.value, 2)

    @property
    def met(self) -> bool:
        return self.wanted is None or self.ratio >= self.wanted

    def cells(self) -> tuple[object, ...]:
        wanted = ("", "") if self.wanted is None else (f"{self.wanted:g}x", "met" if self.met else "**missed**")
        return (f"`{self.job}`", self.ours, f"`{self.rival}`", self.theirs, f"{self.ratio:.2f}x", *wanted)


def figures(report: Report) -> Jobs:
    """{job: {name: Figure}} of a report; it lists the repetitions of one run separately."""
    values: dict[tuple[str, str], list[float]] = collections.defaultdict(list)
    timed = {}
    for run in report["benchmarks"]:
        if run["run_type"] != "iteration":
            continue
        job, name = re.sub(r"/(iterations|repeats):\d+", "", run["run_name"]).rsplit("/", 1)
        timed[job, name] = "figure" not in run
        values[job, name].append(run.get("figure", run["cpu_time"] / run.get("items", 1)))
    jobs: Jobs = collections.defaultdict(dict)
    for (job, name), all_runs in values.items():
        median = statistics.median(all_runs)
        lower, _, upper = statistics.quantiles(all_runs, n=4) if len(all_runs) > 1 else [median] * 3
        jobs[job][name] = Figure(median, upper - lower > NOISY * median, timed[job, name])
    return jobs


def rows_of(section: Section, jobs: Jobs) -> list[Row]:
    rows = []
    for job, names in sorted(jobs.items()):
        for rival in sorted(set(names) - {OURS}):
            wanted = [times for pattern, who, times in section["targets"]
                      if fnmatch.fnmatchcase(job, pattern) and fnmatch.fnmatchcase(rival, who)]
            if OURS in names:
                rows.append(Row(job, rival, names[OURS], names[rival], max(wanted, default=None)))
    return rows


def strays(section: Section, rows: list[Row]) -> Iterator[str]:
    """Targets without a comparison."""
    for job, rival, _ in section["targets"]:
        if not any(fnmatch.fnmatchcase(row.job, job) and fnmatch.fnmatchcase(row.rival, rival) for row in rows):
            yield f"{DATA}: {section['program']} has no comparison for the target {job} / {rival}"


def unknown_rivals(data: Report, rows: list[Row]) -> Iterator[str]:
    known = " ".join(data["rivals"])
    for rival in sorted({row.rival for row in rows}):
        if not re.search(rf"[(,;] ?{re.escape(rival)}[,;)]", known):
            yield f"{DATA}: unknown rival {rival}"


def workload(program: str) -> str:
    """The comment at the top of a benchmark, or the first sentence of a script's docstring."""
    path = ROOT / "bench" / f"{program}.cpp"
    if path.is_file():
        return " ".join(line[2:].strip() for line in itertools.takewhile(lambda line: line.startswith("//"), read(path).splitlines()))
    return read(path.with_suffix(".py")).split('"""')[1].splitlines()[0]


def output_of(*command: str) -> str:
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout.strip()


def version_of(package: str) -> str:
    return output_of("dpkg-query", "-W", "-f", "${Version}", package) or "not installed as a package"


def library_flags() -> str:
    """The compile options of our objects, without warnings."""
    text = read(ROOT / "build/linux-gcc/build.ninja")
    flags = re.findall(r"^build ravo/CMakeFiles/ravo_objects\.dir/\S+\.o:.*?^  FLAGS = ([^\n]*)", text, re.DOTALL | re.MULTILINE)
    return " ".join(flag for flag in flags[0].split() if not flag.startswith("-W"))


def machine_lines(reports: dict[str, Report], load: str) -> list[str]:
    name = re.search(r"^model name\s*: (.*)$", read(pathlib.Path("/proc/cpuinfo")), re.MULTILINE)
    kernels = reports.get(GROWTH, {}).get("context", {}).get("kernels", "not told")
    return [f"- processor: {name.group(1) if name else 'not told'}, {os.cpu_count()} in use",
            f"- kernels in use: {kernels}",
            f"- compiler: {output_of('g++', '--version').splitlines()[0]}, `{library_flags()}`",
            f"- load before the run: {load}"]


def growth_table(jobs: Jobs) -> str:
    """The cost of one item for 1, 10 and 100 times the work; linear work keeps the last column at 1."""
    rows = []
    for job, sizes in sorted(jobs.items()):
        one, ten, hundred = (sizes[times] for times in ("1", "10", "100"))
        rows.append((job, one, ten, hundred, f"{hundred.value / one.value:.2f}"))
    return table(("job, for each", "1 times the work", "10 times", "100 times", "100 times to 1"), rows)


def target_lines(sections: list[tuple[Section, list[Row]]]) -> Iterator[str]:
    wanted = [(section, row) for section, rows in sections for row in rows if row.wanted is not None]
    missed = [(section, row) for section, row in wanted if not row.met]
    yield "## Targets\n"
    yield f"{len(wanted) - len(missed)} of {len(wanted)} comparisons that have a target meet it. These do not:\n" if missed else \
        f"All {len(wanted)} comparisons that have a target meet it.\n"
    if missed:
        yield table(("section", "job", "beside", "ratio", "wanted"),
                    [(section["title"], f"`{row.job}`", f"`{row.rival}`", f"{row.ratio:.2f}x", f"{row.wanted:g}x") for section, row in missed])


def section_lines(section: Section, rows: list[Row]) -> Iterator[str]:
    program = section["program"]
    yield f"## {section['title']}\n"
    yield f"{workload(program)} (`{program}`)\n"
    yield f"![the ratios of this table as bars](performance/{program}.svg)\n"
    yield table(("job", "ours", "rival", "its", "ratio", "wanted", ""), [row.cells() for row in rows])


def growth_lines(reports: dict[str, Report]) -> Iterator[str]:
    yield "## Growth\n"
    yield f"{workload(GROWTH)} (`{GROWTH}`)\n"
    yield f"![the cost of an item as the work grows](performance/{GROWTH}.svg)\n"
    yield growth_table(figures(reports[GROWTH]))


def noise(reports: dict[str, Report]) -> tuple[int, int]:
    """The number of medians, and of noisy ones."""
    all_figures = [figure for report in reports.values() for job in figures(report).values() for figure in job.values()]
    return len(all_figures), sum(figure.noisy for figure in all_figures)


def page(data: Report, reports: dict[str, Report], sections: list[tuple[Section, list[Row]]], load: str) -> str:
    measured, noisy = noise(reports)
    lines = ["# Performance\n",
             "Written by `make bench`; do not edit. Medians of nine runs of each job and its rivals, one job after another, in one\n"
             "process and in random order. Times are processor times of one call or one item (wall-clock times for whole programs); a ratio above 1\n"
             "means that ours is faster, or needs less. Charts show the same figures: green if ours is ahead, brown if it is behind, with\n"
             "a black line at the target.\n",
             "\n".join(machine_lines(reports, load)),
             f"- noise: {noisy} of {measured} medians come from runs whose middle half is more than {NOISY:.0%} apart; they are marked with ~\n",
             *target_lines(sections)]
    for section, rows in sections:
        lines += section_lines(section, rows)
    lines += growth_lines(reports)
    lines += ["## Rivals\n",
              table(("rival, and its names above", "packages"),
                    [(rival, ", ".join(f"{p} {version_of(p)}" for p in packages)) for rival, packages in data["rivals"].items()]),
              read(ROOT / "docs/long-runs.md")]
    return "\n".join(lines)


def report(folder: str, load: str, is_written: bool) -> list[str]:
    """Prints missed targets and noisy figures, writes the page, and returns data that refers to nothing measured."""
    data = tomllib.loads(read(ROOT / DATA))
    reports = {path.stem: json.loads(read(path)) for path in sorted(pathlib.Path(folder).glob("*.json"))}
    listed = [section["program"] for section in data["section"]] + [GROWTH]
    findings = [f"{DATA}: has no section of {name}" for name in reports if name not in listed]
    findings += [f"{name} left no report in {folder}" for name in listed if name not in reports]
    sections = [(section, rows_of(section, figures(reports[section["program"]])))
                for section in data["section"] if section["program"] in reports]
    for section, rows in sections:
        findings += strays(section, rows)
    findings += unknown_rivals(data, [row for _, rows in sections for row in rows])
    print("\n".join(target_lines(sections)))
    measured, noisy = noise(reports)
    if noisy:
        print(f"{noisy} of {measured} figures are noisy: their runs are more than {NOISY:.0%} apart")
    if is_written and not findings:
        write(ROOT, {PAGE: page(data, reports, sections, load)})
    return findings


def check(root: pathlib.Path) -> list[str]:
    """Every benchmark has its section, and every section its benchmark."""
    sections = [section["program"] for section in tomllib.loads(read(root / DATA))["section"]]
    programs = {path.stem for path in (root / "bench").glob("*_bench.cpp")} - {GROWTH}
    findings = [f"{DATA}: has no section of bench/{name}.cpp" for name in sorted(programs - set(sections))]
    for name in sections:
        if name not in programs and not (root / "bench" / f"{name}.py").is_file():
            findings.append(f"{DATA}: there is no benchmark {name}")
    return findings


def _tree(*names: str) -> dict[str, str]:
    sections = "".join(f'[[section]]\nprogram = "{name}"\n' for name in names)
    return {DATA: sections, "bench/a_bench.cpp": "", "bench/b.py": "", f"bench/{GROWTH}.cpp": ""}


PLANTINGS: list[Planting] = [
    ("a good tree", _tree("a_bench", "b"), None),
    ("a benchmark without a section", _tree("b"), "no section of bench/a_bench.cpp"),
    ("a section without a benchmark", _tree("a_bench", "c_bench"), "no benchmark c_bench"),
]

if __name__ == "__main__":
    order = command_line(check, PLANTINGS)
    folder, load = order.inputs
    finish(report(folder, load, order.write))
