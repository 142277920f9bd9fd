"""Validation of frames: which rows have a wrong value in which column."""
from __future__ import annotations

from collections.abc import Callable, Iterator, Mapping, Sequence
from typing import Any, NamedTuple, overload

from . import _ravo, _sources
from ._answers import NULL, reason_of
from .columns import kind_of


class Optional(str):
    """A kind for a column whose rows need not have a value: see optional()."""

    def __repr__(self) -> str:
        return f"optional({super().__repr__()})"


def optional(kind: str) -> Optional:
    """Returns a rule for validate(): no value and an empty text are correct, too.

    >>> validate({"VS": ["2026000579", None, ""]}, {"VS": optional("vs")})
    <Findings: none in 3 rows>
    """
    return Optional(kind)


class Finding(NamedTuple):
    """A wrong value. `index` is the frame's label of the row; the number of the row, if the frame has no labels."""

    index: Any
    column: str
    value: Any
    reason: str


class Findings(Sequence[Finding]):
    """Findings by rows, then by columns. `more` is how many the limit left out, `counts` has them all by column and reason.

    Findings of parts of a frame are added; `limit` of the sum is that of the first.

    >>> found = validate({"IČO": ["27074359"]}, {"IČO": "ico"}) + validate({"IČO": ["27074358", "1"]}, {"IČO": "ico"})
    >>> found
    <Findings: 2 in 3 rows>
    >>> found.counts
    {'IČO': {'ico.checksum': 1, 'ico.length': 1}}
    """

    def __init__(self, found: tuple[Finding, ...] = (), more: int = 0, rows: int = 0, counts: dict[str, dict[str, int]] | None = None,
                 limit: int = 1000) -> None:
        self.found, self.more, self.rows, self.counts, self.limit = found, more, rows, counts or {}, limit

    def __eq__(self, other: object) -> bool:
        return isinstance(other, Findings) and self.__dict__ == other.__dict__

    def __len__(self) -> int:
        return len(self.found)

    @overload
    def __getitem__(self, index: int) -> Finding: ...
    @overload
    def __getitem__(self, index: slice) -> tuple[Finding, ...]: ...
    def __getitem__(self, index: int | slice) -> Finding | tuple[Finding, ...]:
        return self.found[index]

    def __repr__(self) -> str:
        found = len(self.found) + self.more
        left = f", {self.more} of them left out" if self.more else ""
        return f"<Findings: {found or 'none'} in {self.rows} rows{left}>"

    def __add__(self, other: Findings) -> Findings:
        both = self.found + other.found
        return Findings(both[:self.limit], self.more + other.more + max(0, len(both) - self.limit), self.rows + other.rows,
                        added(self.counts, other.counts), self.limit)


def added(first: dict[str, dict[str, int]], second: dict[str, dict[str, int]]) -> dict[str, dict[str, int]]:
    return {column: {reason: first.get(column, {}).get(reason, 0) + second.get(column, {}).get(reason, 0)
                     for reason in sorted({*first.get(column, {}), *second.get(column, {})})}
            for column in dict.fromkeys([*first, *second])}


class Part(NamedTuple):
    """Rows of a frame: the sources of its columns, and the labels of rows."""

    columns: Callable[[str], _sources.Source]
    labels: Callable[[list[int]], list[Any]]


def part_of_pandas(frame: Any) -> Part:
    def column(name: str) -> _sources.Source:
        if name not in frame.columns:
            raise lacking(name, list(frame.columns))
        series = frame[name]
        if series.ndim != 1:
            raise TypeError(f"there are {series.shape[1]} columns {name!r}")
        return _sources.source_of(series)
    return Part(column, lambda rows: list(frame.index[rows].tolist()))


def part_of_mapping(frame: Mapping[str, Any]) -> Part:
    def column(name: str) -> _sources.Source:
        if name not in frame:
            raise lacking(name, list(frame))
        pieces = list(_sources.sources_of(frame[name]))
        if len(pieces) != 1:
            raise TypeError(f"column {name!r} is a stream: pass the stream of the whole table")
        return pieces[0]
    return Part(column, lambda rows: list(rows))


def parts_of_arrow(frame: Any) -> Iterator[Part]:
    before = 0
    for schema, array in _sources.arrays_of(frame):
        def column(name: str, schema: object = schema, array: object = array) -> _sources.Source:
            try:
                return _sources.Arrow(schema, array, name)
            except ValueError as error:
                raise KeyError(f"{error}: {name!r}") if getattr(error, "code", "") == "unknown" else error
        yield Part(column, lambda rows, before=before: [before + row for row in rows])  # type: ignore[misc]
        before += _ravo.array_rows(array)


def lacking(name: str, columns: list[Any]) -> KeyError:
    return KeyError(f"there is no column {name!r}; there are: {', '.join(map(str, columns))}")


def parts_of(frame: Any) -> Iterator[Part]:
    if isinstance(frame, _sources.loaded("pandas", "DataFrame")):
        yield part_of_pandas(frame)
    elif isinstance(frame, Mapping):
        yield part_of_mapping(frame)
    elif _sources.is_arrow(frame):
        yield from parts_of_arrow(frame)
    else:
        raise TypeError(f"a frame of type {type(frame).__qualname__} is not understood; understood are: a DataFrame of pandas, a dict of "
                        "columns, or an object with __arrow_c_array__ or __arrow_c_stream__")


class Wrong(NamedTuple):
    """What is wrong in a column: the first rows, and all reasons."""

    rows: list[tuple[int, int, str, Any, str]]
    reasons: dict[str, int]


def check_column(order: int, name: str, source: _sources.Source, rule: str, limit: int, threads: int | None) -> Wrong:
    lenient = isinstance(rule, Optional)
    kind = kind_of(str(rule))
    codes, wrong, nulls = _sources.check_source(source, kind, threads)
    if wrong == 0 and (lenient or nulls == 0):
        return Wrong([], {})
    passed = (NULL, empty_code(kind)) if lenient else (0, 0)
    rows, counts = _ravo.find_codes(codes, *passed, limit)
    return Wrong([(row, order, name, None if codes[row] == NULL else source.value(row), str(reason_of(codes[row]))) for row in rows],
                 {str(reason_of(code)): count for code, count in counts.items()})


def empty_code(kind: str) -> int:
    return _ravo.reason_of(f"{kind}.empty")


def findings_of(part: Part, rules: Mapping[str, str], limit: int, room: int, threads: int | None) -> Findings:
    sources = {name: part.columns(name) for name in rules}
    lengths = {source.rows for source in sources.values()}
    if len(lengths) > 1:
        raise ValueError("the columns do not have the same number of rows: " + ", ".join(f"{name}: {one.rows}" for name, one in sources.items()))
    columns = {name: check_column(order, name, sources[name], rule, room, threads) for order, (name, rule) in enumerate(rules.items())}
    first = sorted((row for one in columns.values() for row in one.rows), key=lambda row: row[:2])[:room]
    labels = part.labels([row[0] for row in first]) if first else []
    found = tuple(Finding(label, *row[2:]) for label, row in zip(labels, first))
    total = sum(sum(one.reasons.values()) for one in columns.values())
    return Findings(found, total - len(found), max(lengths, default=0), {name: dict(sorted(one.reasons.items())) for name, one in columns.items()
                                                                        if one.reasons}, limit)


def validate(frame: Any, rules: Mapping[str, str], *, limit: int = 1000, threads: int | None = None) -> Findings:
    """Returns which rows of a frame have a wrong value, at most `limit`, with the count of what was left out.

    A frame is a DataFrame of pandas, a dict of columns, or a table that speaks Arrow (__arrow_c_stream__). `rules` has a
    kind for each column to check, or optional(kind); a row without a value is "missing", unless its column is optional.
    KeyError if there is no such column, TypeError for what is not understood.

    >>> frame = {"IČO": ["27074358", "27074359", None], "VS": ["1", None, "x"]}
    >>> for finding in validate(frame, {"IČO": "ico", "VS": optional("vs")}):
    ...     print(*finding)
    1 IČO 27074359 ico.checksum
    2 IČO None missing
    2 VS x vs.character
    """
    if limit < 0:
        raise ValueError(f"limit is below 0: {limit}")
    findings = Findings(limit=limit)
    for part in parts_of(frame):
        findings += findings_of(part, rules, limit, limit - len(findings), threads)
    return findings


