"""Payment codes: what the program says of the same values, and values that come back."""
from __future__ import annotations

import inspect
import re
import zlib
from collections.abc import Callable
from datetime import date, datetime
from decimal import Decimal
from typing import Any

import pytest
import ravo
from hypothesis import given, settings
from hypothesis import strategies as some
from ravo import payments
from ravo.payments import PaymentCode

ACCOUNT = "CZ6508000000192000145399"
# Codes take no characters past U+FFFF.
LETTERS = some.characters(blacklist_categories=("Cs", "Cc"), max_codepoint=0xFFFF)
MESSAGES = some.text(LETTERS, min_size=1, max_size=40) | some.text("*%žlutý+: ", min_size=1, max_size=40)


@given(some.decimals("0.01", "9999999.99", places=2), MESSAGES, some.dates(date(2000, 1, 1)), some.from_regex(r"\A[0-9]{1,10}\Z"), some.booleans())
def test_values_come_back(amount: Decimal, message: str, due: date, symbol: str, checksum: bool) -> None:
    text = payments.spayd(ACCOUNT, amount=amount, message=message, due=due, variable_symbol=symbol, checksum=checksum)
    found = payments.read(text)
    assert found.kind is PaymentCode.SPAYD
    values = dict(found.values)
    assert values.pop("CRC32", None) == (None if not checksum else re.search("CRC32:(.*)", text)[1])  # type: ignore[index]
    assert values == {"ACC": ACCOUNT, "AM": str(amount), "DT": due.strftime("%Y%m%d").zfill(8), "MSG": message, "X-VS": symbol}


@given(amount=some.decimals("0.01", "9999999.99", places=2), message=MESSAGES)
@settings(max_examples=10)
def test_codes_are_those_of_the_program(program: Callable[..., Any], amount: Decimal, message: str) -> None:
    for checksum in False, True:
        said = program("qr", "--utf8", *["--crc"] * checksum, ACCOUNT, "--amount", str(amount), "--field", "MSG=" + message, "X-ID=17")
        text = payments.spayd(ACCOUNT, amount=amount, currency="CZK", message=message, own_id="17", checksum=checksum)
        assert text == said["text"]
        assert payments.read(text).values == program("qr", "--read", text)["fields"]


@pytest.mark.parametrize("text", ["SPD*1.0*ACC:CZ", "SPD*1.0*AM:1", "SPD*2.0*ACC:" + ACCOUNT, f"SPD*1.0*ACC:{ACCOUNT}*AM:1,5", f"SPD*1.0*ACC:{ACCOUNT}*MSG:%C5",
                                  f"SPD*1.0*ACC:{ACCOUNT}*AM:1*AM:2", f"SPD*1.0*ACC:{ACCOUNT}*CRC32:00000000", "SID*1.0*ID:1*DD:20260230", "kůň", ""])
def test_wrong_codes_are_wrong_as_in_the_program(program: Callable[..., Any], text: str) -> None:
    with pytest.raises(ravo.Error) as raised:
        payments.read(text)
    if text:
        said = program("qr", "--read", text)
        assert (raised.value.code, raised.value.position, str(raised.value)) == (said["reason"], said["position"], said["remark"])


def test_invoices(program: Callable[..., Any]) -> None:
    text = payments.sid("FV/1", "20261122", amount=Decimal("-450.00"), supplier_ico="04625781", tax_point=date(2026, 11, 21), base_standard=-100, tax_standard="-21",
                        exchange_rate=Decimal("24.305"), exchange_count="1", has_deposits="0", checksum=True)
    found = payments.read(text)
    assert found.values == {"ID": "FV/1", "DD": "20261122", "AM": "-450.00", "SA": "0", "INI": "04625781", "DUZP": "20261121", "TB0": "-100", "T0": "-21",
                            "FX": "24.305", "FXA": "1", "CRC32": found.values["CRC32"]}
    assert found.kind is PaymentCode.SID
    assert found.values == program("qr", "--read", text)["fields"]
    inside = payments.sid("FV/1", date(2026, 11, 22), inside=True)
    assert payments.read(payments.spayd(ACCOUNT, amount=450, invoice=inside)).values["X-INV"] == inside
    with pytest.raises(ravo.Error) as raised:
        payments.sid("FV/1", date(2026, 11, 22))
    assert (raised.value.code, raised.value.position) == ("code.missing", None)


def test_checksum() -> None:
    text, checksum = payments.spayd(ACCOUNT, checksum=True).split("*CRC32:")
    assert int(checksum, 16) == zlib.crc32(text.encode())


@pytest.mark.parametrize(("values", "code", "position", "words"), [
    ({"amount": "450,00"}, "code.amount", 3, "AM: wrong: an amount has"), ({"amount": Decimal("NaN")}, "code.amount", 0, "AM: "),
    ({"amount": Decimal("1E+999999999999999")}, "code.length", None, "AM: "), ({"amount": 10**40}, "code.length", None, "AM: "),
    ({"message": "ž" * 61}, "code.length", 60, "MSG: "), ({"currency": "žCZ"}, "code.currency", None, "CC: "), ({"due": "20260230"}, "code.date", None, "DT: "),
    ({"variable_symbol": "12a"}, "code.character", 2, "X-VS: ")])
def test_wrong_values_are_told(values: dict[str, Any], code: str, position: int | None, words: str) -> None:
    with pytest.raises(ravo.Error) as raised:
        payments.spayd(ACCOUNT, **values)
    assert (raised.value.code, str(raised.value)[:len(words)]) == (code, words)
    assert position is None or raised.value.position == position


CZECH = "19-2000145399/0800"


@pytest.mark.parametrize("account", ["19-2000145398/0800", "2000145399/80", "2000145399/", "/", "a/0800", "19-2000145399/0800+GIBACZPX",
                                     "CZ6508000000192000145399/0800", "2000145399/0800\0"])
def test_wrong_czech_accounts_are_wrong_as_in_a_check(account: str) -> None:
    found = ravo.check.account(account)
    for wrong in (lambda: payments.spayd(account), lambda: payments.sid("1", "20261122", amount=1, account=account)):
        with pytest.raises(ravo.Error) as raised:
            wrong()
        assert (raised.value.code, raised.value.position, str(raised.value)) == (found.reason, found.position, f"ACC: {found.message}")


def test_czech_accounts_become_ibans(program: Callable[..., Any]) -> None:
    text = payments.spayd(CZECH, currency="CZK")
    assert text == payments.spayd(ACCOUNT, currency="CZK") == program("qr", CZECH)["text"]
    assert payments.sid("1", "20261122", amount=1, account=" 19 - 2000145399 / 0800 ").endswith(f"*ACC:{ACCOUNT}")
    assert payments.read(payments.spayd(ACCOUNT + "+GIBACZPX")).values["ACC"] == ACCOUNT + "+GIBACZPX"
    with pytest.raises(ravo.Error) as raised:
        payments.spayd("2000145399")
    assert raised.value.code.startswith("iban.") and str(raised.value).startswith("ACC: ")


@pytest.mark.parametrize("value", [1.5, True, b"1", object()])
def test_other_types_are_refused(value: Any) -> None:
    with pytest.raises(TypeError):
        payments.spayd(ACCOUNT, amount=value)
    with pytest.raises(TypeError):
        payments.spayd(value)


def test_texts_that_no_code_has() -> None:
    for wrong in "a\0b", "\udc80":
        with pytest.raises(ValueError):
            payments.spayd(ACCOUNT, message=wrong)
    assert payments.spayd(ACCOUNT, due=datetime(2026, 11, 22, 23, 59)).endswith("*DT:20261122")
    with pytest.raises(ravo.Error):
        payments.read(f"SPD*1.0*ACC:{ACCOUNT}*X-OWN:a%00b*")


def test_every_value_has_its_key() -> None:
    """A value of another field than the wanted one would be wrong or come back under another key."""
    right = {"amount": "1", "currency": "EUR", "other_accounts": ACCOUNT, "reference": "12", "due": "20261122", "notify_by": "P", "retry_days": "30",
             "variable_symbol": "1", "specific_symbol": "2", "constant_symbol": "308", "invoice": payments.sid("1", "20261122", inside=True)}
    for name, words in [line.split(": ", 1) for line in (inspect.getdoc(payments.spayd) or "").splitlines()[2:]]:
        key, value = words.split(",")[0], right.get(name, "abc")
        if name not in ("account", "checksum"):
            assert payments.read(payments.spayd(ACCOUNT, **{name: value})).values == {"ACC": ACCOUNT, key: value}  # type: ignore[arg-type]


def test_codes_compare() -> None:
    one = payments.read("SPD*1.0*ACC:" + ACCOUNT)
    assert one == payments.read("SPD*1.0*ACC:" + ACCOUNT + "*") and one != payments.read("SPD*1.0*ACC:" + ACCOUNT + "*AM:1") and one != "text"
