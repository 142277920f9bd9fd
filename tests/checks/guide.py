#!/usr/bin/env python3
"""The code of docs/guide.md is that of the examples, letter for letter; every example of the guide stands in it once,
with what it prints; nothing in it is code that no example has."""

import pathlib
import re
import sys

from source_tree import main, read

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
from guide import BLOCK, DOCUMENT, code_of, regions_of  # noqa: E402


def check_block(root, block):
    program = root / "examples" / block["source"]
    if not program.is_file():
        return [f"{DOCUMENT}: there is no example {block['source']}"]
    try:
        same = block["text"] == code_of(block, read(program))
    except KeyError as missing:
        return [f"{DOCUMENT}: {block['source']} has no region {missing}"]
    return [] if same else [f"{DOCUMENT}: its code of {block['source']}#{block['regions']} differs; scripts/guide copies it"]


def check(root):
    document = read(root / DOCUMENT)
    blocks = list(BLOCK.finditer(document))
    code = [block for block in blocks if block["kind"] == "code"]
    findings = [finding for block in code for finding in check_block(root, block)]
    if len(re.findall(r"^```cpp$", document, re.MULTILINE)) != len(code):
        findings.append(f"{DOCUMENT}: a block of C++ is copied from no example")
    shown = [block["source"] for block in blocks if block["kind"] == "output"]
    for program in sorted((root / "examples/guide").glob("*.cpp")):
        source = f"guide/{program.name}"
        quoted = {name for block in code if block["source"] == source for name in block["regions"].split(",")}
        findings += [f"{DOCUMENT}: does not show {source}#{name}" for name in regions_of(read(program)) if name not in quoted]
        if shown.count(f"guide_{program.stem}") != 1:
            findings.append(f"{DOCUMENT}: wants what {source} prints, once")
    return findings


_PROGRAM = "int main() {\n  // [a]\n  f();\n  // [/a]\n}\n"
_CODE = "<!-- code: guide/x.cpp#a -->\n```cpp\nf();\n```\n"
_OUTPUT = "<!-- output: guide_x -->\n```text\n1\n```\n"


def _tree(document, program=_PROGRAM):
    return {DOCUMENT: document, "examples/guide/x.cpp": program}


PLANTINGS = [
    ("a good tree", _tree(_CODE + _OUTPUT), None),
    ("code that differs", _tree(_CODE.replace("f();", "g();") + _OUTPUT), "differs"),
    ("a region that is not there", _tree(_CODE.replace("#a", "#b") + _OUTPUT), "has no region 'b'"),
    ("a program that is not there", _tree(_CODE.replace("x.cpp", "y.cpp") + _OUTPUT), "no example guide/y.cpp"),
    ("a region that is not shown", _tree(_CODE + _OUTPUT, _PROGRAM + "// [c]\n// [/c]\n"), "does not show guide/x.cpp#c"),
    ("no output", _tree(_CODE), "wants what guide/x.cpp prints"),
    ("output twice", _tree(_CODE + _OUTPUT + _OUTPUT), "wants what guide/x.cpp prints"),
    ("code of nowhere", _tree(_CODE + _OUTPUT + "```cpp\nh();\n```\n"), "copied from no example"),
]

if __name__ == "__main__":
    main(check, PLANTINGS)
