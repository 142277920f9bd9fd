#!/usr/bin/env python3
"""Both sides of every #if of the library and its tools are compiled by some preset.

A condition that is not in the table below is a finding: add it with the presets that compile it.
"""

import json
import re

from source_tree import code_files, main, read, without_comments

PRESETS = "CMakePresets.json"
EVERY = "linux-gcc"
# Each condition with a preset in which it holds and one in which it does not; None if that side has no code,
# or if its comment says why no preset covers it.
CONDITIONS = {
    "__SSE2__": ("linux-gcc", "linux-plain"),
    "__SIZEOF_INT128__": ("linux-gcc", "windows-32"),
    "_WIN32": ("windows-64", "linux-gcc"),
    "RAVO_STATIC": (EVERY, EVERY),  # each preset builds the library shared and static
    "RAVO_BUILDING": (EVERY, EVERY),  # the library itself and its users
    "RAVO_STATIC || _WIN32": (EVERY, EVERY),
    "__clang__": ("linux-clang", EVERY),
    "__cplusplus": (EVERY, EVERY),  # the tests also load the package from C
    "__cplusplus < 202002L": (None, EVERY),  # the test consumers.public_headers covers the error
    "RC_INVOKED": ("windows-32", EVERY),
    "LDBL_MANT_DIG == 64": (EVERY, None),
    "__SSE2__ && __x86_64__": (EVERY, "windows-32"),
    "__x86_64__ || __i386__": (EVERY, None),  # other processors are not tested
}
# Tests of a file's own macro: "is it already defined?"
OWN = re.compile(r"RAVO_(?:TYPE_LIBRARY|HOST_INTERFACE|HOST_CLASS|CAPTION_GROUP)$")
IF = re.compile(r"^[ \t]*#[ \t]*(?:if|ifdef|ifndef|elif)[ \t]+([^\n]*)", re.MULTILINE)


def conditions(path):
    for match in IF.finditer(without_comments(read(path))):
        yield re.sub(r"!|defined\s*\((\w+)\)", r"\1", match.group(1)).strip()


def check(root):
    presets = {preset["name"] for preset in json.loads(read(root / PRESETS))["configurePresets"]}
    findings = [f"{PRESETS}: has no preset {name}" for name in sorted({p for pair in CONDITIONS.values() for p in pair if p} - presets)]
    for path in code_files(root, "ravo", "tools"):
        for condition in conditions(path):
            if condition not in CONDITIONS and not OWN.match(condition):
                findings.append(f"{path.relative_to(root)}: no entry for the presets that compile '#if {condition}'")
    return findings


def _tree(text):
    names = {name for pair in CONDITIONS.values() for name in pair if name}
    return {PRESETS: json.dumps({"configurePresets": [{"name": name} for name in sorted(names)]}), "ravo/a.h": text}


PLANTINGS = [
    ("a good tree", _tree("#ifdef __SSE2__  // vectors\n#elif defined(RAVO_STATIC) || defined(_WIN32)\n#endif\n"), None),
    ("a condition of nobody", _tree("#if defined(__AVX2__)\n#endif\n"), "'#if __AVX2__'"),
    ("the same the other way", _tree("#ifndef __ARM_NEON\n#endif\n"), "'#if __ARM_NEON'"),
    ("a preset that is gone", {**_tree(""), PRESETS: '{"configurePresets": []}'}, "has no preset linux-plain"),
]

if __name__ == "__main__":
    main(check, PLANTINGS)
