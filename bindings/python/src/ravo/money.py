"""Amounts, exact: Decimal, str or int in, Decimal out, and never a float.

All products are exact, and each result is rounded once. An amount has at most four decimals and fits 64 bits of
ten-thousandths; other ones are ravo.Error.
"""
from __future__ import annotations

from decimal import Decimal

from . import _ravo
from .records import Rounding

__all__ = ["Amount", "Rounding", "format", "read", "round_money", "times_rate", "times_ratio", "to_crowns"]

Amount = Decimal | str | int
"""What amounts may be given as. A str is plain digits with a point."""


def round_money(amount: Amount, step: Amount = "0.01", rounding: Rounding = Rounding.HALF_AWAY) -> Decimal:
    """Returns an amount rounded to a multiple of `step`.

    >>> round_money("12.345"), round_money(Decimal("12.5"), 1), round_money("12.30", "0.5", Rounding.TOWARD)
    (Decimal('12.35'), Decimal('13.00'), Decimal('12.00'))
    >>> round_money(1.1)
    Traceback (most recent call last):
        ...
    TypeError: expected Decimal, str or int, not float
    """
    return _ravo.money_round(amount, step, rounding)


def times_ratio(amount: Amount, numerator: int, denominator: int, step: Amount = "0.01", rounding: Rounding = Rounding.HALF_AWAY) -> Decimal:
    """Returns an amount times `numerator` / `denominator`, rounded to a multiple of `step`.

    >>> times_ratio("1000", 21, 121)
    Decimal('173.55')
    """
    return _ravo.money_times_ratio(amount, numerator, denominator, step, rounding)


def times_rate(amount: Amount, rate: Amount, step: Amount = "0.01", rounding: Rounding = Rounding.HALF_AWAY) -> Decimal:
    """Returns an amount times a rate of at most four decimals, rounded to a multiple of `step`.

    >>> times_rate("100", "25.34")
    Decimal('2534.00')
    """
    return _ravo.money_times_rate(amount, rate, step, rounding)


def to_crowns(amount: Amount, rounding: Rounding = Rounding.HALF_AWAY) -> tuple[Decimal, Decimal]:
    """Returns an amount in whole crowns, and the rounded amount less the given one.

    >>> to_crowns("12.30")
    (Decimal('12.00'), Decimal('-0.30'))
    """
    return _ravo.money_to_crowns(amount, rounding)


def format(amount: Amount, separator: str = ",", places: int = 2) -> str:
    """Returns an amount in plain digits, with at least `places` decimals, 0 to 4, and at most four.

    >>> format("12.5"), format(Decimal("12.125"), ".", 0)
    ('12,50', '12.125')
    """
    return _ravo.money_format(amount, _character(separator), places)


def read(text: str, separator: str = ",") -> Decimal:
    """Returns the amount that a whole text is: a sign, digits, a separator, at most four decimals; ravo.Error if it is none.

    >>> read("-12,50")
    Decimal('-12.50')
    """
    return _ravo.money_read(text, _character(separator))


def _character(separator: str) -> int:
    if len(separator) != 1:
        raise ValueError("the separator is one character")
    return ord(separator)
