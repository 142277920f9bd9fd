"""Shared by the generators of pages: blocks between markers, tables, indentation, files, and one command line.

usage of every page: PAGE.py --check [TREE]       fails if the page differs from its sources
                     PAGE.py --self-test          fails if a planted defect is not found
                     PAGE.py [INPUT...] --write   writes the page
"""

import argparse
import pathlib
import re
import sys
from collections.abc import Iterable

ROOT = pathlib.Path(__file__).resolve().parents[2]
# Pages read the tree as the checks of the source tree do; no check reads a page's module.
sys.path.insert(0, str(ROOT / "tests/checks"))
from source_tree import Check, Planting, failures_of, finish, read  # noqa: E402

BLOCK = re.compile(r"(?<=; do not edit -->\n).*?(?=<!-- end of what is written -->)", re.DOTALL)


def has_block(page: str) -> bool:
    return len(BLOCK.findall(page)) == 1


def with_block(page: str, text: str) -> str:
    """The page with this text between its markers."""
    return BLOCK.sub(lambda _: f"\n{text}\n", page)


def indentation(line: str) -> int:
    return len(line) - len(line.lstrip())


def table(head: Iterable[str], rows: Iterable[Iterable[object]]) -> str:
    cells = [list(head), *(list(map(str, row)) for row in rows)]
    lines = ["| " + " | ".join(row) + " |" for row in cells]
    return "\n".join([lines[0], "|" + "---|" * len(cells[0]), *lines[1:], ""])


def outdated(root: pathlib.Path, files: dict[str, str], command: str) -> list[str]:
    return [f"{name}: is not what its sources say; {command} writes it" for name, text in files.items()
            if not (root / name).is_file() or read(root / name) != text]


def write(root: pathlib.Path, files: dict[str, str]) -> None:
    for name, text in files.items():
        (root / name).parent.mkdir(exist_ok=True)
        (root / name).write_text(text, encoding="utf-8")


def command_line(check: Check, plantings: list[Planting], planted: Check | None = None) -> argparse.Namespace:
    """Runs the check or the self-test and exits if the command line asks for it; otherwise returns its `inputs` and `write`.

    `planted` finds the planted defects if the check alone does not.
    """
    parser = argparse.ArgumentParser()
    parser.add_argument("inputs", nargs="*")
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--self-test", action="store_true")
    parser.add_argument("--write", action="store_true")
    arguments = parser.parse_args()
    if arguments.self_test:
        finish(failures_of(planted or check, plantings))
    if arguments.check:
        finish(check(pathlib.Path(*arguments.inputs or [ROOT]).resolve()))
    return arguments
