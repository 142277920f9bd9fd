#!/usr/bin/env python3
"""Times `ravo xml set` against xmlstarlet on an XML document of 100 MB in UTF-8, of which one value is set, and
against cat, which only copies the file. xmlstarlet writes the document anew from a tree; ravo keeps every other byte.

usage: xml_set.py RAVO FOLDER REPORT      (FOLDER keeps the file between runs)

The programs run in turn, several times, each into a file. Prints the medians of processor and wall time, and their
ratios. REPORT has every run, in the format of the other benchmarks.
"""

import pathlib
import sys

from whole_program import measure, report

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
    folder = pathlib.Path(folder)
    file = document(folder)
    report(measure("set a value", {
        "ravo": [ravo, "xml", "set", file, "rows/title", "2"],
        "xmlstarlet": ["xmlstarlet", "ed", "-P", "-u", "/rows/title", "-v", "2", file],
        "cat": ["cat", file],
    }, folder), report_file)
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
