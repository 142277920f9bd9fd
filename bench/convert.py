#!/usr/bin/env python3
"""Times `ravo convert` against iconv and uconv on 100 MB of Czech text, from Windows-1250 to UTF-8 and back, and
against cat, which only copies the file.

usage: convert.py RAVO FOLDER REPORT      (FOLDER keeps the files between runs)

The programs run in turn, several times, each into a file. Prints the medians of processor and wall time, and their
ratios. REPORT has every run, in the format of the other benchmarks.
"""

import pathlib
import random
import sys

from whole_program import Times, measure, report

SIZE = 100_000_000
WORDS = ("účet předkontace zákazník dodavatel faktura částka splatnost úhrada daňový doklad pokladna banka příjem výdej sklad "
         "zboží a v na je se s pro 2026 12500,00 Kč;").split()


def czech_text(folder, codec):
    """A file of lines of six to sixteen words: about a megabyte, repeated."""
    file = folder / f"czech-{codec}.txt"
    if not file.exists():
        generator = random.Random(20240229)
        lines = [" ".join(generator.choices(WORDS, k=generator.randint(6, 16))) + "\r\n" for _ in range(13_000)]
        piece = "".join(lines).encode(codec)
        file.write_bytes(piece * (SIZE // len(piece)))
    return file


def commands(ravo, folder):
    """Each job, and the command of each program for it."""
    for job, codec, source, to in (("1250 to UTF-8", "cp1250", "CP1250", "UTF-8"), ("UTF-8 to 1250", "utf-8", "UTF-8", "CP1250")):
        file = str(czech_text(folder, codec))
        yield job, {
            "ravo": [ravo, "convert", "-f", source, "-t", to, file],
            "iconv": ["iconv", "-f", source, "-t", to, file],
            "uconv": ["uconv", "-f", source, "-t", to, file],
            "cat": ["cat", file],
        }


def main(ravo, folder, report_file):
    folder = pathlib.Path(folder)
    times: Times = {}
    for job, programs in commands(ravo, folder):
        times |= measure(job, programs, folder)
    report(times, report_file)
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
