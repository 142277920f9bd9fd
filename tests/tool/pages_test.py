#!/usr/bin/env python3
"""The manual pages and the completions have every command and option that `ravo --help` shows.

usage: pages_test.py [--self-test] PROGRAM FOLDER      (FOLDER: ravo.man, ravo.man-cs, ravo.bash, ravo.zsh, ravo.fish)

Shells that this machine lacks are left out.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

# The tests read English, whatever the user of this machine reads.
os.environ["RAVO_LANG"] = "en"


def help_of(program, *command):
    return subprocess.run([program, *command, "--help"], capture_output=True, text=True, check=True).stdout


def commands_of(text):
    """The commands that help lists under its themes, without their other names."""
    body = text.split("Options:\n", 1)[1].split("\n\n", 1)[1].split("Exit status:", 1)[0]
    return re.findall(r"^  ([a-z][a-z0-9-]*),? ", body, re.MULTILINE)


def all_commands(program, commands):
    """The commands, each followed by its sub-commands ("xml", "xml show")."""
    for command in commands:
        yield command
        own = help_of(program, command).partition("\nCommands:\n")[2].partition("\n\n")[0]
        yield from (f"{command} {name}" for name in re.findall(r"^  ([a-z]+) ", own, re.MULTILINE))


def options_of(text):
    return sorted(set(re.findall(r"^  (?:-\w,)?(--?[a-z][a-z0-9-]*)", text, re.MULTILINE)))


def completed(script, *words):
    """The completions that bash offers for the last word."""
    code = 'source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _ravo; printf "%s\\n" "${COMPREPLY[@]}"'
    done = subprocess.run(["bash", "-c", code, "-", script, *words], capture_output=True, text=True, check=True)
    return sorted(done.stdout.split())


def in_fish(script, *words):
    line = " ".join(words)
    code = f"set -g fish_complete_path; source {script}; complete -C '{line}'"
    done = subprocess.run(["fish", "--no-config", "-c", code], capture_output=True, text=True, check=True)
    return sorted(row.split("\t")[0] for row in done.stdout.splitlines())


# The functions of zsh's completion system, which only work on a terminal, replaced by some that print.
ZSH_STUBS = """
_describe() { local name=${@[-1]} entry; for entry in "${(@P)name}"; do print -r -- "${entry%%:*}"; done }
_files() { print -r -- FILES }
compadd() { shift; print -rl -- "$@" }
offered() { source "$1" }
"""


def in_zsh(script, *words):
    quoted = " ".join(f"'{word}'" for word in words)
    code = f"{ZSH_STUBS}\nwords=({quoted}); CURRENT={len(words)}; offered '{script}'"
    done = subprocess.run(["zsh", "-f", "-c", code], capture_output=True, text=True, check=True)
    return sorted(done.stdout.split())


def offer_failures(program, folder, commands):
    """What the completions for zsh and fish offer: commands, options and values."""
    shells = [(name, offer, folder / f"ravo.{name}") for name, offer in (("zsh", in_zsh), ("fish", in_fish)) if shutil.which(name)]
    for name, offer, script in shells:
        if missing := set(commands) - set(offer(script, "ravo", "")):
            yield f"the completion for {name} lacks {sorted(missing)}"
        for command in all_commands(program, commands):
            options = [option for option in options_of(help_of(program, *command.split())) if option.startswith("--")]
            offered = offer(script, "ravo", *command.split(), "--")
            yield from (f"the completion for {name} lacks {command} {option}" for option in options if option not in offered)
        for words, wanted in (
            (("round", "--mode", ""), ["down", "math", "up"]),
            (("--lang", ""), ["cs", "en"]),
            (("hash", ""), ["crc32", "hash", "hash-ia"]),
            (("xml", ""), ["get", "set", "show"]),
        ):
            if missing := set(wanted) - set(offer(script, "ravo", *words)):
                yield f"the completion for {name} lacks {sorted(missing)} after {words}"


SECTIONS = ("NAME", "SYNOPSIS", "OPTIONS", "EXIT STATUS", "ENVIRONMENT", "EXAMPLES", "SEE ALSO")
CZECH_SECTIONS = ("NÁZEV", "POUŽITÍ", "PŘEPÍNAČE", "NÁVRATOVÝ KÓD", "PROSTŘEDÍ", "PŘÍKLADY", "DALŠÍ INFORMACE")


def section_failures(page, sections):
    found = re.findall(r'^\.SH "([^"]+)"', page, re.MULTILINE)
    yield from (f"the manual page lacks the section {name}" for name in sections if name not in found)


def man_remarks(page):
    """The page formatted by groff with warnings on; empty if this machine has no groff."""
    try:
        done = subprocess.run(["groff", "-man", "-Kutf8", "-Tutf8", "-ww", "-z"], input=page.encode(), capture_output=True)
    except FileNotFoundError:
        return []
    return done.stderr.decode().splitlines()


def failures(program, page, script, folder):
    yield from section_failures(page, SECTIONS)
    czech = (folder / "ravo.man-cs").read_text(encoding="utf-8")
    yield from section_failures(czech, CZECH_SECTIONS)
    yield from (f"groff on the Czech page: {remark}" for remark in man_remarks(czech))
    if re.findall(r'^\.SS "[^"]+"', czech, re.MULTILINE) != re.findall(r'^\.SS "[^"]+"', page, re.MULTILINE):
        yield "the Czech manual page has other commands"
    yield from (f"groff: {remark}" for remark in man_remarks(page))
    sections = dict(re.findall(r'^\.SS "ravo ([^"]+)"\n(.*?)(?=^\.S[SH] |\Z)', page.replace("\\-", "-"), re.DOTALL | re.MULTILINE))
    whole = help_of(program)
    commands = commands_of(whole)
    if len(commands) < 10 or "xml show" not in all_commands(program, commands):
        yield f"help lists but {commands}"
    if "\nCommands:" in whole:
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
    yield from offer_failures(program, folder, commands)
    if completed(script, "ravo", "hash", "cr") != ["crc32"]:
        yield f"completion of a first argument: {completed(script, 'ravo', 'hash', 'cr')}"
    if completed(script, "ravo", "--lang", "") != ["cs", "en"]:
        yield f"completion of a language: {completed(script, 'ravo', '--lang', '')}"
    if completed(script, "ravo", "xml", "s") != ["set", "show"]:
        yield f"completion of a command of a command: {completed(script, 'ravo', 'xml', 's')}"
    if completed(script, "ravo", "hash", "crc32", ""):
        yield "where a file is wanted, the shell should be left to complete it"


def self_test(program, page, script, folder):
    def found(wanted, page=page, script=script, folder=folder):
        assert any(wanted in line for line in failures(program, page, script, folder)), wanted

    found("lacks hash", page=page.replace('"ravo hash"', '"ravo mash"'))
    found("lacks round --mode", page=page.replace("\\-\\-mode", "mode"))
    found("lacks the section EXIT STATUS", page=page.replace('"EXIT STATUS"', '"STATUS"'))
    with tempfile.TemporaryDirectory() as name:
        damaged = pathlib.Path(name)
        for file in folder.glob("ravo.*"):
            text = file.read_text(encoding="utf-8").replace("--plain", "--plan").replace("-l plain", "-l plan")
            (damaged / file.name).write_text(text.replace('"PŘÍKLADY"', '"UKÁZKY"'), encoding="utf-8")
        found("completion lacks captions --plain", script=str(damaged / "ravo.bash"))
        found("lacks the section PŘÍKLADY", folder=damaged)
        for shell in filter(shutil.which, ("zsh", "fish")):
            found(f"completion for {shell} lacks captions --plain", folder=damaged)
    return []


def main(arguments):
    test = failures
    if arguments[0] == "--self-test":
        test = self_test
        arguments = arguments[1:]
    program, folder = arguments[0], pathlib.Path(arguments[1]).resolve()
    found = list(test(program, (folder / "ravo.man").read_text(encoding="utf-8"), str(folder / "ravo.bash"), folder))
    for remark in found:
        print(remark)
    sys.exit(1 if found else 0)


main(sys.argv[1:])
