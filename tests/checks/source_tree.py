"""Shared by the checks of the source tree: reading sources, reporting, and the self-test's planted trees.

A check is a function that takes the root of a tree and returns a list of findings, each a line of text. Its
self-test is a list of plantings: files that are put into an empty tree, and a piece of text that some finding
must contain then (or None where nothing may be found).
"""

import argparse
import pathlib
import re
import sys
import tempfile
from collections.abc import Callable, Iterable, Iterator
from typing import NoReturn

Check = Callable[[pathlib.Path], list[str]]
Planting = tuple[str, dict[str, str], str | None]
CODE = {".h", ".cpp", ".c", ".inc"}

_TOKEN = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"|(?<![0-9A-Za-z_])\'(?:\\.|[^\'\\\n])+\'',
    re.DOTALL,
)
_INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"\n]+)[>"]', re.MULTILINE)


def code_files(root: pathlib.Path, *folders: str) -> Iterator[pathlib.Path]:
    """The sources below the given folders of a tree, in a fixed order."""
    for folder in folders:
        yield from sorted(p for p in (root / folder).rglob("*") if p.suffix in CODE and p.is_file())


def read(path: pathlib.Path) -> str:
    return path.read_text(encoding="utf-8")


def without_comments(text: str, keep_strings: bool = False) -> str:
    """Code with comments replaced by blanks, and literals unless they are kept; line numbers stay."""

    def blank(match: re.Match[str]) -> str:
        token = match.group(0)
        if token[0] != "/":
            return token if keep_strings else '""'
        return "\n" * token.count("\n") or " "

    return _TOKEN.sub(blank, text)


def includes(path: pathlib.Path) -> Iterator[tuple[int, str, str]]:
    """(line number, "<" or the quote, name) of every #include line of a file, comments aside."""
    text = without_comments(read(path), keep_strings=True)
    for match in _INCLUDE.finditer(text):
        yield text.count("\n", 0, match.start()) + 1, match.group(1), match.group(2)


def plant(root: pathlib.Path, files: dict[str, str]) -> None:
    for name, text in files.items():
        path = root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")


def failures_of(check: Check, plantings: list[Planting]) -> Iterator[str]:
    """Planted defects that the check misses, and findings without a defect."""
    for title, files, wanted in plantings:
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            plant(root, files)
            findings = check(root)
        if wanted is None and findings:
            yield f"self-test '{title}': found what is not there: {findings}"
        if wanted is not None and not any(wanted in finding for finding in findings):
            yield f"self-test '{title}': missed '{wanted}', found only {findings}"


def finish(findings: Iterable[str]) -> NoReturn:
    """Prints the findings and ends; the status is 1 if there is one."""
    found = list(findings)
    print("\n".join(found), end="\n" if found else "")
    sys.exit(1 if found else 0)


def main(check: Check, plantings: list[Planting]) -> NoReturn:
    """The command line of every check: the tree's root, or --self-test. Exits 1 on findings."""
    parser = argparse.ArgumentParser()
    parser.add_argument("root", nargs="?", type=pathlib.Path, default=pathlib.Path(__file__).parents[2])
    parser.add_argument("--check", action="store_true", help="look for findings; what happens without options too")
    parser.add_argument("--self-test", action="store_true", help="prove that planted defects are found")
    arguments = parser.parse_args()
    finish(failures_of(check, plantings) if arguments.self_test else check(arguments.root.resolve()))
