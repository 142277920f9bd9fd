"""Characters: those of Python's own tables, which are of another version of Unicode."""
import unicodedata

import pytest
from ravo import text
from ravo.text import CharacterProperty

KNOWN = [chr(unit) for unit in range(0x10000) if unicodedata.category(chr(unit)) not in ("Cn", "Cs")]


def short(mapped: str, character: str) -> str:
    """A mapping to several characters is none of the suite's."""
    return mapped if len(mapped) == 1 and mapped <= "\uffff" else character


def test_categories_and_marks() -> None:
    for one in KNOWN[::3]:
        found = text.character(one)
        assert (found.category, found.combining_class) == (unicodedata.category(one), unicodedata.combining(one)), hex(ord(one))
    assert text.character("\ud800").category == "Cs" and text.character("\uffff").category == "Cn"


def test_decompositions() -> None:
    for one in KNOWN[::3]:
        found = text.character(one)
        whole = unicodedata.normalize("NFD", one)
        if "\uac00" <= one <= "\ud7a3":
            assert (found.hangul, found.canonical) == (whole, "")
        else:
            assert found.canonical == ("" if whole == one else whole), hex(ord(one))


def test_case() -> None:
    for one in KNOWN:
        if len(one.upper()) == len(one.lower()) == len(one.title()) == 1:
            found = text.character(one)
            assert (found.upper, found.lower, found.title) == (one.upper(), one.lower(), one.title()), hex(ord(one))


def test_properties() -> None:
    assert text.has("č", CharacterProperty.LETTER_LOWER_CASE) and not text.has("č", CharacterProperty.DIGIT)
    assert text.has("\u0660", CharacterProperty.DIGIT) and not text.has("\u0660", CharacterProperty.HEX_DIGIT)
    for wrong in ("", "ab", "\U0001f600"):
        with pytest.raises(ValueError):
            text.character(wrong)


def test_texts() -> None:
    assert text.proper("dobrÝ DEN, ŽIŽKO") == "Dobrý Den, Žižko"
    assert text.matches("100%", "1__%", wild="*", one="_") and not text.matches("ab", "a?", wild="*", one="_")
    assert text.matches("A*", "a!", ignore_case=True, wild="!", one="?")
    with pytest.raises(ValueError):
        text.matches("a", "a", wild="**")
    for uri in ("a#b#c", "a", "#", ""):
        before, _, after = uri.partition("#")
        assert (text.uri_without_fragment(uri), text.uri_fragment(uri)) == (before, after)
