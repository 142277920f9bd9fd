#!/usr/bin/env python3
"""Every string function: its declaration, its place in docs/string-families.md and a test that calls it agree."""

import re

from source_tree import code_files, main, read, without_comments

DOCUMENT = "docs/string-families.md"
HEADERS = ("ravo/utils/strings", "ravo/unicode/characters")
TESTS = ("tests/utils", "tests/unicode")
DECLARATION = re.compile(r"\bRAVO_API\s+[\w:]+\s+(\w+)\s*\(")


def declared(root):
    names = {}
    for path in code_files(root, *HEADERS):
        if path.suffix == ".h":
            for name in DECLARATION.findall(without_comments(read(path))):
                names.setdefault(name, path.relative_to(root).as_posix())
    names.pop("Text", None)  # a member of a class
    return names


def listed(root):
    cells = [line.split("|")[1] for line in read(root / DOCUMENT).splitlines() if line.startswith("|")]
    return {name for cell in cells for name in re.findall(r"`(\w+)`", cell)}


def tested(root):
    return {name for path in code_files(root, *TESTS) for name in re.findall(r"\b\w+\b", without_comments(read(path)))}


def check(root):
    names, rows, words = declared(root), listed(root), tested(root)
    return [
        *[f"{place}: {name} has no row in {DOCUMENT}" for name, place in sorted(names.items()) if name not in rows],
        *[f"{place}: {name} is in no test" for name, place in sorted(names.items()) if name not in words],
        *[f"{DOCUMENT}: there is no function {name}" for name in sorted(rows - names.keys())],
    ]


def _tree(header="RAVO_API bool StrX(char c) noexcept;\n", row="| `StrX` | x |\n", test="StrX('c');\n"):
    return {"ravo/utils/strings/x.h": header, "ravo/unicode/characters/y.h": "", DOCUMENT: row,
            "tests/utils/x_test.cpp": test, "tests/unicode/y_test.cpp": ""}


PLANTINGS = [
    ("a good tree", _tree(), None),
    ("a declaration over two lines", _tree(header="RAVO_API std::size_t\nStrX(char c);\n"), None),
    ("no row", _tree(row="| `StrY` | `StrX` |\n"), "StrX has no row"),
    ("no function", _tree(row="| `StrX` `StrY` | x |\n"), "there is no function StrY"),
    ("no test", _tree(test="// StrX\nStrXY();\n"), "StrX is in no test"),
]

if __name__ == "__main__":
    main(check, PLANTINGS)
