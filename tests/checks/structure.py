#!/usr/bin/env python3
"""docs/structure.svg is what the #include lines say now."""

import pathlib
import sys

from source_tree import main, read

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
from structure import PICTURE, drawing, reduced  # noqa: E402


def check(root):
    if not (root / PICTURE).is_file() or read(root / PICTURE) != drawing(root):
        return [f"{PICTURE}: is not what the #include lines say; scripts/structure.py --write draws it"]
    if reduced({"a": {"b", "c"}, "b": {"c"}, "c": set()}) != {"a": {"b"}, "b": {"c"}, "c": set()}:
        return ["an arrow that follows from others is drawn"]
    return []


_FILES = {"ravo/runtime/a.h": "", "ravo/xml/b.h": "#include <ravo/runtime/a.h>\n"}


def _drawn():
    import tempfile

    from source_tree import plant

    with tempfile.TemporaryDirectory() as folder:
        plant(pathlib.Path(folder).resolve(), {**_FILES, "docs/x": "", "tools/ravo/x": ""})
        return drawing(pathlib.Path(folder).resolve())


PLANTINGS = [
    ("a good tree", {**_FILES, PICTURE: _drawn()}, None),
    ("a picture of before", {**_FILES, PICTURE: _drawn(), "ravo/frame/c.h": "#include <ravo/xml/b.h>\n"}, "is not what"),
    ("no picture", _FILES, "is not what"),
]

if __name__ == "__main__":
    main(check, PLANTINGS)
