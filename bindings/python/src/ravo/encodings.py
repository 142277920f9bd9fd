"""Encodings of text, exact, and the codecs ravo_NAME of all of them.

Importing the package registers the codecs. NAME is what `find` takes, so that no codec of Python is shadowed:

>>> import ravo
>>> b"P\\xf8\\xedli\\x9a".decode("ravo_windows_1250")
'Příliš'
>>> "kůň ☃".encode("ravo_mac_latin2", "xmlcharrefreplace")
b'k\\xf3\\xcb &#9731;'
>>> ravo.encodings.find("cp852").label
'Code page 852 (DOS, Central European)'
"""
from __future__ import annotations

import codecs

from . import _ravo
from ._error import Error

TYPE_CHECKING = False
if TYPE_CHECKING:
    from collections.abc import Callable
    from typing import Any

    from ._detected import Detected
    from .records import EncodingInfo

__all__ = ["codec", "convert", "detect", "find", "known", "of_mark"]

_Bytes = bytes | bytearray | memoryview
_UTF8 = _ravo.encoding_find("utf-8")
_STRICT, _REPLACE = _ravo.CONVERT_STRICT, _ravo.CONVERT_REPLACE
# No character of any encoding is longer, and what is malformed is known by then.
_LONGEST = 8


def known() -> list[EncodingInfo]:
    """Returns all encodings.

    >>> "Windows_1250" in [encoding.name for encoding in known()]
    True
    """
    return [_ravo.encoding_at(number) for number in range(_ravo.encoding_count())]


def find(name: str) -> EncodingInfo:
    """Returns the encoding with a name, an alias, a label, or the number of a code page with or without "cp".

    Only ASCII letters and digits count, in either case. ravo.Error ("unknown") if there is none.

    >>> find("mac-latin2").name
    'Mac_CentralEurope'
    """
    return _ravo.encoding_at(_ravo.encoding_find(name))


def of_mark(data: _Bytes) -> tuple[EncodingInfo, int] | None:
    """Returns the encoding that a byte-order mark at the start of bytes names, and the mark's length; None without a mark.

    >>> of_mark(b"\\xff\\xfea\\0")[0].name
    'UTF_16_LE'
    """
    try:
        encoding, length = _ravo.encoding_of_mark(data)
    except Error:
        return None
    return _ravo.encoding_at(encoding), length


def detect(data: _Bytes, *, mac: bool = False) -> Detected:
    """Returns the encoding that a text seems to have, by its first 256 KiB, which may end inside a character.

    Czech texts of Windows, DOS and Unix are told apart, and every form of Unicode; with `mac` those of the Macintosh too. The
    result is true if there is no doubt; else `candidates` has all encodings that are possible.

    >>> found = detect("Příliš žluťoučký kůň".encode("cp852"))
    >>> bool(found), found.encoding.name, found.evidence
    (True, 'CP_852', <Evidence.CZECH: 5>)
    >>> found = detect("řeč".encode("cp1250"))
    >>> bool(found), [encoding.name for encoding in found.candidates]
    (False, ['Windows_1250', 'Iso_8859_2'])
    """
    from ._detected import detected

    return detected(data, mac)


def convert(data: _Bytes, source: str, target: str, errors: str = "strict") -> bytes:
    """Returns bytes in another encoding.

    `errors` is "strict" (ravo.Error, "malformed" or "lacking", at the position in bytes) or "replace".

    >>> convert("kůň".encode("cp1250"), "windows-1250", "cp852")
    b'k\\x85\\xe5'
    """
    policy = {"strict": _STRICT, "replace": _REPLACE}.get(errors)
    if policy is None:
        raise ValueError(f"errors is strict or replace, not {errors!r}")
    return _ravo.convert(_ravo.encoding_find(source), data, _ravo.encoding_find(target), policy)


# Codecs.

def _malformed_size(encoding: int, data: _Bytes) -> int:
    """How many bytes at the start of data are malformed together: what becomes one U+FFFD."""
    window = bytes(data[:2 * _LONGEST])
    whole = _ravo.decode(encoding, window, _REPLACE, _UTF8)
    for size in range(1, min(_LONGEST, len(window))):
        if _ravo.decode(encoding, window[:size], _REPLACE, _UTF8) + _ravo.decode(encoding, window[size:], _REPLACE, _UTF8) == whole:
            return size
    return min(_LONGEST, len(window))


def _decode(name: str, encoding: int, data: _Bytes, errors: str, final: bool = True) -> tuple[str, int]:
    """The text of bytes, and how many of them it is; the last ones may be a part of a character if more follow."""
    parts: list[str] = []
    view = memoryview(data).cast("B")
    done = 0
    while True:
        try:
            parts.append(_ravo.decode(encoding, view[done:], _STRICT, _UTF8))
            return "".join(parts), len(view)
        except Error as error:
            if error.position is None or error.code != "malformed":
                raise
            begin = done + error.position
        parts.append(_ravo.decode(encoding, view[done:begin], _STRICT, _UTF8))
        if not final and len(view) - begin < _LONGEST:
            return "".join(parts), begin
        failure = UnicodeDecodeError(name, bytes(view), begin, begin + _malformed_size(encoding, view[begin:]), "no character of the encoding")
        text, done = codecs.lookup_error(errors)(failure)
        parts.append(str(text))
        if done < 0:
            done += len(view)


def _lacking(name: str, encoding: int, text: str, done: int) -> UnicodeEncodeError | bytes:
    """The bytes of a text from a place on, or what the encoding lacks of it."""
    try:
        return _ravo.encode(encoding, text[done:] if done else text, _STRICT, _UTF8)
    except UnicodeEncodeError as error:
        begin, end = done + error.start, done + error.end
    except Error as error:
        if error.position is None or error.code != "lacking":
            raise
        begin, end = done + error.position, done + error.position + 1
    return UnicodeEncodeError(name, text, begin, end, "the encoding lacks the character")


def _encode(name: str, encoding: int, text: str, errors: str) -> bytes:
    """The bytes of a text; what an error handler writes is encoded with the rest, and must be in the encoding."""
    parts: list[str] = []
    done = 0
    while isinstance(found := _lacking(name, encoding, text, done), UnicodeEncodeError):
        parts.append(text[done:found.start])
        replacement, done = codecs.lookup_error(errors)(found)
        parts.append(replacement if isinstance(replacement, str) else replacement.decode("ascii"))
        if done < 0:
            done += len(text)
    return _encode(name, encoding, "".join([*parts, text[done:]]), "strict") if parts else found


class _Decoder(codecs.BufferedIncrementalDecoder):
    """Keeps the bytes of a character that is cut."""

    name: str
    encoding: int

    def _buffer_decode(self, data: Any, errors: str, final: bool) -> tuple[str, int]:
        return _decode(self.name, self.encoding, data, errors, final)


class _StatefulDecoder(codecs.IncrementalDecoder):
    """For encodings whose bytes mean what bytes before them say: one conversion from the first byte to the last."""

    name: str
    encoding: int

    def __init__(self, errors: str = "strict") -> None:
        super().__init__(errors)
        self.reset()

    def reset(self) -> None:
        self._converter = _ravo.Converter(self.encoding, _UTF8, _REPLACE if self.errors == "replace" else _STRICT)
        self._kept = b""

    def decode(self, data: Any, final: bool = False) -> str:
        if self.errors in ("strict", "replace"):
            return self._converted(bytes(data), final)
        self._kept += bytes(data)
        return _decode(self.name, self.encoding, self._kept, self.errors)[0] if final else ""

    def _converted(self, data: bytes, final: bool) -> str:
        try:
            return self._converter.push(data, final).decode()
        except Error as error:
            raise UnicodeDecodeError(self.name, data, 0, len(data), str(error)) from error
        finally:
            if final:
                self.reset()


class _Encoder(codecs.IncrementalEncoder):
    """A character is never cut, so that each piece is a text by itself."""

    name: str
    encoding: int

    def encode(self, text: str, final: bool = False) -> bytes:
        return _encode(self.name, self.encoding, text, self.errors)


class _StatefulEncoder(_Encoder):
    """Keeps the text up to its end."""

    def __init__(self, errors: str = "strict") -> None:
        super().__init__(errors)
        self._kept = ""

    def reset(self) -> None:
        self._kept = ""

    def encode(self, text: str, final: bool = False) -> bytes:
        self._kept += text
        if not final:
            return b""
        kept, self._kept = self._kept, ""
        return super().encode(kept)


def codec(name: str) -> codecs.CodecInfo | None:
    """Returns the codec of a name that begins with ravo_; None for every other one.

    >>> codec("ravo_cp852").name
    'ravo_cp852'
    """
    if not name.startswith("ravo_"):
        return None
    try:
        number = _ravo.encoding_find(name.removeprefix("ravo_"))
    except Error:
        return None
    stateful = _ravo.encoding_at(number).name.startswith("UTF_7")
    attributes = {"name": name, "encoding": number}
    decoder: Any = type("IncrementalDecoder", (_StatefulDecoder if stateful else _Decoder,), attributes)
    encoder: Any = type("IncrementalEncoder", (_StatefulEncoder if stateful else _Encoder,), attributes)
    return codecs.CodecInfo(_encoding_call(name, number), _decoding_call(name, number), _reader(decoder), _writer(name, number), encoder, decoder, name)


def _encoding_call(name: str, number: int) -> Callable[..., tuple[bytes, int]]:
    def encode(text: str, errors: str = "strict") -> tuple[bytes, int]:
        return _encode(name, number, text, errors), len(text)
    return encode


def _decoding_call(name: str, number: int) -> Callable[..., tuple[str, int]]:
    def decode(data: _Bytes, errors: str = "strict") -> tuple[str, int]:
        if errors == "replace":
            return _ravo.decode(number, data, _REPLACE, _UTF8), memoryview(data).nbytes
        return _decode(name, number, data, errors)
    return decode


def _reader(decoder: type[codecs.IncrementalDecoder]) -> type[codecs.StreamReader]:
    class StreamReader(codecs.StreamReader):
        def reset(self) -> None:
            super().reset()
            self._decoder = decoder(self.errors)

        def __init__(self, stream: codecs._ReadableStream, errors: str = "strict") -> None:
            super().__init__(stream, errors)
            self._decoder = decoder(errors)

        def decode(self, data: Any, errors: str = "strict") -> tuple[str, int]:
            return self._decoder.decode(bytes(data)), len(data)
    return StreamReader


def _writer(name: str, number: int) -> type[codecs.StreamWriter]:
    class StreamWriter(codecs.StreamWriter):
        def encode(self, text: str, errors: str = "strict") -> tuple[bytes, int]:
            return _encode(name, number, text, errors), len(text)
    return StreamWriter
