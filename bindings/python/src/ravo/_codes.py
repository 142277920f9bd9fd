"""Codes of payments and invoices, value by value.

Written by tools/generate/python_interface.py from c/ravo.h; not to be edited by hand.
"""
from __future__ import annotations

from . import _ravo
from ._values import iban, texts

TYPE_CHECKING = False
if TYPE_CHECKING:
    from datetime import date

    from .money import Amount


def spayd(
    account: str,
    *,
    other_accounts: str | None = None,
    amount: Amount | None = None,
    currency: str | None = None,
    reference: str | None = None,
    receiver: str | None = None,
    due: date | str | None = None,
    payment_type: str | None = None,
    message: str | None = None,
    notify_by: str | None = None,
    notify_to: str | None = None,
    retry_days: str | None = None,
    variable_symbol: str | None = None,
    specific_symbol: str | None = None,
    constant_symbol: str | None = None,
    own_id: str | None = None,
    url: str | None = None,
    invoice: str | None = None,
    checksum: bool = False,
) -> str:
    """Returns the code of a payment; ravo.Error, whose message begins with the key of the value that is wrong.

    account: ACC, an IBAN, perhaps with "+" and a BIC, or a Czech account: "19-2000145399/0800"
    other_accounts: ALT-ACC, one or two such IBANs, divided by a comma
    amount: AM, "450.00"
    currency: CC, "CZK"
    reference: RF, digits for the receiver
    receiver: RN, the name of the receiver
    due: DT, "20261231"
    payment_type: PT, "IP" for an instant payment
    message: MSG, for the receiver
    notify_by: NT, "P" by telephone, "E" by electronic mail
    notify_to: NTA, the number or the address
    retry_days: X-PER, for how many days a refused payment is tried again
    variable_symbol: X-VS
    specific_symbol: X-SS
    constant_symbol: X-KS
    own_id: X-ID, for the payer
    url: X-URL
    invoice: X-INV, an invoice code, from sid
    checksum: true to end the code with CRC32
    """
    return _ravo.spayd(texts(iban("ACC", account), other_accounts, amount, currency, reference, receiver, due, payment_type, message,
        notify_by, notify_to, retry_days, variable_symbol, specific_symbol, constant_symbol, own_id, url, invoice), checksum)


def sid(
    number: str,
    issued: date | str,
    *,
    amount: Amount | None = None,
    tax_type: str | None = None,
    document_type: str | None = None,
    has_deposits: str | None = None,
    message: str | None = None,
    order: str | None = None,
    variable_symbol: str | None = None,
    supplier_dic: str | None = None,
    supplier_ico: str | None = None,
    customer_dic: str | None = None,
    customer_ico: str | None = None,
    tax_point: date | str | None = None,
    tax_due: date | str | None = None,
    due: date | str | None = None,
    base_standard: Amount | None = None,
    tax_standard: Amount | None = None,
    base_reduced: Amount | None = None,
    tax_reduced: Amount | None = None,
    base_second: Amount | None = None,
    tax_second: Amount | None = None,
    untaxed: Amount | None = None,
    currency: str | None = None,
    exchange_rate: Amount | None = None,
    exchange_count: str | None = None,
    account: str | None = None,
    software: str | None = None,
    url: str | None = None,
    inside: bool = False,
    checksum: bool = False,
) -> str:
    """Returns the code of an invoice; ravo.Error, whose message begins with the key of the value that is wrong.

    number: ID, of the document
    issued: DD, "20261121"
    amount: AM, "-450.00"
    tax_type: TP, 0 usual, 1 reverse charge, 2 both
    document_type: TD, 0 no tax document, 1 to 5 and 9 as the standard has them
    has_deposits: SA, deposits are settled
    message: MSG
    order: ON, number of the order
    variable_symbol: VS
    supplier_dic: VII
    supplier_ico: INI
    customer_dic: VIR
    customer_ico: INR
    tax_point: DUZP, a day, as the others
    tax_due: DPPD, the day of the duty to tell the tax
    due: DT
    base_standard: TB0, base in the standard rate
    tax_standard: T0
    base_reduced: TB1, in the first reduced rate
    tax_reduced: T1
    base_second: TB2, in the second reduced rate
    tax_second: T2
    untaxed: NTB, what is not taxed
    currency: CC, "CZK"
    exchange_rate: FX, crowns for `exchange_count` units of the currency
    exchange_count: FXA
    account: ACC, an IBAN, perhaps with "+" and a BIC, or a Czech account: "19-2000145399/0800"
    software: X-SW
    url: X-URL
    inside: the code goes into a payment code, which has what is left out
    checksum: true to end the code with CRC32; nothing inside of a payment
    """
    return _ravo.sid(texts(number, issued, amount, tax_type, document_type, has_deposits, message, order, variable_symbol, supplier_dic,
        supplier_ico, customer_dic, customer_ico, tax_point, tax_due, due, base_standard, tax_standard, base_reduced, tax_reduced,
        base_second, tax_second, untaxed, currency, exchange_rate, exchange_count, iban("ACC", account), software, url), inside, checksum)
