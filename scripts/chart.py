#!/usr/bin/env python3
"""Draws the tables of docs/performance.md as docs/performance/*.svg: a bar to the right where ours is faster.

usage: chart.py --write

Lengths are logarithms, so that twice as fast and half as fast are as long as each other. Misses are drawn like wins.
"""

import html
import math
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
PAGE, PICTURES = "docs/performance.md", "docs/performance"
# A section that has a picture, and the two kinds of rows that are drawn.
SECTION = re.compile(r"^## .*?\n(?P<before>.*?)!\[[^\]]*\]\(performance/(?P<name>\w+\.svg)\)\n(?P<body>.*?)(?=^## |\Z)", re.DOTALL | re.MULTILINE)
RATIO = re.compile(r"^\| `(?P<job>[^`]*)` \|[^|]*\| `(?P<rival>[^`]*)` \|[^|]*\| (?P<ratio>[\d.]+)x \| (?:(?P<wanted>[\d.]+)x)? \|", re.MULTILINE)
GROWTH = re.compile(r"^\| (?P<job>[^`|]*) \|(?P<costs>(?: ~?[\d.]+ (?:ns|µs|ms|s) \|){3}) [\d.]+ \|$", re.MULTILINE)
LINE, MIDDLE, WIDTH, SPAN = 20, 470, 900, 340
TICKS = (0.1, 0.5, 1, 2, 10, 50)
GOOD, BAD, PLAIN = "#3a7d44", "#b3541e", "#4a6fa5"
NANOSECONDS = {"ns": 1, "µs": 1e3, "ms": 1e6, "s": 1e9}


def place(ratio):
    """Where a ratio stands; a factor of 100 is the end on either side."""
    return round(MIDDLE + SPAN * max(-1, min(1, math.log(max(ratio, 0.001), 100))))


def text(x, y, words, anchor="start"):
    return f'<text x="{x}" y="{y}" text-anchor="{anchor}">{html.escape(words)}</text>'


def ratio_bar(y, row):
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


def frame(height, lines):
    head = f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" font-family="sans-serif" font-size="12">'
    return "\n".join([head, f'<rect width="{WIDTH}" height="{height}" fill="#fff"/>', *lines, "</svg>", ""])


def ratio_picture(rows):
    height = 30 + LINE * len(rows)
    lines = []
    for tick in TICKS:
        lines += [f'<path d="M{place(tick)} 24V{height}" stroke="#ccc"/>', text(place(tick), 18, f"{tick}x", "middle")]
    for index, row in enumerate(rows):
        lines += ratio_bar(26 + LINE * index, row)
    return frame(height, lines)


def growth_picture(rows):
    """Three bars for each job: the cost of one item beside that of the smallest work, which is one unit long."""
    unit, lines, y = 150, [], 10
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


def pictures(page):
    """{name: (picture, rows in it)} of a page."""
    drawn = {}
    for section in SECTION.finditer(page):
        ratios, growths = list(RATIO.finditer(section["body"])), list(GROWTH.finditer(section["body"]))
        picture = ratio_picture(ratios) if ratios else growth_picture(growths)
        drawn[section["name"]] = picture, len(ratios) + len(growths)
    return drawn


def write():
    folder = ROOT / PICTURES
    folder.mkdir(exist_ok=True)
    drawn = pictures((ROOT / PAGE).read_text(encoding="utf-8"))
    for path in folder.glob("*.svg"):
        if path.name not in drawn:
            path.unlink()
    for name, (picture, _) in drawn.items():
        (folder / name).write_text(picture, encoding="utf-8")


if __name__ == "__main__":
    if sys.argv[1:] != ["--write"]:
        sys.exit(__doc__)
    write()
