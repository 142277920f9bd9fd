"""Czech bookkeeping: identifiers, banks, days, money, VAT, and encodings.

>>> import ravo
>>> ravo.check.ico("27074358").value
'27074358'
>>> ravo.round_money("12.345")
Decimal('12.35')
"""
from __future__ import annotations

from . import banks, captions, check, checksums, columns, days, encodings, holidays, money, suite, tables, text, vat
from ._error import Error
from ._ravo import build_info
from ._ravo import version as _version
from ._validate import Finding, Findings, optional, validate
from .money import round_money

__version__: str = _version()
"""The version of the library inside."""

__all__ = ["Error", "Finding", "Findings", "banks", "build_info", "captions", "check", "checksums", "columns", "days", "encodings", "holidays",
           "money", "optional", "round_money", "suite", "tables", "text", "validate", "vat"]
