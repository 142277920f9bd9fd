"""Columns that are made of columns: each row is what the call for one value gives."""
from __future__ import annotations

import array
import ctypes
import datetime
import gc
import pickle
import threading
import zlib
from collections.abc import Callable
from decimal import Decimal
from typing import Any

import arrow_columns as arrow
import numpy
import pandas  # type: ignore[import]
import pytest
import ravo
from hypothesis import given
from hypothesis import strategies as some
from ravo import columns
from ravo.money import Rounding
from test_columns import FORMS, VALUES, WHOLE, coded

BANKS = ["0800", "19-2000145399/0800", "9999", "", None, "žluťoučký", "0100", "2010", "x" * 60, None]
DAYS = ["21. 11. 2026", "2026-11-21", "31.2.2026", None, "", "abc", "20261121", "1.1.0001", " 9.9.1999 ", "31. 12. 9999"]


def one(call: Callable[..., Any], *arguments: Any) -> Any:
    """What a call gives, None if it refuses."""
    try:
        return None if arguments[0] is None else call(*arguments)
    except ravo.Error:
        return None


def value_of(kind: str) -> Callable[[str], Any]:
    return lambda value: ravo.check.of(kind, value).value


@pytest.mark.parametrize("form", FORMS)
def test_form_gives_what_single_calls_give(form: str) -> None:
    make = FORMS[form]
    assert columns.canonical(make(VALUES), "ico").to_list() == [one(value_of("ico"), value) for value in VALUES]
    assert columns.respell(make(VALUES), "ico").to_list() == [one(lambda value: ravo.check.respell("ico", value), value) for value in VALUES]
    assert columns.parse_days(make(DAYS)).to_list() == [one(ravo.days.read, value) for value in DAYS]
    found = columns.banks(make(BANKS)).to_list()
    assert found == [one(lambda value: ravo.banks.find(value.rpartition("/")[2]).name, value) for value in BANKS]
    assert list(columns.crc32(make(VALUES))) == [zlib.crc32((value or "").encode()) for value in VALUES]


@pytest.mark.parametrize("form", WHOLE)
def test_array_of_one_width_gives_what_single_calls_give(form: str) -> None:
    values = ["27074358", "IČ: 04625781", "€", "\U0001f600", "046 25 781", "x"]
    assert columns.canonical(WHOLE[form](values), "ico").to_list() == [value_of("ico")(value) for value in values]
    assert list(columns.crc32(WHOLE[form](values))) == [zlib.crc32(value.encode()) for value in values]


@pytest.mark.parametrize("kind", ravo.check.KINDS)
def test_kinds(kind: str) -> None:
    values = ["27074358", "CZ6508000000192000145399", "19-2000145399/0800", "8801251680", "GIBACZPX", "11000", "4006381333931", "0306406152", "ATU13585627"]
    made = columns.canonical(values, kind)
    assert made.to_list() == [value_of(kind)(value) for value in values] and made.wrong == made.to_list().count(None)
    assert list(made.codes) == list(columns.check(values, kind).codes)


@given(some.lists(some.none() | some.text(max_size=30), max_size=30))
def test_texts_of_any_length(values: list[str | None]) -> None:
    windows = columns.encode(values, "windows-1250", "replace")
    wanted = [None if value is None else value.encode("ravo_windows_1250", "replace") for value in values]
    assert windows.to_list() == wanted
    assert columns.decode(windows, "windows-1250").to_list() == [None if value is None else value.decode("ravo_windows_1250") for value in wanted]


def test_results_longer_than_their_guess() -> None:
    long = ["\0" * 5000, "€" * 70_000, "", None] * 3
    made = columns.encode(long, "utf-16le")
    assert made.to_list() == [value if value is None else value.encode("utf-16le") for value in long]
    assert columns.decode(made, "utf-16le").to_list() == long


def test_conversion_refuses_by_rows() -> None:
    made: columns.Column[Any] = columns.encode(["a", "☃", None, "ž"], "cp852")
    assert (made.to_list(), made.reasons(), made.wrong, made.nulls) == ([b"a", None, None, b"\xa7"], {"lacking": 1}, 1, 1)
    made = columns.decode([b"\xff", "ž".encode()], "utf-8")
    assert (made.to_list(), made.reason(0), made.rows()) == ([None, "ž"], "malformed", [0])
    assert columns.decode([b"\xff"], "utf-8", "replace")[0] == "\ufffd"
    for call in (columns.encode, columns.decode):
        with pytest.raises(ValueError):
            call(["a"], "utf-8", "ignore")
        with pytest.raises(ravo.Error):
            call(["a"], "nothing")


AMOUNTS = some.none() | some.decimals(-10**12, 10**12, places=4)


@given(some.lists(AMOUNTS, max_size=30), some.sampled_from(list(Rounding)), some.sampled_from(["0.01", "0.5", "1", "10"]))
def test_amounts(amounts: list[Decimal | None], rounding: Rounding, step: str) -> None:
    wanted = [one(ravo.round_money, amount, step, rounding) for amount in amounts]
    thousandths = numpy.array([0 if amount is None else int(amount * 10000) for amount in amounts], dtype="int64")
    made = columns.round_money(amounts, step, rounding)
    assert made.to_list() == wanted and [str(amount) for amount in made] == [str(amount) for amount in wanted]
    memory = columns.round_money(thousandths, step, rounding)
    assert memory.nulls == 0 and memory.to_list() == [ravo.round_money("0") if amount is None else amount for amount in wanted]
    assert list(memory.values) == list(made.values)
    assert columns.round_money(made, step, rounding).to_list() == wanted


def test_forms_of_amounts() -> None:
    wanted = [Decimal("12.35"), Decimal("-0.01")]
    forms: list[Any] = [["12.345", Decimal("-0.0050")], ("12.345", "-0.005"), array.array("q", [123450, -50]), numpy.array([123450, 9, -50, 9])[::2],
                        pandas.Series([123450, -50]), pandas.Series([Decimal("12.345"), Decimal("-0.005")]), memoryview(array.array("q", [123450, -50])),
                        arrow.Column("l", 2, [None, array.array("q", [123450, -50]).tobytes()]),
                        arrow.Table([arrow.Column("l", 1, [None, array.array("q", [number]).tobytes()]) for number in (123450, -50)])]
    for form in forms:
        assert columns.round_money(form).to_list() == wanted, type(form)
    assert columns.round_money([1, None, float("nan"), pandas.NA]).to_list() == [Decimal(1), None, None, None]
    for wrong in ([1.5], ["1", True], numpy.array([1.5]), numpy.array([1], dtype="int32"), pandas.Series(["a"]).astype("category"), "text", b"12345678", 5,
                  numpy.zeros((2, 2), dtype="int64")):
        with pytest.raises((TypeError, ravo.Error)):
            columns.round_money(wrong)


def test_amounts_out_of_range() -> None:
    largest = 2**63 - 1
    made = columns.round_money(array.array("q", [largest, 5]), 1, Rounding.AWAY)
    assert (made.to_list(), made.reason(0)) == ([None, Decimal("1.00")], "money.range")
    with pytest.raises(ravo.Error) as raised:
        columns.round_money(["1", "2", "1e400"])
    assert raised.value.position == 2
    for step in (0, -1):
        with pytest.raises(ravo.Error):
            columns.round_money(["1"], step)


@given(some.lists(some.none() | some.dates(), max_size=30), some.sampled_from(list(ravo.days.DateForm)))
def test_days(days: list[datetime.date | None], form: ravo.days.DateForm) -> None:
    wanted = [day and ravo.days.format(day, form) for day in days]
    written = columns.format_days(days, form)
    assert written.to_list() == wanted
    read = columns.parse_days(written)
    assert read.to_list() == days and columns.format_days(read, form).to_list() == wanted
    moments = numpy.array(days, dtype="datetime64[D]")
    assert columns.format_days(moments, form).to_list() == wanted
    assert [None if code else day for code, day in zip(read.codes, numpy.asarray(read.values).astype("datetime64[D]").tolist())] == days


def test_forms_of_days() -> None:
    wanted = ["21. 11. 2026", "31. 12. 1969"]
    days = [datetime.date(2026, 11, 21), datetime.date(1969, 12, 31)]
    moments = pandas.Series([datetime.datetime(2026, 11, 21, 23, 59), datetime.datetime(1969, 12, 31, 1)])
    forms: list[Any] = [days, tuple(days), numpy.array([20778, -1], dtype="int32"), array.array("i", [20778, -1]), moments, pandas.Series(days),
                        numpy.array(moments), arrow.Column("tdD", 2, [None, array.array("i", [20778, -1]).tobytes()])]
    for form in forms:
        assert columns.format_days(form).to_list() == wanted, type(form)
    assert columns.format_days(pandas.Series([pandas.NaT, moments[0]])).to_list() == [None, wanted[0]]
    made = columns.format_days(numpy.array(["99999-01-01", "2026-11-21"], dtype="datetime64[D]"))
    assert (made.to_list(), made.reason(0)) == ([None, wanted[0]], "day.range")
    for wrong in (["2026-11-21"], [20778], numpy.array([20778]), numpy.array(["2026-11-21"]), 5):
        with pytest.raises(TypeError):
            columns.format_days(wrong)
    with pytest.raises(ValueError):
        columns.format_days(days, 7)


def test_tables() -> None:
    names = [ravo.tables.name(71710), "nic", None]
    made = columns.tables(names)
    assert (made.to_list(), made.reason(1), made.reason(2)) == ([71710, None, None], "unknown", "missing")


def test_columns_as_sequences() -> None:
    made = columns.canonical(["27074358", "x", None], "ico")
    assert (made[0], made[-3], made[1], len(made), bool(made), list(made)) == ("27074358", "27074358", None, 3, False, made.to_list())
    for row in (3, -4):
        with pytest.raises(IndexError):
            made[row]
    assert repr(made) == "<Column of Arrow's 'U': 3 rows, 1 wrong, 1 without a value>"
    copy = pickle.loads(pickle.dumps(made))
    assert copy.to_list() == made.to_list() and (copy.wrong, copy.nulls) == (1, 1) and copy.reason(1) == made.reason(1)
    assert columns.canonical([], "ico").to_list() == [] and columns.parse_days([]).to_list() == []
    with pytest.raises(TypeError):
        made.values[0] = 1


pointer_of = ctypes.pythonapi.PyCapsule_GetPointer
pointer_of.restype = ctypes.c_void_p
pointer_of.argtypes = [ctypes.py_object, ctypes.c_char_p]


def taken(column: columns.Column[Any]) -> tuple[arrow.Schema, arrow.Array]:
    """The structs, moved out of their capsules, as whoever imports them does."""
    moved: list[Any] = []
    for capsule, name, kind in zip(column.__arrow_c_array__(), (b"arrow_schema", b"arrow_array"), (arrow.Schema, arrow.Array)):
        place = kind.from_address(pointer_of(capsule, name))
        moved.append(kind.from_buffer_copy(place))
        place.release = None
    return moved[0], moved[1]


def test_arrays_of_arrow_live_until_they_are_released() -> None:
    values = ["27074358", "x", None, "04625781"] * 1000
    schema, made = taken(columns.canonical(values, "ico"))
    gc.collect()
    assert (schema.format, schema.flags, made.length, made.null_count, made.n_buffers) == (b"U", 2, 4000, 2000, 3)
    validity, offsets, data = (ctypes.c_void_p * 3).from_address(made.buffers)
    assert ctypes.string_at(validity, 500) == b"\x99" * 500
    ends = (ctypes.c_int64 * 4001).from_address(offsets)
    assert list(ends[:6]) == [0, 8, 8, 8, 16, 24] and ctypes.string_at(data, 16) == b"2707435804625781"
    release = ctypes.CFUNCTYPE(None, ctypes.c_void_p)
    # Whoever releases it may be a thread of its own.
    thread = threading.Thread(target=lambda: release(made.release)(ctypes.addressof(made)))
    thread.start()
    thread.join()
    release(schema.release)(ctypes.addressof(schema))
    assert made.release is None and schema.release is None


def test_arrow_of_numbers() -> None:
    made_columns: list[tuple[columns.Column[Any], bytes, int]] = [(columns.parse_days(["1.1.1970"]), b"tdD", 2), (columns.round_money(["1"]), b"l", 2), (columns.tables(["x"]), b"i", 2),
                                                                      
                                  (columns.crc32(["x"]), b"I", 2), (columns.encode(["x"], "cp852"), b"Z", 3)]
    for column, form, buffers in made_columns:
        schema, made = taken(column)
        assert (schema.format, made.n_buffers, made.length) == (form, buffers, 1)
        for one_struct in (schema, made):
            ctypes.CFUNCTYPE(None, ctypes.c_void_p)(one_struct.release)(ctypes.addressof(one_struct))


def refusal(call: Callable[[], object]) -> tuple[object, ...]:
    """Why a call is refused. Nothing keeps its frames, which have capsules: they must not outlive what they were made of."""
    try:
        return "taken", call()
    except ravo.Error as error:
        return error.code, error.position
    except TypeError as error:
        return TypeError, "understood" in str(error)


def test_broken_arrow_is_refused() -> None:
    numbers, text, nested = arrow.Column("l", 1, [None, b"12345678"]), arrow.offsets([b"a"]), arrow.Column("+l", 0, [None])
    backwards = arrow.Column("u", 1, [None, b"\5\0\0\0\1\0\0\0", b"abcdef"])
    assert refusal(lambda: columns.round_money(text)) == refusal(lambda: columns.format_days(nested)) == (TypeError, True)
    assert refusal(lambda: columns.canonical(numbers, "ico")) == refusal(lambda: columns.check(numbers, "ico")) == (TypeError, True)
    assert refusal(lambda: columns.crc32(arrow.Table([arrow.offsets([b"a", b"b"]), backwards]))) == ("range", 2)


def test_lists_that_change_under_a_call() -> None:
    class Loud(datetime.date):
        def toordinal(self) -> int:
            changing.clear()
            return super().toordinal()

    changing: list[Any] = [Loud(2026, 1, 1), *[datetime.date(2026, 1, 2)] * 100]
    with pytest.raises(IndexError):
        columns.format_days(changing)


def test_codes_of_many_rows_are_whole() -> None:
    values = coded(VALUES) * 5000
    made = columns.canonical(arrow.Table([arrow.offsets(values), arrow.offsets(values)]), "ico")
    assert made.to_list() == [None if value is None else value_of("ico")(value.decode()) for value in values] * 2
