#!/usr/bin/env python3
"""docs/performance/*.svg show the tables of docs/performance.md, every row of them."""

import pathlib
import re
import sys

from source_tree import main, read

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
from chart import PAGE, PICTURES, pictures  # noqa: E402

# Rows of comparisons and of growth; the list of what was missed names them once more.
_ROWS = re.compile(r"^\| .* \|(?: ~?[\d.]+ (?:ns|µs|ms|s) \|){3}.*$|^\|(?:[^|]*\|){4} [\d.]+x \|[^|]*\|[^|]*\|$", re.MULTILINE)


def check(root):
    page = read(root / PAGE)
    findings = []
    drawn = pictures(page)
    rows, shown = len(_ROWS.findall(page)), sum(count for _, count in drawn.values())
    if shown != rows:
        findings.append(f"{PICTURES}: shows {shown} of {rows} rows of {PAGE}")
    for name, (picture, _) in drawn.items():
        path = root / PICTURES / name
        if not path.is_file() or read(path) != picture:
            findings.append(f"{PICTURES}/{name}: is not of {PAGE}; scripts/chart.py --write draws it")
    for path in sorted((root / PICTURES).glob("*.svg")):
        if path.name not in drawn:
            findings.append(f"{PICTURES}/{path.name}: {PAGE} has no such table")
    return findings


_HEAD = "# P\n\n## Targets\n\n| s | `j` | `r` | 0.50x | 1x |\n\n## B\n\n![as bars](performance/b.svg)\n\n| job | ours | rival | its | ratio | wanted | |\n|---|---|---|---|---|---|---|\n"
_ROW = "| `a_1` | 1.3 ns | `x::y` | ~1.7 µs | 1.29x | 1.2x | met |\n| `c d` | 24.7 | `z` | 1.0 | 0.50x |  |  |\n"
_GROWTH = "\n## Growth\n\n![cost](performance/g.svg)\n\n| job | 1 | 10 | 100 | to |\n|---|---|---|---|---|\n| XML, a byte | 1.3 ns | ~1.4 ns | 1.5 µs | 1.15 |\n"
_PAGE = _HEAD + _ROW + _GROWTH


def _pictures(page):
    return {f"{PICTURES}/{name}": picture for name, (picture, _) in pictures(page).items()}


PLANTINGS = [
    ("a good tree", {PAGE: _PAGE, **_pictures(_PAGE)}, None),
    ("a picture of before", {PAGE: _PAGE, **_pictures(_PAGE.replace("1.29", "1.30"))}, "b.svg: is not of"),
    ("growth of before", {PAGE: _PAGE, **_pictures(_PAGE.replace("1.5 µs", "1.6 ns"))}, "g.svg: is not of"),
    ("a target of before", {PAGE: _PAGE, **_pictures(_PAGE.replace("1.2x", "9.2x"))}, "b.svg: is not of"),
    ("a row that is not drawn", {PAGE: _PAGE.replace("## B", "## C\n\n" + _ROW + "\n## B"), **_pictures(_PAGE)}, "shows 3 of 5"),
    ("no picture", {PAGE: _PAGE}, "is not of"),
    ("a picture too many", {PAGE: _PAGE, **_pictures(_PAGE), f"{PICTURES}/old.svg": "x"}, "has no such table"),
]

if __name__ == "__main__":
    main(check, PLANTINGS)
