"""Czech bookkeeping: identifiers, banks, days, money, VAT, encodings.

>>> import ravo
>>> ravo.check.ico("27074358").value
'27074358'
"""
from __future__ import annotations

from . import check
from ._error import Error
from ._ravo import build_info
from ._ravo import version as _version

__version__: str = _version()
__all__ = ["Error", "build_info", "check"]
