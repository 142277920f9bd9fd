#!/usr/bin/env python3
"""ravo.h compiles in each C and C++ of a compiler, strictly, alone and with the system's own header around it.

usage: header.py FOLDER C-COMPILER C++-COMPILER [--around HEADER] [FLAG...]
"""
import concurrent.futures
import itertools
import os
import pathlib
import subprocess
import sys

STANDARDS = {"c": ["c99", "c11", "c17"], "c++": ["c++11", "c++14", "c++17", "c++20", "c++2b"]}
STRICT = ["-Wall", "-Wextra", "-Wpedantic", "-Werror", "-fsyntax-only"]
USE = """
int use(const char *text);
int use(const char *text) {
  ravo_error error = RAVO_ERROR_INIT;
  char value[RAVO_VALUE_SIZE];
  return ravo_check(RAVO_KIND_ICO, text, RAVO_NUL_TERMINATED, value, sizeof value, NULL, &error) == RAVO_OK;
}
"""


def errors(compiler: list[str], language: str, standard: str, text: str) -> str:
    """What a compiler says about a text; nothing if it accepts it."""
    command = [*compiler, f"-std={standard}", *STRICT, "-x", language, "-"]
    done = subprocess.run(command, input=text, capture_output=True, text=True, check=False)
    return "" if done.returncode == 0 else done.stderr or "it does not compile"


def texts(around: str | None) -> list[str]:
    own = "#include <ravo.h>\n"
    other = f"#define WIN32_LEAN_AND_MEAN\n#include <{around}>\n" if around else ""
    return sorted({own + USE, own + other + USE, other + own + USE})


def findings(compilers: dict[str, list[str]], around: str | None) -> list[str]:
    cases = [
        (language, standard, text)
        for language, standards in STANDARDS.items() for standard, text in itertools.product(standards, texts(around))
    ]  # fmt: skip
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        said = pool.map(lambda case: errors(compilers[case[0]], *case), cases)
        return [f"{standard}: {text.splitlines()[:2]}: {words}" for (_, standard, text), words in zip(cases, said) if words]


def main(arguments: list[str]) -> int:
    folder, c_compiler, cxx_compiler, *rest = arguments
    around = rest[1] if rest[:1] == ["--around"] else None
    flags = [*(rest[2:] if around else rest), f"-I{pathlib.Path(folder)}"]
    compilers = {"c": [c_compiler, *flags], "c++": [cxx_compiler, *flags]}
    lines = findings(compilers, around)
    for language, compiler in compilers.items():
        if not errors(compiler, language, STANDARDS[language][-1], f"{texts(None)[0]}int use(int idle) {{ return 1; }}\n"):
            lines.append(f"{compiler[0]}: a planted warning is not found")
    print("\n".join(lines) or "ravo.h is read in every standard")
    return 1 if lines else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
