#!/usr/bin/env python3
"""Subjects of commits: `room: verb what` in the imperative, and of merges what they bring; at most 72 characters.

Skipped with a message if there is no history: in an archive of the sources, in a shallow clone.
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
from collections.abc import Iterator

from source_tree import main

LONGEST = 72
ROOM = r"\.?\w[\w./+-]*"
CHANGE = re.compile(rf'{ROOM}: (?P<verb>[a-z][\w-]*) \S.*(?<![.\s])|Revert ".+"')
MERGE = re.compile(r"Merge .+: \S.*(?<![.\s])|Merge branch 'main' into \S+")
# Adds, added, adding; and imperative verbs with such an ending.
OTHER_FORM = re.compile(r"(?:ed|ing|[^su]s)$")
VERBS = {"bring", "embed", "feed", "need", "ring", "seed", "speed", "string"}
# The rules apply after this commit.
BEFORE = "b0a0318da01ed16220cb4ecf07edef74587d2d6a"
RULES = [("--no-merges", CHANGE, "room: verb what"), ("--merges", MERGE, "Merge branch 'name': what it brings")]


def git(root: pathlib.Path, *arguments: str) -> subprocess.CompletedProcess[str]:
    return subprocess.run(["git", "-C", str(root), *arguments], capture_output=True, text=True, check=False)


def commits(root: pathlib.Path, kind: str, before: str) -> list[list[str]]:
    """(short hash, subject) of the commits after one."""
    log = git(root, "log", kind, "--format=%h%x09%s", f"{before}..HEAD").stdout
    return [line.split("\t", 1) for line in log.splitlines()]


def faults(subject: str, pattern: re.Pattern[str], form: str) -> Iterator[str]:
    match = pattern.fullmatch(subject)
    verb = match and match.groupdict().get("verb")
    if not match:
        yield f"does not read '{form}'"
    if verb and OTHER_FORM.search(verb) and verb not in VERBS:
        yield f"'{verb}' is no imperative"
    if len(subject) > LONGEST:
        yield f"has {len(subject)} characters, more than {LONGEST}"


def check(root: pathlib.Path, before: str = BEFORE) -> list[str]:
    if not shutil.which("git") or git(root, "merge-base", "--is-ancestor", before, "HEAD").returncode:
        print(f"no history since {before[:7]}: passed over")
        return []
    return [
        f"{commit}: {fault}: {subject}"
        for kind, pattern, form in RULES
        for commit, subject in commits(root, kind, before)
        for fault in faults(subject, pattern, form)
    ]


PLANTED = [
    ("xml: free the arena in one step", None),
    ("scripts/exports: say by patterns what leaves", None),
    ("xml, utils: need less memory", "does not read 'room: verb what'"),
    ("xml: need less memory", None),
    ('Revert "xml: free the arena in one step"', None),
    ("Merge branch 'xml': one step to free the arena", None),
    ("Merge branch 'main' into xml", None),
    ("Free the arena", "does not read 'room: verb what'"),
    ("xml: Free the arena", "does not read"),
    ("xml: free the arena.", "does not read"),
    ("xml: frees the arena", "'frees' is no imperative"),
    ("xml: freed the arena", "'freed' is no imperative"),
    ("xml: free " + 63 * "a", "has 73 characters"),
    ("Merge branch 'xml'", "does not read 'Merge branch"),
    ("Merge branch 'xml': " + 60 * "a", "has 80 characters"),
]


def history(root: pathlib.Path, subject: str) -> str:
    """Creates a history with a commit before the rules, which violates them, and one after it. Returns the first."""

    def commit(text: str, *parents: str) -> str:
        made = git(root, "-c", "user.name=a", "-c", "user.email=a@b", "commit-tree", "-m", text,
                   *(word for parent in parents for word in ("-p", parent)), tree)
        assert made.returncode == 0, made.stderr
        return made.stdout.strip()

    assert git(root, "init", "-q").returncode == 0
    tree = git(root, "write-tree").stdout.strip()
    first = commit("Before.")
    second = commit(subject, first, *([commit("xml: add this", first)] if subject.startswith("Merge") else []))
    assert git(root, "update-ref", "HEAD", second).returncode == 0
    return first


def planted(subject: str) -> list[str]:
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        return check(root, history(root, subject))


def self_test() -> Iterator[str]:
    for subject, wanted in PLANTED:
        findings = planted(subject)
        if len(findings) != (wanted is not None) or wanted and wanted not in findings[0]:
            yield f"self-test '{subject}': wanted {wanted}, found {findings}"
    with tempfile.TemporaryDirectory() as folder:
        if check(pathlib.Path(folder)):
            yield "self-test: found something where there is no history"


if __name__ == "__main__":
    if sys.argv[1:] == ["--self-test"]:
        sys.exit("\n".join(self_test()) or 0)
    main(check, [])
