#!/usr/bin/env python3
"""Writes the table of the Czech alphabetical order: the weights of each character, and of "ch".

The sources are the Default Unicode Collation Element Table (allkeys.txt of the distribution's package
"perl-modules-5.36") and the Czech tailoring of the Unicode Common Locale Data Repository, which is the five letters
below. Digits follow the letters, as in ČSN 97 6030.

usage: tools/generate/czech_order.py            writes the checked-in file
       tools/generate/czech_order.py --check    exit status 1 if the checked-in file differs
"""
import pathlib
import re
import sys
import unicodedata

ROOT = pathlib.Path(__file__).resolve().parents[2]
TARGET = "ravo/order/generated/czech_order_table.h"
# Letters of their own, each after all that begins with the other one.
LETTERS = {"c": "č", "h": "ch", "r": "ř", "s": "š", "z": "ž"}
CARON = "\u030c"
# Small letters precede capitals of the same word; "cH" is a slip of the shift key.
CH_TERTIARY = {"ch": 2, "cH": 3, "Ch": 7, "CH": 8}
SMALL, CAPITAL, COMMON = 2, 8, 0x20
# Latin, Greek, Cyrillic, punctuation, symbols. All others follow in the order of their code points.
RANGES = ((0, 0x530), (0x1D00, 0x2C00), (0x2C60, 0x2C80), (0x2E00, 0x2E80), (0x3000, 0x3040), (0xA700, 0xA800),
          (0xAB30, 0xAB70), (0xFB00, 0xFB40), (0xFE00, 0xFE80), (0xFF00, 0x10000), (0x1F000, 0x1FB00))
PAGE = 64
UNLISTED = 0xFFFFFFFF
FIRST_LEAD, FIRST_SECOND, SECONDS = 3, 2, 254
# In the order of keys, before the digit 0.
NUMBER = "number"


def allkeys():
    files = sorted(pathlib.Path("/usr/share/perl").glob("5.*.*/Unicode/Collate/allkeys.txt"))
    if not files:
        sys.exit("allkeys.txt is missing: scripts/setup check installs perl")
    return files[0].read_text(encoding="utf-8")


def elements(text):
    """Code point -> its collation elements (primary, secondary, tertiary)."""
    table = {}
    for codes, weights in re.findall(r"^([0-9A-F]+)\s*; ((?:\[[^]]*\])+)", text, re.MULTILINE):
        code = int(codes, 16)
        if any(first <= code < end for first, end in RANGES):
            found = re.findall(r"\[[.*](\w+)\.(\w+)\.(\w+)\]", weights)
            table[code] = [tuple(int(weight, 16) for weight in element) for element in found]
    return table


def tailored(table):
    """The elements with the letters of their own; their primary weight is the letter."""
    primary = {base: table[ord(base)][0][0] for base in LETTERS}
    letter_of = {primary[base]: letter for base, letter in LETTERS.items() if letter != "ch"}
    caron = table[ord(CARON)][0]
    for code in table:
        decomposed = unicodedata.normalize("NFD", chr(code))
        if not re.search("[crsz]" + CARON, decomposed.lower()):
            continue
        own, rest = [], table[code]
        while rest:
            if rest[0][0] in letter_of and rest[1:2] == [caron]:
                own.append((letter_of[rest[0][0]], COMMON, rest[0][2]))
                rest = rest[2:]
            else:
                own.append(rest[0])
                rest = rest[1:]
        table[code] = own
    return primary


def order(table, primary):
    """All primary weights in their order: signs, Latin letters with the Czech ones, digits, other letters."""
    weights = {element[0] for own in table.values() for element in own if element[0]}
    numbers = sorted(weight for weight in weights if isinstance(weight, int))
    digits = [table[ord(digit)][0][0] for digit in "0123456789"]
    latin, greek = table[ord("a")][0][0], table[ord("α")][0][0]
    signs = [weight for weight in numbers if weight < digits[0]]
    letters: list[int | str] = [weight for weight in numbers if latin <= weight < greek]
    for base, letter in LETTERS.items():
        letters.insert(letters.index(primary[base]) + 1, letter)
    return [*signs, *letters, NUMBER, *digits, *[weight for weight in numbers if weight >= greek]], signs, letters


def weights_of(table, ranked):
    """Primary weight -> its bytes: one for a blank, the alphabet and digits, two for any other."""
    short = {table[ord(sign)][0][0] for sign in " abcdefghijklmnopqrstuvwxyz0123456789"} | set(LETTERS.values()) | {NUMBER}
    lead, second, result = FIRST_LEAD - 1, SECONDS, {}
    for weight in ranked:
        if weight in short:
            lead, second = lead + 1, SECONDS
            result[weight] = lead << 8
            continue
        if second == SECONDS:
            lead, second = lead + 1, 0
        result[weight] = lead << 8 | (FIRST_SECOND + second)
        second += 1
    return result, lead + 1


def packed(element, weights, secondaries):
    primary = weights[element[0]] if element[0] else 0
    return primary << 13 | secondaries[element[1]] << 5 | element[2]


def rows(values, form, count):
    texts = [format(value, form) for value in values]
    return ["  " + " ".join(f"{text}," for text in texts[at:at + count]) for at in range(0, len(texts), count)]


def array(kind, name, values, form="#x", count=12):
    return [f"inline constexpr {kind} {name}[{len(values)}] = {{", *rows(values, form, count), "};"]


def lines():
    text = allkeys()
    version = re.search(r"allkeys-([\d.]+)\.txt", text)
    assert version, "allkeys.txt names no version"
    table = elements(text)
    primary = tailored(table)
    ranked, signs, letters = order(table, primary)
    weights, unlisted = weights_of(table, ranked)
    used = sorted({element[1] for own in table.values() for element in own if element[1]})
    secondaries = {0: 0, **{weight: rank + 2 for rank, weight in enumerate(used)}}
    assert used[0] == COMMON and unlisted <= 0xFF and len(used) < SECONDS

    expansions: list[int] = []
    pages, page_of = [tuple([UNLISTED] * PAGE)], []
    last = max(end for _, end in RANGES)
    for start in range(0, last, PAGE):
        page = []
        for code in range(start, start + PAGE):
            own = [packed(element, weights, secondaries) for element in table.get(code, ()) if any(element)]
            if code not in table:
                page.append(UNLISTED)
            elif len(own) < 2:
                page.append(own[0] if own else 0)
            else:
                page.append(1 << 31 | len(own) << 16 | len(expansions))
                expansions += own
        if tuple(page) not in pages:
            pages.append(tuple(page))
        page_of.append(pages.index(tuple(page)))
    assert len(pages) <= 256 and len(expansions) < 1 << 16

    def lead(weight):
        return f"{weights[weight] >> 8:#x}"

    ch = [packed(("ch", COMMON, CH_TERTIARY[word]), weights, secondaries) for word in ("ch", "cH", "Ch", "CH")]
    caron = [packed((LETTERS[base], COMMON, tertiary), weights, secondaries)
             for base in "crsz" for tertiary in (SMALL, CAPITAL)]
    return [
        f"// Generated by tools/generate/czech_order.py from the Unicode collation elements {version[1]}",
        '// (package perl-modules-5.36) and the Czech letters č, ch, ř, š and ž.', "#pragma once", "",
        "#include <cstdint>", "", "namespace ravo::order::czech_table {", "",
        "// Of keys: the first bytes of primary weights.",
        f"inline constexpr std::uint8_t kFirstLetterLead = {lead(letters[0])};",
        f"inline constexpr std::uint8_t kNumberLead = {lead(NUMBER)};",
        f"inline constexpr std::uint8_t kDigitLead = {lead(table[ord('0')][0][0])};",
        f"inline constexpr std::uint8_t kUnlistedLead = {unlisted:#x};", "",
        "// An element: primary weight (16 bits), secondary (8), tertiary (5). The top bit marks several: their",
        "// number (8 bits) and the first one's index (16).",
        *array("std::uint32_t", "kCh", ch), *array("std::uint32_t", "kWithCaron", caron),
        f"inline constexpr std::uint32_t kUnlisted = {UNLISTED:#x};",
        f"inline constexpr char32_t kEnd = {last:#x};",
        f"inline constexpr unsigned kPage = {PAGE};",
        *array("std::uint8_t", "kPageOf", page_of, "d", 24),
        *array("std::uint32_t", "kElements", [value for page in pages for value in page]),
        *array("std::uint32_t", "kExpansions", expansions), "",
        "}  // namespace ravo::order::czech_table",
    ]


def main(arguments):
    text = "\n".join(lines()) + "\n"
    target = ROOT / TARGET
    if arguments == ["--check"]:
        if target.read_text(encoding="utf-8") != text:
            sys.exit(f"{TARGET} is not what its sources give; run tools/generate/czech_order.py")
    elif arguments:
        sys.exit(__doc__)
    else:
        target.write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main(sys.argv[1:])
