"""Czech bookkeeping: identifiers, banks, days, money, VAT, invoices, payment codes, and encodings.

>>> import ravo
>>> ravo.check.ico("27074358").value
'27074358'
>>> ravo.round_money("12.345")
Decimal('12.35')

Each module is imported when it is first used.
"""
from __future__ import annotations

import codecs
import sys

from ._error import Error
from ._ravo import build_info
from ._ravo import version as _version

TYPE_CHECKING = False
if TYPE_CHECKING:
    from . import banks, captions, check, checksums, columns, days, encodings, holidays, isdoc, money, order, payments, random, suite, tables, text, vat, xml
    from ._report import report
    from ._validate import Finding, Findings, optional, validate
    from .money import round_money

__version__: str = _version()
"""The version of the library inside."""

__all__ = ["Error", "Finding", "Findings", "banks", "build_info", "captions", "check", "checksums", "columns", "days", "encodings", "holidays",
           "isdoc", "money", "optional", "order", "payments", "random", "report", "round_money", "suite", "tables", "text", "validate", "vat", "xml"]

_HOMES = {"Finding": "_validate", "Findings": "_validate", "optional": "_validate", "report": "_report", "validate": "_validate", "round_money": "money"}


def __getattr__(name: str) -> object:
    """Imports a module of the package, or the one that has a function of this name."""
    if name not in __all__:
        raise AttributeError(f"module {__name__!r} has no attribute {name!r}")
    import importlib

    home = importlib.import_module(f"{__name__}.{_HOMES.get(name, name)}")
    found = getattr(home, name) if name in _HOMES else home
    setattr(sys.modules[__name__], name, found)
    return found


def __dir__() -> list[str]:
    return sorted({*globals(), *__all__})


def _codec(name: str) -> codecs.CodecInfo | None:
    """The codec of a name that begins with ravo_; None for every other one."""
    if not name.startswith("ravo_"):
        return None
    from .encodings import codec

    return codec(name)


codecs.register(_codec)
