#!/usr/bin/env python3
"""What enters and leaves a built libravo: its own C names alone, and of other libraries only those of the system.

usage: library.py LIBRARY
"""
import pathlib
import re
import subprocess
import sys
from collections.abc import Iterator

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.append(str(ROOT / "tools" / "generate"))
from c_interface import VERSION, functions, parsed  # noqa: E402

WINDOWS = {"kernel32", "msvcrt", "advapi32", "gdi32", "ole32", "oleaut32", "shell32", "user32", "version"}
LINUX = {"libc.so.6", "libm.so.6", "libgcc_s.so.1", "libstdc++.so.6", "libexpat.so.1", "ld-linux-x86-64.so.2"}


def run(*command: str) -> str:
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def windows(library: str) -> tuple[set[str], set[str], set[str]]:
    """Libraries that it loads, those that it may, and names that it exports."""
    text = run("objdump", "-p", library)
    table = text.split("[Ordinal/Name Pointer] Table", 1)[1].split("\n\n", 1)[0]
    names = set(re.findall(r"^\s*\[\s*\d+\].*?(\S+)$", table, re.MULTILINE))
    loaded = {name.lower().removesuffix(".dll") for name in re.findall(r"DLL Name: (\S+)", text)}
    return loaded, WINDOWS, names


def linux(library: str) -> tuple[set[str], set[str], set[str]]:
    loaded = set(re.findall(r"NEEDED\s+(\S+)", run("objdump", "-p", library)))
    names = {line.split()[-1] for line in run("nm", "-D", "--defined-only", library).splitlines()}
    return loaded, LINUX, names - {VERSION}


def findings(loaded: set[str], allowed: set[str], names: set[str], expected: set[str]) -> Iterator[str]:
    yield from (f"needs another library: {name}" for name in sorted(loaded - allowed))
    yield from (f"leaves by accident: {name}" for name in sorted(names - expected))
    yield from (f"declared in ravo.h, but not there: {name}" for name in sorted(expected - names))


def main(library: str) -> int:
    is_windows = pathlib.Path(library).read_bytes()[:2] == b"MZ"
    suffix = "" if is_windows else f"@@{VERSION}"
    expected = {function.name + suffix for function in functions(parsed())}
    loaded, allowed, names = windows(library) if is_windows else linux(library)
    lines = list(findings(loaded, allowed, names, expected))
    # Each kind of defect would be found.
    one = min(names)
    planted = list(findings(loaded | {"libother"}, allowed, names - {one} | {"_ZN4ravo1cE"}, expected))
    assert loaded and len(planted) == len(lines) + 3, planted
    print("\n".join(lines) or f"{len(names)} names, all of ravo.h; libraries: {', '.join(sorted(loaded))}")
    return 1 if lines else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
