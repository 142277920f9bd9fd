"""Arrow arrays and streams laid out by hand over the C structs, with the PyCapsule interface: no package of Arrow is needed."""
from __future__ import annotations

import ctypes
import struct
from collections.abc import Sequence
from typing import Any

RELEASE = ctypes.CFUNCTYPE(None, ctypes.c_void_p)


class Schema(ctypes.Structure):
    _fields_ = [("format", ctypes.c_char_p), ("name", ctypes.c_char_p), ("metadata", ctypes.c_char_p), ("flags", ctypes.c_int64),
                ("n_children", ctypes.c_int64), ("children", ctypes.c_void_p), ("dictionary", ctypes.c_void_p), ("release", ctypes.c_void_p),
                ("private_data", ctypes.c_void_p)]


class Array(ctypes.Structure):
    _fields_ = [("length", ctypes.c_int64), ("null_count", ctypes.c_int64), ("offset", ctypes.c_int64), ("n_buffers", ctypes.c_int64),
                ("n_children", ctypes.c_int64), ("buffers", ctypes.c_void_p), ("children", ctypes.c_void_p), ("dictionary", ctypes.c_void_p),
                ("release", ctypes.c_void_p), ("private_data", ctypes.c_void_p)]


GET = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
LAST = ctypes.CFUNCTYPE(ctypes.c_void_p, ctypes.c_void_p)


class Stream(ctypes.Structure):
    _fields_ = [("get_schema", GET), ("get_next", GET), ("get_last_error", LAST), ("release", ctypes.c_void_p), ("private_data", ctypes.c_void_p)]


new_capsule = ctypes.pythonapi.PyCapsule_New
new_capsule.restype = ctypes.py_object
new_capsule.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_void_p]


def pointer_to(memory: Any) -> int:
    return ctypes.addressof(memory)


def bytes_in_memory(data: bytes) -> Any:
    return (ctypes.c_char * max(1, len(data))).from_buffer_copy(data or b"\0")


class Column:
    """A column: format, buffers, and perhaps a dictionary. It keeps what its capsules point to."""

    schema: Schema
    array: Array

    def __init__(self, form: str, length: int, buffers: Sequence[bytes | None], *, nulls: int = 0, offset: int = 0,
                 dictionary: Column | None = None, name: str = "") -> None:
        self.released: list[str] = []
        self.form, self.name, self.dictionary, self.length = form, name, dictionary, length
        self.memory = [None if one is None else bytes_in_memory(one) for one in buffers]
        pointers = (ctypes.c_void_p * len(self.memory))(*[one and pointer_to(one) for one in self.memory])
        self.keep: list[Any] = [pointers]
        self.schema = Schema(form.encode(), name.encode(), None, 2, 0, None, pointer_to(dictionary.schema) if dictionary else None)
        self.array = Array(length, nulls, offset, len(self.memory), 0, pointer_to(pointers), None, pointer_to(dictionary.array) if dictionary else None)
        self.live()

    def live(self) -> None:
        schema, array = RELEASE(lambda place: self.end(Schema, place, "schema")), RELEASE(lambda place: self.end(Array, place, "array"))
        self.keep += [schema, array]
        self.schema.release = ctypes.cast(schema, ctypes.c_void_p)
        self.array.release = ctypes.cast(array, ctypes.c_void_p)

    def end(self, kind: Any, place: int, what: str) -> None:
        self.released.append(what)
        kind.from_address(place).release = None

    def __arrow_c_array__(self, requested_schema: object = None) -> tuple[object, object]:
        return new_capsule(pointer_to(self.schema), b"arrow_schema", None), new_capsule(pointer_to(self.array), b"arrow_array", None)


class Batch(Column):
    """A batch of columns."""

    def __init__(self, columns: Sequence[Column], offset: int = 0, length: int | None = None) -> None:
        super().__init__("+s", columns[0].length if length is None else length, [None], offset=offset)
        schemas = (ctypes.c_void_p * len(columns))(*[pointer_to(one.schema) for one in columns])
        arrays = (ctypes.c_void_p * len(columns))(*[pointer_to(one.array) for one in columns])
        self.keep += [schemas, arrays, columns]
        self.schema.n_children = self.array.n_children = len(columns)
        self.schema.children, self.array.children = pointer_to(schemas), pointer_to(arrays)


class Table:
    """A stream of columns or batches; `error` is what it says at its end, if it fails."""

    def __init__(self, pieces: Sequence[Column], error: bytes | None = None) -> None:
        self.pieces, self.error, self.next = pieces, error, 0
        self.words = bytes_in_memory((error or b"") + b"\0")
        self.callbacks = GET(self.get_schema), GET(self.get_next), LAST(lambda place: pointer_to(self.words))
        self.release = RELEASE(self.end)
        self.released = 0

    def get_schema(self, stream: int, out: int) -> int:
        ctypes.memmove(out, ctypes.byref(self.pieces[0].schema), ctypes.sizeof(Schema))
        return 0

    def get_next(self, stream: int, out: int) -> int:
        if self.next == len(self.pieces):
            ctypes.memset(out, 0, ctypes.sizeof(Array))
            return 5 if self.error else 0
        ctypes.memmove(out, ctypes.byref(self.pieces[self.next].array), ctypes.sizeof(Array))
        self.next += 1
        return 0

    def end(self, place: int) -> None:
        self.released += 1
        Stream.from_address(place).release = None

    def __arrow_c_stream__(self, requested_schema: object = None) -> object:
        self.next = 0
        self.stream = Stream(*self.callbacks, ctypes.cast(self.release, ctypes.c_void_p))
        return new_capsule(pointer_to(self.stream), b"arrow_array_stream", None)


def validity_of(values: Sequence[bytes | None]) -> bytes:
    bits = bytearray(len(values) // 8 + 1)
    for row, value in enumerate(values):
        bits[row // 8] |= (value is not None) << row % 8
    return bytes(bits)


def offsets(values: Sequence[bytes | None], form: str = "u", name: str = "") -> Column:
    """utf8 (u), large utf8 (U), or the binaries (z, Z)."""
    ends = [0]
    for value in values:
        ends.append(ends[-1] + len(value or b""))
    return Column(form, len(values), [validity_of(values), struct.pack(f"<{len(ends)}{'i' if form in 'uz' else 'q'}", *ends),
                                      b"".join(value or b"" for value in values)], nulls=values.count(None), name=name)


def views(values: Sequence[bytes | None], name: str = "") -> Column:
    """String views: texts of up to 12 bytes inside, others in one of two buffers."""
    rows, buffers = b"", [bytearray(), bytearray()]
    for row, value in enumerate(values):
        value = value or b""
        if len(value) <= 12:
            rows += struct.pack("<i12s", len(value), value)
        else:
            rows += struct.pack("<i4sii", len(value), value[:4], row % 2, len(buffers[row % 2]))
            buffers[row % 2] += value
    sizes = struct.pack("<2q", *map(len, buffers))
    return Column("vu", len(values), [validity_of(values), rows, bytes(buffers[0]), bytes(buffers[1]), sizes], nulls=values.count(None), name=name)


def fixed(values: Sequence[bytes | None], width: int) -> Column:
    data = b"".join((value or b"").ljust(width, b"\0") for value in values)
    return Column(f"w:{width}", len(values), [validity_of(values), data], nulls=values.count(None))


WIDTHS = {"c": "b", "C": "B", "s": "h", "S": "H", "i": "i", "I": "I", "l": "q", "L": "Q"}


def dictionary(values: Sequence[bytes | None], index: str = "c") -> Column:
    entries = sorted({value for value in values if value is not None})
    numbers = [0 if value is None else entries.index(value) for value in values]
    return Column(index, len(values), [validity_of(values), struct.pack(f"<{len(values)}{WIDTHS[index]}", *numbers)],
                  nulls=values.count(None), dictionary=offsets(entries))
