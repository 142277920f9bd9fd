#!/usr/bin/env python3
"""Draws the ratios of docs/performance.md as docs/performance.svg: a bar to the right where ours is faster.

usage: chart.py --write

Lengths are logarithms, so that twice as fast and half as fast are as long as each other. Misses are drawn like wins.
"""

import html
import math
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
PAGE, PICTURE = "docs/performance.md", "docs/performance.svg"
ROW = re.compile(r"^(?P<job>\S.*?)  +(?:[\d.]+ +)?(?P<rival>\S.*?) +[\d.]+(?: s)? +(?P<ratio>[\d.]+)x$")
LINE, MIDDLE, WIDTH, SPAN = 20, 470, 900, 340
TICKS = (0.1, 0.5, 1, 2, 10, 50)


def sections(page):
    """[(title, [(job, rival, ratio)])] of the page's tables; what is compared with itself is left out."""
    for title, body in re.findall(r"^## (.*?)\n(.*?)(?=^## |\Z)", page, re.DOTALL | re.MULTILINE):
        rows = [(m["job"], m["rival"], float(m["ratio"])) for m in map(ROW.match, body.splitlines()) if m]
        rows = [row for row in rows if row[1] != "ravo" and row[2] > 0]
        if rows:
            yield title.replace("`", ""), rows


def place(ratio):
    """Where a ratio stands; a factor of 100 is the end on either side."""
    return round(MIDDLE + SPAN * max(-1, min(1, math.log(ratio, 100))))


def bar(y, job, rival, ratio):
    end, begin = max(place(ratio), MIDDLE), min(place(ratio), MIDDLE)
    colour = "#3a7d44" if ratio >= 1 else "#b3541e"
    label, anchor = (end + 6, "start") if ratio >= 1 else (begin - 6, "end")
    names = html.escape(f"{job} / {rival}")
    return [f'<text x="10" y="{y + 13}">{names}</text>',
            f'<rect x="{begin}" y="{y + 3}" width="{max(end - begin, 1)}" height="12" fill="{colour}"/>',
            f'<text x="{label}" y="{y + 13}" text-anchor="{anchor}">{ratio:.2f}x</text>']


def drawing(page):
    lines, y = [], 30
    for title, rows in sections(page):
        lines.append(f'<text x="10" y="{y + 16}" font-weight="bold">{html.escape(title)}</text>')
        y += LINE + 4
        for row in rows:
            lines += bar(y, *row)
            y += LINE
        y += 8
    ticks = [f'<path d="M{place(tick)} 24V{y}" stroke="#ccc"/><text x="{place(tick)}" y="18" text-anchor="middle">{tick}x</text>' for tick in TICKS]
    head = f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {y}" font-family="sans-serif" font-size="12">'
    return "\n".join([head, f'<rect width="{WIDTH}" height="{y}" fill="#fff"/>', *ticks, *lines, "</svg>", ""])


if __name__ == "__main__":
    if sys.argv[1:] != ["--write"]:
        sys.exit(__doc__)
    (ROOT / PICTURE).write_text(drawing((ROOT / PAGE).read_text(encoding="utf-8")), encoding="utf-8")
