"""The recipes of docs/python-columns.md and the examples run."""
from __future__ import annotations

import doctest
import pathlib
import subprocess
import sys

import pytest
import ravo

EXAMPLES = pathlib.Path(__file__).parents[1] / "examples"
PAGE = pathlib.Path(__file__).parents[3] / "docs" / "python-columns.md"
LEDGER = """IČO,Účet,VS,Popis
046 25 781,19-2000145399 / 0800,2026000579,nájem
27074359,19-2000145399/0800,,energie
27074358,19-2000145398/0800,x,papír
27074358,19-2000145399/0800,,voda
"""


def run(example: str, *arguments: object) -> str:
    return subprocess.run([sys.executable, EXAMPLES / example, *map(str, arguments)], capture_output=True, encoding="utf-8", check=True).stdout


@pytest.mark.skipif(not PAGE.exists(), reason="the source distribution has no docs")
def test_recipes() -> None:
    result = doctest.testfile(str(PAGE), module_relative=False)
    assert result.failed == 0 and result.attempted > 15


def test_type_of_pydantic() -> None:
    pydantic = pytest.importorskip("pydantic")
    if not pydantic.VERSION.startswith("1."):
        pytest.skip("the recipe's class is that of pydantic 1")
    page = doctest.DocTestParser().get_examples(PAGE.read_text())
    names = {"ravo": ravo}
    exec(next(one.source for one in page if "class Ico" in one.source), names)  # the recipe itself
    model = pydantic.create_model("Supplier", ico=(names["Ico"], ...))
    assert model(ico="270 74 358").ico == "27074358"
    with pytest.raises(ValueError, match="the check digit does not match"):
        model(ico="27074359")


def test_clean_ledger(tmp_path: pathlib.Path) -> None:
    (tmp_path / "ledger.csv").write_text(LEDGER)
    assert run("clean_ledger.py", *[tmp_path / name for name in ("ledger.csv", "clean.csv", "wrong.csv")]) == "2 rows are right, 2 are wrong\n"
    assert (tmp_path / "clean.csv").read_text() == """IČO,Účet,VS,Popis
04625781,19-2000145399/0800,2026000579,nájem
27074358,19-2000145399/0800,,voda
"""
    assert (tmp_path / "wrong.csv").read_text() == """IČO,Účet,VS,Popis,Důvod
27074359,19-2000145399/0800,,energie,IČO: ico.checksum
27074358,19-2000145398/0800,x,papír,"Účet: account.checksum, VS: vs.character"
"""


def test_payment_orders(tmp_path: pathlib.Path) -> None:
    (tmp_path / "a.txt").write_text("Prosíme o úhradu na účet 19-2000145399/0800, VS: 2026000579.")
    (tmp_path / "b.txt").write_text("Děkujeme za platbu.")
    assert run("payment_orders.py", tmp_path) == "a.txt\t19-2000145399/0800\tCZ6508000000192000145399\tČeská spořitelna, a.s.\t2026000579\n"


def test_check_invoices(tmp_path: pathlib.Path) -> None:
    samples = pathlib.Path(__file__).resolve().parents[3] / "samples" / "isdoc"
    if not samples.exists():
        pytest.skip("the source distribution has no samples")
    (tmp_path / "below").mkdir()
    for name in "domestic", "credit-note":
        (tmp_path / "below" / f"{name}.isdoc").write_bytes((samples / f"{name}.isdoc").read_bytes())
    assert run("check_invoices.py", tmp_path) == "domestic.isdoc: SPD*1.0*ACC:CZ5708000000191234500002*AM:2679.00*CC:CZK*X-VS:20260101\n"
    (tmp_path / "mistakes.isdoc").write_bytes((samples / "mistakes.isdoc").read_bytes())
    (tmp_path / "torn.isdoc").write_text("<Invoice>")
    done = subprocess.run([sys.executable, EXAMPLES / "check_invoices.py", tmp_path], capture_output=True, encoding="utf-8")
    lines = done.stdout.splitlines()
    assert (done.returncode, len(lines), lines[-1]) == (1, 9, "torn.isdoc: error: line 1, column 10: no element found")
    assert "mistakes.isdoc:50:9: error: the company number is wrong [id.ico]" in lines
