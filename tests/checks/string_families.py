#!/usr/bin/env python3
"""Every string function: its declaration, its place in docs/strings.md and a test that calls it agree. Every example
of that page is in a test, with the same result."""

import re

from source_tree import code_files, main, read, without_comments

DOCUMENT = "docs/strings.md"
HEADERS = ("ravo/utils/strings", "ravo/unicode/characters")
TESTS = ("tests/utils", "tests/unicode")
EXAMPLES = "tests/utils/string_examples_test.cpp"
DECLARATION = re.compile(r"\bRAVO_(?:INLINE_)?API\s+[\w:]+\s+(\w+)\s*\(")


def declared(root):
    names: dict[str, str] = {}
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
    paths = [path for path in code_files(root, *TESTS) if path != root / EXAMPLES]
    return {name for path in paths for name in re.findall(r"\b\w+\b", without_comments(read(path)))}


# The form of an example, and of its test; blanks are ignored.
FORMS = [
    (r'`(.+?)` changes `("[^`]*")` to `(.+)`', r'EXPECT_EQ(After({1}, [](std::string& text) {{ {0}; }}), "{2}");'),
    (r"`(.+?)` is negative", "EXPECT_LT({0}, 0);"),
    (r"`(.+?)` is (-?\d+)", "EXPECT_EQ({0}, {1});"),
    (r"`(.+?)` is `(.+)`", 'EXPECT_EQ({0}, "{1}");'),
    (r"`([^`]+)`", "EXPECT_TRUE({0});"),
]


def packed(code):
    """Code without blanks and without the marks of literal types: u"", '' and 2u."""
    code = re.sub(r"\bu(?=[\"'])", "", re.sub(r"(?<=\d)u\b", "", code)).replace("'", '"')
    return re.sub(r"\s+", "", code)


def stated(example):
    for form, test in FORMS:
        found = re.fullmatch(form, example)
        if found:
            return packed(test.format(*found.groups()))
    return None


def examples(root):
    for line in read(root / DOCUMENT).splitlines():
        cells = [cell.strip() for cell in line.split("|")[1:-1]]
        if len(cells) > 2 and cells[0].startswith("`"):
            yield cells[-1]


def wrong_examples(root):
    tests = packed(read(root / EXAMPLES))
    return [f"{DOCUMENT}: {EXAMPLES} does not have the example {example}" for example in examples(root)
            if stated(example) is None or stated(example) not in tests]


def check(root):
    names, rows, words = declared(root), listed(root), tested(root)
    return [
        *wrong_examples(root),
        *[f"{place}: {name} has no row in {DOCUMENT}" for name, place in sorted(names.items()) if name not in rows],
        *[f"{place}: {name} is in no test" for name, place in sorted(names.items()) if name not in words],
        *[f"{DOCUMENT}: there is no function {name}" for name in sorted(rows - names.keys())],
    ]


def _tree(header="RAVO_API bool StrX(char c) noexcept;\n", row="| `StrX` | x | `StrX(1)` |\n", test="StrX('c');\n",
          example="EXPECT_TRUE(StrX(1));"):
    return {EXAMPLES: example, "ravo/utils/strings/x.h": header, "ravo/unicode/characters/y.h": "", DOCUMENT: row,
            "tests/utils/x_test.cpp": test, "tests/unicode/y_test.cpp": ""}


PLANTINGS = [
    ("a good tree", _tree(), None),
    ("an inline declaration", _tree(header="RAVO_INLINE_API bool StrX(char c) noexcept;\n"), None),
    ("a declaration over two lines", _tree(header="RAVO_API std::size_t\nStrX(char c);\n"), None),
    ("no row", _tree(row="| `StrY` | x | `StrX(1)` |\n"), "StrX has no row"),
    ("no function", _tree(row="| `StrX` `StrY` | x | `StrX(1)` |\n"), "there is no function StrY"),
    ("no test", _tree(test="// StrX\nStrXY();\n", example="EXPECT_TRUE (StrX (1));"), "StrX is in no test"),
    ("an example with its result", _tree(row="| `StrX` | x | `StrX(u'a')` is `b` |\n",
                                         example="EXPECT_EQ(StrX(u'a'), u\"b\");"), None),
    ("another result", _tree(row="| `StrX` | x | `StrX(1)` is 2 |\n", example="EXPECT_EQ(StrX(1), 3);"), "the example"),
    ("no example", _tree(row="| `StrX` | x | |\n"), "the example"),
]

if __name__ == "__main__":
    main(check, PLANTINGS)
