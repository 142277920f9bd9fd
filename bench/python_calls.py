#!/usr/bin/env python3
"""Times calls of the Python package beside python-stdnum, and its codecs beside those of Python.

usage: python_calls.py PACKAGE REPORT      (PACKAGE is the folder from which `ravo` is imported)

All run in one process and in turn, several times. Prints the medians and their ratios. REPORT has every run, in the
format of the other benchmarks. A call makes its result; the loop around the calls counts for both sides.
"""

import gc
import importlib
import json
import pathlib
import random
import statistics
import sys
import time

RUNS = 9
VALUES = 2000
MEGABYTES = 100
MODULES = {"ico": None, "dic": "stdnum.cz.dic", "rc": "stdnum.cz.rc", "account": "stdnum.cz.bankaccount", "iban": "stdnum.iban"}
RUSSIAN = "Съешь же ещё этих мягких французских булок, да выпей чаю. Счёт 2026000579, 21. 11. 2026.\r\n"
SENTENCE = "Příliš žluťoučký kůň úpěl ďábelské ódy. Faktura číslo 2026000579, splatnost 21. 11. 2026.\r\n"
CODECS = {"windows_1250": ("cp1250", "bytes.decode of Windows-1250"), "mac_latin2": ("mac_latin2", "bytes.decode of 8-bit Mac"),
          "mac_cyrillic": ("mac_cyrillic", "bytes.decode of 8-bit Mac")}


def values_of(check, kind):
    """Different texts that are correct in form, found by trying."""
    generator = random.Random(20261122)
    found: list[str] = []
    while len(found) < VALUES:
        digits = f"{generator.randrange(10**8):08}"
        text = {"ico": digits, "dic": "CZ" + digits, "rc": f"{generator.randrange(54, 100):02}{generator.randrange(1, 13):02}"
                f"{generator.randrange(1, 29):02}/{generator.randrange(10000):04}", "account": f"{generator.randrange(10**4, 10**10)}/0800"}.get(kind, "")
        if kind == "iban":
            account = f"{generator.randrange(10**4, 10**10)}/0800"
            text = check.account_to_iban(account) if check.account(account) else ""
        if check.of(kind, text):
            found.append(text)
    return found


def calls(function, values):
    start = time.perf_counter()
    for value in values:
        function(value)
    return (time.perf_counter() - start) / len(values) * 1e9


def decoding(data, encoding):
    start = time.process_time()
    data.decode(encoding)
    return (time.process_time() - start) * 1e9


def in_turn(rivals):
    """The runs of each, one after the other; the first turn warms up."""
    runs: dict[str, list[float]] = {name: [] for name in rivals}
    for turn in range(RUNS + 1):
        for name, run in rivals.items():
            taken = run()
            if turn > 0:
                runs[name].append(taken)
    return runs


def jobs(ravo):
    for kind, module in MODULES.items():
        values = values_of(ravo.check, kind)
        rivals = {"ravo": lambda kind=kind, values=values: calls(getattr(ravo.check, kind), values), "limit": lambda: 150.0}
        if module:
            rival = importlib.import_module(module)
            rivals["python-stdnum"] = lambda rival=rival, values=values: calls(rival.is_valid, values)
        yield f"call_{kind}", rivals
    for name, (python, witness) in CODECS.items():
        sentence = RUSSIAN if name == "mac_cyrillic" else SENTENCE
        text = sentence * (MEGABYTES * 1_000_000 // len(sentence))
        data = text.encode(python, "replace")
        yield f"decode_{name}", {"ravo": lambda data=data, name=name: decoding(data, "ravo_" + name),
                                 witness: lambda data=data, python=python: decoding(data, python)}


def main(package, report_file):
    sys.path.insert(0, package)
    ravo = importlib.import_module("ravo")
    gc.disable()
    report = []
    for job, rivals in jobs(ravo):
        runs = in_turn(rivals)
        ours = statistics.median(runs["ravo"])
        for name, times in runs.items():
            median = statistics.median(times)
            print(f"{job:22} {name:30} {median:14.0f} ns  {median / ours:7.2f}x")
            report += [{"run_name": f"{job}/{name}", "run_type": "iteration", "cpu_time": taken} for taken in times]
    pathlib.Path(report_file).write_text(json.dumps({"benchmarks": report}), encoding="utf-8")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
