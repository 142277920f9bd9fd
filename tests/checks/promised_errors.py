#!/usr/bin/env python3
"""A public header that promises an error in its comments declares it, so that a caller can catch it."""

import re

from source_tree import includes, main, read

# For hosts in C, which have no exceptions.
HOST_HEADERS = ("ravo/package.h", "ravo/constants.h")
ERROR = re.compile(r"^class (?:RAVO_API )?(\w+)(?: final)? : public (?:std::exception|\w*Error)\b", re.MULTILINE)
COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.DOTALL)


def umbrellas(root):
    """The headers that modules include, by name, without those for hosts in C."""
    names = sorted(f"ravo/{path.name}" for path in (root / "ravo").glob("*.h"))
    return [name for name in names if name not in HOST_HEADERS]


def reached(root, name):
    """A header and the headers of ours that it includes, directly or not."""
    found, waiting = set(), [name]
    while waiting:
        header = waiting.pop()
        if header in found or not (root / header).is_file():
            continue
        found.add(header)
        waiting += [other for _, _, other in includes(root / header) if other.startswith("ravo/")]
    return found


def errors_in(root, headers):
    """The error classes of some headers, each with the header that declares it."""
    return {name: header for header in sorted(headers) for name in ERROR.findall(read(root / header))}


def promised(root, header, errors):
    """The errors that the comments of a header name."""
    words = {word for comment in COMMENT.findall(read(root / header)) for word in re.findall(r"`(\w+)`", comment)}
    return sorted(words & set(errors))


def check(root):
    public = set().union(*(reached(root, name) for name in umbrellas(root)))
    errors = errors_in(root, {str(path.relative_to(root)) for path in (root / "ravo").rglob("*.h")})
    return [f"{header}: promises {error} and does not declare it: include <{errors[error]}>"
            for header in sorted(public)
            for error in promised(root, header, errors) if errors[error] not in reached(root, header)]


_ERRORS = "class RAVO_API RangeError : public Error {\n};\nclass EOther final : public RangeError {\n};\n"


def _tree(comment, code=""):
    return {"ravo/A.h": "#include <ravo/room/a.h>\n", "ravo/room/a.h": f"{code}/// {comment}\nvoid F();\n", "ravo/room/e.h": _ERRORS}


PLANTINGS = [
    ("nothing promised", _tree("Counts."), None),
    ("a promise without the class", _tree("`RangeError` for a bad one."), "ravo/room/a.h: promises RangeError"),
    ("a promise of another class", _tree("`EOther`."), "include <ravo/room/e.h>"),
    ("a promise kept", _tree("`RangeError` for a bad one.", "#include <ravo/room/e.h>\n"), None),
    ("a word that is no class", _tree("`value` and RangeError in prose."), None),
    ("a private header", {**_tree("Counts."), "ravo/room/b.h": "/// `RangeError`.\n"}, None),
]

if __name__ == "__main__":
    main(check, PLANTINGS)
