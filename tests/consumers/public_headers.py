#!/usr/bin/env python3
"""Each public header, included alone, declares the errors that its comments promise, and gives a compiler
older than C++20 one clear message before any other.

usage: public_headers.py INCLUDE_FOLDER COMPILER
"""

import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "checks"))
from promised_errors import HOST_HEADERS, errors_in, promised, reached, umbrellas  # noqa: E402

MESSAGE = "RavoInterface needs C++20"


def compiled(folder, compiler, standard, text):
    """Returns whether a text compiles, and the lines of the errors."""
    done = subprocess.run([compiler, f"-std={standard}", "-fsyntax-only", f"-I{folder}", "-xc++", "-"],
                          input=text, capture_output=True, text=True)
    return done.returncode == 0, [line for line in done.stderr.splitlines() if "error:" in line]


def catching(header, names):
    handlers = "".join(f"  try {{ F(); }} catch (const ravo::{name}&) {{}}\n" for name in names)
    return f"#include <{header}>\nvoid F();\nvoid Catch() {{\n{handlers}}}\n"


def findings(folder, compiler):
    everything = set().union(*(reached(folder, name) for name in umbrellas(folder)))
    errors = errors_in(folder, everything)
    if len(errors) < 8:
        yield f"found only {sorted(errors)}"
    for header in umbrellas(folder):
        names = sorted(set().union(*(promised(folder, other, errors) for other in reached(folder, header))))
        good, lines = compiled(folder, compiler, "c++20", catching(header, names))
        if not good:
            yield f"{header} alone does not declare all of {names}: {lines[:1]}"
        good, lines = compiled(folder, compiler, "c++17", f"#include <{header}>\n")
        if good or MESSAGE not in lines[0] or sum(MESSAGE in line for line in lines) != 1:
            yield f"{header} as C++17: {lines[:1]}"
    if compiled(folder, compiler, "c++20", catching("ravo/DIUtils.h", ["NoSuchError"]))[0]:
        yield "an error that nobody declares was caught"
    for header in HOST_HEADERS:
        if not compiled(folder, compiler, "c++17", f"#include <{header}>\n")[0]:
            yield f"{header} does not compile as C++17"


def main(arguments):
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    lines = list(findings(pathlib.Path(arguments[0]), arguments[1]))
    print("\n".join(lines) or "every public header gives what it promises")
    return 1 if lines else 0


sys.exit(main(sys.argv[1:]))
