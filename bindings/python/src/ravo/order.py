"""Orders of texts: the Czech alphabet (ČSN 97 6030), and numbers in texts.

>>> from ravo import order
>>> sorted(["chata", "cihla", "hrad", "čaj", "cena"], key=order.czech_key)
['cena', 'cihla', 'čaj', 'hrad', 'chata']
>>> sorted(["FV10", "FV9", "fv9"], key=order.natural_key)
['fv9', 'FV9', 'FV10']

It is the same on every machine, whatever its locale. Keys are bytes; other versions of the package may make other ones,
so that they are not to be stored.
"""
from __future__ import annotations

from . import _ravo
from .records import OrderFlags

__all__ = ["compare", "compare_numbers", "czech_key", "natural_key", "number_key"]


def _flags(ignore_case: bool, natural: bool, digits_first: bool) -> int:
    return OrderFlags.IGNORE_CASE * ignore_case + OrderFlags.NATURAL * natural + OrderFlags.DIGITS_FIRST * digits_first


def czech_key(text: str, *, ignore_case: bool = False, natural: bool = False, digits_first: bool = False) -> bytes:
    """Returns the key of a text in the Czech order: keys of the same kind compare as their texts do.

    Accents decide between words of the same letters, then capitals: small letters come first. Blanks and signs precede
    letters, and digits follow them, or precede them with `digits_first`. With `natural`, runs of digits compare by value.

    >>> czech_key("cihla") < czech_key("čaj") < czech_key("hrad") < czech_key("chata")
    True
    >>> from functools import partial
    >>> sorted(["10 b", "9 a", "a"], key=partial(czech_key, natural=True, digits_first=True))
    ['9 a', '10 b', 'a']
    """
    return _ravo.czech_key(text, _flags(ignore_case, natural, digits_first))


def natural_key(text: str) -> bytes:
    """Returns the key of a text in the Czech order, in which runs of digits compare by value.

    >>> natural_key("FV9") < natural_key("FV10")
    True
    """
    return _ravo.czech_key(text, OrderFlags.NATURAL)


def number_key(text: str) -> bytes:
    """Returns the key of the number with which a text begins; a text without a number is less than any number.

    A number is a sign, digits of any count, blanks between them, a decimal comma or point.

    >>> number_key("9,5") < number_key("10 Kč")
    True
    >>> sorted(["1 234,50 Kč", "-3", "99", "nic"], key=number_key)
    ['nic', '-3', '99', '1 234,50 Kč']
    """
    return _ravo.number_key(text)


def compare(a: str, b: str, *, ignore_case: bool = False, natural: bool = False, digits_first: bool = False) -> int:
    """Returns -1, 0 or 1: whether a text comes before another in the Czech order, is equal to it, or comes after it.

    >>> compare("cihla", "čaj"), compare("ČAJ", "čaj", ignore_case=True)
    (-1, 0)
    """
    return _ravo.compare_czech(a, b, _flags(ignore_case, natural, digits_first))


def compare_numbers(a: str, b: str) -> int:
    """Returns -1, 0 or 1: how the numbers compare with which two texts begin, as number_key.

    >>> compare_numbers("9,50", "10"), compare_numbers("1,0", "1")
    (-1, 0)
    """
    return _ravo.compare_numbers(a, b)
