"""Columns: each form of a column gives what the check of each value gives."""
from __future__ import annotations

import pickle
import subprocess
import sys
from typing import Any

import arrow_columns as arrow
import hypothesis
import hypothesis.strategies as st
import numpy
import pandas  # type: ignore[import]
import pytest
import ravo
from ravo import _sources, columns
from stdnum.cz import dic as rival  # type: ignore[import]

VALUES = ["27074358", "27074359", None, "046 25 781", "", "IČ: 04625781", "á", "1" * 60, None, "00006947"]
KINDS = [*ravo.check.KINDS, "banka"]
FORMS: dict[str, Any] = {
    "list": list,
    "tuple": tuple,
    "bytes": lambda values: [value and value.encode() for value in values],
    "numpy object": lambda values: numpy.array(values, dtype=object),
    "numpy object, every second": lambda values: numpy.array([other for value in values for other in (value, 0)], dtype=object)[::2],
    "pandas object": lambda values: pandas.Series(values, dtype=object),
    "pandas string": lambda values: pandas.Series(values, dtype="string"),
    "pandas category": lambda values: pandas.Series(values, dtype="category"),
    "pandas NaN": lambda values: pandas.Series([float("nan") if value is None else value for value in values], dtype=object),
    "pandas index": lambda values: pandas.Index(values, dtype=object),
    "pandas array": lambda values: pandas.array(values, dtype="string"),
    "masked": lambda values: numpy.ma.masked_array(["27074358" if value is None else value for value in values], [value is None for value in values]),
    "arrow u": lambda values: arrow.offsets(coded(values)),
    "arrow U": lambda values: arrow.offsets(coded(values), "U"),
    "arrow z": lambda values: arrow.offsets(coded(values), "z"),
    "arrow vu": lambda values: arrow.views(coded(values)),
    "arrow w": lambda values: arrow.fixed(coded(values), 64),
    "arrow dictionary": lambda values: arrow.dictionary(coded(values)),
    **{f"arrow dictionary {index}": lambda values, index=index: arrow.dictionary(coded(values), index) for index in "CsSiIlL"},
    "arrow stream": lambda values: arrow.Table([arrow.offsets(coded(values[:4])), arrow.offsets([]), arrow.offsets(coded(values[4:]))]),
}
WHOLE: dict[str, Any] = {
    "numpy S": lambda values: numpy.array([value.encode() for value in values] or [b""]),
    "numpy U": lambda values: numpy.array(values or [""]),
    "numpy S, backwards": lambda values: numpy.array([value.encode() for value in reversed(values)] or [b""])[::-1],
    "numpy U, every second": lambda values: numpy.array([other for value in values for other in (value, "-")] or ["", "-"])[::2],
}


def coded(values: list[str | None]) -> list[bytes | None]:
    return [None if value is None else value.encode() for value in values]


def reasons(values: list[Any], kind: str) -> list[str | None]:
    kind = "account" if kind == "banka" else kind
    return ["missing" if value is None else ravo.check.of(kind, value).reason for value in values]


def found(column: Any, kind: str, **more: int) -> list[str | None]:
    result = columns.check(column, kind, **more)
    return [result.reason(row) for row in range(len(result))]


@pytest.mark.parametrize("kind", KINDS)
@pytest.mark.parametrize("form", FORMS)
def test_form_gives_what_single_checks_give(form: str, kind: str) -> None:
    assert found(FORMS[form](VALUES), kind) == reasons(VALUES, kind)


@pytest.mark.parametrize("form", WHOLE)
def test_array_of_one_width_gives_what_single_checks_give(form: str) -> None:
    values = ["27074358", "27074359", "IČ: 04625781", "€", "\U0001f600", "046 25 781", "x"]
    assert found(WHOLE[form](values), "ico") == reasons(values, "ico")


@pytest.mark.parametrize("threads", [1, 2, 3, 7])
@pytest.mark.parametrize("form", [*FORMS, *WHOLE])
def test_threads_do_not_change_the_answer(form: str, threads: int) -> None:
    values = [f"{number % 101 + 27074300:08}" for number in range(3000)]
    column = (FORMS | WHOLE)[form](values)
    assert found(column, "ico", threads=threads) == reasons(values, "ico")


def test_large_columns_are_shared_out(monkeypatch: pytest.MonkeyPatch) -> None:
    shares: list[int] = []
    share = _sources.run_in_threads
    monkeypatch.setattr(_sources, "run_in_threads", lambda calls: shares.append(len(calls)) or share(calls))  # type: ignore[func-returns-value]
    monkeypatch.setattr("os.sched_getaffinity", lambda _: {0, 1, 2})
    column = numpy.array([b"27074358"] * 600_000 + [b"27074359"])
    assert columns.check(column, "ico").rows() == [600_000]
    assert ravo.validate({"a": column}, {"a": "ico"})[0].index == 600_000
    assert columns.check(column[:499_999], "ico") and columns.check(column, "ico", threads=1).wrong == 1
    assert shares == [2, 2]


def test_what_a_thread_raises_is_raised() -> None:
    def fail() -> tuple[int, int]:
        raise ravo.Error("no", "range")
    for calls in ([lambda: (0, 0), fail], [fail, lambda: (0, 0)]):
        with pytest.raises(ravo.Error):
            _sources.run_in_threads(calls)


@pytest.mark.parametrize("form", [form for form in FORMS if form != "masked"])
def test_column_without_rows(form: str) -> None:
    result = columns.check(FORMS[form]([]), "ico")
    assert (bool(result), len(result), result.nulls) == (True, 0, 0)


@hypothesis.given(st.lists(st.none() | st.text() | st.from_regex(r"[0-9]{8}", fullmatch=True)), st.sampled_from(KINDS))
def test_any_texts(values: list[str | None], kind: str) -> None:
    wanted = reasons(values, kind)
    for form in ("list", "numpy object", "pandas string", "arrow u", "arrow vu", "arrow U"):
        assert found(FORMS[form](values), kind) == wanted, form


@hypothesis.given(st.lists(st.text(st.characters(min_codepoint=1, blacklist_categories=["Cs"])), min_size=1))
def test_any_wide_texts(values: list[str]) -> None:
    assert found(numpy.array(values), "ico") == reasons([str(value) for value in numpy.array(values)], "ico")


@hypothesis.given(st.lists(st.from_regex(r"CZ[0-9]{8}", fullmatch=True)))
def test_rival_agrees_on_company_numbers(values: list[str]) -> None:
    assert [reason is None for reason in found(values, "dic")] == [rival.is_valid(value) for value in values]


def test_known_answers() -> None:
    result = columns.check(["27074358", "27074359", "abc", None], "ico")
    assert list(result.codes) == [0, 104, 102, 65535]
    assert (result.wrong, result.nulls, len(result), bool(result)) == (2, 1, 4, False)
    assert result.rows() == [1, 2] and result.rows(1) == [1]
    assert result.reasons() == {"ico.checksum": 1, "ico.character": 1}
    assert numpy.asarray(result.codes).tolist() == [0, 104, 102, 65535]


def test_blocks_and_long_texts_keep_their_rows() -> None:
    values = ["27074358", "27074359", None, "x" * 100] * 1500
    assert found(values, "ico") == reasons(values, "ico")


def test_text_that_is_no_utf8() -> None:
    assert found(["27074358", "\ud800", b"\xff"], "ico") == [None, "utf8", "utf8"]
    assert found(numpy.array([b"\xff", b"1"]), "ico") == ["utf8", "ico.length"]
    assert found(arrow.offsets([b"\xfe"]), "ico") == ["utf8"]
    wide = numpy.array(["27074358", "x"])
    wide.view(numpy.uint32)[8] = 0x110000
    assert found(wide, "ico") == [None, "utf8"]


def test_column_of_nothing_but_nan_has_no_values() -> None:
    result = columns.check(pandas.Series([float("nan")] * 3), "ico")
    assert (result.nulls, result.wrong, list(result.codes)) == (3, 0, [65535] * 3)


@pytest.mark.parametrize("column", [
    "27074358", b"27074358", bytearray(b"1"), None, 27074358, {"27074358"}, {"a": 1}, iter(["27074358"]), numpy.array([27074358]),
    numpy.array([1.5]), numpy.array([["27074358"]]), numpy.array("27074358"), numpy.array(["2026-01-01"], dtype="datetime64[D]"),
    numpy.array(["27074358"]).astype(">U8"), pandas.Series([27074358]), pandas.Series([1.5, None]), pandas.Series([True]),
    pandas.Series([27074358], dtype="Int64"), pandas.Series([1, 2], dtype="category"), pandas.DataFrame({"a": ["1"]}),
    arrow.Column("l", 1, [None, b"12345678"]), arrow.Batch([arrow.offsets([b"1"])])], ids=lambda column: type(column).__name__)
def test_column_that_is_not_understood_is_refused_by_name(column: Any) -> None:
    with pytest.raises(TypeError, match="understood"):
        columns.check(column, "ico")


@pytest.mark.parametrize(("value", "name"), [(27074358, "int"), (1.5, "float"), (["27074358"], "list"), (True, "bool")])
def test_value_that_is_no_text_is_refused_with_its_row(value: object, name: str) -> None:
    for column in (["27074358", None, value], pandas.Series(["27074358", None, value], dtype=object)):
        with pytest.raises(TypeError, match=rf"^row 2: .* not {name}$"):
            columns.check(column, "ico")


def test_unknown_kind() -> None:
    for column in ([], ["1"], arrow.offsets([b"1"])):
        with pytest.raises(ValueError, match="no kind 'xyz'"):
            columns.check(column, "xyz")


def test_broken_offsets_are_an_error_with_their_row() -> None:
    broken = arrow.Column("u", 2, [None, b"\0\0\0\0\x09\0\0\0\x02\0\0\0", b"12"])
    with pytest.raises(ravo.Error) as caught:
        columns.check(broken, "ico")
    assert (caught.value.code, caught.value.position) == ("range", 0)


def test_slice_of_an_array() -> None:
    whole = arrow.offsets(coded(VALUES))
    whole.array.offset, whole.array.length, whole.array.null_count = 3, 5, -1
    assert found(whole, "ico") == reasons(VALUES[3:8], "ico")


def test_arrays_stay_with_their_owner_and_pieces_of_streams_are_released() -> None:
    column = arrow.offsets(coded(VALUES))
    columns.check(column, "ico")
    assert column.released == []
    table = arrow.Table([arrow.offsets([b"1"]), arrow.offsets([b"2"])])
    columns.check(table, "ico")
    assert sorted(table.pieces[0].released) == ["array", "schema"] and table.pieces[1].released == ["array"]


def test_stream_that_fails() -> None:
    with pytest.raises(ravo.Error, match="the file is broken"):
        columns.check(arrow.Table([arrow.offsets([b"1"])], b"the file is broken"), "ico")


def test_objects_are_let_go() -> None:
    text = "27074358" + str(len(VALUES))
    before = sys.getrefcount(text)
    columns.check([text] * 5000, "ico")
    with pytest.raises(TypeError):
        columns.check([text] * 1500 + [1], "ico")
    assert sys.getrefcount(text) == before


def test_result_is_pickled() -> None:
    result = columns.check(VALUES, "ico")
    copy = pickle.loads(pickle.dumps(result))
    assert repr(copy) == repr(result) and list(copy.codes) == list(result.codes)


def test_lists_need_neither_numpy_nor_pandas() -> None:
    code = "import sys, ravo; ravo.columns.check(['1'], 'ico'); ravo.validate({'a': ['1']}, {'a': 'ico'}); print({'numpy', 'pandas', 'dask'} & {*sys.modules})"
    assert subprocess.run([sys.executable, "-c", code], capture_output=True, text=True, check=True).stdout == "set()\n"
