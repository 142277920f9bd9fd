"""Texts: letter case, masks, the form encoding of URLs. Case is mapped character by character: the length stays."""
from __future__ import annotations

from typing import NamedTuple

from . import _ravo
from .records import CharacterProperty, Decomposition

__all__ = ["Character", "CharacterProperty", "character", "fold", "has", "lower", "matches", "proper", "upper", "uri_fragment", "uri_without_fragment",
           "url_decode", "url_encode"]


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


def proper(text: str) -> str:
    """Returns a text with the first character of each word in upper case and the others in lower case.

    >>> proper("ŽLUŤOUČKÝ kůň")
    'Žluťoučký Kůň'
    """
    return _ravo.text_proper(text)


def matches(text: str, mask: str, ignore_case: bool = False, *, wild: str = "*", one: str = "?") -> bool:
    """Returns whether a whole text matches a mask: `wild` is any run of characters, `one` is one character of UTF-16.

    >>> matches("Faktura 12.pdf", "faktura*.PDF", ignore_case=True)
    True
    >>> matches("FV-2026", "FV%20__", wild="%", one="_")
    True
    """
    if wild == "*" and one == "?":
        return _ravo.text_match(text, mask, ignore_case)
    return _ravo.text_match_with(text, mask, _unit(wild), _unit(one), ignore_case)


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


def uri_without_fragment(uri: str) -> str:
    """Returns the part of a URI before the first "#", or the whole URI without one.

    >>> uri_without_fragment("https://example.com/a#b")
    'https://example.com/a'
    """
    return _ravo.uri_without_fragment(uri)


def uri_fragment(uri: str) -> str:
    """Returns the part of a URI after the first "#", or an empty text without one.

    >>> uri_fragment("https://example.com/a#b")
    'b'
    """
    return _ravo.uri_fragment(uri)


class Character(NamedTuple):
    """What the suite knows of a character, by Unicode 15.0.0."""

    category: str  # its short name: "Lu"
    upper: str
    lower: str
    title: str
    fold: str  # equal for characters that differ only in case
    combining_class: int  # 0 for a starter, else the rank of a mark
    canonical: str  # what it comes apart into; empty if it does not
    compatible: str
    hangul: str  # the letters of a syllable


def _unit(character: str) -> int:
    if len(character) != 1 or character > "\uffff":
        raise ValueError(f"expected one character up to U+FFFF, not {character!r}")
    return ord(character)


def character(character: str) -> Character:
    """Returns what the suite knows of a character up to U+FFFF, which maps to one character up to there.

    >>> found = character("č")
    >>> found.category, found.upper, found.canonical == "c\u030c"
    ('Ll', 'Č', True)
    """
    unit = _unit(character)
    category = _ravo.character_category_name(_ravo.character_category(unit)) or ""
    cases = (_ravo.character_to_upper, _ravo.character_to_lower, _ravo.character_to_title, _ravo.character_to_case_fold)
    upper, lower, title, fold = (chr(map_case(unit)) for map_case in cases)
    canonical, compatible, hangul = (_ravo.character_decompose(unit, kind) for kind in Decomposition)
    return Character(category, upper, lower, title, fold, _ravo.character_combining_class(unit), canonical, compatible, hangul)


def has(character: str, property: CharacterProperty) -> bool:
    """Returns whether a character up to U+FFFF has a property.

    >>> has("č", CharacterProperty.LETTER), has("_", CharacterProperty.LETTER)
    (True, False)
    """
    return _ravo.character_is(_unit(character), property)
