#!/usr/bin/env python3
"""Both sides of every #if of the library and its tools are compiled by some preset.

A condition that is not in the table below is a finding: whoever writes one says here which presets compile it.
"""

import json
import re

from source_tree import code_files, main, read, without_comments

PRESETS = "CMakePresets.json"
EVERY = "linux-gcc"
# Each condition with a preset in which it holds and one in which it does not; None where no code stands on that side,
# or where the words beside it tell why no preset of ours can.
CONDITIONS = {
    "__SSE2__": ("linux-gcc", "linux-plain"),
    "__SIZEOF_INT128__": ("linux-gcc", "windows-32"),
    "_WIN32": ("windows-64", "linux-gcc"),
    "RAVO_STATIC": (EVERY, EVERY),  # each preset builds the library shared and static
    "RAVO_BUILDING": (EVERY, EVERY),  # the library itself and whoever uses it
    "RAVO_STATIC || _WIN32": (EVERY, EVERY),
    "__clang__": ("linux-clang", EVERY),
    "__cplusplus": (EVERY, EVERY),  # the tests load the package from C too
    "__cplusplus < 202002L": (None, EVERY),  # what must not compile is tried by the test consumers.public_headers
    "RC_INVOKED": ("windows-32", EVERY),
    "LDBL_MANT_DIG == 64": (EVERY, None),
    "__SSE2__ && __x86_64__": (EVERY, "windows-32"),
    "__x86_64__ || __i386__": (EVERY, None),  # processors of another kind: nobody tests them
}
# What a file of rows or a header asks for its own sake: "is my own macro defined yet?"
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
                findings.append(f"{path.relative_to(root)}: nobody knows which presets compile '#if {condition}'")
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
