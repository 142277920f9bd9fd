"""Values of Python as the texts that codes have."""
from __future__ import annotations

from . import _ravo
from ._error import Error

LARGEST = 30
"""A Decimal of more digits than this is no amount, and would be a long text."""


def texts(*values: object) -> tuple[str | None, ...]:
    return tuple(value if value is None or isinstance(value, str) else text_of(value) for value in values)


def iban(key: str, account: str | None) -> str | None:
    """The IBAN of a Czech account; another text as it is."""
    if not isinstance(account, str) or "/" not in account:
        return account
    try:
        return _ravo.account_to_iban(account)
    except Error as error:
        raise Error(f"{key}: {error}", error.code, error.position) from None


def text_of(value: object) -> str:
    """A day as "20261121", an amount as "450.00"; TypeError for a float."""
    from datetime import date
    from decimal import Decimal

    if isinstance(value, date):
        return value.isoformat()[:10].replace("-", "")
    if isinstance(value, Decimal):
        return format(value, "f") if value.adjusted() <= LARGEST else str(value)
    if isinstance(value, int) and not isinstance(value, bool):
        return str(value)
    raise TypeError(f"expected str, Decimal, int or date, not {type(value).__qualname__}")
