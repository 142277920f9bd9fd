"""Texts: letter case, masks, the form encoding of URLs. Case is mapped character by character: the length stays."""
from __future__ import annotations

from . import _ravo

__all__ = ["fold", "lower", "matches", "upper", "url_decode", "url_encode"]


def upper(text: str) -> str:
    """Returns a text in upper case.

    >>> upper("žluťoučký"), len(upper("ß"))
    ('ŽLUŤOUČKÝ', 1)
    """
    return _ravo.text_upper(text)


def lower(text: str) -> str:
    """Returns a text in lower case.

    >>> lower("KŮŇ")
    'kůň'
    """
    return _ravo.text_lower(text)


def fold(text: str) -> str:
    """Returns the case-folded form of a text, equal for texts that differ only in case.

    >>> fold("Kůň") == fold("KŮŇ")
    True
    """
    return _ravo.text_fold(text)


def matches(text: str, mask: str, ignore_case: bool = False) -> bool:
    """Returns whether a whole text matches a mask: "*" is any run of characters, "?" one character of UTF-16.

    >>> matches("Faktura 12.pdf", "faktura*.PDF", ignore_case=True)
    True
    """
    return _ravo.text_match(text, mask, ignore_case)


def url_encode(text: str) -> str:
    """Returns a text in the form encoding of URLs.

    >>> url_encode("a b&c")
    'a+b%26c'
    """
    return _ravo.url_encode(text)


def url_decode(text: str) -> str:
    """Returns a form-encoded text decoded; a "%" without two hexadecimal digits stays.

    >>> url_decode("a+b%26c"), url_decode("100%")
    ('a b&c', '100%')
    """
    return _ravo.url_decode(text)
