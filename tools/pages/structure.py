#!/usr/bin/env python3
"""Draws which room uses which, from the #include lines, as docs/structure.svg.

An arrow that follows from others is left out: frame uses runtime by way of platform.
"""

import pathlib
from collections.abc import Iterator

from common import ROOT, command_line, outdated, write
from layering import EXPORT_HEADER, HOST_HEADER, PUBLIC, UTILS_MESSAGES, Graph, include_graph, room_of
from source_tree import Planting

PICTURE = "docs/structure.svg"
# The host's header belongs to the frame; the export macros and the rows of messages count as no room.
SAME = {HOST_HEADER: "ravo/frame", EXPORT_HEADER: None, UTILS_MESSAGES: None}
# Room -> the rooms that it uses; a room, or a bend of an arrow: its ends and the level that it passes.
Uses = dict[str, set[str]]
Node = str | tuple[str, str, int]
Chain = list[Node]
Places = dict[Node, tuple[int, int]]
NAMES = {PUBLIC: "public headers"}
WIDTH, HEIGHT, GAP, RISE, BEND = 132, 34, 22, 66, 6


def arrows(graph: Graph) -> Uses:
    """Room -> the rooms that its files include."""

    def room(name: str) -> str | None:
        return SAME.get(found, found) if (found := room_of(name)) else None

    uses: Uses = {}
    for source, edges in graph.items():
        if here := room(source):
            uses.setdefault(here, set()).update(there for _, target in edges if (there := room(target)) and there != here)
    return uses


def reach(uses: Uses, room: str) -> set[str]:
    return set().union(*({target} | reach(uses, target) for target in uses.get(room, ())))


def reduced(uses: Uses) -> Uses:
    """The arrows without those that follow from others."""
    return {room: {t for t in targets if not any(t in reach(uses, other) for other in targets - {t})} for room, targets in uses.items()}


def levels(uses: Uses) -> dict[str, int]:
    level: dict[str, int] = {}

    def of(room: str) -> int:
        if room not in level:
            level[room] = 1 + max((of(target) for target in uses.get(room, ())), default=-1)
        return level[room]

    for room in sorted(uses):
        of(room)
    return level


def chains(uses: Uses) -> Iterator[Chain]:
    """Every arrow with the bends at which it passes the levels between its ends: [(room, bend ..., target)]."""
    level = levels(uses)
    for room in sorted(uses):
        for target in sorted(uses[room], key=lambda t: (level[t], t)):
            yield [room, *((room, target, n) for n in range(level[room] - 1, level[target], -1)), target]


def rows_of(uses: Uses) -> list[Chain]:
    """Rooms and bends by level, from the lowest; each is placed over the middle of its targets."""
    level = levels(uses)
    below: dict[Node, list[Node]] = {}
    rows: list[Chain] = [[] for _ in range(max(level.values()) + 1)]
    for chain in chains(uses):
        for upper, lower in zip(chain, chain[1:]):
            below.setdefault(upper, []).append(lower)
    for node in {*level, *below}:
        rows[level[node] if isinstance(node, str) else node[2]].append(node)
    order: dict[Node, float] = {}
    for row in rows:
        wish = {node: sum(order[b] for b in below[node]) / len(below[node]) if node in below else 0.5 for node in row}
        row.sort(key=lambda node: (wish[node], str(node)))
        order.update({node: (index + 0.5) / len(row) for index, node in enumerate(row)})
    return rows


def places(uses: Uses) -> tuple[Places, int, int]:
    """Room or bend -> (x, y); width; height."""
    rows = rows_of(uses)
    at: Places = {}
    wide = [sum((WIDTH if isinstance(node, str) else BEND) + GAP for node in row) for row in rows]
    for n, row in enumerate(rows):
        x = (max(wide) - wide[n]) // 2
        for node in row:
            step = (WIDTH if isinstance(node, str) else BEND) + GAP
            at[node] = (x + step // 2, (len(rows) - 1 - n) * RISE + HEIGHT)
            x += step
    return at, max(wide), (len(rows) - 1) * RISE + 2 * HEIGHT


def line(chain: Chain, at: Places) -> str:
    half = HEIGHT // 2
    points = [(x, y + half) for x, y in [at[chain[0]]]] + [at[bend] for bend in chain[1:-1]] + [(x, y - half) for x, y in [at[chain[-1]]]]
    path = "M{} {}".format(*points[0])
    for (x, y), (to_x, to_y) in zip(points, points[1:]):
        middle = (y + to_y) // 2
        path += f"C{x} {middle} {to_x} {middle} {to_x} {to_y}"
    return f'<path d="{path}" fill="none" stroke="#789" marker-end="url(#end)"/>'


def drawing(graph: Graph) -> str:
    uses = reduced(arrows(graph))
    if not uses:
        return ""
    at, width, height = places(uses)
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" font-family="sans-serif" font-size="13">',
             '<defs><marker id="end" viewBox="0 0 8 8" refX="7" refY="4" markerWidth="7" markerHeight="7" orient="auto">'
             '<path d="M0 0 8 4 0 8z" fill="#789"/></marker></defs>',
             f'<rect width="{width}" height="{height}" fill="#fff"/>']
    lines += [line(chain, at) for chain in chains(uses)]
    for room in sorted(levels(uses)):
        x, y = at[room]
        lines.append(f'<rect x="{x - WIDTH // 2}" y="{y - HEIGHT // 2}" width="{WIDTH}" height="{HEIGHT}" rx="6" fill="#eef3f8" stroke="#456"/>')
        lines.append(f'<text x="{x}" y="{y + 5}" text-anchor="middle">{NAMES.get(room, room.removeprefix("ravo/"))}</text>')
    return "\n".join([*lines, "</svg>", ""])


def render(root: pathlib.Path) -> dict[str, str]:
    return {PICTURE: drawing(include_graph(root))}


def check(root: pathlib.Path) -> list[str]:
    if reduced({"a": {"b", "c"}, "b": {"c"}, "c": set()}) != {"a": {"b"}, "b": {"c"}, "c": set()}:
        return ["an arrow that follows from others is drawn"]
    return outdated(root, render(root), "make pictures")


_FILES = {"ravo/runtime/a.h": "", "ravo/xml/b.h": "#include <ravo/runtime/a.h>\n"}
_DRAWN = {PICTURE: drawing({"ravo/runtime/a.h": [], "ravo/xml/b.h": [(1, "ravo/runtime/a.h")]})}
PLANTINGS: list[Planting] = [
    ("a good tree", {**_FILES, **_DRAWN}, None),
    ("a picture of before", {**_FILES, **_DRAWN, "ravo/frame/c.h": "#include <ravo/xml/b.h>\n"}, "is not what"),
    ("no picture", _FILES, "is not what"),
]

if __name__ == "__main__":
    command_line(check, PLANTINGS)
    write(ROOT, render(ROOT))
