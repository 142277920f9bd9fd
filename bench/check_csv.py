#!/usr/bin/env python3
"""Times `ravo check --csv` on a million rows beside mawk, which merely splits the same file into the same columns.

usage: check_csv.py RAVO FOLDER REPORT      (FOLDER keeps the file between runs)

The two run in turn, several times; what is printed are the medians of their wall times and the ratio. REPORT has
every run, in the form in which the other benchmarks report.
"""

import json
import pathlib
import shutil
import statistics
import subprocess
import sys
import time

ROWS, COPIES, RUNS = 20_000, 50, 9
COLUMNS = {"Účet MD": "ucet", "Účet D": "ucet", "VS": "vs", "Protiúčet": "banka", "EAN": "ean"}
PLACES = (3, 4, 6, 7, 8)


def million_rows(folder):
    """A ledger of a million rows: twenty thousand rows, repeated fifty times."""
    whole = folder / "million.csv"
    if not whole.exists():
        part = folder / "part.csv"
        generator = pathlib.Path(__file__).resolve().parents[1] / "tools/generate/ledger.py"
        subprocess.run([sys.executable, generator, "--rows", str(ROWS), "--output", part], check=True)
        head, _, rows = part.read_bytes().partition(b"\r\n")
        whole.write_bytes(head + b"\r\n" + rows * COPIES)
        part.unlink()
    return whole


def seconds(command):
    start = time.perf_counter()
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    return time.perf_counter() - start


def report(times):
    """The runs of all commands, in nanoseconds."""
    runs = [{"run_name": f"check --csv/{name}", "run_type": "iteration", "cpu_time": taken * 1e9}
            for name, all_runs in times.items() for taken in all_runs]
    return json.dumps({"benchmarks": runs})


def main(ravo, folder, report_file):
    if not shutil.which("mawk"):
        print("mawk is missing")
        return 0
    file = million_rows(pathlib.Path(folder))
    check = [ravo, "check", "--csv", file, "--allow-empty"]
    for name, kind in COLUMNS.items():
        check += ["--column", f"{name}={kind}"]
    assignments = "; ".join(f"c{place} = ${place}" for place in PLACES)
    commands = {
        "ravo": check,
        "mawk, the same columns": ["mawk", "-F;", "{ %s }" % assignments, file],
        "mawk, counting fields": ["mawk", "-F;", "{ n += NF }", file],
    }
    times: dict[str, list[float]] = {name: [] for name in commands}
    for run in range(RUNS + 1):
        for name, command in commands.items():
            taken = seconds(command)
            if run > 0:  # the first run warms the file cache
                times[name].append(taken)
    pathlib.Path(report_file).write_text(report(times), encoding="utf-8")
    medians = {name: statistics.median(taken) for name, taken in times.items()}
    for name, median in medians.items():
        print(f"check --csv, a million rows  {name:24} {median:7.3f} s  {median / medians['ravo']:6.2f}x")
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
