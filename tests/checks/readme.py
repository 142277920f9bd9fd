#!/usr/bin/env python3
"""The C++ of README.md is examples/first_look.cpp, letter for letter, and short."""

import re

from source_tree import main, read

DOCUMENT, PROGRAM = "README.md", "examples/first_look.cpp"


def check(root):
    blocks = re.findall(r"^```cpp\n(.*?)^```$", read(root / DOCUMENT), re.DOTALL | re.MULTILINE)
    if len(blocks) != 1:
        return [f"{DOCUMENT}: wants one block of C++, has {len(blocks)}"]
    if blocks[0] != read(root / PROGRAM):
        return [f"{DOCUMENT}: its block of C++ differs from {PROGRAM}"]
    return [f"{PROGRAM}: {blocks[0].count(chr(10))} lines; aim at twenty"] if blocks[0].count("\n") > 25 else []


_CODE = "int main() {}\n"


def _tree(document, program=_CODE):
    return {DOCUMENT: document, PROGRAM: program}


PLANTINGS = [
    ("a good tree", _tree(f"# x\n\n```cpp\n{_CODE}```\n\n```sh\nmake run\n```\n"), None),
    ("a block that differs", _tree(f"```cpp\n{_CODE} ```\n```\n"), "differs"),
    ("no block", _tree("# x\n"), "has 0"),
    ("two blocks", _tree(f"```cpp\n{_CODE}```\n" * 2), "has 2"),
    ("a long one", _tree("```cpp\n" + _CODE * 26 + "```\n", _CODE * 26), "aim at twenty"),
]

if __name__ == "__main__":
    main(check, PLANTINGS)
