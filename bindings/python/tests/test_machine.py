"""The report of this machine, modules, forms and records of the suite."""
import datetime
from collections.abc import Callable
from typing import Any

import pytest
import ravo
from hypothesis import given
from hypothesis import strategies as some
from ravo import suite
from ravo._report import tree_of

MOVING = ("Aktuální čas", "Dostupná", "Avail", "Volné místo")


def nested(rows: list[dict[str, Any]]) -> dict[str, Any]:
    """The program's rows as the package nests them."""
    return {row["caption"]: nested(row["items"]) if "items" in row else row.get("value", {}) for row in rows}


def steady(entries: dict[str, Any]) -> dict[str, Any]:
    return {caption: steady(entry) if isinstance(entry, dict) else entry for caption, entry in entries.items() if not caption.startswith(MOVING)}


@pytest.mark.parametrize("business", [False, True])
def test_report_is_that_of_the_program(program: Callable[..., Any], business: bool) -> None:
    wanted = nested(program("report", *(["--business"] if business else [])))
    assert steady(ravo.report(business)) == steady(wanted)


def test_report_says_the_day() -> None:
    days = {datetime.date.today().isoformat()}
    found: Any = ravo.report()
    days.add(datetime.date.today().isoformat())
    assert found["Informace o klientské vrstvě"]["Časové informace"]["Aktuální datum"] in days


def test_lines_nest_by_tabs() -> None:
    text = "A\r\n\tB: 1\r\n\tB: 2\r\n\tC\r\n\t\tD: x: y\r\n\tE: 3\r\n\t\tF: \r\nG\r\n"
    assert tree_of(text) == {"A": {"B": "1", "B (2)": "2", "C": {"D": "x: y"}, "E": {"": "3", "F": ""}}, "G": {}}
    assert tree_of("") == {} and tree_of("\t\tA\r\n") == {"A": {}}


def test_modules() -> None:
    found = suite.modules()
    assert sorted(module.order for module in found) == list(range(len(found)))
    by_name = {module.name: module for module in found}
    assert all(by_name[name].order < module.order for module in found for name in module.uses.split())


@given(some.lists(some.binary(max_size=40), max_size=8))
def test_string_records(texts: list[bytes]) -> None:
    stream = b"".join(map(suite.string_record, texts))
    assert stream == b"".join(len(text).to_bytes(4, "little") + text + b"\0" for text in texts)
    assert suite.string_records(stream) == texts


def test_broken_string_records() -> None:
    assert suite.string_records(b"\x05\0\0\0ab") == [b"ab\0\0\0"]
    for broken in (b"\1\0\0", b"\xff\xff\xff\xff"):
        with pytest.raises(ravo.Error) as raised:
            suite.string_records(broken)
        assert raised.value.code == "range"


def test_forms() -> None:
    assert suite.pdf_text("Řada") == b"\xfe\xff" + "Řada".encode("utf-16-be")
    assert suite.pdf_field("A", "č", as_unicode=True) == b"<</T(A)/V(" + suite.pdf_text("č") + b")>>"
    assert suite.pdf_field("A", "č☃") == b"<</T(A)/V(\xe8?)>>"
    assert suite.pdf_date(datetime.datetime(2024, 3, 5, 12), leading_zeros=True) == "05.03.2024"
    assert suite.xml_date(None) == "" and suite.xml_flag("text") == "X"
