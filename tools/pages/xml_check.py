#!/usr/bin/env python3
"""Lists the classes of `ravo xml check` in docs/xml-check.md, from the rows of its messages."""

import pathlib
import re

from common import ROOT, command_line, has_block, outdated, table, with_block, write
from source_tree import Planting, read

PAGE = "docs/xml-check.md"
ROWS = "ravo/document/messages.inc"
ROW = re.compile(r'^RAVO_DOCUMENT_MESSAGE\(Finds\w+, "([^"]+)", ".*", "(.*)"\)$', re.MULTILINE)


def cell(text: str) -> str:
    return re.sub(r"{\d}", "...", text).replace('\\"', '"').replace("<", "&lt;").replace("|", "\\|")


def render(root: pathlib.Path) -> dict[str, str]:
    rows = [(f"`{code}`", cell(text)) for code, text in ROW.findall(read(root / ROWS))]
    return {PAGE: with_block(read(root / PAGE), table(("class", "finding"), rows))}


def check(root: pathlib.Path) -> list[str]:
    findings = [] if has_block(read(root / PAGE)) else [f"{PAGE}: needs exactly one block for make xml-check to write"]
    if not ROW.search(read(root / ROWS)):
        findings.append(f"{ROWS}: no row of a finding")
    return findings + outdated(root, render(root), "make xml-check")


_EMPTY = "# Check\n\n<!-- written by x; do not edit -->\n<!-- end of what is written -->\n"
_ROW = 'RAVO_DOCUMENT_MESSAGE(FindsMark, "mark", "<b> z \\"c\\"", "a <b> of \\"c\\"")\n'
_OTHER = 'RAVO_DOCUMENT_MESSAGE(BadName, "name", "název", "a name")\n'
_PAGE = with_block(_EMPTY, "| class | finding |\n|---|---|\n| `mark` | a &lt;b> of \"c\" |\n")

PLANTINGS: list[Planting] = [
    ("a good tree", {PAGE: _PAGE, ROWS: _OTHER + _ROW}, None),
    ("a page of before", {PAGE: _PAGE, ROWS: _ROW.replace("of", "from")}, "make xml-check writes it"),
    ("no finding", {PAGE: _PAGE, ROWS: _OTHER}, "no row of a finding"),
    ("no block", {PAGE: "# Check\n", ROWS: _ROW}, "needs exactly one block"),
]

if __name__ == "__main__":
    command_line(check, PLANTINGS)
    write(ROOT, render(ROOT))
