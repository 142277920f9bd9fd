#!/usr/bin/env python3
"""The manual page and the completion have every command and option that `ravo --help` shows.

usage: pages_test.py [--self-test] PROGRAM MAN BASH
"""

import os
import pathlib
import re
import subprocess
import sys

# The tests read English, whatever the user of this machine reads.
os.environ["RAVO_LANG"] = "en"


def help_of(program, *command):
    return subprocess.run([program, *command, "--help"], capture_output=True, text=True, check=True).stdout


def commands_of(text):
    """The commands that help lists under its themes."""
    body = text.split("Options:\n", 1)[1].split("\n\n", 1)[1].split("Exit status:", 1)[0]
    return re.findall(r"^  ([a-z][a-z0-9-]*) ", body, re.MULTILINE)


def all_commands(program, commands):
    """The commands, each followed by its sub-commands ("xml", "xml show")."""
    for command in commands:
        yield command
        own = help_of(program, command).partition("\nSubcommands:\n")[2].partition("\n\n")[0]
        yield from (f"{command} {name}" for name in re.findall(r"^  ([a-z]+) ", own, re.MULTILINE))


def options_of(text):
    return sorted(set(re.findall(r"^  (?:-\w,)?(--?[a-z][a-z-]*)", text, re.MULTILINE)))


def completed(script, *words):
    """The completions that bash offers for the last word."""
    code = 'source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _ravo; printf "%s\\n" "${COMPREPLY[@]}"'
    done = subprocess.run(["bash", "-c", code, "-", script, *words], capture_output=True, text=True, check=True)
    return sorted(done.stdout.split())


def man_remarks(page):
    """The page formatted by groff with warnings on; empty if this machine has no groff."""
    try:
        done = subprocess.run(["groff", "-man", "-Kutf8", "-Tutf8", "-ww", "-z"], input=page.encode(), capture_output=True)
    except FileNotFoundError:
        return []
    return done.stderr.decode().splitlines()


def failures(program, page, script):
    yield from (f"groff: {remark}" for remark in man_remarks(page))
    sections = dict(re.findall(r'^\.SS "ravo ([^"]+)"\n(.*?)(?=^\.S[SH] |\Z)', page.replace("\\-", "-"), re.DOTALL | re.MULTILINE))
    whole = help_of(program)
    commands = commands_of(whole)
    if len(commands) < 10 or "xml show" not in all_commands(program, commands):
        yield f"help lists but {commands}"
    if "Subcommands:" in whole:
        yield "a command has no theme"
    if completed(script, "ravo", "") != sorted(commands + ["--help", "--lang", "--version", "-V", "-h"]):
        yield f"completion of commands: {completed(script, 'ravo', '')}"
    for command in all_commands(program, commands):
        if command not in sections:
            yield f"the manual page lacks {command}"
            continue
        options = options_of(help_of(program, *command.split()))
        offered = completed(script, "ravo", *command.split(), "-")
        yield from (f"the manual page lacks {command} {option}" for option in options if f"{option}" not in sections[command])
        yield from (f"the completion lacks {command} {option}" for option in options if option not in offered)
    if completed(script, "ravo", "round", "--mode", "") != ["down", "math", "up"]:
        yield f"completion of a value: {completed(script, 'ravo', 'round', '--mode', '')}"
    if completed(script, "ravo", "xml", "s") != ["set", "show"]:
        yield f"completion of a command of a command: {completed(script, 'ravo', 'xml', 's')}"
    if completed(script, "ravo", "hash", "crc32", ""):
        yield "where a file is wanted, the shell should be left to complete it"


def self_test(program, page, script):
    assert any("lacks hash" in line for line in failures(program, page.replace('"ravo hash"', '"ravo mash"'), script))
    assert any("lacks round --mode" in line for line in failures(program, page.replace("\\-\\-mode", "mode"), script))
    damaged = pathlib.Path("damaged.bash")
    damaged.write_text(pathlib.Path(script).read_text().replace("--plain", "--plan"))
    assert any("completion lacks captions --plain" in line for line in failures(program, page, str(damaged.resolve())))
    damaged.unlink()
    return []


def main(arguments):
    test = failures
    if arguments[0] == "--self-test":
        test = self_test
        arguments = arguments[1:]
    program, page, script = arguments
    found = list(test(program, pathlib.Path(page).read_text(encoding="utf-8"), script))
    for remark in found:
        print(remark)
    sys.exit(1 if found else 0)


main(sys.argv[1:])
