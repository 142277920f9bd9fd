"""Czech VAT: rates and ways of computing the tax since 1993, with the days on which they are in force.

>>> from datetime import date
>>> from ravo import vat
>>> vat.compute("1000", 21)
VatAmounts(base=Decimal('1000.00'), tax=Decimal('210.00'), total=Decimal('1210.00'), half=False)
>>> vat.percent_on(date(2012, 6, 1), vat.VatKind.REDUCED)
14
"""
from __future__ import annotations

from collections.abc import Iterable
from datetime import date

from . import _ravo
from .money import Amount
from .records import VatAmounts, VatKind, VatMethod, VatPer, VatRate, VatRow, VatSummary, VatWay

__all__ = ["VatAmounts", "VatKind", "VatMethod", "VatPer", "VatRate", "VatRow", "VatSummary", "VatWay", "compute", "is_lawful", "kind_on",
           "percent_on", "rates", "recapitulate", "ways"]


def rates() -> list[VatRate]:
    """Returns all rates, former ones included, by their first day.

    >>> rates()[0].percent
    23
    """
    return [_ravo.vat_rate_at(index) for index in range(_ravo.vat_rate_count())]


def ways() -> list[VatWay]:
    """Returns the ways of computing the tax, with the days on which they are lawful.

    >>> all(way.first <= way.last for way in ways())
    True
    """
    return [_ravo.vat_way_at(index) for index in range(_ravo.vat_way_count())]


def percent_on(day: date, kind: VatKind) -> int:
    """Returns the percentage of a kind of rate on a day; ravo.Error ("rate.unknown") if it was not in force."""
    return _ravo.vat_percent_on(day, kind)


def kind_on(day: date, percent: int) -> VatKind:
    """Returns the kind of a percentage on a day; ravo.Error ("unknown") if there was no such rate.

    >>> kind_on(date(2026, 1, 1), 12)
    <VatKind.REDUCED: 2>
    """
    return _ravo.vat_kind_on(day, percent)


def is_lawful(method: VatMethod, day: date) -> bool:
    """Returns whether a way of computing the tax is lawful on a day.

    >>> is_lawful(VatMethod.TOTAL_BY_COEFFICIENT, date(2026, 1, 1))
    False
    """
    return _ravo.vat_is_lawful(method, day)


def compute(amount: Amount, percent: int, method: VatMethod = VatMethod.BASE) -> VatAmounts:
    """Returns base, tax and total of an amount, which the method says to be a base or a total.

    >>> compute("1210", 21, VatMethod.TOTAL).tax
    Decimal('210.00')
    """
    return _ravo.vat_compute(amount, percent, method)


def recapitulate(lines: Iterable[tuple[Amount, VatKind]], day: date, method: VatMethod = VatMethod.BASE,
                 per: VatPer = VatPer.DOCUMENT) -> VatSummary:
    """Returns the recapitulation of a document's lines by the rates of a day; ravo.Error at the index of a wrong line.

    >>> summary = recapitulate([("100", VatKind.STANDARD), ("50", VatKind.REDUCED)], date(2026, 1, 1))
    >>> summary.rows[VatKind.STANDARD].tax, summary.sum.total
    (Decimal('21.00'), Decimal('177.00'))
    """
    return _ravo.vat_recapitulate(list(lines), method, per, day)
