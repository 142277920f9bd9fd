#!/usr/bin/env python3
"""Words that must not occur in this tree: papers outside it, numbers of a tracker, paths of one machine, registries,
the marks of a merge that is not done.

The patterns are written so that they do not match their own text: no file is exempt.
"""

import re

from source_tree import main

SKIPPED = {".git", "build", ".cache", "__pycache__"}

PATTERNS = {
    "a paper outside this tree": re.compile(r"\bspec[.]md\b|\bthe specificatio[n]\b|\bPar[t]s? \d+\.\d+", re.I),
    "a number of a tracker": re.compile(r"\bissue[s]? #?\d+|\b(?:fixes|closes|see|resolves) #\d+", re.I),
    "a place of one machine": re.compile(r"(?<![\w$}.\"'-])/(?:wor[k]|far[m])/|(?<![\w$}.])/roo[t]/"),
    "somebody's home": re.compile(r"(?<![\w$}.])/hom[e]/\w+/"),
    "a merge not done": re.compile(r"^(?:<{7}|>{7}) "),
    "a package registry": re.compile(
        r"\b(?:pypi[.]org|pythonhosted[.]org|npmjs[.](?:org|com)|crates[.]io|rubygems[.]org|deb[.]debian[.]org"
        r"|archive[.]ubuntu[.]com|conan[.]io|proxy[.]golang[.]org|hub[.]docker[.]com)\b", re.I
    ),
}


# Tests make up accounts of their own.
ALLOWED = {"somebody's home": "tests/"}


def text_files(root):
    for path in sorted(root.rglob("*")):
        parts = path.relative_to(root).parts
        if not path.is_file() or SKIPPED.intersection(parts) or parts[:2] == ("fuzz", "corpus"):
            continue
        try:
            yield path, path.read_text(encoding="utf-8")
        except UnicodeDecodeError:
            continue


def check(root):
    return [
        f"{name}:{number}: {kind}: {found.group(0)}"
        for path, text in text_files(root)
        if (name := path.relative_to(root).as_posix())
        for number, line in enumerate(text.splitlines(), 1)
        for kind, pattern in PATTERNS.items()
        if (found := pattern.search(line)) and not name.startswith(ALLOWED.get(kind, "\n"))
    ]


def _planted(*pieces):
    """A tree with one line; the line comes in pieces so that this file does not contain it."""
    return {"docs/a.md": "First line.\n" + "".join(pieces) + "\n"}


PLANTINGS = [
    ("a good tree", _planted("Part of the work: http://www.w3.org, issue a call, $root/proc, parts 1 and 2"), None),
    ("a file of that name", _planted("as spec", ".md says"), "docs/a.md:2: a paper"),
    ("the paper", _planted("as The specificat", "ion says"), "a paper"),
    ("a chapter", _planted("see Par", "t 3.1"), "a paper"),
    ("chapters", _planted("Par", "ts 3.1 and 3.2"), "a paper"),
    ("an entry", _planted("for issue", " 12"), "a number"),
    ("an entry closed", _planted("fixes ", "#12"), "a number"),
    ("a workplace", _planted("cd /wor", "k/main"), "a place"),
    ("another workplace", _planted("cd /far", "m/x"), "a place"),
    ("somebody's home", _planted("cd /hom", "e/jan/x"), "somebody's home"),
    ("a home in a test", {"tests/a.cpp": "/hom" + "e/jan/x"}, None),
    ("the administrator's home", _planted("cd /roo", "t/x"), "a place"),
    ("a registry", _planted("https://pypi", ".org/simple"), "a package registry"),
    ("a mirror", {"scripts/setup": "deb http://deb.debian" + ".org/debian\n"}, "scripts/setup:1: a package registry"),
    ("a merge", {"a.sh": "<" * 7 + " HEAD\n"}, "a merge not done"),
    ("a build tree", {"build/a.md": "/wor" + "k/x"}, None),
    ("bytes", {"a.bin": "\u00e9"}, None),
]

if __name__ == "__main__":
    main(check, PLANTINGS)
