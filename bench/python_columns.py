#!/usr/bin/env python3
"""Times columns of the Python package beside python-stdnum.

usage: python_columns.py PACKAGE REPORT [ROWS]     (PACKAGE is the folder from which `ravo` is imported)

Each column has ten million rows, or ROWS, of which every twentieth is wrong. `arrow` is in one piece of memory, `object`
an array of strings in the order in which they were made, as from a file, `shuffled` the same ones in another order.
python-stdnum checks a sample of the column one by one, a hundredth; its time is that of a value. Each job is run in turn
with its rival. Prints the medians and their ratios; REPORT has every run, in the format of the other benchmarks.
"""

import ctypes
import gc
import importlib
import json
import pathlib
import random
import statistics
import struct
import sys
import time

RUNS = 5
KINDS = {"ico": "stdnum.cz.dic", "account": "stdnum.cz.bankaccount", "iban": "stdnum.iban"}


class Texts:
    """A column of Arrow, laid out over the C structs."""

    def __init__(self, values):
        offsets = [0]
        for value in values:
            offsets.append(offsets[-1] + len(value))
        self.memory = [None, struct.pack(f"<{len(offsets)}i", *offsets), "".join(values).encode()]
        places = [None if one is None else ctypes.cast(ctypes.c_char_p(one), ctypes.c_void_p) for one in self.memory]
        self.buffers = (ctypes.c_void_p * 3)(*places)
        release = ctypes.CFUNCTYPE(None, ctypes.c_void_p)(lambda place: None)
        self.released = release
        pointer = ctypes.cast(release, ctypes.c_void_p).value or 0
        self.format = ctypes.create_string_buffer(b"u")
        self.schema = (ctypes.c_int64 * 9)(ctypes.addressof(self.format), ctypes.addressof(self.format), 0, 2, 0, 0, 0, pointer, 0)
        self.array = (ctypes.c_int64 * 10)(len(values), 0, 0, 3, 0, ctypes.addressof(self.buffers), 0, 0, pointer, 0)

    def __arrow_c_array__(self, requested_schema=None):
        new = ctypes.pythonapi.PyCapsule_New
        new.restype, new.argtypes = ctypes.py_object, [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_void_p]
        return new(ctypes.addressof(self.schema), b"arrow_schema", None), new(ctypes.addressof(self.array), b"arrow_array", None)


def values_of(check, kind, rows):
    """Texts of their own, as a reader of files makes them, from some thousands of different ones."""
    generator = random.Random(20261122)
    correct: list[str] = []
    while len(correct) < 5000:
        account = f"{generator.randrange(10**4, 10**10)}/0800"
        text = {"ico": f"{generator.randrange(10**8):08}", "account": account}.get(kind, "")
        if kind == "iban" and check.account(account):
            text = check.account_to_iban(account)
        if check.of(kind, text):
            correct.append(text)
    found = []
    for row in range(rows):
        text = generator.choice(correct)
        found.append(text[:-1] + chr(ord(text[-1]) ^ 1) if row % 20 == 0 else text[:1] + text[1:])
    return found


def timed(call, rows):
    start = time.perf_counter()
    call()
    return (time.perf_counter() - start) / rows * 1e9


def in_turn(rivals):
    """The runs of each, one after the other; the first turn warms up."""
    runs: dict[str, list[float]] = {name: [] for name in rivals}
    for turn in range(RUNS + 1):
        for name, run in rivals.items():
            taken = run()
            if turn > 0:
                runs[name].append(taken)
    return runs


def jobs(ravo, rows):
    numpy = importlib.import_module("numpy")
    for kind, module in KINDS.items():
        values = values_of(ravo.check, kind, rows)
        rival = importlib.import_module(module)
        sample = [("CZ" if kind == "ico" else "") + value for value in values[:max(1, rows // 100)]]
        shuffled = random.Random(1).sample(values, len(values))
        columns = {"arrow": Texts(values), "bytes": numpy.array(values, dtype="S"), "object": numpy.array(values, dtype=object),
                   "shuffled": numpy.array(shuffled, dtype=object)}
        for form, column in columns.items():
            yield f"column_{form}_{kind}", {
                "ravo": lambda column=column: timed(lambda: ravo.columns.check(column, kind), rows),
                "one thread": lambda column=column: timed(lambda: ravo.columns.check(column, kind, threads=1), rows),
                "python-stdnum": lambda: timed(lambda: [rival.is_valid(value) for value in sample], len(sample))}


def main(package, report_file, rows="10000000"):
    sys.path.insert(0, package)
    ravo = importlib.import_module("ravo")
    gc.disable()
    report = []
    for job, rivals in jobs(ravo, int(rows)):
        runs = in_turn(rivals)
        ours = statistics.median(runs["ravo"])
        for name, times in runs.items():
            median = statistics.median(times)
            print(f"{job:26} {name:20} {median:12.1f} ns  {median / ours:8.2f}x", flush=True)
            report += [{"run_name": f"{job}/{name}", "run_type": "iteration", "cpu_time": taken} for taken in times]
    pathlib.Path(report_file).write_text(json.dumps({"benchmarks": report}), encoding="utf-8")


if __name__ == "__main__":
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    main(*sys.argv[1:])
