#!/usr/bin/env python3
"""Writes the tables of the single-byte encodings and of GB 18030, and docs/encodings.md.

The rows are those of ravo/codec/rows.inc; each names its sources, packages of the distribution. The first
source decides; if another one differs, the document lists both, with the choice below and its reason.

usage: tools/generate/encodings.py            writes the checked-in files
       tools/generate/encodings.py --check    exit status 1 if a checked-in file differs
"""
import pathlib
import sys

import encoding_sources
import encodings_page

ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDER = "ravo/codec"
PAGE = "docs/encodings.md"
UNASSIGNED = 0xFFFD
BYTES = [bytes([byte]) for byte in range(256)]
LINEAR_END = 39420  # four bytes of GB 18030 below U+10000 have the numbers before this one

# Characters not taken from the first source: (name, bytes) -> (character, why).
FIRST_OF_2005 = "the edition of 2005 gave U+1E3F its two bytes; Python has the edition of 2000"
CHOICES = {
    ("JIS_X0201", "5c"): (0x00A5, "the Roman half of the standard has the yen sign there; Perl takes it for ASCII"),
    ("Mac_Hebrew", "81"): (0xFB1F, "the one character that is canonically equal to the two of the source"),
    ("Mac_Hebrew", "c0"): (UNASSIGNED, "the source has a sequence of three, and no one character is equal to it"),
    ("GB_18030", "a8bc"): (0x1E3F, FIRST_OF_2005),
    ("GB_18030", "8135f437"): (0xE7C7, FIRST_OF_2005),
}
# Why one of several bytes for a character is written.
DIRECTIONS = "one byte per writing direction; the ASCII byte is written"
WRITTEN = {
    "CP_1006": "Python reads both so; the International Components for Unicode have the final form of alef at B1 alone",
    "Mac_Hebrew": DIRECTIONS,
    "Mac_Arabic": DIRECTIONS,
    "Mac_Farsi": DIRECTIONS,
}
VARIANT = "the others are variants: in the source, one of Apple's variant marks follows the character"

VARIANT_MARKS = "".join(map(chr, range(0xF870, 0xF880)))
# Why the first source was preferred to the others.
ASCII_OF_APPLE = "Perl's tables of Apple's encodings lack bytes of ASCII"
REASONS = {
    "CP_424": "two of three agree",
    "CP_856": "as in the other code pages of this family: controls as ASCII has them, U+00AF and U+00B7",
    "CP_1006": "Perl reads the final form of alef at B2 alone",
    "Mac_Roman": "two of three agree",
    "Mac_Iceland": "two of three agree; the C library's table is older",
    "Mac_Cyrillic": "two of three agree; the C library's table is older",
    "Mac_Hebrew": "the character without the mark of its variant",
    "Mac_Thai": "the character without the mark of its variant",
    "JIS_X0201": "the half-width Katakana are those that this standard has; the C library's map names the full-width ones",
    "TIS_620": "the standard assigns nothing there; Python has the controls of ISO 8859",
    "GB_18030": "in the edition of 2005 every sequence has a character of its own below U+10000, of private use where "
                "later editions chose another one",
}


def plain(text):
    """A text without Apple's own marks of a variant, which follow the character that they vary."""
    return text.rstrip(VARIANT_MARKS) or text


class Table:
    """One encoding: the table of each source, and the chosen one."""

    def __init__(self, row, keys):
        self.row, self.keys = row, keys
        self.names = row["sources"].split()
        self.sources = [encoding_sources.read(name, keys) for name in self.names]
        self.used_choices = []
        self.chosen = {key: self.choose(key) for key in keys}

    def choose(self, key):
        choice = CHOICES.get((self.row["name"], key.hex()))
        text = self.sources[0].get(key)
        if choice and text != chr(choice[0]):
            self.used_choices.append(key)
            return choice[0]
        if text is None:
            return self.choose_missing(key)
        char = plain(text)
        if len(char) != 1:
            raise ValueError(f"{self.row['name']} {key.hex()}: several characters, {text!r}; a choice is needed")
        return ord(char) if ord(char) < 0x10000 else UNASSIGNED

    def choose_missing(self, key):
        """Perl's tables of Apple's encodings lack bytes that are those of ASCII."""
        apple = self.row["name"].startswith("Mac_")
        return key[0] if apple and key[0] < 0x80 else UNASSIGNED

    def differences(self):
        """(bytes, what each source has, the choice) wherever a source differs from another or from the choice."""
        for key in self.keys:
            texts = [source.get(key, "") for source in self.sources]
            chosen = "" if self.chosen[key] == UNASSIGNED else chr(self.chosen[key])
            if any(text != chosen for text in texts):
                yield key, texts, chosen

    def reason(self, key):
        if choice := CHOICES.get((self.row["name"], key.hex())):
            return choice[1]
        if self.row["name"].startswith("Mac_") and self.chosen[key] == key[0] < 0x80:
            return ASCII_OF_APPLE
        return REASONS[self.row["name"]]

    def unassigned(self):
        return [key for key in self.keys if self.chosen[key] == UNASSIGNED]

    def variants(self):
        """The bytes that the first source reads as the chosen character with the mark of a variant."""
        text = self.sources[0]
        return [key for key in self.keys if key in text and text[key] != plain(text[key]) == chr(self.chosen[key])]

    def shared(self):
        """(character, bytes, why the first of them is written) of every character that several bytes mean."""
        variants = self.variants()
        bytes_of: dict[int, list[bytes]] = {}
        for key in sorted(self.keys, key=lambda key: (key in variants, key)):
            bytes_of.setdefault(self.chosen[key], []).append(key)
        for unit, keys in sorted(bytes_of.items()):
            if len(keys) > 1 and unit != UNASSIGNED:
                yield chr(unit), keys, VARIANT if keys[-1] in variants else WRITTEN[self.row["name"]]


def numbers(values, width=8, digits=4):
    """Rows of C++ numbers."""
    values = [f"0x{value:0{digits}X}" for value in values]
    return "".join("    " + ", ".join(values[at : at + width]) + ",\n" for at in range(0, len(values), width))


def render_single(tables):
    parts = [
        "#pragma once\n\n",
        "// Generated by tools/generate/encodings.py from the sources that rows.inc names. Unassigned bytes are U+FFFD.\n\n",
        "#include <ravo/codec/kernels/single_byte_table.h>\n\nnamespace ravo::codec::tables {\n",
    ]
    for table in tables:
        count = len(table.unassigned())
        parts.append(f"\n// {table.row['label']}; {' '.join(table.names)}; {256 - count} bytes assigned.\n")
        parts.append(f"inline constexpr ByteTable k{table.row['table']} = {{\n{numbers(table.chosen.values())}}};\n")
    parts.append("\n}  // namespace ravo::codec::tables\n\nnamespace ravo::codec {\n")
    parts += [render_variants(table) for table in tables if table.variants()]
    return "".join(parts) + "\n}  // namespace ravo::codec\n"


def render_variants(table):
    variants = [key[0] for key in table.variants()]
    return (f"\ntemplate <>\ninline constexpr std::array<std::uint8_t, {len(variants)}> "
            f"kVariants<tables::k{table.row['table']}> = {{\n{numbers(variants, 8, 2)}}};\n")


# GB 18030.


def pair_keys():
    trails = [*range(0x40, 0x7F), *range(0x80, 0xFF)]
    return [bytes([lead, trail]) for lead in range(0x81, 0xFF) for trail in trails]


def quad_key(linear):
    rest, fourth = divmod(linear, 10)
    rest, third = divmod(rest, 126)
    first, second = divmod(rest, 10)
    return bytes([0x81 + first, 0x30 + second, 0x81 + third, 0x30 + fourth])


def ranges(units):
    """(number, character) wherever the characters are not consecutive; unassigned numbers stay U+FFFD."""
    before: int | None = None
    for number, unit in enumerate(units):
        goes_on = before is not None and unit == (before if before == UNASSIGNED else before + 1)
        if not goes_on:
            yield number, unit
        before = unit


def render_gb(table):
    pairs = [table.chosen[key] for key in pair_keys()]
    quads = list(ranges(table.chosen[quad_key(linear)] for linear in range(LINEAR_END)))
    quads.append((LINEAR_END, UNASSIGNED))
    head = (f"// GB 18030; {table.row['sources']}. Generated by tools/generate/encodings.py.\n")
    two = head + "// Two bytes: 126 lead bytes from 81 on, with 190 trail bytes each from 40 on without 7F.\n"
    four = head + (f"// Four bytes below number {LINEAR_END}: where a run of characters begins, and with which one.\n"
                   f"// {len(quads)} runs.\n")
    return two + numbers(pairs, 12), four + "".join(f"{{{number}, 0x{unit:04X}}},\n" for number, unit in quads)


def outputs():
    rows = list(encoding_sources.rows((ROOT / FOLDER / "rows.inc").read_text(encoding="utf-8")))
    singles = [Table(row, BYTES) for row in rows if row["engine"] == "SingleByte"]
    keys = pair_keys() + [quad_key(linear) for linear in range(LINEAR_END)]
    chinese = Table(next(row for row in rows if row["engine"] == "Gb18030"), keys)
    unused = set(CHOICES) - {(t.row["name"], key.hex()) for t in [*singles, chinese] for key in t.used_choices}
    if unused:
        raise ValueError(f"choices for nothing: {sorted(unused)}")
    two, four = render_gb(chinese)
    return {
        f"{FOLDER}/generated/single_byte_tables.h": render_single(singles),
        f"{FOLDER}/generated/gb18030_two_bytes.inc": two,
        f"{FOLDER}/generated/gb18030_four_bytes.inc": four,
        PAGE: encodings_page.render(rows, singles, chinese),
    }


def main(arguments):
    if arguments not in ([], ["--check"]):
        print(__doc__, file=sys.stderr)
        return 2
    status = 0
    for name, text in outputs().items():
        path = ROOT / name
        if not arguments:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        elif not path.is_file() or path.read_text(encoding="utf-8") != text:
            print(f"{name} is not what its sources give; run tools/generate/encodings.py", file=sys.stderr)
            status = 1
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
