#!/usr/bin/env python3
"""Every deliberate oddity: its comment in ravo/, its row in docs/quirks.md and its test agree."""

import re

from page import command_line
from source_tree import code_files, read

DOCUMENT = "docs/quirks.md"
BEGIN = re.compile(r"^.*?//\s*Kept:\s*(.*)$")
MORE = re.compile(r"^\s*//(?!/)\s*(.*)$")
SOURCES = {".h", ".cpp", ".c", ".inc", ".rc", ".idl", ".in"}


def kept_comments(text):
    """(line number, words) of every comment that begins with "Kept:", following comment lines joined."""
    lines = text.splitlines()
    for index, line in enumerate(lines):
        if not (begin := BEGIN.match(line)):
            continue
        words = [begin.group(1)]
        for following in lines[index + 1 :]:
            if BEGIN.match(following) or not (more := MORE.match(following)):
                break
            words.append(more.group(1))
        yield index + 1, " ".join(" ".join(words).split())


def comments_of(root):
    """((file, what) -> line, findings about comments that are not of the agreed form)."""
    comments, findings = {}, []
    for path in sorted(p for p in (root / "ravo").rglob("*") if p.suffix in SOURCES and p.is_file()):
        name = path.relative_to(root).as_posix()
        for line, words in kept_comments(read(path)):
            what, comma, why = words.partition(", because ")
            if comma and what and why:
                comments[name, what] = line
            else:
                findings.append(f"{name}:{line}: not of the form 'Kept: <what>, because <why>': {words}")
    return comments, findings


def plain(cell):
    """A table cell without code marks and link marks."""
    return re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", cell).replace("`", "").strip()


def rows_of(root):
    """(line number, cells) of every row below the head of the document's table."""
    table = False
    for number, line in enumerate(read(root / DOCUMENT).splitlines(), 1):
        if re.match(r"^\|[\s:|-]+\|$", line):
            table = True
        elif table and line.startswith("|"):
            yield number, [plain(cell) for cell in line.strip().strip("|").split("|")]


def tests_of(root):
    found = set()
    for path in code_files(root, "tests"):
        found |= {f"{suite}.{name}" for suite, name in re.findall(r"\bTEST(?:_F|_P)?\(\s*(\w+)\s*,\s*(\w+)\s*\)", read(path))}
    return found


def check_row(number, cells, root, comments, tests):
    if len(cells) != 4 or not all(cells):
        yield f"{DOCUMENT}:{number}: wants four cells that say something: what, where, test, why"
        return
    what, where, names, _ = cells
    if not (root / where).is_file():
        yield f"{DOCUMENT}:{number}: there is no file {where}"
    elif (where, what) not in comments:
        yield f"{DOCUMENT}:{number}: {where} has no comment 'Kept: {what}, because ...'"
    for name in re.split(r"\s*,\s*", names):
        if name not in tests:
            yield f"{DOCUMENT}:{number}: there is no test {name}"


def oddities(root):
    return comments_of(root)[0]


def check(root):
    comments, findings = comments_of(root)
    tests, rows = tests_of(root), list(rows_of(root))
    for number, cells in rows:
        findings += check_row(number, cells, root, comments, tests)
    described = {(cells[1], cells[0]) for _, cells in rows if len(cells) == 4}
    for (name, what), line in sorted(comments.items()):
        if (name, what) not in described:
            findings.append(f"{name}:{line}: '{what}' has no row in {DOCUMENT}")
    return findings


_HEAD = "# Oddities\n\n| what | where | test | why |\n|---|---|---|---|\n"
_ROW = "| odd thing | `ravo/common/a.cpp` | `Odd.Thing` | hosts rely on it |\n"
_CODE = "int a = 1;  // Kept: odd thing, because hosts\n            // rely on it\n"
_TEST = "TEST(Odd, Thing) {}\n"


def _tree(document=_HEAD + _ROW, code=_CODE, test=_TEST):
    return {DOCUMENT: document, "ravo/common/a.cpp": code, "tests/common/a_test.cpp": test}


PLANTINGS = [
    ("a good tree", _tree(), None),
    ("what runs over two lines", _tree(code="// Kept: odd\n// thing, because of hosts\n"), None),
    ("two comments in a row", _tree(code="// Kept: odd thing, because x\n// Kept: other, because y\n"), "'other' has no row"),
    ("an empty table", _tree(document=_HEAD, code=""), None),
    ("a comment without row", _tree(document=_HEAD), "'odd thing' has no row"),
    ("a row without comment", _tree(code=""), "has no comment 'Kept: odd thing"),
    ("a comment in another file", {**_tree(code=""), "ravo/common/b.cpp": _CODE}, "has no comment 'Kept: odd thing"),
    ("a comment without reason", _tree(code="// Kept: odd thing\nint a;\n"), "not of the form"),
    ("a row of a missing file", _tree(document=_HEAD + _ROW.replace("a.cpp", "z.cpp")), "there is no file"),
    ("a row without its test", _tree(test="TEST(Odd, Other) {}\n"), "there is no test Odd.Thing"),
    ("a row with an empty cell", _tree(document=_HEAD + _ROW.replace("hosts rely on it", "")), "four cells"),
]

if __name__ == "__main__":
    command_line(check, PLANTINGS)
