#!/usr/bin/env python3
"""Keeps docs/guide.md and the programs that it quotes together.

usage: guide.py --write PROGRAMS         copies code and output into the guide; PROGRAMS is where the examples are built
       guide.py --output NAME PROGRAM... runs a program and compares what it prints with what the guide shows of it
       guide.py --prompt PROGRAM...      runs every command that the guide shows "at the prompt"; PROGRAM is ravo

In the guide a comment stands before each block that is copied:

    <!-- code: guide/accounts.cpp#include,check -->    these regions of examples/guide/accounts.cpp
    <!-- output: guide_accounts -->                    what that program prints

In a program a region stands between the lines `// [name]` and `// [/name]`.
"""

import difflib
import pathlib
import re
import shlex
import subprocess
import sys
import textwrap

ROOT = pathlib.Path(__file__).resolve().parents[1]
DOCUMENT = "docs/guide.md"
BLOCK = re.compile(
    r"^<!-- (?P<kind>code|output): (?P<source>[\w/.]+)(?:#(?P<regions>[\w,]+))? -->\n```(?P<language>\w+)\n(?P<text>.*?)^```$",
    re.DOTALL | re.MULTILINE,
)
REGION = re.compile(r"^ *// \[(\w+)\]\n(.*?)^ *// \[/\1\]$", re.DOTALL | re.MULTILINE)


def regions_of(program):
    """Name -> code of every region of a program, without the indentation that all its lines share."""
    return {name: textwrap.dedent(code) for name, code in REGION.findall(program)}


def code_of(block, program):
    """What a block of code has to hold; KeyError names a region that the program has not."""
    regions = regions_of(program)
    return "\n".join(regions[name] for name in block["regions"].split(","))


def replaced(document, text_of):
    """The document with the text of every copied block replaced by what `text_of` answers for it."""

    def block(match):
        return match.group(0)[: match.start("text") - match.start()] + text_of(match) + "```"

    return BLOCK.sub(block, document)


def output_of(command):
    done = subprocess.run(command, capture_output=True, check=False, timeout=300)
    if done.returncode == 77:
        sys.exit(77)
    if done.returncode != 0:
        sys.exit(f"{command} ends with {done.returncode}: {done.stderr.decode('utf-8', 'replace')}")
    return done.stdout.decode("utf-8").replace("\r\n", "\n")


def write(programs):
    def text_of(block):
        if block["kind"] == "output":
            return output_of([f"{programs}/example_{block['source']}"])
        return code_of(block, (ROOT / "examples" / block["source"]).read_text(encoding="utf-8"))

    path = ROOT / DOCUMENT
    path.write_text(replaced(path.read_text(encoding="utf-8"), text_of), encoding="utf-8")


def compare(name, command):
    document = (ROOT / DOCUMENT).read_text(encoding="utf-8")
    shown = [block["text"] for block in BLOCK.finditer(document) if block["kind"] == "output" and block["source"] == name]
    if len(shown) != 1:
        sys.exit(f"{DOCUMENT} shows the output of {name} {len(shown)} times; once is wanted")
    printed = output_of(command)
    difference = list(difflib.unified_diff(shown[0].splitlines(), printed.splitlines(), DOCUMENT, name, lineterm=""))
    if difference:
        sys.exit("\n".join(difference))


def try_commands(program):
    document = (ROOT / DOCUMENT).read_text(encoding="utf-8")
    paragraphs = re.findall(r"at the prompt:?\s(.*?)\n\n", document + "\n\n", re.DOTALL | re.IGNORECASE)
    commands = [" ".join(text.split()) for paragraph in paragraphs for text in re.findall(r"`(ravo .*?)`", paragraph, re.DOTALL)]
    if len(commands) < 10:
        sys.exit(f"{DOCUMENT} shows only {len(commands)} commands")
    for command in commands:
        done = subprocess.run([*program, *shlex.split(command)[1:]], capture_output=True, check=False, timeout=300, cwd=ROOT)
        # 1 is an answer: no such thing, not valid.
        if done.returncode not in (0, 1):
            sys.exit(f"{command}: status {done.returncode}: {done.stderr.decode('utf-8', 'replace')}")


if __name__ == "__main__":
    if len(sys.argv) == 3 and sys.argv[1] == "--write":
        write(sys.argv[2])
    elif len(sys.argv) > 3 and sys.argv[1] == "--output":
        compare(sys.argv[2], sys.argv[3:])
    elif len(sys.argv) > 2 and sys.argv[1] == "--prompt":
        try_commands(sys.argv[2:])
    else:
        sys.exit(__doc__)
