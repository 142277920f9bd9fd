#!/usr/bin/env python3
"""Finds the multiplier of the table catalogue's index.

usage: python3 tools/generate/table_hash.py > ravo/catalogue/generated/table_hash.h
       python3 tools/generate/table_hash.py --check      1 where the checked-in header differs

The index has 2^BITS slots; the slot of an identifier is the upper BITS bits of its product with the multiplier. The
multiplier is the first odd one, counted upwards from 2^32 divided by the golden ratio, that gives every identifier
of ravo/catalogue/tables.inc a slot of its own.
"""

import itertools
import pathlib
import re
import sys

BITS = 11  # kSlotBits of table_index.h
FIRST = 0x9E3779B1
ROOM = pathlib.Path(__file__).resolve().parents[2] / "ravo" / "catalogue"
ROW = re.compile(r'^RAVO_TABLE(?:_RANGE)?\(\w+, (\d+)(?:, (\d+))?, "')

HEADER = """\
#pragma once

// Written by tools/generate/table_hash.py from {count} identifiers; not to be edited by hand.

#include <cstdint>

namespace ravo::table_index {{

inline constexpr std::uint32_t kTableHashMultiplier = 0x{multiplier:08X};

}}  // namespace ravo::table_index
"""


def identifiers(text):
    for row in filter(None, map(ROW.match, text.splitlines())):
        first, last = int(row[1]), int(row[2] or row[1])
        yield from range(first, last + 1)


def is_perfect(ids, multiplier):
    taken = set()
    for number in ids:
        place = (number * multiplier & 0xFFFFFFFF) >> (32 - BITS)
        if place in taken:
            return False
        taken.add(place)
    return True


def header():
    ids = list(identifiers((ROOM / "tables.inc").read_text(encoding="utf-8")))
    if len(set(ids)) != len(ids):
        sys.exit("an identifier occurs twice in tables.inc")
    candidates = (number & 0xFFFFFFFF for number in itertools.count(FIRST, 2))
    multiplier = next(number for number in candidates if is_perfect(ids, number))
    return HEADER.format(count=len(ids), multiplier=multiplier)


def main(arguments):
    if arguments == ["--check"]:
        found = (ROOM / "generated" / "table_hash.h").read_text(encoding="utf-8")
        sys.exit(None if found == header() else "table_hash.h is not what table_hash.py writes")
    if arguments:
        sys.exit(__doc__)
    print(header(), end="")


if __name__ == "__main__":
    main(sys.argv[1:])
