#!/usr/bin/env python3
"""Collects what the program says to people and compiles its translations in.

usage: texts.py

The English texts are the literals of Text("..."), TextOf(count, "...", "...") and ToTranslate("...") in tools/ravo/.
They are brought into tools/ravo/po/cs.po, new ones without a translation, and those that left the sources leave it.
Its translations become tools/ravo/po/cs.inc. tests/checks/translations.py finds what is missing.
"""

import dataclasses
import pathlib
import re
import sys
from collections.abc import Iterator

ROOT = pathlib.Path(__file__).resolve().parents[2]
SOURCES, CATALOGUE, TABLE = "tools/ravo", "tools/ravo/po/cs.po", "tools/ravo/po/cs.inc"
FORMS = 3
HEADER = """\
# Czech texts of the program ravo.
msgid ""
msgstr ""
"Language: cs\\n"
"MIME-Version: 1.0\\n"
"Content-Type: text/plain; charset=UTF-8\\n"
"Content-Transfer-Encoding: 8bit\\n"
"Plural-Forms: nplurals=3; plural=(n==1) ? 0 : (n>=2 && n<=4) ? 1 : 2;\\n"
"""

TOKEN = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(?P<mark>[^(\s]*)\((?P<raw>.*?)\)(?P=mark)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'|\w+|\S', re.DOTALL
)
ESCAPE = re.compile(r"\\(?:x([0-9A-Fa-f]+)|u([0-9A-Fa-f]{4})|([0-7]{1,3})|(.))", re.DOTALL)
SHORT = {"n": "\n", "t": "\t", "r": "\r", "0": "\0"}
LITERAL_PLACES = {"Text": (0,), "ToTranslate": (0,), "TextOf": (1, 2)}


@dataclasses.dataclass
class Entry:
    """A text for people; `many` is its plural, None where it has none."""

    one: str
    many: str | None = None
    files: list[str] = dataclasses.field(default_factory=list)
    forms: list[str] = dataclasses.field(default_factory=list)


class Glued(Exception):
    """A text that is not a literal as a whole."""


def tokens(code: str) -> list[str]:
    return [match.group(0) for match in TOKEN.finditer(code) if not match.group(0).startswith(("//", "/*"))]


def is_literal(token: str) -> bool:
    return token.startswith(('"', 'R"'))


def value(token: str) -> str:
    """The text of a string literal."""
    if token.startswith("R"):
        match = TOKEN.fullmatch(token)
        return match.group("raw") if match else ""

    def plain(match: re.Match[str]) -> str:
        hexadecimal, code, octal, letter = match.groups()
        if hexadecimal or code:
            return chr(int(hexadecimal or code, 16))
        return chr(int(octal, 8)) if octal else SHORT.get(letter, letter)

    return ESCAPE.sub(plain, token[1:-1])


def arguments(code: list[str], start: int) -> list[list[str]]:
    """The tokens of each argument of the call whose parenthesis is at `start`."""
    found: list[list[str]] = [[]]
    depth = 0
    for token in code[start:]:
        if token in "([{":
            depth += 1
            if depth == 1:
                continue
        if token in ")]}":
            depth -= 1
            if depth == 0:
                break
        if token == "," and depth == 1:
            found.append([])
        else:
            found[-1].append(token)
    return found


def calls(code: list[str]) -> Iterator[Entry]:
    for index, token in enumerate(code[:-1]):
        if token not in LITERAL_PLACES or code[index + 1] != "(":
            continue
        given = arguments(code, index + 1)
        wanted = [given[place] for place in LITERAL_PLACES[token] if place < len(given)]
        # Text(first ? ToTranslate("...") : ToTranslate("...")): the inner calls have the texts.
        if any(part in LITERAL_PLACES for argument in wanted for part in argument):
            continue
        if not any(is_literal(part) for argument in wanted for part in argument):
            continue
        if not all(is_literal(part) for argument in wanted for part in argument):
            raise Glued(" ".join(wanted[0][:6]))
        texts = ["".join(value(part) for part in argument) for argument in wanted]
        yield Entry(texts[0], texts[1] if len(texts) == 2 else None)


def collected(root: pathlib.Path) -> dict[str, Entry]:
    """The texts of the sources, in the order of the files."""
    entries: dict[str, Entry] = {}
    for path in sorted((root / SOURCES).rglob("*")):
        if path.suffix not in (".cpp", ".h", ".inc") or path.name == pathlib.Path(TABLE).name:
            continue
        name = path.relative_to(root).as_posix()
        try:
            found = list(calls(tokens(path.read_text(encoding="utf-8"))))
        except Glued as text:
            raise Glued(f"{name}: this text is not one literal: {text}") from None
        for entry in found:
            known = entries.setdefault(entry.one, entry)
            known.many = known.many or entry.many
            if name not in known.files:
                known.files.append(name)
    return entries


def quoted(text: str) -> str:
    """A PO string: one line of the file per line of the text."""
    escaped = text.replace("\\", "\\\\").replace('"', '\\"').replace("\t", "\\t").replace("\r", "\\r")
    pieces = escaped.replace("\n", "\\n\n").splitlines()
    if len(pieces) <= 1:
        return f'"{"".join(pieces)}"'
    return "\n".join(['""', *(f'"{piece}"' for piece in pieces)])


def catalogue(entries: dict[str, Entry]) -> str:
    parts = [HEADER]
    for entry in entries.values():
        lines = ["", *(f"#: {file}" for file in entry.files), f"msgid {quoted(entry.one)}"]
        forms = entry.forms or [""] * (1 if entry.many is None else FORMS)
        if entry.many is None:
            lines.append(f"msgstr {quoted(forms[0])}")
        else:
            lines.append(f"msgid_plural {quoted(entry.many)}")
            lines += [f"msgstr[{number}] {quoted(form)}" for number, form in enumerate(forms)]
        parts.append("\n".join(lines) + "\n")
    return "".join(parts)


def read_catalogue(text: str) -> dict[str, Entry]:
    entries: dict[str, Entry] = {}
    fields: dict[str, str] = {}
    field = ""

    def keep() -> None:
        if one := fields.get("msgid"):
            forms = [fields[name] for name in sorted(fields) if name.startswith("msgstr")]
            entries[one] = Entry(one, fields.get("msgid_plural"), [], forms)
        fields.clear()

    for line in text.splitlines():
        if not line or line.startswith("#"):
            continue
        if match := re.match(r'(msgid|msgid_plural|msgstr(?:\[\d\])?) (?=")', line):
            field = match.group(1)
            if field == "msgid":
                keep()
            fields[field] = ""
            line = line[match.end():]
        fields[field] += value(line)
    keep()
    return entries


def merged(root: pathlib.Path) -> dict[str, Entry]:
    """The texts of the sources with the translations that the catalogue has for them."""
    path = root / CATALOGUE
    known = read_catalogue(path.read_text(encoding="utf-8")) if path.exists() else {}
    entries = collected(root)
    for one, entry in entries.items():
        if one in known and (known[one].many is None) == (entry.many is None):
            entry.forms = known[one].forms
    return entries


def table(entries: dict[str, Entry]) -> str:
    def literal(text: str) -> str:
        return '"' + text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n").replace("\t", "\\t") + '"'

    rows = ["// Made from cs.po by tools/generate/texts.py; do not edit.\n"]
    for entry in sorted(entries.values(), key=lambda entry: entry.one.encode()):
        if entry.forms and all(entry.forms):
            rows.append(f"{{{literal(entry.one)}, {{{', '.join(map(literal, entry.forms))}}}}},\n")
    return "".join(rows)


def main() -> None:
    if sys.argv[1:]:
        sys.exit(__doc__)
    try:
        entries = merged(ROOT)
    except Glued as finding:
        sys.exit(str(finding))
    (ROOT / CATALOGUE).write_text(catalogue(entries), encoding="utf-8")
    (ROOT / TABLE).write_text(table(entries), encoding="utf-8")
    for entry in entries.values():
        if not all(entry.forms or [""]):
            print(f"no translation: {entry.one!r} ({', '.join(entry.files)})")


if __name__ == "__main__":
    main()
