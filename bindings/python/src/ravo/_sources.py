"""What columns are checked from: each kind of column as a source, read where it is."""
from __future__ import annotations

import sys

from . import _ravo
from ._answers import NULL

TYPE_CHECKING = False
if TYPE_CHECKING:
    from collections.abc import Callable, Iterator, Sequence
    from typing import Any, Protocol

    class Source(Protocol):
        """Rows of texts: what checks them, and what one of them is."""

        rows: int
        threads: bool

        def check(self, kind: str, first: int, count: int, codes: memoryview) -> Counts: ...

        def value(self, row: int) -> object: ...

        def column(self) -> Described: ...

ROWS_OF_A_THREAD = 250_000
UNDERSTOOD = ("list or tuple of str, numpy array (S, U, object), pandas Series (object, string, category), "
              "or an object with __arrow_c_array__ or __arrow_c_stream__")

# Numbers of layouts in ravo.h.
OFFSETS_64, FIXED, NUMBERS = 2, 4, 7

UNDERSTOOD_AMOUNTS = "int64 of ten-thousandths (Arrow, numpy, array, memoryview), or objects: Decimal, str, int"
UNDERSTOOD_DAYS = "days since 1970 (Arrow date32 and int32, numpy int32 and datetime64), or objects: datetime.date"

Counts = tuple[int, int]

Described = tuple[object, ...]
"""A column for ravo.h: (schema, array, field) of Arrow; or (layout, width, rows, values, data, validity)."""


class Objects:
    """Texts of Python, in a list, a tuple, or an array of objects."""

    threads = False  # the interpreter's lock is held

    def __init__(self, memory: Any, values: Sequence[object]) -> None:
        self.memory, self.values, self.rows = memory, values, len(values)

    def check(self, kind: str, first: int, count: int, codes: memoryview) -> Counts:
        return _ravo.check_objects(kind, self.memory, missing(), first, count, codes)

    def value(self, row: int) -> object:
        return self.values[row]

    def column(self) -> Described:
        return OFFSETS_64, 0, self.rows, *_ravo.pack_texts(self.memory, missing())


class Fixed:
    """Bytes (s) or characters (w) of one width, as numpy has them."""

    threads = True

    def __init__(self, view: memoryview, form: str, values: Sequence[object]) -> None:
        self.memory = view if view.c_contiguous else view.tobytes()
        self.call, self.width = (_ravo.check_fixed, view.itemsize) if form == "s" else (_ravo.check_wide, view.itemsize // 4)
        self.values, self.rows = values, len(view)

    def check(self, kind: str, first: int, count: int, codes: memoryview) -> Counts:
        return self.call(kind, self.memory, self.width, first, count, codes)

    def value(self, row: int) -> object:
        return text_of(bytes(value)) if isinstance(value := self.values[row], bytes) else str(value)

    def column(self) -> Described:
        if self.call == _ravo.check_fixed:
            return FIXED, self.width, self.rows, self.memory, None, None
        return Objects(texts := list(map(str, self.values)), texts).column()


class Empty:
    """Rows without a value."""

    threads = False

    def __init__(self, rows: int) -> None:
        self.rows = rows

    def check(self, kind: str, first: int, count: int, codes: memoryview) -> Counts:
        codes[:count] = memoryview(b"\xff\xff" * count).cast("H")
        return 0, count

    def value(self, row: int) -> object:
        return None

    def column(self) -> Described:
        return Objects(nothing := [None] * self.rows, nothing).column()


class Categories:
    """A categorical column of pandas: each category is checked once."""

    threads = False

    def __init__(self, values: Any) -> None:
        self.indices = values.codes
        self.entries = source_of(values.categories)
        self.texts = values
        self.rows = len(self.indices)

    def check(self, kind: str, first: int, count: int, codes: memoryview) -> Counts:
        import numpy

        entries = memoryview(bytearray(2 * self.entries.rows)).cast("H")
        self.entries.check(kind, 0, self.entries.rows, entries)
        # The index -1, which is no value, is the last one.
        answers = numpy.append(numpy.asarray(entries), numpy.uint16(NULL))[self.indices[first:first + count]]
        numpy.asarray(codes)[:count] = answers
        nulls = int(numpy.count_nonzero(answers == NULL))
        return int(numpy.count_nonzero(answers)) - nulls, nulls

    def value(self, row: int) -> object:
        return self.entries.value(self.indices[row])

    def column(self) -> Described:
        return Objects(texts := list(self.texts), texts).column()


class Arrow:
    """An array of Arrow, or a field of a batch."""

    threads = True

    def __init__(self, schema: object, array: object, field: str | None) -> None:
        self.parts = schema, array, field
        self.rows = _ravo.arrow_rows(schema, array, field)

    def check(self, kind: str, first: int, count: int, codes: memoryview) -> Counts:
        return _ravo.check_arrow(kind, *self.parts, first, count, codes)

    def value(self, row: int) -> object:
        return text_of(_ravo.arrow_bytes(*self.parts, row))

    def column(self) -> Described:
        return self.parts


def text_of(value: bytes) -> str | bytes:
    """Bytes that are no UTF-8 are shown as they are."""
    try:
        return value.decode()
    except UnicodeDecodeError:
        return value


def missing() -> tuple[object, ...]:
    """What stands for no value beside None and NaN, if pandas is there."""
    pandas = sys.modules.get("pandas")
    return () if pandas is None else (pandas.NA, pandas.NaT)


def loaded(module: str, *names: str) -> tuple[type, ...]:
    """Types of a package, if the program has loaded it: an object of such a type cannot come otherwise."""
    package = sys.modules.get(module)
    return tuple(getattr(package, name) for name in names if hasattr(package, name))


def refuse(column: object, why: str = "", understood: str = UNDERSTOOD) -> TypeError:
    return TypeError(f"a column of type {type(column).__qualname__}{why} is not understood; understood are: {understood}")


def of_series(column: Any) -> Source:
    pandas = sys.modules["pandas"]
    kind = column.dtype
    if isinstance(kind, pandas.CategoricalDtype):
        return Categories(column.array)
    if kind == object or getattr(kind, "type", None) is str:
        return source_of(column.to_numpy(dtype=object))
    if column.isna().all():
        return Empty(len(column))
    raise refuse(column, f" ({kind}: numbers have lost their leading zeros; read the column as text)" if kind.kind in "iuf" else f" ({kind})")


def form_of(layout: str) -> str:
    """s, w or O: bytes, characters or objects in the machine's order; empty for every other layout of a buffer."""
    order = "@=" if sys.byteorder == "big" else "@=<"
    form = (layout[1:] if layout.startswith(tuple(order)) else layout).lstrip("0123456789")
    return form if form in ("s", "w", "O") else ""


def of_buffer(column: Any) -> Source:
    masked = sys.modules.get("numpy.ma")
    if masked is not None and isinstance(column, masked.MaskedArray):
        mask, column = masked.getmaskarray(column), column.data.astype(object)
        column[mask] = None
    try:
        view = memoryview(column)
    except (TypeError, ValueError, BufferError):
        raise refuse(column, f" ({column.dtype})" if hasattr(column, "dtype") else "") from None
    form = form_of(view.format)
    if form == "" or view.ndim != 1:
        raise refuse(column, f" ({view.ndim} dimensions of format {view.format!r})")
    if view.itemsize == 0:
        return Objects([""] * len(view), column)
    if form == "O":
        return Objects(view if view.c_contiguous else view.tobytes(), column)
    return Fixed(view, form, column)


def source_of(column: Any) -> Source:
    """Returns the source of a column that is in one piece; TypeError if it is none."""
    if isinstance(column, (list, tuple)):
        return Objects(column, column)
    if isinstance(column, loaded("pandas", "Series", "Index")):
        return of_series(column)
    if isinstance(column, (str, bytes, bytearray)) or column is None:
        raise refuse(column)
    if isinstance(column, loaded("pandas.api.extensions", "ExtensionArray")):
        return of_series(sys.modules["pandas"].Series(column, copy=False))
    return of_buffer(column)


def is_arrow(column: object) -> bool:
    return not isinstance(column, loaded("pandas", "Series", "Index", "DataFrame")) and \
        (hasattr(column, "__arrow_c_array__") or hasattr(column, "__arrow_c_stream__"))


def arrays_of(column: Any) -> Iterator[tuple[object, object]]:
    """Schema and array of each piece of an object that speaks Arrow."""
    if hasattr(column, "__arrow_c_array__"):
        yield column.__arrow_c_array__()
        return
    stream = column.__arrow_c_stream__()
    schema = _ravo.stream_schema(stream)
    while (array := _ravo.stream_next(stream)) is not None:
        yield schema, array


def sources_of(column: Any) -> Iterator[Source]:
    """The pieces of a column: one, unless it is a stream of Arrow."""
    if not is_arrow(column):
        yield source_of(column)
        return
    for schema, array in arrays_of(column):
        yield Arrow(schema, array, None)


def columns_of(column: Any) -> tuple[Described, ...]:
    """The pieces of a column of texts."""
    return tuple(source.column() for source in sources_of(column))


def amounts_of(column: Any) -> tuple[Described, ...]:
    """The pieces of a column of amounts: int64 in ten-thousandths where it is memory, objects as amounts are given."""
    return numbers_of(column, 8, lambda objects: _ravo.pack_amounts(objects, missing()), UNDERSTOOD_AMOUNTS)


def days_of(column: Any) -> tuple[Described, ...]:
    """The pieces of a column of days: int32 since 1970 where it is memory, objects as datetime.date."""
    array = column.to_numpy() if isinstance(column, loaded("pandas", "Series", "Index")) else column
    if isinstance(array, loaded("numpy", "ndarray")) and array.dtype.kind == "M":
        return (of_moments(array),)
    return numbers_of(array, 4, lambda objects: _ravo.pack_days(objects, missing()), UNDERSTOOD_DAYS)


def of_moments(array: Any) -> Described:
    """Moments of numpy as days, each by its own date; a day that no 32 bits have is out of every range."""
    numpy = sys.modules["numpy"]
    days = array.astype("datetime64[D]").astype("int64")
    limits = numpy.iinfo("int32")
    validity = numpy.packbits(~numpy.isnat(array), bitorder="little").tobytes()
    return NUMBERS, 4, len(array), days.clip(limits.min, limits.max).astype("int32").tobytes(), None, validity


def numbers_of(column: Any, width: int, pack: Callable[[Any], tuple[bytearray, bytearray, bytearray]], understood: str) -> tuple[Described, ...]:
    if is_arrow(column):
        return tuple((schema, array, None) for schema, array in arrays_of(column))
    if isinstance(column, loaded("pandas", "Series", "Index")):
        column = column.to_numpy()
    if isinstance(column, (list, tuple)):
        values, _, validity = pack(column)
        return ((NUMBERS, width, len(column), values, None, validity),)
    try:
        view = memoryview(column)
    except (TypeError, ValueError, BufferError):
        raise refuse(column, understood=understood) from None
    if view.ndim != 1 or not is_signed(view.format, view.itemsize, width):
        if view.ndim == 1 and form_of(view.format) == "O":
            return numbers_of(list(column), width, pack, understood)
        raise refuse(column, f" ({view.ndim} dimensions of format {view.format!r})", understood)
    return ((NUMBERS, width, len(view), view if view.c_contiguous else view.tobytes(), None, None),)


def is_signed(layout: str, size: int, width: int) -> bool:
    """Whether the items of a buffer are signed numbers of a width in the machine's order."""
    order = "@=" if sys.byteorder == "big" else "@=<"
    return size == width and (layout[1:] if layout.startswith(tuple(order)) else layout) in ("i", "l", "q")


def threads_for(rows: int) -> int:
    """One for each processor that the process may use, if each has enough to do to be worth its start."""
    import os

    processors = len(os.sched_getaffinity(0)) if hasattr(os, "sched_getaffinity") else os.cpu_count() or 1
    return max(1, min(processors, rows // ROWS_OF_A_THREAD))


def check_source(source: Source, kind: str, threads: int | None = None) -> tuple[memoryview, int, int]:
    """Returns the codes of the rows, and how many are wrong and null."""
    codes = memoryview(bytearray(2 * source.rows)).cast("H")
    threads = threads_for(source.rows) if threads is None else threads
    if threads <= 1 or not source.threads or source.rows < threads:
        return codes, *source.check(kind, 0, source.rows, codes)
    slices = [(source.rows * i // threads, source.rows * (i + 1) // threads) for i in range(threads)]
    counts = run_in_threads([lambda first=first, end=end: source.check(kind, first, end - first, codes[first:end])  # type: ignore[misc]
                             for first, end in slices])
    return codes, sum(wrong for wrong, _ in counts), sum(nulls for _, nulls in counts)


def run_in_threads(calls: list[Callable[[], Counts]]) -> list[Counts]:
    """The answers of calls that run beside each other: the first one in this thread. What one raises is raised."""
    from threading import Thread

    answers: dict[int, Counts | BaseException] = {}

    def run(index: int) -> None:
        try:
            answers[index] = calls[index]()
        except BaseException as error:
            answers[index] = error

    threads = [Thread(target=run, args=(index,)) for index in range(1, len(calls))]
    for thread in threads:
        thread.start()
    run(0)
    for thread in threads:
        thread.join()
    return [answer_of(answers[index]) for index in range(len(calls))]


def answer_of(answer: Counts | BaseException) -> Counts:
    if isinstance(answer, BaseException):
        raise answer
    return answer
