#!/usr/bin/env python3
"""docs/performance.svg shows the ratios of docs/performance.md, every one of them."""

import pathlib
import re
import sys

from source_tree import main, read

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
from chart import PAGE, PICTURE, drawing, sections  # noqa: E402


def check(root):
    page = read(root / PAGE)
    findings = []
    rows = [line for line in page.splitlines() if re.search(r"[\d.]+x$", line) and not re.search(r"  ravo  .* 1\.00x$", line)]
    drawn = sum(len(rows) for _, rows in sections(page))
    if drawn != len(rows):
        findings.append(f"{PICTURE}: shows {drawn} of {len(rows)} ratios")
    if not (root / PICTURE).is_file() or read(root / PICTURE) != drawing(page):
        findings.append(f"{PICTURE}: is not of {PAGE}; scripts/chart.py --write draws it")
    return findings


_PAGE = "# P\n\n## b\n\n```text\njob      ours [ns] rival   rival [ns]  ratio\na_1          1.3 x::y          1.7    1.29x\nc d          2.0 z             1.0    0.50x\n```\n"

PLANTINGS = [
    ("a good tree", {PAGE: _PAGE, PICTURE: drawing(_PAGE)}, None),
    ("a picture of before", {PAGE: _PAGE, PICTURE: drawing(_PAGE.replace("1.29", "1.30"))}, "is not of"),
    ("a row that is not drawn", {PAGE: _PAGE + "e 1.00x\n", PICTURE: drawing(_PAGE)}, "shows 2 of 3"),
    ("no picture", {PAGE: _PAGE}, "is not of"),
]

if __name__ == "__main__":
    main(check, PLANTINGS)
