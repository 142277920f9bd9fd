"""Reads payment data from letters in a folder, and lists each account with its IBAN, its bank and the variable symbol.

usage: payment_orders.py FOLDER
"""
from __future__ import annotations

import pathlib
import sys

import ravo


def orders(letter: str) -> list[tuple[str, str, str, str]]:
    """Returns account, IBAN, bank and variable symbol of each account in a letter."""
    found = ravo.check.payments(letter)
    symbol = next((one.canonical for one in found if one.kind == "vs"), "")
    return [(one.canonical, ravo.check.account_to_iban(one.canonical), bank_of(one.canonical), symbol) for one in found if one.kind == "account"]


def bank_of(account: str) -> str:
    bank = ravo.banks.BUILT_IN.get(ravo.check.account_parts(account).bank)
    return bank.name if bank else "unknown bank"


def main(folder: str) -> None:
    for file in sorted(pathlib.Path(folder).glob("*.txt")):
        for order in orders(file.read_text()):
            print(file.name, *order, sep="\t")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
