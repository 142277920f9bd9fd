#!/usr/bin/env python3
"""Checks a folder of electronic invoices: a line for each finding, and for each invoice without an error the payments that
it asks for, as texts of QR codes.

usage: check_invoices.py FOLDER     (files *.isdoc, also below)
"""
from __future__ import annotations

import pathlib
import sys

import ravo
from ravo import isdoc, payments


def report(file: pathlib.Path, invoice: isdoc.Invoice) -> None:
    for finding in invoice.findings:
        grave = "error" if finding.severity else "note"
        print(f"{file.name}:{finding.line}:{finding.column}: {grave}: {isdoc.sentence(finding)} [{finding.name}]")
    # The other types are credit notes, deposits and the like.
    for payment in invoice.payments if invoice and invoice.head.type == "1" else ():
        if payment.iban:
            symbol = payment.variable_symbol or None
            print(f"{file.name}: {payments.spayd(payment.iban, amount=payment.amount, currency=invoice.head.currency, variable_symbol=symbol)}")


def main(folder: str) -> int:
    """Returns how many files have an error."""
    bad = 0
    for file in sorted(pathlib.Path(folder).rglob("*.isdoc")):
        try:
            invoice = isdoc.open(file)
        except ravo.Error as error:
            print(f"{file.name}: error: {error}")
            bad += 1
            continue
        report(file, invoice)
        bad += not invoice
    return bad


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(1 if main(sys.argv[1]) else 0)
