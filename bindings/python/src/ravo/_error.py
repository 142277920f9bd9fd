"""The exception of the package, apart so that the extension module finds it before the package is complete."""
from __future__ import annotations


class Error(ValueError):
    """What cannot be done, or is wrong.

    `code` is a name that never changes: the reason of a check ("ico.checksum"), or "wrong", "range", "unknown",
    "argument", "malformed", "lacking". `position` is where in the text, in characters (in bytes, where bytes are
    read; the index of the line, where lines are), or None if there is no place.

    >>> import ravo
    >>> try:
    ...     ravo.check.respell("iban", "CZ65 0800 0000 1920 0014 5398")
    ... except ravo.Error as error:
    ...     print(error.code, error.position)
    iban.checksum 2
    """

    def __init__(self, message: str = "", code: str = "", position: int | None = None) -> None:
        super().__init__(message)
        self.code = code
        self.position = position
