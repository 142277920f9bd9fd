"""docs/encodings.md: the encodings, what is decided about them, and where their sources differ."""

HEAD = """# Encodings

Written by `tools/generate/encodings.py` from the rows of `ravo/codec/rows.inc` and from the sources that
they name: character maps of the C library (`glibc`, package `locales`), Perl's Encode (`perl`), Python's codecs
(`python`). A new single-byte encoding is a row there and a run of that script.

## What is decided

- A byte that a single-byte encoding does not assign reads as U+FFFD; U+FFFD and every character without a byte are
  refused in writing. If several bytes mean one character, the lowest one is written that is no variant in another
  position or shape.
- UTF-8: a sequence that is not the shortest, a byte that begins none and a sequence that ends early give one U+FFFD
  each; what does not continue a sequence is read as the next character. Surrogates pass as three bytes each.
- UTF-16, UCS-2, UTF-32, UCS-4: bytes that do not make a whole unit at the end of the data are not read; a high
  surrogate at the end of UTF-16 is one U+FFFD. The unit that ends the data (a low surrogate) is stepped over.
- UTF-7 reading: any byte below 80 but "+" stands for itself outside base 64, also those that RFC 2152 leaves to
  base 64; a byte from 80 on is U+FFFD. "+-" is "+". A run ends at the first byte that is no base 64, "-" is taken with
  it. One U+FFFD stands at the end of a run that is empty or whose last bits are six or more or not zero. Units of
  UTF-16 pass as they are, surrogates too. The end of all data ends a run.
- UTF-7 writing: letters, digits, `'(),-./:?`, blank, tab, carriage return and line feed as they are, "+" as "+-",
  everything else in base 64; `Write_UTF_7_ODC` also writes ``!"#$%&*;<=>@[]^_`{|}`` as they are. A run is closed with
  "-" where a character of base 64 or "-" follows. `Flush` writes the last bits and "-". What was not flushed is lost
  when the write methods change.
- The record behind the state of UTF-7 has 12 bytes; the first is 0 outside base 64. Where methods are put in place
  without their `Init` (a source that is popped), the first character makes it. Where a source in UTF-7 ends on top of
  one in another encoding, the record goes with it.
- A source in UTF-7 that is left inside base 64 leaves the next one inside it, and a source that is read anew too:
  `SetReadMethods` begins outside.
- GB 18030: a byte 80 or FF, four bytes without a character and four bytes of a character beyond U+FFFF are one U+FFFD;
  so is a sequence that ends early, and what does not continue it is read as the next character.

## Names

An encoding is found by its exported name, each of its other names, its code page number with or without "cp", and its label
with or without what it says in parentheses. Case does not count, nor does anything but letters and digits. A name that has a
meaning keeps it: none is ever given to another encoding.

The labels of the [Encoding Standard](https://encoding.spec.whatwg.org/) are all names, as far as their encodings are here. Some
mean a larger encoding there; here they are the encoding that they name:

| labels | here | in the Standard |
|---|---|---|
| `ascii`, `us-ascii`, `ansi_x3.4-1968` | `US_ASCII` | windows-1252 |
| `iso-8859-1`, `latin1` and others of that encoding | `Iso_8859_1` | windows-1252 |
| `iso-8859-9`, `latin5` and others of that encoding | `Iso_8859_9` | windows-1254 |
| `tis-620` | `TIS_620` | windows-874 |
| `koi8-ru` | `Koi8_RU` | KOI8-U |
| `ucs-2`, `iso-10646-ucs-2`, `csunicode` | `UCS_2_BE` | UTF-16LE |
| `utf-16` | `UTF_16_BE` | UTF-16LE |

Labels of an encoding that is here under another name have the meaning of the Standard: `iso-8859-11` is `CP_874`, and
`iso-8859-8-i` is `Iso_8859_8`, which differs from it in the direction of a page alone. Unknown are the labels of GBK, which reads
80 as the euro sign and could be written, Big5, EUC-JP, ISO-2022-JP, Shift_JIS, EUC-KR, replacement and x-user-defined.
"""


def shown(text):
    return " ".join(f"U+{ord(char):04X}" for char in text) or "none"


def listing(rows):
    yield "\n## All encodings\n\n"
    yield "| name | label | code page | other names | engine | sources | notes |\n|---|---|---|---|---|---|---|\n"
    for row in rows:
        code_page = "" if row["code_page"] == "0" else row["code_page"]
        yield (f"| `{row['name']}` | {row['label']} | {code_page} | {row['aliases']} | {row['engine']} | {row['sources']} "
               f"| {row['notes']} |\n")


def spans(keys):
    """Bytes as "81, 83-88"."""
    numbers, parts = [key[0] for key in keys], []
    while numbers:
        count = next((i for i, number in enumerate(numbers) if number != numbers[0] + i), len(numbers))
        parts.append(f"{numbers[0]:02X}" if count == 1 else f"{numbers[0]:02X}-{numbers[count - 1]:02X}")
        numbers = numbers[count:]
    return ", ".join(parts)


def unassigned(tables):
    yield "\n## Unassigned bytes\n\nTables that are not listed assign all 256.\n\n| name | bytes | which |\n|---|---|---|\n"
    for table in tables:
        if missing := table.unassigned():
            yield f"| `{table.row['name']}` | {len(missing)} | {spans(missing)} |\n"


def shared(tables):
    yield ("\n## Several bytes for one character\n\nAll are read; the first of a row is written.\n\n"
           "| name | characters | bytes | why |\n|---|---|---|---|\n")
    for table in tables:
        groups: dict[str, list[tuple[str, str]]] = {}
        for char, keys, why in table.shared():
            groups.setdefault(why, []).append((char, " ".join(key.hex().upper() for key in keys)))
        for why, rows in groups.items():
            for char, keys in rows[:1] if len(rows) > 12 else rows:
                more = f" and {len(rows) - 1} more to {shown(rows[-1][0])}" if len(rows) > 12 else ""
                yield f"| `{table.row['name']}` | {shown(char)}{more} | {keys} | {why} |\n"


def differences(tables):
    yield ("\n## Where sources differ\n\nEach row has one choice; several bytes stand together where all is alike. "
           "\"None\" means that the source assigns nothing.\n\n| name | bytes | sources | chosen | why |\n|---|---|---|---|---|\n")
    for table in tables:
        groups: dict[tuple[str, str], list[tuple[bytes, list[str], str]]] = {}
        for key, texts, chosen in table.differences():
            groups.setdefault(kind(key, texts, chosen, table), []).append((key, texts, chosen))
        for (_, why), rows in groups.items():
            yield from difference_rows(table, rows, why)


def kind(key, texts, chosen, table):
    """What is told in one row: which sources are against the choice, and how."""
    against = tuple("" if not text else "same" if text == chosen else "other" for text in texts)
    return against + (bool(chosen),), table.reason(key)


def difference_rows(table, rows, why):
    names = [name.partition(":")[0] for name in table.names]
    many = len(rows) > 6
    for key, texts, chosen in rows[:1] if many else rows:
        said = ", ".join(f"{name} {shown(text)}" for name, text in zip(names, texts))
        where = key.hex().upper() + (f" and {len(rows) - 1} more to {rows[-1][0].hex().upper()}" if many else "")
        yield f"| `{table.row['name']}` | {where} | {said} | {shown(chosen)} | {why} |\n"


def render(rows, singles, chinese):
    parts = [HEAD, *listing(rows), *unassigned(singles), *shared(singles), *differences([*singles, chinese])]
    return "".join(parts)
