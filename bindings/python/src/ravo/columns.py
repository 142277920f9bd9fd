"""Checks of whole columns: where lists, numpy, pandas and Arrow have them, without a copy.

>>> from ravo import columns
>>> result = columns.check(["27074358", "27074359", None], "ico")
>>> result
<ColumnCheck 'ico': 3 rows, 1 wrong, 1 without a value>
>>> result.rows(), result.reason(1)
([1], 'ico.checksum')

A column is a list or tuple of str, an array of numpy (S, U, object), a Series of pandas (object, string, category), or
whatever has __arrow_c_array__ or __arrow_c_stream__. Anything else is a TypeError. Neither numpy nor pandas is imported.
"""
from __future__ import annotations

from . import _ravo, _sources

TYPE_CHECKING = False
if TYPE_CHECKING:
    from typing import Any

MISSING = "missing"
"""The reason of a row that has no value, though it has to have one."""

NOT_UTF8 = "utf8"
"""The reason of a value that is not UTF-8."""

_ALIASES = {"banka": "account"}

__all__ = ["MISSING", "NOT_UTF8", "ColumnCheck", "check", "reason_of"]


def reason_of(code: int) -> str | None:
    """Returns the name of the code of a row; None if the row is correct.

    >>> reason_of(104), reason_of(65535), reason_of(0)
    ('ico.checksum', 'missing', None)
    """
    return {_sources.NULL: MISSING, _sources.NOT_UTF8: NOT_UTF8}.get(code) or _ravo.reason_name(code)


def kind_of(name: str) -> str:
    """Returns the name of a kind by this name or another one; ValueError if there is none."""
    found = _ALIASES.get(name, name)
    _ravo.check_objects(found, (), (), 0, 0, bytearray())
    return found


class ColumnCheck:
    """What a check says about a column: true if no row is wrong. Rows without a value are counted apart.

    `codes` has the code of each row, 0 if it is correct: numpy.asarray(result.codes) == 0 is a mask.

    >>> result = check(["27074358", "abc"], "ico")
    >>> bool(result), len(result), result.wrong, result.nulls, list(result.codes)
    (False, 2, 1, 0, [0, 102])
    """

    def __init__(self, kind: str, codes: memoryview, wrong: int, nulls: int) -> None:
        self.kind, self.codes, self.wrong, self.nulls = kind, codes, wrong, nulls

    def __bool__(self) -> bool:
        return self.wrong == 0

    def __len__(self) -> int:
        return len(self.codes)

    def __repr__(self) -> str:
        return f"<ColumnCheck {self.kind!r}: {len(self)} rows, {self.wrong} wrong, {self.nulls} without a value>"

    def __reduce__(self) -> tuple[Any, ...]:
        return _restored, (self.kind, self.codes.tobytes(), self.wrong, self.nulls)

    def reason(self, row: int) -> str | None:
        """Returns why a row is wrong; None if it is correct, "missing" if it has no value."""
        return reason_of(self.codes[row])

    def rows(self, limit: int | None = None) -> list[int]:
        """Returns the rows that are wrong, at most `limit`, in their order."""
        return _ravo.find_codes(self.codes, _sources.NULL, 0, len(self) if limit is None else limit)[0]

    def reasons(self) -> dict[str, int]:
        """Returns how many rows are wrong for each reason.

        >>> check(["27074359", "abc", "x", None], "ico").reasons()
        {'ico.character': 2, 'ico.checksum': 1}
        """
        return {str(reason_of(code)): count for code, count in _ravo.find_codes(self.codes, _sources.NULL, 0, 0)[1].items()}


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
