#!/usr/bin/env python3
"""Times `ravo isdoc check` on a folder of ten thousand invoices beside xmllint, which merely reads them, and beside the
limit that the check is held to: two seconds, 5,000 invoices a second.

usage: isdoc_check.py RAVO FOLDER REPORT      (FOLDER keeps the invoices between runs)

The programs run in turn, several times. Prints the medians of processor and wall time, and their ratios. REPORT has
every run, in the format of the other benchmarks.
"""

import json
import pathlib
import statistics
import sys

from convert import measure

COUNT, LIMIT = 10_000, 2.0
SAMPLES = pathlib.Path(__file__).resolve().parents[1] / "samples/isdoc"


def invoices(folder):
    """A folder with the samples, each many times."""
    folder = folder / "invoices"
    samples = [file.read_bytes() for file in sorted(SAMPLES.glob("*.isdoc"))]
    for i in range(COUNT):
        file = folder / f"{i // 1000}" / f"{i:05}.isdoc"
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(samples[i % len(samples)])
    return folder


def main(ravo, folder, report_file):
    folder, runs = pathlib.Path(folder), []
    all_invoices = invoices(folder)
    files = [str(file) for file in sorted(all_invoices.rglob("*.isdoc"))]
    times = measure({
        "ravo": [ravo, "isdoc", "check", str(all_invoices)],
        "xmllint": ["xmllint", "--noout", *files],
    }, folder)
    times["limit"] = [(LIMIT, LIMIT)]
    for place, what in enumerate(("processor time", "time")):
        medians = {name: statistics.median(taken[place] for taken in all_runs) for name, all_runs in times.items()}
        for name, median in medians.items():
            print(f"10000 invoices, {what:14}  {name:10} {median:7.3f} s  {median / medians['ravo']:6.2f}x")
            runs += [{"run_name": f"10000 invoices, {what}/{name}", "run_type": "iteration", "cpu_time": taken[place] * 1e9}
                     for taken in times[name]]
    pathlib.Path(report_file).write_text(json.dumps({"benchmarks": runs}), encoding="utf-8")
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
