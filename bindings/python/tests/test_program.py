"""The same answers as the program's."""
from collections.abc import Callable
from typing import Any

import pytest
from hypothesis import given, settings
from hypothesis import strategies as some
from ravo import check, holidays, tables, vat

# One value in a line: what neither ends a line nor is trimmed from it.
LETTERS = some.characters(blacklist_categories=("Cs", "Cc", "Zl", "Zp"))
LIKELY = some.text("0123456789-/ CZABESK", max_size=24) | some.from_regex(r"\A[0-9]{6,10}\Z") | some.from_regex(r"\ACZ[0-9]{8,22}\Z")
EXAMPLES = ["04625781", "CZ6508000000192000145399", "19-2000145399/0800", "8801251680", "GIBACZPX", "11000", "4006381333931", "0306406152", "ATU13585627"]
VALUES = some.lists(LIKELY | some.text(LETTERS, max_size=16) | some.sampled_from(EXAMPLES), min_size=1, max_size=40)


@pytest.mark.parametrize("kind", check.KINDS)
@given(values=VALUES)
@settings(max_examples=6)
def test_checks(program: Callable[..., Any], kind: str, values: list[str]) -> None:
    values = [value.strip() for value in values if value.strip() not in ("", "-")] + EXAMPLES
    rows = program("check", kind, "-", text="".join(value + "\n" for value in values))
    assert [row["value"] for row in rows] == values
    for row in rows:
        result = check.of(kind, row["value"])
        assert (bool(result), result.reason) == (row["valid"], row["reason"])
        assert result.value == row.get("canonical")
        assert result.position == (None if row["position"] is None else row["position"] - 1)
        if result:
            assert check.respell(kind, row["value"]) == row["spelling"]


@pytest.mark.parametrize("year", [1993, 2000, 2016, 2026, 2100])
def test_holidays(program: Callable[..., Any], year: int) -> None:
    rows = program("holidays", str(year))["holidays"]
    assert [(day.isoformat(), one.czech, one.english, one.law) for day, one in holidays.of_year(year)] == [
        (row["date"], row["czech"], row["english"], row["law"]) for row in rows]


@given(some.lists(some.decimals(min_value=0, max_value=10**6, places=2), min_size=1, max_size=30))
@settings(max_examples=5)
def test_vat(program: Callable[..., Any], amounts: list[Any]) -> None:
    rows = program("vat", "--on", "2026-01-01", *map(str, amounts))
    for amount, row in zip(amounts, rows, strict=True):
        found = vat.compute(amount, 21)
        assert (str(found.base), str(found.tax), str(found.total), found.half) == (row["base"], row["tax"], row["total"], row["half"])


def test_tables(program: Callable[..., Any]) -> None:
    (row,) = program("table", "71710")
    assert tables.name(row["id"]) == row["description"]
