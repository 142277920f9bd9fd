#!/usr/bin/env python3
"""Times `ravo check --csv` on a million rows beside mawk and DuckDB, which merely split the same file or count its rows.

usage: check_csv.py RAVO FOLDER REPORT [DUCKDB]      (FOLDER keeps the file between runs)

DUCKDB is a folder with DuckDB's package for Node.js; without it its rows are left out. Its time is that of its query
alone, on as many threads as there are processors; all other times are those of a whole program. All run in turn, several
times; the medians of their wall times and the ratios are printed. REPORT has every run, in the form in which the other
benchmarks report.
"""

import pathlib
import shutil
import subprocess
import sys
import time

from whole_program import in_turn, report

ROWS, COPIES = 20_000, 50
COLUMNS = {"Účet MD": "ucet", "Účet D": "ucet", "VS": "vs", "Protiúčet": "banka", "EAN": "ean"}
PLACES = (3, 4, 6, 7, 8)
COUNT = """
import { createRequire } from "node:module";
const { DuckDBInstance } = createRequire(process.argv[1] + "/")("@duckdb/node-api");
const connection = await (await DuckDBInstance.create(":memory:")).connect();
const start = process.hrtime.bigint();
await connection.runAndReadAll(`select count(*) from read_csv('${process.argv[2]}', all_varchar = true)`);
console.log(Number(process.hrtime.bigint() - start) / 1e9);
"""


def million_rows(folder):
    """A ledger of a million rows: twenty thousand rows, repeated fifty times."""
    whole = folder / "million.csv"
    if not whole.exists():
        part = folder / "part.csv"
        generator = pathlib.Path(__file__).resolve().parents[1] / "tools/generate/ledger.py"
        subprocess.run([sys.executable, generator, "--rows", str(ROWS), "--output", part], check=True)
        head, _, rows = part.read_bytes().partition(b"\r\n")
        whole.write_bytes(head + b"\r\n" + rows * COPIES)
        part.unlink()
    return whole


def seconds(command, source=None):
    """`source` is a file to pipe in."""
    pipe = subprocess.Popen(["cat", source], stdout=subprocess.PIPE) if source else None
    start = time.perf_counter()
    done = subprocess.run(command, check=False, stdin=pipe.stdout if pipe else subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                          stderr=subprocess.PIPE)
    taken = time.perf_counter() - start
    if pipe and pipe.stdout:
        pipe.stdout.close()
        pipe.wait()
    if done.returncode not in (0, 1):
        sys.exit(f"{command}: {done.stderr.decode()}")
    return taken


def count_seconds(duckdb, file):
    command = ["node", "--input-type=module", "-e", COUNT, duckdb, file]
    return float(subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout)


def jobs_on(ravo, file, duckdb):
    """{job: {program: a function that gives the seconds of a run}}"""
    check = [ravo, "check", "--suite"]
    for name, kind in COLUMNS.items():
        check += ["--column", f"{name}={kind}"]
    assignments = "; ".join(f"c{place} = ${place}" for place in PLACES)
    jobs = {
        "check --csv": {
            "ravo": lambda: seconds([*check, "--allow-empty", "--csv", file]),
            "mawk, the same columns": lambda: seconds(["mawk", "-F;", "{ %s }" % assignments, file]),
            "mawk, counting fields": lambda: seconds(["mawk", "-F;", "{ n += NF }", file]),
        },
        "check --csv, with 1.9 million findings": {"ravo": lambda: seconds([*check, "--column", "Doklad=vs", "--csv", file])},
        "check --csv -, from a pipe": {"ravo": lambda: seconds([*check, "--allow-empty", "--csv", "-"], file)},
    }
    if duckdb and (pathlib.Path(duckdb) / "node_modules").is_dir() and shutil.which("node"):
        for programs in jobs.values():
            programs["DuckDB, counting rows"] = lambda: count_seconds(duckdb, file)
    return jobs


def main(ravo, folder, report_file, duckdb=None):
    if not shutil.which("mawk"):
        print("mawk is missing")
        return 0
    jobs = jobs_on(ravo, str(million_rows(pathlib.Path(folder))), duckdb)
    runs = {(job, name): run for job, programs in jobs.items() for name, run in programs.items()}
    report(in_turn(runs), report_file)
    return 0


if __name__ == "__main__":
    if len(sys.argv) not in (4, 5):
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
