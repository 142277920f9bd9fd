"""Checks and their results."""
import copy
import pickle
from datetime import date

import pytest
import ravo
from ravo import check

CORRECT = {"ico": ("IČ: 046 25 781", "04625781"), "dic": ("CZ04625781", "CZ04625781"), "vat": ("ATU13585627", "ATU13585627"),
           "rc": ("880125/1680", "8801251680"), "iban": ("CZ65 0800 0000 1920 0014 5399", "CZ6508000000192000145399"),
           "bic": ("gibaczpx", "GIBACZPX"), "account": ("000019-2000145399/0800", "19-2000145399/0800"), "vs": ("2026000579", "2026000579"),
           "ks": ("0308", "0308"), "ss": ("123", "123"), "psc": ("110 00", "11000"), "ean": ("4006381333931", "4006381333931"),
           "isbn": ("0-306-40615-2", "0306406152")}


def test_every_kind_has_a_function_and_an_example() -> None:
    assert set(check.KINDS) == set(CORRECT)
    assert all(callable(getattr(check, kind)) and kind in check.__all__ for kind in check.KINDS)


@pytest.mark.parametrize("kind", CORRECT)
def test_what_is_correct(kind: str) -> None:
    text, value = CORRECT[kind]
    result = getattr(check, kind)(text)
    assert result and bool(result) is True
    assert (result.kind, result.value, result.reason, result.position, result.message) == (kind, value, None, None, None)
    assert result == check.of(kind, text)
    assert check.respell(kind, text)


@pytest.mark.parametrize("kind", CORRECT)
def test_what_is_wrong(kind: str) -> None:
    result = getattr(check, kind)("!")
    assert not result
    assert result.value is None
    assert result.reason is not None and result.reason.split(".")[0] in (kind, "dic", "text")
    assert result.message == check.sentence(result.reason)
    with pytest.raises(ravo.Error) as raised:
        check.respell(kind, "!")
    assert (raised.value.code, raised.value.position) == (result.reason, result.position)


def test_positions_count_characters() -> None:
    text = "IČ:\N{NO-BREAK SPACE}04625782"
    result = check.ico(text)
    assert result.position == len(text) - 1
    assert check.vs("VS: 12ž4").position == 6


def test_only_a_str_is_a_text() -> None:
    for wrong in (None, 4625781, b"04625781", 1.0):
        with pytest.raises(TypeError, match=f"expected str, not {type(wrong).__name__}"):
            check.ico(wrong)  # type: ignore[arg-type]
    with pytest.raises(UnicodeEncodeError):
        check.ico("\ud800")


def test_an_unknown_kind_is_refused() -> None:
    with pytest.raises(ValueError, match="there is no kind 'icq'"):
        check.of("icq", "1")
    with pytest.raises(TypeError):
        check.of("ico")  # type: ignore[call-arg]


@pytest.mark.parametrize("text", ["04625781", "04625782", "", "ž"])
def test_results_are_values(text: str) -> None:
    one, other = check.ico(text), check.ico(text)
    assert one is not other
    assert one == other and not one != other and hash(one) == hash(other)
    assert one != check.vs(text) and one.__eq__(text) is NotImplemented
    for protocol in range(2, pickle.HIGHEST_PROTOCOL + 1):
        assert pickle.loads(pickle.dumps(one, protocol)) == one
    assert copy.copy(one) == one and copy.deepcopy(one) == one
    with pytest.raises(AttributeError):
        one.value = "x"  # type: ignore[misc]
    with pytest.raises(TypeError):
        one < other  # type: ignore[operator]


def test_results_cannot_be_made_up() -> None:
    for wrong in (("icq", "1", None, None), ("ico", "1" * 48, None, None), ("ico", None, "ico.nothing", 0), ("ico", None, "ico.checksum", "x")):
        with pytest.raises((ValueError, TypeError)):
            check.Check(*wrong)  # type: ignore[arg-type]
    with pytest.raises(TypeError):
        check.Check()  # type: ignore[call-arg]
    with pytest.raises(TypeError):
        check.Check("ico", "1", None, None, kind="ico")  # type: ignore[call-arg]
    with pytest.raises(TypeError):
        type("Other", (check.Check,), {})


def test_functions_have_names_and_can_be_pickled() -> None:
    assert check.ico.__name__ == "ico" and check.ico.__module__ == "ravo.check"
    assert pickle.loads(pickle.dumps(check.ico)) is check.ico


def test_numbers_tell() -> None:
    assert check.birth("905525/0006", date(2026, 1, 1)) == (date(1990, 5, 25), ravo.records.Sex.FEMALE, False, False)
    with pytest.raises(ravo.Error) as raised:
        check.birth("880125/1680", date(1988, 1, 24))
    assert raised.value.code == "rc.future"
    with pytest.raises(ravo.Error) as raised:
        check.account_of_iban("SK3112000000198742637541")
    assert raised.value.code == "unknown"
    assert check.title("ico", ravo.records.Language.CZECH) == "IČO"


def test_payments_have_places_in_characters() -> None:
    text = "Příjemce žádá: účet 19-2000145399/0800, VS: 2026000579, KS 0308. Děkujeme za včasnou úhradu, IBAN CZ65 0800 0000 1920 0014 5399."
    found = check.payments(text)
    assert [text[one.begin:one.end] for one in found] == ["19-2000145399/0800", "2026000579", "0308", "CZ65 0800 0000 1920 0014 5399"]
    assert [one.kind for one in found] == ["account", "vs", "ks", "iban"]
    assert check.payments("") == []
