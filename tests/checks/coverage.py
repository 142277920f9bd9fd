#!/usr/bin/env python3
"""Every explanation of docs/coverage.md speaks of a line that its file still has."""

import pathlib
import re
import sys

from source_tree import main, read

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
from coverage_report import PAGE, explanations  # noqa: E402


def check(root):
    page = read(root / PAGE)
    explained = explanations(page)
    findings = [f"{PAGE}: no line of {name} has '{piece}'" for name, piece in explained
                if not (root / name).is_file() or piece not in read(root / name)]
    rows = len(re.findall(r"^\| `ravo/.*\.(?:h|cpp|inc)` \|", page, re.MULTILINE))
    if rows != len(explained):
        findings.append(f"{PAGE}: {rows - len(explained)} rows are not of the form | `file` | `line` | why |")
    return findings


def _tree(row):
    return {PAGE: f"| `ravo/xml` | 1 of 2 |\n\n| file | line | why |\n|---|---|---|\n{row}\n", "ravo/a.cpp": "if (a || b) return;\n"}


PLANTINGS = [
    ("a good tree", _tree("| `ravo/a.cpp` | `(a \\|\\| b)` | because |"), None),
    ("a line that is gone", _tree("| `ravo/a.cpp` | `while` | because |"), "no line of ravo/a.cpp has 'while'"),
    ("a file that is gone", _tree("| `ravo/b.cpp` | `if` | because |"), "no line of ravo/b.cpp"),
    ("a row without a reason", _tree("| `ravo/a.cpp` | `if` |"), "not of the form"),
]

if __name__ == "__main__":
    main(check, PLANTINGS)
