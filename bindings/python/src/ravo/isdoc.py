"""Electronic invoices by the Czech national standard ISDOC 6.0.2: what one says, and what is wrong with it.

>>> from ravo import isdoc
>>> invoice = isdoc.open(b'<Invoice xmlns="http://isdoc.cz/namespace/2013" version="6.0.2"><ID>2026/1</ID></Invoice>')
>>> invoice.head.number, bool(invoice)
('2026/1', False)
>>> finding = invoice.findings[0]
>>> finding.name, finding.line, isdoc.sentence(finding)
('structure.missing', 1, 'a required element is missing')

Texts are as the document has them, amounts ("1500.00") and days ("2026-11-21") too: Decimal(invoice.totals.payable). What
the document lacks is "".
"""
from __future__ import annotations

import io
import os
from typing import NamedTuple

from . import _ravo
from .records import (InvoiceFinding, InvoiceHead, InvoiceLine, InvoiceParty, InvoicePayment, InvoiceRate, InvoiceSeverity, InvoiceTotals,
                      InvoiceVersion, InvoiceWay, Language)

__all__ = ["Invoice", "InvoiceFinding", "InvoiceHead", "InvoiceLine", "InvoiceParty", "InvoicePayment", "InvoiceRate", "InvoiceSeverity",
           "InvoiceTotals", "InvoiceVersion", "InvoiceWay", "open", "sentence"]


class Invoice(NamedTuple):
    """An invoice: true if no finding is an error."""

    head: InvoiceHead
    supplier: InvoiceParty
    customer: InvoiceParty
    lines: tuple[InvoiceLine, ...]
    rates: tuple[InvoiceRate, ...]  # the recapitulation
    totals: InvoiceTotals
    payments: tuple[InvoicePayment, ...]
    findings: tuple[InvoiceFinding, ...]  # in the order of the document

    def __bool__(self) -> bool:
        return not self.errors

    @property
    def errors(self) -> tuple[InvoiceFinding, ...]:
        """The findings that are errors: the other ones are lawful, or within half a haléř for each line."""
        return tuple(one for one in self.findings if one.severity == InvoiceSeverity.ERROR)


def open(source: str | os.PathLike[str] | bytes | bytearray | memoryview) -> Invoice:
    """Returns the invoice in a file with a name, or in bytes.

    The document is UTF-8, whatever encoding it declares; decode other ones: open(data.decode("cp1250").encode()).
    ravo.Error at the byte where a document is not XML; its message has line and column. What is XML and no invoice is
    an Invoice, and its findings say so.

    >>> open(b"<Receipt/>").head.version
    <InvoiceVersion.NONE: 2>
    """
    if isinstance(source, (bytes, bytearray, memoryview)):
        return Invoice(*_ravo.invoice(source))
    # A number is no name, though io.open would take it for an open file.
    with io.open(os.fspath(source), "rb") as file:
        return Invoice(*_ravo.invoice(file.read()))


def sentence(finding: InvoiceFinding, language: Language = Language.ENGLISH) -> str:
    """Returns what a finding means, in a sentence without a full stop.

    >>> invoice = open(b'<Invoice xmlns="http://isdoc.cz/namespace/2013" version="6.0.2"/>')
    >>> sentence(invoice.findings[0], Language.CZECH)
    'chybí povinný prvek'
    """
    return _ravo.invoice_rule_sentence(finding.rule, language) or ""
