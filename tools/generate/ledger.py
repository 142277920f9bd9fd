#!/usr/bin/env python3
"""Writes the sample ledger: a few hundred invented rows, in UTF-8 and in Windows-1250.

usage: ledger.py [--check] [--rows N --output FILE]

Without options it writes samples/ledger.csv and samples/ledger-1250.csv; --check compares them instead and exits 1 when
they differ. With --rows it writes a ledger of any length, without faults, for benchmarks. The same run gives the same
bytes everywhere.
"""

import argparse
import pathlib
import random
import sys

SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"
HEADER = "Doklad;Datum;Účet MD;Účet D;Částka;VS;Protiúčet;EAN;Text"
TEXTS = ["Nákup zboží", "Prodej zboží", "Nájemné", "Spotřeba energie", "Poštovné; balné", "Oprava vozidla", "Školení",
         'Kancelářské potřeby "A4"', "Telefon a připojení", "Pohonné hmoty"]
ACCOUNTS = ["111", "112001", "132", "211", "221001", "311", "321", "343", "501", "502100", "511", "518", "604"]
# Rows of the sample that hold a fault, and in which column.
FAULTS = {17: ("Účet MD", "50"), 58: ("VS", "2026000579"), 103: ("Protiúčet", "19-2000145398/0800"),
          166: ("EAN", "8590000000018"), 231: ("Účet D", "31a"), 240: ("VS", "20260024O7")}


def luhn(digits):
    """The digits with the check digit that makes the reference valid."""
    total = 0
    for place, digit in enumerate(reversed(digits)):
        value = int(digit) * (2 if place % 2 == 0 else 1)
        total += value // 10 + value % 10
    return digits + str(-total % 10)


def ean(digits):
    total = sum(int(digit) * (3 if place % 2 else 1) for place, digit in enumerate(digits))
    return digits + str(-total % 10)


def bank_account(source):
    """A base number of ten digits whose weighted sum is divisible by 11."""
    while True:
        digits = str(source.randrange(10**9, 10**10))
        if sum(int(digit) * pow(2, 10 - place, 11) for place, digit in enumerate(digits)) % 11 == 0:
            return f"{digits}/{source.choice(['0100', '0300', '0800', '2010'])}"


def quoted(text):
    return '"' + text.replace('"', '""') + '"' if any(mark in text for mark in ';"') else text


def row(source, number):
    return {
        "Doklad": f"FP26{number:06d}",
        "Datum": f"2026-{source.randrange(1, 13):02d}-{source.randrange(1, 29):02d}",
        "Účet MD": source.choice(ACCOUNTS),
        "Účet D": source.choice(ACCOUNTS),
        "Částka": f"{source.randrange(1, 100000)},{source.randrange(100):02d}",
        "VS": luhn(f"2026{number % 100000:05d}") if source.randrange(10) else "",
        "Protiúčet": bank_account(source) if source.randrange(5) else "",
        "EAN": ean(f"859{source.randrange(10**9):09d}") if source.randrange(3) == 0 else "",
        "Text": quoted(source.choice(TEXTS)),
    }


def ledger(rows, faults):
    source = random.Random(2026)
    yield HEADER
    for number in range(1, rows + 1):
        fields = row(source, number)
        if number in faults:
            name, value = faults[number]
            fields[name] = value
        yield ";".join(fields.values())


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--rows", type=int)
    parser.add_argument("--output", type=pathlib.Path)
    options = parser.parse_args()
    if options.rows:
        with open(options.output, "w", encoding="utf-8", newline="") as file:
            file.writelines(line + "\r\n" for line in ledger(options.rows, {}))
        return 0
    text = "".join(line + "\r\n" for line in ledger(300, FAULTS))
    status = 0
    for name, encoding in (("ledger.csv", "utf-8"), ("ledger-1250.csv", "cp1250")):
        content = text.encode(encoding)
        if not options.check:
            (SAMPLES / name).write_bytes(content)
        elif (SAMPLES / name).read_bytes() != content:
            print(f"samples/{name} is not what tools/generate/ledger.py writes", file=sys.stderr)
            status = 1
    return status


if __name__ == "__main__":
    sys.exit(main())
