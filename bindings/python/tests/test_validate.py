"""Validation of frames."""
from __future__ import annotations

import pickle
from typing import Any

import arrow_columns as arrow
import hypothesis
import hypothesis.strategies as st
import pandas  # type: ignore[import]
import pytest
import ravo

FRAME: dict[str, Any] = {"IČO": ["27074358", "27074359", None, "x"], "VS": ["1", None, "", "x"], "Popis": ["a", "b", "c", "d"]}
RULES = {"IČO": "ico", "VS": ravo.optional("vs")}
WANTED = [(1, "IČO", "27074359", "ico.checksum"), (2, "IČO", None, "missing"), (3, "IČO", "x", "ico.character"), (3, "VS", "x", "vs.character")]


def batch(frame: dict[str, Any], first: int, end: int) -> arrow.Batch:
    return arrow.Batch([arrow.offsets([value and value.encode() for value in values[first:end]], name=name) for name, values in frame.items()])


FRAMES: dict[str, Any] = {
    "dict": lambda frame: frame,
    "pandas": pandas.DataFrame,
    "pandas string": lambda frame: pandas.DataFrame(frame, dtype="string"),
    "pandas category": lambda frame: pandas.DataFrame(frame, dtype="category"),
    "batch": lambda frame: batch(frame, 0, 4),
    "stream": lambda frame: arrow.Table([batch(frame, 0, 1), batch(frame, 1, 3), batch(frame, 3, 4)]),
}


@pytest.mark.parametrize("form", FRAMES)
def test_findings_of_every_frame(form: str) -> None:
    findings = ravo.validate(FRAMES[form](FRAME), RULES)
    assert [*findings] == WANTED
    assert (findings.more, findings.rows) == (0, 4)
    assert findings.counts == {"IČO": {"ico.character": 1, "ico.checksum": 1, "missing": 1}, "VS": {"vs.character": 1}}


@pytest.mark.parametrize("form", FRAMES)
@pytest.mark.parametrize("limit", range(6))
def test_limit_leaves_out_the_last_findings(form: str, limit: int) -> None:
    findings = ravo.validate(FRAMES[form](FRAME), RULES, limit=limit)
    assert [*findings] == WANTED[:limit] and findings.more == max(0, 4 - limit)


def test_labels_are_those_of_the_frame() -> None:
    frame = pandas.DataFrame(FRAME, index=["a", "b", "c", "d"])
    assert [one.index for one in ravo.validate(frame, RULES)] == ["b", "c", "d", "d"]
    frame.index = pandas.MultiIndex.from_tuples([(2026, number) for number in range(4)])
    assert [one.index for one in ravo.validate(frame, RULES)] == [(2026, 1), (2026, 2), (2026, 3), (2026, 3)]
    assert type(ravo.validate(pandas.DataFrame(FRAME, index=[5, 6, 7, 8]), RULES)[0].index) is int


def test_valid_frame_has_no_findings() -> None:
    findings = ravo.validate({"Účet": ["19-2000145399/0800"], "VS": [None]}, {"Účet": "banka", "VS": ravo.optional("vs")})
    assert not findings and findings.counts == {} and repr(findings) == "<Findings: none in 1 rows>"


def test_column_that_is_not_there() -> None:
    for frame in FRAMES.values():
        with pytest.raises(KeyError, match="DIČ"):
            ravo.validate(frame(FRAME), {"DIČ": "dic"})


def test_frames_that_are_refused() -> None:
    for frame in (["27074358"], "IČO", None, 5, pandas.Series(["1"])):
        with pytest.raises(TypeError, match="understood"):
            ravo.validate(frame, {"IČO": "ico"})
    with pytest.raises(ValueError, match="same number of rows: a: 1, b: 2"):
        ravo.validate({"a": ["1"], "b": ["1", "2"]}, {"a": "ico", "b": "ico"})
    with pytest.raises(TypeError, match="2 columns 'a'"):
        ravo.validate(pandas.DataFrame([["1", "2"]], columns=["a", "a"]), {"a": "ico"})
    with pytest.raises(ValueError, match="no kind 'xyz'"):
        ravo.validate({"a": ["1"]}, {"a": "xyz"})
    with pytest.raises(ValueError, match="limit"):
        ravo.validate({}, {}, limit=-1)


values = st.lists(st.none() | st.sampled_from(["27074358", "1", "x", "", "00006947"]), max_size=12)


@hypothesis.given(values, st.lists(st.integers(0, 12), max_size=4), st.integers(0, 8))
def test_findings_of_parts_are_those_of_the_whole(column: list[str | None], cuts: list[int], limit: int) -> None:
    series = pandas.DataFrame({"a": pandas.Series(column, dtype=object), "b": pandas.Series(column[::-1], dtype=object)})
    rules = {"a": "ico", "b": ravo.optional("vs")}
    edges = [0, *sorted(min(cut, len(column)) for cut in cuts), len(column)]
    parts = [ravo.validate(series[first:end], rules, limit=limit) for first, end in zip(edges, edges[1:])]
    total = parts[0]
    for part in parts[1:]:
        total = total + part
    assert total == ravo.validate(series, rules, limit=limit)


@hypothesis.given(values)
def test_findings_are_those_of_single_checks(column: list[str | None]) -> None:
    wanted = [(row, "a", value, "missing" if value is None else ravo.check.ico(value).reason) for row, value in enumerate(column)
              if value is None or not ravo.check.ico(value)]
    assert [*ravo.validate({"a": column}, {"a": "ico"})] == wanted


def test_findings_are_pickled() -> None:
    findings = ravo.validate(FRAME, RULES)
    assert pickle.loads(pickle.dumps(findings)) == findings


def test_values_of_streams_are_read_from_every_layout() -> None:
    texts = [b"27074358", b"27074359", b"a text of more than twelve bytes", b"", b"\xff", b"x"]
    wanted = [(1, "27074359"), (2, "a text of more than twelve bytes"), (3, ""), (4, b"\xff"), (5, "x")]
    makers: list[Any] = [arrow.offsets, lambda values: arrow.offsets(values, "U"), arrow.views, lambda values: arrow.fixed(values, 40), arrow.dictionary]
    for make in makers:
        findings = ravo.validate({"a": make(texts)}, {"a": "ico"})
        assert [(one.index, one.value) for one in findings] == wanted
