#!/usr/bin/env python3
"""Copies examples/first_look.cpp into the only block of C++ in README.md, and limits its length."""

import pathlib
import re

from common import ROOT, command_line, outdated, write
from source_tree import Planting, read

DOCUMENT, PROGRAM = "README.md", "examples/first_look.cpp"
CODE = re.compile(r"(?<=^```cpp\n)(.*?)(?=^```$)", re.DOTALL | re.MULTILINE)


def render(root: pathlib.Path) -> dict[str, str]:
    return {DOCUMENT: CODE.sub(lambda _: read(root / PROGRAM), read(root / DOCUMENT))}


def check(root: pathlib.Path) -> list[str]:
    blocks, lines = len(CODE.findall(read(root / DOCUMENT))), read(root / PROGRAM).count("\n")
    if blocks != 1:
        return [f"{DOCUMENT}: wants one block of C++, has {blocks}"]
    long = [f"{PROGRAM}: {lines} lines; aim at twenty"] if lines > 25 else []
    return outdated(root, render(root), "make guide") + long


_CODE = "int main() {}\n"


def _tree(document: str, program: str = _CODE) -> dict[str, str]:
    return {DOCUMENT: document, PROGRAM: program}


PLANTINGS: list[Planting] = [
    ("a good tree", _tree(f"# x\n\n```cpp\n{_CODE}```\n\n```sh\nmake run\n```\n"), None),
    ("a block that differs", _tree(f"```cpp\n{_CODE} ```\n```\n"), "is not what"),
    ("no block", _tree("# x\n"), "has 0"),
    ("two blocks", _tree(f"```cpp\n{_CODE}```\n" * 2), "has 2"),
    ("a long one", _tree("```cpp\n" + _CODE * 26 + "```\n", _CODE * 26), "aim at twenty"),
]

if __name__ == "__main__":
    command_line(check, PLANTINGS)
    write(ROOT, render(ROOT))
