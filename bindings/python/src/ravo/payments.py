"""The texts of Czech QR codes: payments (SPAYD) and invoices (SID), written and read.

Values are plain: percent signs, asterisks and what is not ASCII are encoded and decoded. A day is a datetime.date, an
amount a Decimal, str or int, and never a float. An account is an IBAN or a Czech account, which becomes its IBAN.

>>> from datetime import date
>>> code = spayd("19-2000145399/0800", amount="450.00", variable_symbol="2026000579", due=date(2026, 12, 31))
>>> code
'SPD*1.0*ACC:CZ6508000000192000145399*AM:450.00*DT:20261231*X-VS:2026000579'
>>> read(code).values["AM"]
'450.00'
>>> sid("2026/1", date(2026, 11, 21), amount=-450, supplier_ico="04625781")
'SID*1.0*ID:2026/1*DD:20261121*AM:-450*INI:04625781'

An invoice in a payment is its code, without what the payment says: spayd(account, invoice=sid(..., inside=True)).
"""
from __future__ import annotations

from . import _ravo
from ._codes import sid, spayd
from .records import PaymentCode

__all__ = ["Code", "PaymentCode", "read", "sid", "spayd"]


class Code:
    """What a code says: which of the two it is, and its values by their keys, in the order of the code."""

    __slots__ = ("kind", "values")

    def __init__(self, kind: PaymentCode, values: dict[str, str]) -> None:
        self.kind, self.values = kind, values

    def __eq__(self, other: object) -> bool:
        return isinstance(other, Code) and (self.kind, list(self.values.items())) == (other.kind, list(other.values.items()))

    __hash__ = None  # type: ignore[assignment]

    def __repr__(self) -> str:
        return f"<Code {self.kind.name}: {self.values}>"


def read(text: str) -> Code:
    """Returns what a code says; ravo.Error at the place in the text that is wrong. A checksum is compared.

    >>> read("SPD*1.0*ACC:CZ6508000000192000145399*MSG:zbo%C5%BE%C3%AD")
    <Code SPAYD: {'ACC': 'CZ6508000000192000145399', 'MSG': 'zboží'}>
    """
    kind, values = _ravo.payment_code(text)
    return Code(kind, dict(values))
