"""The tables of the suite, by their identifiers.

>>> from ravo import tables
>>> tables.name(71710)
'Účetní deník'
"""
from __future__ import annotations

from . import _ravo
from .records import SuiteTable

__all__ = ["SuiteTable", "find", "known", "name"]


def name(identifier: int) -> str | None:
    """Returns the Czech name of a table; None if there is no such table.

    >>> name(1) is None
    True
    """
    return _ravo.suite_table_name(identifier)


def find(identifier: int) -> SuiteTable:
    """Returns the row of a table; ravo.Error ("unknown") if there is no such table.

    >>> find(71710).name
    'Účetní deník'
    """
    return _ravo.suite_table_find(identifier)


def known() -> list[SuiteTable]:
    """Returns all tables, by module, then by identifier.

    >>> find(71710) in known()
    True
    """
    return [_ravo.suite_table_at(index) for index in range(_ravo.suite_table_count())]
