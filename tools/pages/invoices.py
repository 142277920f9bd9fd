#!/usr/bin/env python3
"""Lists the rules of `ravo isdoc check` in docs/invoices.md and docs/invoices.cs.md, from the rows of the rules."""

import pathlib
import re

from common import ROOT, command_line, has_block, outdated, table, with_block, write
from source_tree import Planting, read

ROWS = "ravo/isdoc/rules.inc"
ROW = re.compile(r'^RAVO_RULE\((\d+), \w+, "([^"]+)", "([^"]+)", "([^"]+)"\)$', re.MULTILINE)
# Rules before this one are those of the structure, which the pages describe by hand.
FIRST = 200
# The pages, with the heads of their tables and the place of their sentence in a row.
PAGES = {
    "docs/invoices.md": (("code", "finding"), 3),
    "docs/invoices.cs.md": (("kód", "nález"), 2),
}


def cell(text: str) -> str:
    return text.replace("<", "&lt;").replace("|", "\\|")


def render(root: pathlib.Path) -> dict[str, str]:
    rows = sorted((row for row in ROW.findall(read(root / ROWS)) if int(row[0]) >= FIRST), key=lambda row: int(row[0]))
    return {page: with_block(read(root / page), table(head, [(f"`{row[1]}`", cell(row[sentence])) for row in rows]))
            for page, (head, sentence) in PAGES.items()}


def check(root: pathlib.Path) -> list[str]:
    findings = [f"{page}: needs exactly one block for make invoices to write" for page in PAGES if not has_block(read(root / page))]
    rows = read(root / ROWS)
    if len(ROW.findall(rows)) != rows.count("\nRAVO_RULE(") + rows.startswith("RAVO_RULE("):
        findings.append(f"{ROWS}: a row that is not on one line")
    return findings + outdated(root, render(root), "make invoices")


_EMPTY = "# Invoices\n\n<!-- written by x; do not edit -->\n<!-- end of what is written -->\n"
_ROW = 'RAVO_RULE(201, Mark, "rule.mark", "značka <b>", "a mark <b>")\n'
_PAGE = with_block(_EMPTY, "| code | finding |\n|---|---|\n| `rule.mark` | a mark &lt;b> |\n")
_CZECH = with_block(_EMPTY, "| kód | nález |\n|---|---|\n| `rule.mark` | značka &lt;b> |\n")


def _tree(rows: str, page: str = _PAGE) -> dict[str, str]:
    return {"docs/invoices.md": page, "docs/invoices.cs.md": _CZECH, ROWS: rows}


PLANTINGS: list[Planting] = [
    ("good trees", _tree('RAVO_RULE(101, Part, "structure.part", "část", "a part")\n' + _ROW), None),
    ("a page of before", _tree(_ROW.replace("a mark", "another mark")), "make invoices writes it"),
    ("a row of two lines", _tree(_ROW + 'RAVO_RULE(202, Two, "rule.two",\n"a", "b")\n'), "not on one line"),
    ("no block", _tree(_ROW, "# Invoices\n"), "needs exactly one block"),
]

if __name__ == "__main__":
    command_line(check, PLANTINGS)
    write(ROOT, render(ROOT))
