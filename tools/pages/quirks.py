#!/usr/bin/env python3
"""Lists the deliberate oddities in docs/quirks.md, from the comments `// Kept: <what a caller sees>. Test: Suite.Name`."""

import collections
import dataclasses
import pathlib
import re
from collections.abc import Iterator

from common import ROOT, command_line, has_block, indentation, outdated, table, with_block, write
from source_tree import Planting, code_files, read

PAGE = "docs/quirks.md"
BEGIN = re.compile(r"^.*?//\s*Kept:\s*(.*)$")
MORE = re.compile(r"^\s*//(?!/)\s*(.*)$")
TEST = re.compile(r"\bTEST(?:_F|_P)?\(\s*(\w+)\s*,\s*(\w+)\s*\)")
CONTROL = re.compile(r"\s*(?:if|for|while|switch|else|do|case|default)\b|\s*[}#]|.*[^:]:$")
FUNCTION = re.compile(r"([\w:~]+)\(")
VARIABLE = re.compile(r"(\w+)(?:\[\])? =")


@dataclasses.dataclass
class Oddity:
    file: str  # from the root
    line: int
    where: str  # function or constant; nothing if the comment speaks of the file
    what: str
    tests: list[str]


def kept_comments(lines: list[str]) -> Iterator[tuple[int, int, str]]:
    """(index, index past its last line, words) of every comment that begins with "Kept:"."""
    for index, line in enumerate(lines):
        if begin := BEGIN.match(line):
            words, end = [begin.group(1)], index + 1
            while end < len(lines) and not BEGIN.match(lines[end]) and (more := MORE.match(lines[end])):
                words.append(more.group(1))
                end += 1
            yield index, end, " ".join(" ".join(words).split())


def is_head(line: str) -> bool:
    return not CONTROL.match(line) and (indentation(line) == 0 or line.endswith("{"))


def name_in(line: str) -> str:
    found = FUNCTION.search(line) or VARIABLE.search(line)
    return found.group(1) if found else ""


def place_of(lines: list[str], index: int) -> str:
    """The function or constant before which, or in which, a comment ends at this index."""
    while index < len(lines) and re.match(r"\s*(?://|template\b)", lines[index]):
        index += 1
    if index == len(lines) or not lines[index].strip() or lines[index].startswith("RAVO_"):
        return ""
    level = indentation(lines[index])
    while index > 0 and not is_head(lines[index]):
        index = next((i for i in range(index - 1, 0, -1) if lines[i].strip() and indentation(lines[i]) < level), 0)
        level = indentation(lines[index])
    return name_in(lines[index])


def oddities(root: pathlib.Path) -> Iterator[Oddity]:
    for path in code_files(root, "ravo"):
        lines = read(path).splitlines()
        for index, end, words in kept_comments(lines):
            what, _, tests = words.partition(" Test: ")
            yield Oddity(path.relative_to(root).as_posix(), index + 1, place_of(lines, end), what, re.findall(r"[\w.]+", tests))


def room_of(oddity: Oddity) -> str:
    return oddity.file.split("/")[1]


def cell(what: str) -> str:
    return what[:1].upper() + what[1:].replace("<", "&lt;").replace("|", "\\|")


def row(oddity: Oddity) -> tuple[str, str, str]:
    names = [oddity.file.removeprefix(f"ravo/{room_of(oddity)}/"), oddity.where]
    return cell(oddity.what), ": ".join(f"`{name}`" for name in names if name), ", ".join(f"`{test}`" for test in oddity.tests)


def render(root: pathlib.Path) -> dict[str, str]:
    rooms: dict[str, list[tuple[str, str, str]]] = collections.defaultdict(list)
    for oddity in oddities(root):
        rooms[room_of(oddity)].append(row(oddity))
    text = "\n".join(f"## {room}\n\n{table(('what', 'where', 'test'), rows)}" for room, rows in sorted(rooms.items()))
    return {PAGE: with_block(read(root / PAGE), text)}


def check(root: pathlib.Path) -> list[str]:
    known = {f"{suite}.{name}" for path in code_files(root, "tests") for suite, name in TEST.findall(read(path))}
    findings = [] if has_block(read(root / PAGE)) else [f"{PAGE}: needs exactly one block for make quirks to write"]
    for oddity in oddities(root):
        at = f"{oddity.file}:{oddity.line}"
        if not re.search(r"\w.*\.$", oddity.what) or not oddity.tests:
            findings.append(f"{at}: not of the form 'Kept: <what a caller sees>. Test: Suite.Name'")
        findings += [f"{at}: there is no test {name}" for name in oddity.tests if name not in known]
    return findings + outdated(root, render(root), "make quirks")


_EMPTY = "# Oddities\n\n<!-- written by x; do not edit -->\n<!-- end of what is written -->\n"
_ROWS = ("## common\n\n| what | where | test |\n|---|---|---|\n| Odd &lt;b> thing. | `a.cpp`: `X::F` | `Odd.Thing` |\n"
         "| Other. | `a.cpp`: `kA` | `Odd.Thing`, `Odd.More` |\n")
_CODE = ("int X::F(int a,\n         int b) {\n  if (a) {\n    // Kept: odd <b> thing. Test:\n    // Odd.Thing\n    g(b);\n  }\n}\n"
         "// Kept: other. Test: Odd.Thing, Odd.More\nconstexpr int kA[] = {1};\n")
_TEST = "TEST(Odd, Thing) {}\nTEST_F(Odd, More) {}\n"


def _tree(page: str = with_block(_EMPTY, _ROWS), code: str = _CODE, test: str = _TEST) -> dict[str, str]:
    return {PAGE: page, "ravo/common/a.cpp": code, "tests/common/a_test.cpp": test}


PLANTINGS: list[Planting] = [
    ("a good tree", _tree(), None),
    ("no oddity", _tree(with_block(_EMPTY, ""), ""), None),
    ("a page of before", _tree(code=_CODE.replace("other", "another")), "make quirks writes it"),
    ("a comment that is not on the page", _tree(code=_CODE + "// Kept: more. Test: Odd.More\n"), "make quirks writes it"),
    ("a row without a comment", _tree(code=""), "make quirks writes it"),
    ("a comment without a test", _tree(code=_CODE + "// Kept: more.\n"), "a.cpp:11: not of the form"),
    ("a comment that says nothing", _tree(code=_CODE + "// Kept: Test: Odd.More\n"), "a.cpp:11: not of the form"),
    ("a test that is not there", _tree(test="TEST(Odd, Thing) {}\n"), "there is no test Odd.More"),
    ("no block", _tree("# Oddities\n"), "needs exactly one block"),
]

if __name__ == "__main__":
    command_line(check, PLANTINGS)
    write(ROOT, render(ROOT))
