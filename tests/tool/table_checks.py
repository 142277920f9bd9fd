"""Tables that `ravo check --csv` reads: damaged, large, of other encodings; rows split into two files; columns on a terminal."""

import csv
import io
import json
import os
import pathlib
import random
import subprocess
import sys

from harness import NO, WRONG_USAGE, YES, Row

# A table, what standard output has of it, and what standard error has.
DAMAGED = [
    # A row of another length is a finding, and each of its fields is checked.
    (b"VS;X\n0;1\n1;1;2\n1\n", NO,
     ("line 3\t\t\t3 fields, not 2\nline 3\tVS\t1\tnot valid\nline 4\t\t\tone field, not 2\nline 4\tVS\t1\tnot valid\n", "3 rows, with findings: 2",
      "\n\t\t2\tanother number of fields\n"), "delimiter ';'"),
    # One stray quote costs one row.
    (b'VS;X\n0;1\n"1;1\n1;"2\n"\n1;3\n', NO,
     ("line 3\t\t\ta quote is never closed\nline 3\tVS\t\"1\tnot valid\nline 4\tVS\t1\tnot valid\nline 6\tVS\t1\tnot valid\n", "4 rows"), ";"),
    (b'VS;X\n"0"0;1\n', NO, ('line 2\t\t\ttext after a closing quote\nline 2\tVS\t"0"0\tnot valid\n',), ";"),
    (b'VS\n1\n"2', NO, ("line 2\tVS\t1\tnot valid\nline 3\t\t\ta quote is never closed\n",), ";"),
    # A carriage return alone ends a line too.
    (b"VS;X\r1;2\r1;3\r", NO, ("line 2\tVS\t1\tnot valid\nline 3\tVS\t1\tnot valid\n2 rows",), ";"),
    (b"VS;X\n1;2\r1;3\r\n1;4\n", NO, ("line 2\tVS\t1\tnot valid\nline 3\tVS\t1\tnot valid\nline 4\tVS\t1\tnot valid\n3 rows",), ";"),
    (b"VS,X\r\n0,\"a\r\nb\"\r\n1,c\r\n", NO, ("line 4\tVS\t1\tnot valid\n2 rows",), "delimiter ','"),
    # A delimiter is one that gives rows of one length.
    (b"VS|Castka\n1|1,00\n1|2,00\n", NO, ("line 2\tVS\t1\tnot valid\n",), "delimiter '|'"),
    (b"a,b\tVS\n1,5\t1\n2;3\t1\n", NO, ("line 2\tVS\t1\tnot valid\nline 3\tVS\t1\tnot valid\n",), "delimiter tab"),
    # Nothing of a value steers a terminal or breaks the line.
    (b'VS\n"1\t\n\x1b[31m"\n', NO, ("line 2\tVS\t1␉␊␛[31m\tnot valid\n",), ";"),
    ("VS\n\u0085č\n".encode(), NO, ("line 2\tVS\t<U+0085>č\tnot valid\n",), "UTF-8"),
    ("VS\nč\n".encode("cp1250"), NO, ("line 2\tVS\tč\tnot valid\n",), "Windows-1250"),
    ("\ufeffVS\n1\n".encode(), NO, ("line 2\tVS\t1\tnot valid\n",), "UTF-8"),
    (b"VS\n0\n", YES, ("one row, with findings: 0\nVS\tvs\t1\tvalid\n",), "UTF-8"),
    (b"", WRONG_USAGE, (), "no first row"),
    (b"\n\r\n\r", WRONG_USAGE, (), "no first row"),
    (b'VS;"X\n1;2\n', WRONG_USAGE, (), "line 1: a quote is never closed"),
    ("VS\n1\n".encode("utf-16"), WRONG_USAGE, (), "ravo convert -f auto"),
    (b"VS;VS\n0;0\n", WRONG_USAGE, (), "columns 1, 2 are all named 'VS'"),
]


def check_damaged_tables(program):
    """What is wrong with a row is a finding on its line, and the check goes on."""
    file = program.folder / "účty.csv"
    for content, status, out, err in DAMAGED:
        file.write_bytes(content)
        row = Row(["check", "--suite", "--csv", file.name, "--column", "VS=vs"], status, out=out, err=("ravo check: účty.csv: ", err))
        yield from program.failures(row)
    # A form takes no table with a fault.
    for content, err in ((b"field;value;field\na;b;c\n", "line 1: columns 1, 3 are all named 'field'"), (b'field;value\na;"b\n', "line 2: a quote is never"),
                         (b"field;value\na;b;c\n", "line 2: 3 fields, not 2"), (b"fild,value\n", "did you mean 'fild'?")):
        file.write_bytes(content)
        yield from program.failures(Row(["form", file.name, "-o", "x.fdf"], WRONG_USAGE, exact="", err=(err,)))
    file.write_bytes(b"")
    row = Row(["check", "--suite", "--csv", "-", "--column", "VS=vs"], WRONG_USAGE, exact="", err=("-: has no first row",))
    yield from program.failures(row)
    file.unlink()


def check_table_names(program):
    """Columns are found by name, by name without case or by number; a name of several finds none."""
    file = program.folder / "jména.csv"
    file.write_bytes("vs;VS;Účet;2;5\n0;1;2;3;4\n".encode())
    rows = [
        ("VS", NO, "line 2\tVS\t1\t", "UTF-8"), ("vs", YES, "vs\tvs\t1\tvalid\n", "UTF-8"), ("účet", NO, "\tÚčet\t2\t", "UTF-8"),
        ("3", NO, "\tÚčet\t2\t", "UTF-8"), ("2", NO, "line 2\t2\t3\t", "UTF-8"), ("Vs", WRONG_USAGE, "", "columns 1, 2 are named 'Vs' but for case"),
        ("0", WRONG_USAGE, "", "there is no column 0, the last one is 5"), ("Učet", WRONG_USAGE, "", "did you mean 'Účet'?"),
    ]
    for name, status, out, err in rows:
        yield from program.failures(Row(["check", "--suite", "--csv", file.name, "--column", f"{name}=vs"], status, out=(out,), err=(err,)))
    # A byte that contradicts what the start of the table says.
    start = b"VS\n" + b"0\n" * 150000
    file.write_bytes(start + b"0\nA\xe8\n0\n\xc5\x99\xc5\n")
    wrong = (f"line 150003\t\t\tbyte 0xE8 at offset {len(start) + 3} is not UTF-8", "line 150003\tVS\tA\ufffd\tnot valid\n",
             f"line 150005\t\t\tbyte 0xC5 at offset {len(start) + 9} is not UTF-8")
    yield from program.failures(Row(["check", "--suite", "--csv", file.name, "--column", "VS=vs"], NO, out=wrong, err=("UTF-8",)))
    file.unlink()


def check_table_encodings(program):
    """The encoding is that of the first characters past ASCII within 256 KiB, with a doubt told."""
    file = program.folder / "kódy.csv"
    text = "VS;Text\n" + "0;Příliš žluťoučký kůň úpěl ďábelské ódy\n" * 20 + "Ž;účet\n"
    ascii_rows = "0;x\n" * 50000
    for encoding, label in (("cp1250", "Windows-1250"), ("iso8859-2", "ISO 8859-2"), ("cp852", "Code page 852"), ("utf-8", "UTF-8")):
        for start in ("", ascii_rows):
            content = text.replace("\n", "\n" + start, 1)
            file.write_bytes(content.encode(encoding))
            wanted = f"line {content.count(chr(10))}\tVS\tŽ\tnot valid\n"
            row = Row(["check", "--suite", "--csv", file.name, "--column", "VS=vs"], NO, out=(wanted,), err=(f"kódy.csv: {label}, delimiter ';'\n",))
            yield from program.failures(row)
    file.write_bytes("VS\nč\n".encode("cp1250"))
    row = Row(["check", "--suite", "--csv", file.name, "--column", "VS=vs"], NO, err=("Windows-1250 (Windows-1250 and ISO 8859-2 read it alike), delimiter ';'\n",))
    yield from program.failures(row)
    file.write_bytes("Firma\tVS\na;b\t1\n".encode())
    row = Row(["check", "--suite", "--csv", file.name, "--column", "VS=vs", "--delimiter", "tab", "--encoding", "utf-8"], NO, silent=True,
              out=("line 2\tVS\t1\tnot valid\n",))
    yield from program.failures(row)
    file.unlink()


def check_long_values(program):
    """A value is checked and told whole, however long it is and whatever is past it."""
    file = program.folder / "dlouhé.csv"
    values = [*("311" + "1" * length for length in range(100)), "č" * 40, '"' + "311" * 30 + '""x"', "50"]
    file.write_bytes("\n".join(["ucet", *values]).encode())
    result = program.run(["check", "--suite", "--csv", file.name, "--column", "ucet=ucet", "--json"])
    *findings, summary = map(json.loads, result.out.splitlines())
    wanted = [*values[4:-2], "311" * 30 + '"x', "50"]
    if [finding["value"] for finding in findings] != wanted or summary["columns"][0]["valid"] != 4:
        yield f"check --csv of long values: {result.out[-600:]}"
    file.unlink()


def check_full_output(program):
    """Findings that cannot be written end the check at once."""
    if program.emulated or not os.path.exists("/dev/full"):
        return
    file = program.folder / "plná.csv"
    file.write_bytes(b"VS\n" + b"1\n" * 400000)
    with open("/dev/full", "wb") as full:
        result = program.run(["check", "--suite", "--csv", file.name, file.name, "--column", "VS=vs"], out=full)
    if result.status != WRONG_USAGE or not result.err.endswith("delimiter ';'\nravo check: the output cannot be written\n"):
        yield f"check --csv to a full device: {result}"
    file.unlink()


def table_of(source, rows):
    """Rows of three fields with delimiters, quotes and line ends in them; the first field tells the row."""
    pieces = ["a", "1", ";", '"', "\n", "\r\n", "č", " ", ","]
    return [[str(number), "".join(source.choices(pieces, k=source.randrange(6))), source.choice(["311", "50", ""])] for number in range(rows)]


def check_quoted_tables(program):
    """Fields are those that Python's own reader finds, whatever the number of threads."""
    source = random.Random(15)
    file = program.folder / "uvozovky.csv"
    text = io.StringIO(newline="")
    csv.writer(text, delimiter=";", lineterminator="\r\n").writerows([["číslo", "text", "účet"], *table_of(source, 40000)])
    file.write_bytes(text.getvalue().encode())
    wanted = [row[1] for row in csv.reader(io.StringIO(text.getvalue(), newline=""), delimiter=";")][1:]
    for threads in ("1", "3"):
        result = program.run(["check", "--suite", "--csv", file.name, "--column", "text=banka", "--json", "--threads", threads])
        *findings, summary = map(json.loads, result.out.splitlines())
        if [finding["value"] for finding in findings] != wanted or summary["rows"] != len(wanted):
            yield f"check --csv of quoted fields, {threads} threads: {len(findings)} findings of {len(wanted)}, {summary}"
    file.unlink()


def check_split_tables(program):
    """Rejected and clean rows together are the table, byte for byte."""
    source = random.Random(16)
    table, rejects, clean = (program.folder / name for name in ("vše.csv", "vadné.csv", "čisté.csv"))
    ends = [b"\n", b"\r\n", b"\r\n\r\n"]
    rows = []
    for number in range(30000):
        row = b"%d;%s;%s" % (number, source.choice([b"311", b"311", b"50"]), source.choice([b"x", b"x;y", b'"x\ny"', b'"x', b"\xff"]))
        rows.append(row + source.choice(ends))
    rows[-1] = rows[-1].rstrip()
    head = b"\xef\xbb\xbfn;ucet;text\n"
    table.write_bytes(head + b"".join(rows))
    for threads in ("1", "4"):
        arguments = ["check", "--suite", "--csv", table.name, "--column", "ucet=ucet", "--limit", "0", "--encoding", "utf-8", "--delimiter", ";"]
        result = program.run([*arguments, "--rejects", rejects.name, "--clean", clean.name, "--threads", threads])
        bad = [b";50;" in row or row.rstrip().endswith((b"x;y", b'"x', b"\xff")) for row in rows]
        # Empty lines are of no row.
        wanted = b"".join(row[:-2] if row.endswith(b"\r\n\r\n") else row for row, is_bad in zip(rows, bad) if is_bad)
        others = head + b"".join(b"\r\n" * row.endswith(b"\r\n\r\n") if is_bad else row for row, is_bad in zip(rows, bad))
        if result.status != NO or rejects.read_bytes() != wanted or clean.read_bytes() != others:
            yield f"check --rejects --clean, {threads} threads: other bytes, {result}"[:2000]
        if f"30000 rows, with findings: {sum(bad)}\n" not in result.out:
            yield f"check --rejects: {result.out[:300]}, not {sum(bad)} rows"
    old = rejects.read_bytes()
    result = program.run(["check", "--suite", "--csv", table.name, "--column", "nic=ucet", "--rejects", rejects.name])
    if result.status != WRONG_USAGE or rejects.read_bytes() != old:
        yield f"check --rejects of a table without the column: {result}"
    for path in (table, rejects, clean):
        path.unlink()
    if left := [path.name for path in program.folder.iterdir() if path.suffix == ".tmp"]:
        yield f"check --rejects: left {left}"


# A process begins with the memory of the one that started it: this one is small.
MEASURE = """
import os, subprocess, sys
child = subprocess.Popen(sys.argv[2:], stdin=open(sys.argv[1], "rb"), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
_, status, usage = os.wait4(child.pid, 0)
print(os.waitstatus_to_exitcode(status), usage.ru_maxrss * 1024)
"""


def peak_memory(command, folder, given=os.devnull):
    """The exit status and the largest memory in bytes of a program that reads a file."""
    told = subprocess.run([sys.executable, "-c", MEASURE, given, *command], cwd=folder, check=True, stdout=subprocess.PIPE)
    status, memory = map(int, told.stdout.split())
    return status, memory


def check_large_tables(program):
    """The order of findings is the table's with any number of threads, and their number costs no memory."""
    file = program.folder / "velká.csv"
    file.write_bytes(b"a;b;c;d\n" + b"".join(b"x%d;;x;1\n" % number for number in range(200000)))
    columns = [argument for name in "abcd" for argument in ("--column", f"{name}=ucet")]
    alone = program.run(["check", "--suite", "--csv", file.name, *columns, "--threads", "1"])
    together = program.run(["check", "--suite", "--csv", file.name, *columns, "--threads", "5"])
    places = [line.split("\t")[:2] for line in alone.out.splitlines() if line.startswith("line ")]
    if alone != together or places != [[f"line {number}", name] for number in range(2, 200002) for name in "abcd"]:
        yield f"check --csv of a large table: {len(places)} findings, {alone.status}, {together.status}"
    piped = program.run(["check", "--suite", "--csv", "-", *columns], given=file.name)
    if (piped.status, piped.out) != (alone.status, alone.out):
        yield f"check --csv - of a large table: {piped.status}, {piped.err}"
    limited = program.run(["check", "--suite", "--csv", file.name, *columns, "--limit", "100003"])
    if limited.out.splitlines()[:100003] != alone.out.splitlines()[:100003] or "findings shown: 100003, left out: 699997" not in limited.out:
        yield f"check --csv --limit: {limited.out[-400:]}"
    if not program.emulated and hasattr(os, "wait4"):
        status, memory = peak_memory([*program.command, "check", "--suite", "--csv", file.name, *columns, "--json"], program.folder)
        # Its findings take 90 MB. Sanitizers keep what is freed for a while.
        if status != NO or memory > (80_000_000 if program.slow else 60_000_000):
            yield f"check --csv --json of a large table: status {status}, {memory} bytes of memory"
    file.unlink()


def check_terminal_tables(program):
    """On a terminal, fields stand in columns."""
    if program.emulated or not hasattr(os, "openpty"):
        return
    file = pathlib.Path(program.folder) / "sloupce.csv"
    file.write_bytes("Účet;VS\n50;1\n311;123456\n".encode())
    shown = program.shown_on_terminal(["check", "--suite", "--csv", file.name, "--column", "Účet=ucet", "--column", "VS=vs"])
    wanted = ("line 2  Účet  50      not valid\nline 2  VS    1       not valid\nline 3  VS    123456  not valid\n"
              "2 rows, with findings: 2\nÚčet  ucet  1  valid\nÚčet  ucet  1  not valid\nVS    vs    0  valid\nVS    vs    2  not valid\n")
    if shown != wanted:
        yield f"check --csv on a terminal: {shown!r}"
    file.unlink()
