"""The suite's random numbers and texts: the Mersenne Twister MT19937, seeded as its authors and the suite seed it.

>>> from ravo.random import Random
>>> generator = Random(5489)
>>> generator.int32(), generator.int32()
(3499211612, 581869302)
>>> Random(b"seed").text("abcdef", 8) == Random(b"seed").text("abcdef", 8)
True

Not for secrets.
"""
from __future__ import annotations

import random
from collections.abc import Sequence
from typing import Any

from . import _ravo

__all__ = ["Random"]

Seed = int | Sequence[int] | bytes | bytearray | memoryview


class Random(random.Random):
    """A generator with all functions of random.Random; the same seed gives the same numbers on every machine.

    A seed is a number of 32 bits, a sequence of them (random.Random(n) is seeded by the sequence of n's 32-bit words), or
    bytes, of which each is a key: the suite seeds so. Its state cannot be stored.

    >>> Random([42]).random() == random.Random(42).random()
    True
    >>> Random(b"seed").choice("abc") in "abc"
    True
    """

    def __new__(cls, seed: Seed) -> Random:
        # random.Random would take the hash of a seed for its own generator, which stays unused.
        return super().__new__(cls)

    def __init__(self, seed: Seed) -> None:
        super().__init__(seed)

    def seed(self, a: Any = None, version: int = 2) -> None:
        """Starts anew from a seed."""
        self._generator = _opened(a)
        self.gauss_next = None

    def random(self) -> float:
        """Returns a number from 0 to below 1, in steps of 2**-53."""
        return _ravo.random_res53(self._generator)

    def getrandbits(self, k: int, /) -> int:
        """Returns a number of `k` bits."""
        if k < 0:
            raise ValueError("the number of bits is negative")
        number = 0
        for shift in range(0, k, 32):
            number |= _ravo.random_int32(self._generator) >> max(0, 32 - (k - shift)) << shift
        return number

    def getstate(self) -> Any:
        raise NotImplementedError("the state of the generator cannot be stored")

    def setstate(self, state: Any) -> None:
        raise NotImplementedError("the state of the generator cannot be stored")

    def int31(self) -> int:
        """Returns the upper 31 of the next 32 bits."""
        return _ravo.random_int31(self._generator)

    def int32(self) -> int:
        """Returns the next 32 bits."""
        return _ravo.random_int32(self._generator)

    def int63(self) -> int:
        """Returns 32 bits as the low half and 31 as the high one; ravo.Error ("range"), every other time, as the suite.

        >>> Random(2).int63() >= 0
        True
        """
        return _ravo.random_int63(self._generator)

    def int64(self) -> int:
        """Returns 32 bits as the low half and 32 as the high one; ravo.Error ("range") if either has its highest bit set."""
        return _ravo.random_int64(self._generator)

    def real1(self) -> float:
        """Returns a number from 0 to 1, both included."""
        return _ravo.random_real1(self._generator)

    def real2(self) -> float:
        """Returns a number from 0 to below 1, in steps of 2**-32."""
        return _ravo.random_real2(self._generator)

    def real3(self) -> float:
        """Returns a number between 0 and 1, neither included."""
        return _ravo.random_real3(self._generator)

    def text(self, alphabet: str, count: int) -> str:
        """Returns a text of `count` characters of an alphabet, one draw for each, as the suite makes it.

        >>> len(Random(b"seed").text("0123456789", 12))
        12
        """
        return _ravo.random_text(self._generator, alphabet, count)


def _opened(seed: object) -> object:
    if isinstance(seed, (bytes, bytearray, memoryview)):
        return _ravo.random_open_bytes(seed)
    if isinstance(seed, int) and not isinstance(seed, bool):
        return _ravo.random_open(seed)
    if isinstance(seed, Sequence) and not isinstance(seed, str):
        return _ravo.random_open_array(seed)
    raise TypeError(f"expected int, a sequence of int, or bytes, not {type(seed).__qualname__}")
