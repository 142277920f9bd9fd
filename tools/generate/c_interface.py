#!/usr/bin/env python3
"""Writes what follows from c/ravo.h: the lists of exported names, and calls for its tests.

usage: c_interface.py [--check]     (--check: compare with the files there; 1 if they differ)
"""
import pathlib
import re
import subprocess
import sys
import tempfile

import c_refusals
from pycparser import CParser, c_ast  # type: ignore[import]

from csharp import Declarations

ROOT = pathlib.Path(__file__).resolve().parents[2]
HEADER = ROOT / "c" / "ravo.h"
VERSION = "RAVO_1.0"
# The system's own headers have extensions that a parser of C does not read.
PLAIN_HEADERS = {
    "stddef.h": "typedef unsigned long size_t;\n",
    "stdint.h": "".join(
        f"typedef {sign}{kind} {prefix}int{bits}_t;\n"
        for bits, kind in ((8, "char"), (16, "short"), (32, "int"), (64, "long long"))
        for sign, prefix in (("signed ", ""), ("unsigned ", "u"))
    ),
}


def preprocessed(header: pathlib.Path, plain_headers: dict[str, str]) -> str:
    """What the preprocessor makes of a header, with these headers of the system."""
    with tempfile.TemporaryDirectory() as folder:
        for name, text in plain_headers.items():
            (pathlib.Path(folder) / name).write_text(text)
        command = ["cc", "-E", "-P", "-nostdinc", "-isystem", folder, str(header)]
        return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def parsed(header: pathlib.Path = HEADER) -> c_ast.FileAST:
    """The declarations of a header, as every parser of C reads them after the preprocessor."""
    return CParser().parse(preprocessed(header, PLAIN_HEADERS), str(header))


def functions(tree: c_ast.FileAST) -> list[c_ast.Decl]:
    return [node for node in tree.ext if isinstance(node, c_ast.Decl) and isinstance(node.type, c_ast.FuncDecl)]


def comments(header: pathlib.Path = HEADER) -> dict[str, str]:
    """The comment of each function."""
    found = re.findall(r"/\*((?:(?!\*/).)*)\*/\n[^/\n;]*?\bRAVO_CALL (\w+)\(", header.read_text(), re.DOTALL)
    return {name: " ".join(re.sub(r"^ \* ?", "", words, flags=re.MULTILINE).split()) for words, name in found}


def outputs() -> dict[pathlib.Path, str]:
    tree = parsed()
    names = sorted(function.name for function in functions(tree))
    lists = ROOT / "c" / "generated"
    tests = ROOT / "tests" / "c" / "generated"
    return {
        ROOT / "bindings" / "csharp" / "Ravo.cs": Declarations(HEADER.read_text(encoding="utf-8"), tree).text(),
        lists / "libravo.map": f"{VERSION} {{\n  global:\n" + "".join(f"    {name};\n" for name in names) + "  local:\n    *;\n};\n",
        lists / "ravo.def": "LIBRARY ravo.dll\nEXPORTS\n" + "".join(f"  {name}\n" for name in names),
        tests / "refusals.inc": c_refusals.refusals(tree),
        tests / "memory_calls.inc": c_refusals.memory_calls(tree, comments()),
    }


def main() -> int:
    differing = [path for path, text in outputs().items() if not path.exists() or path.read_text() != text]
    if sys.argv[1:] == ["--check"]:
        for path in differing:
            print(f"{path.relative_to(ROOT)}: differs from c/ravo.h: run tools/generate/c_interface.py")
        return 1 if differing else 0
    for path in differing:
        path.parent.mkdir(exist_ok=True)
        path.write_text(outputs()[path])
    return 0


if __name__ == "__main__":
    sys.exit(main())
