"""Shared by the benchmarks of whole programs: runs in turn, medians, and the report in the format of the other benchmarks."""

import functools
import json
import pathlib
import resource
import shutil
import statistics
import subprocess
import time
from collections.abc import Callable, Mapping
from typing import TypeVar

RUNS = 9
Place = TypeVar("Place")
Taken = TypeVar("Taken")
# The seconds of each run, by job and program.
Times = dict[tuple[str, str], list[float]]


def in_turn(runs: Mapping[Place, Callable[[], Taken]], count: int = RUNS) -> dict[Place, list[Taken]]:
    """What each of the runs returns, `count` times; they take turns, and the first turn only warms the file cache."""
    taken: dict[Place, list[Taken]] = {place: [] for place in runs}
    for turn in range(count + 1):
        for place, run in runs.items():
            result = run()
            if turn > 0:
                taken[place].append(result)
    return taken


def seconds(command: list[str], target: pathlib.Path) -> tuple[float, float]:
    """Processor time and wall time of a command that writes to a file."""
    with open(target, "wb") as out:
        before, start = resource.getrusage(resource.RUSAGE_CHILDREN), time.perf_counter()
        # Status 1 says that there are findings.
        done = subprocess.run(command, check=False, stdout=out)
        if done.returncode > 1:
            done.check_returncode()
        wall, after = time.perf_counter() - start, resource.getrusage(resource.RUSAGE_CHILDREN)
    target.unlink()
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime, wall


def measure(job: str, commands: dict[str, list[str]], folder: pathlib.Path) -> Times:
    """Both times of each program; those that are not installed are left out."""
    runs = {name: functools.partial(seconds, command, folder / "written")
            for name, command in commands.items() if name == "ravo" or shutil.which(command[0])}
    taken = in_turn(runs)
    return {(f"{job}, {what}", name): [both[place] for both in all_runs]
            for place, what in enumerate(("processor time", "time")) for name, all_runs in taken.items()}


def report(times: Times, file: str, notes: dict[str, str] | None = None) -> None:
    """Prints medians and their ratios to those of ravo, with a note for a program; the file gets every run."""
    medians = {place: statistics.median(taken) for place, taken in times.items()}
    for (job, name), median in medians.items():
        print(f"{job:40} {name:24} {median:7.3f} s  {median / medians[job, 'ravo']:6.2f}x  {(notes or {}).get(name, '')}".rstrip())
    runs = [{"run_name": f"{job}/{name}", "run_type": "iteration", "cpu_time": taken * 1e9}
            for (job, name), all_runs in times.items() for taken in all_runs]
    pathlib.Path(file).write_text(json.dumps({"benchmarks": runs}), encoding="utf-8")
