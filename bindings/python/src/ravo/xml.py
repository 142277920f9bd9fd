"""Documents of XML in which values are changed while every other byte stays as it is.

>>> from ravo import xml
>>> document = xml.open(b"<Invoice>\\n  <Note lang='cs'>Nezaplaceno</Note> <!-- 2026 -->\\n</Invoice>")
>>> document["Invoice/Note"]
'Nezaplaceno'
>>> document["Invoice/Note"] = "Zaplaceno & hotovo"
>>> document.bytes()
b"<Invoice>\\n  <Note lang='cs'>Zaplaceno &amp; hotovo</Note> <!-- 2026 -->\\n</Invoice>"

A path names elements from the root on, each with its number among the elements of its name, counted from 1, and possibly an
attribute: "Invoice/Line[2]/@ID". If no element has a name exactly, its case is ignored.
"""
from __future__ import annotations

import io
import os
from collections.abc import Iterable, Mapping
from typing import NamedTuple, TypeVar, overload

from . import _ravo
from ._error import Error
from .records import DocumentFlags, EncodingInfo, Language

__all__ = ["Document", "Finding", "open"]

T = TypeVar("T")
_Bytes = bytes | bytearray | memoryview
_Written = bytes


class Finding(NamedTuple):
    """A place where the suite would see or save something else than a standard parser reads."""

    name: str  # of its class, which never changes: "comment", "encoding"
    line: int  # from 1
    column: int  # in characters, from 1
    message: str  # a sentence without a full stop


class Document:
    """A document of any encoding, by paths. One thread at a time may change or check it.

    >>> document = Document(b"<a><b>1</b><b c='2'/></a>")
    >>> document["a/b[2]/@c"], "a/b[3]" in document
    ('2', False)
    """

    def __init__(self, data: _Bytes) -> None:
        self._document = _ravo.document_open(data)

    def __getitem__(self, path: str) -> str:
        """Returns the value at a path: the text directly in an element, or an attribute; KeyError if nothing is there."""
        try:
            return _ravo.document_get(self._document, path, 0)
        except Error as error:
            if error.code != "unknown":
                raise
            raise KeyError(path) from None

    def __setitem__(self, path: str, value: str) -> None:
        self.set(path, value)

    def __contains__(self, path: str) -> bool:
        return self.get(path) is not None

    @overload
    def get(self, path: str, default: None = None, *, raw: bool = False) -> str | None: ...
    @overload
    def get(self, path: str, default: T, *, raw: bool = False) -> str | T: ...

    def get(self, path: str, default: object = None, *, raw: bool = False) -> object:
        """Returns the value at a path, or with `raw` the content as it is written; `default` if nothing is there.

        >>> document = open(b"<a><b>1 &lt; 2<c/></b></a>")
        >>> document.get("a/b"), document.get("a/b", raw=True), document.get("a/x")
        ('1 < 2', '1 &lt; 2<c/>', None)
        """
        try:
            return _ravo.document_get(self._document, path, DocumentFlags.RAW if raw else 0)
        except Error as error:
            if error.code != "unknown":
                raise
            return default

    def set(self, path: str, value: str, *, raw: bool = False, references: bool = False, add: bool = False) -> None:
        """Sets the value at a path.

        raw: the value is XML as it is written
        references: a character that the encoding lacks becomes a reference such as &#x159;
        add: an attribute that is missing is added, or the next element of a name

        ravo.Error: "unknown" if nothing is at the path, "lacking" if the encoding lacks a character, "wrong" if it is no
        path, or for an element that contains elements or comments, which only `raw` replaces.

        >>> document = open("<?xml version='1.0' encoding='windows-1252'?><a/>".encode())
        >>> document.set("a", "ř", references=True)
        >>> document.set("a/@b", "1", add=True)
        >>> document.bytes().decode("cp1252")[-20:]
        '<a b="1">&#x159;</a>'
        """
        self.update({path: value}, raw=raw, references=references, add=add)

    def update(self, values: Mapping[str, str] | Iterable[tuple[str, str]], *, raw: bool = False, references: bool = False, add: bool = False) -> None:
        """Sets several values: all of them, or none if one fails, whose index is the error's position.

        >>> document = open(b"<a b='1'><c>2</c></a>")
        >>> document.update({"a/@b": "3", "a/c": "4"})
        >>> document.bytes()
        b"<a b='3'><c>4</c></a>"
        """
        pairs = values.items() if isinstance(values, Mapping) else values
        flags = DocumentFlags.RAW * raw + DocumentFlags.REFERENCES * references + DocumentFlags.ADD * add
        _ravo.document_set(self._document, tuple((path, value) for path, value in pairs), flags)

    def bytes(self) -> _Written:
        """Returns the bytes of the document."""
        return _ravo.document_save(self._document)

    __bytes__ = bytes

    @property
    def encoding(self) -> EncodingInfo:
        """The encoding of the document: by its byte-order mark, else by its declaration, else UTF-8."""
        return _ravo.encoding_at(_ravo.document_encoding(self._document))

    def check(self, language: Language = Language.ENGLISH) -> list[Finding]:
        """Returns the places where the suite would see or save something else than a standard parser reads.

        None of them means that the document survives ravo.suite.Tree, but for white space between tags. ravo.Error for a
        document that a standard parser rejects.

        >>> open(b'<?xml version="1.0" encoding="windows-1250"?>\\n<a><!-- note --></a>').check()
        [Finding(name='comment', line=2, column=4, message='the suite drops comments')]
        """
        return [Finding(*_ravo.document_finding_at(self._document, index), _ravo.document_finding_sentence(self._document, index, language))
                for index in range(_ravo.document_check(self._document))]


def open(source: str | os.PathLike[str] | _Bytes) -> Document:
    """Returns the document in a file with a name, or in bytes; ravo.Error at the byte where it is not XML.

    >>> open("<a>ř</a>".encode()).encoding.name
    'UTF_8'
    """
    if isinstance(source, (bytes, bytearray, memoryview)):
        return Document(source)
    # A number is no name, though io.open would take it for an open file.
    with io.open(os.fspath(source), "rb") as file:
        return Document(file.read())
