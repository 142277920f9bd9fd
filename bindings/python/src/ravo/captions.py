"""The captions and messages of the suite.

>>> from ravo import captions
>>> captions.find("rPropertySazbaNulova").text
'&Nulová'
"""
from __future__ import annotations

from . import _ravo
from .records import SuiteCaption

__all__ = ["SuiteCaption", "find", "known"]


def find(name: str) -> SuiteCaption:
    """Returns the caption with a name; ravo.Error ("unknown") if there is none."""
    return _ravo.suite_caption_find(name)


def known() -> list[SuiteCaption]:
    """Returns all captions and messages, group by group.

    >>> all(caption.name.startswith(caption.prefix) for caption in known())
    True
    """
    return [_ravo.suite_caption_at(index) for index in range(_ravo.suite_caption_count())]
