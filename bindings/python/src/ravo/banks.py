"""The central bank's list of banks: which ones there were on its day, and nothing about other days.

>>> from ravo import banks
>>> banks.find("0800").name
'Česká spořitelna, a.s.'
>>> "0800" in banks.BUILT_IN, 1 in banks.BUILT_IN
(True, False)
"""
from __future__ import annotations

from collections.abc import Iterator, Mapping
from datetime import date

from . import _ravo
from ._error import Error
from .check import sentence
from .records import Bank

__all__ = ["BUILT_IN", "Bank", "BankList", "find", "read"]


class BankList(Mapping[int, Bank]):
    """Banks by their code, in ascending order: a mapping that also takes codes as texts ("0800").

    >>> from datetime import date
    >>> banks = read("code;name;BIC;A\\n0800;Spořitelna;GIBACZPX;A\\n", date(2026, 1, 1))
    >>> banks[800].clears, banks["0800"].bic, len(banks), banks.date
    (True, 'GIBACZPX', 1, datetime.date(2026, 1, 1))
    """

    def __init__(self, day: date, banks: list[Bank]) -> None:
        self.date = day
        self._banks = {bank.code: bank for bank in banks}

    def __getitem__(self, code: int | str) -> Bank:
        return self._banks[_number(code)]

    def __contains__(self, code: object) -> bool:
        return isinstance(code, (int, str)) and _number(code) in self._banks

    def __iter__(self) -> Iterator[int]:
        return iter(self._banks)

    def __len__(self) -> int:
        return len(self._banks)

    def __repr__(self) -> str:
        return f"<BankList of {self.date}: {len(self)} banks>"

    def find(self, code: int | str) -> Bank:
        """Returns the bank with a code; ravo.Error ("bank.unknown") if the list does not have it."""
        bank = self._banks.get(_number(code))
        if bank is None:
            raise Error(sentence("bank.unknown"), "bank.unknown")
        return bank


def _number(code: int | str) -> int:
    """Four digits are a code; no bank has the code that other texts become."""
    if isinstance(code, str):
        return int(code) if len(code) == 4 and code.isascii() and code.isdigit() else -1
    return code


def read(text: str, day: date) -> BankList:
    """Returns the list of a day in the central bank's CSV form; ravo.Error at the position of a line that is wrong.

    >>> read("code;name;BIC;A\\n0100;Banka;;\\n", date(2026, 1, 1)).find("0100").name
    'Banka'
    """
    return BankList(*_ravo.bank_list(text, day))


BUILT_IN = BankList(*_ravo.bank_list())
"""The list that the library has inside."""


def find(code: int | str) -> Bank:
    """Returns the bank with a code in the built-in list; ravo.Error ("bank.unknown") if there is none."""
    return BUILT_IN.find(code)
