#!/usr/bin/env python3
"""Times `ravo isdoc check` on a folder of ten thousand invoices beside xmllint, which merely reads them, and beside the
limit that the check is held to: two seconds, 5,000 invoices a second.

usage: isdoc_check.py RAVO FOLDER REPORT      (FOLDER keeps the invoices between runs)

The programs run in turn, several times. Prints the medians of processor and wall time, and their ratios. REPORT has
every run, in the format of the other benchmarks.
"""

import pathlib
import sys

from whole_program import measure, report

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
    folder = pathlib.Path(folder)
    all_invoices = invoices(folder)
    files = [str(file) for file in sorted(all_invoices.rglob("*.isdoc"))]
    times = measure("10000 invoices", {
        "ravo": [ravo, "isdoc", "check", str(all_invoices)],
        "xmllint": ["xmllint", "--noout", *files],
    }, folder)
    times |= {("10000 invoices, processor time", "limit"): [LIMIT], ("10000 invoices, time", "limit"): [LIMIT]}
    report(times, report_file)
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
