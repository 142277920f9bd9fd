#!/usr/bin/env python3
"""Times `ravo sort` on two million Czech lines beside sort of coreutils in the Czech locale, which gives the same lines.

usage: sort_lines.py RAVO FOLDER REPORT      (FOLDER keeps the file between runs)

The two run in turn, several times, each into a file, on all processors. Prints the medians of their wall times, their
ratio and their peaks of memory. REPORT has every run, in the format of the other benchmarks.
"""

import filecmp
import os
import pathlib
import random
import subprocess
import sys
import time

from whole_program import in_turn, report

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
    folder = pathlib.Path(folder)
    file = str(czech_lines(folder))
    targets = {name: folder / f"sorted-{name}" for name in ("ravo", "sort")}
    taken = in_turn({"ravo": lambda: run([ravo, "sort", file], targets["ravo"]),
                     "sort": lambda: run(["sort", file], targets["sort"])}, RUNS)
    if not filecmp.cmp(targets["ravo"], targets["sort"], shallow=False):
        sys.exit("the results differ")
    for target in targets.values():
        target.unlink()
    peaks = {name: f"{max(memory for _, memory in all_runs) / 1e6:5.0f} MB" for name, all_runs in taken.items()}
    times = {("two million lines", name): [wall for wall, _ in all_runs] for name, all_runs in taken.items()}
    report(times, report_file, peaks)
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
