#!/usr/bin/env python3
"""A declaration parser of Python reads ravo.h as it is, and calls libravo by what it read.

usage: declarations.py LIBRARY
"""
import pathlib
import sys

import cffi  # type: ignore[import]

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.append(str(ROOT / "tools" / "generate"))
from c_interface import HEADER, functions, parsed, preprocessed  # noqa: E402

# The parser knows the standard's types by itself.
NO_HEADERS = {"stddef.h": "", "stdint.h": ""}


def main(library: str) -> int:
    ffi = cffi.FFI()
    ffi.cdef(preprocessed(HEADER, NO_HEADERS))
    ravo = ffi.dlopen(library)
    for function in functions(parsed()):
        getattr(ravo, function.name)

    error = ffi.new("ravo_error *", {"size": ffi.sizeof("ravo_error")})
    value = ffi.new("char[]", 48)
    length = ffi.new("size_t *")
    text = "IČ: 046 25 781".encode()
    assert ravo.ravo_check(ravo.RAVO_KIND_ICO, text, len(text), value, len(value), length, error) == ravo.RAVO_OK
    assert ffi.string(value) == b"04625781" and length[0] == 8
    assert ravo.ravo_check(ravo.RAVO_KIND_ICO, b"0462x781", 8, ffi.NULL, 0, ffi.NULL, error) == ravo.RAVO_WRONG
    assert error.status == ravo.RAVO_WRONG and error.position == 4
    assert ffi.string(ravo.ravo_reason_name(error.code)) == b"ico.character"
    assert ffi.string(error.message) == ffi.string(ravo.ravo_reason_sentence(error.code, ravo.RAVO_LANGUAGE_ENGLISH))
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
