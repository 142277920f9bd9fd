#!/usr/bin/env python3
"""Times `ravo sort` on two million Czech lines beside sort of coreutils in the Czech locale, which gives the same lines.

usage: sort_lines.py RAVO FOLDER REPORT      (FOLDER keeps the file between runs)

The two run in turn, several times, each into a file, on all processors. Prints the medians of their wall times, their
ratio and their peaks of memory. REPORT has every run, in the format of the other benchmarks.
"""

import filecmp
import json
import os
import pathlib
import random
import statistics
import subprocess
import sys
import time

LINES, RUNS = 2_000_000, 5
WORDS = ("účet předkontace zákazník dodavatel faktura částka splatnost úhrada daňový doklad pokladna banka příjem výdej sklad zboží "
         "chyba hlava cihla čára řeka žena škola").split()


def czech_lines(folder):
    """Lines of one to four words and a number."""
    file = folder / "czech-lines.txt"
    if not file.exists():
        generator = random.Random(20261122)
        with open(file, "w", encoding="utf-8", newline="") as out:
            for _ in range(LINES):
                out.write(" ".join(generator.choices(WORDS, k=generator.randint(1, 4))) + f" {generator.randint(1, 100_000)}\n")
    return file


def run(command, target):
    """Wall time in seconds and the peak of memory in bytes."""
    with open(target, "wb") as out:
        start = time.perf_counter()
        child = subprocess.Popen(command, stdout=out, stderr=subprocess.DEVNULL, env={**os.environ, "LC_ALL": "cs_CZ.UTF-8"})
        _, status, usage = os.wait4(child.pid, 0)
        taken = time.perf_counter() - start
    child.returncode = os.waitstatus_to_exitcode(status)
    if child.returncode != 0:
        sys.exit(f"{command[0]}: status {child.returncode}")
    return taken, usage.ru_maxrss * 1024


def main(ravo, folder, report_file):
    folder, runs = pathlib.Path(folder), []
    file = czech_lines(folder)
    commands = {"ravo": [ravo, "sort", file], "sort": ["sort", file]}
    targets = {name: folder / f"sorted-{name}" for name in commands}
    times: dict[str, list[tuple[float, int]]] = {name: [] for name in commands}
    for turn in range(RUNS + 1):
        for name, command in commands.items():
            taken = run(command, targets[name])
            if turn > 0:  # the first turn warms the file cache
                times[name].append(taken)
    if not filecmp.cmp(targets["ravo"], targets["sort"], shallow=False):
        sys.exit("the results differ")
    for target in targets.values():
        target.unlink()
    medians = {name: statistics.median(taken for taken, _ in all_runs) for name, all_runs in times.items()}
    for name, median in medians.items():
        peak = max(memory for _, memory in times[name]) / 1e6
        print(f"sort, two million lines  {name:6} {median:7.3f} s  {median / medians['ravo']:6.2f}x  {peak:5.0f} MB")
        runs += [{"run_name": f"two million lines/{name}", "run_type": "iteration", "cpu_time": taken * 1e9} for taken, _ in times[name]]
    pathlib.Path(report_file).write_text(json.dumps({"benchmarks": runs}), encoding="utf-8")
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
