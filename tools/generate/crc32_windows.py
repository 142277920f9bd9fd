#!/usr/bin/env python3
"""Finds the distances over which bytes of a text may be carried without changing its CRC-32.

usage: python3 tools/generate/crc32_windows.py > ravo/utils/generated/crc32_windows.h
       python3 tools/generate/crc32_windows.py --check      1 where the checked-in header differs

A byte may be removed from a text if it is XORed to the bytes d1, d2, ... after it, provided that the
powers x^(-8 d1), x^(-8 d2), ... add up to 1 modulo the polynomial. About one in 2^32 sets of distances does so: few
distances make few loads and reach far. For each number of them the set is taken that reaches least far while none is
below a nearest one; sums of half of the distances are looked up among those of the other half.

Memory that was written a moment ago is read again from the nearest distance on. Where speed tells, it is far enough
for the processor to have stored it: to read across two blocks that it still holds back costs it a dozen steps.
"""

import itertools
import pathlib
import sys

POLYNOMIAL = 0x104C11DB7
HEADER = pathlib.Path(__file__).resolve().parents[2] / "ravo" / "utils" / "generated" / "crc32_windows.h"
# name, number of distances, the nearest one allowed, what to say
WINDOWS = (
    ("Long", 3, 512, "For long texts."),
    ("Middle", 4, 256, "For texts of a few KiB, and what the long window leaves."),
    ("Short", 6, 48, "For what the middle window leaves."),
)

TEXT = """\
#pragma once

// Written by tools/generate/crc32_windows.py; not to be edited by hand.

#include <array>
#include <cstddef>

/// Distances over which a byte of a text may be carried: taken out, and XORed to the byte at each of them
/// behind it, it leaves the text's CRC-32 what it was.
namespace ravo::utils {{

{windows}

}}  // namespace ravo::utils
"""


def powers():
    """x^(-8 d) modulo the polynomial for d = 0, 1, ..."""
    value = 1
    while True:
        yield value
        for _ in range(8):
            value = (value ^ POLYNOMIAL) >> 1 if value & 1 else value >> 1


def find(count, nearest):
    """The first `count` distances in the order of the farthest one."""
    half = count // 2
    power = []
    sums: dict[int, tuple[int, ...]] = {}  # of `half` distances, with the set that reaches least far
    for farthest, value in enumerate(powers()):
        power.append(value)
        if farthest < nearest:
            continue
        others = range(nearest, farthest)
        for chosen in itertools.combinations(others, count - half - 1):
            wanted = 1 ^ value
            for distance in chosen:
                wanted ^= power[distance]
            found = sums.get(wanted)
            if found and found[-1] < min(chosen, default=farthest):
                return found + chosen + (farthest,)
        for chosen in itertools.combinations(others, half - 1):
            total = value
            for distance in chosen:
                total ^= power[distance]
            sums.setdefault(total, chosen + (farthest,))


def header():
    rows = []
    for name, count, nearest, words in WINDOWS:
        distances = ", ".join(map(str, find(count, nearest)))
        rows.append(f"/// {words}\ninline constexpr std::array<std::size_t, {count}> kCrc32{name}Window = {{{distances}}};")
    return TEXT.format(windows="\n\n".join(rows))


def main(arguments):
    if arguments == ["--check"]:
        found = HEADER.read_text(encoding="utf-8")
        sys.exit(None if found == header() else "crc32_windows.h is not what crc32_windows.py writes")
    if arguments:
        sys.exit(__doc__)
    print(header(), end="")


if __name__ == "__main__":
    main(sys.argv[1:])
