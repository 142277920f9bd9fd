"""Amounts: decimal.Decimal is the witness of rounding."""
import decimal
from collections.abc import Callable
from datetime import date
from decimal import Decimal
from fractions import Fraction

import pytest
import ravo
from hypothesis import given
from hypothesis import strategies as some
from ravo import holidays, money, suite, vat
from ravo.records import Rounding

AMOUNTS = some.decimals(min_value=-10**12, max_value=10**12, places=4)
WITNESS = {Rounding.HALF_AWAY: decimal.ROUND_HALF_UP, Rounding.AWAY: decimal.ROUND_UP, Rounding.TOWARD: decimal.ROUND_DOWN}


@given(AMOUNTS, some.sampled_from(Rounding), some.sampled_from(["0.0001", "0.01", "0.1", "1", "10", "1000"]))
def test_rounding_is_that_of_decimal(amount: Decimal, rounding: Rounding, step: str) -> None:
    assert ravo.round_money(amount, step, rounding) == (amount / Decimal(step)).quantize(Decimal(1), WITNESS[rounding]) * Decimal(step)


@given(AMOUNTS, some.integers(-10**6, 10**6), some.integers(1, 10**6))
def test_ratios_are_exact(amount: Decimal, numerator: int, denominator: int) -> None:
    exact = Fraction(amount) * numerator / denominator * 100
    whole, rest = divmod(abs(exact), 1)
    expected = (whole + (rest >= Fraction(1, 2))) * (1 if exact >= 0 else -1)
    assert money.times_ratio(amount, numerator, denominator) * 100 == expected


@given(AMOUNTS)
def test_texts_and_amounts_round_trip(amount: Decimal) -> None:
    assert money.read(money.format(amount)) == amount
    assert money.read(money.format(amount, ".", 4), ".") == amount
    assert ravo.round_money(str(amount), "0.0001") == ravo.round_money(amount, "0.0001") == amount


@given(some.integers(-922337203685477, 922337203685477))
def test_whole_amounts(amount: int) -> None:
    assert ravo.round_money(amount, "0.0001") == amount


def test_the_context_of_decimal_does_not_count() -> None:
    with decimal.localcontext() as context:
        context.prec = 2
        assert str(ravo.round_money(Decimal("123456.785"))) == "123456.79"


@pytest.mark.parametrize("wrong", [1.5, True, None, b"1", 1j])
def test_other_types_are_refused(wrong: object) -> None:
    with pytest.raises(TypeError, match="expected Decimal, str or int, not"):
        ravo.round_money(wrong)  # type: ignore[arg-type]


@pytest.mark.parametrize("wrong", [10**15, -10**15, 10**40, Decimal("1e15"), Decimal("1e999999"), Decimal("1e-9999"), Decimal("0.00001"), Decimal("NaN"),
                                   Decimal("Infinity"), "1,5", "", "x", "1e3"])
def test_other_amounts_are_errors(wrong: object) -> None:
    with pytest.raises(ravo.Error):
        ravo.round_money(wrong)  # type: ignore[arg-type]


def test_exponents_are_no_other_amounts() -> None:
    assert ravo.round_money(Decimal("1E+3")) == 1000
    assert ravo.round_money(Decimal("0E-20")) == 0
    assert str(ravo.round_money(Decimal("-0.0"))) == "0.00"


def test_steps_and_rates() -> None:
    for wrong in (0, -1):
        with pytest.raises(ravo.Error, match="^the step is not above 0$") as raised:
            ravo.round_money(1, wrong)
        assert raised.value.code == "range"
    assert money.times_rate("-100", "0.125") == Decimal("-12.50")
    assert money.to_crowns("12.50", Rounding.TOWARD) == (Decimal(12), Decimal("-0.50"))
    with pytest.raises(ValueError, match="one character"):
        money.format(1, "")
    with pytest.raises(ravo.Error):
        money.format(1, "ž")
    with pytest.raises(ravo.Error):
        money.format(1, ",", 5)
    with pytest.raises(ravo.Error) as raised:
        ravo.round_money(1, 1, 7)  # type: ignore[arg-type]
    assert raised.value.code == "argument"


@given(some.decimals(min_value=-10**9, max_value=10**9, places=2), some.integers(0, 100))
def test_vat_of_a_base(base: Decimal, percent: int) -> None:
    amounts = vat.compute(base, percent)
    assert amounts.tax == (base * percent / 100).quantize(Decimal("0.01"), decimal.ROUND_HALF_UP)
    assert amounts.base + amounts.tax == amounts.total and amounts.base == base


def test_vat_of_documents() -> None:
    day = ravo.days.read("1. 6. 2014")
    lines = [("0.05", vat.VatKind.STANDARD)] * 10
    assert vat.recapitulate(lines, day).sum.tax == Decimal("0.11")
    assert vat.recapitulate(iter(lines), day, per=vat.VatPer.LINE).sum.tax == Decimal("0.10")
    with pytest.raises(ravo.Error) as raised:
        vat.recapitulate([(1, vat.VatKind.STANDARD), (1, vat.VatKind.SECOND_REDUCED)], day)
    assert (raised.value.code, raised.value.position) == ("rate.unknown", 1)
    with pytest.raises(ravo.Error) as raised:
        vat.recapitulate([], day, vat.VatMethod.TOTAL)
    assert raised.value.code == "rate.method"
    for wrong in ([1], [(1.0, 1)], [(1,)], [("1", "x")]):
        with pytest.raises((TypeError, IndexError)):
            vat.recapitulate(wrong, day)  # type: ignore[arg-type]
    assert vat.percent_on(day, vat.VatKind.STANDARD) == 21
    assert isinstance(vat.kind_on(day, 15), vat.VatKind)
    with pytest.raises(ravo.Error):
        vat.kind_on(day, 12)
    with pytest.raises(ravo.Error) as raised:
        vat.compute(1, 101)
    assert raised.value.code == "rate.unknown"


@pytest.mark.parametrize(("call", "words"), [
    (lambda: money.times_ratio(1, 1, 0), "the denominator is 0"), (lambda: money.times_ratio(1, 1, 2**62, "0.0008"), "the denominator times the step does not"),
    (lambda: money.times_ratio(10**14, 10, 1), "the result does not fit 64 bits"), (lambda: money.times_rate(1, 1, 10**14 * 2), "the step is too large"),
    (lambda: money.times_rate(1, 1, 10**15), "step: the amount does not fit 64 bits"), (lambda: money.times_rate(1, 10**15), "rate: the amount"),
    (lambda: money.times_rate(10**15, 1), "amount: the amount"), (lambda: money.times_rate(1, "x"), "rate: the text is no amount"),
    (lambda: money.times_rate(1, 1, Decimal("0.00001")), "step: the text is no amount"),
    (lambda: vat.recapitulate([("x", vat.VatKind.STANDARD)], ravo.days.read("1. 6. 2014")), "amount: the text is no amount"),
    (lambda: suite.round_value(1, decimals=15), "the decimals are not -4 to 14"), (lambda: suite.round_value("9e14", decimals=14), "amount: the text"),
    (lambda: suite.round_value(9 * 10**14, decimals=14), "the scaled amount or the result does not fit"),
    (lambda: suite.round_float(float("inf")), "the value is not finite"), (lambda: suite.round_float(1e9, decimals=100), "the value with its decimals does not"),
    (lambda: holidays.term_in_days(date.max, 1), "the result is not in the years 1 to 9999"),
    (lambda: ravo.days.add_months(date.max, 1), "the result is not in the years 1 to 9999"),
    (lambda: ravo.days.days_in_month(2026, 13), "the month is not 1 to 12"), (lambda: ravo.days.days_in_month(10000, 1), "the year is not 1 to 9999")])
def test_numbers_out_of_range_are_named(call: Callable[[], object], words: str) -> None:
    with pytest.raises(ravo.Error, match="^" + words):
        call()


def test_the_suite_rounds_by_its_own_rules() -> None:
    assert suite.round_value("12.345", 9) == Decimal("12.345")
    assert suite.round_vat("-12.34", "M") == -12
    with pytest.raises(ValueError, match="direction is out of range: 256"):
        suite.round_value(1, 256)
    with pytest.raises(ravo.Error):
        suite.round_value(1, decimals=15)
    with pytest.raises(ravo.Error):
        suite.round_float(float("nan"))


@pytest.mark.parametrize(("call", "words"), [
    (lambda: vat.compute("100", "21"), "percent: expected int, not str"),  # type: ignore[arg-type]
    (lambda: vat.compute("100", 21, "base"), "method: expected int, not str"),  # type: ignore[arg-type]
    (lambda: ravo.round_money("1", "1", "up"), "rounding: expected int, not str"),  # type: ignore[arg-type]
])
def test_numbers_are_asked_for_by_name(call: Callable[[], object], words: str) -> None:
    with pytest.raises(TypeError, match=words):
        call()


def test_amounts_are_refused_with_what_they_may_be() -> None:
    amounts: list[str | Decimal] = ["abc", Decimal("1e30"), "922337203685477.5808"]
    for amount in amounts:
        with pytest.raises(ravo.Error, match="no amount, or does not fit 64 bits"):
            ravo.round_money(amount)
