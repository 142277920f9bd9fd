"""Checks of whole columns, where lists, numpy, pandas and Arrow have them, and columns that are made of them.

>>> from ravo import columns
>>> result = columns.check(["27074358", "27074359", None], "ico")
>>> result
<ColumnCheck 'ico': 3 rows, 1 wrong, 1 without a value>
>>> result.rows(), result.reason(1)
([1], 'ico.checksum')

A column is a list or tuple of str, an array of numpy (S, U, object), a Series of pandas (object, string, category), or
whatever has __arrow_c_array__ or __arrow_c_stream__. Anything else is a TypeError. Neither numpy nor pandas is imported.

A column that is made is a Column: rows of Python, or __arrow_c_array__, which shares its memory with whatever speaks Arrow.
"""
from __future__ import annotations

import sys

from . import _ravo, _sources
from ._answers import LACKING, MALFORMED, MISSING, NO_DATE, NOT_UTF8, UNKNOWN, Answers, Column, reason_of

TYPE_CHECKING = False
if TYPE_CHECKING:
    from datetime import date
    from decimal import Decimal
    from typing import Any

    from .money import Amount

_ALIASES = {"banka": "account"}

__all__ = ["LACKING", "MALFORMED", "MISSING", "NOT_UTF8", "NO_DATE", "UNKNOWN", "Answers", "Column", "ColumnCheck", "banks", "canonical", "check",
           "crc32", "decode", "encode", "format_days", "parse_days", "reason_of", "respell", "round_money", "tables"]


def kind_of(name: str) -> str:
    """Returns the name of a kind by this name or another one; ValueError if there is none."""
    found = _ALIASES.get(name, name)
    _ravo.check_objects(found, (), (), 0, 0, bytearray())
    return found


class ColumnCheck(Answers):
    """What a check says about a column: true if no row is wrong. Rows without a value are counted apart.

    `codes` has the code of each row, 0 if it is correct: numpy.asarray(result.codes) == 0 is a mask.

    >>> result = check(["27074358", "abc"], "ico")
    >>> bool(result), len(result), result.wrong, result.nulls, list(result.codes)
    (False, 2, 1, 0, [0, 102])
    """

    def __init__(self, kind: str, codes: memoryview, wrong: int, nulls: int) -> None:
        super().__init__(codes, wrong, nulls)
        self.kind = kind

    def __repr__(self) -> str:
        return f"<ColumnCheck {self.kind!r}: {len(self)} rows, {self.wrong} wrong, {self.nulls} without a value>"

    def __reduce__(self) -> tuple[Any, ...]:
        return _restored, (self.kind, self.codes.tobytes(), self.wrong, self.nulls)


def _restored(kind: str, codes: bytes, wrong: int, nulls: int) -> ColumnCheck:
    return ColumnCheck(kind, memoryview(bytearray(codes)).cast("H"), wrong, nulls)


def check(column: Any, kind: str, *, threads: int | None = None) -> ColumnCheck:
    """Checks each row of a column for the kind with a name; "banka" is another name of "account".

    None, NaN and pandas.NA are no value. Arrow and arrays of numpy without objects are checked without the interpreter's
    lock, by `threads` threads: by default one for each processor and 250,000 rows. A column that is not
    understood is a TypeError, an unknown kind a ValueError.

    >>> check(("19-2000145399/0800", b"19-2000145398/0800"), "banka").rows()
    [1]
    """
    name = kind_of(kind)
    pieces = [_sources.check_source(source, name, threads) for source in _sources.sources_of(column)]
    codes = pieces[0][0] if len(pieces) == 1 else memoryview(bytearray(b"".join(piece[0] for piece in pieces))).cast("H")
    return ColumnCheck(name, codes, sum(piece[1] for piece in pieces), sum(piece[2] for piece in pieces))


def _made(name: str, format: str, columns: tuple[_sources.Described, ...], *options: int, understood: str = _sources.UNDERSTOOD) -> Column[Any]:
    try:
        codes, values, data, wrong, nulls = _ravo.column_values(name, options, columns)
    except TypeError as error:
        raise TypeError(f"{error}; understood are: {understood}") from None
    return Column(format, memoryview(codes).cast("H"), wrong, nulls, values, data)


def _number_of(kind: str) -> int:
    return _ravo.kinds().index(kind_of(kind)) + 1


def canonical(column: Any, kind: str) -> Column[str]:
    """Returns the canonical form of each row of a column, for the kind with a name.

    >>> canonical(["IČ: 270 74 358", "27074359", None], "ico").to_list()
    ['27074358', None, None]
    """
    return _made("canonical", "U", _sources.columns_of(column), _number_of(kind))


def respell(column: Any, kind: str) -> Column[str]:
    """Returns the usual spelling of each row of a column, for the kind with a name.

    >>> respell(["CZ6508000000192000145399"], "iban")[0]
    'CZ65 0800 0000 1920 0014 5399'
    """
    return _made("respelled", "U", _sources.columns_of(column), _number_of(kind))


def banks(column: Any) -> Column[str]:
    """Returns the name of the bank of each row, by the list inside: a bank code of four digits, or after a slash.

    >>> found = banks(["0800", "19-2000145399/0800", "9999"])
    >>> found[1], found.reason(2)
    ('Česká spořitelna, a.s.', 'bank.unknown')
    """
    return _made("banks", "U", _sources.columns_of(column))


def tables(column: Any) -> Column[int]:
    """Returns the number of the suite's table with the name in each row, the first if it has several.

    >>> found = tables(["Účetní deník", "účetní deník"])
    >>> found.to_list(), found.reason(1)
    ([71710, None], 'unknown')
    """
    return _made("tables", "i", _sources.columns_of(column))


def round_money(column: Any, step: Amount = "0.01", rounding: int = 0) -> Column[Decimal]:
    """Returns each amount of a column rounded to a multiple of `step`, by a ravo.money.Rounding.

    Lists and arrays of objects have Decimal, str or int. Memory of int64 (Arrow, numpy, array) has ten-thousandths, as the
    result's `values` have them.

    >>> rounded = round_money(["12.345", None, 7])
    >>> rounded.to_list(), list(rounded.values)
    ([Decimal('12.35'), None, Decimal('7.00')], [123500, 0, 70000])
    >>> from array import array
    >>> round_money(array("q", [123450]))[0]
    Decimal('12.35')
    """
    from .records import Rounding

    values, _, _ = _ravo.pack_amounts((step,), ())
    return _made("rounded", "l", _sources.amounts_of(column), int.from_bytes(values, sys.byteorder, signed=True), Rounding(rounding),
                 understood=_sources.UNDERSTOOD_AMOUNTS)


def parse_days(column: Any) -> Column[date]:
    """Returns the day of each row, a date as people write it; `values` are days since 1970, as date32 of Arrow has them.

    >>> days = parse_days(["21. 11. 2026", "31.2.2026", "abc"])
    >>> days[0], days.reason(1), days.reason(2), days.values[0]
    (datetime.date(2026, 11, 21), 'day.range', 'date', 20778)
    """
    return _made("days read", "tdD", _sources.columns_of(column))


def format_days(column: Any, form: int = 1) -> Column[str]:
    """Returns each day of a column as a text, in a form of ravo.days.DateForm: Czech, if none is given.

    A column has datetime.date, days since 1970 of 32 bits (Arrow date32, numpy int32), or datetime64.

    >>> from datetime import date
    >>> format_days([date(2026, 11, 21), None]).to_list()
    ['21. 11. 2026', None]
    >>> format_days(parse_days(["21. 11. 2026"]), form=0)[0]
    '2026-11-21'
    """
    from .records import DateForm

    return _made("days written", "U", _sources.days_of(column), DateForm(form), understood=_sources.UNDERSTOOD_DAYS)


def _converted(format: str, column: Any, source: str, target: str, errors: str) -> Column[Any]:
    policy = {"strict": _ravo.CONVERT_STRICT, "replace": _ravo.CONVERT_REPLACE}.get(errors)
    if policy is None:
        raise ValueError(f"errors is strict or replace, not {errors!r}")
    pair = _ravo.encoding_find(source), _ravo.encoding_find(target)
    _ravo.convert(pair[0], b"", pair[1], policy)  # refuses what cannot be read or written
    return _made("converted", format, _sources.columns_of(column), *pair, policy)


def decode(column: Any, encoding: str, errors: str = "strict") -> Column[str]:
    """Returns the texts of a column of bytes, each a whole text in an encoding that ravo.encodings.find knows.

    `errors` is "strict" or "replace". A row that cannot be decoded is wrong, with the reason "malformed".

    >>> decode([b"k\\xf9\\xf2", None], "windows-1250").to_list()
    ['kůň', None]
    """
    return _converted("U", column, encoding, "utf-8", errors)


def encode(column: Any, encoding: str, errors: str = "strict") -> Column[bytes]:
    """Returns the bytes of a column of texts in an encoding; a row with a character that it lacks is wrong: "lacking".

    >>> encoded = encode(["kůň", "☃"], "cp852")
    >>> encoded[0], encoded.reason(1), encode(["☃"], "cp852", "replace")[0]
    (b'k\\x85\\xe5', 'lacking', b'?')
    """
    return _converted("Z", column, "utf-8", encoding, errors)


def crc32(column: Any) -> Column[int]:
    """Returns the CRC-32 of the bytes of each row, of str those in UTF-8; 0 for a row without a value.

    >>> [hex(sum) for sum in crc32([b"123456789", None])]
    ['0xcbf43926', '0x0']
    """
    return _made("checksums", "I", _sources.columns_of(column))
