"""docs/encodings.md: the encodings, the decisions about them, and the differences between their sources."""

HEAD = """# Encodings

Written by `tools/generate/encodings.py` from the rows of `ravo/codec/rows.inc` and from the sources that
they name: character maps of the C library (`glibc`, package `locales`), Perl's Encode (`perl`), Python's codecs
(`python`). A new single-byte encoding is a row there and a run of that script.

## Decisions

- A byte that a single-byte encoding does not assign is read as U+FFFD; U+FFFD and every character without a byte cannot
  be written. If several bytes decode to one character, the lowest one that is not a variant in another position or
  shape is written.
- UTF-8: an overlong sequence, a byte that cannot start a sequence and a truncated sequence give one U+FFFD each; the
  byte that does not continue a sequence is read as the next character. Surrogates are three bytes each.
- UTF-16, UCS-2, UTF-32, UCS-4: an incomplete unit at the end of the data is not read; a high surrogate at the end of
  UTF-16 is one U+FFFD. The unit that ends the data (a low surrogate) is consumed.
- UTF-7 reading: any byte below 80 but "+" is itself outside base 64, also those that RFC 2152 reserves for base 64; a
  byte from 80 on is U+FFFD. "+-" is "+". A run ends at the first byte that is not base 64; a "-" is consumed with it.
  One U+FFFD ends a run that is empty, or that has six or more bits or non-zero bits left. UTF-16 units are unchanged,
  surrogates too. The end of all data ends a run.
- UTF-7 writing: letters, digits, `'(),-./:?`, blank, tab, carriage return and line feed are themselves, "+" is "+-",
  everything else is base 64; `Write_UTF_7_ODC` also writes ``!"#$%&*;<=>@[]^_`{|}`` as they are. A run is closed with
  "-" if a character of base 64 or "-" follows. `Flush` writes the last bits and "-". Bits that were not flushed are lost
  when the write methods change.
- The state of UTF-7 is a record of 12 bytes; the first is 0 outside base 64. If methods are restored without their
  `Init` (when a source is popped), the first character creates the record. If a source in UTF-7 ends on top of one in
  another encoding, the record is freed with it.
- A source in UTF-7 that ends inside base 64 leaves the next source inside it, also a source that is read again;
  `SetReadMethods` resets the state.
- GB 18030: a byte 80 or FF, four bytes without a character and four bytes of a character past U+FFFF are one U+FFFD; so
  is a truncated sequence, and the byte that does not continue it is read as the next character.

## Names

An encoding is found by its exported name, each of its other names, its code page number with or without "cp", and its label
with or without the part in parentheses. Case is ignored, and so is every character that is not a letter or digit. A name keeps
its meaning: it is never reassigned to another encoding.

The labels of the [Encoding Standard](https://encoding.spec.whatwg.org/) are all names, if the library has their encoding. Some
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

Labels of an encoding that has another name here have the meaning of the Standard: `iso-8859-11` is `CP_874`, and
`iso-8859-8-i` is `Iso_8859_8`, from which only the direction of a page differs. The labels of GBK, Big5, EUC-JP, ISO-2022-JP,
Shift_JIS, EUC-KR, replacement and x-user-defined are unknown (GBK differs from GB 18030: it reads 80 as the euro sign).
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
    yield ("\n## Differences between sources\n\nEach row has one choice; bytes with the same choice share a row. "
           "\"None\" means that the source assigns nothing.\n\n| name | bytes | sources | chosen | why |\n|---|---|---|---|---|\n")
    for table in tables:
        groups: dict[tuple[str, str], list[tuple[bytes, list[str], str]]] = {}
        for key, texts, chosen in table.differences():
            groups.setdefault(kind(key, texts, chosen, table), []).append((key, texts, chosen))
        for (_, why), rows in groups.items():
            yield from difference_rows(table, rows, why)


def kind(key, texts, chosen, table):
    """The key of a row: which sources differ from the choice, and how."""
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
