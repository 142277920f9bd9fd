"""Electronic invoices: what the program says of the same documents, and documents that are none."""
from __future__ import annotations

import pathlib
import pickle
from collections.abc import Callable
from decimal import Decimal
from typing import Any

import pytest
import ravo
from hypothesis import given
from hypothesis import strategies as some
from ravo import isdoc
from ravo.records import InvoiceFinding, Language

SAMPLES = sorted((pathlib.Path(__file__).resolve().parents[3] / "samples" / "isdoc").glob("*.isdoc"))
pytestmark = pytest.mark.skipif(not SAMPLES, reason="the source distribution has no samples")
MISTAKES = next((sample for sample in SAMPLES if sample.stem == "mistakes"), pathlib.Path())


def row_of(finding: InvoiceFinding, file: pathlib.Path) -> dict[str, object]:
    """A finding as the program writes it."""
    return {"file": str(file), "line": finding.line, "column": finding.column, "severity": finding.severity.name.lower(), "code": finding.name,
            "element": finding.element, "found": finding.found or None, "expected": finding.expected or None, "reason": finding.reason,
            "message": isdoc.sentence(finding)}


@pytest.mark.parametrize("sample", SAMPLES, ids=lambda sample: str(sample.stem))
def test_findings_are_those_of_the_program(program: Callable[..., Any], sample: pathlib.Path) -> None:
    invoice = isdoc.open(sample)
    assert [row_of(finding, sample) for finding in invoice.findings] == program("isdoc", "check", str(sample), rows=True)
    assert bool(invoice) == (sample != MISTAKES)


def test_a_document_with_many_faults(program: Callable[..., Any], tmp_path: pathlib.Path) -> None:
    document = tmp_path / "faults.isdoc"
    document.write_text(MISTAKES.read_text().replace("</UUID>", "ž</UUID>").replace("</Invoice>", "<A/></Invoice>"))
    findings = isdoc.open(document).findings
    assert [row_of(finding, document) for finding in findings] == program("isdoc", "check", str(document), rows=True)
    assert len(findings) == len(isdoc.open(MISTAKES).findings) + 2


@pytest.mark.parametrize("sample", SAMPLES, ids=lambda sample: str(sample.stem))
def test_contents_are_those_of_the_program(program: Callable[..., Any], sample: pathlib.Path) -> None:
    said, invoice = program("isdoc", "show", str(sample)), isdoc.open(sample)
    head, totals = invoice.head, invoice.totals
    assert (head.type, head.number, head.uuid, head.issued, head.currency, head.foreign_currency, head.note) == (
        said["type"], said["document"], said["uuid"], said["dates"]["issued"], said["currency"], said["foreign_currency"], said["note"])
    for party, other in (invoice.supplier, said["supplier"]), (invoice.customer, said["customer"]):
        assert (party.name, party.ico, party.dic) == ((other["name"], other["ico"], other["dic"]) if other else ("", "", ""))
    assert [(one.number, one.text, one.quantity, one.unit, one.rate, one.base, one.tax, one.total, one.reverse_charge) for one in invoice.lines] \
        == [tuple(row[name] for name in ("line", "description", "quantity", "unit", "rate", "base", "tax", "total", "reverse_charge"))
            for row in said["lines"]]
    assert [Decimal(one.unit_price) for one in invoice.lines] == [Decimal(row["unit_price"]) for row in said["lines"]]
    assert [(one.rate, one.base, one.tax, one.total, one.reverse_charge, one.way.name.lower()) for one in invoice.rates] == [
        (row["rate"], row["base"], row["tax"], row["total"], row["reverse_charge"], row["way"]) for row in said["recapitulation"]]
    assert (totals.base, totals.total, totals.rounding, totals.payable) == tuple(said["totals"][name] for name in ("base", "total", "rounding", "payable"))
    assert [(one.amount, one.means, one.due, one.iban, one.bic, one.variable_symbol) for one in invoice.payments] == [
        tuple(row[name] for name in ("amount", "means", "due", "iban", "bic", "vs")) for row in said["payments"]]


def test_sources() -> None:
    data = MISTAKES.read_bytes()
    invoice = isdoc.open(MISTAKES)
    sources: tuple[str | bytes | bytearray | memoryview, ...] = (str(MISTAKES), data, bytearray(data), memoryview(data))
    assert all(isdoc.open(source) == invoice for source in sources)
    assert isdoc.open(b"\xef\xbb\xbf" + data).totals == invoice.totals
    assert pickle.loads(pickle.dumps(invoice)) == invoice
    assert {type(one) for one in invoice.findings} == {InvoiceFinding}
    assert Decimal(invoice.totals.payable) == 2679
    with pytest.raises(FileNotFoundError):
        isdoc.open("nothing.isdoc")
    with pytest.raises(TypeError):
        isdoc.open(7)  # type: ignore[arg-type]


def test_notes_are_no_errors() -> None:
    invoice = isdoc.open(MISTAKES)
    assert [one.name for one in invoice.findings if one not in invoice.errors] == ["date.due"]
    assert all(isdoc.sentence(one, Language.CZECH) not in ("", isdoc.sentence(one)) for one in invoice.findings)
    other = invoice._replace(findings=tuple(one for one in invoice.findings if one.name == "date.due"))
    assert other and other.findings


@pytest.mark.parametrize(("data", "code", "position"), [(b"", "wrong", 0), (b"<Invoice>", "wrong", 9), (b"<a/>\xff", "utf8", 4), ("<ž/".encode() * 2, "wrong", 4)])
def test_what_is_not_xml(data: bytes, code: str, position: int) -> None:
    with pytest.raises(ravo.Error) as raised:
        isdoc.open(data)
    assert (raised.value.code, raised.value.position) == (code, position)


@given(some.binary(max_size=60), some.integers(0, 8000), some.integers(0, 200))
def test_foreign_bytes_give_an_invoice_or_an_error(junk: bytes, place: int, length: int) -> None:
    data = MISTAKES.read_bytes()
    try:
        invoice = isdoc.open(data[:place] + junk + data[place + length:])
    except ravo.Error as error:
        assert error.code in ("wrong", "utf8")
    else:
        assert len(invoice) == 8
