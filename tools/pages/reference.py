#!/usr/bin/env python3
"""Filters a public header or a page for the API reference; Doxygen calls this for each one.

usage: reference.py HEADER|PAGE | --self-test

- Rows of an .inc file become the declarations that the compiler makes of them, with the comment `/** ... */` of the
  macro, in which `#text` is what the row has for the parameter `text`.
- A comment also stands for the functions directly below its own that are of the same family: overloads, a property and
  its setter, first and last, the members of the suite's suffixes (A, W, I, Ymd ...).
- What the compiler makes (`= default`) needs no comment of a person.
- Headings of a page can be linked to by the names that other readers of Markdown give them.
- A link to another page of docs/, which the reference does not hold, becomes the page's name.
"""

import pathlib
import re
import sys
from collections.abc import Iterator

from common import ROOT
from source_tree import read

Macros = dict[str, tuple[list[str], str]]
DEFINE = re.compile(r"^[ \t]*#define (RAVO_\w+)\(([^)]*)\)((?:.*\\\n)*.*)\n", re.MULTILINE)
ROWS = re.compile(r"^[ \t]*#include <(ravo/[\w/]+\.inc)>\n", re.MULTILINE)
STRING = r'"(?:\\.|[^"\\])*"'
CALL = re.compile(rf"\b(RAVO_\w+)\(((?:{STRING}|[^\"()]|\([^()]*\))*)\)")
ARGUMENT = re.compile(rf"((?:{STRING}|[^\",(]|\([^()]*\))+)")
COMMENT_LINE = re.compile(r"^ *(///|/\*\*|\*)")
FUNCTION = re.compile(r"(~?\w+|operator\S+?) ?\(")


def arguments_of(text: str) -> list[str]:
    return [" ".join(piece.split()) for piece in ARGUMENT.findall(text)]


def instance(parameters: list[str], body: str, arguments: list[str]) -> str:
    """A macro's body with its arguments in place, stringified and pasted as the preprocessor does."""
    values = dict(zip(parameters, arguments))

    def word(match: re.Match[str]) -> str:
        value = values.get(match["name"], match["name"])
        return '"' + value.replace('"', '\\"') + '"' if match["hash"] and match["name"] in values else value

    def piece(text: str) -> str:
        if text.startswith("/**"):
            return re.sub(r"#(\w+)", lambda match: values.get(match.group(1), match.group(0)), text)
        return re.sub(r"\s*##\s*", "", re.sub(r"(?P<hash>(?<!#)#)?\b(?P<name>[A-Za-z]\w*)\b", word, text))

    return "".join(map(piece, re.split(r"(/\*\*.*?\*/)", re.sub(r"\s*\\\n", "\n", body), flags=re.DOTALL)))


def expanded(text: str, macros: Macros) -> str:
    """The expansion of every macro call in a text; calls of other macros are dropped."""

    def made(name: str, arguments: str) -> str:
        text = instance(*macros[name], arguments_of(arguments))
        # A row may choose one of several macros by pasting a name together.
        return CALL.sub(lambda call: expanded(call.group(0), macros), text)

    return "\n".join(made(name, arguments) for name, arguments in CALL.findall(text) if name in macros)


def with_rows(header: str) -> str:
    """The header with every #include of rows replaced by their expansion."""
    macros = {name: ([p.strip() for p in parameters.split(",")], body) for name, parameters, body in DEFINE.findall(header)}

    def rows(match: re.Match[str]) -> str:
        return expanded(re.sub(r"^ *//[^\n]*|^#[^\n]*", "", read(ROOT / match.group(1)), flags=re.MULTILINE), macros) + "\n"

    return ROWS.sub(rows, header)


def declarations(lines: list[str]) -> Iterator[list[str]]:
    """Pieces of a header: runs of lines that end a declaration, a comment, or single lines."""
    piece: list[str] = []
    for line in lines:
        piece.append(line)
        code = re.sub(r"\s*///<.*$|\s*//(?!/).*$", "", line).rstrip()
        open_brackets = sum(part.count("(") - part.count(")") for part in piece)
        if COMMENT_LINE.match(line) or not code or (code.endswith((";", "{", "}", ":", "*/")) and open_brackets <= 0):
            yield piece
            piece = []
    if piece:
        yield piece


def name_of(piece: list[str]) -> str:
    """The function that a piece declares; nothing for any other piece."""
    code = " ".join(line.strip() for line in piece)
    if code.startswith(("#", "//", "/*", "*", "using ", "return ", "if ", "for ", "static_assert", ":")):
        return ""
    code = re.sub(r"\[\[\w+\]\]|__attribute__\S*|alignas\([^)]*\)|noexcept\([^)]*\)|explicit\([^)]*\)", "", code)
    found = FUNCTION.search(code)
    return found.group(1) if found and "=" not in code[: found.start()] else ""


def same_family(left: str, right: str) -> bool:
    bare = [re.sub(r"^(Set)?(Get|First|Last|Buf|Str|Read|Skip)?|(ByRef|InPlace|Ymd|Ym|A|W|I)+$", "", name) for name in (left, right)]
    return left == right or bare[0] == bare[1] != ""


def with_family_comments(header: str) -> str:
    comment: list[str] = []
    printed: list[str] = []
    family, fresh = "", False
    for piece in declarations(header.splitlines()):
        first = piece[0]
        name = name_of(piece)
        if COMMENT_LINE.match(first) and "///<" not in first:
            if not fresh:
                comment = []
            comment += piece
            fresh, family = True, ""
        elif not first.strip() or first.strip().startswith(("#", "//")):
            fresh, family, comment = False, "", []
        elif fresh:
            fresh, family = False, name
        elif re.search(r"= default;", piece[-1]):
            printed.append("/// As the compiler makes it.")
        elif name and family and same_family(family, name):
            printed += comment
        printed += piece
    return "\n".join(printed) + "\n"


def with_anchors(page: str) -> str:
    def heading(match: re.Match[str]) -> str:
        words = re.sub(r"[^\w -]", "", match.group(2).lower()).strip().replace(" ", "-")
        return f"{match.group(0)} {{#{words}}}"

    return re.sub(r"^(##+) (.*)$", heading, page, flags=re.MULTILINE)


def without_other_pages(page: str) -> str:
    return re.sub(r"\[([^]]+)\]\([\w-]+\.md\)", r"\1", page)


def filtered(name: str) -> str:
    text = read(pathlib.Path(name))
    return without_other_pages(with_anchors(text)) if name.endswith(".md") else with_family_comments(with_rows(text))


CASES = [
    ("/// Both.\nint fA(int a);\nint fW(int a);\n", "/// Both.\nint fA(int a);\n/// Both.\nint fW(int a);\n"),
    ("/// One.\nint Count(int a);\nint Other(int a);\n", "/// One.\nint Count(int a);\nint Other(int a);\n"),
    ("/// One.\nint fA(int a);\n\nint fW(int a);\n", "/// One.\nint fA(int a);\n\nint fW(int a);\n"),
    ("/// State.\nint State() const { return s; }\nvoid SetState(int a);\n",
     "/// State.\nint State() const { return s; }\n/// State.\nvoid SetState(int a);\n"),
    ("X(const X&) = default;\n", "/// As the compiler makes it.\nX(const X&) = default;\n"),
    ("/// Long.\nint LongNameA(int a,\n  int b);\nint LongNameW(int a,\n  int b);\n",
     "/// Long.\nint LongNameA(int a,\n  int b);\n/// Long.\nint LongNameW(int a,\n  int b);\n"),
]


def self_test() -> None:
    for given, wanted in CASES:
        assert with_family_comments(given) == wanted, (given, with_family_comments(given))
    assert with_anchors("# A\n## The host's: B, c\n") == "# A\n## The host's: B, c {#the-hosts-b-c}\n"
    assert without_other_pages("[b.md](b.md), [a](#a), [c](../c/d.md)") == "b.md, [a](#a), [c](../c/d.md)"
    macro = DEFINE.findall('#define RAVO_A(name, text) /** name #text, #name. */ \\\n  T name##_x{u##text};\n')
    made = instance(["name", "text"], macro[0][2], arguments_of('one, "a, (b)"'))
    assert made.split() == '/** name "a, (b)", one. */ T one_x{u"a, (b)"};'.split(), made
    assert CALL.findall('RAVO_A(x, "a) \\" b",\n  3)\n') == [("RAVO_A", 'x, "a) \\" b",\n  3')]
    header = "#define RAVO_ONE(name) int name;\n#define RAVO_ROW(name, ways) RAVO_##ways(name)\n"
    macros = {name: ([p.strip() for p in parameters.split(",")], body) for name, parameters, body in DEFINE.findall(header)}
    assert expanded('RAVO_ROW(x, ONE)\nRAVO_OTHER(y)\n', macros).split() == ["int", "x;"]


if __name__ == "__main__":
    if sys.argv[1:] == ["--self-test"]:
        self_test()
    else:
        sys.stdout.buffer.write(filtered(sys.argv[1]).encode("utf-8"))
