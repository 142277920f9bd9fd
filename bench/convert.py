#!/usr/bin/env python3
"""Times `ravo convert` against iconv and uconv on 100 MB of Czech text, from Windows-1250 to UTF-8 and back, and
against cat, which only copies the file.

usage: convert.py RAVO FOLDER REPORT      (FOLDER keeps the files between runs)

The programs run in turn, several times, each into a file. Prints the medians of processor and wall time, and their
ratios. REPORT has every run, in the format of the other benchmarks.
"""

import json
import pathlib
import random
import resource
import shutil
import statistics
import subprocess
import sys
import time

SIZE, RUNS = 100_000_000, 9
WORDS = ("účet předkontace zákazník dodavatel faktura částka splatnost úhrada daňový doklad pokladna banka příjem výdej sklad "
         "zboží a v na je se s pro 2026 12500,00 Kč;").split()


def czech_text(folder, codec):
    """A file of lines of six to sixteen words: about a megabyte, repeated."""
    file = folder / f"czech-{codec}.txt"
    if not file.exists():
        generator = random.Random(20240229)
        lines = [" ".join(generator.choices(WORDS, k=generator.randint(6, 16))) + "\r\n" for _ in range(13_000)]
        piece = "".join(lines).encode(codec)
        file.write_bytes(piece * (SIZE // len(piece)))
    return file


def seconds(command, target):
    """Processor time and wall time of a command, in seconds."""
    with open(target, "wb") as out:
        before, start = resource.getrusage(resource.RUSAGE_CHILDREN), time.perf_counter()
        subprocess.run(command, check=True, stdout=out)
        wall, after = time.perf_counter() - start, resource.getrusage(resource.RUSAGE_CHILDREN)
    target.unlink()
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime, wall


def commands(ravo, folder):
    """Each job, and the command of each program for it."""
    for job, codec, source, to in (("1250 to UTF-8", "cp1250", "CP1250", "UTF-8"), ("UTF-8 to 1250", "utf-8", "UTF-8", "CP1250")):
        file = str(czech_text(folder, codec))
        yield job, {
            "ravo": [ravo, "convert", "-f", source, "-t", to, file],
            "iconv": ["iconv", "-f", source, "-t", to, file],
            "uconv": ["uconv", "-f", source, "-t", to, file],
            "cat": ["cat", file],
        }


def measure(rivals, folder):
    """The times of each program's runs; programs that are not installed are left out."""
    rivals = {name: command for name, command in rivals.items() if name == "ravo" or shutil.which(command[0])}
    times: dict[str, list[tuple[float, float]]] = {name: [] for name in rivals}
    for run in range(RUNS + 1):
        for name, command in rivals.items():
            taken = seconds(command, folder / "converted")
            if run > 0:  # the first turn warms the file cache
                times[name].append(taken)
    return times


def main(ravo, folder, report_file):
    folder, runs = pathlib.Path(folder), []
    for job, rivals in commands(ravo, folder):
        times = measure(rivals, folder)
        for place, what in enumerate(("processor time", "time")):
            medians = {name: statistics.median(taken[place] for taken in all_runs) for name, all_runs in times.items()}
            for name, median in medians.items():
                print(f"{job}, {what:14}  {name:6} {median:7.3f} s  {median / medians['ravo']:6.2f}x")
                runs += [{"run_name": f"{job}, {what}/{name}", "run_type": "iteration", "cpu_time": taken[place] * 1e9}
                         for taken in times[name]]
    pathlib.Path(report_file).write_text(json.dumps({"benchmarks": runs}), encoding="utf-8")
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
