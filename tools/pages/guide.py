#!/usr/bin/env python3
"""Copies the code and the output of the examples into docs/guide.md.

usage: guide.py PROGRAMS --write         PROGRAMS is the folder where the examples are built
       guide.py --output NAME PROGRAM... runs a program and compares its output with the guide
       guide.py --prompt PROGRAM...      runs every command that the guide shows "at the prompt"; PROGRAM is ravo

In the guide a comment precedes each copied block:

    <!-- code: guide/accounts.cpp#include,check -->    these regions of examples/guide/accounts.cpp
    <!-- output: guide_accounts -->                    the output of that program

In a program a region is between the lines `// [name]` and `// [/name]`.
"""

import difflib
import pathlib
import re
import shlex
import subprocess
import sys
import textwrap
from collections.abc import Callable

from common import ROOT, command_line, write
from source_tree import Planting, read

DOCUMENT = "docs/guide.md"
BLOCK = re.compile(
    r"^<!-- (?P<kind>code|output): (?P<source>[\w/.]+)(?:#(?P<regions>[\w,]+))? -->\n```(?P<language>\w+)\n(?P<text>.*?)^```$",
    re.DOTALL | re.MULTILINE,
)
REGION = re.compile(r"^ *// \[(\w+)\]\n(.*?)^ *// \[/\1\]$", re.DOTALL | re.MULTILINE)


def regions_of(program: str) -> dict[str, str]:
    """Name -> code of every region of a program, without the indentation that all its lines share."""
    return {name: textwrap.dedent(code) for name, code in REGION.findall(program)}


def hidden_lines(program: str) -> list[str]:
    """What a program has outside its regions, besides the frame of main."""
    return [line for line in REGION.sub("", program).splitlines() if line.strip() not in ("", "int main() {", "}")]


def code_of(block: re.Match[str], program: str) -> str:
    """The expected text of a block of code; KeyError has the name of a missing region."""
    regions = regions_of(program)
    return "\n".join(regions[name] for name in block["regions"].split(","))


def replaced(document: str, text_of: Callable[[re.Match[str]], str]) -> str:
    """The document with the text of every copied block replaced by the result of `text_of`."""

    def block(match: re.Match[str]) -> str:
        return match.group(0)[: match.start("text") - match.start()] + text_of(match) + "```"

    return BLOCK.sub(block, document)


def output_of(command: list[str]) -> str:
    done = subprocess.run(command, capture_output=True, check=False, timeout=300)
    if done.returncode == 77:
        sys.exit(77)
    if done.returncode != 0:
        sys.exit(f"{command} ends with {done.returncode}: {done.stderr.decode('utf-8', 'replace')}")
    return done.stdout.decode("utf-8").replace("\r\n", "\n")


def render(root: pathlib.Path, programs: str) -> dict[str, str]:
    def text_of(block: re.Match[str]) -> str:
        if block["kind"] == "output":
            return output_of([f"{programs}/example_{block['source']}"])
        return code_of(block, read(root / "examples" / block["source"]))

    return {DOCUMENT: replaced(read(root / DOCUMENT), text_of)}


def compare(name: str, command: list[str]) -> None:
    shown = [block["text"] for block in BLOCK.finditer(read(ROOT / DOCUMENT)) if block["kind"] == "output" and block["source"] == name]
    if len(shown) != 1:
        sys.exit(f"{DOCUMENT} shows the output of {name} {len(shown)} times; once is wanted")
    printed = output_of(command)
    difference = list(difflib.unified_diff(shown[0].splitlines(), printed.splitlines(), DOCUMENT, name, lineterm=""))
    if difference:
        sys.exit("\n".join(difference))


def try_commands(program: list[str]) -> None:
    paragraphs = re.findall(r"at the prompt:?\s(.*?)\n\n", read(ROOT / DOCUMENT) + "\n\n", re.DOTALL | re.IGNORECASE)
    commands = [" ".join(text.split()) for paragraph in paragraphs for text in re.findall(r"`(ravo .*?)`", paragraph, re.DOTALL)]
    if len(commands) < 10:
        sys.exit(f"{DOCUMENT} shows only {len(commands)} commands")
    for command in commands:
        done = subprocess.run([*program, *shlex.split(command)[1:]], capture_output=True, check=False, timeout=300, cwd=ROOT)
        # 1 is a valid answer: not found, not valid.
        if done.returncode not in (0, 1):
            sys.exit(f"{command}: status {done.returncode}: {done.stderr.decode('utf-8', 'replace')}")


def check_block(root: pathlib.Path, block: re.Match[str]) -> list[str]:
    program = root / "examples" / block["source"]
    if not program.is_file():
        return [f"{DOCUMENT}: there is no example {block['source']}"]
    try:
        same = block["text"] == code_of(block, read(program))
    except KeyError as missing:
        return [f"{DOCUMENT}: {block['source']} has no region {missing}"]
    return [] if same else [f"{DOCUMENT}: its code of {block['source']}#{block['regions']} differs; make guide copies it"]


def check(root: pathlib.Path) -> list[str]:
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
        findings += [f"{source}: not shown in {DOCUMENT}, so what is shown does not compile: {line}" for line in hidden_lines(read(program))]
        findings += [f"{DOCUMENT}: does not show {source}#{name}" for name in regions_of(read(program)) if name not in quoted]
        if shown.count(f"guide_{program.stem}") != 1:
            findings.append(f"{DOCUMENT}: wants what {source} prints, once")
    return findings


_PROGRAM = "int main() {\n  // [a]\n  f();\n  // [/a]\n}\n"
_CODE = "<!-- code: guide/x.cpp#a -->\n```cpp\nf();\n```\n"
_OUTPUT = "<!-- output: guide_x -->\n```text\n1\n```\n"


def _tree(document: str, program: str = _PROGRAM) -> dict[str, str]:
    return {DOCUMENT: document, "examples/guide/x.cpp": program}


PLANTINGS: list[Planting] = [
    ("a good tree", _tree(_CODE + _OUTPUT), None),
    ("code that differs", _tree(_CODE.replace("f();", "g();") + _OUTPUT), "differs"),
    ("a region that is not there", _tree(_CODE.replace("#a", "#b") + _OUTPUT), "has no region 'b'"),
    ("a program that is not there", _tree(_CODE.replace("x.cpp", "y.cpp") + _OUTPUT), "no example guide/y.cpp"),
    ("a region that is not shown", _tree(_CODE + _OUTPUT, _PROGRAM + "// [c]\n// [/c]\n"), "does not show guide/x.cpp#c"),
    ("a line that is not shown", _tree(_CODE + _OUTPUT, "using namespace x;\n" + _PROGRAM), "does not compile: using namespace x;"),
    ("no output", _tree(_CODE), "wants what guide/x.cpp prints"),
    ("output twice", _tree(_CODE + _OUTPUT + _OUTPUT), "wants what guide/x.cpp prints"),
    ("code of nowhere", _tree(_CODE + _OUTPUT + "```cpp\nh();\n```\n"), "copied from no example"),
]

if __name__ == "__main__":
    if sys.argv[1:2] == ["--output"]:
        compare(sys.argv[2], sys.argv[3:])
    elif sys.argv[1:2] == ["--prompt"]:
        try_commands(sys.argv[2:])
    else:
        write(ROOT, render(ROOT, *command_line(check, PLANTINGS).inputs))
