"""Checksums of bytes.

>>> from ravo import checksums
>>> hex(checksums.crc32(b"123456789"))
'0xcbf43926'
"""
from __future__ import annotations

from . import _ravo
from .records import SuiteHashOf

__all__ = ["crc32", "suite_hash"]


def crc32(data: bytes | bytearray | memoryview, before: int = 0) -> int:
    """Returns the CRC-32 of zip and Ethernet of the bytes whose CRC-32 is `before`, and these.

    >>> crc32(b"789", crc32(b"123456")) == crc32(b"123456789")
    True
    """
    return _ravo.crc32(data, before)


def suite_hash(what: str | bytes | bytearray | memoryview, ignore_case: bool = False, initial: int = 0) -> int:
    """Returns the suite's 32-bit hash of bytes (in Windows-1250, where case counts) or of a text.

    `initial` selects one of many independent hash functions.

    >>> suite_hash("Kůň", ignore_case=True) == suite_hash("KŮŇ", ignore_case=True)
    True
    """
    if isinstance(what, str):
        return _ravo.suite_hash(SuiteHashOf.FOLDED_TEXT if ignore_case else SuiteHashOf.TEXT, what.encode(), initial)
    return _ravo.suite_hash(SuiteHashOf.UPPER_BYTES if ignore_case else SuiteHashOf.BYTES, what, initial)
