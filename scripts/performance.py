#!/usr/bin/env python3
"""Makes docs/performance.md from the reports of the benchmarks.

usage: performance.py PROJECT FOLDER LOAD [--write]
(FOLDER: a report in JSON of every benchmark program; LOAD: the machine's load before the run)

Prints what was missed and what was noisy; exits 1 where bench/performance.toml speaks of what was not measured.
"""

import collections
import dataclasses
import fnmatch
import json
import os
import pathlib
import re
import statistics
import subprocess
import sys
import tomllib

PAGE, DATA, GROWTH = "docs/performance.md", "bench/performance.toml", "growth_bench"
OURS = "ravo"
NOISY = 0.1
UNITS = ((1e9, "s"), (1e6, "ms"), (1e3, "µs"), (1, "ns"))


@dataclasses.dataclass
class Figure:
    """The median of the runs of one job; noisy where the middle half of them is far apart."""
    value: float
    noisy: bool
    is_time: bool

    def __str__(self):
        mark = "~" if self.noisy else ""
        if not self.is_time:
            return f"{mark}{self.value:.1f}"
        size, unit = next((u for u in UNITS if self.value >= u[0]), UNITS[-1])
        return f"{mark}{self.value / size:.3g} {unit}" if self.value / size < 1000 else f"{mark}{self.value / size:.0f} {unit}"


@dataclasses.dataclass
class Row:
    job: str
    rival: str
    ours: Figure
    theirs: Figure
    wanted: float | None

    @property
    def ratio(self):
        return round(self.theirs.value / self.ours.value, 2)

    @property
    def met(self):
        return self.wanted is None or self.ratio >= self.wanted

    def cells(self):
        wanted = ("", "") if self.wanted is None else (f"{self.wanted:g}x", "met" if self.met else "**missed**")
        return (f"`{self.job}`", self.ours, f"`{self.rival}`", self.theirs, f"{self.ratio:.2f}x", *wanted)


def figures(report):
    """{job: {name: Figure}} of a report; the repetitions of one run stand in it one by one."""
    values, timed = collections.defaultdict(list), {}
    for run in report["benchmarks"]:
        if run["run_type"] != "iteration":
            continue
        job, name = re.sub(r"/(iterations|repeats):\d+", "", run["run_name"]).rsplit("/", 1)
        timed[job, name] = "figure" not in run
        values[job, name].append(run.get("figure", run["cpu_time"] / run.get("items", 1)))
    jobs = collections.defaultdict(dict)
    for (job, name), all_runs in values.items():
        median = statistics.median(all_runs)
        lower, _, upper = statistics.quantiles(all_runs, n=4) if len(all_runs) > 1 else [median] * 3
        jobs[job][name] = Figure(median, upper - lower > NOISY * median, timed[job, name])
    return jobs


def rows_of(section, jobs):
    rows = []
    for job, names in sorted(jobs.items()):
        for rival in sorted(set(names) - {OURS}):
            wanted = [times for pattern, who, times in section["targets"]
                      if fnmatch.fnmatchcase(job, pattern) and fnmatch.fnmatchcase(rival, who)]
            if OURS in names:
                rows.append(Row(job, rival, names[OURS], names[rival], max(wanted, default=None)))
    return rows


def strays(section, rows):
    """Targets that no comparison answers to."""
    for job, rival, _ in section["targets"]:
        if not any(fnmatch.fnmatchcase(row.job, job) and fnmatch.fnmatchcase(row.rival, rival) for row in rows):
            yield f"{DATA}: no comparison of {section['program']} answers to the target {job} / {rival}"


def unknown_rivals(data, rows):
    known = " ".join(data["rivals"])
    for rival in sorted({row.rival for row in rows}):
        if not re.search(rf"[(,;] ?{re.escape(rival)}[,;)]", known):
            yield f"{DATA}: does not know the rival {rival}"


def table(head, rows):
    return "\n".join(["| " + " | ".join(head) + " |", "|" + "---|" * len(head),
                      *("| " + " | ".join(map(str, row)) + " |" for row in rows)]) + "\n"


def workload(project, program):
    """The comment at the head of a benchmark, or the first sentence of a script's."""
    path = project / "bench" / f"{program}.cpp"
    if path.is_file():
        head = re.match(r"(?://[^\n]*\n)+", path.read_text(encoding="utf-8")).group(0)
        return " ".join(line[2:].strip() for line in head.splitlines())
    text = path.with_suffix(".py").read_text(encoding="utf-8")
    return re.search(r'"""(.*?)\n', text).group(1)


def output_of(*command):
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout.strip()


def version_of(package):
    return output_of("dpkg-query", "-W", "-f", "${Version}", package) or "not installed as a package"


def library_flags(project):
    """What our own objects were compiled with, warnings aside."""
    text = (project / "build/linux-gcc/build.ninja").read_text(encoding="utf-8")
    flags = re.search(r"^build ravo/CMakeFiles/ravo_objects\.dir/\S+\.o:.*?^  FLAGS = ([^\n]*)", text, re.DOTALL | re.MULTILINE)
    return " ".join(flag for flag in flags.group(1).split() if not flag.startswith("-W"))


def machine_lines(project, reports, load):
    cpu = pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8")
    name = re.search(r"^model name\s*: (.*)$", cpu, re.MULTILINE)
    kernels = reports.get(GROWTH, {}).get("context", {}).get("kernels", "not told")
    return [f"- processor: {name.group(1) if name else 'not told'}, {os.cpu_count()} in use",
            f"- kernels in use: {kernels}",
            f"- compiler: {output_of('g++', '--version').splitlines()[0]}, `{library_flags(project)}`",
            f"- load before the run: {load}"]


def growth_table(jobs):
    """Cost of one item for 1, 10 and 100 times the work; the last column is what linear work keeps at 1."""
    rows = []
    for job, sizes in sorted(jobs.items()):
        one, ten, hundred = (sizes[times] for times in ("1", "10", "100"))
        rows.append((job, one, ten, hundred, f"{hundred.value / one.value:.2f}"))
    return table(("job, for each", "1 times the work", "10 times", "100 times", "100 times to 1"), rows)


def target_lines(sections):
    wanted = [(section, row) for section, rows in sections for row in rows if row.wanted is not None]
    missed = [(section, row) for section, row in wanted if not row.met]
    yield "## Targets\n"
    yield f"{len(wanted) - len(missed)} of {len(wanted)} comparisons that have a target meet it. These do not:\n" if missed else \
        f"All {len(wanted)} comparisons that have a target meet it.\n"
    if missed:
        yield table(("section", "job", "beside", "ratio", "wanted"),
                    [(section["title"], f"`{row.job}`", f"`{row.rival}`", f"{row.ratio:.2f}x", f"{row.wanted:g}x") for section, row in missed])


def section_lines(project, section, rows):
    program = section["program"]
    yield f"## {section['title']}\n"
    yield f"{workload(project, program)} (`{program}`)\n"
    yield f"![the ratios of this table as bars](performance/{program}.svg)\n"
    yield table(("job", "ours", "rival", "its", "ratio", "wanted", ""), [row.cells() for row in rows])


def growth_lines(project, reports):
    yield "## Growth\n"
    yield f"{workload(project, GROWTH)} (`{GROWTH}`)\n"
    yield f"![the cost of an item as the work grows](performance/{GROWTH}.svg)\n"
    yield growth_table(figures(reports[GROWTH]))


def noise(reports):
    """How many medians there are, and how many of them are noisy."""
    all_figures = [figure for report in reports.values() for job in figures(report).values() for figure in job.values()]
    return len(all_figures), sum(figure.noisy for figure in all_figures)


def page(project, data, reports, sections, load):
    measured, noisy = noise(reports)
    lines = ["# Performance\n",
             "Written by `scripts/bench --write`; do not edit. Medians of nine runs of each job and its rivals, all in one process and in\n"
             "random order. Times are of one call or one item, of the processor and not of the clock on the wall (whole programs aside); a\n"
             "ratio above 1 means that ours is faster, or needs less. Charts show the same figures: green where ours is ahead, brown where it\n"
             "is behind, a black line where the target is.\n",
             "\n".join(machine_lines(project, reports, load)),
             f"- noise: {noisy} of {measured} medians come from runs whose middle half is more than {NOISY:.0%} apart; they are marked with ~\n",
             *target_lines(sections)]
    for section, rows in sections:
        lines += section_lines(project, section, rows)
    lines += growth_lines(project, reports)
    lines += ["## Rivals\n",
              table(("rival, and its names above", "packages"),
                    [(rival, ", ".join(f"{p} {version_of(p)}" for p in packages)) for rival, packages in data["rivals"].items()]),
              (project / "docs/long-runs.md").read_text(encoding="utf-8")]
    return "\n".join(lines)


def main():
    project, folder, load = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[3]
    data = tomllib.loads((project / DATA).read_text(encoding="utf-8"))
    reports = {path.stem: json.loads(path.read_text(encoding="utf-8")) for path in sorted(folder.glob("*.json"))}
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
    print("\n".join(findings))
    if "--write" in sys.argv[4:] and not findings:
        (project / PAGE).write_text(page(project, data, reports, sections, load), encoding="utf-8")
    sys.exit(1 if findings else 0)


if __name__ == "__main__":
    main()
