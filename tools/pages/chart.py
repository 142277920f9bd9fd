#!/usr/bin/env python3
"""Draws the tables of docs/performance.md as docs/performance/*.svg: a bar points right if ours is faster.

Lengths are logarithmic, so twice as fast and half as fast have equal bars. Misses are drawn like wins.
"""

import html
import math
import pathlib
import re

from common import ROOT, command_line, outdated, write
from source_tree import Planting, read

PAGE, PICTURES = "docs/performance.md", "docs/performance"
# A section with a chart, and the two kinds of rows that are drawn.
SECTION = re.compile(r"^## .*?\n(?P<before>.*?)!\[[^\]]*\]\(performance/(?P<name>\w+\.svg)\)\n(?P<body>.*?)(?=^## |\Z)", re.DOTALL | re.MULTILINE)
RATIO = re.compile(r"^\| `(?P<job>[^`]*)` \|[^|]*\| `(?P<rival>[^`]*)` \|[^|]*\| (?P<ratio>[\d.]+)x \| (?:(?P<wanted>[\d.]+)x)? \|", re.MULTILINE)
GROWTH = re.compile(r"^\| (?P<job>[^`|]*) \|(?P<costs>(?: ~?[\d.]+ (?:ns|µs|ms|s) \|){3}) [\d.]+ \|$", re.MULTILINE)
# Every row of comparisons and of growth, excluding the list of missed targets.
ROWS = re.compile(r"^\| .* \|(?: ~?[\d.]+ (?:ns|µs|ms|s) \|){3}.*$|^\|(?:[^|]*\|){4} [\d.]+x \|[^|]*\|[^|]*\|$", re.MULTILINE)
LINE, MIDDLE, WIDTH, SPAN = 20, 470, 900, 340
TICKS = (0.1, 0.5, 1, 2, 10, 50)
GOOD, BAD, PLAIN = "#3a7d44", "#b3541e", "#4a6fa5"
NANOSECONDS = {"ns": 1, "µs": 1e3, "ms": 1e6, "s": 1e9}


def place(ratio: float) -> int:
    """The x position of a ratio; a factor of 100 is the end on either side."""
    return round(MIDDLE + SPAN * max(-1, min(1, math.log(max(ratio, 0.001), 100))))


def text(x: int, y: int, words: str, anchor: str = "start") -> str:
    return f'<text x="{x}" y="{y}" text-anchor="{anchor}">{html.escape(words)}</text>'


def ratio_bar(y: int, row: re.Match[str]) -> list[str]:
    ratio = float(row["ratio"])
    end, begin = max(place(ratio), MIDDLE), min(place(ratio), MIDDLE)
    lines = [text(10, y + 13, f"{row['job']} / {row['rival']}"),
             f'<rect x="{begin}" y="{y + 3}" width="{max(end - begin, 1)}" height="12" fill="{GOOD if ratio >= 1 else BAD}"/>']
    label = (end + 6, "start") if ratio >= 1 else (begin - 6, "end")
    if row["wanted"]:
        target = place(float(row["wanted"]))
        lines.append(f'<path d="M{target} {y + 1}v16" stroke="#000" stroke-width="2"/>')
        if ratio >= 1:
            label = (max(label[0], target + 6), "start")
    return [*lines, text(label[0], y + 13, f"{ratio:.2f}x", label[1])]


def frame(height: int, lines: list[str]) -> str:
    head = f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" font-family="sans-serif" font-size="12">'
    return "\n".join([head, f'<rect width="{WIDTH}" height="{height}" fill="#fff"/>', *lines, "</svg>", ""])


def ratio_picture(rows: list[re.Match[str]]) -> str:
    height = 30 + LINE * len(rows)
    lines: list[str] = []
    for tick in TICKS:
        lines += [f'<path d="M{place(tick)} 24V{height}" stroke="#ccc"/>', text(place(tick), 18, f"{tick}x", "middle")]
    for index, row in enumerate(rows):
        lines += ratio_bar(26 + LINE * index, row)
    return frame(height, lines)


def growth_picture(rows: list[re.Match[str]]) -> str:
    """Three bars per job: the cost of one item relative to the smallest work, which is one unit long."""
    lines: list[str] = []
    unit, y = 150, 10
    for row in rows:
        costs = [cell.strip() for cell in row["costs"].strip("| ").split("|")]
        sizes = [float(number.lstrip("~")) * NANOSECONDS[name] for number, name in map(str.split, costs)]
        lines.append(text(10, y + 28, row["job"]))
        for times, cost, size in zip(("1", "10", "100"), costs, sizes):
            length = min(round(unit * size / sizes[0]), WIDTH - 460)
            lines += [text(340, y + 12, f"{times} times", "end"), f'<rect x="350" y="{y + 3}" width="{length}" height="11" fill="{PLAIN}"/>',
                      text(356 + length, y + 12, cost)]
            y += 16
        y += 8
    return frame(y, lines)


def pictures(page: str) -> dict[str, tuple[str, int]]:
    """{name: (picture, rows in it)} of a page."""
    drawn = {}
    for section in SECTION.finditer(page):
        ratios, growths = list(RATIO.finditer(section["body"])), list(GROWTH.finditer(section["body"]))
        picture = ratio_picture(ratios) if ratios else growth_picture(growths)
        drawn[f"{PICTURES}/{section['name']}"] = picture, len(ratios) + len(growths)
    return drawn


def render(root: pathlib.Path) -> dict[str, str]:
    return {name: picture for name, (picture, _) in pictures(read(root / PAGE)).items()}


def left_over(root: pathlib.Path) -> list[pathlib.Path]:
    """Pictures of tables that the page no longer has."""
    drawn = render(root)
    return [path for path in sorted((root / PICTURES).glob("*.svg")) if path.relative_to(root).as_posix() not in drawn]


def check(root: pathlib.Path) -> list[str]:
    page = read(root / PAGE)
    rows, shown = len(ROWS.findall(page)), sum(count for _, count in pictures(page).values())
    findings = [] if shown == rows else [f"{PICTURES}: shows {shown} of {rows} rows of {PAGE}"]
    findings += outdated(root, render(root), "make pictures")
    return findings + [f"{PICTURES}/{path.name}: {PAGE} has no such table" for path in left_over(root)]


_HEAD = "# P\n\n## Targets\n\n| s | `j` | `r` | 0.50x | 1x |\n\n## B\n\n![as bars](performance/b.svg)\n\n| job | ours | rival | its | ratio | wanted | |\n|---|---|---|---|---|---|---|\n"
_ROW = "| `a_1` | 1.3 ns | `x::y` | ~1.7 µs | 1.29x | 1.2x | met |\n| `c d` | 24.7 | `z` | 1.0 | 0.50x |  |  |\n"
_GROWTH = "\n## Growth\n\n![cost](performance/g.svg)\n\n| job | 1 | 10 | 100 | to |\n|---|---|---|---|---|\n| XML, a byte | 1.3 ns | ~1.4 ns | 1.5 µs | 1.15 |\n"
_PAGE = _HEAD + _ROW + _GROWTH


def _tree(page: str, drawn: str) -> dict[str, str]:
    return {PAGE: page, **{name: picture for name, (picture, _) in pictures(drawn).items()}}


PLANTINGS: list[Planting] = [
    ("a good tree", _tree(_PAGE, _PAGE), None),
    ("a picture of before", _tree(_PAGE, _PAGE.replace("1.29", "1.30")), "b.svg: is not what"),
    ("growth of before", _tree(_PAGE, _PAGE.replace("1.5 µs", "1.6 ns")), "g.svg: is not what"),
    ("a target of before", _tree(_PAGE, _PAGE.replace("1.2x", "9.2x")), "b.svg: is not what"),
    ("a row that is not drawn", _tree(_PAGE.replace("## B", "## C\n\n" + _ROW + "\n## B"), _PAGE), "shows 3 of 5"),
    ("no picture", {PAGE: _PAGE}, "is not what"),
    ("a picture too many", {**_tree(_PAGE, _PAGE), f"{PICTURES}/old.svg": "x"}, "has no such table"),
]

if __name__ == "__main__":
    command_line(check, PLANTINGS)
    for path in left_over(ROOT):
        path.unlink()
    write(ROOT, render(ROOT))
