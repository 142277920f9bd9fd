"""Cleans a ledger: canonical forms in one table, rows with wrong values and the reasons in another.

usage: clean_ledger.py LEDGER.csv CLEAN.csv WRONG.csv
"""
from __future__ import annotations

import sys

import pandas  # type: ignore[import]
import ravo

RULES = {"IČO": "ico", "Účet": "banka", "VS": ravo.optional("vs")}
KINDS = {"IČO": "ico", "Účet": "account", "VS": "vs"}


def canonical(text: str, kind: str) -> str:
    return ravo.check.of(kind, text).value or text


def clean(ledger: pandas.DataFrame) -> tuple[pandas.DataFrame, pandas.DataFrame]:
    """Returns the rows that are right, in canonical form, and the wrong ones with a column of reasons."""
    findings = ravo.validate(ledger, RULES, limit=len(ledger) * len(RULES))
    reasons: dict[int, list[str]] = {}
    for finding in findings:
        reasons.setdefault(finding.index, []).append(f"{finding.column}: {finding.reason}")
    wrong = ledger.loc[list(reasons)].assign(Důvod=[", ".join(one) for one in reasons.values()])
    right = ledger.drop(index=list(reasons))
    for column, kind in KINDS.items():
        right[column] = [canonical(text, kind) if isinstance(text, str) else text for text in right[column]]
    return right, wrong


def main(source: str, clean_file: str, wrong_file: str) -> None:
    right, wrong = clean(pandas.read_csv(source, dtype=str))
    right.to_csv(clean_file, index=False)
    wrong.to_csv(wrong_file, index=False)
    print(f"{len(right)} rows are right, {len(wrong)} are wrong")


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    main(*sys.argv[1:])
