#!/usr/bin/env python3
"""Prints how many nanoseconds python-stdnum takes to validate a value; nothing if it is not installed or has no such kind.

usage: czech_stdnum.py KIND FILE      (FILE has a value on each line)
"""

import importlib
import pathlib
import statistics
import sys
import time

MODULES = {"dic": "stdnum.cz.dic", "rc": "stdnum.cz.rc", "account": "stdnum.cz.bankaccount", "iban": "stdnum.iban"}
RUNS = 9


def nanoseconds(module, values):
    start = time.perf_counter()
    for value in values:
        module.is_valid(value)
    return (time.perf_counter() - start) / len(values) * 1e9


def main(kind, file):
    try:
        module = importlib.import_module(MODULES[kind])
    except (KeyError, ImportError):
        return
    values = pathlib.Path(file).read_text(encoding="ascii").splitlines()
    print(statistics.median(nanoseconds(module, values) for _ in range(RUNS)))


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
