#!/usr/bin/env python3
"""Times `ravo xml set` against xmlstarlet on an XML document of 100 MB in UTF-8, of which one value is set, and
against cat, which only copies the file. xmlstarlet writes the document anew from a tree; ravo keeps every other byte.

usage: xml_set.py RAVO FOLDER REPORT      (FOLDER keeps the file between runs)

The programs run in turn, several times, each into a file. Prints the medians of processor and wall time, and their
ratios. REPORT has every run, in the format of the other benchmarks.
"""

import json
import pathlib
import statistics
import sys

from convert import measure

SIZE = 100_000_000
ROW = '  <row id="17" name="Žižka">\n    <amount>1234,50</amount>\n    <note>Příliš žluťoučký &amp; tučný</note>\n  </row>\n'


def document(folder):
    """A document of rows; the value to set is before them."""
    file = folder / "rows.xml"
    if not file.exists():
        row = ROW.encode()
        file.write_bytes(b'<?xml version="1.0" encoding="UTF-8"?>\n<rows>\n  <title>1</title>\n' + row * (SIZE // len(row)) + b"</rows>\n")
    return str(file)


def main(ravo, folder, report_file):
    folder, runs = pathlib.Path(folder), []
    file = document(folder)
    times = measure({
        "ravo": [ravo, "xml", "set", file, "rows/title", "2"],
        "xmlstarlet": ["xmlstarlet", "ed", "-P", "-u", "/rows/title", "-v", "2", file],
        "cat": ["cat", file],
    }, folder)
    for place, what in enumerate(("processor time", "time")):
        medians = {name: statistics.median(taken[place] for taken in all_runs) for name, all_runs in times.items()}
        for name, median in medians.items():
            print(f"set a value, {what:14}  {name:10} {median:7.3f} s  {median / medians['ravo']:6.2f}x")
            runs += [{"run_name": f"set a value, {what}/{name}", "run_type": "iteration", "cpu_time": taken[place] * 1e9}
                     for taken in times[name]]
    pathlib.Path(report_file).write_text(json.dumps({"benchmarks": runs}), encoding="utf-8")
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
