"""Orders of texts: keys and comparisons agree, and with the program."""
import functools
import os
import subprocess
from decimal import Decimal

import pytest
from hypothesis import given, settings
from hypothesis import strategies as some
from ravo import order, suite

# By hand, from the rules of ČSN 97 6030.
CZECH = ["cena", "cihla", "čaj", "čas", "hrad", "chata", "chyba", "ibis", "rak", "řeka", "sob", "šaty", "zima", "žába"]
TEXTS = some.text("aáAÁcčChHrřzžŽ 01-\u0301", max_size=12) | some.text(max_size=12)
FLAGS = some.fixed_dictionaries({"ignore_case": some.booleans(), "natural": some.booleans(), "digits_first": some.booleans()})


def sign(number: int) -> int:
    return (number > 0) - (number < 0)


def test_czech() -> None:
    assert sorted(reversed(CZECH), key=order.czech_key) == CZECH
    assert sorted(["Rak", "rak", "ráz", "raz"], key=order.czech_key) == ["rak", "Rak", "raz", "ráz"]
    assert sorted(["a1", "a", "1", "a b"], key=order.czech_key) == ["a", "a b", "a1", "1"]
    assert sorted(["b", "1"], key=functools.partial(order.czech_key, digits_first=True)) == ["1", "b"]


@given(TEXTS, TEXTS, FLAGS)
def test_keys_compare_as_texts_do(a: str, b: str, flags: dict[str, bool]) -> None:
    one, other = order.czech_key(a, **flags), order.czech_key(b, **flags)
    assert sign((one > other) - (one < other)) == order.compare(a, b, **flags) == -order.compare(b, a, **flags)
    assert order.natural_key(a) == order.czech_key(a, natural=True)


@given(some.decimals(-10**12, 10**12, places=3), some.decimals(-10**12, 10**12, places=3))
def test_numbers(a: Decimal, b: Decimal) -> None:
    one, other = f"{a:f} Kč", f"{b:f}".replace(".", ",")
    wanted = (a > b) - (a < b)
    assert order.compare_numbers(one, other) == wanted
    keys = order.number_key(one), order.number_key(other)
    assert (keys[0] > keys[1]) - (keys[0] < keys[1]) == wanted


@given(some.lists(some.text("aáčchHřz 019-", min_size=1, max_size=8).map(str.strip).filter(bool), min_size=2, max_size=30))
@settings(max_examples=10)
def test_program_sorts_alike(lines: list[str]) -> None:
    path = os.environ.get("RAVO_PROGRAM", "")
    if not path:
        pytest.skip("RAVO_PROGRAM is not set")
    done = subprocess.run([path, "sort", "-"], input="".join(line + "\n" for line in lines).encode(), capture_output=True, check=True,
                          env={**os.environ, "RAVO_LANG": "en"})
    assert done.stdout.decode().splitlines() == sorted(lines, key=order.czech_key)


def test_the_order_of_the_suite() -> None:
    assert suite.compare_numbers("FV9", "FV10") < 0 < suite.compare_numbers("FV10", "FV9")
    assert suite.compare_numbers("A", "a", ignore_case=True) == 0 == suite.compare_numbers(b"A", b"a", ignore_case=True)
    assert suite.compare_numbers("A", "a") < 0
    with pytest.raises(TypeError):
        suite.compare_numbers("a", b"a")
