"""What calls over whole columns answer."""
from __future__ import annotations

from typing import Generic, TypeVar

from . import _ravo

TYPE_CHECKING = False
if TYPE_CHECKING:
    from collections.abc import Callable, Iterator
    from typing import Any

T = TypeVar("T")

MISSING = "missing"
"""The reason of a row that has no value, though it has to have one."""

NOT_UTF8 = "utf8"
"""The reason of a value that is not UTF-8."""

NO_DATE = "date"
"""The reason of a value that is not written as a date."""

UNKNOWN = "unknown"
"""The reason of a value that is the name of nothing."""

MALFORMED = "malformed"
"""The reason of bytes that are no character of their encoding."""

LACKING = "lacking"
"""The reason of a text with a character that the encoding lacks."""

NULL = 65535
_REASONS = {65530: LACKING, 65531: MALFORMED, 65532: UNKNOWN, 65533: NO_DATE, 65534: NOT_UTF8, NULL: MISSING}


def reason_of(code: int) -> str | None:
    """Returns the name of the code of a row; None if the row is correct.

    >>> reason_of(104), reason_of(65535), reason_of(0)
    ('ico.checksum', 'missing', None)
    """
    return _REASONS.get(code) or _ravo.reason_name(code)


class Answers:
    """What is said about the rows of a column: true if none is wrong. Rows without a value are counted apart."""

    def __init__(self, codes: memoryview, wrong: int, nulls: int) -> None:
        self.codes, self.wrong, self.nulls = codes, wrong, nulls

    def __bool__(self) -> bool:
        return self.wrong == 0

    def __len__(self) -> int:
        return len(self.codes)

    def reason(self, row: int) -> str | None:
        """Returns why a row is wrong; None if it is correct, "missing" if it has no value."""
        return reason_of(self.codes[row])

    def rows(self, limit: int | None = None) -> list[int]:
        """Returns the rows that are wrong, at most `limit`, in their order."""
        return _ravo.find_codes(self.codes, NULL, 0, len(self) if limit is None else limit)[0]

    def reasons(self) -> dict[str, int]:
        """Returns how many rows are wrong for each reason.

        >>> from ravo import columns
        >>> columns.check(["27074359", "abc", "x", None], "ico").reasons()
        {'ico.character': 2, 'ico.checksum': 1}
        """
        return {str(reason_of(code)): count for code, count in _ravo.find_codes(self.codes, NULL, 0, 0)[1].items()}


class Column(Answers, Generic[T]):
    """A column that was made of another one: a sequence with None for each row that is wrong or has no value.

    `values` has the numbers of a column of numbers, else where the text of each row begins in `data`, and where the last
    one ends. `__arrow_c_array__` shares this memory.

    >>> from ravo import columns
    >>> days = columns.parse_days(["1. 1. 1970", "x"])
    >>> bool(days), days.wrong, days.to_list(), list(days.values)
    (False, 1, [datetime.date(1970, 1, 1), None], [0, 0])
    """

    def __init__(self, format: str, codes: memoryview, wrong: int, nulls: int, values: bytes | bytearray, data: bytes | bytearray) -> None:
        super().__init__(codes, wrong, nulls)
        kind, self._shown = _FORMATS[format]
        self.format = format
        self.values = memoryview(values).toreadonly().cast(kind)
        self.data = memoryview(data).toreadonly()

    def __getitem__(self, row: int) -> T | None:
        row = range(len(self))[row]
        return None if self.codes[row] else self._shown(self, row)

    def __iter__(self) -> Iterator[T | None]:
        return map(self.__getitem__, range(len(self)))

    def __repr__(self) -> str:
        return f"<Column of Arrow's {self.format!r}: {len(self)} rows, {self.wrong} wrong, {self.nulls} without a value>"

    def __reduce__(self) -> tuple[Any, ...]:
        return _restored, (self.format, self.codes.tobytes(), self.wrong, self.nulls, self.values.tobytes(), self.data.tobytes())

    def __arrow_c_array__(self, requested_schema: object = None) -> tuple[object, object]:
        """Returns the capsules of the Arrow PyCapsule interface; the type is always the column's own."""
        buffers = _ravo.validity_of(self.codes), self.values, self.data
        return _ravo.arrow_of(self.format, len(self), self.wrong + self.nulls, buffers if self.format in ("U", "Z") else buffers[:2])

    def to_list(self) -> list[T | None]:
        """Returns the rows, None for those that are wrong or have no value."""
        return list(self)


def _restored(format: str, codes: bytes, wrong: int, nulls: int, values: bytes, data: bytes) -> Column[Any]:
    return Column(format, memoryview(bytearray(codes)).cast("H"), wrong, nulls, values, data)


def _bytes(column: Column[Any], row: int) -> bytes:
    return column.data[column.values[row]:column.values[row + 1]].tobytes()


def _amount(column: Column[Any], row: int) -> object:
    """At least two decimals, as amounts have them everywhere."""
    from decimal import Decimal

    number = column.values[row]
    places = 2 if number % 100 == 0 else 3 if number % 10 == 0 else 4
    return Decimal((number < 0, tuple(map(int, str(abs(number) // 10 ** (4 - places)))), -places))


def _day(column: Column[Any], row: int) -> object:
    from datetime import date

    return date.fromordinal(column.values[row] + 719163)


# How the memory of a format is read, and what a row of it is in Python.
_FORMATS: dict[str, tuple[str, Callable[[Column[Any], int], Any]]] = {
    "U": ("q", lambda column, row: _bytes(column, row).decode()),
    "Z": ("q", _bytes),
    "l": ("q", _amount),
    "tdD": ("i", _day),
    "i": ("i", lambda column, row: column.values[row]),
    "I": ("I", lambda column, row: column.values[row]),
}
