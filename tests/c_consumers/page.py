#!/usr/bin/env python3
"""Does what docs/libravo.md says, in an empty folder: its commands must print what it shows, its code be that of the examples.

usage: page.py PROJECT PREFIX
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import textwrap
from collections.abc import Iterator

FENCE = re.compile(r"^```(\w*)\n(.*?)^```$", re.DOTALL | re.MULTILINE)
EXAMPLES = {"c": "examples/c/check.c", "csharp": "examples/csharp/Check.cs"}
# The exit status of a command is its own affair: an example answers 1 for a wrong value.
MARK = "-- next command --"


def code_is_in(code: str, example: str) -> bool:
    """Whether lines are in an example, however far they are indented there."""
    return any(textwrap.indent(code, " " * depth) in example for depth in range(0, 16, 2))


def steps(block: str) -> list[tuple[str, str]]:
    """The commands of a block, and the output that it shows after each."""
    return [(step.partition("\n")[0], step.partition("\n")[2]) for step in re.split(r"^\$ ", block, flags=re.MULTILINE)[1:]]


def printed(commands: list[str], folder: pathlib.Path) -> list[str]:
    """What each command prints, all of them in one shell."""
    script = "".join(f"{command}\necho '{MARK}'\n" for command in commands)
    done = subprocess.run(["bash", "-c", script], cwd=folder, env={**os.environ, "HOME": str(folder), "LC_ALL": "C.UTF-8"},
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)  # fmt: skip
    return done.stdout.split(f"{MARK}\n")[:-1]


def findings(page: str, project: pathlib.Path, prefix: pathlib.Path, folder: pathlib.Path) -> Iterator[str]:
    (folder / "ravo").symlink_to(prefix)
    for example in EXAMPLES.values():
        shutil.copy(project / example, folder)
    shown: list[tuple[str, str]] = []
    for language, block in FENCE.findall(page):
        if language in EXAMPLES and not code_is_in(block, (project / EXAMPLES[language]).read_text(encoding="utf-8")):
            yield f"not in {EXAMPLES[language]}:\n{block}"
        if language == "cmake":
            (folder / "CMakeLists.txt").write_text(block)
        if language == "sh":
            shown += steps(block)
    for (command, expected), found in zip(shown, printed([command for command, _ in shown], folder), strict=True):
        if found != expected:
            yield f"$ {command}\n{found}instead of\n{expected}"


def main(project: str, prefix: str) -> int:
    page = (pathlib.Path(project) / "docs" / "libravo.md").read_text(encoding="utf-8")
    with tempfile.TemporaryDirectory() as folder:
        lines = list(findings(page, pathlib.Path(project), pathlib.Path(prefix).resolve(), pathlib.Path(folder)))
    print("\n".join(lines) or "the page is true")
    return 1 if lines or not page.count("\n$ ") else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
